// The road of a season to its reports: two games scored on the game day's
// scorecard and recorded, then the batting report and the standings that
// follow, against figures worked out by hand from the games' at bats.

#include "ReportsFixture.h"
#include "SampleSeason.h"
#include "reports/ui/qlmListBox.h"
#include "reports/ui/reportScrn.h"
#include "reports/ui/standingsScrn.h"

#include <QTest>

class TestSeasonEndToEnd : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void twoRecordedGames()
    {
        ReportsFixture f;
        const QList<sample::PlayedGame> games = sample::buildSeason(*f.db, *f.prefs, 2);
        QCOMPARE(games.size(), 2);
        QCOMPARE(f.platform.messages.texts(), (QStringList{"The game data has been successfully recorded.",
                                                           "The game data has been successfully recorded."}));
        QCOMPARE(f.db->scalar("SELECT COUNT(*) FROM Games WHERE recorded = 1").toInt(), 2);

        // Mateo leads off both games. At home against the Wildcats: a single
        // left on, a three-run homer, a walk, a double; at the Patriots: a
        // double, two singles, a called strikeout and a ground out.
        auto *batting = new reportScrn(0, {"First Name", "Last Name", "AB", "Avg", "OBP", "SP", "B1", "B2", "B3",
                                           "HR", "BB", "KS", "KL", "Runs", "RBI"});
        const qlmListBox *list = batting->reportBox;
        QStringList mateo;
        for (int r = 0; r < list->rowCount(); ++r) {
            if (list->cell(r, 1) == QStringLiteral("Hernández"))
                mateo = list->rowCells(r);
        }
        // 6 hits in 8 at bats; (6 + 1) / (8 + 1); (3 + 2 x 2 + 4) / 8.
        QCOMPARE(mateo, (QStringList{"Mateo", "Hernández", "8", ".750", ".778", "1.375", "3", "2", "0", "1", "1",
                                     "0", "1", "1", "3"}));
        // Both teams' nine batted in both games: 9 + 9 + 9 + 9 lines, with
        // one home player resting each game.
        QCOMPARE(list->rowCount(), 9 + 9 + 9 + 1);
        delete batting;

        // Celtics 3-0 over the Wildcats, then 4-6 at the Patriots.
        QCOMPARE(games.at(0).runsA, 0);
        QCOMPARE(games.at(0).runsB, 3);
        QCOMPARE(games.at(1).runsA, 4);
        QCOMPARE(games.at(1).runsB, 6);
        auto standings = std::make_unique<standingsScrn>();
        QStringList rows;
        for (int r = 0; r < standings->myLB->rowCount(); ++r)
            rows.append(standings->myLB->rowCells(r).join(u' ').simplified());
        QCOMPARE(rows, (QStringList{"Patriots 1 0 0 1.000 0.0", "Celtics 1 1 0 .500 0.5", "Wildcats 0 1 0 .000 1.0",
                                    "Knights .000 0.5", "Cardinals .000 0.5"}));
    }
};

QTEST_MAIN(TestSeasonEndToEnd)
#include "tst_seasonendtoend.moc"
