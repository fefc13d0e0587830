// Shows a season report or the standings over the season of a data root:
// to look at them by hand, or to take their pictures for the documentation.
//   tl_reports_demo <data root> batting|fielding|pitching|standings [--grab out.png]
// The data root is an application-data folder of its own (the season lives
// in <root>/QLM/TLYN2), as the sample season tool fills it.

#include "app/App.h"
#include "app/globals.h"
#include "app/ui/TallylineApplication.h"
#include "platform/qt/QtServices.h"
#include "reports/SeasonReport.h"
#include "reports/ui/reportScrn.h"
#include "reports/ui/standingsScrn.h"

#include <QTimer>

#include <cstdio>

int main(int argc, char *argv[])
{
    TallylineApplication application(argc, argv);
    const QStringList args = application.arguments();
    const QStringList screens{QStringLiteral("batting"), QStringLiteral("fielding"), QStringLiteral("pitching"),
                              QStringLiteral("standings")};
    if (args.size() < 3 || !screens.contains(args.at(2))) {
        std::fprintf(stderr, "usage: tl_reports_demo <data root> batting|fielding|pitching|standings "
                             "[--grab out.png]\n");
        return 2;
    }
    platform::qt::QtServices desktop;
    platform::ScopedServices installed(desktop.services());
    App app(args.at(1));
    if (app.Event_Open() != App::OpenResult::Ok)
        return 1;

    QWidget *window = nullptr;
    const int which = int(screens.indexOf(args.at(2)));
    if (which == 3) {
        window = new standingsScrn;
    } else {
        // The report with the columns the chooser checks by default.
        const auto kind = reports::ReportKind(which);
        const QStringList rows = reports::chooser::rows(kind);
        QList<bool> checked(rows.size(), false);
        for (int row : reports::chooser::defaultChecks(kind)) {
            if (row < checked.size())
                checked[row] = true;
        }
        window = new reportScrn(which, reports::chooser::headers(kind, rows, checked));
    }
    window->show();
    const qsizetype grab = args.indexOf(QStringLiteral("--grab"));
    if (grab > 0 && grab + 1 < args.size()) {
        const QString out = args.at(grab + 1);
        QTimer::singleShot(300, window, [window, out] {
            window->grab().save(out);
            delete window;
            QCoreApplication::quit();
        });
    }
    return application.exec();
}
