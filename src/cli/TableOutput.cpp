#include "cli/TableOutput.h"

#include "reports/SeasonCsv.h"

#include <QIODevice>
#include <QJsonArray>
#include <QJsonDocument>

namespace cli {

bool parseTableFormat(const QString &name, TableFormat &format)
{
    if (name == QLatin1String("text"))
        format = TableFormat::Text;
    else if (name == QLatin1String("csv"))
        format = TableFormat::Csv;
    else if (name == QLatin1String("json"))
        format = TableFormat::Json;
    else
        return false;
    return true;
}

namespace {

bool looksNumeric(const QString &cell)
{
    if (cell.isEmpty())
        return false;
    for (QChar c : cell) {
        if (!c.isDigit() && c != u'.' && c != u'-' && c != u'+')
            return false;
    }
    return true;
}

void writeText(QTextStream &out, const QStringList &headings, const QList<QStringList> &rows)
{
    QList<qsizetype> widths;
    for (const QString &h : headings)
        widths.append(h.size());
    QList<bool> numeric(headings.size(), true);
    for (const QStringList &row : rows) {
        for (qsizetype c = 0; c < row.size() && c < widths.size(); ++c) {
            widths[c] = std::max(widths[c], row.at(c).size());
            if (!row.at(c).isEmpty() && !looksNumeric(row.at(c)))
                numeric[c] = false;
        }
    }
    auto line = [&](const QStringList &cells) {
        QString text;
        for (qsizetype c = 0; c < widths.size(); ++c) {
            const QString cell = cells.value(c);
            if (c > 0)
                text += QLatin1String("  ");
            text += numeric[c] ? cell.rightJustified(widths[c]) : cell.leftJustified(widths[c]);
        }
        while (text.endsWith(u' '))
            text.chop(1);
        out << text << '\n';
    };
    line(headings);
    for (const QStringList &row : rows)
        line(row);
}

} // namespace

void writeTable(QTextStream &out, TableFormat format, const QStringList &headings, const QList<QStringList> &rows)
{
    switch (format) {
    case TableFormat::Text:
        writeText(out, headings, rows);
        return;
    case TableFormat::Csv: {
        // The export's bytes go out as they are, not through the stream's
        // text encoding a second time.
        const QByteArray csv = reports::rowsCsv(headings, rows);
        out.flush();
        if (out.device())
            out.device()->write(csv);
        else
            out << QString::fromUtf8(csv);
        return;
    }
    case TableFormat::Json:
        break;
    }
    // Written by hand so that the fields keep the report's column order
    // (QJsonObject sorts its keys); QJsonDocument quotes each string.
    auto quoted = [](const QString &text) {
        const QByteArray json = QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact);
        return QString::fromUtf8(json.mid(1, json.size() - 2));
    };
    out << '[';
    for (qsizetype r = 0; r < rows.size(); ++r) {
        out << (r == 0 ? "\n  {" : ",\n  {");
        for (qsizetype c = 0; c < headings.size(); ++c)
            out << (c == 0 ? "" : ", ") << quoted(headings.at(c)) << ": " << quoted(rows.at(r).value(c));
        out << '}';
    }
    out << (rows.isEmpty() ? "]\n" : "\n]\n");
}

} // namespace cli
