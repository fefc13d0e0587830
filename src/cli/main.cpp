// tallyline-cli: the season's reports, checks and backups from a shell.

#include "cli/Commands.h"
#include "cli/StderrMessages.h"
#include "platform/Services.h"
#include "platform/SystemClock.h"

#include <QGuiApplication>

#include <memory>

#include <cstdio>

namespace {

// Qt's own notes (a runtime folder it had to pick, a font it substituted)
// are no result and no error of ours: only its errors reach standard error.
void qtMessages(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    if (type == QtCriticalMsg || type == QtFatalMsg)
        std::fprintf(stderr, "%s\n", qUtf8Printable(message));
}

} // namespace

int main(int argc, char *argv[])
{
    qInstallMessageHandler(qtMessages);
    // A box score's PDF is drawn with fonts, which takes a GUI application;
    // on the offscreen platform it needs no display. Every other verb is
    // lighter without one.
    const bool drawing = argc > 1 && qstrcmp(argv[1], "box-score") == 0;
    if (drawing && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    std::unique_ptr<QCoreApplication> app = drawing ? std::make_unique<QGuiApplication>(argc, argv)
                                                    : std::make_unique<QCoreApplication>(argc, argv);
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
