#include "app/LocaleInfo.h"

#include <array>

namespace {
const std::array<const char *, 12> kMonths = {"January", "February", "March",     "April",   "May",      "June",
                                              "July",    "August",   "September", "October", "November", "December"};
const std::array<const char *, 7> kDays = {"Sunday",   "Monday", "Tuesday", "Wednesday",
                                           "Thursday", "Friday", "Saturday"};

template<std::size_t N>
QString pick(const std::array<const char *, N> &names, int index)
{
    if (index < 1 || index > int(N))
        return {};
    return QString::fromLatin1(names[std::size_t(index - 1)]);
}
} // namespace

QString LocaleInfo::MonthName(int month)
{
    return pick(kMonths, month);
}
QString LocaleInfo::DayName(int day)
{
    return pick(kDays, day);
}
QString LocaleInfo::DayNameAbbrev(int day)
{
    return pick(kDays, day).left(3);
}
QString LocaleInfo::MonthNameAbbrev(int month)
{
    return pick(kMonths, month).left(3);
}
