#pragma once

#include "gameday/DefenseBook.h"

#include <QDialog>

class QComboBox;
class QLabel;
class QPushButton;
class QSpinBox;
class QTreeWidget;

namespace gameday {
class GameDay;
}
class myDB;

// "Defense by Inning": who plays where in each inning for the team the
// game screen shows, one row per position (named in the first column) and
// one column per inning. A
// cell chosen with the mouse or the arrow keys fills the move line below
// it (its position and inning, and the player there); the coach picks the
// player and presses Move to put him there from that inning on.
class defenseDlog : public QDialog
{
    Q_OBJECT

public:
    defenseDlog(myDB &db, gameday::GameDay &game, QWidget *parent = nullptr);

Q_SIGNALS:
    // A move or a fill reached the file.
    void defenseChanged();

private:
    // Reads the table again (after a change of the lineup or the team shown).
    void refresh();
    // Chooses a cell: position row and inning (the table's column; 0 is
    // the position's own cell).
    void chooseCell(int row, int inning);
    // Moves the chosen player as the move line says.
    void moveChosen();
    // "Fill Fielding Innings": on the coach's word, each lineup player's
    // fielding IP of this game becomes his innings in the field so far.
    void fillFieldingInnings();

    QLabel *teamLbl = nullptr;
    QTreeWidget *defenseTable = nullptr;
    QComboBox *playerPop = nullptr; // data: playerID
    QComboBox *posPop = nullptr;    // data: table position, "" for the bench
    QSpinBox *inningFld = nullptr;
    QPushButton *moveBtn = nullptr;
    QPushButton *fillIPBtn = nullptr;
    QPushButton *closeBtn = nullptr;
    myDB &m_db;
    gameday::GameDay &m_game;
    gameday::DefenseBook m_book;
    QStringList m_rows;
};
