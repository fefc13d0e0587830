#include "people/TeamStore.h"

#include "app/myDB.h"

namespace people {

QList<TeamListRow> TeamStore::listRows() const
{
    QList<TeamListRow> rows;
    for (const Record &r : m_db.select(QStringLiteral("SELECT teamID, SchoolName, TeamName FROM Teams")))
        rows.append({r.text(QStringLiteral("teamID")), r.text(QStringLiteral("SchoolName")),
                     r.text(QStringLiteral("TeamName"))});
    return rows;
}

QList<TeamRecord> TeamStore::allTeams() const
{
    QList<TeamRecord> teams;
    for (const Record &r : m_db.select(QStringLiteral("SELECT * FROM Teams")))
        teams.append(TeamRecord::fromRecord(r));
    return teams;
}

std::optional<TeamRecord> TeamStore::team(const QString &teamID) const
{
    const QList<Record> rows = m_db.select(QStringLiteral("SELECT * FROM Teams WHERE teamID = ?"), {teamID});
    if (rows.isEmpty())
        return std::nullopt;
    return TeamRecord::fromRecord(rows.first());
}

bool TeamStore::exists(const QString &teamID) const
{
    return m_db.scalar(QStringLiteral("SELECT COUNT(*) FROM Teams WHERE teamID = ?"), {teamID}).toInt() > 0;
}

int TeamStore::count() const
{
    return m_db.scalar(QStringLiteral("SELECT COUNT(*) FROM Teams")).toInt();
}

QStringList TeamStore::distinctValues(const QString &column) const
{
    // Only the three offered columns may be named here: the column name is
    // the one piece of text joined into the statement.
    static const QStringList offered = {QStringLiteral("League"), QStringLiteral("Division"),
                                        QStringLiteral("HomeField")};
    if (!offered.contains(column))
        return {};
    QStringList values;
    for (const Record &r : m_db.select(QStringLiteral("SELECT DISTINCT(") + column + QStringLiteral(") FROM Teams"))) {
        const QString v = r.values.value(0).toString();
        if (!v.isEmpty())
            values.append(v);
    }
    return values;
}

QList<TeamChoice> TeamStore::choices() const
{
    QList<TeamChoice> out;
    for (const Record &r :
         m_db.select(QStringLiteral("SELECT DISTINCT(TeamName), teamID FROM Teams ORDER by TeamName")))
        out.append({r.text(QStringLiteral("teamID")), r.values.value(0).toString()});
    return out;
}

qint64 TeamStore::add(const TeamRecord &team)
{
    return m_db.insert(QStringLiteral("Teams"), team.toFields());
}

bool TeamStore::update(const TeamRecord &team)
{
    if (team.teamID.isEmpty() || !exists(team.teamID))
        return false;
    return m_db.update(QStringLiteral("Teams"), team.toFields(), QStringLiteral("teamID"), team.teamID);
}

bool TeamStore::deleteTeam(const QString &teamID)
{
    // Inside the step a failing statement throws, so a team never loses
    // only half of its rows.
    return m_db.runInTransaction([&] {
        m_db.exec(QStringLiteral("DELETE FROM Players WHERE TeamNum = ?"), {teamID});
        m_db.exec(QStringLiteral("DELETE FROM Teams WHERE teamID = ?"), {teamID});
    });
}

} // namespace people
