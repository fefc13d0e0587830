#include "reports/ui/reportIntroScrn.h"

#include "app/globals.h"
#include "app/myDB.h"
#include "app/ui/Form.h"
#include "app/ui/MainMenuBar.h"
#include "app/ui/ScreenDirectory.h"
#include "platform/FileDialogs.h"
#include "platform/Services.h"
#include "reports/ListBoxText.h"
#include "reports/SeasonCsv.h"
#include "reports/SeasonReport.h"
#include "reports/ui/qlmListBox.h"
#include "reports/ui/reportScrn.h"
#include "support/ui/qlmCheckBox.h"

#include <QDir>
#include <QFileInfo>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QSaveFile>
#include <QVBoxLayout>

namespace {
// Stands in the check box column of the rows every report shows.
const QString kFixedMark = QStringLiteral("\u2714");
} // namespace

reportIntroScrn::reportIntroScrn(QWidget *parent)
    : ScreenBase(ScreenId::reportIntroScrn, QStringLiteral("Season Reports"), parent)
{
    auto *central = new QWidget(this);
    auto *outer = new QVBoxLayout(central);
    auto *grid = new QGridLayout;
    const char *names[] = {"Batting", "Fielding", "Pitching"};
    for (int i = 0; i < 3; ++i) {
        const QString name = QString::fromLatin1(names[i]);
        headerLbl[i] = new QLabel(QStringLiteral("-- ") + name + QStringLiteral(" --"), central);
        headerLbl[i]->setObjectName(QStringLiteral("headerLbl") + QString::number(i));
        headerLbl[i]->setAlignment(Qt::AlignCenter);
        statsLB[i] = form::named(new qlmListBox(central), QStringLiteral("statsLB") + QString::number(i),
                                 name + QStringLiteral(" statistics"));
        statsLB[i]->setToolTip(QStringLiteral("Space checks or unchecks the selected statistic"));
        statsLB[i]->installEventFilter(this);
        checkAll[i] = form::named(new qlmCheckBox(QStringLiteral("All"), central),
                                  QStringLiteral("checkAll") + QString::number(i),
                                  QStringLiteral("All ") + name.toLower() + QStringLiteral(" statistics"));
        viewBtn[i] = form::button(central, QStringLiteral("viewBtn") + QString::number(i),
                                  QStringLiteral("View ") + name,
                                  QStringLiteral("View ") + name.toLower() + QStringLiteral(" report"));
        grid->addWidget(headerLbl[i], 0, i);
        grid->addWidget(statsLB[i], 1, i);
        grid->addWidget(checkAll[i], 2, i);
        grid->addWidget(viewBtn[i], 3, i);
        statsLB_Open(i);
        connect(checkAll[i], &QAbstractButton::toggled, this, [this, i](bool on) { setDefaultChecks(i, on); });
        connect(viewBtn[i], &QPushButton::clicked, this, [this, i] { viewBtn_Action(i); });
    }
    outer->addLayout(grid, 1);
    auto *buttons = new QHBoxLayout;
    cancelBtn = form::button(central, QStringLiteral("cancelBtn"), QStringLiteral("Cancel"));
    pitchAvailBtn = form::button(central, QStringLiteral("pitchAvailBtn"), QStringLiteral("&Pitcher Availability"));
    pitchAvailBtn->setEnabled(screens::has(ScreenId::pitcherAvailabilityScrn));
    playTimeBtn = form::button(central, QStringLiteral("playTimeBtn"), QStringLiteral("Playing &Time"));
    playTimeBtn->setEnabled(screens::has(ScreenId::playingTimeScrn));
    buttons->addWidget(pitchAvailBtn);
    buttons->addWidget(playTimeBtn);
    buttons->addStretch(1);
    buttons->addWidget(cancelBtn);
    outer->addLayout(buttons);
    setCentralWidget(central);
    resize(620, 560);

    connect(cancelBtn, &QPushButton::clicked, this, &QWidget::close);
    menus()->installHandler(QStringLiteral("FileExport"), [this] {
        exportSeason();
        return true;
    });
    for (const auto &door : {std::pair{pitchAvailBtn, ScreenId::pitcherAvailabilityScrn},
                             std::pair{playTimeBtn, ScreenId::playingTimeScrn}}) {
        const ScreenId id = door.second;
        connect(door.first, &QPushButton::clicked, this, [this, id] {
            if (QWidget *report = screens::create(id))
                report->show();
            setReturnToStart(false);
            close();
        });
    }
}

void reportIntroScrn::exportSeason()
{
    if (!gData || !gData->isConnected())
        return;
    platform::FileRequest request;
    request.title = QStringLiteral("Export Season Statistics");
    request.prompt = QStringLiteral("Choose a location for the season's statistics.");
    request.suggestedName = QStringLiteral("Season Statistics.csv");
    request.nameFilters = {QStringLiteral("CSV files (*.csv)")};
    request.initialDir = ListBoxText::exportFolder();
    QString path = platform::files().saveFile(request);
    if (path.isEmpty())
        return;
    if (QFileInfo(path).suffix().isEmpty())
        path += QStringLiteral(".csv");
    const QByteArray text = reports::seasonCsv(*gData);
    if (text.isEmpty())
        return;
    // Renamed over the target only when complete.
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size() || !file.commit())
        gShowMsgDlog(QStringLiteral("The file \"") + QDir::toNativeSeparators(path) +
                         QStringLiteral("\" couldn't be written."),
                     file.errorString(), QStringLiteral("OK"));
}

void reportIntroScrn::statsLB_Open(int which)
{
    const auto kind = reports::ReportKind(which);
    qlmListBox *list = statsLB[which];
    list->setHeadingsVisible(false);
    list->setColumnCount(2);
    list->setColumnWidths(QStringLiteral("28,*"));
    list->setColumnType(0, qlmListBox::CellType::CheckBox);
    const int fixed = reports::chooser::fixedRows(kind);
    const QStringList rows = reports::chooser::rows(kind);
    for (int row = 0; row < rows.size(); ++row) {
        list->addRow({row < fixed ? kFixedMark : QString(), rows.at(row)});
        if (row < fixed)
            list->setCellType(row, 0, qlmListBox::CellType::Normal);
    }
    setDefaultChecks(which, false);
}

void reportIntroScrn::setDefaultChecks(int which, bool all)
{
    qlmListBox *list = statsLB[which];
    for (int row = 0; row < list->rowCount(); ++row)
        list->setCellCheck(row, 0, all);
    if (all)
        return;
    for (int row : reports::chooser::defaultChecks(reports::ReportKind(which))) {
        if (row < list->rowCount())
            list->setCellCheck(row, 0, true);
    }
}

QStringList reportIntroScrn::chosenHeaders(int which) const
{
    const qlmListBox *list = statsLB[which];
    QStringList rows;
    QList<bool> checked;
    for (int row = 0; row < list->rowCount(); ++row) {
        rows.append(list->cell(row, 1));
        checked.append(list->cellCheck(row, 0));
    }
    return reports::chooser::headers(reports::ReportKind(which), rows, checked);
}

void reportIntroScrn::viewBtn_Action(int which)
{
    auto *report = new reportScrn(which, chosenHeaders(which));
    report->show();
    // The report takes this window's place; the start screen stays closed.
    setReturnToStart(false);
    close();
}

bool reportIntroScrn::eventFilter(QObject *watched, QEvent *event)
{
    // Space flips the selected row's check, wherever the row's focus cell is.
    for (int i = 0; i < 3; ++i) {
        if (watched != statsLB[i] || event->type() != QEvent::KeyPress)
            continue;
        if (static_cast<QKeyEvent *>(event)->key() != Qt::Key_Space)
            break;
        qlmListBox *list = statsLB[i];
        const int row = list->selectedRow();
        if (row >= reports::chooser::fixedRows(reports::ReportKind(i)))
            list->setCellCheck(row, 0, !list->cellCheck(row, 0));
        return true;
    }
    return ScreenBase::eventFilter(watched, event);
}
