// The events calendar as a coach uses it: opened from the start screen and
// the schedule, presses, double presses and keys on its bars, strips and
// days, the line under it, turning the months, and the printed month.

#include "ScheduleTestSupport.h"
#include "app/ui/MainMenuBar.h"
#include "app/ui/ScreenDirectory.h"
#include "app/ui/startScrn1.h"
#include "fakes/TestKit.h"
#include "fakes/TestSupport.h"
#include "schedule/EventsCalendar.h"
#include "schedule/ScheduleStore.h"
#include "schedule/ui/eventsCalendarScrn.h"
#include "schedule/ui/monthlyEventsLayer.h"
#include "schedule/ui/scheduleScrn.h"

#include <QAction>
#include <QLabel>
#include <QPushButton>
#include <QTest>

using scheduletest::Season;

namespace {

void addEvent(const QString &type, const QDate &date, const QString &start, const QString &opponent,
              const QString &location)
{
    eventClass event;
    event.mDate = date;
    event.eventType = type;
    event.startTime = start;
    event.busTime = QStringLiteral("---");
    event.opponent = opponent;
    event.location = location;
    QVERIFY(ScheduleStore(*gData).insert(event) > 0);
}

// April 2026: a game and (added after it) the afternoon's practice on the
// 15th, five events on the 20th (three bars and a strip for two).
void fillApril()
{
    addEvent("Game", QDate(2026, 4, 15), "7:00 PM", "Bears", "Riverside");
    addEvent("Practice", QDate(2026, 4, 15), "3:30 PM", "-", "O'Malley's Field");
    for (int i = 0; i < 5; ++i)
        addEvent("Meeting", QDate(2026, 4, 20), QStringLiteral("%1:00 PM").arg(i + 1), "", "Hall");
}

eventsCalendarScrn *openScreen()
{
    auto *screen = new eventsCalendarScrn;
    // Cells of 100 by 70, as the calendar lays them out by default.
    testkit::child<monthlyEventsLayer>(screen, "eventCalendar1")->setFixedSize(701, 476);
    screen->show();
    return screen;
}

// Every signal of the calendar as "name argument", in order.
QStringList *listen(MonthEventsCalendar &c)
{
    auto *heard = new QStringList;
    const auto day = [heard](const char *name) {
        return [=](const QDate &d) { heard->append(QString::fromLatin1(name) + u' ' + d.toString(Qt::ISODate)); };
    };
    const auto ev = [heard](const char *name) {
        return [=](const mcEventDataClass &e) { heard->append(QString::fromLatin1(name) + u' ' + e.subject); };
    };
    QObject::connect(&c, &MonthCalendar::dateClicked, &c, day("dateClicked"));
    QObject::connect(&c, &MonthEventsCalendar::eventClicked, &c, ev("eventClicked"));
    QObject::connect(&c, &MonthEventsCalendar::eventDoubleClicked, &c, ev("eventDoubleClicked"));
    QObject::connect(&c, &MonthEventsCalendar::rightClickOnEvent, &c, ev("rightClickOnEvent"));
    QObject::connect(&c, &MonthEventsCalendar::returnKeyOnEvent, &c, ev("returnKeyOnEvent"));
    QObject::connect(&c, &MonthEventsCalendar::moreClicked, &c, day("moreClicked"));
    QObject::connect(&c, &MonthEventsCalendar::moreDoubleClicked, &c, day("moreDoubleClicked"));
    QObject::connect(&c, &MonthEventsCalendar::rightClickOnMore, &c, day("rightClickOnMore"));
    QObject::connect(&c, &MonthEventsCalendar::rightClickOnDate, &c, day("rightClickOnDate"));
    QObject::connect(&c, &MonthEventsCalendar::doubleClickedOnDate, &c, day("doubleClickedOnDate"));
    QObject::connect(&c, &MonthEventsCalendar::returnKeyOnDate, &c, day("returnKeyOnDate"));
    QObject::connect(&c, &MonthEventsCalendar::noEventSelected, &c, [heard] { heard->append("noEventSelected"); });
    return heard;
}

// Where to press: "bar15.0" the second bar on 15 April, "more20" the strip
// on the 20th, "day22" the middle of an empty day (negative: May), "edge"
// the last pixel column, "below" the last pixel row.
QPoint pointOf(const MonthEventsCalendar &c, const QString &target)
{
    const QSizeF size = c.size();
    if (target == u"edge")
        return QPoint(int(size.width()) - 1, 100);
    if (target == u"below")
        return QPoint(100, int(size.height()) - 1);
    if (target.startsWith(u"day")) {
        const int day = target.mid(3).toInt();
        const QDate date = day > 0 ? QDate(2026, 4, day) : QDate(2026, 5, -day);
        return c.cellRect(c.indexOf(date)).center().toPoint();
    }
    const bool more = target.startsWith(u"more");
    const QStringList parts = target.mid(more ? 4 : 3).split(u'.');
    const QString date = QDate(2026, 4, parts.at(0).toInt()).toString(Qt::ISODate);
    int nth = parts.value(1).toInt();
    for (const mcDisplayDataClass &r : c.displayData()) {
        if (r.eventDate == date && r.moreBox == more && nth-- == 0)
            return QPointF((r.x1 + r.x2) / 2, (r.y1 + r.y2) / 2).toPoint();
    }
    qFatal("nothing painted at %s", qPrintable(target));
}

eventsCalendarScrn *openCalendar()
{
    for (QWidget *w : QApplication::topLevelWidgets()) {
        if (auto *screen = qobject_cast<eventsCalendarScrn *>(w); screen && screen->isVisible())
            return screen;
    }
    return nullptr;
}

} // namespace

class TestEventsCalendar : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Whatever a function left open, also when it failed half-way, goes
    // before the next one starts.
    void cleanup() { testkit::closeAllWindows(); }

    void init() { QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates)); }

    void opensBesideTheStartScreenAndFromTheSchedule()
    {
        Season season;
        screens::registerScreen(ScreenId::eventsCalendarScrn, [] { return new eventsCalendarScrn; });
        startScrn1 *start = startScrn1::showStartScreen();
        auto *button = start->findChild<QPushButton *>(QStringLiteral("OpenCalendar"));
        QVERIFY(button->isEnabled());
        QTest::mouseClick(button, Qt::LeftButton);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(startScrn1::instance() && startScrn1::instance()->isVisible());
        auto *screen = openCalendar();
        QVERIFY(screen);
        // No events: today's month, nothing painted.
        const MonthEventsCalendar &calendar = testkit::child<monthlyEventsLayer>(screen, "eventCalendar1")->calendar();
        QCOMPARE(calendar.title(), QStringLiteral("April 2026"));
        QVERIFY(calendar.displayData().isEmpty());
        screen->close();
        QVERIFY(startScrn1::instance()->isVisible());

        auto *schedule = new scheduleScrn;
        schedule->show();
        QVERIFY(testkit::child<QPushButton>(schedule, "viewCalendarBtn")->isEnabled());
        QTest::mouseClick(testkit::child<QPushButton>(schedule, "viewCalendarBtn"), Qt::LeftButton);
        QVERIFY(openCalendar());
        screens::unregisterScreen(ScreenId::eventsCalendarScrn);
    }

    // What the calendar tells after each script, as "signal argument" joined
    // by ", "; the line under the calendar; the month on show.
    void pressesAndKeys_data()
    {
        QTest::addColumn<QStringList>("script");
        QTest::addColumn<QString>("heard");
        QTest::addColumn<QString>("info");
        QTest::addColumn<QString>("title");
        const QString game = QStringLiteral("7:00 PM Game @ Riverside with Bears");
        const QString apr15 = QStringLiteral("Wednesday, April 15, 2026");
        const QString apr20 = QStringLiteral("Monday, April 20, 2026");
        const QString apr22 = QStringLiteral("Wednesday, April 22, 2026");
        const QString april = QStringLiteral("April 2026");
        QTest::newRow("click on a bar") << QStringList{"click bar15.1"}
                                        << "dateClicked 2026-04-15, eventClicked 7:00 PM Game" << game << april;
        // An opponent of one character isn't shown; "---" starts at 0:00.
        QTest::newRow("click on the second bar")
            << QStringList{"click bar15.0"} << "dateClicked 2026-04-15, eventClicked 3:30 PM Practice"
            << "3:30 PM Practice @ O'Malley's Field" << april;
        QTest::newRow("double click on a bar") << QStringList{"dclick bar15.1"}
                                               << "dateClicked 2026-04-15, eventClicked 7:00 PM Game, dateClicked "
                                                  "2026-04-15, eventDoubleClicked 7:00 PM Game"
                                               << apr15 << april;
        QTest::newRow("right click on a bar")
            << QStringList{"right bar15.1"} << "dateClicked 2026-04-15, rightClickOnEvent 7:00 PM Game" << apr15
            << april;
        // Two events behind one strip: told once.
        QTest::newRow("click on a strip")
            << QStringList{"click more20"} << "dateClicked 2026-04-20, moreClicked 2026-04-20" << apr20 << april;
        QTest::newRow("double click on a strip")
            << QStringList{"dclick more20"}
            << "dateClicked 2026-04-20, moreClicked 2026-04-20, dateClicked 2026-04-20, moreDoubleClicked 2026-04-20"
            << apr20 << april;
        QTest::newRow("click on an empty day")
            << QStringList{"click day22"} << "dateClicked 2026-04-22, noEventSelected" << apr22 << april;
        QTest::newRow("double click on an empty day")
            << QStringList{"dclick day22"}
            << "dateClicked 2026-04-22, noEventSelected, dateClicked 2026-04-22, noEventSelected, "
               "doubleClickedOnDate 2026-04-22"
            << apr22 << april;
        QTest::newRow("right click on a day")
            << QStringList{"right day22"} << "dateClicked 2026-04-22, rightClickOnDate 2026-04-22, noEventSelected"
            << apr22 << april;
        QTest::newRow("grey day turns the month")
            << QStringList{"click day-1"} << "dateClicked 2026-05-01, noEventSelected"
            << "Friday, May 1, 2026"
            << "May 2026";
        QTest::newRow("last pixel column") << QStringList{"click edge"} << ""
                                           << "" << april;
        QTest::newRow("below the last row") << QStringList{"click below"} << ""
                                            << "" << april;
        // Return closes the window too.
        QTest::newRow("Return on a day") << QStringList{"click day22", "key Return"}
                                         << "dateClicked 2026-04-22, noEventSelected, returnKeyOnDate 2026-04-22"
                                         << ""
                                         << "";
        QTest::newRow("Return on an event")
            << QStringList{"click bar15.1", "key Return"}
            << "dateClicked 2026-04-15, eventClicked 7:00 PM Game, returnKeyOnEvent 7:00 PM Game"
            << ""
            << "";
        // Today is the 15th.
        QTest::newRow("arrows and Space")
            << QStringList{"key Right", "key Left", "key Space", "key Space", "key Space"}
            << "dateClicked 2026-04-16, noEventSelected, dateClicked 2026-04-15, noEventSelected, "
               "eventClicked 3:30 PM Practice, eventClicked 7:00 PM Game, eventClicked 3:30 PM Practice"
            << "3:30 PM Practice @ O'Malley's Field" << april;
    }
    void pressesAndKeys()
    {
        QFETCH(QStringList, script);
        QFETCH(QString, heard);
        QFETCH(QString, info);
        QFETCH(QString, title);
        Season season;
        fillApril();
        QPointer<eventsCalendarScrn> screen = openScreen();
        monthlyEventsLayer *view = testkit::child<monthlyEventsLayer>(screen, "eventCalendar1");
        MonthEventsCalendar &calendar = view->calendar();
        std::unique_ptr<QStringList> got(listen(calendar));
        view->setFocus();

        for (const QString &step : script) {
            const QString action = step.section(u' ', 0, 0);
            const QString target = step.section(u' ', 1);
            if (action == u"key") {
                const Qt::Key key = target == u"Return"  ? Qt::Key_Return
                                    : target == u"Space" ? Qt::Key_Space
                                    : target == u"Right" ? Qt::Key_Right
                                                         : Qt::Key_Left;
                QTest::keyClick(view, key);
                continue;
            }
            const QPoint at = pointOf(calendar, target);
            QTest::mouseClick(view, action == u"right" ? Qt::RightButton : Qt::LeftButton, {}, at);
            if (action == u"dclick") {
                QTest::mouseDClick(view, Qt::LeftButton, {}, at);
                QTest::mouseRelease(view, Qt::LeftButton, {}, at);
            }
        }
        QCOMPARE(got->join(QStringLiteral(", ")), heard);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCOMPARE(bool(screen), !title.isEmpty());
        if (screen) {
            QCOMPARE(calendar.title(), title);
            QCOMPARE(testkit::child<QLabel>(screen, "infoLabel")->text(), info);
        }
    }

    // The start time read with its half of the day, shown in the locale's clock.
    void startTimes_data()
    {
        QTest::addColumn<QString>("stored");
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QTime>("start");
        QTest::addColumn<QString>("subject");
        QTest::newRow("evening") << "7:30 PM"
                                 << "en_US" << QTime(19, 30) << "7:30 PM Game";
        QTest::newRow("morning") << "7:30 AM"
                                 << "en_US" << QTime(7, 30) << "7:30 AM Game";
        QTest::newRow("noon") << "12:00 PM"
                              << "en_US" << QTime(12, 0) << "12:00 PM Game";
        QTest::newRow("after midnight") << "12:15 AM"
                                        << "en_US" << QTime(0, 15) << "12:15 AM Game";
        QTest::newRow("a 24-hour clock") << "7:30 PM"
                                         << "de_DE" << QTime(19, 30) << "19:30 Game";
        QTest::newRow("no time") << "---"
                                 << "en_US" << QTime(0, 0) << "Game";
    }
    void startTimes()
    {
        QFETCH(QString, stored);
        QFETCH(QString, locale);
        QFETCH(QTime, start);
        QFETCH(QString, subject);
        QLocale::setDefault(QLocale(locale));
        ScheduleEntry entry;
        entry.event.mDate = QDate(2026, 4, 15);
        entry.event.eventType = QStringLiteral("Game");
        entry.event.startTime = stored;
        const auto event = EventsCalendar::fromSchedule(entry);
        QVERIFY(event);
        QCOMPARE(event->startDate.time(), start);
        QCOMPARE(event->subject, subject);
    }

    // An event added, changed or deleted in another window shows at once.
    void followsTheSchedule()
    {
        Season season;
        fillApril();
        auto *screen = openScreen();
        const MonthEventsCalendar &calendar = testkit::child<monthlyEventsLayer>(screen, "eventCalendar1")->calendar();
        QCOMPARE(calendar.eventData().size(), 7);
        addEvent("Game", QDate(2026, 4, 22), "5:00 PM", "Owls", "Riverside");
        QCOMPARE(calendar.eventData().size(), 8);
        QCOMPARE(calendar.eventData().last().subject, QStringLiteral("5:00 PM Game"));
        ScheduleStore(*gData).remove(calendar.eventData().last().EventID, QStringLiteral("Game"));
        QCOMPARE(calendar.eventData().size(), 7);
    }

    void turningTheMonths()
    {
        Season season;
        auto *screen = openScreen();
        MonthEventsCalendar &calendar = testkit::child<monthlyEventsLayer>(screen, "eventCalendar1")->calendar();
        calendar.ShowDate(QDate(2026, 1, 31));
        QTest::mouseClick(testkit::child<QPushButton>(screen, "prevBtn"), Qt::LeftButton);
        QCOMPARE(calendar.title(), QStringLiteral("December 2025"));
        QTest::mouseClick(testkit::child<QPushButton>(screen, "nextBtn"), Qt::LeftButton);
        QTest::mouseClick(testkit::child<QPushButton>(screen, "nextBtn"), Qt::LeftButton);
        QCOMPARE(calendar.dateSelected(), QDate(2026, 2, 28));
        QTest::keyClick(testkit::child<monthlyEventsLayer>(screen, "eventCalendar1"), Qt::Key_PageUp);
        QCOMPARE(calendar.title(), QStringLiteral("January 2026"));
    }

    void printsTheMonthAsShown()
    {
        Season season;
        QTemporaryDir out;
        fillApril();
        auto *screen = openScreen();
        MonthEventsCalendar &calendar = testkit::child<monthlyEventsLayer>(screen, "eventCalendar1")->calendar();
        QTest::mouseClick(testkit::child<monthlyEventsLayer>(screen, "eventCalendar1"), Qt::LeftButton, {},
                          pointOf(calendar, "bar15.1"));
        season.fake.printing.directory = out.path();
        season.fake.printing.copies = 2;
        QTest::mouseClick(testkit::child<QPushButton>(screen, "printBtn"), Qt::LeftButton);
        QCOMPARE(season.fake.printing.printed.size(), 1);
        const QString pdf = season.fake.printing.printed.first();
        QCOMPARE(fakes::pdfPageCount(pdf), 2);
        const QString text = fakes::pdfText(pdf);
        for (const char *line : {"Schedule for: O'Brien's Nine", "Printed On: Wednesday, April 15, 2026", "April 2026",
                                 "7:00 PM Game", "3:30 PM", "More (2)...", "Sunday"})
            QVERIFY2(text.contains(QString::fromUtf8(line)), line);

        // The heading, then the calendar below it, all within the page.
        QMap<QString, fakes::PdfWord> first;
        double right = 0;
        for (const fakes::PdfWord &w : fakes::pdfWords(pdf)) {
            if (w.page != 1)
                continue;
            if (!first.contains(w.text))
                first.insert(w.text, w);
            right = std::max(right, w.xMax);
        }
        QVERIFY(first.value("Schedule").yMin < first.value("Printed").yMin);
        QVERIFY(first.value("Printed").yMax < first.value("Sunday").yMin);
        QVERIFY(first.value("Sunday").yMax < first.value("Game").yMin);
        // The day's practice at 3:30 PM stands above its 7:00 PM game.
        QVERIFY(first.value("3:30").yMax <= first.value("7:00").yMin);
        QVERIFY(right < platform::PrinterSetup().pageWidth());

        // The menu prints the same.
        screen->menus()->item(QStringLiteral("FilePrint"))->trigger();
        QCOMPARE(season.fake.printing.printed.size(), 2);
    }
};

QTEST_MAIN(TestEventsCalendar)
#include "tst_eventscalendar.moc"
