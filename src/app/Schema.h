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
const QStringList &indexStatements();
// The tables added to the season since its first form ("CREATE TABLE IF
// NOT EXISTS"): made with a new season's tables and added to an older file
// when it is opened, empty. The coach's defensive moves live there.
const QStringList &addedTableStatements();

} // namespace schema
