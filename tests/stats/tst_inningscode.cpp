// Innings pitched in thirds: the code of a typed innings text, and the sum
// of two codes that a season total takes.

#include "stats/SeasonFigures.h"

#include <QTest>

using stats::getInningsPitchedVal;
using stats::inningsCodeFromText;

class TestInningsCode : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void codeOfText_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("code"); // -1: refused
        QTest::newRow("two thirds") << "6.2" << 62;
        QTest::newRow("one third, exactly") << "4.1" << 41;
        QTest::newRow("no dot") << "6" << 60;
        QTest::newRow("trailing dot") << "7." << 70;
        QTest::newRow("empty") << "" << 0;
        QTest::newRow("two digits after the dot keep the first") << "6.20" << 62;
        QTest::newRow("thirds digit 3") << "6.3" << -1;
        QTest::newRow("thirds digit 5") << "5.5" << -1;
        QTest::newRow("text after the number") << "3.1 inn" << 31;
    }
    void codeOfText()
    {
        QFETCH(QString, text);
        QFETCH(int, code);
        QCOMPARE(inningsCodeFromText(text).value_or(-1), code);
    }

    void sumOfCodes_data()
    {
        QTest::addColumn<int>("a");
        QTest::addColumn<int>("b");
        QTest::addColumn<int>("sum"); // -1: refused
        QTest::newRow("whole") << 40 << 20 << 60;
        QTest::newRow("a third") << 41 << 20 << 61;
        QTest::newRow("from nothing") << 0 << 62 << 62;
        QTest::newRow("many innings") << 992 << 11 << 1010;
        QTest::newRow("season total with digit 5") << 55 << 10 << -1;
        QTest::newRow("game with digit 3") << 40 << 63 << -1;
    }
    void sumOfCodes()
    {
        QFETCH(int, a);
        QFETCH(int, b);
        QFETCH(int, sum);
        QCOMPARE(getInningsPitchedVal(a, b).value_or(-1), qint64(sum));
    }
};

QTEST_GUILESS_MAIN(TestInningsCode)
#include "tst_inningscode.moc"
