// The date picker's month page: which slot shows which day, month lengths
// and the bounds of stepping from month to month.

#include "schedule/CalendarMonth.h"

#include <QTest>

class TestCalendarMonth : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void layout_data()
    {
        QTest::addColumn<int>("year");
        QTest::addColumn<int>("month");
        QTest::addColumn<int>("length");
        QTest::addColumn<int>("firstWeekday");
        QTest::addColumn<int>("firstSlot");
        QTest::addColumn<int>("lastSlot");
        // February of 2000: a leap year (divides by 4), starting on a Tuesday.
        QTest::newRow("February 2000") << 2000 << 2 << 29 << 3 << 2 << 30;
        // 31 days starting on a Saturday: the only shape that reaches slot 36.
        QTest::newRow("January 2000, Saturday 1st") << 2000 << 1 << 31 << 7 << 6 << 36;
        QTest::newRow("March 2031, Saturday 1st") << 2031 << 3 << 31 << 7 << 6 << 36;
        QTest::newRow("February 2026, Sunday 1st") << 2026 << 2 << 28 << 1 << 0 << 27;
        QTest::newRow("September 2038") << 2038 << 9 << 30 << 4 << 3 << 32;
        QTest::newRow("February 2036, leap") << 2036 << 2 << 29 << 6 << 5 << 33;
    }
    void layout()
    {
        QFETCH(int, year);
        QFETCH(int, month);
        QFETCH(int, length);
        QFETCH(int, firstWeekday);
        QFETCH(int, firstSlot);
        QFETCH(int, lastSlot);
        const CalendarMonth page(year, month);
        QCOMPARE(page.length(), length);
        QCOMPARE(page.firstWeekday(), firstWeekday);
        // Every slot before the 1st and after the last day is hidden; the
        // days in between run on without a gap.
        for (int slot = 0; slot < CalendarMonth::kSlots; ++slot) {
            const int expected = slot < firstSlot || slot > lastSlot ? 0 : slot - firstSlot + 1;
            QCOMPARE(page.dayInSlot(slot), expected);
        }
        QCOMPARE(page.slotOfDay(1), firstSlot);
        QCOMPARE(page.slotOfDay(length), lastSlot);
        QCOMPARE(page.slotOfDay(length + 1), -1);
        QCOMPARE(page.dayInSlot(CalendarMonth::kSlots), 0);
    }

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

    void stepping_data()
    {
        QTest::addColumn<QDate>("from");
        QTest::addColumn<QDate>("next");     // null: no step
        QTest::addColumn<QDate>("previous"); // null: no step
        QTest::newRow("mid-year") << QDate(2026, 6, 1) << QDate(2026, 7, 1) << QDate(2026, 5, 1);
        QTest::newRow("December rolls over") << QDate(2026, 12, 1) << QDate(2027, 1, 1) << QDate(2026, 11, 1);
        QTest::newRow("January rolls back") << QDate(2026, 1, 1) << QDate(2026, 2, 1) << QDate(2025, 12, 1);
        QTest::newRow("last month") << QDate(2039, 12, 1) << QDate() << QDate(2039, 11, 1);
        QTest::newRow("first month") << QDate(2000, 1, 1) << QDate(2000, 2, 1) << QDate();
    }
    void stepping()
    {
        QFETCH(QDate, from);
        QFETCH(QDate, next);
        QFETCH(QDate, previous);
        const CalendarMonth page(from);
        const auto n = page.next();
        const auto p = page.previous();
        QCOMPARE(n ? n->first() : QDate(), next);
        QCOMPARE(p ? p->first() : QDate(), previous);
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
