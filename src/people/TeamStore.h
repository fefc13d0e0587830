#pragma once

#include "people/TeamRecord.h"

#include <QList>
#include <QStringList>

#include <optional>

class myDB;

namespace people {

// Table Teams. Every value is bound; a database error is shown by myDB
// where it happens and the call gives false, -1 or nothing.
class TeamStore
{
public:
    explicit TeamStore(myDB &db) : m_db(db) {}

    QList<TeamListRow> listRows() const;
    // Every team in full, in the order the file gives them.
    QList<TeamRecord> allTeams() const;
    std::optional<TeamRecord> team(const QString &teamID) const;
    // Whether the row is there, without reading (and decoding) its logo.
    bool exists(const QString &teamID) const;
    int count() const;
    // The distinct non-empty values of League, Division or HomeField.
    QStringList distinctValues(const QString &column) const;
    // The team popups: by name, with their ids.
    QList<TeamChoice> choices() const;

    // The new team's id, or -1.
    qint64 add(const TeamRecord &team);
    // False when the row isn't there or the write failed.
    bool update(const TeamRecord &team);
    // The team and its players go together or not at all. Its coaches,
    // inventory, schedule and games stay in the file.
    bool deleteTeam(const QString &teamID);

private:
    myDB &m_db;
};

} // namespace people
