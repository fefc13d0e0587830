// Backups as files: the date folder's name, a copy taken while the season
// is written, and one copy per season and day.

#include "SeasonFixture.h"
#include "seasondata/SeasonBackup.h"
#include "seasondata/SeasonTransfer.h"

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>

#include <QFileInfo>
#include <QTest>

#include <atomic>
#include <chrono>
#include <thread>

using namespace seasondata;

class TestSeasonBackup : public QObject
{
    Q_OBJECT

    static QString integrity(const QString &file)
    {
        SQLite::Database db(file.toStdString(), SQLite::OPEN_READONLY);
        return QString::fromStdString(db.execAndGet("PRAGMA integrity_check").getString());
    }
    static int rows(const QString &file, const char *table)
    {
        SQLite::Database db(file.toStdString(), SQLite::OPEN_READONLY);
        return db.execAndGet(std::string("SELECT COUNT(*) FROM ") + table).getInt();
    }

private Q_SLOTS:
    void dateFolderName_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("expected");
        QTest::newRow("slashes") << "en_US"
                                 << "4_15_26";
        QTest::newRow("slashes, four-digit year") << "en_GB"
                                                  << "15_04_2026";
        QTest::newRow("dots") << "de_DE"
                              << "15.04.26";
        QTest::newRow("dashes") << "sv_SE"
                                << "2026-04-15";
    }
    void dateFolderName()
    {
        QFETCH(QString, locale);
        QFETCH(QString, expected);
        QCOMPARE(seasondata::dateFolderName(QDate(2026, 4, 15), QLocale(locale)), expected);
    }

    void copyTakenWhileTheSeasonIsWritten()
    {
        SeasonFixture f;
        const QString blob(2000, u'x');
        gData->runInTransaction([&] {
            for (int i = 0; i < 400; ++i)
                gData->insert(QStringLiteral("Players"), {{QStringLiteral("Last"), blob}});
        });
        const QString target = f.home.filePath(QStringLiteral("copy.sqlite"));
        BackupJob job(gData->tlynData->getHandle(), target);
        QVERIFY(job.start());
        int steps = 0;
        // A page at a time, a write between every step, as when the coach
        // goes on working while the dialog copies.
        while (job.step(8)) {
            ++steps;
            gData->insert(QStringLiteral("Players"), {{QStringLiteral("Last"), QStringLiteral("late %1").arg(steps)}});
            QVERIFY(job.progress() >= 0 && job.progress() <= 1);
        }
        QVERIFY2(steps > 10, "the copy must take several steps for the test to mean anything");
        QVERIFY(!QFileInfo::exists(target)); // nothing in place before the check
        QVERIFY(job.finish());
        QCOMPARE(integrity(target), QStringLiteral("ok"));
        QCOMPARE(rows(target, "Players"), f.count(QStringLiteral("Players")));
        QVERIFY(!QFileInfo::exists(job.workFile()));
    }

    // A copy that fails its check, and a second backup into a file that
    // one is being made into, leave the day's earlier copy as it was.
    void earlierCopyStandsUnlessTheNewOneIsSound_data()
    {
        QTest::addColumn<QString>("trouble");
        QTest::newRow("copy emptied before its check") << "emptied";
        QTest::newRow("a second backup while one runs") << "twice";
    }
    void earlierCopyStandsUnlessTheNewOneIsSound()
    {
        QFETCH(QString, trouble);
        SeasonFixture f;
        f.addTeam(QStringLiteral("Lincoln"), QStringLiteral("Lions"));
        const QString target = f.home.filePath(QStringLiteral("copy.sqlite"));
        QVERIFY(BackupJob(gData->tlynData->getHandle(), target).runToEnd());
        QFile earlier(target);
        QVERIFY(earlier.open(QIODevice::ReadOnly));
        const QByteArray before = earlier.readAll();
        earlier.close();
        f.addTeam(QStringLiteral("Central"), QStringLiteral("Cubs"));

        BackupJob job(gData->tlynData->getHandle(), target);
        QVERIFY(job.start());
        while (job.step()) {}
        QVERIFY(job.endCopy());
        if (trouble == u"twice") {
            BackupJob second(gData->tlynData->getHandle(), target);
            QVERIFY(!second.start());
            QCOMPARE(second.errorCode(), 5); // busy: one backup at a time
            QVERIFY(QFileInfo::exists(job.workFile()));
            QVERIFY(job.checkAndPlace());
            QCOMPARE(rows(target, "Teams"), 2);
            return;
        }
        // What another program (or a second copy into the same file) could
        // do to the working file between the copy and its check.
        QFile work(job.workFile());
        QVERIFY(work.open(QIODevice::ReadWrite));
        QVERIFY(work.resize(0));
        work.close();
        QVERIFY(!job.checkAndPlace());
        QVERIFY(job.errorCode() != 0);
        QVERIFY(earlier.open(QIODevice::ReadOnly));
        QCOMPARE(earlier.readAll(), before);
        QVERIFY(!QFileInfo::exists(job.workFile()));
    }

    // Many backups while another connection keeps committing: each one is a
    // whole, sound database, never an empty file.
    void backupsWhileAnotherConnectionWrites()
    {
        SeasonFixture f;
        f.addTeam(QStringLiteral("Lincoln"), QStringLiteral("Lions"));
        std::atomic<bool> stop = false;
        std::atomic<int> commits = 0;
        std::thread writer([&, file = gData->filePath().toStdString()] {
            const std::string blob(300, 'w');
            // Its own connection, as another program has; commits unsynced,
            // so that many fall between the backups.
            SQLite::Database other(file, SQLite::OPEN_READWRITE);
            other.setBusyTimeout(5000);
            other.exec("PRAGMA synchronous=OFF");
            while (!stop) {
                try {
                    SQLite::Statement insert(other, "INSERT INTO Coaches (Last) VALUES (?)");
                    insert.bind(1, blob);
                    insert.exec();
                    ++commits;
                    if (commits % 20 == 0)
                        other.exec("DELETE FROM Coaches WHERE rowid % 3 = 0");
                } catch (const SQLite::Exception &) {
                    // A backup holding its read lock past the timeout: try again.
                }
                std::this_thread::sleep_for(std::chrono::milliseconds(1));
            }
        });
        const QString target = f.home.filePath(QStringLiteral("soak.sqlite"));
        for (int i = 0; i < 200; ++i) {
            BackupJob job(gData->tlynData->getHandle(), target);
            QVERIFY2(job.runToEnd(), qPrintable(job.errorMessage()));
            SQLite::Database copy(target.toStdString(), SQLite::OPEN_READONLY);
            const int pages = copy.execAndGet("PRAGMA page_count").getInt();
            const int pageSize = copy.execAndGet("PRAGMA page_size").getInt();
            QVERIFY(pages > 0);
            QCOMPARE(QFileInfo(target).size(), qint64(pages) * pageSize);
            QCOMPARE(QString::fromStdString(copy.execAndGet("PRAGMA integrity_check").getString()),
                     QStringLiteral("ok"));
            QCOMPARE(copy.execAndGet("SELECT COUNT(*) FROM Teams").getInt(), 1);
        }
        stop = true;
        writer.join();
        QVERIFY2(commits > 50, "the writer must have written between the backups");
    }

    void oneCopyPerSeasonAndDay()
    {
        SeasonFixture f;
        QDir().mkpath(f.home.filePath(QStringLiteral("drive")));
        f.fake.files.answers.enqueue(f.home.filePath(QStringLiteral("drive")));
        const QDate today = f.fake.clock.time.date();
        f.addTeam(QStringLiteral("Lincoln"), QStringLiteral("Lions"));

        QString target;
        const auto backUp = [&] {
            const BackupPlan plan = planBackup(*gPrefs, today);
            QCOMPARE(plan.kind, BackupPlan::Ready);
            BackupJob job(gData->tlynData->getHandle(), plan.target);
            QVERIFY(job.runToEnd());
            target = plan.target;
        };
        backUp();
        const QString first = target;
        f.addTeam(QStringLiteral("Central"), QStringLiteral("Cubs"));
        backUp();
        const QString second = target;
        QCOMPARE(second, first);
        QCOMPARE(rows(second, "Teams"), 2);

        const QString firstSeason = gPrefs->prSeason;
        QVERIFY(SeasonTransfer::createNewDB(QStringLiteral("Fall Ball")));
        backUp();
        const QDir day = QFileInfo(first).dir();
        QCOMPARE(day.dirName(), seasondata::dateFolderName(today));
        QCOMPARE(day.entryList(QDir::Files, QDir::Name),
                 QStringList(
                     {myDB::getCurDBFileName(firstSeason), myDB::getCurDBFileName(QStringLiteral("Fall Ball"))}));
    }
};

QTEST_GUILESS_MAIN(TestSeasonBackup)
#include "tst_seasonbackup.moc"
