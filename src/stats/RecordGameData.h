#pragma once

// The "Record Game Data" action of the game screen, apart from its windows:
// the team on show goes into the game's strings, the four checks are worked
// out and shown, and on the coach's word the game is recorded with the
// runs of the board worked out anew from both cards just before. The screen closes an open statistics panel
// (which saves it) before it calls this, and shows the check window in
// `askToRecord`.

#include "stats/GameRecorder.h"

#include <array>
#include <functional>

class myDB;

namespace gameday {
class GameDay;
}

namespace stats {

enum class RecordOutcome {
    Cancelled, // the coach chose not to record: nothing changed
    Recorded,  // the game is marked recorded; the button goes
    Refused,   // a message said why; the game stays unrecorded, the button stays
};

RecordOutcome recordGameData(myDB &db, gameday::GameDay &game,
                             const std::function<bool(const std::array<bool, 4> &)> &askToRecord);

// The "Correct Game" action of a recorded game: on the coach's word its
// additions are taken back out of the season and the game opens for
// changes. True when it did.
bool correctGameData(myDB &db, gameday::GameDay &game);

} // namespace stats
