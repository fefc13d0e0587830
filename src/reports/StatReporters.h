#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <array>
#include <functional>

class myDB;

namespace reports {

// The three season reports, numbered as their screens number them.
enum ReportKind : int { Batting = 0, Fielding = 1, Pitching = 2 };

// The season table of a report: "Hitting", "Fielding" or "Pitching".
QString seasonTable(ReportKind kind);
// Its stored figure columns, in the order of the per-player arrays.
const QStringList &seasonColumns(ReportKind kind);

// One season row as the report query reads it: the row's own ids and
// figures, the player's name when he still has a Players row, and the
// league and division of the team of his latest game.
struct SeasonRow
{
    qint64 playerID = 0;
    qint64 teamID = 0;
    bool hasPlayer = false;
    QString first;
    QString last;
    QString league;
    QString division;
    QString teamName;
    QList<double> figures; // seasonColumns() order
};

// Reads every season row of a report with one query (the season table
// joined with Players and Teams), in the table's row order, and hands each
// to `take`. False when the query failed (the error has been shown).
bool readSeasonRows(myDB &db, ReportKind kind, const std::function<void(const SeasonRow &)> &take);

} // namespace reports

// A report line of the batting report: the season row's figures at their
// hitD indices, the name, the team's league and division, and the
// derived averages at indices 26 to 28. Nothing derived is ever stored.
class hitReporter
{
public:
    static constexpr int kStored = 26;
    explicit hitReporter(const reports::SeasonRow &row) { acquireData(row); }
    void acquireData(const reports::SeasonRow &row);

    QString FName, LName;
    QString mTeam;
    double Avg = 0, OBP = 0, SPct = 0;
    std::array<double, 29> mData{};
    qint64 tID = 0;
    QString mLeague, mDivision;
};

// A line of the fielding report; fielding percentage at index 13.
class fldReporter
{
public:
    static constexpr int kStored = 13;
    explicit fldReporter(const reports::SeasonRow &row) { acquireData(row); }
    void acquireData(const reports::SeasonRow &row);

    double fldPct = 0;
    QString FName, LName;
    QString mTeam;
    std::array<double, 14> mData{};
    QString mDivision, mLeague;
    qint64 tID = 0;
};

// A line of the pitching report; ERA at index 27. IP stays the stored
// innings code (6 2/3 innings is 62); only the ERA decodes the thirds.
class pitchReporter
{
public:
    static constexpr int kStored = 27;
    explicit pitchReporter(const reports::SeasonRow &row) { acquireData(row); }
    void acquireData(const reports::SeasonRow &row);

    QString FName, LName;
    QString mTeam;
    std::array<double, 28> mData{};
    double ERA = 0;
    QString mDivision, mLeague;
    qint64 tID = 0;
};
