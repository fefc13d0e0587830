#include "reports/ColumnWidths.h"

#include <QRegularExpression>

#include <algorithm>
#include <cmath>

namespace ColumnWidths {

double leadingNumber(const QString &text)
{
    static const QRegularExpression number(QStringLiteral(R"(^\s*([+-]?(\d+\.?\d*|\.\d+)([eE][+-]?\d+)?))"));
    const QRegularExpressionMatch m = number.match(text);
    return m.hasMatch() ? m.captured(1).toDouble() : 0.0;
}

double total(const QStringList &widths)
{
    double sum = 0;
    for (const QString &w : widths)
        sum += leadingNumber(w);
    return sum;
}

QList<int> resolve(const QString &text, int columns, int available)
{
    QList<int> widths(std::max(0, columns), 0);
    if (columns <= 0)
        return widths;
    const QStringList entries = text.split(u',');
    QList<double> stars(columns, 0.0);
    double starShares = 0;
    int used = 0;
    for (int c = 0; c < columns; ++c) {
        const QString entry = c < entries.size() ? entries.at(c).trimmed() : QString();
        if (entry.isEmpty() || entry.endsWith(u'*')) {
            const QString factor = entry.chopped(entry.isEmpty() ? 0 : 1).trimmed();
            const double share = factor.isEmpty() ? 1.0 : std::max(0.0, leadingNumber(factor));
            stars[c] = share;
            starShares += share;
        } else if (entry.endsWith(u'%')) {
            widths[c] = int(std::lround(available * leadingNumber(entry) / 100.0));
            used += widths[c];
        } else {
            widths[c] = std::max(0, int(std::lround(leadingNumber(entry))));
            used += widths[c];
        }
    }
    if (starShares > 0) {
        const int rest = std::max(0, available - used);
        int given = 0;
        int lastStar = -1;
        for (int c = 0; c < columns; ++c) {
            if (stars[c] <= 0)
                continue;
            widths[c] = int(rest * stars[c] / starShares);
            given += widths[c];
            lastStar = c;
        }
        // The rounding remainder goes to the last star column so they fill the list exactly.
        if (lastStar >= 0)
            widths[lastStar] += rest - given;
    }
    return widths;
}

} // namespace ColumnWidths
