// Games played click by click through the grid, for the places where a
// doubled inning or a substitution meets another rule: the auto-fill span
// of a reliever, the walk-off question, "Clear Column", and an at bat of a
// finished inning changed afterwards.

#include "GridTestSupport.h"

#include <QSignalSpy>

using gameday::AutoFillData;
using gameday::ScoreGrid;
using namespace gridtest;

Q_DECLARE_METATYPE(AutoFillData)

namespace {

// Plays one column: each entry is "row:code" or "row:code>result".
void play(ScoreGrid &grid, ScriptedPopover &popover, int col, const QStringList &plays)
{
    for (const QString &p : plays) {
        const int row = p.section(u':', 0, 0).toInt();
        const QStringList codes = p.section(u':', 1).split(u'>');
        for (const QString &code : codes) {
            popover.script({code});
            grid.cellClicked(row, col, false);
        }
    }
}

QString figures(const AutoFillData &data)
{
    QStringList parts;
    for (int v : data)
        parts.append(QString::number(v));
    return parts.join(u',');
}

} // namespace

class TestGridPlays : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { qRegisterMetaType<AutoFillData>(); }

    // Four batters. "1": three up, three down. "2": the order goes round
    // with nobody out and doubles into "2a", which starts at row 3.
    // "3" (a second game shape): the first inning itself doubles, so "1a"
    // starts at row 0.
    void relieverCountsOnlyHisBatters_data()
    {
        QTest::addColumn<bool>("firstInningDoubles");
        QTest::addColumn<QPoint>("first"); // (col, row)
        QTest::addColumn<QPoint>("last");
        QTest::addColumn<QString>("expected");
        QTest::newRow("enters in the middle of 2, ends in 2a")
            << false << QPoint(1, 1) << QPoint(2, 1) << "3,5,1,0,0,0,1,1";
        QTest::newRow("whole doubled inning") << false << QPoint(1, 3) << QPoint(2, 1) << "3,7,2,0,1,0,1,1";
        QTest::newRow("span ends in 1a from row 0") << true << QPoint(0, 0) << QPoint(1, 2) << "3,7,3,1,1,0,1,0";
        QTest::newRow("reliever of 1a alone") << true << QPoint(0, 3) << QPoint(1, 2) << "3,4,1,0,0,0,1,0";
    }
    void relieverCountsOnlyHisBatters()
    {
        QFETCH(bool, firstInningDoubles);
        QFETCH(QPoint, first);
        QFETCH(QPoint, last);
        QFETCH(QString, expected);

        GridEnv env;
        ScoreGrid grid;
        loadTeam(grid, 4);
        ScriptedPopover popover;
        popover.install(grid);
        QSignalSpy added(&grid, &ScoreGrid::columnAdded);
        if (firstInningDoubles) {
            play(grid, popover, 0, {"0:B1>xRUN", "1:BB", "2:HR", "3:GO"});
            play(grid, popover, 1, {"0:B1", "1:KS", "2:FO"});
        } else {
            play(grid, popover, 0, {"0:GO", "1:FO", "2:KS"});
            play(grid, popover, 1, {"3:B1", "0:BB", "1:HBP", "2:B2"});
            play(grid, popover, 2, {"3:GO", "0:KL", "1:FO"});
        }
        QCOMPARE(added.count(), 1);
        QVERIFY(grid.check4ThreeOuts(firstInningDoubles ? 0 : 1));

        QSignalSpy done(&grid, &ScoreGrid::autoFillDataReturn);
        grid.setAutoFillMode(true);
        grid.cellClicked(first.y(), first.x(), false);
        grid.cellClicked(last.y(), last.x(), false);
        QCOMPARE(done.count(), 1);
        QCOMPARE(figures(grid.autoFillFigures()), expected);
        QVERIFY(env.fake.messages.shown.isEmpty());
    }

    // After a doubling in the first inning every later inning sits one
    // column to the right; the question follows the inning.
    void walkoffAskedByInning_data()
    {
        QTest::addColumn<int>("col");
        QTest::addColumn<bool>("asked");
        QTest::newRow("8th inning of 9") << 8 << false;
        QTest::newRow("9th inning") << 9 << true;
    }
    void walkoffAskedByInning()
    {
        QFETCH(int, col);
        QFETCH(bool, asked);
        GridEnv env;
        ScoreGrid grid;
        loadTeam(grid, 4);
        ScriptedPopover popover;
        popover.install(grid);
        play(grid, popover, 0, {"0:B1", "1:BB", "2:B2", "3:GO"});
        QCOMPARE(grid.heading(1), QStringLiteral("1a"));
        QSignalSpy walkoff(&grid, &ScoreGrid::askIsWalkoff);
        play(grid, popover, col, {"1:HR"});
        QCOMPARE(grid.heading(col).toInt(), col);
        QCOMPARE(walkoff.count(), asked ? 1 : 0);
    }

    // Row 1 is replaced after the first inning; the coach opens the tenth
    // inning with "Clear Column". The replaced player's cell stays closed,
    // so when the other four have batted the inning doubles.
    void clearColumnKeepsReplacedPlayerOut()
    {
        GridEnv env;
        ScoreGrid grid;
        loadTeam(grid, 4);
        for (int r = 0; r < 4; ++r)
            grid.setRowSlot(r, r + 1);
        ScriptedPopover popover;
        popover.install(grid);
        play(grid, popover, 0, {"0:GO", "1:FO", "2:KS"});
        grid.insertReplacementRow(1, 2);
        QCOMPARE(bkgRow(grid, 1, 3), QStringLiteral("RXX"));

        popover.script({"Clear Column"});
        grid.cellClicked(0, 9, false);
        QCOMPARE(bkgColumn(grid, 9), QStringLiteral("-X---"));

        QSignalSpy added(&grid, &ScoreGrid::columnAdded);
        play(grid, popover, 9, {"3:B1", "4:BB", "0:B1", "2:GO"});
        QCOMPARE(added.count(), 1);
        QCOMPARE(grid.heading(10), QStringLiteral("10a"));
        QCOMPARE(bkgColumn(grid, 10), QStringLiteral("-X---"));
    }

    // Four batters; the first inning is finished (plain, or doubled into
    // "1a") and the second begun, then an at bat of the first is changed.
    // A change that would make a fourth out is refused naming the at bat
    // that would be it, in batting order, and leaves the card as it was;
    // any other change is made and the inning's runs are worked out again.
    void editAnEarlierAtBat_data()
    {
        QTest::addColumn<bool>("doubled");
        QTest::addColumn<QPoint>("cell"); // (col, row)
        QTest::addColumn<QString>("code");
        QTest::addColumn<QString>("refusal");    // empty when the change is made
        QTest::addColumn<bool>("threeOuts");     // the first inning's, afterwards
        QTest::addColumn<QString>("secondHead"); // column 1's heading, afterwards
        const QString fourthIn1a =
            "The at bat in row 3, inning 1a would be the fourth out. Clear an out of that inning first.";
        QTest::newRow("an out for another out") << false << QPoint(0, 0) << "KL"
                                                << "" << true << "2";
        QTest::newRow("a hit made an out")
            << false << QPoint(0, 1) << "GO"
            << "The at bat in row 4, inning 1 would be the fourth out. Clear an out of that inning first." << true
            << "2";
        // Two outs when the order comes round: the inning doubles, and the
        // second inning's at bat moves along, as if scored that way.
        QTest::newRow("an out made a hit reopens the inning") << false << QPoint(0, 2) << "B2"
                                                              << "" << false << "1a";
        QTest::newRow("a fourth out in the doubled column")
            << true << QPoint(0, 1) << "FO" << fourthIn1a << true << "1a";
        QTest::newRow("a result that is an out") << true << QPoint(0, 0) << "xCS" << fourthIn1a << true << "1a";
    }
    void editAnEarlierAtBat()
    {
        QFETCH(bool, doubled);
        QFETCH(QPoint, cell);
        QFETCH(QString, code);
        QFETCH(QString, refusal);
        QFETCH(bool, threeOuts);
        QFETCH(QString, secondHead);

        GridEnv env;
        ScoreGrid grid;
        loadTeam(grid, 4);
        ScriptedPopover popover;
        popover.install(grid);
        if (doubled) {
            play(grid, popover, 0, {"0:B1>xRUN", "1:BB", "2:HR", "3:GO"});
            play(grid, popover, 1, {"0:B1", "1:KS", "2:FO"});
        } else {
            play(grid, popover, 0, {"0:GO", "1:B1", "2:FO", "3:KS"});
        }
        const int next = doubled ? 2 : 1;
        play(grid, popover, next, {"3:B1"});
        QVERIFY(grid.check4ThreeOuts(0));
        const QString data = grid.getMyData();
        const QString outcomes = grid.getMyBkgArray();

        QSignalSpy edited(&grid, &ScoreGrid::cellEdited);
        QSignalSpy calcs(&grid, &ScoreGrid::doCalcs);
        popover.script({code});
        grid.cellClicked(cell.y(), cell.x(), false);
        QCOMPARE(grid.check4ThreeOuts(0), threeOuts);
        QCOMPARE(grid.heading(1), secondHead);
        if (refusal.isEmpty()) {
            QVERIFY(env.fake.messages.shown.isEmpty());
            QCOMPARE(edited.count(), 1);
            QCOMPARE(calcs.count(), 1); // the board follows the change
            QCOMPARE(grid.lastChoice(), code);
        } else {
            QCOMPARE(env.fake.messages.texts(),
                     QStringList{QStringLiteral("That would make a fourth out in inning 1.")});
            QCOMPARE(env.fake.messages.shown.first().explanation, refusal);
            QCOMPARE(edited.count(), 0);
            QCOMPARE(grid.getMyData(), data);
            QCOMPARE(grid.getMyBkgArray(), outcomes);
        }
    }
};

QTEST_GUILESS_MAIN(TestGridPlays)
#include "tst_gridplays.moc"
