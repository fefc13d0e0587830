#include "stats/RangeTotals.h"

#include "app/myDB.h"
#include "gameday/GameStore.h"
#include "stats/GameRecorder.h"
#include "stats/GameResultClass.h"

namespace stats {

bool RangeTotals::read(myDB &db, const QDate &from, const QDate &to)
{
    fold = SeasonFold();
    sacrificeFlies.clear();
    games = 0;
    const QList<Record> scheduled = db.select(QStringLiteral("SELECT g.schedID FROM Games g"
                                                             " JOIN Schedule s ON CAST(s.eventID AS TEXT) = g.schedID"
                                                             " WHERE g.recorded = 1 AND s.SchedDate >= ?"
                                                             " AND s.SchedDate < ? ORDER BY s.SchedDate, g.gameID"),
                                              {from.toString(Qt::ISODate), to.addDays(1).toString(Qt::ISODate)});
    if (scheduled.isEmpty() && db.lastErrorCode() != 0)
        return false;
    GameRecorder recorder(db);
    gameday::GameStore store(db);
    for (const Record &r : scheduled) {
        const QString schedID = r.text(QStringLiteral("schedID"));
        const std::optional<gameday::GameRecord> game = store.load(schedID);
        if (!game)
            return false;
        std::array<TeamAdditions, 2> additions;
        QList<qint64> playerIDs;
        if (recorder.collectAdditions(*game, recorder.loadPanels(schedID), additions, playerIDs) !=
            GameRecorder::Result::Recorded)
            return false;
        const qint64 gameID = idValue(schedID);
        for (int t = 0; t < 2; ++t) {
            for (const PlayerAdditions &p : additions[t].players) {
                // Rows that start empty always hold a whole innings code.
                fold.add(p, idValue(game->teamIDs[t]), gameID);
                sacrificeFlies[idValue(p.playerID)] += p.sacrificeFlies;
            }
        }
        fold.addResult(GameResultClass(game->teamIDs[0], game->teamIDs[1], GameRecorder::scoreboardRuns(game->teams[0]),
                                       GameRecorder::scoreboardRuns(game->teams[1])));
        ++games;
    }
    return true;
}

} // namespace stats
