#include "schedule/ScheduleList.h"

#include "app/globals.h"
#include "app/myDB.h"
#include "app/myPrefs.h"
#include "schedule/EventDates.h"

#include <QSet>

ScheduleList::ScheduleList(myDB &db) : m_store(db), m_db(db) {}

const QStringList &ScheduleList::headings()
{
    static const QStringList names = {QStringLiteral("Date"),       QStringLiteral("Bus Departs"),
                                      QStringLiteral("Start Time"), QStringLiteral("Event"),
                                      QStringLiteral("Opponent"),   QStringLiteral("Location"),
                                      QStringLiteral("H")};
    return names;
}

const QStringList &ScheduleList::printWidths()
{
    static const QStringList widths = {QStringLiteral("95"),  QStringLiteral("77"),  QStringLiteral("77"),
                                       QStringLiteral("117"), QStringLiteral("117"), QStringLiteral("155"),
                                       QStringLiteral("10")};
    return widths;
}

QString ScheduleList::getHomeValue(int code)
{
    switch (code) {
    case 1:
        return QStringLiteral("H");
    case 2:
        return QStringLiteral("A");
    default:
        return QStringLiteral("-");
    }
}

QStringList ScheduleList::cells(const ScheduleEntry &entry)
{
    const eventClass &e = entry.event;
    return {EventDates::shortDate(e.mDate), e.busTime, e.startTime, e.eventType, e.opponent, e.location,
            getHomeValue(e.isHome)};
}

QString ScheduleList::dataButtonCaption(const QString &eventType)
{
    if (eventType == u"Practice")
        return QStringLiteral("Practice Plan");
    if (eventType == u"Game")
        return QStringLiteral("Enter Game Data");
    return QStringLiteral("---");
}

int ScheduleList::rowOf(qint64 eventID) const
{
    for (int i = 0; i < m_rows.size(); ++i) {
        if (m_rows.at(i).eventID == eventID)
            return i;
    }
    return -1;
}

void ScheduleList::loadScheduleLB(const QString &filter)
{
    m_filter = filter;
    m_rows.clear();
    QList<qint64> unreadable;
    for (ScheduleEntry &entry : m_store.list(filter)) {
        if (!entry.event.mDate.isValid()) {
            if (unreadable.isEmpty())
                gShowMsgDlog(QStringLiteral("There was an error reading the schedules."),
                             QStringLiteral("Some data may need to be recreated."), QStringLiteral("OK"));
            unreadable.append(entry.eventID);
            continue;
        }
        m_rows.append(std::move(entry));
    }
    if (!unreadable.isEmpty())
        m_store.removeUnreadable(unreadable);
}

qint64 ScheduleList::addNewItem(const eventClass &event)
{
    const qint64 id = m_store.insert(event);
    if (id < 0)
        return -1;
    // It takes its place by date.
    loadScheduleLB(m_filter);
    return id;
}

bool ScheduleList::sortByDate()
{
    const bool ok = m_store.sortByDate();
    loadScheduleLB(m_filter);
    return ok;
}

bool ScheduleList::editEventItem(qint64 eventID, const eventClass &event)
{
    const bool ok = m_store.update(eventID, event);
    loadScheduleLB(m_filter);
    return ok;
}

bool ScheduleList::deleteEvent(int row)
{
    if (row < 0 || row >= m_rows.size())
        return false;
    if (gShowMsgDlog(QStringLiteral("Are you sure you wish to delete this event?"),
                     QStringLiteral("This action cannot be undone"), QStringLiteral("Delete")) != 0)
        return false;
    const ScheduleEntry &entry = m_rows.at(row);
    switch (m_store.remove(entry.eventID, entry.event.eventType)) {
    case ScheduleStore::RemoveResult::Recorded:
        gShowMsgDlog(QStringLiteral("The stats for this game have been recorded."),
                     QStringLiteral("This event cannot be deleted."), QStringLiteral("Continue"));
        return false;
    case ScheduleStore::RemoveResult::Failed:
        return false;
    case ScheduleStore::RemoveResult::Removed:
        break;
    }
    m_rows.removeAt(row);
    return true;
}

bool ScheduleList::rowsReordered(const QList<qint64> &order)
{
    QList<ScheduleEntry> reordered;
    reordered.reserve(m_rows.size());
    for (qint64 id : order) {
        const int at = rowOf(id);
        if (at >= 0)
            reordered.append(m_rows.at(at));
    }
    if (reordered.size() != m_rows.size())
        return false; // not this list's rows: leave everything as it was
    m_rows = reordered;
    return saveLBandPos();
}

QList<qint64> ScheduleList::mergedOrder(const QList<qint64> &all, const QList<qint64> &shown)
{
    const QSet<qint64> listed(shown.cbegin(), shown.cend());
    QList<qint64> merged;
    merged.reserve(all.size());
    qsizetype next = 0;
    for (qint64 id : all)
        merged.append(listed.contains(id) && next < shown.size() ? shown.at(next++) : id);
    return merged;
}

bool ScheduleList::saveLBandPos()
{
    QList<qint64> all;
    for (const ScheduleEntry &entry : m_store.list(ScheduleStore::kShowAll))
        all.append(entry.eventID);
    QList<qint64> shown;
    shown.reserve(m_rows.size());
    for (const ScheduleEntry &entry : std::as_const(m_rows))
        shown.append(entry.eventID);
    const QList<qint64> merged = mergedOrder(all, shown);
    if (!m_store.savePositions(merged))
        return false;
    for (ScheduleEntry &entry : m_rows)
        entry.position = int(merged.indexOf(entry.eventID));
    return true;
}

QString ScheduleList::homeTeamName() const
{
    if (!gPrefs || gPrefs->prHomeTeam.isEmpty())
        return {};
    return m_db.getTeamNameFromID(gPrefs->prHomeTeam, false);
}

bool ScheduleList::warnWithoutHomeTeam()
{
    if (gPrefs && !gPrefs->prHomeTeam.isEmpty())
        return false;
    gShowMsgDlog(QStringLiteral("Before scheduling, you must create at least 1 team and designate it as 'Home Team'"),
                 QStringLiteral("Close this screen to proceed."), QStringLiteral("OK"));
    return true;
}
