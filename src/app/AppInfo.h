#pragma once

#include <QString>

// The program's version, as shown in the About box and written into the
// preference file.
namespace appinfo {

inline const QString curVers = QStringLiteral("2.2.0");

// "2.2.0" -> 220: the version's digits joined, as the preference file keeps it.
int versionNumber(const QString &version);

// "Tallyline Baseball v.2.2.0"
QString getLongVers();

} // namespace appinfo
