#pragma once

#include "reports/StatReporters.h"

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QStringList>

class myDB;
namespace SQLite {
class Database;
}

namespace reports {

// The season's sacrifice flies by player (table "SacFlies"; none before a
// first sacrifice fly is recorded). Empty when the table isn't there.
QHash<qint64, double> sacrificeFlies(myDB &db);
QHash<qint64, double> sacrificeFlies(SQLite::Database &db);

// The whole season as one CSV file: the "Batting", "Pitching" and
// "Fielding" sections, each its title line, a heading line, a line per
// player (uniform number, last and first name, team, every stored count,
// SF for batters, the report's own averages and the "More" rates) and a
// totals line whose rates are worked out from the totals. Sections are
// apart by an empty line. Counts are whole numbers, innings pitched read
// 6.2 for 6 2/3, rates have the decimals the report shows. Empty on a
// database error (the error has been shown).
QByteArray seasonCsv(myDB &db);
// The same on a plain connection; throws on a database error.
QByteArray seasonCsv(SQLite::Database &db);

// A list's heading and rows as CSV (the report export's CSV form).
QByteArray rowsCsv(const QStringList &headings, const QList<QStringList> &rows);

} // namespace reports
