#include "seasondata/PrefLists.h"

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
    if (abbrevs.size() != names.size())
        return {{QStringLiteral("Data Error"), QString()}};
    QList<QStringList> rows;
    for (qsizetype i = 0; i < abbrevs.size(); ++i)
        rows.append({abbrevs.at(i), names.at(i)});
    return rows;
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

JoinedUD joinUD(const QList<UDSlot> &slots)
{
    QList<UDSlot> fitted;
    for (const UDSlot &s : slots)
        fitted.append({forceTextNotEmpty(cleanUDText(s.abbrev)), cleanUDText(s.desc)});

    JoinedUD joined;
    // The descriptions give way first, the longest each time, so every name
    // keeps as much of itself as the field allows; an abbreviation is cut
    // only when the descriptions are gone, and never below one character.
    while (utf8Size(fitted) > myPrefs::kPascalMax) {
        joined.shortened = true;
        QString *longest = nullptr;
        for (UDSlot &s : fitted) {
            if (!s.desc.isEmpty() && (!longest || s.desc.size() > longest->size()))
                longest = &s.desc;
        }
        if (!longest) {
            for (UDSlot &s : fitted) {
                if (s.abbrev.size() > 1 && (!longest || s.abbrev.size() > longest->size()))
                    longest = &s.abbrev;
            }
        }
        if (!longest)
            break;
        chopOne(*longest);
    }

    QStringList pieces;
    for (const UDSlot &s : fitted)
        pieces << s.abbrev << s.desc;
    joined.text = pieces.join(u'\t');
    return joined;
}

} // namespace seasondata::preflists
