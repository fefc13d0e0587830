#pragma once

#include <QImage>
#include <QString>

namespace support {

// A picture of the shared controls, by name: "qlmCheckOn", "qlmCheckOff",
// "qlmLabelBkg", "InfoBtn", "plusminuspic". They are painted by this project
// (src/support/tools) and built into the program. "plusminuspic" is kept at
// twice its size and comes back with a device pixel ratio of 2, so that it
// measures 45 by 66 like the three strips it holds.
QImage supportPicture(const QString &name);

} // namespace support
