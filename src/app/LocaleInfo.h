#pragma once

#include <QString>

// English month and day names for the calendars. Indexes are 1-based; an
// index out of range gives empty text.
class LocaleInfo
{
public:
    static QString MonthName(int month);
    static QString DayName(int day);
    static QString DayNameAbbrev(int day);
    static QString MonthNameAbbrev(int month);
};
