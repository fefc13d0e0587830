#pragma once

#include <QString>

// The program's version, as shown in the About box and written into the
// preference file.
namespace appinfo {

// Comes from the project's own version in CMakeLists.txt, its one source.
inline const QString curVers = QStringLiteral(TALLYLINE_VERSION);

// "2.2.0" -> 220: the version's digits joined, as the preference file keeps it.
int versionNumber(const QString &version);

// "Tallyline Baseball v.2.2.0"
QString getLongVers();

} // namespace appinfo
