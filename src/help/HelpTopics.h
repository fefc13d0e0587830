#pragma once

#include <QString>
#include <QStringList>

namespace help {

// The help index: one row per topic, "title,target", where the target is a
// page's file name or "folder" for a heading. A topic's number is its row,
// and is what the screens pass when they ask for help.
const QStringList &topicArray();
// The target of that row ("A_02.html", "folder"), or empty past the end.
QString getTopic(int index);
bool isHeading(int index);
// The title as the index shows it: a heading as it stands, a page with
// three leading blanks.
QString indexRowText(int index);

// The folder of the help pages, or empty when it is missing.
QString getHelpFolder();

} // namespace help
