#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

class ListBoxModel;

// The texts a list hands on: its export file, its rows and its selection.
namespace ListBoxText {

// The export file's text: the title, the headings and every row, one line
// each ending in "\n" (a text-mode file turns that into the platform's line
// end). Cells are followed by a tab, and the trailing tabs of each line are
// cut, so a row ending in empty cells is shorter than the heading line.
QString exportText(const ListBoxModel &list, const QString &title);

// The headings and every row as CSV (CR LF line ends, UTF-8).
QByteArray exportCsv(const ListBoxModel &list);

// `prefix`, then each row's cells joined by tabs (a skipped column leaves
// its text out but keeps its tab), with "\t" + row tag when `withTags`;
// rows separated by a carriage return, none after the last.
QString dataAsString(const ListBoxModel &list, const QString &prefix, int skipColumn, bool withTags);

// For each of `rows` in list order: columns 1, 2 and 3 and the row tag,
// tab-separated, each ended by a carriage return.
QString selectionsText(const ListBoxModel &list, QList<int> rows);

// Where the export dialog starts: the documents folder, or the home folder
// when there is none.
QString exportFolder();
// The file an export goes to: the chosen path, with ".txt" added when the
// coach typed a name without an extension.
QString exportFilePath(const QString &chosen);

// Cuts every tab from the end of `line`.
QString trimTrailingTabs(QString line);

} // namespace ListBoxText
