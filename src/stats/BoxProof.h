#pragma once

// The box-score proof of one team's card: every batter who came to the
// plate scored, was left on base or was put out, so
//   at bats + walks + hit by pitch + sacrifices + catcher's interference
//   = runs + left on base + the other team's putouts.
// It is worked out inning by inning from the cells, so a card that does not
// balance names the innings to look at. Like the other checks before
// recording, it warns and does not stop the coach.

#include <QString>
#include <QStringList>

#include <array>

namespace gameday {
class ScoreGrid;
struct GameRecord;
} // namespace gameday

namespace stats {

struct BoxProof
{
    bool hasCard = true; // false for a team entered by run totals
    int atBats = 0;
    int walks = 0; // BB and IBB
    int hitByPitch = 0;
    int sacrifices = 0; // SAC and SF
    int catchersInterference = 0;
    int runs = 0;
    int leftOnBase = 0;
    int putouts = 0;               // the outs on this team's card, made by the other team
    QStringList unbalancedInnings; // inning numbers, in card order

    int plateAppearances() const { return atBats + walks + hitByPitch + sacrifices + catchersInterference; }
    int accountedFor() const { return runs + leftOnBase + putouts; }
    bool balances() const { return unbalancedInnings.isEmpty() && plateAppearances() == accountedFor(); }
    // The line the final check shows, both sides of the equation and the
    // innings that don't balance.
    QString text(const QString &team) const;
};

BoxProof proveBoxScore(const gameday::ScoreGrid &card);
// Both teams of a game as stored, team A first.
std::array<BoxProof, 2> proveBoxScores(const gameday::GameRecord &game);

} // namespace stats
