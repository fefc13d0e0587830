#pragma once

#include <QString>
#include <QStringList>

#include <utility>

namespace help {

// The terms of the abbreviations window: pitching first, then the
// "Batters" and "Fielding" headings with their terms. A heading has no
// meaning.
const QList<std::pair<QString, QString>> &abbreviationRows();
// The first row whose term is the whole of `typed`, in any case, or -1:
// "ip" finds the pitching row before the batting one.
int findAbbreviation(const QString &typed);

} // namespace help
