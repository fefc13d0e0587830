#include "schedule/ScheduleStore.h"

#include "app/myDB.h"
#include "schedule/EventDates.h"
#include "schedule/EventsCalendar.h"
#include "schedule/ScheduleChanges.h"

#include <SQLiteCpp/SQLiteCpp.h>

namespace {

const QString kSelect = QStringLiteral(
    "SELECT eventID, SchedDate, BusTime, StartTime, Event, Opponent, OppID, Location, isHome, position FROM Schedule");

ScheduleEntry entryFrom(const Record &r)
{
    ScheduleEntry e;
    e.eventID = r.integer(QStringLiteral("eventID"));
    e.storedDate = r.text(QStringLiteral("SchedDate"));
    e.position = r.integer(QStringLiteral("position"));
    e.event.mDate = EventDates::fromStored(e.storedDate);
    e.event.busTime = r.text(QStringLiteral("BusTime"));
    e.event.startTime = r.text(QStringLiteral("StartTime"));
    e.event.eventType = r.text(QStringLiteral("Event"));
    e.event.opponent = r.text(QStringLiteral("Opponent"));
    e.event.oppID = r.text(QStringLiteral("OppID"));
    e.event.location = r.text(QStringLiteral("Location"));
    e.event.isHome = std::uint8_t(r.integer(QStringLiteral("isHome")));
    return e;
}

Fields fieldsOf(const eventClass &event)
{
    return {{QStringLiteral("SchedDate"), EventDates::toStored(event.mDate)},
            {QStringLiteral("BusTime"), event.busTime},
            {QStringLiteral("StartTime"), event.startTime},
            {QStringLiteral("Event"), event.eventType},
            {QStringLiteral("Opponent"), event.opponent},
            {QStringLiteral("OppID"), event.oppID},
            {QStringLiteral("Location"), event.location},
            {QStringLiteral("isHome"), int(event.isHome)}};
}

// A statement inside runInTransaction: errors throw, so the whole step rolls back.
void run(myDB &db, const QString &sql, const QVariantList &params)
{
    SQLite::Statement statement(*db.tlynData, sql.toUtf8().toStdString());
    myDB::bindAll(statement, params);
    statement.exec();
}

} // namespace

const QString ScheduleStore::kShowAll = QStringLiteral("Show All");

const QStringList &ScheduleStore::filters()
{
    static const QStringList names = {kShowAll, QStringLiteral("Game"), QStringLiteral("Practice"),
                                      QStringLiteral("Scrimmage"), QStringLiteral("Meeting")};
    return names;
}

QList<ScheduleEntry> ScheduleStore::list(const QString &filter) const
{
    // Ties of position (a filtered list numbers only its own rows) keep the
    // order the events were made in.
    const QList<Record> rows =
        filter == kShowAll
            ? m_db.select(kSelect + QStringLiteral(" ORDER BY position ASC, eventID ASC"))
            : m_db.select(kSelect + QStringLiteral(" WHERE Event = ? ORDER BY position ASC, eventID ASC"), {filter});
    QList<ScheduleEntry> entries;
    entries.reserve(rows.size());
    for (const Record &r : rows)
        entries.append(entryFrom(r));
    return entries;
}

std::optional<ScheduleEntry> ScheduleStore::find(qint64 eventID) const
{
    const QList<Record> rows = m_db.select(kSelect + QStringLiteral(" WHERE eventID = ?"), {eventID});
    if (rows.isEmpty())
        return std::nullopt;
    return entryFrom(rows.first());
}

qint64 ScheduleStore::insert(const eventClass &event)
{
    // A new event goes in date order: before the first event of a later
    // day, or at the end. The coach's own order of the others holds.
    QList<qint64> order;
    qsizetype place = -1;
    for (const ScheduleEntry &entry : list(kShowAll)) {
        if (place < 0 && event.mDate.isValid() && entry.event.mDate.isValid() && entry.event.mDate > event.mDate)
            place = order.size();
        order.append(entry.eventID);
    }
    qint64 id = -1;
    const bool ok = m_db.runInTransaction([&] {
        Fields fields = fieldsOf(event);
        fields.append({QStringLiteral("position"), order.size()});
        id = m_db.insert(QStringLiteral("Schedule"), fields);
        if (place >= 0) {
            order.insert(place, id);
            savePositions(order);
        }
    });
    if (!ok || id < 0)
        return -1;
    ScheduleChanges::notify();
    return id;
}

bool ScheduleStore::sortByDate()
{
    QList<ScheduleEntry> entries = list(kShowAll);
    // By day, then start time; an unreadable date goes last.
    const auto startOf = [](const ScheduleEntry &entry) {
        const auto event = EventsCalendar::fromSchedule(entry);
        return event ? event->startDate : QDateTime();
    };
    std::stable_sort(entries.begin(), entries.end(), [&](const ScheduleEntry &a, const ScheduleEntry &b) {
        const QDateTime x = startOf(a), y = startOf(b);
        if (x.isValid() != y.isValid())
            return x.isValid();
        return x < y;
    });
    QList<qint64> order;
    for (const ScheduleEntry &entry : std::as_const(entries))
        order.append(entry.eventID);
    return savePositions(order);
}

bool ScheduleStore::update(qint64 eventID, const eventClass &event)
{
    const bool ok = m_db.update(QStringLiteral("Schedule"), fieldsOf(event), QStringLiteral("eventID"), eventID);
    ScheduleChanges::notify();
    return ok;
}

bool ScheduleStore::isRecorded(qint64 eventID) const
{
    const QVariant recorded = m_db.scalar(
        QStringLiteral("SELECT COUNT(*) FROM Games WHERE schedID = ? AND recorded <> 0"), {QString::number(eventID)});
    return recorded.toLongLong() > 0;
}

ScheduleStore::RemoveResult ScheduleStore::remove(qint64 eventID, const QString &eventType)
{
    // The check covers every type: an event whose game was recorded keeps
    // its stats even if its type was changed afterwards.
    if (isRecorded(eventID))
        return RemoveResult::Recorded;
    const QString id = QString::number(eventID);
    const bool ok = m_db.runInTransaction([&] {
        run(m_db, QStringLiteral("DELETE FROM Schedule WHERE eventID = ?"), {eventID});
        if (eventType == u"Game")
            run(m_db, QStringLiteral("DELETE FROM Games WHERE schedID = ?"), {id});
        else if (eventType == u"Practice")
            run(m_db, QStringLiteral("DELETE FROM Drills WHERE scheduleID = ?"), {id});
    });
    if (ok)
        ScheduleChanges::notify();
    return ok ? RemoveResult::Removed : RemoveResult::Failed;
}

bool ScheduleStore::removeUnreadable(const QList<qint64> &eventIDs)
{
    const bool ok = m_db.runInTransaction([&] {
        for (qint64 id : eventIDs)
            m_db.exec(QStringLiteral("DELETE FROM Schedule WHERE eventID = ?"), {id});
    });
    ScheduleChanges::notify();
    return ok;
}

bool ScheduleStore::savePositions(const QList<qint64> &eventIDs)
{
    const bool ok = m_db.runInTransaction([&] {
        SQLite::Statement statement(*m_db.tlynData, "UPDATE Schedule SET position = ? WHERE eventID = ?");
        for (int i = 0; i < eventIDs.size(); ++i) {
            statement.reset();
            statement.bind(1, i);
            statement.bind(2, static_cast<int64_t>(eventIDs.at(i)));
            statement.exec();
        }
    });
    ScheduleChanges::notify();
    return ok;
}

QList<OpponentEntry> ScheduleStore::teams() const
{
    QList<OpponentEntry> list;
    const QList<Record> rows = m_db.select(
        QStringLiteral("SELECT TeamName, teamID, SchoolName FROM Teams ORDER BY TeamName COLLATE NOCASE, teamID"));
    for (const Record &r : rows)
        list.append({r.text(QStringLiteral("TeamName")), r.text(QStringLiteral("teamID")),
                     r.text(QStringLiteral("SchoolName"))});
    return list;
}

QStringList ScheduleStore::locations() const
{
    QStringList list;
    const QList<Record> rows = m_db.select(QStringLiteral(
        "SELECT DISTINCT HomeField FROM Teams WHERE HomeField IS NOT NULL AND HomeField <> '' ORDER BY HomeField"));
    for (const Record &r : rows)
        list.append(r.text(QStringLiteral("HomeField")));
    return list;
}

std::optional<QString> ScheduleStore::homeField(const QString &teamID) const
{
    if (teamID.isEmpty())
        return std::nullopt;
    const QList<Record> rows = m_db.select(QStringLiteral("SELECT HomeField FROM Teams WHERE teamID = ?"), {teamID});
    if (rows.isEmpty())
        return std::nullopt;
    return rows.first().text(QStringLiteral("HomeField"));
}
