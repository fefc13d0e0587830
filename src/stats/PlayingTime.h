#pragma once

// The season's playing time: for each player of a team, the games he took
// part in, his innings in the field and at each position, his innings on
// the bench and his plate appearances, worked out game by game from the
// defense-by-inning table. The report screen and the command line show the
// same rows.

#include <QDate>
#include <QList>
#include <QString>
#include <QStringList>

#include <array>

class myDB;

namespace stats {

struct PlayingTimeFilter
{
    QString teamID; // empty: every team
    QDate from;     // invalid: no bound
    QDate to;
};

struct PlayingTimeRow
{
    QString playerID;
    QString teamID;
    QString name;
    QString team;
    int games = 0;                    // games in which he was in the lineup
    int fieldInnings = 0;             // innings at any position but DH
    std::array<int, 11> atPosition{}; // P, C, 1B, 2B, 3B, SS, LF, CF, RF, OF, DH
    int benchInnings = 0;             // innings of his team's games he spent at no position
    int plateAppearances = 0;
    bool operator==(const PlayingTimeRow &) const = default;
};

struct PlayingTimeReport
{
    QList<PlayingTimeRow> rows; // by team, then name

    static PlayingTimeReport read(myDB &db, const PlayingTimeFilter &filter);

    // "Player", "Team", "G", "Field", the positions, "Bench", "PA".
    static QStringList headings();
    static QString columnWidths();
    QList<QStringList> texts() const;
};

} // namespace stats
