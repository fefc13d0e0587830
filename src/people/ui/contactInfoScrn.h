#pragma once

#include "app/ui/ScreenBase.h"
#include "people/ContactBook.h"

class QComboBox;
class QLabel;
class QPushButton;
class myInfoBtn;
class qlmListBox;

// The phone numbers and addresses of one team's players and coaches at a
// glance. The people selected in one list (only one list holds a selection
// at a time) get a message through the mail program. Opens beside the start
// screen.
class contactInfoScrn : public ScreenBase
{
    Q_OBJECT

public:
    explicit contactInfoScrn(QWidget *parent = nullptr);
    ~contactInfoScrn() override;

    void fillLists();
    void hndlPrinting();
    void hndlEmail();

private:
    void listChanged(qlmListBox *changed, qlmListBox *other);

    people::ContactBook m_book;
    bool prohibitChg = false;
    QComboBox *selectTeamPop = nullptr;
    QLabel *teamIDFld = nullptr;
    qlmListBox *playersList = nullptr;
    qlmListBox *coachesList = nullptr;
    QPushButton *emailBtn = nullptr;
    QPushButton *printBtn = nullptr;
    QPushButton *closeBtn = nullptr;
    myInfoBtn *helpBtn = nullptr;
};
