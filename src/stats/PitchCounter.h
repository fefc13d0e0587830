#pragma once

// The pitch counter of the game screen, without a window: the pitcher on
// the mound of the team on show, the pitches added to his pitching-panel
// row one at a time (a foul is a strike), the count as the counter shows
// it, and what the day's pitches cost him under the rule set.

#include "gameday/GameRecord.h"
#include "stats/GameStats.h"
#include "stats/PitchAvailability.h"
#include "stats/PitchRules.h"

#include <QDate>
#include <QObject>
#include <QStringList>

#include <array>
#include <optional>

class myDB;

namespace gameday {
class GameDay;
}

namespace stats {

enum class Pitch { Ball, Strike, Foul };

// One pitch's write: whose pitching-panel row, the row before it (none
// when the pitch made the row) and after it. `ok` is false when nothing
// reached the file; the row then stays as `before`.
struct PitchWrite
{
    bool ok = false;
    QString game, playerID, teamID;
    std::optional<PitchingLine> before;
    PitchingLine after;
};

// Puts the row of a pitch's write as `line` says, in one transaction: its
// values, or no row at all. Taking a pitch back writes `before`, doing it
// again `after`.
bool putPitchingRow(myDB &db, const PitchWrite &write, const std::optional<PitchingLine> &line);

// Which line-up row is on the mound. A pitcher (RHP or LHP) who was not in
// `known` has just come in and takes the mound; otherwise the one on the
// mound stays while he is still a pitcher of the line-up; otherwise the
// last pitcher row. Empty when the line-up has no pitcher.
QString pitcherOnMound(const QList<gameday::LineupLine> &lineup, const QStringList &known, const QString &current);
// The players of the line-up's pitcher rows.
QStringList pitchersOf(const QList<gameday::LineupLine> &lineup);

// The warning when `playerID` is put in to pitch on `date` and the rules
// say he may not; empty when he may. Read from the season's pitching rows.
QString pitchingWarning(myDB &db, const PitchRuleSet &rules, const QString &teamID, const QString &playerID,
                        const QDate &date);

class PitchCounter
{
public:
    PitchCounter(myDB &db, PitchRuleSet rules);

    // The pitcher whose row the pitches go to; an empty player counts
    // nothing. Reads his row, his age under the rules on the game's date
    // and the pitches he threw in other games that day.
    void setPitcher(const QString &game, const QString &playerID, const QString &teamID, const QDate &gameDate);
    bool hasPitcher() const { return !m_player.isEmpty(); }
    const QString &playerID() const { return m_player; }
    int age() const { return m_age; }

    // Reads the row again (the pitching panel may have changed it).
    void reload();
    // Adds one pitch to the row in one transaction; with a label, the
    // game's change log gets the entry in the same transaction, so Undo
    // takes the pitch back.
    PitchWrite add(Pitch pitch, const QString &label = {});

    int balls() const { return m_line.totBalls; }
    int strikes() const { return m_line.totKs; }
    int pitches() const { return m_line.totBalls + m_line.totKs; }
    // This game's pitches and those of his other games of the day.
    int pitchesToday() const { return pitches() + m_otherGamesToday; }
    // "47 pitches, 28 strikes".
    QString countText() const;
    // What the day's pitches cost now: the rest band he has reached
    // ("51: 3 days' rest") or the daily maximum; empty before his first pitch.
    QString notice() const;
    // The last pitch reached a new rest band or the daily maximum.
    bool lastPitchCrossed() const { return m_crossed; }

private:
    myDB &m_db;
    PitchRuleSet m_rules;
    QString m_game, m_player, m_team;
    int m_age = -1;
    int m_otherGamesToday = 0;
    PitchingLine m_line; // the row as last read or written
    bool m_hasRow = false;
    bool m_crossed = false;
};

// The counter of a game on the game screen: it follows the team on show
// and its pitcher on the mound (a pitcher who comes into the line-up takes
// it), warns when a pitcher put in may not pitch on the game's date, and
// adds the pitches the coach counts. The warning goes through the message
// service and never stops the coach.
class GamePitchCount : public QObject
{
    Q_OBJECT

public:
    GamePitchCount(myDB &db, gameday::GameDay &game, const PitchRuleSet &rules, QObject *parent = nullptr);

    const PitchCounter &counter() const { return m_counter; }
    const PitchRuleSet &rules() const { return m_rules; }
    // The mound's pitcher as the line-up names him; empty with none.
    QString pitcherName() const;
    // Whether pitches may be counted now: a pitcher, a game open for
    // changes, no pitching auto-fill and no statistics panel over the grid.
    bool mayCount() const;
    void setCovered(bool covered);

    // Adds a pitch for the pitcher on the mound; refused (nothing written,
    // `ok` false) when counting isn't possible.
    PitchWrite add(Pitch pitch);
    // Reads the row again after the pitching panel wrote it.
    void reload();
    // The warning for a player put in to pitch, shown when the rules say he
    // may not pitch on the game's date. Whether it was shown.
    bool warnIfResting(const QString &playerID);

Q_SIGNALS:
    void changed();
    // A pitch reached the file: the row before and after it, for the undo log.
    void pitchWritten(const stats::PitchWrite &write);

private:
    QString nameOf(const QString &playerID) const;
    void followTeam();
    void followLineup();
    void takeMound();

    myDB &m_db;
    gameday::GameDay &m_game;
    PitchRuleSet m_rules;
    PitchCounter m_counter;
    std::array<QStringList, 2> m_known;
    std::array<QString, 2> m_mound;
    bool m_covered = false;
};

} // namespace stats
