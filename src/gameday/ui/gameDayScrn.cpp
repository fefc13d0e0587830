#include "gameday/ui/gameDayScrn.h"

#include "app/globals.h"
#include "app/myDB.h"
#include "app/myPrefs.h"
#include "app/ui/Form.h"
#include "app/ui/MainMenuBar.h"
#include "gameday/DefenseBook.h"
#include "gameday/ui/AddPlayersToGameScrn.h"
#include "gameday/ui/BBPlayersLB.h"
#include "gameday/ui/BBScoringLB.h"
#include "gameday/ui/PitchCountBar.h"
#include "gameday/ui/defenseDlog.h"
#include "platform/Printing.h"
#include "platform/Services.h"
#include "reports/ui/qlmListBox.h"
#include "schedule/EventDates.h"
#include "stats/BoxProof.h"
#include "stats/GameStats.h"
#include "stats/RecordGameData.h"
#include "stats/ui/FieldingCtr.h"
#include "stats/ui/battingCtr.h"
#include "stats/ui/finalCheckScrn.h"
#include "stats/ui/pitchingCtr.h"
#include "support/NumberKeyRule.h"
#include "support/ui/NumberKeyFilter.h"
#include "support/ui/PlusMinusContainer.h"
#include "support/ui/pleaseWaitScrn.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QToolButton>
#include <QVBoxLayout>

using gameday::GameDay;

namespace {

QLineEdit *boardBox(QWidget *parent, const QString &name, const QString &spoken)
{
    auto *box = form::named(new QLineEdit(parent), name, spoken);
    box->setReadOnly(true);
    box->setAlignment(Qt::AlignCenter);
    box->setFixedWidth(34);
    return box;
}

} // namespace

gameDayScrn *gameDayScrn::openFor(const QString &schedID)
{
    // One window per game: two would each write their own copy of the card.
    for (QWidget *w : QApplication::topLevelWidgets()) {
        auto *open = qobject_cast<gameDayScrn *>(w);
        // A closed window waiting to be deleted is not open.
        if (open && open->isVisible() && open->m_opened && open->m_game->schedID() == schedID) {
            open->showNormal();
            open->raise();
            open->activateWindow();
            return open;
        }
    }
    return new gameDayScrn(schedID);
}

gameDayScrn::gameDayScrn(const QString &schedID, QWidget *parent)
    : ScreenBase(ScreenId::gameDayScrn, tr("Game Day"), Options{.backupTimer = true, .returnToStart = false}, parent)
{
    auto *central = new QWidget(this);
    auto *outer = new QVBoxLayout(central);
    outer->addLayout(buildTop(central));
    InstrFld = form::valueLabel(central, QStringLiteral("InstrFld"), tr("Instruction"));
    InstrFld->setWordWrap(true);
    outer->addWidget(InstrFld);
    minPlayFld = form::valueLabel(central, QStringLiteral("minPlayFld"), tr("Minimum play"));
    minPlayFld->setWordWrap(true);
    minPlayFld->hide();
    outer->addWidget(minPlayFld);
    auto *middle = new QHBoxLayout;
    middle->addLayout(buildBench(central));
    middle->addWidget(buildGridArea(central), 1);
    outer->addLayout(middle, 1);
    outer->addLayout(buildBottom(central));
    setCentralWidget(central);

    m_game = std::make_unique<GameDay>(*gData, scoreCardLB->grid());
    m_game->errorCounter = [](const QString &game, const QString &team) {
        return stats::GameStatStore(*gData).teamErrors(game, team);
    };
    connectGame();
    connectLineup();
    connectBoardAndPanels();
    pitchCountBar = new PitchCountBar(*gData, *m_game, central);
    pitchCountBar->watchCover({myBatCtr, myFldCtr, myPitchCtr});
    outer->insertWidget(2, pitchCountBar); // under the instruction line
    openGame(schedID);
}

QLayout *gameDayScrn::buildTop(QWidget *central)
{
    auto *top = new QHBoxLayout;
    auto *board = new QGridLayout;
    buildScoreboard(central, board);
    top->addLayout(board);
    auto *facts = new QFormLayout;
    form::Rows rows(central, facts);
    dateFld = form::valueLabel(central, QStringLiteral("dateFld"), tr("Date"));
    fieldFld = form::valueLabel(central, QStringLiteral("fieldFld"), tr("Location"));
    facts->addRow(tr("Date:"), dateFld);
    facts->addRow(tr("Field:"), fieldFld);
    gameTypePop = rows.comboBox(QStringLiteral("gameTypePop"), tr("Game &Type:"));
    gameTypePop->addItem(QStringLiteral("No Selection"));
    if (gPrefs)
        gameTypePop->addItems(gPrefs->prGameTypes.split(u',', Qt::SkipEmptyParts));
    EnterRHE_Btn = new QPushButton(QStringLiteral("OFF"), central);
    EnterRHE_Btn->setCheckable(true);
    rows.add(QStringLiteral("EnterRHE_Btn"), tr("Enter R/H/E ONLY (no AB's)"), EnterRHE_Btn);
    top->addLayout(facts);
    return top;
}

QLayout *gameDayScrn::buildBench(QWidget *central)
{
    auto *benchCol = new QVBoxLayout;
    rosterList = form::named(new qlmListBox(central), QStringLiteral("rosterList"), tr("Roster"));
    rosterList->setColumnCount(3);
    rosterList->setHeadings({QStringLiteral("#"), QStringLiteral("Player"), QStringLiteral("Pos")});
    rosterList->setColumnWidths(QStringLiteral("28,*,36"));
    rosterList->setFixedWidth(200);
    benchCol->addWidget(form::buddyLabel(rosterList, tr("R&oster:"), central));
    benchCol->addWidget(rosterList);
    PlusMinusPlayers = form::named(new PlusMinusContainer(central), QStringLiteral("PlusMinusPlayers"),
                                   tr("Add or remove available players"));
    PlusMinusPlayers->setHalfNames(tr("Add players to the roster"), tr("Remove player from the roster"));
    benchCol->addWidget(PlusMinusPlayers);
    auto *lineupButtons = new QHBoxLayout;
    addBtn = form::button(central, QStringLiteral("addBtn"), tr("&Add"));
    removeBtn = form::button(central, QStringLiteral("removeBtn"), tr("Re&move"));
    replaceBtn = form::button(central, QStringLiteral("replaceBtn"), tr("Re&place"));
    lineupButtons->addWidget(addBtn);
    lineupButtons->addWidget(removeBtn);
    lineupButtons->addWidget(replaceBtn);
    benchCol->addLayout(lineupButtons);
    auto *toggles = new QHBoxLayout;
    UDBatStatsBtn = form::button(central, QStringLiteral("UDBatStatsBtn"), tr("&Batting"), tr("Batting stats"));
    fldStatsBtn = form::button(central, QStringLiteral("fldStatsBtn"), tr("&Fielding"), tr("Fielding stats"));
    pitchStatsBtn = form::button(central, QStringLiteral("pitchStatsBtn"), tr("Pitc&hing"), tr("Pitching stats"));
    for (QPushButton *b : {UDBatStatsBtn, fldStatsBtn, pitchStatsBtn}) {
        b->setCheckable(true);
        b->setEnabled(false);
        toggles->addWidget(b);
    }
    benchCol->addLayout(toggles);
    return benchCol;
}

QWidget *gameDayScrn::buildGridArea(QWidget *central)
{
    m_gridArea = new QWidget(central);
    auto *gridRow = new QHBoxLayout(m_gridArea);
    gridRow->setContentsMargins(0, 0, 0, 0);
    gridRow->setSpacing(2);
    auto *lineupCol = new QVBoxLayout;
    Names_PosLB = new BBPlayersLB(m_gridArea);
    Names_PosLB->setFixedWidth(170);
    lineupCol->addWidget(Names_PosLB);
    LBChangePos = new QWidget(m_gridArea);
    LBChangePos->setObjectName(QStringLiteral("LBChangePos"));
    LBChangePos->setAccessibleName(tr("Batting order"));
    auto *arrows = new QHBoxLayout(LBChangePos);
    arrows->setContentsMargins(0, 0, 0, 0);
    moveUpBtn = new QToolButton(LBChangePos);
    moveUpBtn->setArrowType(Qt::UpArrow);
    form::named(moveUpBtn, QStringLiteral("LBChangePosUp"), tr("Move up in the batting order"));
    moveDownBtn = new QToolButton(LBChangePos);
    moveDownBtn->setArrowType(Qt::DownArrow);
    form::named(moveDownBtn, QStringLiteral("LBChangePosDown"), tr("Move down in the batting order"));
    arrows->addWidget(moveUpBtn);
    arrows->addWidget(moveDownBtn);
    arrows->addStretch();
    LBChangePos->hide();
    lineupCol->addWidget(LBChangePos);
    gridRow->addLayout(lineupCol);
    auto *scroll = new QScrollArea(m_gridArea);
    scroll->setObjectName(QStringLiteral("scoreCardScroll"));
    scoreCardLB = new BBScoringLB(scroll);
    scoreCardLB->setObjectName(QStringLiteral("scoreCardLB"));
    scroll->setWidget(scoreCardLB);
    scroll->setFocusPolicy(Qt::NoFocus);
    gridRow->addWidget(scroll, 1);
    batterStatLB = form::named(new qlmListBox(m_gridArea), QStringLiteral("batterStatLB"),
                               tr("Runs batted in and stolen bases"));
    batterStatLB->setColumnCount(2);
    batterStatLB->setHeadings({QStringLiteral("RBI"), QStringLiteral("SB")});
    batterStatLB->setColumnWidths(QStringLiteral("36,36"));
    batterStatLB->setColumnType(0, ListBoxModel::CellType::Editable);
    batterStatLB->setColumnType(1, ListBoxModel::CellType::Editable);
    batterStatLB->setFixedWidth(84);
    // One click opens a cell; a digit typed on the current cell goes into it.
    batterStatLB->setEditTriggers(QAbstractItemView::CurrentChanged | QAbstractItemView::SelectedClicked |
                                  QAbstractItemView::EditKeyPressed);
    batterStatLB->installEventFilter(this);
    gridRow->addWidget(batterStatLB);
    // Lineup, grid and batter statistics stand row for row.
    const QString rows16 =
        QStringLiteral("QTreeView::item { height: %1px; padding: 0px; }").arg(gameday::ScoreGridRenderer::kRowHeight);
    Names_PosLB->setStyleSheet(rows16);
    batterStatLB->setStyleSheet(rows16);
    myBatCtr = new battingCtr(m_gridArea);
    myFldCtr = new FieldingCtr(m_gridArea);
    myPitchCtr = new pitchingCtr(m_gridArea);
    return m_gridArea;
}

QLayout *gameDayScrn::buildBottom(QWidget *central)
{
    auto *bottom = new QHBoxLayout;
    finalizeBtn = form::button(central, QStringLiteral("finalizeBtn"), tr("Record Game Data"));
    finalizeBtn->hide();
    dataRecordedLabel = form::valueLabel(central, QStringLiteral("dataRecordedLabel"), tr("Recorded"));
    dataRecordedLabel->setText(QStringLiteral("Game data has been recorded"));
    dataRecordedLabel->hide();
    correctGameBtn = form::button(central, QStringLiteral("correctGameBtn"), tr("Correct &Game"),
                                  tr("Take the recorded game back out of the season to correct it"));
    correctGameBtn->hide();
    closeBtn = form::button(central, QStringLiteral("closeBtn"), tr("&Close"));
    defenseBtn = form::button(central, QStringLiteral("defenseBtn"), tr("&Defense"),
                              tr("Who plays where, inning by inning"));
    connect(defenseBtn, &QPushButton::clicked, this, &gameDayScrn::openDefense);
    bottom->addWidget(defenseBtn);
    bottom->addWidget(finalizeBtn);
    bottom->addWidget(dataRecordedLabel);
    bottom->addWidget(correctGameBtn);
    bottom->addStretch();
    bottom->addWidget(closeBtn);
    return bottom;
}

defenseDlog *gameDayScrn::openDefense()
{
    if (!m_defense) {
        m_defense = new defenseDlog(*gData, *m_game, this);
        connect(m_defense, &defenseDlog::defenseChanged, this, &gameDayScrn::showMinimumPlay);
    }
    m_defense->show();
    m_defense->raise();
    m_defense->activateWindow();
    return m_defense;
}

void gameDayScrn::showMinimumPlay()
{
    const gameday::MinimumPlay minimum = gPrefs ? gameday::MinimumPlay::load(gPrefs->strdDataLoc)
                                                : gameday::MinimumPlay();
    const QString line = gameday::DefenseBook(*gData, *m_game).minimumPlayLine(minimum);
    minPlayFld->setText(line);
    minPlayFld->setVisible(!line.isEmpty());
}

void gameDayScrn::connectGame()
{
    connect(m_game.get(), &GameDay::teamShown, this, &gameDayScrn::showTeam);
    connect(m_game.get(), &GameDay::boardChanged, this, &gameDayScrn::showBoard);
    connect(m_game.get(), &GameDay::lineupChanged, this, &gameDayScrn::showLineup);
    connect(m_game.get(), &GameDay::finalizeVisibleChanged, this, &gameDayScrn::showFinalize);
    connect(m_game.get(), &GameDay::selectionChanged, this, &gameDayScrn::showSelection);
    connect(m_game.get(), &GameDay::instructionChanged, this, [this] { InstrFld->setText(m_game->instruction()); });
    for (auto signal : {&GameDay::teamShown, &GameDay::boardChanged, &GameDay::lineupChanged})
        connect(m_game.get(), signal, this, &gameDayScrn::showMinimumPlay);
    connect(m_game.get(), &GameDay::enterRHEChanged, this, [this](bool on) {
        const QSignalBlocker block(EnterRHE_Btn);
        EnterRHE_Btn->setChecked(on);
        EnterRHE_Btn->setText(on ? QStringLiteral("ON") : QStringLiteral("OFF"));
        setReadOnlyFlds(!on);
    });
    connect(m_game.get(), &GameDay::autoFillReturned, this, [this](const gameday::AutoFillData &figures) {
        TeamBtn[size_t(m_game->curSelTeam())]->setChecked(true);
        myPitchCtr->setAutoData(figures);
        placePanels();
        myPitchCtr->show();
        myPitchCtr->setFocus();
    });
    connect(m_game.get(), &GameDay::autoFillAbandoned, this, [this] {
        myPitchCtr->show();
        myPitchCtr->setFocus();
    });
    connect(scoreCardLB, &BBScoringLB::columnAdded, this, [this] { scoreCardLB->adjustSize(); });
    connect(finalizeBtn, &QPushButton::clicked, this, [this] {
        // An open panel saves and closes first; one that won't (a bad
        // innings text) keeps the game from being recorded.
        if (!reinitStatsScrns())
            return;
        stats::recordGameData(*gData, *m_game, [this](const std::array<bool, 4> &checks) {
            finalCheckScrn check(this);
            const gameday::Scoreboard &b = m_game->board();
            check.setScore(m_game->teamInfo(0).name, b.runs[0], m_game->teamInfo(1).name, b.runs[1]);
            check.setBoxProofs(stats::proveBoxScores(m_game->record()),
                               {m_game->teamInfo(0).name, m_game->teamInfo(1).name});
            return check.showMe(checks);
        });
        showFinalize();
    });
    connect(correctGameBtn, &QPushButton::clicked, this, [this] {
        if (stats::correctGameData(*gData, *m_game))
            finalizeBtn->setFocus();
        showFinalize();
    });
}

void gameDayScrn::connectLineup()
{
    connect(addBtn, &QPushButton::clicked, this, [this] { m_game->addPlayerToLineup(rosterList->selectedRow()); });
    connect(removeBtn, &QPushButton::clicked, this, [this] { m_game->removeFromLineup(Names_PosLB->selectedRow()); });
    connect(replaceBtn, &QPushButton::clicked, this,
            [this] { m_game->addReplacementPlayer(rosterList->selectedRow(), Names_PosLB->selectedRow()); });
    auto move = [this](int delta) {
        const int to = m_game->moveLineupRow(Names_PosLB->selectedRow(), delta);
        Names_PosLB->setSelectedRow(to);
    };
    connect(moveUpBtn, &QToolButton::clicked, this, [move] { move(-1); });
    connect(Names_PosLB, &BBPlayersLB::orderKey, this, [move](int delta) { move(delta); });
    connect(moveDownBtn, &QToolButton::clicked, this, [move] { move(+1); });
    connect(PlusMinusPlayers, &PlusMinusContainer::PlusPressed, this,
            [this] { m_game->addBenchPlayers(AddPlayersToGameScrn::getNewPlayers(m_game->teamPlayers(), this)); });
    connect(PlusMinusPlayers, &PlusMinusContainer::MinusPressed, this,
            [this] { m_game->removeBenchPlayer(rosterList->selectedRow()); });
    connect(rosterList, &qlmListBox::rowSelectionChanged, this, [this] { showLineupButtons(); });
    connect(Names_PosLB, &qlmListBox::rowSelectionChanged, this, [this] {
        if (!m_showing)
            rowSelected(Names_PosLB->selectedRow());
    });
    connect(Names_PosLB, &BBPlayersLB::positionEdited, this,
            [this](int row, const QString &pos) { m_game->setLineupPosition(row, pos); });
    connect(batterStatLB, &qlmListBox::cellEdited, this, [this](int row, int column) {
        if (!m_showing)
            m_game->setBatterStat(row, column, batterStatLB->cell(row, column));
    });
    batterStatLB->setCellKeyHandler([this](int row, int column, QKeyEvent *event) {
        bool handled = false;
        batterStatKey(row, column, event, handled);
        return handled;
    });
}

void gameDayScrn::connectBoardAndPanels()
{
    for (int t = 0; t < 2; ++t) {
        connect(TeamBtn[size_t(t)], &QRadioButton::toggled, this, [this, t](bool on) {
            if (on && !m_showing && m_opened && t != m_game->curSelTeam())
                switchToTeam(t);
        });
    }
    connect(EnterRHE_Btn, &QPushButton::toggled, this, [this](bool on) { m_game->setEnterRHE(on); });
    connect(gameTypePop, &QComboBox::currentTextChanged, this, [this](const QString &type) {
        if (!m_showing)
            m_game->setGameType(type);
    });
    connect(UDBatStatsBtn, &QPushButton::toggled, this, [this](bool on) { toggleStats(UDBatStatsBtn, myBatCtr, on); });
    connect(fldStatsBtn, &QPushButton::toggled, this, [this](bool on) { toggleStats(fldStatsBtn, myFldCtr, on); });
    connect(pitchStatsBtn, &QPushButton::toggled, this,
            [this](bool on) { toggleStats(pitchStatsBtn, myPitchCtr, on); });
    for (const auto &[panel, toggle] : panelToggles()) {
        QPushButton *button = toggle;
        connect(panel, &StatPanel::wasClosed, this, [this, button] {
            const QSignalBlocker block(button);
            button->setChecked(false);
            m_game->setCoverOpen(false);
            button->setFocus();
        });
    }
    // The errors box follows every fielding row as it is written; every
    // panel row written is a change Undo can take back.
    connect(myFldCtr, &StatPanel::saved, this, [this] { m_game->recalcErrs(); });
    for (StatPanel *panel : std::initializer_list<StatPanel *>{myBatCtr, myFldCtr, myPitchCtr})
        connect(panel, &StatPanel::saved, m_game.get(), &GameDay::logAppended);
    connect(myPitchCtr, &pitchingCtr::autoFillCalled, this, [this] {
        myPitchCtr->hide();
        pitchCountBar->count().warnIfResting(m_game->selectedPlayerID());
        m_game->startAutoFill();
        scoreCardLB->setFocus();
    });
    connect(closeBtn, &QPushButton::clicked, this, &QWidget::close);
    menus()->installHandler(QStringLiteral("FilePrint"), [this] {
        printLineup();
        return true;
    });
    menus()->item(QStringLiteral("FilePrint"))->setText(QStringLiteral("Print Lineup"));
    connectUndo();
    scoreCardLB->installEventFilter(this);
}

void gameDayScrn::connectUndo()
{
    // Edit > Undo and Redo step through the game's change log; in a text
    // field that has its own typing to undo, they undo that first.
    for (const bool back : {true, false}) {
        const QString name = back ? QStringLiteral("EditUndo") : QStringLiteral("EditRedo");
        menus()->installHandler(name, [this, back] {
            stepChange(back);
            return true;
        });
        menus()->item(name)->setShortcutContext(Qt::WindowShortcut);
        addAction(menus()->item(name));
    }
    connect(m_game.get(), &GameDay::undoChanged, this, &gameDayScrn::showUndo);
}

void gameDayScrn::showUndo()
{
    QAction *undo = menus()->item(QStringLiteral("EditUndo"));
    QAction *redo = menus()->item(QStringLiteral("EditRedo"));
    undo->setText(u'&' + m_game->undoText());
    undo->setEnabled(m_game->canUndo());
    redo->setText(u'&' + m_game->redoText());
    redo->setEnabled(m_game->canRedo());
}

void gameDayScrn::stepChange(bool back)
{
    if (auto *field = qobject_cast<QLineEdit *>(QApplication::focusWidget());
        field && !field->isReadOnly() && (back ? field->isUndoAvailable() : field->isRedoAvailable())) {
        back ? field->undo() : field->redo();
        return;
    }
    // An open panel writes its row and closes first, so what it showed
    // can't be written back over the undone row.
    if (!reinitStatsScrns())
        return;
    if (back)
        m_game->undo();
    else
        m_game->redo();
}

void gameDayScrn::openGame(const QString &schedID)
{
    switchTeamTimer.setSingleShot(true);
    switchTeamTimer.setInterval(1000);
    connect(&switchTeamTimer, &QTimer::timeout, this, [this] {
        m_game->switchTeams();
        m_wait.reset();
    });
    m_wait = std::make_unique<pleaseWaitScrn>(this);
    m_wait->showNow();
    m_opened = m_game->open(schedID);
    if (!m_opened) {
        // The message was shown; nothing to score.
        m_wait.reset();
        QTimer::singleShot(0, this, &QWidget::close);
        return;
    }
    const gameday::GameEvent &event = m_game->gameEvent();
    dateFld->setText(EventDates::shortDate(event.date));
    fieldFld->setText(event.location);
    for (int t = 0; t < 2; ++t) {
        // The board speaks of the teams by name, not as "Team A" and "Team B".
        const QString name = m_game->teamInfo(t).name;
        TeamBtn[size_t(t)]->setText(name);
        TeamBtn[size_t(t)]->setAccessibleName(
            (t == 0 ? tr("Show the card of %1 (batting first)") : tr("Show the card of %1 (batting last)")).arg(name));
        for (int i = 0; i < 10; ++i)
            inningFlds[size_t(t)][size_t(i)]->setAccessibleName(tr("%1 inning %2").arg(name).arg(i + 1));
        runsFld[size_t(t)]->setAccessibleName(tr("%1 runs").arg(name));
        hitsFld[size_t(t)]->setAccessibleName(tr("%1 hits").arg(name));
        errsFld[size_t(t)]->setAccessibleName(tr("%1 errors").arg(name));
        LOBFld[size_t(t)]->setAccessibleName(tr("%1 left on base").arg(name));
    }
    showFinalize();
    switchTeamTimer.start();
    resize(1180, 720);
}

gameDayScrn::~gameDayScrn()
{
    if (m_game) {
        m_game->disconnect(this);
        m_game->cancelAutoFill();
    }
}

std::array<std::pair<StatPanel *, QPushButton *>, 3> gameDayScrn::panelToggles() const
{
    return {{{myBatCtr, UDBatStatsBtn}, {myFldCtr, fldStatsBtn}, {myPitchCtr, pitchStatsBtn}}};
}

void gameDayScrn::switchToTeam(int team)
{
    // Auto-fill ends and an open panel saves and closes first; a panel
    // that won't let go keeps the team on show.
    m_game->cancelAutoFill();
    if (!reinitStatsScrns()) {
        const QSignalBlocker block(TeamBtn[size_t(team)]);
        TeamBtn[size_t(m_game->curSelTeam())]->setChecked(true);
        return;
    }
    m_game->showTeam(team);
}

void gameDayScrn::buildScoreboard(QWidget *central, QGridLayout *board)
{
    board->setHorizontalSpacing(2);
    for (int i = 0; i < 10; ++i) {
        auto *label = new QLabel(QString::number(i + 1), central);
        label->setObjectName(QStringLiteral("InningLabel_%1").arg(i));
        label->setAlignment(Qt::AlignCenter);
        board->addWidget(label, 0, i + 1);
    }
    const QStringList totals = {QStringLiteral("R"), QStringLiteral("H"), QStringLiteral("E"), QStringLiteral("LOB")};
    for (int i = 0; i < 4; ++i) {
        auto *label = new QLabel(totals.at(i), central);
        label->setAlignment(Qt::AlignCenter);
        board->addWidget(label, 0, 12 + i);
    }
    for (int t = 0; t < 2; ++t) {
        const QString team = t == 0 ? QStringLiteral("A") : QStringLiteral("B");
        TeamBtn[size_t(t)] = form::named(new QRadioButton(central), QStringLiteral("TeamBtn_%1").arg(t),
                                         tr("Team %1").arg(team));
        board->addWidget(TeamBtn[size_t(t)], t + 1, 0);
        for (int i = 0; i < 10; ++i) {
            QLineEdit *box = boardBox(central, QStringLiteral("team%1Innings_%2").arg(team).arg(i),
                                      tr("Team %1 inning %2").arg(team).arg(i + 1));
            inningFlds[size_t(t)][size_t(i)] = box;
            board->addWidget(box, t + 1, i + 1);
            connect(box, &QLineEdit::editingFinished, this, [this, t, i, box] {
                if (!box->isReadOnly() && t == m_game->curSelTeam())
                    m_game->setBoardBox(i, box->text());
            });
            box->installEventFilter(this);
        }
        runsFld[size_t(t)] = boardBox(central, QStringLiteral("runsFld_%1").arg(t), tr("Team %1 runs").arg(team));
        hitsFld[size_t(t)] = boardBox(central, QStringLiteral("hitsFld_%1").arg(t), tr("Team %1 hits").arg(team));
        errsFld[size_t(t)] = boardBox(central, QStringLiteral("errsFld_%1").arg(t), tr("Team %1 errors").arg(team));
        LOBFld[size_t(t)] = boardBox(central, QStringLiteral("LOBFld_%1").arg(t), tr("Team %1 left on base").arg(team));
        const std::array<QLineEdit *, 4> boxes = {runsFld[size_t(t)], hitsFld[size_t(t)], errsFld[size_t(t)],
                                                  LOBFld[size_t(t)]};
        for (int i = 0; i < 4; ++i)
            board->addWidget(boxes[size_t(i)], t + 1, 12 + i);
        const std::array<std::pair<QLineEdit *, int>, 3> typed = {{{hitsFld[size_t(t)], GameDay::kHitsBox},
                                                                   {errsFld[size_t(t)], GameDay::kErrsBox},
                                                                   {LOBFld[size_t(t)], GameDay::kLobBox}}};
        for (const auto &[box, which] : typed) {
            QLineEdit *b = box;
            const int w = which;
            connect(b, &QLineEdit::editingFinished, this, [this, t, b, w] {
                if (!b->isReadOnly() && t == m_game->curSelTeam())
                    m_game->setBoardBox(w, b->text());
            });
            b->installEventFilter(this);
        }
    }
}

bool gameDayScrn::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress) {
        auto *key = static_cast<QKeyEvent *>(event);
        // Escape leaves the pitching auto-fill.
        if (watched == scoreCardLB && key->key() == Qt::Key_Escape && m_game->autoFillRunning()) {
            m_game->cancelAutoFill();
            return true;
        }
        // A digit typed on the current RBI or SB cell opens it with that digit.
        if (watched == batterStatLB && !batterStatLB->isEditingCell() && batterStatLB->currentIndex().isValid() &&
            key->text().size() == 1 && key->text().at(0).isDigit()) {
            const QModelIndex at = batterStatLB->currentIndex();
            batterStatLB->editCell(at.row(), at.column());
            if (batterStatLB->isEditingCell()) {
                batterStatLB->setEditorText(key->text());
                return true;
            }
        }
    }
    // A click in a box that can't be typed in beeps.
    if (event->type() == QEvent::MouseButtonPress) {
        if (auto *box = qobject_cast<QLineEdit *>(watched); box && box->isReadOnly())
            gBeep();
    }
    return ScreenBase::eventFilter(watched, event);
}

void gameDayScrn::showTeam()
{
    m_showing = true;
    const QSignalBlocker blockType(gameTypePop);
    gameTypePop->setCurrentText(m_game->gameType());
    TeamBtn[size_t(m_game->curSelTeam())]->setChecked(true);
    showLineup();
    scoreCardLB->adjustSize();
    scoreCardLB->update();
    setReadOnlyFlds(!m_game->enterRHE());
    showLock();
    m_showing = false;
}

void gameDayScrn::showLock()
{
    // A read-only game: everything that would change it is closed; a
    // corrected game opens it all again.
    const bool writable = !m_game->isReadOnly();
    for (QWidget *w :
         std::initializer_list<QWidget *>{PlusMinusPlayers, LBChangePos, EnterRHE_Btn, gameTypePop, batterStatLB})
        w->setEnabled(writable);
    showLineupButtons();
    if (Names_PosLB->editTriggers() != QAbstractItemView::NoEditTriggers)
        m_lineupEditTriggers = int(Names_PosLB->editTriggers());
    Names_PosLB->setEditTriggers(writable ? QAbstractItemView::EditTriggers(m_lineupEditTriggers)
                                          : QAbstractItemView::NoEditTriggers);
}

void gameDayScrn::showLineupButtons()
{
    const bool writable = !m_game->isReadOnly() && !m_game->autoFillRunning();
    const bool any = rosterList->selectedRow() >= 0;
    addBtn->setEnabled(writable && any);
    replaceBtn->setEnabled(writable && any);
    removeBtn->setEnabled(writable && m_game->selectedRow() >= 0);
}

void gameDayScrn::showSelection(int row)
{
    if (Names_PosLB->selectedRow() != row) {
        const QSignalBlocker block(Names_PosLB);
        Names_PosLB->setSelectedRow(row);
    }
    const std::array<std::pair<QPushButton *, GameDay::Panel>, 3> buttons = {
        {{UDBatStatsBtn, GameDay::Panel::Batting},
         {fldStatsBtn, GameDay::Panel::Fielding},
         {pitchStatsBtn, GameDay::Panel::Pitching}}};
    for (const auto &[button, panel] : buttons) {
        const QString refusal = m_game->panelRefusal(panel);
        button->setEnabled(refusal.isEmpty() || button->isChecked());
        button->setToolTip(refusal);
    }
    LBChangePos->setVisible(row >= 0 && !m_game->isReadOnly());
    showLineupButtons();
}

void gameDayScrn::showLineup()
{
    const bool wasShowing = m_showing;
    m_showing = true;
    rosterList->deleteAllRows();
    for (const gameday::BenchLine &b : m_game->roster())
        rosterList->addRow({b.uniNum, b.name, b.pos}, b.playerID);
    Names_PosLB->setLineup(m_game->lineup());
    batterStatLB->deleteAllRows();
    for (const gameday::BatterStat &s : m_game->batStats())
        batterStatLB->addRow({s.rbi, s.sb});
    InstrFld->setText(m_game->instruction());
    scoreCardLB->adjustSize();
    m_showing = wasShowing;
    // The lineup may have lost the selected row; the panels follow.
    if (m_game->selectedRow() >= m_game->lineup().size())
        rowSelected(-1);
    else
        showSelection(m_game->selectedRow());
}

void gameDayScrn::showBoard()
{
    const gameday::Scoreboard &b = m_game->board();
    for (size_t t = 0; t < 2; ++t) {
        for (size_t i = 0; i < 10; ++i)
            inningFlds[t][i]->setText(b.innings[t][i]);
        runsFld[t]->setText(b.runs[t]);
        hitsFld[t]->setText(b.hits[t]);
        errsFld[t]->setText(b.errs[t]);
        LOBFld[t]->setText(b.lob[t]);
    }
}

void gameDayScrn::showFinalize()
{
    finalizeBtn->setVisible(m_game->finalizeVisible());
    dataRecordedLabel->setVisible(m_game->isRecorded());
    correctGameBtn->setVisible(m_game->lock() == gameday::GameDay::Lock::Recorded);
}

void gameDayScrn::setReadOnlyFlds(bool readOnly)
{
    for (size_t t = 0; t < 2; ++t) {
        const bool ro = readOnly || int(t) != m_game->curSelTeam();
        for (QLineEdit *box : inningFlds[t])
            box->setReadOnly(ro);
        hitsFld[t]->setReadOnly(ro);
        errsFld[t]->setReadOnly(ro);
        LOBFld[t]->setReadOnly(ro);
    }
}

void gameDayScrn::rowSelected(int row)
{
    m_game->selectRow(row);
    const QString player = m_game->selectedPlayerID();
    const QString team = m_game->teamID(m_game->curSelTeam());
    for (const auto &[panel, toggle] : panelToggles()) {
        if (!panel->isVisible())
            continue;
        if (!panel->saveData())
            continue; // a bad innings text keeps the panel on its pitcher
        const GameDay::Panel kind = panel == myBatCtr   ? GameDay::Panel::Batting
                                    : panel == myFldCtr ? GameDay::Panel::Fielding
                                                        : GameDay::Panel::Pitching;
        if (!m_game->panelRefusal(kind).isEmpty()) {
            panel->hide();
            const QSignalBlocker block(toggle);
            toggle->setChecked(false);
            m_game->setCoverOpen(false);
            continue;
        }
        panel->setValues(m_game->schedID(), player, team);
    }
    showSelection(m_game->selectedRow());
}

void gameDayScrn::toggleStats(QPushButton *toggle, StatPanel *panel, bool on)
{
    if (on) {
        // One panel at a time over the grid.
        for (QPushButton *other : {UDBatStatsBtn, fldStatsBtn, pitchStatsBtn}) {
            if (other != toggle && other->isChecked())
                other->setChecked(false);
        }
        if (!m_game->selectedPlayerID().isEmpty())
            panel->setValues(m_game->schedID(), m_game->selectedPlayerID(), m_game->teamID(m_game->curSelTeam()));
        placePanels();
        panel->show();
        panel->raise();
        panel->setFocus();
        m_game->setCoverOpen(true);
    } else {
        if (!panel->saveData()) {
            const QSignalBlocker block(toggle);
            toggle->setChecked(true);
            return;
        }
        panel->hide();
        m_game->setCoverOpen(false);
    }
}

bool gameDayScrn::reinitStatsScrns()
{
    for (const auto &[panel, toggle] : panelToggles()) {
        if (panel->isVisible()) {
            if (!panel->saveData())
                return false;
            panel->hide();
            const QSignalBlocker block(toggle);
            toggle->setChecked(false);
        }
    }
    if (m_game) {
        m_game->setCoverOpen(false);
        if (m_game->enterRHE())
            m_game->setEnterRHE(false);
    }
    return true;
}

void gameDayScrn::placePanels()
{
    for (StatPanel *panel : {static_cast<StatPanel *>(myBatCtr), static_cast<StatPanel *>(myFldCtr),
                             static_cast<StatPanel *>(myPitchCtr)}) {
        panel->adjustSize();
        panel->move(Names_PosLB->width() + 8, 0);
    }
}

void gameDayScrn::batterStatKey(int row, int column, QKeyEvent *event, bool &handled)
{
    const int key = event->key();
    if (key == Qt::Key_Return || key == Qt::Key_Enter) {
        // Down the column, stopping at the last row.
        const int next = qMin(row + 1, batterStatLB->rowCount() - 1);
        batterStatLB->editCell(next, column); // commits what was typed
        handled = true;
        return;
    }
    if (key == Qt::Key_Tab || key == Qt::Key_Backtab) {
        batterStatLB->editCell(row, 1 - column);
        handled = true;
        return;
    }
    if (key == Qt::Key_Escape)
        return;
    switch (support::numberKeyAction(key, event->text(), event->modifiers())) {
    case support::NumberKeyAction::Pass:
        return;
    case support::NumberKeyAction::StepUp:
        batterStatLB->setEditorText(support::steppedNumber(batterStatLB->editorText(), +1));
        break;
    case support::NumberKeyAction::StepDown:
        batterStatLB->setEditorText(support::steppedNumber(batterStatLB->editorText(), -1));
        break;
    case support::NumberKeyAction::Refuse:
        gBeep();
        break;
    }
    handled = true;
}

bool gameDayScrn::mayClose()
{
    if (!m_opened)
        return true;
    m_game->cancelAutoFill();
    if (!reinitStatsScrns())
        return false;
    m_game->saveIfDirty();
    return true;
}

void gameDayScrn::printLineup()
{
    std::optional<platform::PrinterSetup> setup;
    gGetPrinterSetup(setup, false);
    if (!setup)
        return;
    platform::PrinterSetup landscape = *setup;
    landscape.setLandscape(true);
    std::unique_ptr<platform::PrintJob> job = platform::printing().printDialog(landscape, tr("Lineup"));
    if (!job)
        return;
    QPainter &p = job->painter();
    const QFont font = platform::printFont(QApplication::font(), 10);
    p.setFont(font);
    const QRectF page(0, 0, job->setup().width(), job->setup().height());
    const QPixmap picture = centralWidget()->grab();
    const QString team = TeamBtn[size_t(m_game->curSelTeam())]->text();
    for (int copy = 0; copy < job->copies(); ++copy) {
        if (copy > 0)
            job->newPage();
        // The date stands 100 points to the right: a longer name is cut to fit.
        p.drawText(QPointF(40, 40), TruncateStr(QFontMetricsF(font), team, 96));
        p.drawText(QPointF(140, 40),
                   QStringLiteral("Printed: ") + EventDates::shortDate(platform::clock().now().date()));
        const QRectF source(m_gridArea->geometry());
        const double scale = page.width() / source.width();
        p.drawPixmap(QRectF(0, 60, page.width(), qMin(page.height() - 60, source.height() * scale)), picture, source);
    }
    job->finish();
}
