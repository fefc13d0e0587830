#include "reports/NumberMask.h"

#include <algorithm>
#include <cmath>

namespace reports {

QString formatMask(double value, const QString &mask)
{
    const qsizetype point = mask.indexOf(u'.');
    const QString wholePart = point < 0 ? mask : mask.left(point);
    const int decimals = point < 0 ? 0 : int(mask.size() - point - 1);
    const int minimumDigits = int(wholePart.count(u'0'));

    if (!std::isfinite(value))
        value = 0;
    QString text = QString::number(std::abs(value), 'f', decimals);
    // A value that rounds to zero has no sign.
    const bool negative = value < 0 &&
                          std::any_of(text.cbegin(), text.cend(), [](QChar c) { return c >= u'1' && c <= u'9'; });
    qsizetype digits = decimals > 0 ? text.indexOf(u'.') : text.size();
    // The whole number's leading zero goes when the mask asks for no digit there.
    if (minimumDigits == 0 && digits == 1 && text.at(0) == u'0') {
        text.remove(0, 1);
        digits = 0;
    }
    while (digits < minimumDigits) {
        text.prepend(u'0');
        ++digits;
    }
    return negative ? u'-' + text : text;
}

} // namespace reports
