#include "gameday/DefenseTable.h"

#include "app/Schema.h"
#include "app/myDB.h"
#include "gameday/ChangeLog.h"
#include "gameday/GameDay.h"
#include "gameday/GridCodes.h"
#include "gameday/ScoreGrid.h"

#include <algorithm>
#include <map>

namespace gameday {

using namespace Qt::StringLiterals;

const QStringList &defensePositions()
{
    static const QStringList positions = {u"P"_s,  u"C"_s,  u"1B"_s, u"2B"_s, u"3B"_s, u"SS"_s,
                                          u"LF"_s, u"CF"_s, u"RF"_s, u"OF"_s, u"DH"_s};
    return positions;
}

QString fieldPosition(const QString &lineupPos)
{
    const QString pos = lineupPos.trimmed().toUpper();
    if (pos == u"RHP" || pos == u"LHP")
        return u"P"_s;
    // The program's own abbreviations for the bases, and the fielders of
    // leagues that play ten (short field, left- and right-center).
    if (pos == u"B1" || pos == u"B2" || pos == u"B3")
        return pos.mid(1) + u'B';
    if (pos == u"SF" || pos == u"LCF" || pos == u"RCF")
        return u"OF"_s;
    return defensePositions().contains(pos) ? pos : QString();
}

bool isFieldPosition(const QString &pos)
{
    return !pos.isEmpty() && pos != u"DH" && defensePositions().contains(pos);
}

namespace {

// The inning a column heads: "4" and "4a" (a doubled inning) are the 4th.
int inningOfColumn(const ScoreGrid &card, int col)
{
    return numericValue(card.heading(col));
}

// A replacement's first inning: that of the first cell of its grid row the
// substitution left open. A row closed throughout (a pitcher who doesn't
// bat) tells nothing; he then stands from the first inning, and the coach
// sets the inning with a move.
int firstOpenInning(const ScoreGrid &card, int row)
{
    for (int c = 0; c < card.columnCount() && c < kBkgCols; ++c)
        if (card.cellBkg(row, c) != kBkgDisabled)
            return qMax(1, inningOfColumn(card, c));
    return 1;
}

struct Spell
{
    int row;
    int start;
};

} // namespace

DefenseTable DefenseTable::build(const QList<LineupLine> &lineup, const ScoreGrid &card,
                                 const QList<DefenseMove> &moves, int innings)
{
    DefenseTable table;
    table.m_innings = qMax(0, innings);

    // The rows of each batting slot, in the order they took over.
    std::map<QString, std::vector<Spell>> slots;
    for (int r = 0; r < lineup.size(); ++r) {
        const bool replacement = lineup.at(r).name.startsWith(u" ->");
        slots[lineup.at(r).order].push_back({r, replacement ? firstOpenInning(card, r) : 1});
    }
    std::vector<int> start(size_t(lineup.size()), 1);
    std::vector<int> end(size_t(lineup.size()), table.m_innings + 1);
    for (auto &[order, spells] : slots) {
        std::stable_sort(spells.begin(), spells.end(),
                         [](const Spell &a, const Spell &b) { return a.start < b.start; });
        for (size_t i = 0; i < spells.size(); ++i) {
            start[size_t(spells[i].row)] = spells[i].start;
            if (i + 1 < spells.size())
                end[size_t(spells[i].row)] = spells[i + 1].start;
        }
    }

    for (int r = 0; r < lineup.size(); ++r) {
        const LineupLine &line = lineup.at(r);
        const QString id = line.playerID.isEmpty() ? u"row"_s + QString::number(r) : line.playerID;
        auto it = std::find_if(table.m_players.begin(), table.m_players.end(),
                               [&](const Player &p) { return p.playerID == id; });
        if (it == table.m_players.end()) {
            Player p{id, line.name.startsWith(u" ->") ? line.name.mid(3).trimmed() : line.name.trimmed(),
                     std::vector<QString>(size_t(table.m_innings)), std::vector<bool>(size_t(table.m_innings))};
            table.m_players.push_back(std::move(p));
            it = table.m_players.end() - 1;
        }
        const QString pos = fieldPosition(line.pos);
        for (int inning = start[size_t(r)]; inning < end[size_t(r)] && inning <= table.m_innings; ++inning) {
            const auto i = size_t(inning - 1);
            if (it->inGame[i])
                continue; // a player listed twice keeps his first row's place
            it->inGame[i] = true;
            it->pos[i] = pos;
        }
    }

    QList<DefenseMove> ordered = moves;
    std::stable_sort(ordered.begin(), ordered.end(),
                     [](const DefenseMove &a, const DefenseMove &b) { return a.inning < b.inning; });
    for (const DefenseMove &move : ordered) {
        auto it = std::find_if(table.m_players.begin(), table.m_players.end(),
                               [&](const Player &p) { return p.playerID == move.playerID; });
        if (it == table.m_players.end())
            continue; // a player no longer in the lineup
        for (int inning = qMax(1, move.inning); inning <= table.m_innings; ++inning)
            if (it->inGame[size_t(inning - 1)])
                it->pos[size_t(inning - 1)] = fieldPosition(move.pos);
    }
    return table;
}

DefenseTable DefenseTable::build(const TeamStrings &team, const QList<DefenseMove> &moves, int innings)
{
    ScoreGrid card;
    if (!GameDay::loadStoredGrid(card, team))
        card.deleteAllRows();
    return build(readPlayers(team.players), card, moves, innings);
}

const DefenseTable::Player *DefenseTable::player(const QString &playerID) const
{
    for (const Player &p : m_players)
        if (p.playerID == playerID)
            return &p;
    return nullptr;
}

QString DefenseTable::positionOf(const QString &playerID, int inning) const
{
    const Player *p = player(playerID);
    if (!p || inning < 1 || inning > m_innings)
        return {};
    return p->pos[size_t(inning - 1)];
}

QStringList DefenseTable::playersAt(const QString &pos, int inning) const
{
    QStringList ids;
    if (inning < 1 || inning > m_innings || pos.isEmpty())
        return ids;
    for (const Player &p : m_players)
        if (p.pos[size_t(inning - 1)] == pos)
            ids.append(p.playerID);
    return ids;
}

bool DefenseTable::uses(const QString &pos) const
{
    for (const Player &p : m_players)
        if (std::find(p.pos.begin(), p.pos.end(), pos) != p.pos.end())
            return true;
    return false;
}

QStringList DefenseTable::rows() const
{
    QStringList rows = defensePositions();
    for (const QString &optional : {u"OF"_s, u"DH"_s})
        if (!uses(optional))
            rows.removeOne(optional);
    return rows;
}

int DefenseTable::inningsAt(const QString &playerID, const QString &pos, const QSet<int> &counted) const
{
    const Player *p = player(playerID);
    if (!p)
        return 0;
    int n = 0;
    for (int inning : counted) {
        if (inning < 1 || inning > m_innings)
            continue;
        const QString &at = p->pos[size_t(inning - 1)];
        if (pos.isEmpty() ? isFieldPosition(at) : at == pos)
            ++n;
    }
    return n;
}

int DefenseTable::fieldInnings(const QString &playerID, const QSet<int> &counted) const
{
    return inningsAt(playerID, QString(), counted);
}

namespace {

// The innings in which a card has an entry.
QSet<int> inningsWithEntries(const TeamStrings &team)
{
    QSet<int> innings;
    if (isRunEntry(team.actions)) {
        const RunEntry entry = readRunEntry(team.actions);
        for (int i = 0; i < int(entry.innings.size()); ++i) {
            bool ok = false;
            entry.innings[size_t(i)].trimmed().toInt(&ok);
            if (ok)
                innings.insert(i + 1);
        }
        return innings;
    }
    ScoreGrid card;
    if (!GameDay::loadStoredGrid(card, team))
        return innings;
    for (int c = 0; c < card.columnCount(); ++c)
        for (int r = 0; r < card.rowCount(); ++r)
            if (!card.cellText(r, c).isEmpty()) {
                innings.insert(inningOfColumn(card, c));
                break;
            }
    innings.remove(0);
    return innings;
}

} // namespace

QSet<int> fieldedInnings(const TeamStrings &opponent)
{
    return inningsWithEntries(opponent);
}

int lastInningPlayed(const TeamStrings &team)
{
    int last = 0;
    for (int inning : inningsWithEntries(team))
        last = qMax(last, inning);
    return last;
}

int tableInnings(int regulation, const TeamStrings &a, const TeamStrings &b)
{
    return qMax(regulation, qMax(lastInningPlayed(a), lastInningPlayed(b)));
}

// --- Storage ---------------------------------------------------------------

QList<DefenseMove> DefenseStore::moves(const QString &schedID, const QString &teamID) const
{
    QList<DefenseMove> out;
    if (m_db.scalar(u"SELECT COUNT(*) FROM sqlite_master WHERE type = 'table' AND name = 'DefenseMoves'"_s).toInt() ==
        0)
        return out;
    const auto rows = m_db.select(u"SELECT playerID, inning, pos FROM DefenseMoves WHERE schedID = ? AND teamID = ? "
                                  u"ORDER BY inning, moveID"_s,
                                  {schedID, teamID});
    for (const auto &row : rows)
        out.append({row.values.at(0).toString(), row.values.at(1).toInt(), row.values.at(2).toString()});
    return out;
}

QHash<QString, QList<DefenseMove>> DefenseStore::allMoves() const
{
    QHash<QString, QList<DefenseMove>> out;
    if (m_db.scalar(u"SELECT COUNT(*) FROM sqlite_master WHERE type = 'table' AND name = 'DefenseMoves'"_s).toInt() ==
        0)
        return out;
    const auto rows = m_db.select(
        u"SELECT schedID, teamID, playerID, inning, pos FROM DefenseMoves ORDER BY inning, moveID"_s);
    for (const auto &row : rows)
        out[row.values.at(0).toString() + kFieldSep + row.values.at(1).toString()].append(
            {row.values.at(2).toString(), row.values.at(3).toInt(), row.values.at(4).toString()});
    return out;
}

DefenseChange DefenseStore::move(const QString &schedID, const QString &teamID, const DefenseTable &current,
                                 const QString &playerID, int inning, const QString &pos, const DefenseLogEntry &log)
{
    DefenseChange change{schedID, teamID, {}};
    const QString target = fieldPosition(pos);
    const QString old = current.positionOf(playerID, inning);
    if (!current.player(playerID) || inning < 1 || inning > current.innings() || old == target)
        return change;

    QList<std::pair<QString, QString>> wanted{{playerID, target}};
    if (!target.isEmpty())
        for (const QString &other : current.playersAt(target, inning))
            if (other != playerID)
                wanted.append({other, old});

    const QList<DefenseMove> stored = moves(schedID, teamID);
    for (const auto &[id, newPos] : wanted) {
        DefenseChange::Row row{id, inning, std::nullopt, newPos};
        for (const DefenseMove &m : stored)
            if (m.playerID == id && m.inning == inning)
                row.before = m.pos;
        change.rows.append(row);
    }
    const bool written = m_db.runInTransaction([&] {
        apply(change);
        if (log.label.isEmpty())
            return;
        // Each row of the move as the log keeps rows: its position before
        // and after, no value where the row was made or removed.
        Change entry{log.label, log.team, {}};
        const QStringList keyColumns = {u"schedID"_s, u"teamID"_s, u"playerID"_s, u"inning"_s};
        const auto values = [](const std::optional<QString> &value) {
            return value ? std::optional<QVariantList>(QVariantList{*value}) : std::nullopt;
        };
        for (const DefenseChange::Row &row : change.rows)
            entry.rows.append({u"DefenseMoves"_s,
                               keyColumns,
                               {schedID, teamID, row.playerID, row.inning},
                               {u"pos"_s},
                               values(row.before),
                               values(row.after)});
        ChangeLog::appendWithin(m_db, schedID, entry);
    });
    if (!written)
        change.rows.clear();
    return change;
}

bool DefenseStore::apply(const DefenseChange &change)
{
    return m_db.runInTransaction([&] {
        // A season restored or made since it was opened may lack the table.
        for (const QString &statement : schema::addedTableStatements())
            m_db.exec(statement);
        for (const DefenseChange::Row &row : change.rows) {
            m_db.exec(u"DELETE FROM DefenseMoves WHERE schedID = ? AND teamID = ? AND playerID = ? AND inning = ?"_s,
                      {change.schedID, change.teamID, row.playerID, row.inning});
            if (row.after)
                m_db.exec(u"INSERT INTO DefenseMoves (schedID, teamID, playerID, inning, pos) VALUES (?, ?, ?, ?, ?)"_s,
                          {change.schedID, change.teamID, row.playerID, row.inning, *row.after});
        }
    });
}

} // namespace gameday
