#include "app/ui/TallylineApplication.h"

#include "platform/Services.h"

#include <QIcon>

#include <exception>

TallylineApplication::TallylineApplication(int &argc, char **argv) : QApplication(argc, argv)
{
    setApplicationName(QStringLiteral("Tallyline Baseball"));
    setApplicationDisplayName(QStringLiteral("Tallyline Baseball"));
    setOrganizationName(QStringLiteral("QLM"));
    setApplicationVersion(QStringLiteral("2.2.0"));
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
        reportUnhandled(QString::fromUtf8(e.what()));
    } catch (...) {
        reportUnhandled(QStringLiteral("An unknown error"));
    }
    return false;
}

void TallylineApplication::reportUnhandled(const QString &what)
{
    if (!platform::installed().messages)
        return;
    platform::messages().showMsgDlog(QStringLiteral("An unexpected error occurred."),
                                     what + QStringLiteral("\n\nYour data has been saved as you entered it. "
                                                           "The program will go on."),
                                     QStringLiteral("OK"), {});
}
