#pragma once

#include <QByteArray>
#include <QDate>
#include <QList>
#include <QString>

namespace stats {

// One rest band: a day's pitches up to `upTo` (inclusive) owe `days` days
// of rest. The last band of a group has no upper bound (`upTo` 0).
struct RestBand
{
    int upTo = 0;
    int days = 0;
};

// The pitchers of ages `minAge` to `maxAge`: the most pitches they may
// throw in a day and the rest they owe afterwards.
struct AgeGroup
{
    int minAge = 0;
    int maxAge = 0;
    int dailyMax = 0;
    QList<RestBand> rest;

    int restDays(int pitches) const;
    // The first pitch count of the band `pitches` falls in (1 for the first).
    int bandStart(int pitches) const;
};

// What pitch number `n` of a day means for the pitcher throwing it.
struct PitchCost
{
    int pitch = 0;
    int restDays = 0;         // owed if he stops now
    bool newRestBand = false; // this pitch moved him into a longer rest
    bool atDailyMax = false;  // this pitch is the day's last
    bool overDailyMax = false;
    bool mayFinishBatter = false; // over the maximum, but the batter may be finished
    QString text() const;         // "51: 3 days' rest", "95: daily maximum reached"
};

// A set of pitch-count rules, read from a JSON file a league's coach can
// edit. The age that counts is the pitcher's age on a fixed month and day
// of the season's year (`cutoffMonth` 0 means on the game's own date).
struct PitchRuleSet
{
    QString name;
    int cutoffMonth = 0;
    int cutoffDay = 0;
    bool mayFinishBatter = false;
    bool noThreeConsecutiveDays = false;
    int noCatchingFromPitches = 0;       // 0: no such rule
    int noPitchingFromCaughtInnings = 0; // 0: no such rule
    QList<AgeGroup> groups;

    // The pitcher's age under the set on `gameDate`; -1 for an unknown birth date.
    int ageOn(const QDate &birth, const QDate &gameDate) const;
    // The group an age falls in: below the youngest the youngest, above the
    // oldest the oldest. An unknown age (-1) takes the youngest, whose rest
    // is the longest.
    const AgeGroup &group(int age) const;
    PitchCost cost(int age, int pitch) const;
};

// The result of reading a rule set: the set, or the reason and the line
// of the file it was refused at.
struct PitchRulesRead
{
    PitchRuleSet set;
    QString error; // empty when the set was read
    int line = 0;
    bool ok() const { return error.isEmpty(); }
};

namespace pitchrules {

PitchRulesRead parse(const QByteArray &json);
// The sets the program ships, by file name ("national-youth.json", ...).
QStringList shippedFiles();
QByteArray shippedText(const QString &fileName);
// The national youth guidelines, always readable.
const PitchRuleSet &builtIn();
// A birth date as the people screens keep it ("MM/DD/YYYY").
QDate birthDate(const QString &dob);

// Where a season keeps its editable copies of the sets and the home team's
// choice: a "Pitch Rules" folder in the data folder.
QString folder(const QString &dataFolder);
// Copies every shipped set that isn't in the folder yet; never overwrites.
void copyShipped(const QString &dataFolder);
// The home team's chosen set file name, or the national set's.
QString chosenFile(const QString &dataFolder);
bool setChosenFile(const QString &dataFolder, const QString &fileName);
// The sets in the folder: file name and the set's name (the file name
// when it doesn't read).
QList<std::pair<QString, QString>> available(const QString &dataFolder);
// Reads the chosen set. A file that doesn't read gives the built-in set and
// the refusal in `refused` ("High school.json, line 12: ...").
PitchRuleSet load(const QString &dataFolder, QString *refused = nullptr);

} // namespace pitchrules
} // namespace stats
