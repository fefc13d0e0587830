#pragma once

#include "cli/Command.h"
#include "cli/TableOutput.h"

#include <optional>

namespace cli {

// `report batting|fielding|pitching|standings|availability|playing-time`: the lines of
// a report screen, from the same season report, standings, pitcher
// availability and playing time code, as text, CSV or JSON.
class SeasonAccess;

class ReportCommand final : public Command
{
public:
    QString name() const override { return QStringLiteral("report"); }
    QString summary() const override
    {
        return QStringLiteral(
            "Writes a season report: batting, fielding, pitching, standings, availability or playing time.");
    }
    QString arguments() const override
    {
        return QStringLiteral("batting|fielding|pitching|standings|availability|playing-time");
    }

protected:
    void addOptions(QCommandLineParser &parser) override;
    int execute(const QCommandLineParser &parser, QTextStream &out, QTextStream &err) override;

private:
    // A span of days: --from and --to.
    static void addRangeOptions(QCommandLineParser &parser);
    // The Pitcher Availability report: --date.
    static void addAvailabilityOptions(QCommandLineParser &parser);
    static int writeAvailability(const QCommandLineParser &parser, SeasonAccess &season,
                                 const std::optional<qint64> &team, TableFormat format, QTextStream &out,
                                 QTextStream &err);
};

} // namespace cli
