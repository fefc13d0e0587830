#include "stats/RecordGameData.h"

#include "app/globals.h"
#include "gameday/GameDay.h"
#include "stats/SeasonFigures.h"

namespace stats {

RecordOutcome recordGameData(myDB &db, gameday::GameDay &game,
                             const std::function<bool(const std::array<bool, 4> &)> &askToRecord)
{
    if (game.isRecorded()) {
        gShowMsgDlog(QStringLiteral("This game has already been recorded."),
                     QStringLiteral("Its totals are in the season; it is not added again."), QStringLiteral("OK"));
        return RecordOutcome::Refused;
    }
    if (game.isReadOnly()) {
        gShowMsgDlog(QStringLiteral("There is an error in the saved data."),
                     QStringLiteral("A game whose saved data could not be read whole is not recorded."),
                     QStringLiteral("OK"));
        return RecordOutcome::Refused;
    }
    // The board is worked out anew from both cards: the check window shows
    // that score, and that score is recorded.
    game.refreshBoard();
    GameRecorder recorder(db);
    if (!askToRecord(recorder.performPreChecks(game.record())))
        return RecordOutcome::Cancelled;
    const int runsA = int(figureCount(game.board().runs[0]));
    const int runsB = int(figureCount(game.board().runs[1]));
    if (recorder.record(game.record(), runsA, runsB) != GameRecorder::Result::Recorded)
        return RecordOutcome::Refused;
    game.setRecorded();
    return RecordOutcome::Recorded;
}

bool correctGameData(myDB &db, gameday::GameDay &game)
{
    if (!game.isRecorded() || GameRecorder(db).correct(game.schedID()) != GameRecorder::Correction::Corrected)
        return false;
    game.setCorrected();
    return true;
}

} // namespace stats
