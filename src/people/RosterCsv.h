#pragma once

// A team's players to and from a spreadsheet's CSV file. The export has a
// heading line and a line per player with every field but the picture. An
// import reads the whole file first, matches its columns to the player
// fields by their headings (the coach may change each match), and writes
// nothing until the coach has seen the first rows as they will be stored;
// then every new player goes in in one step, and a player already on the
// team (the same uniform number, first and last name) is left out.

#include "people/MemberRecord.h"
#include "support/CsvText.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

class myDB;

namespace people {

struct RosterField
{
    QString column;    // the Players column
    QString heading;   // the export's heading
    QStringList names; // headings an import takes for it, lower case
};
const QList<RosterField> &rosterFields();

QByteArray rosterCsv(const QList<MemberRecord> &players);

class RosterImport
{
public:
    // Reads the file's text and matches its columns.
    static RosterImport read(const QByteArray &text);

    // "Line 4 is damaged: a quote is never closed." or empty.
    QString problem() const;
    // The file's headings (its first line).
    QStringList headings() const;
    // For each of rosterFields(), the file's column, or -1 for none.
    QList<int> mapping;
    // Whether there is something to import: no damage, a player line, and
    // a first or last name matched.
    bool canImport() const;
    // The players of the file's lines after the heading, as they would be
    // stored for `teamID`.
    QList<MemberRecord> players(const QString &teamID) const;

    struct Result
    {
        bool written = false;
        int added = 0;
        QStringList skipped; // "7 Ann Lee": already on the team, or twice in the file
    };
    // Adds the new players to team `teamID` in one transaction.
    Result write(myDB &db, const QString &teamID) const;

private:
    support::csv::Table m_table;
};

} // namespace people
