#include "reports/SeasonCsv.h"

#include "app/myDB.h"
#include "app/myDictionaries.h"
#include "reports/ModernRates.h"
#include "reports/SeasonReport.h"
#include "support/CsvText.h"

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>

#include <cmath>

namespace reports {

namespace csv = support::csv;

QHash<qint64, double> sacrificeFlies(myDB &db)
{
    QHash<qint64, double> out;
    if (!db.isConnected() || !db.tlynData->tableExists("SacFlies"))
        return out;
    SQLite::Statement query(*db.tlynData, "SELECT playerID, SF FROM SacFlies");
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

QString rate(double value, int decimals)
{
    return QString::number(value, 'f', decimals);
}

QString count(double value)
{
    return QString::number(static_cast<qint64>(std::llround(value)));
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
QStringList ownRates(ReportKind kind, const QList<double> &f)
{
    SeasonRow row;
    row.hasPlayer = true;
    row.figures = f;
    switch (kind) {
    case Batting: {
        const hitReporter r(row);
        return {rate(r.Avg, 3), rate(r.OBP, 3), rate(r.SPct, 3)};
    }
    case Fielding:
        return {rate(fldReporter(row).fldPct, 3)};
    case Pitching:
        break;
    }
    return {rate(pitchReporter(row).ERA, 2)};
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

QStringList cells(ReportKind kind, const Line &l)
{
    QStringList out{l.number, l.last, l.first, l.team};
    for (qsizetype i = 0; i < l.figures.size(); ++i) {
        if (kind == Pitching && i == 10)
            out.append(rate(l.figures[i] / 10.0, 1));
        else
            out.append(count(l.figures[i]));
        if (kind == Batting && i == 8) // SF right after SAC, which holds it
            out.append(count(l.sf));
    }
    out += ownRates(kind, l.figures);
    const QList<RateColumn> &more = moreColumns(kind);
    const QList<double> values = moreRates(kind, l.figures, l.sf);
    for (qsizetype i = 0; i < more.size(); ++i)
        out.append(rate(values[i], decimalsOf(more[i].mask)));
    return out;
}

bool section(myDB &db, ReportKind kind, const QHash<qint64, double> &flies, QString &out)
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
    out += csv::line({title});
    out += csv::line(headings);

    Line totals;
    totals.last = QStringLiteral("Totals");
    totals.figures.resize(columns.size());
    qint64 thirds = 0;
    try {
        SQLite::Statement query(*db.tlynData, sql.toStdString());
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
            out += csv::line(cells(kind, l));
        }
    } catch (const SQLite::Exception &) {
        db.select(sql); // shows the error as every statement does
        return false;
    }
    if (kind == Pitching)
        totals.figures[10] = inningsCode(thirds);
    out += csv::line(cells(kind, totals));
    return true;
}

} // namespace

QByteArray seasonCsv(myDB &db)
{
    if (!db.isConnected())
        return {};
    QString out;
    const QHash<qint64, double> flies = sacrificeFlies(db);
    for (ReportKind kind : {Batting, Pitching, Fielding}) {
        if (!out.isEmpty())
            out += QStringLiteral("\r\n");
        if (!section(db, kind, flies, out))
            return {};
    }
    return out.toUtf8();
}

QByteArray rowsCsv(const QStringList &headings, const QList<QStringList> &rows)
{
    QString out = csv::line(headings);
    for (const QStringList &row : rows)
        out += csv::line(row);
    return out.toUtf8();
}

} // namespace reports
