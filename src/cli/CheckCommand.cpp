#include "cli/CheckCommand.h"

#include "cli/SeasonAccess.h"
#include "gameday/GameRecord.h"
#include "gameday/GameStore.h"

#include <SQLiteCpp/SQLiteCpp.h>

namespace cli {

void CheckCommand::addOptions(QCommandLineParser &parser)
{
    addSeasonOptions(parser);
}

namespace {

// The problems of one team's strings: each must read back through its
// reader and be written again as it stands, or the game screen would show
// something other than what is stored.
QStringList teamProblems(const gameday::TeamStrings &team)
{
    QStringList problems;
    if (gameday::writeBench(gameday::readBench(team.bench)) != team.bench)
        problems << QStringLiteral("bench");
    if (gameday::writePlayers(gameday::readPlayers(team.players)) != team.players)
        problems << QStringLiteral("line-up");
    if (gameday::writeBatStats(gameday::readBatStats(team.batStats)) != team.batStats)
        problems << QStringLiteral("batter statistics");
    if (gameday::isRunEntry(team.actions) &&
        gameday::writeRunEntry(gameday::readRunEntry(team.actions)) != team.actions)
        problems << QStringLiteral("run entry");
    return problems;
}

void checkGames(myDB &db, QStringList &problems)
{
    const gameday::GameStore store(db);
    const QList<Record> rows = db.select(
        QStringLiteral("SELECT g.gameID, g.schedID, s.eventID IS NOT NULL AS scheduled FROM Games AS g "
                       "LEFT JOIN Schedule AS s ON s.eventID = g.schedID ORDER BY g.gameID"));
    for (const Record &row : rows) {
        const QString where = QStringLiteral("Games row ") + row.text(QStringLiteral("gameID")) +
                              QStringLiteral(" (schedule entry ") + row.text(QStringLiteral("schedID")) +
                              QStringLiteral("): ");
        if (row.integer(QStringLiteral("scheduled")) == 0)
            problems << where + QStringLiteral("its schedule entry is missing");
        const std::optional<gameday::GameRecord> game = store.load(row.text(QStringLiteral("schedID")));
        if (!game) {
            problems << where + QStringLiteral("can't be read");
            continue;
        }
        if (game->teamIDs[0].isEmpty() || game->teamIDs[1].isEmpty() || game->teamsField().count(u'\t') != 1)
            problems << where + QStringLiteral("its two teams are not named");
        for (int t = 0; t < 2; ++t) {
            const QStringList bad = teamProblems(game->teams[size_t(t)]);
            if (!bad.isEmpty())
                problems << where + (t == 0 ? QStringLiteral("team A's ") : QStringLiteral("team B's ")) +
                                bad.join(QStringLiteral(", ")) + QStringLiteral(" can't be read back as stored");
        }
    }
}

// Innings pitched are kept as whole innings times ten plus the thirds (62
// is 6 2/3): a last digit of 3 or more, a fraction or a negative count is
// no number of innings. (Fielding counts whole innings played.)
void checkInnings(myDB &db, QStringList &problems)
{
    const QList<Record> rows = db.select(
        QStringLiteral("SELECT recID, playerID, IP FROM Pitching WHERE IP IS NOT NULL AND "
                       "(IP < 0 OR IP % 10 > 2 OR IP <> CAST(IP AS INTEGER)) ORDER BY recID"));
    for (const Record &row : rows)
        problems << QStringLiteral("Pitching row ") + row.text(QStringLiteral("recID")) + QStringLiteral(" (player ") +
                        row.text(QStringLiteral("playerID")) + QStringLiteral("): innings pitched ") +
                        row.text(QStringLiteral("IP")) + QStringLiteral(" is not whole innings and thirds");
}

} // namespace

int CheckCommand::execute(const QCommandLineParser &parser, QTextStream &out, QTextStream &err)
{
    SeasonAccess season(parser, err);
    myDB *db = season.open();
    if (!db)
        return Failed;
    QStringList problems;
    try {
        SQLite::Statement check(*db->tlynData, "PRAGMA integrity_check");
        while (check.executeStep()) {
            const QString line = QString::fromStdString(check.getColumn(0).getString());
            if (line != QLatin1String("ok"))
                problems << QStringLiteral("file: ") + line;
        }
    } catch (const SQLite::Exception &e) {
        problems << QStringLiteral("file: ") + QString::fromUtf8(e.what());
    }
    checkGames(*db, problems);
    checkInnings(*db, problems);
    for (const QString &problem : problems)
        out << problem << '\n';
    if (problems.isEmpty())
        out << "The season \"" << season.season() << "\" is sound.\n";
    return problems.isEmpty() ? Ok : Failed;
}

} // namespace cli
