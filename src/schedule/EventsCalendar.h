#pragma once

#include "schedule/mcEventDataClass.h"

#include <QColor>
#include <QDate>
#include <QFont>
#include <QList>
#include <QString>
#include <optional>

class MonthEventsCalendar;
class QPainter;
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

// A schedule row as the calendar shows it: one day, at the start time's
// hour and minute, with a subject such as "7:30 Practice". A start time of
// "---" or none reads as 0:00. Gives nothing for a row without a readable
// date.
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
