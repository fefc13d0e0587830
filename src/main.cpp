// The program's entry point: installs the desktop's services, runs the
// start-up order and shows the splash screen.

#include "app/App.h"
#include "app/ui/ScreenDirectory.h"
#include "app/ui/TallylineApplication.h"
#include "app/ui/splashScrn.h"
#include "people/MailSettings.h"
#include "people/ui/InventoryScrn.h"
#include "people/ui/contactInfoScrn.h"
#include "people/ui/emailInfoScrn.h"
#include "people/ui/personnelScrn.h"
#include "people/ui/teamScrn.h"
#include "platform/qt/QtServices.h"
#include "schedule/ui/eventsCalendarScrn.h"
#include "help/ui/HelpAbbrevScrn.h"
#include "help/ui/formsScrn.h"
#include "help/ui/helpScrn2.h"
#include "support/HelpRequests.h"
#include "support/ui/expReporterScrn.h"
#include "support/ui/updateDlog.h"
#include "schedule/ui/practicePlanScrn.h"
#include "schedule/ui/scheduleScrn.h"

namespace {

// Every window the start screen can open, by name.
void registerScreens()
{
    screens::registerScreen(ScreenId::teamScrn, [] { return new teamScrn; });
    screens::registerScreen(ScreenId::personnelScrn, [] { return new personnelScrn; });
    screens::registerScreen(ScreenId::scheduleScrn, [] { return new scheduleScrn; });
    screens::registerScreen(ScreenId::eventsCalendarScrn, [] { return new eventsCalendarScrn; });
    screens::registerScreen(ScreenId::updateDlog, [] { return new updateDlog; });
    screens::registerScreen(ScreenId::helpScrn2,
                            [](const QVariant &topic) { return new helpScrn2(topic.isValid() ? topic.toInt() : 0); });
    screens::registerScreen(ScreenId::HelpAbbrevScrn, [] { return HelpAbbrevScrn::instance(); });
    screens::registerScreen(ScreenId::formsScrn, [] { return new formsScrn; });
    // Every "?" button of the program opens help at its topic.
    QObject::connect(&support::HelpRequests::instance(), &support::HelpRequests::requested, [](int topic) {
        if (QWidget *w = screens::create(ScreenId::helpScrn2, topic))
            w->show();
    });
    screens::registerScreen(ScreenId::InventoryScrn, [] { return new InventoryScrn; });
    screens::registerScreen(ScreenId::contactInfoScrn, [] { return new contactInfoScrn; });
    // A modal dialog: the opener runs it, reads "rtrnEmail" and deletes it.
    screens::registerScreen(ScreenId::emailInfoScrn, [] { return new emailInfoScrn; });
    screens::registerScreen(ScreenId::practicePlanScrn,
                            [](const QVariant &eventID) { return new practicePlanScrn(eventID.toString()); });
}

} // namespace

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
    // The mail password lives in the desktop's secret store, not in the file.
    people::MailSettings::moveOldPassword(*app.prefs());

    auto *splash = new splashScrn;
    splash->show();
    return application.exec();
}
