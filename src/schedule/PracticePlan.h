#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

class myDB;

namespace schedule {

// One drill of a practice: a row of table Drills.
struct DrillRow
{
    qint64 planID = -1;
    QString drill;
    QString start;
    QString pEnd;
    QString coach;

    QStringList cells() const { return {drill, start, pEnd, coach}; }
};

// The ".pplan" file: one line per drill, its fields drill, start, end and
// coach divided by tabs, the tabs at the line's end cut. No header, no date.
// Written as UTF-8 with the platform's line ends, through a temporary file
// renamed over the old one, so a plan is never left half written.
namespace PlanFile {

// A typed field as the file can hold it: tabs and line ends become blanks
// and the text stops at the longest field a line may have, so every plan
// that is stored can be recalled.
QString fitField(const QString &typed);
constexpr int kMaxFieldLength = 255;

// The line of one drill. A tab or line end inside a field would split it,
// so each becomes a blank.
QString lineFor(const QStringList &cells);
// The whole file for `rows`, lines ended by "\n".
QString text(const QList<QStringList> &rows);
bool write(const QString &path, const QList<QStringList> &rows);

struct ReadResult
{
    QList<QStringList> rows; // four cells each
    QList<int> skipped;      // numbers of refused lines
};
// Reads a plan that may have been edited by hand. A line is taken whole or
// not at all: more than four fields, a blank drill, a field too long for a
// drill or bytes that aren't text refuse it. Blank lines pass quietly.
ReadResult parse(const QByteArray &bytes);

} // namespace PlanFile

// The rules of the practice plan screen without its widgets: the practice
// it belongs to, its drills, adding and deleting them, the plan files and
// their folder.
class PracticePlan
{
public:
    PracticePlan(myDB &db, QString schedID);

    const QString &mySchedID() const { return m_schedID; }

    // "Practice Date: 4/15/26" and "Practice Location: Memorial Field";
    // empty when the event isn't there.
    QString practDateText() const { return m_dateText; }
    QString practLocText() const { return m_locText; }

    // The practice's drills, in the order the file gives them.
    QList<DrillRow> loadData() const;
    // Stores a drill and gives it its planID. A blank drill beeps and says
    // "Please enter a drill."; the times and the coach may be anything.
    // -1 when refused or the write failed.
    qint64 addActivity(const QStringList &cells);
    bool deleteActivity(qint64 planID);
    // Rewrites one drill as edited in place; a blank drill is refused.
    bool updateActivity(qint64 planID, const QStringList &cells);
    // Stores the drills in the order shown: the practice's planIDs, lowest
    // first, take the rows in turn, in one transaction. The planIDs in
    // display order, or an empty list when that failed.
    QList<qint64> reorder(const QList<QStringList> &rowsInOrder);
    // Stores recalled lines as drills of this practice, all in one
    // transaction, after the practice's own drills or (`replace`) in their
    // place; their new planIDs, or an empty list when that failed.
    QList<qint64> addRecalled(const QList<QStringList> &rows, bool replace = false);

    // The offered values of the combo boxes.
    static QStringList activities();
    // The drills of activity `index`; empty for a bad index.
    static QStringList drillsFor(int index);
    // 7:00 AM to 10:45 PM in quarter hours: 64 rows.
    static QStringList timeBlocks();
    QStringList coaches() const;

    // The folder of the plan files, "QLM/TLYN2/Practice Plans" under the
    // application-data folder `appDataRoot`, made where missing. When QLM
    // itself is missing (or a folder can't be made) the coach is told and
    // the result is empty.
    static QString planFolder(const QString &appDataRoot);
    // Saves the rows as "<name>.pplan" in `folder` (an empty name saves as
    // "Untitled"), replacing a file of that name. Says so when it fails.
    static bool savePlan(const QString &folder, const QString &name, const QList<QStringList> &rows);
    // Reads a plan file; tells the coach which lines were skipped.
    static PlanFile::ReadResult readPlan(const QString &path);

private:
    myDB &m_db;
    QString m_schedID;
    QString m_dateText;
    QString m_locText;
};

} // namespace schedule
