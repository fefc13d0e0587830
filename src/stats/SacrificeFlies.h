#pragma once

#include <QHash>

namespace SQLite {
class Database;
}

namespace stats {

// Adds each player's sacrifice flies of a game to his season count in
// table "SacFlies" (playerID, SF), beside the season tables: a sacrifice
// fly is in SAC too, so every figure of those tables keeps its meaning.
// The table is made with the first sacrifice fly a season records. Runs
// within the caller's transaction; throws on a database error.
void addSacrificeFlies(SQLite::Database &db, const QHash<qint64, qint64> &flies);
// Takes a game's sacrifice flies back from the season counts; a count left
// at 0 is deleted, as it was never there.
void takeBackSacrificeFlies(SQLite::Database &db, const QHash<qint64, qint64> &flies);

} // namespace stats
