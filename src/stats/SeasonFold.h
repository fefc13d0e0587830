#pragma once

// The season rows a recorded game changes, read once, added to in memory and
// written back: `Hitting`, `Fielding` and `Pitching` by player, and
// `GameResultsByTeam` by team. A player has one row per table whatever team
// he played for; each fold overwrites the row's `teamID` and `gameID`.

#include "stats/SeasonFigures.h"
#include "stats/dataAggregator.h"

#include <QHash>
#include <QList>
#include <QString>

#include <array>

class myDB;

namespace stats {

class GameResultClass;

template<std::size_t N>
struct SeasonRow
{
    qint64 recID = -1; // -1: no row yet, it is inserted
    qint64 teamID = 0;
    qint64 gameID = 0;
    std::array<qint64, N> figures{};
    bool changed = false;
    bool removed = false; // taken back to nothing: the row is deleted
};

struct TeamRecordRow
{
    qint64 recID = -1;
    qint64 W = 0;
    qint64 L = 0;
    qint64 Tie = 0;
    bool changed = false;
    bool removed = false;
};

class SeasonFold
{
public:
    // Reads the season rows the players of `additions` are added to (or
    // taken back from) and the records of these teams. Throws
    // SQLite::Exception on a database error.
    SeasonFold(myDB &db, const std::array<TeamAdditions, 2> &additions, const QList<qint64> &teamIDs);
    // A fold over no stored rows: it holds the totals of the games added to
    // it alone, as a season recording only those games would.
    SeasonFold() = default;

    // Adds one lineup row's game. False, with nothing changed, when the
    // player's stored innings total has a thirds digit above 2: such a
    // total can't be summed, and recording stops before any write, unless
    // `carryThirds` lets the total's thirds carry first (4.3 is 5.0).
    bool add(const PlayerAdditions &player, qint64 teamID, qint64 gameID, bool carryThirds = false);
    void addResult(const GameResultClass &result);

    // The inverse of add, for a game taken back from the season: the same
    // additions are subtracted. A row that is left with nothing and was last
    // folded by this game was made by it, and is deleted. False, with
    // nothing changed, when the player's rows hold less than the game added
    // (the season no longer holds this game).
    bool takeBack(const PlayerAdditions &player, qint64 gameID);
    // The inverse of addResult; a record left at 0-0-0 is deleted. False,
    // with nothing changed, when a record holds less than the game added.
    bool takeBackResult(const GameResultClass &result);

    // Writes every row that changed: an update by its recID, an insert, or
    // a delete of a row taken back to nothing.
    // Throws SQLite::Exception on a database error; the caller's
    // transaction then takes everything back.
    void write(myDB &db) const;

    // The player's rows as they stand, or null.
    const SeasonRow<kHittingFigures> *hitting(qint64 playerID) const;
    const SeasonRow<kFieldingFigures> *fielding(qint64 playerID) const;
    const SeasonRow<kPitchingFigures> *pitching(qint64 playerID) const;
    const TeamRecordRow *record(qint64 teamID) const;
    // The players and teams in the order they were first folded.
    const QList<qint64> &players() const { return m_order; }
    const QList<qint64> &teams() const { return m_teamOrder; }

private:
    QHash<qint64, SeasonRow<kHittingFigures>> m_hitting;
    QHash<qint64, SeasonRow<kFieldingFigures>> m_fielding;
    QHash<qint64, SeasonRow<kPitchingFigures>> m_pitching;
    QHash<qint64, TeamRecordRow> m_records;
    // Players in the order they were first folded, so rows are inserted in
    // lineup order.
    QList<qint64> m_order;
    QList<qint64> m_teamOrder;
};

// The numeric value of an ID as stored in the season tables.
qint64 idValue(const QString &id);

} // namespace stats
