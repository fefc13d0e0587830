// How the schedule keeps up with a long season: reading and filtering the
// list, and writing the order of every event when the screen closes.

#include "app/App.h"
#include "app/globals.h"
#include "fakes/FakePlatform.h"
#include "schedule/ScheduleList.h"
#include "schedule/ScheduleStore.h"

#include <QTemporaryDir>
#include <QTest>

class BenchSchedule : public QObject
{
    Q_OBJECT

    fakes::FakePlatform m_fake;
    QTemporaryDir m_home;
    std::unique_ptr<App> m_app;

private Q_SLOTS:
    void initTestCase()
    {
        m_app = std::make_unique<App>(m_home.path());
        QCOMPARE(m_app->Event_Open(), App::OpenResult::Ok);
        // Two thousand events: far more than any season holds.
        ScheduleStore store(*gData);
        const QStringList types = {"Game", "Practice", "Scrimmage", "Meeting"};
        QVERIFY(gData->runInTransaction([&] {
            for (int i = 0; i < 2000; ++i) {
                eventClass e;
                e.mDate = QDate(2026, 3, 1).addDays(i % 200);
                e.busTime = QStringLiteral("---");
                e.startTime = QStringLiteral("4:30 PM");
                e.eventType = types.at(i % types.size());
                e.opponent = QStringLiteral("Bears");
                e.oppID = QStringLiteral("4");
                e.location = QStringLiteral("Riverside");
                e.isHome = e.eventType == u"Game" ? 1 : 0;
                store.insert(e);
            }
        }));
    }

    void loadAll()
    {
        ScheduleList list(*gData);
        QBENCHMARK { list.loadScheduleLB(ScheduleStore::kShowAll); }
        QCOMPARE(list.rows().size(), 2000);
    }

    void loadFiltered()
    {
        ScheduleList list(*gData);
        QBENCHMARK { list.loadScheduleLB(QStringLiteral("Game")); }
        QCOMPARE(list.rows().size(), 500);
    }

    void listTexts()
    {
        ScheduleList list(*gData);
        list.loadScheduleLB(ScheduleStore::kShowAll);
        QBENCHMARK {
            for (const ScheduleEntry &entry : list.rows())
                ScheduleList::cells(entry);
        }
    }

    void saveOrderOnClose()
    {
        ScheduleList list(*gData);
        list.loadScheduleLB(ScheduleStore::kShowAll);
        QBENCHMARK { QVERIFY(list.saveLBandPos()); }
    }
};

QTEST_GUILESS_MAIN(BenchSchedule)
#include "bench_schedule.moc"
