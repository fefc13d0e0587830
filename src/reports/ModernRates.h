#pragma once

#include "reports/StatReporters.h"

#include <QList>
#include <QString>

namespace reports {

// The rates of the "More" column set, worked out from a season row's
// stored figures (seasonColumns() order) and the player's sacrifice flies.
// They are never stored. A rate whose divisor is zero is 0, as the
// report's own averages are.
struct RateColumn
{
    QString key;     // the heading: "OPS", "K/9"
    QString formula; // for the abbreviations list: "OBP2 + SP"
    QString mask;    // how the report shows it (NumberMask)
    double (*compute)(const QList<double> &figures, double sf);
};

const QList<RateColumn> &moreColumns(ReportKind kind);

// Every rate of `kind` for one row, in moreColumns() order.
QList<double> moreRates(ReportKind kind, const QList<double> &figures, double sf);

// Innings from the stored code: 62 is 6 2/3 innings.
double inningsFromCode(double code);
// The code of a number of thirds: 20 thirds is 62.
double inningsCode(qint64 thirds);

} // namespace reports
