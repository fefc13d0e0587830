#include "app/ui/MainMenuBar.h"

#include "app/globals.h"
#include "app/ui/ScreenBase.h"
#include "app/ui/ScreenDirectory.h"

#include <QAction>
#include <QApplication>
#include <QMenu>

namespace {

// Sends an editing command to whatever has the keyboard focus, when it
// understands it (line edits, text areas, spin boxes' editors ...).
bool forwardToFocus(const char *slot)
{
    QWidget *focus = QApplication::focusWidget();
    if (!focus)
        return false;
    const QByteArray signature = QByteArray(slot) + "()";
    if (focus->metaObject()->indexOfMethod(signature.constData()) < 0)
        return false;
    return QMetaObject::invokeMethod(focus, slot);
}

} // namespace

MainMenuBar::MainMenuBar(QWidget *parent) : QMenuBar(parent)
{
    setObjectName(QStringLiteral("MainMenuBar"));
    setAccessibleName(QStringLiteral("Menu bar"));

    QMenu *file = addMenu(QStringLiteral("&File"));
    file->setObjectName(QStringLiteral("FileMenu"));
    addItem(file, QStringLiteral("FilePrinterSetup"), QStringLiteral("Printer Setup"),
            QKeySequence(QStringLiteral("Ctrl+Shift+P")));
    addItem(file, QStringLiteral("FilePrint"), QStringLiteral("Print"), QKeySequence(QStringLiteral("Ctrl+P")));
    addItem(file, QStringLiteral("FileExport"), QStringLiteral("Export Data"),
            QKeySequence(QStringLiteral("Ctrl+Shift+E")));
    addItem(file, QStringLiteral("FileExportCalendar"), QStringLiteral("Export Calendar..."));
    addItem(file, QStringLiteral("FileImportRoster"), QStringLiteral("Import Roster..."));
    addItem(file, QStringLiteral("FileBackup"), QStringLiteral("Backup Data"));
    addItem(file, QStringLiteral("FileRestore"), QStringLiteral("Restore Data..."));
    file->addSeparator();
    QAction *quit = addItem(file, QStringLiteral("FileQuit"), QStringLiteral("&Quit"),
                            QKeySequence(QStringLiteral("Ctrl+Q")));
    quit->setMenuRole(QAction::QuitRole);
    installHandler(QStringLiteral("FileQuit"), [] {
        // Closing every window lets each screen save on its way out; the
        // program then quits with its last window.
        QApplication::closeAllWindows();
        return true;
    });

    QMenu *edit = addMenu(QStringLiteral("&Edit"));
    edit->setObjectName(QStringLiteral("EditMenu"));
    const struct
    {
        const char *name, *text, *key, *slot;
    } editItems[] = {
        {"EditUndo", "&Undo", "Ctrl+Z", "undo"},
        {"EditRedo", "&Redo", "Ctrl+Shift+Z", "redo"},
        {"EditSeparator1", "-", "", nullptr},
        {"EditCut", "Cu&t", "Ctrl+X", "cut"},
        {"EditCopy", "&Copy", "Ctrl+C", "copy"},
        {"EditPaste", "&Paste", "Ctrl+V", "paste"},
        {"EditClear", "&Delete", "", "del"},
        {"EditSeparator2", "-", "", nullptr},
        {"EditSelectAll", "Select &All", "Ctrl+A", "selectAll"},
    };
    for (const auto &e : editItems) {
        if (!e.slot) {
            edit->addSeparator()->setObjectName(QString::fromLatin1(e.name));
            continue;
        }
        const QString name = QString::fromLatin1(e.name);
        addItem(edit, name, QString::fromLatin1(e.text), QKeySequence(QString::fromLatin1(e.key)));
        const char *slot = e.slot;
        installHandler(name, [slot] { return forwardToFocus(slot); });
    }
    // Edit shortcuts belong to the focused text field, which handles them
    // itself; the menu items are for the mouse.
    for (QAction *a : edit->actions())
        a->setShortcutContext(Qt::WidgetShortcut);

    QMenu *help = addMenu(QStringLiteral("Help"));
    help->setObjectName(QStringLiteral("HelpMenu"));
    addItem(help, QStringLiteral("Help"), QStringLiteral("Tallyline Help"));
    addItem(help, QStringLiteral("Abbrev"), QStringLiteral("Abbrev Used"));
    // A build that knows no address for the newest version has no check.
    addItem(help, QStringLiteral("HelpUpdateCheck"), QStringLiteral("Check For Update"))
        ->setVisible(screens::has(ScreenId::updateDlog));
    help->addSeparator();
    addItem(help, QStringLiteral("HelpPrefs"), QStringLiteral("Preferences"))->setMenuRole(QAction::PreferencesRole);
    addItem(help, QStringLiteral("HelpAbout"), QStringLiteral("About TLBaseball"))->setMenuRole(QAction::AboutRole);

    // The one abbreviations window, from every screen's menu: opened over
    // that screen, or brought forward when it is open already.
    if (screens::has(ScreenId::HelpAbbrevScrn)) {
        installHandler(QStringLiteral("Abbrev"), [] {
            ScreenBase::openOver(ScreenId::HelpAbbrevScrn);
            return true;
        });
    }
}

QAction *MainMenuBar::addItem(QMenu *menu, const QString &name, const QString &text, const QKeySequence &key)
{
    QAction *action = menu->addAction(text);
    action->setObjectName(name);
    action->setShortcut(key);
    action->setEnabled(false);
    connect(action, &QAction::triggered, this, [this, name] { run(name); });
    m_items.insert(name, action);
    return action;
}

void MainMenuBar::installHandler(const QString &item, const Handler &handler)
{
    QAction *action = m_items.value(item);
    if (!action)
        return;
    m_handlers.insert(item, handler);
    action->setEnabled(true);
}

void MainMenuBar::removeHandler(const QString &item)
{
    m_handlers.remove(item);
    if (QAction *action = m_items.value(item))
        action->setEnabled(false);
}

QAction *MainMenuBar::item(const QString &name) const
{
    return m_items.value(name);
}

void MainMenuBar::run(const QString &name)
{
    const auto it = m_handlers.constFind(name);
    if (it != m_handlers.constEnd())
        (*it)();
}

void MainMenuBar::installListHandlers(const std::function<void()> &print, const std::function<void()> &exportList)
{
    installHandler(QStringLiteral("FilePrint"), [print] {
        print();
        return true;
    });
    installHandler(QStringLiteral("FileExport"), [exportList] {
        exportList();
        return true;
    });
    installPrinterSetup();
}

void MainMenuBar::installPrinterSetup(bool forceDialog)
{
    installHandler(QStringLiteral("FilePrinterSetup"), [forceDialog] {
        std::optional<platform::PrinterSetup> setup;
        gGetPrinterSetup(setup, forceDialog);
        return true;
    });
}
