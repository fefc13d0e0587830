#pragma once

// The Games row of one game, and what the game screen reads to set a new
// game up: its schedule entry, the two teams and their players. All values
// are bound; each write is one transaction.

#include "gameday/GameRecord.h"

#include <QDate>
#include <QString>

#include <optional>

class myDB;

namespace gameday {

// The schedule entry a game belongs to, with its teams in batting order.
struct GameEvent
{
    QString schedID;
    QDate date; // invalid when the stored date doesn't read
    QString location;
    std::array<QString, 2> teamIDs; // team A bats first, team B last
};

// The part of a Teams row the game screen shows and decides by.
struct TeamInfo
{
    QString name;
    QString league;
    QString division;
};

// The game type of a new game from the two teams' league and division:
// entry 1 for the same league and division, 2 for the same league in other
// divisions, 3 for different leagues (compared exactly), counted in
// `gameTypes` after its first entry "No Selection".
QString chooseGameType(const TeamInfo &a, const TeamInfo &b, const QStringList &gameTypes);

class GameStore
{
public:
    explicit GameStore(myDB &db) : m_db(db) {}

    // The event `schedID` with its teams in order: when isHome is 2 the
    // home team `homeTeamID` is team A and the opponent team B; any other
    // value puts the opponent first.
    std::optional<GameEvent> event(const QString &schedID, const QString &homeTeamID) const;
    TeamInfo teamInfo(const QString &teamID) const;
    // Every player of the team as bench lines, in the order they were added.
    QList<BenchLine> benchOf(const QString &teamID) const;
    // One player as a bench line, when he is still in the season.
    std::optional<BenchLine> player(const QString &playerID) const;

    // The game's row, when it has one.
    std::optional<GameRecord> load(const QString &schedID) const;
    bool exists(const QString &schedID) const;
    // The stored "recorded" flag alone, without reading the strings; empty
    // when the event has no row.
    std::optional<bool> storedRecorded(const QString &schedID) const;
    // Inserts the row of a new game (benches and headings; the other team
    // strings are written as given).
    bool create(const GameRecord &record);

    enum class SaveResult { Saved, Missing, Failed };
    // Writes Teams, both teams' strings and the game type; never
    // `recorded`, which only recording writes.
    SaveResult save(const GameRecord &record);
    // Writes one team's six strings with Teams and the game type: the
    // write after each of the coach's clicks.
    SaveResult saveTeam(const GameRecord &record, int team);

    // The statements of save() and `recorded`, for a caller that wraps them in a larger
    // transaction of its own: they throw on a database error, so the
    // caller's runInTransaction rolls everything back. False when the game
    // has no row.
    static bool writeWithin(myDB &db, const GameRecord &record);

    // The columns of the card a change on the game screen may touch (Teams,
    // gameType and both teams' six strings), and a record's values of them.
    static QStringList cardColumns();
    static QVariantList cardValues(const GameRecord &record);

private:
    SaveResult saveColumns(const QString &schedID, const QStringList &columns, const QVariantList &values);

    myDB &m_db;
};

} // namespace gameday
