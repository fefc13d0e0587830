// The write after every click: one save of the team on show (two 25-row
// lineups, 23 columns) against the leanest fair baseline, one plain SQLite
// transaction writing the same strings to a row of the same size by its key.
// Each round changes a cell first, as a coach's click does, so both write
// new bytes; the disk flushes of each are counted, so a write SQLite skipped
// would show. Run at 20, 200 and 2,000 games in the season, on a file on
// disk (the working folder, or TL_BENCH_DIR) and on a file in memory
// (/dev/shm), the two interleaved round by round; medians and ratios printed.

#include "gameday/GameDay.h"

#include "SyncCounter.h"
#include "app/App.h"
#include "app/globals.h"
#include "app/myDB.h"
#include "fakes/FakePlatform.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTest>
#include <algorithm>

using namespace gameday;

namespace {

TeamStrings bigTeam()
{
    QStringList headings;
    for (int i = 1; i <= 20; ++i) {
        headings.append(QString::number(i));
        if (i <= 3)
            headings.append(QString::number(i) + u'a');
    }
    QList<LineupLine> lineup;
    QList<BatterStat> stats;
    QStringList actions;
    const QStringList codes = {"B1", "GO", "KS", "", "HR", "BB", "FO", ""};
    for (int r = 0; r < 25; ++r) {
        lineup.append(LineupLine{QString::number(r + 1), "SS", QStringLiteral("Player O'Name %1").arg(r),
                                 QString::number(100 + r)});
        stats.append(BatterStat{"1", "0"});
        QStringList line;
        for (int c = 0; c < 23; ++c)
            line.append(codes.at((r + c) % codes.size()));
        actions.append(line.join(u'\t'));
    }
    TeamStrings t;
    t.headings = headings.join(u'\t');
    t.players = writePlayers(lineup);
    t.actions = actions.join(u'\r');
    t.batStats = writeBatStats(stats);
    t.bench = QStringLiteral("22\tAl Reyes\tRF\t207");
    return t;
}

} // namespace

class BenchGameSave : public QObject
{
    Q_OBJECT

    void measure(const QString &place, const QString &folder, int games)
    {
        fakes::FakePlatform fake;
        QTemporaryDir home(folder + QStringLiteral("/bench-gamesave-XXXXXX"));
        QVERIFY(home.isValid());
        App app(home.path());
        QCOMPARE(app.Event_Open(), App::OpenResult::Ok);
        gPrefs->prHomeTeam = QStringLiteral("1"); // a game opens only with a home team

        // The season's games, each row as big as the one on show; the last
        // two are the coach's game and the baseline's twin.
        GameRecord g;
        g.teamIDs = {"1", "2"};
        g.teams = {bigTeam(), bigTeam()};
        GameStore store(*gData);
        QVERIFY(gData->runInTransaction([&] {
            for (int i = 0; i < games; ++i) {
                g.schedID = QString::number(gData->insert("Schedule", {{"SchedDate", "2026-04-15"}, {"isHome", 2}}));
                store.create(g);
            }
        }));
        const QString shown = g.schedID;
        const qint64 twin = gData->scalar("SELECT MIN(gameID) FROM Games").toLongLong();

        ScoreGrid card;
        GameDay game(*gData, card);
        QVERIFY(game.open(shown));
        QCOMPARE(card.rowCount(), 25);
        QCOMPARE(card.columnCount(), 23);
        QCOMPARE(game.curSelTeam(), 1); // the columns the baseline names

        SQLite::Database &db = *gData->tlynData;
        auto keyed = [&](const GameRecord &rec) {
            const TeamStrings &t = rec.teams[1];
            SQLite::Transaction tx(db);
            SQLite::Statement st(db, "UPDATE Games SET Teams = ?, gameType = ?, recorded = ?, TeamBHeadings = ?, "
                                     "TeamBBench = ?, TeamBPlayers = ?, TeamBActions = ?, TeamBOutcomes = ?, "
                                     "TeamBBatterStats = ? WHERE gameID = ?");
            const QVariantList values = {rec.teamsField(), rec.gameType, 0,          t.headings, t.bench,
                                         t.players,        t.actions,    t.outcomes, t.batStats, twin};
            myDB::bindAll(st, values);
            st.exec();
            tx.commit();
        };

        // Medians of interleaved rounds: the machine is shared, and a mean
        // would carry every pause of another process.
        const int rounds = 300;
        QList<qint64> ours, base, gather;
        long long ourSyncs = 0, baseSyncs = 0;
        QElapsedTimer timer;
        for (int i = 0; i < rounds; ++i) {
            // A click: one cell's text changes, so the row's bytes do.
            card.setCellText(i % 25, 22, i % 2 ? QStringLiteral("HR") : QStringLiteral("B2"));
            long long before = bench::SyncCounter::syncs();
            timer.start();
            QVERIFY(game.commitClick());
            ours.append(timer.nsecsElapsed());
            ourSyncs += bench::SyncCounter::syncs() - before;

            // What of the click's work is gathering the card's strings.
            timer.start();
            game.saveCurState();
            gather.append(timer.nsecsElapsed());

            const GameRecord rec = game.record();
            before = bench::SyncCounter::syncs();
            timer.start();
            keyed(rec);
            base.append(timer.nsecsElapsed());
            baseSyncs += bench::SyncCounter::syncs() - before;
        }
        QCOMPARE(gData->scalar("SELECT TeamBActions FROM Games WHERE gameID = ?", {twin}).toString(),
                 game.record().teams[size_t(game.curSelTeam())].actions);
        auto median = [](QList<qint64> v) {
            std::sort(v.begin(), v.end());
            return v.at(v.size() / 2) / 1e6;
        };
        const double a = median(ours), b = median(base), gathering = median(gather);
        qInfo("%-6s %5d games: save after a click %.3f ms (gathering the strings %.3f ms), %.1f flushes; keyed "
              "write of the same bytes %.3f ms, %.1f flushes; ratio %.2f (the write alone %.2f)",
              qPrintable(place), games, a, gathering, double(ourSyncs) / rounds, b, double(baseSyncs) / rounds, a / b,
              (a - gathering) / b);
    }

private Q_SLOTS:
    void initTestCase() { bench::SyncCounter::install(); }

    void saveAfterClickAgainstKeyedWrite_data()
    {
        QTest::addColumn<int>("games");
        for (int games : {20, 200, 2000})
            QTest::addRow("%d games", games) << games;
    }
    void saveAfterClickAgainstKeyedWrite()
    {
        QFETCH(int, games);
        const QString disk = qEnvironmentVariableIsEmpty("TL_BENCH_DIR") ? QDir::currentPath()
                                                                         : qEnvironmentVariable("TL_BENCH_DIR");
        measure(QStringLiteral("disk"), disk, games);
        measure(QStringLiteral("memory"), QStringLiteral("/dev/shm"), games);
    }
};

QTEST_GUILESS_MAIN(BenchGameSave)
#include "bench_gamesave.moc"
