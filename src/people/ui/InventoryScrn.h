#pragma once

#include "app/ui/ScreenBase.h"
#include "people/InventoryBook.h"

#include <array>

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class PlusMinusContainer;
class myInfoBtn;
class qlmListBox;

// The team's equipment: the pool of items with their counts on the left,
// the units the chosen player holds on the right. The rules live in
// people::InventoryBook; the screen shows its lists and passes the coach's
// clicks and keys on. The backup timer runs while it is open.
class InventoryScrn : public ScreenBase
{
    Q_OBJECT

public:
    explicit InventoryScrn(QWidget *parent = nullptr);
    ~InventoryScrn() override;

    people::InventoryBook &book() { return m_book; }
    QString curSelTeamID() const { return m_book.teamID(); }

    void setPlayerPop();
    void loadTeamList();
    void fillPlayerList();
    void clearInputFlds();
    void importInvItems();
    void exportInvItems();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void buildControls();
    void installMenus();
    void selTeamPop_Change();
    void selPlayerPop_Change();
    void teamInvList_Change();
    void IndivList_Change();
    void enterItem();
    void plusPressed();
    void minusPressed();
    void assignItem();
    void returnItem();
    void dropItem();
    void printTeamInv();
    void printPlayerInv();

    people::InventoryBook m_book;
    bool prohibitChange = false;
    std::array<QLineEdit *, 3> inputFld{};
    QLabel *titleLbl = nullptr;
    QComboBox *selTeamPop = nullptr;
    QComboBox *selPlayerPop = nullptr;
    qlmListBox *teamInvList = nullptr;
    qlmListBox *IndivList = nullptr;
    QLabel *Label1 = nullptr;
    QLabel *IDLabel = nullptr;
    PlusMinusContainer *TeamInvPlusMinus = nullptr;
    QPushButton *addBtn = nullptr;
    QPushButton *RemoveBtn = nullptr;
    QPushButton *deleteItemBtn = nullptr;
    QPushButton *printTeamInvBtn = nullptr;
    QPushButton *printPlayerInvBtn = nullptr;
    QPushButton *closeBtn = nullptr;
    myInfoBtn *helpBtn = nullptr;
    QLabel *playerIDFld = nullptr;
};
