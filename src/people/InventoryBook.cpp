#include "people/InventoryBook.h"

#include "app/FileTypes.h"
#include "app/globals.h"
#include "app/myDB.h"
#include "support/NumberKeyRule.h"
#include "support/TabbedLines.h"

#include <QFile>
#include <QMimeDatabase>
#include <QRegularExpression>

namespace people {

namespace {

// Leaving a transaction's body by this exception rolls it back; exec()
// has shown the error already.
struct Abandoned
{
};

bool inTransaction(myDB &db, const std::function<bool()> &body)
{
    try {
        return db.runInTransaction([&] {
            if (!body())
                throw Abandoned{};
        });
    } catch (const Abandoned &) {
        return false;
    }
}

// The largest import read; a bigger file is no list of equipment.
constexpr qint64 kMaxImportBytes = 4 * 1024 * 1024;

} // namespace

InventoryBook::InventoryBook(myDB &db) : m_db(db) {}

QStringList InventoryBook::poolHeadings()
{
    return {QStringLiteral("Quantity"), QStringLiteral("Item"), QStringLiteral("ID")};
}

QStringList InventoryBook::heldHeadings()
{
    return {QStringLiteral("Item"), QStringLiteral("ID")};
}

QList<InventoryChoice> InventoryBook::teams() const
{
    QList<InventoryChoice> out;
    for (const Record &r : m_db.select(QStringLiteral("SELECT teamID, TeamName, SchoolName FROM Teams")))
        out.append({r.text(QStringLiteral("teamID")),
                    r.text(QStringLiteral("SchoolName")) + u' ' + r.text(QStringLiteral("TeamName"))});
    return out;
}

QList<InventoryChoice> InventoryBook::players(const QString &teamID) const
{
    QList<InventoryChoice> out;
    for (const Record &r :
         m_db.select(QStringLiteral("SELECT playerID, First, Last FROM Players WHERE TeamNum = ?"), {teamID}))
        out.append({r.text(QStringLiteral("playerID")),
                    r.text(QStringLiteral("First")) + u' ' + r.text(QStringLiteral("Last"))});
    return out;
}

void InventoryBook::selectTeam(const QString &teamID)
{
    m_teamID = teamID;
    loadTeamList();
    selectPlayer({});
}

void InventoryBook::selectPlayer(const QString &playerID)
{
    m_playerID = playerID;
    fillPlayerList();
}

void InventoryBook::loadTeamList()
{
    m_pool.clear();
    if (m_teamID.isEmpty())
        return;
    for (const Record &r : m_db.select(QStringLiteral("SELECT serial, quantity, item, ItemID FROM TeamInventory "
                                                      "WHERE teamID = ? ORDER BY serial"),
                                       {m_teamID}))
        m_pool.append({r.integer(QStringLiteral("serial")), int(r.integer(QStringLiteral("quantity"))),
                       r.text(QStringLiteral("item")), r.text(QStringLiteral("ItemID"))});
}

void InventoryBook::fillPlayerList()
{
    m_held.clear();
    if (m_playerID.isEmpty())
        return;
    for (const Record &r : m_db.select(QStringLiteral("SELECT serial, ctrlNum, PlayerID, Item, ItemID FROM "
                                                      "PlayerInventory WHERE PlayerID = ? ORDER BY serial"),
                                       {m_playerID}))
        m_held.append({r.integer(QStringLiteral("serial")), r.integer(QStringLiteral("ctrlNum")),
                       r.text(QStringLiteral("PlayerID")), r.text(QStringLiteral("Item")),
                       r.text(QStringLiteral("ItemID"))});
}

int InventoryBook::poolRowOf(qint64 serial) const
{
    for (int i = 0; i < m_pool.size(); ++i) {
        if (m_pool.at(i).serial == serial)
            return i;
    }
    return -1;
}

qint64 InventoryBook::insertPoolItem(int quantity, const QString &item, const QString &itemID)
{
    return m_db.insert(QStringLiteral("TeamInventory"), {{QStringLiteral("teamID"), m_teamID},
                                                         {QStringLiteral("quantity"), quantity == 0 ? 1 : quantity},
                                                         {QStringLiteral("item"), item},
                                                         {QStringLiteral("ItemID"), itemID}});
}

bool InventoryBook::enterItem(int poolRow, const QString &quantityText, const QString &item, const QString &itemID)
{
    // An empty count adds the item as one (a count of 0 becomes 1); with
    // nothing typed at all there is nothing to add.
    if (m_teamID.isEmpty() ||
        (quantityText.trimmed().isEmpty() && item.trimmed().isEmpty() && itemID.trimmed().isEmpty()))
        return false;
    const int quantity = support::numberFieldValue(quantityText);
    bool ok;
    if (poolRow < 0 || poolRow >= m_pool.size()) {
        ok = insertPoolItem(quantity, item, itemID) >= 0;
    } else {
        ok = m_db.update(QStringLiteral("TeamInventory"),
                         {{QStringLiteral("quantity"), quantity},
                          {QStringLiteral("item"), item},
                          {QStringLiteral("ItemID"), itemID}},
                         QStringLiteral("serial"), m_pool.at(poolRow).serial);
    }
    loadTeamList();
    return ok;
}

bool InventoryBook::deleteTeamItem(int poolRow)
{
    if (poolRow < 0 || poolRow >= m_pool.size())
        return false;
    const bool ok = m_db.exec(QStringLiteral("DELETE FROM TeamInventory WHERE serial = ?"),
                              {m_pool.at(poolRow).serial});
    loadTeamList();
    return ok;
}

bool InventoryBook::assign(int poolRow)
{
    if (poolRow < 0 || poolRow >= m_pool.size()) {
        gMsgBox(QStringLiteral("Please select an item from the inventory."));
        return false;
    }
    if (m_playerID.isEmpty())
        return false;
    const PoolItem from = m_pool.at(poolRow);
    if (from.quantity < 1) {
        gShowMsgDlog(QStringLiteral("It appears there are no ") + from.item + QStringLiteral(" to assign."),
                     QStringLiteral("Increase the count of this item or delete it from your inventory."),
                     QStringLiteral("Continue"));
        return false;
    }
    // The unit moves whole: the held row and the smaller pool go together.
    const bool ok = inTransaction(m_db, [&] {
        if (m_db.insert(QStringLiteral("PlayerInventory"), {{QStringLiteral("ctrlNum"), from.serial},
                                                            {QStringLiteral("PlayerID"), m_playerID},
                                                            {QStringLiteral("Item"), from.item},
                                                            {QStringLiteral("ItemID"), from.ItemID}}) < 0)
            return false;
        if (from.quantity == 1)
            return m_db.exec(QStringLiteral("DELETE FROM TeamInventory WHERE serial = ?"), {from.serial});
        return m_db.exec(QStringLiteral("UPDATE TeamInventory SET quantity = quantity - 1 WHERE serial = ?"),
                         {from.serial});
    });
    loadTeamList();
    fillPlayerList();
    return ok;
}

bool InventoryBook::giveBack(int heldRow)
{
    if (heldRow < 0 || heldRow >= m_held.size())
        return false;
    const HeldItem unit = m_held.at(heldRow);
    const bool ok = inTransaction(m_db, [&] {
        // The pool row it came from, when this team still has it.
        const bool poolRowThere = m_db.scalar(QStringLiteral(
                                                  "SELECT COUNT(*) FROM TeamInventory WHERE serial = ? AND teamID = ?"),
                                              {unit.ctrlNum, m_teamID})
                                      .toInt() > 0;
        if (poolRowThere) {
            if (!m_db.exec(QStringLiteral("UPDATE TeamInventory SET quantity = quantity + 1 WHERE serial = ?"),
                           {unit.ctrlNum}))
                return false;
        } else if (insertPoolItem(1, unit.Item, unit.ItemID) < 0) {
            return false;
        }
        return m_db.exec(QStringLiteral("DELETE FROM PlayerInventory WHERE serial = ?"), {unit.serial});
    });
    loadTeamList();
    fillPlayerList();
    return ok;
}

bool InventoryBook::drop(int heldRow)
{
    if (heldRow < 0 || heldRow >= m_held.size())
        return false;
    if (gShowMsgDlog(QStringLiteral("Delete this item without adding it back to the team inventory?"),
                     QStringLiteral("This action cannot be undone."), QStringLiteral("Delete")) != 0)
        return false;
    const bool ok = m_db.exec(QStringLiteral("DELETE FROM PlayerInventory WHERE serial = ?"),
                              {m_held.at(heldRow).serial});
    fillPlayerList();
    return ok;
}

InventoryBook::ImportResult InventoryBook::importInvItems(const QByteArray &bytes)
{
    ImportResult result;
    const support::TabbedLines file = support::TabbedLines::parse(bytes, 3);
    static const QRegularExpression wholeNumber(QStringLiteral(R"(^\s*[+-]?\d{1,9}\s*$)"));

    struct Item
    {
        int quantity;
        QString item, itemID;
    };
    QList<Item> items;
    result.skipped = file.skipped;
    for (const support::TabbedLines::Line &line : file.lines) {
        // This screen's own export begins with its title and the headings.
        const bool exportTitle = line.number == 1 && line.fields.size() == 1 &&
                                 line.fields.first().endsWith(QStringLiteral("'s Inventory"));
        if (exportTitle || line.fields == poolHeadings())
            continue;
        if (!wholeNumber.match(line.fields.first()).hasMatch()) {
            result.skipped.append(line.number);
            continue;
        }
        items.append({line.fields.first().trimmed().toInt(), line.fields.value(1), line.fields.value(2)});
    }
    std::sort(result.skipped.begin(), result.skipped.end());

    if (items.isEmpty() && result.skipped.isEmpty()) {
        gShowMsgDlog(QStringLiteral("Either there was an error or the list is empty."),
                     QStringLiteral("Please check the list and try again."), QStringLiteral("Continue"));
        return result;
    }
    result.read = inTransaction(m_db, [&] {
        for (const Item &i : items) {
            if (insertPoolItem(i.quantity, i.item, i.itemID) < 0)
                return false;
        }
        return true;
    });
    if (result.read)
        result.added = int(items.size());
    loadTeamList();
    if (result.read && !result.skipped.isEmpty()) {
        gShowMsgDlog(QStringLiteral("Some lines were not imported."),
                     (result.skipped.size() == 1 ? QStringLiteral("Line ") : QStringLiteral("Lines ")) +
                         support::lineNumberList(result.skipped) +
                         QStringLiteral(" did not hold a whole-number quantity, a tab and the item, with the "
                                        "ID after another tab."),
                     QStringLiteral("Continue"));
    }
    return result;
}

InventoryBook::ImportResult InventoryBook::importInvFile(const QString &path)
{
    // A file of another type is ignored, as the file dialog offers text only.
    if (!FileTypes::pText.matches(path) &&
        !QMimeDatabase().mimeTypeForFile(path).inherits(QStringLiteral("text/plain")))
        return {};
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || file.size() > kMaxImportBytes)
        return importInvItems({});
    return importInvItems(file.readAll());
}

} // namespace people
