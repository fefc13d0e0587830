#include "SampleSeason.h"
#include "SampleTeams.h"

#include "app/globals.h"
#include "app/myDB.h"
#include "app/myPrefs.h"
#include "gameday/GameDay.h"
#include "gameday/ScoreGrid.h"
#include "people/RosterBook.h"
#include "schedule/ScheduleStore.h"
#include "stats/GameRecorder.h"
#include "stats/GameStats.h"

#include <QHash>

#include <array>

namespace sample {

namespace {

constexpr int kInnings = 7;

// An opponent's roster: nine players, one at each position.
void addRoster(myDB &db, const QString &teamID, int seed, QColor jersey)
{
    static const char *firsts[] = {"Aiden",  "Brody", "Carter", "Dominic", "Evan",   "Finn",  "Grant",
                                   "Hudson", "Isaac", "Jonah",  "Kai",     "Landon", "Miles", "Nolan"};
    static const char *lasts[] = {"Abbott", "Becker", "Castillo", "Doyle", "Ellison", "Foster", "Garza",
                                  "Hale",   "Ibarra", "Jensen",   "Kline", "Lund",    "Moreno", "Novak"};
    static const char *positions[] = {"CF", "SS", "B1", "C", "B3", "LF", "B2", "RF", "RHP"};
    static const QColor skins[] = {QColor(224, 172, 105), QColor(241, 194, 125), QColor(198, 134, 66),
                                   QColor(141, 85, 36)};
    people::RosterBook roster(db);
    for (int i = 0; i < 9; ++i) {
        people::MemberRecord m;
        m.kind = people::MemberKind::Player;
        m.TeamNum = teamID;
        // Every opponent's player has a name of his own.
        const int n = (seed - 1) * 9 + i;
        m.First = QString::fromLatin1(firsts[(n + n / 14) % 14]);
        m.Last = QString::fromLatin1(lasts[(n * 5) % 14]);
        m.UniNum = QString::number(3 + i * 4 + seed);
        m.Pos1 = QString::fromLatin1(positions[i]);
        m.picture = portrait(jersey, skins[(i + seed) % 4], m.UniNum);
        roster.add(m);
    }
}

// One half of a game on the scorecard: the at bats of the team on show,
// inning by inning, run by a simple model of the bases. Each cell gets the
// at bat's code and what became of the batter: "R" out, "G" scored, "Y" left on.
struct HalfGame
{
    int runs = 0;
    int outs = 0;
    int hits = 0, homeRuns = 0, walks = 0, hitBatters = 0, strikeouts = 0, plateAppearances = 0;
    QList<QString> outsMade; // the codes of the outs, for the other team's fielders
    QList<int> rbi;          // per lineup row
    QList<int> runsByInning;
};

bool isOut(const QString &code)
{
    return code == u"KS" || code == u"KL" || code == u"FO" || code == u"GO";
}

// Plays `innings` innings of the team on show. `script` is the at bats'
// codes in order, used again from its start when it runs out. With a
// `lastInningTarget` of 0 or more (the other team's runs) the team bats
// last: its last inning isn't played when it leads already, and ends as
// soon as it takes the lead.
HalfGame playHalf(gameday::ScoreGrid &grid, const QStringList &script, int innings, int lastInningTarget)
{
    HalfGame half;
    const int batters = grid.rowCount();
    half.rbi = QList<int>(batters, 0);
    int next = 0;
    int step = 0;
    for (int inning = 0; inning < innings; ++inning) {
        int outs = 0;
        int runsThisInning = 0;
        std::array<int, 3> bases{-1, -1, -1}; // the lineup row on first, second, third
        int appearances = 0;
        const auto score = [&](int row, int batter) {
            grid.setCellBkg(row, inning, QStringLiteral("G"));
            ++half.runs;
            ++runsThisInning;
            ++half.rbi[batter];
        };
        const bool walkOffInning = lastInningTarget >= 0 && inning == innings - 1;
        if (walkOffInning && half.runs > lastInningTarget)
            break;
        while (outs < 3 && !(walkOffInning && half.runs > lastInningTarget)) {
            const int batter = next;
            next = (next + 1) % batters;
            // A column holds one at bat per batter: the ninth ends the inning.
            QString code = script.at(step++ % script.size());
            if (++appearances == batters && outs < 2)
                code = QStringLiteral("GO");
            ++half.plateAppearances;
            grid.setCellText(batter, inning, code);
            if (isOut(code)) {
                grid.setCellBkg(batter, inning, QStringLiteral("R"));
                ++outs;
                half.outsMade.append(code);
                if (code == u"KS" || code == u"KL")
                    ++half.strikeouts;
                continue;
            }
            if (code == u"BB" || code == u"HBP") {
                code == u"BB" ? ++half.walks : ++half.hitBatters;
                // Forced runners move up one base.
                if (bases[0] >= 0) {
                    if (bases[1] >= 0) {
                        if (bases[2] >= 0)
                            score(bases[2], batter);
                        bases[2] = bases[1];
                    }
                    bases[1] = bases[0];
                }
                bases[0] = batter;
                continue;
            }
            const int advance = code == u"B1" ? 1 : code == u"B2" ? 2 : code == u"B3" ? 3 : 4;
            ++half.hits;
            if (advance == 4)
                ++half.homeRuns;
            std::array<int, 3> moved{-1, -1, -1};
            for (int b = 2; b >= 0; --b) {
                if (bases[b] < 0)
                    continue;
                if (b + advance >= 3)
                    score(bases[b], batter);
                else
                    moved[b + advance] = bases[b];
            }
            if (advance == 4)
                score(batter, batter);
            else
                moved[advance - 1] = batter;
            bases = moved;
        }
        for (int row : bases) {
            if (row >= 0)
                grid.setCellBkg(row, inning, QStringLiteral("Y"));
        }
        half.outs += outs;
        half.runsByInning.append(runsThisInning);
    }
    return half;
}

struct GamePlan
{
    int opponent; // index among the opponents
    bool home;    // the home team plays at home (bats last)
    QDate date;
    QString location;
    QStringList homeScript; // the home team's at bats
    QStringList oppScript;
    QString restingPitcher; // the home pitcher who sits this game out
};

// The panels of one team's players for the game: fielding for everyone,
// pitching for the one who pitched, from what the other team did at bat.
void savePanels(myDB &db, const QString &game, const QString &teamID, const QList<gameday::LineupLine> &lineup,
                const HalfGame &opponentBatting, int decision)
{
    stats::GameStatStore store(db);
    QHash<QString, QString> byPos;
    for (const auto &line : lineup)
        byPos.insert(line.pos == u"LHP" ? QStringLiteral("RHP") : line.pos, line.playerID);
    QHash<QString, std::array<int, 2>> credit; // PO, Asst per player
    static const char *grounders[] = {"SS", "B2", "B3", "RHP"};
    static const char *flies[] = {"CF", "LF", "RF", "SS", "B2"};
    int g = 0, f = 0;
    for (const QString &out : opponentBatting.outsMade) {
        if (out == u"GO") {
            ++credit[byPos.value(QString::fromLatin1(grounders[g++ % 4]))][1];
            ++credit[byPos.value(QStringLiteral("B1"))][0];
        } else if (out == u"FO") {
            ++credit[byPos.value(QString::fromLatin1(flies[f++ % 5]))][0];
        } else {
            ++credit[byPos.value(QStringLiteral("C"))][0];
        }
    }
    const QString innings = stats::inningsFromOuts(opponentBatting.outs);
    const int fieldInnings = opponentBatting.outs / 3;
    for (const auto &line : lineup) {
        const auto c = credit.value(line.playerID);
        QStringList fields(stats::kFieldingFields, QStringLiteral("0"));
        fields[0] = QString::number(fieldInnings);
        fields[1] = QString::number(c[0] + c[1]);
        fields[2] = QString::number(c[0]);
        fields[3] = QString::number(c[1]);
        store.saveStats(stats::Panel::Fielding, game, line.playerID, teamID, stats::gatherStats(fields));
        if (!gameday::GameDay::isPitcherPos(line.pos))
            continue;
        QStringList pitching(stats::kPitchingFields, QStringLiteral("0"));
        pitching[0] = innings;
        pitching[1] = QString::number(opponentBatting.plateAppearances);
        pitching[2] = QString::number(opponentBatting.hits);
        pitching[3] = QString::number(opponentBatting.runs);
        pitching[4] = QString::number(opponentBatting.homeRuns);
        pitching[7] = QString::number(opponentBatting.walks);
        pitching[10] = QString::number(opponentBatting.strikeouts);
        pitching[13] = QString::number(opponentBatting.hitBatters);
        stats::PitchingLine p;
        p.gameResult = decision;
        p.start = true;
        p.compGame = true;
        p.shutout = opponentBatting.runs == 0;
        p.totBalls = opponentBatting.plateAppearances * 3 / 2 + 4;
        p.totKs = opponentBatting.plateAppearances * 5 / 2 + 3;
        p.stats = stats::gatherStats(pitching);
        store.savePitching(game, line.playerID, teamID, p);
    }
}

// Builds both lineups, scores the game and records it.
std::optional<PlayedGame> playGame(myDB &db, const QString &schedID, const QString &homeID, const GamePlan &plan)
{
    gameday::ScoreGrid grid;
    gameday::GameDay day(db, grid);
    if (!day.open(schedID))
        return std::nullopt;
    std::array<QList<gameday::LineupLine>, 2> lineups;
    for (int team : {0, 1}) {
        day.showTeam(team);
        // The pitcher first, so the lineup always has one; then the others
        // in their roster order, nine in all.
        const auto pick = [&day](bool pitcher, const QString &resting) {
            for (int row = 0; row < day.roster().size(); ++row) {
                const auto &player = day.roster().at(row);
                if (gameday::GameDay::isPitcherPos(player.pos) == pitcher && player.name != resting)
                    return row;
            }
            return -1;
        };
        const QString resting = day.teamID(team) == homeID ? plan.restingPitcher : QString();
        day.addPlayerToLineup(pick(true, resting));
        while (day.lineup().size() < day.defLineup()) {
            const int row = pick(false, resting);
            if (row < 0)
                break;
            day.addPlayerToLineup(row);
        }
        // The pitcher bats ninth.
        day.moveLineupRow(0, +1);
        for (int r = 1; r + 1 < day.lineup().size(); ++r)
            day.moveLineupRow(r, +1);
        lineups[size_t(team)] = day.lineup();
    }

    // Team A bats first; team B's last inning stops once it leads, and
    // isn't played when it leads already.
    std::array<HalfGame, 2> halves;
    for (int team : {0, 1}) {
        day.showTeam(team);
        const bool isHome = day.teamID(team) == homeID;
        const QStringList &script = isHome ? plan.homeScript : plan.oppScript;
        const int innings = kInnings;
        const int target = team == 1 ? halves[0].runs : -1;
        halves[size_t(team)] = playHalf(day.card(), script, innings, target);
        for (int r = 0; r < halves[size_t(team)].rbi.size(); ++r)
            day.setBatterStat(r, 0, QString::number(halves[size_t(team)].rbi.at(r)));
        day.saveCurState();
        day.saveDataToDB();
    }
    const int runsA = halves[0].runs, runsB = halves[1].runs;
    for (int team : {0, 1}) {
        const bool won = halves[size_t(team)].runs > halves[size_t(1 - team)].runs;
        const bool lost = halves[size_t(team)].runs < halves[size_t(1 - team)].runs;
        savePanels(db, schedID, day.teamID(team), lineups[size_t(team)], halves[size_t(1 - team)],
                   won    ? 1
                   : lost ? 2
                          : 4);
    }
    if (stats::GameRecorder(db).record(schedID, runsA, runsB) != stats::GameRecorder::Result::Recorded)
        return std::nullopt;
    PlayedGame played;
    played.schedID = schedID;
    played.teamA = day.teamInfo(0).name;
    played.teamB = day.teamInfo(1).name;
    played.runsA = runsA;
    played.runsB = runsB;
    return played;
}

} // namespace

QList<PlayedGame> buildSeason(myDB &db, myPrefs &prefs, int games)
{
    if (db.scalar(QStringLiteral("SELECT COUNT(*) FROM Teams")).toInt() > 0)
        return {};
    prefs.prInnings = QStringLiteral("7 Innings");
    prefs.prefsDirty = true;
    seedTeams();
    const QString homeID = prefs.prHomeTeam;

    const QList<Record> opponents = db.select(
        QStringLiteral("SELECT teamID, TeamName FROM Teams WHERE teamID <> ? ORDER BY teamID"), {homeID.toLongLong()});
    const QColor jerseys[] = {QColor(140, 20, 30), QColor(20, 50, 120), QColor(90, 40, 130), QColor(190, 20, 30)};
    for (int i = 0; i < opponents.size(); ++i)
        addRoster(db, opponents.at(i).text(QStringLiteral("teamID")), i + 1, jerseys[i % 4]);

    const QStringList homeScript =
        QString::fromLatin1("B1 KS FO B2 GO BB KL B1 FO HR GO KS B1 B1 FO GO B3 KS BB FO GO B1 KL FO").split(u' ');
    const QList<GamePlan> plans = {
        {0, true, QDate(2026, 4, 7), QStringLiteral("Celtic Field"), homeScript,
         QString::fromLatin1("GO KS B1 FO GO KL BB FO B2 GO KS FO B1 GO FO").split(u' '),
         QStringLiteral("Owen Schäfer")},
        {1, false, QDate(2026, 4, 9), QStringLiteral("Liberty Diamond"), homeScript.mid(3) + homeScript.mid(0, 3),
         QString::fromLatin1("B1 B2 FO KS HR GO BB B1 KL FO GO B1 B1 FO GO KS").split(u' '),
         QStringLiteral("Noah Kowalski")},
        {2, true, QDate(2026, 4, 14), QStringLiteral("Celtic Field"), homeScript.mid(7) + homeScript.mid(0, 7),
         QString::fromLatin1("KS GO B1 FO KL GO BB FO GO KS B2 FO").split(u' '), QStringLiteral("Owen Schäfer")},
    };

    ScheduleStore schedule(db);
    QList<QString> gameIDs;
    for (const GamePlan &plan : plans) {
        eventClass e;
        e.mDate = plan.date;
        e.eventType = QStringLiteral("Game");
        e.startTime = QStringLiteral("4:30 PM");
        e.busTime = plan.home ? QStringLiteral("---") : QStringLiteral("3:15 PM");
        e.opponent = opponents.value(plan.opponent).text(QStringLiteral("TeamName"));
        e.oppID = opponents.value(plan.opponent).text(QStringLiteral("teamID"));
        e.location = plan.location;
        e.isHome = plan.home ? 1 : 2;
        gameIDs.append(QString::number(schedule.insert(e)));
    }
    eventClass practice;
    practice.mDate = QDate(2026, 4, 8);
    practice.eventType = QStringLiteral("Practice");
    practice.startTime = QStringLiteral("3:30 PM");
    practice.busTime = QStringLiteral("---");
    practice.location = QStringLiteral("Celtic Field");
    schedule.insert(practice);
    eventClass next;
    next.mDate = QDate(2026, 4, 16);
    next.eventType = QStringLiteral("Game");
    next.startTime = QStringLiteral("5:00 PM");
    next.busTime = QStringLiteral("3:45 PM");
    next.opponent = opponents.value(3).text(QStringLiteral("TeamName"));
    next.oppID = opponents.value(3).text(QStringLiteral("teamID"));
    next.location = QStringLiteral("Carlile Field");
    next.isHome = 2;
    schedule.insert(next);

    QList<PlayedGame> played;
    for (int g = 0; g < std::min<int>(games, int(plans.size())); ++g) {
        if (const std::optional<PlayedGame> result = playGame(db, gameIDs.at(g), homeID, plans.at(g)))
            played.append(*result);
    }
    return played;
}

} // namespace sample
