#pragma once

// The defense table of the team on show in a game, as the game screen's
// defense window keeps it: the table worked out from the game's lineup,
// card and stored moves, and the coach's move of a player from an inning
// on. Each move is one transaction and comes back as the change it made,
// so that a change log can take it back with DefenseStore::apply.

#include "gameday/DefenseTable.h"
#include "gameday/MinimumPlay.h"

#include <functional>

class myDB;

namespace gameday {

class GameDay;

class DefenseBook
{
public:
    DefenseBook(myDB &db, GameDay &game) : m_db(db), m_game(game), m_store(db) {}

    // The table of the team on show, as stored now.
    DefenseTable table() const;
    QString teamID() const;
    // Innings counted as played in the field so far (the other side batted).
    QSet<int> fieldedSoFar() const;

    // Why the coach may not move a player now; empty when he may.
    QString refusal() const;
    // Puts the player at `pos` ("" for the bench) from `inning` on; see
    // DefenseStore::move. An empty change when refused or nothing changed.
    DefenseChange move(const QString &playerID, int inning, const QString &pos);
    // From the next-to-last inning on: the players of the team on show (in
    // the lineup or on its bench) below the minimum so far, as the game
    // screen shows them; empty with no minimum, earlier in the game, or
    // when everybody has met it.
    QString minimumPlayLine(const MinimumPlay &minimum) const;

    // Told of every change written (for the change log).
    std::function<void(const DefenseChange &)> changed;

private:
    myDB &m_db;
    GameDay &m_game;
    DefenseStore m_store;
};

} // namespace gameday
