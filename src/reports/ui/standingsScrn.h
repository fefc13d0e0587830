#pragma once

#include "reports/Standings.h"

#include "app/ui/ScreenBase.h"

class QComboBox;
class QKeyEvent;
class QLabel;
class QPushButton;
class qlmListBox;

// The season's standings: won, lost and tied with percentage and games
// back, overall or in the home team's league or division. With the edit
// button down the coach types in the records of the other teams; the home
// team's record comes only from recorded games.
class standingsScrn : public ScreenBase
{
    Q_OBJECT

public:
    explicit standingsScrn(QWidget *parent = nullptr);

protected:
    bool mayClose() override;
    void keyPressEvent(QKeyEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void fillStandLB();
    void saveData();
    void editWLBtn_Action();
    void acquireData();
    void viewChanged();
    void myLB_CellClick(int row, int column);
    bool myLB_CellKeyDown(int row, int column, QKeyEvent *event);
    // Opens a record cell for editing, or says why the home team's can't be.
    void editRecordCell(int row, int column);
    bool isHomeRow(int row) const;
    void setRecordCellsEditable(bool editable);

    reports::Standings m_standings;
    qlmListBox *myLB = nullptr;
    QComboBox *standSelPop = nullptr;
    QPushButton *editWLBtn = nullptr;
    QPushButton *CloseBtn = nullptr;
    QLabel *noGamesWarning = nullptr;
    bool allowEdits = false;
    bool dataDirty = false;
};
