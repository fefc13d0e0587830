#pragma once

#include "reports/StatReporters.h"

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

class myDB;
class StatDictionary;

namespace reports {

// Which lines a report shows. The three tests combine by AND; an empty
// league or division and a team of -1 let every line through.
struct ReportFilter
{
    QString selLeague;
    QString selDivision;
    qint64 selTeam = -1;

    bool passes(qint64 tID, const QString &league, const QString &division) const;
};

// The choices of the report screen's three filters, from the season's teams.
struct FilterChoices
{
    QStringList leagues;   // distinct, non-empty
    QStringList divisions; // distinct, non-empty
    struct Team
    {
        QString name;
        qint64 teamID = 0;
    };
    QList<Team> teams;

    static FilterChoices read(myDB &db);
};

// What the report chooser lists for a report: the keys of its statistic
// dictionary in their order, the rows that are always in the report, and
// the rows checked by default.
namespace chooser {
const StatDictionary &dictionary(ReportKind kind);
QStringList rows(ReportKind kind);
int fixedRows(ReportKind kind); // rows 0 .. fixedRows-1 have no check box
QList<int> defaultChecks(ReportKind kind);
// The report's columns: the two name columns, the fixed rows, then each
// checked row in list order.
QStringList headers(ReportKind kind, const QStringList &rows, const QList<bool> &checked);
} // namespace chooser

// One season report, computed as data first: the reporters of every season
// row, read once, and from them the shown lines under a filter. The window,
// the printout and the export all show these lines.
class SeasonReport
{
public:
    // `headers` from the chooser; the team's column is put after the names.
    SeasonReport(ReportKind which, const QStringList &headers);

    // The team's column, after the first and last names.
    static constexpr int kTeamColumn = 2;
    static QString teamHeading();

    ReportKind kind() const { return m_kind; }
    const QStringList &curHeaders() const { return m_headers; }
    // "Batting", "Fielding" or "Pitching".
    QString title() const;
    // "84,84,84,36,...": the names and the team, then 36 for each other column.
    QString columnWidths() const;
    // The list's width in points: (columns - 3) x 36 + 252, at most 984.
    int listWidth() const;

    // Reads the season rows into reporters (one query). False on a database error.
    bool load(myDB &db);
    // Takes rows read elsewhere (a span of days' totals) with the players'
    // sacrifice flies, as load() takes the season's.
    void load(const QList<SeasonRow> &rows, const QHash<qint64, double> &flies);

    // The lines that pass `filter`, in the season table's row order, each
    // cell as shown: names, then the figures through their masks.
    QList<QStringList> rows(const ReportFilter &filter) const;

    // The "More" column set: the name columns, then the modern rates of the
    // report (ModernRates), each line as rows() gives it.
    QStringList moreHeaders() const;
    QList<QStringList> moreRows(const ReportFilter &filter) const;

    QList<hitReporter> hData;
    QList<fldReporter> fData;
    QList<pitchReporter> pData;

private:
    void clear();
    void take(const SeasonRow &row, const QHash<qint64, double> &flies);
    // One line's cells; `figures` are the dictionary indices of the columns
    // after the fixed ones.
    QStringList displayHitData(const hitReporter &r, const QList<int> &figures) const;
    QStringList displayFldData(const fldReporter &r, const QList<int> &figures) const;
    QStringList displayPitchData(const pitchReporter &r, const QList<int> &figures) const;

    ReportKind m_kind;
    QStringList m_headers;
    // The "More" rates of each reporter, in the order of hData, fData or pData.
    QList<QList<double>> m_more;
};

} // namespace reports
