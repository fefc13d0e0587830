#pragma once

#include <QStringList>

// The fifteen CREATE TABLE statements of a new season, in creation order.
namespace schema {

const QStringList &createStatements();
// The table names, in creation order.
const QStringList &tableNames();

} // namespace schema
