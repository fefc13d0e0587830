// The pitch-count rule sets: the shipped sets' figures at every band edge,
// a pitcher's age under each set, the rest a day's pitches owe, the first
// day he may pitch again and why not, and the refusal of a damaged set.

#include "stats/PitchAvailability.h"
#include "stats/PitchRules.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace stats;

namespace {

PitchRuleSet shipped(const QString &file)
{
    const PitchRulesRead read = pitchrules::parse(pitchrules::shippedText(file));
    if (!read.ok())
        qFatal("%s line %d: %s", qPrintable(file), read.line, qPrintable(read.error));
    return read.set;
}

// Monday 4 May 2026 and the days after it.
const QDate kMonday(2026, 5, 4);

PitcherLog pitcher(const QDate &birth, const QMap<QDate, int> &pitches, const QMap<QDate, int> &caughtThirds = {})
{
    PitcherLog log;
    log.name = QStringLiteral("Sam Reyes");
    log.birth = birth;
    log.pitches = pitches;
    log.caughtThirds = caughtThirds;
    return log;
}

} // namespace

class TestPitchRules : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // The figures as the published sources give them, at each band's edges.
    void restAndDailyMax_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<int>("age");
        QTest::addColumn<int>("pitches");
        QTest::addColumn<int>("rest");
        QTest::addColumn<int>("dailyMax");
        struct Edges
        {
            const char *file;
            QList<int> ages;
            int dailyMax;
            QList<std::pair<int, int>> rest; // pitches, days
        };
        const QList<std::pair<int, int>> young = {{1, 0},  {20, 0}, {21, 1}, {35, 1}, {36, 2},
                                                  {50, 2}, {51, 3}, {65, 3}, {66, 4}, {120, 4}};
        const QList<std::pair<int, int>> older = {{30, 0}, {31, 1}, {45, 1}, {46, 2},
                                                  {60, 2}, {61, 3}, {75, 3}, {76, 4}};
        const QList<Edges> sets = {
            {"national-youth.json", {7, 8}, 50, young},
            {"national-youth.json", {9, 10}, 75, young},
            {"national-youth.json", {11, 12}, 85, young},
            {"national-youth.json", {13, 14}, 95, young},
            {"national-youth.json", {15, 16}, 95, older},
            {"national-youth.json", {17, 18}, 105, {{30, 0}, {31, 1}, {60, 2}, {61, 3}, {80, 3}, {81, 4}}},
            {"national-youth.json", {19, 22}, 120, {{30, 0}, {31, 1}, {61, 3}, {80, 3}, {81, 4}, {105, 4}, {106, 5}}},
            {"youth-league.json", {7, 8}, 50, young},
            {"youth-league.json", {9, 10}, 75, young},
            {"youth-league.json", {11, 12}, 85, young},
            {"youth-league.json", {13, 14}, 95, young},
            {"youth-league.json", {15, 16}, 95, older},
        };
        for (const Edges &e : sets) {
            for (int age : e.ages) {
                for (const auto &[pitches, days] : e.rest)
                    QTest::addRow("%s age %d, %d pitches", e.file, age, pitches)
                        << QString::fromLatin1(e.file) << age << pitches << days << e.dailyMax;
            }
        }
    }
    void restAndDailyMax()
    {
        QFETCH(QString, file);
        QFETCH(int, age);
        QFETCH(int, pitches);
        QFETCH(int, rest);
        QFETCH(int, dailyMax);
        const PitchRuleSet set = shipped(file);
        QCOMPARE(set.group(age).restDays(pitches), rest);
        QCOMPARE(set.group(age).dailyMax, dailyMax);
        // He may pitch again on the day after his rest.
        const PitcherLog log = pitcher(QDate(kMonday.year() - age, 1, 1), {{kMonday, pitches}});
        QCOMPARE(availabilityOn(set, log, kMonday.addDays(1)).firstDate, kMonday.addDays(rest + 1));
    }

    void highSchoolTemplateReads() { QVERIFY(!shipped(QStringLiteral("high-school.json")).groups.isEmpty()); }

    void ageUnderTheSet_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QDate>("birth");
        QTest::addColumn<int>("age");
        // The national guidelines take the age on the game's date.
        QTest::newRow("birthday today") << "national-youth.json" << QDate(2013, 5, 4) << 13;
        QTest::newRow("birthday tomorrow") << "national-youth.json" << QDate(2013, 5, 5) << 12;
        // The youth league takes the age on 31 August of the season's year.
        QTest::newRow("cut-off day") << "youth-league.json" << QDate(2013, 8, 31) << 13;
        QTest::newRow("day after the cut-off") << "youth-league.json" << QDate(2013, 9, 1) << 12;
        QTest::newRow("unknown") << "youth-league.json" << QDate() << -1;
    }
    void ageUnderTheSet()
    {
        QFETCH(QString, file);
        QFETCH(QDate, birth);
        QFETCH(int, age);
        const PitchRuleSet set = shipped(file);
        QCOMPARE(set.ageOn(birth, kMonday), age);
        // An unknown age takes the youngest group, whose rest is the longest.
        if (age < 0)
            QCOMPARE(set.group(age).dailyMax, 50);
    }

    void pitchCost_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<int>("pitch");
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("newBand");
        QTest::newRow("into a band") << "national-youth.json" << 51 << "51: 3 days' rest" << true;
        QTest::newRow("inside a band") << "national-youth.json" << 50 << "50: 2 days' rest" << false;
        QTest::newRow("one day") << "national-youth.json" << 21 << "21: 1 day's rest" << true;
        QTest::newRow("free") << "national-youth.json" << 20 << "20: no rest needed" << false;
        QTest::newRow("limit") << "national-youth.json" << 95 << "95: daily maximum reached" << false;
        QTest::newRow("limit, batter") << "youth-league.json" << 95
                                       << "95: daily maximum reached, he may finish the batter" << false;
        QTest::newRow("past, batter") << "youth-league.json" << 97
                                      << "97: over the daily maximum, he may finish the batter" << false;
        QTest::newRow("past") << "national-youth.json" << 96 << "96: over the daily maximum" << false;
    }
    void pitchCost()
    {
        QFETCH(QString, file);
        QFETCH(int, pitch);
        QFETCH(QString, text);
        QFETCH(bool, newBand);
        const PitchCost cost = shipped(file).cost(13, pitch);
        QCOMPARE(cost.text(), text);
        QCOMPARE(cost.newRestBand, newBand);
    }

    // A 13-year-old on Wednesday, after the days before it.
    void mayPitch_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QList<int>>("week"); // pitches Monday to Wednesday
        QTest::addColumn<int>("caughtWednesday");
        QTest::addColumn<QDate>("first");
        QTest::addColumn<int>("left");
        QTest::addColumn<QString>("why");
        const QDate wed = kMonday.addDays(2);
        QTest::newRow("rested") << "national-youth.json" << QList<int>{20, 0, 0} << 0 << wed << 95 << "";
        QTest::newRow("70 on Monday") << "national-youth.json" << QList<int>{70, 0, 0} << 0 << kMonday.addDays(5) << 0
                                      << "threw 70 on Monday: may not pitch until Saturday";
        QTest::newRow("part of the day thrown")
            << "national-youth.json" << QList<int>{0, 0, 30} << 0 << wed << 65 << "";
        QTest::newRow("maximum thrown today") << "national-youth.json" << QList<int>{0, 0, 95} << 0
                                              << kMonday.addDays(7) << 0 << "threw 95 today: the daily maximum";
        QTest::newRow("third day in a row") << "national-youth.json" << QList<int>{10, 12, 0} << 0 << kMonday.addDays(3)
                                            << 0 << "pitched on Monday and Tuesday: not three days in a row";
        QTest::newRow("league allows a third day")
            << "youth-league.json" << QList<int>{10, 12, 0} << 0 << wed << 95 << "";
        QTest::newRow("caught four innings") << "youth-league.json" << QList<int>{0, 0, 0} << 12 << kMonday.addDays(3)
                                             << 0 << "caught 4 innings today: may not pitch today";
        QTest::newRow("caught three and two thirds")
            << "youth-league.json" << QList<int>{0, 0, 0} << 11 << wed << 95 << "";
        QTest::newRow("guidelines don't count catching")
            << "national-youth.json" << QList<int>{0, 0, 0} << 12 << wed << 95 << "";
    }
    void mayPitch()
    {
        QFETCH(QString, file);
        QFETCH(QList<int>, week);
        QFETCH(int, caughtWednesday);
        QFETCH(QDate, first);
        QFETCH(int, left);
        QFETCH(QString, why);
        QMap<QDate, int> pitches;
        for (int day = 0; day < week.size(); ++day)
            pitches.insert(kMonday.addDays(day), week[day]);
        const QDate wed = kMonday.addDays(2);
        const Availability a = availabilityOn(shipped(file),
                                              pitcher(QDate(2012, 10, 1), pitches, {{wed, caughtWednesday}}), wed);
        QCOMPARE(a.age, 13);
        QCOMPARE(a.whyNot, why);
        QCOMPARE(a.firstDate, first);
        QCOMPARE(a.leftToday, left);
        QCOMPARE(a.restOwed, int(wed.daysTo(first)));
    }

    void catchingAfterPitching()
    {
        const PitchRuleSet league = shipped(QStringLiteral("youth-league.json"));
        QVERIFY(availabilityOn(league, pitcher(QDate(2012, 6, 1), {{kMonday, 40}}), kMonday).mayCatch);
        QVERIFY(!availabilityOn(league, pitcher(QDate(2012, 6, 1), {{kMonday, 41}}), kMonday).mayCatch);
        QVERIFY(availabilityOn(shipped(QStringLiteral("national-youth.json")),
                               pitcher(QDate(2012, 6, 1), {{kMonday, 80}}), kMonday)
                    .mayCatch);
    }

    // A hand-edited set is refused at the line that is wrong.
    void refusal_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<int>("line");
        QTest::addColumn<QString>("error");
        const QByteArray head = "{\n\"name\": \"Mine\",\n\"ageOn\": \"04-30\",\n\"ageGroups\": [\n";
        const QByteArray good = "{ \"ages\": [9, 10], \"dailyMax\": 75,\n"
                                "  \"rest\": [ { \"upTo\": 20, \"days\": 0 },\n"
                                "            { \"days\": 1 } ] }";
        QTest::newRow("reads") << head + good + "\n]\n}\n" << 0 << "";
        QTest::newRow("leap-day cut-off") << QByteArray(head).replace("04-30", "02-29") + good + "\n]\n}\n" << 0 << "";
        QTest::newRow("missing comma") << head + good + "\n{ \"ages\": [11, 12] }\n]\n}\n" << 8 << "missing";
        QTest::newRow("misspelt key") << head + good + ",\n{ \"ages\": [11, 12], \"dailymax\": 85 }\n]\n}\n"
                                      << 8 << "\"dailymax\" is not a rule";
        QTest::newRow("ages overlap") << head + good + ",\n" + good + "\n]\n}\n" << 8 << "without overlap";
        QTest::newRow("bad cut-off") << QByteArray(head).replace("04-30", "April 30") + good + "\n]\n}\n"
                                     << 3 << "\"ageOn\"";
        QTest::newRow("bands out of order")
            << head + good +
                   ",\n{ \"ages\": [11, 12], \"dailyMax\": 85,\n \"rest\": [ { \"upTo\": 30, \"days\": 0 },\n"
                   "  { \"upTo\": 30, \"days\": 1 }, { \"days\": 2 } ] }\n]\n}\n"
            << 10 << "above the one before";
        QTest::newRow("fewer days for more pitches")
            << head + good +
                   ",\n{ \"ages\": [11, 12], \"dailyMax\": 85,\n \"rest\": [ { \"upTo\": 30, \"days\": 2 },\n"
                   "  { \"days\": 1 } ] }\n]\n}\n"
            << 10 << "fewer";
        QTest::newRow("flag not true or false")
            << QByteArray(head).replace("\"ageOn\"", "\"mayFinishBatter\": 1,\n\"ageOn\"") + good + "\n]\n}\n"
            << 3 << "true or false";
        QTest::newRow("not an object") << QByteArray("[1, 2]") << 1 << "one { } object";
    }
    void refusal()
    {
        QFETCH(QByteArray, json);
        QFETCH(int, line);
        QFETCH(QString, error);
        const PitchRulesRead read = pitchrules::parse(json);
        QVERIFY2(read.error.contains(error), qPrintable(read.error));
        QCOMPARE(read.line, line);
        // Born 28 February 2013: 13 on the cut-off day of 2026 (29 February
        // counts as the 28th in a common year).
        if (line == 0)
            QCOMPARE(read.set.ageOn(QDate(2013, 2, 28), QDate(2026, 5, 1)), 13);
    }

    // The copies in the data folder are the coach's to edit: a damaged one
    // is refused with its line and the national guidelines stand in.
    void editedCopies()
    {
        QTemporaryDir data;
        pitchrules::copyShipped(data.path());
        const QString league = QDir(pitchrules::folder(data.path())).filePath(QStringLiteral("youth-league.json"));
        QCOMPARE(pitchrules::available(data.path()).size(), 3);
        QVERIFY(pitchrules::setChosenFile(data.path(), QStringLiteral("youth-league.json")));
        QCOMPARE(pitchrules::load(data.path()).name, QStringLiteral("Youth league regular season"));

        QFile file(league);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(pitchrules::shippedText(QStringLiteral("youth-league.json"))
                       .replace("\"dailyMax\": 85", "\"dailyMax\": -85"));
        file.close();
        pitchrules::copyShipped(data.path()); // never overwrites the coach's copy
        QString refused;
        QCOMPARE(pitchrules::load(data.path(), &refused).name, pitchrules::builtIn().name);
        QCOMPARE(refused,
                 QStringLiteral("youth-league.json, line 15: \"dailyMax\" must be a whole number of 0 or more"));
    }
};

QTEST_GUILESS_MAIN(TestPitchRules)
#include "tst_pitchrules.moc"
