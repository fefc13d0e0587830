#pragma once

#include <QString>
#include <QStringList>
#include <QUrl>

namespace support {

// The one builder of the program's "mailto:" addresses, handed to the mail
// program through the URL service.
//
// Every part is percent-encoded as UTF-8, so a name or a text holding "&",
// "?", "#", "%", "+", a comma or letters beyond ASCII reaches the mail
// program as exactly the addresses, subject and body intended. Each
// recipient is encoded by itself (its "@" kept) and the recipients are
// joined by ","; an empty recipient stays an empty entry. Line ends in the
// body, whatever their kind, go as CR LF, the line end of mail.
//
// The subject is always written; the body only when `body` isn't empty.
QUrl mailtoAddress(const QStringList &recipients, const QString &subject, const QString &body = {});

// `text` with every kind of line end ("\r\n", "\r", "\n") turned into "\r\n".
QString mailLineEnds(const QString &text);

} // namespace support
