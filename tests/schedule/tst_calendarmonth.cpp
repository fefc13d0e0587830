// The date picker's month page where the picker can't show it: month lengths
// over all its years, and dates outside its years. The page itself is
// tested through the picker (tst_scheduleui).

#include "schedule/CalendarMonth.h"

#include <QTest>

class TestCalendarMonth : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void monthLengths()
    {
        const int lengths[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
        for (int m = 1; m <= 12; ++m)
            QCOMPARE(CalendarMonth::monthLength(2027, m), lengths[m - 1]);
        QCOMPARE(CalendarMonth::monthLength(2028, 2), 29);
        // The picker agrees with the real calendar over all of its years.
        for (int y = CalendarMonth::kFirstYear; y <= CalendarMonth::kLastYear; ++y)
            QCOMPARE(CalendarMonth::monthLength(y, 2), QDate(y, 2, 1).daysInMonth());
    }

    void datesOutsideThePickerAreBroughtIn_data()
    {
        QTest::addColumn<QDate>("date");
        QTest::addColumn<QDate>("first");
        QTest::newRow("a day in the month") << QDate(2026, 4, 15) << QDate(2026, 4, 1);
        QTest::newRow("before 2000") << QDate(1999, 7, 4) << QDate(2000, 1, 1);
        QTest::newRow("after 2039") << QDate(2040, 3, 9) << QDate(2039, 12, 1);
        QTest::newRow("no date") << QDate() << QDate(2000, 1, 1);
    }
    void datesOutsideThePickerAreBroughtIn()
    {
        QFETCH(QDate, date);
        QFETCH(QDate, first);
        QCOMPARE(CalendarMonth(date).first(), first);
    }
};

QTEST_GUILESS_MAIN(TestCalendarMonth)
#include "tst_calendarmonth.moc"
