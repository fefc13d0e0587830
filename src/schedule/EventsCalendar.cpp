#include "schedule/EventsCalendar.h"

#include "app/globals.h"
#include "platform/Printing.h"
#include "schedule/EventDates.h"
#include "schedule/MonthEventsCalendar.h"
#include "schedule/ScheduleStore.h"

#include <QPainter>
#include <algorithm>

namespace EventsCalendar {

std::optional<mcEventDataClass> fromSchedule(const ScheduleEntry &entry)
{
    if (!entry.event.mDate.isValid())
        return std::nullopt;
    // The hour is taken as written: "7:30 PM" stands at 7:30, as the
    // subject shows it.
    const auto time = gParseTimeStr(entry.event.startTime);
    const int hour = time[0].trimmed().toInt();
    const int minute = time[1].trimmed().toInt();
    mcEventDataClass event;
    event.startDate = QDateTime(entry.event.mDate, QTime(hour % 24, minute % 60));
    event.endDate = event.startDate;
    event.allDay = false;
    event.eventColor = kEventColor;
    event.EventID = entry.eventID;
    event.subject = QStringLiteral("%1:%2 %3").arg(hour).arg(minute, 2, 10, QChar(u'0')).arg(entry.event.eventType);
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
