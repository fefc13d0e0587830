#pragma once

#include "people/RosterBook.h"

#include "app/ui/ScreenBase.h"

#include <memory>

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QToolButton;
class MainMenuBar;
class PictureCanvas;
class PlusMinusContainer;
class iPhoneField;
class playerInfoCtr;
class qlmCheckBox;
class qlmListBox;

// The players and coaches of every team. The shared fields stand on the
// screen; a player's own fields in `myPlayerCtr`, shown in player mode. A
// member can be added, edited, traded to another team and removed; leaving
// a changed member asks whether to save it. The rules live in
// people::RosterBook.
class personnelScrn : public ScreenBase
{
    Q_OBJECT

public:
    explicit personnelScrn(QWidget *parent = nullptr);
    ~personnelScrn() override;

    void addPlayer();
    void addCoach();
    void editPlayer();
    void editCoach();
    void clearScrn();
    void fillLists();
    void fillPlayerData(const QString &id);
    void fillCoachData(const QString &id);
    static void setPopUpList(const QString &text, QComboBox *popup);
    void setPlayerMode(bool isPlayer);
    void askSaveDirty();
    void setDirty();
    // 0 the player list, 1 the selected player's data, 2 the team's players' data.
    void hndlPrint(int kind);

    bool isPlayerMode() const;
    const people::MemberEditState &editState() const { return m_state; }
    people::RosterBook &book() { return *m_book; }
    MainMenuBar *menuBar() const { return menus(); }

    // Phone and cell phone.
    iPhoneField *newPhoneFld[2] = {};

    // File > Export Data: the selected team's players as CSV.
    void exportRoster();
    // File > Import Roster...: players for the selected team from a CSV file.
    void importRoster();

protected:
    bool mayClose() override;

private:
    void buildControls();
    void fillTeamPopups();
    void selectTeamPop_Change();
    void modeChosen(bool isPlayer);
    void listSelectionChanged(people::MemberKind kind);
    void actionBtn_Action();
    void removeSelected(people::MemberKind kind);
    void addMember(people::MemberKind kind);
    void editMember(people::MemberKind kind);
    void addPhoto();
    void saveLoadedMember();
    people::MemberRecord memberFromFields(people::MemberKind kind) const;
    void showMember(const people::MemberRecord &member);
    qlmListBox *listOf(people::MemberKind kind) const;
    void selectMemberRow(people::MemberKind kind, const QString &id);

    std::unique_ptr<people::RosterBook> m_book;
    people::MemberEditState m_state;
    // The member on show: which table and which row.
    people::MemberKind m_loadedKind = people::MemberKind::Player;
    QString m_loadedID;
    QRadioButton *SelectPlayer = nullptr;
    QRadioButton *SelectCoach = nullptr;
    QComboBox *selectTeamPop = nullptr;
    QLabel *teamIDFld = nullptr;
    qlmListBox *playersList = nullptr;
    qlmListBox *coachesList = nullptr;
    PlusMinusContainer *PlusMinusPlayers = nullptr;
    PlusMinusContainer *PlusMinusCoaches = nullptr;
    QLineEdit *FNameFld = nullptr;
    QLineEdit *LNameFld = nullptr;
    QLineEdit *addr1Fld = nullptr;
    QLineEdit *addr2Fld = nullptr;
    QLineEdit *cityFld = nullptr;
    QLineEdit *zipFld = nullptr;
    QComboBox *StatePop = nullptr;
    QLineEdit *emailFld = nullptr;
    qlmCheckBox *asstCheck = nullptr;
    qlmCheckBox *activeCheck = nullptr;
    PictureCanvas *indivPicCnv = nullptr;
    PlusMinusContainer *PlusMinusIndivPic = nullptr;
    QComboBox *tradeToPop = nullptr;
    QPushButton *actionBtn = nullptr;
    QPushButton *closeBtn = nullptr;
    QToolButton *printBtn = nullptr;
    playerInfoCtr *myPlayerCtr = nullptr;
};
