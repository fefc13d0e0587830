// A sample season on the inventory, contact and practice plan screens, to
// try them by hand or to take their pictures for the documentation.
//   tl_extras_demo <data root> InventoryScrn|contactInfoScrn|practicePlanScrn [--grab out.png]
// The data root is an application-data folder of its own: the season lands
// in <root>/QLM/TLYN2, never in the user's real one unless asked.

#include "DemoTool.h"
#include "SampleSeason.h"
#include "people/ui/InventoryScrn.h"
#include "people/ui/contactInfoScrn.h"
#include "reports/ui/qlmListBox.h"
#include "schedule/ui/practicePlanScrn.h"

#include <QComboBox>

int main(int argc, char *argv[])
{
    DemoTool tool(argc, argv, 2,
                  "tl_extras_demo <data root> InventoryScrn|contactInfoScrn|practicePlanScrn [--grab out.png]");
    if (tool.failure())
        return tool.failure();
    const qint64 practice = sample::seedExtras();
    const QString which = tool.args().at(2);
    if (which == u"InventoryScrn") {
        auto *screen = new InventoryScrn;
        screen->findChild<QComboBox *>(QStringLiteral("selPlayerPop"))->setCurrentIndex(2);
        screen->findChild<qlmListBox *>(QStringLiteral("teamInvList"))->setSelectedRow(3);
        return tool.show(screen);
    }
    if (which == u"contactInfoScrn") {
        auto *screen = new contactInfoScrn;
        screen->findChild<qlmListBox *>(QStringLiteral("playersList"))->setRowSelected(0, true);
        screen->findChild<qlmListBox *>(QStringLiteral("playersList"))->setRowSelected(3, true);
        return tool.show(screen);
    }
    auto *screen = new practicePlanScrn(QString::number(practice));
    screen->findChild<QComboBox *>(QStringLiteral("activityBox"))->setCurrentIndex(3);
    screen->findChild<qlmListBox *>(QStringLiteral("drillList"))->setSelectedRow(2);
    return tool.show(screen);
}
