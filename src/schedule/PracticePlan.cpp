#include "schedule/PracticePlan.h"

#include "app/globals.h"
#include "app/myDB.h"
#include "schedule/EventDates.h"
#include "support/TabbedLines.h"

#include <QDir>
#include <QFile>
#include <QSaveFile>

namespace schedule {

namespace {

struct Abandoned
{
};

// A plan file this big holds no practice.
constexpr qint64 kMaxPlanBytes = 1024 * 1024;

QString oneLine(QString field)
{
    for (QChar &c : field) {
        if (c == u'\t' || c == u'\r' || c == u'\n')
            c = u' ';
    }
    return field;
}

} // namespace

// The file ---------------------------------------------------------------

QString PlanFile::lineFor(const QStringList &cells)
{
    QString line;
    for (int i = 0; i < 4; ++i)
        line += oneLine(cells.value(i)) + u'\t';
    while (line.endsWith(u'\t'))
        line.chop(1);
    return line;
}

QString PlanFile::text(const QList<QStringList> &rows)
{
    QString out;
    for (const QStringList &row : rows)
        out += lineFor(row) + u'\n';
    return out;
}

bool PlanFile::write(const QString &path, const QList<QStringList> &rows)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Text))
        return false;
    file.write(text(rows).toUtf8());
    return file.commit();
}

PlanFile::ReadResult PlanFile::parse(const QByteArray &bytes)
{
    ReadResult out;
    const support::TabbedLines file = support::TabbedLines::parse(bytes, 4);
    out.skipped = file.skipped;
    for (const support::TabbedLines::Line &line : file.lines) {
        // Every drill has a name; a line without one isn't a drill.
        if (line.fields.first().trimmed().isEmpty()) {
            out.skipped.append(line.number);
            continue;
        }
        QStringList cells = line.fields;
        while (cells.size() < 4)
            cells.append(QString());
        out.rows.append(cells);
    }
    std::sort(out.skipped.begin(), out.skipped.end());
    return out;
}

QString PlanFile::fitField(const QString &typed)
{
    return oneLine(typed).left(kMaxFieldLength);
}

// The practice -----------------------------------------------------------

PracticePlan::PracticePlan(myDB &db, QString schedID) : m_db(db), m_schedID(std::move(schedID))
{
    const QList<Record> rows = m_db.select(QStringLiteral("SELECT SchedDate, Location FROM Schedule WHERE eventID = ?"),
                                           {m_schedID});
    if (!rows.isEmpty()) {
        const QString stored = rows.first().text(QStringLiteral("SchedDate"));
        const QDate date = EventDates::fromStored(stored);
        m_dateText = QStringLiteral("Practice Date: ") + (date.isValid() ? EventDates::shortDate(date) : stored);
        m_locText = QStringLiteral("Practice Location: ") + rows.first().text(QStringLiteral("Location"));
    }
}

QList<DrillRow> PracticePlan::loadData() const
{
    QList<DrillRow> out;
    for (const Record &r : m_db.select(QStringLiteral("SELECT planID, drill, start, pEnd, coach FROM Drills "
                                                      "WHERE scheduleID = ? ORDER BY planID"),
                                       {m_schedID}))
        out.append({r.integer(QStringLiteral("planID")), r.text(QStringLiteral("drill")),
                    r.text(QStringLiteral("start")), r.text(QStringLiteral("pEnd")), r.text(QStringLiteral("coach"))});
    return out;
}

qint64 PracticePlan::addActivity(const QStringList &cells)
{
    if (cells.value(0).trimmed().isEmpty()) {
        gBeep();
        gMsgBox(QStringLiteral("Please enter a drill."));
        return -1;
    }
    return m_db.insert(QStringLiteral("Drills"), {{QStringLiteral("scheduleID"), m_schedID},
                                                  {QStringLiteral("drill"), cells.value(0)},
                                                  {QStringLiteral("start"), cells.value(1)},
                                                  {QStringLiteral("pEnd"), cells.value(2)},
                                                  {QStringLiteral("coach"), cells.value(3)}});
}

bool PracticePlan::deleteActivity(qint64 planID)
{
    return m_db.exec(QStringLiteral("DELETE FROM Drills WHERE planID = ?"), {planID});
}

bool PracticePlan::updateActivity(qint64 planID, const QStringList &cells)
{
    if (cells.value(0).trimmed().isEmpty()) {
        gBeep();
        gMsgBox(QStringLiteral("Please enter a drill."));
        return false;
    }
    return m_db.exec(QStringLiteral("UPDATE Drills SET drill = ?, start = ?, pEnd = ?, coach = ? WHERE planID = ?"),
                     {cells.value(0), cells.value(1), cells.value(2), cells.value(3), planID});
}

QList<qint64> PracticePlan::reorder(const QList<QStringList> &rowsInOrder)
{
    QList<qint64> ids;
    for (const DrillRow &row : loadData())
        ids.append(row.planID);
    if (ids.size() != rowsInOrder.size())
        return {};
    const bool ok = m_db.runInTransaction([&] {
        for (int i = 0; i < ids.size(); ++i) {
            const QStringList &cells = rowsInOrder.at(i);
            m_db.exec(QStringLiteral("UPDATE Drills SET drill = ?, start = ?, pEnd = ?, coach = ? WHERE planID = ?"),
                      {cells.value(0), cells.value(1), cells.value(2), cells.value(3), ids.at(i)});
        }
    });
    return ok ? ids : QList<qint64>{};
}

QList<qint64> PracticePlan::addRecalled(const QList<QStringList> &rows, bool replace)
{
    QList<qint64> ids;
    try {
        const bool ok = m_db.runInTransaction([&] {
            if (replace)
                m_db.exec(QStringLiteral("DELETE FROM Drills WHERE scheduleID = ?"), {m_schedID});
            for (const QStringList &cells : rows) {
                const qint64 id = m_db.insert(QStringLiteral("Drills"), {{QStringLiteral("scheduleID"), m_schedID},
                                                                         {QStringLiteral("drill"), cells.value(0)},
                                                                         {QStringLiteral("start"), cells.value(1)},
                                                                         {QStringLiteral("pEnd"), cells.value(2)},
                                                                         {QStringLiteral("coach"), cells.value(3)}});
                if (id < 0)
                    throw Abandoned{};
                ids.append(id);
            }
        });
        if (!ok)
            ids.clear();
    } catch (const Abandoned &) {
        ids.clear();
    }
    return ids;
}

QStringList PracticePlan::activities()
{
    return gActivities.split(u';');
}

QStringList PracticePlan::drillsFor(int index)
{
    if (index < 0 || index >= int(gDrills.size()))
        return {};
    return gDrills.at(size_t(index)).split(u';');
}

QStringList PracticePlan::timeBlocks()
{
    QStringList out;
    for (int hour = 7; hour <= 22; ++hour) {
        for (int minute = 0; minute < 60; minute += 15) {
            const int shown = hour > 12 ? hour - 12 : hour;
            out.append(QString::number(shown) + u':' + QStringLiteral("%1").arg(minute, 2, 10, QChar(u'0')) +
                       (hour < 12 ? QStringLiteral(" AM") : QStringLiteral(" PM")));
        }
    }
    return out;
}

QStringList PracticePlan::coaches() const
{
    QStringList out;
    for (const Record &r : m_db.select(QStringLiteral("SELECT First, Last FROM Coaches")))
        out.append(r.text(QStringLiteral("First")) + u' ' + r.text(QStringLiteral("Last")));
    return out;
}

QString PracticePlan::planFolder(const QString &appDataRoot)
{
    QDir qlm(appDataRoot);
    if (appDataRoot.isEmpty() || !qlm.cd(QStringLiteral("QLM"))) {
        gShowMsgDlog(QStringLiteral("There was an error finding the correct location."),
                     QStringLiteral("Please restart Tallyline Baseball"), QStringLiteral("OK"));
        return {};
    }
    const QString folder = QStringLiteral("TLYN2/Practice Plans");
    if (!qlm.mkpath(folder)) {
        gShowMsgDlog(QStringLiteral("There was an error finding the correct location."),
                     QStringLiteral("Please restart Tallyline Baseball"), QStringLiteral("OK"));
        return {};
    }
    return qlm.filePath(folder);
}

bool PracticePlan::savePlan(const QString &folder, const QString &name, const QList<QStringList> &rows)
{
    const QString base = name.trimmed().isEmpty() ? QStringLiteral("Untitled") : name.trimmed();
    // A name is a file name, never a path: a separator would leave the folder.
    QString safe = base;
    for (QChar &c : safe) {
        if (c == u'/' || c == u'\\' || c == u':' || c.unicode() < 0x20)
            c = u'-';
    }
    if (safe.startsWith(u'.'))
        safe.replace(0, 1, u'-');
    if (!PlanFile::write(QDir(folder).filePath(safe + QStringLiteral(".pplan")), rows)) {
        gShowMsgDlog(QStringLiteral("There was an error attempting to save this file"),
                     QStringLiteral("Restart Tallyline Baseball and try again"), QStringLiteral("OK"));
        return false;
    }
    return true;
}

PlanFile::ReadResult PracticePlan::readPlan(const QString &path)
{
    QFile file(path);
    PlanFile::ReadResult result;
    if (!file.open(QIODevice::ReadOnly) || file.size() > kMaxPlanBytes) {
        gShowMsgDlog(QStringLiteral("This plan could not be read."),
                     QStringLiteral("The file is missing, unreadable or too large to be a practice plan."),
                     QStringLiteral("Continue"));
        return result;
    }
    result = PlanFile::parse(file.readAll());
    if (!result.skipped.isEmpty()) {
        gShowMsgDlog(QStringLiteral("Some lines of this plan were not recalled."),
                     (result.skipped.size() == 1 ? QStringLiteral("Line ") : QStringLiteral("Lines ")) +
                         support::lineNumberList(result.skipped) +
                         QStringLiteral(" did not hold a drill with at most a start, an end and a coach, "
                                        "separated by tabs."),
                     QStringLiteral("Continue"));
    }
    return result;
}

} // namespace schedule
