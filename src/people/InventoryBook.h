#pragma once

#include <QList>
#include <QString>
#include <QStringList>

class myDB;

namespace people {

// One row of table TeamInventory: items of the pool with their count.
struct PoolItem
{
    qint64 serial = -1;
    int quantity = 0;
    QString item;
    QString ItemID; // free text, a number stamped on the item for instance
};

// One row of table PlayerInventory: a unit a player holds. `ctrlNum` is the
// serial of the pool row it came from, which may be gone since.
struct HeldItem
{
    qint64 serial = -1;
    qint64 ctrlNum = -1;
    QString PlayerID;
    QString Item;
    QString ItemID;
};

// A team or a player as the inventory's popups offer them.
struct InventoryChoice
{
    QString id;
    QString text;
};

// The rules of the equipment inventory without its widgets: the pool of
// the selected team and the units the selected player holds, adding and
// editing pool items, assigning a unit to a player, taking it back or
// dropping it, and importing items from a text file. The lists are read
// again from the file after every change, so they always show what is
// stored. Messages go through the message service; every step that writes
// more than one row is one transaction.
class InventoryBook
{
public:
    explicit InventoryBook(myDB &db);

    // "School Team" of every team, in the order the file gives them.
    QList<InventoryChoice> teams() const;
    // "First Last" of the team's players.
    QList<InventoryChoice> players(const QString &teamID) const;

    // The team whose pool is shown; the held list empties.
    void selectTeam(const QString &teamID);
    // The player whose units are shown; empty text for none.
    void selectPlayer(const QString &playerID);
    QString teamID() const { return m_teamID; }
    QString playerID() const { return m_playerID; }

    const QList<PoolItem> &pool() const { return m_pool; }
    const QList<HeldItem> &held() const { return m_held; }
    int poolRowOf(qint64 serial) const;

    // Enter in a field or the plus button: a new pool item when `poolRow`
    // is -1, else new values for that row. The quantity is the number the
    // text begins with; a new item of quantity 0 counts 1. False when the
    // quantity text is empty or the write failed.
    bool enterItem(int poolRow, const QString &quantityText, const QString &item, const QString &itemID);
    // The minus button: the pool row goes; units already held stay held.
    bool deleteTeamItem(int poolRow);

    // Gives one unit of the pool row to the selected player: the last unit
    // takes the pool row with it. Says so when nothing is selected or
    // nothing is left.
    bool assign(int poolRow);
    // Puts the player's unit back into the pool row it came from, or into
    // a new row of 1 when that row is gone. Only this one held row goes,
    // even where another player holds a unit of the same pool row.
    bool giveBack(int heldRow);
    // Asks, then drops the held unit without adding it back to the pool.
    bool drop(int heldRow);

    // What an import did.
    struct ImportResult
    {
        int added = 0;
        QList<int> skipped; // line numbers
        bool read = false;  // false: the file couldn't be read or held no line
    };
    // Adds a pool row for each line of quantity, item and ID (tab-separated)
    // of `bytes`, all in one transaction. The title and heading lines of
    // this screen's own export are passed over; other lines that aren't a
    // whole-number quantity with at most an item and an ID are skipped and
    // counted, never stored in part. Tells the coach when nothing was read
    // and which lines were skipped.
    ImportResult importInvItems(const QByteArray &bytes);
    // The same for a file: only a text file is read; another is ignored.
    ImportResult importInvFile(const QString &path);

    // The headings of the pool list, which an export writes too.
    static QStringList poolHeadings();
    static QStringList heldHeadings();

private:
    void loadTeamList();
    void fillPlayerList();
    qint64 insertPoolItem(int quantity, const QString &item, const QString &itemID);

    myDB &m_db;
    QString m_teamID;
    QString m_playerID;
    QList<PoolItem> m_pool;
    QList<HeldItem> m_held;
};

} // namespace people
