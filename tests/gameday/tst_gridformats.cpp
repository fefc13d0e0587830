// The stored text forms of a team's grid: texts and backgrounds written and
// read back byte for byte, the fixed shape of the outcomes, damaged strings
// from the database, and the columns past 19 that the outcomes don't carry.

#include "GridTestSupport.h"

using gameday::ScoreGrid;
using namespace gridtest;
using namespace Qt::StringLiterals;

namespace {

const QString T = QStringLiteral("\t");
const QString CR = QStringLiteral("\r");

QString tabs(int n)
{
    return QString(n, u'\t');
}

// An outcomes line: the given values, then empty ones, 20 in all, each
// followed by a tab.
QString outcomesLine(const QStringList &values)
{
    QString line;
    for (int c = 0; c < 20; ++c)
        line += (c < values.size() ? values.at(c) : QString()) + T;
    return line;
}

QStringList exampleHeadings()
{
    QStringList h = {"1", "2", "3", "3a"};
    for (int i = 4; i <= 20; ++i)
        h.append(QString::number(i));
    return h;
}

// The four-row start of a game, team A of the stored example: 21 columns
// after inning 3 was doubled; line 3 is the substitute of line 2.
QString exampleActions()
{
    return QStringList{u"B1\tGO"_s + tabs(19), u"KS"_s + tabs(20), u"HR"_s + tabs(20), u"\tB2"_s + tabs(19)}.join(CR);
}

QString exampleOutcomes()
{
    const QStringList extra(10, QStringLiteral("X")); // innings past the ninth, shifted by the doubling
    auto row = [&](QStringList first) {
        while (first.size() < 10)
            first.append(QString());
        return outcomesLine(first + extra);
    };
    QStringList lines = {row({"G", "R"}), row({"R"}), row({"G", "X"}), row({"X", "Y"})};
    while (lines.size() < 26)
        lines.append(outcomesLine({}));
    return lines.join(CR);
}

} // namespace

class TestGridFormats : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void roundTrip_data()
    {
        QTest::addColumn<QStringList>("headings");
        QTest::addColumn<int>("rows");
        QTest::addColumn<QString>("actions");
        QTest::addColumn<QString>("outcomes");

        QStringList plain;
        for (int i = 1; i <= 20; ++i)
            plain.append(QString::number(i));
        QTest::newRow("stored example") << exampleHeadings() << 4 << exampleActions() << exampleOutcomes();

        QStringList emptyLines(9, tabs(19));
        QStringList blankOutcomes(26, outcomesLine({}));
        QTest::newRow("lineup without entries") << plain << 9 << emptyLines.join(CR) << blankOutcomes.join(CR);
        QTest::newRow("no lineup") << plain << 0 << QString() << blankOutcomes.join(CR);

        // Every code in every row of a full 26-row lineup.
        QStringList actionLines, outcomeLines;
        const QStringList codes = gameday::atBatCodes();
        const QStringList bkgs = {"", "R", "G", "Y", "X"};
        for (int r = 0; r < 26; ++r) {
            QStringList texts, values;
            for (int c = 0; c < 20; ++c) {
                texts.append(codes.at((r + c) % codes.size()));
                values.append(bkgs.at((r * 3 + c) % bkgs.size()));
            }
            actionLines.append(texts.join(T));
            outcomeLines.append(outcomesLine(values));
        }
        QTest::newRow("full lineup") << plain << 26 << actionLines.join(CR) << outcomeLines.join(CR);
    }
    void roundTrip()
    {
        QFETCH(QStringList, headings);
        QFETCH(int, rows);
        QFETCH(QString, actions);
        QFETCH(QString, outcomes);

        GridEnv env;
        ScoreGrid grid;
        grid.setColumnHeadings(headings);
        loadTeam(grid, rows);
        grid.setMyData(actions);
        grid.setMyBkgArray(outcomes);

        QCOMPARE(grid.getMyData(), actions);
        QCOMPARE(grid.getMyBkgArray(), outcomes);
        QCOMPARE(grid.getColHeadings(), headings.join(T));
        QVERIFY(env.fake.messages.shown.isEmpty());

        // And once more through a second grid, as on reopening the game.
        ScoreGrid again;
        again.setColumnHeadings(grid.getColHeadings().split(T));
        loadTeam(again, rows);
        again.setMyData(grid.getMyData());
        again.setMyBkgArray(grid.getMyBkgArray());
        QCOMPARE(again.getMyData(), actions);
        QCOMPARE(again.getMyBkgArray(), outcomes);
    }

    void damagedTexts_data()
    {
        QTest::addColumn<QString>("data");
        QTest::addColumn<QString>("expected"); // getMyData afterwards; more lines than rows: see tst_gameday
        QTest::newRow("short lines") << (u"B1\r\rHR\tGO"_s)
                                     << (u"B1"_s + tabs(19) + CR + tabs(19) + CR + u"HR\tGO"_s + tabs(18));
        QString longLine;
        for (int i = 0; i < 40; ++i)
            longLine += (i ? T : QString()) + u"B1"_s;
        QTest::newRow("extra fields") << longLine << (QStringList(20, u"B1"_s).join(T) + CR + tabs(19) + CR + tabs(19));
        QTest::newRow("unknown codes") << (u"ZZZ\tB1"_s) << (u"ZZZ\tB1"_s + tabs(18) + CR + tabs(19) + CR + tabs(19));
        QTest::newRow("empty") << QString() << (tabs(19) + CR + tabs(19) + CR + tabs(19));
    }
    void damagedTexts()
    {
        QFETCH(QString, data);
        QFETCH(QString, expected);

        GridEnv env;
        ScoreGrid grid;
        loadTeam(grid, 3);
        grid.setCellText(0, 0, QStringLiteral("KL"));
        grid.setMyData(data);

        QCOMPARE(grid.getMyData(), expected);
        QVERIFY(env.fake.messages.shown.isEmpty());
    }

    void damagedBackgrounds_data()
    {
        QTest::addColumn<QString>("data");
        QTest::addColumn<QString>("firstLine"); // of getMyBkgArray afterwards
        QTest::addColumn<int>("runs");

        QTest::newRow("unknown letters") << (u"Q\tR\tg\tGG\tG"_s) << outcomesLine({"", "R", "", "", "G"}) << 1;
        QString wide;
        for (int i = 0; i < 40; ++i)
            wide += u"G\t"_s;
        QTest::newRow("extra fields") << wide << outcomesLine(QStringList(20, u"G"_s)) << 20;
        QStringList many(40, u"G"_s);
        QTest::newRow("more lines than the array") << many.join(CR) << outcomesLine({"G"}) << 3;
        QTest::newRow("short") << (u"G"_s) << outcomesLine({"G"}) << 1;
        QTest::newRow("empty") << QString() << outcomesLine({}) << 0;
        // Either line-end convention ends a line.
        QTest::newRow("line feeds") << (u"G\n\tR\r\nY"_s) << outcomesLine({"G"}) << 1;
    }
    void damagedBackgrounds()
    {
        QFETCH(QString, data);
        QFETCH(QString, firstLine);
        QFETCH(int, runs);

        GridEnv env;
        ScoreGrid grid;
        loadTeam(grid, 3);
        grid.setMyBkgArray(data);
        const QStringList lines = grid.getMyBkgArray().split(CR);
        QCOMPARE(lines.size(), 26);
        QCOMPARE(lines.first(), firstLine);
        QCOMPARE(grid.countTotalRuns(), runs);
        QVERIFY(env.fake.messages.shown.isEmpty());
    }

    // Headings and lineups from a damaged record can be larger than the
    // background array: the cells outside it take codes but no colours, and
    // nothing is written outside the array.
    void shapesPastTheArray()
    {
        GridEnv env;
        ScoreGrid grid;
        QStringList headings;
        for (int i = 1; i <= 30; ++i)
            headings.append(QString::number(i));
        grid.setColumnHeadings(headings);
        loadTeam(grid, 28);
        for (int r = 0; r < 27; ++r)
            grid.setCellText(r, 25, u"B1"_s);
        ScriptedPopover popover;
        popover.install(grid);

        popover.script({u"B1"_s});
        grid.cellClicked(27, 25, false); // a full column past the array doubles
        QCOMPARE(grid.columnCount(), 30);
        QCOMPARE(grid.heading(26), u"26a"_s);
        QCOMPARE(grid.heading(29), u"29"_s);

        popover.script({u"HR"_s});
        grid.cellClicked(27, 0, false);
        QCOMPARE(grid.cellText(27, 0), u"HR"_s);
        QCOMPARE(grid.cellBkg(27, 0), QString());
        QCOMPARE(grid.countTotalRuns(), 0);

        const QString texts = grid.getMyData();
        QCOMPARE(texts.split(CR).size(), 28);
        grid.setMyData(texts);
        QCOMPARE(grid.getMyData(), texts);
        QCOMPARE(grid.getMyBkgArray().split(CR).size(), 26);
        QVERIFY(env.fake.messages.shown.isEmpty());
    }

    // Columns 20 to 22 come from doublings and the outcomes have no place
    // for them: on reading, a cell there without text is disabled, a cell
    // with text awaits its result again.
    void columnsPast19AreRebuiltFromTheTexts()
    {
        GridEnv env;
        ScoreGrid grid;
        loadTeam(grid, 3);
        grid.insertColumn(0, 32);
        grid.insertColumn(2, 32);
        grid.insertColumn(4, 32);
        QCOMPARE(grid.columnCount(), 23);
        grid.enableWholeCol(21);
        grid.setCellText(0, 21, QStringLiteral("B1"));
        grid.setCellBkg(0, 21, QStringLiteral("G"));
        QCOMPARE(grid.countTotalRuns(), 1);

        ScoreGrid again;
        again.setColumnHeadings(grid.getColHeadings().split(T));
        loadTeam(again, 3);
        again.setMyData(grid.getMyData());
        again.setMyBkgArray(grid.getMyBkgArray());

        QCOMPARE(again.getMyData(), grid.getMyData());
        QCOMPARE(again.cellText(0, 21), QStringLiteral("B1"));
        QCOMPARE(again.cellBkg(0, 21), QString());
        QCOMPARE(again.cellBkg(1, 21), QStringLiteral("X"));
        QCOMPARE(bkgColumn(again, 20), QStringLiteral("XXX"));
        QCOMPARE(bkgColumn(again, 22), QStringLiteral("XXX"));
        QVERIFY(again.check4IncompleteCells()); // the final check points at the cell
        QCOMPARE(again.countTotalRuns(), 0);
        for (int c = 0; c < 20; ++c)
            QCOMPARE(bkgColumn(again, c), bkgColumn(grid, c));
    }
};

QTEST_GUILESS_MAIN(TestGridFormats)
#include "tst_gridformats.moc"
