#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <QTextStream>

namespace cli {

// The three forms a command's table takes on standard output.
enum class TableFormat { Text, Csv, Json };

// "text", "csv" or "json"; false for anything else.
bool parseTableFormat(const QString &name, TableFormat &format);

// Text: the headings and rows in columns two blanks apart, names to the
// left and figures to the right. CSV: as the report export writes it.
// JSON: an array with one object per row, keyed by the headings.
void writeTable(QTextStream &out, TableFormat format, const QStringList &headings, const QList<QStringList> &rows);

} // namespace cli
