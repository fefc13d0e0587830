#include "schedule/CalendarMonth.h"

#include <algorithm>

CalendarMonth::CalendarMonth(const QDate &date)
{
    if (!date.isValid() || date.year() < kFirstYear) {
        m_first = QDate(kFirstYear, 1, 1);
    } else if (date.year() > kLastYear) {
        m_first = QDate(kLastYear, 12, 1);
    } else {
        m_first = QDate(date.year(), date.month(), 1);
    }
}

CalendarMonth::CalendarMonth(int year, int month)
    : CalendarMonth(QDate(std::clamp(year, int(kFirstYear), int(kLastYear)), std::clamp(month, 1, 12), 1))
{
}

int CalendarMonth::monthLength(int year, int month)
{
    switch (month) {
    case 4:
    case 6:
    case 9:
    case 11:
        return 30;
    case 2:
        return year % 4 == 0 ? 29 : 28;
    default:
        return 31;
    }
}

int CalendarMonth::firstWeekday() const
{
    // QDate counts Monday 1 to Sunday 7.
    return m_first.dayOfWeek() % 7 + 1;
}

int CalendarMonth::dayInSlot(int slot) const
{
    if (slot < 0 || slot >= kSlots)
        return 0;
    const int day = slot + 2 - firstWeekday();
    return day > 0 && day <= length() ? day : 0;
}

int CalendarMonth::slotOfDay(int day) const
{
    if (day < 1 || day > length())
        return -1;
    return day - 2 + firstWeekday();
}

std::optional<CalendarMonth> CalendarMonth::next() const
{
    if (month() == 12) {
        if (year() >= kLastYear)
            return std::nullopt;
        return CalendarMonth(year() + 1, 1);
    }
    return CalendarMonth(year(), month() + 1);
}

std::optional<CalendarMonth> CalendarMonth::previous() const
{
    if (month() == 1) {
        if (year() <= kFirstYear)
            return std::nullopt;
        return CalendarMonth(year() - 1, 12);
    }
    return CalendarMonth(year(), month() - 1);
}
