#pragma once

// What every demo and picture tool does around its own work: the program's
// application object, the desktop's services, and the season of a data root
// of its own (<root>/QLM/TLYN2, never the user's real one unless asked).
// A tool then shows a window, and with "--grab out.png" among its
// arguments the window's picture is written and the tool quits.

#include "app/App.h"
#include "app/ui/TallylineApplication.h"
#include "platform/Services.h"
#include "platform/qt/QtServices.h"

#include <QStringList>

#include <memory>

class QWidget;

class DemoTool
{
public:
    // Needs at least `minArgs` arguments after the tool's name, the first
    // being the data root; otherwise prints `usage` and fails with 2. A
    // season that doesn't open fails with 1.
    DemoTool(int &argc, char **argv, int minArgs, const char *usage);
    ~DemoTool();

    // 0 when the season is open and the tool may go on; else its exit code.
    int failure() const { return m_failure; }
    const QStringList &args() const { return m_args; }
    App &season() { return *m_season; }

    // Shows the window and runs the event loop until it closes, or, with
    // "--grab out.png", until its picture is written. The season is closed
    // as the program closes it.
    int show(QWidget *window);

private:
    TallylineApplication m_application;
    QStringList m_args;
    platform::qt::QtServices m_desktop;
    platform::ScopedServices m_installed;
    std::unique_ptr<App> m_season;
    int m_failure = 0;
};
