#pragma once

#include "gameday/GameRecord.h"
#include "reports/ui/qlmListBox.h"

// The lineup beside the grid: order, position (typed for this game,
// upper-cased) and name, the playerID as row tag. It shows the lineup of
// the team on show; the rules that change it live in gameday::GameDay.
class BBPlayersLB : public qlmListBox
{
    Q_OBJECT

public:
    explicit BBPlayersLB(QWidget *parent = nullptr);

    void setLineup(const QList<gameday::LineupLine> &lineup);
    // Rows joined by carriage returns: order, position, name, and with
    // `withID` the playerID, separated by tabs.
    QString getPlayerPos_Names(bool withID) const;
    int getSelRow() const { return selectedRow(); }
    QString getPlayerID(int row) const { return rowTag(row); }

Q_SIGNALS:
    // The position of a row was typed (already upper-cased).
    void positionEdited(int row, const QString &pos);
    // Alt+Up (-1) or Alt+Down (+1): the batting order arrows from the keyboard.
    void orderKey(int delta);

protected:
    // F2 edits the selected row's position.
    void keyPressEvent(QKeyEvent *event) override;
};
