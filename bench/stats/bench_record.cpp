// What recording a game costs in a large season: two 25-row lineups folded
// into a season of 3,000 players, against the leanest fair baselines, the
// same writes through plain SQLite in one transaction and the same writes
// each committed on its own. The three run interleaved, round by round, on
// the same file, and the medians and their ratios are printed.

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
constexpr int kRounds = 15;
constexpr int kHistoryGames = 60;

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
    // The season lies in the working folder, on the disk a coach's season
    // would use; TL_BENCH_DIR puts it elsewhere (a RAM disk, to see the
    // work apart from the disk's flushes).
    QTemporaryDir m_home{
        (qEnvironmentVariableIsEmpty("TL_BENCH_DIR") ? QDir::currentPath() : qEnvironmentVariable("TL_BENCH_DIR")) +
        QStringLiteral("/bench-record-XXXXXX")};
    std::unique_ptr<App> m_app;
    QString m_teams;
    std::array<QString, 2> m_players;
    QString m_actions;
    QString m_outcomes;
    QString m_headings;
    QString m_batStats;
    int m_nextGame = 1;

    SQLite::Database &db() { return *gData->tlynData; }

    // A game like the one a coach records: both lineups with nine innings of
    // at bats, every player's fielding and batting panels, two pitchers a side.
    QString storeGame()
    {
        const QString schedID = QString::number(1000000 + m_nextGame++);
        gData->insert("Games", {{"schedID", schedID},
                                {"Teams", m_teams},
                                {"TeamAHeadings", m_headings},
                                {"TeamBHeadings", m_headings},
                                {"TeamAPlayers", m_players[0]},
                                {"TeamBPlayers", m_players[1]},
                                {"TeamAActions", m_actions},
                                {"TeamBActions", m_actions},
                                {"TeamAOutcomes", m_outcomes},
                                {"TeamBOutcomes", m_outcomes},
                                {"TeamABatterStats", m_batStats},
                                {"TeamBBatterStats", m_batStats},
                                {"recorded", 0}});
        SQLite::Transaction t(db());
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
        t.commit();
        return schedID;
    }

    // The writes a recording makes, as plain SQLite: 50 hitting, 50 fielding
    // and 4 pitching rows updated by key, two team records and the game's flag.
    void plainWrites(bool oneTransaction, const QString &schedID)
    {
        std::optional<SQLite::Transaction> t;
        if (oneTransaction)
            t.emplace(db());
        SQLite::Statement hit(db(), "UPDATE Hitting SET playerID = ?, teamID = 1, gameID = 1" +
                                        columnsList(stats::hittingColumns(), " = ?") + " WHERE recID = ?");
        SQLite::Statement fld(db(), "UPDATE Fielding SET playerID = ?, teamID = 1, gameID = 1" +
                                        columnsList(stats::fieldingColumns(), " = ?") + " WHERE recID = ?");
        SQLite::Statement pch(db(), "UPDATE Pitching SET playerID = ?, teamID = 1, gameID = 1" +
                                        columnsList(stats::pitchingColumns(), " = ?") + " WHERE recID = ?");
        const auto run = [](SQLite::Statement &s, int player, int figures) {
            s.reset();
            s.bind(1, player);
            for (int i = 0; i < figures; ++i)
                s.bind(i + 2, 10 * (player + i)); // innings codes stay whole
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
        SQLite::Statement flag(db(), "UPDATE Games SET recorded = 1 WHERE schedID = ?");
        flag.bind(1, schedID.toStdString());
        flag.exec();
        if (t)
            t->commit();
    }

private Q_SLOTS:
    void initTestCase()
    {
        m_app = std::make_unique<App>(m_home.path());
        QCOMPARE(m_app->Event_Open(), App::OpenResult::Ok);
        m_teams = QStringLiteral("1\t2");
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
            // Earlier games' panel rows, which every lookup of this game passes.
            SQLite::Statement old(db(), "INSERT INTO GamesIndivFielding (gameID, playerID, stats) VALUES (?, ?, '9')");
            for (int g = 0; g < kHistoryGames; ++g) {
                for (int p = 1; p <= 2 * kLineup; ++p) {
                    old.reset();
                    old.bind(1, std::to_string(g + 1));
                    old.bind(2, std::to_string(p));
                    old.exec();
                }
            }
            t.commit();
        }
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
    }

    void recordAgainstPlainSQLite()
    {
        std::vector<double> ours, oneTransaction, eachRow;
        QElapsedTimer timer;
        for (int round = 0; round < kRounds; ++round) {
            const QString game = storeGame();
            timer.start();
            QCOMPARE(stats::GameRecorder(*gData).record(game, 5, 3), stats::GameRecorder::Result::Recorded);
            ours.push_back(timer.nsecsElapsed() / 1e6);

            const QString plain = storeGame();
            timer.start();
            plainWrites(true, plain);
            oneTransaction.push_back(timer.nsecsElapsed() / 1e6);

            const QString single = storeGame();
            timer.start();
            plainWrites(false, single);
            eachRow.push_back(timer.nsecsElapsed() / 1e6);
        }
        const double a = median(ours), b = median(oneTransaction), c = median(eachRow);
        qInfo("record a game, 2 x %d rows, %d players: %.2f ms (median of %d)", kLineup, kPlayers, a, kRounds);
        qInfo("same writes, one plain transaction: %.2f ms -> recording costs %.2fx", b, a / b);
        qInfo("same writes, each row committed:    %.2f ms -> recording is %.1fx cheaper", c, c / a);
    }
};

QTEST_GUILESS_MAIN(BenchRecord)
#include "bench_record.moc"
