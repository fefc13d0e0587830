#pragma once

#include <QHash>
#include <QMenuBar>

#include <functional>

class QAction;

// The program's menu bar. Every window that has menus makes one; its items
// are named as the program names them ("FilePrint", "HelpAbout", ...) and
// stay disabled until the window installs a handler under that name. The
// Edit items and Quit work everywhere.
class MainMenuBar : public QMenuBar
{
    Q_OBJECT

public:
    explicit MainMenuBar(QWidget *parent = nullptr);

    using Handler = std::function<bool()>;
    // Enables `item` and runs `handler` when it is chosen.
    void installHandler(const QString &item, const Handler &handler);
    void removeHandler(const QString &item);
    // Enables "Printer Setup": it shows the page set-up dialog (or, without
    // `forceDialog`, only when no set-up is remembered yet).
    void installPrinterSetup(bool forceDialog = true);
    // A list window's File menu: "Print..." runs `print`, "Export..." runs
    // `exportList`, and "Printer Setup" shows the page set-up.
    void installListHandlers(const std::function<void()> &print, const std::function<void()> &exportList);
    QAction *item(const QString &name) const;

private:
    QAction *addItem(QMenu *menu, const QString &name, const QString &text, const QKeySequence &key = {});
    void run(const QString &name);

    QHash<QString, QAction *> m_items;
    QHash<QString, Handler> m_handlers;
};
