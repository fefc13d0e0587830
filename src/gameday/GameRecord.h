#pragma once

// One game as it stands in its Games row: both teams' scorecards as
// delimited strings (tab between fields, carriage return between lines),
// with the readers and writers of each string. The formats carry no
// escapes, so every writer turns a tab or line end inside a value into a
// blank; every reader skips a line with the wrong number of fields.

#include <QList>
#include <QString>
#include <QStringList>

#include <array>
#include <optional>

namespace gameday {

inline constexpr QChar kFieldSep = u'\t';
inline constexpr QChar kLineSep = u'\r';

// A value made safe for a field: tab, carriage return and line feed become blanks.
QString cleanField(const QString &value);

// Splits a stored string into lines (an empty string has none). A line
// feed or CR LF ends a line as a carriage return does, and line ends at the
// end of the text make no empty lines.
QStringList splitLines(const QString &text);

// --- Bench (roster) lines: number, name, position, playerID -----------------

struct BenchLine
{
    QString uniNum;
    QString name; // first and last name with a blank between
    QString pos;
    QString playerID;
    bool operator==(const BenchLine &) const = default;
};
QList<BenchLine> readBench(const QString &text);
QString writeBench(const QList<BenchLine> &lines);

// --- Lineup lines: order, position, name, playerID --------------------------

struct LineupLine
{
    QString order;
    QString pos;
    QString name; // a replacement's name begins with " ->"
    QString playerID;
    bool operator==(const LineupLine &) const = default;
};
QList<LineupLine> readPlayers(const QString &text);
QString writePlayers(const QList<LineupLine> &lines);

// --- Batter statistics: RBI and SB per lineup row ----------------------------

struct BatterStat
{
    QString rbi = QStringLiteral("0");
    QString sb = QStringLiteral("0");
    bool operator==(const BatterStat &) const = default;
};
QList<BatterStat> readBatStats(const QString &text);
QString writeBatStats(const QList<BatterStat> &lines);

// A list's stored text, made again only when the list changed since the
// last call: the list kept shares its data with the one given, so any
// write to that one parts the two. For the texts saved after every click.
template<class Line>
class WrittenText
{
public:
    using Writer = QString (*)(const QList<Line> &);
    const QString &of(const QList<Line> &lines, Writer write)
    {
        if (!lines.isSharedWith(m_seen) || m_text.isNull()) {
            m_seen = lines;
            m_text = write(lines);
        }
        return m_text;
    }

private:
    QList<Line> m_seen;
    QString m_text;
};

// --- Run entry: the line score typed without at bats -------------------------

struct RunEntry
{
    std::array<QString, 10> innings; // the ten inning boxes as shown
    QString hits;
    QString errors;
    QString lob;
    // The sum of the numeric values of the ten boxes ("--" counts 0).
    int runs() const;
    bool operator==(const RunEntry &) const = default;
};
// Whether an actions string is the run-entry form (begins "xxx").
bool isRunEntry(const QString &actions);
// "xxx", the ten boxes, hits, errors, LOB: 14 fields. Missing fields read
// as empty; extra ones are ignored.
RunEntry readRunEntry(const QString &actions);
QString writeRunEntry(const RunEntry &entry);

// --- The whole row ----------------------------------------------------------

// The six strings of one team.
struct TeamStrings
{
    QString headings;
    QString bench;
    QString players;
    QString actions; // grid form, or run-entry form beginning "xxx"
    QString outcomes;
    QString batStats;
    bool operator==(const TeamStrings &) const = default;
};

struct GameRecord
{
    QString schedID;
    std::array<QString, 2> teamIDs;   // team A (bats first), team B
    std::array<TeamStrings, 2> teams; // index 0 team A, 1 team B
    QString gameType = QStringLiteral("No Selection");
    bool recorded = false;

    // The Teams column: team A id, tab, team B id.
    QString teamsField() const { return teamIDs[0] + kFieldSep + teamIDs[1]; }
    bool operator==(const GameRecord &) const = default;
};

// The headings of a new game: "1" to "20".
QString newGameHeadings();

// The most columns a stored card may head; a card with more is damaged.
inline constexpr int kMaxStoredColumns = 64;

// Whether a team's strings read whole: every bench, lineup and batter
// statistics line has its fields, the cell texts have no more lines than
// the lineup, and the headings are few enough for a card. A card that
// doesn't is shown but never written back.
bool readsWhole(const TeamStrings &team);

} // namespace gameday
