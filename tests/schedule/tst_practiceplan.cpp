// The practice plan screen driven as a coach drives it: opened from the
// schedule, drills typed and picked, the plan saved as a ".pplan" file,
// recalled into another practice, damaged files recalled, and the plan
// mailed to the people picked.

#include "ScheduleTestSupport.h"
#include "app/myPrefs.h"
#include "app/ui/ScreenDirectory.h"
#include "fakes/TestKit.h"
#include "people/ui/emailRecipientsDlog.h"
#include "reports/ui/qlmListBox.h"
#include "schedule/ui/practicePlanScrn.h"
#include "schedule/ui/scheduleScrn.h"
#include "support/ui/getInfoScrn_small.h"
#include "support/ui/qlmCheckBox.h"

#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QUrlQuery>

using scheduletest::Season;
using scheduletest::whenShown;

namespace {

qint64 practice(const QString &date, const QString &place)
{
    return gData->insert(QStringLiteral("Schedule"), {{QStringLiteral("SchedDate"), date},
                                                      {QStringLiteral("Event"), QStringLiteral("Practice")},
                                                      {QStringLiteral("Location"), place},
                                                      {QStringLiteral("isHome"), 0}});
}

practicePlanScrn *openPlan(qint64 eventID)
{
    auto *screen = new practicePlanScrn(QString::number(eventID));
    screen->show();
    return screen;
}

QList<QStringList> rowsOf(const qlmListBox *list)
{
    QList<QStringList> rows;
    for (int r = 0; r < list->rowCount(); ++r)
        rows.append(list->rowCells(r));
    return rows;
}

int drillsIn(qint64 eventID)
{
    return gData->scalar(QStringLiteral("SELECT COUNT(*) FROM Drills WHERE scheduleID = ?"), {QString::number(eventID)})
        .toInt();
}

QString planPath(const QString &name)
{
    return QDir(gPrefs->strdDataLoc).filePath(QStringLiteral("Practice Plans/") + name + QStringLiteral(".pplan"));
}

QByteArray bytesOf(const QString &path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

// Saves the plan on screen under `name`, answering the name prompt.
void saveAs(practicePlanScrn *screen, const QString &name)
{
    whenShown<getInfoScrn_small>([name](getInfoScrn_small *ask) {
        testkit::child<QLineEdit>(ask, "dataFld")->setText(name);
        QTest::mouseClick(testkit::child<QPushButton>(ask, "saveBtn"), Qt::LeftButton);
    });
    QTest::mouseClick(testkit::child<QPushButton>(screen, "saveBtn"), Qt::LeftButton);
}

void enterDrill(practicePlanScrn *screen, const QStringList &texts, bool byEnterKey)
{
    testkit::child<QComboBox>(screen, "drillBox")->setEditText(texts.value(0));
    testkit::child<QComboBox>(screen, "startBox")->setEditText(texts.value(1));
    testkit::child<QComboBox>(screen, "endBox")->setEditText(texts.value(2));
    testkit::child<QComboBox>(screen, "coachBox")->setEditText(texts.value(3));
    if (byEnterKey) {
        testkit::child<QComboBox>(screen, "coachBox")->setFocus();
        QTest::keyClick(testkit::child<QComboBox>(screen, "coachBox"), Qt::Key_Return);
    } else {
        QTest::mouseClick(testkit::child<QPushButton>(screen, "addBtn"), Qt::LeftButton);
    }
}

} // namespace

class TestPracticePlan : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        screens::registerScreen(ScreenId::practicePlanScrn,
                                [](const QVariant &id) { return new practicePlanScrn(id.toString()); });
    }
    void cleanup() { screens::unregisterScreen(ScreenId::practicePlanScrn); }

    // Drills typed with blanks are saved line for line, recalled into
    // another practice and saved again to the same bytes.
    void saveAndRecallByteForByte()
    {
        Season season;
        const qint64 tuesday = practice(QStringLiteral("2026-04-14"), QStringLiteral("O'Malley's Field"));
        const qint64 friday = practice(QStringLiteral("2026-04-17"), QStringLiteral("Riverside"));

        // From the schedule: the selected practice's button opens its plan.
        auto *schedule = new scheduleScrn;
        schedule->show();
        testkit::child<qlmListBox>(schedule, "ScheduleListbox")->setSelectedRow(0);
        QCOMPARE(testkit::child<QPushButton>(schedule, "enterDataBtn")->text(), QStringLiteral("Practice Plan"));
        QVERIFY(testkit::child<QPushButton>(schedule, "enterDataBtn")->isEnabled());
        QTest::mouseClick(testkit::child<QPushButton>(schedule, "enterDataBtn"), Qt::LeftButton);
        practicePlanScrn *screen = nullptr;
        for (QWidget *w : QApplication::topLevelWidgets())
            screen = screen ? screen : qobject_cast<practicePlanScrn *>(w);
        QVERIFY(screen);
        QCOMPARE(screen->mySchedID(), QString::number(tuesday));
        QVERIFY(testkit::child<QLabel>(screen, "practLocLabel")->text() ==
                QStringLiteral("Practice Location: O'Malley's Field"));
        QVERIFY(testkit::child<QLabel>(screen, "practDateLabel")->text().startsWith(QStringLiteral("Practice Date: ")));

        // An activity offers its drills; the time blocks run 7:00 AM to 10:45 PM.
        testkit::child<QComboBox>(screen, "activityBox")->setCurrentIndex(3);
        QCOMPARE(testkit::child<QComboBox>(screen, "drillBox")->count(), schedule::PracticePlan::drillsFor(3).size());
        QCOMPARE(testkit::child<QComboBox>(screen, "startBox")->count(), 64);
        QCOMPARE(testkit::child<QComboBox>(screen, "startBox")->itemText(20), QStringLiteral("12:00 PM"));
        QCOMPARE(testkit::child<QComboBox>(screen, "endBox")->itemText(63), QStringLiteral("10:45 PM"));

        const QList<QStringList> typed{
            {QStringLiteral("Long Toss"), QStringLiteral("3:00 PM"), QString(), QString()},
            {QStringLiteral("Bunting & base-running #2"), QString(), QString(), QStringLiteral("Łucja O'Neil")},
            {QStringLiteral("Fungo"), QStringLiteral("3:15 PM"), QStringLiteral("3:05 PM"), QString()},
            {QStringLiteral("Cool down"), QString(), QString(), QString()},
        };
        for (int i = 0; i < typed.size(); ++i)
            enterDrill(screen, typed.at(i), i % 2 == 1);
        QVERIFY(testkit::child<QComboBox>(screen, "drillBox")->currentText().isEmpty());
        QVERIFY(testkit::child<QComboBox>(screen, "coachBox")->currentText().isEmpty());
        enterDrill(screen, {QStringLiteral("   "), QStringLiteral("4:00 PM")}, false);
        QCOMPARE(season.fake.messages.texts(), QStringList{QStringLiteral("Please enter a drill.")});
        QCOMPARE(season.fake.beeper.beeps, 1);
        QCOMPARE(rowsOf(testkit::child<qlmListBox>(screen, "drillList")), typed);
        QCOMPARE(drillsIn(tuesday), 4);

        saveAs(screen, QStringLiteral("Tuesday's plan"));
        const QByteArray expected = "Long Toss\t3:00 PM\n"
                                    "Bunting & base-running #2\t\t\t\xC5\x81ucja O'Neil\n"
                                    "Fungo\t3:15 PM\t3:05 PM\n"
                                    "Cool down\n";
        QCOMPARE(bytesOf(planPath(QStringLiteral("Tuesday's plan"))), expected);

        // Recalled into Friday's practice, and saved again.
        auto *other = openPlan(friday);
        season.fake.files.answers.enqueue(planPath(QStringLiteral("Tuesday's plan")));
        QTest::mouseClick(testkit::child<QPushButton>(other, "recallBtn"), Qt::LeftButton);
        QCOMPARE(season.fake.files.calls.last().request.title, QStringLiteral("Select a Practice Plan file"));
        QCOMPARE(rowsOf(testkit::child<qlmListBox>(other, "drillList")), typed);
        QCOMPARE(drillsIn(friday), 4);
        saveAs(other, QStringLiteral("copy"));
        QCOMPARE(bytesOf(planPath(QStringLiteral("copy"))), expected);

        // A recalled row deletes from the file too; saving under a name in
        // use replaces the file.
        testkit::child<qlmListBox>(other, "drillList")->setSelectedRow(1);
        season.fake.messages.answers.enqueue(platform::MsgCancel);
        QTest::mouseClick(testkit::child<QPushButton>(other, "deleteBtn"), Qt::LeftButton);
        QCOMPARE(drillsIn(friday), 4);
        season.fake.messages.answers.enqueue(platform::MsgAction);
        QTest::mouseClick(testkit::child<QPushButton>(other, "deleteBtn"), Qt::LeftButton);
        QCOMPARE(season.fake.messages.shown.last().message,
                 QStringLiteral("Delete the drill \"Bunting & base-running #2\"?"));
        QCOMPARE(drillsIn(friday), 3);
        QCOMPARE(testkit::child<qlmListBox>(other, "drillList")->selectedRow(), -1);
        saveAs(other, QStringLiteral("copy"));
        QCOMPARE(bytesOf(planPath(QStringLiteral("copy"))),
                 QByteArray("Long Toss\t3:00 PM\nFungo\t3:15 PM\t3:05 PM\nCool down\n"));
        QCOMPARE(season.fake.messages.shown.size(), 3);
    }

    // What is typed into a box stays within what a plan line can hold, so
    // the saved plan recalls whole.
    void typedDrillsAlwaysRecall_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("stored");
        QTest::newRow("a tab") << QStringLiteral("Long\ttoss") << QStringLiteral("Long toss");
        QTest::newRow("line ends") << QStringLiteral("Laps\r\nand sprints") << QStringLiteral("Laps  and sprints");
        QTest::newRow("300 characters") << QString(300, u'x') << QString(255, u'x');
    }
    void typedDrillsAlwaysRecall()
    {
        QFETCH(QString, typed);
        QFETCH(QString, stored);
        Season season;
        const qint64 id = practice(QStringLiteral("2026-04-14"), QStringLiteral("Riverside"));
        auto *screen = openPlan(id);
        // Typed (or pasted) as one edit of the drill box.
        testkit::child<QComboBox>(screen, "drillBox")->lineEdit()->setFocus();
        testkit::child<QComboBox>(screen, "drillBox")->lineEdit()->insert(typed);
        enterDrill(screen, {testkit::child<QComboBox>(screen, "drillBox")->currentText(), QStringLiteral("3:00 PM\t")},
                   false);
        QCOMPARE(gData->scalar(QStringLiteral("SELECT drill || '|' || start FROM Drills")).toString(),
                 stored + QStringLiteral("|3:00 PM "));
        saveAs(screen, QStringLiteral("plan"));
        const auto read = schedule::PlanFile::parse(bytesOf(planPath(QStringLiteral("plan"))));
        QVERIFY(read.skipped.isEmpty());
        QCOMPARE(read.rows.value(0).value(0), stored);
    }

    // Drills are edited in place and moved by keyboard or button; a recall
    // into a practice with drills asks to replace or add.
    void editMoveAndRecallAgain()
    {
        Season season;
        const qint64 id = practice(QStringLiteral("2026-04-14"), QStringLiteral("Riverside"));
        auto *screen = openPlan(id);
        for (const char *drill : {"Laps", "Fungo", "Bunts"})
            enterDrill(screen, {QString::fromLatin1(drill)}, false);
        const auto stored = [id] {
            QStringList out;
            for (const Record &r :
                 gData->select(QStringLiteral("SELECT drill FROM Drills WHERE scheduleID = ? ORDER BY planID"), {id}))
                out.append(r.text(QStringLiteral("drill")));
            return out;
        };
        qlmListBox *list = testkit::child<qlmListBox>(screen, "drillList");
        list->editCell(1, 0);
        list->setEditorText(QStringLiteral("Fungo\tflies"));
        list->setCurrentIndex({});
        QCOMPARE(stored(), (QStringList{"Laps", "Fungo flies", "Bunts"}));
        QCOMPARE(list->cell(1, 0), QStringLiteral("Fungo flies"));

        list->setFocus();
        list->setSelectedRow(0);
        QTest::keyClick(list, Qt::Key_Down, Qt::ControlModifier);
        QCOMPARE(stored(), (QStringList{"Fungo flies", "Laps", "Bunts"}));
        QTest::mouseClick(testkit::child<QPushButton>(screen, "moveDownBtn"), Qt::LeftButton);
        QCOMPARE(stored(), (QStringList{"Fungo flies", "Bunts", "Laps"}));
        QVERIFY(!testkit::child<QPushButton>(screen, "moveDownBtn")->isEnabled());
        QTest::mouseClick(testkit::child<QPushButton>(screen, "moveUpBtn"), Qt::LeftButton);
        QCOMPARE(stored(), (QStringList{"Fungo flies", "Laps", "Bunts"}));

        saveAs(screen, QStringLiteral("plan"));
        season.fake.files.answers.enqueue(planPath(QStringLiteral("plan")));
        season.fake.messages.answers.enqueue(platform::MsgAlternate); // add
        QTest::mouseClick(testkit::child<QPushButton>(screen, "recallBtn"), Qt::LeftButton);
        QCOMPARE(drillsIn(id), 6);
        season.fake.files.answers.enqueue(planPath(QStringLiteral("plan")));
        season.fake.messages.answers.enqueue(platform::MsgAction); // replace
        QTest::mouseClick(testkit::child<QPushButton>(screen, "recallBtn"), Qt::LeftButton);
        QCOMPARE(stored(), (QStringList{"Fungo flies", "Laps", "Bunts"}));
        QCOMPARE(rowsOf(list).size(), 3);
        season.fake.files.answers.enqueue(planPath(QStringLiteral("plan")));
        season.fake.messages.answers.enqueue(platform::MsgCancel);
        QTest::mouseClick(testkit::child<QPushButton>(screen, "recallBtn"), Qt::LeftButton);
        QCOMPARE(drillsIn(id), 3);
        QCOMPARE(season.fake.messages.texts(), QStringList(3, QStringLiteral("This practice already has drills.")));
    }

    // Hand-edited and damaged plans: whole lines recalled or skipped, and
    // the coach hears which were skipped.
    void recallDamagedPlans_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<int>("recalled");
        QTest::addColumn<QString>("explanation"); // empty: no message

        QTest::newRow("CR LF and blank lines") << QByteArray("Laps\r\n\r\n\r\nSprints\t4:00 PM\r\n") << 2 << QString();
        QTest::newRow("five fields") << QByteArray("Laps\t1\t2\t3\t4\nSprints\n") << 1 << QStringLiteral("Line 1 did");
        QTest::newRow("no drill") << QByteArray("\t3:00 PM\t\tAnn\nLaps\n") << 1 << QStringLiteral("Line 1 did");
        QTest::newRow("a line of 100,000 characters")
            << (QByteArray("Laps\n") + QByteArray(100000, 'x') + "\nSprints\n") << 2 << QStringLiteral("Line 2 did");
        QTest::newRow("binary junk") << QByteArray("\x89PNG\r\n\x1a\n\x00\x00\x01\nLaps\xff\n", 18) << 0
                                     << QStringLiteral("Lines 1, 2, 3 and 4 did");
    }
    void recallDamagedPlans()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(int, recalled);
        QFETCH(QString, explanation);
        Season season;
        const qint64 id = practice(QStringLiteral("2026-04-14"), QStringLiteral("Riverside"));
        const QString path = QDir(season.folder()).filePath(QStringLiteral("hand.pplan"));
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        file.close();

        auto *screen = openPlan(id);
        season.fake.files.answers.enqueue(path);
        QTest::mouseClick(testkit::child<QPushButton>(screen, "recallBtn"), Qt::LeftButton);
        QCOMPARE(testkit::child<qlmListBox>(screen, "drillList")->rowCount(), recalled);
        QCOMPARE(drillsIn(id), recalled);
        if (explanation.isEmpty()) {
            QVERIFY(season.fake.messages.shown.isEmpty());
        } else {
            QCOMPARE(season.fake.messages.texts(),
                     QStringList{QStringLiteral("Some lines of this plan were not recalled.")});
            QVERIFY2(season.fake.messages.shown.first().explanation.startsWith(explanation),
                     qPrintable(season.fake.messages.shown.first().explanation));
        }
    }

    // Without the QLM folder nothing is saved or recalled.
    void missingFolder()
    {
        Season season;
        auto *screen = openPlan(practice(QStringLiteral("2026-04-14"), QStringLiteral("Riverside")));
        gPrefs->strdDataLoc = QDir(season.folder()).filePath(QStringLiteral("gone/QLM/TLYN2"));
        QTest::mouseClick(testkit::child<QPushButton>(screen, "saveBtn"), Qt::LeftButton);
        QTest::mouseClick(testkit::child<QPushButton>(screen, "recallBtn"), Qt::LeftButton);
        QCOMPARE(season.fake.messages.texts(),
                 QStringList(2, QStringLiteral("There was an error finding the correct location.")));
        QVERIFY(season.fake.files.calls.isEmpty());
    }

    // The plan goes to the checked people with an address; the mail
    // program reads back the subject and body exactly.
    void mailThePlan()
    {
        Season season;
        const QString team = QString::number(season.homeID);
        for (const auto &p : {std::pair{"Ann", "ann@example.org"}, std::pair{"Bo", "bo-at-example.org"},
                              std::pair{"Cy", "c&y@example.org"}})
            gData->insert(QStringLiteral("Players"), {{QStringLiteral("TeamNum"), team.toLongLong()},
                                                      {QStringLiteral("First"), QString::fromLatin1(p.first)},
                                                      {QStringLiteral("Last"), QStringLiteral("Z")},
                                                      {QStringLiteral("Email"), QString::fromLatin1(p.second)}});
        gData->insert(QStringLiteral("Coaches"), {{QStringLiteral("TeamNum"), team.toLongLong()},
                                                  {QStringLiteral("First"), QStringLiteral("Dee")},
                                                  {QStringLiteral("Last"), QStringLiteral("Coach")},
                                                  {QStringLiteral("Email"), QStringLiteral("dee@example.org")}});
        auto *screen = openPlan(practice(QStringLiteral("2026-04-14"), QStringLiteral("O'Malley's Field #2")));
        enterDrill(screen,
                   {QStringLiteral("Hit & run?"), QStringLiteral("3:00 PM"), QString(), QStringLiteral("Dee 100%")},
                   false);
        enterDrill(screen, {QStringLiteral("Laps")}, false);
        // Tab from the coach goes back to the drill, ready for the next one.
        screen->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(screen));
        testkit::child<QComboBox>(screen, "coachBox")->setFocus(Qt::TabFocusReason);
        QTest::keyClick(testkit::child<QComboBox>(screen, "coachBox"), Qt::Key_Tab);
        QVERIFY(testkit::child<QComboBox>(screen, "drillBox")->hasFocus());

        // Nobody checked: nothing opens.
        whenShown<emailRecipientsDlog>([](emailRecipientsDlog *d) {
            QTest::mouseClick(testkit::child<QPushButton>(d, "setBtn"), Qt::LeftButton);
        });
        QTest::mouseClick(testkit::child<QPushButton>(screen, "emailBtn"), Qt::LeftButton);
        QVERIFY(season.fake.urls.opened.isEmpty());

        whenShown<emailRecipientsDlog>([](emailRecipientsDlog *d) {
            QCOMPARE(testkit::child<QComboBox>(d, "selectTeamPop")->currentText(), QStringLiteral("O'Brien's Nine"));
            QTest::mouseClick(testkit::child<qlmCheckBox>(d, "playerSelAllCheck"), Qt::LeftButton);
            QCOMPARE(testkit::child<qlmListBox>(d, "playersList")->rowCount(), 3);
            // A check box of the list ticks from the keyboard.
            testkit::child<qlmListBox>(d, "coachesList")
                ->setCurrentIndex(testkit::child<qlmListBox>(d, "coachesList")->model()->index(0, 0));
            QTest::keyClick(testkit::child<qlmListBox>(d, "coachesList"), Qt::Key_Space);
            QVERIFY(testkit::child<qlmListBox>(d, "coachesList")->cellCheck(0, 0));
            QTest::mouseClick(testkit::child<QPushButton>(d, "setBtn"), Qt::LeftButton);
        });
        QTest::mouseClick(testkit::child<QPushButton>(screen, "emailBtn"), Qt::LeftButton);
        QCOMPARE(season.fake.urls.opened.size(), 1);
        const QUrl url = season.fake.urls.opened.first();
        QStringList to;
        for (const QByteArray &a : url.path(QUrl::FullyEncoded).toUtf8().split(','))
            to.append(QUrl::fromPercentEncoding(a));
        QCOMPARE(to, (QStringList{QStringLiteral("dee@example.org"), QStringLiteral("ann@example.org"),
                                  QStringLiteral("c&y@example.org")}));
        const QUrlQuery query(url);
        QCOMPARE(query.queryItems(QUrl::FullyDecoded).size(), 2);
        QCOMPARE(query.queryItemValue(QStringLiteral("subject"), QUrl::FullyDecoded), QStringLiteral("Practice Plans"));
        const QString heading = testkit::child<QLabel>(screen, "practDateLabel")->text() + QStringLiteral("\r\n") +
                                testkit::child<QLabel>(screen, "practLocLabel")->text();
        QCOMPARE(query.queryItemValue(QStringLiteral("body"), QUrl::FullyDecoded),
                 heading + QStringLiteral("\r\n") + heading +
                     QStringLiteral("Hit & run?\t3:00 PM\t\tDee 100%\r\nLaps\t\t\t"));
    }
};

QTEST_MAIN(TestPracticePlan)
#include "tst_practiceplan.moc"
