#include "cli/ExportCommand.h"

#include "cli/OutputFile.h"
#include "cli/SeasonAccess.h"
#include "people/MemberStore.h"
#include "people/RosterCsv.h"
#include "platform/Services.h"
#include "reports/SeasonCsv.h"
#include "reports/SeasonReport.h"
#include "schedule/CalendarFile.h"
#include "schedule/ScheduleList.h"
#include "schedule/ScheduleStore.h"

namespace cli {

void ExportCommand::addOptions(QCommandLineParser &parser)
{
    addSeasonOptions(parser);
    parser.addOption({QStringLiteral("team"),
                      QStringLiteral("The team: whose roster (required for roster), or whose calendar (default: the "
                                     "home team)."),
                      QStringLiteral("name")});
    parser.addOption({{QStringLiteral("o"), QStringLiteral("output")},
                      QStringLiteral("The file to write (default: standard output)."),
                      QStringLiteral("file")});
    parser.addPositionalArgument(QStringLiteral("what"), QStringLiteral("season-csv, ics or roster"));
}

int ExportCommand::execute(const QCommandLineParser &parser, QTextStream &out, QTextStream &err)
{
    const QStringList words = parser.positionalArguments();
    const QString what = words.value(0);
    if (words.size() != 1 ||
        !QStringList{QStringLiteral("season-csv"), QStringLiteral("ics"), QStringLiteral("roster")}.contains(what)) {
        err << "export: name one export: season-csv, ics or roster" << Qt::endl;
        return Usage;
    }
    if (what == QLatin1String("roster") && !parser.isSet(QStringLiteral("team"))) {
        err << "export: a roster needs --team NAME" << Qt::endl;
        return Usage;
    }
    SeasonAccess season(parser, err);
    myDB *db = season.open();
    if (!db)
        return Failed;

    QString teamID;
    QString teamName;
    if (parser.isSet(QStringLiteral("team"))) {
        const QString asked = parser.value(QStringLiteral("team"));
        for (const reports::FilterChoices::Team &team : reports::FilterChoices::read(*db).teams) {
            if (team.name.compare(asked, Qt::CaseInsensitive) == 0) {
                teamID = QString::number(team.teamID);
                teamName = team.name;
            }
        }
        if (teamID.isEmpty()) {
            err << "export: there is no team \"" << asked << "\" in the season" << Qt::endl;
            return Failed;
        }
    }

    QByteArray bytes;
    if (what == QLatin1String("season-csv")) {
        bytes = reports::seasonCsv(*db);
        if (bytes.isEmpty())
            return Failed;
    } else if (what == QLatin1String("ics")) {
        if (teamName.isEmpty())
            teamName = ScheduleList(*db).homeTeamName();
        bytes = schedule::calendarFile(ScheduleStore(*db).list(ScheduleStore::kShowAll), teamName, season.season(),
                                       platform::clock().now());
    } else {
        bytes = people::rosterCsv(people::MemberStore(*db).players(teamID));
    }
    return writeOutput(parser.value(QStringLiteral("output")), bytes, out, err) ? Ok : Failed;
}

} // namespace cli
