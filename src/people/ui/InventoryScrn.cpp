#include "people/ui/InventoryScrn.h"

#include "app/FileTypes.h"
#include "app/globals.h"
#include "app/myPrefs.h"
#include "app/ui/Form.h"
#include "app/ui/MainMenuBar.h"
#include "people/ui/PeopleMenus.h"
#include "platform/Services.h"
#include "reports/ui/qlmListBox.h"
#include "support/ui/NumberKeyFilter.h"
#include "support/ui/PlusMinusContainer.h"
#include "support/ui/myInfoBtn.h"

#include <QAction>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QStandardPaths>
#include <QVBoxLayout>

namespace {
constexpr int kHelpTopic = 10;
}

InventoryScrn::InventoryScrn(QWidget *parent)
    : ScreenBase(ScreenId::InventoryScrn, QStringLiteral("Equipment Inventory"), {.backupTimer = true}, parent),
      m_book(*gData)
{
    buildControls();
    installMenus();

    // Opening: the teams with the home team chosen, its pool and players.
    prohibitChange = true;
    for (const people::InventoryChoice &team : m_book.teams())
        selTeamPop->addItem(team.text, team.id);
    const int home = selTeamPop->findData(gPrefs->prHomeTeam);
    selTeamPop->setCurrentIndex(home >= 0 ? home : (selTeamPop->count() > 0 ? 0 : -1));
    prohibitChange = false;
    selTeamPop_Change();
}

InventoryScrn::~InventoryScrn() = default;

void InventoryScrn::buildControls()
{
    auto *central = new QWidget(this);
    auto *outer = new QVBoxLayout(central);

    titleLbl = new QLabel(QStringLiteral("Equipment Inventory"), central);
    titleLbl->setObjectName(QStringLiteral("titleLbl"));
    QFont big = titleLbl->font();
    big.setPointSizeF(big.pointSizeF() * 1.4);
    big.setBold(true);
    titleLbl->setFont(big);
    outer->addWidget(titleLbl);

    auto *columns = new QHBoxLayout;
    outer->addLayout(columns, 1);

    // The team's pool ---------------------------------------------------------
    auto *left = new QVBoxLayout;
    selTeamPop = form::comboBox(central, QStringLiteral("selTeamPop"), QStringLiteral("Team"));
    auto *teamRow = new QHBoxLayout;
    teamRow->addWidget(form::buddyLabel(selTeamPop, QStringLiteral("&Team:"), central));
    teamRow->addWidget(selTeamPop, 1);
    left->addLayout(teamRow);

    teamInvList = form::named(new qlmListBox(central), QStringLiteral("teamInvList"), QStringLiteral("Team inventory"));
    teamInvList->setHeadings(people::InventoryBook::poolHeadings());
    teamInvList->setColumnWidths(QStringLiteral("70,*,90"));
    teamInvList->setColumnAlignment(0, Qt::AlignRight | Qt::AlignVCenter);
    left->addWidget(teamInvList, 1);

    Label1 = new QLabel(QStringLiteral("---- Add New Item ----"), central);
    Label1->setObjectName(QStringLiteral("Label1"));
    Label1->setAlignment(Qt::AlignCenter);
    left->addWidget(Label1);
    const char *fieldNames[] = {"Quantity", "Item", "ID"};
    for (int i = 0; i < 3; ++i) {
        inputFld[i] = form::named(new QLineEdit(central), QStringLiteral("inputFld%1").arg(i),
                                  QStringLiteral("New item's ") + QString::fromLatin1(fieldNames[i]).toLower());
        inputFld[i]->installEventFilter(this);
    }
    inputFld[0]->setPlaceholderText(QStringLiteral("Qty"));
    inputFld[0]->setMaximumWidth(60);
    inputFld[1]->setPlaceholderText(QStringLiteral("Item"));
    inputFld[0]->setToolTip(QStringLiteral("Enter adds the item, or saves the selected one; + and - change the count"));
    // The count may go below 0 as the coach counts down.
    support::NumberKeyFilter::install(inputFld[0], {.floorAtZero = false});
    auto *fields = new QHBoxLayout;
    fields->addWidget(inputFld[0]);
    fields->addWidget(inputFld[1], 1);
    IDLabel = form::buddyLabel(inputFld[2], QStringLiteral("I&D:"), central);
    IDLabel->setObjectName(QStringLiteral("IDLabel"));
    fields->addWidget(IDLabel);
    fields->addWidget(inputFld[2]);
    left->addLayout(fields);

    auto *poolButtons = new QHBoxLayout;
    TeamInvPlusMinus = form::named(new PlusMinusContainer(central), QStringLiteral("TeamInvPlusMinus"),
                                   QStringLiteral("Add or delete a team item"));
    TeamInvPlusMinus->setHalfNames(QStringLiteral("Add the item, or save the selected one"),
                                   QStringLiteral("Delete the selected item"));
    printTeamInvBtn = form::button(central, QStringLiteral("printTeamInvBtn"), QStringLiteral("&Print Team Inventory"));
    poolButtons->addWidget(TeamInvPlusMinus);
    poolButtons->addStretch(1);
    poolButtons->addWidget(printTeamInvBtn);
    left->addLayout(poolButtons);
    columns->addLayout(left, 3);

    // Between the lists ---------------------------------------------------------
    auto *middle = new QVBoxLayout;
    middle->addStretch(1);
    addBtn = form::button(central, QStringLiteral("addBtn"), QStringLiteral("&Assign >"),
                          QStringLiteral("Assign the selected item to the player"));
    RemoveBtn = form::button(central, QStringLiteral("RemoveBtn"), QStringLiteral("< &Return"),
                             QStringLiteral("Return the selected unit to the team inventory"));
    deleteItemBtn = form::button(central, QStringLiteral("deleteItemBtn"), QStringLiteral("D&rop Unit"),
                                 QStringLiteral("Drop the selected unit without returning it"));
    middle->addWidget(addBtn);
    middle->addWidget(RemoveBtn);
    middle->addWidget(deleteItemBtn);
    middle->addStretch(1);
    columns->addLayout(middle);

    // The player's units -------------------------------------------------------
    auto *right = new QVBoxLayout;
    selPlayerPop = form::comboBox(central, QStringLiteral("selPlayerPop"), QStringLiteral("Player"));
    auto *playerRow = new QHBoxLayout;
    playerRow->addWidget(form::buddyLabel(selPlayerPop, QStringLiteral("P&layer:"), central));
    playerRow->addWidget(selPlayerPop, 1);
    right->addLayout(playerRow);
    playerIDFld = form::valueLabel(central, QStringLiteral("playerIDFld"), QStringLiteral("Player number"));
    right->addWidget(playerIDFld);
    IndivList = form::named(new qlmListBox(central), QStringLiteral("IndivList"), QStringLiteral("Player's items"));
    IndivList->setHeadings(people::InventoryBook::heldHeadings());
    IndivList->setColumnWidths(QStringLiteral("*,90"));
    right->addWidget(IndivList, 1);
    printPlayerInvBtn = form::button(central, QStringLiteral("printPlayerInvBtn"),
                                     QStringLiteral("Print Pla&yer Inventory"));
    right->addWidget(printPlayerInvBtn, 0, Qt::AlignRight);
    columns->addLayout(right, 2);

    auto *bottom = new QHBoxLayout;
    helpBtn = form::named(new myInfoBtn(kHelpTopic, central), QStringLiteral("helpBtn"), QStringLiteral("Help"));
    closeBtn = form::button(central, QStringLiteral("closeBtn"), QStringLiteral("&Close"));
    bottom->addWidget(helpBtn);
    bottom->addStretch(1);
    bottom->addWidget(closeBtn);
    outer->addLayout(bottom);
    setCentralWidget(central);
    resize(860, 560);

    addBtn->setEnabled(false);
    RemoveBtn->setEnabled(false);
    deleteItemBtn->setEnabled(false);
    TeamInvPlusMinus->setMinusEnabled(false);

    connect(selTeamPop, &QComboBox::currentIndexChanged, this, [this] {
        if (!prohibitChange)
            selTeamPop_Change();
    });
    connect(selPlayerPop, &QComboBox::currentIndexChanged, this, [this] {
        if (!prohibitChange)
            selPlayerPop_Change();
    });
    connect(teamInvList, &qlmListBox::rowSelectionChanged, this, &InventoryScrn::teamInvList_Change);
    connect(IndivList, &qlmListBox::rowSelectionChanged, this, &InventoryScrn::IndivList_Change);
    connect(TeamInvPlusMinus, &PlusMinusContainer::PlusPressed, this, &InventoryScrn::plusPressed);
    connect(TeamInvPlusMinus, &PlusMinusContainer::MinusPressed, this, &InventoryScrn::minusPressed);
    connect(addBtn, &QPushButton::clicked, this, &InventoryScrn::assignItem);
    connect(RemoveBtn, &QPushButton::clicked, this, &InventoryScrn::returnItem);
    connect(deleteItemBtn, &QPushButton::clicked, this, &InventoryScrn::dropItem);
    connect(printTeamInvBtn, &QPushButton::clicked, this, &InventoryScrn::printTeamInv);
    connect(printPlayerInvBtn, &QPushButton::clicked, this, &InventoryScrn::printPlayerInv);
    connect(closeBtn, &QPushButton::clicked, this, &QWidget::close);
}

void InventoryScrn::installMenus()
{
    installPeopleMenus(
        menus(), QStringLiteral("Print Team Inventory"), [this] { printTeamInv(); }, kHelpTopic);
    menus()->installHandler(QStringLiteral("FileExport"), [this] {
        exportInvItems();
        return true;
    });
    // Importing is this screen's own: its item stands above Export.
    if (auto *fileMenu = menus()->findChild<QMenu *>(QStringLiteral("FileMenu"))) {
        auto *import = new QAction(QStringLiteral("Import Items..."), fileMenu);
        import->setObjectName(QStringLiteral("FileImport"));
        import->setShortcut(QKeySequence(QStringLiteral("Ctrl+Shift+I")));
        fileMenu->insertAction(menus()->item(QStringLiteral("FileExport")), import);
        connect(import, &QAction::triggered, this, &InventoryScrn::importInvItems);
    }
}

void InventoryScrn::selTeamPop_Change()
{
    m_book.selectTeam(selTeamPop->currentData().toString());
    setPlayerPop();
    loadTeamList();
    clearInputFlds();
}

void InventoryScrn::setPlayerPop()
{
    prohibitChange = true;
    selPlayerPop->clear();
    selPlayerPop->addItem(QStringLiteral("Select A Player"), QString());
    for (const people::InventoryChoice &player : m_book.players(m_book.teamID()))
        selPlayerPop->addItem(player.text, player.id);
    selPlayerPop->setCurrentIndex(0);
    prohibitChange = false;
    selPlayerPop_Change();
}

void InventoryScrn::selPlayerPop_Change()
{
    const QString id = selPlayerPop->currentData().toString();
    playerIDFld->setText(id);
    addBtn->setEnabled(selPlayerPop->currentIndex() > 0);
    m_book.selectPlayer(id);
    fillPlayerList();
}

void InventoryScrn::loadTeamList()
{
    prohibitChange = true;
    teamInvList->deleteAllRows();
    for (const people::PoolItem &p : m_book.pool())
        teamInvList->addRow({QString::number(p.quantity), p.item, p.ItemID}, QString::number(p.serial));
    prohibitChange = false;
    teamInvList_Change();
}

void InventoryScrn::fillPlayerList()
{
    IndivList->deleteAllRows();
    for (const people::HeldItem &h : m_book.held())
        IndivList->addRow({h.Item, h.ItemID}, QString::number(h.ctrlNum));
    IndivList_Change();
}

void InventoryScrn::teamInvList_Change()
{
    if (prohibitChange)
        return;
    const int row = teamInvList->selectedRow();
    for (int i = 0; i < 3; ++i)
        inputFld[i]->setText(row >= 0 ? teamInvList->cell(row, i) : QString());
    TeamInvPlusMinus->setMinusEnabled(row >= 0);
}

void InventoryScrn::IndivList_Change()
{
    const bool selected = IndivList->selectedRow() >= 0;
    RemoveBtn->setEnabled(selected);
    deleteItemBtn->setEnabled(selected);
}

void InventoryScrn::clearInputFlds()
{
    for (QLineEdit *f : inputFld)
        f->clear();
    teamInvList->setSelectedRow(-1);
    inputFld[0]->setFocus(Qt::OtherFocusReason);
}

void InventoryScrn::enterItem()
{
    if (m_book.enterItem(teamInvList->selectedRow(), inputFld[0]->text(), inputFld[1]->text(), inputFld[2]->text())) {
        loadTeamList();
        clearInputFlds();
    }
}

void InventoryScrn::plusPressed()
{
    if (inputFld[0]->text().isEmpty())
        return;
    enterItem();
    inputFld[0]->setFocus(Qt::OtherFocusReason);
}

void InventoryScrn::minusPressed()
{
    const int row = teamInvList->selectedRow();
    if (row < 0)
        return;
    m_book.deleteTeamItem(row);
    loadTeamList();
    clearInputFlds();
}

void InventoryScrn::assignItem()
{
    m_book.assign(teamInvList->selectedRow());
    loadTeamList();
    fillPlayerList();
    clearInputFlds();
}

void InventoryScrn::returnItem()
{
    m_book.giveBack(IndivList->selectedRow());
    loadTeamList();
    fillPlayerList();
    clearInputFlds();
}

void InventoryScrn::dropItem()
{
    if (m_book.drop(IndivList->selectedRow()))
        fillPlayerList();
}

void InventoryScrn::printTeamInv()
{
    teamInvList->printMe(selTeamPop->currentText() + QStringLiteral("'s Inventory"), false);
}

void InventoryScrn::printPlayerInv()
{
    IndivList->printMe(selPlayerPop->currentText() + QStringLiteral("'s Inventory"), false);
}

void InventoryScrn::importInvItems()
{
    platform::FileRequest request;
    request.title = QStringLiteral("Select a text file to import");
    request.prompt = QStringLiteral(
        "Select a text file (TSV) containing quantities and items. See HELP for formatting info.");
    request.initialDir = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    request.nameFilters = {FileTypes::pText.nameFilter(), QStringLiteral("Tab-separated text (*.tsv)")};
    const QString path = platform::files().openFile(request);
    if (path.isEmpty())
        return;
    m_book.importInvFile(path);
    loadTeamList();
    clearInputFlds();
}

void InventoryScrn::exportInvItems()
{
    teamInvList->exportMe(selTeamPop->currentText() + QStringLiteral("'s Inventory"));
}

bool InventoryScrn::eventFilter(QObject *watched, QEvent *event)
{
    const auto at = std::find(inputFld.begin(), inputFld.end(), watched);
    if (at != inputFld.end() && event->type() == QEvent::KeyPress) {
        const auto *key = static_cast<QKeyEvent *>(event);
        if (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) {
            enterItem();
            return true;
        }
        // Tab goes round the three fields; Shift+Tab leaves them as usual.
        if (key->key() == Qt::Key_Tab && key->modifiers() == Qt::NoModifier) {
            inputFld[size_t((at - inputFld.begin() + 1) % 3)]->setFocus(Qt::TabFocusReason);
            return true;
        }
    }
    return ScreenBase::eventFilter(watched, event);
}
