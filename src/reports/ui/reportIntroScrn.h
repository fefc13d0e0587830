#pragma once

#include "app/ui/ScreenBase.h"

#include <array>

class QLabel;
class QPushButton;
class qlmCheckBox;
class qlmListBox;

// Chooses the columns of a season report: one list of statistics for each
// of the batting, fielding and pitching reports, with the default columns
// checked and the always-shown ones marked. A view button opens the report.
class reportIntroScrn : public ScreenBase
{
    Q_OBJECT

public:
    explicit reportIntroScrn(QWidget *parent = nullptr);

    // Sets every check of list `which` to `all`; when false, then checks
    // that report's default columns.
    void setDefaultChecks(int which, bool all);
    // The columns list `which` gives now: names, fixed rows, checked rows.
    QStringList chosenHeaders(int which) const;
    // Opens the report of list `which` and closes this window.
    void viewBtn_Action(int which);
    // File > Export Data: the whole season's statistics as one CSV file.
    void exportSeason();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void statsLB_Open(int which);

    std::array<QLabel *, 3> headerLbl{};
    std::array<qlmListBox *, 3> statsLB{};
    std::array<qlmCheckBox *, 3> checkAll{};
    std::array<QPushButton *, 3> viewBtn{};
    QPushButton *cancelBtn = nullptr;
    QPushButton *pitchAvailBtn = nullptr; // opens "Pitcher Availability"
    QPushButton *playTimeBtn = nullptr;   // opens "Playing Time"
};
