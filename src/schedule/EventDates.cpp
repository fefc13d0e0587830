#include "schedule/EventDates.h"

#include <QLocale>

namespace EventDates {

QString toStored(const QDate &date)
{
    return date.isValid() ? date.toString(Qt::ISODate) : QString();
}

QDate fromStored(const QString &text)
{
    const QString t = text.trimmed();
    // A date-time keeps its date; the time part of a schedule date means nothing.
    if (t.size() == 19 && t.at(10) == u' ')
        return QDate::fromString(t.left(10), Qt::ISODate);
    if (t.size() != 10)
        return {};
    return QDate::fromString(t, Qt::ISODate);
}

QString shortDate(const QDate &date)
{
    return QLocale().toString(date, QLocale::ShortFormat);
}

QString longDate(const QDate &date)
{
    return QLocale().toString(date, QLocale::LongFormat);
}

QDate readShown(const QString &text)
{
    const QString t = text.trimmed();
    if (t.isEmpty())
        return {};
    const QLocale locale;
    QDate date = locale.toDate(t, QLocale::LongFormat);
    if (!date.isValid()) {
        // A short date's two-digit year reads as 1900 + yy; dates of this
        // program are this century's.
        date = locale.toDate(t, QLocale::ShortFormat);
        if (date.isValid() && date.year() < 1950)
            date = date.addYears(100);
    }
    if (!date.isValid())
        date = fromStored(t);
    return date;
}

} // namespace EventDates
