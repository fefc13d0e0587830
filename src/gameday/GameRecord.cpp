#include "gameday/GameRecord.h"

namespace gameday {

namespace {

// The lines of `text` split into fields, keeping only those with exactly
// `fields` fields.
QList<QStringList> linesWith(const QString &text, int fields)
{
    QList<QStringList> out;
    for (const QString &line : splitLines(text)) {
        QStringList parts = line.split(kFieldSep);
        if (parts.size() == fields)
            out.append(parts);
    }
    return out;
}

// Appends one line of fields to `out`, a carriage return before all but the first.
void appendLine(QString &out, std::initializer_list<QString> values)
{
    if (!out.isEmpty())
        out += kLineSep;
    bool first = true;
    for (const QString &v : values) {
        if (!first)
            out += kFieldSep;
        out += cleanField(v);
        first = false;
    }
}

} // namespace

QString cleanField(const QString &value)
{
    // Most values hold no separator: share them rather than copy.
    if (!value.contains(u'\t') && !value.contains(u'\r') && !value.contains(u'\n'))
        return value;
    QString out = value;
    for (QChar &c : out) {
        if (c == u'\t' || c == u'\r' || c == u'\n')
            c = u' ';
    }
    return out;
}

QStringList splitLines(const QString &text)
{
    if (text.isEmpty())
        return {};
    QStringList lines;
    if (text.contains(u'\n')) {
        QString normal = text;
        normal.replace(QStringLiteral("\r\n"), QString(kLineSep)).replace(u'\n', kLineSep);
        lines = normal.split(kLineSep);
    } else {
        lines = text.split(kLineSep);
    }
    while (!lines.isEmpty() && lines.constLast().isEmpty())
        lines.removeLast();
    return lines;
}

QList<BenchLine> readBench(const QString &text)
{
    QList<BenchLine> out;
    for (const QStringList &p : linesWith(text, 4))
        out.append({p[0], p[1], p[2], p[3]});
    return out;
}

QString writeBench(const QList<BenchLine> &lines)
{
    QString out;
    for (const BenchLine &l : lines)
        appendLine(out, {l.uniNum, l.name, l.pos, l.playerID});
    return out;
}

QList<LineupLine> readPlayers(const QString &text)
{
    QList<LineupLine> out;
    for (const QStringList &p : linesWith(text, 4))
        out.append({p[0], p[1], p[2], p[3]});
    return out;
}

QString writePlayers(const QList<LineupLine> &lines)
{
    QString out;
    for (const LineupLine &l : lines)
        appendLine(out, {l.order, l.pos, l.name, l.playerID});
    return out;
}

QList<BatterStat> readBatStats(const QString &text)
{
    QList<BatterStat> out;
    for (const QStringList &p : linesWith(text, 2))
        out.append({p[0], p[1]});
    return out;
}

QString writeBatStats(const QList<BatterStat> &lines)
{
    QString out;
    for (const BatterStat &l : lines)
        appendLine(out, {l.rbi, l.sb});
    return out;
}

int RunEntry::runs() const
{
    int sum = 0;
    for (const QString &box : innings)
        sum += box.trimmed().toInt(); // "--", "X" and "" count 0
    return sum;
}

bool isRunEntry(const QString &actions)
{
    return actions.startsWith(QStringLiteral("xxx"));
}

RunEntry readRunEntry(const QString &actions)
{
    const QStringList p = actions.split(kFieldSep);
    auto at = [&p](int i) { return i < p.size() ? p[i] : QString(); };
    RunEntry e;
    for (int i = 0; i < 10; ++i)
        e.innings[size_t(i)] = at(i + 1);
    e.hits = at(11);
    e.errors = at(12);
    e.lob = at(13);
    return e;
}

QString writeRunEntry(const RunEntry &entry)
{
    QStringList p{QStringLiteral("xxx")};
    for (const QString &box : entry.innings)
        p.append(cleanField(box));
    p << cleanField(entry.hits) << cleanField(entry.errors) << cleanField(entry.lob);
    return p.join(kFieldSep);
}

QString newGameHeadings()
{
    QStringList h;
    for (int i = 1; i <= 20; ++i)
        h.append(QString::number(i));
    return h.join(kFieldSep);
}

bool readsWhole(const TeamStrings &team)
{
    if (team.headings.count(kFieldSep) >= kMaxStoredColumns)
        return false;
    auto allRead = [](const QString &text, qsizetype read) {
        qsizetype lines = 0;
        for (const QString &line : splitLines(text))
            lines += line.isEmpty() ? 0 : 1;
        return lines == read;
    };
    const QList<LineupLine> lineup = readPlayers(team.players);
    if (!allRead(team.bench, readBench(team.bench).size()) || !allRead(team.players, lineup.size()) ||
        !allRead(team.batStats, readBatStats(team.batStats).size()))
        return false;
    return isRunEntry(team.actions) || splitLines(team.actions).size() <= lineup.size();
}

} // namespace gameday
