#pragma once

#include "app/ui/ScreenBase.h"
#include "stats/PlayingTime.h"

class QComboBox;
class QDateEdit;
class QLabel;
class QPushButton;
class qlmListBox;

// "Playing Time": for each player of the chosen team (or every team), over
// a range of game days, his games, his innings in the field and at each
// position, his innings on the bench and his plate appearances. Shown,
// printed and exported as every list is.
class playingTimeScrn : public ScreenBase
{
    Q_OBJECT

public:
    explicit playingTimeScrn(QWidget *parent = nullptr);

    // Reads the season again under the filter the controls show.
    void refresh();
    stats::PlayingTimeFilter filter() const;

    void printReport();
    void exportReport();

private:
    QLabel *titleLbl = nullptr;
    QComboBox *teamPop = nullptr; // "All Teams", then each team; data: teamID
    QDateEdit *fromFld = nullptr;
    QDateEdit *toFld = nullptr;
    qlmListBox *timeBox = nullptr;
    QPushButton *closeBtn = nullptr;

    QString reportTitle() const;
};
