// What a safe backup costs: the stepped copy with its integrity check and
// rename, against the leanest copy SQLite offers (one backup step of every
// page into a file, no check), interleaved on the same season of about
// 200 MB. Also the longest single step, which is how long the window waits
// at most (the check runs on a thread of its own in the dialog), and the
// same for a restore of that backup into the open season, stepped as the
// dialog steps it, against one backup step of every page.

#include "app/App.h"
#include "app/globals.h"
#include "fakes/FakePlatform.h"
#include "seasondata/SeasonBackup.h"

#include <SQLiteCpp/Database.h>

#include <QElapsedTimer>
#include <QFile>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>

#include <sqlite3.h>

class BenchSeasonData : public QObject
{
    Q_OBJECT

    fakes::FakePlatform m_fake;
    QTemporaryDir m_home;
    std::unique_ptr<App> m_app;

    static double plainCopy(sqlite3 *source, const QString &file)
    {
        QElapsedTimer t;
        t.start();
        QFile::remove(file);
        sqlite3 *dest = nullptr;
        sqlite3_open(file.toUtf8().constData(), &dest);
        sqlite3_backup *b = sqlite3_backup_init(dest, "main", source, "main");
        sqlite3_backup_step(b, -1);
        sqlite3_backup_finish(b);
        sqlite3_close(dest);
        return t.nsecsElapsed() / 1e6;
    }

private Q_SLOTS:
    void initTestCase()
    {
        m_app = std::make_unique<App>(m_home.path());
        QCOMPARE(m_app->Event_Open(), App::OpenResult::Ok);
        // A big season: 40 teams of 25 players, each with a 200 KB photo,
        // and two thousand schedule rows: about 200 MB.
        QByteArray photo(200 * 1024, Qt::Uninitialized);
        for (char &c : photo)
            c = char(QRandomGenerator::global()->generate());
        QVERIFY(gData->runInTransaction([&] {
            for (int t = 0; t < 40; ++t) {
                const qint64 team = gData->insert(QStringLiteral("Teams"), {{QStringLiteral("TeamName"), t}});
                for (int p = 0; p < 25; ++p)
                    gData->insert(QStringLiteral("Players"), {{QStringLiteral("TeamNum"), team},
                                                              {QStringLiteral("Last"), p},
                                                              {QStringLiteral("PlayerPic"), photo}});
            }
            for (int e = 0; e < 2000; ++e)
                gData->insert(QStringLiteral("Schedule"), {{QStringLiteral("Event"), QStringLiteral("Game")}});
        }));
    }

    void backupAgainstPlainCopy()
    {
        sqlite3 *source = gData->tlynData->getHandle();
        const QString safeFile = m_home.filePath(QStringLiteral("safe.sqlite"));
        const QString plainFile = m_home.filePath(QStringLiteral("plain.sqlite"));
        double safe = 0, plain = 0, longestStep = 0, checking = 0;
        const int rounds = 3;
        for (int round = 0; round < rounds; ++round) {
            plain += plainCopy(source, plainFile);
            QElapsedTimer t;
            t.start();
            seasondata::BackupJob job(source, safeFile);
            QVERIFY(job.start());
            for (;;) {
                QElapsedTimer step;
                step.start();
                const bool more = job.step(256);
                longestStep = std::max(longestStep, step.nsecsElapsed() / 1e6);
                if (!more)
                    break;
            }
            QVERIFY(job.endCopy());
            QElapsedTimer check;
            check.start();
            QVERIFY(job.checkAndPlace());
            checking += check.nsecsElapsed() / 1e6;
            safe += t.nsecsElapsed() / 1e6;
        }
        // A restore of that copy into the open season, stepped as the dialog
        // steps it, against one step of every page, interleaved.
        double longestRestoreStep = 0, restoring = 0, plainRestoring = 0, lastStep = 0, releasing = 0;
        int restoreSteps = 0, stepsOver50 = 0;
        for (int round = 0; round < rounds; ++round) {
            QElapsedTimer restoreTime;
            restoreTime.start();
            auto restore = seasondata::BackupJob::restoreInto(source, safeFile);
            QVERIFY(restore->start());
            for (;;) {
                QElapsedTimer step;
                step.start();
                const bool more = restore->step(256);
                const double ms = step.nsecsElapsed() / 1e6;
                longestRestoreStep = std::max(longestRestoreStep, ms);
                ++restoreSteps;
                stepsOver50 += ms > 50 ? 1 : 0;
                if (!more) {
                    lastStep = std::max(lastStep, ms);
                    break;
                }
            }
            // The end of the copy on the window's thread; the kept journal is
            // deleted on a thread of its own, as the dialog does.
            QElapsedTimer finish;
            finish.start();
            QVERIFY(restore->endCopy());
            const double ending = finish.nsecsElapsed() / 1e6;
            longestRestoreStep = std::max(longestRestoreStep, ending);
            lastStep = std::max(lastStep, ending);
            QElapsedTimer release;
            release.start();
            QVERIFY(restore->checkAndPlace());
            releasing += release.nsecsElapsed() / 1e6;
            restoring += restoreTime.nsecsElapsed() / 1e6;

            QElapsedTimer plainTime;
            plainTime.start();
            sqlite3 *backup = nullptr;
            sqlite3_open_v2(safeFile.toUtf8().constData(), &backup, SQLITE_OPEN_READONLY, nullptr);
            sqlite3_backup *b = sqlite3_backup_init(source, "main", backup, "main");
            sqlite3_backup_step(b, -1);
            sqlite3_backup_finish(b);
            sqlite3_close(backup);
            plainRestoring += plainTime.nsecsElapsed() / 1e6;
        }
        qInfo("restore %.1f ms, one plain backup step into the season %.1f ms, ratio %.2f; "
              "longest step on the window's thread %.1f ms (goal 50; the last, which commits, and the end of the "
              "copy %.1f ms), %d of %d steps over 50 ms; deleting the kept journal (on its own thread) %.1f ms",
              restoring / rounds, plainRestoring / rounds, restoring / plainRestoring, longestRestoreStep, lastStep,
              stepsOver50, restoreSteps, releasing / rounds);
        qInfo("season %.1f MB; plain copy %.1f ms, stepped copy with check and rename %.1f ms, ratio %.2f; "
              "longest step on the window's thread %.1f ms; the check (on its own thread) %.1f ms",
              QFile(safeFile).size() / 1048576.0, plain / rounds, safe / rounds, safe / plain, longestStep,
              checking / rounds);
    }
};

QTEST_GUILESS_MAIN(BenchSeasonData)
#include "bench_seasondata.moc"
