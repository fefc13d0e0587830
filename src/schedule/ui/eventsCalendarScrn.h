#pragma once

#include "app/ui/ScreenBase.h"

class QLabel;
class QPushButton;
class monthlyEventsLayer;

// The season's schedule on a month calendar, to read: the coach turns the
// months, clicks an event to read it in the line under the calendar, and
// prints the month. Opens beside the start screen. Return closes it.
class eventsCalendarScrn : public ScreenBase
{
    Q_OBJECT

public:
    explicit eventsCalendarScrn(QWidget *parent = nullptr);

    // Puts the season's events on the calendar.
    void fillEvents();
    void hndlPrint();

protected:
    void changeEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void turnMonth(int step);
    monthlyEventsLayer *eventCalendar1 = nullptr;
    QPushButton *prevBtn = nullptr;
    QPushButton *nextBtn = nullptr;
    QPushButton *printBtn = nullptr;
    QPushButton *closeBtn = nullptr;
    QLabel *infoLabel = nullptr;
};
