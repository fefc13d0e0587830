#include "schedule/EventsCalendar.h"

#include "app/globals.h"
#include "platform/Printing.h"
#include "schedule/EventDates.h"
#include "schedule/MonthEventsCalendar.h"
#include "schedule/ScheduleStore.h"

#include <QLocale>
#include <QPainter>
#include <algorithm>

namespace EventsCalendar {

QString timeText(const QTime &time, const QLocale &locale)
{
    // The locale decides between "7:30 PM" and "19:30"; seconds never show.
    const QString format = locale.timeFormat(QLocale::ShortFormat);
    const bool twelveHours = format.contains(u'a', Qt::CaseInsensitive);
    return locale.toString(time, twelveHours ? QStringLiteral("h:mm AP") : QStringLiteral("HH:mm"));
}

std::optional<mcEventDataClass> fromSchedule(const ScheduleEntry &entry)
{
    if (!entry.event.mDate.isValid())
        return std::nullopt;
    // "7:30 PM" is 19:30; "12:15 AM" a quarter past midnight. A time
    // without AM or PM stands as written.
    const auto parts = gParseTimeStr(entry.event.startTime);
    int hour = parts[0].trimmed().toInt() % 24;
    const int minute = parts[1].trimmed().toInt() % 60;
    const QString half = entry.event.startTime.trimmed().right(2).toUpper();
    if (half == u"PM" && hour < 12)
        hour += 12;
    else if (half == u"AM" && hour == 12)
        hour = 0;
    const bool timed = !entry.event.startTime.trimmed().isEmpty() && entry.event.startTime != u"---";
    mcEventDataClass event;
    event.startDate = QDateTime(entry.event.mDate, QTime(hour, minute));
    event.endDate = event.startDate;
    event.allDay = false;
    event.eventColor = kEventColor;
    event.EventID = entry.eventID;
    event.subject = timed ? timeText(event.startDate.time(), QLocale()) + u' ' + entry.event.eventType
                          : entry.event.eventType;
    event.location = entry.event.location;
    event.Opponent = entry.event.opponent;
    return event;
}

QList<mcEventDataClass> fromSchedule(const QList<ScheduleEntry> &entries)
{
    QList<mcEventDataClass> events;
    for (const ScheduleEntry &entry : entries) {
        if (auto event = fromSchedule(entry))
            events.append(*event);
    }
    return events;
}

QString infoText(const mcEventDataClass &event)
{
    QString text = event.subject + QStringLiteral(" @ ") + event.location;
    if (event.Opponent.size() > 1)
        text += QStringLiteral(" with ") + event.Opponent;
    return text;
}

void printOneCopy(QPainter &painter, const platform::PrinterSetup &setup, const MonthEventsCalendar &calendar,
                  const QString &teamName, const QDate &today, const QFont &font)
{
    const double x = setup.left();
    double y = setup.top() + 36;
    painter.save();
    painter.setFont(platform::printFont(font, 12));
    painter.setPen(Qt::black);
    painter.drawText(QPointF(x, y), QStringLiteral("Schedule for: ") + teamName);
    y += 18;
    painter.drawText(QPointF(x, y), QStringLiteral("Printed On: ") + EventDates::longDate(today));
    y += 36;

    const QSizeF size = calendar.size();
    const double scale = std::min({1.0, (setup.width() - x) / size.width(), (setup.height() - y) / size.height()});
    painter.translate(x, y);
    painter.scale(scale, scale);
    painter.setClipRect(QRectF(QPointF(0, 0), size));
    calendar.paint(painter, font);
    painter.restore();
}

} // namespace EventsCalendar
