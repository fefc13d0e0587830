#pragma once

#include <QString>
#include <cstdint>

// One thing the month calendar paints in a day cell, a bar or a "More"
// strip, with the box in which a press hits it (edges included).
class mcDisplayDataClass
{
public:
    double x1 = 0, x2 = 0;
    double y1 = 0, y2 = 0;
    double width = 0, height = 0;
    std::int64_t eventID = -1;    // index of the event; -1 on a "More" strip
    QString eventDate;            // the cell's date, YYYY-MM-DD
    std::int64_t eventDateID = 0; // the cell's index, 0 to 41
    bool moreBox = false;
    QString gUID; // the event's key; blank on a strip

    bool contains(double x, double y) const { return x1 <= x && x <= x2 && y1 <= y && y <= y2; }
};
