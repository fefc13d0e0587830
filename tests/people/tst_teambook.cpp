// The team rules without a window: storing what was typed, the home team,
// deleting a team with its players, and closing.

#include "fakes/FakePlatform.h"
#include "fakes/TestKit.h"
#include "people/Pictures.h"
#include "people/TeamBook.h"

#include <QTest>

using people::TeamBook;
using people::TeamRecord;

class TestTeamBook : public QObject
{
    Q_OBJECT

    static TeamRecord team(const QString &school, const QString &name)
    {
        TeamRecord t;
        t.SchoolName = school;
        t.TeamName = name;
        return t;
    }

private Q_SLOTS:
    void storesEveryFieldAsTyped()
    {
        testkit::Season f;
        auto &fake = f.fake;
        TeamBook book(*gData, *gPrefs);
        TeamRecord t = team(QStringLiteral("O'Brien's \"Prep\"; Academy"), QStringLiteral("Señores\tRojos"));
        // Every text field with what it holds, read back to the character.
        const QList<std::pair<QString TeamRecord::*, QString>> typed{{&TeamRecord::SchoolName, t.SchoolName},
                                                                     {&TeamRecord::League, "Tri-County, North"},
                                                                     {&TeamRecord::Division, "A; B"},
                                                                     {&TeamRecord::SchoolAddress, "1 Elm St."},
                                                                     {&TeamRecord::SchoolAddress1, "Suite \"B\""},
                                                                     {&TeamRecord::SchoolCity, "Zürich"},
                                                                     {&TeamRecord::SchoolZip, "43017"},
                                                                     {&TeamRecord::SchoolState, "OH"},
                                                                     {&TeamRecord::Phone, "6145551234"},
                                                                     {&TeamRecord::HomeField,
                                                                      "Mc'Kinley Park'); DROP TABLE Teams;--"}};
        for (const auto &[field, value] : typed)
            t.*field = value;
        t.Active = false;

        const auto saved = book.save(t, false);
        QCOMPARE(saved.result, TeamBook::Saved::Added);
        const auto back = book.store().team(saved.teamID);
        QVERIFY(back);
        for (const auto &[field, value] : typed)
            QCOMPARE((*back).*field, value);
        QCOMPARE(back->TeamName, QStringLiteral("Señores Rojos")); // the tab can't reach the game strings
        QCOMPARE(back->Active, false);
        QCOMPARE(f.count(QStringLiteral("SELECT COUNT(*) FROM Teams")), 1);

        // Found again by the values typed.
        QCOMPARE(book.store().distinctValues(QStringLiteral("HomeField")), QStringList{t.HomeField});
        QCOMPARE(book.store().distinctValues(QStringLiteral("TeamName")), QStringList()); // only the offered columns
        QVERIFY(fake.messages.shown.isEmpty());
    }

    void aTeamGoneFromTheFileIsNotSaved()
    {
        testkit::Season f;
        auto &fake = f.fake;
        TeamBook book(*gData, *gPrefs);
        // A blank name is refused through the team screen (tst_teamScrn); a
        // team gone from the file can only be met here.
        TeamRecord gone = team(QStringLiteral("Central"), QStringLiteral("Cougars"));
        gone.teamID = QStringLiteral("99");
        QCOMPARE(book.save(gone, false).result, TeamBook::Saved::Failed);
        QCOMPARE(fake.messages.texts().last(), QStringLiteral("Unable to update team"));
        QVERIFY(gPrefs->prHomeTeam.isEmpty());
    }

    // The first home team needs no question; a different one asks, and only
    // "Change" changes it. A chosen home team is kept for the next start.
    void homeTeamRules_data()
    {
        QTest::addColumn<bool>("secondByEdit");
        QTest::addColumn<int>("answer");
        QTest::addColumn<bool>("changed");
        QTest::newRow("added, Change") << false << 0 << true;
        QTest::newRow("added, Cancel") << false << 1 << false;
        QTest::newRow("edited, Change") << true << 0 << true;
        QTest::newRow("edited, Cancel") << true << 1 << false;
    }
    void homeTeamRules()
    {
        QFETCH(bool, secondByEdit);
        QFETCH(int, answer);
        QFETCH(bool, changed);
        testkit::Season f;
        auto &fake = f.fake;
        TeamBook book(*gData, *gPrefs);

        const QString first = book.save(team(QStringLiteral("Central"), QStringLiteral("Cougars")), true).teamID;
        QCOMPARE(gPrefs->prHomeTeam, first);
        QVERIFY(fake.messages.shown.isEmpty());
        QVERIFY(gPrefs->prefsDirty);
        gPrefs->prefsDirty = false;

        QString second;
        if (secondByEdit) {
            second = book.save(team(QStringLiteral("West"), QStringLiteral("Wolves")), false).teamID;
            QCOMPARE(gPrefs->prHomeTeam, first);
            TeamRecord again = *book.store().team(second);
            fake.messages.answers.enqueue(std::uint8_t(answer));
            book.save(again, true);
        } else {
            fake.messages.answers.enqueue(std::uint8_t(answer));
            second = book.save(team(QStringLiteral("West"), QStringLiteral("Wolves")), true).teamID;
        }
        QCOMPARE(fake.messages.shown.size(), 1);
        const fakes::ShownMessage &asked = fake.messages.shown.first();
        QCOMPARE(asked.message, QStringLiteral("Make this team the default 'Home Team'?"));
        QCOMPARE(asked.explanation,
                 QStringLiteral("Caution: Changing home teams mid-season can render much of the data invalid."));
        QCOMPARE(asked.actionCaption, QStringLiteral("Change"));
        QCOMPARE(asked.altCaption, QString());
        QCOMPARE(gPrefs->prHomeTeam, changed ? second : first);
        QCOMPARE(gPrefs->prefsDirty, changed);

        // Saving the home team again asks nothing.
        fake.messages.clear();
        book.save(*book.store().team(gPrefs->prHomeTeam), true);
        QVERIFY(fake.messages.shown.isEmpty());
    }

    // When the team row can't go, its players stay too.
    void deleteIsAllOrNothing()
    {
        testkit::Season f;
        TeamBook book(*gData, *gPrefs);
        const QString id = QString::number(f.addTeam(QStringLiteral("Cougars"), QStringLiteral("Central")));
        gPrefs->prHomeTeam = id;
        f.addPlayer(id.toLongLong(), QStringLiteral("Al"), QStringLiteral("Reyes"));
        QVERIFY(gData->exec(QStringLiteral("CREATE TRIGGER keep BEFORE DELETE ON Teams "
                                           "BEGIN SELECT RAISE(ABORT, 'kept'); END")));
        QVERIFY(!book.deleteTeam(id));
        QCOMPARE(f.count(QStringLiteral("SELECT COUNT(*) FROM Players")), 1);
        QCOMPARE(f.count(QStringLiteral("SELECT COUNT(*) FROM Teams")), 1);
        QCOMPARE(gPrefs->prHomeTeam, id);
    }
};

QTEST_MAIN(TestTeamBook)
#include "tst_teambook.moc"
