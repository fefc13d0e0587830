#include "stats/SeasonFold.h"

#include "app/myDB.h"
#include "stats/GameResultClass.h"

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>

#include <QStringList>

namespace stats {

namespace {

template<std::size_t N>
std::string selectRows(const char *table, const std::array<const char *, N> &columns, const char *key, int count)
{
    std::string sql = "SELECT recID, ";
    sql += key;
    if (std::string(table) != "GameResultsByTeam")
        sql += ", teamID, gameID";
    for (const char *c : columns) {
        sql += ", ";
        sql += c;
    }
    sql += " FROM ";
    sql += table;
    sql += " WHERE ";
    sql += key;
    sql += " IN (";
    for (int i = 0; i < count; ++i)
        sql += i == 0 ? "?" : ",?";
    sql += ") ORDER BY recID";
    return sql;
}

// Reads the first row of each player (a player is looked up by his ID
// alone, so an older file's second row for him is left as it is).
template<std::size_t N>
void readRows(myDB &db, const char *table, const std::array<const char *, N> &columns, const QList<qint64> &ids,
              QHash<qint64, SeasonRow<N>> &rows)
{
    if (ids.isEmpty())
        return;
    SQLite::Statement &query = db.prepared(selectRows(table, columns, "playerID", int(ids.size())));
    for (int i = 0; i < ids.size(); ++i)
        query.bind(i + 1, static_cast<int64_t>(ids.at(i)));
    while (query.executeStep()) {
        const qint64 player = query.getColumn(1).getInt64();
        if (rows.contains(player))
            continue;
        SeasonRow<N> row;
        row.recID = query.getColumn(0).getInt64();
        row.teamID = query.getColumn(2).getInt64();
        row.gameID = query.getColumn(3).getInt64();
        for (std::size_t c = 0; c < N; ++c)
            row.figures[c] = query.getColumn(int(c) + 4).getInt64();
        rows.insert(player, row);
    }
}

template<std::size_t N>
std::string insertSql(const char *table, const std::array<const char *, N> &columns)
{
    std::string sql = std::string("INSERT INTO ") + table + " (playerID, teamID, gameID";
    for (const char *c : columns)
        sql += std::string(", ") + c;
    sql += ") VALUES (?, ?, ?";
    for (std::size_t i = 0; i < N; ++i)
        sql += ", ?";
    return sql + ")";
}

template<std::size_t N>
std::string updateSql(const char *table, const std::array<const char *, N> &columns)
{
    std::string sql = std::string("UPDATE ") + table + " SET playerID = ?, teamID = ?, gameID = ?";
    for (const char *c : columns)
        sql += std::string(", ") + c + " = ?";
    return sql + " WHERE recID = ?";
}

// Each changed row is one statement; a table's statements are prepared
// once for the connection.
template<std::size_t N>
void writeRows(myDB &db, const char *table, const std::array<const char *, N> &columns, const QList<qint64> &order,
               const QHash<qint64, SeasonRow<N>> &rows)
{
    SQLite::Statement *insert = nullptr;
    SQLite::Statement *update = nullptr;
    SQLite::Statement *remove = nullptr;
    for (const qint64 player : order) {
        const auto it = rows.constFind(player);
        if (it == rows.cend() || !it->changed)
            continue;
        if (it->removed) {
            if (it->recID < 0)
                continue;
            if (!remove)
                remove = &db.prepared(std::string("DELETE FROM ") + table + " WHERE recID = ?");
            remove->reset();
            remove->bind(1, static_cast<int64_t>(it->recID));
            remove->exec();
            continue;
        }
        const bool isUpdate = it->recID >= 0;
        SQLite::Statement *&statement = isUpdate ? update : insert;
        if (!statement)
            statement = &db.prepared(isUpdate ? updateSql(table, columns) : insertSql(table, columns));
        statement->reset();
        statement->bind(1, static_cast<int64_t>(player));
        statement->bind(2, static_cast<int64_t>(it->teamID));
        statement->bind(3, static_cast<int64_t>(it->gameID));
        for (std::size_t c = 0; c < N; ++c)
            statement->bind(int(c) + 4, static_cast<int64_t>(it->figures[c]));
        if (isUpdate)
            statement->bind(int(N) + 4, static_cast<int64_t>(it->recID));
        statement->exec();
    }
}

template<std::size_t N>
SeasonRow<N> &rowFor(QHash<qint64, SeasonRow<N>> &rows, qint64 player, qint64 teamID, qint64 gameID)
{
    SeasonRow<N> &row = rows[player]; // a new row starts at zero, recID -1
    row.teamID = teamID;
    row.gameID = gameID;
    row.changed = true;
    return row;
}

// Subtracts `figures` from the row, or nothing when any figure would go
// below zero.
template<std::size_t N>
bool canSubtract(const QHash<qint64, SeasonRow<N>> &rows, qint64 player, const std::array<qint64, N> &figures,
                 int skip = -1)
{
    const auto it = rows.constFind(player);
    if (it == rows.cend() || it->removed)
        return false;
    for (std::size_t i = 0; i < N; ++i) {
        if (int(i) != skip && it->figures[i] < figures[i])
            return false;
    }
    return true;
}

template<std::size_t N>
void subtract(SeasonRow<N> &row, const std::array<qint64, N> &figures, qint64 gameID, int skip = -1)
{
    bool empty = true;
    for (std::size_t i = 0; i < N; ++i) {
        if (int(i) != skip)
            row.figures[i] -= figures[i];
        empty = empty && row.figures[i] == 0;
    }
    row.changed = true;
    row.removed = empty && row.gameID == gameID;
}

} // namespace

qint64 idValue(const QString &id)
{
    return figureCount(id);
}

SeasonFold::SeasonFold(myDB &db, const std::array<TeamAdditions, 2> &additions, const QList<qint64> &teamIDs)
{
    // A table's rows are read only for the players the game adds to in it:
    // most of a lineup neither pitched nor has a fielding line.
    QList<qint64> hitters;
    QList<qint64> fielders;
    QList<qint64> pitchers;
    for (const TeamAdditions &team : additions) {
        for (const PlayerAdditions &p : team.players) {
            const qint64 id = idValue(p.playerID);
            hitters.append(id);
            if (p.fielding)
                fielders.append(id);
            if (p.pitching)
                pitchers.append(id);
        }
    }
    readRows(db, "Hitting", hittingColumns(), hitters, m_hitting);
    readRows(db, "Fielding", fieldingColumns(), fielders, m_fielding);
    readRows(db, "Pitching", pitchingColumns(), pitchers, m_pitching);
    if (teamIDs.isEmpty())
        return;
    static const std::array<const char *, 3> counts = {"W", "L", "Tie"};
    SQLite::Statement &query = db.prepared(selectRows("GameResultsByTeam", counts, "teamID", int(teamIDs.size())));
    for (int i = 0; i < teamIDs.size(); ++i)
        query.bind(i + 1, static_cast<int64_t>(teamIDs.at(i)));
    while (query.executeStep()) {
        const qint64 team = query.getColumn(1).getInt64();
        if (m_records.contains(team))
            continue;
        TeamRecordRow row;
        row.recID = query.getColumn(0).getInt64();
        row.W = query.getColumn(2).getInt64();
        row.L = query.getColumn(3).getInt64();
        row.Tie = query.getColumn(4).getInt64();
        m_records.insert(team, row);
    }
}

bool SeasonFold::add(const PlayerAdditions &player, qint64 teamID, qint64 gameID, bool carryThirds)
{
    const qint64 id = idValue(player.playerID);
    std::optional<qint64> innings;
    if (player.pitching) {
        const auto it = m_pitching.constFind(id);
        qint64 before = it == m_pitching.cend() ? 0 : it->figures[kPitchIP];
        if (carryThirds && before > 0 && !isInningsCode(before)) {
            const qint64 outs = (before / 10) * 3 + before % 10;
            before = (outs / 3) * 10 + outs % 3;
        }
        innings = getInningsPitchedVal(before, (*player.pitching)[kPitchIP]);
        if (!innings)
            return false;
    }

    if (!m_order.contains(id))
        m_order.append(id);
    auto &hit = rowFor(m_hitting, id, teamID, gameID);
    for (int i = 0; i < kHittingFigures; ++i)
        hit.figures[i] += player.hitting[i];
    if (player.fielding) {
        auto &fld = rowFor(m_fielding, id, teamID, gameID);
        for (int i = 0; i < kFieldingFigures; ++i)
            fld.figures[i] += (*player.fielding)[i];
    }
    if (player.pitching) {
        auto &pch = rowFor(m_pitching, id, teamID, gameID);
        for (int i = 0; i < kPitchingFigures; ++i)
            pch.figures[i] = i == kPitchIP ? *innings : pch.figures[i] + (*player.pitching)[i];
    }
    return true;
}

void SeasonFold::addResult(const GameResultClass &result)
{
    auto bump = [this](const QString &team, qint64 TeamRecordRow::*count) {
        const qint64 id = idValue(team);
        if (!m_teamOrder.contains(id))
            m_teamOrder.append(id);
        TeamRecordRow &row = m_records[id];
        row.*count += 1;
        row.changed = true;
    };
    if (!result.winner.isEmpty())
        bump(result.winner, &TeamRecordRow::W);
    if (!result.loser.isEmpty())
        bump(result.loser, &TeamRecordRow::L);
    for (const QString &team : result.tie)
        bump(team, &TeamRecordRow::Tie);
}

bool SeasonFold::takeBack(const PlayerAdditions &player, qint64 gameID)
{
    const qint64 id = idValue(player.playerID);
    std::optional<qint64> innings;
    if (!canSubtract(m_hitting, id, player.hitting))
        return false;
    if (player.fielding && !canSubtract(m_fielding, id, *player.fielding))
        return false;
    if (player.pitching) {
        if (!canSubtract(m_pitching, id, *player.pitching, kPitchIP))
            return false;
        innings = subtractInningsPitched(m_pitching[id].figures[kPitchIP], (*player.pitching)[kPitchIP]);
        if (!innings)
            return false;
    }

    if (!m_order.contains(id))
        m_order.append(id);
    subtract(m_hitting[id], player.hitting, gameID);
    if (player.fielding)
        subtract(m_fielding[id], *player.fielding, gameID);
    if (player.pitching) {
        SeasonRow<kPitchingFigures> &pch = m_pitching[id];
        pch.figures[kPitchIP] = *innings;
        subtract(pch, *player.pitching, gameID, kPitchIP);
    }
    return true;
}

bool SeasonFold::takeBackResult(const GameResultClass &result)
{
    QList<std::pair<qint64, qint64 TeamRecordRow::*>> counts;
    if (!result.winner.isEmpty())
        counts.append({idValue(result.winner), &TeamRecordRow::W});
    if (!result.loser.isEmpty())
        counts.append({idValue(result.loser), &TeamRecordRow::L});
    for (const QString &team : result.tie)
        counts.append({idValue(team), &TeamRecordRow::Tie});
    for (const auto &[team, count] : counts) {
        const auto it = m_records.constFind(team);
        if (it == m_records.cend() || (*it).*count < 1)
            return false;
    }
    for (const auto &[team, count] : counts) {
        if (!m_teamOrder.contains(team))
            m_teamOrder.append(team);
        TeamRecordRow &row = m_records[team];
        row.*count -= 1;
        row.changed = true;
        row.removed = row.W == 0 && row.L == 0 && row.Tie == 0;
    }
    return true;
}

void SeasonFold::write(myDB &db) const
{
    writeRows(db, "Hitting", hittingColumns(), m_order, m_hitting);
    writeRows(db, "Fielding", fieldingColumns(), m_order, m_fielding);
    writeRows(db, "Pitching", pitchingColumns(), m_order, m_pitching);
    for (const qint64 team : m_teamOrder) {
        const TeamRecordRow &row = m_records[team];
        if (!row.changed)
            continue;
        if (row.removed) {
            SQLite::Statement &remove = db.prepared("DELETE FROM GameResultsByTeam WHERE recID = ?");
            remove.bind(1, static_cast<int64_t>(row.recID));
            remove.exec();
        } else if (row.recID >= 0) {
            SQLite::Statement &update = db.prepared(
                "UPDATE GameResultsByTeam SET W = ?, L = ?, Tie = ? WHERE recID = ?");
            update.bind(1, static_cast<int64_t>(row.W));
            update.bind(2, static_cast<int64_t>(row.L));
            update.bind(3, static_cast<int64_t>(row.Tie));
            update.bind(4, static_cast<int64_t>(row.recID));
            update.exec();
        } else {
            SQLite::Statement &insert = db.prepared(
                "INSERT INTO GameResultsByTeam (teamID, W, L, Tie) VALUES (?, ?, ?, ?)");
            insert.bind(1, static_cast<int64_t>(team));
            insert.bind(2, static_cast<int64_t>(row.W));
            insert.bind(3, static_cast<int64_t>(row.L));
            insert.bind(4, static_cast<int64_t>(row.Tie));
            insert.exec();
        }
    }
}

const SeasonRow<kHittingFigures> *SeasonFold::hitting(qint64 playerID) const
{
    const auto it = m_hitting.constFind(playerID);
    return it == m_hitting.cend() ? nullptr : &*it;
}

const SeasonRow<kFieldingFigures> *SeasonFold::fielding(qint64 playerID) const
{
    const auto it = m_fielding.constFind(playerID);
    return it == m_fielding.cend() ? nullptr : &*it;
}

const TeamRecordRow *SeasonFold::record(qint64 teamID) const
{
    const auto it = m_records.constFind(teamID);
    return it == m_records.cend() ? nullptr : &*it;
}

const SeasonRow<kPitchingFigures> *SeasonFold::pitching(qint64 playerID) const
{
    const auto it = m_pitching.constFind(playerID);
    return it == m_pitching.cend() ? nullptr : &*it;
}

} // namespace stats
