// How the schedule keeps up with a long season: reading and filtering the
// list, writing the order of every event when the screen closes, and
// dropping rows that can't be read.

#include "app/App.h"
#include "app/globals.h"
#include "fakes/FakePlatform.h"
#include "schedule/ScheduleList.h"
#include "schedule/ScheduleStore.h"

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>
#include <SQLiteCpp/Transaction.h>

#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>

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
        QBENCHMARK {
            list.loadScheduleLB(ScheduleStore::kShowAll);
        }
        QCOMPARE(list.rows().size(), 2000);
    }

    void loadFiltered()
    {
        ScheduleList list(*gData);
        QBENCHMARK {
            list.loadScheduleLB(QStringLiteral("Game"));
        }
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
        QBENCHMARK {
            QVERIFY(list.saveLBandPos());
        }
    }

    // Loading a list with 3,000 rows whose date can't be read, which go in
    // one step, against the leanest way to do the same: plain SQLite
    // deleting those rows in one transaction. Rounds alternate, so both
    // see the same machine load.
    void dropUnreadableRows()
    {
        const int bad = 3000;
        const auto addBad = [&] {
            QVERIFY(gData->runInTransaction([&] {
                for (int i = 0; i < bad; ++i)
                    gData->exec(QStringLiteral(
                        "INSERT INTO Schedule (SchedDate, Event, position) VALUES ('soon', 'Meeting', 9)"));
            }));
        };
        QList<double> program, plain;
        for (int round = 0; round < 5; ++round) {
            addBad();
            ScheduleList list(*gData);
            QElapsedTimer t;
            t.start();
            list.loadScheduleLB(ScheduleStore::kShowAll);
            program.append(t.nsecsElapsed() / 1e6);
            QCOMPARE(gData->scalar(QStringLiteral("SELECT COUNT(*) FROM Schedule")).toInt(), 2000);

            addBad();
            t.restart();
            {
                SQLite::Database &db = *gData->tlynData;
                SQLite::Statement read(db, "SELECT eventID, SchedDate FROM Schedule ORDER BY position, eventID");
                QList<qint64> ids;
                while (read.executeStep()) {
                    if (!QDate::fromString(QString::fromUtf8(read.getColumn(1).getText()), Qt::ISODate).isValid())
                        ids.append(read.getColumn(0).getInt64());
                }
                SQLite::Transaction transaction(db);
                SQLite::Statement drop(db, "DELETE FROM Schedule WHERE eventID = ?");
                for (qint64 id : ids) {
                    drop.reset();
                    drop.bind(1, static_cast<int64_t>(id));
                    drop.exec();
                }
                transaction.commit();
            }
            plain.append(t.nsecsElapsed() / 1e6);
        }
        // For scale, once: 300 of the deletes committed one row at a time
        // (every commit waits for the disk), times ten.
        addBad();
        QElapsedTimer t;
        t.start();
        for (const Record &r :
             gData->select(QStringLiteral("SELECT eventID FROM Schedule WHERE SchedDate = 'soon' LIMIT 300")))
            gData->exec(QStringLiteral("DELETE FROM Schedule WHERE eventID = ?"),
                        {r.integer(QStringLiteral("eventID"))});
        const double perRow = 10 * t.nsecsElapsed() / 1e6;
        gData->exec(QStringLiteral("DELETE FROM Schedule WHERE SchedDate = 'soon'"));
        std::sort(program.begin(), program.end());
        std::sort(plain.begin(), plain.end());
        const double p = program.at(2), b = plain.at(2);
        qInfo("plain SQLite, 3,000 deletes committed one at a time (300 x 10):  %.1f ms", perRow);
        qInfo("plain SQLite, read 5,000 rows and delete 3,000 in one transaction: %.1f ms", b);
        qInfo("ScheduleList::loadScheduleLB with 3,000 unreadable rows:            %.1f ms  (%.2fx)", p, p / b);
    }
};

QTEST_GUILESS_MAIN(BenchSchedule)
#include "bench_schedule.moc"
