// Recording games stored in a season: the season rows and team records
// they leave, worked out by hand, and every way a recording can stop
// leaving the file exactly as it was.

#include "RecordTestSupport.h"

#include "app/myDB.h"
#include "gameday/GameStore.h"
#include "stats/BoxProof.h"
#include "stats/GameRecorder.h"
#include "stats/SeasonFigures.h"

#include <SQLiteCpp/Database.h>

#include <QRegularExpression>
#include <QTest>

using recordtest::Card;
using recordtest::Season;
using stats::GameRecorder;

namespace {

// Two games between the same lineups. In the first the home team wins 2-0;
// the second is a 1-1 tie.
QStringList storeTwoGames(Season &s)
{
    const QStringList home = {"Ben Cole/201", "Cal Diaz/203", "Dan Ewing/205"};
    const QStringList bears = {"Al Fox/301", "Bo Gray/302"};

    const QString g1 = s.storeGame(Card{home, {"B1/G GO/R", "KS/R BB/Y", "HR/G FO/R"}, "1\t0\r0\t1\r1\t0"},
                                   Card{bears, {"GO/R KS/R", "B2/Y FO/R"}, "0\t0\r0\t0"});
    Season::panel(stats::Panel::Batting, g1, "201", "0\t3\t0\t0\t1");
    Season::panel(stats::Panel::Fielding, g1, "203", "9\t5\t3\t2\t1\t0\t0\t0\t0\t0\t0\t0\t0");
    Season::pitchPanel(g1, "205",
                       {0, true, false, false, 30, 50, "4.1\t20\t5\t2\t1\t3\t4\t2\t0\t0\t6\t0\t1\t0\t0\t0\t0"});
    Season::pitchPanel(g1, "302", {2, false, false, false, 0, 0, "4.2\t25\t7"});

    const QString g2 = s.storeGame(Card{home, {"B2/G", "SAC/R", "CI/Y"}, "0\t0\r1\t0\r0\t0"},
                                   Card{bears, {"HR/G", "KL/R SF/R"}, "1\t0\r0\t0"});
    Season::panel(stats::Panel::Fielding, g2, "201", "7\t2\t2");
    Season::panel(stats::Panel::Fielding, g2, "203", "9\t1\t1\t0\t0\t1");
    Season::pitchPanel(g2, "205", {1, false, false, false, 10, 12, "2.2\t9"});
    Season::pitchPanel(g2, "302", {3, false, false, false, 0, 0, "2.2"});
    return {g1, g2};
}

int runsOf(const QString &schedID, int team)
{
    return GameRecorder::scoreboardRuns(gameday::GameStore(*gData).load(schedID)->teams[team]);
}

GameRecorder::Result recordWithBoard(const QString &schedID)
{
    return GameRecorder(*gData).record(schedID, runsOf(schedID, 0), runsOf(schedID, 1));
}

// Every row of every season table and the games' recorded flags, one line
// a row. The `gameID` stamp of a player's row names the last game folded
// into it and is left out: a correction can't know the one before.
QString seasonDump()
{
    QStringList lines;
    for (const QString table : {"Hitting", "Fielding", "Pitching", "GameResultsByTeam", "SacFlies", "Games"}) {
        if (!gData->tlynData->tableExists(table.toStdString()))
            continue;
        const QString what = table == u"Games" ? QStringLiteral("schedID, recorded") : QStringLiteral("*");
        for (const Record &r : gData->select(QStringLiteral("SELECT ") + what + QStringLiteral(" FROM ") + table)) {
            QStringList cells = {table};
            for (int c = 0; c < r.columns.size(); ++c) {
                if (r.columns.at(c) != u"gameID")
                    cells.append(r.columns.at(c) + u'=' + r.values.at(c).toString());
            }
            lines.append(cells.join(u' '));
        }
    }
    return lines.join(u'\n');
}

// The played game of the game screen's golden file, as stored.
gameday::GameRecord goldenGame()
{
    QFile file(qEnvironmentVariable("TL_TEST_DATA") + QStringLiteral("/gameday-played.txt"));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("no golden game");
    gameday::GameRecord game;
    for (const QString &line : QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts)) {
        const QString key = line.section(u'=', 0, 0);
        const QString value = line.section(u'=', 1)
                                  .replace(QStringLiteral("\\t"), QStringLiteral("\t"))
                                  .replace(QStringLiteral("\\r"), QStringLiteral("\r"));
        gameday::TeamStrings &team = game.teams[key.startsWith(QStringLiteral("TeamB")) ? 1 : 0];
        const QString field = key.mid(5);
        if (field == u"Headings")
            team.headings = value;
        else if (field == u"Players")
            team.players = value;
        else if (field == u"Actions")
            team.actions = value;
        else if (field == u"Outcomes")
            team.outcomes = value;
    }
    return game;
}

} // namespace

class TestRecordGame : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void seasonRows_data()
    {
        QTest::addColumn<int>("games");
        QTest::addColumn<QString>("table");
        QTest::addColumn<QString>("player");
        QTest::addColumn<QString>("expected"); // figures after "team= game=", "" for no row

        // First game: a row only for a saved panel (the inserted figures
        // show in the sums after the second game).
        QTest::newRow("no fielding panel, no row") << 1 << "Fielding"
                                                   << "201"
                                                   << "";
        QTest::newRow("no pitching panel, no row") << 1 << "Pitching"
                                                   << "203"
                                                   << "";
        // Second game: the same rows are updated.
        QTest::newRow("updated hitting") << 2 << "Hitting"
                                         << "201"
                                         << "AB=3 B1=1 B2=1 GO=1 Runs=2 RBI=1 UDB2=3 UDB5=1";
        QTest::newRow("sacrifice is no at bat") << 2 << "Hitting"
                                                << "203"
                                                << "AB=1 BB=1 SAC=1 KS=1 RBI=1 SB=1 LOB=1";
        QTest::newRow("home run for the other side") << 2 << "Hitting"
                                                     << "301"
                                                     << "AB=3 HR=1 GO=1 KS=1 Runs=1 RBI=1";
        QTest::newRow("sacrifice fly is a sacrifice") << 2 << "Hitting"
                                                      << "302"
                                                      << "AB=3 B2=1 SAC=1 FO=1 KL=1 LOB=1";
        QTest::newRow("and counted apart") << 2 << "SacFlies"
                                           << "302"
                                           << "SF=1";
        QTest::newRow("no sacrifice fly, no table") << 1 << "SacFlies"
                                                    << "302"
                                                    << "";
        QTest::newRow("fielding first in the second game") << 2 << "Fielding"
                                                           << "201"
                                                           << "IP=7 CH=2 PO=2";
        QTest::newRow("fielding updated") << 2 << "Fielding"
                                          << "203"
                                          << "IP=18 CH=6 PO=4 Asst=2 FE=1 TE=1";
        QTest::newRow("4.1 + 2.2 = 7.0") << 2 << "Pitching"
                                         << "205"
                                         << "Win=1 ND=1 Start=1 Balls=40 Ks=62 PitCt=102 IP=70 BF=29 Hits=5 ErRuns=2 "
                                            "HRA=1 GrO=3 FlO=4 BB=2 Kouts=6 WldP=1";
        QTest::newRow("4.2 + 2.2 = 7.1") << 2 << "Pitching"
                                         << "302"
                                         << "Loss=1 Save=1 IP=71 BF=25 Hits=7";
        // Team records, "W-L-Tie": a tie added to the rows of a win.
        QTest::newRow("a tie added to a win") << 2 << "GameResultsByTeam"
                                              << "home"
                                              << "1-0-1";
        QTest::newRow("a tie added to a loss") << 2 << "GameResultsByTeam"
                                               << "bears"
                                               << "0-1-1";
    }
    void seasonRows()
    {
        QFETCH(int, games);
        QFETCH(QString, table);
        QFETCH(QString, player);
        QFETCH(QString, expected);
        Season s;
        const QStringList ids = storeTwoGames(s);
        for (int g = 0; g < games; ++g)
            QCOMPARE(recordWithBoard(ids.at(g)), GameRecorder::Result::Recorded);

        if (table == u"GameResultsByTeam") {
            QCOMPARE(Season::record(player == u"home" ? s.homeID : s.bearsID), expected);
            return;
        }
        if (table == u"SacFlies") {
            const bool made = gData->tlynData->tableExists("SacFlies");
            QCOMPARE(made ? QStringLiteral("SF=") +
                                gData->scalar(QStringLiteral("SELECT SF FROM SacFlies WHERE playerID = ?"), {player})
                                    .toString()
                          : QString(),
                     expected);
            return;
        }
        const QString team = player.startsWith(u'3') ? s.bearsID : s.homeID;
        const QString head = QStringLiteral("team=") + team + QStringLiteral(" game=") + ids.at(games - 1);
        QCOMPARE(Season::seasonRow(table, player), expected.isEmpty() ? QString() : head + u' ' + expected);
        QVERIFY(Season::isRecorded(ids.at(games - 1)));
        QCOMPARE(s.fake.messages.texts().last(), QStringLiteral("The game data has been successfully recorded."));
    }

    void scoreboardDecides_data()
    {
        QTest::addColumn<QString>("bears"); // run-entry string, "" for a grid team
        QTest::addColumn<int>("bearsRuns");
        QTest::addColumn<QString>("home");
        QTest::addColumn<QString>("bearsRecord");
        QTest::newRow("0-0 tie") << "" << 0 << "0-0-1"
                                 << "0-0-1";
        QTest::newRow("run-entry team wins") << "xxx\t0\t2\t0\t1\t--\t--\t--\t--\t--\t--\t7\t1\t4" << 3 << "0-1-0"
                                             << "1-0-0";
    }
    void scoreboardDecides()
    {
        QFETCH(QString, bears);
        Season s;
        Card bearsCard;
        bearsCard.runEntry = bears;
        const QString game = s.storeGame(Card{{"Ben Cole/201"}, {"GO/R"}, "0\t0"}, bearsCard);
        QTEST(runsOf(game, 1), "bearsRuns");
        QCOMPARE(recordWithBoard(game), GameRecorder::Result::Recorded);
        QTEST(Season::record(s.homeID), "home");
        QTEST(Season::record(s.bearsID), "bearsRecord");
        QCOMPARE(Season::seasonRow("Hitting", "201"), "team=" + s.homeID + " game=" + game + " AB=1 GO=1");
    }

    // The checks shown before recording, each failing once.
    void checks_data()
    {
        QTest::addColumn<QString>("damage");
        QTest::addColumn<QString>("passed");
        QTest::newRow("clean game") << ""
                                    << "1111";
        QTest::newRow("run-entry opponent passes for it") << "run entry"
                                                          << "1111";
        QTest::newRow("no runs on either side") << "no runs"
                                                << "0111";
        QTest::newRow("a batter on base without result") << "on base"
                                                         << "1101";
        QTest::newRow("no pitching panel saved") << "no pitching"
                                                 << "1110";
        QTest::newRow("no fielding panel saved") << "no fielding"
                                                 << "1110";
    }
    void checks()
    {
        QFETCH(QString, damage);
        Season s;
        Card home({"A/1", "B/2", "C/3", "D/4"}, {"HR/G", "GO/R", "KS/R", "FO/R"}, "1\t0\r0\t0\r0\t0\r0\t0");
        Card bears({"E/5", "F/6", "G/7", "H/8"}, {"GO/R", "KS/R", "B1/Y", "FO/R"}, "0\t0\r0\t0\r0\t0\r0\t0");
        if (damage == u"run entry")
            bears = Card(), bears.runEntry = "xxx\t0\t0\t0\t0\t0\t0\t0\t0\t0\t0\t0\t0\t0";
        if (damage == u"no runs")
            home.cells[0] = "BB/Y", home.batterStats = "0\t0\r0\t0\r0\t0\r0\t0";
        if (damage == u"on base")
            bears.cells[2] = "B1";
        const QString game = s.storeGame(home, bears);
        if (damage != u"no fielding")
            Season::panel(stats::Panel::Fielding, game, "2", "9");
        if (damage != u"no pitching")
            Season::pitchPanel(game, "5", {1, true, false, false, 5, 9, "1.0\t4"});

        GameRecorder recorder(*gData);
        QString passed;
        for (const bool p : recorder.performPreChecks(*gameday::GameStore(*gData).load(game)))
            passed += p ? u'1' : u'0';
        QTEST(passed, "passed");
    }

    // Whatever stops a recording leaves the file as it was, so the coach
    // corrects the game and records again.
    void refusalsLeaveTheFile_data()
    {
        QTest::addColumn<QString>("damage");
        QTest::addColumn<QString>("message");
        QTest::addColumn<GameRecorder::Result>("result");
        QTest::newRow("lineup out of step")
            << "lineup"
            << "The lineup and hitting data are not in sync." << GameRecorder::Result::NotInSync;
        QTest::newRow("thirds digit above 2") << "innings"
                                              << "Incorrect 'IP' entry." << GameRecorder::Result::BadInnings;
        QTest::newRow("season total thirds above 2, not carried")
            << "total"
            << "The season's innings pitched of Dan Ewing read 5.5, which is not a count of thirds."
            << GameRecorder::Result::BadInnings;
        QTest::newRow("texts longer than lineup")
            << "texts"
            << "There is an error in the saved data." << GameRecorder::Result::BadSavedData;
        QTest::newRow("already recorded") << "recorded"
                                          << "" << GameRecorder::Result::AlreadyRecorded;
    }
    void refusalsLeaveTheFile()
    {
        QFETCH(QString, damage);
        QFETCH(QString, message);
        Season s;
        const QString game = storeTwoGames(s).first();
        if (damage == u"lineup")
            gData->exec("UPDATE Games SET TeamBPlayers = ? WHERE schedID = ?",
                        {"1\tP\tAl Fox\t301\r2\tP\tBo Gray", game});
        else if (damage == u"innings")
            gData->exec("UPDATE GamesIndivPitching SET stats = '6.3' WHERE playerID = '302'");
        else if (damage == u"total")
            gData->insert("Pitching", {{"playerID", 205}, {"IP", 55}}),
                s.fake.messages.answers.enqueue(platform::MsgCancel);
        else if (damage == u"texts")
            gData->exec("UPDATE Games SET TeamAActions = TeamAActions || ? WHERE schedID = ?", {"\rB1", game});
        else if (damage == u"recorded")
            gData->exec("UPDATE Games SET recorded = 1 WHERE schedID = ?", {game});
        const QByteArray before = Season::fileBytes();
        s.fake.messages.clear();

        QTEST(recordWithBoard(game), "result");
        QCOMPARE(s.fake.messages.texts().value(0), message);
        QCOMPARE(Season::fileBytes(), before);
    }

    // On the coach's word a stored total's thirds carry (5.5 is 6.2) in the
    // recording's own transaction, and the game's 4.1 is added to that.
    void seasonThirdsCarry()
    {
        Season s;
        const QString game = storeTwoGames(s).first();
        gData->insert("Pitching", {{"playerID", 205}, {"IP", 55}});
        s.fake.messages.answers.enqueue(platform::MsgAction);
        QCOMPARE(recordWithBoard(game), GameRecorder::Result::Recorded);
        QVERIFY(s.fake.messages.texts().first().contains(QStringLiteral("Dan Ewing read 5.5")));
        QVERIFY(Season::seasonRow("Pitching", "205").split(u' ').contains(QStringLiteral("IP=110")));
    }

    // A database failure at any one of the game's writes takes back all of
    // them; once nothing fails the same game records.
    void failureAtEachWrite_data()
    {
        QTest::addColumn<int>("earlier");
        QTest::addColumn<int>("writes");
        // 5 hitting, 1 fielding and 2 pitching rows, 2 team records, the game.
        QTest::newRow("first game inserts") << 0 << 11;
        // Again 5 + 2 + 2 + 2 + 1, the fielding row of 201 inserted.
        QTest::newRow("second game updates") << 1 << 12;
    }
    void failureAtEachWrite()
    {
        QFETCH(int, earlier);
        QFETCH(int, writes);
        Season s;
        const QStringList ids = storeTwoGames(s);
        for (int g = 0; g < earlier; ++g)
            QCOMPARE(recordWithBoard(ids.at(g)), GameRecorder::Result::Recorded);
        const QString game = ids.at(earlier);
        const QString homeRow = Season::seasonRow("Hitting", "201");

        int failed = 0;
        for (int n = 1; n <= writes + 1; ++n) {
            recordtest::failAtWrite(n);
            const QByteArray before = Season::fileBytes();
            s.fake.messages.clear();
            if (recordWithBoard(game) == GameRecorder::Result::Recorded)
                break;
            ++failed;
            QCOMPARE(s.fake.messages.texts().size(), 1);
            QVERIFY(s.fake.messages.texts().first().startsWith("Database Error"));
            QVERIFY2(Season::fileBytes() == before, qPrintable(QString::number(n)));
            QVERIFY(!Season::isRecorded(game));
            QCOMPARE(Season::seasonRow("Hitting", "201"), homeRow);
        }
        QCOMPARE(failed, writes);
        QVERIFY(Season::isRecorded(game));
    }

    // Correcting a recorded game takes back exactly what recording added,
    // the thirds of its innings included, and reopens it.
    void correctTakesBackTheGame_data()
    {
        QTest::addColumn<int>("earlier");   // games recorded before it
        QTest::addColumn<int>("carried");   // a season innings code before any game, 0 for none
        QTest::addColumn<bool>("tampered"); // the season's at bats cut after recording
        QTest::newRow("first game: its rows and records go") << 0 << 0 << false;
        QTest::newRow("second game: a tie and a sacrifice fly") << 1 << 0 << false;
        QTest::newRow("6.1 + 4.1 - 4.1 = 6.1") << 0 << 61 << false;
        QTest::newRow("season holds less than the game: refused") << 0 << 0 << true;
    }
    void correctTakesBackTheGame()
    {
        QFETCH(int, earlier);
        QFETCH(int, carried);
        Season s;
        const QStringList ids = storeTwoGames(s);
        if (carried)
            gData->insert("Pitching", {{"playerID", 205}, {"teamID", s.homeID}, {"IP", carried}});
        for (int g = 0; g < earlier; ++g)
            QCOMPARE(recordWithBoard(ids.at(g)), GameRecorder::Result::Recorded);
        const QString game = ids.at(earlier);
        const QString before = seasonDump();
        QCOMPARE(recordWithBoard(game), GameRecorder::Result::Recorded);
        QVERIFY(seasonDump() != before);

        s.fake.messages.answers.enqueue(platform::MsgCancel);
        QCOMPARE(GameRecorder(*gData).correct(game), GameRecorder::Correction::Cancelled);
        QVERIFY(Season::isRecorded(game));
        s.fake.messages.clear();
        if (QFETCH(bool, tampered); tampered) {
            gData->exec("UPDATE Hitting SET AB = 0 WHERE playerID = 205");
            const QByteArray stored = Season::fileBytes();
            QCOMPARE(GameRecorder(*gData).correct(game), GameRecorder::Correction::Mismatch);
            QCOMPARE(s.fake.messages.texts().last(),
                     QStringLiteral("This game can't be taken back out of the season."));
            QCOMPARE(Season::fileBytes(), stored);
            return;
        }
        QCOMPARE(GameRecorder(*gData).correct(game), GameRecorder::Correction::Corrected);
        QCOMPARE(s.fake.messages.texts(), QStringList{QStringLiteral("Correct this recorded game?")});
        QCOMPARE(seasonDump(), before);
        QCOMPARE(GameRecorder(*gData).correct(game), GameRecorder::Correction::NotRecorded);
    }

    // A corrected at bat recorded again leaves the season as recording the
    // game that way from the start does, `gameID` stamps included.
    void correctedGameRecordsAsNew()
    {
        auto played = [](bool correctLater, QString &dump) {
            Season s;
            const QStringList ids = storeTwoGames(s);
            const QString g1 = ids.first();
            auto walkToSingle = [&] {
                auto game = gameday::GameStore(*gData).load(g1);
                gameday::ScoreGrid grid;
                GameRecorder::loadGrid(grid, game->teams[0]);
                gridtest::fill(grid, {"B1/G GO/R", "KS/R B1/Y", "HR/G FO/R"});
                game->teams[0].actions = grid.getMyData();
                game->teams[0].outcomes = grid.getMyBkgArray();
                gameday::GameStore(*gData).save(*game);
            };
            if (!correctLater)
                walkToSingle();
            QCOMPARE(recordWithBoard(g1), GameRecorder::Result::Recorded);
            if (correctLater) {
                QCOMPARE(GameRecorder(*gData).correct(g1), GameRecorder::Correction::Corrected);
                walkToSingle();
                QCOMPARE(recordWithBoard(g1), GameRecorder::Result::Recorded);
            }
            // Rows taken back and inserted again have new recIDs.
            dump = seasonDump().remove(QRegularExpression(QStringLiteral("recID=\\d+ ")));
            for (const QString table : {"Hitting", "Fielding", "Pitching"}) {
                for (const Record &r : gData->select(QStringLiteral("SELECT playerID, gameID FROM ") + table))
                    dump += u'\n' + table + u' ' + r.text("playerID") + u' ' + r.text("gameID");
            }
        };
        QString fromTheStart;
        QString corrected;
        played(false, fromTheStart);
        played(true, corrected);
        QVERIFY(fromTheStart.contains(QRegularExpression(QStringLiteral("Hitting .*playerID=203 .*B1=1 .*BB=0 "))));
        QCOMPARE(corrected, fromTheStart);
    }

    // The fifth line of the final check: plate appearances against runs,
    // runners left and the other side's putouts, inning by inning.
    void boxProof_data()
    {
        QTest::addColumn<int>("team");
        QTest::addColumn<int>("row"); // a cell whose out is taken off the card, -1 for none
        QTest::addColumn<int>("col");
        QTest::addColumn<QString>("line");
        QTest::newRow("golden game, visitors")
            << 0 << -1 << -1 << "A: 12 AB + 1 BB + 0 HBP + 0 SAC + 0 CI = 13; 2 R + 2 LOB + 9 PO = 13";
        QTest::newRow("golden game, home: an out on base is a putout")
            << 1 << -1 << -1 << "B: 9 AB + 1 BB + 0 HBP + 0 SAC + 0 CI = 10; 3 R + 1 LOB + 6 PO = 10";
        QTest::newRow("missing out in the third")
            << 0 << 4 << 2
            << "A: 12 AB + 1 BB + 0 HBP + 0 SAC + 0 CI = 13; 2 R + 2 LOB + 8 PO = 12. Does not balance in inning 3";
        QTest::newRow("missing out in the doubled first")
            << 1 << 0 << 1
            << "B: 9 AB + 1 BB + 0 HBP + 0 SAC + 0 CI = 10; 3 R + 1 LOB + 5 PO = 9. Does not balance in inning 1";
    }
    void boxProof()
    {
        QFETCH(int, team);
        QFETCH(int, row);
        QFETCH(int, col);
        gameday::GameRecord game = goldenGame();
        if (row >= 0) {
            gameday::ScoreGrid card;
            GameRecorder::loadGrid(card, game.teams[team]);
            card.setCellBkg(row, col, QString());
            game.teams[team].outcomes = card.getMyBkgArray();
        }
        const stats::BoxProof proof = stats::proveBoxScores(game)[team];
        QTEST(proof.text(team == 0 ? QStringLiteral("A") : QStringLiteral("B")), "line");
        QCOMPARE(proof.balances(), row < 0);
    }
};

QTEST_GUILESS_MAIN(TestRecordGame)
#include "tst_recordgame.moc"
