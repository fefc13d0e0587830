#include "gameday/GameStore.h"

#include "app/myDB.h"
#include "schedule/EventDates.h"

#include <SQLiteCpp/SQLiteCpp.h>

namespace gameday {

namespace {

const QStringList &teamColumns(int team)
{
    static const QStringList a = {QStringLiteral("TeamAHeadings"), QStringLiteral("TeamABench"),
                                  QStringLiteral("TeamAPlayers"),  QStringLiteral("TeamAActions"),
                                  QStringLiteral("TeamAOutcomes"), QStringLiteral("TeamABatterStats")};
    static const QStringList b = {QStringLiteral("TeamBHeadings"), QStringLiteral("TeamBBench"),
                                  QStringLiteral("TeamBPlayers"),  QStringLiteral("TeamBActions"),
                                  QStringLiteral("TeamBOutcomes"), QStringLiteral("TeamBBatterStats")};
    return team == 0 ? a : b;
}

QVariantList teamValues(const TeamStrings &t)
{
    return {t.headings, t.bench, t.players, t.actions, t.outcomes, t.batStats};
}

TeamStrings teamFrom(const Record &r, int team)
{
    const QStringList &c = teamColumns(team);
    return {r.text(c[0]), r.text(c[1]), r.text(c[2]), r.text(c[3]), r.text(c[4]), r.text(c[5])};
}

// The columns written on every save of the card besides the team strings.
// `recorded` is not among them: only recording (and its correction) sets
// it, so a window holding an older copy of the game can't take it back.
QStringList commonColumns()
{
    return {QStringLiteral("Teams"), QStringLiteral("gameType")};
}

QVariantList commonValues(const GameRecord &g)
{
    return {g.teamsField(), g.gameType};
}

QString updateSql(const QStringList &columns)
{
    return QStringLiteral("UPDATE Games SET ") + columns.join(QStringLiteral(" = ?, ")) +
           QStringLiteral(" = ? WHERE schedID = ?");
}

// Runs an UPDATE inside a transaction (throws on error); the rows it changed.
int runUpdate(myDB &db, const QStringList &columns, QVariantList values, const QString &schedID)
{
    values.append(schedID);
    SQLite::Statement statement(*db.tlynData, updateSql(columns).toUtf8().toStdString());
    myDB::bindAll(statement, values);
    return statement.exec();
}

} // namespace

QString chooseGameType(const TeamInfo &a, const TeamInfo &b, const QStringList &gameTypes)
{
    int entry = 3;
    if (a.league == b.league)
        entry = a.division == b.division ? 1 : 2;
    // Entry 0 of the menu is "No Selection"; the preference list starts at entry 1.
    return entry - 1 < gameTypes.size() ? gameTypes.at(entry - 1) : QStringLiteral("No Selection");
}

std::optional<GameEvent> GameStore::event(const QString &schedID, const QString &homeTeamID) const
{
    const QList<Record> rows = m_db.select(
        QStringLiteral("SELECT SchedDate, Location, OppID, isHome FROM Schedule WHERE eventID = ?"), {schedID});
    if (rows.isEmpty())
        return std::nullopt;
    const Record &r = rows.first();
    GameEvent e;
    e.schedID = schedID;
    e.date = EventDates::fromStored(r.text(QStringLiteral("SchedDate")));
    e.location = r.text(QStringLiteral("Location"));
    const QString opp = r.text(QStringLiteral("OppID"));
    if (r.integer(QStringLiteral("isHome")) == 2)
        e.teamIDs = {homeTeamID, opp};
    else
        e.teamIDs = {opp, homeTeamID};
    return e;
}

TeamInfo GameStore::teamInfo(const QString &teamID) const
{
    const QList<Record> rows = m_db.select(
        QStringLiteral("SELECT TeamName, League, Division FROM Teams WHERE teamID = ?"), {teamID});
    if (rows.isEmpty())
        return {};
    const Record &r = rows.first();
    return {r.text(QStringLiteral("TeamName")), r.text(QStringLiteral("League")), r.text(QStringLiteral("Division"))};
}

QList<BenchLine> GameStore::benchOf(const QString &teamID) const
{
    QList<BenchLine> out;
    const QList<Record> rows = m_db.select(
        QStringLiteral("SELECT playerID, UniNum, First, Last, Pos1 FROM Players WHERE TeamNum = ? ORDER BY playerID"),
        {teamID});
    for (const Record &r : rows)
        out.append({r.text(QStringLiteral("UniNum")),
                    r.text(QStringLiteral("First")) + u' ' + r.text(QStringLiteral("Last")),
                    r.text(QStringLiteral("Pos1")), r.text(QStringLiteral("playerID"))});
    return out;
}

std::optional<BenchLine> GameStore::player(const QString &playerID) const
{
    const QList<Record> rows = m_db.select(
        QStringLiteral("SELECT UniNum, First, Last, Pos1 FROM Players WHERE playerID = ?"), {playerID});
    if (rows.isEmpty())
        return std::nullopt;
    const Record &r = rows.first();
    return BenchLine{r.text(QStringLiteral("UniNum")),
                     r.text(QStringLiteral("First")) + u' ' + r.text(QStringLiteral("Last")),
                     r.text(QStringLiteral("Pos1")), playerID};
}

std::optional<GameRecord> GameStore::load(const QString &schedID) const
{
    const QList<Record> rows = m_db.select(
        QStringLiteral("SELECT * FROM Games WHERE schedID = ? ORDER BY gameID LIMIT 1"), {schedID});
    if (rows.isEmpty())
        return std::nullopt;
    const Record &r = rows.first();
    GameRecord g;
    g.schedID = schedID;
    const QStringList ids = r.text(QStringLiteral("Teams")).split(kFieldSep);
    g.teamIDs = {ids.value(0), ids.value(1)};
    g.teams = {teamFrom(r, 0), teamFrom(r, 1)};
    g.gameType = r.text(QStringLiteral("gameType"));
    g.recorded = r.integer(QStringLiteral("recorded")) != 0;
    return g;
}

bool GameStore::exists(const QString &schedID) const
{
    return m_db.scalar(QStringLiteral("SELECT COUNT(*) FROM Games WHERE schedID = ?"), {schedID}).toInt() > 0;
}

std::optional<bool> GameStore::storedRecorded(const QString &schedID) const
{
    const QList<Record> rows = m_db.select(
        QStringLiteral("SELECT recorded FROM Games WHERE schedID = ? ORDER BY gameID LIMIT 1"), {schedID});
    if (rows.isEmpty())
        return std::nullopt;
    return rows.first().integer(QStringLiteral("recorded")) != 0;
}

bool GameStore::create(const GameRecord &record)
{
    Fields f{{QStringLiteral("schedID"), record.schedID}, {QStringLiteral("recorded"), record.recorded ? 1 : 0}};
    const QStringList common = commonColumns();
    const QVariantList commonV = commonValues(record);
    for (int i = 0; i < common.size(); ++i)
        f.append({common[i], commonV[i]});
    for (int t = 0; t < 2; ++t) {
        const QVariantList values = teamValues(record.teams[size_t(t)]);
        for (int i = 0; i < 6; ++i)
            f.append({teamColumns(t)[i], values[i]});
    }
    return m_db.insert(QStringLiteral("Games"), f) >= 0;
}

GameStore::SaveResult GameStore::saveColumns(const QString &schedID, const QStringList &columns,
                                             const QVariantList &values)
{
    int changed = 0;
    const bool ok = m_db.runInTransaction([&] { changed = runUpdate(m_db, columns, values, schedID); });
    if (!ok)
        return SaveResult::Failed;
    return changed > 0 ? SaveResult::Saved : SaveResult::Missing;
}

GameStore::SaveResult GameStore::save(const GameRecord &record)
{
    QStringList columns = commonColumns() + teamColumns(0) + teamColumns(1);
    QVariantList values = commonValues(record) + teamValues(record.teams[0]) + teamValues(record.teams[1]);
    return saveColumns(record.schedID, columns, values);
}

GameStore::SaveResult GameStore::saveTeam(const GameRecord &record, int team)
{
    const int t = team == 0 ? 0 : 1;
    return saveColumns(record.schedID, commonColumns() + teamColumns(t),
                       commonValues(record) + teamValues(record.teams[size_t(t)]));
}

bool GameStore::writeWithin(myDB &db, const GameRecord &record)
{
    return runUpdate(db, commonColumns() + QStringList{QStringLiteral("recorded")} + teamColumns(0) + teamColumns(1),
                     commonValues(record) + QVariantList{record.recorded ? 1 : 0} + teamValues(record.teams[0]) +
                         teamValues(record.teams[1]),
                     record.schedID) > 0;
}

QStringList GameStore::cardColumns()
{
    return commonColumns() + teamColumns(0) + teamColumns(1);
}

QVariantList GameStore::cardValues(const GameRecord &record)
{
    return commonValues(record) + teamValues(record.teams[0]) + teamValues(record.teams[1]);
}

} // namespace gameday
