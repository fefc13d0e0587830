#include "gameday/ChangeLog.h"

#include "app/globals.h"
#include "app/myDB.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace gameday {

namespace {

// The changes kept in memory for stepping back and forth, some KB each.
constexpr qsizetype kKeptChanges = 200;

// Thrown inside a step when a row to update is gone: the step rolls back.
struct RowMissing
{
};

QJsonValue valuesJson(const std::optional<QVariantList> &values)
{
    return values ? QJsonArray::fromVariantList(*values) : QJsonValue();
}

std::optional<QVariantList> valuesFrom(const QJsonValue &json)
{
    if (!json.isArray())
        return std::nullopt;
    return json.toArray().toVariantList();
}

QString encode(const QList<RowChange> &rows)
{
    QJsonArray out;
    for (const RowChange &r : rows) {
        out.append(QJsonObject{{QStringLiteral("table"), r.table},
                               {QStringLiteral("keyColumns"), QJsonArray::fromStringList(r.keyColumns)},
                               {QStringLiteral("key"), QJsonArray::fromVariantList(r.key)},
                               {QStringLiteral("columns"), QJsonArray::fromStringList(r.columns)},
                               {QStringLiteral("before"), valuesJson(r.before)},
                               {QStringLiteral("after"), valuesJson(r.after)}});
    }
    return QString::fromUtf8(QJsonDocument(out).toJson(QJsonDocument::Compact));
}

QStringList strings(const QJsonValue &json)
{
    QStringList out;
    for (const auto &v : json.toArray())
        out.append(v.toString());
    return out;
}

QList<RowChange> decode(const QString &text)
{
    QList<RowChange> rows;
    for (const auto &v : QJsonDocument::fromJson(text.toUtf8()).array()) {
        const QJsonObject o = v.toObject();
        rows.append({o.value(QStringLiteral("table")).toString(), strings(o.value(QStringLiteral("keyColumns"))),
                     o.value(QStringLiteral("key")).toArray().toVariantList(),
                     strings(o.value(QStringLiteral("columns"))), valuesFrom(o.value(QStringLiteral("before"))),
                     valuesFrom(o.value(QStringLiteral("after")))});
    }
    return rows;
}

QString whereKey(const QStringList &keyColumns)
{
    return QStringLiteral(" WHERE ") + keyColumns.join(QStringLiteral(" = ? AND ")) + QStringLiteral(" = ?");
}

int run(myDB &db, const QString &sql, const QVariantList &values)
{
    SQLite::Statement statement(*db.tlynData, sql.toUtf8().toStdString());
    myDB::bindAll(statement, values);
    return statement.exec();
}

// Brings a row from the state `from` to the state `to` (values of its
// columns, or no row): an update, an insert or a delete.
void writeRow(myDB &db, const RowChange &r, const std::optional<QVariantList> &from,
              const std::optional<QVariantList> &to)
{
    if (!to) {
        run(db, QStringLiteral("DELETE FROM ") + r.table + whereKey(r.keyColumns), r.key);
        return;
    }
    if (!from) {
        const QStringList columns = r.keyColumns + r.columns;
        QStringList marks;
        for (qsizetype i = 0; i < columns.size(); ++i)
            marks.append(QStringLiteral("?"));
        run(db,
            QStringLiteral("INSERT INTO ") + r.table + QStringLiteral(" (") + columns.join(QStringLiteral(", ")) +
                QStringLiteral(") VALUES (") + marks.join(QStringLiteral(", ")) + u')',
            r.key + *to);
        return;
    }
    if (r.columns.isEmpty())
        return;
    const int changed = run(db,
                            QStringLiteral("UPDATE ") + r.table + QStringLiteral(" SET ") +
                                r.columns.join(QStringLiteral(" = ?, ")) + QStringLiteral(" = ?") +
                                whereKey(r.keyColumns),
                            *to + r.key);
    if (changed == 0)
        throw RowMissing{};
}

qint64 appendEntry(myDB &db, const QString &game, int kind, qint64 target, int team, const QString &label,
                   const QString &changes, std::pair<qint64, qint64> tops = {})
{
    run(db,
        QStringLiteral("INSERT INTO GameChanges (gameID, kind, target, undoTop, redoTop, team, label, changes) "
                       "VALUES (?, ?, ?, ?, ?, ?, ?, ?)"),
        {game, kind, target, tops.first, tops.second, team, label, changes});
    return db.lastRowId();
}

// Runs `body` as one step: a missing row rolls it back as an error does.
ChangeLog::Result transact(myDB &db, const std::function<void()> &body)
{
    try {
        return db.runInTransaction(body) ? ChangeLog::Result::Saved : ChangeLog::Result::Failed;
    } catch (const RowMissing &) {
        return ChangeLog::Result::Missing;
    }
}

void missingMessage()
{
    gShowMsgDlog(QStringLiteral("TallylineBB was unable to find the data for this game."),
                 QStringLiteral("Please reload this game from the Schedule."), QStringLiteral("OK"));
}

} // namespace

void ChangeLog::setGame(const QString &game)
{
    m_game = game;
    m_loaded = false;
    m_tops.reset();
    m_labels.clear();
    m_changes.clear();
}

std::optional<QVariantList> ChangeLog::readRow(myDB &db, const QString &table, const QStringList &keyColumns,
                                               const QVariantList &key, const QStringList &columns)
{
    const QList<Record> rows = db.select(QStringLiteral("SELECT ") + columns.join(QStringLiteral(", ")) +
                                             QStringLiteral(" FROM ") + table + whereKey(keyColumns) +
                                             QStringLiteral(" LIMIT 1"),
                                         key);
    if (rows.isEmpty())
        return std::nullopt;
    return rows.first().values;
}

qint64 ChangeLog::recordWithin(myDB &db, const QString &game, const Change &change)
{
    for (const RowChange &r : change.rows)
        writeRow(db, r, r.before, r.after);
    return appendWithin(db, game, change);
}

qint64 ChangeLog::appendWithin(myDB &db, const QString &game, const Change &change)
{
    return appendEntry(db, game, Made, 0, change.team, change.label, encode(change.rows));
}

ChangeLog::Result ChangeLog::record(myDB &db, const QString &game, const Change &change)
{
    return transact(db, [&] { recordWithin(db, game, change); });
}

ChangeLog::Result ChangeLog::add(const Change &change)
{
    qint64 id = -1;
    const Result result = transact(m_db, [&] { id = recordWithin(m_db, m_game, change); });
    if (result == Result::Saved) {
        if (m_loaded) {
            m_undo.append(id);
            m_redo.clear();
        }
        m_tops = {id, 0};
        m_labels.insert(id, change.label);
        if (m_changes.size() >= kKeptChanges)
            m_changes.clear(); // read back from the file when stepped to
        m_changes.insert(id, change);
    }
    return result;
}

void ChangeLog::load()
{
    // Only the ids and kinds: a long log opens as fast as a short one, and
    // a label or the values are read when the menu or a step needs them.
    m_undo.clear();
    m_redo.clear();
    m_loaded = true;
    if (!m_db.isConnected())
        return;
    try {
        SQLite::Statement all(*m_db.tlynData,
                              "SELECT kind, target, changeID FROM GameChanges WHERE gameID = ? ORDER BY changeID");
        myDB::bindAll(all, {m_game});
        while (all.executeStep()) {
            const int kind = all.getColumn(0).getInt();
            const qint64 target = all.getColumn(1).getInt64();
            if (kind == Made) {
                m_undo.append(all.getColumn(2).getInt64());
                m_redo.clear();
            } else if (kind == Undone && !m_undo.isEmpty() && m_undo.last() == target) {
                m_redo.append(m_undo.takeLast());
            } else if (kind == Redone && !m_redo.isEmpty() && m_redo.last() == target) {
                m_undo.append(m_redo.takeLast());
            }
        }
    } catch (const SQLite::Exception &) {
        // A file that could not take the log's table: nothing to undo.
        m_undo.clear();
        m_redo.clear();
    }
}

void ChangeLog::readTops()
{
    m_tops = {0, 0};
    if (!m_db.isConnected())
        return;
    try {
        SQLite::Statement last(*m_db.tlynData, "SELECT changeID, kind, undoTop, redoTop FROM GameChanges WHERE gameID "
                                               "= ? ORDER BY changeID DESC LIMIT 1");
        myDB::bindAll(last, {m_game});
        if (!last.executeStep())
            return;
        if (last.getColumn(1).getInt() == Made)
            m_tops = {last.getColumn(0).getInt64(), 0};
        else
            m_tops = {last.getColumn(2).getInt64(), last.getColumn(3).getInt64()};
    } catch (const SQLite::Exception &) {
        // A file that could not take the log's table: nothing to undo.
    }
}

qint64 ChangeLog::undoTop()
{
    if (m_loaded)
        return m_undo.isEmpty() ? 0 : m_undo.last();
    if (!m_tops)
        readTops();
    return m_tops->first;
}

qint64 ChangeLog::redoTop()
{
    if (m_loaded)
        return m_redo.isEmpty() ? 0 : m_redo.last();
    if (!m_tops)
        readTops();
    return m_tops->second;
}

bool ChangeLog::canUndo()
{
    return undoTop() != 0;
}

bool ChangeLog::canRedo()
{
    return redoTop() != 0;
}

QString ChangeLog::labelOf(qint64 id)
{
    auto it = m_labels.constFind(id);
    if (it == m_labels.constEnd())
        it = m_labels.insert(
            id, m_db.scalar(QStringLiteral("SELECT label FROM GameChanges WHERE changeID = ?"), {id}).toString());
    return *it;
}

QString ChangeLog::undoLabel()
{
    return canUndo() ? labelOf(undoTop()) : QString();
}

QString ChangeLog::redoLabel()
{
    return canRedo() ? labelOf(redoTop()) : QString();
}

std::optional<Change> ChangeLog::undo()
{
    return canUndo() ? step(Undone) : std::nullopt;
}

std::optional<Change> ChangeLog::redo()
{
    return canRedo() ? step(Redone) : std::nullopt;
}

std::optional<Change> ChangeLog::step(Kind kind)
{
    if (!m_loaded)
        load();
    QList<qint64> &from = kind == Undone ? m_undo : m_redo;
    QList<qint64> &to = kind == Undone ? m_redo : m_undo;
    if (from.isEmpty())
        return std::nullopt;
    const qint64 id = from.last();
    // The tops once this step is taken, kept in its entry.
    QList<qint64> undoAfter = m_undo;
    QList<qint64> redoAfter = m_redo;
    (kind == Undone ? redoAfter : undoAfter).append(id);
    (kind == Undone ? undoAfter : redoAfter).removeLast();
    const std::pair<qint64, qint64> tops{undoAfter.isEmpty() ? 0 : undoAfter.last(),
                                         redoAfter.isEmpty() ? 0 : redoAfter.last()};
    if (!m_changes.contains(id)) {
        const QList<Record> rows = m_db.select(
            QStringLiteral("SELECT label, team, changes FROM GameChanges WHERE changeID = ?"), {id});
        if (rows.isEmpty())
            return std::nullopt;
        m_changes.insert(id, Change{rows.first().text(QStringLiteral("label")),
                                    int(rows.first().integer(QStringLiteral("team"))),
                                    decode(rows.first().text(QStringLiteral("changes")))});
    }
    const Change change = m_changes.value(id);
    const Result result = transact(m_db, [&] {
        if (kind == Undone) {
            // Backwards, so a row made and then changed by one entry comes
            // out as it was.
            for (qsizetype i = change.rows.size() - 1; i >= 0; --i)
                writeRow(m_db, change.rows.at(i), change.rows.at(i).after, change.rows.at(i).before);
        } else {
            for (const RowChange &r : change.rows)
                writeRow(m_db, r, r.before, r.after);
        }
        appendEntry(m_db, m_game, kind, id, change.team, change.label, QString(), tops);
    });
    if (result == Result::Missing)
        missingMessage();
    if (result != Result::Saved)
        return std::nullopt;
    to.append(from.takeLast());
    m_tops = tops;
    return change;
}

} // namespace gameday
