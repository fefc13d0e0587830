#include "support/CsvText.h"

#include <QStringDecoder>

namespace support::csv {

QString field(const QString &text)
{
    bool quote = !text.isEmpty() && (text.front().isSpace() || text.back().isSpace());
    for (const QChar c : text) {
        if (c == u',' || c == u'"' || c == u'\r' || c == u'\n') {
            quote = true;
            break;
        }
    }
    if (!quote)
        return text;
    QString out = text;
    out.replace(QStringLiteral("\""), QStringLiteral("\"\""));
    return u'"' + out + u'"';
}

QString line(const QStringList &fields)
{
    QString out;
    for (qsizetype i = 0; i < fields.size(); ++i) {
        if (i > 0)
            out += u',';
        out += field(fields.at(i));
    }
    return out + QStringLiteral("\r\n");
}

Table parse(const QByteArray &bytes)
{
    Table table;
    QStringDecoder decode(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString text = decode(bytes);
    const auto damaged = [&table](int at, const QString &problem) {
        table.badLine = at;
        table.problem = problem;
        return table;
    };
    qsizetype i = text.startsWith(QChar(0xFEFF)) ? 1 : 0;
    int lineNo = 1;
    while (i < text.size()) {
        const int rowLine = lineNo;
        QStringList row;
        QString cell;
        bool quoted = false, wasQuoted = false, endOfRow = false;
        while (i < text.size() && !endOfRow) {
            const QChar c = text.at(i);
            if (c == QChar::ReplacementCharacter)
                return damaged(lineNo, QStringLiteral("it isn't UTF-8 text"));
            if (quoted) {
                if (c == u'"') {
                    if (i + 1 < text.size() && text.at(i + 1) == u'"') {
                        cell += u'"';
                        ++i;
                    } else {
                        quoted = false;
                    }
                } else {
                    if (c == u'\n')
                        ++lineNo;
                    cell += c;
                }
                ++i;
                continue;
            }
            if (c == u'"') {
                if (!cell.isEmpty() || wasQuoted)
                    return damaged(lineNo, QStringLiteral("a quote stands inside a field"));
                quoted = wasQuoted = true;
            } else if (c == u',') {
                row.append(cell);
                cell.clear();
                wasQuoted = false;
            } else if (c == u'\r' || c == u'\n') {
                if (c == u'\r' && i + 1 < text.size() && text.at(i + 1) == u'\n')
                    ++i;
                ++lineNo;
                endOfRow = true;
            } else if (wasQuoted) {
                return damaged(lineNo, QStringLiteral("text follows a quoted field"));
            } else {
                cell += c;
            }
            ++i;
        }
        if (quoted)
            return damaged(rowLine, QStringLiteral("a quote is never closed"));
        row.append(cell);
        if (row.size() == 1 && row.first().isEmpty() && !wasQuoted)
            continue; // a blank line
        if (!table.rows.isEmpty() && row.size() != table.rows.first().size())
            return damaged(rowLine, QStringLiteral("it has %1 fields where the first line has %2")
                                        .arg(row.size())
                                        .arg(table.rows.first().size()));
        table.rows.append(row);
    }
    return table;
}

} // namespace support::csv
