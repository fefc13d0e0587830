#pragma once

#include "schedule/mcEventDataClass.h"

#include <QColor>
#include <QDate>
#include <QFont>
#include <QList>
#include <QString>
#include <optional>

class MonthEventsCalendar;
class QLocale;
class QPainter;
class QTime;
struct ScheduleEntry;

namespace platform {
class PrinterSetup;
}

// The rules of the events calendar screen: how a schedule row becomes an
// event on the calendar, what the line under the calendar says, and the
// printed page.
namespace EventsCalendar {

// Every event is painted in this blue.
inline const QColor kEventColor = QColor(6, 100, 255);

// A start time as the locale writes it: "7:30 PM", or "19:30" where the
// clock runs to 24 hours.
QString timeText(const QTime &time, const QLocale &locale);

// A schedule row as the calendar shows it: one day, at the start time
// (AM and PM read), with a subject such as "3:30 PM Practice". A start time
// of "---" or none stands at 0:00 with the type alone. Gives nothing for a
// row without a readable date.
std::optional<mcEventDataClass> fromSchedule(const ScheduleEntry &entry);
QList<mcEventDataClass> fromSchedule(const QList<ScheduleEntry> &entries);

// "7:30 Game @ Riverside with Bears"; the opponent only when it is longer
// than one character.
QString infoText(const mcEventDataClass &event);

// One copy of the printed month: "Schedule for: " and the team, "Printed
// On: " and today's date, then the calendar as it stands on the screen,
// made smaller where the page is narrower than the screen.
void printOneCopy(QPainter &painter, const platform::PrinterSetup &setup, const MonthEventsCalendar &calendar,
                  const QString &teamName, const QDate &today, const QFont &font);

} // namespace EventsCalendar
