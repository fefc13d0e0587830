#pragma once

// Small text rules of the team and personnel screens: names, the display
// masks of phone numbers and dates of birth, and a player's age.

#include <QDate>
#include <QString>

namespace people {

// A name as it is stored. Names travel inside the game strings, whose fields
// are separated by tabs and lines by carriage returns, with no escapes: a
// tab, carriage return or line feed in a name (pasted from a spreadsheet,
// say) would split a field there. Each becomes a blank. Everything else,
// quotes, commas, semicolons and letters of any script, is kept as typed.
QString cleanName(const QString &text);

// The mask a team's phone number is shown through, chosen by the length of
// the text as typed: longer than 9 characters "\(###) ###\-####", longer
// than 6 "###\-####", otherwise none (empty).
QString phoneMaskFor(const QString &text);

// Shows `text` through `mask`: "#" takes the next digit of the text, a
// backslash quotes the character after it, and any other character stands
// as it is. The text is shown unchanged when the mask is empty or when its
// digits don't fill the mask exactly, so nothing typed is ever hidden.
QString formatThroughMask(const QString &text, const QString &mask);

// The input mask of the date of birth field: month, day and a four-digit
// year, digits only.
inline constexpr char16_t kDobMask[] = u"99/99/9999";

// A date of birth as typed through the mask, with the mask's separators
// alone ("//") counting as no date.
QString dobText(const QString &maskedText);

// The age label of a player: empty when there is no date of birth,
// "Age: <n>" for a date of the form month/day/year, "??" for anything else.
// The rule works on two-digit years, as a short date gives them: a birth
// year above this year's two digits counts as last century.
QString ageLabel(const QString &dob, const QDate &today);

} // namespace people
