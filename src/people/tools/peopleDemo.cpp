// Fills a season with a sample home team, its opponents, players and
// coaches, then shows the team or personnel screen on it: to try the
// screens by hand, or to take their pictures for the documentation.
//   tl_people_demo <data root>                       seeds the season (once)
//   tl_people_demo <data root> teamScrn|personnelScrn  and shows that screen
//   ... --grab out.png                               writes the window to a PNG and quits
// The data root is an application-data folder of its own: the season lands
// in <root>/QLM/TLYN2, never in the user's real one unless asked.

#include "SampleTeams.h"
#include "app/App.h"
#include "app/globals.h"
#include "app/ui/TallylineApplication.h"
#include "people/RosterBook.h"
#include "people/TeamBook.h"
#include "people/ui/personnelScrn.h"
#include "people/ui/playerInfoCtr.h"
#include "people/ui/teamScrn.h"
#include "platform/qt/QtServices.h"
#include "reports/ui/qlmListBox.h"

#include <QComboBox>
#include <QTabWidget>
#include <QTimer>

#include <cstdio>

int main(int argc, char *argv[])
{
    TallylineApplication application(argc, argv);
    const QStringList args = application.arguments();
    if (args.size() < 2) {
        std::fprintf(stderr, "usage: tl_people_demo <data root> [teamScrn|personnelScrn] [--grab out.png]\n");
        return 2;
    }
    platform::qt::QtServices desktop;
    platform::ScopedServices installed(desktop.services());
    App app(args.at(1));
    if (app.Event_Open() != App::OpenResult::Ok)
        return 1;
    sample::seedTeams();
    // The sample's home team is kept in the preference file, so that the
    // program itself opens on it.
    gPrefs->prefsDirty = true;
    app.Event_Close();
    if (args.size() < 3)
        return 0;

    QWidget *window = nullptr;
    if (args.at(2) == u"teamScrn") {
        auto *screen = new teamScrn;
        screen->teamList->setSelectedRow(0);
        window = screen;
    } else {
        auto *screen = new personnelScrn;
        screen->playersList->setSelectedRow(1);
        window = screen;
    }
    window->show();
    const qsizetype grab = args.indexOf(QStringLiteral("--grab"));
    if (grab > 0 && grab + 1 < args.size()) {
        const QString out = args.at(grab + 1);
        QTimer::singleShot(300, window, [window, out] {
            window->grab().save(out);
            // The grab is taken; close without the questions of a real close.
            delete window;
            QCoreApplication::quit();
        });
    }
    return application.exec();
}
