// The schedule's windows, driven as a coach would: the date picker, the
// event editor and the schedule list with its printout and export.

#include "ScheduleTestSupport.h"
#include "fakes/TestKit.h"
#include "schedule/CalendarMonth.h"
#include "schedule/EventDates.h"
#include "schedule/ScheduleStore.h"
#include "schedule/ui/Calendar.h"
#include "schedule/ui/newEventScrn.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QTest>
#include <QToolButton>

using scheduletest::Season;
using scheduletest::whenShown;

using scheduletest::daySlot;

namespace {

QStringList visibleDays(const Calendar &picker)
{
    QStringList days;
    for (int slot = 0; slot < CalendarMonth::kSlots; ++slot) {
        const QPushButton *b = daySlot(&picker, slot);
        days.append(b->isVisible() ? b->text() : QString());
    }
    return days;
}

void leave(QWidget *field)
{
    // Moving the focus on is what "leaving the field" is.
    field->setFocus();
    QTest::keyClick(field, Qt::Key_Tab);
}

void typeInto(QComboBox *box, const QString &text)
{
    box->setFocus();
    box->lineEdit()->selectAll();
    QTest::keyClick(box, Qt::Key_Backspace);
    QTest::keyClicks(box, text);
}

// Picks `day` of the month the picker opens on, through the calendar icon.
void pickDay(newEventScrn *editor, int year, int month, int day)
{
    whenShown<Calendar>([=](Calendar *picker) {
        testkit::child<QComboBox>(picker, "PopupYear")->setCurrentIndex(year - 2000);
        testkit::child<QComboBox>(picker, "PopupMonth")->setCurrentIndex(month - 1);
        QTest::mouseClick(daySlot(picker, CalendarMonth(year, month).slotOfDay(day)), Qt::LeftButton);
    });
    QTest::mouseClick(testkit::child<QToolButton>(editor, "calCnv"), Qt::LeftButton);
    // The offscreen platform doesn't hand activation back when a modal
    // window closes, as a desktop does.
    editor->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(editor));
}

} // namespace

class TestScheduleUi : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Whatever a function left open, also when it failed half-way, goes
    // before the next one starts.
    void cleanup() { testkit::closeAllWindows(); }

    void init() { QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates)); }

    // ---- the date picker ----

    void pickerLaysOutMonths_data()
    {
        QTest::addColumn<QDate>("start");
        QTest::addColumn<int>("hiddenBefore");
        QTest::addColumn<int>("days");
        QTest::newRow("February 2000") << QDate(2000, 2, 17) << 2 << 29;
        QTest::newRow("31 days from a Saturday") << QDate(2031, 3, 9) << 6 << 31;
        QTest::newRow("February 2027") << QDate(2027, 2, 1) << 1 << 28;
        QTest::newRow("February 2026, Sunday 1st") << QDate(2026, 2, 28) << 0 << 28;
        QTest::newRow("September 2038") << QDate(2038, 9, 30) << 3 << 30;
        QTest::newRow("February 2036, leap") << QDate(2036, 2, 29) << 5 << 29;
    }
    void pickerLaysOutMonths()
    {
        QFETCH(QDate, start);
        QFETCH(int, hiddenBefore);
        QFETCH(int, days);
        Season season;
        Calendar picker;
        picker.setStartDate(start);
        picker.show();
        picker.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&picker));
        QCOMPARE(picker.whichDate, QDate(start.year(), start.month(), 1));
        QCOMPARE(testkit::child<QComboBox>(&picker, "PopupMonth")->currentIndex(), start.month() - 1);
        QCOMPARE(testkit::child<QComboBox>(&picker, "PopupYear")->currentText(), QString::number(start.year()));
        QCOMPARE(picker.findChildren<QPushButton *>(QRegularExpression(QStringLiteral("^BevelButton1_"))).size(), 37);
        const QStringList shown = visibleDays(picker);
        for (int slot = 0; slot < 37; ++slot) {
            const int day = slot - hiddenBefore + 1;
            QCOMPARE(shown.at(slot), day >= 1 && day <= days ? QString::number(day) : QString());
        }
        // The day the picker was opened on has the focus.
        QCOMPARE(QApplication::focusWidget(), daySlot(&picker, hiddenBefore + start.day() - 1));
        // ... and stands out in bold, alone.
        for (int slot = 0; slot < 37; ++slot)
            QCOMPARE(daySlot(&picker, slot)->font().bold(), slot == hiddenBefore + start.day() - 1);
        QCOMPARE(testkit::child<QLabel>(&picker, "StaticText1_0")->text(), QStringLiteral("Sun"));
        QCOMPARE(daySlot(&picker, hiddenBefore)->accessibleName(),
                 QLocale().toString(QDate(start.year(), start.month(), 1), QLocale::LongFormat));
    }

    void pickerSteps()
    {
        Season season;
        Calendar picker;
        picker.setStartDate(QDate(2026, 12, 5));
        picker.show();
        QTest::mouseClick(testkit::child<QPushButton>(&picker, "PushButton1"), Qt::LeftButton);
        QCOMPARE(picker.whichDate, QDate(2027, 1, 1));
        QCOMPARE(testkit::child<QComboBox>(&picker, "PopupYear")->currentText(), QStringLiteral("2027"));
        QTest::mouseClick(testkit::child<QPushButton>(&picker, "PushButton2"), Qt::LeftButton);
        QTest::mouseClick(testkit::child<QPushButton>(&picker, "PushButton2"), Qt::LeftButton);
        QCOMPARE(picker.whichDate, QDate(2026, 11, 1));

        // The popups move the page by themselves.
        testkit::child<QComboBox>(&picker, "PopupYear")->setCurrentIndex(39);
        testkit::child<QComboBox>(&picker, "PopupMonth")->setCurrentIndex(11);
        QCOMPARE(picker.whichDate, QDate(2039, 12, 1));
        QVERIFY(!testkit::child<QPushButton>(&picker, "PushButton1")->isEnabled());
        testkit::child<QPushButton>(&picker, "PushButton1")->click(); // nothing past December 2039
        QCOMPARE(picker.whichDate, QDate(2039, 12, 1));

        testkit::child<QComboBox>(&picker, "PopupYear")->setCurrentIndex(0);
        testkit::child<QComboBox>(&picker, "PopupMonth")->setCurrentIndex(0);
        QCOMPARE(picker.whichDate, QDate(2000, 1, 1));
        QVERIFY(!testkit::child<QPushButton>(&picker, "PushButton2")->isEnabled());
        testkit::child<QPushButton>(&picker, "PushButton2")->click();
        QCOMPARE(picker.whichDate, QDate(2000, 1, 1));
        QCOMPARE(visibleDays(picker).at(36), QStringLiteral("31")); // January 2000 starts on a Saturday

        // "This Month" goes to the clock's month (the fake clock says April 2026).
        QTest::mouseClick(testkit::child<QPushButton>(&picker, "PushButton3"), Qt::LeftButton);
        QCOMPARE(picker.whichDate, QDate(2026, 4, 1));
    }

    void pickerGivesTheClickedDayOrNothing()
    {
        Season season;
        whenShown<Calendar>([](Calendar *picker) {
            QTest::mouseClick(daySlot(picker, CalendarMonth(2026, 7).slotOfDay(23)), Qt::LeftButton);
        });
        QCOMPARE(Calendar::GetDate(nullptr, QDate(2026, 7, 4)), std::optional<QDate>(QDate(2026, 7, 23)));

        // From the keyboard: arrows walk the days, Page Down turns the page.
        whenShown<Calendar>([](Calendar *picker) {
            picker->activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(picker));
            QWidget *day4 = daySlot(picker, CalendarMonth(2026, 7).slotOfDay(4));
            QCOMPARE(QApplication::focusWidget(), day4); // the day the picker opened on
            day4->setFocus();
            QTest::keyClick(day4, Qt::Key_Down);
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Right);
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_PageDown);
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
        });
        QCOMPARE(Calendar::GetDate(nullptr, QDate(2026, 7, 4)), std::optional<QDate>(QDate(2026, 8, 12)));

        // Closing the window (close box or Escape) gives nothing back.
        whenShown<Calendar>([](Calendar *picker) { picker->close(); });
        QCOMPARE(Calendar::GetDate(nullptr, QDate(2026, 7, 4)), std::nullopt);
        whenShown<Calendar>([](Calendar *picker) { QTest::keyClick(picker, Qt::Key_Escape); });
        QCOMPARE(Calendar::GetDate(nullptr, QDate(2026, 7, 4)), std::nullopt);
    }

    // ---- the event editor ----

    void composingAGame()
    {
        Season season;
        auto &fake = season.fake;
        newEventScrn editor;
        editor.show();
        editor.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&editor));
        QCOMPARE(testkit::child<QPushButton>(&editor, "actionBtn")->text(), QStringLiteral("Add Event"));
        QCOMPARE(testkit::child<QComboBox>(&editor, "opponentBox")->count(), 3);
        QCOMPARE(testkit::child<QComboBox>(&editor, "opponentBox")->itemText(2), QStringLiteral("N/A"));
        QCOMPARE(testkit::child<QComboBox>(&editor, "opponentBox")->itemData(2).toString(), QStringLiteral("-1"));
        QCOMPARE(testkit::child<QComboBox>(&editor, "locationBox")->count(), 2);
        QCOMPARE(testkit::child<QComboBox>(&editor, "locationBox")->itemText(0),
                 QStringLiteral("O'Malley's Field")); // in order
        QVERIFY(!testkit::child<QCheckBox>(&editor, "homeCheck")->isEnabled());
        QCOMPARE(testkit::child<QCheckBox>(&editor, "homeCheck")->checkState(), Qt::PartiallyChecked);

        // 1. No date yet.
        QTest::mouseClick(testkit::child<QPushButton>(&editor, "actionBtn"), Qt::LeftButton);
        QCOMPARE(fake.messages.texts(), QStringList{"Please set a date for this event"});
        QCOMPARE(fake.messages.shown.last().explanation, QStringLiteral("Click the small calendar icon."));
        QVERIFY(editor.isVisible());

        pickDay(&editor, 2026, 5, 9);
        QCOMPARE(testkit::child<QLineEdit>(&editor, "eventDateFld")->text(), QStringLiteral("Saturday, May 9, 2026"));

        // "game" becomes a Game on leaving the box, and only then asks home or away.
        typeInto(testkit::child<QComboBox>(&editor, "eventTypeBox"), QStringLiteral("game"));
        QVERIFY(!testkit::child<QCheckBox>(&editor, "homeCheck")->isEnabled());
        leave(testkit::child<QComboBox>(&editor, "eventTypeBox"));
        QCOMPARE(testkit::child<QComboBox>(&editor, "eventTypeBox")->currentText(), QStringLiteral("Game"));
        QVERIFY(testkit::child<QCheckBox>(&editor, "homeCheck")->isEnabled());

        // 7. A game needs an opponent.
        QTest::mouseClick(testkit::child<QPushButton>(&editor, "actionBtn"), Qt::LeftButton);
        QCOMPARE(fake.messages.texts().last(), QStringLiteral("Please select an opponent for this game."));
        testkit::child<QComboBox>(&editor, "opponentBox")->setFocus();
        QTest::keyClick(testkit::child<QComboBox>(&editor, "opponentBox"),
                        Qt::Key_B); // the popup's keyboard search finds "Bears"
        QCOMPARE(testkit::child<QComboBox>(&editor, "opponentBox")->currentText(), QStringLiteral("Bears"));

        // 10. Home or away must be said.
        QTest::mouseClick(testkit::child<QPushButton>(&editor, "actionBtn"), Qt::LeftButton);
        QCOMPARE(fake.messages.texts().last(),
                 QStringLiteral("Please indicate a Home or Away game by clicking the Check Box"));
        QCOMPARE(fake.messages.shown.size(), 3);
        QVERIFY(fake.messages.shown.last().plain);

        // The home field makes it a home game; any other field an away one.
        typeInto(testkit::child<QComboBox>(&editor, "locationBox"), QStringLiteral("Riverside"));
        QCOMPARE(testkit::child<QCheckBox>(&editor, "homeCheck")->checkState(), Qt::Unchecked);
        testkit::child<QComboBox>(&editor, "locationBox")
            ->setCurrentIndex(
                testkit::child<QComboBox>(&editor, "locationBox")->findText(QStringLiteral("O'Malley's Field")));
        QCOMPARE(testkit::child<QCheckBox>(&editor, "homeCheck")->checkState(), Qt::Checked);

        // Times: the boxes take digits only; an hour alone gets ":00", and
        // minutes without an hour are no time.
        typeInto(testkit::child<QComboBox>(&editor, "gameHour"), QStringLiteral("7pm"));
        QCOMPARE(testkit::child<QComboBox>(&editor, "gameHour")->currentText(), QStringLiteral("7"));
        QCOMPARE(fake.beeper.beeps, 2);
        typeInto(testkit::child<QComboBox>(&editor, "gameAMPM"), QStringLiteral("pm"));
        leave(testkit::child<QComboBox>(&editor, "gameAMPM"));
        QCOMPARE(testkit::child<QComboBox>(&editor, "gameAMPM")->currentText(), QStringLiteral("PM"));
        typeInto(testkit::child<QComboBox>(&editor, "busMinute"), QStringLiteral("30"));

        QTest::mouseClick(testkit::child<QPushButton>(&editor, "actionBtn"), Qt::LeftButton);
        QCOMPARE(fake.messages.shown.size(), 3);
        QVERIFY(!editor.isVisible());
        QVERIFY(editor.result());
        const eventClass &game = *editor.result();
        QCOMPARE(game.mDate, QDate(2026, 5, 9));
        QCOMPARE(game.eventType, QStringLiteral("Game"));
        QCOMPARE(game.opponent, QStringLiteral("Bears"));
        QCOMPARE(game.oppID, QString::number(season.bearsID));
        QCOMPARE(game.location, QStringLiteral("O'Malley's Field"));
        QCOMPARE(int(game.isHome), 1);
        QCOMPARE(game.startTime, QStringLiteral("7:00 PM"));
        QCOMPARE(game.busTime, QStringLiteral("---"));
    }

    void composingAPracticeAndAMeeting_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<QString>("location");
        QTest::newRow("practice") << "Practice"
                                  << "north gym";
        QTest::newRow("meeting") << "Meeting"
                                 << "library room 4";
    }
    void composingAPracticeAndAMeeting()
    {
        QFETCH(QString, type);
        QFETCH(QString, location);
        Season season;
        whenShown<newEventScrn>([&](newEventScrn *editor) {
            pickDay(editor, 2026, 6, 1);
            testkit::child<QComboBox>(editor, "eventTypeBox")
                ->setCurrentIndex(testkit::child<QComboBox>(editor, "eventTypeBox")->findText(type));
            QVERIFY(!testkit::child<QCheckBox>(editor, "homeCheck")->isEnabled());
            typeInto(testkit::child<QComboBox>(editor, "locationBox"), location);
            leave(testkit::child<QComboBox>(editor, "locationBox"));
            typeInto(testkit::child<QComboBox>(editor, "busHour"), QStringLiteral("5"));
            testkit::child<QComboBox>(editor, "busMinute")
                ->setCurrentIndex(testkit::child<QComboBox>(editor, "busMinute")->findText(QStringLiteral("45")));
            testkit::child<QComboBox>(editor, "busAMPM")->setCurrentIndex(0);
            QTest::keyClick(testkit::child<QPushButton>(editor, "actionBtn"), Qt::Key_Space);
        });
        const auto event = newEventScrn::getNewEvent(nullptr);
        QVERIFY(event);
        QCOMPARE(event->eventType, type);
        QCOMPARE(event->opponent, QString());
        QCOMPARE(event->oppID, QStringLiteral("-1"));
        QCOMPARE(int(event->isHome), 0);
        QCOMPARE(event->busTime, QStringLiteral("5:45 AM"));
        QCOMPARE(event->startTime, QStringLiteral("---"));
        QCOMPARE(event->location, EventForm::titleCase(location));
        QVERIFY(season.fake.messages.shown.isEmpty());
    }

    void cancelGivesNothing()
    {
        Season season;
        // The Cancel button is driven in tst_schedulescrn; Escape cancels as well.
        whenShown<newEventScrn>([](newEventScrn *editor) {
            pickDay(editor, 2026, 6, 1);
            testkit::child<QComboBox>(editor, "eventTypeBox")->setEditText(QStringLiteral("Meeting"));
            QTest::keyClick(editor, Qt::Key_Escape);
        });
        QCOMPARE(newEventScrn::getNewEvent(nullptr), std::nullopt);
        QCOMPARE(gData->scalar("SELECT COUNT(*) FROM Schedule").toInt(), 0);
    }

    // Two teams of one name: the popup tells them apart, and the event keeps
    // the one it was made against.
    void opponentIsKeptById()
    {
        Season season;
        const qint64 westBears = gData->insert(QStringLiteral("Teams"),
                                               {{QStringLiteral("TeamName"), QStringLiteral("Bears")},
                                                {QStringLiteral("SchoolName"), QStringLiteral("Westside")},
                                                {QStringLiteral("HomeField"), QStringLiteral("Riverside")}});
        const eventClass game = scheduletest::makeEvent("Game", QDate(2026, 4, 18), "Bears", westBears, 1);
        const qint64 id = ScheduleStore(*gData).insert(game);

        newEventScrn editor;
        QVERIFY(editor.loadEvent(id));
        QCOMPARE(testkit::child<QComboBox>(&editor, "opponentBox")->itemText(0),
                 QStringLiteral("Bears (team %1)").arg(season.bearsID));
        QCOMPARE(testkit::child<QComboBox>(&editor, "opponentBox")->itemText(1), QStringLiteral("Bears (Westside)"));
        QCOMPARE(testkit::child<QComboBox>(&editor, "opponentBox")->itemText(2), QStringLiteral("O'Brien's Nine"));
        QCOMPARE(testkit::child<QComboBox>(&editor, "opponentBox")->currentText(), QStringLiteral("Bears (Westside)"));
        QCOMPARE(testkit::child<QComboBox>(&editor, "locationBox")->count(),
                 2); // a field shared by two teams is offered once
        QVERIFY(editor.setEventProperties());
        QCOMPARE(*editor.result(), game);
    }

    // What the coach types into the hour and minute boxes is the time kept.
    void typedTimesStayAsTyped_data()
    {
        QTest::addColumn<QString>("hour");
        QTest::addColumn<QString>("minute");
        QTest::addColumn<QString>("stored");
        QTest::newRow("5 minutes, not 55") << "7"
                                           << "5"
                                           << "7:05 PM";
        QTest::newRow("1 minute, not 10") << "12"
                                          << "1"
                                          << "12:01 PM";
        QTest::newRow("0 minutes, not 00 by chance") << "1"
                                                     << "0"
                                                     << "1:00 PM";
        QTest::newRow("two digits") << "10"
                                    << "35"
                                    << "10:35 PM";
    }
    void typedTimesStayAsTyped()
    {
        QFETCH(QString, hour);
        QFETCH(QString, minute);
        QFETCH(QString, stored);
        Season season;
        newEventScrn editor;
        editor.show();
        editor.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&editor));
        editor.setPickedDate(QDate(2026, 5, 9));
        testkit::child<QComboBox>(&editor, "eventTypeBox")->setEditText(QStringLiteral("Meeting"));
        typeInto(testkit::child<QComboBox>(&editor, "gameHour"), hour);
        typeInto(testkit::child<QComboBox>(&editor, "gameMinute"), minute);
        typeInto(testkit::child<QComboBox>(&editor, "gameAMPM"), QStringLiteral("PM"));
        leave(testkit::child<QComboBox>(&editor, "gameAMPM"));
        QCOMPARE(testkit::child<QComboBox>(&editor, "gameMinute")->currentText(), minute);
        QTest::mouseClick(testkit::child<QPushButton>(&editor, "actionBtn"), Qt::LeftButton);
        QVERIFY(editor.result());
        QCOMPARE(editor.result()->startTime, stored);
    }

    // One click makes an away game a home game and back; only the program
    // sets the undecided state.
    void homeGameTakesOneClick_data()
    {
        QTest::addColumn<int>("before");
        QTest::addColumn<int>("after");
        QTest::newRow("away to home") << int(Qt::Unchecked) << int(Qt::Checked);
        QTest::newRow("home to away") << int(Qt::Checked) << int(Qt::Unchecked);
        QTest::newRow("undecided to home") << int(Qt::PartiallyChecked) << int(Qt::Checked);
    }
    void homeGameTakesOneClick()
    {
        QFETCH(int, before);
        QFETCH(int, after);
        Season season;
        newEventScrn editor;
        editor.show();
        QVERIFY(QTest::qWaitForWindowExposed(&editor));
        testkit::child<QComboBox>(&editor, "eventTypeBox")
            ->setCurrentIndex(testkit::child<QComboBox>(&editor, "eventTypeBox")->findText(QStringLiteral("Game")));
        QVERIFY(testkit::child<QCheckBox>(&editor, "homeCheck")->isEnabled());
        testkit::child<QCheckBox>(&editor, "homeCheck")->setCheckState(Qt::CheckState(before));
        // On the box itself, where a coach clicks.
        QTest::mouseClick(testkit::child<QCheckBox>(&editor, "homeCheck"), Qt::LeftButton, {},
                          QPoint(8, testkit::child<QCheckBox>(&editor, "homeCheck")->height() / 2));
        QCOMPARE(int(testkit::child<QCheckBox>(&editor, "homeCheck")->checkState()), after);
        QTest::keyClick(testkit::child<QCheckBox>(&editor, "homeCheck"), Qt::Key_Space);
        QCOMPARE(int(testkit::child<QCheckBox>(&editor, "homeCheck")->checkState()),
                 after == Qt::Checked ? int(Qt::Unchecked) : int(Qt::Checked));
    }

    void editingFillsTheEditor()
    {
        Season season;
        ScheduleStore store(*gData);
        eventClass game = scheduletest::makeEvent("Game", QDate(2026, 4, 18), "Bears", season.bearsID, 2);
        game.busTime = QStringLiteral("3:15 PM");
        game.startTime = QStringLiteral("---");
        const qint64 id = store.insert(game);

        newEventScrn editor;
        QVERIFY(editor.loadEvent(id));
        QCOMPARE(testkit::child<QPushButton>(&editor, "actionBtn")->text(), QStringLiteral("Edit Event"));
        QCOMPARE(testkit::child<QLineEdit>(&editor, "eventDateFld")->text(),
                 QStringLiteral("Saturday, April 18, 2026"));
        QCOMPARE(testkit::child<QComboBox>(&editor, "busHour")->currentText(), QStringLiteral("3"));
        QCOMPARE(testkit::child<QComboBox>(&editor, "busMinute")->currentText(), QStringLiteral("15"));
        QCOMPARE(testkit::child<QComboBox>(&editor, "busAMPM")->currentText(), QStringLiteral("PM"));
        QCOMPARE(testkit::child<QComboBox>(&editor, "gameHour")->currentText(), QString());
        QCOMPARE(testkit::child<QComboBox>(&editor, "opponentBox")->currentText(), QStringLiteral("Bears"));
        QVERIFY(testkit::child<QCheckBox>(&editor, "homeCheck")->isEnabled());
        QCOMPARE(testkit::child<QCheckBox>(&editor, "homeCheck")->checkState(), Qt::Unchecked);
        // Saved unchanged, it is the same event.
        QVERIFY(editor.setEventProperties());
        QCOMPARE(*editor.result(), game);

        // An opponent that is gone shows as "N/A"; an unreadable date must be picked again.
        gData->exec("UPDATE Schedule SET SchedDate = '18.4.26', Opponent = 'Owls', OppID = '99' WHERE eventID = ?",
                    {id});
        newEventScrn old;
        QVERIFY(old.loadEvent(id));
        QCOMPARE(testkit::child<QComboBox>(&old, "opponentBox")->currentText(), QStringLiteral("N/A"));
        QCOMPARE(testkit::child<QLineEdit>(&old, "eventDateFld")->text(), QStringLiteral("18.4.26"));
        QVERIFY(!old.setEventProperties());
        QCOMPARE(season.fake.messages.texts(), QStringList{"Please reselect the date"});
        QVERIFY(season.fake.messages.shown.first().plain);
        old.setPickedDate(QDate(2026, 4, 19));
        QVERIFY(old.setEventProperties());
        QCOMPARE(old.result()->mDate, QDate(2026, 4, 19));
        QCOMPARE(old.result()->oppID, QStringLiteral("-1"));

        QCOMPARE(newEventScrn::getEditEvent(nullptr, id + 99), std::nullopt);
    }
};

QTEST_MAIN(TestScheduleUi)
#include "tst_scheduleui.moc"
