#include "schedule/ScheduleChanges.h"

ScheduleChanges &ScheduleChanges::instance()
{
    static ScheduleChanges changes;
    return changes;
}
