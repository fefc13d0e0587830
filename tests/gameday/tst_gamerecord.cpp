// The Games row: its strings read and written field for field, damaged
// lines skipped, and one team's write.

#include "app/globals.h"
#include "app/myDB.h"
#include "fakes/OpenSeason.h"
#include "gameday/GameStore.h"

#include <QTest>

using namespace gameday;

class TestGameRecord : public QObject
{
    Q_OBJECT

    testkit::OpenSeason m_season;

private Q_SLOTS:
    void initTestCase() { QVERIFY(m_season.open()); }

    void linesWithWrongFieldCountsAreSkipped_data()
    {
        QTest::addColumn<QString>("players");
        QTest::addColumn<int>("kept");
        QTest::newRow("two good lines") << "1\tSS\tBen Cole\t201\r2\tCF\tCal Diaz\t203" << 2;
        QTest::newRow("three fields") << "1\tSS\tBen Cole\r2\tCF\tCal Diaz\t203" << 1;
        QTest::newRow("five fields") << "1\tSS\tBen\tCole\t201" << 0;
        QTest::newRow("empty") << "" << 0;
        QTest::newRow("binary junk") << QString::fromLatin1("\x01\x02\xff\t\x00\r\r\t", 8) << 0;
    }
    void linesWithWrongFieldCountsAreSkipped()
    {
        QFETCH(QString, players);
        QFETCH(int, kept);
        QCOMPARE(readPlayers(players).size(), kept);
        QCOMPARE(readBench(players).size(), kept);
    }

    void writersCleanSeparatorsAndReadBack()
    {
        const QList<LineupLine> lineup = {{"1", "SS", "Ben\tO'Brien\r", "201"}, {"1", "C", " ->Ed Ford", "209"}};
        const QString stored = writePlayers(lineup);
        QCOMPARE(stored, QStringLiteral("1\tSS\tBen O'Brien \t201\r1\tC\t ->Ed Ford\t209"));
        QCOMPARE(readPlayers(stored).at(1), lineup.at(1));
        QCOMPARE(readBatStats("1\t0\r7\r0\t2").size(), 2);
    }

    void runEntryRoundTrip_data()
    {
        QTest::addColumn<QString>("stored");
        QTest::addColumn<int>("runs");
        QTest::newRow("full") << "xxx\t0\t2\t0\t1\t--\t--\t--\t--\t--\t--\t7\t1\t4" << 3;
        QTest::newRow("short") << "xxx\t5" << 5;
    }
    void runEntryRoundTrip()
    {
        QFETCH(QString, stored);
        QFETCH(int, runs);
        QVERIFY(isRunEntry(stored));
        const RunEntry e = readRunEntry(stored);
        QCOMPARE(e.runs(), runs);
        QCOMPARE(writeRunEntry(e).split(u'\t').size(), 14);
        QCOMPARE(readRunEntry(writeRunEntry(e)), e);
    }

    // The rest of the row's round trip is the golden-file game's (tst_gamedayscrn).
    void teamSaveWritesOnlyItsTeam()
    {
        GameStore store(*gData);
        GameRecord g;
        g.schedID = QStringLiteral("41");
        QVERIFY(store.create(g));
        g.teams[0].actions = QStringLiteral("B1\tGO");
        g.teams[1].actions = QStringLiteral("HR");
        QCOMPARE(store.saveTeam(g, 0), GameStore::SaveResult::Saved);
        const GameRecord back = store.load(QStringLiteral("41")).value();
        QCOMPARE(back.teams[0].actions, g.teams[0].actions);
        QCOMPARE(back.teams[1].actions, QString());

        g.schedID = QStringLiteral("999");
        QCOMPARE(store.save(g), GameStore::SaveResult::Missing);
        QVERIFY(!store.load(QStringLiteral("999")));
    }

    void gameTypeByLeagueAndDivision_data()
    {
        QTest::addColumn<QString>("leagueB");
        QTest::addColumn<QString>("divisionB");
        QTest::addColumn<QString>("type");
        QTest::newRow("same both") << "North"
                                   << "A"
                                   << "Division";
        QTest::newRow("same league") << "North"
                                     << "B"
                                     << "Non-Div/League";
        QTest::newRow("other league") << "South"
                                      << "A"
                                      << "Non-Div/Non-Lg";
        QTest::newRow("case differs") << "north"
                                      << "A"
                                      << "Non-Div/Non-Lg";
    }
    void gameTypeByLeagueAndDivision()
    {
        QFETCH(QString, leagueB);
        QFETCH(QString, divisionB);
        QFETCH(QString, type);
        const QStringList types = gPrefs->prGameTypes.split(u',');
        QCOMPARE(chooseGameType({"A", "North", "A"}, {"B", leagueB, divisionB}, types), type);
    }
};

QTEST_GUILESS_MAIN(TestGameRecord)
#include "tst_gamerecord.moc"
