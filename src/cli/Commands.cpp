#include "cli/Commands.h"

#include "cli/BackupCommand.h"
#include "cli/BoxScoreCommand.h"
#include "cli/CheckCommand.h"
#include "cli/ExportCommand.h"
#include "cli/ReportCommand.h"
#include "cli/SeasonsCommand.h"

namespace cli {

std::vector<std::unique_ptr<Command>> allCommands()
{
    std::vector<std::unique_ptr<Command>> commands;
    commands.push_back(std::make_unique<ReportCommand>());
    commands.push_back(std::make_unique<SeasonsCommand>());
    commands.push_back(std::make_unique<CheckCommand>());
    commands.push_back(std::make_unique<BackupCommand>());
    commands.push_back(std::make_unique<ExportCommand>());
    commands.push_back(std::make_unique<BoxScoreCommand>());
    return commands;
}

namespace {

void listCommands(QTextStream &stream, const std::vector<std::unique_ptr<Command>> &commands)
{
    stream << "Usage: tallyline-cli <command> [options]\n\n"
              "Tallyline Baseball's season data without a window.\n\nCommands:\n";
    for (const auto &command : commands)
        stream << "  " << command->name().leftJustified(10) << command->summary() << '\n';
    stream << "\nEvery command takes --help. Season commands take --data-dir <dir> and --season <name>.\n";
}

} // namespace

int runCli(const QStringList &args, QTextStream &out, QTextStream &err)
{
    const auto commands = allCommands();
    const QString verb = args.value(1);
    if (verb == QLatin1String("--help") || verb == QLatin1String("-h") || verb == QLatin1String("help")) {
        listCommands(out, commands);
        out.flush();
        return Ok;
    }
    for (const auto &command : commands) {
        if (command->name() == verb)
            return command->run(args.mid(1), out, err);
    }
    if (verb.isEmpty())
        err << "tallyline-cli: name a command\n\n";
    else
        err << "tallyline-cli: there is no command \"" << verb << "\"\n\n";
    listCommands(err, commands);
    err.flush();
    return Usage;
}

} // namespace cli
