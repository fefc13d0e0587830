#include "seasondata/ui/TransferDataScrn.h"

#include "app/globals.h"
#include "app/myDB.h"
#include "app/myPrefs.h"
#include "app/ui/Form.h"
#include "reports/ui/qlmListBox.h"
#include "seasondata/SeasonTransfer.h"
#include "support/ui/qlmCheckBox.h"

#include <QButtonGroup>
#include <QFormLayout>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPropertyAnimation>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

using seasondata::SeasonTransfer;

namespace {

const QString kTransfer = QStringLiteral("Transfer Teams");
const QString kClose = QStringLiteral("Close");

qlmListBox *teamList(QWidget *parent, const QString &name, const QString &heading)
{
    auto *list = form::named(new qlmListBox(parent), name, heading.trimmed());
    list->setColumnCount(1);
    list->setHeadings({heading});
    return list;
}

} // namespace

TransferDataScrn::TransferDataScrn(QWidget *parent)
    : ScreenBase(ScreenId::TransferDataScrn, QStringLiteral("New Season Screen"), {.returnToStart = false}, parent)
{
    auto *central = new QWidget(this);
    auto *outer = new QVBoxLayout(central);

    // The name and the choice -------------------------------------------------
    auto *top = new QFormLayout;
    form::Rows rows(central, top);
    curSeasonLbl = form::valueLabel(central, QStringLiteral("curSeasonLbl"), QStringLiteral("Current season"));
    top->addRow(QStringLiteral("Current Season:"), curSeasonLbl);
    newNameFld = rows.lineEdit(QStringLiteral("newNameFld"), QStringLiteral("New Season &Name:"));
    outer->addLayout(top);

    newActionBtn = new QButtonGroup(this);
    newActionBtn->setObjectName(QStringLiteral("newActionBtn"));
    emptyRadio = form::named(new QRadioButton(QStringLiteral("Create a new, &empty database"), central),
                             QStringLiteral("newActionBtn0"), QStringLiteral("Create a new, empty database"));
    transferRadio = form::named(new QRadioButton(QStringLiteral("&Transfer team info from season:"), central),
                                QStringLiteral("newActionBtn1"), QStringLiteral("Transfer team info from season"));
    newActionBtn->addButton(emptyRadio, 0);
    newActionBtn->addButton(transferRadio, 1);
    emptyRadio->setChecked(true);
    auto *transferRow = new QHBoxLayout;
    transferRow->addWidget(transferRadio);
    auto *fromSeason = new QLabel(gPrefs ? gPrefs->prSeason : QString(), central);
    fromSeason->setObjectName(QStringLiteral("fromSeasonLbl"));
    transferRow->addWidget(fromSeason);
    transferRow->addStretch(1);
    createBtn = form::button(central, QStringLiteral("createBtn"), QStringLiteral("C&reate"),
                             QStringLiteral("Create the empty season"));
    auto *emptyRow = new QHBoxLayout;
    emptyRow->addWidget(emptyRadio);
    emptyRow->addStretch(1);
    emptyRow->addWidget(createBtn);
    outer->addLayout(emptyRow);
    outer->addLayout(transferRow);

    // The team lists, shown only for a transfer ------------------------------
    teamArea = new QWidget(central);
    teamArea->setObjectName(QStringLiteral("teamArea"));
    // The window's height decides how much of the lists shows, so they can
    // slide in and out with it.
    teamArea->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Ignored);
    auto *lists = new QGridLayout(teamArea);
    lists->setContentsMargins(0, 0, 0, 0);
    fromLB = teamList(teamArea, QStringLiteral("fromLB"), QStringLiteral("Previous Season Teams"));
    toLB = teamList(teamArea, QStringLiteral("toLB"), QStringLiteral(" New Season Teams"));
    addBtn = form::button(teamArea, QStringLiteral("addBtn"), QStringLiteral("&Add >"), QStringLiteral("Add team"));
    addAllBtn = form::button(teamArea, QStringLiteral("addAllBtn"), QStringLiteral("Add A&ll >>"),
                             QStringLiteral("Add all teams"));
    removeBtn = form::button(teamArea, QStringLiteral("removeBtn"), QStringLiteral("< Re&move"),
                             QStringLiteral("Remove team"));
    auto *moves = new QVBoxLayout;
    moves->addStretch(1);
    moves->addWidget(addBtn);
    moves->addWidget(addAllBtn);
    moves->addWidget(removeBtn);
    moves->addStretch(1);
    lists->addWidget(fromLB, 0, 0);
    lists->addLayout(moves, 0, 1);
    lists->addWidget(toLB, 0, 2);
    transInvCheck = form::named(new qlmCheckBox(QStringLiteral("Include Inventory in Transfer"), teamArea),
                                QStringLiteral("transInvCheck"), QStringLiteral("Include Inventory in Transfer"));
    lists->addWidget(transInvCheck, 1, 0, 1, 3);
    TransferBtn = form::button(teamArea, QStringLiteral("TransferBtn"), kTransfer);
    auto *transferButtons = new QHBoxLayout;
    transferButtons->addStretch(1);
    transferButtons->addWidget(TransferBtn);
    lists->addLayout(transferButtons, 2, 0, 1, 3);
    outer->addWidget(teamArea, 1);
    teamArea->hide();

    cancelBtn = form::button(central, QStringLiteral("cancelBtn"), QStringLiteral("Cancel"));
    auto *bottom = new QHBoxLayout;
    bottom->addStretch(1);
    bottom->addWidget(cancelBtn);
    outer->addLayout(bottom);
    setCentralWidget(central);
    setMinimumWidth(560);
    resize(560, sizeHint().height());

    m_resize = new QPropertyAnimation(this, "size", this);
    m_resize->setDuration(kAnimationMs);

    if (gPrefs)
        curSeasonLbl->setText(gPrefs->prSeason);
    if (gData) {
        for (const seasondata::TeamRow &team : seasondata::seasonTeams(*gData))
            fromLB->addRow({team.text}, team.id);
    }
    addBtn->setEnabled(false);
    removeBtn->setEnabled(false);

    // On the choice as made, by click, key or a screen reader's action.
    connect(newActionBtn, &QButtonGroup::idToggled, this, [this](int id, bool checked) {
        if (checked)
            newActionBtn_Action(id);
    });
    connect(createBtn, &QPushButton::clicked, this, [this] {
        if (createNewDB())
            close();
    });
    connect(fromLB, &qlmListBox::rowSelectionChanged, this, [this] { addBtn->setEnabled(fromLB->selectedRow() >= 0); });
    connect(toLB, &qlmListBox::rowSelectionChanged, this, [this] { removeBtn->setEnabled(toLB->selectedRow() >= 0); });
    connect(addBtn, &QPushButton::clicked, this, [this] { moveRow(fromLB, toLB, fromLB->selectedRow()); });
    connect(removeBtn, &QPushButton::clicked, this, [this] { moveRow(toLB, fromLB, toLB->selectedRow()); });
    connect(addAllBtn, &QPushButton::clicked, this, [this] {
        while (fromLB->rowCount() > 0)
            moveRow(fromLB, toLB, 0);
    });
    connect(fromLB, &qlmListBox::rowDoubleClicked, this, [this](int row) { moveRow(fromLB, toLB, row); });
    connect(toLB, &qlmListBox::rowDoubleClicked, this, [this](int row) { moveRow(toLB, fromLB, row); });
    connect(TransferBtn, &QPushButton::clicked, this, &TransferDataScrn::TransferBtn_Action);
    connect(cancelBtn, &QPushButton::clicked, this, &QWidget::close);
}

void TransferDataScrn::newActionBtn_Action(int index)
{
    const bool lists = index != 0;
    if (lists == teamArea->isVisible() && m_resize->state() != QAbstractAnimation::Running)
        return;
    createBtn->setVisible(!lists);
    m_resize->stop();
    m_resize->disconnect(this);
    const QSize from = size();
    if (!teamArea->isVisible())
        m_collapsedHeight = from.height();
    const QSize to(from.width(), lists ? m_collapsedHeight + kListsHeight : m_collapsedHeight);
    if (lists) {
        teamArea->show();
    } else {
        // Hidden once out of sight, so Tab no longer reaches the lists.
        connect(m_resize, &QPropertyAnimation::finished, this, [this] {
            teamArea->hide();
            // The lists' spacing held the window a little taller than it
            // was: let the layouts forget it, then take the height back.
            centralWidget()->layout()->activate();
            layout()->activate();
            resize(width(), m_collapsedHeight);
        });
    }
    m_resize->setStartValue(from);
    m_resize->setEndValue(to);
    m_resize->start();
}

void TransferDataScrn::moveRow(qlmListBox *from, qlmListBox *to, int row)
{
    if (row < 0 || row >= from->rowCount())
        return;
    to->addRow({from->cell(row, 0)}, from->rowTag(row));
    from->removeRow(row);
    from->setSelectedRow(-1);
    addBtn->setEnabled(fromLB->selectedRow() >= 0);
    removeBtn->setEnabled(toLB->selectedRow() >= 0);
}

bool TransferDataScrn::createNewDB()
{
    return SeasonTransfer::createNewDB(newNameFld->text());
}

void TransferDataScrn::doTransfer()
{
    QStringList ids;
    for (int r = 0; r < toLB->rowCount(); ++r)
        ids.append(toLB->rowTag(r));
    if (!SeasonTransfer::doTransfer(newNameFld->text(), ids, transInvCheck->isChecked()))
        return;
    // Done: the button now only closes, and nothing offers a second transfer.
    TransferBtn->setText(kClose);
    TransferBtn->setAccessibleName(kClose);
    for (QWidget *w :
         {static_cast<QWidget *>(fromLB), static_cast<QWidget *>(toLB), static_cast<QWidget *>(addBtn),
          static_cast<QWidget *>(addAllBtn), static_cast<QWidget *>(removeBtn), static_cast<QWidget *>(transInvCheck),
          static_cast<QWidget *>(newNameFld), static_cast<QWidget *>(emptyRadio), static_cast<QWidget *>(transferRadio),
          static_cast<QWidget *>(createBtn)})
        w->setEnabled(false);
    if (gPrefs)
        curSeasonLbl->setText(gPrefs->prSeason);
}

void TransferDataScrn::TransferBtn_Action()
{
    if (TransferBtn->text() == kClose) {
        close();
        return;
    }
    if (toLB->rowCount() == 0) {
        gMsgBox(QStringLiteral("Please add teams for transferring"));
        return;
    }
    doTransfer();
}
