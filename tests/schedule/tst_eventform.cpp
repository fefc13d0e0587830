// The event editor's rules without its window: what setEventProperties makes
// of the fields (its refusals are driven through the window in
// tst_scheduleui), the time and date forms, the key rule of the time boxes
// and the home-game box.

#include "app/globals.h"
#include "fakes/FakePlatform.h"
#include "schedule/EventDates.h"
#include "schedule/EventForm.h"
#include "schedule/ScheduleStore.h"

#include <QLocale>
#include <QTest>

namespace {

const QList<OpponentEntry> kTeams = {{QStringLiteral("Bears"), QStringLiteral("4"), {}},
                                     {QStringLiteral("O'Brien's Nine"), QStringLiteral("7"), {}}};

// A form as the editor fills it for a new event with a date picked.
EventForm pickedForm(const QString &type)
{
    EventForm form;
    form.opponents = EventForm::opponentEntries(kTeams);
    form.mDate = QDate(2026, 5, 2);
    form.dateText = EventDates::longDate(form.mDate);
    form.eventType = type;
    return form;
}

} // namespace

class TestEventForm : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QLocale::setDefault(QLocale::c()); }

    void accepted_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<QString>("opponent"); // selected by name; empty for none
        QTest::addColumn<int>("home");         // Qt::CheckState
        QTest::addColumn<QStringList>("bus");  // hour, minute, AM/PM
        QTest::addColumn<QStringList>("start");
        QTest::addColumn<QString>("storedType");
        QTest::addColumn<QString>("oppID");
        QTest::addColumn<int>("isHome");
        QTest::addColumn<QString>("busTime");
        QTest::addColumn<QString>("startTime");
        QTest::newRow("away game against N/A")
            << "Game"
            << "N/A" << int(Qt::Unchecked) << QStringList{"", "", ""} << QStringList{"6", "", "pm"} << "Game"
            << "-1" << 2 << "---"
            << "6:00 PM";
        QTest::newRow("minute without hour is no time")
            << "Scrimmage"
            << "Bears" << int(Qt::Checked) << QStringList{"", "30", "PM"} << QStringList{"", "45", "AM"} << "Scrimmage"
            << "4" << 0 << "---"
            << "---";
        QTest::newRow("typed in small letters")
            << "game"
            << "Bears" << int(Qt::Checked) << QStringList{"8", "5", "a"} << QStringList{"10", "00", ""} << "Game"
            << "4" << 1 << "8:05 AM"
            << "10:00 PM";
        QTest::newRow("out-of-range numbers are kept to a clock")
            << "Other"
            << "" << int(Qt::Unchecked) << QStringList{"19", "75", "PM"} << QStringList{"0", "3", "AM"} << "Other"
            << "-1" << 0 << "12:59 PM"
            << "1:03 AM";
    }
    void accepted()
    {
        QFETCH(QString, type);
        QFETCH(QString, opponent);
        QFETCH(int, home);
        QFETCH(QStringList, bus);
        QFETCH(QStringList, start);
        QFETCH(QString, storedType);
        QFETCH(QString, oppID);
        QFETCH(int, isHome);
        QFETCH(QString, busTime);
        QFETCH(QString, startTime);
        fakes::FakePlatform fake;
        EventForm form = pickedForm(type);
        if (!opponent.isEmpty())
            form.setOppoBox(opponent);
        form.homeState = Qt::CheckState(home);
        form.busHour = bus[0];
        form.busMinute = bus[1];
        form.busAMPM = bus[2];
        form.gameHour = start[0];
        form.gameMinute = start[1];
        form.gameAMPM = start[2];
        form.location = QStringLiteral("memorial field");
        eventClass result;
        QVERIFY(form.setEventProperties(result));
        QVERIFY(fake.messages.shown.isEmpty());
        QCOMPARE(result.mDate, QDate(2026, 5, 2));
        QCOMPARE(result.eventType, storedType);
        QCOMPARE(result.opponent, opponent);
        QCOMPARE(result.oppID, oppID);
        QCOMPARE(int(result.isHome), isHome);
        QCOMPARE(result.busTime, busTime);
        QCOMPARE(result.startTime, startTime);
        QCOMPARE(result.location, QStringLiteral("Memorial Field"));
    }

    void opponentTextWithoutSelectionIsLookedUp()
    {
        fakes::FakePlatform fake;
        EventForm form = pickedForm(QStringLiteral("Game"));
        form.opponentText = QStringLiteral("O'Brien's Nine");
        form.opponentIndex = -1;
        form.homeState = Qt::Checked;
        eventClass result;
        QVERIFY(form.setEventProperties(result));
        QCOMPARE(form.opponentIndex, 1);
        QCOMPARE(result.oppID, QStringLiteral("7"));
    }

    // An event opened for editing and saved unchanged reads its date back
    // from the long date the field shows, in any locale.
    void editedEventKeepsItsDate_data()
    {
        QTest::addColumn<QString>("locale");
        for (const char *name : {"C", "en_US", "en_GB", "de_DE", "fr_FR", "es_MX", "ja_JP"})
            QTest::newRow(name) << QString::fromLatin1(name);
    }
    void editedEventKeepsItsDate()
    {
        QFETCH(QString, locale);
        QLocale::setDefault(QLocale(locale));
        fakes::FakePlatform fake;
        eventClass stored;
        stored.mDate = QDate(2027, 9, 30);
        stored.busTime = QStringLiteral("---");
        stored.startTime = QStringLiteral("12:45 PM");
        stored.eventType = QStringLiteral("Game");
        stored.opponent = QStringLiteral("Bears");
        stored.oppID = QStringLiteral("4");
        stored.location = QStringLiteral("Riverside Park");
        stored.isHome = 2;
        EventForm form;
        form.opponents = EventForm::opponentEntries(kTeams);
        form.loadEvent(stored, EventDates::toStored(stored.mDate));
        QVERIFY(!form.mDate.isValid());
        QCOMPARE(form.dateText, EventDates::longDate(stored.mDate));
        QCOMPARE(form.busHour, QString());
        QCOMPARE((QStringList{form.gameHour, form.gameMinute, form.gameAMPM}), (QStringList{"12", "45", "PM"}));
        QCOMPARE(form.homeState, Qt::Unchecked);
        eventClass again;
        QVERIFY(form.setEventProperties(again));
        QCOMPARE(again, stored);
        QVERIFY(fake.messages.shown.isEmpty());
    }

    void storedDates_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QDate>("date");
        QTest::newRow("ISO") << "2026-04-15" << QDate(2026, 4, 15);
        QTest::newRow("with a time") << "2026-04-15 00:00:00" << QDate(2026, 4, 15);
        QTest::newRow("no such day") << "2026-02-30" << QDate();
        QTest::newRow("not a date") << "next Tuesday" << QDate();
        QTest::newRow("empty") << "" << QDate();
        QTest::newRow("US form is not the stored form") << "4/15/2026" << QDate();
    }
    void storedDates()
    {
        QFETCH(QString, text);
        QFETCH(QDate, date);
        QCOMPARE(EventDates::fromStored(text), date);
        if (date.isValid())
            QCOMPARE(EventDates::toStored(date), text.left(10));
    }

    void numberKeys_data()
    {
        QTest::addColumn<QString>("keys");
        QTest::addColumn<QString>("swallowed");
        QTest::newRow("digits, Backspace and Tab pass") << QStringLiteral("0123456789\b\t") << QString();
        QTest::newRow("everything else beeps") << QStringLiteral("a:P -+.") << QStringLiteral("a:P -+.");
    }
    void numberKeys()
    {
        QFETCH(QString, keys);
        QFETCH(QString, swallowed);
        fakes::FakePlatform fake;
        QString got;
        for (QChar key : keys) {
            if (EventForm::allowNumsOnly(key))
                got.append(key);
        }
        QCOMPARE(got, swallowed);
        QCOMPARE(fake.beeper.beeps, int(swallowed.size()));
    }

    void fieldsOnLeaving_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("eventType");
        QTest::addColumn<QString>("titled");
        QTest::newRow("small letters") << "game"
                                       << "Game"
                                       << "Game";
        QTest::newRow("capitals") << "GAME"
                                  << "Game"
                                  << "GAME";
        QTest::newRow("two words") << "  team  meeting "
                                   << "Team  Meeting"
                                   << "Team  Meeting";
        QTest::newRow("a field name keeps its capitals") << "UCLA field"
                                                         << "UCLA Field"
                                                         << "UCLA Field";
        QTest::newRow("apostrophe") << "o'brien's park"
                                    << "O'brien's Park"
                                    << "O'brien's Park";
    }
    void fieldsOnLeaving()
    {
        QFETCH(QString, typed);
        QFETCH(QString, eventType);
        QFETCH(QString, titled);
        QCOMPARE(EventForm::normalEventType(typed), eventType);
        QCOMPARE(EventForm::titleCase(typed), titled);
    }

    void homeBox()
    {
        // The editor's own cases are driven in tst_scheduleui; no home field here.
        QVERIFY(!EventForm::homeCheckEnabled(QStringLiteral("Scrimmage")));
        QCOMPARE(EventForm::homeStateForLocation(QStringLiteral("Memorial Field"), std::nullopt), Qt::Unchecked);
        QCOMPARE(EventForm::homeStateForLocation(QString(), QString()), Qt::Unchecked);
    }

    // The editor's and the schedule's fixed lists, to the character.
    void fixedLists_data()
    {
        QTest::addColumn<QStringList>("got");
        QTest::addColumn<QStringList>("expected");
        QTest::newRow("hours") << EventForm::hours()
                               << QStringList{"1", "2", "3", "4", "5", "6", "7", "8", "9", "10", "11", "12"};
        QTest::newRow("minutes") << EventForm::minutes()
                                 << QStringList{"00", "05", "10", "15", "20", "25", "30", "35", "40", "45", "50", "55"};
        QTest::newRow("AM/PM") << EventForm::meridiems() << QStringList{"AM", "PM"};
        QTest::newRow("event types") << EventForm::eventTypes()
                                     << QStringList{"Practice", "Scrimmage", "Game", "Meeting", "Other"};
        QTest::newRow("filters") << ScheduleStore::filters()
                                 << QStringList{"Show All", "Game", "Practice", "Scrimmage", "Meeting"};
        const OpponentEntry last = EventForm::opponentEntries(kTeams).last();
        QTest::newRow("no opponent") << QStringList{last.name, last.tag} << QStringList{"N/A", "-1"};
    }
    void fixedLists()
    {
        QFETCH(QStringList, got);
        QFETCH(QStringList, expected);
        QCOMPARE(got, expected);
    }
};

QTEST_GUILESS_MAIN(TestEventForm)
#include "tst_eventform.moc"
