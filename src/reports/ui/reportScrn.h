#pragma once

#include "reports/SeasonReport.h"

#include "app/ui/ScreenBase.h"

class QComboBox;
class QLabel;
class QPushButton;
class myInfoBtn;
class qlmListBox;

// One season report: a line per player with the chosen columns, filtered
// by league, division and team. The season rows are read once, into the
// report's data; a filter change shows that data again. The list sorts by
// a clicked heading, prints in landscape and exports itself.
class reportScrn : public ScreenBase
{
    Q_OBJECT

public:
    reportScrn(int which, const QStringList &headers, QWidget *parent = nullptr);

    const reports::SeasonReport &report() const { return m_report; }
    // Fills the list from the report's data under the current filters.
    void displayData();

    void printReport();
    void exportReport();

    bool showNewRept = false;

protected:
    bool mayClose() override;

private:
    void scrnSetup();
    void fillFilters();
    void filterChanged();
    void showColumnSet();
    bool showsMore() const;

    reports::SeasonReport m_report;
    reports::ReportFilter m_filter;
    qlmListBox *reportBox = nullptr;
    QLabel *titleLbl = nullptr;
    QComboBox *leagueFilter = nullptr;
    QComboBox *DivisionFilter = nullptr;
    QComboBox *teamFilter = nullptr;
    // "Standard" (the chosen columns) or "More" (the modern rates).
    QComboBox *columnSetPop = nullptr;
    QPushButton *closeBtn = nullptr;
    QPushButton *newRptBtn = nullptr;
    myInfoBtn *helpBtn = nullptr;
};
