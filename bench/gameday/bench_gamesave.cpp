// The write after every click: one save of the team on show (two 25-row
// lineups, 23 columns) against one plain SQLite transaction writing the
// same bytes to the same row. The two run interleaved; the ratio is printed.

#include "gameday/GameDay.h"

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

private Q_SLOTS:
    void saveAfterClickAgainstPlainTransaction()
    {
        fakes::FakePlatform fake;
        QTemporaryDir home;
        App app(home.path());
        QCOMPARE(app.Event_Open(), App::OpenResult::Ok);
        const qint64 event = gData->insert("Schedule", {{"SchedDate", "2026-04-15"}, {"isHome", 2}});
        GameRecord g;
        g.schedID = QString::number(event);
        g.teamIDs = {"1", "2"};
        g.teams = {bigTeam(), bigTeam()};
        GameStore store(*gData);
        QVERIFY(store.create(g));

        ScoreGrid card;
        GameDay game(*gData, card);
        QVERIFY(game.open(g.schedID));
        QCOMPARE(card.rowCount(), 25);
        QCOMPARE(card.columnCount(), 23);
        game.saveCurState();
        const GameRecord rec = game.record();
        const TeamStrings &t = rec.teams[1];

        SQLite::Database &db = *gData->tlynData;
        auto plain = [&] {
            SQLite::Transaction tx(db);
            SQLite::Statement st(db, "UPDATE Games SET Teams = ?, gameType = ?, recorded = ?, TeamBHeadings = ?, "
                                     "TeamBBench = ?, TeamBPlayers = ?, TeamBActions = ?, TeamBOutcomes = ?, "
                                     "TeamBBatterStats = ? WHERE schedID = ?");
            const QVariantList values = {rec.teamsField(), rec.gameType, 0,          t.headings, t.bench,
                                         t.players,        t.actions,    t.outcomes, t.batStats, rec.schedID};
            myDB::bindAll(st, values);
            st.exec();
            tx.commit();
        };

        // Medians of interleaved rounds: the machine is shared, and a mean
        // would carry every pause of another process.
        const int rounds = 1000;
        QList<qint64> ours, base, gather, writes;
        QElapsedTimer timer;
        for (int i = 0; i < rounds; ++i) {
            timer.start();
            QVERIFY(game.commitClick());
            ours.append(timer.nsecsElapsed());
            timer.start();
            plain();
            base.append(timer.nsecsElapsed());
            timer.start();
            game.saveCurState();
            gather.append(timer.nsecsElapsed());
            timer.start();
            GameStore(*gData).saveTeam(rec, 1);
            writes.append(timer.nsecsElapsed());
        }
        auto median = [](QList<qint64> v) {
            std::sort(v.begin(), v.end());
            return v.at(v.size() / 2) / 1e6;
        };
        qInfo("synchronous=%d journal=%s", gData->scalar("PRAGMA synchronous").toInt(),
              qPrintable(gData->scalar("PRAGMA journal_mode").toString()));
        qInfo("save after a click: %.3f ms (gathering the strings %.3f ms, writing them %.3f ms); "
              "plain transaction, same bytes: %.3f ms; ratio %.2f",
              median(ours), median(gather), median(writes), median(base), median(ours) / median(base));
    }
};

QTEST_GUILESS_MAIN(BenchGameSave)
#include "bench_gamesave.moc"
