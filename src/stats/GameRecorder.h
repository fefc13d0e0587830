#pragma once

// Recording a game: the one-way step that adds a game to both teams' season
// rows and records. It works out every addition as data from the game's
// strings and panel rows, then writes both teams' `Hitting`, `Fielding` and
// `Pitching` rows, both team records and the game's row with `recorded` = 1
// in one transaction. Whatever stops it (the lineup out of step with the
// grid, a bad innings figure, an error, a database failure) leaves the
// season file exactly as it was, so the coach corrects the game and records
// again.

#include "gameday/GameRecord.h"
#include "stats/dataAggregator.h"

#include <QString>

#include <array>

class myDB;

namespace gameday {
class ScoreGrid;
}

namespace stats {

class GameRecorder
{
public:
    explicit GameRecorder(myDB &db) : m_db(db) {}

    // The panel rows saved for a game, by player.
    GamePanels loadPanels(const QString &schedID);

    // Loads a team's grid as it stands in the game: one row per lineup line,
    // at least 20 columns under the stored headings, the texts and the
    // backgrounds; a run-entry team's grid stays empty. False, after the
    // grid's own message, when the stored texts have more lines than the
    // lineup.
    static bool loadGrid(gameday::ScoreGrid &grid, const gameday::TeamStrings &team);
    // The runs the scoreboard shows for a team: the grid's green cells, or
    // the sum of the inning boxes of a team entered by run totals.
    static int scoreboardRuns(const gameday::TeamStrings &team);
    // RBI assigned in a batter-stats text: the sum of each line's first field.
    static int countRecRBI(const QString &batterStats);

    // The four checks shown before recording; they warn and don't bar:
    // 0 RBI match the runs of both teams (a game without runs fails),
    // 1 three outs in every inning played, 2 every at bat finished,
    // 3 fielding and pitching panel rows saved for the game.
    std::array<bool, 4> performPreChecks(const gameday::GameRecord &game);

    enum class Result {
        Recorded,
        NoGame,          // no `Games` row for the entry
        AlreadyRecorded, // recorded once already: nothing is added again
        NotInSync,
        BadInnings,
        BadSavedData,
        Failed, // an error or a database failure; already shown
    };

    // Records `game` as the game screen holds it, with the scoreboard's
    // runs of team A and team B, and tells the coach how it went. The
    // game's row is written with it, marked recorded.
    Result record(const gameday::GameRecord &game, int runsA, int runsB);
    // The same for the game as stored.
    Result record(const QString &schedID, int runsA, int runsB);

    enum class Correction {
        Corrected,
        NoGame,
        NotRecorded, // nothing to take back
        Cancelled,   // the coach said no
        Mismatch,    // the season holds less than the game added; nothing changed
        Failed,      // an error or a database failure; already shown
    };

    // Takes a recorded game back out of the season so the coach can correct
    // it and record it again: after the coach's yes, what recording added to
    // both teams' `Hitting`, `Fielding`, `Pitching` rows, their records and
    // the sacrifice-fly counts is worked out again from the stored game and
    // subtracted, and the game's `recorded` is set to 0, in one transaction.
    Correction correct(const QString &schedID);

    // Every player's additions of both teams, or the refusal (shown).
    Result collectAdditions(const gameday::GameRecord &game, const GamePanels &panels,
                            std::array<TeamAdditions, 2> &additions, QList<qint64> &playerIDs);

private:
    Result recordUnlessRecorded(const gameday::GameRecord &game, bool recorded, int runsA, int runsB);
    Result recordChecked(const gameday::GameRecord &game, int runsA, int runsB);

    myDB &m_db;
};

} // namespace stats
