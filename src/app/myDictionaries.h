#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

// A statistic's key (a column heading such as "AB" or "ERA") mapped to its
// index in the per-player figure arrays. Keys come back in the order they
// were first entered; setting a key again replaces its value in place.
// Keys are compared case-sensitively.
class StatDictionary
{
public:
    void set(const QString &key, int value);
    bool hasKey(const QString &key) const { return m_values.contains(key); }
    int value(const QString &key, int fallback = -1) const { return m_values.value(key, fallback); }
    const QStringList &keys() const { return m_keys; }
    qsizetype count() const { return m_keys.size(); }
    void clear();

private:
    QStringList m_keys;
    QHash<QString, int> m_values;
};

extern StatDictionary hitD;
extern StatDictionary fieldD;
extern StatDictionary pitchD;

namespace myDictionaries {

// Rebuild each dictionary from the user-defined names in gPrefs.
void initHitting();
void initFielding();
void initPitching();

// The same from a given preference text (abbreviation and description
// pairs separated by tabs).
StatDictionary buildHitting(const QString &prUDB);
StatDictionary buildFielding(const QString &prUDF);
StatDictionary buildPitching(const QString &prUDP);

} // namespace myDictionaries
