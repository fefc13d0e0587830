#include "seasondata/PrefLists.h"

#include <algorithm>

#include "app/myPrefs.h"

namespace seasondata::preflists {

namespace {

struct FreqRow
{
    const char *text;
    int minutes;
};
constexpr FreqRow kFreqRows[] = {{"Never", 0},    {"5 min.", 5},   {"10 min.", 10},
                                 {"15 min.", 15}, {"30 min.", 30}, {"1 hour", 60}};

QString withoutCommas(QString text)
{
    return text.remove(u',');
}

// Tabs would split a pair and line ends the file's lines: both become blanks.
QString cleanUDText(QString text)
{
    for (QChar &c : text) {
        if (c == u'\t' || c == u'\r' || c == u'\n')
            c = u' ';
    }
    return text;
}

qsizetype utf8Size(const QList<UDSlot> &slots)
{
    qsizetype bytes = 0;
    for (const UDSlot &s : slots)
        bytes += s.abbrev.toUtf8().size() + s.desc.toUtf8().size() + 2; // and the two tabs
    return bytes - 1;                                                   // no tab after the last piece
}

// Drops the last character (a whole surrogate pair where there is one).
void chopOne(QString &text)
{
    text.chop(text.size() >= 2 && text.back().isLowSurrogate() ? 2 : 1);
}

} // namespace

QStringList inningsRows()
{
    return {QStringLiteral("5 Innings"), QStringLiteral("6 Innings"), QStringLiteral("7 Innings"),
            QStringLiteral("8 Innings"), QStringLiteral("9 Innings")};
}

QStringList lineupRows()
{
    return {QStringLiteral("9 Players"), QStringLiteral("10 Players"), QStringLiteral("12 Players"),
            QStringLiteral("15 Players"), QStringLiteral("18 Players")};
}

int leadingNumber(const QString &text)
{
    qsizetype n = 0;
    while (n < text.size() && text.at(n).isDigit())
        ++n;
    return text.left(n).toInt();
}

QStringList backupFreqRows()
{
    QStringList rows;
    for (const FreqRow &r : kFreqRows)
        rows.append(QString::fromLatin1(r.text));
    return rows;
}

int backupFreqRow(int minutes)
{
    for (int i = 0; i < int(std::size(kFreqRows)); ++i) {
        if (kFreqRows[i].minutes == minutes)
            return i;
    }
    return 0;
}

int backupFreqValue(int row)
{
    return row >= 0 && row < int(std::size(kFreqRows)) ? kFreqRows[row].minutes : 0;
}

QList<QStringList> positionRows(const QString &prAbbrevPos, const QString &prPositions)
{
    const QStringList abbrevs = prAbbrevPos.split(u',');
    const QStringList names = prPositions.split(u',');
    QList<QStringList> rows;
    for (qsizetype i = 0; i < std::max(abbrevs.size(), names.size()); ++i)
        rows.append({abbrevs.value(i), names.value(i)});
    return rows;
}

QList<int> unpairedPositionLines(const QString &prAbbrevPos, const QString &prPositions)
{
    const qsizetype abbrevs = prAbbrevPos.split(u',').size();
    const qsizetype names = prPositions.split(u',').size();
    QList<int> lines;
    for (qsizetype i = std::min(abbrevs, names); i < std::max(abbrevs, names); ++i)
        lines.append(int(i + 1));
    return lines;
}

std::pair<QString, QString> joinPositions(const QList<QStringList> &rows)
{
    QStringList abbrevs;
    QStringList names;
    for (const QStringList &row : rows) {
        abbrevs.append(withoutCommas(row.value(0)));
        names.append(withoutCommas(row.value(1)));
    }
    return {abbrevs.join(u','), names.join(u',')};
}

QStringList gameTypeRows(const QString &prGameTypes)
{
    return prGameTypes.split(u',');
}

QString joinGameTypes(const QStringList &rows)
{
    QStringList types;
    for (const QString &t : rows)
        types.append(withoutCommas(t));
    return types.join(u',');
}

QList<UDSlot> splitUD(const QString &pref, int slots)
{
    const QStringList pieces = pref.split(u'\t');
    if (pieces.size() != slots * 2)
        return {};
    QList<UDSlot> out;
    for (int i = 0; i < slots; ++i)
        out.append({pieces.at(i * 2), pieces.at(i * 2 + 1)});
    return out;
}

QString forceTextNotEmpty(const QString &text)
{
    return text.isEmpty() ? QStringLiteral("--") : text;
}

JoinedUD joinUD(const QList<UDSlot> &slots, const QList<UDSlot> &stored)
{
    QList<UDSlot> fitted;
    for (const UDSlot &s : slots)
        fitted.append({forceTextNotEmpty(cleanUDText(s.abbrev)), cleanUDText(s.desc)});

    // Field i of the list: the abbreviation (even) or description (odd).
    const auto field = [&](int i) -> QString & { return i % 2 ? fitted[i / 2].desc : fitted[i / 2].abbrev; };
    const auto typed = [&](int i) {
        if (i / 2 >= stored.size())
            return true;
        const UDSlot &was = stored.at(i / 2);
        return i % 2 ? fitted.at(i / 2).desc != was.desc : fitted.at(i / 2).abbrev != forceTextNotEmpty(was.abbrev);
    };

    JoinedUD joined;
    // Each time the longest field may give a character: first among the
    // fields typed, descriptions before abbreviations; an abbreviation
    // never goes below one character.
    const auto longest = [&](bool typedOnly, bool abbrevs) {
        int best = -1;
        for (int i = abbrevs ? 0 : 1; i < fitted.size() * 2; i += 2) {
            const qsizetype floor = abbrevs ? 1 : 0;
            if (field(i).size() > floor && (!typedOnly || typed(i)) &&
                (best < 0 || field(i).size() > field(best).size()))
                best = i;
        }
        return best;
    };
    while (utf8Size(fitted) > myPrefs::kPascalMax) {
        joined.shortened = true;
        int next = -1;
        for (const bool typedOnly : {true, false}) {
            for (const bool abbrevs : {false, true}) {
                if (next < 0)
                    next = longest(typedOnly, abbrevs);
            }
        }
        if (next < 0)
            break;
        chopOne(field(next));
        if (!joined.cut.contains(next))
            joined.cut.append(next);
    }
    std::sort(joined.cut.begin(), joined.cut.end());

    QStringList pieces;
    for (const UDSlot &s : fitted)
        pieces << s.abbrev << s.desc;
    joined.text = pieces.join(u'\t');
    return joined;
}

} // namespace seasondata::preflists
