#pragma once

#include "platform/Desktop.h"

namespace platform {

// The computer's own clock, in local time.
class SystemClock final : public Clock
{
public:
    QDateTime now() const override { return QDateTime::currentDateTime(); }
};

} // namespace platform
