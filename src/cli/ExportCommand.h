#pragma once

#include "cli/Command.h"

namespace cli {

// `export season-csv|ics|roster`: the files of the program's export
// commands (the season's statistics, the schedule as a calendar, a team's
// roster), made by the same code.
class ExportCommand final : public Command
{
public:
    QString name() const override { return QStringLiteral("export"); }
    QString summary() const override
    {
        return QStringLiteral("Exports the season as CSV, the schedule as iCalendar or a team's roster as CSV.");
    }
    QString arguments() const override { return QStringLiteral("season-csv|ics|roster"); }

protected:
    void addOptions(QCommandLineParser &parser) override;
    int execute(const QCommandLineParser &parser, QTextStream &out, QTextStream &err) override;
};

} // namespace cli
