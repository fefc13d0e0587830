// The team and player data printouts, printed to PDF and read back.

#include "fakes/FakePlatform.h"
#include "fakes/TestKit.h"
#include "fakes/TestSupport.h"
#include "people/RosterBook.h"
#include "people/TeamBook.h"

#include <QProcess>
#include <QRegularExpression>
#include <QTest>

using people::MemberKind;
using people::MemberRecord;

namespace {

const fakes::PdfWord *findWord(const QList<fakes::PdfWord> &words, const QString &text, int nth = 0)
{
    for (const fakes::PdfWord &w : words) {
        if (w.text == text && nth-- == 0)
            return &w;
    }
    return nullptr;
}

} // namespace

class TestPeoplePrint : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void teamBlocksAndPages_data()
    {
        QTest::addColumn<bool>("logos");
        QTest::addColumn<int>("copies");
        QTest::newRow("with logos") << true << 1;
        QTest::newRow("without logos, two copies") << false << 2;
    }
    void teamBlocksAndPages()
    {
        QFETCH(bool, logos);
        QFETCH(int, copies);
        testkit::Season f;
        auto &fake = f.fake;
        fake.printing.copies = copies;
        gPrefs->prLogoOnReport = logos;
        people::TeamBook book(*gData, *gPrefs);
        for (int i = 1; i <= 4; ++i) {
            people::TeamRecord t;
            t.SchoolName = QStringLiteral("School%1").arg(i);
            t.TeamName = QStringLiteral("O'Brien's");
            t.League = QStringLiteral("Metro");
            t.Division = QStringLiteral("North");
            t.SchoolAddress = QStringLiteral("%1 Elm St.").arg(i);
            t.SchoolCity = QStringLiteral("Dublin");
            t.SchoolState = QStringLiteral("OH");
            t.SchoolZip = QStringLiteral("43017");
            t.Phone = QStringLiteral("6145551234");
            t.HomeField = QStringLiteral("Riverside");
            t.TeamLogo = QImage(40 + i, 40, QImage::Format_RGB32);
            t.TeamLogo.fill(QColor(40 * i, 20, 20));
            book.save(t, false);
        }
        QVERIFY(book.hndlPrint(2, {}, QImage()));
        QCOMPARE(fake.printing.printed.size(), 1);
        const QString pdf = fake.printing.printed.first();
        // Letter with half-inch margins holds three 216-point blocks a page.
        QCOMPARE(fakes::pdfPageCount(pdf), 2 * copies);
        const auto words = fakes::pdfWords(pdf);
        const auto *first = findWord(words, QStringLiteral("School1"));
        const auto *second = findWord(words, QStringLiteral("School2"));
        const auto *fourth = findWord(words, QStringLiteral("School4"));
        QVERIFY(first && second && fourth);
        QCOMPARE(first->page, 1);
        QCOMPARE(fourth->page, 2);
        QCOMPARE(qRound(second->yMin - first->yMin), 216);
        QCOMPARE(qRound(fourth->yMin), qRound(first->yMin)); // a new page starts at the top
        QVERIFY(qAbs(first->xMin - 36) < 1.5);               // at the left margin
        const auto *league = findWord(words, QStringLiteral("League"));
        const auto *field = findWord(words, QStringLiteral("Field:"));
        QCOMPARE(qRound(league->yMin - first->yMin), 16);
        QCOMPARE(qRound(field->yMin - first->yMin), 112);
        QVERIFY(findWord(words, QStringLiteral("O'Brien's")));
        QVERIFY(fakes::pdfText(pdf).contains(QStringLiteral("(614) 555-1234")));
        QCOMPARE(fakes::pdfImageSizes(pdf).size(), logos ? 4 * copies : 0);
    }

    void selectedTeamNeedsSelection()
    {
        testkit::Season f;
        auto &fake = f.fake;
        people::TeamBook book(*gData, *gPrefs);
        const QString id = QString::number(f.addTeam(QStringLiteral("Cougars"), QStringLiteral("Central")));
        fake.printing.cancelPrint = true;
        QVERIFY(!book.hndlPrint(1, id, QImage()));
        QCOMPARE(fake.printing.printDialogs, 1);
        QVERIFY(fake.printing.printed.isEmpty());
    }

    // The photo question: the photo, the generic picture for a player
    // without one, or no picture at all.
    void playerPhoto_data()
    {
        QTest::addColumn<bool>("hasPhoto");
        QTest::addColumn<int>("answer");
        QTest::addColumn<QSize>("picture");
        QTest::newRow("generic picture") << false << 0 << QSize(258, 300);
        QTest::newRow("Don't Include") << true << 2 << QSize();
    }
    void playerPhoto()
    {
        QFETCH(bool, hasPhoto);
        QFETCH(int, answer);
        QFETCH(QSize, picture);
        testkit::Season f;
        auto &fake = f.fake;
        fake.messages.answers.enqueue(std::uint8_t(answer));
        people::RosterBook book(*gData);
        const QString team = QString::number(f.addTeam(QStringLiteral("Cougars"), QStringLiteral("Central")));
        MemberRecord p;
        p.TeamNum = team;
        p.First = QStringLiteral("Zoë");
        p.Last = QStringLiteral("O'Neil");
        p.UniNum = QStringLiteral("22");
        p.Pos1 = QStringLiteral("SS");
        p.HitSide = QStringLiteral("Left");
        p.DOB = QStringLiteral("04/16/2012");
        p.Guardian = QStringLiteral("Ana");
        p.GuardianPhone = QStringLiteral("555-0001");
        p.Doctor = QStringLiteral("Dr. Ng");
        if (hasPhoto) {
            p.picture = QImage(60, 70, QImage::Format_RGB32);
            p.picture.fill(Qt::darkCyan);
        }
        const QString id = QString::number(book.add(p));

        QVERIFY(book.hndlPrint(1, team, id));
        QCOMPARE(fake.messages.shown.size(), 1);
        QCOMPARE(fake.messages.shown[0].message, QStringLiteral("Include the Player's Photo on the printout?"));
        QCOMPARE(fake.messages.shown[0].actionCaption, QStringLiteral("Include"));
        QCOMPARE(fake.messages.shown[0].altCaption, QStringLiteral("Don't Include"));
        const QString pdf = fake.printing.printed.first();
        const QList<QSize> images = fakes::pdfImageSizes(pdf);
        QCOMPARE(images, picture.isValid() ? QList<QSize>{picture} : QList<QSize>{});

        // The three columns of the playing data stand a third of the width apart.
        const auto words = fakes::pdfWords(pdf);
        const auto *name = findWord(words, QStringLiteral("Zoë"));
        const auto *data = findWord(words, QStringLiteral("DATA---"));
        const auto *uniform = findWord(words, QStringLiteral("Uniform"));
        const auto *pos = findWord(words, QStringLiteral("Pos"));
        const auto *dob = findWord(words, QStringLiteral("04/16/2012"));
        const auto *doctor = findWord(words, QStringLiteral("Ng"));
        QVERIFY(name && data && uniform && pos && dob && doctor);
        QCOMPARE(qRound(data->yMin - name->yMin), 128);
        QCOMPARE(qRound(uniform->xMin - data->xMin), 180);
        QCOMPARE(qRound(pos->xMin - data->xMin), 360);
        QCOMPARE(qRound(dob->yMin - name->yMin), 144);
        QCOMPARE(qRound(doctor->yMin - name->yMin), 224);
        QVERIFY(findWord(words, QStringLiteral("#22")));
        QVERIFY(findWord(words, QStringLiteral("O'Neil")));
    }

    void allPlayersOfTheTeam()
    {
        testkit::Season f;
        auto &fake = f.fake;
        fake.messages.answers.enqueue(platform::MsgAlternate);
        people::RosterBook book(*gData);
        const QString team = QString::number(f.addTeam(QStringLiteral("Cougars"), QStringLiteral("Central")));
        const QString other = QString::number(f.addTeam(QStringLiteral("Wolves"), QStringLiteral("West")));
        for (const char *last : {"Able", "Baker", "Cole"})
            f.addPlayer(team.toLongLong(), QStringLiteral("P"), QString::fromLatin1(last));
        f.addPlayer(other.toLongLong(), QStringLiteral("P"), QStringLiteral("Elsewhere"));
        QVERIFY(book.hndlPrint(2, team, {}));
        const QString pdf = fake.printing.printed.first();
        // 270-point blocks: two to a 720-point page.
        QCOMPARE(fakes::pdfPageCount(pdf), 2);
        const QString text = fakes::pdfText(pdf);
        QVERIFY(text.contains(QStringLiteral("Baker")) && text.contains(QStringLiteral("Cole")));
        QVERIFY(!text.contains(QStringLiteral("Elsewhere")));
    }
};

QTEST_MAIN(TestPeoplePrint)
#include "tst_peopleprint.moc"
