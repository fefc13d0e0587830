#pragma once

// The season's totals over a span of days. The season tables hold one row
// per player with no dates, so the totals of some days are worked out again
// from their games: each recorded game scheduled in the span is read and
// counted exactly as recording counted it, and folded into empty rows.

#include "stats/SeasonFold.h"

#include <QDate>
#include <QHash>

class myDB;

namespace stats {

struct RangeTotals
{
    // The players' rows and the teams' records, in the order first folded.
    SeasonFold fold;
    // "SF" cells by player, as the season keeps them beside the rows.
    QHash<qint64, qint64> sacrificeFlies;
    int games = 0;

    // Folds the recorded games scheduled from `from` to `to`, both days
    // included, in date order. False when the season can't be read or a
    // game's saved data no longer counts (its message has been shown).
    bool read(myDB &db, const QDate &from, const QDate &to);
};

} // namespace stats
