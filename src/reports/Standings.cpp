#include "reports/Standings.h"

#include "app/myDB.h"
#include "reports/NumberMask.h"

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>

#include <algorithm>

namespace reports {

Standings::Standings(myDB &db, const QString &homeTeam) : m_db(db), m_homeTeam(homeTeam) {}

QList<Standings::ViewEntry> Standings::viewEntries()
{
    QList<ViewEntry> entries{{QStringLiteral("Overall"), Overall}};
    const QList<Record> home = m_db.select(QStringLiteral("SELECT League, Division FROM Teams WHERE teamID = ?"),
                                           {m_homeTeam});
    if (!home.isEmpty()) {
        const QString league = home.first().text(QStringLiteral("League"));
        const QString division = home.first().text(QStringLiteral("Division"));
        if (!league.isEmpty()) {
            homeLg = league;
            entries.append({league + QStringLiteral(" League"), League});
        }
        if (!division.isEmpty()) {
            homeDiv = division;
            entries.append({division + QStringLiteral(" Division"), Division});
        }
    }
    return entries;
}

void Standings::setUpTeamData()
{
    teamDict.clear();
    AllTeams.clear();
    LgTeams.clear();
    DivTeams.clear();
    const QList<Record> teams = m_db.select(
        QStringLiteral("SELECT teamID, TeamName, League, Division FROM Teams ORDER BY teamID"));
    if (teams.isEmpty() && m_db.lastErrorCode() != 0)
        m_readFailed = true;
    for (const Record &r : teams) {
        const QString id = r.text(QStringLiteral("teamID"));
        teamDict.insert(id, r.text(QStringLiteral("TeamName")));
        AllTeams.append(id);
        // A team in another league with a division of the same name is not
        // in the division view.
        if (r.text(QStringLiteral("League")) == homeLg) {
            LgTeams.append(id);
            if (r.text(QStringLiteral("Division")) == homeDiv)
                DivTeams.append(id);
        }
    }
}

void Standings::acquireData()
{
    tRecDict.clear();
    const QList<Record> records = m_db.select(
        QStringLiteral("SELECT teamID, W, L, Tie FROM GameResultsByTeam ORDER BY recID"));
    if (records.isEmpty() && m_db.lastErrorCode() != 0)
        m_readFailed = true;
    for (const Record &r : records) {
        tRecDict.insert(r.text(QStringLiteral("teamID")), r.text(QStringLiteral("W")) + u'\t' +
                                                              r.text(QStringLiteral("L")) + u'\t' +
                                                              r.text(QStringLiteral("Tie")));
    }
}

int Standings::cellValue(const QString &text)
{
    const QString t = text.trimmed();
    qsizetype end = 0;
    if (end < t.size() && (t.at(end) == u'-' || t.at(end) == u'+'))
        ++end;
    while (end < t.size() && t.at(end).isDigit())
        ++end;
    return t.left(end).toInt();
}

double Standings::percentage(const QString &W, const QString &L, const QString &Tie)
{
    if (W.isEmpty() && L.isEmpty() && Tie.isEmpty())
        return 0;
    const double w = cellValue(W), l = cellValue(L), t = cellValue(Tie);
    const double games = w + l + t;
    // A record of 0-0-0 (reachable by editing) has no percentage: it shows
    // .000, as a team without a record does, and sorts with them.
    if (games == 0)
        return 0;
    const double pct = (w + 0.5 * t) / games;
    return pct < 0 || pct > 1 ? 0 : pct;
}

std::optional<QList<StandingsRow>> Standings::fillStandLB(View view) const
{
    if (m_readFailed)
        return std::nullopt;
    const QStringList &ids = view == Overall ? AllTeams : view == League ? LgTeams : DivTeams;
    QList<StandingsRow> rows;
    for (const QString &id : ids) {
        if (!teamDict.contains(id))
            continue;
        StandingsRow row;
        row.teamID = id;
        row.team = teamDict.value(id);
        const QStringList record = tRecDict.value(id).split(u'\t');
        if (tRecDict.contains(id) && record.size() == 3) {
            row.W = record.at(0);
            row.L = record.at(1);
            row.Tie = record.at(2);
        }
        row.Pct = formatMask(percentage(row.W, row.L, row.Tie), QStringLiteral("#.000"));
        rows.append(row);
    }
    // Best percentage first, by the shown figure only; equal figures keep
    // the order of the teams.
    std::stable_sort(rows.begin(), rows.end(),
                     [](const StandingsRow &a, const StandingsRow &b) { return a.Pct.toDouble() > b.Pct.toDouble(); });
    if (rows.isEmpty())
        return rows;
    const StandingsRow &leader = rows.first();
    const double leadPts = cellValue(leader.W) + 0.5 * cellValue(leader.Tie);
    const double leadL = cellValue(leader.L);
    rows.first().GB = QStringLiteral("0.0");
    for (qsizetype i = 1; i < rows.size(); ++i) {
        StandingsRow &row = rows[i];
        // A tie counts as half a win and no loss.
        const double gb = ((leadPts - leadL) - (cellValue(row.W) + 0.5 * cellValue(row.Tie) - cellValue(row.L))) / 2.0;
        row.GB = formatMask(gb, QStringLiteral("#0.0"));
    }
    return rows;
}

bool Standings::saveData(const QList<StandingsRow> &rows)
{
    // Statements that throw on an error, so the transaction rolls back whole.
    const auto run = [this](const char *sql, const QVariantList &params) {
        SQLite::Statement statement(*m_db.tlynData, sql);
        myDB::bindAll(statement, params);
        return statement.exec();
    };
    return m_db.runInTransaction([&] {
        for (const StandingsRow &row : rows) {
            const qint64 id = row.teamID.toLongLong();
            const int w = cellValue(row.W), l = cellValue(row.L), tie = cellValue(row.Tie);
            if (run("UPDATE GameResultsByTeam SET W = ?, L = ?, Tie = ? WHERE teamID = ?", {w, l, tie, id}) == 0)
                run("INSERT INTO GameResultsByTeam (teamID, W, L, Tie) VALUES (?, ?, ?, ?)", {id, w, l, tie});
        }
    });
}

int Standings::nextEditRow(const QList<bool> &isHome, int row)
{
    const int last = int(isHome.size()) - 1;
    int next = row + 1;
    if (next <= last && isHome.at(next)) {
        next = row + 2;
        if (next > last)
            next = row;
    }
    return std::min(next, last);
}

} // namespace reports
