#pragma once

// A league's minimum play: the innings in the field and the times at bat
// each player must have in a game (0 for no minimum). Kept beside the
// preference file in "Minimum Play.txt" (one line: innings, tab, at bats),
// as the preference file's own layout is fixed.

#include <QString>

namespace gameday {

struct MinimumPlay
{
    int innings = 0;
    int atBats = 0;
    bool isSet() const { return innings > 0 || atBats > 0; }
    bool operator==(const MinimumPlay &) const = default;

    // The setting of the data folder; none when the file is missing or
    // doesn't read.
    static MinimumPlay load(const QString &dataFolder);
    // Written whole or not at all.
    bool save(const QString &dataFolder) const;
    static QString filePath(const QString &dataFolder);
};

} // namespace gameday
