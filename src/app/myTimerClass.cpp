#include "app/myTimerClass.h"

#include "app/globals.h"
#include "app/myPrefs.h"

myTimerClass::myTimerClass(QObject *parent) : QObject(parent)
{
    connect(&m_timer, &QTimer::timeout, this, &myTimerClass::Event_Action);
}

void myTimerClass::setMode(Mode mode)
{
    m_mode = mode;
    if (mode == ModeOff) {
        m_timer.stop();
        return;
    }
    m_timer.setSingleShot(mode == ModeSingle);
    m_timer.start();
}

void myTimerClass::Event_Action()
{
    if (m_timer.isSingleShot())
        m_mode = ModeOff;
    if (!gPrefs || gPrefs->prBackupFreq < 1)
        return;
    ++mCount;
    if (gPrefs->prBackupFreq > mCount)
        return;
    if (!gPrefs->prDataBackupLoc.isEmpty())
        Q_EMIT backupDue();
    else
        gShowMsgDlog(QStringLiteral("Please set the location for data backup from the Preferences Screen."),
                     QStringLiteral("Backups cannot be made until this is done."), QStringLiteral("OK"));
    mCount = 0;
}
