#pragma once

// A ready season for a first look: the sample teams with their crests, a
// roster with drawn portraits for every team, a schedule, and games scored
// at bat by at bat on the game's own scorecard, with their panels, then
// recorded as the coach records them. Everything goes through the
// program's own code: the team and roster books, the schedule store, the
// game day with its grid, the panels' store and the game recorder.

#include <QList>
#include <QString>

class myDB;
class myPrefs;

namespace sample {

struct PlayedGame
{
    QString schedID;
    QString teamA, teamB; // names; A bats first
    int runsA = 0, runsB = 0;
};

// Fills an empty season (no teams yet) with the sample and plays and
// records the first `games` games of its schedule (at most 3). The
// preferences get the home team and seven-inning games. Nothing when the
// season already has teams.
QList<PlayedGame> buildSeason(myDB &db, myPrefs &prefs, int games = 3);

} // namespace sample
