#include "app/ui/ScreenBase.h"

#include "app/App.h"
#include "app/myTimerClass.h"
#include "app/ui/MainMenuBar.h"
#include "app/ui/ScreenDirectory.h"

#include <QCloseEvent>

namespace {
void setBackupTimer(myTimerClass::Mode mode)
{
    if (App::instance() && App::instance()->BUTimer)
        App::instance()->BUTimer->setMode(mode);
}
} // namespace

ScreenBase::ScreenBase(ScreenId id, const QString &title, Options options, QWidget *parent)
    : QMainWindow(parent), m_id(id), m_options(options)
{
    setObjectName(screenName(id));
    setWindowTitle(title);
    setAttribute(Qt::WA_DeleteOnClose);
    m_menus = new MainMenuBar(this);
    setMenuBar(m_menus);
    installHelpMenus(options.helpTopic);
}

void ScreenBase::installHelpMenus(int topic)
{
    if (topic < 0) {
        // Each screen's page in the help index.
        switch (m_id) {
        case ScreenId::teamScrn:
            topic = 2;
            break;
        case ScreenId::personnelScrn:
            topic = 3;
            break;
        case ScreenId::contactInfoScrn:
            topic = 4;
            break;
        case ScreenId::standingsScrn:
            topic = 5;
            break;
        case ScreenId::scheduleScrn:
        case ScreenId::eventsCalendarScrn:
            topic = 6;
            break;
        case ScreenId::gameDayScrn:
            topic = 7;
            break;
        case ScreenId::practicePlanScrn:
            topic = 8;
            break;
        case ScreenId::reportIntroScrn:
        case ScreenId::reportScrn:
        case ScreenId::boxScoreScrn:
            topic = 9;
            break;
        case ScreenId::InventoryScrn:
            topic = 10;
            break;
        case ScreenId::formsScrn:
            topic = 11;
            break;
        case ScreenId::prefScrn:
            topic = 13;
            break;
        default:
            topic = 0;
            break;
        }
    }
    const struct
    {
        const char *item;
        ScreenId screen;
        int argument;
    } entries[] = {{"Help", ScreenId::helpScrn2, topic}};
    for (const auto &e : entries) {
        if (!screens::has(e.screen))
            continue;
        const ScreenId screen = e.screen;
        const int argument = e.argument;
        m_menus->installHandler(QString::fromLatin1(e.item), [screen, argument] {
            openOver(screen, argument >= 0 ? QVariant(argument) : QVariant());
            return true;
        });
    }
}

ScreenBase::ScreenBase(ScreenId id, const QString &title, QWidget *parent) : ScreenBase(id, title, Options{}, parent) {}

ScreenBase::~ScreenBase() = default;

void ScreenBase::showEvent(QShowEvent *event)
{
    QMainWindow::showEvent(event);
    if (m_options.backupTimer)
        setBackupTimer(myTimerClass::ModeMultiple);
}

void ScreenBase::openOver(ScreenId id, const QVariant &argument)
{
    QWidget *w = screens::create(id, argument);
    if (!w)
        return;
    if (auto *opened = qobject_cast<ScreenBase *>(w))
        opened->setReturnToStart(false);
    w->show();
    w->raise();
    w->activateWindow();
}

void ScreenBase::closeEvent(QCloseEvent *event)
{
    if (!mayClose()) {
        event->ignore();
        return;
    }
    event->accept();
    QMainWindow::closeEvent(event);
    if (m_options.backupTimer)
        setBackupTimer(myTimerClass::ModeOff);
    // The start screen reads the home team and seasons afresh when it shows.
    if (m_options.returnToStart)
        screens::goHome();
}
