#pragma once

#include "app/ui/ScreenBase.h"

#include <QImage>
#include <QList>

class QPushButton;
class qlmLabel;
class qlmListBox;
class myInfoBtn;

// The blank forms a coach prints for the field: the pictures found in the
// forms folder at start, one shown at a time, printed at their own size on
// a page turned to fit. A picture is decoded when it is first shown or
// printed and let go with the window.
class formsScrn : public ScreenBase
{
    Q_OBJECT

public:
    explicit formsScrn(QWidget *parent = nullptr);

    void printForm();
    // The chosen form's picture, decoded at the first call; null when there
    // is none or its file can't be read.
    const QImage &picture(int which);

    int whichP = 0;

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    QList<QImage> m_pictures;
    QList<bool> m_decoded;
    qlmListBox *formsList = nullptr;
    QWidget *displayCnv = nullptr;
    QPushButton *printBtn = nullptr;
    QPushButton *closeBtn = nullptr;
    myInfoBtn *helpBtn = nullptr;
    qlmLabel *txtprefs = nullptr;
};
