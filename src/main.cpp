// The program's entry point: installs the desktop's services, runs the
// start-up order and shows the splash screen.

#include "Screens.h"
#include "app/App.h"
#include "app/ui/TallylineApplication.h"
#include "app/ui/splashScrn.h"
#include "platform/qt/QtServices.h"
#include "support/ui/expReporterScrn.h"

int main(int argc, char *argv[])
{
    TallylineApplication application(argc, argv);

    platform::qt::QtServices desktop;
    platform::ScopedServices installed(desktop.services());

    registerScreens();
    TallylineApplication::setUnhandledHandler(&expReporterScrn::showFor);

    App app;
    if (app.Event_Open() != App::OpenResult::Ok)
        return 0;
    QObject::connect(&application, &QCoreApplication::aboutToQuit, &app, &App::Event_Close);
    connectProgram(app);

    auto *splash = new splashScrn;
    splash->show();
    return QApplication::exec();
}
