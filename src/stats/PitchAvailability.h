#pragma once

#include "stats/PitchRules.h"

#include <QDate>
#include <QMap>
#include <QString>
#include <QStringList>

class myDB;

namespace stats {

// One player's recent work as the season holds it: pitches per day (balls
// plus strikes of his pitching-panel rows, games of a day added) and the
// thirds of an inning he caught per day.
struct PitcherLog
{
    QString playerID;
    QString name;
    QDate birth;
    bool listedAsPitcher = false;
    QMap<QDate, int> pitches;
    QMap<QDate, int> caughtThirds;
};

// Whether a pitcher may pitch on a date under a rule set, and how much.
struct Availability
{
    int age = -1;
    int pitchedToday = 0;
    int restOwed = 0;  // days from the asked date to `firstDate`, the asked one included
    QDate firstDate;   // the first day from the asked date he may pitch
    int leftToday = 0; // pitches he may still throw on the asked date
    QString whyNot;    // empty when he may pitch: "threw 70 on Monday: may not pitch until Saturday"
    bool mayPitch() const { return whyNot.isEmpty() && leftToday > 0; }
    bool mayCatch = true; // the pitches thrown that day allow catching
};

// The day's name near `from` ("Saturday"), else the date itself.
QString dayText(const QDate &day, const QDate &from);

// Works out a pitcher's standing on `date` from his log, assuming he
// throws no more pitches than the log holds.
Availability availabilityOn(const PitchRuleSet &set, const PitcherLog &log, const QDate &date);

// The "Pitcher Availability" report: the team's players who pitched in the
// seven days up to `today` or are listed as pitchers.
struct AvailabilityReport
{
    QStringList headings;
    QList<QStringList> rows;
    QString columnWidths;
    static AvailabilityReport make(const PitchRuleSet &set, const QList<PitcherLog> &logs, const QDate &today);
    // The report of the team's players from the season, its logs read far
    // enough back for every rule's rest.
    static AvailabilityReport read(myDB &db, const PitchRuleSet &set, const QString &teamID, const QDate &today);
};

namespace pitchlog {
// Reads the logs of the team's players over the days `from` to `to`.
QList<PitcherLog> read(myDB &db, const QString &teamID, const QDate &from, const QDate &to);
// "4.1" innings as thirds (13); anything unreadable is 0.
int inningsThirds(const QString &innings);
} // namespace pitchlog

} // namespace stats
