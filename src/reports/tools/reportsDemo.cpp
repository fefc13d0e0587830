// Shows a season report or the standings over the season of a data root:
// to look at them by hand, or to take their pictures for the documentation.
//   tl_reports_demo <data root> batting|fielding|pitching|standings [--grab out.png]
// The data root is an application-data folder of its own (the season lives
// in <root>/QLM/TLYN2), as the sample season tool fills it.

#include "DemoTool.h"
#include "reports/SeasonReport.h"
#include "reports/ui/reportScrn.h"
#include "reports/ui/standingsScrn.h"

#include <cstdio>

int main(int argc, char *argv[])
{
    const char *usage = "tl_reports_demo <data root> batting|fielding|pitching|standings [--grab out.png]";
    DemoTool tool(argc, argv, 2, usage);
    if (tool.failure())
        return tool.failure();
    const QStringList screens{QStringLiteral("batting"), QStringLiteral("fielding"), QStringLiteral("pitching"),
                              QStringLiteral("standings")};
    const int which = int(screens.indexOf(tool.args().at(2)));
    if (which < 0) {
        std::fprintf(stderr, "usage: %s\n", usage);
        return 2;
    }
    if (which == 3)
        return tool.show(new standingsScrn);
    // The report with the columns the chooser checks by default.
    const auto kind = reports::ReportKind(which);
    const QStringList rows = reports::chooser::rows(kind);
    QList<bool> checked(rows.size(), false);
    for (int row : reports::chooser::defaultChecks(kind)) {
        if (row < checked.size())
            checked[row] = true;
    }
    return tool.show(new reportScrn(which, reports::chooser::headers(kind, rows, checked)));
}
