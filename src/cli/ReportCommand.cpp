#include "cli/ReportCommand.h"

#include "cli/PlayingTimeReport.h"
#include "cli/SeasonAccess.h"
#include "cli/TableOutput.h"
#include "reports/SeasonReport.h"
#include "reports/Standings.h"

#include <optional>

namespace cli {

void ReportCommand::addOptions(QCommandLineParser &parser)
{
    addSeasonOptions(parser);
    parser.addOption({QStringLiteral("team"),
                      QStringLiteral("Only the players of team <name>; for the standings, the team whose league or "
                                     "division is shown (default: the home team)."),
                      QStringLiteral("name")});
    parser.addOption({QStringLiteral("league"),
                      QStringLiteral("Only the players of league <name>; for the standings, the teams of the "
                                     "team's league <name>."),
                      QStringLiteral("name")});
    parser.addOption({QStringLiteral("division"),
                      QStringLiteral("Only the players of division <name>; for the standings, the teams of the "
                                     "team's division <name>."),
                      QStringLiteral("name")});
    parser.addOption({QStringLiteral("from"), QStringLiteral("Playing time: games from <date> (YYYY-MM-DD) on."),
                      QStringLiteral("date")});
    parser.addOption({QStringLiteral("to"), QStringLiteral("Playing time: games up to <date> (YYYY-MM-DD)."),
                      QStringLiteral("date")});
    parser.addOption({QStringLiteral("more"), QStringLiteral("The modern rates (OBP, OPS, WHIP ...) instead.")});
    parser.addOption({QStringLiteral("format"), QStringLiteral("text, csv or json (default text)."),
                      QStringLiteral("format"), QStringLiteral("text")});
    parser.addPositionalArgument(QStringLiteral("report"),
                                 QStringLiteral("batting, fielding, pitching, standings or playing-time"));
}

namespace {

std::optional<qint64> teamNamed(myDB &db, const QString &name)
{
    for (const reports::FilterChoices::Team &team : reports::FilterChoices::read(db).teams) {
        if (team.name.compare(name, Qt::CaseInsensitive) == 0)
            return team.teamID;
    }
    return std::nullopt;
}

} // namespace

int ReportCommand::execute(const QCommandLineParser &parser, QTextStream &out, QTextStream &err)
{
    const QStringList words = parser.positionalArguments();
    static const QStringList kinds{QStringLiteral("batting"), QStringLiteral("fielding"), QStringLiteral("pitching"),
                                   QStringLiteral("standings"), QStringLiteral("playing-time")};
    const qsizetype which = words.size() == 1 ? kinds.indexOf(words.first()) : -1;
    if (which < 0) {
        err << "report: name one report: batting, fielding, pitching, standings or playing-time" << Qt::endl;
        return Usage;
    }
    TableFormat format;
    if (!parseTableFormat(parser.value(QStringLiteral("format")), format)) {
        err << "report: --format is text, csv or json" << Qt::endl;
        return Usage;
    }
    SeasonAccess season(parser, err);
    myDB *db = season.open();
    if (!db)
        return Failed;

    std::optional<qint64> team;
    if (parser.isSet(QStringLiteral("team"))) {
        team = teamNamed(*db, parser.value(QStringLiteral("team")));
        if (!team) {
            err << "report: there is no team \"" << parser.value(QStringLiteral("team")) << "\" in the season"
                << Qt::endl;
            return Failed;
        }
    }

    if (which == 4)
        return writePlayingTime(*db, parser, team, format, out, err);
    if (which == 3) {
        const QString home = team ? QString::number(*team) : season.prefs().prHomeTeam;
        reports::Standings standings(*db, home);
        const QList<reports::Standings::ViewEntry> entries = standings.viewEntries();
        standings.setUpTeamData();
        standings.acquireData();
        reports::Standings::View view = reports::Standings::Overall;
        if (parser.isSet(QStringLiteral("league")))
            view = reports::Standings::League;
        else if (parser.isSet(QStringLiteral("division")))
            view = reports::Standings::Division;
        if (view != reports::Standings::Overall) {
            const bool league = view == reports::Standings::League;
            const QString asked = parser.value(league ? QStringLiteral("league") : QStringLiteral("division"));
            const QString own = league ? standings.homeLg : standings.homeDiv;
            const bool offered = std::any_of(entries.cbegin(), entries.cend(),
                                             [&](const reports::Standings::ViewEntry &e) { return e.view == view; });
            if (!offered || asked.compare(own, Qt::CaseInsensitive) != 0) {
                err << "report: the team's " << (league ? "league" : "division") << " is \"" << own << "\", not \""
                    << asked << "\"" << Qt::endl;
                return Failed;
            }
        }
        const std::optional<QList<reports::StandingsRow>> lines = standings.fillStandLB(view);
        if (!lines)
            return Failed;
        QList<QStringList> rows;
        for (const reports::StandingsRow &line : *lines)
            rows.append({line.team, line.W, line.L, line.Tie, line.Pct, line.GB});
        writeTable(out, format,
                   {QStringLiteral("Team"), QStringLiteral("W"), QStringLiteral("L"), QStringLiteral("Tie"),
                    QStringLiteral("Pct"), QStringLiteral("GB")},
                   rows);
        return Ok;
    }

    const auto kind = reports::ReportKind(which);
    const QStringList chooserRows = reports::chooser::rows(kind);
    QList<bool> checked(chooserRows.size(), false);
    for (int row : reports::chooser::defaultChecks(kind)) {
        if (row < checked.size())
            checked[row] = true;
    }
    reports::SeasonReport report(kind, reports::chooser::headers(kind, chooserRows, checked));
    if (!report.load(*db))
        return Failed;
    reports::ReportFilter filter;
    filter.selLeague = parser.value(QStringLiteral("league"));
    filter.selDivision = parser.value(QStringLiteral("division"));
    filter.selTeam = team.value_or(-1);
    if (parser.isSet(QStringLiteral("more")))
        writeTable(out, format, report.moreHeaders(), report.moreRows(filter));
    else
        writeTable(out, format, report.curHeaders(), report.rows(filter));
    return Ok;
}

} // namespace cli
