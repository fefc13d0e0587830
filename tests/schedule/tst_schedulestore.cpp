// The schedule's storage rules the window can't reach: a quote in a filter
// and a tie in order, deleting with a game's or practice's data, the refusal
// for a recorded game, and steps that must happen whole.

#include "ScheduleTestSupport.h"
#include "schedule/ScheduleList.h"
#include "schedule/ScheduleStore.h"

#include <QTest>

using scheduletest::makeEvent;

class TestScheduleStore : public QObject
{
    Q_OBJECT

    static QList<qint64> ids(const QList<ScheduleEntry> &entries)
    {
        QList<qint64> out;
        for (const ScheduleEntry &e : entries)
            out.append(e.eventID);
        return out;
    }
    static qint64 count(const QString &table)
    {
        return gData->scalar(QStringLiteral("SELECT COUNT(*) FROM ") + table).toLongLong();
    }
    static QMap<qint64, qint64> positions()
    {
        QMap<qint64, qint64> map;
        for (const Record &r : gData->select(QStringLiteral("SELECT eventID, position FROM Schedule")))
            map.insert(r.integer(QStringLiteral("eventID")), r.integer(QStringLiteral("position")));
        return map;
    }

private Q_SLOTS:
    // Filters and reordering are driven through the schedule window
    // (tst_schedulescrn); a quote in a filter and a tie are met here.
    void filterAndOrder()
    {
        scheduletest::Season s;
        ScheduleStore store(*gData);
        const qint64 g1 = store.insert(makeEvent("Game", QDate(2026, 4, 1), "Bears", 4, 1));
        const qint64 p1 = store.insert(makeEvent("Practice", QDate(2026, 4, 2)));
        QVERIFY(store.list("O'Brien's").isEmpty()); // a quote in a filter is only text
        QVERIFY(store.savePositions({p1, g1}));
        gData->exec("UPDATE Schedule SET position = 0 WHERE eventID = ?", {g1});
        QCOMPARE(ids(store.list("Show All")), (QList<qint64>{g1, p1})); // a tie keeps the older first
    }

    void removing_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<int>("gamesRow"); // -1 none, else its recorded flag
        QTest::addColumn<bool>("removed");
        QTest::newRow("unopened game") << "Game" << -1 << true;
        QTest::newRow("opened game") << "Game" << 0 << true;
        QTest::newRow("recorded game") << "Game" << 1 << false;
        QTest::newRow("practice") << "Practice" << -1 << true;
        QTest::newRow("meeting") << "Meeting" << -1 << true;
        QTest::newRow("recorded game later made a scrimmage") << "Scrimmage" << 1 << false;
    }
    void removing()
    {
        QFETCH(QString, type);
        QFETCH(int, gamesRow);
        QFETCH(bool, removed);
        scheduletest::Season s;
        ScheduleStore store(*gData);
        const qint64 other = store.insert(makeEvent("Practice", QDate(2026, 5, 1)));
        const qint64 id = store.insert(makeEvent(type, QDate(2026, 5, 2), "Bears", 4, type == u"Game" ? 1 : 0));
        if (gamesRow >= 0)
            gData->insert("Games", {{"schedID", QString::number(id)}, {"recorded", gamesRow}});
        gData->insert("Games", {{"schedID", QString::number(other)}, {"recorded", 1}});
        gData->insert("Drills", {{"scheduleID", QString::number(id)}, {"drill", "Long Toss"}});
        gData->insert("Drills", {{"scheduleID", QString::number(other)}, {"drill", "Bunting"}});

        const auto result = store.remove(id, type);
        QCOMPARE(result, removed ? ScheduleStore::RemoveResult::Removed : ScheduleStore::RemoveResult::Recorded);
        QCOMPARE(bool(store.find(id)), !removed);
        // A game takes its Games row, a practice its drills; nothing else goes.
        const qint64 ownGames =
            gData->scalar("SELECT COUNT(*) FROM Games WHERE schedID = ?", {QString::number(id)}).toLongLong();
        const qint64 ownDrills =
            gData->scalar("SELECT COUNT(*) FROM Drills WHERE scheduleID = ?", {QString::number(id)}).toLongLong();
        QCOMPARE(ownGames, qint64(gamesRow >= 0 && !(removed && type == u"Game") ? 1 : 0));
        QCOMPARE(ownDrills, qint64(removed && type == u"Practice" ? 0 : 1));
        QVERIFY(store.find(other));
        QCOMPARE(count("Drills"), ownDrills + 1);
        QVERIFY(s.fake.messages.shown.isEmpty());
    }

    void removalHappensWholeOrNotAtAll()
    {
        scheduletest::Season s;
        ScheduleStore store(*gData);
        const qint64 id = store.insert(makeEvent("Game", QDate(2026, 5, 2), "Bears", 4, 1));
        gData->insert("Games", {{"schedID", QString::number(id)}, {"recorded", 0}});
        QVERIFY(gData->exec("CREATE TRIGGER keepGames BEFORE DELETE ON Games BEGIN SELECT RAISE(FAIL, 'locked'); END"));
        QCOMPARE(store.remove(id, "Game"), ScheduleStore::RemoveResult::Failed);
        QVERIFY(store.find(id)); // the Schedule row came back with the rollback
        QCOMPARE(count("Games"), 1);
    }

    void positionsAreWrittenWhole()
    {
        scheduletest::Season s;
        ScheduleStore store(*gData);
        const qint64 a = store.insert(makeEvent("Game", QDate(2026, 5, 2), "Bears", 4, 1));
        const qint64 b = store.insert(makeEvent("Practice", QDate(2026, 5, 3)));
        QVERIFY(gData->exec("CREATE TRIGGER stuck BEFORE UPDATE ON Schedule WHEN NEW.eventID = " + QString::number(b) +
                            " BEGIN SELECT RAISE(FAIL, 'stuck'); END"));
        QVERIFY(!store.savePositions({b, a}));
        QCOMPARE(positions(), (QMap<qint64, qint64>{{a, 0}, {b, 1}}));
    }

    void unreadableRowsAreReportedOnceAndDropped()
    {
        scheduletest::Season s;
        ScheduleStore store(*gData);
        const qint64 good = store.insert(makeEvent("Game", QDate(2026, 4, 1), "Bears", 4, 1));
        const qint64 old = store.insert(makeEvent("Practice", QDate(2026, 4, 2)));
        gData->exec("UPDATE Schedule SET SchedDate = '2026-04-02 00:00:00' WHERE eventID = ?", {old});
        for (const char *bad : {"soon", ""})
            gData->insert("Schedule", {{"SchedDate", bad}, {"Event", "Meeting"}, {"position", 9}});
        ScheduleList list(*gData);
        list.loadScheduleLB("Show All");
        QCOMPARE(ids(list.rows()), (QList<qint64>{good, old}));
        QCOMPARE(s.fake.messages.texts(), QStringList{"There was an error reading the schedules."});
        QCOMPARE(s.fake.messages.shown.first().explanation, QStringLiteral("Some data may need to be recreated."));
        QCOMPARE(count("Schedule"), 2);

        // The unreadable rows go in one step: when one can't go, none does.
        for (const char *bad : {"soon", "later"})
            gData->insert("Schedule", {{"SchedDate", bad}, {"Event", "Meeting"}, {"position", 9}});
        gData->exec("CREATE TEMP TRIGGER keep BEFORE DELETE ON Schedule WHEN old.SchedDate = 'later' "
                    "BEGIN SELECT RAISE(ABORT, 'kept'); END");
        list.loadScheduleLB("Show All");
        QCOMPARE(ids(list.rows()), (QList<qint64>{good, old}));
        QCOMPARE(count("Schedule"), 4);
    }
};

QTEST_MAIN(TestScheduleStore)
#include "tst_schedulestore.moc"
