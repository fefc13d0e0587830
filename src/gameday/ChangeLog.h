#pragma once

// The change log of a game. Every change the coach makes on the game screen
// is one entry in the season's GameChanges table, appended in the same
// transaction as the rows it changed; it names the change and holds each
// changed column's value before and after, by table and key. Undo and redo
// write those values back and are entries themselves (they name the entry
// they undo or redo), so the log read from its start gives the undo and
// redo stacks at any time, also after a restart. The stored rows stay the
// truth the rest of the program reads; the log only lets the coach step
// back through them.

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <optional>

class myDB;

namespace gameday {

// One row a change touched, found by its key columns.
struct RowChange
{
    QString table;
    QStringList keyColumns;
    QVariantList key;
    QStringList columns;
    // The row's values of `columns`; empty when the row was not there
    // before, or is gone after.
    std::optional<QVariantList> before;
    std::optional<QVariantList> after;
};

struct Change
{
    QString label; // what the Edit menu names: "Ball Four, Smith, 3rd inning"
    int team = -1; // the card (0 team A, 1 team B) it changed; -1 for none
    QList<RowChange> rows;
};

class ChangeLog
{
public:
    enum class Result { Saved, Missing, Failed };

    explicit ChangeLog(myDB &db) : m_db(db) {}

    // The game whose log the stacks follow; they are read when first needed.
    void setGame(const QString &game);
    // Another writer appended an entry to this game's log: the stacks are
    // read again when next needed.
    void reload()
    {
        m_loaded = false;
        m_tops.reset();
    }

    // The row's values of `columns` as stored; empty when there is no row.
    static std::optional<QVariantList> readRow(myDB &db, const QString &table, const QStringList &keyColumns,
                                               const QVariantList &key, const QStringList &columns);
    // The one call for any change: writes each row's `after` and appends
    // the entry, in one transaction. Missing when a row to update isn't
    // there (nothing is written then).
    static Result record(myDB &db, const QString &game, const Change &change);
    // The same inside the caller's transaction: throws on a database error
    // or a missing row. The new entry's id.
    static qint64 recordWithin(myDB &db, const QString &game, const Change &change);
    // The entry alone, inside the caller's transaction, for a writer that
    // has put the rows itself (a pitch is one keyed UPDATE): its rows'
    // before and after must be what the file held and holds now.
    static qint64 appendWithin(myDB &db, const QString &game, const Change &change);

    // As record(), and the entry goes on this game's undo stack.
    Result add(const Change &change);

    bool canUndo();
    bool canRedo();
    // The label of the change Undo or Redo would take; empty when none.
    QString undoLabel();
    QString redoLabel();
    // Takes the last change back (or makes the last undone one again): its
    // rows get their values before (after) it and an entry says so, in one
    // transaction. The change stepped over, or empty when there was none or
    // the write failed (the message is shown).
    std::optional<Change> undo();
    std::optional<Change> redo();

private:
    enum Kind { Made = 0, Undone = 1, Redone = 2 };
    // The two changes Undo and Redo would take, from the last entry alone
    // (an undo or redo entry keeps them; a new change is itself on top and
    // leaves nothing to redo): what the menu needs when a game opens.
    void readTops();
    // Both stacks, from every entry in order: before the first step.
    void load();
    qint64 undoTop();
    qint64 redoTop();
    std::optional<Change> step(Kind kind);
    QString labelOf(qint64 id);

    myDB &m_db;
    QString m_game;
    bool m_loaded = false;
    std::optional<std::pair<qint64, qint64>> m_tops; // undo, redo; 0 for none
    QList<qint64> m_undo;
    QList<qint64> m_redo;
    QHash<qint64, QString> m_labels; // read once each: an entry never changes
    // The changes made or stepped over in this sitting, so stepping back
    // and forth over them reads nothing.
    QHash<qint64, Change> m_changes;
};

} // namespace gameday
