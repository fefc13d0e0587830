#include "Screens.h"

#include "app/App.h"
#include "app/ui/ScreenDirectory.h"
#include "gameday/ui/gameDayScrn.h"
#include "help/ui/HelpAbbrevScrn.h"
#include "help/ui/formsScrn.h"
#include "help/ui/helpScrn2.h"
#include "people/MailSettings.h"
#include "people/ui/InventoryScrn.h"
#include "people/ui/contactInfoScrn.h"
#include "people/ui/emailInfoScrn.h"
#include "people/ui/personnelScrn.h"
#include "people/ui/teamScrn.h"
#include "reports/ui/pitcherAvailabilityScrn.h"
#include "reports/ui/playingTimeScrn.h"
#include "reports/ui/reportIntroScrn.h"
#include "reports/ui/standingsScrn.h"
#include "schedule/ui/eventsCalendarScrn.h"
#include "schedule/ui/practicePlanScrn.h"
#include "schedule/ui/scheduleScrn.h"
#include "seasondata/ui/TransferDataScrn.h"
#include "seasondata/ui/backUpDlog.h"
#include "seasondata/ui/prefScrn.h"
#include "stats/ui/boxScoreScrn.h"
#include "support/HelpRequests.h"
#include "support/cAutoUpdate.h"
#include "support/ui/updateDlog.h"

void registerScreens()
{
    screens::registerScreen(ScreenId::teamScrn, [] { return new teamScrn; });
    screens::registerScreen(ScreenId::personnelScrn, [] { return new personnelScrn; });
    screens::registerScreen(ScreenId::scheduleScrn, [] { return new scheduleScrn; });
    screens::registerScreen(ScreenId::eventsCalendarScrn, [] { return new eventsCalendarScrn; });
    screens::registerScreen(ScreenId::reportIntroScrn, [] { return new reportIntroScrn; });
    screens::registerScreen(ScreenId::standingsScrn, [] { return new standingsScrn; });
    screens::registerScreen(ScreenId::pitcherAvailabilityScrn, [] { return new pitcherAvailabilityScrn; });
    screens::registerScreen(ScreenId::playingTimeScrn, [] { return new playingTimeScrn; });
    screens::registerScreen(ScreenId::gameDayScrn,
                            [](const QVariant &eventID) { return gameDayScrn::openFor(eventID.toString()); });
    // Only a build that knows where the newest version is told can check.
    if (!cAutoUpdate::builtInDocumentUrl().isEmpty())
        screens::registerScreen(ScreenId::updateDlog, [] { return new updateDlog; });
    screens::registerScreen(ScreenId::helpScrn2,
                            [](const QVariant &topic) { return new helpScrn2(topic.isValid() ? topic.toInt() : 0); });
    screens::registerScreen(ScreenId::HelpAbbrevScrn, [] { return HelpAbbrevScrn::instance(); });
    screens::registerScreen(ScreenId::formsScrn, [] { return new formsScrn; });
    screens::registerScreen(ScreenId::InventoryScrn, [] { return new InventoryScrn; });
    screens::registerScreen(ScreenId::contactInfoScrn, [] { return new contactInfoScrn; });
    // A modal dialog: the opener runs it, reads "rtrnEmail" and deletes it.
    screens::registerScreen(ScreenId::emailInfoScrn, [] { return new emailInfoScrn; });
    screens::registerScreen(ScreenId::boxScoreScrn,
                            [](const QVariant &eventID) { return new boxScoreScrn(eventID.toString()); });
    screens::registerScreen(ScreenId::practicePlanScrn,
                            [](const QVariant &eventID) { return new practicePlanScrn(eventID.toString()); });
    screens::registerScreen(ScreenId::TransferDataScrn, [] { return new TransferDataScrn; });
    screens::registerScreen(ScreenId::backUpDlog, [] { return new backUpDlog(backUpDlog::Mode::Backup); });
    screens::registerScreen(ScreenId::restoreDlog, [] { return new backUpDlog(backUpDlog::Mode::Restore); });
    // No argument: opened from the start screen, which shows again on close.
    screens::registerScreen(ScreenId::prefScrn, screens::Factory([](const QVariant &fromStart) {
                                return new prefScrn(!fromStart.isValid() || fromStart.toBool());
                            }));

    // Every "?" button of the program opens help at its topic; connected
    // once, however often the screens are registered.
    static const bool listening = [] {
        QObject::connect(&support::HelpRequests::instance(), &support::HelpRequests::requested, [](int topic) {
            if (QWidget *w = screens::create(ScreenId::helpScrn2, topic))
                w->show();
        });
        return true;
    }();
    Q_UNUSED(listening);
}

void connectProgram(App &app)
{
    backUpDlog::connectTimer(app.BUTimer);
    // The mail password lives in the desktop's secret store, not in the file.
    people::MailSettings::moveOldPassword(*app.prefs());
}
