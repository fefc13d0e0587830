// Undo and redo on the game screen, and opening a game with a long change
// log. An undo (a redo) of a click against the leanest fair baseline: one
// plain SQLite transaction writing the same bytes (the card's string the
// click changed) to a row of the same size by its key. Each round undoes
// the click and redoes it, so both write new bytes every time, and the
// baseline writes the same two values in turn. Opening a game whose log
// holds 500 changes against opening its twin with the same strings and an
// empty log, with the menu texts the screen asks for at once. Run on a file
// on disk (the working folder, or TL_BENCH_DIR) and on a file in memory
// (/dev/shm), rounds interleaved; medians and ratios printed.

#include "gameday/GameDay.h"

#include "app/App.h"
#include "app/globals.h"
#include "app/myDB.h"
#include "app/myPrefs.h"
#include "fakes/FakePlatform.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTest>
#include <algorithm>
#include <functional>

using namespace gameday;

namespace {

// A full card: 25 rows, 23 columns of codes.
TeamStrings fullTeam()
{
    QStringList headings;
    QList<LineupLine> lineup;
    QStringList actions;
    for (int i = 1; i <= 23; ++i)
        headings.append(QString::number(i));
    const QStringList codes = {"B1", "GO", "KS", "", "HR", "BB", "FO", ""};
    for (int r = 0; r < 25; ++r) {
        lineup.append(
            LineupLine{QString::number(r + 1), "SS", QStringLiteral("Player %1").arg(r), QString::number(100 + r)});
        QStringList line;
        for (int c = 0; c < 23; ++c)
            line.append(codes.at((r + c) % codes.size()));
        actions.append(line.join(u'\t'));
    }
    TeamStrings t;
    t.headings = headings.join(u'\t');
    t.players = writePlayers(lineup);
    t.actions = actions.join(u'\r');
    return t;
}

double median(QList<qint64> v)
{
    std::sort(v.begin(), v.end());
    return double(v.at(v.size() / 2)) / 1e6;
}

} // namespace

class BenchUndo : public QObject
{
    Q_OBJECT

    QString makeGame(GameStore &store)
    {
        GameRecord g;
        g.teamIDs = {"1", "2"};
        g.teams = {fullTeam(), fullTeam()};
        g.schedID = QString::number(gData->insert("Schedule", {{"SchedDate", "2026-04-15"}, {"isHome", 2}}));
        store.create(g);
        return g.schedID;
    }

    void undoAndRedo(const QString &place)
    {
        GameStore store(*gData);
        const QString shown = makeGame(store);
        const QString twin = makeGame(store);
        ScoreGrid card;
        GameDay game(*gData, card);
        QVERIFY(game.open(shown));
        const QString before = game.record().teams[1].actions;
        card.setCellText(3, 22, QStringLiteral("HR"));
        QVERIFY(game.commitClick(QStringLiteral("Home Run")));
        const QString after = game.record().teams[1].actions;
        QVERIFY(before != after);

        SQLite::Database &db = *gData->tlynData;
        auto keyed = [&](const QString &actions) {
            SQLite::Transaction tx(db);
            SQLite::Statement st(db, "UPDATE Games SET TeamBActions = ? WHERE schedID = ?");
            myDB::bindAll(st, {actions, twin});
            st.exec();
            tx.commit();
        };
        // The coach's step (the write, then the card read back and shown),
        // and the log's write alone: the same change on a third game.
        const QString bare = makeGame(store);
        ChangeLog log(*gData);
        log.setGame(bare);
        QCOMPARE(log.add(Change{QStringLiteral("Home Run"),
                                1,
                                {{QStringLiteral("Games"),
                                  {QStringLiteral("schedID")},
                                  {bare},
                                  {QStringLiteral("TeamBActions")},
                                  QVariantList{before},
                                  QVariantList{after}}}}),
                 ChangeLog::Result::Saved);
        const int rounds = 200;
        QList<qint64> undos, redos, writeUndos, writeRedos, baseBefore, baseAfter;
        QElapsedTimer timer;
        auto timed = [&](QList<qint64> &into, const std::function<bool()> &work) {
            timer.start();
            const bool ok = work();
            into.append(timer.nsecsElapsed());
            return ok;
        };
        for (int i = 0; i < rounds; ++i) {
            const bool byScreen = i % 2 == 0;
            QVERIFY(byScreen ? timed(undos, [&] { return game.undo(); })
                             : timed(writeUndos, [&] { return log.undo().has_value(); }));
            timed(baseBefore, [&] { return keyed(before), true; });
            QVERIFY(byScreen ? timed(redos, [&] { return game.redo(); })
                             : timed(writeRedos, [&] { return log.redo().has_value(); }));
            timed(baseAfter, [&] { return keyed(after), true; });
        }
        QCOMPARE(store.load(shown)->teams[1].actions, after);
        QCOMPARE(store.load(twin)->teams[1].actions, after);
        QCOMPARE(store.load(bare)->teams[1].actions, after);
        const double b1 = median(baseBefore), b2 = median(baseAfter);
        qInfo(
            "%-6s keyed write of the same bytes %.3f / %.3f ms; undo's write %.3f ms (ratio %.2f), redo's %.3f ms "
            "(ratio %.2f); the coach's undo with the card shown again %.3f ms (ratio %.2f), redo %.3f ms (ratio %.2f)",
            qPrintable(place), b1, b2, median(writeUndos), median(writeUndos) / b1, median(writeRedos),
            median(writeRedos) / b2, median(undos), median(undos) / b1, median(redos), median(redos) / b2);
    }

    void openWithLog(const QString &place)
    {
        GameStore store(*gData);
        const QString plain = makeGame(store);
        const QString logged = makeGame(store);
        {
            ScoreGrid card;
            GameDay game(*gData, card);
            QVERIFY(game.open(logged));
            for (int i = 0; i < 500; ++i) {
                card.setCellText(i % 25, 22, i % 2 ? QStringLiteral("HR") : QStringLiteral("B2"));
                QVERIFY(game.commitClick(QStringLiteral("Change %1").arg(i)));
            }
            // The twin gets the same strings and no log.
            GameRecord same = game.record();
            same.schedID = plain;
            QCOMPARE(store.save(same), GameStore::SaveResult::Saved);
        }
        QCOMPARE(gData->scalar("SELECT COUNT(*) FROM GameChanges WHERE gameID = ?", {logged}).toInt(), 500);
        QCOMPARE(gData->scalar("SELECT COUNT(*) FROM GameChanges WHERE gameID = ?", {plain}).toInt(), 0);

        auto open = [&](const QString &schedID, bool expectUndo) {
            ScoreGrid card;
            GameDay game(*gData, card);
            QElapsedTimer timer;
            timer.start();
            const bool opened = game.open(schedID);
            const QString texts = game.undoText() + game.redoText();
            const qint64 took = timer.nsecsElapsed();
            if (!opened || texts.isEmpty() || game.canUndo() != expectUndo)
                qFatal("the game did not open as expected");
            return took;
        };
        const int rounds = 200;
        QList<qint64> withLog, without;
        for (int i = 0; i < rounds; ++i) {
            // Alternating which goes first, so neither has the warmer cache.
            if (i % 2) {
                without.append(open(plain, false));
                withLog.append(open(logged, true));
            } else {
                withLog.append(open(logged, true));
                without.append(open(plain, false));
            }
        }
        const double a = median(withLog), b = median(without);
        qInfo("%-6s opening with 500 logged changes %.3f ms, with none %.3f ms: ratio %.2f", qPrintable(place), a, b,
              a / b);
    }

    void measure(const QString &place, const QString &folder)
    {
        fakes::FakePlatform fake;
        QTemporaryDir home(folder + QStringLiteral("/bench-undo-XXXXXX"));
        QVERIFY(home.isValid());
        App app(home.path());
        QCOMPARE(app.Event_Open(), App::OpenResult::Ok);
        gPrefs->prHomeTeam = QStringLiteral("1");
        undoAndRedo(place);
        openWithLog(place);
    }

private Q_SLOTS:
    void undoRedoAndOpening()
    {
        const QString disk = qEnvironmentVariableIsEmpty("TL_BENCH_DIR") ? QDir::currentPath()
                                                                         : qEnvironmentVariable("TL_BENCH_DIR");
        measure(QStringLiteral("disk"), disk);
        measure(QStringLiteral("memory"), QStringLiteral("/dev/shm"));
    }
};

QTEST_GUILESS_MAIN(BenchUndo)
#include "bench_undo.moc"
