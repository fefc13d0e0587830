#include "people/ui/teamScrn.h"

#include "app/globals.h"
#include "app/myPrefs.h"
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

namespace {

const QString kAddTeam = QStringLiteral("Add Team");
const QString kEditTeam = QStringLiteral("Edit Team");
constexpr int kHomeColumn = 2;

QImage placeholderLogo()
{
    static const QImage picture(QStringLiteral(":/app/logo_placeholder.png"));
    return picture;
}

QLineEdit *lineEdit(QWidget *parent, const char *name, const QString &accessible)
{
    auto *field = new QLineEdit(parent);
    field->setObjectName(QString::fromLatin1(name));
    field->setAccessibleName(accessible);
    return field;
}

QComboBox *offeredCombo(QWidget *parent, const char *name, const QString &accessible)
{
    auto *box = new QComboBox(parent);
    box->setObjectName(QString::fromLatin1(name));
    box->setAccessibleName(accessible);
    box->setEditable(true);
    // The offered values are suggestions: what is typed stays as typed and
    // only a save adds it to the list.
    box->setInsertPolicy(QComboBox::NoInsert);
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    box->setMinimumContentsLength(14);
    return box;
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
    installMenuHandlers();

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

    // The list of teams -----------------------------------------------------
    auto *left = new QVBoxLayout;
    ListTitle = new qlmLabel(QStringLiteral("The Team List"), central);
    ListTitle->setObjectName(QStringLiteral("ListTitle"));
    teamList = new qlmListBox(central);
    teamList->setObjectName(QStringLiteral("teamList"));
    teamList->setAccessibleName(QStringLiteral("The Team List"));
    teamList->setColumnCount(3);
    teamList->setHeadings({QStringLiteral("School"), QStringLiteral("Team"), QStringLiteral("Home")});
    teamList->setColumnWidths(QStringLiteral("*,*,48"));
    teamList->setColumnAlignment(kHomeColumn, Qt::AlignCenter);
    teamList->setMinimumWidth(320);
    ListTitle->setBuddy(teamList);
    teamListPlusMInus = new PlusMinusContainer(central);
    teamListPlusMInus->setObjectName(QStringLiteral("teamListPlusMInus"));
    teamListPlusMInus->setAccessibleName(QStringLiteral("New or delete team"));
    teamListPlusMInus->setHalfNames(QStringLiteral("New team"), QStringLiteral("Delete the selected team"));

    printBtn = makePrintButton(central,
                               {QStringLiteral("Team List"), QStringLiteral("Selected Team's Data"),
                                QStringLiteral("All Teams' Data")},
                               [this](int kind) { hndlPrint(kind); });

    auto *listButtons = new QHBoxLayout;
    listButtons->addWidget(teamListPlusMInus);
    listButtons->addStretch(1);
    listButtons->addWidget(printBtn);
    left->addWidget(ListTitle);
    left->addWidget(teamList, 1);
    left->addLayout(listButtons);
    outer->addLayout(left, 1);

    // The selected team -----------------------------------------------------
    auto *right = new QVBoxLayout;
    auto *form = new QFormLayout;
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    teamFld = lineEdit(central, "teamFld", QStringLiteral("Team name"));
    schoolFld = lineEdit(central, "schoolFld", QStringLiteral("School"));
    LeagueFld = offeredCombo(central, "LeagueFld", QStringLiteral("League"));
    DivisionFld = offeredCombo(central, "DivisionFld", QStringLiteral("Division"));
    address1Fld = lineEdit(central, "address1Fld", QStringLiteral("Address"));
    address2Fld = lineEdit(central, "address2Fld", QStringLiteral("Address, second line"));
    cityFld = lineEdit(central, "cityFld", QStringLiteral("City"));
    StatePop = new QComboBox(central);
    StatePop->setObjectName(QStringLiteral("StatePop"));
    StatePop->setAccessibleName(QStringLiteral("State"));
    // A first, empty row: a team outside the states has none.
    StatePop->addItem(QString());
    StatePop->addItems(gStateList);
    zipFld = lineEdit(central, "zipFld", QStringLiteral("Zip"));
    phoneFld = new MaskedPhoneField(central);
    phoneFld->setObjectName(QStringLiteral("phoneFld"));
    phoneFld->setAccessibleName(QStringLiteral("Phone"));
    homeFldFld = offeredCombo(central, "homeFldFld", QStringLiteral("Home field"));

    auto addRow = [&](const QString &caption, QWidget *field) {
        auto *label = new QLabel(caption, central);
        label->setBuddy(field);
        form->addRow(label, field);
    };
    addRow(QStringLiteral("&Team Name:"), teamFld);
    addRow(QStringLiteral("S&chool:"), schoolFld);
    addRow(QStringLiteral("&League:"), LeagueFld);
    addRow(QStringLiteral("&Division:"), DivisionFld);
    addRow(QStringLiteral("&Address:"), address1Fld);
    addRow(QStringLiteral("Address &2:"), address2Fld);
    addRow(QStringLiteral("C&ity:"), cityFld);
    auto *stateZip = new QHBoxLayout;
    stateZip->addWidget(StatePop);
    auto *zipLabel = new QLabel(QStringLiteral("&Zip:"), central);
    zipLabel->setBuddy(zipFld);
    stateZip->addWidget(zipLabel);
    stateZip->addWidget(zipFld, 1);
    auto *stateLabel = new QLabel(QStringLiteral("&State:"), central);
    stateLabel->setBuddy(StatePop);
    form->addRow(stateLabel, stateZip);
    addRow(QStringLiteral("&Phone:"), phoneFld);
    addRow(QStringLiteral("&Home Field:"), homeFldFld);

    activeCheck = new qlmCheckBox(QStringLiteral("Active"), central);
    activeCheck->setObjectName(QStringLiteral("activeCheck"));
    activeCheck->setAccessibleName(QStringLiteral("Active"));
    homeTeamBox = new qlmCheckBox(QStringLiteral("Home Team"), central);
    homeTeamBox->setObjectName(QStringLiteral("homeTeamBox"));
    homeTeamBox->setAccessibleName(QStringLiteral("Make this the home team"));
    auto *checks = new QHBoxLayout;
    checks->addWidget(activeCheck);
    checks->addSpacing(16);
    checks->addWidget(homeTeamBox);
    checks->addStretch(1);
    form->addRow(QString(), checks);
    right->addLayout(form);

    auto *logoRow = new QHBoxLayout;
    LogoCvn = new PictureCanvas(placeholderLogo(), central);
    LogoCvn->setObjectName(QStringLiteral("LogoCvn"));
    LogoCvn->setAccessibleName(QStringLiteral("Team logo"));
    LogoCvn->setToolTip(QStringLiteral("Drop a picture here, or add one with +"));
    PlusMinusTeamLogo = new PlusMinusContainer(central);
    PlusMinusTeamLogo->setObjectName(QStringLiteral("PlusMinusTeamLogo"));
    PlusMinusTeamLogo->setAccessibleName(QStringLiteral("Add or remove the logo"));
    PlusMinusTeamLogo->setHalfNames(QStringLiteral("Add a logo"), QStringLiteral("Remove the logo"));
    auto *logoSide = new QVBoxLayout;
    auto *logoLabel = new QLabel(QStringLiteral("Logo:"), central);
    logoSide->addWidget(logoLabel);
    logoSide->addWidget(PlusMinusTeamLogo);
    logoSide->addStretch(1);
    teamIDFld = new QLabel(central);
    teamIDFld->setObjectName(QStringLiteral("teamIDFld"));
    teamIDFld->setAccessibleName(QStringLiteral("Team number"));
    teamIDFld->setToolTip(QStringLiteral("The team's number in this season"));
    auto *idRow = new QHBoxLayout;
    auto *idLabel = new QLabel(QStringLiteral("Team ID:"), central);
    idLabel->setBuddy(teamIDFld);
    idRow->addWidget(idLabel);
    idRow->addWidget(teamIDFld);
    idRow->addStretch(1);
    logoSide->addLayout(idRow);
    logoRow->addLayout(logoSide);
    logoRow->addWidget(LogoCvn);
    logoRow->addStretch(1);
    right->addLayout(logoRow);
    right->addStretch(1);

    actionBtn = new QPushButton(kAddTeam, central);
    actionBtn->setObjectName(QStringLiteral("actionBtn"));
    actionBtn->setDefault(true);
    cancelBtn = new QPushButton(QStringLiteral("Close"), central);
    cancelBtn->setObjectName(QStringLiteral("cancelBtn"));
    auto *buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(cancelBtn);
    buttons->addWidget(actionBtn);
    right->addLayout(buttons);
    outer->addLayout(right, 1);
    setCentralWidget(central);
    resize(860, 560);

    // The keyboard order follows the form; the division goes on to the address.
    QWidget::setTabOrder(teamFld, schoolFld);
    QWidget::setTabOrder(schoolFld, LeagueFld);
    QWidget::setTabOrder(LeagueFld, DivisionFld);
    QWidget::setTabOrder(DivisionFld, address1Fld);
    QWidget::setTabOrder(address1Fld, address2Fld);
    QWidget::setTabOrder(address2Fld, cityFld);
    QWidget::setTabOrder(cityFld, StatePop);
    QWidget::setTabOrder(StatePop, zipFld);
    QWidget::setTabOrder(zipFld, phoneFld);
    QWidget::setTabOrder(phoneFld, homeFldFld);
    QWidget::setTabOrder(homeFldFld, activeCheck);
    QWidget::setTabOrder(activeCheck, homeTeamBox);
    QWidget::setTabOrder(homeTeamBox, PlusMinusTeamLogo);
    QWidget::setTabOrder(PlusMinusTeamLogo, cancelBtn);
    QWidget::setTabOrder(cancelBtn, actionBtn);
    QWidget::setTabOrder(actionBtn, teamList);
    QWidget::setTabOrder(teamList, teamListPlusMInus);
    QWidget::setTabOrder(teamListPlusMInus, printBtn);

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

void teamScrn::installMenuHandlers()
{
    installPeopleMenus(menus(), QStringLiteral("Print Team List"), [this] { hndlPrint(0); }, 2);
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
