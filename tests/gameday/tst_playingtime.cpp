// Playing time counted from a game played through its rules (the Bears,
// the team a new game shows, against the home team): a substitute
// takes over from the first inning his row was open in, a move changes
// positions from its inning on, and the bench counts every inning fielded.

#include "GameDayTestSupport.h"
#include "GridTestSupport.h"
#include "gameday/DefenseBook.h"
#include "gameday/GameDay.h"
#include "stats/PlayingTime.h"

#include <algorithm>

using namespace gameday;

namespace {

int rosterRowOf(const GameDay &game, const QString &pos)
{
    for (int i = 0; i < game.roster().size(); ++i)
        if (game.roster().at(i).pos == pos)
            return i;
    return -1;
}

// Three strikeouts in each of the first `innings` columns, batters in turn.
void strikeOut(GameDay &game, int innings)
{
    int batter = 0;
    for (int col = 0; col < innings; ++col)
        for (int out = 0; out < 3; ++out)
            game.card().applyChoice(batter++ % int(game.lineup().size()), col, QStringLiteral("KS"));
}

} // namespace

class TestPlayingTime : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void countedFromTheGame_data()
    {
        QTest::addColumn<int>("subAfter");     // innings batted before "B1" is replaced
        QTest::addColumn<int>("fielded");      // innings the other side batted
        QTest::addColumn<QString>("move");     // the substitute to this position from the 2nd
        QTest::addColumn<QStringList>("rows"); // name, G, Field, 1B, LF, Bench, PA; the substitute
                                               // is Bo11, the player he replaces Bo2, Bo6 the left
                                               // fielder, Bo12 stays on the bench
        QTest::newRow("replaced after two innings") << 2 << 4 << QString()
                                                    << QStringList{"Bo11 Smith 1 2 2 0 2 0", "Bo12 Smith 0 0 0 0 4 0",
                                                                   "Bo2 Smith 1 2 2 0 2 1", "Bo6 Smith 1 4 0 4 0 1"};
        QTest::newRow("replaced before the first pitch")
            << 0 << 3 << QString()
            << QStringList{"Bo11 Smith 1 3 3 0 0 0", "Bo12 Smith 0 0 0 0 3 0", "Bo2 Smith 1 0 0 0 3 0",
                           "Bo6 Smith 1 3 0 3 0 0"};
        QTest::newRow("the substitute moved to left field")
            << 1 << 3 << QStringLiteral("LF")
            << QStringList{"Bo11 Smith 1 2 0 2 1 0", "Bo12 Smith 0 0 0 0 3 0", "Bo2 Smith 1 1 1 0 2 1",
                           "Bo6 Smith 1 3 2 1 0 0"};
    }
    void countedFromTheGame()
    {
        QFETCH(int, subAfter);
        QFETCH(int, fielded);
        QFETCH(QString, move);
        QFETCH(QStringList, rows);
        gamedaytest::Season season;
        ScoreGrid card;
        GameDay game(*gData, card);
        QVERIFY(game.open(season.schedID()));
        for (const char *pos : {"C", "B1", "B2", "B3", "SS", "LF", "CF", "RF", "RHP"})
            QVERIFY(game.addPlayerToLineup(rosterRowOf(game, QString::fromLatin1(pos))));
        strikeOut(game, subAfter);
        QVERIFY(game.addReplacementPlayer(rosterRowOf(game, QStringLiteral("LHP")), 1));
        game.setLineupPosition(2, QStringLiteral("1b"));
        const QString ours = game.teamID(1);
        game.showTeam(0);
        for (const char *pos : {"C", "B1", "B2"})
            QVERIFY(game.addPlayerToLineup(rosterRowOf(game, QString::fromLatin1(pos))));
        strikeOut(game, fielded);
        game.showTeam(1);
        if (!move.isEmpty())
            QVERIFY(!DefenseBook(*gData, game).move(game.lineup().at(2).playerID, 2, move).isEmpty());
        game.showTeam(0);

        QStringList shown;
        for (const stats::PlayingTimeRow &row : stats::PlayingTimeReport::read(*gData, {ours, {}, {}}).rows) {
            if (!std::any_of(rows.cbegin(), rows.cend(),
                             [&](const QString &r) { return r.startsWith(row.name + u' '); }))
                continue;
            shown.append(QStringList{row.name, QString::number(row.games), QString::number(row.fieldInnings),
                                     QString::number(row.atPosition[2]), QString::number(row.atPosition[6]),
                                     QString::number(row.benchInnings), QString::number(row.plateAppearances)}
                             .join(u' '));
        }
        std::sort(shown.begin(), shown.end());
        QCOMPARE(shown, rows);
    }
};

QTEST_GUILESS_MAIN(TestPlayingTime)
#include "tst_playingtime.moc"
