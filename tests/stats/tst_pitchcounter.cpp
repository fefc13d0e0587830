// The pitch counter of a game, through the game controller: each pitch in
// the pitcher's pitching-panel row, the count and what it costs at every
// rest band's threshold, the pitcher on the mound after a change, and two
// games on consecutive days that end in the line-up warning and the
// availability report's figures.

#include "../gameday/GameDayTestSupport.h"
#include "gameday/GameDay.h"
#include "stats/GameStats.h"
#include "stats/PitchCounter.h"

using namespace stats;
using gamedaytest::Season;

Q_DECLARE_METATYPE(stats::Pitch)

namespace {

PitchRuleSet shipped(const QString &file)
{
    return pitchrules::parse(pitchrules::shippedText(file)).set;
}

QString playerOf(qint64 team, const QString &pos)
{
    return gData->scalar(QStringLiteral("SELECT playerID FROM Players WHERE TeamNum = ? AND Pos1 = ?"), {team, pos})
        .toString();
}

// Born on 1 January: the same age on the game's date and on 31 August.
void setAge(const QString &player, int age, int year = 2026)
{
    gData->exec(QStringLiteral("UPDATE Players SET DOB = ? WHERE playerID = ?"),
                {QStringLiteral("01/01/%1").arg(year - age), player});
}

qint64 addGame(const Season &season, const QString &date)
{
    return gData->insert(QStringLiteral("Schedule"), {{QStringLiteral("SchedDate"), date},
                                                      {QStringLiteral("Event"), QStringLiteral("Game")},
                                                      {QStringLiteral("Opponent"), QStringLiteral("Bears")},
                                                      {QStringLiteral("OppID"), QString::number(season.bearsID)},
                                                      {QStringLiteral("isHome"), 2}});
}

int rosterRowOf(const gameday::GameDay &game, const QString &pos)
{
    for (int i = 0; i < game.roster().size(); ++i) {
        if (game.roster().at(i).pos == pos)
            return i;
    }
    return -1;
}

int lineupRowOf(const gameday::GameDay &game, const QString &player)
{
    for (int i = 0; i < game.lineup().size(); ++i) {
        if (game.lineup().at(i).playerID == player)
            return i;
    }
    return -1;
}

void addByPos(gameday::GameDay &game, const QStringList &positions)
{
    for (const QString &pos : positions)
        game.addPlayerToLineup(rosterRowOf(game, pos));
}

const QStringList kNine = {"C", "B1", "B2", "B3", "SS", "LF", "CF", "RF", "DH"};

PitchingLine counted(int balls, int strikes)
{
    PitchingLine line;
    line.totBalls = balls;
    line.totKs = strikes;
    line.stats = gatherStats(QStringList(kPitchingFields));
    return line;
}

} // namespace

class TestPitchCounter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // The pitch that reaches each threshold, with the row as it stood
    // before it (and, once, another game of the same day).
    void countAndThreshold_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<int>("age");
        QTest::addColumn<int>("balls");
        QTest::addColumn<int>("strikes");
        QTest::addColumn<int>("earlierGame");
        QTest::addColumn<stats::Pitch>("pitch");
        QTest::addColumn<QString>("count");
        QTest::addColumn<QString>("notice");
        QTest::addColumn<bool>("crossed");
        const QString league = QStringLiteral("youth-league.json");
        const QString national = QStringLiteral("national-youth.json");
        QTest::newRow("first pitch, a row made") << league << 13 << 0 << 0 << 0 << Pitch::Ball << "1 pitch, 0 strikes"
                                                 << "1: no rest needed" << false;
        QTest::newRow("20: still no rest") << league << 13 << 10 << 9 << 0 << Pitch::Strike << "20 pitches, 10 strikes"
                                           << "20: no rest needed" << false;
        QTest::newRow("21: one day") << league << 13 << 10 << 10 << 0 << Pitch::Ball << "21 pitches, 10 strikes"
                                     << "21: 1 day's rest" << true;
        QTest::newRow("foul is a strike, band kept")
            << league << 13 << 19 << 27 << 0 << Pitch::Foul << "47 pitches, 28 strikes"
            << "36: 2 days' rest" << false;
        QTest::newRow("51: three days") << league << 13 << 20 << 30 << 0 << Pitch::Foul << "51 pitches, 31 strikes"
                                        << "51: 3 days' rest" << true;
        QTest::newRow("66: four days") << league << 13 << 30 << 35 << 0 << Pitch::Ball << "66 pitches, 35 strikes"
                                       << "66: 4 days' rest" << true;
        QTest::newRow("95: the maximum, finish the batter")
            << league << 13 << 40 << 54 << 0 << Pitch::Strike << "95 pitches, 55 strikes"
            << "95: daily maximum reached, he may finish the batter" << true;
        QTest::newRow("96: over, finishing the batter")
            << league << 13 << 40 << 55 << 0 << Pitch::Foul << "96 pitches, 56 strikes"
            << "96: over the daily maximum, he may finish the batter" << true;
        QTest::newRow("9-year-old's maximum 75")
            << league << 9 << 30 << 44 << 0 << Pitch::Ball << "75 pitches, 44 strikes"
            << "75: daily maximum reached, he may finish the batter" << true;
        QTest::newRow("national: may not finish")
            << national << 13 << 40 << 54 << 0 << Pitch::Strike << "95 pitches, 55 strikes"
            << "95: daily maximum reached, he may not finish the batter" << true;
        QTest::newRow("national 16: 31 owes a day")
            << national << 16 << 15 << 15 << 0 << Pitch::Ball << "31 pitches, 15 strikes"
            << "31: 1 day's rest" << true;
        QTest::newRow("an earlier game of the day counts")
            << league << 13 << 5 << 5 << 40 << Pitch::Ball << "11 pitches, 5 strikes"
            << "51: 3 days' rest" << true;
    }
    void countAndThreshold()
    {
        QFETCH(QString, file);
        QFETCH(int, age);
        QFETCH(int, balls);
        QFETCH(int, strikes);
        QFETCH(int, earlierGame);
        QFETCH(stats::Pitch, pitch);
        QFETCH(QString, count);
        QFETCH(QString, notice);
        QFETCH(bool, crossed);
        Season season;
        const QString pitcher = playerOf(season.bearsID, QStringLiteral("RHP"));
        const QString bears = QString::number(season.bearsID);
        setAge(pitcher, age);
        GameStatStore store(*gData);
        if (balls + strikes > 0)
            QVERIFY(store.savePitching(season.schedID(), pitcher, bears, counted(balls, strikes)));
        if (earlierGame > 0)
            QVERIFY(store.savePitching(QString::number(addGame(season, QStringLiteral("2026-04-15"))), pitcher, bears,
                                       counted(earlierGame, 0)));

        gameday::ScoreGrid card;
        gameday::GameDay game(*gData, card);
        QVERIFY(game.open(season.schedID()));
        GamePitchCount counter(*gData, game, shipped(file));
        addByPos(game, kNine + QStringList{QStringLiteral("RHP")});
        QCOMPARE(counter.counter().playerID(), pitcher);

        const PitchWrite write = counter.add(pitch);
        QVERIFY(write.ok);
        QCOMPARE(counter.counter().countText(), count);
        QCOMPARE(counter.counter().notice(), notice);
        QCOMPARE(counter.counter().lastPitchCrossed(), crossed);
        // The row as the pitching panel reads it, and the write's before and after.
        const PitchingLine after = store.pitching(season.schedID(), pitcher).value();
        QCOMPARE(after, write.after);
        QCOMPARE(after.totBalls, balls + (pitch == Pitch::Ball ? 1 : 0));
        QCOMPARE(after.totKs, strikes + (pitch == Pitch::Ball ? 0 : 1));
        QCOMPARE(write.before.has_value(), balls + strikes > 0);
        // Taken back, the row is as it was: gone when the pitch made it.
        QVERIFY(putPitchingRow(*gData, write, write.before));
        QCOMPARE(store.pitching(season.schedID(), pitcher), write.before);
    }

    // No pitcher, a pitching change, a panel over the grid, the other team.
    void pitcherOnTheMound()
    {
        Season season;
        const QString rhp = playerOf(season.bearsID, QStringLiteral("RHP"));
        const QString lhp = playerOf(season.bearsID, QStringLiteral("LHP"));
        gameday::ScoreGrid card;
        gameday::GameDay game(*gData, card);
        QVERIFY(game.open(season.schedID()));
        GamePitchCount counter(*gData, game, pitchrules::builtIn());
        GameStatStore store(*gData);

        addByPos(game, kNine);
        QVERIFY(!counter.mayCount());
        QVERIFY(!counter.add(Pitch::Ball).ok);

        addByPos(game, {QStringLiteral("RHP")});
        QCOMPARE(counter.pitcherName(), QStringLiteral("Bo10 Smith"));
        QVERIFY(counter.add(Pitch::Ball).ok);

        // The reliever takes the mound; the starter keeps his count.
        QVERIFY(game.addReplacementPlayer(rosterRowOf(game, QStringLiteral("LHP")), lineupRowOf(game, rhp)));
        QCOMPARE(counter.pitcherName(), QStringLiteral("Bo11 Smith"));
        QCOMPARE(counter.counter().countText(), QStringLiteral("0 pitches, 0 strikes"));
        QVERIFY(counter.add(Pitch::Strike).ok);
        QCOMPARE(store.pitching(season.schedID(), rhp)->totBalls, 1);
        QCOMPARE(store.pitching(season.schedID(), lhp)->totKs, 1);

        // A position typed makes the shortstop the pitcher on the mound.
        const QString ss = playerOf(season.bearsID, QStringLiteral("SS"));
        game.setLineupPosition(lineupRowOf(game, ss), QStringLiteral("rhp"));
        QCOMPARE(counter.counter().playerID(), ss);
        game.setLineupPosition(lineupRowOf(game, ss), QStringLiteral("SS"));
        QCOMPARE(counter.counter().playerID(), lhp);

        counter.setCovered(true);
        QVERIFY(!counter.add(Pitch::Ball).ok);
        counter.setCovered(false);

        game.showTeam(0); // no line-up yet
        QVERIFY(!counter.counter().hasPitcher());
        game.showTeam(1);
        QCOMPARE(counter.counter().playerID(), lhp);
        QCOMPARE(counter.counter().countText(), QStringLiteral("1 pitch, 1 strike"));
        // A row written behind the counter's back is counted on from the file.
        QVERIFY(store.savePitching(season.schedID(), lhp, QString::number(season.bearsID), counted(5, 7)));
        const PitchWrite write = counter.add(Pitch::Ball);
        QCOMPARE(write.before, std::optional(counted(5, 7)));
        QCOMPARE(write.after, counted(6, 7));
        QCOMPARE(store.pitching(season.schedID(), lhp), std::optional(counted(6, 7)));
    }

    // Monday's 70 pitches through the counter; on Tuesday putting him in,
    // by the bench's position or a typed one, warns and doesn't stop the
    // coach; on Wednesday the report says Saturday.
    void twoGamesOnConsecutiveDays()
    {
        Season season;
        const QString folder = gPrefs->strdDataLoc;
        pitchrules::copyShipped(folder);
        QVERIFY(pitchrules::setChosenFile(folder, QStringLiteral("youth-league.json")));
        const PitchRuleSet rules = pitchrules::load(folder);
        const QString rhp = playerOf(season.homeID, QStringLiteral("RHP"));
        setAge(rhp, 13);
        const QString monday = QString::number(addGame(season, QStringLiteral("2026-05-04")));
        const QString tuesday = QString::number(addGame(season, QStringLiteral("2026-05-05")));

        {
            gameday::ScoreGrid card;
            gameday::GameDay game(*gData, card);
            QVERIFY(game.open(monday));
            game.showTeam(0); // the home team bats first
            GamePitchCount counter(*gData, game, rules);
            addByPos(game, kNine + QStringList{QStringLiteral("RHP")});
            for (int i = 0; i < 70; ++i)
                QVERIFY(counter.add(i % 3 == 0 ? Pitch::Ball : Pitch::Strike).ok);
            QCOMPARE(counter.counter().notice(), QStringLiteral("66: 4 days' rest"));
        }
        auto &shown = season.fake.messages.shown;
        auto warnings = [&shown] {
            QList<fakes::ShownMessage> found;
            std::copy_if(shown.begin(), shown.end(), std::back_inserter(found),
                         [](const fakes::ShownMessage &m) { return m.message.contains(u"may not pitch"); });
            return found;
        };
        QVERIFY(warnings().isEmpty());

        gameday::ScoreGrid card;
        gameday::GameDay game(*gData, card);
        QVERIFY(game.open(tuesday));
        game.showTeam(0);
        GamePitchCount counter(*gData, game, rules);
        addByPos(game, kNine.mid(0, 8) + QStringList{QStringLiteral("RHP")}); // he bats ninth
        const int row = lineupRowOf(game, rhp);
        game.setLineupPosition(row, QStringLiteral("DH"));
        addByPos(game, {QStringLiteral("LHP")}); // rested: no warning
        game.setLineupPosition(row, QStringLiteral("rhp"));
        QCOMPARE(warnings().size(), 2);
        for (const fakes::ShownMessage &m : warnings()) {
            QCOMPARE(m.message,
                     QStringLiteral("Ann10 Smith may not pitch on Tuesday 5 May under Youth league regular season."));
            QCOMPARE(m.explanation, QStringLiteral("Threw 70 on Monday: may not pitch until Saturday."));
        }
        QCOMPARE(game.lineup().at(row).pos, QStringLiteral("RHP"));
        QCOMPARE(counter.counter().playerID(), rhp);

        const QDate wednesday(2026, 5, 6);
        const AvailabilityReport report = AvailabilityReport::make(
            rules, pitchlog::read(*gData, QString::number(season.homeID), wednesday.addDays(-30), wednesday),
            wednesday);
        const auto his = std::find_if(report.rows.begin(), report.rows.end(),
                                      [](const QStringList &r) { return r.first() == u"Ann10 Smith"; });
        QVERIFY(his != report.rows.end());
        auto column = [&report, his](const char *heading) {
            return his->value(report.headings.indexOf(QString::fromLatin1(heading)));
        };
        QCOMPARE(column("Age"), QStringLiteral("13"));
        QCOMPARE(column("Mon 4"), QStringLiteral("70"));
        QCOMPARE(column("Tue 5"), QString());
        QCOMPARE(column("Rest"), QStringLiteral("3"));
        QCOMPARE(column("May Pitch"), QStringLiteral("Sat 9 May"));
        QCOMPARE(column("Left Today"), QStringLiteral("0"));
        QCOMPARE(column("Why Not"), QStringLiteral("threw 70 on Monday: may not pitch until Saturday"));
    }
};

QTEST_MAIN(TestPitchCounter)
#include "tst_pitchcounter.moc"
