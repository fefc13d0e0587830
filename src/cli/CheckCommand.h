#pragma once

#include "cli/Command.h"

namespace cli {

// `check`: whether the season is sound. SQLite's integrity_check, every
// Games row through the game-record readers, and every season total's
// innings in thirds. One line per problem; status 0 only with none.
class CheckCommand final : public Command
{
public:
    QString name() const override { return QStringLiteral("check"); }
    QString summary() const override
    {
        return QStringLiteral("Checks that the season's file, games and innings totals are sound.");
    }

protected:
    void addOptions(QCommandLineParser &parser) override;
    int execute(const QCommandLineParser &parser, QTextStream &out, QTextStream &err) override;
};

} // namespace cli
