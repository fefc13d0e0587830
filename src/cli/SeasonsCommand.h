#pragma once

#include "cli/Command.h"

namespace cli {

// `seasons`: every season file of the data folder with its team and game counts.
class SeasonsCommand final : public Command
{
public:
    QString name() const override { return QStringLiteral("seasons"); }
    QString summary() const override { return QStringLiteral("Lists the seasons with their team and game counts."); }

protected:
    void addOptions(QCommandLineParser &parser) override;
    int execute(const QCommandLineParser &parser, QTextStream &out, QTextStream &err) override;
};

} // namespace cli
