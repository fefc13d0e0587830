#pragma once

#include <QObject>
#include <QTimer>

// The automatic-backup timer. While it runs it ticks once a minute and
// counts the minutes since the last automatic backup in mCount; the count
// survives stopping, so minutes spent in several screens add up.
class myTimerClass : public QObject
{
    Q_OBJECT

public:
    enum Mode { ModeOff, ModeSingle, ModeMultiple };

    explicit myTimerClass(QObject *parent = nullptr);

    void setMode(Mode mode);
    Mode mode() const { return m_mode; }
    void setPeriod(int milliseconds) { m_timer.setInterval(milliseconds); }
    int period() const { return m_timer.interval(); }

    int mCount = 0;

    // One tick: counts a minute and, when the backup frequency of the
    // preferences is reached, asks for a backup (or tells the coach that no
    // backup location is set) and starts counting again.
    void Event_Action();

Q_SIGNALS:
    // A backup is due and a backup location is set.
    void backupDue();

private:
    QTimer m_timer;
    Mode m_mode = ModeOff;
};
