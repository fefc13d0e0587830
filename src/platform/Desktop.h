#pragma once

#include <QDateTime>
#include <QUrl>

namespace platform {

// Hands a URL ("mailto:", "http:", a local file) to the system's handler.
class UrlOpener
{
public:
    virtual ~UrlOpener() = default;
    virtual bool openUrl(const QUrl &url) = 0;
};

// The system's alert sound, given on refused keys and refused clicks.
class Beeper
{
public:
    virtual ~Beeper() = default;
    virtual void beep() = 0;
};

// Today's date and the time of day. Ages, "today" on printouts, backup
// folder names and the compaction schedule all read it, so tests fix it.
class Clock
{
public:
    virtual ~Clock() = default;
    virtual QDateTime now() const = 0;
};

} // namespace platform
