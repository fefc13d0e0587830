#pragma once

// One player's statistics for one game, as the three panels of the game
// screen keep them: the stored strings of GamesIndivHitting (5 user-defined
// batting numbers), GamesIndivFielding (13) and GamesIndivPitching (17,
// with the decision, achievements and pitch counts in columns of their own),
// and the rules the panels apply to them.

#include "gameday/ChangeLog.h"
#include "gameday/ScoreGrid.h"

#include <QString>
#include <QStringList>

#include <optional>

class myDB;

namespace stats {

enum class Panel { Batting, Fielding, Pitching };

inline constexpr int kBattingFields = 5;
inline constexpr int kFieldingFields = 13;
inline constexpr int kPitchingFields = 17;

int fieldCount(Panel panel);
// "GamesIndivHitting", "GamesIndivFielding", "GamesIndivPitching".
QString tableName(Panel panel);

// The stored string of a panel: each field's text, "0" for an empty one,
// joined by tabs (a tab or line end typed into a field becomes a blank).
QString gatherStats(const QStringList &fieldTexts);
// The field texts after reading `stored`: entry k replaces field k; fields
// past the stored entries keep their text.
QStringList spreadStats(const QString &stored, QStringList fieldTexts);

// The captions of the user-defined statistics: the names stand at the even
// places of the preference string (name, tab, description, tab, ...). At
// most `count` of them; "--" where the preference has none.
QStringList userDefinedCaptions(const QString &pref, int count);

// Innings pitched, as typed: bad when its value is above 19 or its thirds
// (the part after the point) above 2. "19" passes, "19.1" and "6.3" don't.
bool isBadInnings(const QString &text);
// Outs recorded as innings text: 20 outs give "6.2", 18 give "6.0".
QString inningsFromOuts(int outs);

// The pitching panel's row apart from the game, player and team.
struct PitchingLine
{
    int gameResult = 4; // 1 Win, 2 Loss, 3 Save, 4 ND
    bool start = false;
    bool shutout = false;
    bool compGame = false;
    int totBalls = 0;
    int totKs = 0;
    QString stats; // the 17 fields
    bool operator==(const PitchingLine &) const = default;
};

// Puts the eight auto-fill figures into the pitching panel's 17 field
// texts: innings, batters faced, hits, home runs, walks, intentional walks,
// strikeouts, hit batters. Other fields keep their text.
QStringList applyAutoFill(QStringList pitchingFields, const gameday::AutoFillData &data);

// The per-game rows of the three panels. Each save is one transaction with
// its entry in the game's change log; values are bound.
class GameStatStore
{
public:
    explicit GameStatStore(myDB &db) : m_db(db) {}

    // The stored string of a batting or fielding row, when there is one.
    std::optional<QString> stats(Panel panel, const QString &game, const QString &player) const;
    // Updates the player's row (teamID and stats) or inserts one.
    bool saveStats(Panel panel, const QString &game, const QString &player, const QString &team, const QString &stats);
    // What saveStats would change of the row, for a caller that logs
    // several rows as one change; none when the row already holds it.
    std::optional<gameday::RowChange> statsChange(Panel panel, const QString &game, const QString &player,
                                                  const QString &team, const QString &stats) const;

    std::optional<PitchingLine> pitching(const QString &game, const QString &player) const;
    bool savePitching(const QString &game, const QString &player, const QString &team, const PitchingLine &line);
    // Adds to the balls and strikes of the player's row in one statement;
    // the row after it, or none when the player has no row.
    std::optional<PitchingLine> addPitches(const QString &game, const QString &player, int balls, int strikes);
    // The same where the row still holds `expected` in every value; false
    // when it doesn't (written elsewhere since, or gone) and nothing changed.
    bool addPitchesIf(const QString &game, const QString &player, const PitchingLine &expected, int balls, int strikes);

    // The errors of a team in a game: fields 4 and 5 (fielding and
    // throwing errors) summed over its fielding rows.
    int teamErrors(const QString &game, const QString &team) const;
    // Whether the game has at least one fielding row and one pitching row.
    bool hasFieldingAndPitching(const QString &game) const;

private:
    std::optional<gameday::RowChange> rowChange(Panel panel, const QString &game, const QString &player,
                                                const QStringList &columns, const QVariantList &values) const;
    bool saveRow(Panel panel, const QString &game, const QString &player, const QStringList &columns,
                 const QVariantList &values);

    myDB &m_db;
};

} // namespace stats
