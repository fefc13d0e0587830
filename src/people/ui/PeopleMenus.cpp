#include "people/ui/PeopleMenus.h"

#include "app/globals.h"
#include "app/ui/MainMenuBar.h"
#include "app/ui/ScreenDirectory.h"

#include <QAction>
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
    menus->installHandler(QStringLiteral("FilePrinterSetup"), [] {
        std::optional<platform::PrinterSetup> setup;
        gGetPrinterSetup(setup, true);
        return true;
    });
    const struct
    {
        const char *item, *screen;
        int topic;
    } others[] = {{"Help", "helpScrn2", helpTopic}, {"Abbrev", "HelpAbbrevScrn", 0}, {"HelpPrefs", "prefScrn", 0}};
    for (const auto &o : others) {
        const QString screen = QString::fromLatin1(o.screen);
        if (!screens::has(screen))
            continue;
        const int topic = o.topic;
        menus->installHandler(QString::fromLatin1(o.item), [screen, topic] {
            if (QWidget *w = screens::create(screen)) {
                // The window reads these when it opens: the help topic to
                // show, and that closing it doesn't bring back the start screen.
                if (topic > 0)
                    w->setProperty("helpTopic", topic);
                w->setProperty("returnToStart", false);
                w->show();
            }
            return true;
        });
    }
}

QToolButton *makePrintButton(QWidget *parent, const QStringList &rows, const std::function<void(int)> &print)
{
    auto *button = new QToolButton(parent);
    button->setObjectName(QStringLiteral("printBtn"));
    button->setText(QStringLiteral("Print"));
    button->setAccessibleName(QStringLiteral("Print"));
    button->setFocusPolicy(Qt::StrongFocus);
    button->setPopupMode(QToolButton::InstantPopup);
    auto *menu = new QMenu(button);
    menu->setObjectName(QStringLiteral("printMenu"));
    for (int kind = 0; kind < rows.size(); ++kind)
        QObject::connect(menu->addAction(rows[kind]), &QAction::triggered, button, [print, kind] { print(kind); });
    button->setMenu(menu);
    return button;
}
