#pragma once

#include <QStringList>

// The fifteen CREATE TABLE statements of a new season, in creation order.
namespace schema {

const QStringList &createStatements();
// The table names, in creation order.
const QStringList &tableNames();
// The indexes on the columns rows are looked up by ("CREATE INDEX IF NOT
// EXISTS"): made with a new season's tables and added to an older file when
// it is opened. An index holds no value of its own; the rows stay as stored.
// The indexes run after the tables added since the first fifteen (with
// "IF NOT EXISTS"), so an older file gets those too.
const QStringList &indexStatements();
// The tables added to the season since its first form, with their indexes
// ("IF NOT EXISTS"): the game's change log and the coach's defensive moves.
// Made with a new season and added, empty, to an older file when it opens.
const QStringList &addedTableStatements();

} // namespace schema
