#pragma once

#include "app/ui/ScreenBase.h"

#include <QTimer>

class QLineEdit;
class QPushButton;
class qlmListBox;

// What the statistics' abbreviations mean, with a search box: a second
// and a half after the last key, the first term that is the whole of what
// was typed is selected and the box empties. There is one such window;
// asking again brings it up.
class HelpAbbrevScrn : public ScreenBase
{
    Q_OBJECT

public:
    // The open window, made when there is none.
    static HelpAbbrevScrn *instance();

    void search();

    QTimer typingTimer;

private:
    explicit HelpAbbrevScrn(QWidget *parent = nullptr);
    QLineEdit *searchFld = nullptr;
    qlmListBox *termsLB = nullptr;
    QPushButton *CloseBtn = nullptr;
};
