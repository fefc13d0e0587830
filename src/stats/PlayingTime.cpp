#include "stats/PlayingTime.h"

#include "app/myDB.h"
#include "gameday/ChangeLog.h"
#include "gameday/DefenseTable.h"
#include "gameday/GameDay.h"
#include "gameday/GameRecord.h"
#include "gameday/ScoreGrid.h"
#include "stats/GameStats.h"

#include <QHash>

#include <algorithm>

namespace stats {

using namespace Qt::StringLiterals;

namespace {

struct Names
{
    QHash<QString, QString> players; // playerID → "First Last"
    QHash<QString, QString> teams;   // teamID → name
};

Names readNames(myDB &db)
{
    Names names;
    for (const Record &r : db.select(u"SELECT playerID, First, Last FROM Players"_s))
        names.players.insert(r.text(u"playerID"_s), QString(r.text(u"First"_s) + u' ' + r.text(u"Last"_s)).trimmed());
    for (const Record &r : db.select(u"SELECT teamID, TeamName FROM Teams"_s))
        names.teams.insert(r.text(u"teamID"_s), r.text(u"TeamName"_s));
    return names;
}

gameday::TeamStrings teamStrings(const Record &r, const QString &side)
{
    const auto text = [&](const char *column) { return r.text(u"Team"_s + side + QString::fromLatin1(column)); };
    return {text("Headings"), text("Bench"), text("Players"), text("Actions"), text("Outcomes"), text("BatterStats")};
}

// Non-empty cells of each lineup row: one per time at the plate.
QList<int> plateAppearances(const gameday::TeamStrings &team)
{
    QList<int> counts;
    gameday::ScoreGrid card;
    if (gameday::isRunEntry(team.actions) || !gameday::GameDay::loadStoredGrid(card, team))
        return counts;
    for (int r = 0; r < card.rowCount(); ++r) {
        int n = 0;
        for (int c = 0; c < card.columnCount(); ++c)
            n += card.cellText(r, c).isEmpty() ? 0 : 1;
        counts.append(n);
    }
    return counts;
}

} // namespace

PlayingTimeReport PlayingTimeReport::read(myDB &db, const PlayingTimeFilter &filter)
{
    PlayingTimeReport report;
    const Names names = readNames(db);
    const auto moves = gameday::DefenseStore(db).allMoves();

    QString sql = u"SELECT g.* FROM Games g JOIN Schedule s ON CAST(s.eventID AS TEXT) = g.schedID WHERE 1"_s;
    QVariantList params;
    if (filter.from.isValid()) {
        sql += u" AND substr(s.SchedDate, 1, 10) >= ?"_s;
        params.append(filter.from.toString(Qt::ISODate));
    }
    if (filter.to.isValid()) {
        sql += u" AND substr(s.SchedDate, 1, 10) <= ?"_s;
        params.append(filter.to.toString(Qt::ISODate));
    }

    QHash<QString, qsizetype> index; // team, tab, player → row
    const auto rowOf = [&](const QString &teamID, const QString &playerID, const QString &shownName) {
        const QString key = teamID + gameday::kFieldSep + playerID;
        auto at = index.constFind(key);
        if (at == index.constEnd()) {
            PlayingTimeRow row;
            row.playerID = playerID;
            row.teamID = teamID;
            row.name = names.players.value(playerID, shownName);
            row.team = names.teams.value(teamID);
            report.rows.append(row);
            at = index.insert(key, report.rows.size() - 1);
        }
        return &report.rows[*at];
    };

    for (const Record &r : db.select(sql, params)) {
        const QStringList teamIDs = r.text(u"Teams"_s).split(gameday::kFieldSep);
        const std::array<gameday::TeamStrings, 2> sides{teamStrings(r, u"A"_s), teamStrings(r, u"B"_s)};
        const QString schedID = r.text(u"schedID"_s);
        for (int t = 0; t < 2; ++t) {
            const QString teamID = teamIDs.value(t);
            if (!filter.teamID.isEmpty() && teamID != filter.teamID)
                continue;
            const QSet<int> counted = gameday::fieldedInnings(sides[size_t(1 - t)]);
            const QList<int> appearances = plateAppearances(sides[size_t(t)]);
            if (counted.isEmpty() &&
                std::all_of(appearances.cbegin(), appearances.cend(), [](int n) { return n == 0; }))
                continue; // not played yet
            const int innings = gameday::tableInnings(0, sides[0], sides[1]);
            const auto table = gameday::DefenseTable::build(sides[size_t(t)],
                                                            moves.value(schedID + gameday::kFieldSep + teamID),
                                                            innings);

            const QList<gameday::LineupLine> lineup = gameday::readPlayers(sides[size_t(t)].players);
            QSet<QString> seen;
            for (int i = 0; i < lineup.size(); ++i) {
                const QString id = lineup.at(i).playerID;
                PlayingTimeRow *row = rowOf(teamID, id, table.player(id) ? table.player(id)->name : QString());
                row->plateAppearances += appearances.value(i);
                if (seen.contains(id))
                    continue;
                seen.insert(id);
                ++row->games;
                int placed = 0;
                for (int p = 0; p < int(row->atPosition.size()); ++p) {
                    const int n = table.inningsAt(id, gameday::defensePositions().at(p), counted);
                    row->atPosition[size_t(p)] += n;
                    placed += n;
                }
                row->fieldInnings += table.fieldInnings(id, counted);
                row->benchInnings += int(counted.size()) - placed;
            }
            for (const gameday::BenchLine &line : gameday::readBench(sides[size_t(t)].bench)) {
                if (seen.contains(line.playerID))
                    continue;
                seen.insert(line.playerID);
                rowOf(teamID, line.playerID, line.name)->benchInnings += int(counted.size());
            }
        }
    }

    std::sort(report.rows.begin(), report.rows.end(), [](const PlayingTimeRow &a, const PlayingTimeRow &b) {
        const int byTeam = QString::localeAwareCompare(a.team, b.team);
        return byTeam != 0 ? byTeam < 0 : QString::localeAwareCompare(a.name, b.name) < 0;
    });
    return report;
}

QStringList PlayingTimeReport::headings()
{
    return QStringList{u"Player"_s, u"Team"_s, u"G"_s, u"Field"_s} + gameday::defensePositions() +
           QStringList{u"Bench"_s, u"PA"_s};
}

QString PlayingTimeReport::columnWidths()
{
    return u"150,110,36,44,36,36,36,36,36,36,36,36,36,36,36,48,36"_s;
}

QList<QStringList> PlayingTimeReport::texts() const
{
    QList<QStringList> out;
    for (const PlayingTimeRow &row : rows) {
        QStringList line{row.name, row.team, QString::number(row.games), QString::number(row.fieldInnings)};
        for (int n : row.atPosition)
            line.append(QString::number(n));
        line << QString::number(row.benchInnings) << QString::number(row.plateAppearances);
        out.append(line);
    }
    return out;
}

bool fillFieldingInnings(myDB &db, const QString &schedID, const QString &teamID, const gameday::DefenseTable &table,
                         const QSet<int> &counted)
{
    // Every player's row in one change of the game's log: one Undo takes
    // the whole fill back.
    GameStatStore store(db);
    gameday::Change change{u"Fill Fielding Innings"_s, -1, {}};
    for (const auto &player : table.players()) {
        bool isPlayer = false;
        player.playerID.toLongLong(&isPlayer);
        if (!isPlayer)
            continue; // a lineup row without a player of the season
        const int innings = table.fieldInnings(player.playerID, counted);
        const std::optional<QString> stored = store.stats(Panel::Fielding, schedID, player.playerID);
        if (!stored && innings == 0)
            continue;
        QStringList fields(kFieldingFields, u"0"_s);
        if (stored)
            fields = spreadStats(*stored, fields);
        fields[0] = QString::number(innings);
        if (std::optional<gameday::RowChange> row = store.statsChange(Panel::Fielding, schedID, player.playerID, teamID,
                                                                      gatherStats(fields)))
            change.rows.append(*row);
    }
    return change.rows.isEmpty() ||
           gameday::ChangeLog::record(db, schedID, change) == gameday::ChangeLog::Result::Saved;
}

} // namespace stats
