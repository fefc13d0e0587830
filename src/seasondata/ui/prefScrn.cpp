#include "seasondata/ui/prefScrn.h"

#include "app/globals.h"
#include "app/myDB.h"
#include "app/myPrefs.h"
#include "app/ui/Form.h"
#include "app/ui/ScreenDirectory.h"
#include "gameday/MinimumPlay.h"
#include "platform/Messages.h"
#include "platform/Services.h"
#include "reports/ui/qlmListBox.h"
#include "seasondata/PrefLists.h"
#include "seasondata/SeasonTransfer.h"
#include "seasondata/ui/UDVStatsScrn.h"
#include "stats/PitchRules.h"
#include "support/ui/PlusMinusContainer.h"
#include "support/ui/qlmCheckBox.h"

#include <QComboBox>
#include <QDir>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

using namespace seasondata;

namespace {

qlmListBox *editableList(QWidget *parent, const QString &name, const QString &spoken, const QStringList &headings)
{
    auto *list = form::named(new qlmListBox(parent), name, spoken);
    list->setColumnCount(int(headings.size()));
    list->setHeadings(headings);
    for (int c = 0; c < int(headings.size()); ++c)
        list->setColumnType(c, qlmListBox::CellType::Editable);
    list->setMinimumHeight(150);
    return list;
}

PlusMinusContainer *plusMinus(QWidget *parent, const QString &name, const QString &what)
{
    auto *pair = form::named(new PlusMinusContainer(parent), name, QStringLiteral("Add or remove ") + what);
    pair->setHalfNames(QStringLiteral("Add ") + what, QStringLiteral("Remove the selected ") + what);
    return pair;
}

// Plus adds an empty row and starts editing it; minus removes the selected row.
void wire(PlusMinusContainer *pair, qlmListBox *list, int columns)
{
    QObject::connect(pair, &PlusMinusContainer::PlusPressed, list, [list, columns] {
        const int row = list->addRow(QStringList(columns, QString()));
        list->setSelectedRow(row);
        list->setFocus();
        list->editCell(row, 0);
    });
    QObject::connect(pair, &PlusMinusContainer::MinusPressed, list, [list] {
        const int row = list->selectedRow();
        if (row < 0)
            return;
        list->removeRow(row);
        list->setSelectedRow(-1);
    });
}

// A button at the left of its form row, at its own width.
QLayout *leftAligned(QWidget *button)
{
    auto *row = new QHBoxLayout;
    row->addWidget(button);
    row->addStretch(1);
    return row;
}

QStringList column(const qlmListBox *list, int c)
{
    QStringList out;
    for (int r = 0; r < list->rowCount(); ++r)
        out.append(list->cell(r, c));
    return out;
}

} // namespace

prefScrn::prefScrn(bool showStartScrn, QWidget *parent)
    : ScreenBase(ScreenId::prefScrn, QStringLiteral("Preferences"), {.returnToStart = showStartScrn}, parent),
      myShowStartScrn(showStartScrn)
{
    buildControls();
    scrnSetup();
}

void prefScrn::buildControls()
{
    auto *central = new QWidget(this);
    auto *outer = new QHBoxLayout(central);

    // Left: logos, game defaults, home team, backups, doors ---------------------
    auto *left = new QVBoxLayout;
    LogoOnStartCheck = form::named(new qlmCheckBox(QStringLiteral("Show Logo On Start Screen?"), central),
                                   QStringLiteral("LogoOnStartCheck"), QStringLiteral("Show Logo On Start Screen"));
    LogoOnReportsCheck = form::named(new qlmCheckBox(QStringLiteral("Show Logo On Reports?"), central),
                                     QStringLiteral("LogoOnReportsCheck"), QStringLiteral("Show Logo On Reports"));
    left->addWidget(LogoOnStartCheck);
    left->addWidget(LogoOnReportsCheck);

    auto *gameForm = new QFormLayout;
    form::Rows rows(central, gameForm);
    InnPerGamePop = rows.comboBox(QStringLiteral("InnPerGamePop"), QStringLiteral("&Innings per Game:"));
    InnPerGamePop->addItems(preflists::inningsRows());
    maxLineupPop = rows.comboBox(QStringLiteral("maxLineupPop"), QStringLiteral("&Line-up Size:"));
    maxLineupPop->addItems(preflists::lineupRows());
    homeTeamPop = rows.comboBox(QStringLiteral("homeTeamPop"), QStringLiteral("&Home Team:"));
    pitchRulesPop = rows.comboBox(QStringLiteral("pitchRulesPop"), QStringLiteral("Pitch &Count Rules:"));
    // A league's minimum play per game; "None" where it has none.
    for (auto [field, name, caption] : {std::tuple{&minInningsFld, "minInningsFld", "Minimum In&nings in Field:"},
                                        std::tuple{&minAtBatsFld, "minAtBatsFld", "Minimum At Ba&ts:"}}) {
        *field = rows.add(QString::fromLatin1(name), QString::fromLatin1(caption), new QSpinBox(central));
        (*field)->setRange(0, 99);
        (*field)->setSpecialValueText(QStringLiteral("None"));
        // The field's text box is what assistive tools reach.
        if (auto *text = (*field)->findChild<QLineEdit *>())
            text->setAccessibleName((*field)->accessibleName());
    }
    backupPop = rows.comboBox(QStringLiteral("backupPop"), QStringLiteral("&Backup Every:"));
    backupPop->addItems(preflists::backupFreqRows());
    backupLocFld = form::valueLabel(central, QStringLiteral("backupLocFld"), QStringLiteral("Backup location"));
    backupLocFld->setWordWrap(true);
    setBULocBtn = form::button(central, QStringLiteral("setBULocBtn"), QStringLiteral("Set &Location..."),
                               QStringLiteral("Set the backup location"));
    // The path takes a row of its own: a long one wraps rather than hides.
    gameForm->addRow(QStringLiteral("Backup Location:"), backupLocFld);
    rows.addRow(QString(), leftAligned(setBULocBtn), setBULocBtn);
    emailAddrFld = form::valueLabel(central, QStringLiteral("emailAddrFld"), QStringLiteral("Mail user"));
    setEmailBtn = form::button(central, QStringLiteral("setEmailBtn"), QStringLiteral("&Email Settings..."));
    gameForm->addRow(QStringLiteral("Email:"), emailAddrFld);
    rows.addRow(QString(), leftAligned(setEmailBtn), setEmailBtn);
    curSeasonLbl = form::valueLabel(central, QStringLiteral("curSeasonLbl"), QStringLiteral("Current season"));
    showDataBtn = form::button(central, QStringLiteral("showDataBtn"), QStringLiteral("Show &Data Folder"));
    gameForm->addRow(QStringLiteral("Current Season:"), curSeasonLbl);
    rows.addRow(QString(), leftAligned(showDataBtn), showDataBtn);
    left->addLayout(gameForm);
    setUDVBtn = form::button(central, QStringLiteral("setUDVBtn"), QStringLiteral("&User-Defined Stats..."));
    left->addWidget(setUDVBtn, 0, Qt::AlignLeft);
    left->addStretch(1);
    outer->addLayout(left, 1);

    // Right: the two lists ------------------------------------------------------
    auto *right = new QVBoxLayout;
    auto *posLabel = new QLabel(QStringLiteral("&Positions:"), central);
    PositionLB = editableList(central, QStringLiteral("PositionLB"), QStringLiteral("Positions"),
                              {QStringLiteral("Abbrev."), QStringLiteral("Position")});
    PositionLB->setColumnWidths(QStringLiteral("30%,70%"));
    posLabel->setBuddy(PositionLB);
    PlusMinusPositions = plusMinus(central, QStringLiteral("PlusMinusPositions"), QStringLiteral("position"));
    auto *gameLabel = new QLabel(QStringLiteral("&Game Types:"), central);
    gameTypeLB = editableList(central, QStringLiteral("gameTypeLB"), QStringLiteral("Game Types"),
                              {QStringLiteral("Game Type")});
    gameLabel->setBuddy(gameTypeLB);
    plusMinusGames = plusMinus(central, QStringLiteral("plusMinusGames"), QStringLiteral("game type"));
    right->addWidget(posLabel);
    right->addWidget(PositionLB, 3);
    right->addWidget(PlusMinusPositions);
    right->addWidget(gameLabel);
    right->addWidget(gameTypeLB, 2);
    right->addWidget(plusMinusGames);
    prefsavebutton = form::button(central, QStringLiteral("prefsavebutton"), QStringLiteral("&Save"));
    right->addWidget(prefsavebutton, 0, Qt::AlignRight);
    outer->addLayout(right, 1);
    setCentralWidget(central);
    resize(760, 520);

    wire(PlusMinusPositions, PositionLB, 2);
    wire(plusMinusGames, gameTypeLB, 1);
    // Tab in a position's cell goes to the other cell of the same row.
    PositionLB->setCellKeyHandler([this](int row, int col, QKeyEvent *event) {
        if (event->key() != Qt::Key_Tab && event->key() != Qt::Key_Backtab)
            return false;
        PositionLB->editCell(row, 1 - col);
        return true;
    });

    connect(homeTeamPop, &QComboBox::activated, this, [this](int row) {
        if (row < 0 || row >= teamIDNums.size() || !gPrefs)
            return;
        gPrefs->prHomeTeam = teamIDNums.at(row);
        // A choice of the coach's survives a restart.
        gPrefs->prefsDirty = true;
    });
    // Kept in the season's data folder beside the sets, not in the
    // preference file; like the home team it holds at once.
    connect(pitchRulesPop, &QComboBox::activated, this, [this](int row) {
        if (row >= 0 && gPrefs)
            stats::pitchrules::setChosenFile(gPrefs->strdDataLoc, pitchRulesPop->itemData(row).toString());
    });
    connect(InnPerGamePop, &QComboBox::currentTextChanged, this,
            [this](const QString &text) { SelectedInnings = preflists::leadingNumber(text); });
    connect(setBULocBtn, &QPushButton::clicked, this, [this] {
        if (gPrefs)
            gPrefs->getUserBUFolder();
        showBackupLocation();
    });
    setEmailBtn->setEnabled(screens::has(ScreenId::emailInfoScrn));
    connect(setEmailBtn, &QPushButton::clicked, this, &prefScrn::openEmailInfo);
    connect(setUDVBtn, &QPushButton::clicked, this, &prefScrn::openUDVStats);
    connect(showDataBtn, &QPushButton::clicked, this, [] {
        if (gPrefs)
            platform::files().revealInFileBrowser(gPrefs->strdDataLoc);
    });
    connect(prefsavebutton, &QPushButton::clicked, this, [this] {
        setValues();
        close();
    });
}

void prefScrn::scrnSetup()
{
    if (!gPrefs)
        return;
    LogoOnStartCheck->setChecked(gPrefs->prLogoOnStart);
    LogoOnReportsCheck->setChecked(gPrefs->prLogoOnReport);
    fillHomeTeamPop();
    InnPerGamePop->setCurrentIndex(InnPerGamePop->findText(gPrefs->prInnings, Qt::MatchExactly));
    maxLineupPop->setCurrentIndex(maxLineupPop->findText(gPrefs->prLineUp, Qt::MatchExactly));
    homeTeamPop->setCurrentIndex(int(teamIDNums.indexOf(gPrefs->prHomeTeam)));
    fillPitchRulesPop();
    const gameday::MinimumPlay minimum = gameday::MinimumPlay::load(gPrefs->strdDataLoc);
    minInningsFld->setValue(minimum.innings);
    minAtBatsFld->setValue(minimum.atBats);
    FillPositionLB();
    fillGameTypeLB();
    showBackupLocation();
    backupPop->setCurrentIndex(preflists::backupFreqRow(gPrefs->prBackupFreq));
    emailAddrFld->setText(gPrefs->prEmailUser);
    curSeasonLbl->setText(gPrefs->prSeason);
}

void prefScrn::showBackupLocation()
{
    const QString folder = gPrefs ? parseGSI(gPrefs->prDataBackupLoc) : QString();
    backupLocFld->setText(folder.isEmpty() ? QStringLiteral("Not set") : QDir::toNativeSeparators(folder));
}

void prefScrn::fillHomeTeamPop()
{
    homeTeamPop->clear();
    teamIDNums.clear();
    if (!gData)
        return;
    for (const TeamRow &team : seasonTeams(*gData)) {
        homeTeamPop->addItem(team.text);
        teamIDNums.append(team.id);
    }
}

void prefScrn::fillPitchRulesPop()
{
    pitchRulesPop->clear();
    stats::pitchrules::copyShipped(gPrefs->strdDataLoc);
    for (const auto &[file, name] : stats::pitchrules::available(gPrefs->strdDataLoc))
        pitchRulesPop->addItem(name, file);
    pitchRulesPop->setCurrentIndex(pitchRulesPop->findData(stats::pitchrules::chosenFile(gPrefs->strdDataLoc)));
}

void prefScrn::FillPositionLB()
{
    PositionLB->deleteAllRows();
    for (const QStringList &row : preflists::positionRows(gPrefs->prAbbrevPos, gPrefs->prPositions))
        PositionLB->addRow(row);
    // Lists of different lengths are shown line by line, and the coach is
    // told which lines lack a half, so that he can mend them.
    const QList<int> unpaired = preflists::unpairedPositionLines(gPrefs->prAbbrevPos, gPrefs->prPositions);
    if (unpaired.isEmpty())
        return;
    QStringList lines;
    for (const int line : unpaired)
        lines.append(QString::number(line));
    const bool namesShort = gPrefs->prAbbrevPos.count(u',') > gPrefs->prPositions.count(u',');
    gShowMsgDlog(QStringLiteral("The positions' abbreviations and names don't match."),
                 (unpaired.size() == 1 ? QStringLiteral("Line ") : QStringLiteral("Lines ")) +
                     lines.join(QStringLiteral(", ")) +
                     (namesShort ? QStringLiteral(" have an abbreviation but no name.")
                                 : QStringLiteral(" have a name but no abbreviation.")) +
                     QStringLiteral(" Fill in the missing halves and save."),
                 QStringLiteral("OK"));
}

bool prefScrn::listsChanged() const
{
    if (!gPrefs)
        return false;
    QList<QStringList> rows;
    for (int r = 0; r < PositionLB->rowCount(); ++r)
        rows.append(PositionLB->rowCells(r));
    return preflists::joinPositions(rows) != std::pair(gPrefs->prAbbrevPos, gPrefs->prPositions) ||
           preflists::joinGameTypes(column(gameTypeLB, 0)) != gPrefs->prGameTypes;
}

bool prefScrn::mayClose()
{
    if (!listsChanged())
        return true;
    switch (gShowMsgDlog(QStringLiteral("Would you like to save the changes to the preferences?"),
                         QStringLiteral("If you do not save, changes will be lost"), QStringLiteral("Save"),
                         QStringLiteral("Don't Save"))) {
    case platform::MsgAction:
        setValues();
        return true;
    case platform::MsgAlternate:
        return true;
    default:
        return false;
    }
}

void prefScrn::fillGameTypeLB()
{
    gameTypeLB->deleteAllRows();
    for (const QString &type : preflists::gameTypeRows(gPrefs->prGameTypes))
        gameTypeLB->addRow({type});
}

void prefScrn::setPositions()
{
    QList<QStringList> rows;
    for (int r = 0; r < PositionLB->rowCount(); ++r)
        rows.append(PositionLB->rowCells(r));
    std::tie(gPrefs->prAbbrevPos, gPrefs->prPositions) = preflists::joinPositions(rows);
}

void prefScrn::setGameTypes()
{
    gPrefs->prGameTypes = preflists::joinGameTypes(column(gameTypeLB, 0));
}

void prefScrn::setValues()
{
    if (!gPrefs)
        return;
    gPrefs->prLogoOnStart = LogoOnStartCheck->isChecked();
    gPrefs->prLogoOnReport = LogoOnReportsCheck->isChecked();
    gPrefs->prInnings = InnPerGamePop->currentText();
    gPrefs->prLineUp = maxLineupPop->currentText();
    setPositions();
    setGameTypes();
    gPrefs->prBackupFreq = preflists::backupFreqValue(backupPop->currentIndex());
    gPrefs->writePrefs();
    const gameday::MinimumPlay minimum{minInningsFld->value(), minAtBatsFld->value()};
    if (minimum != gameday::MinimumPlay::load(gPrefs->strdDataLoc) && !minimum.save(gPrefs->strdDataLoc))
        gMsgBox(QStringLiteral("The minimum play setting couldn't be saved in the data folder."));
}

void prefScrn::keyPressEvent(QKeyEvent *event)
{
    // Return or Enter leaves without saving; on a button it presses that
    // button, so Return on Save saves.
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        event->accept();
        if (auto *button = qobject_cast<QPushButton *>(focusWidget()); button && button->isEnabled())
            button->click();
        else
            close();
        return;
    }
    ScreenBase::keyPressEvent(event);
}

void prefScrn::openEmailInfo()
{
    QWidget *mail = screens::create(ScreenId::emailInfoScrn);
    if (!mail)
        return;
    // What the mail settings save shows here when they close.
    connect(mail, &QObject::destroyed, this, [this] {
        if (gPrefs)
            emailAddrFld->setText(gPrefs->prEmailUser);
    });
    mail->show();
}

void prefScrn::openUDVStats()
{
    auto *sheet = new UDVStatsScrn(this);
    sheet->setWindowFlag(Qt::Sheet);
    sheet->setWindowModality(Qt::WindowModal);
    sheet->show();
}
