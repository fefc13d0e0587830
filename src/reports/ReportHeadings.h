#pragma once

#include "reports/StatReporters.h"

#include <QString>

namespace reports {

// What a report's heading means, as the abbreviations window says it, so
// that a heading shared by two reports ("Ks" is strikes thrown in the
// pitching report, "KS" a batter's strike out swinging) can be told apart.
// A user-defined statistic is described as one.
QString headingDescription(ReportKind kind, const QString &heading);

// The order of a first click on a heading: names alphabetically, every
// figure from the best first (most hits first, fewest errors first).
Qt::SortOrder firstSortOrder(ReportKind kind, const QString &heading);

} // namespace reports
