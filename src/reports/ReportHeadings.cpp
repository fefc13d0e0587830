#include "reports/ReportHeadings.h"

#include <QHash>

namespace reports {

namespace {

struct Heading
{
    const char *meaning;
    bool fewestBest = false; // a figure where fewer is better
};

using Table = QHash<QString, Heading>;

const Table &tableOf(ReportKind kind)
{
    static const Table batting{
        {QStringLiteral("AB"), {"At Bats"}},
        {QStringLiteral("Avg"), {"Batting Average"}},
        {QStringLiteral("OBP"), {"On Base %"}},
        {QStringLiteral("SP"), {"Slugging %"}},
        {QStringLiteral("B1"), {"Singles"}},
        {QStringLiteral("B2"), {"Doubles"}},
        {QStringLiteral("B3"), {"Triples"}},
        {QStringLiteral("HR"), {"Home Runs"}},
        {QStringLiteral("BB"), {"Bases on Balls"}},
        {QStringLiteral("IBB"), {"Intentional BB"}},
        {QStringLiteral("HBP"), {"Hit By Pitch"}},
        {QStringLiteral("SAC"), {"Sacrifice Fly"}},
        {QStringLiteral("FO"), {"Fly Out", true}},
        {QStringLiteral("GO"), {"Ground Out", true}},
        {QStringLiteral("KS"), {"Strike Out Swinging", true}},
        {QStringLiteral("KL"), {"Strike Out Looking", true}},
        {QStringLiteral("HDP"), {"Hit Into Double Play", true}},
        {QStringLiteral("ROE"), {"Reached On Error"}},
        {QStringLiteral("FC"), {"Fielder's Choice"}},
        {QStringLiteral("CI"), {"Catcher Interference"}},
        {QStringLiteral("Runs"), {"Runs Scored"}},
        {QStringLiteral("RBI"), {"Runs Batted In"}},
        {QStringLiteral("SB"), {"Stolen Base"}},
        {QStringLiteral("LOB"), {"Left on Base", true}},
    };
    static const Table fielding{
        {QStringLiteral("FPct"), {"Fielding %"}},
        {QStringLiteral("IP"), {"Innings Played"}},
        {QStringLiteral("CH"), {"Chances"}},
        {QStringLiteral("PO"), {"Put Outs"}},
        {QStringLiteral("Asst"), {"Assists"}},
        {QStringLiteral("FE"), {"Fielding Error", true}},
        {QStringLiteral("TE"), {"Throwing Error", true}},
        {QStringLiteral("DPL"), {"Double Play"}},
        {QStringLiteral("PB"), {"Passed Ball", true}},
        {QStringLiteral("SBA"), {"Stolen Base Attempts", true}},
        {QStringLiteral("CS"), {"Caught Stealing"}},
    };
    static const Table pitching{
        {QStringLiteral("ERA"), {"Earned Run Average", true}},
        {QStringLiteral("Win"), {"Win"}},
        {QStringLiteral("Loss"), {"Loss", true}},
        {QStringLiteral("Save"), {"Save"}},
        {QStringLiteral("ND"), {"No Decision"}},
        {QStringLiteral("Start"), {"Games Started"}},
        {QStringLiteral("ShO"), {"Shutouts"}},
        {QStringLiteral("CG"), {"Complete Games"}},
        {QStringLiteral("Balls"), {"Balls Thrown", true}},
        {QStringLiteral("Ks"), {"Strikes Thrown"}},
        {QStringLiteral("PitCt"), {"Pitch Count"}},
        {QStringLiteral("IP"), {"Innings Pitched"}},
        {QStringLiteral("BF"), {"Batters Faced"}},
        {QStringLiteral("Hits"), {"Hits", true}},
        {QStringLiteral("ErRuns"), {"Earned Runs", true}},
        {QStringLiteral("HRA"), {"HR Allowed", true}},
        {QStringLiteral("GrO"), {"Ground Out"}},
        {QStringLiteral("FlO"), {"Fly Out"}},
        {QStringLiteral("BB"), {"Bases on Balls", true}},
        {QStringLiteral("IBB"), {"Intentional Bases on Balls", true}},
        {QStringLiteral("PckO"), {"Pick Offs"}},
        {QStringLiteral("Kouts"), {"Strike Outs"}},
        {QStringLiteral("Blk"), {"Balks", true}},
        {QStringLiteral("WldP"), {"Wild Pitches", true}},
        {QStringLiteral("HitB"), {"Hit Batter", true}},
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

const Heading *find(ReportKind kind, const QString &heading, bool *isName = nullptr)
{
    static const Table names{
        {QStringLiteral("First Name"), {"First Name"}},
        {QStringLiteral("Last Name"), {"Last Name"}},
        {QStringLiteral("Team"), {"Team"}},
    };
    const auto name = names.constFind(heading);
    if (isName)
        *isName = name != names.cend();
    if (name != names.cend())
        return &name.value();
    const Table &table = tableOf(kind);
    const auto found = table.constFind(heading);
    return found == table.cend() ? nullptr : &found.value();
}

} // namespace

QString headingDescription(ReportKind kind, const QString &heading)
{
    const Heading *found = find(kind, heading);
    return found ? QString::fromUtf8(found->meaning) : heading + QStringLiteral(": a user-defined statistic");
}

Qt::SortOrder firstSortOrder(ReportKind kind, const QString &heading)
{
    bool isName = false;
    const Heading *found = find(kind, heading, &isName);
    if (isName || (found && found->fewestBest))
        return Qt::AscendingOrder;
    return Qt::DescendingOrder;
}

} // namespace reports
