#pragma once

// The outcome of one game for the two teams' records: a winner and a loser,
// or a tie for both, decided by the runs on the scoreboard.

#include <QString>
#include <QStringList>

namespace stats {

class GameResultClass
{
public:
    GameResultClass(const QString &teamA, const QString &teamB, int runsA, int runsB);

    QString winner;
    QString loser;
    QStringList tie; // both teams on a tie, else empty
};

} // namespace stats
