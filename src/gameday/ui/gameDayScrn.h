#pragma once

#include "app/ui/ScreenBase.h"
#include "gameday/GameDay.h"

#include <QPointer>
#include <QTimer>

#include <array>
#include <memory>

class BBPlayersLB;
class BBScoringLB;
class FieldingCtr;
class PitchCountBar;
class PlusMinusContainer;
class QComboBox;
class QLabel;
class QLayout;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QToolButton;
class StatPanel;
class battingCtr;
class defenseDlog;
class pitchingCtr;
class pleaseWaitScrn;
class qlmListBox;

// The window in which one scheduled game is scored. It shows the state of
// a gameday::GameDay (scoreboard, lineup, bench, grid, batter statistics)
// and passes the coach's clicks and keys to it; the three statistics
// panels open over the grid.
class gameDayScrn : public ScreenBase
{
    Q_OBJECT

public:
    // The window of the game, brought forward when it is open already.
    static gameDayScrn *openFor(const QString &schedID);
    explicit gameDayScrn(const QString &schedID, QWidget *parent = nullptr);
    ~gameDayScrn() override;

    gameday::GameDay &game() { return *m_game; }
    bool isOpen() const { return m_opened; }
    void printLineup();
    // "Defense": the defense-by-inning window of the team on show, one per game.
    defenseDlog *openDefense();

protected:
    bool mayClose() override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    // Controls, each with the name the program gives it as its objectName
    // (tests find them by it).
    BBScoringLB *scoreCardLB = nullptr;
    BBPlayersLB *Names_PosLB = nullptr;
    qlmListBox *rosterList = nullptr;
    qlmListBox *batterStatLB = nullptr;
    QPushButton *addBtn = nullptr;
    QPushButton *removeBtn = nullptr;
    QPushButton *replaceBtn = nullptr;
    QWidget *LBChangePos = nullptr;
    QToolButton *moveUpBtn = nullptr;
    QToolButton *moveDownBtn = nullptr;
    PlusMinusContainer *PlusMinusPlayers = nullptr;
    std::array<QRadioButton *, 2> TeamBtn{};
    std::array<std::array<QLineEdit *, 10>, 2> inningFlds{}; // teamAInnings, teamBInnings
    std::array<QLineEdit *, 2> runsFld{};
    std::array<QLineEdit *, 2> hitsFld{};
    std::array<QLineEdit *, 2> errsFld{};
    std::array<QLineEdit *, 2> LOBFld{};
    QPushButton *EnterRHE_Btn = nullptr;
    QComboBox *gameTypePop = nullptr;
    QLabel *dateFld = nullptr;
    QLabel *fieldFld = nullptr;
    QPushButton *fldStatsBtn = nullptr;
    QPushButton *pitchStatsBtn = nullptr;
    QPushButton *UDBatStatsBtn = nullptr;
    FieldingCtr *myFldCtr = nullptr;
    pitchingCtr *myPitchCtr = nullptr;
    battingCtr *myBatCtr = nullptr;
    QPushButton *finalizeBtn = nullptr;
    QLabel *dataRecordedLabel = nullptr;
    QPushButton *correctGameBtn = nullptr;
    QLabel *InstrFld = nullptr;
    QPushButton *closeBtn = nullptr;
    PitchCountBar *pitchCountBar = nullptr;
    QPushButton *defenseBtn = nullptr;
    QLabel *minPlayFld = nullptr; // who hasn't met the minimum play, late in the game
    void showMinimumPlay();
    QPointer<defenseDlog> m_defense;
    QTimer switchTeamTimer;

    QLayout *buildTop(QWidget *central);
    QLayout *buildBench(QWidget *central);
    QWidget *buildGridArea(QWidget *central);
    QLayout *buildBottom(QWidget *central);
    void buildScoreboard(QWidget *central, class QGridLayout *board);
    void connectGame();
    void connectLineup();
    void connectBoardAndPanels();
    void connectUndo();
    void showUndo();
    void stepChange(bool back);
    void openGame(const QString &schedID);
    void switchToTeam(int team);
    void showLock();
    void showSelection(int row);
    void showLineupButtons();
    std::array<std::pair<StatPanel *, QPushButton *>, 3> panelToggles() const;
    void showTeam();
    void showBoard();
    void showLineup();
    void showFinalize();
    void setReadOnlyFlds(bool readOnly);
    void rowSelected(int row);
    void toggleStats(QPushButton *toggle, StatPanel *panel, bool on);
    // Closes an open panel (it saves first); false when it would not let go.
    bool reinitStatsScrns();
    void placePanels();
    void batterStatKey(int row, int column, class QKeyEvent *event, bool &handled);

    std::unique_ptr<gameday::GameDay> m_game;
    std::unique_ptr<pleaseWaitScrn> m_wait;
    QWidget *m_gridArea = nullptr;
    bool m_opened = false;
    bool m_showing = false;
    int m_lineupEditTriggers = 0; // the lineup's own, while the game is open for changes
};
