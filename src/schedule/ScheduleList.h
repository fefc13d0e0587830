#pragma once

#include "schedule/ScheduleStore.h"

#include <QList>
#include <QString>
#include <QStringList>

class myDB;

// The schedule screen without its window: the events shown under the
// current filter, in order, and what adding, editing, deleting and moving
// them does to the season and tells the coach. The screen mirrors `rows`
// in its list box, row for row.
class ScheduleList
{
public:
    explicit ScheduleList(myDB &db);

    // "Date", "Bus Departs", "Start Time", "Event", "Opponent", "Location", "H".
    static const QStringList &headings();
    // The column widths of the wide printout, in points.
    static const QStringList &printWidths();
    // The H column: 0 "-", 1 "H", 2 "A".
    static QString getHomeValue(int code);
    // One list row: short date, bus time, start time, event, opponent,
    // location and the H column.
    static QStringList cells(const ScheduleEntry &entry);
    // The data button's caption for an event type: "Enter Game Data",
    // "Practice Plan", or "---" for a type that has no data screen.
    static QString dataButtonCaption(const QString &eventType);

    const QString &filter() const { return m_filter; }
    const QList<ScheduleEntry> &rows() const { return m_rows; }
    int rowOf(qint64 eventID) const;

    // Fills `rows` with the events of `filter`. A row whose date can't be
    // read is reported once and deleted, as the schedule can't show it.
    void loadScheduleLB(const QString &filter);
    // Stores a new event in date order and reloads the rows: the new
    // eventID, or -1.
    qint64 addNewItem(const eventClass &event);
    // Orders the whole schedule by date and time and reloads the rows.
    bool sortByDate();
    // Stores the changes of an event and reloads the list under its filter.
    bool editEventItem(qint64 eventID, const eventClass &event);
    // Asks, then deletes the event of `row` with its game or practice data;
    // a recorded game is refused. True when the row went.
    bool deleteEvent(int row);
    // The list box moved a row: `order` is the rows' event ids as the list
    // now stands. The whole schedule's order is written at once.
    bool rowsReordered(const QList<qint64> &order);
    // Writes the order of the whole schedule, in one step: the listed events
    // in their shown order, in the places they hold among all events, so
    // that an order arranged under a filter is the order under any other.
    bool saveLBandPos();
    // The whole schedule's order with the events of `shown` put in the
    // places that those events hold in `all`, in the order of `shown`.
    static QList<qint64> mergedOrder(const QList<qint64> &all, const QList<qint64> &shown);

    // The home team's name, or empty text when none is set.
    QString homeTeamName() const;
    // Tells the coach to make a home team first when none is set; true when
    // the message was shown.
    static bool warnWithoutHomeTeam();

private:
    ScheduleStore m_store;
    myDB &m_db;
    QString m_filter = ScheduleStore::kShowAll;
    QList<ScheduleEntry> m_rows;
};
