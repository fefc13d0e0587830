#pragma once

#include <QDate>

#include <optional>

// The month page of the date picker: which of its 37 day slots carries
// which day, and how far the month can be stepped.
//
// Slots run Sunday first, five weeks and two days: slot i shows day
// i + 2 - dow, where dow is the weekday of the 1st (1 for Sunday). A 31-day
// month that starts on a Saturday is the longest reach, ending in slot 36.
class CalendarMonth
{
public:
    static constexpr int kSlots = 37;
    static constexpr int kFirstYear = 2000;
    static constexpr int kLastYear = 2039;

    // The month holding `date`, brought within the picker's years (an
    // invalid date gives January of the first year).
    explicit CalendarMonth(const QDate &date);
    CalendarMonth(int year, int month);

    int year() const { return m_first.year(); }
    int month() const { return m_first.month(); }
    QDate first() const { return m_first; }

    // 31 for months 1, 3, 5, 7, 8, 10, 12; 30 for 4, 6, 9, 11; February has
    // 29 days in years that divide by 4 (every such year from 2000 to 2039 is
    // a leap year).
    static int monthLength(int year, int month);
    int length() const { return monthLength(year(), month()); }
    // Weekday of the 1st, 1 for Sunday to 7 for Saturday.
    int firstWeekday() const;
    // The day shown in slot `slot`, or 0 when the slot is hidden.
    int dayInSlot(int slot) const;
    // The slot that shows `day` of this month, or -1.
    int slotOfDay(int day) const;

    // The next and previous months, or nothing at December 2039 and
    // January 2000.
    std::optional<CalendarMonth> next() const;
    std::optional<CalendarMonth> previous() const;

private:
    QDate m_first;
};
