#pragma once

#include "cli/Command.h"

namespace cli {

// `report batting|fielding|pitching|standings|playing-time`: the lines of a report
// screen, from the same season report and standings code, as text, CSV or
// JSON.
class ReportCommand final : public Command
{
public:
    QString name() const override { return QStringLiteral("report"); }
    QString summary() const override
    {
        return QStringLiteral("Writes a season report: batting, fielding, pitching, standings or playing time.");
    }
    QString arguments() const override { return QStringLiteral("batting|fielding|pitching|standings|playing-time"); }

protected:
    void addOptions(QCommandLineParser &parser) override;
    int execute(const QCommandLineParser &parser, QTextStream &out, QTextStream &err) override;
};

} // namespace cli
