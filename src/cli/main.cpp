// tallyline-cli: the season's reports, checks and backups from a shell.

#include "cli/Commands.h"
#include "cli/StderrMessages.h"
#include "platform/Services.h"
#include "platform/SystemClock.h"

#include <QCoreApplication>

#include <cstdio>

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("tallyline-cli"));

    QTextStream out(stdout);
    QTextStream err(stderr);
    cli::StderrMessages messages(err);
    platform::SystemClock clock;
    platform::Services services;
    services.messages = &messages;
    services.clock = &clock;
    platform::install(services);
    return cli::runCli(QCoreApplication::arguments(), out, err);
}
