#pragma once

// One team's game worked out as the figures it adds to each player's season
// rows. Everything here is data: the caller reads the game and the panel
// rows, and SeasonFold writes the result, so the counting is tested without
// a database.

#include "stats/GameStats.h"
#include "stats/SeasonFigures.h"

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

namespace stats {

// The panel rows of one game, by player ID.
struct GamePanels
{
    QHash<QString, QString> hitting;  // `stats` of GamesIndivHitting
    QHash<QString, QString> fielding; // `stats` of GamesIndivFielding
    QHash<QString, PitchingLine> pitching;
};

// What one lineup row adds to its player's season.
struct PlayerAdditions
{
    QString playerID;
    QString name;
    HitArray hitting{};
    qint64 sacrificeFlies = 0;          // "SF" cells, also counted in SAC
    std::optional<FldArray> fielding;   // only with a fielding panel row
    std::optional<PitchArray> pitching; // only with a pitching panel row
};

struct TeamAdditions
{
    enum class Problem {
        None,
        NotInSync,  // lineup and grid differ in length: nothing may be written
        BadInnings, // a pitcher's innings text has a thirds digit above 2
    };
    Problem problem = Problem::None;
    QString badPlayer;  // the pitcher's name, for BadInnings
    QString badInnings; // his innings text as stored
    QList<PlayerAdditions> players;
};

class dataAggregator
{
public:
    dataAggregator(const QString &team, const QString &game) : wTeam(team), wGame(game) {}

    QString wTeam;
    QString wGame;

    // The player IDs of a lineup text, in order: the fourth field of each
    // line of exactly four fields. Lines of another shape are skipped.
    static QStringList extractID(const QString &lineupText);

    // A pitcher's game as season figures. A decision outside 1 to 4 (none
    // stored) counts as ND. The innings code sits at kPitchIP; nothing comes
    // back when the innings text has a thirds digit above 2.
    static std::optional<PitchArray> getNewPitchingStats(const PitchingLine &row);

    // The additions of every lineup row: at bats and codes from the grid's
    // texts, runs and left-on-base from the row's "G" and "Y" cells, RBI and
    // stolen bases from the batter stats, the user-defined batting figures,
    // fielding and pitching from the panel rows.
    TeamAdditions collect(const gameday::ScoreGrid &grid, const QString &lineupText, const QString &batterStatsText,
                          const GamePanels &panels) const;
};

} // namespace stats
