#include "stats/RecordGameData.h"

#include "gameday/GameDay.h"
#include "stats/SeasonFigures.h"

namespace stats {

RecordOutcome recordGameData(myDB &db, gameday::GameDay &game,
                             const std::function<bool(const std::array<bool, 4> &)> &askToRecord)
{
    if (game.isRecorded())
        return RecordOutcome::Refused;
    game.saveCurState();
    GameRecorder recorder(db);
    if (!askToRecord(recorder.performPreChecks(game.record())))
        return RecordOutcome::Cancelled;
    // The team records take the score the coach sees on the board.
    const int runsA = int(figureCount(game.board().runs[0]));
    const int runsB = int(figureCount(game.board().runs[1]));
    if (recorder.record(game.record(), runsA, runsB) != GameRecorder::Result::Recorded)
        return RecordOutcome::Refused;
    game.setRecorded();
    return RecordOutcome::Recorded;
}

} // namespace stats
