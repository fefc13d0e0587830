#include "people/ui/PeopleMenus.h"

#include "app/globals.h"
#include "app/myPrefs.h"
#include "app/ui/MainMenuBar.h"
#include "app/ui/ScreenBase.h"
#include "app/ui/ScreenDirectory.h"

#include <QAction>
#include <QComboBox>
#include <QMenu>
#include <QToolButton>
#include <QWidget>

void installPeopleMenus(MainMenuBar *menus, const QString &printText, const std::function<void()> &printList,
                        int helpTopic)
{
    menus->installHandler(QStringLiteral("FilePrint"), [printList] {
        printList();
        return true;
    });
    if (QAction *print = menus->item(QStringLiteral("FilePrint")))
        print->setText(printText);
    menus->installPrinterSetup();
    const struct
    {
        const char *item;
        ScreenId screen;
        int topic;
    } others[] = {{"Help", ScreenId::helpScrn2, helpTopic}, {"HelpPrefs", ScreenId::prefScrn, 0}};
    for (const auto &o : others) {
        const ScreenId screen = o.screen;
        if (!screens::has(screen))
            continue;
        const int topic = o.topic;
        menus->installHandler(QString::fromLatin1(o.item), [screen, topic] {
            // The help window takes its topic as the argument.
            QWidget *w = screens::create(screen, topic > 0 ? QVariant(topic) : QVariant());
            if (!w)
                return true;
            // Opened over this screen: closing it comes back here, not to
            // the start screen.
            if (auto *opened = qobject_cast<ScreenBase *>(w))
                opened->setReturnToStart(false);
            w->show();
            return true;
        });
    }
}

void fillTeamPopup(QComboBox *popup, const QList<people::TeamChoice> &teams)
{
    for (const people::TeamChoice &team : teams)
        popup->addItem(team.TeamName, team.teamID);
    popup->setCurrentIndex(popup->findData(gPrefs->prHomeTeam));
}
