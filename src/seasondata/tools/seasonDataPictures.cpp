// Takes the pictures of the season-care windows for the documentation, on
// a sample season in a folder of its own:
//   tl_seasondata_pictures <empty data root> <output folder>
// writes new-season.png, preferences.png, user-defined-stats.png and
// backup.png there.

#include "app/App.h"
#include "app/globals.h"
#include "app/ui/TallylineApplication.h"
#include "platform/qt/QtServices.h"
#include "reports/ui/qlmListBox.h"
#include "seasondata/ui/TransferDataScrn.h"
#include "seasondata/ui/UDVStatsScrn.h"
#include "seasondata/ui/backUpDlog.h"
#include "seasondata/ui/prefScrn.h"

#include <QDir>
#include <QLineEdit>
#include <QRadioButton>
#include <QTimer>

#include <cstdio>

int main(int argc, char *argv[])
{
    TallylineApplication application(argc, argv);
    if (argc < 3) {
        std::fprintf(stderr, "usage: tl_seasondata_pictures <empty data root> <output folder>\n");
        return 2;
    }
    platform::qt::QtServices desktop;
    platform::ScopedServices installed(desktop.services());
    App app{QString::fromLocal8Bit(argv[1])};
    if (app.Event_Open() != App::OpenResult::Ok)
        return 1;
    const QDir out(QString::fromLocal8Bit(argv[2]));
    const char *teams[][2] = {{"Lincoln High", "Lions"},
                              {"Central", "Cubs"},
                              {"O'Brien's Academy", "Owls"},
                              {"Riverside", "Rams"},
                              {"Westfield", "Wolves"}};
    for (const auto &t : teams)
        gData->insert(QStringLiteral("Teams"), {{QStringLiteral("SchoolName"), QString::fromUtf8(t[0])},
                                                {QStringLiteral("TeamName"), QString::fromUtf8(t[1])}});
    gPrefs->prHomeTeam = QStringLiteral("1");
    const QString drive = QDir(QString::fromLocal8Bit(argv[1])).filePath(QStringLiteral("Backups"));
    QDir().mkpath(drive + QStringLiteral("/TLYN2_backup"));
    gPrefs->prDataBackupLoc = createGSI(drive);
    gPrefs->prBackupFreq = 15;

    auto *sheet = new TransferDataScrn;
    sheet->show();
    sheet->newNameFld->setText(QStringLiteral("2027"));
    sheet->transferRadio->click();
    sheet->fromLB->setSelectedRow(1);
    QTimer::singleShot(600, sheet, [&] {
        sheet->toLB->addRow({QStringLiteral("Lincoln High Lions")}, QStringLiteral("1"));
        sheet->grab().save(out.filePath(QStringLiteral("new-season.png")));
        sheet->close();

        auto *prefs = new prefScrn(false);
        prefs->show();
        QTimer::singleShot(200, prefs, [&, prefs] {
            prefs->grab().save(out.filePath(QStringLiteral("preferences.png")));
            auto *stats = new UDVStatsScrn(prefs);
            stats->show();
            QTimer::singleShot(200, stats, [&, prefs, stats] {
                stats->grab().save(out.filePath(QStringLiteral("user-defined-stats.png")));
                stats->close();
                prefs->close();
                auto *backup = new backUpDlog;
                backup->show();
                QTimer::singleShot(1500, backup, [&, backup] {
                    backup->grab().save(out.filePath(QStringLiteral("backup.png")));
                    QCoreApplication::exit(0);
                });
            });
        });
    });
    return application.exec();
}
