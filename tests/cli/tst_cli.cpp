// tallyline-cli run as a process on the sample season: each case file under
// tests/data/cli holds a command line, the exit status and the expected
// standard output; the damaged season, the backup under writes and the
// program's lock are tested on their own.

#include "SampleSeason.h"
#include "fakes/Golden.h"
#include "reports/ReportsFixture.h"
#include "schedule/CalendarFile.h"
#include "schedule/ScheduleStore.h"
#include "seasondata/SeasonBackup.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QLockFile>
#include <QProcess>
#include <QTest>

namespace {

struct Run
{
    int status = -1;
    QByteArray out, err;
};

Run runCli(const QStringList &args)
{
    QProcess process;
    process.start(QStringLiteral(TL_CLI_BINARY), args);
    Run run;
    if (!process.waitForFinished(60000))
        return run;
    run.status = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    run.out = process.readAllStandardOutput();
    run.err = process.readAllStandardError();
    return run;
}

QString casesFolder()
{
    return qEnvironmentVariable("TL_TEST_DATA") + QStringLiteral("/cli");
}

} // namespace

class tst_cli : public QObject
{
    Q_OBJECT

    // One sample season for the whole run; the cases only read it.
    std::unique_ptr<ReportsFixture> m_season;
    QString m_folder;

private Q_SLOTS:
    void initTestCase()
    {
        m_season = std::make_unique<ReportsFixture>();
        QCOMPARE(sample::buildSeason(*m_season->db, *m_season->prefs).size(), 3);
        // The home team and the current season, as the program would keep them.
        m_season->prefs->writePrefs();
        m_folder = m_season->prefs->strdDataLoc;
    }

    void cleanupTestCase() { m_season.reset(); }

    // A case file: "args: <words>", "exit: <status>", "---", then the
    // standard output expected. --data-dir comes after the verb. With
    // TL_UPDATE_GOLDEN=1 the output of the run is written into the file.
    void golden_data()
    {
        QTest::addColumn<QString>("file");
        const QStringList cases = QDir(casesFolder()).entryList({QStringLiteral("*.case")}, QDir::Files, QDir::Name);
        QVERIFY(!cases.isEmpty());
        for (const QString &name : cases)
            QTest::newRow(qPrintable(name)) << QDir(casesFolder()).filePath(name);
    }
    void golden()
    {
        QFETCH(QString, file);
        QFile caseFile(file);
        QVERIFY(caseFile.open(QIODevice::ReadOnly));
        const QByteArray text = caseFile.readAll();
        caseFile.close();
        const qsizetype split = text.indexOf("\n---\n");
        QVERIFY(split > 0);
        const QList<QByteArray> head = text.left(split).split('\n');
        QVERIFY(head.size() == 2 && head[0].startsWith("args: ") && head[1].startsWith("exit: "));
        QStringList args = QString::fromUtf8(head[0].mid(6)).split(u' ', Qt::SkipEmptyParts);
        args.insert(args.isEmpty() ? 0 : 1, QStringLiteral("--data-dir"));
        args.insert(2, m_folder);
        const int status = head[1].mid(6).toInt();

        const Run run = runCli(args);
        TL_COMPARE_GOLDEN(QStringLiteral("cli/") + QFileInfo(file).fileName(), text.left(split + 5) + run.out);
        QCOMPARE(run.status, status);
        // Nothing but the result on standard output; a failure says why on
        // standard error.
        QCOMPARE(run.err.isEmpty(), status == 0);
        // JSON that a program can read: an array of objects.
        if (args.contains(QStringLiteral("json"))) {
            QJsonParseError error;
            const QJsonDocument json = QJsonDocument::fromJson(run.out, &error);
            QCOMPARE(error.error, QJsonParseError::NoError);
            QVERIFY(json.isArray() && !json.array().isEmpty() && json.array().first().isObject());
        }
    }

    // Every verb explains itself on standard output, naming itself.
    void help_data()
    {
        QTest::addColumn<QString>("verb");
        for (const char *verb : {"report", "seasons", "check", "backup", "export", "box-score"})
            QTest::newRow(verb) << QString::fromLatin1(verb);
    }
    void help()
    {
        QFETCH(QString, verb);
        const Run run = runCli({verb, QStringLiteral("--help")});
        QCOMPARE(run.status, 0);
        QVERIFY(run.err.isEmpty());
        const QByteArray usage = "Usage: tallyline-cli " + verb.toUtf8() + ' ';
        QVERIFY2(run.out.startsWith(usage), run.out.constData());
        QVERIFY(run.out.contains("--help"));
    }

    // A span holding every game gives the season's own totals: the games
    // counted again one by one come to what recording stored.
    void spanOfWholeSeason_data()
    {
        QTest::addColumn<QStringList>("report");
        QTest::newRow("batting") << QStringList{QStringLiteral("batting")};
        QTest::newRow("batting more") << QStringList{QStringLiteral("batting"), QStringLiteral("--more")};
        QTest::newRow("fielding") << QStringList{QStringLiteral("fielding")};
        QTest::newRow("pitching") << QStringList{QStringLiteral("pitching")};
        QTest::newRow("pitching league") << QStringList{QStringLiteral("pitching"), QStringLiteral("--league"),
                                                        QStringLiteral("OCC")};
    }
    void spanOfWholeSeason()
    {
        QFETCH(QStringList, report);
        const QStringList args = QStringList{QStringLiteral("report")} + report +
                                 QStringList{QStringLiteral("--data-dir"), m_folder, QStringLiteral("--format"),
                                             QStringLiteral("csv")};
        const Run season = runCli(args);
        const Run span = runCli(args + QStringList{QStringLiteral("--from"), QStringLiteral("2026-04-07"),
                                                   QStringLiteral("--to"), QStringLiteral("2026-04-14")});
        QCOMPARE(season.status, 0);
        QCOMPARE(span.status, 0);
        QVERIFY(season.out.count('\n') > 2);
        // Rows come in the order each player was first counted: the same
        // lines, perhaps in another order.
        QList<QByteArray> seasonLines = season.out.split('\n');
        QList<QByteArray> spanLines = span.out.split('\n');
        std::sort(seasonLines.begin(), seasonLines.end());
        std::sort(spanLines.begin(), spanLines.end());
        QCOMPARE(spanLines, seasonLines);
    }

    // Another folder is only read: no preference file is made there, a
    // season that isn't there is not made either, and its backup goes
    // where it is told.
    void otherFolderIsOnlyRead()
    {
        QTemporaryDir dir;
        const QString season = QDir(dir.path()).filePath(myDB::getCurDBFileName(QStringLiteral("2026")));
        QVERIFY(QFile::copy(QDir(m_folder).filePath(myDB::getCurDBFileName(m_season->prefs->prSeason)), season));
        for (const QStringList &args : {QStringList{QStringLiteral("report"), QStringLiteral("standings"),
                                                    QStringLiteral("--team"), QStringLiteral("Celtics")},
                                        QStringList{QStringLiteral("check")}, QStringList{QStringLiteral("seasons")}}) {
            const Run run = runCli(args + QStringList{QStringLiteral("--data-dir"), dir.path()});
            QVERIFY2(run.status == 0, run.err.constData());
        }
        const Run missing = runCli({QStringLiteral("report"), QStringLiteral("batting"), QStringLiteral("--data-dir"),
                                    dir.path(), QStringLiteral("--season"), QStringLiteral("1999")});
        QCOMPARE(missing.status, 1);
        QCOMPARE(QDir(dir.path()).entryList(QDir::Files | QDir::Hidden),
                 QStringList{myDB::getCurDBFileName(QStringLiteral("2026"))});
    }

    // The two exports whose bytes aren't the same from run to run: the
    // calendar (stamped with the time of the export) read back through
    // libical, and the box score's PDF.
    void calendarAndPdf()
    {
        QTemporaryDir dir;
        const QString ics = QDir(dir.path()).filePath(QStringLiteral("season.ics"));
        const Run calendar = runCli({QStringLiteral("export"), QStringLiteral("ics"), QStringLiteral("--data-dir"),
                                     m_folder, QStringLiteral("--output"), ics});
        QCOMPARE(calendar.status, 0);
        QVERIFY(calendar.out.isEmpty());
        QFile icsFile(ics);
        QVERIFY(icsFile.open(QIODevice::ReadOnly));
        const QList<schedule::CalendarEvent> events = schedule::readCalendar(icsFile.readAll());
        QCOMPARE(events.size(), ScheduleStore(*m_season->db).list(ScheduleStore::kShowAll).size());
        QVERIFY(events.first().summary.contains(QStringLiteral("Celtics")));

        const QString pdf = QDir(dir.path()).filePath(QStringLiteral("box.pdf"));
        const Run box = runCli({QStringLiteral("box-score"), QStringLiteral("1"), QStringLiteral("--data-dir"),
                                m_folder, QStringLiteral("--format"), QStringLiteral("pdf"), QStringLiteral("-o"),
                                pdf});
        QCOMPARE(box.status, 0);
        QVERIFY(box.out.isEmpty() && box.err.isEmpty());
        QFile pdfFile(pdf);
        QVERIFY(pdfFile.open(QIODevice::ReadOnly));
        QVERIFY(pdfFile.readAll().startsWith("%PDF"));
    }

    // A Games row the readers can't give back and innings that are no
    // innings: check names both rows and fails.
    void checkNamesDamagedRows()
    {
        QTemporaryDir dir;
        const QString season = QDir(dir.path()).filePath(QStringLiteral("tlData_damaged.sqlite"));
        QVERIFY(QFile::copy(QDir(m_folder).filePath(myDB::getCurDBFileName(m_season->prefs->prSeason)), season));
        qint64 pitchingRow = 0;
        {
            SQLite::Database db(season.toStdString(), SQLite::OPEN_READWRITE);
            db.exec("UPDATE Games SET TeamBPlayers = '1' || char(9) || 'P' WHERE gameID = 2");
            pitchingRow = db.execAndGet("SELECT max(recID) FROM Pitching").getInt64();
            db.exec("UPDATE Pitching SET IP = 65 WHERE recID = " + std::to_string(pitchingRow));
        }
        const Run run = runCli({QStringLiteral("check"), QStringLiteral("--data-dir"), dir.path(),
                                QStringLiteral("--season"), QStringLiteral("damaged")});
        QCOMPARE(run.status, 1);
        const QList<QByteArray> lines = run.out.trimmed().split('\n');
        QCOMPARE(lines.size(), 2);
        QVERIFY2(lines[0].startsWith("Games row 2 ") && lines[0].contains("team B's line-up"), lines[0]);
        const QByteArray pitching = "Pitching row " + QByteArray::number(pitchingRow) + ' ';
        QVERIFY2(lines[1].startsWith(pitching) && lines[1].contains("65"), lines[1]);
    }

    // A report reads the season without checking every page first: pages
    // past the schema that don't read stop it with an error and no rows.
    void reportRefusesDamagedPages()
    {
        QTemporaryDir dir;
        const QString season = QDir(dir.path()).filePath(QStringLiteral("tlData_damaged.sqlite"));
        QVERIFY(QFile::copy(QDir(m_folder).filePath(myDB::getCurDBFileName(m_season->prefs->prSeason)), season));
        qint64 pageSize = 0;
        {
            SQLite::Database db(season.toStdString(), SQLite::OPEN_READONLY);
            pageSize = db.execAndGet("PRAGMA page_size").getInt64();
        }
        QFile file(season);
        QVERIFY(file.open(QIODevice::ReadWrite));
        QVERIFY(file.seek(pageSize));
        file.write(QByteArray(int(file.size() - pageSize), '\xA5'));
        file.close();
        const Run run = runCli({QStringLiteral("report"), QStringLiteral("batting"), QStringLiteral("--format"),
                                QStringLiteral("csv"), QStringLiteral("--data-dir"), dir.path(),
                                QStringLiteral("--season"), QStringLiteral("damaged")});
        QVERIFY(run.status != 0);
        QVERIFY2(run.out.isEmpty(), run.out);
        QVERIFY(!run.err.isEmpty());
    }

    // The backup is taken while this process writes to the season, and is
    // a sound season holding every team; the program's lock stops it.
    void backupWhileWritten()
    {
        QTemporaryDir target;
        QProcess backup;
        backup.start(QStringLiteral(TL_CLI_BINARY), {QStringLiteral("backup"), QStringLiteral("--data-dir"), m_folder,
                                                     QStringLiteral("--to"), target.path()});
        QVERIFY(backup.waitForStarted());
        int written = 0;
        while (!backup.waitForFinished(5) && written < 5000) {
            QVERIFY(m_season->db->runInTransaction([&] {
                m_season->db->insert(QStringLiteral("Teams"),
                                     {{QStringLiteral("TeamName"), QStringLiteral("Extra %1").arg(written)}});
            }));
            ++written;
        }
        QVERIFY(backup.state() == QProcess::NotRunning || backup.waitForFinished(60000));
        QVERIFY(written > 0);
        QCOMPARE(backup.exitCode(), 0);
        const QString copy = QString::fromUtf8(backup.readAllStandardOutput()).trimmed();
        QVERIFY(copy.startsWith(target.path() + QStringLiteral("/TLYN2_backup/")));
        QVERIFY(seasondata::isSoundSeasonFile(copy));
        SQLite::Database db(copy.toStdString(), SQLite::OPEN_READONLY);
        QVERIFY(db.execAndGet("SELECT count(*) FROM Teams WHERE TeamName NOT LIKE 'Extra %'").getInt() == 5);

        QLockFile program(QDir(m_folder).filePath(QStringLiteral(".tallyline.lock")));
        QVERIFY(program.tryLock());
        const Run refused = runCli(
            {QStringLiteral("backup"), QStringLiteral("--data-dir"), m_folder, QStringLiteral("--to"), target.path()});
        QCOMPARE(refused.status, 3);
        QVERIFY(refused.out.isEmpty());
        QVERIFY(refused.err.contains("quit it first"));
        m_season->db->exec(QStringLiteral("DELETE FROM Teams WHERE TeamName LIKE 'Extra %'"));
    }
};

QTEST_MAIN(tst_cli)
#include "tst_cli.moc"
