#include "reports/ModernRates.h"

namespace reports {

namespace {

double ratio(double numerator, double divisor)
{
    return divisor == 0 ? 0 : numerator / divisor;
}

// Indices of the stored batting figures.
enum Hit { AB = 0, B1, B2, B3, HR, BB, IBB, HBP, SAC, FO, GO, KS, KL, HDP, ROE, FC, CI };
// Indices of the stored pitching figures.
enum Pitch { Strikes = 8, PitCt = 9, IP = 10, BF = 11, Hits = 12, PBB = 17, PIBB = 18, Kouts = 20, HitB = 23 };
// Indices of the stored fielding figures.
enum Fld { PO = 2, Asst = 3, FE = 4, TE = 5 };

double hits(const QList<double> &f)
{
    return f[B1] + f[B2] + f[B3] + f[HR];
}
double totalBases(const QList<double> &f)
{
    return f[B1] + 2 * f[B2] + 3 * f[B3] + 4 * f[HR];
}
// A walk is a walk, intentional or not, in every rate below.
double walks(const QList<double> &f)
{
    return f[BB] + f[IBB];
}
double plateAppearances(const QList<double> &f)
{
    // SAC already holds the sacrifice flies.
    return f[AB] + walks(f) + f[HBP] + f[SAC] + f[CI];
}
double officialObp(const QList<double> &f, double sf)
{
    return ratio(hits(f) + walks(f) + f[HBP], f[AB] + walks(f) + f[HBP] + sf);
}
double pitchingInnings(const QList<double> &f)
{
    return inningsFromCode(f[IP]);
}
double pitchingWalks(const QList<double> &f)
{
    return f[PBB] + f[PIBB];
}

} // namespace

double inningsFromCode(double code)
{
    const auto whole = static_cast<qint64>(code);
    const qint64 fullInnings = whole / 10;
    return double(fullInnings) + double(whole % 10) / 3.0;
}

double inningsCode(qint64 thirds)
{
    const qint64 code = thirds / 3 * 10 + thirds % 3;
    return double(code);
}

const QList<RateColumn> &moreColumns(ReportKind kind)
{
    using F = const QList<double> &;
    static const QList<RateColumn> batting{
        {QStringLiteral("OBP2"), QStringLiteral("(H + BB + IBB + HBP) / (AB + BB + IBB + HBP + SF)"),
         QStringLiteral(".000"), [](F f, double sf) { return officialObp(f, sf); }},
        {QStringLiteral("OPS"), QStringLiteral("OBP2 + SP"), QStringLiteral("#.000"),
         [](F f, double sf) { return officialObp(f, sf) + ratio(totalBases(f), f[AB]); }},
        {QStringLiteral("ISO"), QStringLiteral("(TB - H) / AB"), QStringLiteral(".000"),
         [](F f, double) { return ratio(totalBases(f) - hits(f), f[AB]); }},
        {QStringLiteral("BABIP"), QStringLiteral("(H - HR) / (AB - KS - KL - HR + SF)"), QStringLiteral(".000"),
         [](F f, double sf) { return ratio(hits(f) - f[HR], f[AB] - f[KS] - f[KL] - f[HR] + sf); }},
        {QStringLiteral("K%"), QStringLiteral("100 x (KS + KL) / PA"), QStringLiteral("##0.0"),
         [](F f, double) { return 100 * ratio(f[KS] + f[KL], plateAppearances(f)); }},
        {QStringLiteral("BB%"), QStringLiteral("100 x (BB + IBB) / PA"), QStringLiteral("##0.0"),
         [](F f, double) { return 100 * ratio(walks(f), plateAppearances(f)); }},
    };
    static const QList<RateColumn> pitching{
        {QStringLiteral("WHIP"), QStringLiteral("(BB + IBB + H) / IP"), QStringLiteral("#0.00"),
         [](F f, double) { return ratio(pitchingWalks(f) + f[Hits], pitchingInnings(f)); }},
        {QStringLiteral("K/9"), QStringLiteral("9 x Kouts / IP"), QStringLiteral("#0.00"),
         [](F f, double) { return 9 * ratio(f[Kouts], pitchingInnings(f)); }},
        {QStringLiteral("BB/9"), QStringLiteral("9 x (BB + IBB) / IP"), QStringLiteral("#0.00"),
         [](F f, double) { return 9 * ratio(pitchingWalks(f), pitchingInnings(f)); }},
        {QStringLiteral("H/9"), QStringLiteral("9 x H / IP"), QStringLiteral("#0.00"),
         [](F f, double) { return 9 * ratio(f[Hits], pitchingInnings(f)); }},
        {QStringLiteral("K/BB"), QStringLiteral("Kouts / (BB + IBB)"), QStringLiteral("#0.00"),
         [](F f, double) { return ratio(f[Kouts], pitchingWalks(f)); }},
        {QStringLiteral("OAvg"), QStringLiteral("H / (BF - BB - IBB - HB)"), QStringLiteral(".000"),
         [](F f, double) { return ratio(f[Hits], f[BF] - pitchingWalks(f) - f[HitB]); }},
        {QStringLiteral("Str%"), QStringLiteral("100 x Ks / PitCt"), QStringLiteral("##0.0"),
         [](F f, double) { return 100 * ratio(f[Strikes], f[PitCt]); }},
        {QStringLiteral("P/IP"), QStringLiteral("PitCt / IP"), QStringLiteral("#0.0"),
         [](F f, double) { return ratio(f[PitCt], pitchingInnings(f)); }},
    };
    static const QList<RateColumn> fielding{
        {QStringLiteral("FPct2"), QStringLiteral("(PO + Asst) / (PO + Asst + FE + TE)"), QStringLiteral("#.000"),
         [](F f, double) { return ratio(f[PO] + f[Asst], f[PO] + f[Asst] + f[FE] + f[TE]); }},
    };
    switch (kind) {
    case Batting:
        return batting;
    case Fielding:
        return fielding;
    case Pitching:
        break;
    }
    return pitching;
}

QList<double> moreRates(ReportKind kind, const QList<double> &figures, double sf)
{
    QList<double> out;
    const QList<RateColumn> &columns = moreColumns(kind);
    out.reserve(columns.size());
    const qsizetype needed = seasonColumns(kind).size();
    if (figures.size() < needed) {
        QList<double> padded = figures;
        padded.resize(needed);
        for (const RateColumn &c : columns)
            out.append(c.compute(padded, sf));
        return out;
    }
    for (const RateColumn &c : columns)
        out.append(c.compute(figures, sf));
    return out;
}

} // namespace reports
