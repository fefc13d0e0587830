#pragma once

#include <QDate>
#include <QString>

#include <cstdint>

// One event as it travels between the event editor and the screens that
// store it: the eight stored fields of a Schedule row.
class eventClass
{
public:
    QDate mDate;                          // SchedDate; invalid while no date has been chosen
    QString busTime;                      // BusTime: "7:05 PM" or "---"
    QString startTime;                    // StartTime, in the same form
    QString eventType;                    // Event: "Game", "Practice", ... or the coach's own word
    QString opponent;                     // Opponent: a team's name, "N/A", or empty
    QString location;                     // Location
    QString oppID = QStringLiteral("-1"); // OppID: the opponent's teamID, or "-1"
    std::uint8_t isHome = 0;              // 0 not a game, 1 home, 2 away

    bool operator==(const eventClass &) const = default;
};
