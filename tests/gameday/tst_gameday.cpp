// A game played through its rules without a window: set-up of a new game,
// the lineup rules, the scoreboard and run entry, damaged strings, and the
// write of every click to the Games row.

#include "GameDayTestSupport.h"
#include "GridTestSupport.h"
#include "gameday/GameDay.h"

using namespace gameday;
using gamedaytest::Season;
using gridtest::ScriptedPopover;

namespace {

// The roster row of the first player with position `pos`.
int rosterRowOf(const GameDay &game, const QString &pos)
{
    for (int i = 0; i < game.roster().size(); ++i) {
        if (game.roster().at(i).pos == pos)
            return i;
    }
    return -1;
}

// Adds players by position, in order.
void addByPos(GameDay &game, const QStringList &positions)
{
    for (const QString &pos : positions)
        game.addPlayerToLineup(rosterRowOf(game, pos));
}

// Four players in the lineup of the team on show, and its first inning
// played: a home run, then three outs.
void playRunThenThreeOuts(GameDay &game, ScoreGrid &card, ScriptedPopover &popover)
{
    addByPos(game, {"C", "B1", "B2", "B3"});
    for (const auto &[row, code] : QList<std::pair<int, QString>>{{0, "HR"}, {1, "GO"}, {2, "FO"}, {3, "KL"}}) {
        popover.script({code});
        card.cellClicked(row, 0, false);
    }
}

const QStringList kNine = {"C", "B1", "B2", "B3", "SS", "LF", "CF", "RF", "DH"};

} // namespace

class TestGameDay : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newGameSetUp_data()
    {
        QTest::addColumn<int>("isHome");
        QTest::addColumn<bool>("homeBatsFirst");
        QTest::newRow("isHome 2: home team is team A") << 2 << true;
        QTest::newRow("isHome 1: opponent is team A") << 1 << false;
        QTest::newRow("isHome 0: opponent is team A") << 0 << false;
    }
    void newGameSetUp()
    {
        QFETCH(int, isHome);
        QFETCH(bool, homeBatsFirst);
        Season season(isHome);
        ScoreGrid card;
        GameDay game(*gData, card);
        QVERIFY(game.open(season.schedID()));

        const QString home = QString::number(season.homeID);
        QCOMPARE(game.teamID(homeBatsFirst ? 0 : 1), home);
        QCOMPARE(game.curSelTeam(), 1);
        QCOMPARE(game.teamInfo(homeBatsFirst ? 0 : 1).name, QStringLiteral("O'Brien's Nine"));
        QCOMPARE(game.roster().size(), 12);
        QCOMPARE(game.roster().first().name,
                 homeBatsFirst ? QStringLiteral("Bo1 O'Neil") : QStringLiteral("Ann1 O'Neil"));
        QVERIFY(!game.finalizeVisible());
    }

    // Nothing to score: no Games row is made.
    void openRefusals_data()
    {
        QTest::addColumn<bool>("homeTeam");
        QTest::addColumn<QString>("message");
        QTest::newRow("no such event") << true << "There was an error recovering the game data.";
        QTest::newRow("no home team chosen") << false << "Please designate a 'Home Team'";
    }
    void openRefusals()
    {
        QFETCH(bool, homeTeam);
        QFETCH(QString, message);
        Season season;
        if (!homeTeam)
            gPrefs->prHomeTeam.clear();
        const QString id = homeTeam ? QStringLiteral("9999") : season.schedID();
        ScoreGrid card;
        GameDay game(*gData, card);
        QVERIFY(!game.open(id));
        QCOMPARE(season.fake.messages.texts(), QStringList{message});
        QVERIFY(!GameStore(*gData).exists(id));
    }

    void lineupLimits_data()
    {
        QTest::addColumn<QStringList>("adds");
        QTest::addColumn<int>("rows");
        QTest::addColumn<QStringList>("messages");
        QTest::addColumn<bool>("lastRowDisabled");
        const QString full = QStringLiteral("You have reached max players as defined in Preferences.");
        const QString pitcher = QStringLiteral("Add a non-batting Pitcher to your lineup.");
        QTest::newRow("nine, then a pitcher who does not bat")
            << kNine + QStringList{"RHP"} << 10 << QStringList{pitcher} << true;
        QTest::newRow("nine, then a P") << kNine + QStringList{"P"} << 9 << QStringList{pitcher, full} << false;
        QTest::newRow("a batting LHP: no second")
            << kNine.mid(0, 8) + QStringList{"LHP", "RHP"} << 9 << QStringList{full} << false;
        QTest::newRow("P counts, claims no row")
            << kNine.mid(0, 8) + QStringList{"P", "RHP"} << 9 << QStringList{full} << false;
    }
    void lineupLimits()
    {
        QFETCH(QStringList, adds);
        QFETCH(int, rows);
        QFETCH(QStringList, messages);
        QFETCH(bool, lastRowDisabled);
        Season season;
        ScoreGrid card;
        GameDay game(*gData, card);
        QVERIFY(game.open(season.schedID()));
        addByPos(game, adds);
        QCOMPARE(game.lineup().size(), rows);
        QCOMPARE(card.rowCount(), rows);
        QCOMPARE(game.batStats().size(), rows);
        QCOMPARE(game.roster().size(), 12 - rows);
        QCOMPARE(season.fake.messages.texts(), messages);
        QCOMPARE(card.cellBkg(rows - 1, 0) == u"X", lastRowDisabled);
        QCOMPARE(game.lineup().last().order, QString::number(rows));
    }

    void substitutionsAndTheirRefusals()
    {
        Season season;
        ScoreGrid card;
        ScriptedPopover popover;
        popover.install(card);
        GameDay game(*gData, card);
        QVERIFY(game.open(season.schedID()));
        addByPos(game, {"C", "B1", "B2", "SS"});
        QCOMPARE(game.moveLineupRow(0, -1), 0); // nothing above the first row
        QCOMPARE(game.moveLineupRow(3, +1), 3); // nor below the last
        QCOMPARE(game.moveLineupRow(0, +1), 1);
        QCOMPARE(game.lineup().at(0).pos, QStringLiteral("B1"));
        QCOMPARE(game.lineup().at(0).order, QStringLiteral("1"));

        for (int r = 0; r < 3; ++r) {
            popover.script({"GO"});
            card.cellClicked(r, 0, false);
        }
        auto &msgs = season.fake.messages;
        msgs.clear();
        QVERIFY(!game.addPlayerToLineup(rosterRowOf(game, "B3")));
        QVERIFY(!game.removeFromLineup(0));
        QCOMPARE(game.moveLineupRow(1, -1), 1);
        msgs.answers.enqueue(platform::MsgCancel);
        QVERIFY(!game.removeFromLineup(3)); // no at bat yet: asked, and cancelled
        QVERIFY(!game.addReplacementPlayer(-1, 1));
        QVERIFY(!game.addReplacementPlayer(0, -1));
        QCOMPARE(msgs.texts(), (QStringList{"Players cannot be added once game data is entered.",
                                            "This player has entered data and cannot be removed.",
                                            "Lineup order cannot be changed once game data is entered.",
                                            "Are you sure you want to return this player to the bench?",
                                            "Please select a replacement player.",
                                            "Please click on the name of the Player to be replaced."}));

        QVERIFY(game.addReplacementPlayer(rosterRowOf(game, "B3"), 1));
        QCOMPARE(game.lineup().at(2), (LineupLine{"2", "B3", " ->Bo4 Smith", game.lineup().at(2).playerID}));
        QCOMPARE(game.lineup().at(1).order, QStringLiteral("2"));
        QCOMPARE(gridtest::bkgRow(card, 1, 3), QStringLiteral("RXX"));
        QCOMPARE(gridtest::bkgRow(card, 2, 3), QStringLiteral("X--"));
        QCOMPARE(game.batStats().size(), 5);

        msgs.answers.enqueue(platform::MsgAction);
        QVERIFY(game.removeFromLineup(4));
        QCOMPARE(game.roster().last().name, QStringLiteral("Bo5 Smith"));
        QCOMPARE(card.rowCount(), 4);
        // The substitute keeps the slot he shares, and with it his closed cells.
        QStringList orders;
        for (const LineupLine &l : game.lineup())
            orders.append(l.order);
        QCOMPARE(orders, (QStringList{"1", "2", "2", "3"}));
        QVERIFY(card.isReplacedRow(1));
    }

    // A team kept by run entry shows no cell of the other team's card: its
    // first lineup plays on clean cells and stores only its own colours.
    void runEntryTeamTakesNoColours()
    {
        Season season;
        ScoreGrid card;
        ScriptedPopover popover;
        popover.install(card);
        GameDay game(*gData, card);
        QVERIFY(game.open(season.schedID()));
        game.showTeam(0);
        QVERIFY(game.setEnterRHE(true));
        game.setBoardBox(0, QStringLiteral("2"));
        game.showTeam(1);
        playRunThenThreeOuts(game, card, popover);
        game.showTeam(0);
        QCOMPARE(gridtest::bkgRow(card, 0, 2) + gridtest::bkgRow(card, 1, 2), QStringLiteral("----"));
        addByPos(game, {"C", "B1", "B2"});
        QVERIFY(!game.setEnterRHE(true)); // a team with a lineup keeps its cells, not typed boxes
        season.fake.messages.clear();
        popover.script({"GO"});
        card.cellClicked(0, 0, false);
        QCOMPARE(season.fake.messages.texts(), QStringList{});
        QCOMPARE(card.cellText(0, 0), QStringLiteral("GO"));
        const GameRecord stored = GameStore(*gData).load(season.schedID()).value();
        QVERIFY(!stored.teams[0].outcomes.contains(u'G'));
    }

    // The "X" of the home half not needed (team B bats last; nine innings).
    void homeHalfNotNeeded_data()
    {
        QTest::addColumn<QString>("visitorsNinth");
        QTest::addColumn<QString>("homeNinth");
        QTest::addColumn<int>("runsA");
        QTest::addColumn<int>("runsB");
        QTest::addColumn<QString>("shown");
        QTest::newRow("visitors' ninth not played") << "--"
                                                    << "--" << 1 << 3 << "--";
        QTest::newRow("home team leads after it") << "0"
                                                  << "--" << 1 << 3 << "X";
        QTest::newRow("a tie shows none") << "0"
                                          << "--" << 2 << 2 << "--";
        QTest::newRow("visitors lead") << "2"
                                       << "" << 4 << 3 << "";
        QTest::newRow("an X that no longer holds goes") << "2"
                                                        << "X" << 4 << 3 << "--";
    }
    void homeHalfNotNeeded()
    {
        QFETCH(QString, visitorsNinth);
        QFETCH(QString, homeNinth);
        QFETCH(int, runsA);
        QFETCH(int, runsB);
        Season season;
        Scoreboard board;
        board.innings[0][8] = visitorsNinth;
        board.innings[1][8] = homeNinth;
        board.runs = {QString::number(runsA), QString::number(runsB)};
        GameDay::markHomeHalf(board);
        QTEST(board.innings[1][8], "shown");
    }

    // The stored recorded flag is the recording's alone: a window that
    // opened the game before it was recorded can't take it back, and the
    // game opens read-only afterwards.
    void recordedFlagIsRecordingsAlone()
    {
        Season season;
        ScoreGrid card;
        GameDay stale(*gData, card);
        QVERIFY(stale.open(season.schedID()));
        GameRecord g = GameStore(*gData).load(season.schedID()).value();
        g.recorded = true;
        QVERIFY(gData->runInTransaction([&] { GameStore::writeWithin(*gData, g); }));
        stale.setGameType(QStringLiteral("PreSeason"));
        stale.showTeam(0);
        QVERIFY(stale.saveIfDirty());
        QVERIFY(GameStore(*gData).load(season.schedID())->recorded);

        ScoreGrid other;
        GameDay reopened(*gData, other);
        QVERIFY(reopened.open(season.schedID()));
        QCOMPARE(reopened.lock(), GameDay::Lock::Recorded);
        QVERIFY(reopened.instruction().startsWith(QStringLiteral("This game is recorded")));
        QVERIFY(!reopened.panelRefusal(GameDay::Panel::Batting).isEmpty());
        reopened.setGameType(QStringLiteral("Division"));
        QCOMPARE(GameStore(*gData).load(season.schedID())->gameType, QStringLiteral("PreSeason"));
    }

    // Each click of an inning reaches the Games row before the next one:
    // a second screen opening the game from its row finds it.
    void everyClickIsStored()
    {
        Season season;
        ScoreGrid card;
        ScriptedPopover popover;
        popover.install(card);
        GameDay game(*gData, card);
        QVERIFY(game.open(season.schedID()));
        addByPos(game, {"C", "B1", "B2", "B3", "SS"});

        const QList<std::pair<int, QString>> plays = {{0, "B1"}, {1, "KS"}, {0, "xRUN"}, {2, "HR"},
                                                      {3, "BB"}, {4, "GO"}, {3, "xLOB"}, {0, "Clear Cell"}};
        for (const auto &[row, code] : plays) {
            popover.script({code});
            card.cellClicked(row, 0, false);
            ScoreGrid other;
            GameDay reopened(*gData, other);
            QVERIFY(reopened.open(season.schedID()));
            QCOMPARE(other.getMyData(), card.getMyData());
            QCOMPARE(other.getMyBkgArray(), card.getMyBkgArray());
        }
        // The lineup and batter texts, saved with every change, follow
        // their own later changes.
        game.setBatterStat(2, 0, QStringLiteral("2"));
        game.setGameType(QStringLiteral("PreSeason"));
        const GameRecord stored = GameStore(*gData).load(season.schedID()).value();
        QCOMPARE(readBatStats(stored.teams[1].batStats).at(2).rbi, QStringLiteral("2"));
        QCOMPARE(readPlayers(stored.teams[1].players).size(), 5);
        QCOMPARE(readPlayers(stored.teams[1].players).last().pos, QStringLiteral("SS"));
        QCOMPARE(stored.gameType, QStringLiteral("PreSeason"));
    }

    void scoreboard()
    {
        Season season;
        ScoreGrid card;
        ScriptedPopover popover;
        popover.install(card);
        GameDay game(*gData, card);
        QVERIFY(game.open(season.schedID()));
        game.errorCounter = [](const QString &, const QString &team) { return team.toInt() % 7; };
        // Team B: three up, a run in the first inning, three outs.
        playRunThenThreeOuts(game, card, popover);
        QVERIFY(game.finalizeVisible());
        QCOMPARE(game.board().innings[1][0], QStringLiteral("1"));
        QCOMPARE(game.board().innings[1][1], QStringLiteral("--"));
        QCOMPARE(game.board().runs[1], QStringLiteral("1"));
        QCOMPARE(game.board().hits[1], QStringLiteral("1"));

        // Team A by run entry: refused while B's grid has at bats; A has none.
        QVERIFY(!game.setEnterRHE(true));
        QCOMPARE(season.fake.messages.texts().last(),
                 QStringLiteral("You cannot directly enter runs if you have entered hitting data."));
        game.showTeam(0);
        QCOMPARE(game.board().runs[1], QStringLiteral("1")); // B's total stays on the board
        QVERIFY(game.setEnterRHE(true));
        game.setBoardBox(0, QStringLiteral("0"));
        game.setBoardBox(8, QStringLiteral("0"));
        game.setBoardBox(GameDay::kHitsBox, QStringLiteral("3"));
        QCOMPARE(game.board().runs[0], QStringLiteral("0"));
        game.showTeam(1);
        QVERIFY(!game.enterRHE());
        game.switchTeams();
        game.switchTeams();
        QCOMPARE(game.board().innings[1][8], QStringLiteral("X")); // home half not needed
        QCOMPARE(game.board().errs[1], QString::number(season.bearsID % 7));

        ScoreGrid other;
        GameDay reopened(*gData, other);
        QVERIFY(reopened.open(season.schedID()));
        reopened.switchTeams();
        QCOMPARE(reopened.board().hits[0], QStringLiteral("3"));
        QCOMPARE(reopened.board().innings[0][8], QStringLiteral("0"));
        QCOMPARE(other.rowCount(), 0);
        QVERIFY(isRunEntry(reopened.record().teams[0].actions));
    }

    // A card that doesn't read whole opens read-only and is never written
    // back; line ends of either kind, and one at the end, read as lines.
    void damagedCardIsNotWrittenBack_data()
    {
        QTest::addColumn<QString>("players");
        QTest::addColumn<QString>("actions");
        QTest::addColumn<QString>("headings");
        QTest::addColumn<bool>("readOnly");
        QTest::addColumn<QString>("firstCell");
        const QString two = QStringLiteral("1\tC\tBo O'Neil\t13\r2\tSS\tBo Smith\t17");
        QTest::newRow("a trailing carriage return") << two << "B1\t\rGO\t\r"
                                                    << "" << false << "B1";
        QTest::newRow("line feeds") << QString(two).replace(u'\r', u'\n') << "B1\t\nGO\t\n"
                                    << "" << false << "B1";
        QTest::newRow("CR LF") << two << "B1\t\r\nGO"
                               << "" << false << "B1";
        QTest::newRow("binary junk") << two << QString::fromLatin1("\x01\xff\t\t\x02", 5) << "" << false
                                     << QString::fromLatin1("\x01\xff", 2);
        QTest::newRow("more action lines than rows") << two << "B1\rGO\rKS"
                                                     << "" << true << "";
        QTest::newRow("a damaged lineup line") << two + "\rjunk line"
                                               << "B1"
                                               << "" << true << "B1";
        QTest::newRow("100,000 headings") << two << "B1" << QString("1\t").repeated(100000) << true << "B1";
        QTest::newRow("every text column empty") << ""
                                                 << ""
                                                 << "" << false << "";
    }
    void damagedCardIsNotWrittenBack()
    {
        QFETCH(QString, players);
        QFETCH(QString, actions);
        QFETCH(QString, headings);
        QFETCH(bool, readOnly);
        QFETCH(QString, firstCell);
        Season season;
        GameStore store(*gData);
        {
            ScoreGrid card;
            GameDay game(*gData, card);
            QVERIFY(game.open(season.schedID()));
        }
        GameRecord g = store.load(season.schedID()).value();
        g.teams[1] = TeamStrings{headings, QString(), players, actions, QStringLiteral("G\tR\t\rR\t"), QString()};
        if (players.isEmpty())
            g.teams = {};
        QCOMPARE(store.save(g), GameStore::SaveResult::Saved);

        ScoreGrid card;
        ScriptedPopover popover;
        popover.install(card);
        GameDay game(*gData, card);
        QVERIFY(game.open(season.schedID()));
        QCOMPARE(game.isReadOnly(), readOnly);
        QCOMPARE(season.fake.messages.texts(),
                 readOnly ? QStringList{"There is an error in the saved data."} : QStringList{});
        QCOMPARE(card.cellText(0, 0), firstCell);
        // A click, a change and a team switch: a read-only card stays as stored.
        popover.script({"KS"});
        card.cellClicked(1, 1, false);
        game.showTeam(0);
        QVERIFY(game.saveIfDirty());
        const GameRecord after = store.load(season.schedID()).value();
        if (readOnly || players.isEmpty())
            QCOMPARE(after, g);
        else
            QCOMPARE(splitLines(after.teams[1].actions).at(1).section(u'\t', 1, 1), QStringLiteral("KS"));
    }
};

QTEST_MAIN(TestGameDay)
#include "tst_gameday.moc"
