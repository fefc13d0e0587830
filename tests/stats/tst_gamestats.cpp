// One player's game statistics: the panels' stored strings, the innings
// check, auto-fill figures, and the rows written and read back.

#include "app/globals.h"
#include "app/myDB.h"
#include "fakes/OpenSeason.h"
#include "stats/GameStats.h"

#include <QTest>

using namespace stats;

class TestGameStats : public QObject
{
    Q_OBJECT

    testkit::OpenSeason m_season;

private Q_SLOTS:
    void initTestCase() { QVERIFY(m_season.open()); }

    void innings_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("bad");
        QTest::newRow("whole") << "6" << false;
        QTest::newRow("two thirds") << "5.2" << false;
        QTest::newRow("nineteen") << "19" << false;
        QTest::newRow("past nineteen") << "19.1" << true;
        QTest::newRow("twenty") << "20" << true;
        QTest::newRow("empty") << "" << false;
    }
    void innings()
    {
        QFETCH(QString, text);
        QFETCH(bool, bad);
        QCOMPARE(isBadInnings(text), bad);
    }

    void storedStrings()
    {
        // A row with fewer entries than fields leaves the others as they were.
        QCOMPARE(spreadStats("2\t1", {"0", "0", "5"}), QStringList({"2", "1", "5"}));
        QCOMPARE(userDefinedCaptions(gPrefs->prUDF, 3), QStringList({"CGL", "CGR", "???"}));
        QCOMPARE(userDefinedCaptions(QString(), 2), QStringList({"--", "--"}));
    }

    void autoFillFigures_data()
    {
        QTest::addColumn<int>("outs");
        QTest::addColumn<QString>("innings");
        QTest::newRow("none") << 0 << "0.0";
        QTest::newRow("six full") << 18 << "6.0";
        QTest::newRow("six and two thirds") << 20 << "6.2";
    }
    void autoFillFigures()
    {
        QFETCH(int, outs);
        QFETCH(QString, innings);
        QStringList fields(kPitchingFields, QStringLiteral("9"));
        const QStringList f = applyAutoFill(fields, {outs, 11, 4, 1, 2, 3, 5, 6});
        QCOMPARE(f[0], innings);
        QCOMPARE((QStringList{f[1], f[2], f[4], f[7], f[8], f[10], f[13]}),
                 QStringList({"11", "4", "1", "2", "3", "5", "6"}));
        QCOMPARE((QStringList{f[3], f[5], f[14]}), QStringList({"9", "9", "9"}));
    }

    void rowsWrittenOncePerPlayerAndErrorsSummed()
    {
        GameStatStore store(*gData);
        QVERIFY(!store.stats(Panel::Fielding, "7", "201"));
        QVERIFY(store.saveStats(Panel::Fielding, "7", "201", "4", "9\t5\t3\t1\t1\t2\t0\t0\t0\t0\t0\t0\t0"));
        QVERIFY(store.saveStats(Panel::Fielding, "7", "201", "4", "9\t5\t3\t1\t2\t1\t0\t0\t0\t0\t0\t0\t0"));
        QVERIFY(store.saveStats(Panel::Fielding, "7", "O'Neil", "4", "0\t0\t0\t0\t1\t0"));
        QVERIFY(store.saveStats(Panel::Fielding, "7", "300", "11", "0\t0\t0\t0\t5\t5"));
        QCOMPARE(gData->scalar("SELECT COUNT(*) FROM GamesIndivFielding WHERE playerID = '201'").toInt(), 1);
        QCOMPARE(store.teamErrors("7", "4"), 4);
        QCOMPARE(store.teamErrors("8", "4"), 0);

        const PitchingLine p{1, true, false, false, 12, 20, QStringLiteral("6.2\t25")};
        QVERIFY(store.savePitching("7", "205", "4", p));
        QCOMPARE(store.pitching("7", "205").value(), p);
        QVERIFY(!store.pitching("7", "201"));
    }
};

QTEST_GUILESS_MAIN(TestGameStats)
#include "tst_gamestats.moc"
