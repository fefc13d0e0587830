// The program's entry point: installs the desktop's services, runs the
// start-up order and shows the splash screen.

#include "app/App.h"
#include "app/ui/ScreenDirectory.h"
#include "app/ui/TallylineApplication.h"
#include "app/ui/splashScrn.h"
#include "people/ui/personnelScrn.h"
#include "people/ui/teamScrn.h"
#include "platform/qt/QtServices.h"
#include "schedule/ui/scheduleScrn.h"
#include "seasondata/ui/TransferDataScrn.h"
#include "seasondata/ui/backUpDlog.h"
#include "seasondata/ui/prefScrn.h"

namespace {

// Every window the start screen can open, by name.
void registerScreens()
{
    screens::registerScreen(ScreenId::teamScrn, [] { return new teamScrn; });
    screens::registerScreen(ScreenId::personnelScrn, [] { return new personnelScrn; });
    screens::registerScreen(ScreenId::scheduleScrn, [] { return new scheduleScrn; });
    screens::registerScreen(ScreenId::TransferDataScrn, [] { return new TransferDataScrn; });
    screens::registerScreen(ScreenId::backUpDlog, [] { return new backUpDlog(backUpDlog::Mode::Backup); });
    screens::registerScreen(ScreenId::restoreDlog, [] { return new backUpDlog(backUpDlog::Mode::Restore); });
    // No argument: opened from the start screen, which shows again on close.
    screens::registerScreen(ScreenId::prefScrn, screens::Factory([](const QVariant &fromStart) {
                                return new prefScrn(!fromStart.isValid() || fromStart.toBool());
                            }));
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
    backUpDlog::connectTimer(app.BUTimer);

    auto *splash = new splashScrn;
    splash->show();
    return application.exec();
}
