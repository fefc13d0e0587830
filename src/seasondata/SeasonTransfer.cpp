#include "seasondata/SeasonTransfer.h"

#include "app/App.h"
#include "app/Schema.h"
#include "app/globals.h"
#include "app/myDB.h"
#include "app/myPrefs.h"
#include "platform/Messages.h"

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>
#include <SQLiteCpp/Transaction.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace seasondata {

namespace {

const QString kNoName = QStringLiteral("Please provide a name for the new season.");

bool checkName(const QString &name)
{
    if (name.isEmpty()) {
        gMsgBox(kNoName);
        return false;
    }
    if (name.toUtf8().size() > myPrefs::kMaxSeasonNameBytes) {
        gShowMsgDlog(QStringLiteral("The season's name is too long to name a file."),
                     QStringLiteral("Please choose a shorter name for the new season."), QStringLiteral("OK"));
        return false;
    }
    if (!myPrefs::isUsableSeasonName(name)) {
        gShowMsgDlog(QStringLiteral("A season's name can't hold a slash, a backslash or a control character."),
                     QStringLiteral("Please choose another name for the new season."), QStringLiteral("OK"));
        return false;
    }
    return true;
}

void becomeCurrent(const QString &name)
{
    gPrefs->prSeason = name;
    gPrefs->prefsDirty = true;
    if (App *app = App::instance())
        app->reopenSeason();
}

QString seasonFileOf(const QString &name)
{
    return QDir(gPrefs->strdDataLoc).filePath(myDB::getCurDBFileName(name));
}

void run(SQLite::Database &db, const char *sql, qint64 id)
{
    SQLite::Statement statement(db, sql);
    statement.bind(1, static_cast<int64_t>(id));
    statement.exec();
}

} // namespace

QList<TeamRow> seasonTeams(myDB &db)
{
    QList<TeamRow> teams;
    for (const Record &r : db.select(QStringLiteral("SELECT * FROM Teams")))
        teams.append({r.text(QStringLiteral("teamID")),
                      r.text(QStringLiteral("SchoolName")) + u' ' + r.text(QStringLiteral("TeamName"))});
    return teams;
}

QString SeasonTransfer::partFileName(const QString &seasonFile)
{
    return seasonFile + QStringLiteral(".part");
}

bool SeasonTransfer::createNewDB(const QString &name)
{
    if (!gPrefs || !checkName(name))
        return false;
    // The coach meant a new season: one of that name is only opened on his word.
    if (name != gPrefs->prSeason && QFileInfo::exists(seasonFileOf(name)) &&
        gShowMsgDlog(QStringLiteral("The season ") + name + QStringLiteral(" exists already."),
                     QStringLiteral("Open it as it is? No new season is made."),
                     QStringLiteral("Open")) != platform::MsgAction)
        return false;
    becomeCurrent(name);
    return true;
}

bool SeasonTransfer::doTransfer(const QString &name, const QStringList &teamIDs, bool withInventory)
{
    if (!gPrefs)
        return false;
    if (teamIDs.isEmpty()) {
        gMsgBox(QStringLiteral("Please add teams for transferring"));
        return false;
    }
    if (!checkName(name))
        return false;
    const QDir folder(gPrefs->strdDataLoc);
    const QString prevFile = folder.filePath(myDB::getCurDBFileName(gPrefs->prSeason));
    // Looked for before anything is made, so a missing source leaves no
    // empty season behind.
    if (!QFileInfo::exists(prevFile)) {
        gMsgBox(QStringLiteral("The previous season file could not be located."));
        return false;
    }
    if (name == gPrefs->prSeason) {
        gShowMsgDlog(QStringLiteral("The teams are already in season ") + name + u'.',
                     QStringLiteral("Please provide another name for the new season."), QStringLiteral("OK"));
        return false;
    }

    const QString target = folder.filePath(myDB::getCurDBFileName(name));
    // Rows copied into a season that has its own would meet ids it already
    // uses: players would land on another team. Refused before any write.
    if (QFileInfo::exists(target)) {
        gShowMsgDlog(QStringLiteral("The season ") + name + QStringLiteral(" exists already."),
                     QStringLiteral("Nothing was copied into it. Please provide another name for the new season."),
                     QStringLiteral("OK"));
        return false;
    }
    // A new season is built under a working name and renamed into place
    // when complete, so a failure or a crash never leaves half a season
    // that the season popup would offer.
    const QString work = partFileName(target);
    QFile::remove(work);

    std::unique_ptr<SQLite::Database> db;
    try {
        db = std::make_unique<SQLite::Database>(work.toStdString(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
        db->setBusyTimeout(5000);
        db->exec("PRAGMA journal_mode=DELETE");
        db->exec("PRAGMA synchronous=FULL");
        SQLite::Statement attach(*db, "ATTACH DATABASE ? AS attachDB");
        attach.bind(1, prevFile.toStdString());
        attach.exec();
    } catch (const SQLite::Exception &) {
        db.reset();
        QFile::remove(work);
        gMsgBox(QStringLiteral("Unable to connect to the selected database"));
        return false;
    }

    try {
        SQLite::Transaction transaction(*db, SQLite::TransactionBehavior::IMMEDIATE);
        for (const QString &statement : schema::createStatements() + schema::indexStatements())
            db->exec(statement.toStdString());
        for (const QString &id : teamIDs) {
            const qint64 team = id.toLongLong();
            run(*db, "INSERT INTO Teams SELECT * FROM attachDB.Teams WHERE teamID = ?", team);
            run(*db, "INSERT INTO Players SELECT * FROM attachDB.Players WHERE TeamNum = ?", team);
            run(*db, "INSERT INTO Coaches SELECT * FROM attachDB.Coaches WHERE TeamNum = ?", team);
        }
        // The whole team inventory goes, also that of teams left behind.
        if (withInventory)
            db->exec("INSERT INTO TeamInventory SELECT * FROM attachDB.TeamInventory");
        transaction.commit();
        db->exec("DETACH DATABASE attachDB");
        db.reset();
    } catch (const SQLite::Exception &e) {
        const int code = e.getErrorCode();
        const QString message = QString::fromUtf8(e.what());
        db.reset();
        QFile::remove(work);
        gMsgBox(QStringLiteral("Database Error: ") + QString::number(code) + u'\n' + message);
        return false;
    }

    if (!QFile::rename(work, target)) {
        QFile::remove(work);
        gMsgBox(QStringLiteral("Database Error\nThere was an error when creating the database at <") +
                QDir::toNativeSeparators(target) + u'>');
        return false;
    }
    becomeCurrent(name);
    gMsgBox(QStringLiteral("The transfer was successful"));
    return true;
}

} // namespace seasondata
