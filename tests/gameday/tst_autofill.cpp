// Pitching auto-fill on the grid: the two marks, the walk from the first
// at bat a pitcher faced to the last, in batting order and inning order,
// and its failure.

#include "GridTestSupport.h"

#include <QSignalSpy>

using gameday::AutoFillData;
using gameday::ScoreGrid;
using namespace gridtest;

Q_DECLARE_METATYPE(AutoFillData)

namespace {

// Three innings of one team's card, nine batters:
//  1st: batters 1-5 (single and run, K, homer, ground out, fly out)
//  2nd: batters 6-9 then 1-2 (walk, hit batter caught stealing, K looking,
//       double and run, intentional walk, ground out)
//  3rd: batters 3-7 (triple left on, a disabled cell, K, fly out, ground out)
//  4th: batter 7 homers, batter 8's runner is put out with no at bat, 9 singles
void loadCard(ScoreGrid &grid)
{
    loadTeam(grid, 9);
    fillColumn(grid, 0, {"B1/G", "KS/R", "HR/G", "GO/R", "FO/R"});
    fillColumn(grid, 1, {"IBB/Y", "GO/R", ".", ".", ".", "BB/Y", "HBP/R", "KL/R", "B2/G"});
    fillColumn(grid, 2, {".", ".", "B3/Y", "/X", "KS/R", "FO/R", "GO/R"});
    fillColumn(grid, 3, {".", ".", ".", ".", ".", ".", "HR/G", "/R", "B1/G"});
}

QString figures(const AutoFillData &data)
{
    QStringList parts;
    for (int v : data)
        parts.append(QString::number(v));
    return parts.join(u',');
}

} // namespace

class TestAutoFill : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { qRegisterMetaType<AutoFillData>(); }

    void walk_data()
    {
        QTest::addColumn<QPoint>("first"); // (col, row) of the first mark
        QTest::addColumn<QPoint>("last");
        // outs, batters faced, hits, home runs, walks, intentional walks, strikeouts, hit batters
        QTest::addColumn<QString>("expected");

        QTest::newRow("one cell") << QPoint(0, 0) << QPoint(0, 0) << "0,1,1,0,0,0,0,0";
        QTest::newRow("span in one inning") << QPoint(0, 1) << QPoint(0, 3) << "2,3,1,1,0,0,1,0";
        QTest::newRow("into the next inning") << QPoint(0, 0) << QPoint(1, 1) << "6,11,3,1,1,1,2,1";
        QTest::newRow("second mark above the first wraps") << QPoint(1, 5) << QPoint(1, 1) << "3,6,1,0,1,1,1,1";
        QTest::newRow("ending on the last row") << QPoint(1, 5) << QPoint(1, 8) << "2,4,1,0,1,0,1,1";
        QTest::newRow("a disabled cell counts nothing") << QPoint(2, 2) << QPoint(2, 6) << "3,4,1,0,0,0,1,0";
        QTest::newRow("an out on an empty cell") << QPoint(3, 6) << QPoint(3, 8) << "1,2,2,1,0,0,0,0";
        QTest::newRow("an inning in between counts whole") << QPoint(0, 0) << QPoint(2, 4) << "7,13,4,1,1,1,3,1";
        QTest::newRow("marks given last first") << QPoint(1, 1) << QPoint(0, 0) << "6,11,3,1,1,1,2,1";
    }
    void walk()
    {
        QFETCH(QPoint, first);
        QFETCH(QPoint, last);
        QFETCH(QString, expected);

        GridEnv env;
        ScoreGrid grid;
        loadCard(grid);
        ScriptedPopover popover;
        popover.install(grid);
        QSignalSpy done(&grid, &ScoreGrid::autoFillDataReturn);
        QSignalSpy failed(&grid, &ScoreGrid::autoFillFailed);
        QSignalSpy marks(&grid, &ScoreGrid::autoMarkTaken);

        grid.setAutoFillMode(true);
        grid.cellClicked(first.y(), first.x(), false);
        QCOMPARE(grid.autoClickCount(), 1);
        QCOMPARE(done.count(), 0);
        grid.cellClicked(last.y(), last.x(), false);

        QCOMPARE(marks.count(), 2);
        QCOMPARE(done.count(), 1);
        QCOMPARE(failed.count(), 0);
        QCOMPARE(figures(done.at(0).at(0).value<AutoFillData>()), expected);
        QCOMPARE(figures(grid.autoFillFigures()), expected);
        QVERIFY(popover.showAll.isEmpty()); // marks never open the popover
        QVERIFY(env.fake.messages.shown.isEmpty());
    }

    void clickCountingAndReset()
    {
        GridEnv env;
        ScoreGrid grid;
        loadCard(grid);
        grid.setAutoFillMode(true);
        grid.setClickDisabled(true);
        grid.cellClicked(0, 0, false);
        QCOMPARE(grid.autoClickCount(), 0); // a covered grid takes no marks either

        grid.setClickDisabled(false);
        grid.cellClicked(2, 0, false);
        QCOMPARE(grid.autoStart(), std::make_pair(2, 0));
        grid.cellClicked(4, 0, false);
        QCOMPARE(grid.autoEnd(), std::make_pair(4, 0));
        QCOMPARE(env.fake.beeper.beeps, 0);
        grid.cellClicked(5, 0, false);
        QCOMPARE(grid.autoClickCount(), 3);
        QCOMPARE(env.fake.beeper.beeps, 1);
        QCOMPARE(figures(grid.autoFillFigures()), QStringLiteral("2,3,1,1,0,0,0,0"));

        grid.reinitAutoVars();
        QCOMPARE(grid.autoClickCount(), 0);
        QCOMPARE(figures(grid.autoFillFigures()), QStringLiteral("0,0,0,0,0,0,0,0"));
    }
};

QTEST_GUILESS_MAIN(TestAutoFill)
#include "tst_autofill.moc"
