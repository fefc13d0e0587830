#include "app/ui/TallylineApplication.h"

#include "app/AppInfo.h"

#include "platform/Services.h"

#include <QIcon>

#include <exception>

namespace {
TallylineApplication::UnhandledHandler &unhandledHandler()
{
    static TallylineApplication::UnhandledHandler handler;
    return handler;
}
} // namespace

TallylineApplication::TallylineApplication(int &argc, char **argv) : QApplication(argc, argv)
{
    setApplicationName(QStringLiteral("Tallyline Baseball"));
    setApplicationDisplayName(QStringLiteral("Tallyline Baseball"));
    setOrganizationName(QStringLiteral("QLM"));
    setApplicationVersion(appinfo::curVers);
    setQuitOnLastWindowClosed(true);
    // The desktop entry's name, so the desktop shows the installed icon for
    // the program's windows; the built-in icon serves a program run from
    // its build folder.
    setDesktopFileName(QStringLiteral("org.tallyline.Baseball"));
    QIcon icon;
    icon.addFile(QStringLiteral(":/app/tallyline-64.png"));
    icon.addFile(QStringLiteral(":/app/tallyline-256.png"));
    setWindowIcon(icon);
}

bool TallylineApplication::notify(QObject *receiver, QEvent *event)
{
    try {
        return QApplication::notify(receiver, event);
    } catch (const std::exception &e) {
        reportUnhandled(std::current_exception(), QString::fromUtf8(e.what()));
    } catch (...) {
        reportUnhandled(std::current_exception(), QStringLiteral("An unknown error"));
    }
    return false;
}

void TallylineApplication::setUnhandledHandler(UnhandledHandler handler)
{
    unhandledHandler() = std::move(handler);
}

void TallylineApplication::reportUnhandled(const std::exception_ptr &error, const QString &what)
{
    if (unhandledHandler()) {
        // A failure inside the report itself must not end the program.
        try {
            unhandledHandler()(error);
            return;
        } catch (...) {
        }
    }
    if (!platform::installed().messages)
        return;
    platform::messages().showMsgDlog(QStringLiteral("An unexpected error occurred."),
                                     what + QStringLiteral("\n\nYour data has been saved as you entered it. "
                                                           "The program will go on."),
                                     QStringLiteral("OK"), {});
}
