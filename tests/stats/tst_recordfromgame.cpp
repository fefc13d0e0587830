// "Record Game Data" on a game played through the game screen's rules:
// recorded from either team's view, cancelled at the checks, or stopped
// by a database failure with the button left in place.

#include "RecordTestSupport.h"
#include "gameday/GameDay.h"
#include "gameday/GameDayTestSupport.h"
#include "stats/GameStats.h"
#include "stats/RecordGameData.h"

#include <QTest>

using gameday::GameDay;
using stats::RecordOutcome;

namespace {

struct Play
{
    int row;
    int col;
    QString code;
};

// Adds the lineup by position and plays the team on show.
void playTeam(GameDay &game, const QStringList &positions, const QList<Play> &plays)
{
    for (const QString &pos : positions) {
        for (int i = 0; i < game.roster().size(); ++i) {
            if (game.roster().at(i).pos == pos) {
                game.addPlayerToLineup(i);
                break;
            }
        }
    }
    for (const Play &p : plays)
        game.card().applyChoice(p.row, p.col, p.code);
    game.updateRunsHits();
}

QString seasonDump(const QString &home, const QString &bears, const QString &game)
{
    using recordtest::Season;
    QStringList out;
    for (const char *id : {"1", "2", "13", "14", "15", "16"})
        out << QStringLiteral("H%1: ").arg(id) + Season::seasonRow("Hitting", id);
    out << "F1: " + Season::seasonRow("Fielding", "1") << "P16: " + Season::seasonRow("Pitching", "16");
    out << "home " + Season::record(home) << "bears " + Season::record(bears);
    out << (Season::isRecorded(game) ? "recorded" : "open");
    return out.join(u'\n').replace("game=" + game, "game=G").replace("team=" + home, "team=H").replace("team=" + bears, "team=B");
}

} // namespace

class TestRecordFromGame : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void recordGameData_data()
    {
        QTest::addColumn<int>("view");
        QTest::addColumn<QString>("answer");
        QTest::addColumn<RecordOutcome>("outcome");
        QTest::addColumn<QString>("season");
        const QString recorded = QStringList{
            "H1: team=H game=G AB=1 B1=1 Runs=1",
            "H2: team=H game=G AB=1 HR=1 Runs=1 RBI=1",
            "H13: team=B game=G AB=2 B2=1 HR=1 Runs=1 RBI=1 LOB=1",
            "H14: team=B game=G AB=1 GO=1 SB=1",
            "H15: team=B game=G AB=1 KS=1",
            "H16: team=B game=G AB=1 FO=1",
            "F1: team=H game=G IP=9 CH=2 PO=1",
            "P16: team=B game=G Loss=1 Start=1 Balls=20 Ks=30 PitCt=50 IP=51 BF=12 Hits=4",
            "home 1-0-0", "bears 0-1-0", "recorded"}.join(u'\n');
        const QString untouched = QStringList{"H1: ", "H2: ", "H13: ", "H14: ", "H15: ", "H16: ", "F1: ", "P16: ",
                                              "home ", "bears ", "open"}.join(u'\n');
        QTest::newRow("from the home team's view") << 0 << "record" << RecordOutcome::Recorded << recorded;
        QTest::newRow("from the Bears' view") << 1 << "record" << RecordOutcome::Recorded << recorded;
        QTest::newRow("cancelled at the checks") << 1 << "cancel" << RecordOutcome::Cancelled << untouched;
        QTest::newRow("database failure") << 0 << "fail" << RecordOutcome::Refused << untouched;
    }
    void recordGameData()
    {
        QFETCH(int, view);
        QFETCH(QString, answer);
        gamedaytest::Season season;
        gameday::ScoreGrid card;
        GameDay game(*gData, card);
        QVERIFY(game.open(season.schedID()));
        const QString home = QString::number(season.homeID);
        const QString bears = QString::number(season.bearsID);

        // The Bears bat last and show first: three outs in the first inning.
        playTeam(game, {"C", "B1", "B2", "B3"},
                 {{0, 0, "HR"}, {1, 0, "GO"}, {2, 0, "KS"}, {3, 0, "FO"}, {0, 1, "B2"}, {0, 1, "xLOB"}});
        game.setBatterStat(0, 0, "1");
        game.setBatterStat(1, 1, "1");
        game.showTeam(0);
        playTeam(game, {"C", "B1"}, {{0, 0, "B1"}, {0, 0, "xRUN"}, {1, 0, "HR"}});
        game.setBatterStat(1, 0, "1");
        stats::GameStatStore panels(*gData);
        panels.saveStats(stats::Panel::Fielding, season.schedID(), "1", home, "9\t2\t1");
        panels.savePitching(season.schedID(), "16", bears, {2, true, false, false, 20, 30, "5.1\t12\t4"});
        if (view != game.curSelTeam())
            game.showTeam(view);
        QCOMPARE(game.board().runs, (std::array<QString, 2>{"2", "1"}));
        QVERIFY(game.finalizeVisible());
        if (answer == u"fail")
            recordtest::failAtWrite(3);

        std::array<bool, 4> shown {};
        QTEST(stats::recordGameData(*gData, game,
                                    [&](const std::array<bool, 4> &checks) {
                                        shown = checks;
                                        return answer != u"cancel";
                                    }),
              "outcome");
        // RBI 2 against 3 runs; the home team's inning is not over; every
        // at bat has its result; both panels saved.
        QCOMPARE(shown, (std::array<bool, 4>{false, false, true, true}));
        QTEST(seasonDump(home, bears, season.schedID()), "season");
        QCOMPARE(game.finalizeVisible(), answer != u"record");
    }
};

QTEST_GUILESS_MAIN(TestRecordFromGame)
#include "tst_recordfromgame.moc"
