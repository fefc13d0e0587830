#pragma once

#include <QString>

// The rules of the update check, apart from the network: reading the
// version document and deciding whether to offer the newer version.
namespace UpdateCheck {

// The text between the first "<key>" and the first "</key>" of `page`, in
// any case; empty when the key isn't there.
QString ParseKey(const QString &key, const QString &page);

// Whether the document's version is offered to a program of `appVersion`:
// when the running version sorts before it as text. So "2.2.0" is offered
// "2.2.1", while "2.9.0" is not offered "2.10.0", and a blank document
// (no network, no answer) offers nothing.
bool isOffered(const QString &appVersion, const QString &documentVersion);

// Bytes as the download window counts them: megabytes rounded to two
// decimals, as "1.5".
QString megabytes(qint64 bytes);
// "1.5 MB of 1.5 MB".
QString progressText(qint64 received, qint64 total);

// The file name the save dialog suggests for a version's download:
// "Tallyline_Baseball_2.3.0_update" with the download's own extension
// (".tar.gz", ".deb"), or ".dmg" when its address shows none.
QString suggestedFileName(const QString &version, const QString &url);

} // namespace UpdateCheck
