// Takes the pictures of the season-care windows for the documentation, on
// a sample season in a folder of its own:
//   tl_seasondata_pictures <empty data root> <output folder>
// writes new-season.png, preferences.png, user-defined-stats.png and
// backup.png there.

#include "DemoTool.h"
#include "app/globals.h"
#include "reports/ui/qlmListBox.h"
#include "seasondata/ui/TransferDataScrn.h"
#include "seasondata/ui/UDVStatsScrn.h"
#include "seasondata/ui/backUpDlog.h"
#include "seasondata/ui/prefScrn.h"

#include <QDir>
#include <QLineEdit>
#include <QRadioButton>
#include <QTimer>

int main(int argc, char *argv[])
{
    DemoTool tool(argc, argv, 2, "tl_seasondata_pictures <empty data root> <output folder>");
    if (tool.failure())
        return tool.failure();
    const QDir out(tool.args().at(2));
    const char *teams[][2] = {{"Lincoln High", "Lions"},
                              {"Central", "Cubs"},
                              {"O'Brien's Academy", "Owls"},
                              {"Riverside", "Rams"},
                              {"Westfield", "Wolves"}};
    for (const auto &t : teams)
        gData->insert(QStringLiteral("Teams"), {{QStringLiteral("SchoolName"), QString::fromUtf8(t[0])},
                                                {QStringLiteral("TeamName"), QString::fromUtf8(t[1])}});
    gPrefs->prHomeTeam = QStringLiteral("1");
    const QString drive = QDir(tool.args().at(1)).filePath(QStringLiteral("Backups"));
    QDir().mkpath(drive + QStringLiteral("/TLYN2_backup"));
    gPrefs->prDataBackupLoc = createGSI(drive);
    gPrefs->prBackupFreq = 15;

    auto *sheet = new TransferDataScrn;
    sheet->show();
    sheet->findChild<QLineEdit *>(QStringLiteral("newNameFld"))->setText(QStringLiteral("2027"));
    sheet->findChild<QRadioButton *>(QStringLiteral("newActionBtn1"))->click();
    sheet->findChild<qlmListBox *>(QStringLiteral("fromLB"))->setSelectedRow(1);
    QTimer::singleShot(600, sheet, [&] {
        sheet->findChild<qlmListBox *>(QStringLiteral("toLB"))
            ->addRow({QStringLiteral("Lincoln High Lions")}, QStringLiteral("1"));
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
    return QCoreApplication::exec();
}
