#include "people/ui/personnelScrn.h"

#include "app/globals.h"
#include "app/myPrefs.h"
#include "app/ui/Form.h"
#include "app/ui/MainMenuBar.h"
#include "app/ui/startScrn1.h"
#include "people/MemberStore.h"
#include "people/PeopleText.h"
#include "people/Pictures.h"
#include "people/RosterCsv.h"
#include "people/ui/PeopleMenus.h"
#include "people/ui/PictureCanvas.h"
#include "people/ui/playerInfoCtr.h"
#include "people/ui/rosterImportDlog.h"
#include "platform/FileDialogs.h"
#include "platform/Services.h"
#include "reports/ListBoxText.h"
#include "reports/ui/qlmListBox.h"
#include "support/ui/PlusMinusContainer.h"
#include "support/ui/iPhoneField.h"
#include "support/ui/qlmCheckBox.h"

#include <QAction>
#include <QCloseEvent>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QSaveFile>
#include <QToolButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;
using people::MemberKind;
using people::MemberRecord;

namespace {

const QString kAddMember = QStringLiteral("Add Team Member");
const QString kEditMember = QStringLiteral("Edit Team Member");
const QString kTradeTo = QStringLiteral("Trade To...");

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
    installPeopleMenus(
        menus(), QStringLiteral("Print Player List"), [this] { hndlPrint(0); }, 3);
    menus()->installHandler(QStringLiteral("FileExport"), [this] {
        exportRoster();
        return true;
    });
    menus()->installHandler(QStringLiteral("FileImportRoster"), [this] {
        importRoster();
        return true;
    });

    fillTeamPopups();
    setPlayerMode(true);
    clearScrn();
}

personnelScrn::~personnelScrn() = default;

void personnelScrn::exportRoster()
{
    const QString team = teamIDFld->text();
    if (team.isEmpty() || !gData)
        return;
    platform::FileRequest request;
    request.title = u"Export Roster"_s;
    request.prompt = u"Choose a location for the team's roster."_s;
    request.suggestedName = selectTeamPop->currentText() + u" Roster.csv"_s;
    request.nameFilters = {u"CSV files (*.csv)"_s};
    request.initialDir = ListBoxText::exportFolder();
    QString path = platform::files().saveFile(request);
    if (path.isEmpty())
        return;
    if (QFileInfo(path).suffix().isEmpty())
        path += u".csv"_s;
    const QByteArray text = people::rosterCsv(people::MemberStore(*gData).players(team));
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && file.write(text) == text.size() && file.commit())
        return;
    gShowMsgDlog(u"The file \""_s + QDir::toNativeSeparators(path) + u"\" couldn't be written."_s, file.errorString(),
                 u"OK"_s);
}

void personnelScrn::importRoster()
{
    const QString team = teamIDFld->text();
    if (team.isEmpty() || !gData)
        return;
    if (m_state.needsSaveQuestion())
        askSaveDirty();
    platform::FileRequest request;
    request.title = u"Import Players"_s;
    request.prompt = u"Choose a CSV file with a heading line and a line per player."_s;
    request.nameFilters = {u"CSV files (*.csv)"_s, u"All files (*)"_s};
    request.initialDir = ListBoxText::exportFolder();
    const QString path = platform::files().openFile(request);
    if (path.isEmpty())
        return;
    const QString shown = u"\""_s + QDir::toNativeSeparators(path) + u"\""_s;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        gShowMsgDlog(u"The file "_s + shown + u" can't be read."_s, file.errorString(), u"OK"_s);
        return;
    }
    const people::RosterImport import = people::RosterImport::read(file.readAll());
    if (!import.problem().isEmpty()) {
        gShowMsgDlog(u"The file "_s + shown + u" can't be imported."_s,
                     import.problem() + u" Nothing was added to the team."_s, u"OK"_s);
        return;
    }
    if (import.players(team).isEmpty()) {
        gShowMsgDlog(u"The file "_s + shown + u" holds no players."_s,
                     u"It needs a heading line, then a line per player."_s, u"OK"_s);
        return;
    }
    rosterImportDlog dialog(import, this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const people::RosterImport::Result result = dialog.import().write(*gData, team);
    if (!result.written)
        return; // the database error has been shown
    fillLists();
    QString explanation;
    if (!result.skipped.isEmpty())
        explanation = u"Already on the team, so left out: "_s + result.skipped.join(u", "_s) + u'.';
    gShowMsgDlog(result.added == 1 ? u"1 player was added."_s
                                   : QString::number(result.added) + u" players were added."_s,
                 explanation, u"OK"_s);
}

void personnelScrn::buildControls()
{
    auto *central = new QWidget(this);
    auto *outer = new QVBoxLayout(central);

    // Mode and team
    SelectPlayer = form::make<QRadioButton>(central, u"SelectPlayer"_s, u"Players"_s, u"&Players"_s);
    SelectCoach = form::make<QRadioButton>(central, u"SelectCoach"_s, u"Coaches"_s, u"C&oaches"_s);
    SelectPlayer->setChecked(true);
    selectTeamPop = form::comboBox(central, u"selectTeamPop"_s, u"Team"_s);
    selectTeamPop->setMinimumContentsLength(18);
    selectTeamPop->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    teamIDFld = form::valueLabel(central, u"teamIDFld"_s, u"Team number"_s);
    teamIDFld->setToolTip(u"The team's number in this season"_s);
    outer->addLayout(form::row({SelectPlayer, SelectCoach, form::buddyLabel(selectTeamPop, u"&Team:"_s, central),
                                selectTeamPop, teamIDFld, nullptr}));
    auto *body = new QHBoxLayout;
    outer->addLayout(body, 1);

    // The lists
    playersList = qlmListBox::make(central, u"playersList"_s, u"Players"_s, {u"First"_s, u"Last"_s, u"Pos"_s},
                                   u"*,*,48"_s);
    coachesList = qlmListBox::make(central, u"coachesList"_s, u"Coaches"_s, {u"First"_s, u"Last"_s}, u"*,*"_s);
    coachesList->setMaximumHeight(150);
    PlusMinusPlayers = form::make<PlusMinusContainer>(central, u"PlusMinusPlayers"_s, u"Players"_s, u"Add player"_s,
                                                      u"Delete player"_s);
    PlusMinusCoaches = form::make<PlusMinusContainer>(central, u"PlusMinusCoaches"_s, u"Coaches"_s, u"Add coach"_s,
                                                      u"Delete coach"_s);
    printBtn = form::printButton(central, {u"Player List"_s, u"Single Player Data"_s, u"All Players' Data"_s},
                                 [this](int kind) { hndlPrint(kind); });
    auto *left = new QVBoxLayout;
    left->addWidget(form::buddyLabel(playersList, u"Pla&yers:"_s, central));
    left->addWidget(playersList, 3);
    left->addLayout(form::row({PlusMinusPlayers, nullptr, printBtn}));
    left->addWidget(form::buddyLabel(coachesList, u"Coac&hes:"_s, central));
    left->addWidget(coachesList, 1);
    left->addWidget(PlusMinusCoaches);
    body->addLayout(left, 2);

    // The member
    form::Grid grid(central, new QGridLayout);
    FNameFld = grid.add(0, 0, u"&First:"_s, form::lineEdit(central, u"FNameFld"_s, u"First name"_s));
    LNameFld = grid.add(0, 2, u"&Last:"_s, form::lineEdit(central, u"LNameFld"_s, u"Last name"_s), 3);
    addr1Fld = grid.add(1, 0, u"&Address:"_s, form::lineEdit(central, u"addr1Fld"_s, u"Address"_s), 5);
    addr2Fld = grid.add(2, 0, u"Address &2:"_s, form::lineEdit(central, u"addr2Fld"_s, u"Address, second line"_s), 5);
    cityFld = grid.add(3, 0, u"C&ity:"_s, form::lineEdit(central, u"cityFld"_s, u"City"_s));
    StatePop = grid.add(3, 2, u"&State:"_s, form::comboBox(central, u"StatePop"_s, u"State"_s));
    StatePop->addItem(QString());
    StatePop->addItems(gStateList);
    zipFld = grid.add(3, 4, u"&Zip:"_s, form::lineEdit(central, u"zipFld"_s, u"Zip"_s));
    newPhoneFld[0] = grid.add(4, 0, u"P&hone:"_s, form::make<iPhoneField>(central, u"newPhoneFld_0"_s, u"Phone"_s));
    newPhoneFld[1] = grid.add(4, 2, u"Ce&ll:"_s, form::make<iPhoneField>(central, u"newPhoneFld_1"_s, u"Cell phone"_s),
                              3);
    emailFld = grid.add(5, 0, u"&E-mail:"_s, form::lineEdit(central, u"emailFld"_s, u"E-mail"_s), 5);
    activeCheck = form::make<qlmCheckBox>(central, u"activeCheck"_s, u"Active"_s, u"Active"_s);
    asstCheck = form::make<qlmCheckBox>(central, u"asstCheck"_s, u"Assistant"_s, u"Assistant"_s);
    grid.layout()->addLayout(form::row({activeCheck, asstCheck, nullptr}), 6, 1, 1, 5);
    for (int column : {1, 3, 5})
        grid.layout()->setColumnStretch(column, column == 1 ? 2 : 1);

    indivPicCnv = form::make<PictureCanvas>(central, u"indivPicCnv"_s, u"Photo"_s, people::genericPicture());
    indivPicCnv->setToolTip(u"Drop a photo here, or add one with +"_s);
    indivPicCnv->setFixedSize(129, 150);
    PlusMinusIndivPic = form::make<PlusMinusContainer>(central, u"PlusMinusIndivPic"_s, u"Photo"_s, u"Add photo"_s,
                                                       u"Delete photo"_s);
    auto *photoSide = new QVBoxLayout;
    photoSide->addWidget(indivPicCnv);
    photoSide->addWidget(PlusMinusIndivPic, 0, Qt::AlignHCenter);
    photoSide->addStretch(1);
    auto *upper = new QHBoxLayout;
    upper->addLayout(grid.layout(), 1);
    upper->addLayout(photoSide);

    myPlayerCtr = new playerInfoCtr(central);
    myPlayerCtr->setObjectName(QStringLiteral("myPlayerCtr"));
    tradeToPop = form::comboBox(central, u"tradeToPop"_s, u"Trade to team"_s);
    tradeToPop->setToolTip(u"Choose a team, then save, to move this member there"_s);
    actionBtn = form::button(central, u"actionBtn"_s, kAddMember);
    actionBtn->setDefault(true);
    closeBtn = form::button(central, u"closeBtn"_s, u"Close"_s);
    auto *right = new QVBoxLayout;
    right->addLayout(upper);
    right->addWidget(myPlayerCtr, 1);
    right->addLayout(form::row({tradeToPop, nullptr, closeBtn, actionBtn}));
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
    connect(playersList, &qlmListBox::rowSelectionChanged, this, [this] { listSelectionChanged(MemberKind::Player); });
    connect(coachesList, &qlmListBox::rowSelectionChanged, this, [this] { listSelectionChanged(MemberKind::Coach); });
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
