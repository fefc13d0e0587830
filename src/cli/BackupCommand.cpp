#include "cli/BackupCommand.h"

#include "app/globals.h"
#include "cli/SeasonAccess.h"
#include "seasondata/SeasonBackup.h"

#include <SQLiteCpp/Database.h>

#include <QDate>
#include <QDir>

namespace cli {

void BackupCommand::addOptions(QCommandLineParser &parser)
{
    addSeasonOptions(parser);
    parser.addOption({QStringLiteral("to"),
                      QStringLiteral("The folder to back up into (default: the backup location of the preferences)."),
                      QStringLiteral("folder")});
}

int BackupCommand::execute(const QCommandLineParser &parser, QTextStream &out, QTextStream &err)
{
    SeasonAccess season(parser, err);
    // Held to the end, so the program doesn't start on the season meanwhile.
    if (!season.lockForWriting())
        return Busy;
    myDB *db = season.open();
    if (!db)
        return Failed;
    myPrefs &prefs = season.prefs();
    if (parser.isSet(QStringLiteral("to"))) {
        const QString root = QDir(parser.value(QStringLiteral("to"))).absolutePath();
        if (!QDir().mkpath(QDir(root).filePath(QStringLiteral("TLYN2_backup")))) {
            err << "backup: can't make a backup folder in " << QDir::toNativeSeparators(root) << Qt::endl;
            return Failed;
        }
        prefs.prDataBackupLoc = createGSI(root);
    } else if (prefs.prDataBackupLoc.isEmpty()) {
        err << "backup: no backup location is set; give one with --to FOLDER" << Qt::endl;
        return Usage;
    }
    const seasondata::BackupPlan plan = seasondata::planBackup(prefs, QDate::currentDate());
    if (plan.kind != seasondata::BackupPlan::Ready) {
        err << "backup: " << plan.status << (plan.detail.isEmpty() ? QString() : u' ' + plan.detail) << Qt::endl;
        return Failed;
    }
    seasondata::BackupJob job(db->tlynData->getHandle(), plan.target);
    if (!job.runToEnd()) {
        err << "backup: " << job.errorMessage() << Qt::endl;
        return Failed;
    }
    out << QDir::toNativeSeparators(plan.target) << '\n';
    return Ok;
}

} // namespace cli
