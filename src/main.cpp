// The program's entry point: installs the desktop's services, runs the
// start-up order and shows the splash screen.

#include "app/App.h"
#include "app/ui/ScreenDirectory.h"
#include "app/ui/TallylineApplication.h"
#include "app/ui/splashScrn.h"
#include "gameday/ui/gameDayScrn.h"
#include "people/ui/personnelScrn.h"
#include "people/ui/teamScrn.h"
#include "platform/qt/QtServices.h"
#include "reports/ui/reportIntroScrn.h"
#include "reports/ui/standingsScrn.h"
#include "schedule/ui/scheduleScrn.h"

namespace {

// Every window the start screen can open, by name.
void registerScreens()
{
    screens::registerScreen(ScreenId::teamScrn, [] { return new teamScrn; });
    screens::registerScreen(ScreenId::personnelScrn, [] { return new personnelScrn; });
    screens::registerScreen(ScreenId::scheduleScrn, [] { return new scheduleScrn; });
    screens::registerScreen(ScreenId::reportIntroScrn, [] { return new reportIntroScrn; });
    screens::registerScreen(ScreenId::standingsScrn, [] { return new standingsScrn; });
    screens::registerScreen(ScreenId::gameDayScrn,
                            [](const QVariant &eventID) { return new gameDayScrn(eventID.toString()); });
}

} // namespace

int main(int argc, char *argv[])
{
    TallylineApplication application(argc, argv);

    platform::qt::QtServices desktop;
    platform::ScopedServices installed(desktop.services());

    registerScreens();

    App app;
    if (app.Event_Open() != App::OpenResult::Ok)
        return 0;
    QObject::connect(&application, &QCoreApplication::aboutToQuit, &app, &App::Event_Close);

    auto *splash = new splashScrn;
    splash->show();
    return application.exec();
}
