#pragma once

// The sample season's teams: a home team and four opponents with crests,
// the home team's players with drawn portraits, and its coaches. Shared by
// the people demo and the sample season tool.

#include <QColor>
#include <QImage>
#include <QString>

namespace sample {

// A round crest with the team's initials in its colours.
QImage crest(const QString &initials, QColor field, QColor ring);
// A drawn portrait: a head over a jersey with the player's number.
QImage portrait(QColor jersey, QColor skin, const QString &number);
// Adds the teams (the first is the home team), the home team's players and
// coaches to an empty season of gData; a season with teams is left alone.
void seedTeams();

} // namespace sample
