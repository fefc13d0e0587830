#include "reports/SeasonCsv.h"

#include "app/globals.h"
#include "app/myDB.h"
#include "app/myDictionaries.h"
#include "reports/ModernRates.h"
#include "reports/SeasonReport.h"
#include "support/CsvText.h"

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>

#include <charconv>
#include <cmath>

namespace reports {

namespace csv = support::csv;

QHash<qint64, double> sacrificeFlies(myDB &db)
{
    if (!db.isConnected())
        return {};
    try {
        return sacrificeFlies(*db.tlynData);
    } catch (const SQLite::Exception &) {
        return {}; // the season tables' own reads report a failing file
    }
}

QHash<qint64, double> sacrificeFlies(SQLite::Database &db)
{
    QHash<qint64, double> out;
    if (!db.tableExists("SacFlies"))
        return out;
    SQLite::Statement query(db, "SELECT playerID, SF FROM SacFlies");
    while (query.executeStep())
        out.insert(query.getColumn(0).getInt64(), query.getColumn(1).getDouble());
    return out;
}

namespace {

int decimalsOf(const QString &mask)
{
    const qsizetype point = mask.indexOf(u'.');
    return point < 0 ? 0 : int(mask.size() - point - 1);
}

// The heading of stored figure `index`: its dictionary key (a user-defined
// column's own name), else the column's name.
QString figureHeading(ReportKind kind, int index)
{
    const StatDictionary &dict = chooser::dictionary(kind);
    for (const QString &key : dict.keys()) {
        if (dict.value(key) == index)
            return key;
    }
    return seasonColumns(kind).at(index);
}

struct Line
{
    QString number, last, first, team;
    QList<double> figures;
    double sf = 0;
};

// The report's own derived figures: Avg, OBP, SP; ERA; FPct.
// Appends one line's fields as CSV bytes: text through csv::field, numbers
// straight from their digits (a number never needs quotes).
class LineWriter
{
public:
    explicit LineWriter(QByteArray &out) : m_out(out) {}
    void text(const QString &value)
    {
        separate();
        m_out += csv::field(value).toUtf8();
    }
    void whole(double value)
    {
        separate();
        char buffer[32];
        const auto end = std::to_chars(buffer, buffer + sizeof buffer, static_cast<long long>(std::llround(value)));
        m_out.append(buffer, end.ptr - buffer);
    }
    void fixed(double value, int decimals)
    {
        separate();
        char buffer[64];
        const auto end = std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::fixed, decimals);
        m_out.append(buffer, end.ptr - buffer);
    }
    void end()
    {
        m_out += "\r\n";
        m_first = true;
    }

private:
    void separate()
    {
        if (!m_first)
            m_out += ',';
        m_first = false;
    }
    QByteArray &m_out;
    bool m_first = true;
};

// The report's own derived figures: Avg, OBP, SP; ERA; FPct.
void ownRates(LineWriter &w, ReportKind kind, const QList<double> &f)
{
    SeasonRow row;
    row.hasPlayer = true;
    row.figures = f;
    switch (kind) {
    case Batting: {
        const hitReporter r(row);
        w.fixed(r.Avg, 3);
        w.fixed(r.OBP, 3);
        w.fixed(r.SPct, 3);
        return;
    }
    case Fielding:
        w.fixed(fldReporter(row).fldPct, 3);
        return;
    case Pitching:
        break;
    }
    w.fixed(pitchReporter(row).ERA, 2);
}

QStringList ownRateHeadings(ReportKind kind)
{
    switch (kind) {
    case Batting:
        return {QStringLiteral("Avg"), QStringLiteral("OBP"), QStringLiteral("SP")};
    case Fielding:
        return {QStringLiteral("FPct")};
    case Pitching:
        break;
    }
    return {QStringLiteral("ERA")};
}

void writeLine(QByteArray &out, ReportKind kind, const Line &l)
{
    LineWriter w(out);
    w.text(l.number);
    w.text(l.last);
    w.text(l.first);
    w.text(l.team);
    for (qsizetype i = 0; i < l.figures.size(); ++i) {
        if (kind == Pitching && i == 10)
            w.fixed(l.figures[i] / 10.0, 1);
        else
            w.whole(l.figures[i]);
        if (kind == Batting && i == 8) // SF right after SAC, which holds it
            w.whole(l.sf);
    }
    ownRates(w, kind, l.figures);
    const QList<RateColumn> &more = moreColumns(kind);
    const QList<double> values = moreRates(kind, l.figures, l.sf);
    for (qsizetype i = 0; i < more.size(); ++i)
        w.fixed(values[i], decimalsOf(more[i].mask));
    w.end();
}

// Throws on a database error.
void section(SQLite::Database &db, ReportKind kind, const QHash<qint64, double> &flies, QByteArray &out)
{
    const QStringList &columns = seasonColumns(kind);
    QString sql = QStringLiteral("SELECT s.playerID, p.playerID IS NOT NULL, p.UniNum, p.Last, p.First, t.TeamName");
    for (const QString &column : columns)
        sql += QStringLiteral(", s.") + column;
    sql += QStringLiteral(" FROM ") + seasonTable(kind) +
           QStringLiteral(" AS s LEFT JOIN Players AS p ON p.playerID = s.playerID"
                          " LEFT JOIN Teams AS t ON t.teamID = s.teamID"
                          " ORDER BY t.TeamName, p.Last, p.First, s.recID");
    constexpr int kFirstFigure = 6;

    QStringList headings{QStringLiteral("No."), QStringLiteral("Last"), QStringLiteral("First"),
                         QStringLiteral("Team")};
    for (int i = 0; i < columns.size(); ++i) {
        headings.append(figureHeading(kind, i));
        if (kind == Batting && i == 8)
            headings.append(QStringLiteral("SF"));
    }
    headings += ownRateHeadings(kind);
    for (const RateColumn &c : moreColumns(kind))
        headings.append(c.key);

    QString title;
    switch (kind) {
    case Batting:
        title = QStringLiteral("Batting");
        break;
    case Fielding:
        title = QStringLiteral("Fielding");
        break;
    case Pitching:
        title = QStringLiteral("Pitching");
        break;
    }
    out += csv::line({title}).toUtf8();
    out += csv::line(headings).toUtf8();

    Line totals;
    totals.last = QStringLiteral("Totals");
    totals.figures.resize(columns.size());
    qint64 thirds = 0;
    {
        SQLite::Statement query(db, sql.toStdString());
        Line l;
        l.figures.resize(columns.size());
        const auto text = [&query](int column) {
            const SQLite::Column value = query.getColumn(column);
            return QString::fromUtf8(value.getText(), value.getBytes());
        };
        while (query.executeStep()) {
            const qint64 player = query.getColumn(0).getInt64();
            const bool known = query.getColumn(1).getInt() != 0;
            l.number = text(2);
            l.last = known ? text(3) : QStringLiteral("Player");
            l.first = known ? text(4) : QStringLiteral("Unknown");
            l.team = text(5);
            for (int i = 0; i < columns.size(); ++i) {
                l.figures[i] = query.getColumn(kFirstFigure + i).getDouble();
                totals.figures[i] += l.figures[i];
            }
            if (kind == Pitching) {
                const auto code = static_cast<qint64>(l.figures[10]);
                thirds += code / 10 * 3 + code % 10;
            }
            l.sf = kind == Batting ? flies.value(player) : 0;
            totals.sf += l.sf;
            writeLine(out, kind, l);
        }
    }
    if (kind == Pitching)
        totals.figures[10] = inningsCode(thirds);
    writeLine(out, kind, totals);
}

} // namespace

QByteArray seasonCsv(SQLite::Database &db)
{
    QByteArray out;
    out.reserve(256 * 1024);
    const QHash<qint64, double> flies = sacrificeFlies(db);
    for (ReportKind kind : {Batting, Pitching, Fielding}) {
        if (!out.isEmpty())
            out += "\r\n";
        section(db, kind, flies, out);
    }
    return out;
}

QByteArray seasonCsv(myDB &db)
{
    if (!db.isConnected())
        return {};
    try {
        return seasonCsv(*db.tlynData);
    } catch (const SQLite::Exception &e) {
        gShowMsgDlog(QStringLiteral("The season's statistics couldn't be read."), QString::fromUtf8(e.what()),
                     QStringLiteral("OK"));
        return {};
    }
}

QByteArray rowsCsv(const QStringList &headings, const QList<QStringList> &rows)
{
    QString out = csv::line(headings);
    for (const QStringList &row : rows)
        out += csv::line(row);
    return out.toUtf8();
}

} // namespace reports
