#include "help/HelpTopics.h"

#include "app/globals.h"

#include <QDir>
#include <QFileInfo>

namespace help {

const QStringList &topicArray()
{
    static const QStringList topics = {
        QStringLiteral("Help With TLYN Screens:,folder"),
        QStringLiteral("Getting Started,A_01.html"),
        QStringLiteral("Team Screen,A_02.html"),
        QStringLiteral("Team Personnel,A_03.html"),
        QStringLiteral("Quick View Screen,A_04.html"),
        QStringLiteral("Standings Screen,A_05.html"),
        QStringLiteral("Scheduling,A_06.html"),
        QStringLiteral("Entering Game Data,A_07.html"),
        QStringLiteral("Practice Plans,A_08.html"),
        QStringLiteral("Reports,A_09.html"),
        QStringLiteral("Inventory,A_10.html"),
        QStringLiteral("Forms/Extras,A_11.html"),
        QStringLiteral("Application Settings:,folder"),
        QStringLiteral("Preferences,B_01.html"),
        QStringLiteral("Additional Information:,folder"),
        QStringLiteral("The Help Menu,C_01.html"),
        QStringLiteral("Contact Info,C_02.html"),
        QStringLiteral("Pitch Count Rules,C_03.html"),
    };
    return topics;
}

QString getTopic(int index)
{
    if (index < 0 || index >= topicArray().size())
        return {};
    return topicArray().at(index).section(u',', 1, 1);
}

bool isHeading(int index)
{
    return getTopic(index) == u"folder";
}

QString indexRowText(int index)
{
    if (index < 0 || index >= topicArray().size())
        return {};
    const QString title = topicArray().at(index).section(u',', 0, 0);
    return isHeading(index) ? title : QStringLiteral("   ") + title;
}

QString getHelpFolder()
{
    const QString resources = gResourceFolder();
    if (resources.isEmpty())
        return {};
    const QString folder = QDir(resources).filePath(QStringLiteral("tlyn_Help"));
    return QFileInfo(folder).isDir() ? folder : QString();
}

} // namespace help
