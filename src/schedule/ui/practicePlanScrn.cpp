#include "schedule/ui/practicePlanScrn.h"

#include "app/FileTypes.h"
#include "app/globals.h"
#include "app/myPrefs.h"
#include "app/ui/Form.h"
#include "people/ui/PeopleMenus.h"
#include "people/ui/emailRecipientsDlog.h"
#include "platform/Services.h"
#include "reports/ui/qlmListBox.h"
#include "support/MailtoAddress.h"
#include "support/ui/getInfoScrn_small.h"

#include <QComboBox>
#include <QDir>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace {
constexpr int kHelpTopic = 8;
}

practicePlanScrn::practicePlanScrn(const QString &schedID, QWidget *parent)
    : ScreenBase(ScreenId::practicePlanScrn, QStringLiteral("Practice Plan"), {.returnToStart = false}, parent),
      m_plan(*gData, schedID)
{
    buildControls();
    // screenSetup: the practice's date and place, then its drills.
    practDateLabel->setText(m_plan.practDateText());
    practLocLabel->setText(m_plan.practLocText());
    loadData();
}

practicePlanScrn::~practicePlanScrn() = default;

void practicePlanScrn::buildControls()
{
    auto *central = new QWidget(this);
    auto *outer = new QVBoxLayout(central);

    txtprefs = new QLabel(QStringLiteral("Practice Plan"), central);
    txtprefs->setObjectName(QStringLiteral("txtprefs"));
    QFont big = txtprefs->font();
    big.setPointSizeF(big.pointSizeF() * 1.4);
    big.setBold(true);
    txtprefs->setFont(big);
    outer->addWidget(txtprefs);
    practDateLabel = form::valueLabel(central, QStringLiteral("practDateLabel"), QStringLiteral("Practice date"));
    practLocLabel = form::valueLabel(central, QStringLiteral("practLocLabel"), QStringLiteral("Practice location"));
    auto *heading = new QHBoxLayout;
    heading->addWidget(practDateLabel);
    heading->addSpacing(24);
    heading->addWidget(practLocLabel);
    heading->addStretch(1);
    outer->addLayout(heading);

    // The boxes that make a drill ------------------------------------------
    auto *boxes = new QGridLayout;
    activityBox = form::comboBox(central, QStringLiteral("activityBox"), QStringLiteral("Pick activity"),
                                 form::Editable);
    drillBox = form::comboBox(central, QStringLiteral("drillBox"), QStringLiteral("Pick drill"), form::Editable);
    startBox = form::comboBox(central, QStringLiteral("startBox"), QStringLiteral("Start time"), form::Editable);
    endBox = form::comboBox(central, QStringLiteral("endBox"), QStringLiteral("End time"), form::Editable);
    coachBox = form::comboBox(central, QStringLiteral("coachBox"), QStringLiteral("Coach"), form::Editable);
    activityBox->addItems(schedule::PracticePlan::activities());
    activityBox->setCurrentIndex(-1);
    startBox->addItems(schedule::PracticePlan::timeBlocks());
    endBox->addItems(schedule::PracticePlan::timeBlocks());
    coachBox->addItems(m_plan.coaches());
    for (QComboBox *box : {drillBox, startBox, endBox, coachBox}) {
        box->setCurrentIndex(-1);
        box->installEventFilter(this);
    }
    for (QComboBox *box : {activityBox, drillBox, coachBox})
        box->setMinimumContentsLength(16);
    // A field holds one line of at most the plan file's field length, kept
    // so as it is typed, so that every saved plan can be recalled.
    for (QComboBox *box : {drillBox, startBox, endBox, coachBox}) {
        QLineEdit *line = box->lineEdit();
        line->setMaxLength(schedule::PlanFile::kMaxFieldLength);
        box->setToolTip(QStringLiteral("One line of up to %1 characters").arg(schedule::PlanFile::kMaxFieldLength));
        connect(line, &QLineEdit::textEdited, line, [line](const QString &text) {
            const QString fitted = schedule::PlanFile::fitField(text);
            if (fitted != text)
                line->setText(fitted);
        });
    }
    for (QComboBox *box : {startBox, endBox})
        box->setMinimumContentsLength(8);
    boxes->addWidget(form::buddyLabel(activityBox, QStringLiteral("&1 - Pick Activity"), central), 0, 0);
    boxes->addWidget(form::buddyLabel(drillBox, QStringLiteral("&2 - Pick Drill"), central), 0, 1);
    boxes->addWidget(form::buddyLabel(startBox, QStringLiteral("&TIme Blocks"), central), 0, 2, 1, 2);
    boxes->addWidget(form::buddyLabel(coachBox, QStringLiteral("C&oach"), central), 0, 4);
    boxes->addWidget(activityBox, 1, 0);
    boxes->addWidget(drillBox, 1, 1);
    boxes->addWidget(startBox, 1, 2);
    boxes->addWidget(endBox, 1, 3);
    boxes->addWidget(coachBox, 1, 4);
    boxes->setColumnStretch(1, 2);
    boxes->setColumnStretch(4, 1);
    outer->addLayout(boxes);

    drillList = form::named(new qlmListBox(central), QStringLiteral("drillList"), QStringLiteral("Drills"));
    drillList->setHeadings(
        {QStringLiteral("Drill"), QStringLiteral("Start"), QStringLiteral("End"), QStringLiteral("Coach")});
    drillList->setColumnWidths(QStringLiteral("*,90,90,*"));
    drillList->setColumnAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
    drillList->setColumnAlignment(2, Qt::AlignRight | Qt::AlignVCenter);
    // A drill is edited in place (double click, F2) and moved by drag,
    // Ctrl+Up/Down or the move buttons.
    for (int c = 0; c < 4; ++c)
        drillList->setColumnType(c, qlmListBox::CellType::Editable);
    drillList->setRowsMovable(true);
    drillList->setToolTip(QStringLiteral("Double click or F2 edits a drill; Ctrl+Up and Ctrl+Down move it"));
    outer->addWidget(drillList, 1);

    auto *buttons = new QGridLayout;
    addBtn = form::button(central, QStringLiteral("addBtn"), QStringLiteral("&Add Drill"));
    deleteBtn = form::button(central, QStringLiteral("deleteBtn"), QStringLiteral("&Delete Drill"));
    printBtn = form::button(central, QStringLiteral("printBtn"), QStringLiteral("&Print Plan"));
    exportBtn = form::button(central, QStringLiteral("exportBtn"), QStringLiteral("E&xport Plan"));
    exportBtn->setToolTip(QStringLiteral("Save to a text file for use in a word processor program"));
    emailBtn = form::button(central, QStringLiteral("emailBtn"), QStringLiteral("&Email To..."));
    saveBtn = form::button(central, QStringLiteral("saveBtn"), QStringLiteral("&Save Plan"));
    saveBtn->setToolTip(QStringLiteral("Save for future recall"));
    recallBtn = form::button(central, QStringLiteral("recallBtn"), QStringLiteral("&Recall Saved Plan"));
    closeBtn = form::button(central, QStringLiteral("closeBtn"), QStringLiteral("Close Screen"));
    moveUpBtn = form::button(central, QStringLiteral("moveUpBtn"), QStringLiteral("Move &Up"));
    moveDownBtn = form::button(central, QStringLiteral("moveDownBtn"), QStringLiteral("Move Dow&n"));
    buttons->addWidget(addBtn, 0, 0);
    buttons->addWidget(deleteBtn, 0, 1);
    buttons->addWidget(saveBtn, 0, 2);
    buttons->addWidget(recallBtn, 0, 3);
    buttons->addWidget(printBtn, 1, 0);
    buttons->addWidget(exportBtn, 1, 1);
    buttons->addWidget(emailBtn, 1, 2);
    buttons->addWidget(closeBtn, 1, 3);
    buttons->addWidget(moveUpBtn, 0, 4);
    buttons->addWidget(moveDownBtn, 1, 4);
    outer->addLayout(buttons);
    setCentralWidget(central);
    resize(820, 540);
    updateButtons();

    installPeopleMenus(
        menus(), QStringLiteral("Print Plan"), [this] { printPlan(); }, kHelpTopic);

    connect(activityBox, &QComboBox::currentIndexChanged, this, &practicePlanScrn::setDrillBox);
    connect(drillList, &qlmListBox::rowSelectionChanged, this, &practicePlanScrn::updateButtons);
    connect(drillList, &qlmListBox::cellEdited, this, [this](int row, int) { drillEdited(row); });
    connect(drillList, &qlmListBox::rowMoved, this, [this] { storeOrder(); });
    connect(moveUpBtn, &QPushButton::clicked, this, [this] { moveDrill(-1); });
    connect(moveDownBtn, &QPushButton::clicked, this, [this] { moveDrill(1); });
    connect(addBtn, &QPushButton::clicked, this, &practicePlanScrn::addActivity);
    connect(deleteBtn, &QPushButton::clicked, this, &practicePlanScrn::deleteActivity);
    connect(printBtn, &QPushButton::clicked, this, &practicePlanScrn::printPlan);
    connect(exportBtn, &QPushButton::clicked, this, &practicePlanScrn::exportPlan);
    connect(emailBtn, &QPushButton::clicked, this, &practicePlanScrn::emailPlan);
    connect(saveBtn, &QPushButton::clicked, this, &practicePlanScrn::savePlan);
    connect(recallBtn, &QPushButton::clicked, this, &practicePlanScrn::recallPlan);
    connect(closeBtn, &QPushButton::clicked, this, &QWidget::close);
}

void practicePlanScrn::loadData()
{
    for (const schedule::DrillRow &row : m_plan.loadData())
        drillList->addRow(row.cells(), QString::number(row.planID));
}

void practicePlanScrn::setDrillBox()
{
    const int index = activityBox->currentIndex();
    if (index < 0)
        return;
    drillBox->clear();
    drillBox->clearEditText();
    drillBox->addItems(schedule::PracticePlan::drillsFor(index));
    drillBox->setCurrentIndex(-1);
}

void practicePlanScrn::updateButtons()
{
    const int row = drillList->selectedRow();
    deleteBtn->setEnabled(row >= 0);
    moveUpBtn->setEnabled(row > 0);
    moveDownBtn->setEnabled(row >= 0 && row + 1 < drillList->rowCount());
}

void practicePlanScrn::addActivity()
{
    QStringList cells;
    for (QComboBox *box : {drillBox, startBox, endBox, coachBox})
        cells.append(schedule::PlanFile::fitField(box->currentText()));
    const qint64 id = m_plan.addActivity(cells);
    if (id < 0)
        return;
    drillList->addRow(cells, QString::number(id));
    clearFields();
}

void practicePlanScrn::clearFields()
{
    for (QComboBox *box : {activityBox, drillBox, startBox, endBox, coachBox})
        box->clearEditText();
}

void practicePlanScrn::deleteActivity()
{
    const int row = drillList->selectedRow();
    if (row < 0)
        return;
    if (gShowMsgDlog(QStringLiteral("Delete the drill \"%1\"?").arg(drillList->cell(row, 0)),
                     QStringLiteral("It is taken out of this practice's plan."),
                     QStringLiteral("Delete")) != platform::MsgAction)
        return;
    if (!m_plan.deleteActivity(drillList->rowTag(row).toLongLong()))
        return;
    drillList->removeRow(row);
    drillList->setSelectedRow(-1);
    updateButtons();
}

void practicePlanScrn::drillEdited(int row)
{
    QStringList cells;
    for (const QString &cell : drillList->rowCells(row))
        cells.append(schedule::PlanFile::fitField(cell));
    const qint64 id = drillList->rowTag(row).toLongLong();
    if (!m_plan.updateActivity(id, cells)) {
        // Refused: the row shows the drill as stored.
        for (const schedule::DrillRow &stored : m_plan.loadData()) {
            if (stored.planID == id)
                cells = stored.cells();
        }
    }
    for (int c = 0; c < 4; ++c) {
        if (drillList->cell(row, c) != cells.value(c))
            drillList->setCell(row, c, cells.value(c));
    }
}

void practicePlanScrn::moveDrill(int step)
{
    const int from = drillList->selectedRow();
    const int to = from + step;
    if (from < 0 || to < 0 || to >= drillList->rowCount())
        return;
    const QString tag = drillList->rowTag(from);
    const QStringList cells = drillList->rowCells(from);
    drillList->removeRow(from);
    drillList->insertRow(to, cells, tag);
    drillList->setSelectedRow(to);
    storeOrder();
}

void practicePlanScrn::storeOrder()
{
    const QList<qint64> ids = m_plan.reorder(planRows());
    for (int r = 0; r < ids.size(); ++r)
        drillList->setRowTag(r, QString::number(ids.at(r)));
    updateButtons();
}

void practicePlanScrn::printPlan()
{
    drillList->printMe(practDateLabel->text() + QStringLiteral(" : ") + practLocLabel->text(), false);
}

void practicePlanScrn::exportPlan()
{
    drillList->exportMe(practDateLabel->text());
}

void practicePlanScrn::emailPlan()
{
    const QString heading = practDateLabel->text() + u'\n' + practLocLabel->text();
    // The rows' text starts from the heading it is given, so the heading
    // stands twice: once alone, once with the first drill behind it.
    const QString body = heading + u'\n' + drillList->myDataAsString(heading, -1, false);
    const QString recipients = emailRecipientsDlog::getRecipients(this);
    if (recipients.trimmed().isEmpty())
        return;
    platform::urls().openUrl(support::mailtoAddress(recipients.split(u','), QStringLiteral("Practice Plans"), body));
}

QList<QStringList> practicePlanScrn::planRows() const
{
    QList<QStringList> rows;
    for (int r = 0; r < drillList->rowCount(); ++r)
        rows.append(drillList->rowCells(r));
    return rows;
}

QString practicePlanScrn::planFolder()
{
    // The data folder is <application data>/QLM/TLYN2.
    QDir root(gPrefs->strdDataLoc);
    const bool found = !gPrefs->strdDataLoc.isEmpty() && root.cdUp() && root.cdUp();
    return schedule::PracticePlan::planFolder(found ? root.absolutePath() : QString());
}

void practicePlanScrn::savePlan()
{
    const QString folder = planFolder();
    if (folder.isEmpty())
        return;
    getInfoScrn_small ask(this);
    schedule::PracticePlan::savePlan(folder, ask.getMyInfo(), planRows());
}

void practicePlanScrn::recallPlan()
{
    const QString folder = planFolder();
    if (folder.isEmpty())
        return;
    platform::FileRequest request;
    request.title = QStringLiteral("Select a Practice Plan file");
    request.initialDir = folder;
    request.nameFilters = {FileTypes::PlanFile().nameFilter()};
    const QString path = platform::files().openFile(request);
    if (path.isEmpty())
        return;
    const QList<QStringList> rows = schedule::PracticePlan::readPlan(path).rows;
    bool replace = false;
    if (drillList->rowCount() > 0 && !rows.isEmpty()) {
        const std::uint8_t choice = gShowMsgDlog(
            QStringLiteral("This practice already has drills."),
            QStringLiteral("Replace them with the recalled plan, or add the plan's drills after them?"),
            QStringLiteral("Replace"), QStringLiteral("Add"));
        if (choice == platform::MsgCancel)
            return;
        replace = choice == platform::MsgAction;
    }
    const QList<qint64> ids = m_plan.addRecalled(rows, replace);
    if (replace && !ids.isEmpty())
        drillList->deleteAllRows();
    for (int i = 0; i < ids.size(); ++i)
        drillList->addRow(rows.at(i), QString::number(ids.at(i)));
}

bool practicePlanScrn::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress) {
        const auto *key = static_cast<QKeyEvent *>(event);
        if (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) {
            addActivity();
            return true;
        }
        // From the coach the focus goes back to the drill, ready for the next one.
        if (watched == coachBox && key->key() == Qt::Key_Tab && key->modifiers() == Qt::NoModifier) {
            drillBox->setFocus(Qt::TabFocusReason);
            return true;
        }
    }
    return ScreenBase::eventFilter(watched, event);
}
