#pragma once

#include "cli/TableOutput.h"

#include <QCommandLineParser>
#include <QTextStream>

#include <optional>

class myDB;

namespace cli {

// `report playing-time`: the rows of the Playing Time report, for the team
// given (or every team) over --from and --to (ISO dates, both optional).
int writePlayingTime(myDB &db, const QCommandLineParser &parser, std::optional<qint64> team, TableFormat format,
                     QTextStream &out, QTextStream &err);

} // namespace cli
