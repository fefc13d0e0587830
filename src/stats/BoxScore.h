#pragma once

// The box score of one game, worked out from the game's strings and panel
// rows as they stand, recorded or not: the line score, each team's batting
// lines with the extra-base hits, steals, errors and runners left noted
// below, and the pitching lines. It gives the plain text that is shown,
// printed and saved, and the per-game export of one pipe-delimited row per
// player for a statistics site's upload.

#include "stats/SeasonFigures.h"

#include <QList>
#include <QString>

#include <array>
#include <optional>

class QPainter;
class QRectF;
class myDB;

namespace stats {

struct BoxBatter
{
    QString playerID;
    QString name;
    HitArray hitting{}; // the game's figures, as recording would add them
    qint64 errors = 0;  // FE + TE of his fielding panel row
    qint64 sacrificeFlies = 0;
};

struct BoxPitcher
{
    QString playerID;
    QString name;
    PitchArray pitching{}; // IP as the innings code: 62 is 6 2/3
};

struct BoxTeam
{
    QString name;
    std::array<int, 10> innings{}; // runs per inning, -1 not played; the tenth holds every extra one
    int runs = 0, hits = 0, errors = 0, lob = 0;
    bool runEntry = false; // entered by run totals: no batting lines
    QList<BoxBatter> batters;
    QList<BoxPitcher> pitchers;
};

class BoxScore
{
public:
    // The game of schedule entry `schedID`; nothing when it has no Games row.
    static std::optional<BoxScore> read(myDB &db, const QString &schedID);

    QString date;                 // as stored, YYYY-MM-DD
    QString location;             // the event's
    std::array<BoxTeam, 2> teams; // 0 bats first (the visitors), 1 the home side

    // The box score as plain text in columns, for a fixed-pitch font.
    QString text() const;
    // "Team|Player|playerID|AB|R|H|2B|3B|HR|RBI|BB|IBB|HBP|SAC|SF|SO|SB|LOB|E" for
    // the batters, then "Team|Player|playerID|IP|BF|H|ER|HR|BB|IBB|SO|HB|WP|BK|
    // PC|ST|DEC" for the pitchers; a heading line before each block; lines end
    // in CR LF.
    QString pipeRows() const;

    int inningsShown() const;
};

// Draws `text` in a fixed-pitch face as large as fits `area` (at most 10
// points), on one page.
void paintOnePage(QPainter &painter, const QRectF &area, const QString &text);
// Writes `text` as a one-page PDF on Letter paper with half-inch margins.
bool writeOnePagePdf(const QString &path, const QString &title, const QString &text);

} // namespace stats
