#pragma once

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

class myDB;

namespace reports {

// One line of the standings as shown: the team, its record as the cells
// hold it (empty for a team without one), percentage and games back.
struct StandingsRow
{
    QString teamID;
    QString team;
    QString W, L, Tie;
    QString Pct;
    QString GB;
};

// The won-lost-tied table of the season: overall, or the home team's league
// or division. The home team's record comes from recorded games; the
// coach types in the others', which the program never sees.
class Standings
{
public:
    enum View { Overall = 0, League = 1, Division = 2 };
    struct ViewEntry
    {
        QString text;
        View view;
    };

    Standings(myDB &db, const QString &homeTeam);

    // The view popup's entries: "Overall", then "<League> League" and
    // "<Division> Division" where the home team has them.
    QList<ViewEntry> viewEntries();
    // Reads the teams into the three views (after viewEntries, which finds
    // the home team's league and division).
    void setUpTeamData();
    // Reads the stored records.
    void acquireData();
    // No team has a stored record.
    bool noGames() const { return tRecDict.isEmpty(); }

    // The lines of a view, best percentage first, with games back from the
    // team on top; none when the season could not be read.
    std::optional<QList<StandingsRow>> fillStandLB(View view) const;

    // Writes each line's W, L and Tie (the integer value of each cell, 0 for
    // an empty one) to its team's record, in one transaction.
    bool saveData(const QList<StandingsRow> &rows);

    // (W + Tie / 2) / (W + L + Tie) of the cells' values; 0 when all three
    // are empty, when there are no games (0-0-0) and outside 0..1.
    static double percentage(const QString &W, const QString &L, const QString &Tie);
    // Enter in a record cell: the next row, skipping the home team's; back
    // to this row when the skip runs off the end; never past the last row.
    static int nextEditRow(const QList<bool> &isHome, int row);
    // The number a cell's text begins with, cut to an integer; 0 for none.
    static int cellValue(const QString &text);

    bool isHomeTeam(const QString &teamID) const { return teamID == m_homeTeam; }

    QHash<QString, QString> teamDict; // team ID -> name
    QHash<QString, QString> tRecDict; // team ID -> "W\tL\tTie"
    QString homeLg, homeDiv;
    QStringList AllTeams, LgTeams, DivTeams;

private:
    myDB &m_db;
    QString m_homeTeam;
    bool m_readFailed = false;
};

} // namespace reports
