// The rules of the at-bat grid: what a click does to a cell, outs across a
// doubled inning, the doubling itself and its bound, replacement rows, the
// walk-off question, the column and row commands, and the counting that the
// scoreboard rests on.

#include "GridTestSupport.h"

#include <QSignalSpy>

using gameday::ScoreGrid;
using namespace gridtest;

namespace {

QStringList headingsWithDouble(int doubled, int count)
{
    // "1", "2", ..., "n", "na", "n+1", ... for `count` columns.
    QStringList h;
    int n = 1;
    while (h.size() < count) {
        h.append(QString::number(n));
        if (n == doubled && h.size() < count)
            h.append(QString::number(n) + u'a');
        ++n;
    }
    return h;
}

QString joinRuns(const std::array<int, 10> &runs)
{
    QStringList parts;
    for (int v : runs)
        parts.append(QString::number(v));
    return parts.join(u',');
}

} // namespace

class TestScoreGrid : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void clickWithCode_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("bkg");
        QTest::addColumn<QString>("choice");
        QTest::addColumn<bool>("showAll");
        QTest::addColumn<QString>("expText");
        QTest::addColumn<QString>("expBkg");

        // Every code on a blank cell: its own text and the background of the table.
        const QStringList outs = {"SAC", "SF", "FO", "GO", "KS", "KL", "HDP"};
        for (const QString &code : gameday::atBatCodes()) {
            const QString b = code == u"HR" ? "G" : outs.contains(code) ? "R" : "";
            QTest::addRow("blank + %s", qPrintable(code)) << ""
                                                          << "" << code << true << code << b;
        }
        // Results on a blank cell colour it and leave the text empty.
        const QStringList resultBkg = {"R", "R", "R", "R", "G", "Y"};
        for (int i = 0; i < gameday::resultCodes().size(); ++i) {
            const QString code = gameday::resultCodes().at(i);
            QTest::addRow("blank + %s", qPrintable(code)) << ""
                                                          << "" << code << true << "" << resultBkg.at(i);
            QTest::addRow("B1 + %s", qPrintable(code)) << "B1"
                                                       << "" << code << true << "B1" << resultBkg.at(i);
        }
        QTest::newRow("a second action replaces the first") << "BB"
                                                            << ""
                                                            << "B2" << true << "B2"
                                                            << "";
        // Clearing an out and disabling a run: through the popover's buttons in tst_gridwidget.
        QTest::newRow("clear a disabled cell") << ""
                                               << "X"
                                               << "Clear Cell" << false << ""
                                               << "";
        QTest::newRow("unknown result changes nothing") << "B1"
                                                        << ""
                                                        << "xZZ" << true << "B1"
                                                        << "";
        QTest::newRow("clicked away") << "B1"
                                      << ""
                                      << "" << true << "B1"
                                      << "";
    }
    void clickWithCode()
    {
        QFETCH(QString, text);
        QFETCH(QString, bkg);
        QFETCH(QString, choice);
        QFETCH(bool, showAll);
        QFETCH(QString, expText);
        QFETCH(QString, expBkg);

        GridEnv env;
        ScoreGrid grid;
        loadTeam(grid, 9);
        grid.setCellText(2, 3, text);
        grid.setCellBkg(2, 3, bkg);
        ScriptedPopover popover;
        popover.answers.enqueue(choice);
        popover.install(grid);
        grid.setSelectedRow(4);

        grid.cellClicked(2, 3, false);

        QCOMPARE(popover.showAll, QList<bool>{showAll});
        QCOMPARE(grid.cellText(2, 3), expText);
        QCOMPARE(grid.cellBkg(2, 3), expBkg);
        QCOMPARE(grid.getSelRow(), -1);
        QVERIFY(env.fake.messages.shown.isEmpty());
    }

    void optionClick_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("bkg");
        QTest::addColumn<bool>("opensPopover");
        QTest::addColumn<QString>("expBkg");

        // On base and a run: Alt-clicked in tst_gridwidget.
        QTest::newRow("out") << "GO"
                             << "R" << false << "Y";
        QTest::newRow("disabled but filled") << "B2"
                                             << "X" << false << "Y";
        QTest::newRow("disabled and empty") << ""
                                            << "X" << true << "X";
        QTest::newRow("blank") << ""
                               << "" << true << "";
    }
    void optionClick()
    {
        QFETCH(QString, text);
        QFETCH(QString, bkg);
        QFETCH(bool, opensPopover);
        QFETCH(QString, expBkg);

        GridEnv env;
        ScoreGrid grid;
        loadTeam(grid, 9);
        grid.setCellText(0, 1, text);
        grid.setCellBkg(0, 1, bkg);
        ScriptedPopover popover; // answers "": the coach clicks away
        popover.install(grid);
        QSignalSpy calcs(&grid, &ScoreGrid::doCalcs);

        grid.cellClicked(0, 1, true);

        QCOMPARE(popover.showAll.size(), opensPopover ? 1 : 0);
        QCOMPARE(grid.cellBkg(0, 1), expBkg);
        QCOMPARE(grid.cellText(0, 1), text);
        QCOMPARE(calcs.count(), 0);
        QCOMPARE(grid.countTotalRuns(), 0); // a run turned yellow is a run no more
    }

    void finishedInningRefusesNewAtBats_data()
    {
        QTest::addColumn<QString>("cell");
        QTest::addColumn<bool>("refused");
        QTest::newRow("blank cell") << "." << true;
        QTest::newRow("disabled empty cell") << "/X" << true;
        QTest::newRow("filled cell") << "B1/Y" << false;
    }
    void finishedInningRefusesNewAtBats()
    {
        QFETCH(QString, cell);
        QFETCH(bool, refused);

        GridEnv env;
        ScoreGrid grid;
        loadTeam(grid, 9);
        fillColumn(grid, 3, {"GO/R", "FO/R", "KS/R", cell});
        ScriptedPopover popover;
        popover.install(grid);

        grid.cellClicked(3, 3, false);

        QCOMPARE(popover.showAll.size(), refused ? 0 : 1);
        QCOMPARE(env.fake.messages.texts(),
                 refused ? QStringList{"There are already three outs in that inning."} : QStringList{});
        if (refused) {
            QCOMPARE(env.fake.messages.shown.at(0).explanation,
                     QStringLiteral("Clear at least 1 of the outs before adding an AB"));
            QCOMPARE(env.fake.messages.shown.at(0).actionCaption, QStringLiteral("OK"));
        }
    }

    void inningDoublesOnceAndNeverTwice()
    {
        GridEnv env;
        ScoreGrid grid;
        loadTeam(grid, 9);
        fillColumn(grid, 2, {"FO/R", "B1/G", "B1", "GO/R", "B1", "/X", "BB", "B1"});
        fillColumn(grid, 3, {"KL/R"}); // the next inning's first batter moves right
        QSignalSpy added(&grid, &ScoreGrid::columnAdded);
        QSignalSpy calcs(&grid, &ScoreGrid::doCalcs);
        ScriptedPopover popover;
        popover.install(grid);

        popover.script({"B2"});
        grid.cellClicked(8, 2, false); // the order has gone round with two outs

        QCOMPARE(added.count(), 1);
        const QString expected = QStringList{"1", "2", "3", "3a"}.join(u'\t') + u'\t' +
                                 headingsWithDouble(0, 20).mid(3).join(u'\t');
        QCOMPARE(added.at(0).at(0).toString(), expected);
        QCOMPARE(grid.getColHeadings(), expected);
        QCOMPARE(grid.columnCount(), 21);
        QCOMPARE(grid.defInnings(), 10);
        QCOMPARE(grid.columnWidth(3), gameday::kInsertedColumnWidth);
        QCOMPARE(bkgColumn(grid, 3), QStringLiteral("-----X---")); // disabled rows stay disabled
        QCOMPARE(grid.cellText(0, 4), QStringLiteral("KL"));
        QCOMPARE(bkgRow(grid, 0, 21), QStringLiteral("--R-R-----XXXXXXXXXXX"));
        QCOMPARE(calcs.count(), 0);

        // The second column fills with two more outs: four in the inning,
        // and no third column.
        fillColumn(grid, 3, {"B1", "FO/R", "B1", "B1", "GO/R", ".", "B1", "B1"});
        popover.script({"B1"});
        grid.cellClicked(8, 3, false);
        QVERIFY(!grid.check4ThreeOuts(3)); // a fourth out reads as not three: a mistake to find
        QCOMPARE(added.count(), 1);
        QCOMPARE(grid.columnCount(), 21);
        QCOMPARE(calcs.count(), 0);
    }

    void fullColumnWithThreeOutsFinishesTheInning()
    {
        GridEnv env;
        ScoreGrid grid;
        loadTeam(grid, 9);
        fillColumn(grid, 0, {"FO/R", "B1/G", "B1/G", "GO/R", "B1/G", "B1/G", "BB/G", "B1/Y"});
        QSignalSpy added(&grid, &ScoreGrid::columnAdded);
        QSignalSpy calcs(&grid, &ScoreGrid::doCalcs);
        ScriptedPopover popover;
        popover.script({"KS"});
        popover.install(grid);
        grid.cellClicked(8, 0, false);
        QCOMPARE(added.count(), 0);
        QCOMPARE(calcs.count(), 1);
        QCOMPARE(grid.columnCount(), 20);
    }

    void columnsNeverPassTheBackgroundArray()
    {
        GridEnv env;
        ScoreGrid grid;
        loadTeam(grid, 9);
        grid.insertColumn(0, 32);
        grid.insertColumn(2, 32);
        grid.insertColumn(4, 32);
        QCOMPARE(grid.columnCount(), gameday::kBkgCols);
        QCOMPARE(grid.heading(22), QStringLiteral("20"));
        QCOMPARE(grid.defInnings(), 12);

        // A fourth doubling takes the place of the last, unplayed column.
        QVERIFY(grid.canInsertColumn(6));
        grid.insertColumn(6, 32);
        QCOMPARE(grid.columnCount(), gameday::kBkgCols);
        QCOMPARE(grid.heading(7), QStringLiteral("4a"));
        QCOMPARE(grid.heading(22), QStringLiteral("19"));
        QCOMPARE(grid.defInnings(), 13);

        // Once that column holds data there is no room: the coach is told,
        // and nothing moves.
        grid.setCellBkg(0, 22, QStringLiteral("G")); // a run entered as a result alone
        QVERIFY(!grid.canInsertColumn(8));
        fillColumn(grid, 8, {"FO/R", "B1/G", "B1", "GO/R", "B1", "B1", "BB", "B1"});
        const QString before = grid.getColHeadings();
        QSignalSpy added(&grid, &ScoreGrid::columnAdded);
        ScriptedPopover popover;
        popover.script({"B1"});
        popover.install(grid);
        grid.cellClicked(8, 8, false);
        QCOMPARE(added.count(), 0);
        QCOMPARE(grid.getColHeadings(), before);
        QCOMPARE(grid.cellBkg(0, 22), QStringLiteral("G"));
        QCOMPARE(env.fake.messages.texts(), QStringList{"There is no room on the scorecard for another column."});
        QCOMPARE(grid.insertColumn(8, 32), before);
    }

    void replacementRow_data()
    {
        QTest::addColumn<int>("orderNum");
        QTest::addColumn<QString>("newRow");
        QTest::newRow("batting substitute") << 5 << "XX-------XXXXXXXXXXX";
        QTest::newRow("non-batting entry") << 10 << "XXXXXXXXXXXXXXXXXXXX";
    }
    void replacementRow()
    {
        QFETCH(int, orderNum);
        QFETCH(QString, newRow);

        GridEnv env; // nine batting slots
        ScoreGrid grid;
        loadTeam(grid, 9);
        fillColumn(grid, 0, {"GO/R", "FO/R", "KS/R"});
        fillColumn(grid, 1, {".", ".", ".", "GO/R", "FO/R", "KL/R"});
        fillColumn(grid, 2, {".", ".", ".", ".", ".", ".", "B1"});
        grid.setCellBkg(8, 4, QStringLiteral("Y"));

        grid.insertReplacementRow(4, orderNum);

        QCOMPARE(grid.rowCount(), 10);
        QCOMPARE(grid.getSelRow(), 4);
        QCOMPARE(bkgRow(grid, 5, 20), newRow);
        QVERIFY(grid.isRowEmpty(5));
        // The replaced player keeps his at bats and bats no more.
        QCOMPARE(bkgRow(grid, 4, 20), QStringLiteral("-RXXXXXXXXXXXXXXXXXX"));
        QCOMPARE(grid.cellText(4, 1), QStringLiteral("FO"));
        // The rows below moved down, texts and backgrounds together.
        QCOMPARE(grid.cellText(6, 1), QStringLiteral("KL"));
        QCOMPARE(bkgRow(grid, 6, 20), QStringLiteral("-R-------XXXXXXXXXXX"));
        QCOMPARE(grid.cellBkg(9, 4), QStringLiteral("Y"));
        QCOMPARE(grid.cellBkg(8, 4), QString());
    }

    void replacementAfterDoubledInning()
    {
        GridEnv env;
        ScoreGrid grid;
        grid.setColumnHeadings(headingsWithDouble(1, 21));
        loadTeam(grid, 9);
        fillColumn(grid, 0, {"GO/R", "FO/R"});
        fillColumn(grid, 1, {".", ".", "KS/R"});
        grid.insertReplacementRow(0, 1);
        // "1" and "1a" are both finished, so the substitute starts in "2".
        QCOMPARE(bkgRow(grid, 1, 4), QStringLiteral("XX--"));
        QCOMPARE(bkgRow(grid, 0, 4), QStringLiteral("R-XX"));
    }

    void removeRowClosesTheGap()
    {
        GridEnv env;
        ScoreGrid grid;
        loadTeam(grid, 4);
        fillColumn(grid, 0, {"GO/R", "HR/G", "B1/Y", "FO/R"});
        grid.removeRow(1);
        QCOMPARE(grid.rowCount(), 3);
        QCOMPARE(grid.getSelRow(), 1);
        QCOMPARE(bkgColumn(grid, 0), QStringLiteral("RYR"));
        QCOMPARE(grid.cellText(1, 0), QStringLiteral("B1"));
        QCOMPARE(grid.cellBkg(3, 0), QString()); // the row at the old end is blanked
        QCOMPARE(grid.countTotalRuns(), 0);
    }

    void walkoffQuestion_data()
    {
        QTest::addColumn<int>("col");
        QTest::addColumn<QString>("start");
        QTest::addColumn<QString>("choice");
        QTest::addColumn<bool>("asked");
        // Seven innings: the question comes from column index 6 on.
        QTest::newRow("home run in the seventh") << 6 << ""
                                                 << "HR" << true;
        QTest::newRow("runner scores in the seventh") << 6 << "B1"
                                                      << "xRUN" << true;
        QTest::newRow("runner scores in the sixth") << 5 << "B1"
                                                    << "xRUN" << false;
        QTest::newRow("single in the seventh") << 6 << ""
                                               << "B1" << false;
        QTest::newRow("runner left in the seventh") << 6 << "B1"
                                                    << "xLOB" << false;
    }
    void walkoffQuestion()
    {
        QFETCH(int, col);
        QFETCH(QString, start);
        QFETCH(QString, choice);
        QFETCH(bool, asked);

        GridEnv env(QStringLiteral("7 Innings"));
        ScoreGrid grid;
        grid.setDefInnings(20);
        loadTeam(grid, 9);
        grid.setCellText(3, col, start);
        ScriptedPopover popover;
        popover.script({choice});
        popover.install(grid);
        QList<int> hitsWhenAsked;
        connect(&grid, &ScoreGrid::askIsWalkoff, &grid, [&] { hitsWhenAsked.append(grid.countTotalHits()); });

        grid.cellClicked(3, col, false);

        QCOMPARE(hitsWhenAsked.size(), asked ? 1 : 0);
        // By the time the owner refreshes the board, the cell's hit counts.
        if (asked)
            QCOMPARE(hitsWhenAsked.at(0), 1);
    }

    void columnAndRowCommands()
    {
        GridEnv env;
        ScoreGrid grid;
        loadTeam(grid, 4);
        fillColumn(grid, 2, {"GO/R", "/X", "B1/Y", "HR/G"});
        fill(grid, {"", "B2/R . . . . . . . . . B1"}); // row 1: col 0 and an extra-inning column
        ScriptedPopover popover;
        popover.install(grid);

        popover.script({"Clear Column"});
        grid.cellClicked(0, 2, false);
        QCOMPARE(bkgColumn(grid, 2), QStringLiteral("R-YG"));
        QCOMPARE(grid.cellText(0, 2), QStringLiteral("GO"));

        // Asked first when the column has data; Cancel leaves it.
        env.fake.messages.answers.append(platform::MsgCancel);
        env.fake.messages.answers.append(platform::MsgAction);
        popover.script({"Disable Column", "Disable Column"});
        grid.cellClicked(0, 2, false);
        QCOMPARE(bkgColumn(grid, 2), QStringLiteral("R-YG"));
        grid.cellClicked(0, 2, false);
        QCOMPARE(bkgColumn(grid, 2), QStringLiteral("XXXX"));
        QVERIFY(grid.isColumnEmpty(2));
        QCOMPARE(env.fake.messages.texts(),
                 QStringList(2, QStringLiteral("Are you sure you want to clear the data in column 3?")));
        QCOMPARE(env.fake.messages.shown.at(0).actionCaption, QStringLiteral("Clear"));

        // An empty column is disabled without a question.
        env.fake.messages.clear();
        popover.script({"Disable Column"});
        grid.cellClicked(0, 5, false);
        QCOMPARE(bkgColumn(grid, 5), QStringLiteral("XXXX"));
        QVERIFY(env.fake.messages.shown.isEmpty());

        popover.script({"Clear Row"});
        grid.cellClicked(1, 0, false);
        QCOMPARE(bkgRow(grid, 1, 20), QStringLiteral("---------XXXXXXXXXXX"));
        QCOMPARE(grid.cellText(1, 0), QString());
        QCOMPARE(grid.cellText(1, 10), QStringLiteral("B1")); // past the live innings

        popover.script({"Disable Row"});
        grid.cellClicked(3, 0, false);
        QCOMPARE(bkgRow(grid, 3, 20), QString(20, u'X'));
        QVERIFY(grid.isRowEmpty(3));
    }

    void countRunsByInning_data()
    {
        QTest::addColumn<QStringList>("headings");
        QTest::addColumn<QStringList>("rows");
        QTest::addColumn<QString>("runs");

        const QStringList plain = headingsWithDouble(0, 20);
        QTest::newRow("no at bats") << plain << QStringList{} << "-1,-1,-1,-1,-1,-1,-1,-1,-1,-1";
        QTest::newRow("runs, zero and no data")
            << plain << QStringList{"HR/G GO/R . B1/Y", "GO/R FO/R", "B1/G"} << "2,0,-1,0,-1,-1,-1,-1,-1,-1";
        QTest::newRow("doubled inning keeps its zero")
            << headingsWithDouble(2, 21) << QStringList{". GO/R . HR/G", ". . B1/G"} << "-1,1,1,-1,-1,-1,-1,-1,-1,-1";
        QTest::newRow("doubled inning with an empty second column")
            << headingsWithDouble(2, 21) << QStringList{". GO/R . HR/G"} << "-1,0,1,-1,-1,-1,-1,-1,-1,-1";
        QTest::newRow("tenth slot collects extra innings")
            << plain << QStringList{". . . . . . . . . GO/R . HR/G", ". . . . . . . . . . . . B1/G"}
            << "-1,-1,-1,-1,-1,-1,-1,-1,-1,2";
        QTest::newRow("a scoreless tenth before unplayed innings")
            << plain << QStringList{". . . . . . . . . GO/R"} << "-1,-1,-1,-1,-1,-1,-1,-1,-1,0";
        QTest::newRow("disabled cells hold no data") << plain << QStringList{"B1/X"} << "-1,-1,-1,-1,-1,-1,-1,-1,-1,-1";
    }
    void countRunsByInning()
    {
        QFETCH(QStringList, headings);
        QFETCH(QStringList, rows);
        QFETCH(QString, runs);

        GridEnv env;
        ScoreGrid grid;
        grid.setColumnHeadings(headings);
        loadTeam(grid, 9);
        fill(grid, rows);
        QCOMPARE(joinRuns(grid.countRunsByInning()), runs);
    }

    void totals()
    {
        GridEnv env;
        ScoreGrid grid;
        loadTeam(grid, 5);
        fill(grid, {"B1/G GO/R", "HR/G KS/R", "B2/Y . B3/R", "BB/Y ROE/G", "/G"});
        QCOMPARE(grid.countTotalRuns(), 4); // a run is a colour, not a code
        QCOMPARE(grid.countTotalHits(), 4);
        QCOMPARE(grid.countTotalLOBs(), 2);
        QVERIFY(!grid.check4IncompleteCells());
        grid.setCellBkg(2, 0, QString());
        QVERIFY(grid.check4IncompleteCells());
    }

    // The stored texts and backgrounds are gathered after every click and
    // remade only for rows that changed: after each kind of edit they are
    // what a grid that never gathered before gives.
    void storedFormsFollowEveryEdit_data()
    {
        QTest::addColumn<int>("edit");
        const char *names[] = {"text",        "background",   "column inserted", "replacement row",
                               "row removed", "texts loaded", "rows rebuilt",    "backgrounds loaded"};
        for (int i = 0; i < int(std::size(names)); ++i)
            QTest::newRow(names[i]) << i;
    }
    void storedFormsFollowEveryEdit()
    {
        QFETCH(int, edit);
        const auto apply = [edit](ScoreGrid &grid) {
            switch (edit) {
            case 0:
                grid.setCellText(2, 3, QStringLiteral("HR"));
                break;
            case 1:
                grid.setCellBkg(2, 3, QStringLiteral("G"));
                break;
            case 2:
                grid.insertColumn(1, 30);
                break;
            case 3:
                grid.insertReplacementRow(1, 2);
                break;
            case 4:
                grid.removeRow(0);
                break;
            case 5:
                grid.setMyData(QStringLiteral("KL\tB2\r\tFO"));
                break;
            case 6:
                loadTeam(grid, 2);
                fill(grid, {"GO/R"});
                break;
            default:
                grid.setMyBkgArray(QStringLiteral("Y\tR\t\rG"));
                break;
            }
        };
        ScoreGrid gathered, fresh;
        for (ScoreGrid *grid : {&gathered, &fresh}) {
            grid->setColumnCount(20);
            loadTeam(*grid, 4);
            fill(*grid, {"B1/Y GO/R", "KS/R . BB/Y", "HR/G", "FO/R SAC/R"});
        }
        const QString before = gathered.getMyData() + gathered.getMyBkgArray();
        apply(gathered);
        apply(fresh);
        QCOMPARE(gathered.getMyData(), fresh.getMyData());
        QCOMPARE(gathered.getMyBkgArray(), fresh.getMyBkgArray());
        QVERIFY(gathered.getMyData() + gathered.getMyBkgArray() != before);
    }

    void fullAndEmptyColumns_data()
    {
        QTest::addColumn<QStringList>("column");
        QTest::addColumn<bool>("full");
        QTest::addColumn<bool>("empty");
        QTest::newRow("blank") << QStringList{} << false << true;
        QTest::newRow("only disabled") << QStringList{"/X", "/X", "/X"} << true << true;
        QTest::newRow("text in disabled cells") << QStringList{"B1/X", "/X", "/X"} << true << true;
        QTest::newRow("filled and disabled") << QStringList{"B1", "GO/R", "/X"} << true << false;
        QTest::newRow("a result without a batter") << QStringList{"B1", "/G", "/X"} << false << false;
    }
    void fullAndEmptyColumns()
    {
        QFETCH(QStringList, column);
        QFETCH(bool, full);
        QFETCH(bool, empty);
        GridEnv env;
        ScoreGrid grid;
        loadTeam(grid, 3);
        fillColumn(grid, 0, column);
        QCOMPARE(grid.isColumnFull(0), full);
        QCOMPARE(grid.isColumnEmpty(0), empty);
    }

    void hittingStats()
    {
        GridEnv env;
        ScoreGrid grid;
        loadTeam(grid, 2);
        fill(grid, {"B1/G GO/R BB/Y KS/R HR/G SAC/R CI/Y ROE/R B1/R"});
        const auto stats = grid.getHittingStats(0);
        std::array<int, 21> expected{};
        expected[hitD.value("AB")] = 6; // B1 GO KS HR ROE B1
        expected[hitD.value("B1")] = 2;
        for (const char *code : {"GO", "BB", "KS", "HR", "SAC", "CI", "ROE"})
            expected[hitD.value(code)] = 1;
        QCOMPARE(stats, expected); // runs and LOB come from elsewhere
        QCOMPARE(grid.getHittingStats(1), (std::array<int, 21>{}));
        QCOMPARE(grid.getHittingStats(7), (std::array<int, 21>{}));
    }

    void userStatNamedLikeACode()
    {
        // A user-defined abbreviation equal to a code moves the code's key
        // past the 21 hitting figures: it is then counted nowhere here.
        GridEnv env;
        hitD = myDictionaries::buildHitting(QStringLiteral("KL\tmine\tB\tb\tC\tc\tD\td\tE\te"));
        QCOMPARE(hitD.value("KL"), 21);
        ScoreGrid grid;
        loadTeam(grid, 1);
        fill(grid, {"KL/R B1"});
        const auto stats = grid.getHittingStats(0);
        QCOMPARE(stats[0], 2);
        QCOMPARE(stats[1], 1);
        QCOMPARE(stats[12], 0);
    }
};

QTEST_GUILESS_MAIN(TestScoreGrid)
#include "tst_scoregrid.moc"
