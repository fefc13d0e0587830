#pragma once

#include "schedule/EventForm.h"
#include "schedule/eventClass.h"

#include <QList>
#include <QString>

#include <optional>

class myDB;

// One Schedule row: its id, its stored date text and the event it holds.
struct ScheduleEntry
{
    qint64 eventID = -1;
    QString storedDate; // SchedDate as stored; event.mDate is invalid when it doesn't read
    eventClass event;
    qint64 position = 0;
};

// The season's schedule in table Schedule, and the rows that hang off an
// event: a game's Games row and a practice's Drills. Shows nothing itself
// beyond the database's own error report; callers decide what to tell the
// coach. Every change is announced through ScheduleChanges.
class ScheduleStore
{
public:
    explicit ScheduleStore(myDB &db) : m_db(db) {}

    // "Show All", "Game", "Practice", "Scrimmage", "Meeting".
    static const QStringList &filters();
    static const QString kShowAll;

    // Every event of type `filter` ("Show All" for all), in schedule order.
    // Rows whose stored date can't be read come back with an invalid date.
    QList<ScheduleEntry> list(const QString &filter) const;
    std::optional<ScheduleEntry> find(qint64 eventID) const;

    // Adds an event in date order: before the first event of a later day,
    // else at the end; the others keep their order. Its id, or -1.
    qint64 insert(const eventClass &event);
    // Orders the whole schedule by date and start time, in one step.
    bool sortByDate();
    bool update(qint64 eventID, const eventClass &event);

    // Whether the game of this event has been recorded into the season's
    // totals: such an event must stay.
    bool isRecorded(qint64 eventID) const;
    enum class RemoveResult { Removed, Recorded, Failed };
    // Deletes the event with its game data (a Games row) or practice plan
    // (its Drills) in one step, unless its game has been recorded.
    RemoveResult remove(qint64 eventID, const QString &eventType);
    // Deletes the rows the schedule couldn't read, in one step.
    bool removeUnreadable(const QList<qint64> &eventIDs);

    // Numbers the events 0, 1, 2 ... in the order given, in one step.
    bool savePositions(const QList<qint64> &eventIDs);

    // The editor's lists: the teams (by name) and the fields they play on.
    QList<OpponentEntry> teams() const;
    QStringList locations() const;
    // The home field of a team, or nothing when the team isn't there.
    std::optional<QString> homeField(const QString &teamID) const;

private:
    myDB &m_db;
};
