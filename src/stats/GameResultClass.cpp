#include "stats/GameResultClass.h"

namespace stats {

GameResultClass::GameResultClass(const QString &teamA, const QString &teamB, int runsA, int runsB)
{
    if (runsB < runsA) {
        winner = teamA;
        loser = teamB;
    } else if (runsA < runsB) {
        winner = teamB;
        loser = teamA;
    } else {
        tie = {teamA, teamB};
    }
}

} // namespace stats
