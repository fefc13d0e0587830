#include "app/myDictionaries.h"

#include "app/globals.h"
#include "app/myPrefs.h"

StatDictionary hitD;
StatDictionary fieldD;
StatDictionary pitchD;

void StatDictionary::set(const QString &key, int value)
{
    if (!m_values.contains(key))
        m_keys.append(key);
    m_values.insert(key, value);
}

void StatDictionary::clear()
{
    m_keys.clear();
    m_values.clear();
}

namespace myDictionaries {

namespace {

struct Fixed
{
    const char *key;
    int value;
};

// Adds the fixed keys, then the user-defined abbreviations when the
// preference splits into exactly `pieces` pieces, else the column names.
StatDictionary build(std::initializer_list<Fixed> fixed, const QString &pref, int pieces, int firstIndex,
                     const char *fallbackPrefix)
{
    StatDictionary d;
    for (const Fixed &f : fixed)
        d.set(QString::fromLatin1(f.key), f.value);
    const QStringList split = pref.split(u'\t');
    const int slots = pieces / 2;
    if (split.size() == pieces) {
        for (int i = 0; i < slots; ++i)
            d.set(split[i * 2], firstIndex + i);
    } else {
        for (int i = 0; i < slots; ++i)
            d.set(QString::fromLatin1(fallbackPrefix) + QString::number(i + 1), firstIndex + i);
    }
    return d;
}

QString pref(QString myPrefs::*field)
{
    return gPrefs ? gPrefs->*field : QString();
}

} // namespace

StatDictionary buildHitting(const QString &prUDB)
{
    return build({{"AB", 0},  {"Avg", 26}, {"OBP", 27},  {"SP", 28},  {"B1", 1},   {"B2", 2},
                  {"B3", 3},  {"HR", 4},   {"BB", 5},    {"IBB", 6},  {"HBP", 7},  {"SAC", 8},
                  {"FO", 9},  {"GO", 10},  {"KS", 11},   {"KL", 12},  {"HDP", 13}, {"ROE", 14},
                  {"FC", 15}, {"CI", 16},  {"Runs", 17}, {"RBI", 18}, {"SB", 19},  {"LOB", 20}},
                 prUDB, 10, 21, "UDB");
}

StatDictionary buildFielding(const QString &prUDF)
{
    return build({{"FPct", 13},
                  {"IP", 0},
                  {"CH", 1},
                  {"PO", 2},
                  {"Asst", 3},
                  {"FE", 4},
                  {"TE", 5},
                  {"DPL", 6},
                  {"PB", 7},
                  {"SBA", 8},
                  {"CS", 9}},
                 prUDF, 6, 10, "UDF");
}

StatDictionary buildPitching(const QString &prUDP)
{
    return build({{"ERA", 27},    {"Win", 0},   {"Loss", 1},  {"Save", 2},  {"ND", 3},  {"Start", 4}, {"ShO", 5},
                  {"CG", 6},      {"Balls", 7}, {"Ks", 8},    {"PitCt", 9}, {"IP", 10}, {"BF", 11},   {"Hits", 12},
                  {"ErRuns", 13}, {"HRA", 14},  {"GrO", 15},  {"FlO", 16},  {"BB", 17}, {"IBB", 18},  {"PckO", 19},
                  {"Kouts", 20},  {"Blk", 21},  {"WldP", 22}, {"HitB", 23}},
                 prUDP, 6, 24, "UDP");
}

void initHitting()
{
    hitD = buildHitting(pref(&myPrefs::prUDB));
}
void initFielding()
{
    fieldD = buildFielding(pref(&myPrefs::prUDF));
}
void initPitching()
{
    pitchD = buildPitching(pref(&myPrefs::prUDP));
}

} // namespace myDictionaries
