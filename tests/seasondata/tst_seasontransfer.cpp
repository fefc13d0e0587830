// A new season made from the current one: which rows travel, with their
// ids, and that a refused or failed transfer leaves no season file behind.

#include "SeasonFixture.h"
#include "seasondata/SeasonTransfer.h"

#include <QFileInfo>
#include <QTest>

#include <SQLiteCpp/Database.h>

using seasondata::SeasonTransfer;

class TestSeasonTransfer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void transfer_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("teams"); // letters of the fixture's teams to carry over
        QTest::addColumn<bool>("inventory");
        QTest::addColumn<QString>("trouble");
        QTest::addColumn<QString>("message");

        QTest::newRow("two teams with inventory") << "2027"
                                                  << "AC" << true << ""
                                                  << "The transfer was successful";
        QTest::newRow("two teams without inventory") << "2027"
                                                     << "AC" << false << ""
                                                     << "The transfer was successful";
        QTest::newRow("a name with a quote") << "O'Brien's 2027"
                                             << "B" << false << ""
                                             << "The transfer was successful";
        QTest::newRow("empty name") << ""
                                    << "A" << false << ""
                                    << "Please provide a name for the new season.";
        QTest::newRow("a slash in the name")
            << "2027/8"
            << "A" << false << ""
            << "A season's name can't hold a slash, a backslash or a control character.";
        QTest::newRow("a name too long to name a file") << QString(240, u'x') << "A" << false << ""
                                                        << "The season's name is too long to name a file.";
        QTest::newRow("into a season that exists") << "2027"
                                                   << "AC" << true << "exists"
                                                   << "The season 2027 exists already.";
        QTest::newRow("no teams chosen") << "2027"
                                         << "" << false << ""
                                         << "Please add teams for transferring";
        QTest::newRow("previous file gone") << "2027"
                                            << "A" << false << "ghost"
                                            << "The previous season file could not be located.";
        QTest::newRow("failure half way") << "2027"
                                          << "AC" << true << "no coaches table"
                                          << "Database Error: 1";
    }

    void transfer()
    {
        QFETCH(QString, name);
        QFETCH(QString, teams);
        QFETCH(bool, inventory);
        QFETCH(QString, trouble);
        QFETCH(QString, message);

        SeasonFixture f;
        const QString oldSeason = gPrefs->prSeason;
        // Three teams; ids are made uneven by a deleted team so that a
        // transfer that renumbers would show.
        f.addTeam(QStringLiteral("Gone"), QStringLiteral("Team"));
        gData->exec(QStringLiteral("DELETE FROM Teams"));
        const QHash<QChar, qint64> ids{{u'A', f.addTeam(QStringLiteral("Lincoln"), QStringLiteral("Lions"))},
                                       {u'B', f.addTeam(QStringLiteral("O'Brien's"), QStringLiteral("Owls"))},
                                       {u'C', f.addTeam(QStringLiteral("Central"), QStringLiteral("Cubs"))}};
        for (auto it = ids.begin(); it != ids.end(); ++it) {
            f.addMember(QStringLiteral("Players"), it.value(), QStringLiteral("Player ") + it.key());
            f.addMember(QStringLiteral("Players"), it.value(), QStringLiteral("Second ") + it.key());
            f.addMember(QStringLiteral("Coaches"), it.value(), QStringLiteral("Coach ") + it.key());
            gData->insert(QStringLiteral("TeamInventory"), {{QStringLiteral("teamID"), QString::number(it.value())},
                                                            {QStringLiteral("quantity"), 4},
                                                            {QStringLiteral("item"), QStringLiteral("Bats")}});
        }
        gData->insert(QStringLiteral("PlayerInventory"), {{QStringLiteral("PlayerID"), QStringLiteral("1")},
                                                          {QStringLiteral("Item"), QStringLiteral("Helmet")}});
        gData->insert(QStringLiteral("Schedule"), {{QStringLiteral("Event"), QStringLiteral("Game")}});
        gPrefs->prHomeTeam = QString::number(ids.value(u'A'));

        QStringList chosen;
        for (const QChar c : teams)
            chosen.append(QString::number(ids.value(c)));
        if (trouble == u"ghost")
            gPrefs->prSeason = QStringLiteral("ghost");
        if (trouble == u"no coaches table")
            gData->exec(QStringLiteral("DROP TABLE Coaches"));
        // A season of that name with a team of its own under one of the ids.
        QStringList existing;
        if (trouble == u"exists") {
            myDB other(f.dataFolder(), name);
            other.insert(QStringLiteral("Teams"), {{QStringLiteral("teamID"), ids.value(u'C')},
                                                   {QStringLiteral("TeamName"), QStringLiteral("Rivals")}});
            existing = f.dump(other, QStringLiteral("Teams")) + f.dump(other, QStringLiteral("Players"));
        }
        const QString prevSeason = gPrefs->prSeason;
        const QString before = f.dump(*gData, QStringLiteral("Players")).join(u'\n');

        const bool made = SeasonTransfer::doTransfer(name, chosen, inventory);

        QCOMPARE(f.fake.messages.texts().join(u'\n').section(u'\n', 0, 0).left(message.size()), message);
        const bool success = message == u"The transfer was successful";
        QCOMPARE(made, success);
        const QStringList files = QDir(f.dataFolder()).entryList(QDir::Files);
        if (!success) {
            // Nothing made: no season file, no working file, the old season current.
            if (trouble == u"exists") {
                QCOMPARE(files.filter(QStringLiteral("2027")), QStringList{myDB::getCurDBFileName(name)});
                myDB other(f.dataFolder(), name);
                QCOMPARE(f.dump(other, QStringLiteral("Teams")) + f.dump(other, QStringLiteral("Players")), existing);
            } else {
                QCOMPARE(files.filter(QStringLiteral("2027")), QStringList());
            }
            QCOMPARE(gPrefs->prSeason, prevSeason);
            QVERIFY(!gPrefs->prefsDirty);
            return;
        }
        QCOMPARE(files.filter(QStringLiteral(".part")), QStringList());
        QCOMPARE(gPrefs->prSeason, name);
        QVERIFY(gPrefs->prefsDirty);
        QCOMPARE(QFileInfo(gData->filePath()).fileName(), myDB::getCurDBFileName(name));

        // Only the chosen teams, their players and coaches, each with its id.
        QStringList teamRows;
        for (const QChar c : teams)
            teamRows.append(QString::number(ids.value(c)));
        QStringList got;
        for (const Record &r : gData->select(QStringLiteral("SELECT teamID FROM Teams ORDER BY teamID")))
            got.append(r.text(QStringLiteral("teamID")));
        teamRows.sort();
        got.sort();
        QCOMPARE(got, teamRows);
        QStringList expectedPlayers;
        for (const QString &row : before.split(u'\n')) {
            if (chosen.contains(row.section(u'|', 1, 1)))
                expectedPlayers.append(row);
        }
        QCOMPARE(f.dump(*gData, QStringLiteral("Players")), expectedPlayers);
        QCOMPARE(f.count(QStringLiteral("Coaches")), int(chosen.size()));
        QCOMPARE(f.count(QStringLiteral("TeamInventory")), inventory ? 3 : 0);
        QCOMPARE(f.count(QStringLiteral("PlayerInventory")), 0);
        QCOMPARE(f.count(QStringLiteral("Schedule")), 0);
        // The home team keeps its id, so it is still the home team.
        QCOMPARE(gData->getTeamNameFromID(gPrefs->prHomeTeam, false),
                 QString::fromLatin1(teams.contains(u'A') ? "Lions" : ""));
        // A new row continues after the carried ids rather than reusing one.
        QVERIFY(f.addTeam(QStringLiteral("New"), QStringLiteral("Team")) > got.last().toLongLong());
        // The old season is untouched.
        QVERIFY(QFileInfo::exists(f.seasonFile(oldSeason)));
    }
};

QTEST_GUILESS_MAIN(TestSeasonTransfer)
#include "tst_seasontransfer.moc"
