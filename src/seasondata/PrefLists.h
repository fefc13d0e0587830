#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <utility>

// The lists the preference screen edits, between their stored form (texts
// joined by "," or by tab) and the rows of its controls. The lists have no
// escapes, so a separator typed into a cell can't be kept.
namespace seasondata::preflists {

// The popups' rows; the row's text is what the preference stores.
QStringList inningsRows();
QStringList lineupRows();
// The number a row's text starts with: 7 for "7 Innings", 0 for none.
int leadingNumber(const QString &text);

// The backup frequency popup: "Never", "5 min." ... "1 hour" and the minutes
// each stores. A value not in the table shows the first row.
QStringList backupFreqRows();
int backupFreqRow(int minutes);
int backupFreqValue(int row);

// The position list as rows of abbreviation and long name, line by line.
// When one stored list is longer, its extra lines get an empty other half.
QList<QStringList> positionRows(const QString &prAbbrevPos, const QString &prPositions);
// The lines (from 1) that only one of the two stored lists holds; none when
// they agree.
QList<int> unpairedPositionLines(const QString &prAbbrevPos, const QString &prPositions);
// Both columns joined back, each cell with its commas taken out:
// {prAbbrevPos, prPositions}.
std::pair<QString, QString> joinPositions(const QList<QStringList> &rows);

QStringList gameTypeRows(const QString &prGameTypes);
QString joinGameTypes(const QStringList &rows);

// One user-defined statistic: its abbreviation (a report's column heading)
// and what it counts.
struct UDSlot
{
    QString abbrev;
    QString desc;
    bool operator==(const UDSlot &) const = default;
};

constexpr int kBattingSlots = 5;
constexpr int kFieldingSlots = 3;
constexpr int kPitchingSlots = 3;

// The slots of a stored list (abbreviation and description pairs joined by
// tab). Empty when the list doesn't hold exactly `slots` pairs.
QList<UDSlot> splitUD(const QString &pref, int slots);

// "--" for an empty abbreviation, so that the pair keeps its place.
QString forceTextNotEmpty(const QString &text);

struct JoinedUD
{
    QString text;
    bool shortened = false; // some text was cut to fit the field
    // The fields cut, as slot * 2 (abbreviation) or slot * 2 + 1 (description).
    QList<int> cut;
};
// The slots joined for storage: empty abbreviations become "--", tabs and
// line ends become blanks, and when the whole would outgrow the 255 bytes
// of its field the longest of the fields that differ from `stored` (the
// list as it was) are shortened until it fits, descriptions before
// abbreviations, so the list keeps all its pairs and a field the coach left
// alone keeps its text. Only when that can't make room are the others cut.
JoinedUD joinUD(const QList<UDSlot> &slots, const QList<UDSlot> &stored = {});

} // namespace seasondata::preflists
