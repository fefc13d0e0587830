#pragma once

#include <QObject>

// Tells the windows that show the schedule (the events calendar) that an
// event was added, changed, moved or deleted, whichever window did it.
class ScheduleChanges : public QObject
{
    Q_OBJECT

public:
    static ScheduleChanges &instance();
    static void notify() { Q_EMIT instance().changed(); }

Q_SIGNALS:
    void changed();
};
