#include "help/Abbreviations.h"

namespace help {

const QList<std::pair<QString, QString>> &abbreviationRows()
{
    static const QList<std::pair<QString, QString>> rows = [] {
        // Stored as "term|meaning"; the list reads more easily this way.
        static const char *const table[] = {
            "W|Win",
            "L|Loss",
            "S|Save",
            "ND|No Decision",
            "IP|Innings Pitched",
            "BF|Batters Faced",
            "H|Hits",
            "ER|Earned Runs",
            "HRA|HR Allowed",
            "GO|Ground Out",
            "FO|Fly Out",
            "BB|Basses on Balls",
            "IBB|Intentional Basses on Balls",
            "PO|Pick Offs",
            "Ks|Strike Outs",
            "Blk|Balks",
            "WP|Wild Pitches",
            "HB|Hit Batter",
            "WHIP|Walks and Hits per Inning = (BB + IBB + H) / IP",
            "K/9|Strike Outs per 9 Innings = 9 x Kouts / IP",
            "BB/9|Walks per 9 Innings = 9 x (BB + IBB) / IP",
            "H/9|Hits per 9 Innings = 9 x H / IP",
            "K/BB|Strike Outs per Walk = Kouts / (BB + IBB)",
            "OAvg|Opponents' Batting Average = H / (BF - BB - IBB - HB)",
            "Str%|Strike % = 100 x Ks / PitCt",
            "P/IP|Pitches per Inning = PitCt / IP",
            "Batters|",
            "IP|Innings Played",
            "Avg|Batting Average",
            "OBP|On Base %",
            "SP|Slugging %",
            "AB|At Bats",
            "B1|Singles",
            "B2|Doubles",
            "B3|Triples",
            "HR|Home Runs",
            "BB|Bases on Balls",
            "IBB|Intentional BB",
            "LOB|Left on Base",
            "RBI|Runs Batted In",
            "Rns|Runs Scored",
            "SAC|Sacrifice Fly",
            "SF|Sacrifice Fly (also counted in SAC)",
            "PA|Plate Appearances = AB + BB + IBB + HBP + SAC + CI",
            "OBP2|Official On Base % = (H + BB + IBB + HBP) / (AB + BB + IBB + HBP + SF)",
            "OPS|On Base Plus Slugging = OBP2 + SP",
            "ISO|Isolated Power = (TB - H) / AB",
            "BABIP|Batting Average on Balls in Play = (H - HR) / (AB - KS - KL - HR + SF)",
            "K%|Strike Out % = 100 x (KS + KL) / PA",
            "BB%|Walk % = 100 x (BB + IBB) / PA",
            "SB|Stolen Base",
            "CS|Caught Stealing",
            "FO|Fly Out",
            "FC|Fielder's Choice",
            "GO|Ground Out",
            "KL|Strike Out Looking",
            "KS|Strike Out Swinging",
            "HDP|Hit Into Double Play",
            "ROE|Reached On Error",
            "CI|Catcher Interference",
            "POB|Picked Off Base",
            "FrO|Force Out",
            "Fielding|",
            "IPL|Innings Played",
            "CH|Chances",
            "PO|Put Outs",
            "Ast|Assists",
            "Fer|Fielding Error",
            "Ter|Throwing Error",
            "Dbl P|Double Play",
            "PB|Passed Ball",
            "SBA|Stolen Base Attempts",
            "CS|Caught Stealing",
            "FPct2|Fielding % = (PO + Asst) / (PO + Asst + FE + TE)",
        };
        QList<std::pair<QString, QString>> list;
        for (const char *row : table) {
            const QString text = QString::fromUtf8(row);
            list.append({text.section(u'|', 0, 0), text.section(u'|', 1)});
        }
        return list;
    }();
    return rows;
}

int findAbbreviation(const QString &typed)
{
    const auto &rows = abbreviationRows();
    for (int i = 0; i < rows.size(); ++i) {
        if (rows.at(i).first.compare(typed, Qt::CaseInsensitive) == 0)
            return i;
    }
    return -1;
}

} // namespace help
