#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

namespace support {

// Reading a tab-separated text file that a coach may have edited by hand or
// that may not be text at all. The bytes are read as UTF-8 (a byte-order
// mark is dropped), every kind of line end splits lines, and each line is
// judged whole: a line is either taken with all of its fields or skipped
// with its number, never cut short.
struct TabbedLines
{
    struct Line
    {
        int number = 0; // 1-based, as an editor counts lines
        QStringList fields;
    };

    QList<Line> lines;  // the lines taken, in file order
    QList<int> skipped; // numbers of the lines refused
    int blank = 0;      // empty or white lines, passed over quietly

    // The longest field taken; a longer one refuses its line.
    static constexpr int kMaxField = 255;

    // Splits `bytes` into lines of at most `maxFields` tab-separated
    // fields. A line is refused when it has more fields, a field longer
    // than kMaxField, bytes that aren't UTF-8, or control characters other
    // than the tab. Tabs at the end of a line don't count as fields.
    static TabbedLines parse(const QByteArray &bytes, int maxFields);
};

// "3, 7 and 12", at most `shown` numbers and then "and N more".
QString lineNumberList(const QList<int> &numbers, int shown = 12);

} // namespace support
