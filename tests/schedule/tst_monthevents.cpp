// The month calendar without a window: the 42 days of a month's grid, turning
// the month, and where events land in the cells and the "More" strips.

#include "fakes/FakePlatform.h"
#include "schedule/MonthEventsCalendar.h"

#include <QImage>
#include <QLocale>
#include <QPainter>
#include <QTest>

namespace {

// 7 cells of 100 across and 6 of 70 down under the 55 of the header.
const QSize kSize(701, 476);

mcEventDataClass eventOf(const QString &span, int id)
{
    const QStringList ends = span.split(u'|');
    mcEventDataClass event;
    event.startDate = QDateTime::fromString(ends.at(0), Qt::ISODate);
    event.endDate = QDateTime::fromString(ends.value(1, ends.at(0)), Qt::ISODate);
    event.subject = QStringLiteral("Event %1").arg(id);
    event.EventID = id;
    return event;
}

} // namespace

class TestMonthEvents : public QObject
{
    Q_OBJECT

    fakes::FakePlatform m_fake; // today is 15 April 2026

private Q_SLOTS:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates)); }

    void gridOfMonth_data()
    {
        QTest::addColumn<int>("year");
        QTest::addColumn<int>("month");
        QTest::addColumn<QDate>("firstCell");
        QTest::addColumn<int>("length");
        // The 1st on a Sunday: the grid shows the whole week before.
        QTest::newRow("February 2026, Sunday 1st") << 2026 << 2 << QDate(2026, 1, 25) << 28;
        QTest::newRow("August 2026, Saturday 1st") << 2026 << 8 << QDate(2026, 7, 26) << 31;
        // Divisible by 100 but not by 400: no 29th.
        QTest::newRow("February 1900") << 1900 << 2 << QDate(1900, 1, 28) << 28;
        QTest::newRow("February 2000") << 2000 << 2 << QDate(2000, 1, 30) << 29;
    }
    void gridOfMonth()
    {
        QFETCH(int, year);
        QFETCH(int, month);
        QFETCH(QDate, firstCell);
        QFETCH(int, length);
        MonthCalendar calendar;
        calendar.ShowMonth(year, month);
        QCOMPARE(MonthCalendar::daysInMonth(month, year), length);
        QCOMPARE(calendar.showingStartDate(), QDate(year, month, 1));
        QCOMPARE(calendar.showingEndDate(), QDate(year, month, length));
        int inMonth = 0;
        for (int i = 0; i < MonthCalendar::kCells; ++i) {
            const MonthCalendar::Cell &cell = calendar.cells()[std::size_t(i)];
            QCOMPARE(cell.date, firstCell.addDays(i));
            QCOMPARE(cell.date.dayOfWeek() % 7 + 1, cell.column); // column 1 is Sunday
            QCOMPARE(cell.row, i / 7 + 1);
            inMonth += cell.thisMonth ? 1 : 0;
        }
        QCOMPARE(inMonth, length);
        QVERIFY(!calendar.cells()[0].thisMonth);
    }

    // Each record as "MM-DD +offset #event", the offset from the cell's top,
    // or "MM-DD more n" for a strip standing for n events.
    void eventsInCells_data()
    {
        QTest::addColumn<QStringList>("events");
        QTest::addColumn<int>("month");
        QTest::addColumn<QStringList>("records");
        // A 70-high cell holds bars at +15, +29 and +43; +57 passes the limit of +47.
        QTest::newRow("fourth in a cell")
            << QStringList(4, "2026-04-15T19:30") << 4
            << QStringList{"04-15 +15 #0", "04-15 +29 #1", "04-15 +43 #2", "04-15 more 1"};
        QTest::newRow("three overflowing")
            << QStringList(6, "2026-04-15T19:30") << 4 << QStringList{"04-15 +15 #0", "04-15 +29 #1", "04-15 +43 #2",
                                                                      "04-15 more 3", "04-15 more 3", "04-15 more 3"};
        QTest::newRow("across months, first month")
            << QStringList{"2026-03-28T09:00|2026-04-03T09:00"} << 3
            << QStringList{"03-28 +15 #0", "03-29 +15 #0", "03-30 +15 #0", "03-31 +15 #0",
                           "04-01 +15 #0", "04-02 +15 #0", "04-03 +15 #0"};
        // April's grid begins on 29 March.
        QTest::newRow("across months, second month") << QStringList{"2026-03-28T09:00|2026-04-03T09:00"} << 4
                                                     << QStringList{"03-29 +15 #0", "03-30 +15 #0", "03-31 +15 #0",
                                                                    "04-01 +15 #0", "04-02 +15 #0", "04-03 +15 #0"};
        QTest::newRow("over a whole month") << QStringList{"2026-03-28T09:00|2026-05-03T09:00"} << 4 << QStringList{};
        QTest::newRow("only in grey days") << QStringList{"2026-03-30T09:00|2026-03-31T09:00"} << 4 << QStringList{};
        // The first day counts though its cell begins before the start time.
        QTest::newRow("evening to morning")
            << QStringList{"2026-04-15T20:00|2026-04-16T08:00"} << 4 << QStringList{"04-15 +15 #0", "04-16 +15 #0"};
        QTest::newRow("stacked per cell")
            << QStringList{"2026-04-14T09:00|2026-04-16T09:00", "2026-04-15T18:00"} << 4
            << QStringList{"04-14 +15 #0", "04-15 +15 #0", "04-16 +15 #0", "04-15 +29 #1"};
    }
    void eventsInCells()
    {
        QFETCH(QStringList, events);
        QFETCH(int, month);
        QFETCH(QStringList, records);
        MonthEventsCalendar calendar;
        calendar.setSize(kSize);
        QCOMPARE(calendar.UnitV(), 70.0);
        calendar.ShowMonth(2026, month);
        for (int i = 0; i < events.size(); ++i)
            calendar.addEvent(eventOf(events.at(i), i + 100));

        QStringList shown;
        for (const mcDisplayDataClass &r : calendar.displayData()) {
            const QRectF cell = calendar.cellRect(int(r.eventDateID));
            const QString day = QDate::fromString(r.eventDate, Qt::ISODate).toString(QStringLiteral("MM-dd"));
            QCOMPARE(calendar.cells()[std::size_t(r.eventDateID)].date.toString(Qt::ISODate), r.eventDate);
            if (r.moreBox) {
                // The last 10 pixels of the cell, across its width.
                QCOMPARE(QRectF(r.x1, r.y1, r.x2 - r.x1, r.y2 - r.y1),
                         QRectF(cell.left(), cell.bottom() - 10, 100, 10));
                shown.append(QStringLiteral("%1 more %2").arg(day).arg(calendar.overflowed(int(r.eventDateID))));
            } else {
                QCOMPARE(r.x1, cell.left() + 3);
                QCOMPARE(r.x2 - r.x1, 95.0);
                QCOMPARE(r.y2 - r.y1, 12.0);
                QCOMPARE(r.gUID, QString::number(r.eventID + 100));
                shown.append(QStringLiteral("%1 +%2 #%3").arg(day).arg(r.y1 - cell.top()).arg(r.eventID));
            }
        }
        QCOMPARE(shown, records);
    }

    // What a day looks like at the foot of its cell, or on its first bar.
    void paintedDays_data()
    {
        QTest::addColumn<QDate>("shown"); // shown by ShowDate, if valid
        QTest::addColumn<bool>("selectEvent");
        QTest::addColumn<QDate>("day");
        QTest::addColumn<bool>("onBar");
        QTest::addColumn<QColor>("colour");
        QTest::newRow("today") << QDate() << false << QDate(2026, 4, 15) << false << QColor(237, 243, 250);
        QTest::newRow("selection wash") << QDate(2026, 4, 22) << false << QDate(2026, 4, 22) << false
                                        << QColor(236, 236, 236);
        // 22 March stood where 26 April stands.
        QTest::newRow("wash of another month")
            << QDate(2026, 3, 22) << false << QDate(2026, 4, 26) << false << QColor(Qt::white);
        QTest::newRow("bar") << QDate() << false << QDate(2026, 4, 15) << true << QColor(237, 243, 250);
        QTest::newRow("selected bar") << QDate() << true << QDate(2026, 4, 15) << true << QColor(200, 0, 0);
    }
    void paintedDays()
    {
        QFETCH(QDate, shown);
        QFETCH(bool, selectEvent);
        QFETCH(QDate, day);
        QFETCH(bool, onBar);
        QFETCH(QColor, colour);
        MonthEventsCalendar calendar;
        calendar.setSize(kSize);
        calendar.addEvent(eventOf(QStringLiteral("2026-04-15T19:30"), 1));
        calendar.ShowDate(shown);
        calendar.ShowMonth(2026, 4);
        if (selectEvent)
            calendar.selectEvent(QStringLiteral("1"));
        QImage image(kSize, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        calendar.paint(painter, QFont());
        painter.end();
        const QRectF cell = calendar.cellRect(calendar.indexOf(day));
        // The bar's far end, past its text.
        const QPointF at = onBar ? cell.topLeft() + QPointF(90, 17) : cell.bottomLeft() + QPointF(5, -5);
        const QColor got = image.pixelColor(at.toPoint());
        QVERIFY2(
            qAbs(got.red() - colour.red()) + qAbs(got.green() - colour.green()) + qAbs(got.blue() - colour.blue()) <= 6,
            qPrintable(got.name()));
    }

    // The owner's keys: a blank key is the EventID; with two events under
    // one key, the first answers.
    void eventsByKey()
    {
        MonthEventsCalendar calendar;
        mcEventDataClass event = eventOf(QStringLiteral("2026-04-15T10:00"), 17);
        QCOMPARE(calendar.addEvent(event), QStringLiteral("17"));
        for (const char *subject : {"first", "second"}) {
            event.subject = QString::fromLatin1(subject);
            QCOMPARE(calendar.addEvent(event, QStringLiteral("k")), QStringLiteral("k"));
        }
        calendar.selectEvent(QStringLiteral("k"));
        calendar.selectEvent(QStringLiteral("none"));
        QCOMPARE(calendar.selectedEvent(), 1);
        calendar.deleteEvent(QStringLiteral("k"));
        QCOMPARE(calendar.selectedEvent(), -1);
        QCOMPARE(calendar.eventData().size(), 2);
        QCOMPARE(calendar.eventData().at(1).subject, QStringLiteral("second"));
    }
};

QTEST_MAIN(TestMonthEvents)
#include "tst_monthevents.moc"
