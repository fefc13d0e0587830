#include "gameday/MinimumPlay.h"

#include <QDir>
#include <QFile>
#include <QSaveFile>

namespace gameday {

QString MinimumPlay::filePath(const QString &dataFolder)
{
    return QDir(dataFolder).filePath(QStringLiteral("Minimum Play.txt"));
}

MinimumPlay MinimumPlay::load(const QString &dataFolder)
{
    QFile file(filePath(dataFolder));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QStringList fields = QString::fromUtf8(file.readLine(64)).trimmed().split(u'\t');
    bool innOk = false;
    bool abOk = false;
    const int innings = fields.value(0).toInt(&innOk);
    const int atBats = fields.value(1).toInt(&abOk);
    if (fields.size() != 2 || !innOk || !abOk || innings < 0 || atBats < 0 || innings > 99 || atBats > 99)
        return {};
    return {innings, atBats};
}

bool MinimumPlay::save(const QString &dataFolder) const
{
    QSaveFile file(filePath(dataFolder));
    if (!file.open(QIODevice::WriteOnly))
        return false;
    file.write(QByteArray::number(innings) + '\t' + QByteArray::number(atBats) + '\n');
    return file.commit();
}

} // namespace gameday
