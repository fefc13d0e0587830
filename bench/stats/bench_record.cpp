// What recording a game costs in a large season: two 25-row lineups folded
// into a season of 3,000 players, against the leanest fair baseline, the
// same rows written through plain SQLite by their keys in one transaction,
// with new values each round (as a recording's sums are). The season holds
// 20, 200 or 2,000 earlier games with their panel rows; each size runs on a
// file on disk (the working folder, or TL_BENCH_DIR) and on a file in memory
// (/dev/shm). The two run interleaved, round by round; the medians, the
// disk flushes of each and the ratio are printed.

#include "SyncCounter.h"
#include "app/App.h"
#include "app/globals.h"
#include "app/myDB.h"
#include "fakes/FakePlatform.h"
#include "gameday/ScoreGrid.h"
#include "stats/GameRecorder.h"
#include "stats/SeasonFigures.h"

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>
#include <SQLiteCpp/Transaction.h>

#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>

namespace {

constexpr int kPlayers = 3000;
constexpr int kLineup = 25;
constexpr int kRounds = 31;

std::string columnsList(const auto &columns, const char *suffix)
{
    std::string out;
    for (const char *c : columns)
        out += std::string(", ") + c + suffix;
    return out;
}

double median(std::vector<double> v)
{
    std::sort(v.begin(), v.end());
    return v[v.size() / 2];
}

} // namespace

class BenchRecord : public QObject
{
    Q_OBJECT

    fakes::FakePlatform m_fake;
    std::unique_ptr<QTemporaryDir> m_home;
    std::unique_ptr<App> m_app;
    QString m_teams;
    std::array<QString, 2> m_players;
    QString m_actions;
    QString m_outcomes;
    QString m_headings;
    QString m_batStats;
    int m_nextGame = 1;
    qint64 m_lastGameRow = 0;

    SQLite::Database &db() { return *gData->tlynData; }

    // A game like the one a coach records: both lineups with nine innings of
    // at bats, every player's fielding and batting panels, two pitchers a
    // side. Inside the caller's transaction.
    QString insertGame()
    {
        const QString schedID = QString::number(1000000 + m_nextGame++);
        SQLite::Statement game(db(), "INSERT INTO Games (schedID, Teams, TeamAHeadings, TeamBHeadings, TeamAPlayers, "
                                     "TeamBPlayers, TeamAActions, TeamBActions, TeamAOutcomes, TeamBOutcomes, "
                                     "TeamABatterStats, TeamBBatterStats, recorded) "
                                     "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, 0)");
        myDB::bindAll(game, {schedID, m_teams, m_headings, m_headings, m_players[0], m_players[1], m_actions, m_actions,
                             m_outcomes, m_outcomes, m_batStats, m_batStats});
        game.exec();
        m_lastGameRow = db().getLastInsertRowid();
        SQLite::Statement hit(
            db(), "INSERT INTO GamesIndivHitting (gameID, playerID, teamID, stats) VALUES (?, ?, 1, '1\t0\t2\t0\t0')");
        SQLite::Statement fld(db(), "INSERT INTO GamesIndivFielding (gameID, playerID, teamID, stats) VALUES (?, ?, 1, "
                                    "'9\t3\t2\t1\t0\t0\t0\t0\t0\t0\t0\t0\t0')");
        SQLite::Statement pch(
            db(),
            "INSERT INTO GamesIndivPitching (gameID, playerID, teamID, gameResult, start, totBalls, totKs, stats) "
            "VALUES (?, ?, 1, 1, 1, 40, 60, '4.2\t20\t5\t2\t1\t3\t4\t2\t0\t0\t6\t0\t1\t0\t0\t0\t0')");
        for (int p = 1; p <= 2 * kLineup; ++p) {
            for (SQLite::Statement *s : {&hit, &fld}) {
                s->reset();
                s->bind(1, schedID.toStdString());
                s->bind(2, std::to_string(p));
                s->exec();
            }
            if (p % kLineup < 2) {
                pch.reset();
                pch.bind(1, schedID.toStdString());
                pch.bind(2, std::to_string(p));
                pch.exec();
            }
        }
        return schedID;
    }

    QString storeGame()
    {
        SQLite::Transaction t(db());
        const QString schedID = insertGame();
        t.commit();
        return schedID;
    }

    // The writes a recording makes, as plain SQLite: 50 hitting, 50 fielding
    // and 4 pitching rows updated by key, two team records and the game's flag.
    void plainWrites(qint64 gameID, int round)
    {
        SQLite::Transaction t(db());
        SQLite::Statement hit(db(), "UPDATE Hitting SET playerID = ?, teamID = 1, gameID = 1" +
                                        columnsList(stats::hittingColumns(), " = ?") + " WHERE recID = ?");
        SQLite::Statement fld(db(), "UPDATE Fielding SET playerID = ?, teamID = 1, gameID = 1" +
                                        columnsList(stats::fieldingColumns(), " = ?") + " WHERE recID = ?");
        SQLite::Statement pch(db(), "UPDATE Pitching SET playerID = ?, teamID = 1, gameID = 1" +
                                        columnsList(stats::pitchingColumns(), " = ?") + " WHERE recID = ?");
        const auto run = [round](SQLite::Statement &s, int player, int figures) {
            s.reset();
            s.bind(1, player);
            for (int i = 0; i < figures; ++i)
                s.bind(i + 2, 10 * (player + i + round)); // new sums each round; innings codes stay whole
            s.bind(figures + 2, player);
            s.exec();
        };
        for (int p = 1; p <= 2 * kLineup; ++p) {
            run(hit, p, stats::kHittingFigures);
            run(fld, p, stats::kFieldingFigures);
            if (p % kLineup < 2)
                run(pch, p, stats::kPitchingFigures);
        }
        SQLite::Statement rec(db(), "UPDATE GameResultsByTeam SET W = W + 1, L = L, Tie = Tie WHERE teamID = ?");
        for (int team : {1, 2}) {
            rec.reset();
            rec.bind(1, team);
            rec.exec();
        }
        SQLite::Statement flag(db(), "UPDATE Games SET recorded = 1 WHERE gameID = ?");
        flag.bind(1, static_cast<int64_t>(gameID));
        flag.exec();
        t.commit();
    }

    void setUp(const QString &folder, int games)
    {
        m_app.reset();
        m_home = std::make_unique<QTemporaryDir>(folder + QStringLiteral("/bench-record-XXXXXX"));
        m_nextGame = 1;
        m_app = std::make_unique<App>(m_home->path());
        QCOMPARE(m_app->Event_Open(), App::OpenResult::Ok);
        m_teams = QStringLiteral("1\t2");
        gameday::ScoreGrid grid;
        grid.setColumnCount(20);
        const QStringList codes = {"B1", "GO", "KS", "HR", "BB", "FO", "B2", "SAC", "KL"};
        const QStringList bkgs = {"Y", "R", "R", "G", "G", "R", "Y", "R", "R"};
        for (int t = 0; t < 2; ++t) {
            QStringList lines;
            for (int r = 0; r < kLineup; ++r)
                lines.append(QString::number(r + 1) + "\tP\tPlayer\t" + QString::number(t * kLineup + r + 1));
            m_players[t] = lines.join(u'\r');
        }
        QStringList stats;
        for (int r = 0; r < kLineup; ++r) {
            grid.addRow();
            stats.append("1\t0");
            for (int c = 0; c < 9; ++c) {
                if ((r + c) % 3 == 0) {
                    grid.setCellText(r, c, codes.at((r + c) % codes.size()));
                    grid.setCellBkg(r, c, bkgs.at((r + c) % bkgs.size()));
                }
            }
        }
        m_actions = grid.getMyData();
        m_outcomes = grid.getMyBkgArray();
        m_headings = grid.getColHeadings();
        m_batStats = stats.join(u'\r');
        {
            SQLite::Transaction t(db());
            db().exec("INSERT INTO Teams (teamID, TeamName) VALUES (1, 'Home'), (2, 'Bears')");
            db().exec("INSERT INTO GameResultsByTeam (teamID) VALUES (1), (2)");
            SQLite::Statement hit(db(), "INSERT INTO Hitting (recID, playerID, AB, B1) VALUES (?, ?, 40, 12)");
            SQLite::Statement fld(db(), "INSERT INTO Fielding (recID, playerID, IP, PO) VALUES (?, ?, 60, 20)");
            SQLite::Statement pch(db(), "INSERT INTO Pitching (recID, playerID, IP, Win) VALUES (?, ?, 221, 2)");
            for (int p = 1; p <= kPlayers; ++p) {
                for (SQLite::Statement *s : {&hit, &fld, &pch}) {
                    s->reset();
                    s->bind(1, p);
                    s->bind(2, p);
                    s->exec();
                }
            }
            // The earlier games, whose rows every lookup of this game passes.
            for (int g = 0; g < games; ++g)
                insertGame();
            t.commit();
        }
    }

    void measure(const QString &place, const QString &folder, int games)
    {
        setUp(folder, games);
        std::vector<double> ours, oneTransaction;
        long long ourSyncs = 0, baseSyncs = 0;
        QElapsedTimer timer;
        for (int round = 0; round < kRounds; ++round) {
            const QString game = storeGame();
            long long before = bench::SyncCounter::syncs();
            timer.start();
            QCOMPARE(stats::GameRecorder(*gData).record(game, 5, 3), stats::GameRecorder::Result::Recorded);
            ours.push_back(timer.nsecsElapsed() / 1e6);
            ourSyncs += bench::SyncCounter::syncs() - before;

            storeGame();
            const qint64 plain = m_lastGameRow;
            before = bench::SyncCounter::syncs();
            timer.start();
            plainWrites(plain, round);
            oneTransaction.push_back(timer.nsecsElapsed() / 1e6);
            baseSyncs += bench::SyncCounter::syncs() - before;
        }
        const double a = median(ours), b = median(oneTransaction);
        qInfo("%-6s %5d games: record a game (2 x %d rows, %d players) %.2f ms, %.1f flushes; one plain "
              "transaction of the same rows %.2f ms, %.1f flushes; ratio %.2f",
              qPrintable(place), games, kLineup, kPlayers, a, double(ourSyncs) / kRounds, b,
              double(baseSyncs) / kRounds, a / b);
        m_app.reset();
        m_home.reset();
    }

private Q_SLOTS:
    void initTestCase() { bench::SyncCounter::install(); }

    void recordAgainstPlainSQLite_data()
    {
        QTest::addColumn<int>("games");
        for (int games : {20, 200, 2000})
            QTest::addRow("%d games", games) << games;
    }
    void recordAgainstPlainSQLite()
    {
        QFETCH(int, games);
        const QString disk = qEnvironmentVariableIsEmpty("TL_BENCH_DIR") ? QDir::currentPath()
                                                                         : qEnvironmentVariable("TL_BENCH_DIR");
        measure(QStringLiteral("disk"), disk, games);
        measure(QStringLiteral("memory"), QStringLiteral("/dev/shm"), games);
    }
};

QTEST_GUILESS_MAIN(BenchRecord)
#include "bench_record.moc"
