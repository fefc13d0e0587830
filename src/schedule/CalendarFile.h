#pragma once

// The schedule as an iCalendar file (RFC 5545), made with libical, for the
// calendars of players and parents. Every dated event is one VEVENT whose
// UID is built from its event id and the season, so exporting again after
// a change updates the same events in a calendar that subscribed to or
// imported the file. A game reads "Celtics vs Wildcats" at home and
// "Celtics at Patriots" away. An event with a start time lasts two hours
// from it (a floating local time: the coach's wall clock); one without is
// a whole-day event. A bus time goes into the description and sets an
// alarm at that time.

#include "schedule/ScheduleStore.h"

#include <QByteArray>
#include <QDateTime>
#include <QList>
#include <QString>

namespace schedule {

struct CalendarEvent
{
    QString uid;
    QString summary;
    QString location;
    QString description;
    QDateTime start; // local, floating; time invalid for a whole-day event
    QDate day;
    bool allDay = false;
    QDateTime alarm; // the bus time, or invalid
};

// The file's text (CR LF line ends, UTF-8). `team` is the coach's team,
// `season` the season's name; `stamp` is DTSTAMP, the time of the export.
QByteArray calendarFile(const QList<ScheduleEntry> &entries, const QString &team, const QString &season,
                        const QDateTime &stamp);

// The VEVENTs of an iCalendar text, read through libical; empty when it
// doesn't parse.
QList<CalendarEvent> readCalendar(const QByteArray &text);

// "7:05 PM" as a time; invalid for "---" or anything else.
QTime storedTime(const QString &text);

} // namespace schedule
