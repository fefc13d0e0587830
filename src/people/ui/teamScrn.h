#pragma once

#include "people/TeamBook.h"

#include "app/ui/ScreenBase.h"
#include <QImage>

#include <memory>

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QToolButton;
class MainMenuBar;
class MaskedPhoneField;
class PictureCanvas;
class PlusMinusContainer;
class qlmCheckBox;
class qlmLabel;
class qlmListBox;

// The season's teams: the home team and every opponent. The list on the
// left, the selected team's fields on the right; the rules live in
// people::TeamBook. Opened from the start screen, which it shows again when
// it closes, and it won't close while there are teams but no home team.
class teamScrn : public ScreenBase
{
    Q_OBJECT

public:
    explicit teamScrn(QWidget *parent = nullptr);
    ~teamScrn() override;

    void loadTeamList();
    void clearScrn();
    void getSingleTeamInfo(const QString &id);
    void getListsForComboBoxes();
    void updateComboBoxes();
    // 0 the list, 1 the selected team's data, 2 every team's data.
    void hndlPrint(int kind);

    people::TeamBook &book() { return *m_book; }
    MainMenuBar *menuBar() const { return menus(); }

protected:
    bool mayClose() override;

private:
    void buildControls();
    void teamList_selectionChanged();
    void teamList_CellClick(int row, int column);
    void actionBtn_Action();
    void deleteSelectedTeam();
    void addLogo();
    people::TeamRecord teamFromFields() const;

    std::unique_ptr<people::TeamBook> m_book;
    bool m_clearing = false;
    qlmListBox *teamList = nullptr;
    qlmLabel *ListTitle = nullptr;
    QLineEdit *teamFld = nullptr;
    QLineEdit *schoolFld = nullptr;
    QComboBox *LeagueFld = nullptr;
    QComboBox *DivisionFld = nullptr;
    QLineEdit *address1Fld = nullptr;
    QLineEdit *address2Fld = nullptr;
    QLineEdit *cityFld = nullptr;
    QLineEdit *zipFld = nullptr;
    QComboBox *StatePop = nullptr;
    MaskedPhoneField *phoneFld = nullptr;
    QComboBox *homeFldFld = nullptr;
    qlmCheckBox *activeCheck = nullptr;
    qlmCheckBox *homeTeamBox = nullptr;
    PictureCanvas *LogoCvn = nullptr;
    PlusMinusContainer *PlusMinusTeamLogo = nullptr;
    PlusMinusContainer *teamListPlusMInus = nullptr;
    QLabel *teamIDFld = nullptr;
    QPushButton *actionBtn = nullptr;
    QPushButton *cancelBtn = nullptr;
    QToolButton *printBtn = nullptr;
};
