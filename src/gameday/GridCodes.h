#pragma once

// The vocabulary of the scorecard: at-bat codes, the background codes a cell
// can carry and their colours, and the small readers the grid's arithmetic
// rests on.

#include <QColor>
#include <QString>
#include <QStringList>
#include <QStringView>

namespace gameday {

// Size of the background array. Rows are lineup rows (the lineup stops at
// 26); columns are the 20 columns of a new game plus room for doublings.
inline constexpr int kBkgRows = 26;
inline constexpr int kBkgCols = 23;
// Columns a stored outcomes line carries.
inline constexpr int kStoredBkgCols = 20;
// Columns a new game starts with, headed "1" to "20".
inline constexpr int kDefaultColumns = 20;
// Width of an inserted column, and of the other columns.
inline constexpr int kInsertedColumnWidth = 32;
inline constexpr int kColumnWidth = 43;

// Background codes.
inline constexpr QStringView kBkgNone = u"";
inline constexpr QStringView kBkgOut = u"R";
inline constexpr QStringView kBkgRun = u"G";
inline constexpr QStringView kBkgLeft = u"Y";
inline constexpr QStringView kBkgDisabled = u"X";

// The colour a background code is painted in; white for none and for any
// code the grid does not know.
QColor backgroundColour(QStringView code);
// True for "", "R", "G", "Y" and "X".
bool isBackgroundCode(QStringView code);

// The plate-appearance codes of the popover, in its reading order.
const QStringList &atBatCodes();
// The on-base results as the popover returns them ("xCS" ... "xLOB").
const QStringList &resultCodes();
// The popover's six commands, which are also the captions of its buttons.
const QStringList &commandCaptions();

// Whether a plate appearance counts as an at bat: false for "BB", "IBB",
// "SAC", "HBP" and "CI", true for every other code.
bool countABs(QStringView code);
// "B1", "B2", "B3" or "HR".
bool isHitCode(QStringView code);

// The leading whole number of a text, as a heading or a preference reads:
// "5a" gives 5, "9 Innings" gives 9, text without a leading number gives 0.
int numericValue(QStringView text);

} // namespace gameday
