#include "people/ui/teamScrn.h"

#include "app/globals.h"
#include "app/myPrefs.h"
#include "app/ui/Form.h"
#include "app/ui/MainMenuBar.h"
#include "app/ui/startScrn1.h"
#include "people/Pictures.h"
#include "people/ui/MaskedPhoneField.h"
#include "people/ui/PeopleMenus.h"
#include "people/ui/PictureCanvas.h"
#include "platform/Services.h"
#include "reports/ui/qlmListBox.h"
#include "support/ui/PlusMinusContainer.h"
#include "support/ui/qlmCheckBox.h"
#include "support/ui/qlmLabel.h"

#include <QAction>
#include <QCloseEvent>
#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

const QString kAddTeam = QStringLiteral("Add Team");
const QString kEditTeam = QStringLiteral("Edit Team");
constexpr int kHomeColumn = 2;

QImage placeholderLogo()
{
    static const QImage picture(QStringLiteral(":/app/logo_placeholder.png"));
    return picture;
}

void setComboText(QComboBox *box, const QString &text)
{
    box->setCurrentIndex(box->findText(text, Qt::MatchExactly));
    box->setEditText(text);
}

} // namespace

teamScrn::teamScrn(QWidget *parent)
    : ScreenBase(ScreenId::teamScrn, QStringLiteral("Teams"), {.backupTimer = true}, parent),
      m_book(std::make_unique<people::TeamBook>(*gData, *gPrefs))
{
    buildControls();
    installPeopleMenus(
        menus(), QStringLiteral("Print Team List"), [this] { hndlPrint(0); }, 2);

    // Opening: the list, the offered values and an empty form.
    loadTeamList();
    getListsForComboBoxes();
    clearScrn();
}

teamScrn::~teamScrn() = default;

void teamScrn::buildControls()
{
    auto *central = new QWidget(this);
    auto *outer = new QHBoxLayout(central);

    // The list of teams
    teamList = qlmListBox::make(central, u"teamList"_s, u"The Team List"_s, {u"School"_s, u"Team"_s, u"Home"_s},
                                u"*,*,48"_s);
    teamList->setColumnAlignment(kHomeColumn, Qt::AlignCenter);
    teamList->setMinimumWidth(320);
    ListTitle = form::make<qlmLabel>(central, u"ListTitle"_s, {}, u"The Team List"_s);
    ListTitle->setBuddy(teamList);
    teamListPlusMInus = form::make<PlusMinusContainer>(central, u"teamListPlusMInus"_s, u"Teams"_s, u"Add team"_s,
                                                       u"Delete team"_s);
    printBtn = form::printButton(central, {u"Team List"_s, u"Selected Team's Data"_s, u"All Teams' Data"_s},
                                 [this](int kind) { hndlPrint(kind); });
    auto *left = new QVBoxLayout;
    left->addWidget(ListTitle);
    left->addWidget(teamList, 1);
    left->addLayout(form::row({teamListPlusMInus, nullptr, printBtn}));
    outer->addLayout(left, 1);

    // The selected team
    auto *fields = new QFormLayout;
    form::Rows rows(central, fields);
    teamFld = rows.lineEdit(u"teamFld"_s, u"&Team Name:"_s);
    schoolFld = rows.lineEdit(u"schoolFld"_s, u"S&chool:"_s);
    LeagueFld = rows.comboBox(u"LeagueFld"_s, u"&League:"_s, form::Editable);
    DivisionFld = rows.comboBox(u"DivisionFld"_s, u"&Division:"_s, form::Editable);
    address1Fld = rows.lineEdit(u"address1Fld"_s, u"&Address:"_s);
    address2Fld = rows.lineEdit(u"address2Fld"_s, u"Address &2:"_s);
    cityFld = rows.lineEdit(u"cityFld"_s, u"C&ity:"_s);
    StatePop = form::comboBox(central, u"StatePop"_s, u"State"_s);
    // A first, empty row: a team outside the states has none.
    StatePop->addItem(QString());
    StatePop->addItems(gStateList);
    zipFld = form::lineEdit(central, u"zipFld"_s, u"Zip"_s);
    auto *stateZip = form::row({StatePop, form::buddyLabel(zipFld, u"&Zip:"_s, central), zipFld});
    stateZip->setStretch(2, 1);
    rows.addRow(u"&State:"_s, stateZip, StatePop);
    phoneFld = rows.add(u"phoneFld"_s, u"&Phone:"_s, new MaskedPhoneField(central));
    homeFldFld = rows.comboBox(u"homeFldFld"_s, u"&Home Field:"_s, form::Editable);
    for (QComboBox *box : {LeagueFld, DivisionFld, homeFldFld}) {
        box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        box->setMinimumContentsLength(14);
    }
    activeCheck = form::make<qlmCheckBox>(central, u"activeCheck"_s, u"Active"_s, u"Active"_s);
    homeTeamBox = form::make<qlmCheckBox>(central, u"homeTeamBox"_s, u"Home Team"_s, u"Home Team"_s);
    fields->addRow(QString(), form::row({activeCheck, homeTeamBox, nullptr}));

    LogoCvn = form::make<PictureCanvas>(central, u"LogoCvn"_s, u"Team logo"_s, placeholderLogo());
    LogoCvn->setToolTip(u"Drop a picture here, or add one with +"_s);
    PlusMinusTeamLogo = form::make<PlusMinusContainer>(central, u"PlusMinusTeamLogo"_s, u"Logo"_s, u"Add logo"_s,
                                                       u"Delete logo"_s);
    teamIDFld = form::valueLabel(central, u"teamIDFld"_s, u"Team number"_s);
    teamIDFld->setToolTip(u"The team's number in this season"_s);
    auto *logoSide = new QVBoxLayout;
    logoSide->addWidget(new QLabel(u"Logo:"_s, central));
    logoSide->addWidget(PlusMinusTeamLogo);
    logoSide->addStretch(1);
    logoSide->addLayout(form::row({form::buddyLabel(teamIDFld, u"Team ID:"_s, central), teamIDFld, nullptr}));
    auto *logoRow = new QHBoxLayout;
    logoRow->addLayout(logoSide);
    logoRow->addWidget(LogoCvn);
    logoRow->addStretch(1);

    actionBtn = form::button(central, u"actionBtn"_s, kAddTeam);
    actionBtn->setDefault(true);
    cancelBtn = form::button(central, u"cancelBtn"_s, u"Close"_s);
    auto *right = new QVBoxLayout;
    right->addLayout(fields);
    right->addLayout(logoRow);
    right->addStretch(1);
    right->addLayout(form::row({nullptr, cancelBtn, actionBtn}));
    outer->addLayout(right, 1);
    setCentralWidget(central);
    resize(860, 560);

    // The keyboard goes through the form first, then to the list.
    QWidget *order[] = {teamFld,   schoolFld, LeagueFld, DivisionFld,       address1Fld, address2Fld, cityFld,
                        StatePop,  zipFld,    phoneFld,  homeFldFld,        activeCheck, homeTeamBox, PlusMinusTeamLogo,
                        cancelBtn, actionBtn, teamList,  teamListPlusMInus, printBtn};
    for (size_t i = 1; i < std::size(order); ++i)
        QWidget::setTabOrder(order[i - 1], order[i]);

    connect(teamList, &qlmListBox::rowSelectionChanged, this, &teamScrn::teamList_selectionChanged);
    connect(teamList, &qlmListBox::cellClicked, this, &teamScrn::teamList_CellClick);
    connect(actionBtn, &QPushButton::clicked, this, &teamScrn::actionBtn_Action);
    connect(cancelBtn, &QPushButton::clicked, this, &QWidget::close);
    connect(teamListPlusMInus, &PlusMinusContainer::PlusPressed, this, [this] {
        clearScrn();
        teamFld->setFocus();
    });
    connect(teamListPlusMInus, &PlusMinusContainer::MinusPressed, this, &teamScrn::deleteSelectedTeam);
    connect(PlusMinusTeamLogo, &PlusMinusContainer::PlusPressed, this, &teamScrn::addLogo);
    connect(PlusMinusTeamLogo, &PlusMinusContainer::MinusPressed, LogoCvn, &PictureCanvas::clearPicture);
}

void teamScrn::loadTeamList()
{
    const QList<people::TeamListRow> rows = m_book->store().listRows();
    if (rows.isEmpty())
        return;
    m_clearing = true;
    teamList->deleteAllRows();
    for (const people::TeamListRow &r : rows)
        teamList->addRow({r.SchoolName, r.TeamName, m_book->isHome(r.teamID) ? QStringLiteral("X") : QString()},
                         r.teamID);
    m_clearing = false;
}

void teamScrn::getListsForComboBoxes()
{
    const struct
    {
        QComboBox *box;
        const char *column;
    } combos[] = {{LeagueFld, "League"}, {DivisionFld, "Division"}, {homeFldFld, "HomeField"}};
    for (const auto &c : combos) {
        const QString typed = c.box->currentText();
        c.box->clear();
        c.box->addItems(m_book->store().distinctValues(QString::fromLatin1(c.column)));
        setComboText(c.box, typed);
    }
}

void teamScrn::updateComboBoxes()
{
    for (QComboBox *box : {LeagueFld, DivisionFld, homeFldFld}) {
        const QString text = box->currentText();
        if (!text.isEmpty() && box->findText(text, Qt::MatchExactly) < 0)
            box->addItem(text);
    }
}

void teamScrn::clearScrn()
{
    m_clearing = true;
    for (QLineEdit *field : {teamFld, schoolFld, address1Fld, address2Fld, cityFld, zipFld})
        field->clear();
    phoneFld->setTypedText(QString());
    for (QComboBox *box : {LeagueFld, DivisionFld, homeFldFld})
        setComboText(box, QString());
    StatePop->setCurrentIndex(0);
    teamIDFld->clear();
    activeCheck->setValue(true);
    homeTeamBox->setValue(false);
    LogoCvn->clearPicture();
    teamList->setSelectedRow(-1);
    actionBtn->setText(kAddTeam);
    teamFld->setFocus();
    m_clearing = false;
}

void teamScrn::getSingleTeamInfo(const QString &id)
{
    const auto team = m_book->store().team(id);
    if (!team) {
        clearScrn();
        return;
    }
    teamFld->setText(team->TeamName);
    schoolFld->setText(team->SchoolName);
    setComboText(LeagueFld, team->League);
    setComboText(DivisionFld, team->Division);
    address1Fld->setText(team->SchoolAddress);
    address2Fld->setText(team->SchoolAddress1);
    cityFld->setText(team->SchoolCity);
    zipFld->setText(team->SchoolZip);
    StatePop->setCurrentIndex(std::max(0, StatePop->findText(team->SchoolState, Qt::MatchExactly)));
    phoneFld->setTypedText(team->Phone);
    setComboText(homeFldFld, team->HomeField);
    activeCheck->setValue(team->Active);
    homeTeamBox->setValue(m_book->isHome(id));
    LogoCvn->setPicture(team->TeamLogo);
    teamIDFld->setText(id);
}

void teamScrn::teamList_selectionChanged()
{
    if (m_clearing)
        return;
    const int row = teamList->selectedRow();
    if (row < 0) {
        clearScrn();
        return;
    }
    getSingleTeamInfo(teamList->rowTag(row));
    actionBtn->setText(kEditTeam);
}

void teamScrn::teamList_CellClick(int row, int column)
{
    // The mark can't be set in the list; the form's box does it.
    if (column == kHomeColumn && row >= 0)
        gMsgBox(people::TeamBook::homeColumnHint());
}

people::TeamRecord teamScrn::teamFromFields() const
{
    people::TeamRecord t;
    t.teamID = actionBtn->text() == kAddTeam ? QString() : teamIDFld->text();
    t.TeamName = teamFld->text();
    t.SchoolName = schoolFld->text();
    t.League = LeagueFld->currentText();
    t.Division = DivisionFld->currentText();
    t.SchoolAddress = address1Fld->text();
    t.SchoolAddress1 = address2Fld->text();
    t.SchoolCity = cityFld->text();
    t.SchoolZip = zipFld->text();
    t.SchoolState = StatePop->currentText();
    t.Phone = phoneFld->typedText();
    t.HomeField = homeFldFld->currentText();
    t.Active = activeCheck->value();
    t.TeamLogo = LogoCvn->picture();
    return t;
}

void teamScrn::actionBtn_Action()
{
    if (actionBtn->text() == kEditTeam && teamIDFld->text().isEmpty())
        return;
    const auto saved = m_book->save(teamFromFields(), homeTeamBox->value());
    if (saved.result == people::TeamBook::Saved::Refused) {
        teamFld->setFocus();
        return;
    }
    if (saved.result == people::TeamBook::Saved::Failed)
        return;
    updateComboBoxes();
    // The whole list again, so a renamed team and a moved home mark show.
    loadTeamList();
    clearScrn();
}

void teamScrn::deleteSelectedTeam()
{
    const int row = teamList->selectedRow();
    if (row < 0)
        return;
    const people::TeamListRow team{teamList->rowTag(row), teamList->cell(row, 0), teamList->cell(row, 1)};
    if (!m_book->askAndDelete(team))
        return;
    m_clearing = true;
    teamList->removeRow(row);
    m_clearing = false;
    clearScrn();
}

void teamScrn::addLogo()
{
    const QImage picture = people::askForPictureFile();
    if (picture.isNull())
        return;
    LogoCvn->setPicture(picture);
}

void teamScrn::hndlPrint(int kind)
{
    if (kind == 0) {
        teamList->printMe(QStringLiteral("All Teams"), false);
        return;
    }
    m_book->hndlPrint(kind, kind == 1 ? teamIDFld->text() : QString(), placeholderLogo());
}

bool teamScrn::mayClose()
{
    return m_book->mayClose();
}
