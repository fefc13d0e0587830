#include "stats/dataAggregator.h"

#include "gameday/GameRecord.h"
#include "gameday/GridCodes.h"
#include "gameday/ScoreGrid.h"

#include <QSet>

namespace stats {

namespace {

constexpr QChar kTab = gameday::kFieldSep;
using gameday::splitLines;

// Adds each tab-separated entry of `stats`, truncated, from index `first`
// on; entries past the end of the array have no column and are dropped.
template<std::size_t N>
void addEntries(std::array<qint64, N> &figures, const QString &stats, int first, int skip = 0)
{
    const QStringList entries = stats.split(kTab);
    for (int k = skip; k < entries.size(); ++k) {
        const int index = first + k;
        if (index >= 0 && index < int(N))
            figures[index] += figureCount(entries.at(k));
    }
}

} // namespace

QStringList dataAggregator::extractID(const QString &lineupText)
{
    QStringList ids;
    for (const QString &line : splitLines(lineupText)) {
        const QStringList fields = line.split(kTab);
        if (fields.size() == 4 && !fields.at(3).isEmpty())
            ids.append(fields.at(3));
    }
    return ids;
}

std::optional<PitchArray> dataAggregator::getNewPitchingStats(const PitchingLine &row)
{
    PitchArray game{};
    const int decision = row.gameResult >= 1 && row.gameResult <= 4 ? row.gameResult : 4;
    game[decision - 1] += 1;
    game[4] += row.start ? 1 : 0;
    game[5] += row.shutout ? 1 : 0;
    game[6] += row.compGame ? 1 : 0;
    game[7] += row.totBalls;
    game[8] += row.totKs;
    game[9] = game[7] + game[8];
    const QString innings = row.stats.section(kTab, 0, 0);
    const std::optional<int> code = inningsCodeFromText(innings);
    if (!code)
        return std::nullopt;
    game[kPitchIP] = *code;
    addEntries(game, row.stats, kPitchIP, 1);
    return game;
}

TeamAdditions dataAggregator::collect(const gameday::ScoreGrid &grid, const QString &lineupText,
                                      const QString &batterStatsText, const GamePanels &panels) const
{
    TeamAdditions out;
    const QStringList ids = extractID(lineupText);
    if (ids.size() != grid.rowCount()) {
        out.problem = TeamAdditions::Problem::NotInSync;
        return out;
    }
    QStringList names;
    for (const QString &line : splitLines(lineupText)) {
        const QStringList fields = line.split(kTab);
        if (fields.size() == 4 && !fields.at(3).isEmpty())
            names.append(QString(fields.at(2)).remove(QStringLiteral("->")).trimmed());
    }
    const QStringList statLines = splitLines(batterStatsText);
    // A player listed twice (back in the game after a substitute) has his
    // panel rows counted once: they hold his whole game.
    QSet<QString> panelsTaken;

    for (int r = 0; r < grid.rowCount(); ++r) {
        PlayerAdditions player;
        player.playerID = ids.at(r);
        player.name = names.at(r);

        const std::array<int, 21> counted = grid.getHittingStats(r);
        for (std::size_t i = 0; i < counted.size(); ++i)
            player.hitting[i] += counted[i];
        for (int c = 0; c < grid.columnCount(); ++c) {
            if (grid.cellText(r, c) == u"SF")
                ++player.sacrificeFlies;
        }
        // The row's backgrounds are its runs and its times left on base.
        for (int c = 0; c < qMin(grid.columnCount(), gameday::kBkgCols); ++c) {
            const QString bkg = grid.cellBkg(r, c);
            if (bkg == gameday::kBkgRun)
                ++player.hitting[kHitRuns];
            else if (bkg == gameday::kBkgLeft)
                ++player.hitting[kHitLOB];
        }
        if (r < statLines.size()) {
            const QStringList fields = statLines.at(r).split(kTab);
            player.hitting[kHitRBI] += figureCount(fields.value(0));
            player.hitting[kHitSB] += figureCount(fields.value(1));
        }
        if (panelsTaken.contains(player.playerID)) {
            out.players.append(std::move(player));
            continue;
        }
        panelsTaken.insert(player.playerID);
        if (const auto it = panels.hitting.constFind(player.playerID); it != panels.hitting.cend())
            addEntries(player.hitting, *it, kHitFirstUser);

        if (const auto it = panels.fielding.constFind(player.playerID); it != panels.fielding.cend()) {
            player.fielding = FldArray{};
            addEntries(*player.fielding, *it, 0);
        }

        if (const auto it = panels.pitching.constFind(player.playerID); it != panels.pitching.cend()) {
            player.pitching = getNewPitchingStats(*it);
            if (!player.pitching) {
                out.problem = TeamAdditions::Problem::BadInnings;
                out.badPlayer = player.name;
                out.badInnings = it->stats.section(kTab, 0, 0);
                out.players.clear();
                return out;
            }
        }
        out.players.append(std::move(player));
    }
    return out;
}

} // namespace stats
