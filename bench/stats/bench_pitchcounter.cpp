// A pitch added through the counter (one transaction adding it to the
// pitcher's pitching-panel row as last read, so the row before and after
// are known for the undo log) against the leanest
// fair baseline: one plain SQLite transaction writing the same two counts
// to a row of the same table by its game and player. Each round adds a
// pitch, so both write new bytes; the disk flushes of each are counted, so
// a write SQLite skipped would show. Run at 20, 200 and 2,000 games of
// pitching rows, on a file on disk (the working folder, or TL_BENCH_DIR)
// and on a file in memory (/dev/shm), the two interleaved round by round;
// medians and the ratio printed.

#include "stats/PitchCounter.h"

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

using namespace stats;

class BenchPitchCounter : public QObject
{
    Q_OBJECT

    void measure(const QString &place, const QString &folder, int games)
    {
        fakes::FakePlatform fake;
        QTemporaryDir home(folder + QStringLiteral("/bench-pitchcounter-XXXXXX"));
        QVERIFY(home.isValid());
        App app(home.path());
        QCOMPARE(app.Event_Open(), App::OpenResult::Ok);

        // The season's games, each with two of the team's twelve pitchers;
        // the counter counts in the last game, the baseline writes the first.
        GameStatStore store(*gData);
        PitchingLine line;
        line.totBalls = 20;
        line.totKs = 30;
        line.stats = gatherStats(QStringList(kPitchingFields, QStringLiteral("3")));
        QString last, first, lastPitcher;
        const QString firstPitcher = QStringLiteral("100");
        QVERIFY(gData->runInTransaction([&] {
            for (int i = 0; i < games; ++i) {
                last = QString::number(
                    gData->insert(QStringLiteral("Schedule"),
                                  {{QStringLiteral("SchedDate"), QStringLiteral("2026-04-15")}, {"isHome", 2}}));
                if (first.isEmpty())
                    first = last;
                lastPitcher = QString::number(100 + (2 * i) % 12);
                store.savePitching(last, lastPitcher, QStringLiteral("1"), line);
                store.savePitching(last, QString::number(101 + (2 * i) % 12), QStringLiteral("1"), line);
            }
        }));

        PitchCounter counter(*gData, pitchrules::builtIn());
        counter.setPitcher(last, lastPitcher, QStringLiteral("1"), QDate(2026, 4, 15));

        SQLite::Database &db = *gData->tlynData;
        int baseBalls = line.totBalls, baseStrikes = line.totKs;
        // Deferred, the leanest; immediate, as every write of the program
        // starts (it waits out another program's write lock up front).
        auto plain = [&](int balls, int strikes, SQLite::TransactionBehavior behaviour) {
            SQLite::Transaction tx(db, behaviour);
            SQLite::Statement st(db, "UPDATE GamesIndivPitching SET totBalls = ?, totKs = ? "
                                     "WHERE gameID = ? AND playerID = ?");
            myDB::bindAll(st, {balls, strikes, first, firstPitcher});
            st.exec();
            tx.commit();
        };

        // Medians of interleaved rounds: the machine is shared, and a mean
        // would carry every pause of another process.
        const int rounds = 300;
        QList<qint64> ours, base, immediate;
        long long ourSyncs = 0, baseSyncs = 0;
        QElapsedTimer timer;
        for (int i = 0; i < rounds; ++i) {
            const Pitch pitch = i % 2 ? Pitch::Ball : Pitch::Strike;
            long long before = bench::SyncCounter::syncs();
            timer.start();
            QVERIFY(counter.add(pitch).ok);
            ours.append(timer.nsecsElapsed());
            ourSyncs += bench::SyncCounter::syncs() - before;

            (pitch == Pitch::Ball ? baseBalls : baseStrikes) += 1;
            before = bench::SyncCounter::syncs();
            timer.start();
            plain(baseBalls, baseStrikes, SQLite::TransactionBehavior::DEFERRED);
            base.append(timer.nsecsElapsed());
            baseSyncs += bench::SyncCounter::syncs() - before;

            baseBalls += 1;
            timer.start();
            plain(baseBalls, baseStrikes, SQLite::TransactionBehavior::IMMEDIATE);
            immediate.append(timer.nsecsElapsed());
        }
        const PitchingLine counted = store.pitching(last, lastPitcher).value();
        QCOMPARE(counted.totBalls + counted.totKs, line.totBalls + line.totKs + rounds);
        QCOMPARE(store.pitching(first, firstPitcher)->totBalls + store.pitching(first, firstPitcher)->totKs,
                 line.totBalls + line.totKs + 2 * rounds);
        auto median = [](QList<qint64> v) {
            std::sort(v.begin(), v.end());
            return v.at(v.size() / 2) / 1e6;
        };
        const double a = median(ours), b = median(base), c = median(immediate);
        qInfo("%-6s %5d games: a pitch through the counter %.3f ms, %.1f flushes; plain transaction writing the row "
              "%.3f ms, %.1f flushes; ratio %.2f (to an immediate one, %.3f ms: %.2f)",
              qPrintable(place), games, a, double(ourSyncs) / rounds, b, double(baseSyncs) / rounds, a / b, c, a / c);
    }

private Q_SLOTS:
    void initTestCase() { bench::SyncCounter::install(); }

    void pitchAgainstPlainTransaction_data()
    {
        QTest::addColumn<int>("games");
        for (int games : {20, 200, 2000})
            QTest::addRow("%d games", games) << games;
    }
    void pitchAgainstPlainTransaction()
    {
        QFETCH(int, games);
        const QString disk = qEnvironmentVariableIsEmpty("TL_BENCH_DIR") ? QDir::currentPath()
                                                                         : qEnvironmentVariable("TL_BENCH_DIR");
        measure(QStringLiteral("disk"), disk, games);
        measure(QStringLiteral("memory"), QStringLiteral("/dev/shm"), games);
    }
};

QTEST_GUILESS_MAIN(BenchPitchCounter)
#include "bench_pitchcounter.moc"
