// The schedule screen driven as a coach would: opening it from the start
// screen, new / edit / delete through the editor, reordering by drag under
// a filter, and the printout and export of the list.

#include "ScheduleTestSupport.h"
#include "app/ui/MainMenuBar.h"
#include "app/ui/ScreenDirectory.h"
#include "app/ui/startScrn1.h"
#include "fakes/TestKit.h"
#include "fakes/TestSupport.h"
#include "reports/ui/qlmListBox.h"
#include "schedule/CalendarMonth.h"
#include "schedule/ScheduleStore.h"
#include "schedule/ui/Calendar.h"
#include "schedule/ui/newEventScrn.h"
#include "schedule/ui/scheduleScrn.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QTest>
#include <QToolButton>

using scheduletest::makeEvent;
using scheduletest::Season;
using scheduletest::whenShown;

using scheduletest::daySlot;

namespace {

struct Composed
{
    QDate date;
    QString type;
    QString opponent; // empty: none chosen
    QString location;
    QString startHour;
    QString busMinute;
};

// Fills the editor that `button` opens and accepts it.
void compose(QAbstractButton *button, const Composed &c)
{
    whenShown<newEventScrn>([c](newEventScrn *editor) {
        whenShown<Calendar>([c](Calendar *picker) {
            picker->setStartDate(c.date);
            QTest::mouseClick(daySlot(picker, CalendarMonth(c.date).slotOfDay(c.date.day())), Qt::LeftButton);
        });
        QTest::mouseClick(testkit::child<QToolButton>(editor, "calCnv"), Qt::LeftButton);
        testkit::child<QComboBox>(editor, "eventTypeBox")->setEditText(c.type);
        if (!c.opponent.isEmpty())
            testkit::child<QComboBox>(editor, "opponentBox")
                ->setCurrentIndex(testkit::child<QComboBox>(editor, "opponentBox")->findText(c.opponent));
        testkit::child<QComboBox>(editor, "locationBox")->setEditText(c.location);
        testkit::child<QComboBox>(editor, "gameHour")->setEditText(c.startHour);
        testkit::child<QComboBox>(editor, "busMinute")->setEditText(c.busMinute);
        QTest::mouseClick(testkit::child<QPushButton>(editor, "actionBtn"), Qt::LeftButton);
    });
    QTest::mouseClick(button, Qt::LeftButton);
}

QStringList tags(const qlmListBox *list)
{
    QStringList out;
    for (int r = 0; r < list->rowCount(); ++r)
        out.append(list->rowTag(r));
    return out;
}

QMap<qint64, qint64> positions()
{
    QMap<qint64, qint64> map;
    for (const Record &r : gData->select(QStringLiteral("SELECT eventID, position FROM Schedule")))
        map.insert(r.integer(QStringLiteral("eventID")), r.integer(QStringLiteral("position")));
    return map;
}

// Drags row `from` of the list and drops it on the upper half of row `onto`,
// handing the view the events a window's drag session would.
void dragRow(qlmListBox *list, int from, int onto)
{
    const QRect target = list->visualRect(list->model()->index(onto, 0));
    const QPoint at(target.center().x(), target.top() + 2);
    std::unique_ptr<QMimeData> mime(list->model()->mimeData({list->model()->index(from, 0)}));
    QDragEnterEvent enter(at, Qt::MoveAction, mime.get(), Qt::LeftButton, {});
    QCoreApplication::sendEvent(list->viewport(), &enter);
    QVERIFY(enter.isAccepted());
    QDragMoveEvent move(at, Qt::MoveAction, mime.get(), Qt::LeftButton, {});
    QCoreApplication::sendEvent(list->viewport(), &move);
    QVERIFY(move.isAccepted());
    QDropEvent drop(at, Qt::MoveAction, mime.get(), Qt::LeftButton, {}, QEvent::Drop);
    QCoreApplication::sendEvent(list->viewport(), &drop);
}

} // namespace

class TestScheduleScrn : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Whatever a function left open, also when it failed half-way, goes
    // before the next one starts.
    void cleanup() { testkit::closeAllWindows(); }

    void init() { QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates)); }

    void opensFromTheStartScreenAndComesBack()
    {
        Season season;
        screens::registerScreen(ScreenId::scheduleScrn, [] { return new scheduleScrn; });
        startScrn1 *start = startScrn1::showStartScreen();
        auto *button = start->findChild<QPushButton *>(QStringLiteral("ShowSchedules"));
        QVERIFY(button->isEnabled());
        QTest::mouseClick(button, Qt::LeftButton);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!startScrn1::instance());
        QCOMPARE(App::instance()->BUTimer->mode(), myTimerClass::ModeMultiple);
        scheduleScrn *screen = nullptr;
        for (QWidget *w : QApplication::topLevelWidgets())
            screen = screen ? screen : qobject_cast<scheduleScrn *>(w);
        QVERIFY(screen && screen->isVisible());
        QTest::qWait(1);
        QVERIFY(season.fake.messages.shown.isEmpty()); // a home team is set
        QCOMPARE(testkit::child<QLineEdit>(screen, "homeTeamFld")->text(), QStringLiteral("O'Brien's Nine"));
        QCOMPARE(testkit::child<qlmListBox>(screen, "ScheduleListbox")->headings(),
                 (QStringList{"Date", "Bus Departs", "Start Time", "Event", "Opponent", "Location", "H"}));
        QVERIFY(!testkit::child<QPushButton>(screen, "viewCalendarBtn")
                     ->isEnabled()); // the events calendar isn't there yet
        QVERIFY(screen->menuBar()->item(QStringLiteral("FilePrint"))->isEnabled());
        QVERIFY(screen->menuBar()->item(QStringLiteral("FileExport"))->isEnabled());

        screen->close();
        QVERIFY(startScrn1::instance() && startScrn1::instance()->isVisible());
        QCOMPARE(App::instance()->BUTimer->mode(), myTimerClass::ModeOff);
        screens::unregisterScreen(ScreenId::scheduleScrn);
    }

    void quittingSavesTheOrderAndClosesEverything()
    {
        Season season;
        ScheduleList seed(*gData);
        const qint64 a = seed.addNewItem(makeEvent("Game", QDate(2026, 4, 1), "Bears", season.bearsID, 1));
        const qint64 b = seed.addNewItem(makeEvent("Practice", QDate(2026, 4, 2), "", -1, 0));
        gData->exec("UPDATE Schedule SET position = 7");
        auto *screen = new scheduleScrn;
        screen->show();
        QTest::qWait(1);
        screen->menuBar()->item(QStringLiteral("FileQuit"))->trigger();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        for (QWidget *w : QApplication::topLevelWidgets())
            QVERIFY2(!w->isVisible(), qPrintable(w->objectName()));
        QCOMPARE(positions(), (QMap<qint64, qint64>{{a, 0}, {b, 1}}));
    }

    void withoutAHomeTeamTheCoachIsTold()
    {
        Season season;
        gPrefs->prHomeTeam.clear();
        auto *screen = new scheduleScrn;
        screen->show();
        QTRY_COMPARE(season.fake.messages.texts(),
                     QStringList{"Before scheduling, you must create at least 1 team and designate it as 'Home Team'"});
        QCOMPARE(season.fake.messages.shown.first().explanation, QStringLiteral("Close this screen to proceed."));
        QCOMPARE(season.fake.messages.shown.first().actionCaption, QStringLiteral("OK"));
        QCOMPARE(testkit::child<QLineEdit>(screen, "homeTeamFld")->text(), QString());
    }

    // A new event takes its place by date; the coach's own order of the
    // others holds until he sorts by date. Close and Escape close.
    void newEventsInDateOrderAndSortByDate()
    {
        Season season;
        auto *screen = new scheduleScrn;
        screen->show();
        qlmListBox *list = testkit::child<qlmListBox>(screen, "ScheduleListbox");
        const auto days = [](const qlmListBox *l) {
            QStringList out;
            for (int r = 0; r < l->rowCount(); ++r)
                out.append(l->cell(r, 0));
            return out;
        };
        compose(testkit::child<QPushButton>(screen, "newEventBtn"),
                {QDate(2026, 4, 28), "Game", "Bears", "Riverside", "7", ""});
        compose(testkit::child<QPushButton>(screen, "newEventBtn"),
                {QDate(2026, 4, 20), "Meeting", "", "Library", "6", ""});
        QCOMPARE(days(list), (QStringList{"4/20/26", "4/28/26"}));
        dragRow(list, 1, 0); // the coach puts the game first
        QCOMPARE(days(list), (QStringList{"4/28/26", "4/20/26"}));
        compose(testkit::child<QPushButton>(screen, "newEventBtn"),
                {QDate(2026, 4, 25), "Practice", "", "O'Malley's Field", "3", ""});
        QCOMPARE(days(list), (QStringList{"4/25/26", "4/28/26", "4/20/26"}));
        QCOMPARE(list->cell(list->selectedRow(), 3), QStringLiteral("Practice"));
        QTest::mouseClick(testkit::child<QPushButton>(screen, "sortBtn"), Qt::LeftButton);
        QCOMPARE(days(list), (QStringList{"4/20/26", "4/25/26", "4/28/26"}));
        QCOMPARE(list->cell(list->selectedRow(), 3), QStringLiteral("Practice"));

        QPointer<scheduleScrn> first = screen;
        QTest::mouseClick(testkit::child<QPushButton>(screen, "closeBtn"), Qt::LeftButton);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!first);
        QPointer<scheduleScrn> second = new scheduleScrn;
        QVERIFY(testkit::showActive(second));
        QCOMPARE(days(testkit::child<qlmListBox>(second, "ScheduleListbox")),
                 (QStringList{"4/20/26", "4/25/26", "4/28/26"}));
        QTest::keyClick(testkit::child<qlmListBox>(second, "ScheduleListbox"), Qt::Key_Escape);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!second);
    }

    void newEditAndDelete()
    {
        Season season;
        auto &fake = season.fake;
        auto *screen = new scheduleScrn;
        screen->show();
        qlmListBox *list = testkit::child<qlmListBox>(screen, "ScheduleListbox");
        QCOMPARE(list->rowCount(), 0);

        compose(testkit::child<QPushButton>(screen, "newEventBtn"),
                {QDate(2026, 4, 18), "Game", "Bears", "Riverside", "7", ""});
        compose(testkit::child<QPushButton>(screen, "newEventBtn"),
                {QDate(2026, 4, 20), "Practice", "", "O'Malley's Field", "", "30"});
        compose(testkit::child<QPushButton>(screen, "newEventBtn"),
                {QDate(2026, 4, 21), "Meeting", "", "Library", "6", "15"});
        QCOMPARE(list->rowCount(), 3);
        QCOMPARE(list->rowCells(0), (QStringList{"4/18/26", "---", "7:00 PM", "Game", "Bears", "Riverside", "A"}));
        QCOMPARE(list->rowCells(1), (QStringList{"4/20/26", "---", "---", "Practice", "", "O'Malley's Field", "-"}));
        QCOMPARE(list->cellTag(0, 4), QString::number(season.bearsID));
        const qint64 game = list->rowTag(0).toLongLong();
        const qint64 practice = list->rowTag(1).toLongLong();
        const qint64 meeting = list->rowTag(2).toLongLong();
        // What was stored: the ISO date, an hour alone with ":00", minutes alone as no time.
        const Record stored = gData->select("SELECT * FROM Schedule WHERE eventID = ?", {game}).first();
        QCOMPARE(stored.text("SchedDate"), QStringLiteral("2026-04-18"));
        QCOMPARE(stored.text("StartTime"), QStringLiteral("7:00 PM"));
        QCOMPARE(stored.text("BusTime"), QStringLiteral("---"));
        QCOMPARE(stored.integer("isHome"), 2);
        QCOMPARE(gData->scalar("SELECT BusTime FROM Schedule WHERE eventID = ?", {meeting}).toString(),
                 QStringLiteral("---"));
        QVERIFY(fake.messages.shown.isEmpty());

        // The buttons follow the selection; a new event is selected.
        QCOMPARE(list->selectedRow(), 2);
        list->setSelectedRow(-1);
        QVERIFY(!testkit::child<QPushButton>(screen, "editBtn")->isEnabled() &&
                !testkit::child<QPushButton>(screen, "deleteEvBtn")->isEnabled());
        QCOMPARE(testkit::child<QLabel>(screen, "schedIDLabel")->text(), QStringLiteral("No Selection"));
        QCOMPARE(testkit::child<QPushButton>(screen, "enterDataBtn")->text(), QStringLiteral("---"));
        const struct
        {
            int row;
            const char *caption;
        } rows[] = {{0, "Enter Game Data"}, {1, "Practice Plan"}, {2, "---"}};
        for (const auto &r : rows) {
            list->setSelectedRow(r.row);
            QCOMPARE(testkit::child<QPushButton>(screen, "enterDataBtn")->text(), QString::fromLatin1(r.caption));
            QVERIFY(!testkit::child<QPushButton>(screen, "enterDataBtn")->isEnabled()); // their screens come later
            QVERIFY(testkit::child<QPushButton>(screen, "editBtn")->isEnabled() &&
                    testkit::child<QPushButton>(screen, "deleteEvBtn")->isEnabled());
            QCOMPARE(testkit::child<QLabel>(screen, "schedIDLabel")->text(),
                     QStringLiteral("Schedule ID = ") + list->rowTag(r.row));
        }

        // Edit by double click: the list shows the change.
        whenShown<newEventScrn>([](newEventScrn *editor) {
            QCOMPARE(testkit::child<QPushButton>(editor, "actionBtn")->text(), QStringLiteral("Edit Event"));
            QCOMPARE(testkit::child<QComboBox>(editor, "opponentBox")->currentText(), QStringLiteral("Bears"));
            testkit::child<QComboBox>(editor, "locationBox")
                ->setCurrentIndex(
                    testkit::child<QComboBox>(editor, "locationBox")->findText(QStringLiteral("O'Malley's Field")));
            testkit::child<QComboBox>(editor, "gameMinute")->setEditText(QStringLiteral("05"));
            QTest::mouseClick(testkit::child<QPushButton>(editor, "actionBtn"), Qt::LeftButton);
        });
        const QRect cell = list->visualRect(list->model()->index(0, 3));
        // A double click is a press, a release and a second press that reads as the double.
        QTest::mousePress(list->viewport(), Qt::LeftButton, {}, cell.center());
        QTest::mouseRelease(list->viewport(), Qt::LeftButton, {}, cell.center());
        QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, cell.center());
        QCOMPARE(list->rowCells(0),
                 (QStringList{"4/18/26", "---", "7:05 PM", "Game", "Bears", "O'Malley's Field", "H"}));
        QCOMPARE(list->selectedRow(), 0);

        // A cancelled edit changes nothing.
        whenShown<newEventScrn>([](newEventScrn *editor) {
            testkit::child<QComboBox>(editor, "eventTypeBox")->setEditText(QStringLiteral("Other"));
            QTest::mouseClick(testkit::child<QPushButton>(editor, "cancelBtn"), Qt::LeftButton);
        });
        QTest::mouseClick(testkit::child<QPushButton>(screen, "editBtn"), Qt::LeftButton);
        QCOMPARE(list->cell(0, 3), QStringLiteral("Game"));

        // A practice takes its drills with it.
        gData->insert("Drills", {{"scheduleID", QString::number(practice)}, {"drill", "Long Toss"}});
        list->setSelectedRow(1);
        fake.messages.answers.enqueue(platform::MsgAction);
        QTest::mouseClick(testkit::child<QPushButton>(screen, "deleteEvBtn"), Qt::LeftButton);
        QCOMPARE(tags(list), (QStringList{QString::number(game), QString::number(meeting)}));
        QCOMPARE(gData->scalar("SELECT COUNT(*) FROM Drills").toInt(), 0);

        // The unopened game goes; a recorded one stays.
        const qint64 recorded = screen->schedule().addNewItem(
            makeEvent("Game", QDate(2026, 5, 1), "Bears", season.bearsID, 1));
        screen->loadScheduleLB(QStringLiteral("Show All"));
        gData->insert("Games", {{"schedID", QString::number(recorded)}, {"recorded", 1}});
        list->setSelectedRow(0);
        fake.messages.answers.enqueue(platform::MsgAction);
        QTest::mouseClick(testkit::child<QPushButton>(screen, "deleteEvBtn"), Qt::LeftButton);
        QCOMPARE(tags(list), (QStringList{QString::number(meeting), QString::number(recorded)}));
        QCOMPARE(gData->scalar("SELECT COUNT(*) FROM Schedule WHERE eventID = ?", {game}).toInt(), 0);
        QVERIFY(!testkit::child<QPushButton>(screen, "editBtn")->isEnabled());

        list->setSelectedRow(1);
        fake.messages.answers.enqueue(platform::MsgAction);
        QTest::mouseClick(testkit::child<QPushButton>(screen, "deleteEvBtn"), Qt::LeftButton);
        QCOMPARE(fake.messages.texts().last(), QStringLiteral("The stats for this game have been recorded."));
        QCOMPARE(fake.messages.shown.last().explanation, QStringLiteral("This event cannot be deleted."));
        QCOMPARE(fake.messages.shown.last().actionCaption, QStringLiteral("Continue"));
        QCOMPARE(list->rowCount(), 2);
        QCOMPARE(gData->scalar("SELECT COUNT(*) FROM Games WHERE schedID = ?", {QString::number(recorded)}).toInt(), 1);

        // From the keyboard: Delete asks (Cancel keeps the event), Enter edits.
        fake.messages.answers.enqueue(platform::MsgCancel);
        list->setSelectedRow(0);
        QTest::keyClick(list, Qt::Key_Delete);
        QCOMPARE(fake.messages.texts().last(), QStringLiteral("Are you sure you wish to delete this event?"));
        QCOMPARE(list->rowCount(), 2);
        bool editorOpened = false;
        whenShown<newEventScrn>([&editorOpened](newEventScrn *editor) {
            editorOpened = testkit::child<QPushButton>(editor, "actionBtn")->text() == u"Edit Event";
            editor->reject();
        });
        QTest::keyClick(list, Qt::Key_Return);
        QVERIFY(editorOpened);
    }

    void dragUnderAFilterThenShowAll()
    {
        Season season;
        ScheduleList seed(*gData);
        QList<qint64> id;
        const char *types[] = {"Game", "Practice", "Game", "Practice", "Game"};
        for (int i = 0; i < 5; ++i)
            id.append(seed.addNewItem(makeEvent(types[i], QDate(2026, 4, 1 + i), "Bears", season.bearsID, 1)));
        auto *screen = new scheduleScrn;
        screen->show();
        QVERIFY(QTest::qWaitForWindowExposed(screen));
        qlmListBox *list = testkit::child<qlmListBox>(screen, "ScheduleListbox");

        testkit::child<QComboBox>(screen, "filterPop")
            ->setCurrentIndex(testkit::child<QComboBox>(screen, "filterPop")->findText(QStringLiteral("Game")));
        QCOMPARE(tags(list), (QStringList{QString::number(id[0]), QString::number(id[2]), QString::number(id[4])}));
        // The third game dragged onto the first: the games swap places among
        // all events at once, and the practices keep theirs.
        dragRow(list, 2, 0);
        QCOMPARE(tags(list), (QStringList{QString::number(id[4]), QString::number(id[0]), QString::number(id[2])}));
        QCOMPARE(positions(), (QMap<qint64, qint64>{{id[4], 0}, {id[1], 1}, {id[0], 2}, {id[3], 3}, {id[2], 4}}));

        // Show All has the order the coach arranged.
        testkit::child<QComboBox>(screen, "filterPop")
            ->setCurrentIndex(testkit::child<QComboBox>(screen, "filterPop")->findText(QStringLiteral("Show All")));
        QCOMPARE(tags(list), (QStringList{QString::number(id[4]), QString::number(id[1]), QString::number(id[0]),
                                          QString::number(id[3]), QString::number(id[2])}));

        // Ctrl+Down and Ctrl+Up move the selected row from the keyboard.
        list->setFocus();
        list->setSelectedRow(0);
        QTest::keyClick(list, Qt::Key_Down, Qt::ControlModifier);
        QTest::keyClick(list, Qt::Key_Down, Qt::ControlModifier);
        QTest::keyClick(list, Qt::Key_Up, Qt::ControlModifier);
        QCOMPARE(list->selectedRow(), 1);
        QCOMPARE(positions(), (QMap<qint64, qint64>{{id[1], 0}, {id[4], 1}, {id[0], 2}, {id[3], 3}, {id[2], 4}}));
        screen->close();
        QCOMPARE(positions(), (QMap<qint64, qint64>{{id[1], 0}, {id[4], 1}, {id[0], 2}, {id[3], 3}, {id[2], 4}}));
    }

    void printAndExport()
    {
        Season season;
        QTemporaryDir out;
        ScheduleList seed(*gData);
        seed.addNewItem(makeEvent("Game", QDate(2026, 4, 18), "O'Brien's Nine", season.homeID, 1));
        eventClass practice = makeEvent("Practice", QDate(2026, 4, 20), "", -1, 0);
        practice.location.clear(); // a row ending in empty cells
        seed.addNewItem(practice);
        auto *screen = new scheduleScrn;
        screen->show();

        season.fake.printing.directory = out.path();
        QTest::mouseClick(testkit::child<QPushButton>(screen, "printBtn"), Qt::LeftButton);
        QCOMPARE(season.fake.printing.printed.size(), 1);
        // The wide printout is landscape with no more than the print dialog.
        QVERIFY(season.fake.messages.shown.isEmpty());
        QCOMPARE(season.fake.printing.setupDialogs, 0);
        const QString pdf = season.fake.printing.printed.first();
        const QString text = fakes::pdfText(pdf);
        QVERIFY(text.contains(QStringLiteral("Schedule")));
        QVERIFY(text.contains(QStringLiteral("O'Brien's Nine")));
        // Each column starts at the sum of the widths before it: 95, 77, 77, 117, 117, 155.
        QMap<QString, double> x;
        for (const fakes::PdfWord &w : fakes::pdfWords(pdf))
            if (!x.contains(w.text))
                x.insert(w.text, w.xMin);
        const double date = x.value(QStringLiteral("Date"));
        const QList<QPair<QString, int>> starts = {{"Bus", 95},       {"Start", 172},    {"Event", 249},
                                                   {"Opponent", 366}, {"Location", 483}, {"H", 638}};
        for (const auto &s : starts)
            QVERIFY2(qAbs(x.value(s.first) - date - s.second) < 1.0, qPrintable(s.first));

        // The menu prints the same.
        screen->menuBar()->item(QStringLiteral("FilePrint"))->trigger();
        QCOMPARE(season.fake.printing.printed.size(), 2);

        const QString file = out.filePath(QStringLiteral("schedule.txt"));
        season.fake.files.answers.enqueue(file);
        QTest::mouseClick(testkit::child<QPushButton>(screen, "exportBtn"), Qt::LeftButton);
        QCOMPARE(season.fake.files.calls.last().request.suggestedName, QStringLiteral("Schedule"));
        QFile written(file);
        QVERIFY(written.open(QIODevice::ReadOnly));
        QCOMPARE(written.readAll(), QByteArray("Schedule\n"
                                               "Date\tBus Departs\tStart Time\tEvent\tOpponent\tLocation\tH\n"
                                               "4/18/26\t3:30 PM\t4:30 PM\tGame\tO'Brien's Nine\tRiverside\tH\n"
                                               "4/20/26\t3:30 PM\t4:30 PM\tPractice\t\t\t-\n"));
    }
};

QTEST_MAIN(TestScheduleScrn)
#include "tst_schedulescrn.moc"
