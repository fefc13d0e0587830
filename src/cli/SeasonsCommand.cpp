#include "cli/SeasonsCommand.h"

#include "cli/SeasonAccess.h"
#include "cli/TableOutput.h"

#include <SQLiteCpp/SQLiteCpp.h>

namespace cli {

void SeasonsCommand::addOptions(QCommandLineParser &parser)
{
    parser.addOption({QStringLiteral("data-dir"),
                      QStringLiteral("Lists the season files in <dir> instead of the user's data folder."),
                      QStringLiteral("dir")});
    QCommandLineOption season(QStringLiteral("season"), QString(), QStringLiteral("name"));
    season.setFlags(QCommandLineOption::HiddenFromHelp); // every season is listed
    parser.addOption(season);
    parser.addOption({QStringLiteral("format"), QStringLiteral("text, csv or json (default text)."),
                      QStringLiteral("format"), QStringLiteral("text")});
}

int SeasonsCommand::execute(const QCommandLineParser &parser, QTextStream &out, QTextStream &err)
{
    TableFormat format;
    if (!parseTableFormat(parser.value(QStringLiteral("format")), format)) {
        err << "seasons: --format is text, csv or json" << Qt::endl;
        return Usage;
    }
    SeasonAccess access(parser, err);
    QList<QStringList> rows;
    int status = Ok;
    for (const QString &season : access.seasons()) {
        const QString file = SeasonAccess::seasonFile(access.folder(), season);
        // Its own read-only connection: listing never changes a file, not
        // even one the program has open.
        try {
            SQLite::Database db(file.toStdString(), SQLite::OPEN_READONLY);
            db.setBusyTimeout(5000);
            const int teams = db.execAndGet("SELECT count(*) FROM Teams").getInt();
            const int games = db.execAndGet("SELECT count(*) FROM Games").getInt();
            rows.append({season, QString::number(teams), QString::number(games)});
        } catch (const SQLite::Exception &e) {
            err << "seasons: " << season << ": can't be read (" << e.what() << ")" << Qt::endl;
            status = Failed;
        }
    }
    writeTable(out, format, {QStringLiteral("Season"), QStringLiteral("Teams"), QStringLiteral("Games")}, rows);
    return status;
}

} // namespace cli
