#pragma once

#include "app/ui/ScreenBase.h"

class QButtonGroup;
class QLineEdit;
class QLabel;
class QPropertyAnimation;
class QPushButton;
class QRadioButton;
class qlmCheckBox;
class qlmListBox;

// "New Season Screen": names a new season and starts it empty, or with
// chosen teams of the current season (their players, coaches and, on
// request, the team inventory). Shown as a sheet over the start screen;
// the team lists slide into view when the transfer is chosen.
class TransferDataScrn : public ScreenBase
{
    Q_OBJECT

public:
    explicit TransferDataScrn(QWidget *parent = nullptr);

    bool createNewDB();
    void doTransfer();

    // The height the window gains to show the team lists, and how long the
    // change takes.
    static constexpr int kListsHeight = 400;
    static constexpr int kAnimationMs = 250;

private:
    void newActionBtn_Action(int index);
    void moveRow(qlmListBox *from, qlmListBox *to, int row);
    void TransferBtn_Action();

    QPropertyAnimation *m_resize = nullptr;
    int m_collapsedHeight = 0;
    QLabel *curSeasonLbl = nullptr;
    QLineEdit *newNameFld = nullptr;
    QButtonGroup *newActionBtn = nullptr;
    QPushButton *createBtn = nullptr;
    qlmListBox *fromLB = nullptr;
    qlmListBox *toLB = nullptr;
    QPushButton *addBtn = nullptr;
    QPushButton *addAllBtn = nullptr;
    QPushButton *removeBtn = nullptr;
    qlmCheckBox *transInvCheck = nullptr;
    QPushButton *TransferBtn = nullptr;
    QPushButton *cancelBtn = nullptr;
    QWidget *teamArea = nullptr;
    QRadioButton *emptyRadio = nullptr;
    QRadioButton *transferRadio = nullptr;
};
