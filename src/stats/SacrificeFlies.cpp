#include "stats/SacrificeFlies.h"

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>

namespace stats {

void addSacrificeFlies(SQLite::Database &db, const QHash<qint64, qint64> &flies)
{
    bool any = false;
    for (const qint64 count : flies)
        any = any || count > 0;
    if (!any)
        return;
    db.exec("CREATE TABLE IF NOT EXISTS SacFlies (playerID INTEGER PRIMARY KEY NOT NULL, "
            "SF INTEGER NOT NULL DEFAULT 0)");
    SQLite::Statement add(db, "INSERT INTO SacFlies (playerID, SF) VALUES (?, ?) "
                              "ON CONFLICT(playerID) DO UPDATE SET SF = SF + excluded.SF");
    for (auto it = flies.cbegin(); it != flies.cend(); ++it) {
        if (it.value() <= 0)
            continue;
        add.bind(1, static_cast<int64_t>(it.key()));
        add.bind(2, static_cast<int64_t>(it.value()));
        add.exec();
        add.reset();
    }
}

void takeBackSacrificeFlies(SQLite::Database &db, const QHash<qint64, qint64> &flies)
{
    if (!db.tableExists("SacFlies"))
        return;
    SQLite::Statement take(db, "UPDATE SacFlies SET SF = max(SF - ?, 0) WHERE playerID = ?");
    for (auto it = flies.cbegin(); it != flies.cend(); ++it) {
        if (it.value() <= 0)
            continue;
        take.bind(1, static_cast<int64_t>(it.value()));
        take.bind(2, static_cast<int64_t>(it.key()));
        take.exec();
        take.reset();
    }
    db.exec("DELETE FROM SacFlies WHERE SF = 0");
}

} // namespace stats
