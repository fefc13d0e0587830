#pragma once

#include "cli/Command.h"

namespace cli {

// `box-score GAME-ID`: the box score of the Games row GAME-ID (the number
// `check` names) as the box score window shows it: text, a one-page PDF, or
// the pipe-delimited rows per player.
class BoxScoreCommand final : public Command
{
public:
    QString name() const override { return QStringLiteral("box-score"); }
    QString summary() const override { return QStringLiteral("Writes one game's box score as text, PDF or rows."); }
    QString arguments() const override { return QStringLiteral("GAME-ID"); }

protected:
    void addOptions(QCommandLineParser &parser) override;
    int execute(const QCommandLineParser &parser, QTextStream &out, QTextStream &err) override;
};

} // namespace cli
