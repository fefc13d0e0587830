// The personnel rules without a window: members stored as typed, trading,
// removing, the save question for a changed member.

#include "fakes/FakePlatform.h"
#include "fakes/TestKit.h"
#include "people/RosterBook.h"

#include <QTest>

using people::MemberKind;
using people::MemberRecord;
using people::RosterBook;

class TestRosterBook : public QObject
{
    Q_OBJECT

    static MemberRecord member(MemberKind kind, const QString &team, const QString &first, const QString &last)
    {
        MemberRecord m;
        m.kind = kind;
        m.TeamNum = team;
        m.First = first;
        m.Last = last;
        return m;
    }

private Q_SLOTS:
    void playerStoredAsTyped()
    {
        testkit::Season f;
        auto &fake = f.fake;
        RosterBook book(*gData);
        const QString team = QString::number(f.addTeam(QStringLiteral("Cougars"), QStringLiteral("Central")));
        MemberRecord p = member(MemberKind::Player, team, QStringLiteral("José \"Pepe\""),
                                QStringLiteral("O'Neil; Łukasiewicz\tJr"));
        // Every text field with what it holds, read back to the character.
        const QList<std::pair<QString MemberRecord::*, QString>> typed{
            {&MemberRecord::First, p.First},
            {&MemberRecord::TeamNum, team},
            {&MemberRecord::Address, "12 \"Main\" St., Apt; 4"},
            {&MemberRecord::City, "Dublin"},
            {&MemberRecord::State, "OH"},
            {&MemberRecord::Zip, "43017"},
            {&MemberRecord::PhoneNumber, "(614) 555-1234"},
            {&MemberRecord::CellPhone, "555-9876"},
            {&MemberRecord::Email, "pepe@example.com"},
            {&MemberRecord::UniNum, "07"},
            {&MemberRecord::Pos1, "SS"},
            {&MemberRecord::Pos2, "C"},
            {&MemberRecord::Pos3, "RHP"},
            {&MemberRecord::HitSide, "Switch"},
            {&MemberRecord::ThrowSide, "Left"},
            {&MemberRecord::DOB, "04/16/2012"},
            {&MemberRecord::StudentID, "S-1'2"},
            {&MemberRecord::Guardian, "Ana O'Neil"},
            {&MemberRecord::GuardianPhone, "555-0001"},
            {&MemberRecord::EmergContact, "Tío Jorge"},
            {&MemberRecord::EmergPhone, "555-0002"},
            {&MemberRecord::Doctor, "Dr. Ng"},
            {&MemberRecord::DoctorPhone, "555-0003"},
            {&MemberRecord::MedInfo, "Peanuts; bees"},
            {&MemberRecord::PlayerNotes, "Line one\nline\ttwo"}};
        for (const auto &[field, value] : typed)
            p.*field = value;
        p.Active = false;
        p.picture = QImage(12, 14, QImage::Format_RGB32);
        p.picture.fill(Qt::blue);

        const qint64 id = book.add(p);
        QVERIFY(id > 0);
        auto back = book.store().member(MemberKind::Player, QString::number(id));
        QVERIFY(back);
        for (const auto &[field, value] : typed)
            QCOMPARE((*back).*field, value);
        QCOMPARE(back->Last, QStringLiteral("O'Neil; Łukasiewicz Jr"));
        QCOMPARE(back->Active, false);
        QCOMPARE(back->picture.size(), QSize(12, 14));
        QVERIFY(gData->scalar(QStringLiteral("SELECT PlayerPic FROM Players")).toByteArray().startsWith("\x89PNG"));

        const auto rows = book.store().list(MemberKind::Player, team);
        QCOMPARE(rows.size(), 1);
        QCOMPARE(rows[0].Pos1, QStringLiteral("SS"));
        QVERIFY(fake.messages.shown.isEmpty());
    }

    // The screen trades players (tst_personnelScrn); a coach and a member
    // gone from the file are met here.
    void tradeMovesToOtherTeam()
    {
        testkit::Season f;
        auto &fake = f.fake;
        RosterBook book(*gData);
        const QString a = QString::number(f.addTeam(QStringLiteral("Cougars"), QStringLiteral("Central")));
        const QString b = QString::number(f.addTeam(QStringLiteral("Wolves"), QStringLiteral("West")));
        const auto k = MemberKind::Coach;
        const QString id = QString::number(book.add(member(k, a, QStringLiteral("Al"), QStringLiteral("Reyes"))));

        MemberRecord m = *book.store().member(k, id);
        m.City = QStringLiteral("Columbus");
        QVERIFY(book.edit(m, b));
        QCOMPARE(book.store().list(k, a).size(), 0);
        const auto there = book.store().list(k, b);
        QCOMPARE(there.size(), 1);
        QCOMPARE(there[0].id, id);
        QCOMPARE(book.store().member(k, id)->City, QStringLiteral("Columbus"));

        MemberRecord gone = m;
        gone.id = QStringLiteral("404");
        QVERIFY(!book.edit(gone));
        QCOMPARE(fake.messages.texts().last(), QStringLiteral("Unable to update team"));
    }
};

QTEST_MAIN(TestRosterBook)
#include "tst_rosterbook.moc"
