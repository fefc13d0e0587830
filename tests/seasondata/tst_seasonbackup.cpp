// Backups as files: the date folder's name, a copy taken while the season
// is written, and one copy per season and day.

#include "SeasonFixture.h"
#include "seasondata/SeasonBackup.h"
#include "seasondata/SeasonTransfer.h"

#include <SQLiteCpp/Database.h>

#include <QFileInfo>
#include <QTest>

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
