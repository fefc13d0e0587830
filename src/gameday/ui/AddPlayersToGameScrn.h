#pragma once

#include "gameday/GameRecord.h"

#include <QDialog>

class qlmListBox;

// Lists every player of the team with a box to tick, for players who
// joined the team after the game was put on the schedule.
class AddPlayersToGameScrn : public QDialog
{
    Q_OBJECT

public:
    explicit AddPlayersToGameScrn(const QList<gameday::BenchLine> &players, QWidget *parent = nullptr);

    // Shows the list modally; the ticked players.
    static QList<gameday::BenchLine> getNewPlayers(const QList<gameday::BenchLine> &players, QWidget *parent = nullptr);
    QList<gameday::BenchLine> mySelections() const;

private:
    qlmListBox *PlayerList = nullptr;
    QList<gameday::BenchLine> m_players;
};
