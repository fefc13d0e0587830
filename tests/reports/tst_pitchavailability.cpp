// The "Pitcher Availability" report over a season: who is listed, the
// figures read from the pitching and fielding rows and the line-ups, the
// date chooser, the export and the printout, and a damaged rule set named
// with its line.

#include "app/globals.h"
#include "app/myDB.h"
#include "app/myPrefs.h"
#include "app/ui/MainMenuBar.h"
#include "fakes/TestKit.h"
#include "fakes/TestSupport.h"
#include "gameday/GameRecord.h"
#include "reports/ui/pitcherAvailabilityScrn.h"
#include "reports/ui/qlmListBox.h"

#include <QDateEdit>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QDate kMonday(2026, 5, 4);

// The home team: Sam (13, a right-hander) threw 70 on Monday; Cal caught
// four innings on Wednesday and pitches too; Al is listed as a pitcher, birth date unknown;
// Ed neither pitched nor is listed.
struct PitchingSeason
{
    testkit::Season season;
    qint64 team = season.addTeam(u"Bears"_s, u"Riverside High"_s, {}, true);
    qint64 sam = player(u"Sam"_s, u"Reyes"_s, u"10/01/2012"_s, u"RHP"_s);
    qint64 cal = player(u"Cal"_s, u"Diaz"_s, u"03/03/2013"_s, u"C"_s, u"RHP"_s);
    qint64 al = player(u"Al"_s, u"Ames"_s, {}, u"LHP"_s);
    qint64 ed = player(u"Ed"_s, u"Ford"_s, u"02/02/2012"_s, u"CF"_s);

    PitchingSeason()
    {
        const qint64 monday = game(kMonday, {});
        gData->insert(u"GamesIndivPitching"_s, {{u"gameID"_s, QString::number(monday)},
                                                {u"playerID"_s, QString::number(sam)},
                                                {u"teamID"_s, QString::number(team)},
                                                {u"totBalls"_s, 28},
                                                {u"totKs"_s, 42}});
        const qint64 wednesday = game(kMonday.addDays(2), {{u"1"_s, u"C"_s, u"Cal Diaz"_s, QString::number(cal)},
                                                           {u"2"_s, u"CF"_s, u"Ed Ford"_s, QString::number(ed)}});
        for (const qint64 id : {cal, ed})
            gData->insert(u"GamesIndivFielding"_s, {{u"gameID"_s, QString::number(wednesday)},
                                                    {u"playerID"_s, QString::number(id)},
                                                    {u"teamID"_s, QString::number(team)},
                                                    {u"stats"_s, u"4.0\t1\t1\t0\t0\t0\t0\t0\t0\t0\t0\t0\t0"_s}});
    }

    qint64 player(const QString &first, const QString &last, const QString &dob, const QString &pos,
                  const QString &pos2 = {})
    {
        const qint64 id = season.addPlayer(team, first, last);
        gData->update(u"Players"_s, {{u"DOB"_s, dob}, {u"Pos1"_s, pos}, {u"Pos2"_s, pos2}}, u"playerID"_s, id);
        return id;
    }

    qint64 game(const QDate &day, const QList<gameday::LineupLine> &lineup)
    {
        const qint64 event = gData->insert(u"Schedule"_s,
                                           {{u"SchedDate"_s, day.toString(Qt::ISODate)}, {u"Event"_s, u"Game"_s}});
        return gData->insert(u"Games"_s, {{u"schedID"_s, QString::number(event)},
                                          {u"TeamAPlayers"_s, gameday::writePlayers(lineup)}});
    }
};

QStringList rowOf(qlmListBox *list, const QString &name)
{
    for (int row = 0; row < list->rowCount(); ++row) {
        if (list->cell(row, 0) == name)
            return list->rowCells(row);
    }
    return {};
}

} // namespace

class TestPitchAvailability : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { testkit::closeAllWindows(); }

    void wednesdayAfterMonday()
    {
        PitchingSeason f;
        QVERIFY(stats::pitchrules::setChosenFile(gPrefs->strdDataLoc, u"youth-league.json"_s));
        auto *screen = new pitcherAvailabilityScrn;
        QVERIFY(testkit::showActive(screen));
        QCOMPARE(testkit::child<QLabel>(screen, "rulesLbl")->text(), u"Rules: Youth league regular season"_s);
        QCOMPARE(testkit::child<QDateEdit>(screen, "todayFld")->date(), QDate(2026, 4, 15)); // the clock's day
        testkit::child<QDateEdit>(screen, "todayFld")->setDate(kMonday.addDays(2));

        qlmListBox *list = testkit::child<qlmListBox>(screen, "availBox");
        QCOMPARE(list->headings(), (QStringList{"Player", "Age", "Thu 30", "Fri 1", "Sat 2", "Sun 3", "Mon 4", "Tue 5",
                                                "Wed 6", "Rest", "May Pitch", "Left Today", "Why Not"}));
        QCOMPARE(list->rowCount(), 3); // Ed neither pitched nor pitches
        QCOMPARE(rowOf(list, u"Sam Reyes"_s),
                 (QStringList{"Sam Reyes", "13", "", "", "", "", "70", "", "", "3", "Sat 9 May", "0",
                              "threw 70 on Monday: may not pitch until Saturday"}));
        QCOMPARE(rowOf(list, u"Cal Diaz"_s),
                 (QStringList{"Cal Diaz", "13", "", "", "", "", "", "", "", "1", "Thu 7 May", "0",
                              "caught 4 innings today: may not pitch today"}));
        QCOMPARE(rowOf(list, u"Al Ames"_s),
                 (QStringList{"Al Ames", "?", "", "", "", "", "", "", "", "0", "Today", "50", ""}));

        // Saturday he may throw his day's maximum again.
        testkit::child<QDateEdit>(screen, "todayFld")->setDate(kMonday.addDays(5));
        QCOMPARE(rowOf(list, u"Sam Reyes"_s).mid(9), (QStringList{"0", "Today", "95", ""}));

        const QString path = f.season.home.filePath(u"availability.txt"_s);
        f.season.fake.files.answers.enqueue(path);
        screen->menus()->item(u"FileExport"_s)->trigger();
        QFile written(path);
        QVERIFY(written.open(QIODevice::ReadOnly));
        QVERIFY(QString::fromUtf8(written.readAll()).contains(u"Sam Reyes\t13\t\t70\t\t\t\t\t\t0\tToday\t95"_s));
        screen->menus()->item(u"FilePrint"_s)->trigger();
        QCOMPARE(f.season.fake.printing.printed.size(), 1);
        const QString printed = fakes::pdfText(f.season.fake.printing.printed.first());
        QVERIFY(printed.contains(u"Pitcher Availability"_s) && printed.contains(u"Sam Reyes"_s));
    }

    void damagedSetIsNamed()
    {
        PitchingSeason f;
        stats::pitchrules::copyShipped(gPrefs->strdDataLoc);
        QFile file(QDir(stats::pitchrules::folder(gPrefs->strdDataLoc)).filePath(u"national-youth.json"_s));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("{\n  \"name\": \"Mine\",\n  \"ageOn\": 4\n}\n");
        file.close();
        auto *screen = new pitcherAvailabilityScrn;
        QCOMPARE(f.season.fake.messages.texts(), QStringList{u"The pitch count rules could not be read."_s});
        QVERIFY(f.season.fake.messages.shown.first().explanation.startsWith(u"national-youth.json, line 3: "_s));
        QCOMPARE(screen->rules().name, stats::pitchrules::builtIn().name);
        delete screen;
    }
};

QTEST_MAIN(TestPitchAvailability)
#include "tst_pitchavailability.moc"
