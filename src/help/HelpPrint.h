#pragma once

#include <QString>

namespace platform {
class PrintJob;
}

namespace help {

// Prints plain text as a help page prints: 12-point text in a block 36
// points in from the printable area's top left corner, as many pages as it
// takes. Returns the number of pages.
int printPlainText(const QString &text, platform::PrintJob &job);

} // namespace help
