#pragma once

#include "cli/Command.h"

namespace cli {

// `backup [--to FOLDER]`: the verified backup the program makes, into
// "<folder>/TLYN2_backup/<date>/<season file>".
class BackupCommand final : public Command
{
public:
    QString name() const override { return QStringLiteral("backup"); }
    QString summary() const override
    {
        return QStringLiteral("Backs the season up, checked, into the backup folder or <folder>.");
    }

protected:
    void addOptions(QCommandLineParser &parser) override;
    int execute(const QCommandLineParser &parser, QTextStream &out, QTextStream &err) override;
};

} // namespace cli
