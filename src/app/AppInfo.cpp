#include "app/AppInfo.h"

namespace appinfo {

int versionNumber(const QString &version)
{
    QString digits;
    for (const QChar c : version) {
        if (c.isDigit())
            digits.append(c);
    }
    return digits.toInt();
}

QString getLongVers()
{
    return QStringLiteral("Tallyline Baseball v.") + curVers;
}

} // namespace appinfo
