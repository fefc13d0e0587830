// The widget-free rules of the shared controls: the phone number's key
// filter, digits and formats, and the number fields' key rule.

#include "support/CsvText.h"
#include "support/NumberKeyRule.h"
#include "support/PhoneNumber.h"

#include <QTest>

using namespace support;
using phone::KeyVerdict;

Q_DECLARE_METATYPE(KeyVerdict)
Q_DECLARE_METATYPE(support::NumberKeyAction)

class TestSupportRules : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // A spreadsheet's CSV as it comes: the rows read, joined by "|" and
    // separated by "/".
    void csvRead_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("rows");
        QTest::newRow("CR LF") << QByteArray("a,b\r\n1,2\r\n") << "a|b/1|2";
        QTest::newRow("LF, no end") << QByteArray("a,b\n1,2") << "a|b/1|2";
        QTest::newRow("byte-order mark") << QByteArray("\xEF\xBB\xBF"
                                                       "a,b\n1,2\n")
                                         << "a|b/1|2";
        QTest::newRow("blank lines") << QByteArray("a,b\n\n1,2\n\r\n") << "a|b/1|2";
        QTest::newRow("quoted comma and quote") << QByteArray("a,b\n\"x, \"\"y\"\"\",2\n") << "a|b/x, \"y\"|2";
        QTest::newRow("line end inside quotes") << QByteArray("a,b\n\"two\r\nlines\",2\n") << "a|b/two\r\nlines|2";
        QTest::newRow("empty fields") << QByteArray("a,b,c\n,,\n") << "a|b|c/||";
        QTest::newRow("quoted empty line") << QByteArray("a\n\"\"\n") << "a/";
        QTest::newRow("letters") << QByteArray("n\nJos\xC3\xA9\n") << "n/Jos\u00e9";
    }
    void csvRead()
    {
        QFETCH(QByteArray, text);
        QFETCH(QString, rows);
        const support::csv::Table table = support::csv::parse(text);
        QCOMPARE(table.badLine, 0);
        QStringList lines;
        for (const QStringList &row : table.rows)
            lines.append(row.join(u'|'));
        QCOMPARE(lines.join(u'/'), rows);
        // What is written reads back the same.
        QString written;
        for (const QStringList &row : table.rows)
            written += support::csv::line(row);
        QCOMPARE(support::csv::parse(written.toUtf8()).rows, table.rows);
    }

    void phoneFormat_data()
    {
        QTest::addColumn<QString>("digits");
        QTest::addColumn<QString>("shown");
        QTest::newRow("none") << ""
                              << "";
        QTest::newRow("4") << "5551"
                           << "555-1";
        QTest::newRow("8") << "61455512"
                           << "(614) 555-12";
        QTest::newRow("14, pasted") << "44161455512349"
                                    << "4 (416) 145-5512349";
    }
    void phoneFormat()
    {
        QFETCH(QString, digits);
        QFETCH(QString, shown);
        QCOMPARE(phone::format(digits), shown);
        // What is shown gives back the same digits.
        QCOMPARE(phone::gatherDigits(shown), digits);
    }

    void gatherKeepsOnlyAsciiDigits()
    {
        // Digits of other scripts aren't "[0-9]".
        QCOMPARE(phone::gatherDigits(QStringLiteral("٥٥٥ 12")), QStringLiteral("12"));
    }

    void phoneKeys_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("modifiers");
        QTest::addColumn<int>("digitsHeld");
        QTest::addColumn<KeyVerdict>("verdict");
        const int none = Qt::NoModifier;
        QTest::newRow("plus") << int(Qt::Key_Plus) << "+" << none << 3 << KeyVerdict::Refuse;
        QTest::newRow("backspace at limit") << int(Qt::Key_Backspace) << "\b" << none << 11 << KeyVerdict::Pass;
        QTest::newRow("delete") << int(Qt::Key_Delete) << "\x7f" << none << 2 << KeyVerdict::Pass;
        QTest::newRow("paste shortcut") << int(Qt::Key_V) << "\x16" << int(Qt::ControlModifier) << 11
                                        << KeyVerdict::Pass;
    }
    void phoneKeys()
    {
        QFETCH(int, key);
        QFETCH(QString, text);
        QFETCH(int, modifiers);
        QFETCH(int, digitsHeld);
        QFETCH(KeyVerdict, verdict);
        QCOMPARE(phone::keyDown(key, text, Qt::KeyboardModifiers(modifiers), digitsHeld), verdict);
    }

    void cursorKeepsItsDigit_data()
    {
        QTest::addColumn<QString>("before");
        QTest::addColumn<int>("cursor");
        QTest::addColumn<QString>("after");
        QTest::addColumn<int>("expected");
        // A digit typed in the middle: the cursor stays behind it.
        QTest::newRow("insert") << "555-12934" << 6 << "(555) 129-34" << 8;
        QTest::newRow("at start") << "5551234" << 0 << "555-1234" << 0;
        QTest::newRow("at end") << "5551234" << 7 << "555-1234" << 8;
    }
    void cursorKeepsItsDigit()
    {
        QFETCH(QString, before);
        QFETCH(int, cursor);
        QFETCH(QString, after);
        QFETCH(int, expected);
        QCOMPARE(phone::format(phone::gatherDigits(before)), after);
        QCOMPARE(phone::positionAfterDigits(after, phone::digitsBefore(before, cursor)), expected);
    }

    void backspaceSkipsSeparators_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("cursor");
        QTest::addColumn<int>("from");
        QTest::newRow("behind a digit") << "555-1" << 5 << 5;
        QTest::newRow("behind ') '") << "(614) 555-1234" << 6 << 4;
        QTest::newRow("behind '(' only") << "(614) 555-1234" << 1 << 1;
    }
    void backspaceSkipsSeparators()
    {
        QFETCH(QString, text);
        QFETCH(int, cursor);
        QFETCH(int, from);
        QCOMPARE(phone::backspaceFrom(text, cursor), from);
    }

    void numberKeys_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("allowPoint");
        QTest::addColumn<support::NumberKeyAction>("action");
        using A = support::NumberKeyAction;
        QTest::newRow("space") << int(Qt::Key_Space) << " " << false << A::Refuse;
        QTest::newRow("point refused") << int(Qt::Key_Period) << "." << false << A::Refuse;
        QTest::newRow("point allowed") << int(Qt::Key_Period) << "." << true << A::Pass;
        QTest::newRow("left arrow") << int(Qt::Key_Left) << "" << false << A::Pass;
    }
    void numberKeys()
    {
        QFETCH(int, key);
        QFETCH(QString, text);
        QFETCH(bool, allowPoint);
        QFETCH(support::NumberKeyAction, action);
        NumberKeyOptions options;
        options.allowPoint = allowPoint;
        QCOMPARE(numberKeyAction(key, text, Qt::NoModifier, options), action);
    }

    void numberSteps_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("delta");
        QTest::addColumn<bool>("floorAtZero");
        QTest::addColumn<QString>("result");
        QTest::newRow("empty up") << "" << 1 << true << "1";
        QTest::newRow("down") << "3" << -1 << true << "2";
        QTest::newRow("negative up") << "-4" << 1 << false << "-3";
        QTest::newRow("innings cut to whole") << "6.2" << 1 << true << "7";
        QTest::newRow("trailing letters") << "12ab" << 1 << true << "13";
        QTest::newRow("no number") << "abc" << 1 << true << "1";
        QTest::newRow("no overflow") << "2147483647" << 1 << true << "2147483647";
    }
    void numberSteps()
    {
        QFETCH(QString, text);
        QFETCH(int, delta);
        QFETCH(bool, floorAtZero);
        QFETCH(QString, result);
        NumberKeyOptions options;
        options.floorAtZero = floorAtZero;
        QCOMPARE(steppedNumber(text, delta, options), result);
    }
};

QTEST_APPLESS_MAIN(TestSupportRules)
#include "tst_supportRules.moc"
