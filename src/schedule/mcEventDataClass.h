#pragma once

#include <QColor>
#include <QDateTime>
#include <QString>
#include <cstdint>

// One event as its owner hands it to the month calendar. The calendar keeps
// a copy; `gUID` is the key by which the owner finds it again.
class mcEventDataClass
{
public:
    QDateTime startDate; // first day of the event, with its start time
    QDateTime endDate;   // last day of the event
    QString subject;     // the text on the bar
    bool allDay = false; // a filled bar with white text rather than coloured text
    QString gUID;
    QColor eventColor;
    QString location;
    QString Opponent;
    std::int64_t EventID = 0;

    bool operator==(const mcEventDataClass &) const = default;
};
