#pragma once

#include "cli/Command.h"

#include <memory>
#include <vector>

namespace cli {

// Every verb of tallyline-cli, in the order the help lists them.
std::vector<std::unique_ptr<Command>> allCommands();

// The whole program: picks the verb of `args` (args[0] is the program) and
// runs it. Without a verb, or with --help alone, lists the verbs.
int runCli(const QStringList &args, QTextStream &out, QTextStream &err);

} // namespace cli
