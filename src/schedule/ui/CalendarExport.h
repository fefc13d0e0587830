#pragma once

// File > Export Calendar... of the schedule and the events calendar: asks
// where, then writes the whole schedule as an iCalendar file.
namespace schedule {
void exportCalendar();
}
