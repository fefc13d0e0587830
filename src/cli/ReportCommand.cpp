#include "cli/ReportCommand.h"

#include "cli/PlayingTimeReport.h"
#include "cli/SeasonAccess.h"
#include "cli/TableOutput.h"
#include "platform/Services.h"
#include "reports/SeasonReport.h"
#include "reports/Standings.h"
#include "stats/PitchAvailability.h"
#include "stats/RangeTotals.h"

#include <QDate>
#include <QHash>

#include <optional>
#include <tuple>

namespace cli {

void ReportCommand::addOptions(QCommandLineParser &parser)
{
    addSeasonOptions(parser);
    parser.addOption({QStringLiteral("team"),
                      QStringLiteral("Only the players of team <name>; for the standings, the team whose league or "
                                     "division is shown, and for the availability report the team whose pitchers "
                                     "are shown (default: the home team)."),
                      QStringLiteral("name")});
    parser.addOption({QStringLiteral("league"),
                      QStringLiteral("Only the players of league <name>; for the standings, the teams of the "
                                     "team's league <name>."),
                      QStringLiteral("name")});
    parser.addOption({QStringLiteral("division"),
                      QStringLiteral("Only the players of division <name>; for the standings, the teams of the "
                                     "team's division <name>."),
                      QStringLiteral("name")});
    parser.addOption({QStringLiteral("more"), QStringLiteral("The modern rates (OBP, OPS, WHIP ...) instead.")});
    addRangeOptions(parser);
    addAvailabilityOptions(parser);
    parser.addOption({QStringLiteral("format"), QStringLiteral("text, csv or json (default text)."),
                      QStringLiteral("format"), QStringLiteral("text")});
    parser.addPositionalArgument(QStringLiteral("report"),
                                 QStringLiteral(
                                     "batting, fielding, pitching, standings, availability or playing-time"));
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

constexpr qsizetype kStandings = 3;
constexpr qsizetype kAvailability = 4;
constexpr qsizetype kPlayingTime = 5;

struct DateRange
{
    QDate from;
    QDate to;
};

// A date option as the schedule stores dates ("2026-04-14"): nothing when it
// isn't set, an invalid date when it doesn't read.
QDate dateOption(const QCommandLineParser &parser, const QString &name, const QDate &unset)
{
    return parser.isSet(name) ? QDate::fromString(parser.value(name), Qt::ISODate) : unset;
}

// --from and --to: the days of the games counted, both included. Either
// alone leaves the other end open.
bool readRange(const QCommandLineParser &parser, QTextStream &err, std::optional<DateRange> &range)
{
    const QString from = QStringLiteral("from");
    const QString to = QStringLiteral("to");
    if (!parser.isSet(from) && !parser.isSet(to))
        return true;
    const DateRange asked{dateOption(parser, from, QDate(1, 1, 1)), dateOption(parser, to, QDate(9998, 12, 31))};
    if (!asked.from.isValid() || !asked.to.isValid()) {
        err << "report: --from and --to take a date as 2026-04-14" << Qt::endl;
        return false;
    }
    if (asked.to < asked.from) {
        err << "report: --to is before --from" << Qt::endl;
        return false;
    }
    range = asked;
    return true;
}

// --date belongs to the availability report alone, which has no span.
bool checkDateOptions(const QCommandLineParser &parser, bool availability, QTextStream &err)
{
    if (availability && (parser.isSet(QStringLiteral("from")) || parser.isSet(QStringLiteral("to")))) {
        err << "report: the availability report takes --date, not --from or --to" << Qt::endl;
        return false;
    }
    if (!availability && parser.isSet(QStringLiteral("date"))) {
        err << "report: --date is for the availability report; the others take --from and --to" << Qt::endl;
        return false;
    }
    if (availability && parser.isSet(QStringLiteral("date")) &&
        !dateOption(parser, QStringLiteral("date"), {}).isValid()) {
        err << "report: --date takes a date as 2026-04-14" << Qt::endl;
        return false;
    }
    return true;
}

// The season rows of the span's games in the report query's shape: the
// names and teams as the season report joins them.
void loadRange(reports::SeasonReport &report, myDB &db, const stats::RangeTotals &totals)
{
    QHash<qint64, std::pair<QString, QString>> players;
    for (const Record &r : db.select(QStringLiteral("SELECT playerID, First, Last FROM Players")))
        players.insert(r.integer(QStringLiteral("playerID")),
                       {r.text(QStringLiteral("First")), r.text(QStringLiteral("Last"))});
    QHash<qint64, QStringList> teams;
    for (const Record &r : db.select(QStringLiteral("SELECT teamID, League, Division, TeamName FROM Teams")))
        teams.insert(r.integer(QStringLiteral("teamID")),
                     {r.text(QStringLiteral("League")), r.text(QStringLiteral("Division")),
                      r.text(QStringLiteral("TeamName"))});

    QList<reports::SeasonRow> rows;
    QHash<qint64, double> flies;
    const auto append = [&](qint64 player, qint64 teamID, const auto &figures) {
        reports::SeasonRow row;
        row.playerID = player;
        row.teamID = teamID;
        const auto name = players.constFind(player);
        row.hasPlayer = name != players.cend();
        if (row.hasPlayer)
            std::tie(row.first, row.last) = *name;
        const QStringList team = teams.value(teamID, {QString(), QString(), QString()});
        row.league = team.at(0);
        row.division = team.at(1);
        row.teamName = team.at(2);
        for (const qint64 figure : figures)
            row.figures.append(double(figure));
        rows.append(row);
        flies.insert(player, double(totals.sacrificeFlies.value(player)));
    };
    for (const qint64 player : totals.fold.players()) {
        switch (report.kind()) {
        case reports::Batting:
            if (const auto *row = totals.fold.hitting(player))
                append(player, row->teamID, row->figures);
            break;
        case reports::Fielding:
            if (const auto *row = totals.fold.fielding(player))
                append(player, row->teamID, row->figures);
            break;
        case reports::Pitching:
            if (const auto *row = totals.fold.pitching(player))
                append(player, row->teamID, row->figures);
            break;
        }
    }
    report.load(rows, flies);
}

// The span's records stand in for the stored ones: a team with no recorded
// game in the span shows none.
void useRangeRecords(reports::Standings &standings, const stats::RangeTotals &totals)
{
    standings.tRecDict.clear();
    for (const qint64 team : totals.fold.teams()) {
        const stats::TeamRecordRow *record = totals.fold.record(team);
        standings.tRecDict.insert(QString::number(team),
                                  QStringLiteral("%1\t%2\t%3").arg(record->W).arg(record->L).arg(record->Tie));
    }
}

} // namespace

void ReportCommand::addRangeOptions(QCommandLineParser &parser)
{
    parser.addOption({QStringLiteral("from"),
                      QStringLiteral("Counts only the recorded games scheduled on or after <date> (2026-04-14)."),
                      QStringLiteral("date")});
    parser.addOption({QStringLiteral("to"),
                      QStringLiteral("Counts only the recorded games scheduled on or before <date>."),
                      QStringLiteral("date")});
}

void ReportCommand::addAvailabilityOptions(QCommandLineParser &parser)
{
    parser.addOption({QStringLiteral("date"),
                      QStringLiteral("For the availability report: the day asked about (default today)."),
                      QStringLiteral("date")});
}

int ReportCommand::writeAvailability(const QCommandLineParser &parser, SeasonAccess &season,
                                     const std::optional<qint64> &team, TableFormat format, QTextStream &out,
                                     QTextStream &err)
{
    const QDate day = dateOption(parser, QStringLiteral("date"), platform::clock().now().date());
    const QString teamID = team ? QString::number(*team) : season.prefs().prHomeTeam;
    if (teamID.isEmpty()) {
        err << "report: the season has no home team; name one with --team" << Qt::endl;
        return Failed;
    }
    // The rules the program would use; a set file that doesn't read is named
    // and the built-in set stands in, as on the screen.
    QString refused;
    const stats::PitchRuleSet rules = stats::pitchrules::load(season.folder(), &refused);
    if (!refused.isEmpty())
        err << "report: the pitch count rules could not be read (" << refused << "); the national youth "
            << "guidelines are used instead" << Qt::endl;
    const stats::AvailabilityReport report = stats::AvailabilityReport::read(*season.open(), rules, teamID, day);
    writeTable(out, format, report.headings, report.rows);
    return Ok;
}

int ReportCommand::execute(const QCommandLineParser &parser, QTextStream &out, QTextStream &err)
{
    const QStringList words = parser.positionalArguments();
    static const QStringList kinds{QStringLiteral("batting"),      QStringLiteral("fielding"),
                                   QStringLiteral("pitching"),     QStringLiteral("standings"),
                                   QStringLiteral("availability"), QStringLiteral("playing-time")};
    const qsizetype which = words.size() == 1 ? kinds.indexOf(words.first()) : -1;
    if (which < 0) {
        err << "report: name one report: batting, fielding, pitching, standings, availability or playing-time"
            << Qt::endl;
        return Usage;
    }
    TableFormat format;
    if (!parseTableFormat(parser.value(QStringLiteral("format")), format)) {
        err << "report: --format is text, csv or json" << Qt::endl;
        return Usage;
    }
    std::optional<DateRange> range;
    if (!readRange(parser, err, range) || !checkDateOptions(parser, which == kAvailability, err))
        return Usage;
    SeasonAccess season(parser, err);
    // The season reports read a few tables once: a damaged page fails its
    // read, and the report is then not written. The others are checked
    // whole at open.
    const bool seasonReport = which != kStandings && which != kPlayingTime && which != kAvailability;
    myDB *db = season.open(!seasonReport);
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

    if (which == kPlayingTime)
        return writePlayingTime(*db, parser, team, format, out, err);
    if (which == kAvailability)
        return writeAvailability(parser, season, team, format, out, err);

    std::optional<stats::RangeTotals> totals;
    if (range) {
        totals.emplace();
        if (!totals->read(*db, range->from, range->to))
            return Failed;
    }

    if (which == kStandings) {
        const QString home = team ? QString::number(*team) : season.prefs().prHomeTeam;
        reports::Standings standings(*db, home);
        const QList<reports::Standings::ViewEntry> entries = standings.viewEntries();
        standings.setUpTeamData();
        standings.acquireData();
        if (totals)
            useRangeRecords(standings, *totals);
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
    if (totals)
        loadRange(report, *db, *totals);
    else if (!report.load(*db))
        return Failed;
    reports::ReportFilter filter;
    filter.selLeague = parser.value(QStringLiteral("league"));
    filter.selDivision = parser.value(QStringLiteral("division"));
    filter.selTeam = team.value_or(-1);
    if (db->failures() > 0)
        return Failed; // each failed read has gone to standard error
    if (parser.isSet(QStringLiteral("more")))
        writeTable(out, format, report.moreHeaders(), report.moreRows(filter));
    else
        writeTable(out, format, report.curHeaders(), report.rows(filter));
    return Ok;
}

} // namespace cli
