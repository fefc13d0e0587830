// Names as stored, the phone masks of the team screen and a player's age.

#include "people/PeopleText.h"

#include <QTest>

class TestPeopleText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanName_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("stored");
        QTest::newRow("quotes and semicolons")
            << QStringLiteral("O'Brien's \"Big\" Red; Jr.") << QStringLiteral("O'Brien's \"Big\" Red; Jr.");
        QTest::newRow("non-ASCII") << QStringLiteral("Zoë Ñúñez-Øster 李") << QStringLiteral("Zoë Ñúñez-Øster 李");
        QTest::newRow("tab from a spreadsheet") << QStringLiteral("Mary\tAnn") << QStringLiteral("Mary Ann");
        QTest::newRow("line ends") << QStringLiteral("Jo\r\nBeth\r") << QStringLiteral("Jo  Beth ");
        QTest::newRow("empty") << QString() << QString();
    }
    void cleanName()
    {
        QFETCH(QString, typed);
        QFETCH(QString, stored);
        QCOMPARE(people::cleanName(typed), stored);
    }

    // The team phone keeps its text; only the way it is shown changes.
    void phoneMask_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("mask");
        QTest::addColumn<QString>("shown");
        QTest::newRow("seven digits") << "5551234"
                                      << "###\\-####"
                                      << "555-1234";
        QTest::newRow("ten digits") << "6145551234"
                                    << "\\(###) ###\\-####"
                                    << "(614) 555-1234";
        QTest::newRow("ten typed with dashes") << "614-555-1234"
                                               << "\\(###) ###\\-####"
                                               << "(614) 555-1234";
        QTest::newRow("six: no mask") << "555123"
                                      << ""
                                      << "555123";
        QTest::newRow("too many digits shown as typed") << "16145551234"
                                                        << "\\(###) ###\\-####"
                                                        << "16145551234";
        QTest::newRow("letters shown as typed") << "call Bob!"
                                                << "###\\-####"
                                                << "call Bob!";
    }
    void phoneMask()
    {
        QFETCH(QString, typed);
        QFETCH(QString, mask);
        QFETCH(QString, shown);
        QCOMPARE(people::phoneMaskFor(typed), mask);
        QCOMPARE(people::formatThroughMask(typed, mask), shown);
    }

    void dobText()
    {
        QCOMPARE(people::dobText(QStringLiteral("//")), QString());
        QCOMPARE(people::dobText(QStringLiteral("04/15/2008")), QStringLiteral("04/15/2008"));
        QCOMPARE(people::dobText(QStringLiteral("04//")), QStringLiteral("04//"));
    }

    void ageLabel_data()
    {
        QTest::addColumn<QString>("dob");
        QTest::addColumn<QDate>("today");
        QTest::addColumn<QString>("label");
        const QDate in2017(2017, 6, 10);
        QTest::newRow("last century, after the birthday") << "03/02/1999" << in2017 << "Age: 18";
        QTest::newRow("last century, before the birthday") << "09/02/1999" << in2017 << "Age: 17";
        QTest::newRow("birthday month, day not yet") << "06/11/1999" << in2017 << "Age: 17";
        QTest::newRow("on the birthday") << "06/10/1999" << in2017 << "Age: 18";
        const QDate in2026(2026, 4, 15);
        QTest::newRow("day before the birthday") << "04/16/2012" << in2026 << "Age: 13";
        QTest::newRow("birthday") << "04/15/2012" << in2026 << "Age: 14";
        QTest::newRow("two-digit year") << "04/15/12" << in2026 << "Age: 14";
        QTest::newRow("empty") << "" << in2026 << "";
        QTest::newRow("not a date") << "spring 2012" << in2026 << "??";
        QTest::newRow("letters in a part") << "ab/15/2012" << in2026 << "??";
        QTest::newRow("half typed") << "04/1/" << in2026 << "??";
    }
    void ageLabel()
    {
        QFETCH(QString, dob);
        QFETCH(QDate, today);
        QFETCH(QString, label);
        QCOMPARE(people::ageLabel(dob, today), label);
    }
};

QTEST_GUILESS_MAIN(TestPeopleText)
#include "tst_peopletext.moc"
