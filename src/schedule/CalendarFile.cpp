#include "schedule/CalendarFile.h"

#include <libical/ical.h>

#include <memory>

namespace schedule {

namespace {

constexpr int kEventSeconds = 2 * 60 * 60;

struct ComponentFree
{
    void operator()(icalcomponent *c) const { icalcomponent_free(c); }
};
using Component = std::unique_ptr<icalcomponent, ComponentFree>;

QByteArray utf8(const QString &text)
{
    return text.toUtf8();
}

icaltimetype dateTime(const QDateTime &at)
{
    icaltimetype t = icaltime_null_time();
    t.year = at.date().year();
    t.month = at.date().month();
    t.day = at.date().day();
    t.hour = at.time().hour();
    t.minute = at.time().minute();
    t.second = at.time().second();
    return t; // no zone: floating local time
}

icaltimetype dateOnly(const QDate &day)
{
    icaltimetype t = icaltime_null_date();
    t.year = day.year();
    t.month = day.month();
    t.day = day.day();
    return t;
}

icaltimetype utcStamp(const QDateTime &stamp)
{
    icaltimetype t = dateTime(stamp.toUTC());
    t.zone = icaltimezone_get_utc_timezone();
    return t;
}

QDateTime fromIcal(const icaltimetype &t)
{
    return QDateTime(QDate(t.year, t.month, t.day), QTime(t.hour, t.minute, t.second));
}

QString summaryOf(const eventClass &e, const QString &team)
{
    const QString opponent = e.opponent.trimmed();
    const bool hasOpponent = !opponent.isEmpty() && opponent != u"N/A";
    if (e.isHome == 1 && hasOpponent)
        return team + QStringLiteral(" vs ") + opponent;
    if (e.isHome == 2 && hasOpponent)
        return team + QStringLiteral(" at ") + opponent;
    if (hasOpponent)
        return e.eventType + QStringLiteral(": ") + opponent;
    return e.eventType;
}

QString descriptionOf(const eventClass &e, const QTime &bus)
{
    QStringList lines;
    if (e.isHome == 1)
        lines.append(QStringLiteral("Home game"));
    else if (e.isHome == 2)
        lines.append(QStringLiteral("Away game"));
    if (bus.isValid())
        lines.append(QStringLiteral("Bus: ") + e.busTime.trimmed());
    return lines.join(u'\n');
}

} // namespace

QTime storedTime(const QString &text)
{
    const QTime t = QTime::fromString(text.trimmed().toUpper(), QStringLiteral("h:mm AP"));
    return t.isValid() ? t : QTime();
}

QByteArray calendarFile(const QList<ScheduleEntry> &entries, const QString &team, const QString &season,
                        const QDateTime &stamp)
{
    Component calendar(icalcomponent_new_vcalendar());
    icalcomponent_add_property(calendar.get(), icalproperty_new_version("2.0"));
    icalcomponent_add_property(calendar.get(), icalproperty_new_prodid("-//Tallyline//Tallyline Baseball//EN"));
    icalcomponent_add_property(calendar.get(), icalproperty_new_calscale("GREGORIAN"));
    {
        icalproperty *name = icalproperty_new_x(utf8(team + u' ' + season).constData());
        icalproperty_set_x_name(name, "X-WR-CALNAME");
        icalcomponent_add_property(calendar.get(), name);
    }
    const icaltimetype stampTime = utcStamp(stamp);
    for (const ScheduleEntry &entry : entries) {
        const eventClass &e = entry.event;
        if (!e.mDate.isValid())
            continue; // a row whose date can't be read has no place in a calendar
        icalcomponent *event = icalcomponent_new_vevent();
        const QByteArray uid = utf8(QStringLiteral("event-") + QString::number(entry.eventID) + u'-' + season +
                                    QStringLiteral("@tallyline"));
        icalcomponent_add_property(event, icalproperty_new_uid(uid.constData()));
        icalcomponent_add_property(event, icalproperty_new_dtstamp(stampTime));
        const QTime start = storedTime(e.startTime);
        const QTime bus = storedTime(e.busTime);
        if (start.isValid()) {
            const QDateTime from(e.mDate, start);
            icalcomponent_add_property(event, icalproperty_new_dtstart(dateTime(from)));
            icalcomponent_add_property(event, icalproperty_new_dtend(dateTime(from.addSecs(kEventSeconds))));
        } else {
            icalcomponent_add_property(event, icalproperty_new_dtstart(dateOnly(e.mDate)));
            icalcomponent_add_property(event, icalproperty_new_dtend(dateOnly(e.mDate.addDays(1))));
        }
        icalcomponent_add_property(event, icalproperty_new_summary(utf8(summaryOf(e, team)).constData()));
        if (!e.location.trimmed().isEmpty())
            icalcomponent_add_property(event, icalproperty_new_location(utf8(e.location.trimmed()).constData()));
        const QString description = descriptionOf(e, bus);
        if (!description.isEmpty())
            icalcomponent_add_property(event, icalproperty_new_description(utf8(description).constData()));
        if (bus.isValid()) {
            icalcomponent *alarm = icalcomponent_new_valarm();
            icalcomponent_add_property(alarm, icalproperty_new_action(ICAL_ACTION_DISPLAY));
            icalcomponent_add_property(alarm, icalproperty_new_description(
                                                  utf8(QStringLiteral("Bus at ") + e.busTime.trimmed()).constData()));
            icaltriggertype trigger;
            trigger.time = icaltime_null_time();
            trigger.duration = icaldurationtype_null_duration();
            if (start.isValid()) {
                // Before the start by the time between the bus and the start.
                trigger.duration = icaldurationtype_from_int(int(start.secsTo(bus)));
            } else {
                icaltimetype at = dateTime(QDateTime(e.mDate, bus));
                trigger.time = at;
            }
            icalcomponent_add_property(alarm, icalproperty_new_trigger(trigger));
            icalcomponent_add_component(event, alarm);
        }
        icalcomponent_add_component(calendar.get(), event);
    }
    char *text = icalcomponent_as_ical_string_r(calendar.get());
    const QByteArray out(text);
    icalmemory_free_buffer(text);
    return out;
}

QList<CalendarEvent> readCalendar(const QByteArray &text)
{
    QList<CalendarEvent> out;
    Component calendar(icalparser_parse_string(text.constData()));
    if (!calendar)
        return out;
    for (icalcomponent *event = icalcomponent_get_first_component(calendar.get(), ICAL_VEVENT_COMPONENT); event;
         event = icalcomponent_get_next_component(calendar.get(), ICAL_VEVENT_COMPONENT)) {
        CalendarEvent e;
        const auto utf8 = [](const char *value) { return value ? QString::fromUtf8(value) : QString(); };
        e.uid = utf8(icalcomponent_get_uid(event));
        e.summary = utf8(icalcomponent_get_summary(event));
        e.location = utf8(icalcomponent_get_location(event));
        e.description = utf8(icalcomponent_get_description(event));
        const icaltimetype start = icalcomponent_get_dtstart(event);
        e.allDay = start.is_date != 0;
        e.day = QDate(start.year, start.month, start.day);
        if (!e.allDay)
            e.start = fromIcal(start);
        if (icalcomponent *alarm = icalcomponent_get_first_component(event, ICAL_VALARM_COMPONENT)) {
            if (icalproperty *p = icalcomponent_get_first_property(alarm, ICAL_TRIGGER_PROPERTY)) {
                const icaltriggertype trigger = icalproperty_get_trigger(p);
                if (!icaltime_is_null_time(trigger.time))
                    e.alarm = fromIcal(trigger.time);
                else if (e.start.isValid())
                    e.alarm = e.start.addSecs(icaldurationtype_as_int(trigger.duration));
            }
        }
        out.append(e);
    }
    return out;
}

} // namespace schedule
