#pragma once

#include "schedule/MonthCalendar.h"
#include "schedule/mcDisplayDataClass.h"
#include "schedule/mcEventDataClass.h"

#include <QList>

// The month calendar with events in its day cells. Each event of the month
// on show is painted as a bar in every cell it covers; a cell too full for
// another bar shows a "More (n)..." strip at its foot instead. Presses,
// double presses and the Return key become signals that name a date, an
// event or a strip.
//
// What a press hits is answered from displayData(), the bars and strips as
// they are painted, so hit testing needs no window.
class MonthEventsCalendar : public MonthCalendar
{
    Q_OBJECT

public:
    static constexpr double kBarHeight = 12;
    static constexpr double kBarStep = 14;
    static constexpr double kStripHeight = 10;
    static const QColor kSelectedColor;
    static const QColor kStripColor;

    explicit MonthEventsCalendar(QObject *parent = nullptr);

    // Keeps a copy of `event` under `gUID`, or under the decimal text of its
    // EventID when `gUID` is blank, and gives that key. Keys needn't be
    // unique; the operations by key act on the first event holding it.
    QString addEvent(const mcEventDataClass &event, const QString &gUID = {}, bool refresh = true);
    // Replaces the first event with that key by `event` (its key too).
    void EditEvent(const mcEventDataClass &event, const QString &gUID, bool refresh = true);
    void deleteEvent(const QString &gUID, bool refresh = true);
    void selectEvent(const QString &gUID);
    void deselectEvents();
    void clearEvents();

    const QList<mcEventDataClass> &eventData() const { return m_events; }
    int selectedEvent() const { return m_selectedEvent; }
    bool moreSelected() const { return m_moreSelected; }

    // True when `date` falls on the day of `start` or of `end`, or between
    // them.
    static bool isWithin(const QDateTime &start, const QDateTime &end, const QDateTime &date);

    // The bars and "More" strips of the month on show, in painting order.
    QList<mcDisplayDataClass> displayData() const;
    // How many events a cell's strip stands for (0 without a strip).
    int overflowed(int cell) const;
    QSizeF barSize() const { return {UnitH() - UnitH() * 0.05, kBarHeight}; }

    // A press at `point` (a contextual one, or the second press of a double
    // click); then its release. A press off the grid changes nothing.
    void press(const QPointF &point, bool contextual, bool doubleClick);
    void release();
    void returnKey();

    // Keyboard: moves the selected date by `days`, as a press on that day's
    // empty space would.
    void moveDate(int days);
    // Selects the next event painted in the selected date's cell, as a
    // press on its bar would; after the last one the first again.
    void selectNextEventOfDay();

    void paint(QPainter &painter, const QFont &font) const override;

Q_SIGNALS:
    void eventClicked(const mcEventDataClass &event);
    void eventDoubleClicked(const mcEventDataClass &event);
    void moreClicked(const QDate &date);
    void moreDoubleClicked(const QDate &date);
    void noEventSelected();
    void rightClickOnEvent(const mcEventDataClass &event);
    void rightClickOnDate(const QDate &date);
    void doubleClickedOnDate(const QDate &date);
    void rightClickOnMore(const QDate &date);
    void returnKeyOnDate(const QDate &date);
    void returnKeyOnEvent(const mcEventDataClass &event);

private:
    struct Layout
    {
        QList<mcDisplayDataClass> records;
        std::array<int, kCells> overflowed{};
    };
    Layout layout() const;
    void paintBar(QPainter &painter, const QFont &font, const mcDisplayDataClass &record) const;
    int indexOfKey(const QString &gUID) const;

    QList<mcEventDataClass> m_events;
    int m_selectedEvent = -1;
    bool m_isDoubleClick = false;
    bool m_moreSelected = false;
};
