#include "stats/GameStats.h"

#include "app/myDB.h"
#include "gameday/ChangeLog.h"
#include "gameday/GameDay.h"
#include "gameday/GameRecord.h"

#include <SQLiteCpp/SQLiteCpp.h>

namespace stats {

namespace {

// A statement inside runInTransaction: errors throw, so the step rolls back.
int run(myDB &db, const QString &sql, const QVariantList &params)
{
    SQLite::Statement statement(*db.tlynData, sql.toUtf8().toStdString());
    myDB::bindAll(statement, params);
    return statement.exec();
}

// The leading number of a text, as the panels read a field: "12" 12, "1.5" 1, "" 0.
int leadingInt(const QString &text)
{
    return int(text.trimmed().toDouble());
}

} // namespace

int fieldCount(Panel panel)
{
    switch (panel) {
    case Panel::Batting:
        return kBattingFields;
    case Panel::Fielding:
        return kFieldingFields;
    case Panel::Pitching:
        return kPitchingFields;
    }
    return 0;
}

QString tableName(Panel panel)
{
    switch (panel) {
    case Panel::Batting:
        return QStringLiteral("GamesIndivHitting");
    case Panel::Fielding:
        return QStringLiteral("GamesIndivFielding");
    case Panel::Pitching:
        return QStringLiteral("GamesIndivPitching");
    }
    return {};
}

QString gatherStats(const QStringList &fieldTexts)
{
    QStringList out;
    for (const QString &t : fieldTexts)
        out.append(t.isEmpty() ? QStringLiteral("0") : gameday::cleanField(t));
    return out.join(u'\t');
}

QStringList spreadStats(const QString &stored, QStringList fieldTexts)
{
    const QStringList entries = stored.split(u'\t');
    for (int k = 0; k < entries.size() && k < fieldTexts.size(); ++k)
        fieldTexts[k] = entries[k];
    return fieldTexts;
}

QStringList userDefinedCaptions(const QString &pref, int count)
{
    const QStringList parts = pref.split(u'\t');
    QStringList out;
    for (int i = 0; i < count; ++i) {
        const QString name = 2 * i < parts.size() ? parts[2 * i] : QString();
        out.append(pref.isEmpty() || name.isEmpty() ? QStringLiteral("--") : name);
    }
    return out;
}

bool isBadInnings(const QString &text)
{
    const QStringList parts = text.trimmed().split(u'.');
    if (text.trimmed().toDouble() > 19.0 || parts.first().toDouble() > 19.0)
        return true;
    return parts.size() > 1 && parts[1].toDouble() > 2.0;
}

QString inningsFromOuts(int outs)
{
    return QString::number(outs / 3) + u'.' + QString::number(outs % 3);
}

QStringList applyAutoFill(QStringList pitchingFields, const gameday::AutoFillData &data)
{
    while (pitchingFields.size() < kPitchingFields)
        pitchingFields.append(QStringLiteral("0"));
    pitchingFields[0] = inningsFromOuts(data[0]);
    static constexpr int targets[8] = {-1, 1, 2, 4, 7, 8, 10, 13};
    for (int i = 1; i < 8; ++i)
        pitchingFields[targets[i]] = QString::number(data[size_t(i)]);
    return pitchingFields;
}

std::optional<QString> GameStatStore::stats(Panel panel, const QString &game, const QString &player) const
{
    const QList<Record> rows = m_db.select(QStringLiteral("SELECT stats FROM ") + tableName(panel) +
                                               QStringLiteral(
                                                   " WHERE gameID = ? AND playerID = ? ORDER BY recID LIMIT 1"),
                                           {game, player});
    if (rows.isEmpty())
        return std::nullopt;
    return rows.first().text(QStringLiteral("stats"));
}

bool GameStatStore::saveStats(Panel panel, const QString &game, const QString &player, const QString &team,
                              const QString &statsText)
{
    return saveRow(panel, game, player, {QStringLiteral("teamID"), QStringLiteral("stats")}, {team, statsText});
}

std::optional<gameday::RowChange> GameStatStore::statsChange(Panel panel, const QString &game, const QString &player,
                                                             const QString &team, const QString &statsText) const
{
    return rowChange(panel, game, player, {QStringLiteral("teamID"), QStringLiteral("stats")}, {team, statsText});
}

std::optional<gameday::RowChange> GameStatStore::rowChange(Panel panel, const QString &game, const QString &player,
                                                           const QStringList &columns, const QVariantList &values) const
{
    using gameday::ChangeLog;
    const QString table = tableName(panel);
    const QStringList keyColumns = {QStringLiteral("gameID"), QStringLiteral("playerID")};
    const QVariantList key = {game, player};
    std::optional<QVariantList> before = ChangeLog::readRow(m_db, table, keyColumns, key, columns);
    if (before) {
        // As stored, so an unchanged field doesn't count as a change.
        for (qsizetype i = 0; i < before->size(); ++i) {
            if ((*before)[i].toString() == values.value(i).toString())
                (*before)[i] = values.value(i);
        }
        if (*before == values)
            return std::nullopt;
    }
    return gameday::RowChange{table, keyColumns, key, columns, before, values};
}

bool GameStatStore::saveRow(Panel panel, const QString &game, const QString &player, const QStringList &columns,
                            const QVariantList &values)
{
    // The player's row is updated or made, with its entry in the game's
    // change log, in one transaction.
    const std::optional<gameday::RowChange> row = rowChange(panel, game, player, columns, values);
    if (!row)
        return true;
    static const QStringList names = {QStringLiteral("Batting"), QStringLiteral("Fielding"),
                                      QStringLiteral("Pitching")};
    const QString name =
        m_db.scalar(QStringLiteral("SELECT First || ' ' || Last FROM Players WHERE playerID = ?"), {player}).toString();
    const gameday::Change change{gameday::GameDay::panelLabel(names.at(int(panel)), name), -1, {*row}};
    return gameday::ChangeLog::record(m_db, game, change) == gameday::ChangeLog::Result::Saved;
}

namespace {

const QString kPitchingColumns = QStringLiteral("gameResult, start, shutout, compGame, totBalls, totKs, stats");

PitchingLine readPitchingRow(const Record &r)
{
    PitchingLine p;
    const int result = int(r.integer(QStringLiteral("gameResult")));
    p.gameResult = result < 1 || result > 4 ? 4 : result;
    p.start = r.integer(QStringLiteral("start")) != 0;
    p.shutout = r.integer(QStringLiteral("shutout")) != 0;
    p.compGame = r.integer(QStringLiteral("compGame")) != 0;
    p.totBalls = int(r.integer(QStringLiteral("totBalls")));
    p.totKs = int(r.integer(QStringLiteral("totKs")));
    p.stats = r.text(QStringLiteral("stats"));
    return p;
}

} // namespace

std::optional<PitchingLine> GameStatStore::pitching(const QString &game, const QString &player) const
{
    const QList<Record> rows = m_db.select(QStringLiteral("SELECT ") + kPitchingColumns +
                                               QStringLiteral(
                                                   " FROM GamesIndivPitching "
                                                   "WHERE gameID = ? AND playerID = ? ORDER BY recID LIMIT 1"),
                                           {game, player});
    if (rows.isEmpty())
        return std::nullopt;
    return readPitchingRow(rows.first());
}

std::optional<PitchingLine> GameStatStore::addPitches(const QString &game, const QString &player, int balls,
                                                      int strikes)
{
    const QList<Record> rows = m_db.select(
        QStringLiteral("UPDATE GamesIndivPitching SET totBalls = totBalls + ?, totKs = totKs + ? "
                       "WHERE gameID = ? AND playerID = ? RETURNING ") +
            kPitchingColumns,
        {balls, strikes, game, player});
    if (rows.isEmpty())
        return std::nullopt;
    return readPitchingRow(rows.first());
}

bool GameStatStore::addPitchesIf(const QString &game, const QString &player, const PitchingLine &expected, int balls,
                                 int strikes)
{
    return run(m_db,
               QStringLiteral("UPDATE GamesIndivPitching SET totBalls = totBalls + ?, totKs = totKs + ? "
                              "WHERE gameID = ? AND playerID = ? AND totBalls = ? AND totKs = ? AND gameResult = ? "
                              "AND start = ? AND shutout = ? AND compGame = ? AND stats = ?"),
               {balls, strikes, game, player, expected.totBalls, expected.totKs, expected.gameResult,
                expected.start ? 1 : 0, expected.shutout ? 1 : 0, expected.compGame ? 1 : 0, expected.stats}) > 0;
}

bool GameStatStore::savePitching(const QString &game, const QString &player, const QString &team,
                                 const PitchingLine &line)
{
    return saveRow(Panel::Pitching, game, player,
                   {QStringLiteral("teamID"), QStringLiteral("gameResult"), QStringLiteral("start"),
                    QStringLiteral("shutout"), QStringLiteral("compGame"), QStringLiteral("totBalls"),
                    QStringLiteral("totKs"), QStringLiteral("stats")},
                   {team, line.gameResult, line.start ? 1 : 0, line.shutout ? 1 : 0, line.compGame ? 1 : 0,
                    line.totBalls, line.totKs, line.stats});
}

int GameStatStore::teamErrors(const QString &game, const QString &team) const
{
    int sum = 0;
    const QList<Record> rows = m_db.select(
        QStringLiteral("SELECT stats FROM GamesIndivFielding WHERE gameID = ? AND teamID = ?"), {game, team});
    for (const Record &r : rows) {
        const QStringList f = r.text(QStringLiteral("stats")).split(u'\t');
        sum += leadingInt(f.value(4)) + leadingInt(f.value(5));
    }
    return sum;
}

bool GameStatStore::hasFieldingAndPitching(const QString &game) const
{
    return m_db.scalar(QStringLiteral("SELECT COUNT(*) FROM GamesIndivFielding WHERE gameID = ?"), {game}).toInt() >
               0 &&
           m_db.scalar(QStringLiteral("SELECT COUNT(*) FROM GamesIndivPitching WHERE gameID = ?"), {game}).toInt() > 0;
}

} // namespace stats
