#pragma once

#include "app/ui/ScreenBase.h"

#include <QStringList>

class QComboBox;
class QLabel;
class QSpinBox;
class QPushButton;
class PlusMinusContainer;
class qlmCheckBox;
class qlmListBox;

// The one place where the coach edits the settings: logos, the defaults of
// a game, the lists of positions and game types, the home team, backups,
// and the doors to the mail settings and the user-defined statistics.
//
// Save writes the preference file at once and closes; closing any other way
// (Return included) drops the edits, except those that act at once: the
// home team, the backup location and what the two doors save.
class prefScrn : public ScreenBase
{
    Q_OBJECT

public:
    // `myShowStartScrn`: opened from the start screen, which shows again on
    // close; false when opened over another screen.
    explicit prefScrn(bool myShowStartScrn = true, QWidget *parent = nullptr);

    void scrnSetup();
    void FillPositionLB();
    void fillHomeTeamPop();
    void fillPitchRulesPop();
    void fillGameTypeLB();
    void setValues();
    void setPositions();
    void setGameTypes();

    const bool myShowStartScrn;
    int SelectedInnings = 0;
    QStringList teamIDNums;

protected:
    void keyPressEvent(QKeyEvent *event) override;
    // Edits to the lists are asked about before the window goes.
    bool mayClose() override;

private:
    bool listsChanged() const;
    void buildControls();
    void showBackupLocation();
    void openEmailInfo();
    void openUDVStats();

    qlmCheckBox *LogoOnStartCheck = nullptr;
    qlmCheckBox *LogoOnReportsCheck = nullptr;
    QComboBox *InnPerGamePop = nullptr;
    QComboBox *maxLineupPop = nullptr;
    QComboBox *homeTeamPop = nullptr;
    QComboBox *pitchRulesPop = nullptr; // the home team's pitch-count rules
    QSpinBox *minInningsFld = nullptr;  // minimum play: innings in the field, 0 for none
    QSpinBox *minAtBatsFld = nullptr;   // minimum play: times at bat, 0 for none
    qlmListBox *PositionLB = nullptr;
    PlusMinusContainer *PlusMinusPositions = nullptr;
    qlmListBox *gameTypeLB = nullptr;
    PlusMinusContainer *plusMinusGames = nullptr;
    QLabel *backupLocFld = nullptr;
    QPushButton *setBULocBtn = nullptr;
    QComboBox *backupPop = nullptr;
    QLabel *emailAddrFld = nullptr;
    QPushButton *setEmailBtn = nullptr;
    QPushButton *setUDVBtn = nullptr;
    QLabel *curSeasonLbl = nullptr;
    QPushButton *showDataBtn = nullptr;
    QPushButton *prefsavebutton = nullptr;
};
