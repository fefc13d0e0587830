#pragma once

#include <QList>
#include <QString>
#include <QStringList>

// The column-widths text of a list, "w1,w2,...". Each entry is a width in
// points ("84"), a share of the list's width ("27%"), or a share of what the
// other columns leave over ("*", "2*"); a missing or empty entry counts as "*".
namespace ColumnWidths {

// Pixel widths for `columns` columns of a list `available` wide. Fixed and
// percent entries are taken first; star entries split the rest (never below 0).
QList<int> resolve(const QString &text, int columns, int available);

// The numeric value at the start of a text, as a width entry is read when
// summing a printout's widths: "84" is 84, "27%" is 27, "*" and "" are 0.
double leadingNumber(const QString &text);

// Sum of leadingNumber over the entries.
double total(const QStringList &widths);

} // namespace ColumnWidths
