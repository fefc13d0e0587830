#pragma once

#include <QByteArray>
#include <QString>
#include <QTextStream>

namespace cli {

// Writes `bytes` to `path` whole or not at all (QSaveFile), or to `out`
// when no path is given. False, with the reason on `err`, when it can't.
bool writeOutput(const QString &path, const QByteArray &bytes, QTextStream &out, QTextStream &err);

} // namespace cli
