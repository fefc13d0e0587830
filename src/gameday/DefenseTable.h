#pragma once

// Who played where, inning by inning, for one team in one game. The table
// is worked out from the lineup (each row's position for this game), its
// substitutions (a replacement's row takes over from the first inning its
// grid row was open in) and the coach's moves ("Smith to LF from the 4th"),
// which the season keeps in table DefenseMoves. Nothing here reads the
// database except DefenseStore at the bottom; the counting of the playing
// time report and of the minimum-play line starts from this table.

#include "gameday/GameRecord.h"

#include <QHash>
#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

class myDB;

namespace gameday {

class ScoreGrid;

// The rows of the table, in scorebook order; "OF" (a tenth fielder: short
// field, left- or right-center, an outfielder not placed) and "DH" show
// only when used.
const QStringList &defensePositions();
// The table's position for a lineup position: "RHP", "LHP" and "P" are
// "P", "B1" to "B3" the bases, "SF", "LCF" and "RCF" "OF"; one of the
// table's positions stands as it is (upper-cased); any other text (an
// extra hitter, a pinch hitter or runner, nothing typed) is "": in the
// game, not in the field.
QString fieldPosition(const QString &lineupPos);
// Whether a table position counts as an inning in the field (DH doesn't).
bool isFieldPosition(const QString &pos);

// The coach's word for a player from an inning on. `pos` "" puts him on
// the bench (out of the field) from that inning.
struct DefenseMove
{
    QString playerID;
    int inning = 1;
    QString pos;
    bool operator==(const DefenseMove &) const = default;
};

class DefenseTable
{
public:
    // One player of the lineup: his position in each inning (index 0 is
    // the first inning), "" where he is out of the field; `inGame` says
    // in which innings his lineup row was the active one of its slot.
    struct Player
    {
        QString playerID;
        QString name;
        std::vector<QString> pos;
        std::vector<bool> inGame;
    };

    // `innings` columns from the lineup, the team's card (for the inning a
    // replacement took over) and the moves, applied in inning order.
    static DefenseTable build(const QList<LineupLine> &lineup, const ScoreGrid &card, const QList<DefenseMove> &moves,
                              int innings);
    // The same from the stored strings of a team.
    static DefenseTable build(const TeamStrings &team, const QList<DefenseMove> &moves, int innings);

    int innings() const { return m_innings; }
    const std::vector<Player> &players() const { return m_players; }
    const Player *player(const QString &playerID) const;
    // The player's table position in an inning (1-based); "" out of range.
    QString positionOf(const QString &playerID, int inning) const;
    // The players at a position in an inning, in lineup order (more than
    // one only when the lineup gives two players the same position).
    QStringList playersAt(const QString &pos, int inning) const;
    bool uses(const QString &pos) const;
    // The table's rows: the positions, with "OF" and "DH" when used.
    QStringList rows() const;

    // The innings of `counted` (1-based) the player spent at `pos`; with
    // `pos` empty, those he spent in the field at any position.
    int inningsAt(const QString &playerID, const QString &pos, const QSet<int> &counted) const;
    int fieldInnings(const QString &playerID, const QSet<int> &counted) const;

private:
    int m_innings = 0;
    std::vector<Player> m_players;
};

// The innings a team spent in the field: those in which the other side
// batted (a cell with a text, or a run-entry box with a number). A last
// inning begun counts whole.
QSet<int> fieldedInnings(const TeamStrings &opponent);
// The last inning with an entry on a card, 0 for none.
int lastInningPlayed(const TeamStrings &team);
// The innings a table shows: the regulation innings, or more when either
// card went past them.
int tableInnings(int regulation, const TeamStrings &a, const TeamStrings &b);

// What one change of the coach did to the stored moves: each row's move
// before and after (none where there was no row). Putting `before` back
// with DefenseStore::apply undoes it.
struct DefenseChange
{
    struct Row
    {
        QString playerID;
        int inning = 1;
        std::optional<QString> before;
        std::optional<QString> after;
    };
    QString schedID;
    QString teamID;
    QList<Row> rows;
    bool isEmpty() const { return rows.isEmpty(); }
};

// What the game's change log names a move ("Smith to LF from the 4th
// inning") and the card it belongs to. A move without a label is not logged.
struct DefenseLogEntry
{
    QString label;
    int team = -1;
};

// Table DefenseMoves: one row per game, team, player and inning.
class DefenseStore
{
public:
    explicit DefenseStore(myDB &db) : m_db(db) {}

    QList<DefenseMove> moves(const QString &schedID, const QString &teamID) const;
    // Every move of the season by event and team ("schedID\tteam").
    QHash<QString, QList<DefenseMove>> allMoves() const;

    // Puts `playerID` at `pos` from `inning` on. Whoever held `pos` in that
    // inning takes the player's old position from the same inning, so no
    // position is held twice. One transaction, with the entry of the game's
    // change log when `log` names one; the change is empty when nothing
    // changed or the write failed.
    DefenseChange move(const QString &schedID, const QString &teamID, const DefenseTable &current,
                       const QString &playerID, int inning, const QString &pos, const DefenseLogEntry &log = {});
    // Writes each row's `after` (a missing value deletes the row), in one
    // transaction: a change as made, or with before and after swapped to
    // take it back.
    bool apply(const DefenseChange &change);

private:
    myDB &m_db;
};

} // namespace gameday
