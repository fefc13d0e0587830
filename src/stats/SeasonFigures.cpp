#include "stats/SeasonFigures.h"

#include <limits>

namespace stats {

const std::array<const char *, kHittingFigures> &hittingColumns()
{
    static const std::array<const char *, kHittingFigures> names = {"AB",   "B1",   "B2",   "B3",   "HR",  "BB", "IBB",
                                                                    "HBP",  "SAC",  "FO",   "GO",   "KS",  "KL", "HDP",
                                                                    "ROE",  "FC",   "CI",   "Runs", "RBI", "SB", "LOB",
                                                                    "UDB1", "UDB2", "UDB3", "UDB4", "UDB5"};
    return names;
}

const std::array<const char *, kFieldingFigures> &fieldingColumns()
{
    static const std::array<const char *, kFieldingFigures> names = {"IP", "CH",  "PO", "Asst", "FE",   "TE",  "DPL",
                                                                     "PB", "SBA", "CS", "UDF1", "UDF2", "UDF3"};
    return names;
}

const std::array<const char *, kPitchingFigures> &pitchingColumns()
{
    static const std::array<const char *, kPitchingFigures> names = {
        "Win",   "Loss", "Save",  "ND",   "Start",  "ShO",  "CG",   "Balls", "Ks",
        "PitCt", "IP",   "BF",    "Hits", "ErRuns", "HRA",  "GrO",  "FlO",   "BB",
        "IBB",   "PckO", "Kouts", "Blk",  "WldP",   "HitB", "UDP1", "UDP2",  "UDP3"};
    return names;
}

namespace {

// The leading "[-+]digits[.digits]" of a text after blanks, or empty.
QStringView leadingNumber(QStringView text)
{
    qsizetype start = 0;
    while (start < text.size() && text.at(start).isSpace())
        ++start;
    qsizetype i = start;
    if (i < text.size() && (text.at(i) == u'-' || text.at(i) == u'+'))
        ++i;
    while (i < text.size() && text.at(i).isDigit())
        ++i;
    if (i < text.size() && text.at(i) == u'.') {
        ++i;
        while (i < text.size() && text.at(i).isDigit())
            ++i;
    }
    return text.mid(start, i - start);
}

} // namespace

qint64 figureCount(QStringView text)
{
    // Counts are whole: the digits before the dot are all that is read.
    const QStringView number = leadingNumber(text);
    qsizetype i = 0;
    const bool negative = !number.isEmpty() && number.at(0) == u'-';
    if (!number.isEmpty() && (number.at(0) == u'-' || number.at(0) == u'+'))
        ++i;
    qint64 value = 0;
    for (; i < number.size() && number.at(i).isDigit(); ++i) {
        if (value > (std::numeric_limits<qint64>::max() - 9) / 10)
            break; // a figure no game holds: kept at its leading digits
        value = value * 10 + number.at(i).digitValue();
    }
    return negative ? -value : value;
}

std::optional<int> inningsCodeFromText(QStringView text)
{
    // Read from the digits, not by multiplying a floating value by ten:
    // "4.1" must give 41 exactly.
    const QStringView number = leadingNumber(text);
    const qsizetype dot = number.indexOf(u'.');
    const qint64 whole = figureCount(dot < 0 ? number : number.left(dot));
    int thirds = 0;
    if (dot >= 0 && dot + 1 < number.size())
        thirds = number.at(dot + 1).digitValue();
    if (thirds > 2)
        return std::nullopt;
    return int(whole * 10 + (whole < 0 ? -thirds : thirds));
}

bool isInningsCode(qint64 code)
{
    return code >= 0 && code % 10 <= 2;
}

std::optional<qint64> getInningsPitchedVal(qint64 a, qint64 b)
{
    if (!isInningsCode(a) || !isInningsCode(b))
        return std::nullopt;
    // Count in outs, three to an inning, and write the sum back as a code.
    const qint64 outs = (a / 10) * 3 + a % 10 + (b / 10) * 3 + b % 10;
    return (outs / 3) * 10 + outs % 3;
}

std::optional<qint64> subtractInningsPitched(qint64 a, qint64 b)
{
    if (!isInningsCode(a) || !isInningsCode(b))
        return std::nullopt;
    const qint64 outs = (a / 10) * 3 + a % 10 - ((b / 10) * 3 + b % 10);
    if (outs < 0)
        return std::nullopt;
    return (outs / 3) * 10 + outs % 3;
}

} // namespace stats
