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
        p.Address = QStringLiteral("12 \"Main\" St., Apt; 4");
        p.City = QStringLiteral("Dublin");
        p.State = QStringLiteral("OH");
        p.Zip = QStringLiteral("43017");
        p.PhoneNumber = QStringLiteral("(614) 555-1234");
        p.CellPhone = QStringLiteral("555-9876");
        p.Email = QStringLiteral("pepe@example.com");
        p.UniNum = QStringLiteral("07");
        p.Pos1 = QStringLiteral("SS");
        p.Pos2 = QStringLiteral("C");
        p.Pos3 = QStringLiteral("RHP");
        p.HitSide = QStringLiteral("Switch");
        p.ThrowSide = QStringLiteral("Left");
        p.DOB = QStringLiteral("04/16/2012");
        p.StudentID = QStringLiteral("S-1'2");
        p.Guardian = QStringLiteral("Ana O'Neil");
        p.GuardianPhone = QStringLiteral("555-0001");
        p.EmergContact = QStringLiteral("Tío Jorge");
        p.EmergPhone = QStringLiteral("555-0002");
        p.Doctor = QStringLiteral("Dr. Ng");
        p.DoctorPhone = QStringLiteral("555-0003");
        p.MedInfo = QStringLiteral("Peanuts; bees");
        p.PlayerNotes = QStringLiteral("Line one\nline\ttwo");
        p.Active = false;
        p.picture = QImage(12, 14, QImage::Format_RGB32);
        p.picture.fill(Qt::blue);

        const qint64 id = book.add(p);
        QVERIFY(id > 0);
        auto back = book.store().member(MemberKind::Player, QString::number(id));
        QVERIFY(back);
        QCOMPARE(back->First, p.First);
        QCOMPARE(back->Last, QStringLiteral("O'Neil; Łukasiewicz Jr"));
        QCOMPARE(back->TeamNum, team);
        for (auto field : {&MemberRecord::Address, &MemberRecord::PhoneNumber, &MemberRecord::CellPhone,
                           &MemberRecord::UniNum, &MemberRecord::Pos1, &MemberRecord::Pos2, &MemberRecord::Pos3,
                           &MemberRecord::HitSide, &MemberRecord::ThrowSide, &MemberRecord::DOB,
                           &MemberRecord::StudentID, &MemberRecord::Guardian, &MemberRecord::EmergContact,
                           &MemberRecord::DoctorPhone, &MemberRecord::MedInfo, &MemberRecord::PlayerNotes})
            QCOMPARE((*back).*field, p.*field);
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
