#include "SampleSeason.h"

#include "app/globals.h"
#include "app/myDB.h"
#include "app/myPrefs.h"
#include "gameday/GameDay.h"
#include "gameday/ScoreGrid.h"
#include "people/InventoryBook.h"
#include "people/RosterBook.h"
#include "people/TeamBook.h"
#include "people/TeamStore.h"
#include "schedule/ScheduleStore.h"
#include "stats/GameRecorder.h"
#include "stats/GameStats.h"

#include <QHash>
#include <QPainter>
#include <QPainterPath>

#include <array>

namespace sample {

QImage crest(const QString &initials, QColor field, QColor ring)
{
    QImage image(240, 240, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    p.setBrush(ring);
    p.setPen(Qt::NoPen);
    p.drawEllipse(QRectF(8, 8, 224, 224));
    p.setBrush(field);
    p.drawEllipse(QRectF(24, 24, 192, 192));
    QFont font = p.font();
    font.setPixelSize(92);
    font.setBold(true);
    p.setFont(font);
    p.setPen(Qt::white);
    p.drawText(QRectF(24, 24, 192, 192), Qt::AlignCenter, initials);
    return image;
}

QImage portrait(QColor jersey, QColor skin, const QString &number)
{
    QImage image(172, 200, QImage::Format_RGB32);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    QLinearGradient sky(0, 0, 0, 200);
    sky.setColorAt(0, QColor(196, 220, 240));
    sky.setColorAt(1, QColor(150, 190, 150));
    p.fillRect(image.rect(), sky);
    p.setPen(Qt::NoPen);
    p.setBrush(jersey);
    QPainterPath body;
    body.moveTo(20, 200);
    body.cubicTo(20, 140, 50, 125, 86, 125);
    body.cubicTo(122, 125, 152, 140, 152, 200);
    p.drawPath(body);
    p.setBrush(skin);
    p.drawEllipse(QRectF(56, 46, 60, 72));
    p.setBrush(jersey.darker(140));
    p.drawChord(QRectF(52, 36, 68, 50), 0, 180 * 16); // the cap
    p.drawRect(QRectF(86, 56, 44, 8));
    QFont font = p.font();
    font.setPixelSize(34);
    font.setBold(true);
    p.setFont(font);
    p.setPen(Qt::white);
    p.drawText(QRectF(20, 140, 132, 56), Qt::AlignCenter, number);
    return image;
}

void seedTeams()
{
    people::TeamBook teams(*gData, *gPrefs);
    if (teams.store().count() > 0)
        return;
    struct T
    {
        const char *school, *name, *league, *division, *address, *city, *zip, *phone, *field, *initials;
        QColor colour, ring;
    };
    const T list[] = {
        {"Dublin Jerome", "Celtics", "OCC", "Cardinal", "8300 Hyland-Croy Rd", "Dublin", "43016", "6148735250",
         "Celtic Field", "DJ", QColor(0, 104, 71), QColor(20, 20, 20)},
        {"Hilliard Davidson", "Wildcats", "OCC", "Cardinal", "5100 Davidson Rd", "Hilliard", "43026", "6149212400",
         "Davidson Park", "HD", QColor(140, 20, 30), QColor(200, 170, 60)},
        {"Olentangy Liberty", "Patriots", "OCC", "Buckeye", "3584 Home Rd", "Powell", "43065", "7408335700",
         "Liberty Diamond", "OL", QColor(20, 50, 120), QColor(190, 30, 40)},
        {"Bishop O'Connell", "Knights", "CCL", "North", "12 St. Mary's Way", "Columbus", "43215", "6142240011",
         "O'Connell Field", "BO", QColor(90, 40, 130), QColor(210, 180, 60)},
        {"St. Charles Prep", "Cardinals", "CCL", "South", "2010 E Broad St", "Columbus", "43209", "6142521528",
         "Carlile Field", "SC", QColor(190, 20, 30), QColor(240, 240, 240)},
    };
    QString home;
    for (const T &t : list) {
        people::TeamRecord r;
        r.SchoolName = QString::fromUtf8(t.school);
        r.TeamName = QString::fromUtf8(t.name);
        r.League = QString::fromUtf8(t.league);
        r.Division = QString::fromUtf8(t.division);
        r.SchoolAddress = QString::fromUtf8(t.address);
        r.SchoolCity = QString::fromUtf8(t.city);
        r.SchoolState = QStringLiteral("OH");
        r.SchoolZip = QString::fromUtf8(t.zip);
        r.Phone = QString::fromUtf8(t.phone);
        r.HomeField = QString::fromUtf8(t.field);
        r.TeamLogo = crest(QString::fromUtf8(t.initials), t.colour, t.ring);
        const auto saved = teams.save(r, home.isEmpty());
        if (home.isEmpty())
            home = saved.teamID;
    }

    people::RosterBook roster(*gData);
    struct P
    {
        const char *first, *last, *number, *pos1, *pos2, *bats, *throws, *dob, *street;
    };
    const P players[] = {
        {"Mateo", "Hernández", "2", "SS", "B2", "Right", "Right", "04/16/2009", "41 Tullymore Dr"},
        {"Liam", "O'Sullivan", "7", "CF", "LF", "Left", "Left", "09/02/2008", "7702 Cosgray Rd"},
        {"Noah", "Kowalski", "11", "RHP", "B1", "Right", "Right", "01/23/2009", "5560 Brand Rd"},
        {"Ethan", "Nguyen", "14", "C", "", "Right", "Right", "06/30/2008", "912 Glick Rd"},
        {"Jackson", "Reyes", "18", "B3", "RHP", "Switch", "Right", "11/11/2008", "330 Post Rd"},
        {"Owen", "Schäfer", "21", "LHP", "RF", "Left", "Left", "03/05/2010", "66 Riverside Dr"},
        {"Caleb", "Washington", "23", "B1", "DH", "Left", "Right", "07/19/2009", "1500 Avery Rd"},
        {"Lucas", "Brennan", "27", "LF", "CF", "Right", "Right", "12/01/2008", "87 Muirfield Dr"},
        {"Elijah", "Park", "31", "RF", "", "Right", "Right", "02/14/2010", "204 Summit View Rd"},
        {"Gabriel", "D'Amico", "34", "B2", "SS", "Right", "Right", "08/08/2009", "6110 Perimeter Dr"},
    };
    const QColor skins[] = {QColor(224, 172, 105), QColor(241, 194, 125), QColor(198, 134, 66), QColor(141, 85, 36)};
    int i = 0;
    for (const P &p : players) {
        people::MemberRecord m;
        m.kind = people::MemberKind::Player;
        m.TeamNum = home;
        m.First = QString::fromUtf8(p.first);
        m.Last = QString::fromUtf8(p.last);
        m.Address = QString::fromUtf8(p.street);
        m.City = QStringLiteral("Dublin");
        m.State = QStringLiteral("OH");
        m.Zip = QStringLiteral("43016");
        m.PhoneNumber = QStringLiteral("(614) 555-%1").arg(1200 + i * 37);
        m.CellPhone = QStringLiteral("(614) 555-%1").arg(3400 + i * 53);
        m.Email = m.First.toLower() + QStringLiteral(".family@example.com");
        m.UniNum = QString::fromUtf8(p.number);
        m.Pos1 = QString::fromUtf8(p.pos1);
        m.Pos2 = QString::fromUtf8(p.pos2);
        m.HitSide = QString::fromUtf8(p.bats);
        m.ThrowSide = QString::fromUtf8(p.throws);
        m.DOB = QString::fromUtf8(p.dob);
        m.StudentID = QStringLiteral("DJ-%1").arg(40210 + i * 7);
        m.Guardian = QStringLiteral("Pat ") + m.Last;
        m.GuardianPhone = m.PhoneNumber;
        m.EmergContact = QStringLiteral("Chris ") + m.Last;
        m.EmergPhone = QStringLiteral("(614) 555-%1").arg(7100 + i * 11);
        m.Doctor = QStringLiteral("Dr. Amelia Grant");
        m.DoctorPhone = QStringLiteral("(614) 555-0199");
        m.MedInfo = i == 1 ? QStringLiteral("Allergic to bee stings; inhaler in bag") : QString();
        m.picture = portrait(QColor(0, 104, 71), skins[i % 4], m.UniNum);
        roster.add(m);
        ++i;
    }
    for (const auto &c : {std::pair{"Dana", "McAllister"}, std::pair{"Ray", "Okafor"}}) {
        people::MemberRecord m;
        m.kind = people::MemberKind::Coach;
        m.TeamNum = home;
        m.First = QString::fromUtf8(c.first);
        m.Last = QString::fromUtf8(c.second);
        m.Assistant = m.Last == u"Okafor";
        m.City = QStringLiteral("Dublin");
        m.State = QStringLiteral("OH");
        roster.add(m);
    }
}

qint64 seedExtras()
{
    if (gData->scalar(QStringLiteral("SELECT COUNT(*) FROM Teams")).toInt() > 0)
        return gData->scalar(QStringLiteral("SELECT eventID FROM Schedule WHERE Event = 'Practice'")).toLongLong();
    const qint64 team = gData->insert(QStringLiteral("Teams"),
                                      {{QStringLiteral("SchoolName"), QStringLiteral("Central")},
                                       {QStringLiteral("TeamName"), QStringLiteral("Cougars")},
                                       {QStringLiteral("Active"), 1}});
    gPrefs->prHomeTeam = QString::number(team);
    const struct
    {
        const char *first, *last, *phone, *cell, *email, *guardian, *gPhone;
    } players[] = {
        {"Mateo", "Alvarez", "(614) 555-0142", "(614) 555-0190", "mateo.alvarez@example.org", "Rosa Alvarez",
         "(614) 555-0143"},
        {"Liam", "O'Brien", "(614) 555-0177", "", "liam.obrien@example.org", "Kate O'Brien", "(614) 555-0178"},
        {"Noah", "Becker", "(614) 555-0101", "(614) 555-0199", "", "Jon Becker", "(614) 555-0102"},
        {"Eli", "Nakamura", "(614) 555-0155", "", "eli.n@example.org", "Aiko Nakamura", "(614) 555-0156"},
        {"Jaden", "Williams", "(614) 555-0120", "(614) 555-0121", "jaden.w@example.org", "Tasha Williams",
         "(614) 555-0122"},
    };
    QStringList playerIDs;
    for (const auto &p : players)
        playerIDs.append(QString::number(
            gData->insert(QStringLiteral("Players"), {{QStringLiteral("TeamNum"), team},
                                                      {QStringLiteral("First"), QString::fromUtf8(p.first)},
                                                      {QStringLiteral("Last"), QString::fromUtf8(p.last)},
                                                      {QStringLiteral("PhoneNumber"), QString::fromUtf8(p.phone)},
                                                      {QStringLiteral("CellPhone"), QString::fromUtf8(p.cell)},
                                                      {QStringLiteral("Email"), QString::fromUtf8(p.email)},
                                                      {QStringLiteral("Guardian"), QString::fromUtf8(p.guardian)},
                                                      {QStringLiteral("GuardianPhone"), QString::fromUtf8(p.gPhone)},
                                                      {QStringLiteral("Active"), 1}})));
    for (const auto &c : {std::pair{"Dana", "Okafor"}, std::pair{"Sam", "Reyes"}})
        gData->insert(QStringLiteral("Coaches"),
                      {{QStringLiteral("TeamNum"), team},
                       {QStringLiteral("First"), QString::fromUtf8(c.first)},
                       {QStringLiteral("Last"), QString::fromUtf8(c.second)},
                       {QStringLiteral("PhoneNumber"), QStringLiteral("(614) 555-0188")},
                       {QStringLiteral("Email"),
                        QString(QString::fromUtf8(c.first).toLower() + QStringLiteral("@example.org"))}});

    people::InventoryBook book(*gData);
    book.selectTeam(QString::number(team));
    const struct
    {
        const char *qty, *item, *id;
    } items[] = {{"24", "Baseballs", ""},   {"6", "Batting helmets", "H-1 to H-6"},
                 {"4", "Bats, 31 in.", ""}, {"1", "Catcher's gear", "C-1"},
                 {"15", "Jerseys", "1-15"}, {"2", "Ball buckets", ""}};
    for (const auto &i : items)
        book.enterItem(-1, QString::fromUtf8(i.qty), QString::fromUtf8(i.item), QString::fromUtf8(i.id));
    book.selectPlayer(playerIDs.at(1));
    book.assign(book.poolRowOf(book.pool().at(1).serial));
    book.assign(book.poolRowOf(book.pool().at(4).serial));

    const qint64 practice = gData->insert(QStringLiteral("Schedule"),
                                          {{QStringLiteral("SchedDate"), QStringLiteral("2026-04-14")},
                                           {QStringLiteral("StartTime"), QStringLiteral("3:30 PM")},
                                           {QStringLiteral("Event"), QStringLiteral("Practice")},
                                           {QStringLiteral("Location"), QStringLiteral("Memorial Field")},
                                           {QStringLiteral("isHome"), 0}});
    const char *drills[][4] = {{"Arm Stretch", "3:30 PM", "3:45 PM", "Dana Okafor"},
                               {"Long Toss", "3:45 PM", "4:00 PM", "Sam Reyes"},
                               {"Ground Balls", "4:00 PM", "4:30 PM", "Dana Okafor"},
                               {"Soft Toss", "4:30 PM", "5:00 PM", "Sam Reyes"},
                               {"Run and Steal", "5:00 PM", "5:15 PM", ""}};
    for (const auto &d : drills)
        gData->insert(QStringLiteral("Drills"), {{QStringLiteral("scheduleID"), QString::number(practice)},
                                                 {QStringLiteral("drill"), QString::fromUtf8(d[0])},
                                                 {QStringLiteral("start"), QString::fromUtf8(d[1])},
                                                 {QStringLiteral("pEnd"), QString::fromUtf8(d[2])},
                                                 {QStringLiteral("coach"), QString::fromUtf8(d[3])}});
    gPrefs->prefsDirty = true;
    return practice;
}

// A few events around the sample season's opening day, when it has none.
void seedSchedule()
{
    ScheduleStore schedule(*gData);
    if (!schedule.list(ScheduleStore::kShowAll).isEmpty())
        return;
    const QList<people::TeamRecord> teams = people::TeamStore(*gData).allTeams();
    auto opponent = [&](int i) { return teams.at(qMin<int>(i, teams.size() - 1)); };
    struct E
    {
        int day;
        const char *bus, *start, *type;
        int opp; // index of the team, -1 for none
        std::uint8_t home;
    };
    const E events[] = {
        {14, "---", "4:00 PM", "Practice", -1, 0}, {17, "2:45 PM", "4:30 PM", "Game", 1, 2},
        {19, "---", "4:30 PM", "Game", 2, 1},      {21, "---", "10:00 AM", "Practice", -1, 0},
        {23, "---", "7:00 PM", "Meeting", -1, 0},  {24, "3:00 PM", "4:30 PM", "Scrimmage", 3, 2},
        {26, "---", "4:30 PM", "Game", 4, 1},      {28, "1:15 PM", "3:00 PM", "Game", 3, 2},
    };
    const QString homeField = opponent(0).HomeField;
    const int year = gPrefs->prSeason.toInt() > 2000 ? gPrefs->prSeason.toInt() : 2026;
    for (const E &e : events) {
        eventClass ev;
        ev.mDate = QDate(year, 3, e.day);
        ev.busTime = QString::fromUtf8(e.bus);
        ev.startTime = QString::fromUtf8(e.start);
        ev.eventType = QString::fromUtf8(e.type);
        if (e.opp >= 0) {
            ev.opponent = opponent(e.opp).TeamName;
            ev.oppID = opponent(e.opp).teamID;
        } else {
            ev.opponent = QStringLiteral("N/A");
        }
        ev.location = e.home == 2 ? opponent(e.opp).HomeField : homeField;
        ev.isHome = e.home;
        schedule.insert(ev);
    }
}

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
