#include "stats/PitchAvailability.h"

#include "app/myDB.h"
#include "gameday/GameRecord.h"

#include <QLocale>
#include <QSet>

#include <algorithm>

namespace stats {

QString dayText(const QDate &day, const QDate &from)
{
    const QLocale english = QLocale::c();
    if (day == from)
        return QStringLiteral("today");
    if (std::abs(from.daysTo(day)) < 7)
        return english.dayName(day.dayOfWeek());
    return english.toString(day, QStringLiteral("dddd d MMMM"));
}

namespace {

QString inningsText(int thirds)
{
    return thirds % 3 == 0 ? QString::number(thirds / 3) : QStringLiteral("%1.%2").arg(thirds / 3).arg(thirds % 3);
}

// Why the rest and the run of days bar `date`, judged from the days before it.
QString restReason(const PitchRuleSet &set, const PitcherLog &log, const QDate &date, const QDate &askedOn)
{
    QDate restUntil, restFrom;
    int restPitches = 0;
    for (auto it = log.pitches.begin(); it != log.pitches.end() && it.key() < date; ++it) {
        if (it.value() <= 0)
            continue;
        const int days = set.group(set.ageOn(log.birth, it.key())).restDays(it.value());
        const QDate free = it.key().addDays(days + 1);
        if (free > date && (!restUntil.isValid() || free > restUntil)) {
            restUntil = free;
            restFrom = it.key();
            restPitches = it.value();
        }
    }
    if (restUntil.isValid())
        return QStringLiteral("threw %1 on %2: may not pitch until %3")
            .arg(restPitches)
            .arg(dayText(restFrom, askedOn), dayText(restUntil, askedOn));
    const QDate dayBefore = date.addDays(-1), twoBefore = date.addDays(-2);
    if (set.noThreeConsecutiveDays && log.pitches.value(dayBefore) > 0 && log.pitches.value(twoBefore) > 0)
        return QStringLiteral("pitched on %1 and %2: not three days in a row")
            .arg(dayText(twoBefore, askedOn), dayText(dayBefore, askedOn));
    return {};
}

} // namespace

Availability availabilityOn(const PitchRuleSet &set, const PitcherLog &log, const QDate &date)
{
    Availability a;
    a.age = set.ageOn(log.birth, date);
    const AgeGroup &group = set.group(a.age);
    a.pitchedToday = log.pitches.value(date);
    a.mayCatch = set.noCatchingFromPitches == 0 || a.pitchedToday < set.noCatchingFromPitches;

    a.whyNot = restReason(set, log, date, date);
    const int caught = log.caughtThirds.value(date);
    if (a.whyNot.isEmpty() && set.noPitchingFromCaughtInnings > 0 && caught >= set.noPitchingFromCaughtInnings * 3)
        a.whyNot = QStringLiteral("caught %1 innings today: may not pitch today").arg(inningsText(caught));
    if (a.whyNot.isEmpty() && a.pitchedToday >= group.dailyMax)
        a.whyNot = QStringLiteral("threw %1 today: the daily maximum").arg(a.pitchedToday);
    if (a.whyNot.isEmpty()) {
        a.leftToday = group.dailyMax - a.pitchedToday;
        a.firstDate = date;
        return a;
    }
    // The first later day the rest and the run of days allow, if he throws
    // no more today.
    for (QDate day = date.addDays(1); day <= date.addDays(366); day = day.addDays(1)) {
        if (restReason(set, log, day, date).isEmpty()) {
            a.firstDate = day;
            break;
        }
    }
    a.restOwed = a.firstDate.isValid() ? int(date.daysTo(a.firstDate)) : 0;
    return a;
}

AvailabilityReport AvailabilityReport::read(myDB &db, const PitchRuleSet &set, const QString &teamID,
                                            const QDate &today)
{
    // How far back the logs are read: past the longest rest any set asks.
    constexpr int kDaysRead = 30;
    return make(set,
                teamID.isEmpty() ? QList<PitcherLog>{} : pitchlog::read(db, teamID, today.addDays(-kDaysRead), today),
                today);
}

AvailabilityReport AvailabilityReport::make(const PitchRuleSet &set, const QList<PitcherLog> &logs, const QDate &today)
{
    AvailabilityReport report;
    const QLocale english = QLocale::c();
    report.headings << QStringLiteral("Player") << QStringLiteral("Age");
    for (int back = 6; back >= 0; --back)
        report.headings << english.toString(today.addDays(-back), QStringLiteral("ddd d"));
    report.headings << QStringLiteral("Rest") << QStringLiteral("May Pitch") << QStringLiteral("Left Today")
                    << QStringLiteral("Why Not");
    report.columnWidths = QStringLiteral("130,30,46,46,46,46,46,46,46,34,90,66,*");

    QList<PitcherLog> shown;
    for (const PitcherLog &log : logs) {
        bool pitched = false;
        for (auto it = log.pitches.begin(); it != log.pitches.end(); ++it)
            pitched |= it.value() > 0 && it.key() <= today && it.key() > today.addDays(-7);
        if (pitched || log.listedAsPitcher)
            shown.append(log);
    }
    std::sort(shown.begin(), shown.end(),
              [](const PitcherLog &a, const PitcherLog &b) { return a.name.localeAwareCompare(b.name) < 0; });
    for (const PitcherLog &log : shown) {
        const Availability a = availabilityOn(set, log, today);
        QStringList row{log.name, a.age < 0 ? QStringLiteral("?") : QString::number(a.age)};
        for (int back = 6; back >= 0; --back) {
            const int n = log.pitches.value(today.addDays(-back));
            row << (n > 0 ? QString::number(n) : QString());
        }
        row << QString::number(a.restOwed)
            << (a.mayPitch()
                    ? QStringLiteral("Today")
                    : (a.firstDate.isValid() ? english.toString(a.firstDate, QStringLiteral("ddd d MMM")) : QString()))
            << QString::number(a.leftToday) << a.whyNot;
        report.rows.append(row);
    }
    return report;
}

namespace pitchlog {

int inningsThirds(const QString &innings)
{
    const QStringList parts = innings.trimmed().split(u'.');
    bool ok = false;
    const int whole = parts.value(0).toInt(&ok);
    if (!ok || whole < 0)
        return 0;
    const int thirds = parts.size() > 1 ? parts[1].left(1).toInt() : 0;
    return whole * 3 + std::clamp(thirds, 0, 2);
}

QList<PitcherLog> read(myDB &db, const QString &teamID, const QDate &from, const QDate &to)
{
    QList<PitcherLog> logs;
    QHash<QString, int> index;
    const QSet<QString> pitcherPositions = {QStringLiteral("P"), QStringLiteral("RHP"), QStringLiteral("LHP")};
    for (const Record &r : db.select(QStringLiteral("SELECT playerID, First, Last, DOB, Pos1, Pos2, Pos3 FROM Players "
                                                    "WHERE TeamNum = ?"),
                                     {teamID})) {
        PitcherLog log;
        log.playerID = r.text(QStringLiteral("playerID"));
        log.name = QString(r.text(QStringLiteral("First")) + u' ' + r.text(QStringLiteral("Last"))).trimmed();
        log.birth = pitchrules::birthDate(r.text(QStringLiteral("DOB")));
        for (const char *pos : {"Pos1", "Pos2", "Pos3"})
            log.listedAsPitcher |= pitcherPositions.contains(r.text(QString::fromLatin1(pos)).trimmed());
        index.insert(log.playerID, int(logs.size()));
        logs.append(log);
    }
    if (logs.isEmpty())
        return logs;

    // Games of the days asked, by the date of their event.
    const QVariantList range{from.toString(Qt::ISODate), to.addDays(1).toString(Qt::ISODate)};
    // A panel's row names its game by the event's id, as the Games row does.
    const QString games = QStringLiteral(" JOIN Schedule s ON CAST(s.eventID AS TEXT) = x.gameID"
                                         " WHERE s.SchedDate >= ? AND s.SchedDate < ?");
    for (const Record &r : db.select(QStringLiteral("SELECT x.playerID, x.totBalls, x.totKs, s.SchedDate"
                                                    " FROM GamesIndivPitching x") +
                                         games,
                                     range)) {
        const auto at = index.constFind(r.text(QStringLiteral("playerID")));
        const QDate day = QDate::fromString(r.text(QStringLiteral("SchedDate")).left(10), Qt::ISODate);
        if (at != index.constEnd() && day.isValid())
            logs[*at].pitches[day] += int(r.integer(QStringLiteral("totBalls")) + r.integer(QStringLiteral("totKs")));
    }

    // A catcher is a player the line-up puts at "C"; his innings there are
    // the innings of his fielding row for that game.
    QSet<std::pair<QString, QString>> catchers; // game, player
    for (const Record &r : db.select(QStringLiteral("SELECT g.schedID, g.TeamAPlayers, g.TeamBPlayers FROM Games g"
                                                    " JOIN Schedule s ON CAST(s.eventID AS TEXT) = g.schedID"
                                                    " WHERE s.SchedDate >= ? AND s.SchedDate < ?"),
                                     range)) {
        for (const char *column : {"TeamAPlayers", "TeamBPlayers"}) {
            for (const gameday::LineupLine &line : gameday::readPlayers(r.text(QString::fromLatin1(column)))) {
                if (line.pos.trimmed() == u"C")
                    catchers.insert({r.text(QStringLiteral("schedID")), line.playerID});
            }
        }
    }
    if (catchers.isEmpty())
        return logs;
    for (const Record &r : db.select(QStringLiteral("SELECT x.gameID, x.playerID, x.stats, s.SchedDate"
                                                    " FROM GamesIndivFielding x") +
                                         games,
                                     range)) {
        const QString player = r.text(QStringLiteral("playerID"));
        const auto at = index.constFind(player);
        const QDate day = QDate::fromString(r.text(QStringLiteral("SchedDate")).left(10), Qt::ISODate);
        if (at == index.constEnd() || !day.isValid() || !catchers.contains({r.text(QStringLiteral("gameID")), player}))
            continue;
        logs[*at].caughtThirds[day] += inningsThirds(r.text(QStringLiteral("stats")).section(u'\t', 0, 0));
    }
    return logs;
}

} // namespace pitchlog
} // namespace stats
