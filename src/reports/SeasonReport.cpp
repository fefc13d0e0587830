#include "reports/SeasonReport.h"

#include "app/myDB.h"
#include "app/myDictionaries.h"
#include "reports/ModernRates.h"
#include "reports/NumberMask.h"
#include "reports/SeasonCsv.h"

#include <algorithm>
#include <tuple>

namespace reports {

bool ReportFilter::passes(qint64 tID, const QString &league, const QString &division) const
{
    return (selTeam == -1 || selTeam == tID) && (selLeague.isEmpty() || selLeague == league) &&
           (selDivision.isEmpty() || selDivision == division);
}

FilterChoices FilterChoices::read(myDB &db)
{
    FilterChoices choices;
    // An empty league or division can't be told from "all", so it isn't offered.
    for (const Record &r : db.select(QStringLiteral("SELECT DISTINCT(League) FROM Teams WHERE League <> '' "
                                                    "ORDER BY League")))
        choices.leagues.append(r.values.value(0).toString());
    for (const Record &r : db.select(QStringLiteral("SELECT DISTINCT(Division) FROM Teams WHERE Division <> '' "
                                                    "ORDER BY Division")))
        choices.divisions.append(r.values.value(0).toString());
    for (const Record &r : db.select(QStringLiteral("SELECT TeamName, teamID FROM Teams ORDER BY TeamName, teamID")))
        choices.teams.append({r.values.value(0).toString(), r.values.value(1).toLongLong()});
    return choices;
}

namespace chooser {

const StatDictionary &dictionary(ReportKind kind)
{
    switch (kind) {
    case Batting:
        return hitD;
    case Fielding:
        return fieldD;
    case Pitching:
        break;
    }
    return pitchD;
}

QStringList rows(ReportKind kind)
{
    return dictionary(kind).keys();
}

int fixedRows(ReportKind kind)
{
    return kind == Batting ? 4 : 1;
}

QList<int> defaultChecks(ReportKind kind)
{
    switch (kind) {
    case Batting:
        return {4, 5, 6, 7, 8, 14, 15, 20, 21};
    case Fielding:
        return {1, 2, 3, 4, 5, 6};
    case Pitching:
        break;
    }
    return {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 13, 14, 18, 21};
}

QStringList headers(ReportKind kind, const QStringList &rows, const QList<bool> &checked)
{
    QStringList out{QStringLiteral("First Name"), QStringLiteral("Last Name")};
    const int fixed = fixedRows(kind);
    for (int row = 0; row < rows.size(); ++row) {
        if (row < fixed || checked.value(row))
            out.append(rows.at(row));
    }
    return out;
}

} // namespace chooser

SeasonReport::SeasonReport(ReportKind which, const QStringList &headers) : m_kind(which), m_headers(headers)
{
    // Every report says who plays for whom, shown, printed and exported.
    if (m_headers.value(kTeamColumn) != teamHeading())
        m_headers.insert(std::min(qsizetype(kTeamColumn), m_headers.size()), teamHeading());
}

QString SeasonReport::teamHeading()
{
    return QStringLiteral("Team");
}

QString SeasonReport::title() const
{
    switch (m_kind) {
    case Batting:
        return QStringLiteral("Batting");
    case Fielding:
        return QStringLiteral("Fielding");
    case Pitching:
        break;
    }
    return QStringLiteral("Pitching");
}

QString SeasonReport::columnWidths() const
{
    QStringList widths{QStringLiteral("84"), QStringLiteral("84"), QStringLiteral("84")};
    for (int c = 3; c < m_headers.size(); ++c)
        widths.append(QStringLiteral("36"));
    return widths.join(u',');
}

int SeasonReport::listWidth() const
{
    return std::min(int(m_headers.size() - 3) * 36 + 252, 984);
}

bool SeasonReport::load(myDB &db)
{
    clear();
    const QHash<qint64, double> flies = m_kind == Batting ? sacrificeFlies(db) : QHash<qint64, double>{};
    return readSeasonRows(db, m_kind, [&](const SeasonRow &row) { take(row, flies); });
}

void SeasonReport::load(const QList<SeasonRow> &rows, const QHash<qint64, double> &flies)
{
    clear();
    for (const SeasonRow &row : rows)
        take(row, flies);
}

void SeasonReport::clear()
{
    hData.clear();
    fData.clear();
    pData.clear();
    m_more.clear();
}

void SeasonReport::take(const SeasonRow &row, const QHash<qint64, double> &flies)
{
    switch (m_kind) {
    case Batting:
        hData.append(hitReporter(row));
        break;
    case Fielding:
        fData.append(fldReporter(row));
        break;
    case Pitching:
        pData.append(pitchReporter(row));
        break;
    }
    m_more.append(moreRates(m_kind, row.figures, flies.value(row.playerID)));
}

QStringList SeasonReport::moreHeaders() const
{
    QStringList out{QStringLiteral("First Name"), QStringLiteral("Last Name"), teamHeading()};
    for (const RateColumn &c : moreColumns(m_kind))
        out.append(c.key);
    return out;
}

QList<QStringList> SeasonReport::moreRows(const ReportFilter &filter) const
{
    const QList<RateColumn> &columns = moreColumns(m_kind);
    QList<QStringList> out;
    const auto take = [&](const auto &data) {
        for (qsizetype i = 0; i < data.size() && i < m_more.size(); ++i) {
            const auto &r = data.at(i);
            if (!filter.passes(r.tID, r.mLeague, r.mDivision))
                continue;
            QStringList cells{r.FName, r.LName, r.mTeam};
            for (qsizetype c = 0; c < columns.size(); ++c)
                cells.append(formatMask(m_more.at(i).value(c), columns.at(c).mask));
            out.append(cells);
        }
    };
    switch (m_kind) {
    case Batting:
        take(hData);
        break;
    case Fielding:
        take(fData);
        break;
    case Pitching:
        take(pData);
        break;
    }
    return out;
}

namespace {

template<class R, class Display>
QList<QStringList> filtered(const QList<R> &data, const ReportFilter &filter, Display display)
{
    QList<QStringList> out;
    for (const R &r : data) {
        if (filter.passes(r.tID, r.mLeague, r.mDivision))
            out.append(display(r));
    }
    return out;
}

// The figure index of each header from `from` on; a header that isn't a key
// of the report's dictionary adds no cell, so it has no entry.
QList<int> figureIndices(const QStringList &headers, qsizetype from, const StatDictionary &dict, int size)
{
    QList<int> out;
    for (qsizetype c = from; c < headers.size(); ++c) {
        const int index = dict.value(headers.at(c));
        if (index >= 0 && index < size)
            out.append(index);
    }
    return out;
}

// How many figures a reporter keeps: the length of its own array.
template<typename Reporter>
constexpr int kFigureCount = int(std::tuple_size_v<decltype(Reporter::mData)>);

// A figure as plain number text: stored counts are whole numbers.
QString plainNumber(double value)
{
    // Most counts are small: their texts are made once and shared, not
    // made again for every cell of a long report.
    static const QStringList small = [] {
        QStringList texts;
        for (int n = 0; n < 1000; ++n)
            texts.append(QString::number(n));
        return texts;
    }();
    const auto whole = static_cast<qint64>(value);
    if (double(whole) != value)
        return QString::number(value, 'g', 15);
    return whole >= 0 && whole < small.size() ? small.at(whole) : QString::number(whole);
}

template<size_t N>
void appendFigures(QStringList &cells, const QList<int> &indices, const std::array<double, N> &mData,
                   int inningsIndex = -1)
{
    for (int index : indices) {
        if (index == inningsIndex)
            cells.append(formatMask(mData[index] / 10.0, QStringLiteral("##0.0")));
        else
            cells.append(plainNumber(mData[index]));
    }
}

} // namespace

QList<QStringList> SeasonReport::rows(const ReportFilter &filter) const
{
    switch (m_kind) {
    case Batting: {
        const QList<int> indices = figureIndices(m_headers, 7, hitD, kFigureCount<hitReporter>);
        return filtered(hData, filter, [&](const hitReporter &r) { return displayHitData(r, indices); });
    }
    case Fielding: {
        const QList<int> indices = figureIndices(m_headers, 4, fieldD, kFigureCount<fldReporter>);
        return filtered(fData, filter, [&](const fldReporter &r) { return displayFldData(r, indices); });
    }
    case Pitching:
        break;
    }
    const QList<int> indices = figureIndices(m_headers, 4, pitchD, kFigureCount<pitchReporter>);
    return filtered(pData, filter, [&](const pitchReporter &r) { return displayPitchData(r, indices); });
}

QStringList SeasonReport::displayHitData(const hitReporter &r, const QList<int> &figures) const
{
    QStringList cells;
    cells.reserve(7 + figures.size());
    cells << r.FName << r.LName << r.mTeam << formatMask(r.mData[0], QStringLiteral("##0"))
          << formatMask(r.Avg, QStringLiteral(".000")) << formatMask(r.OBP, QStringLiteral(".000"))
          << formatMask(r.SPct, QStringLiteral(".000"));
    appendFigures(cells, figures, r.mData);
    return cells;
}

QStringList SeasonReport::displayFldData(const fldReporter &r, const QList<int> &figures) const
{
    QStringList cells{r.FName, r.LName, r.mTeam, formatMask(r.fldPct, QStringLiteral("#.000"))};
    appendFigures(cells, figures, r.mData);
    return cells;
}

QStringList SeasonReport::displayPitchData(const pitchReporter &r, const QList<int> &figures) const
{
    QStringList cells{r.FName, r.LName, r.mTeam, formatMask(r.ERA, QStringLiteral("0.00"))};
    // The innings code 62 reads 6.2.
    appendFigures(cells, figures, r.mData, 10);
    return cells;
}

} // namespace reports
