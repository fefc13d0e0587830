#include "stats/PitchCounter.h"

#include "app/globals.h"
#include "app/myDB.h"
#include "gameday/ChangeLog.h"
#include "gameday/GameDay.h"

#include <QLocale>

namespace stats {

namespace {

// The days read back for the rest a pitcher still owes: more than the
// longest rest of any set.
constexpr int kDaysBack = 30;

bool isPitcherRow(const gameday::LineupLine &line)
{
    return gameday::GameDay::isPitcherPos(line.pos);
}

// A pitching row made by the counter: no decision and every field "0", as
// the panel writes a row nobody typed in.
PitchingLine freshLine()
{
    PitchingLine line;
    line.stats = gatherStats(QStringList(kPitchingFields));
    return line;
}

} // namespace

QStringList pitchersOf(const QList<gameday::LineupLine> &lineup)
{
    QStringList ids;
    for (const gameday::LineupLine &line : lineup) {
        if (isPitcherRow(line) && !line.playerID.isEmpty())
            ids << line.playerID;
    }
    return ids;
}

QString pitcherOnMound(const QList<gameday::LineupLine> &lineup, const QStringList &known, const QString &current)
{
    const QStringList pitchers = pitchersOf(lineup);
    for (auto it = pitchers.crbegin(); it != pitchers.crend(); ++it) {
        if (!known.contains(*it))
            return *it;
    }
    if (pitchers.contains(current))
        return current;
    return pitchers.isEmpty() ? QString() : pitchers.last();
}

QString pitchingWarning(myDB &db, const PitchRuleSet &rules, const QString &teamID, const QString &playerID,
                        const QDate &date)
{
    if (!date.isValid() || playerID.isEmpty())
        return {};
    for (const PitcherLog &log : pitchlog::read(db, teamID, date.addDays(-kDaysBack), date)) {
        if (log.playerID != playerID)
            continue;
        const Availability a = availabilityOn(rules, log, date);
        return a.mayPitch() ? QString() : a.whyNot;
    }
    return {};
}

bool putPitchingRow(myDB &db, const PitchWrite &write, const std::optional<PitchingLine> &line)
{
    return db.runInTransaction([&] {
        if (line)
            GameStatStore(db).savePitching(write.game, write.playerID, write.teamID, *line);
        else
            db.exec(QStringLiteral("DELETE FROM GamesIndivPitching WHERE gameID = ? AND playerID = ?"),
                    {write.game, write.playerID});
    });
}

// --- One pitcher's count ---------------------------------------------------------------------

PitchCounter::PitchCounter(myDB &db, PitchRuleSet rules) : m_db(db), m_rules(std::move(rules)) {}

void PitchCounter::setPitcher(const QString &game, const QString &playerID, const QString &teamID,
                              const QDate &gameDate)
{
    m_game = game;
    m_player = playerID;
    m_team = teamID;
    m_age = -1;
    m_otherGamesToday = 0;
    m_crossed = false;
    if (!playerID.isEmpty() && gameDate.isValid()) {
        const QString dob =
            m_db.scalar(QStringLiteral("SELECT DOB FROM Players WHERE playerID = ?"), {playerID}).toString();
        m_age = m_rules.ageOn(pitchrules::birthDate(dob), gameDate);
        // Other games of the same day count toward the day's pitches.
        m_otherGamesToday =
            m_db.scalar(QStringLiteral("SELECT COALESCE(SUM(x.totBalls + x.totKs), 0) FROM GamesIndivPitching x"
                                       " JOIN Schedule s ON CAST(s.eventID AS TEXT) = x.gameID"
                                       " WHERE x.playerID = ? AND x.gameID <> ? AND substr(s.SchedDate, 1, 10) = ?"),
                        {playerID, game, gameDate.toString(Qt::ISODate)})
                .toInt();
    }
    reload();
}

void PitchCounter::reload()
{
    const std::optional<PitchingLine> row = hasPitcher() ? GameStatStore(m_db).pitching(m_game, m_player)
                                                         : std::nullopt;
    m_hasRow = row.has_value();
    m_line = row.value_or(PitchingLine{});
}

namespace {

// The entry of a pitch added to an existing row: its balls and strikes
// before and after.
gameday::Change pitchChange(const QString &label, const PitchWrite &write)
{
    return {label,
            -1,
            {{QStringLiteral("GamesIndivPitching"),
              {QStringLiteral("gameID"), QStringLiteral("playerID")},
              {write.game, write.playerID},
              {QStringLiteral("totBalls"), QStringLiteral("totKs")},
              QVariantList{write.before->totBalls, write.before->totKs},
              QVariantList{write.after.totBalls, write.after.totKs}}}};
}

} // namespace

PitchWrite PitchCounter::add(Pitch pitch, const QString &label)
{
    PitchWrite write;
    write.game = m_game;
    write.playerID = m_player;
    write.teamID = m_team;
    if (!hasPitcher())
        return write;
    GameStatStore store(m_db);
    const int ball = pitch == Pitch::Ball ? 1 : 0;
    write.ok = m_db.runInTransaction([&] {
        // The row as last read, found by all its values: one plain
        // statement, and the row before and after are known.
        if (m_hasRow && store.addPitchesIf(m_game, m_player, m_line, ball, 1 - ball)) {
            write.before = m_line;
            write.after = m_line;
            write.after.totBalls += ball;
            write.after.totKs += 1 - ball;
            if (!label.isEmpty())
                gameday::ChangeLog::appendWithin(m_db, m_game, pitchChange(label, write));
            return;
        }
        // Written elsewhere since: the row as it was is the row after it
        // less the pitch.
        if (const std::optional<PitchingLine> after = store.addPitches(m_game, m_player, ball, 1 - ball)) {
            write.after = *after;
            write.before = *after;
            write.before->totBalls -= ball;
            write.before->totKs -= 1 - ball;
            if (!label.isEmpty())
                gameday::ChangeLog::appendWithin(m_db, m_game, pitchChange(label, write));
            return;
        }
        write.after = freshLine();
        write.after.totBalls = ball;
        write.after.totKs = 1 - ball;
        store.savePitching(m_game, m_player, m_team, write.after);
    });
    if (!write.ok) {
        reload();
        write.after = m_line;
        return write;
    }
    m_line = write.after;
    m_hasRow = true;
    const PitchCost now = m_rules.cost(m_age, pitchesToday());
    m_crossed = now.newRestBand || now.atDailyMax || now.overDailyMax;
    return write;
}

QString PitchCounter::countText() const
{
    const int n = pitches();
    return (n == 1 ? QStringLiteral("1 pitch") : QStringLiteral("%1 pitches").arg(n)) +
           (strikes() == 1 ? QStringLiteral(", 1 strike") : QStringLiteral(", %1 strikes").arg(strikes()));
}

QString PitchCounter::notice() const
{
    const int day = pitchesToday();
    if (!hasPitcher() || day == 0)
        return {};
    const PitchCost now = m_rules.cost(m_age, day);
    if (now.atDailyMax || now.overDailyMax)
        return now.mayFinishBatter ? now.text() : now.text() + QStringLiteral(", he may not finish the batter");
    if (now.restDays == 0)
        return now.text();
    // The band he reached, as it was announced when he reached it.
    return m_rules.cost(m_age, m_rules.group(m_age).bandStart(day)).text();
}

// --- The game screen's counter ----------------------------------------------------------------

GamePitchCount::GamePitchCount(myDB &db, gameday::GameDay &game, const PitchRuleSet &rules, QObject *parent)
    : QObject(parent), m_db(db), m_game(game), m_rules(rules), m_counter(db, rules)
{
    connect(&m_game, &gameday::GameDay::teamShown, this, &GamePitchCount::followTeam);
    connect(&m_game, &gameday::GameDay::lineupChanged, this, &GamePitchCount::followLineup);
    followTeam();
}

QString GamePitchCount::nameOf(const QString &playerID) const
{
    for (const gameday::LineupLine &line : m_game.lineup()) {
        if (line.playerID != playerID)
            continue;
        QString name = line.name.trimmed();
        if (name.startsWith(QStringLiteral("->"))) // a replacement's row
            name = name.mid(2).trimmed();
        return name;
    }
    return {};
}

QString GamePitchCount::pitcherName() const
{
    return nameOf(m_counter.playerID());
}

bool GamePitchCount::mayCount() const
{
    return m_counter.hasPitcher() && !m_game.isReadOnly() && !m_game.autoFillRunning() && !m_covered;
}

void GamePitchCount::setCovered(bool covered)
{
    if (m_covered == covered)
        return;
    m_covered = covered;
    // A panel that closes may have written the pitcher's row.
    if (!covered)
        m_counter.reload();
    Q_EMIT changed();
}

PitchWrite GamePitchCount::add(Pitch pitch)
{
    if (!mayCount())
        return {};
    // "Ball, Smith": what Edit > Undo names. A pitch that made the row is
    // logged as the pitching panel's row.
    static const QStringList names = {QStringLiteral("Ball"), QStringLiteral("Strike"), QStringLiteral("Foul")};
    const PitchWrite write = m_counter.add(pitch, names.at(int(pitch)) + QStringLiteral(", ") +
                                                      pitcherName().section(u' ', -1));
    if (write.ok) {
        m_game.logAppended();
        Q_EMIT pitchWritten(write);
    }
    Q_EMIT changed();
    return write;
}

void GamePitchCount::reload()
{
    m_counter.reload();
    Q_EMIT changed();
}

bool GamePitchCount::warnIfResting(const QString &playerID)
{
    const QString why = pitchingWarning(m_db, m_rules, m_game.teamID(m_game.curSelTeam()), playerID,
                                        m_game.gameEvent().date);
    if (why.isEmpty())
        return false;
    QString name = nameOf(playerID);
    if (name.isEmpty())
        name = QStringLiteral("This player");
    // A notice, not a question: the coach knows his league and decides.
    gNotice(QStringLiteral("%1 may not pitch on %2 under %3.")
                .arg(name, QLocale::c().toString(m_game.gameEvent().date, QStringLiteral("dddd d MMMM")), m_rules.name),
            why.left(1).toUpper() + why.mid(1) + u'.');
    return true;
}

void GamePitchCount::followTeam()
{
    // A card coming on show (the game opened, the other team, auto-fill)
    // is no new line-up: its pitchers are known, none is warned about.
    const int team = m_game.curSelTeam();
    m_known[size_t(team)] = pitchersOf(m_game.lineup());
    takeMound();
}

void GamePitchCount::followLineup()
{
    const int team = m_game.curSelTeam();
    if (!m_game.isReadOnly()) {
        for (const QString &id : pitchersOf(m_game.lineup())) {
            if (!m_known[size_t(team)].contains(id))
                warnIfResting(id);
        }
    }
    takeMound();
    m_known[size_t(team)] = pitchersOf(m_game.lineup());
}

void GamePitchCount::takeMound()
{
    const int team = m_game.curSelTeam();
    const QList<gameday::LineupLine> &lineup = m_game.lineup();
    m_mound[size_t(team)] = pitcherOnMound(lineup, m_known[size_t(team)], m_mound[size_t(team)]);
    m_counter.setPitcher(m_game.schedID(), m_mound[size_t(team)], m_game.teamID(team), m_game.gameEvent().date);
    Q_EMIT changed();
}

} // namespace stats
