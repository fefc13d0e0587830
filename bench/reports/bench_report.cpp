// A batting report of 5,000 season rows, every column chosen: read with its
// one join query, turned into reporters and shown text, and put into the
// list's model; beside the leanest fair baseline, the same join read
// straight into text cells and handed to a minimal QAbstractTableModel.
//
//   bench_report          both measured in turn, in this run, and the ratio
//
// Run on the offscreen platform (QT_QPA_PLATFORM=offscreen).

#include "MinimalTableModel.h"
#include "app/globals.h"
#include "app/myDB.h"
#include "app/myDictionaries.h"
#include "app/myPrefs.h"
#include "fakes/FakePlatform.h"
#include "reports/ListBoxModel.h"
#include "reports/SeasonReport.h"

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>
#include <SQLiteCpp/Transaction.h>

#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>

namespace {

constexpr int kRows = 5000;
constexpr int kTeams = 12;

void fillSeason(myDB &db)
{
    SQLite::Database &sql = *db.tlynData;
    SQLite::Transaction transaction(sql);
    SQLite::Statement team(sql, "INSERT INTO Teams (TeamName, League, Division) VALUES (?, ?, ?)");
    for (int t = 0; t < kTeams; ++t) {
        team.bind(1, "Team " + std::to_string(t));
        team.bind(2, t % 2 ? "North" : "South");
        team.bind(3, t % 3 ? "East" : "West");
        team.exec();
        team.reset();
    }
    const QStringList &columns = reports::seasonColumns(reports::Batting);
    QString insert = QStringLiteral("INSERT INTO Hitting (playerID, teamID, gameID");
    for (const QString &c : columns)
        insert += u", " + c;
    insert += QStringLiteral(") VALUES (?, ?, 1") + QStringLiteral(", ?").repeated(columns.size()) + u')';
    SQLite::Statement player(sql, "INSERT INTO Players (TeamNum, First, Last) VALUES (?, ?, ?)");
    SQLite::Statement hitting(sql, insert.toStdString());
    for (int r = 0; r < kRows; ++r) {
        player.bind(1, r % kTeams + 1);
        player.bind(2, "First" + std::to_string(r));
        player.bind(3, "Last" + std::to_string(r));
        player.exec();
        player.reset();
        hitting.bind(1, r + 1);
        hitting.bind(2, r % kTeams + 1);
        for (int c = 0; c < columns.size(); ++c)
            hitting.bind(3 + c, (r * 7 + c * 13) % (c == 0 ? 400 : 40));
        hitting.exec();
        hitting.reset();
    }
    transaction.commit();
}

QStringList allColumns()
{
    return reports::chooser::headers(reports::Batting, reports::chooser::rows(reports::Batting),
                                     QList<bool>(hitD.count(), true));
}

int buildReport(myDB &db)
{
    reports::SeasonReport report(reports::Batting, allColumns());
    report.load(db);
    ListBoxModel model;
    model.setHeadings(report.curHeaders());
    model.addRows(report.rows({}));
    return model.rowCount();
}

// The same join, every column read as its text, straight into a minimal model.
int joinAndFill(myDB &db)
{
    const QStringList &columns = reports::seasonColumns(reports::Batting);
    QString sql = QStringLiteral("SELECT p.First, p.Last");
    for (const QString &c : columns)
        sql += QStringLiteral(", s.") + c;
    sql += QStringLiteral(" FROM Hitting AS s LEFT JOIN Players AS p ON p.playerID = s.playerID"
                          " LEFT JOIN Teams AS t ON t.teamID = s.teamID ORDER BY s.recID");
    SQLite::Statement query(*db.tlynData, sql.toStdString());
    QList<QStringList> rows;
    const int count = query.getColumnCount();
    while (query.executeStep()) {
        QStringList cells;
        cells.reserve(count);
        for (int c = 0; c < count; ++c) {
            const SQLite::Column value = query.getColumn(c);
            cells.append(QString::fromUtf8(value.getText(), value.getBytes()));
        }
        rows.append(cells);
    }
    bench::MinimalTableModel model;
    model.setRows(allColumns(), std::move(rows));
    return model.rowCount();
}

} // namespace

class BenchReport : public QObject
{
    Q_OBJECT

    fakes::FakePlatform m_platform;
    QTemporaryDir m_home;
    std::unique_ptr<myPrefs> m_prefs;
    std::unique_ptr<myDB> m_db;

private Q_SLOTS:
    void initTestCase()
    {
        m_prefs = std::make_unique<myPrefs>(m_home.path());
        m_db = std::make_unique<myDB>(*m_prefs);
        gPrefs = m_prefs.get();
        gData = m_db.get();
        myDictionaries::initHitting();
        fillSeason(*m_db);
    }
    void cleanupTestCase()
    {
        gPrefs = nullptr;
        gData = nullptr;
    }

    // Interleaved, so the machine's load weighs on both alike.
    void ratio()
    {
        QCOMPARE(buildReport(*m_db), kRows);
        QCOMPARE(joinAndFill(*m_db), kRows);
        QList<double> report, baseline;
        for (int i = 0; i < 9; ++i) {
            QElapsedTimer t;
            t.start();
            buildReport(*m_db);
            report.append(t.nsecsElapsed() / 1e6);
            t.restart();
            joinAndFill(*m_db);
            baseline.append(t.nsecsElapsed() / 1e6);
        }
        std::sort(report.begin(), report.end());
        std::sort(baseline.begin(), baseline.end());
        const double r = report.at(report.size() / 2), b = baseline.at(baseline.size() / 2);
        qInfo("join query + minimal table model (baseline): %.1f ms", b);
        qInfo("batting report, %d columns:                  %.1f ms  (%.2fx)", int(allColumns().size()), r, r / b);
        QVERIFY2(r / b < 3.0, "the report should stay within 3x one join query and a minimal model");
    }
};

QTEST_GUILESS_MAIN(BenchReport)
#include "bench_report.moc"
