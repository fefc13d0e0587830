#pragma once

// The season's playing time: for each player of a team, the games he took
// part in, his innings in the field and at each position, his innings on
// the bench and his plate appearances, worked out game by game from the
// defense-by-inning table. The report screen and the command line show the
// same rows.

#include <QDate>
#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>

#include <array>

class myDB;

namespace gameday {
class DefenseTable;
}

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

// Sets the "IP" field of each lineup player's fielding row of the game to
// his innings in the field among `counted` (the innings played so far),
// keeping the row's other fields; a player without innings and without a
// row gets none. One transaction; false when it did not reach the file.
bool fillFieldingInnings(myDB &db, const QString &schedID, const QString &teamID, const gameday::DefenseTable &table,
                         const QSet<int> &counted);

} // namespace stats
