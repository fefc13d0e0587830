// Fills a season with a sample home team, its opponents, players and
// coaches, then shows the team or personnel screen on it: to try the
// screens by hand, or to take their pictures for the documentation.
//   tl_people_demo <data root>                       seeds the season (once)
//   tl_people_demo <data root> teamScrn|personnelScrn  and shows that screen
//   ... --grab out.png                               writes the window to a PNG and quits
// The data root is an application-data folder of its own: the season lands
// in <root>/QLM/TLYN2, never in the user's real one unless asked.

#include "DemoTool.h"
#include "SampleSeason.h"
#include "app/globals.h"
#include "app/myPrefs.h"
#include "people/ui/personnelScrn.h"
#include "people/ui/teamScrn.h"
#include "reports/ui/qlmListBox.h"

int main(int argc, char *argv[])
{
    DemoTool tool(argc, argv, 1, "tl_people_demo <data root> [teamScrn|personnelScrn] [--grab out.png]");
    if (tool.failure())
        return tool.failure();
    sample::seedTeams();
    // The sample's home team is kept in the preference file, so that the
    // program itself opens on it.
    gPrefs->prefsDirty = true;
    if (tool.args().size() < 3) {
        tool.season().Event_Close();
        return 0;
    }
    if (tool.args().at(2) == u"teamScrn") {
        auto *screen = new teamScrn;
        screen->findChild<qlmListBox *>(QStringLiteral("teamList"))->setSelectedRow(0);
        return tool.show(screen);
    }
    auto *screen = new personnelScrn;
    screen->findChild<qlmListBox *>(QStringLiteral("playersList"))->setSelectedRow(1);
    return tool.show(screen);
}
