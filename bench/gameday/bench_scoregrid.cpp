// What the grid's loops cost on the largest card there is: 26 rows by 23
// columns. Loading a team, the scoreboard's counts after a click, one click
// applying a code, and the auto-fill walk over a whole game.
//
// Run: build/bench/gameday/bench_scoregrid -tickcounter (or -callgrind)

#include "app/globals.h"
#include "app/myDictionaries.h"
#include "fakes/FakePlatform.h"
#include "gameday/ScoreGrid.h"

#include <QTest>

using gameday::ScoreGrid;

namespace {

void loadFullCard(ScoreGrid &grid)
{
    grid.insertColumn(0, 32);
    grid.insertColumn(2, 32);
    grid.insertColumn(4, 32);
    grid.deleteAllRows();
    const QStringList codes = gameday::atBatCodes();
    const QStringList bkgs = {"", "R", "G", "Y"};
    for (int r = 0; r < gameday::kBkgRows; ++r) {
        grid.addRow();
        for (int c = 0; c < grid.columnCount(); ++c) {
            grid.setCellText(r, c, codes.at((r + c) % codes.size()));
            grid.setCellBkg(r, c, bkgs.at((r * 3 + c) % bkgs.size()));
        }
    }
}

} // namespace

class BenchScoreGrid : public QObject
{
    Q_OBJECT

    fakes::FakePlatform m_fake;

private Q_SLOTS:
    void initTestCase() { hitD = myDictionaries::buildHitting(QString()); }

    void loadTeam()
    {
        ScoreGrid source;
        loadFullCard(source);
        const QString texts = source.getMyData();
        const QString outcomes = source.getMyBkgArray();
        ScoreGrid grid;
        grid.setColumnHeadings(source.columnHeadings());
        for (int r = 0; r < source.rowCount(); ++r)
            grid.addRow();
        QBENCHMARK {
            grid.setMyData(texts);
            grid.setMyBkgArray(outcomes);
        }
        QCOMPARE(grid.getMyData(), texts);
    }

    void saveTeam()
    {
        ScoreGrid grid;
        loadFullCard(grid);
        QString texts, outcomes;
        QBENCHMARK {
            texts = grid.getMyData();
            outcomes = grid.getMyBkgArray();
        }
        QCOMPARE(outcomes.count(u'\r'), 25);
    }

    void scoreboardCounts()
    {
        ScoreGrid grid;
        loadFullCard(grid);
        int total = 0;
        QBENCHMARK {
            const auto runs = grid.countRunsByInning();
            total = runs[0] + grid.countTotalRuns() + grid.countTotalHits() + grid.countTotalLOBs();
            for (int r = 0; r < grid.rowCount(); ++r)
                total += grid.getHittingStats(r)[0];
            total += grid.check4IncompleteCells() ? 1 : 0;
        }
        QVERIFY(total > 0);
    }

    void clickWithCode()
    {
        ScoreGrid grid;
        loadFullCard(grid);
        grid.setCellText(5, 5, QString());
        grid.setCellBkg(5, 5, QString());
        bool clear = false;
        grid.setPopoverRequest(
            [&](int, int, bool) { return clear ? QStringLiteral("Clear Cell") : QStringLiteral("B1"); });
        QBENCHMARK {
            grid.cellClicked(5, 5, false);
            clear = !clear;
        }
    }

    void autoFillWholeGame()
    {
        ScoreGrid grid;
        loadFullCard(grid);
        for (int c = 0; c < grid.columnCount(); ++c)
            grid.setCellText(c % grid.rowCount(), c, QString()); // a gap in every inning
        QBENCHMARK {
            grid.setAutoSpan(1, 0, 20, grid.columnCount() - 1);
            grid.af_calcPitchingData();
        }
        QVERIFY(grid.autoFillFigures()[1] > 0);
    }
};

QTEST_GUILESS_MAIN(BenchScoreGrid)
#include "bench_scoregrid.moc"
