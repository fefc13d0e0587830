#include "support/UpdateCheck.h"

#include <QUrl>

#include <cmath>

namespace UpdateCheck {

QString ParseKey(const QString &key, const QString &page)
{
    const QString open = u'<' + key + u'>';
    const QString close = QStringLiteral("</") + key + u'>';
    const qsizetype p = page.indexOf(open, 0, Qt::CaseInsensitive);
    const qsizetype e = page.indexOf(close, 0, Qt::CaseInsensitive);
    if (p < 0 || e < 0)
        return {};
    const qsizetype from = p + open.size();
    return e < from ? QString() : page.mid(from, e - from);
}

bool isOffered(const QString &appVersion, const QString &documentVersion)
{
    // Text order, not number order, as versions have always been compared.
    return QString::compare(appVersion, documentVersion, Qt::CaseInsensitive) < 0;
}

QString megabytes(qint64 bytes)
{
    const double mb = std::round(double(bytes) / 1048576.0 * 100.0) / 100.0;
    return QString::number(mb, 'g', 15);
}

QString progressText(qint64 received, qint64 total)
{
    return megabytes(received) + QStringLiteral(" MB of ") + megabytes(total) + QStringLiteral(" MB");
}

QString suggestedFileName(const QString &version, const QString &url)
{
    const QString file = QUrl(url).fileName();
    const qsizetype dot = file.indexOf(u'.', 1);
    const QString extension = dot < 0 ? QStringLiteral(".dmg") : file.mid(dot);
    return QStringLiteral("Tallyline_Baseball_") + version + QStringLiteral("_update") + extension;
}

} // namespace UpdateCheck
