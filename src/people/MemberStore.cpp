#include "people/MemberStore.h"

#include "app/myDB.h"

namespace people {

QList<MemberListRow> MemberStore::list(MemberKind kind, const QString &teamID) const
{
    QList<MemberListRow> rows;
    if (kind == MemberKind::Player) {
        for (const Record &r :
             m_db.select(QStringLiteral("SELECT First, Last, Pos1, playerID FROM Players WHERE TeamNum = ?"), {teamID}))
            rows.append({r.text(QStringLiteral("playerID")), r.text(QStringLiteral("First")),
                         r.text(QStringLiteral("Last")), r.text(QStringLiteral("Pos1"))});
    } else {
        for (const Record &r :
             m_db.select(QStringLiteral("SELECT First, Last, coachID FROM Coaches WHERE TeamNum = ?"), {teamID}))
            rows.append({r.text(QStringLiteral("coachID")),
                         r.text(QStringLiteral("First")),
                         r.text(QStringLiteral("Last")),
                         {}});
    }
    return rows;
}

std::optional<MemberRecord> MemberStore::member(MemberKind kind, const QString &id) const
{
    const QList<Record> rows = m_db.select(QStringLiteral("SELECT * FROM ") + MemberRecord::table(kind) +
                                               QStringLiteral(" WHERE ") + MemberRecord::keyColumn(kind) +
                                               QStringLiteral(" = ?"),
                                           {id});
    if (rows.isEmpty())
        return std::nullopt;
    return MemberRecord::fromRecord(kind, rows.first());
}

QList<MemberRecord> MemberStore::players(const QString &teamID) const
{
    QList<MemberRecord> out;
    for (const Record &r : m_db.select(QStringLiteral("SELECT * FROM Players WHERE TeamNum = ?"), {teamID}))
        out.append(MemberRecord::fromRecord(MemberKind::Player, r));
    return out;
}

qint64 MemberStore::add(const MemberRecord &member)
{
    return m_db.insert(MemberRecord::table(member.kind), member.toFields());
}

bool MemberStore::exists(MemberKind kind, const QString &id) const
{
    return m_db.scalar(QStringLiteral("SELECT COUNT(*) FROM ") + MemberRecord::table(kind) + QStringLiteral(" WHERE ") +
                           MemberRecord::keyColumn(kind) + QStringLiteral(" = ?"),
                       {id})
               .toInt() > 0;
}

bool MemberStore::update(const MemberRecord &member)
{
    if (member.id.isEmpty() || !exists(member.kind, member.id))
        return false;
    return m_db.update(MemberRecord::table(member.kind), member.toFields(), MemberRecord::keyColumn(member.kind),
                       member.id);
}

bool MemberStore::remove(MemberKind kind, const QString &id)
{
    return m_db.exec(QStringLiteral("DELETE FROM ") + MemberRecord::table(kind) + QStringLiteral(" WHERE ") +
                         MemberRecord::keyColumn(kind) + QStringLiteral(" = ?"),
                     {id});
}

} // namespace people
