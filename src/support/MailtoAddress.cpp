#include "support/MailtoAddress.h"

#include <QByteArray>

namespace support {

namespace {

// Everything but the unreserved characters is encoded; `keep` names what
// may stand as it is besides.
QByteArray encoded(const QString &text, const QByteArray &keep = {})
{
    return text.toUtf8().toPercentEncoding(keep);
}

} // namespace

QString mailLineEnds(const QString &text)
{
    QString out;
    out.reserve(text.size() + text.size() / 16);
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        if (c == u'\r') {
            if (i + 1 < text.size() && text.at(i + 1) == u'\n')
                ++i;
            out += QStringLiteral("\r\n");
        } else if (c == u'\n') {
            out += QStringLiteral("\r\n");
        } else {
            out += c;
        }
    }
    return out;
}

QUrl mailtoAddress(const QStringList &recipients, const QString &subject, const QString &body)
{
    QByteArray text = "mailto:";
    for (qsizetype i = 0; i < recipients.size(); ++i) {
        if (i > 0)
            text += ',';
        text += encoded(recipients.at(i).trimmed(), "@");
    }
    text += "?subject=" + encoded(subject);
    if (!body.isEmpty())
        text += "&body=" + encoded(mailLineEnds(body));
    return QUrl::fromEncoded(text, QUrl::StrictMode);
}

} // namespace support
