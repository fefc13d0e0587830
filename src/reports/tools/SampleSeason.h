#pragma once

// Every sample season the demo and picture tools build, in one place.
//
// A ready season for a first look: the sample teams with their crests, a
// roster with drawn portraits for every team, a schedule, and games scored
// at bat by at bat on the game's own scorecard, with their panels, then
// recorded as the coach records them. Everything goes through the
// program's own code: the team and roster books, the schedule store, the
// game day with its grid, the panels' store and the game recorder.

#include <QColor>
#include <QImage>
#include <QList>
#include <QString>

class myDB;
class myPrefs;

namespace sample {

// A round crest with the team's initials in its colours.
QImage crest(const QString &initials, QColor field, QColor ring);
// A drawn portrait: a head over a jersey with the player's number.
QImage portrait(QColor jersey, QColor skin, const QString &number);
// Adds the teams (the first is the home team), the home team's players and
// coaches to an empty season of gData; a season with teams is left alone.
void seedTeams();
// A small team of its own with contact details, inventory held by a player
// and a practice with its drills, for the inventory, contact and practice
// plan screens. Gives the practice's event id (the one already there when
// the season has teams).
qint64 seedExtras();
// A few events around the sample season's opening day, when it has none.
void seedSchedule();

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
