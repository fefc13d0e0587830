// The road of a season to its reports: two games scored on the game screen
// and recorded with its "Record Game Data" button, then the batting report
// and the standings that follow, against figures worked out by hand.

#include "ReportsFixture.h"
#include "SampleSeason.h"
#include "fakes/TestKit.h"
#include "gameday/ui/gameDayScrn.h"
#include "reports/ui/qlmListBox.h"
#include "reports/ui/reportScrn.h"
#include "reports/ui/standingsScrn.h"
#include "stats/ui/finalCheckScrn.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

namespace {

struct Play
{
    int row, col;
    QString code;
};

// The lineup by position, then the plays, on the team the screen shows.
void playTeam(gameday::GameDay &game, const QStringList &positions, const QList<Play> &plays)
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

// Presses "Record Game Data" and answers the check window with its record button.
void recordFromScreen(gameDayScrn *screen)
{
    testkit::whenShown<finalCheckScrn>([](finalCheckScrn *check) {
        auto *record = testkit::child<QPushButton>(check, "recordBtn");
        record->setFocus();
        QTest::keyClick(record, Qt::Key_Space);
    });
    testkit::child<QPushButton>(screen, "finalizeBtn")->setFocus();
    QTest::keyClick(testkit::child<QPushButton>(screen, "finalizeBtn"), Qt::Key_Space);
}

QStringList lines(const qlmListBox *list)
{
    QStringList out;
    for (int r = 0; r < list->rowCount(); ++r)
        out.append(list->rowCells(r).join(u' ').simplified());
    return out;
}

} // namespace

class TestSeasonEndToEnd : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Whatever a function left open, also when it failed half-way, goes
    // before the next one starts.
    void cleanup() { testkit::closeAllWindows(); }

    void twoGamesFromTheGameScreen()
    {
        ReportsFixture f;
        // Teams, rosters and the schedule of the sample season; no game played.
        QVERIFY(sample::buildSeason(*f.db, *f.prefs, 0).isEmpty());
        const QStringList games = [&] {
            QStringList ids;
            for (const Record &r : f.db->select("SELECT eventID FROM Schedule WHERE Event = 'Game' ORDER BY SchedDate"))
                ids.append(r.text("eventID"));
            return ids;
        }();
        QCOMPARE(games.size(), 4);

        // At home against the Wildcats, who bat first: three outs for them;
        // Nguyen singles and scores, Washington homers (2 RBI). 2-0.
        auto *first = new gameDayScrn(games.at(0));
        first->show();
        playTeam(first->game(), {"C", "B1", "B2"}, {{0, 0, "B1"}, {0, 0, "xRUN"}, {1, 0, "HR"}, {2, 0, "KS"}});
        first->game().setBatterStat(1, 0, "2");
        testkit::child<QRadioButton>(first, "TeamBtn_0")->click();
        playTeam(first->game(), {"C", "B1", "B2"}, {{0, 0, "KS"}, {1, 0, "GO"}, {2, 0, "FO"}});
        QVERIFY(testkit::child<QPushButton>(first, "finalizeBtn")->isVisible());
        recordFromScreen(first);
        QVERIFY(testkit::child<QLabel>(first, "dataRecordedLabel")->isVisible());
        first->close();

        // At the Patriots, batting first: Nguyen doubles and is left on,
        // Washington strikes out; two home runs for the Patriots. 0-2.
        auto *second = new gameDayScrn(games.at(1));
        second->show();
        playTeam(second->game(), {"C", "B1", "B2"}, {{0, 0, "HR"}, {1, 0, "HR"}, {2, 0, "KS"}});
        testkit::child<QRadioButton>(second, "TeamBtn_0")->click();
        playTeam(second->game(), {"C", "B1", "B2", "B3"},
                 {{0, 0, "B2"}, {0, 0, "xLOB"}, {1, 0, "KS"}, {2, 0, "GO"}, {3, 0, "FO"}});
        recordFromScreen(second);
        QVERIFY(testkit::child<QLabel>(second, "dataRecordedLabel")->isVisible());
        second->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCOMPARE(f.db->scalar("SELECT COUNT(*) FROM Games WHERE recorded = 1").toInt(), 2);

        // Nguyen: 2 for 2, a single and a double, (1 + 2) / 2 bases, one run.
        // Washington: 1 for 2, a home run and a strikeout, 4 / 2 bases, 2 RBI.
        auto batting = std::make_unique<reportScrn>(0, QStringList{"First Name", "Last Name", "AB", "Avg", "OBP", "SP",
                                                                   "B1", "B2", "B3", "HR", "BB", "KS", "KL", "Runs",
                                                                   "RBI"});
        const QStringList shown = lines(testkit::child<qlmListBox>(batting, "reportBox"));
        QVERIFY(shown.contains("Ethan Nguyen Celtics 2 1.000 1.000 1.500 1 1 0 0 0 0 0 1 0"));
        QVERIFY(shown.contains("Caleb Washington Celtics 2 .500 .500 2.000 0 0 0 1 0 1 0 1 2"));
        // Three Celtics, three Wildcats, three Patriots and the Celtics' B3.
        QCOMPARE(shown.size(), 10);

        auto standings = std::make_unique<standingsScrn>();
        QCOMPARE(lines(testkit::child<qlmListBox>(standings.get(), "myLB")),
                 (QStringList{"Patriots 1 0 0 1.000 0.0", "Celtics 1 1 0 .500 0.5", "Wildcats 0 1 0 .000 1.0",
                              "Knights .000 0.5", "Cardinals .000 0.5"}));
    }
};

QTEST_MAIN(TestSeasonEndToEnd)
#include "tst_seasonendtoend.moc"
