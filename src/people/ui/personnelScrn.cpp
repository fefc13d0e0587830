#include "people/ui/personnelScrn.h"

#include "app/globals.h"
#include "app/myPrefs.h"
#include "app/ui/MainMenuBar.h"
#include "app/ui/startScrn1.h"
#include "people/PeopleText.h"
#include "people/Pictures.h"
#include "people/ui/PeopleMenus.h"
#include "people/ui/PictureCanvas.h"
#include "people/ui/playerInfoCtr.h"
#include "platform/Services.h"
#include "reports/ui/qlmListBox.h"
#include "support/ui/PlusMinusContainer.h"
#include "support/ui/iPhoneField.h"
#include "support/ui/qlmCheckBox.h"

#include <QAction>
#include <QCloseEvent>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QToolButton>
#include <QVBoxLayout>

using people::MemberKind;
using people::MemberRecord;

namespace {

const QString kAddMember = QStringLiteral("Add Team Member");
const QString kEditMember = QStringLiteral("Edit Team Member");
const QString kTradeTo = QStringLiteral("Trade To...");

QLineEdit *lineEdit(QWidget *parent, const char *name, const QString &accessible)
{
    auto *field = new QLineEdit(parent);
    field->setObjectName(QString::fromLatin1(name));
    field->setAccessibleName(accessible);
    return field;
}

QLabel *buddyLabel(const QString &caption, QWidget *buddy, QWidget *parent)
{
    auto *label = new QLabel(caption, parent);
    label->setBuddy(buddy);
    return label;
}

// Runs `body` with the screen's own filling flag up, so that the lists'
// and fields' signals it causes are neither selections nor edits.
template<typename F>
void filling(people::MemberEditState &state, F body)
{
    const bool before = state.disableChg;
    state.disableChg = true;
    body();
    state.disableChg = before;
}

} // namespace

personnelScrn::personnelScrn(QWidget *parent)
    : ScreenBase(ScreenId::personnelScrn, QStringLiteral("Players and Coaches"), {.backupTimer = true}, parent),
      m_book(std::make_unique<people::RosterBook>(*gData))
{
    buildControls();
    installMenuHandlers();

    fillTeamPopups();
    setPlayerMode(true);
    clearScrn();
}

personnelScrn::~personnelScrn() = default;

void personnelScrn::buildControls()
{
    auto *central = new QWidget(this);
    auto *outer = new QVBoxLayout(central);

    // Mode and team ---------------------------------------------------------
    auto *top = new QHBoxLayout;
    SelectPlayer = new QRadioButton(QStringLiteral("&Players"), central);
    SelectPlayer->setObjectName(QStringLiteral("SelectPlayer"));
    SelectCoach = new QRadioButton(QStringLiteral("C&oaches"), central);
    SelectCoach->setObjectName(QStringLiteral("SelectCoach"));
    SelectPlayer->setChecked(true);
    selectTeamPop = new QComboBox(central);
    selectTeamPop->setObjectName(QStringLiteral("selectTeamPop"));
    selectTeamPop->setAccessibleName(QStringLiteral("Team"));
    selectTeamPop->setMinimumContentsLength(18);
    selectTeamPop->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    teamIDFld = new QLabel(central);
    teamIDFld->setObjectName(QStringLiteral("teamIDFld"));
    teamIDFld->setAccessibleName(QStringLiteral("Team number"));
    teamIDFld->setToolTip(QStringLiteral("The team's number in this season"));
    top->addWidget(SelectPlayer);
    top->addWidget(SelectCoach);
    top->addSpacing(24);
    top->addWidget(buddyLabel(QStringLiteral("&Team:"), selectTeamPop, central));
    top->addWidget(selectTeamPop);
    top->addWidget(teamIDFld);
    top->addStretch(1);
    outer->addLayout(top);

    auto *body = new QHBoxLayout;
    outer->addLayout(body, 1);

    // The lists ---------------------------------------------------------------
    auto *left = new QVBoxLayout;
    playersList = new qlmListBox(central);
    playersList->setObjectName(QStringLiteral("playersList"));
    playersList->setAccessibleName(QStringLiteral("Players"));
    playersList->setColumnCount(3);
    playersList->setHeadings({QStringLiteral("First"), QStringLiteral("Last"), QStringLiteral("Pos")});
    playersList->setColumnWidths(QStringLiteral("*,*,48"));
    coachesList = new qlmListBox(central);
    coachesList->setObjectName(QStringLiteral("coachesList"));
    coachesList->setAccessibleName(QStringLiteral("Coaches"));
    coachesList->setColumnCount(2);
    coachesList->setHeadings({QStringLiteral("First"), QStringLiteral("Last")});
    coachesList->setColumnWidths(QStringLiteral("*,*"));
    coachesList->setMaximumHeight(150);
    PlusMinusPlayers = new PlusMinusContainer(central);
    PlusMinusPlayers->setObjectName(QStringLiteral("PlusMinusPlayers"));
    PlusMinusPlayers->setAccessibleName(QStringLiteral("New or remove player"));
    PlusMinusPlayers->setHalfNames(QStringLiteral("New player"), QStringLiteral("Remove the selected player"));
    PlusMinusCoaches = new PlusMinusContainer(central);
    PlusMinusCoaches->setObjectName(QStringLiteral("PlusMinusCoaches"));
    PlusMinusCoaches->setAccessibleName(QStringLiteral("New or remove coach"));
    PlusMinusCoaches->setHalfNames(QStringLiteral("New coach"), QStringLiteral("Remove the selected coach"));

    printBtn = makePrintButton(central,
                               {QStringLiteral("Player List"), QStringLiteral("Single Player Data"),
                                QStringLiteral("All Players' Data")},
                               [this](int kind) { hndlPrint(kind); });

    left->addWidget(buddyLabel(QStringLiteral("Pla&yers:"), playersList, central));
    left->addWidget(playersList, 3);
    auto *playerButtons = new QHBoxLayout;
    playerButtons->addWidget(PlusMinusPlayers);
    playerButtons->addStretch(1);
    playerButtons->addWidget(printBtn);
    left->addLayout(playerButtons);
    left->addWidget(buddyLabel(QStringLiteral("Coac&hes:"), coachesList, central));
    left->addWidget(coachesList, 1);
    left->addWidget(PlusMinusCoaches);
    body->addLayout(left, 2);

    // The member ----------------------------------------------------------------
    auto *right = new QVBoxLayout;
    auto *upper = new QHBoxLayout;
    auto *grid = new QGridLayout;
    FNameFld = lineEdit(central, "FNameFld", QStringLiteral("First name"));
    LNameFld = lineEdit(central, "LNameFld", QStringLiteral("Last name"));
    addr1Fld = lineEdit(central, "addr1Fld", QStringLiteral("Address"));
    addr2Fld = lineEdit(central, "addr2Fld", QStringLiteral("Address, second line"));
    cityFld = lineEdit(central, "cityFld", QStringLiteral("City"));
    zipFld = lineEdit(central, "zipFld", QStringLiteral("Zip"));
    StatePop = new QComboBox(central);
    StatePop->setObjectName(QStringLiteral("StatePop"));
    StatePop->setAccessibleName(QStringLiteral("State"));
    StatePop->addItem(QString());
    StatePop->addItems(gStateList);
    const QString phoneNames[2] = {QStringLiteral("Phone"), QStringLiteral("Cell phone")};
    for (int i = 0; i < 2; ++i) {
        newPhoneFld[i] = new iPhoneField(central);
        newPhoneFld[i]->setObjectName(QStringLiteral("newPhoneFld_%1").arg(i));
        newPhoneFld[i]->setAccessibleName(phoneNames[i]);
    }
    emailFld = lineEdit(central, "emailFld", QStringLiteral("E-mail"));
    activeCheck = new qlmCheckBox(QStringLiteral("Active"), central);
    activeCheck->setObjectName(QStringLiteral("activeCheck"));
    activeCheck->setAccessibleName(QStringLiteral("Active"));
    asstCheck = new qlmCheckBox(QStringLiteral("Assistant"), central);
    asstCheck->setObjectName(QStringLiteral("asstCheck"));
    asstCheck->setAccessibleName(QStringLiteral("Assistant coach"));

    grid->addWidget(buddyLabel(QStringLiteral("&First:"), FNameFld, central), 0, 0);
    grid->addWidget(FNameFld, 0, 1);
    grid->addWidget(buddyLabel(QStringLiteral("&Last:"), LNameFld, central), 0, 2);
    grid->addWidget(LNameFld, 0, 3, 1, 3);
    grid->addWidget(buddyLabel(QStringLiteral("&Address:"), addr1Fld, central), 1, 0);
    grid->addWidget(addr1Fld, 1, 1, 1, 5);
    grid->addWidget(buddyLabel(QStringLiteral("Address &2:"), addr2Fld, central), 2, 0);
    grid->addWidget(addr2Fld, 2, 1, 1, 5);
    grid->addWidget(buddyLabel(QStringLiteral("C&ity:"), cityFld, central), 3, 0);
    grid->addWidget(cityFld, 3, 1);
    grid->addWidget(buddyLabel(QStringLiteral("&State:"), StatePop, central), 3, 2);
    grid->addWidget(StatePop, 3, 3);
    grid->addWidget(buddyLabel(QStringLiteral("&Zip:"), zipFld, central), 3, 4);
    grid->addWidget(zipFld, 3, 5);
    grid->addWidget(buddyLabel(QStringLiteral("P&hone:"), newPhoneFld[0], central), 4, 0);
    grid->addWidget(newPhoneFld[0], 4, 1);
    grid->addWidget(buddyLabel(QStringLiteral("Ce&ll:"), newPhoneFld[1], central), 4, 2);
    grid->addWidget(newPhoneFld[1], 4, 3, 1, 3);
    grid->addWidget(buddyLabel(QStringLiteral("&E-mail:"), emailFld, central), 5, 0);
    grid->addWidget(emailFld, 5, 1, 1, 5);
    auto *checks = new QHBoxLayout;
    checks->addWidget(activeCheck);
    checks->addSpacing(16);
    checks->addWidget(asstCheck);
    checks->addStretch(1);
    grid->addLayout(checks, 6, 1, 1, 5);
    grid->setColumnStretch(1, 2);
    grid->setColumnStretch(3, 1);
    grid->setColumnStretch(5, 1);
    upper->addLayout(grid, 1);

    auto *photoSide = new QVBoxLayout;
    indivPicCnv = new PictureCanvas(people::genericPicture(), central);
    indivPicCnv->setObjectName(QStringLiteral("indivPicCnv"));
    indivPicCnv->setAccessibleName(QStringLiteral("Photo"));
    indivPicCnv->setToolTip(QStringLiteral("Drop a photo here, or add one with +"));
    indivPicCnv->setFixedSize(129, 150);
    PlusMinusIndivPic = new PlusMinusContainer(central);
    PlusMinusIndivPic->setObjectName(QStringLiteral("PlusMinusIndivPic"));
    PlusMinusIndivPic->setAccessibleName(QStringLiteral("Add or remove the photo"));
    PlusMinusIndivPic->setHalfNames(QStringLiteral("Add a photo"), QStringLiteral("Remove the photo"));
    photoSide->addWidget(indivPicCnv);
    photoSide->addWidget(PlusMinusIndivPic, 0, Qt::AlignHCenter);
    photoSide->addStretch(1);
    upper->addLayout(photoSide);
    right->addLayout(upper);

    myPlayerCtr = new playerInfoCtr(central);
    right->addWidget(myPlayerCtr, 1);

    auto *buttons = new QHBoxLayout;
    tradeToPop = new QComboBox(central);
    tradeToPop->setObjectName(QStringLiteral("tradeToPop"));
    tradeToPop->setAccessibleName(QStringLiteral("Trade to team"));
    tradeToPop->setToolTip(QStringLiteral("Choose a team, then save, to move this member there"));
    actionBtn = new QPushButton(kAddMember, central);
    actionBtn->setObjectName(QStringLiteral("actionBtn"));
    actionBtn->setDefault(true);
    closeBtn = new QPushButton(QStringLiteral("Close"), central);
    closeBtn->setObjectName(QStringLiteral("closeBtn"));
    buttons->addWidget(tradeToPop);
    buttons->addStretch(1);
    buttons->addWidget(closeBtn);
    buttons->addWidget(actionBtn);
    right->addLayout(buttons);
    body->addLayout(right, 5);

    setCentralWidget(central);
    resize(980, 600);

    // Changes the coach makes mark the loaded member changed.
    for (QLineEdit *field : {FNameFld, LNameFld, addr1Fld, addr2Fld, cityFld, zipFld, emailFld})
        connect(field, &QLineEdit::textEdited, this, &personnelScrn::setDirty);
    for (iPhoneField *phone : newPhoneFld)
        connect(phone, &iPhoneField::makeDirty, this, &personnelScrn::setDirty);
    connect(StatePop, &QComboBox::activated, this, &personnelScrn::setDirty);
    connect(tradeToPop, &QComboBox::activated, this, &personnelScrn::setDirty);
    connect(activeCheck, &qlmCheckBox::MouseUp, this, &personnelScrn::setDirty);
    connect(asstCheck, &qlmCheckBox::MouseUp, this, &personnelScrn::setDirty);
    connect(myPlayerCtr, &playerInfoCtr::setDirty, this, &personnelScrn::setDirty);
    connect(indivPicCnv, &PictureCanvas::pictureDropped, this, &personnelScrn::setDirty);

    connect(SelectPlayer, &QRadioButton::toggled, this, [this](bool on) {
        if (!m_state.disableChg)
            modeChosen(on);
    });
    connect(selectTeamPop, &QComboBox::currentIndexChanged, this, [this] {
        if (!m_state.disableChg)
            selectTeamPop_Change();
    });
    connect(playersList, &qlmListBox::rowSelectionChanged, this,
            [this] { listSelectionChanged(MemberKind::Player); });
    connect(coachesList, &qlmListBox::rowSelectionChanged, this,
            [this] { listSelectionChanged(MemberKind::Coach); });
    connect(PlusMinusPlayers, &PlusMinusContainer::PlusPressed, this, [this] {
        if (m_state.needsSaveQuestion())
            askSaveDirty();
        setPlayerMode(true);
        clearScrn();
    });
    connect(PlusMinusCoaches, &PlusMinusContainer::PlusPressed, this, [this] {
        if (m_state.needsSaveQuestion())
            askSaveDirty();
        setPlayerMode(false);
        clearScrn();
    });
    connect(PlusMinusPlayers, &PlusMinusContainer::MinusPressed, this, [this] { removeSelected(MemberKind::Player); });
    connect(PlusMinusCoaches, &PlusMinusContainer::MinusPressed, this, [this] { removeSelected(MemberKind::Coach); });
    connect(PlusMinusIndivPic, &PlusMinusContainer::PlusPressed, this, &personnelScrn::addPhoto);
    connect(PlusMinusIndivPic, &PlusMinusContainer::MinusPressed, this, [this] {
        indivPicCnv->clearPicture();
        setDirty();
    });
    connect(actionBtn, &QPushButton::clicked, this, &personnelScrn::actionBtn_Action);
    connect(closeBtn, &QPushButton::clicked, this, &QWidget::close);
}

void personnelScrn::installMenuHandlers()
{
    installPeopleMenus(menus(), QStringLiteral("Print Player List"), [this] { hndlPrint(0); }, 2);
}

void personnelScrn::fillTeamPopups()
{
    filling(m_state, [this] {
        const QList<people::TeamChoice> teams = m_book->teamChoices();
        selectTeamPop->clear();
        tradeToPop->clear();
        tradeToPop->addItem(kTradeTo);
        int home = 0;
        for (const people::TeamChoice &t : teams) {
            if (gPrefs && t.teamID == gPrefs->prHomeTeam)
                home = selectTeamPop->count();
            selectTeamPop->addItem(t.TeamName, t.teamID);
            tradeToPop->addItem(t.TeamName, t.teamID);
        }
        selectTeamPop->setCurrentIndex(teams.isEmpty() ? -1 : home);
        teamIDFld->setText(selectTeamPop->currentData().toString());
    });
    fillLists();
}

void personnelScrn::selectTeamPop_Change()
{
    if (m_state.needsSaveQuestion())
        askSaveDirty();
    clearScrn();
    teamIDFld->setText(selectTeamPop->currentData().toString());
    fillLists();
}

void personnelScrn::fillLists()
{
    filling(m_state, [this] {
        const QString team = teamIDFld->text();
        coachesList->deleteAllRows();
        playersList->deleteAllRows();
        if (team.isEmpty())
            return;
        for (const people::MemberListRow &r : m_book->store().list(MemberKind::Coach, team))
            coachesList->addRow({r.First, r.Last}, r.id);
        for (const people::MemberListRow &r : m_book->store().list(MemberKind::Player, team))
            playersList->addRow({r.First, r.Last, r.Pos1}, r.id);
    });
}

bool personnelScrn::isPlayerMode() const
{
    return SelectPlayer->isChecked();
}

void personnelScrn::setPlayerMode(bool isPlayer)
{
    filling(m_state, [&] {
        SelectPlayer->setChecked(isPlayer);
        SelectCoach->setChecked(!isPlayer);
    });
    myPlayerCtr->setVisible(isPlayer);
    asstCheck->setVisible(!isPlayer);
}

void personnelScrn::modeChosen(bool isPlayer)
{
    if (m_state.needsSaveQuestion())
        askSaveDirty();
    setPlayerMode(isPlayer);
    clearScrn();
}

qlmListBox *personnelScrn::listOf(MemberKind kind) const
{
    return kind == MemberKind::Player ? playersList : coachesList;
}

void personnelScrn::selectMemberRow(MemberKind kind, const QString &id)
{
    qlmListBox *list = listOf(kind);
    filling(m_state, [&] {
        for (int row = 0; row < list->rowCount(); ++row) {
            if (list->rowTag(row) == id) {
                list->setSelectedRow(row);
                return;
            }
        }
        list->setSelectedRow(-1);
    });
}

void personnelScrn::listSelectionChanged(MemberKind kind)
{
    if (m_state.disableChg)
        return;
    qlmListBox *list = listOf(kind);
    const int row = list->selectedRow();
    const QString chosen = row < 0 ? QString() : list->rowTag(row);
    if (m_state.needsSaveQuestion()) {
        // Saving refills the lists, so the new choice is found again after.
        askSaveDirty();
        if (!chosen.isEmpty())
            selectMemberRow(kind, chosen);
    }
    if (list->selectedRow() < 0) {
        if (!listOf(kind == MemberKind::Player ? MemberKind::Coach : MemberKind::Player)->selectedRows().isEmpty())
            return; // the choice moved to the other list
        clearScrn();
        return;
    }
    // One member at a time: a choice in one list clears the other, and the
    // mode follows the list.
    const MemberKind other = kind == MemberKind::Player ? MemberKind::Coach : MemberKind::Player;
    filling(m_state, [&] { listOf(other)->setSelectedRow(-1); });
    setPlayerMode(kind == MemberKind::Player);
    if (kind == MemberKind::Player)
        fillPlayerData(chosen);
    else
        fillCoachData(chosen);
}

void personnelScrn::showMember(const MemberRecord &m)
{
    filling(m_state, [&] {
        FNameFld->setText(m.First);
        LNameFld->setText(m.Last);
        addr1Fld->setText(m.Address);
        addr2Fld->setText(m.Address1);
        cityFld->setText(m.City);
        zipFld->setText(m.Zip);
        setPopUpList(m.State, StatePop);
        newPhoneFld[0]->setText(m.PhoneNumber);
        newPhoneFld[1]->setText(m.CellPhone);
        emailFld->setText(m.Email);
        activeCheck->setValue(m.Active);
        asstCheck->setValue(m.Assistant);
        indivPicCnv->setPicture(m.picture);
        tradeToPop->setCurrentIndex(0);
        if (m.kind == MemberKind::Player)
            myPlayerCtr->showPlayer(m);
        else
            myPlayerCtr->clearFlds();
    });
    m_loadedKind = m.kind;
    m_loadedID = m.id;
    actionBtn->setText(kEditMember);
    m_state.loaded();
}

void personnelScrn::fillPlayerData(const QString &id)
{
    const auto player = m_book->store().member(MemberKind::Player, id);
    if (!player) {
        gMsgBox(QStringLiteral("Error reading the Player's Data"));
        return;
    }
    showMember(*player);
}

void personnelScrn::fillCoachData(const QString &id)
{
    const auto coach = m_book->store().member(MemberKind::Coach, id);
    if (!coach) {
        gMsgBox(QStringLiteral("Error reading the Coach's Data"));
        return;
    }
    showMember(*coach);
}

void personnelScrn::setPopUpList(const QString &text, QComboBox *popup)
{
    popup->setCurrentIndex(std::max(0, popup->findText(text, Qt::MatchExactly)));
}

void personnelScrn::clearScrn()
{
    filling(m_state, [this] {
        for (QLineEdit *field : {FNameFld, LNameFld, addr1Fld, addr2Fld, cityFld, zipFld, emailFld})
            field->clear();
        for (iPhoneField *phone : newPhoneFld)
            phone->clear();
        StatePop->setCurrentIndex(0);
        activeCheck->setValue(true);
        asstCheck->setValue(false);
        indivPicCnv->clearPicture();
        tradeToPop->setCurrentIndex(0);
        myPlayerCtr->clearFlds();
        playersList->setSelectedRow(-1);
        coachesList->setSelectedRow(-1);
    });
    m_loadedID.clear();
    m_state.cleared();
    actionBtn->setText(kAddMember);
    FNameFld->setFocus();
}

void personnelScrn::setDirty()
{
    m_state.setDirty();
}

void personnelScrn::askSaveDirty()
{
    people::RosterBook::askSaveDirty(m_state, [this] { saveLoadedMember(); });
}

void personnelScrn::saveLoadedMember()
{
    if (m_loadedKind == MemberKind::Player)
        editPlayer();
    else
        editCoach();
}

MemberRecord personnelScrn::memberFromFields(MemberKind kind) const
{
    MemberRecord m;
    m.kind = kind;
    m.TeamNum = teamIDFld->text();
    m.First = FNameFld->text();
    m.Last = LNameFld->text();
    m.Address = addr1Fld->text();
    m.Address1 = addr2Fld->text();
    m.City = cityFld->text();
    m.State = StatePop->currentText();
    m.Zip = zipFld->text();
    m.PhoneNumber = newPhoneFld[0]->text();
    m.CellPhone = newPhoneFld[1]->text();
    m.Email = emailFld->text();
    m.Active = activeCheck->value();
    m.picture = indivPicCnv->picture();
    if (kind == MemberKind::Coach)
        m.Assistant = asstCheck->value();
    else
        myPlayerCtr->readInto(m);
    return m;
}

void personnelScrn::actionBtn_Action()
{
    if (actionBtn->text() == kEditMember && !m_loadedID.isEmpty()) {
        saveLoadedMember();
        return;
    }
    if (isPlayerMode())
        addPlayer();
    else
        addCoach();
}

void personnelScrn::addPlayer()
{
    addMember(MemberKind::Player);
}

void personnelScrn::addCoach()
{
    addMember(MemberKind::Coach);
}

void personnelScrn::addMember(MemberKind kind)
{
    if (teamIDFld->text().isEmpty()) {
        gMsgBox(QStringLiteral("Please add a team on the team screen first."));
        return;
    }
    if (m_book->add(memberFromFields(kind)) < 0)
        return;
    fillLists();
    clearScrn();
}

void personnelScrn::editPlayer()
{
    editMember(MemberKind::Player);
}

void personnelScrn::editCoach()
{
    editMember(MemberKind::Coach);
}

void personnelScrn::editMember(MemberKind kind)
{
    MemberRecord m = memberFromFields(kind);
    m.id = m_loadedID;
    const QString tradeTo = tradeToPop->currentIndex() > 0 ? tradeToPop->currentData().toString() : QString();
    if (!m_book->edit(m, tradeTo))
        return;
    // A traded member leaves this team's list here.
    fillLists();
    clearScrn();
}

void personnelScrn::removeSelected(MemberKind kind)
{
    qlmListBox *list = listOf(kind);
    const int row = list->selectedRow();
    if (row < 0)
        return;
    const QString id = list->rowTag(row);
    const QString name = list->cell(row, 0) + u' ' + list->cell(row, 1);
    if (!m_book->askAndRemove(kind, id, name))
        return;
    filling(m_state, [&] { list->removeRow(row); });
    if (m_loadedKind == kind && m_loadedID == id)
        clearScrn();
}

void personnelScrn::addPhoto()
{
    const QImage picture = people::askForPictureFile();
    if (picture.isNull())
        return;
    indivPicCnv->setPicture(picture);
    setDirty();
}

void personnelScrn::hndlPrint(int kind)
{
    if (kind == 0) {
        playersList->printMe(QStringLiteral("Players"), false);
        return;
    }
    const int row = playersList->selectedRow();
    const QString selected = row < 0 ? QString() : playersList->rowTag(row);
    m_book->hndlPrint(kind, teamIDFld->text(), kind == 1 ? selected : QString());
}

bool personnelScrn::mayClose()
{
    if (m_state.needsSaveQuestion())
        askSaveDirty();
    return true;
}
