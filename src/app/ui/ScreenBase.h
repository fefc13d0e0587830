#pragma once

#include "app/ui/ScreenId.h"

#include <QMainWindow>
#include <QVariant>

class MainMenuBar;

// The base of the program's screens. It gives every screen the same frame:
// its objectName and title, delete-on-close, the program's menu bar, the
// backup timer while the screen is open (for the screens that edit the
// season), and the start screen again when it closes.
//
// A screen builds its controls in its own constructor with the form
// helpers (app/ui/Form.h), puts them in setCentralWidget(), and overrides
// mayClose() to refuse or finish a close (a save question, a missing home
// team). ARCHITECTURE.md, "Adding a screen", has the whole recipe.
class ScreenBase : public QMainWindow
{
    Q_OBJECT

public:
    struct Options
    {
        // The backup timer counts minutes while the screen is open.
        bool backupTimer = false;
        // The start screen shows again when the screen closes. Windows that
        // open beside the start screen (calendar, contacts, standings) and
        // windows opened from another screen set this false.
        bool returnToStart = true;
        // The help topic of the Help menu; -1 takes the screen's own.
        int helpTopic = -1;
    };

    ScreenBase(ScreenId id, const QString &title, Options options, QWidget *parent = nullptr);
    ScreenBase(ScreenId id, const QString &title, QWidget *parent = nullptr);
    ~ScreenBase() override;

    ScreenId screenId() const { return m_id; }
    MainMenuBar *menus() const { return m_menus; }
    // For a screen opened over another one rather than from the start screen.
    void setReturnToStart(bool on) { m_options.returnToStart = on; }
    // Opens a registered window over the screen on show (closing it comes
    // back there, not to the start screen), or brings it forward when it is
    // open already.
    static void openOver(ScreenId id, const QVariant &argument = {});

protected:
    // Asked before the screen closes: false keeps it open. The place for a
    // save question or a refusal; runs once per close attempt.
    virtual bool mayClose() { return true; }

    void showEvent(QShowEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    void installHelpMenus(int topic);

    ScreenId m_id;
    Options m_options;
    MainMenuBar *m_menus = nullptr;
};
