#include "reports/ListBoxText.h"

#include "reports/ListBoxModel.h"
#include "reports/SeasonCsv.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include <algorithm>

namespace ListBoxText {

QString exportFolder()
{
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    if (!documents.isEmpty() && QFileInfo(documents).isDir())
        return documents;
    return QDir::homePath();
}

QString exportFilePath(const QString &chosen)
{
    if (chosen.isEmpty() || !QFileInfo(chosen).suffix().isEmpty())
        return chosen;
    return chosen + QStringLiteral(".txt");
}

QString trimTrailingTabs(QString line)
{
    qsizetype end = line.size();
    while (end > 0 && line.at(end - 1) == u'\t')
        --end;
    line.truncate(end);
    return line;
}

namespace {
QString tabbedLine(const QStringList &cells)
{
    QString line;
    for (const QString &text : cells) {
        line += text;
        line += u'\t';
    }
    return trimTrailingTabs(line);
}
} // namespace

QString exportText(const ListBoxModel &list, const QString &title)
{
    QString out = title + u'\n';
    out += tabbedLine(list.headings()) + u'\n';
    for (int row = 0; row < list.rowCount(); ++row)
        out += tabbedLine(list.rowCells(row)) + u'\n';
    return out;
}

QByteArray exportCsv(const ListBoxModel &list)
{
    QList<QStringList> rows;
    rows.reserve(list.rowCount());
    for (int row = 0; row < list.rowCount(); ++row)
        rows.append(list.rowCells(row));
    return reports::rowsCsv(list.headings(), rows);
}

QString dataAsString(const ListBoxModel &list, const QString &prefix, int skipColumn, bool withTags)
{
    QString out = prefix;
    const int columns = list.columnCount();
    for (int row = 0; row < list.rowCount(); ++row) {
        if (row > 0)
            out += u'\r';
        for (int column = 0; column < columns; ++column) {
            if (column != skipColumn)
                out += list.cell(row, column);
            if (column < columns - 1)
                out += u'\t';
        }
        if (withTags) {
            out += u'\t';
            out += list.rowTag(row);
        }
    }
    return out;
}

QString selectionsText(const ListBoxModel &list, QList<int> rows)
{
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    QString out;
    for (int row : rows) {
        if (row < 0 || row >= list.rowCount())
            continue;
        out += list.cell(row, 1) + u'\t' + list.cell(row, 2) + u'\t' + list.cell(row, 3) + u'\t' + list.rowTag(row) +
               u'\r';
    }
    return out;
}

} // namespace ListBoxText
