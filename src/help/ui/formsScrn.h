#pragma once

#include "app/ui/ScreenBase.h"

class QPushButton;
class qlmLabel;
class qlmListBox;
class myInfoBtn;

// The blank forms a coach prints for the field: the pictures found in the
// forms folder at start, one shown at a time, printed at their own size on
// a page turned to fit.
class formsScrn : public ScreenBase
{
    Q_OBJECT

public:
    explicit formsScrn(QWidget *parent = nullptr);

    void printForm();

    int whichP = 0;
    qlmListBox *formsList = nullptr;
    QWidget *displayCnv = nullptr;
    QPushButton *printBtn = nullptr;
    QPushButton *closeBtn = nullptr;
    myInfoBtn *helpBtn = nullptr;
    qlmLabel *txtprefs = nullptr;

protected:
    void keyPressEvent(QKeyEvent *event) override;
};
