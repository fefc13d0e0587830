#pragma once

#include "schedule/MonthEventsCalendar.h"

#include <QWidget>

// The month calendar with its events on screen. Everything it shows and
// every rule of a press lives in the MonthEventsCalendar it holds
// (calendar()); the widget paints it and forwards the mouse and the keys.
//
// Keyboard: the arrow keys move the selected day (a week up or down),
// Page Up and Page Down turn the month, Space selects the day's events in
// turn, and Return is told to the calendar and then passed on to the window.
class monthlyEventsLayer : public QWidget
{
    Q_OBJECT

public:
    explicit monthlyEventsLayer(QWidget *parent = nullptr);

    MonthEventsCalendar &calendar() { return m_calendar; }
    const MonthEventsCalendar &calendar() const { return m_calendar; }

    QSize sizeHint() const override { return {701, 476}; }
    QSize minimumSizeHint() const override { return {351, 236}; }

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void describe();

    MonthEventsCalendar m_calendar;
};
