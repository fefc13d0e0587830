#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

// Comma-separated text as spreadsheets write and read it (RFC 4180): a
// field holding a comma, a quote, a line end or an outer blank is quoted,
// with its quotes doubled; lines end in CR LF; the text is UTF-8.
namespace support::csv {

QString field(const QString &text);
QString line(const QStringList &fields);

struct Table
{
    QList<QStringList> rows; // blank lines left out
    int badLine = 0;         // the first damaged line (from 1), 0 when none
    QString problem;         // what is wrong with it
};

// Reads CSV text: CR LF or LF line ends, quoted fields over several lines,
// a leading byte-order mark. A quote left open, a quote inside an unquoted
// field, bytes that aren't UTF-8 or a row with another number of fields
// than the first damage the text: reading stops there, and `badLine` names
// the line where the damaged row starts.
Table parse(const QByteArray &bytes);

} // namespace support::csv
