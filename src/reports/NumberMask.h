#pragma once

#include <QString>

namespace reports {

// A number as a display mask shows it. In the masks the reports use (".000",
// "#.000", "0.00", "##0.0", "#0.0", "##0") a "0" is a digit that is always
// written and a "#" one that is written only when it is needed; the digits
// after the point give the rounding. So 0.5 under ".000" reads ".500",
// 1 reads "1.000", and 0 under "##0.0" reads "0.0". An integer part longer
// than the mask allows is written whole.
QString formatMask(double value, const QString &mask);

} // namespace reports
