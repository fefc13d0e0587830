#pragma once

#include "people/MemberRecord.h"

#include <QList>

#include <optional>

class myDB;

namespace people {

// Tables Players and Coaches, with every value bound.
class MemberStore
{
public:
    explicit MemberStore(myDB &db) : m_db(db) {}

    // A team's players or coaches in the order the file gives them.
    QList<MemberListRow> list(MemberKind kind, const QString &teamID) const;
    std::optional<MemberRecord> member(MemberKind kind, const QString &id) const;
    // Whether the row is there, without reading (and decoding) its picture.
    bool exists(MemberKind kind, const QString &id) const;
    // Every player of a team, in full (for printing).
    QList<MemberRecord> players(const QString &teamID) const;

    // The new row's id, or -1.
    qint64 add(const MemberRecord &member);
    // False when the row isn't there or the write failed.
    bool update(const MemberRecord &member);
    bool remove(MemberKind kind, const QString &id);

private:
    myDB &m_db;
};

} // namespace people
