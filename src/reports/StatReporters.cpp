#include "reports/StatReporters.h"

#include "app/myDB.h"

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>

#include <cmath>

namespace reports {

QString seasonTable(ReportKind kind)
{
    switch (kind) {
    case Batting:
        return QStringLiteral("Hitting");
    case Fielding:
        return QStringLiteral("Fielding");
    case Pitching:
        break;
    }
    return QStringLiteral("Pitching");
}

const QStringList &seasonColumns(ReportKind kind)
{
    static const QStringList hitting{QStringLiteral("AB"),   QStringLiteral("B1"),   QStringLiteral("B2"),
                                     QStringLiteral("B3"),   QStringLiteral("HR"),   QStringLiteral("BB"),
                                     QStringLiteral("IBB"),  QStringLiteral("HBP"),  QStringLiteral("SAC"),
                                     QStringLiteral("FO"),   QStringLiteral("GO"),   QStringLiteral("KS"),
                                     QStringLiteral("KL"),   QStringLiteral("HDP"),  QStringLiteral("ROE"),
                                     QStringLiteral("FC"),   QStringLiteral("CI"),   QStringLiteral("Runs"),
                                     QStringLiteral("RBI"),  QStringLiteral("SB"),   QStringLiteral("LOB"),
                                     QStringLiteral("UDB1"), QStringLiteral("UDB2"), QStringLiteral("UDB3"),
                                     QStringLiteral("UDB4"), QStringLiteral("UDB5")};
    static const QStringList fielding{QStringLiteral("IP"),   QStringLiteral("CH"),   QStringLiteral("PO"),
                                      QStringLiteral("Asst"), QStringLiteral("FE"),   QStringLiteral("TE"),
                                      QStringLiteral("DPL"),  QStringLiteral("PB"),   QStringLiteral("SBA"),
                                      QStringLiteral("CS"),   QStringLiteral("UDF1"), QStringLiteral("UDF2"),
                                      QStringLiteral("UDF3")};
    static const QStringList pitching{QStringLiteral("Win"),   QStringLiteral("Loss"),   QStringLiteral("Save"),
                                      QStringLiteral("ND"),    QStringLiteral("Start"),  QStringLiteral("ShO"),
                                      QStringLiteral("CG"),    QStringLiteral("Balls"),  QStringLiteral("Ks"),
                                      QStringLiteral("PitCt"), QStringLiteral("IP"),     QStringLiteral("BF"),
                                      QStringLiteral("Hits"),  QStringLiteral("ErRuns"), QStringLiteral("HRA"),
                                      QStringLiteral("GrO"),   QStringLiteral("FlO"),    QStringLiteral("BB"),
                                      QStringLiteral("IBB"),   QStringLiteral("PckO"),   QStringLiteral("Kouts"),
                                      QStringLiteral("Blk"),   QStringLiteral("WldP"),   QStringLiteral("HitB"),
                                      QStringLiteral("UDP1"),  QStringLiteral("UDP2"),   QStringLiteral("UDP3")};
    switch (kind) {
    case Batting:
        return hitting;
    case Fielding:
        return fielding;
    case Pitching:
        break;
    }
    return pitching;
}

bool readSeasonRows(myDB &db, ReportKind kind, const std::function<void(const SeasonRow &)> &take)
{
    if (!db.isConnected())
        return false;
    const QStringList &columns = seasonColumns(kind);
    // One query for the whole report: the name and the team come with the
    // row, never from a lookup per row. p.playerID tells a vanished player
    // from one whose name is empty.
    QString sql = QStringLiteral("SELECT s.playerID, s.teamID, p.playerID IS NOT NULL, p.First, p.Last, "
                                 "t.League, t.Division, t.TeamName");
    for (const QString &column : columns)
        sql += QStringLiteral(", s.") + column;
    sql += QStringLiteral(" FROM ") + seasonTable(kind) +
           QStringLiteral(" AS s LEFT JOIN Players AS p ON p.playerID = s.playerID"
                          " LEFT JOIN Teams AS t ON t.teamID = s.teamID ORDER BY s.recID");
    constexpr int kFirstFigure = 8;
    try {
        SQLite::Statement query(*db.tlynData, sql.toStdString());
        SeasonRow row;
        row.figures.resize(columns.size());
        const auto text = [&query](int column) {
            const SQLite::Column value = query.getColumn(column);
            return QString::fromUtf8(value.getText(), value.getBytes());
        };
        while (query.executeStep()) {
            row.playerID = query.getColumn(0).getInt64();
            row.teamID = query.getColumn(1).getInt64();
            row.hasPlayer = query.getColumn(2).getInt() != 0;
            row.first = text(3);
            row.last = text(4);
            row.league = text(5);
            row.division = text(6);
            row.teamName = text(7);
            for (int i = 0; i < columns.size(); ++i)
                row.figures[i] = query.getColumn(kFirstFigure + i).getDouble();
            take(row);
        }
    } catch (const SQLite::Exception &) {
        // Run once more through the season object, which keeps and shows the
        // error as it does for every statement; the report stays empty.
        db.select(sql);
        return false;
    }
    return true;
}

} // namespace reports

namespace {

// Name, team and stored figures, the same for the three reporters.
template<class R>
void readCommon(R &r, const reports::SeasonRow &row)
{
    r.tID = row.teamID;
    if (row.hasPlayer) {
        r.FName = row.first;
        r.LName = row.last;
    } else {
        r.FName = QStringLiteral("Unknown");
        r.LName = QStringLiteral("Player");
    }
    r.mLeague = row.league;
    r.mDivision = row.division;
    r.mTeam = row.teamName;
    r.mData.fill(0);
    for (int i = 0; i < R::kStored && i < row.figures.size(); ++i)
        r.mData[i] = row.figures[i];
}

double ratio(double numerator, double divisor)
{
    return divisor == 0 ? 0 : numerator / divisor;
}

} // namespace

void hitReporter::acquireData(const reports::SeasonRow &row)
{
    readCommon(*this, row);
    const double ab = mData[0], b1 = mData[1], b2 = mData[2], b3 = mData[3], hr = mData[4];
    const double bb = mData[5], hbp = mData[7], sac = mData[8];
    // IBB is in neither part of the on-base figure; CI neither.
    Avg = ratio(b1 + b2 + b3 + hr, ab);
    SPct = ratio(b1 + 2 * b2 + 3 * b3 + 4 * hr, ab);
    OBP = ratio(b1 + b2 + b3 + hr + bb + hbp, ab + bb + hbp + sac);
    mData[26] = Avg;
    mData[27] = OBP;
    mData[28] = SPct;
}

void fldReporter::acquireData(const reports::SeasonRow &row)
{
    readCommon(*this, row);
    // Chances as the coach counted them, not put-outs + assists + errors.
    fldPct = ratio(mData[2] + mData[3], mData[1]);
    mData[13] = fldPct;
}

void pitchReporter::acquireData(const reports::SeasonRow &row)
{
    readCommon(*this, row);
    const auto code = static_cast<qint64>(mData[10]);
    const qint64 fullInnings = code / 10;
    const double innings = double(fullInnings) + double(code % 10) / 3.0;
    ERA = ratio(9 * mData[13], innings);
    mData[27] = ERA;
}
