// What the season's CSV export costs for 5,000 players, against the
// leanest fair baseline: the sqlite3 shell writing the same rows of the
// same joins with -csv. Both run as processes on the same file, round by
// round in turn (the export as bench_seasoncsv_export); the medians and
// their ratio are printed.

#include "app/myDB.h"
#include "fakes/FakePlatform.h"
#include "reports/SeasonCsv.h"
#include "reports/StatReporters.h"

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>
#include <SQLiteCpp/Transaction.h>

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>

namespace {

constexpr int kPlayers = 5000;
constexpr int kTeams = 200;
constexpr int kRounds = 15;

double median(std::vector<double> v)
{
    std::sort(v.begin(), v.end());
    return v[v.size() / 2];
}

// The joins the export reads, one per section, in its order.
QString baselineSql()
{
    QString sql;
    for (auto kind : {reports::Batting, reports::Pitching, reports::Fielding}) {
        sql += QStringLiteral("SELECT p.UniNum, p.Last, p.First, t.TeamName");
        for (const QString &c : reports::seasonColumns(kind))
            sql += QStringLiteral(", s.") + c;
        sql += QStringLiteral(" FROM ") + reports::seasonTable(kind) +
               QStringLiteral(" AS s LEFT JOIN Players AS p ON p.playerID = s.playerID"
                              " LEFT JOIN Teams AS t ON t.teamID = s.teamID"
                              " ORDER BY t.TeamName, p.Last, p.First, s.recID;\n");
    }
    return sql;
}

// The exporting process, built beside this benchmark.
QString exporterPath()
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/bench_seasoncsv_export");
}

} // namespace

class BenchSeasonCsv : public QObject
{
    Q_OBJECT

    QTemporaryDir m_home;
    QString m_file;

private Q_SLOTS:
    void initTestCase()
    {
        // TL_BENCH_KEEP keeps the season, to profile one export by hand.
        m_home.setAutoRemove(qEnvironmentVariableIsEmpty("TL_BENCH_KEEP"));
        if (QStandardPaths::findExecutable(QStringLiteral("sqlite3")).isEmpty())
            QSKIP("the sqlite3 shell isn't installed (tools/bootstrap installs it)");
        fakes::FakePlatform fake;
        {
            myDB make(m_home.path(), QStringLiteral("bench"));
        }
        m_file = m_home.filePath(QStringLiteral("tlData_bench.sqlite"));
        SQLite::Database db(m_file.toStdString(), SQLite::OPEN_READWRITE);
        SQLite::Transaction transaction(db);
        for (int t = 1; t <= kTeams; ++t)
            db.exec("INSERT INTO Teams (TeamName, League) VALUES ('Team " + std::to_string(t) + "', 'North')");
        SQLite::Statement player(db, "INSERT INTO Players (TeamNum, First, Last, UniNum) VALUES (?, ?, ?, ?)");
        for (int p = 1; p <= kPlayers; ++p) {
            player.bind(1, 1 + p % kTeams);
            player.bind(2, "First" + std::to_string(p));
            player.bind(3, (p % 7 == 0 ? "O'Neil, " : "Last") + std::to_string(p));
            player.bind(4, std::to_string(p % 99));
            player.exec();
            player.reset();
        }
        for (auto kind : {reports::Batting, reports::Pitching, reports::Fielding}) {
            const QStringList &columns = reports::seasonColumns(kind);
            std::string sql = "INSERT INTO " + reports::seasonTable(kind).toStdString() + " (playerID, teamID, gameID";
            for (const QString &c : columns)
                sql += ", " + c.toStdString();
            sql += ") VALUES (?, ?, 1";
            for (qsizetype i = 0; i < columns.size(); ++i)
                sql += ", ?";
            sql += ")";
            SQLite::Statement row(db, sql);
            const int rows = kind == reports::Pitching ? kPlayers / 5 : kPlayers;
            for (int p = 1; p <= rows; ++p) {
                row.bind(1, p);
                row.bind(2, 1 + p % kTeams);
                for (int i = 0; i < columns.size(); ++i)
                    row.bind(3 + i, (p * 7 + i * 13) % 41 + (columns.at(i) == u"IP" ? 0 : 1));
                row.exec();
                row.reset();
            }
        }
        transaction.commit();
    }

    void exportAgainstSqliteShell()
    {
        const QString sql = baselineSql();
        std::vector<double> ours, shell;
        qint64 oursBytes = 0, shellBytes = 0;
        for (int round = 0; round < kRounds; ++round) {
            QElapsedTimer timer;
            timer.start();
            QProcess exporter;
            exporter.start(exporterPath(), {m_file, m_home.filePath(QStringLiteral("ours.csv"))});
            QVERIFY(exporter.waitForFinished(60000));
            QCOMPARE(exporter.exitCode(), 0);
            ours.push_back(double(timer.nsecsElapsed()) / 1e6);

            timer.restart();
            QProcess sqlite;
            sqlite.setStandardOutputFile(m_home.filePath(QStringLiteral("shell.csv")));
            sqlite.start(QStringLiteral("sqlite3"), {QStringLiteral("-csv"), m_file, sql});
            QVERIFY(sqlite.waitForFinished(60000));
            QCOMPARE(sqlite.exitCode(), 0);
            shell.push_back(double(timer.nsecsElapsed()) / 1e6);
        }
        oursBytes = QFileInfo(m_home.filePath(QStringLiteral("ours.csv"))).size();
        shellBytes = QFileInfo(m_home.filePath(QStringLiteral("shell.csv"))).size();
        const double a = median(ours), b = median(shell);
        qInfo("season CSV, %d players, median of %d rounds: export %.1f ms (%lld bytes), sqlite3 -csv %.1f ms "
              "(%lld bytes); ratio %.2f",
              kPlayers, kRounds, a, oursBytes, b, shellBytes, a / b);
    }
};

QTEST_MAIN(BenchSeasonCsv)
#include "bench_seasoncsv.moc"
