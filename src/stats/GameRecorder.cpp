#include "stats/GameRecorder.h"

#include "app/globals.h"
#include "app/myDB.h"
#include "gameday/GameStore.h"
#include "gameday/GridCodes.h"
#include "gameday/ScoreGrid.h"
#include "platform/Messages.h"
#include "stats/GameResultClass.h"
#include "stats/SacrificeFlies.h"
#include "stats/SeasonFold.h"

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>

#include <stdexcept>

namespace stats {

namespace {

using gameday::kFieldSep;
using gameday::splitLines;

void showNotInSync()
{
    gShowMsgDlog(QStringLiteral("The lineup and hitting data are not in sync."),
                 QStringLiteral("Correct then click 'Record' again."), QStringLiteral("Continue"));
}

void showMissing()
{
    gShowMsgDlog(QStringLiteral("TallylineBB was unable to find the data for this game."),
                 QStringLiteral("Please reload this game from the Schedule."), QStringLiteral("OK"));
}

void showBadInnings(const QString &who, const QString &innings)
{
    gShowMsgDlog(QStringLiteral("Incorrect 'IP' entry."),
                 QStringLiteral("Enter thirds of an inning as .1 or .2 (") + who + QStringLiteral(": ") + innings +
                     QStringLiteral("), then click 'Record' again."),
                 QStringLiteral("OK"));
}

bool askCarryThirds(const QString &who, const QString &total)
{
    return gShowMsgDlog(QStringLiteral("The season's innings pitched of ") + who + QStringLiteral(" read ") + total +
                            QStringLiteral(", which is not a count of thirds."),
                        QStringLiteral("Click 'Carry' to count each three thirds as a whole inning (.3 becomes the "
                                       "next inning) and record the game, or 'Cancel' to leave the season as it is."),
                        QStringLiteral("Carry")) == platform::MsgAction;
}

} // namespace

int GameRecorder::scoreboardRuns(const gameday::TeamStrings &team)
{
    if (gameday::isRunEntry(team.actions))
        return gameday::readRunEntry(team.actions).runs();
    gameday::ScoreGrid grid;
    loadGrid(grid, team);
    return grid.countTotalRuns();
}

GamePanels GameRecorder::loadPanels(const QString &schedID)
{
    // One query per table for the whole game, read by column position. A
    // player's first row for the game is his; the panels never write a
    // second one.
    GamePanels panels;
    const std::string game = schedID.toStdString();
    const auto text = [](const SQLite::Column &c) { return QString::fromUtf8(c.getText(), c.getBytes()); };
    const auto readStats = [&](const char *sql, QHash<QString, QString> &out) {
        SQLite::Statement &query = m_db.prepared(sql);
        query.bind(1, game);
        while (query.executeStep()) {
            const QString player = text(query.getColumn(0));
            if (!out.contains(player))
                out.insert(player, text(query.getColumn(1)));
        }
    };
    readStats("SELECT playerID, stats FROM GamesIndivHitting WHERE gameID = ? ORDER BY recID", panels.hitting);
    readStats("SELECT playerID, stats FROM GamesIndivFielding WHERE gameID = ? ORDER BY recID", panels.fielding);
    SQLite::Statement &query = m_db.prepared("SELECT playerID, gameResult, start, shutout, compGame, totBalls, "
                                             "totKs, stats FROM GamesIndivPitching WHERE gameID = ? ORDER BY recID");
    query.bind(1, game);
    while (query.executeStep()) {
        const QString player = text(query.getColumn(0));
        if (panels.pitching.contains(player))
            continue;
        PitchingLine row;
        row.gameResult = query.getColumn(1).getInt();
        row.start = query.getColumn(2).getInt64() != 0;
        row.shutout = query.getColumn(3).getInt64() != 0;
        row.compGame = query.getColumn(4).getInt64() != 0;
        row.totBalls = query.getColumn(5).getInt();
        row.totKs = query.getColumn(6).getInt();
        row.stats = text(query.getColumn(7));
        panels.pitching.insert(player, row);
    }
    return panels;
}

bool GameRecorder::loadGrid(gameday::ScoreGrid &grid, const gameday::TeamStrings &team)
{
    QStringList headings = team.headings.isEmpty() ? QStringList() : team.headings.split(kFieldSep);
    for (int c = int(headings.size()); c < gameday::kDefaultColumns; ++c)
        headings.append(QString::number(c + 1));
    grid.deleteAllRows();
    grid.setColumnHeadings(headings);
    const QStringList lineup = splitLines(team.players);
    for (int r = 0; r < lineup.size(); ++r)
        grid.addRow();
    if (gameday::isRunEntry(team.actions)) {
        grid.initCellBkg(grid.columnCount() - 1);
        return true;
    }
    const bool fits = splitLines(team.actions).size() <= lineup.size();
    grid.setMyData(team.actions); // says so itself when the texts don't fit
    grid.setMyBkgArray(team.outcomes);
    return fits;
}

int GameRecorder::countRecRBI(const QString &batterStats)
{
    int rbi = 0;
    for (const QString &line : splitLines(batterStats))
        rbi += int(figureCount(line.section(kFieldSep, 0, 0)));
    return rbi;
}

std::array<bool, 4> GameRecorder::performPreChecks(const gameday::GameRecord &game)
{
    std::array<bool, 4> passed{};
    std::array<int, 2> runs{};
    bool outs = true;
    bool complete = true;
    for (int t = 0; t < 2; ++t) {
        gameday::ScoreGrid grid;
        loadGrid(grid, game.teams[t]);
        runs[t] = grid.countTotalRuns();
        for (int c = 0; c < grid.columnCount(); ++c) {
            if (!grid.isColumnEmpty(c) && !grid.check4ThreeOuts(c))
                outs = false;
        }
        complete = complete && !grid.check4IncompleteCells();
    }
    passed[0] = !(runs[0] == 0 && runs[1] == 0) && runs[0] == countRecRBI(game.teams[0].batStats) &&
                runs[1] == countRecRBI(game.teams[1].batStats);
    passed[1] = outs;
    passed[2] = complete;
    passed[3] = GameStatStore(m_db).hasFieldingAndPitching(game.schedID);
    return passed;
}

GameRecorder::Result GameRecorder::record(const QString &schedID, int runsA, int runsB)
{
    const std::optional<gameday::GameRecord> game = gameday::GameStore(m_db).load(schedID);
    if (!game) {
        showMissing();
        return Result::NoGame;
    }
    // Just read: its flag is the stored one.
    return recordUnlessRecorded(*game, game->recorded, runsA, runsB);
}

GameRecorder::Result GameRecorder::record(const gameday::GameRecord &game, int runsA, int runsB)
{
    // The stored flag decides, not the caller's copy: a game is added to
    // the season once. The caller's copy holds the strings, so only the flag
    // is read.
    const std::optional<bool> recorded = gameday::GameStore(m_db).storedRecorded(game.schedID);
    if (!recorded) {
        showMissing();
        return Result::NoGame;
    }
    return recordUnlessRecorded(game, *recorded, runsA, runsB);
}

GameRecorder::Result GameRecorder::recordUnlessRecorded(const gameday::GameRecord &game, bool recorded, int runsA,
                                                        int runsB)
{
    if (recorded)
        return Result::AlreadyRecorded;
    Result result = Result::Failed;
    try {
        result = recordChecked(game, runsA, runsB);
    } catch (const std::exception &) {
        // The transaction was taken back as the error left it.
        gMsgBox(QStringLiteral("There was an error in recording the data for this game."));
        return Result::Failed;
    }
    if (result == Result::Recorded)
        gMsgBox(QStringLiteral("The game data has been successfully recorded."));
    return result;
}

GameRecorder::Result GameRecorder::collectAdditions(const gameday::GameRecord &game, const GamePanels &panels,
                                                    std::array<TeamAdditions, 2> &additions, QList<qint64> &playerIDs)
{
    for (int t = 0; t < 2; ++t) {
        gameday::ScoreGrid grid;
        if (!loadGrid(grid, game.teams[t]))
            return Result::BadSavedData;
        const dataAggregator aggregator(game.teamIDs[t], game.schedID);
        additions[t] = aggregator.collect(grid, game.teams[t].players, game.teams[t].batStats, panels);
        switch (additions[t].problem) {
        case TeamAdditions::Problem::NotInSync:
            showNotInSync();
            return Result::NotInSync;
        case TeamAdditions::Problem::BadInnings:
            // The pitching panel refuses such a text; one stored before it
            // did is refused here, before anything reaches a season total.
            showBadInnings(additions[t].badPlayer, additions[t].badInnings);
            return Result::BadInnings;
        case TeamAdditions::Problem::None:
            break;
        }
        for (const PlayerAdditions &p : additions[t].players)
            playerIDs.append(idValue(p.playerID));
    }
    return Result::Recorded;
}

GameRecorder::Result GameRecorder::recordChecked(const gameday::GameRecord &game, int runsA, int runsB)
{
    // Everything is worked out before the first write.
    const GamePanels panels = loadPanels(game.schedID);
    std::array<TeamAdditions, 2> additions;
    QList<qint64> playerIDs;
    if (const Result refused = collectAdditions(game, panels, additions, playerIDs); refused != Result::Recorded)
        return refused;
    const GameResultClass outcome(game.teamIDs[0], game.teamIDs[1], runsA, runsB);
    const qint64 gameID = idValue(game.schedID);
    gameday::GameRecord recorded = game;
    recorded.recorded = true;

    // One transaction: the season rows of both teams, both records and the
    // game's row marked recorded are written together or not at all.
    bool refused = false;
    QString refusedPlayer;
    QString refusedTotal;
    auto write = [&](bool carryThirds) {
        refused = false;
        return m_db.runInTransaction([&] {
            SQLite::Database &db = *m_db.tlynData;
            SeasonFold fold(m_db, additions, {idValue(game.teamIDs[0]), idValue(game.teamIDs[1])});
            for (int t = 0; t < 2; ++t) {
                const qint64 teamID = idValue(game.teamIDs[t]);
                for (const PlayerAdditions &p : additions[t].players) {
                    if (!fold.add(p, teamID, gameID, carryThirds)) {
                        // A season total with a thirds digit above 2 can't be
                        // added to; nothing has been written yet.
                        refused = true;
                        refusedPlayer = p.name;
                        const qint64 total = fold.pitching(idValue(p.playerID))->figures[kPitchIP];
                        refusedTotal = QString::number(total / 10) + u'.' + QString::number(total % 10);
                        return;
                    }
                }
            }
            fold.addResult(outcome);
            fold.write(m_db);
            QHash<qint64, qint64> flies;
            for (int t = 0; t < 2; ++t) {
                for (const PlayerAdditions &p : additions[t].players)
                    flies[idValue(p.playerID)] += p.sacrificeFlies;
            }
            addSacrificeFlies(db, flies);
            gameday::GameStore::writeWithin(m_db, recorded);
        });
    };
    bool written = write(false);
    if (refused) {
        // The coach can't mend a season total from the game screen: he is
        // told whose total it is and may let its thirds carry, in the same
        // transaction as the recording.
        if (!askCarryThirds(refusedPlayer, refusedTotal))
            return Result::BadInnings;
        written = write(true);
    }
    // A database failure has been shown by the transaction.
    return written ? Result::Recorded : Result::Failed;
}

GameRecorder::Correction GameRecorder::correct(const QString &schedID)
{
    const std::optional<gameday::GameRecord> game = gameday::GameStore(m_db).load(schedID);
    if (!game) {
        showMissing();
        return Correction::NoGame;
    }
    if (!game->recorded)
        return Correction::NotRecorded;
    if (gShowMsgDlog(QStringLiteral("Correct this recorded game?"),
                     QStringLiteral("Its statistics and result are taken back out of the season so you can change "
                                    "the game; click 'Record' again when it is right."),
                     QStringLiteral("Correct")) != platform::MsgAction)
        return Correction::Cancelled;

    // The additions are worked out exactly as recording did, from the same
    // strings and panel rows: a recorded game can't be changed on the screen.
    const GamePanels panels = loadPanels(schedID);
    std::array<TeamAdditions, 2> additions;
    QList<qint64> playerIDs;
    try {
        if (collectAdditions(*game, panels, additions, playerIDs) != Result::Recorded)
            return Correction::Failed;
    } catch (const std::exception &) {
        gMsgBox(QStringLiteral("There was an error in correcting this game."));
        return Correction::Failed;
    }
    const GameResultClass outcome(game->teamIDs[0], game->teamIDs[1], scoreboardRuns(game->teams[0]),
                                  scoreboardRuns(game->teams[1]));
    const qint64 gameID = idValue(schedID);
    gameday::GameRecord reopened = *game;
    reopened.recorded = false;

    bool mismatch = false;
    const bool written = m_db.runInTransaction([&] {
        SQLite::Database &db = *m_db.tlynData;
        SeasonFold fold(m_db, additions, {idValue(game->teamIDs[0]), idValue(game->teamIDs[1])});
        for (const TeamAdditions &team : additions) {
            for (const PlayerAdditions &p : team.players) {
                if (!fold.takeBack(p, gameID)) {
                    mismatch = true;
                    return;
                }
            }
        }
        if (!fold.takeBackResult(outcome)) {
            mismatch = true;
            return;
        }
        fold.write(m_db);
        QHash<qint64, qint64> flies;
        for (const TeamAdditions &team : additions) {
            for (const PlayerAdditions &p : team.players)
                flies[idValue(p.playerID)] += p.sacrificeFlies;
        }
        takeBackSacrificeFlies(db, flies);
        gameday::GameStore::writeWithin(m_db, reopened);
    });
    if (mismatch) {
        gShowMsgDlog(QStringLiteral("This game can't be taken back out of the season."),
                     QStringLiteral("The season's totals hold less than the game added; nothing was changed."),
                     QStringLiteral("OK"));
        return Correction::Mismatch;
    }
    return written ? Correction::Corrected : Correction::Failed;
}

} // namespace stats
