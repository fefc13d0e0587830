#include "app/ui/ScreenBase.h"

#include "app/App.h"
#include "app/myTimerClass.h"
#include "app/ui/MainMenuBar.h"
#include "app/ui/startScrn1.h"

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
}

ScreenBase::ScreenBase(ScreenId id, const QString &title, QWidget *parent)
    : ScreenBase(id, title, Options{}, parent)
{
}

ScreenBase::~ScreenBase() = default;

void ScreenBase::showEvent(QShowEvent *event)
{
    QMainWindow::showEvent(event);
    if (m_options.backupTimer)
        setBackupTimer(myTimerClass::ModeMultiple);
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
        startScrn1::showStartScreen();
}
