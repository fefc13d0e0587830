#include "cli/PlayingTimeReport.h"

#include "cli/Command.h"
#include "stats/PlayingTime.h"

namespace cli {

int writePlayingTime(myDB &db, const QCommandLineParser &parser, std::optional<qint64> team, TableFormat format,
                     QTextStream &out, QTextStream &err)
{
    stats::PlayingTimeFilter filter;
    if (team)
        filter.teamID = QString::number(*team);
    for (const char *bound : {"from", "to"}) {
        const QString option = QString::fromLatin1(bound);
        if (!parser.isSet(option))
            continue;
        const QDate date = QDate::fromString(parser.value(option), Qt::ISODate);
        if (!date.isValid()) {
            err << "report: --" << option << " is a date as YYYY-MM-DD" << Qt::endl;
            return Usage;
        }
        (option == u"from" ? filter.from : filter.to) = date;
    }
    const stats::PlayingTimeReport report = stats::PlayingTimeReport::read(db, filter);
    writeTable(out, format, stats::PlayingTimeReport::headings(), report.texts());
    return Ok;
}

} // namespace cli
