// The personnel screen driven as the coach drives it, offscreen, with every
// dialog answered by the fakes.

#include "app/App.h"
#include "app/globals.h"
#include "app/ui/MainMenuBar.h"
#include "app/ui/ScreenDirectory.h"
#include "app/ui/TallylineApplication.h"
#include "app/ui/startScrn1.h"
#include "fakes/FakePlatform.h"
#include "fakes/TestKit.h"
#include "fakes/TestSupport.h"
#include "people/ui/PictureCanvas.h"
#include "people/ui/personnelScrn.h"
#include "people/ui/playerInfoCtr.h"
#include "reports/ui/qlmListBox.h"
#include "support/ui/iPhoneField.h"
#include "support/ui/qlmCheckBox.h"

#include "support/ui/PlusMinusContainer.h"
#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QTemporaryDir>
#include <QToolButton>

using testkit::clickHalf;
using testkit::typeInto;

class TestPersonnelScrn : public QObject
{
    Q_OBJECT

    // A season with two teams, the Cougars the home team.
    struct Session : testkit::Season
    {
        QString cougars, wolves;
        Session()
        {
            cougars = team(QStringLiteral("Cougars"));
            wolves = team(QStringLiteral("Wolves"));
            gPrefs->prHomeTeam = cougars;
        }
        static QString team(const QString &name)
        {
            return QString::number(
                gData->insert(QStringLiteral("Teams"), {{QStringLiteral("SchoolName"), QStringLiteral("Central")},
                                                        {QStringLiteral("TeamName"), name}}));
        }
        QString player(const QString &teamID, const QString &first, const QString &last, const QString &dob = {})
        {
            return QString::number(
                gData->insert(QStringLiteral("Players"), {{QStringLiteral("TeamNum"), teamID.toLongLong()},
                                                          {QStringLiteral("First"), first},
                                                          {QStringLiteral("Last"), last},
                                                          {QStringLiteral("DOB"), dob},
                                                          {QStringLiteral("Active"), 1}}));
        }
    };

    static QPointer<personnelScrn> open()
    {
        QPointer<personnelScrn> screen = new personnelScrn;
        testkit::showActive(screen);
        return screen;
    }

    static int rowOf(qlmListBox *list, const QString &last)
    {
        for (int r = 0; r < list->rowCount(); ++r) {
            if (list->cell(r, 1) == last)
                return r;
        }
        return -1;
    }

    static QString column(const QString &column, const QString &playerID)
    {
        return gData
            ->scalar(QStringLiteral("SELECT ") + column + QStringLiteral(" FROM Players WHERE playerID = ?"),
                     {playerID})
            .toString();
    }

private Q_SLOTS:
    // Whatever a function left open, also when it failed half-way, goes
    // before the next one starts.
    void cleanup() { testkit::closeAllWindows(); }

    // A player typed in, found in the list, shown back as typed and edited.
    void addAndEditPlayer()
    {
        Session s;
        s.fake.clock.time = QDateTime(QDate(2026, 4, 15), QTime(10, 0));
        auto screen = open();
        QCOMPARE(testkit::child<QComboBox>(screen, "selectTeamPop")->currentText(), QStringLiteral("Cougars"));
        QCOMPARE(testkit::child<QLabel>(screen, "teamIDFld")->text(), s.cougars);
        QVERIFY(testkit::child<playerInfoCtr>(screen, "myPlayerCtr")->isVisible());
        QVERIFY(!testkit::child<qlmCheckBox>(screen, "asstCheck")->isVisible());

        typeInto(testkit::child<QLineEdit>(screen, "FNameFld"), QStringLiteral("José \"Pepe\""));
        typeInto(testkit::child<QLineEdit>(screen, "LNameFld"), QStringLiteral("O'Neil; Łukasiewicz"));
        typeInto(testkit::child<QLineEdit>(screen, "addr1Fld"), QStringLiteral("12 \"Main\" St., Apt; 4"));
        typeInto(screen->newPhoneFld[0], QStringLiteral("6145551234"));
        typeInto(screen->newPhoneFld[1], QStringLiteral("5551234"));
        QCOMPARE(screen->newPhoneFld[0]->text(), QStringLiteral("(614) 555-1234"));
        QCOMPARE(screen->newPhoneFld[1]->text(), QStringLiteral("555-1234"));
        playerInfoCtr *ctr = testkit::child<playerInfoCtr>(screen, "myPlayerCtr");
        typeInto(testkit::child<QLineEdit>(ctr, "UNumFld"), QStringLiteral("7"));
        QVERIFY(testkit::choose(ctr->PositionPop[0], QStringLiteral("SS")));
        QVERIFY(testkit::choose(testkit::child<QComboBox>(ctr, "batPop"), QStringLiteral("Switch")));
        testkit::child<QLineEdit>(ctr, "DOBFld")->setFocus(Qt::TabFocusReason);
        testkit::child<QLineEdit>(ctr, "DOBFld")->home(false);
        QTest::keyClicks(testkit::child<QLineEdit>(ctr, "DOBFld"), QStringLiteral("04162012"));
        testkit::child<QLineEdit>(ctr, "StudentIDFld")->setFocus(Qt::TabFocusReason); // leaving the date fills the age
        QCOMPARE(testkit::child<QLabel>(ctr, "ageLabel")->text(), QStringLiteral("Age: 13"));
        testkit::child<QPlainTextEdit>(ctr, "plNotesFld")->setPlainText(QStringLiteral("Bats\tleft; \"quick\""));
        QTest::mouseClick(testkit::child<QPushButton>(screen, "actionBtn"), Qt::LeftButton);
        QVERIFY(s.fake.messages.shown.isEmpty());

        QCOMPARE(testkit::child<qlmListBox>(screen, "playersList")->rowCount(), 1);
        QCOMPARE(testkit::child<qlmListBox>(screen, "playersList")->rowCells(0),
                 (QStringList{"José \"Pepe\"", "O'Neil; Łukasiewicz", "SS"}));
        QCOMPARE(testkit::child<QLineEdit>(screen, "FNameFld")->text(), QString()); // cleared after adding
        const QString id = testkit::child<qlmListBox>(screen, "playersList")->rowTag(0);
        QCOMPARE(column(QStringLiteral("PhoneNumber"), id), QStringLiteral("(614) 555-1234"));
        QCOMPARE(column(QStringLiteral("DOB"), id), QStringLiteral("04/16/2012"));

        testkit::child<qlmListBox>(screen, "playersList")->setSelectedRow(0);
        QCOMPARE(testkit::child<QPushButton>(screen, "actionBtn")->text(), QStringLiteral("Edit Team Member"));
        QCOMPARE(testkit::child<QLineEdit>(screen, "FNameFld")->text(), QStringLiteral("José \"Pepe\""));
        QCOMPARE(testkit::child<QLineEdit>(screen, "addr1Fld")->text(), QStringLiteral("12 \"Main\" St., Apt; 4"));
        QCOMPARE(testkit::child<QComboBox>(ctr, "batPop")->currentText(), QStringLiteral("Switch"));
        QCOMPARE(testkit::child<QLineEdit>(ctr, "UNumFld")->text(), QStringLiteral("7"));
        QCOMPARE(testkit::child<QPlainTextEdit>(ctr, "plNotesFld")->toPlainText(),
                 QStringLiteral("Bats\tleft; \"quick\""));
        QCOMPARE(testkit::child<QLabel>(ctr, "ageLabel")->text(), QStringLiteral("Age: 13"));
        QVERIFY(!screen->editState().editDirty);

        typeInto(testkit::child<QLineEdit>(screen, "cityFld"), QStringLiteral("Zürich"));
        QVERIFY(screen->editState().editDirty);
        QTest::mouseClick(testkit::child<QPushButton>(screen, "actionBtn"), Qt::LeftButton);
        QCOMPARE(column(QStringLiteral("City"), id), QStringLiteral("Zürich"));
        QCOMPARE(column(QStringLiteral("TeamNum"), id), s.cougars);
        QCOMPARE(testkit::child<qlmListBox>(screen, "playersList")->rowCount(), 1);
        QVERIFY(!screen->editState().editMode);
    }

    void tradeToAnotherTeam()
    {
        Session s;
        const QString id = s.player(s.cougars, QStringLiteral("Al"), QStringLiteral("Reyes"));
        s.player(s.cougars, QStringLiteral("Ben"), QStringLiteral("Cole"));
        auto screen = open();
        QCOMPARE(testkit::child<qlmListBox>(screen, "playersList")->rowCount(), 2);
        QCOMPARE(testkit::child<QComboBox>(screen, "tradeToPop")->itemText(0), QStringLiteral("Trade To..."));

        // Left on "Trade To...", a save keeps the team.
        testkit::child<qlmListBox>(screen, "playersList")
            ->setSelectedRow(rowOf(testkit::child<qlmListBox>(screen, "playersList"), QStringLiteral("Reyes")));
        QTest::mouseClick(testkit::child<QPushButton>(screen, "actionBtn"), Qt::LeftButton);
        QCOMPARE(column(QStringLiteral("TeamNum"), id), s.cougars);

        testkit::child<qlmListBox>(screen, "playersList")
            ->setSelectedRow(rowOf(testkit::child<qlmListBox>(screen, "playersList"), QStringLiteral("Reyes")));
        QVERIFY(testkit::choose(testkit::child<QComboBox>(screen, "tradeToPop"), QStringLiteral("Wolves")));
        QTest::mouseClick(testkit::child<QPushButton>(screen, "actionBtn"), Qt::LeftButton);
        QCOMPARE(testkit::child<qlmListBox>(screen, "playersList")->rowCount(), 1);
        QCOMPARE(rowOf(testkit::child<qlmListBox>(screen, "playersList"), QStringLiteral("Reyes")), -1);
        QCOMPARE(column(QStringLiteral("TeamNum"), id), s.wolves);

        QVERIFY(testkit::choose(testkit::child<QComboBox>(screen, "selectTeamPop"), QStringLiteral("Wolves")));
        QCOMPARE(testkit::child<QLabel>(screen, "teamIDFld")->text(), s.wolves);
        QCOMPARE(testkit::child<qlmListBox>(screen, "playersList")->rowCount(), 1);
        QCOMPARE(testkit::child<qlmListBox>(screen, "playersList")->rowTag(0), id);
    }

    // Leaving a changed member asks; "Save" writes it, "Cancel" drops the
    // change, and the member chosen next is loaded either way.
    void dirtyQuestionOnSwitching_data()
    {
        QTest::addColumn<int>("answer");
        QTest::addColumn<QString>("city");
        QTest::newRow("Save") << 0 << "Columbus";
        QTest::newRow("Cancel") << 1 << "";
    }
    void dirtyQuestionOnSwitching()
    {
        QFETCH(int, answer);
        QFETCH(QString, city);
        Session s;
        const QString al = s.player(s.cougars, QStringLiteral("Al"), QStringLiteral("Reyes"));
        s.player(s.cougars, QStringLiteral("Ben"), QStringLiteral("Cole"));
        auto screen = open();

        // Typing with nobody loaded marks nothing.
        typeInto(testkit::child<QLineEdit>(screen, "cityFld"), QStringLiteral("Nowhere"));
        testkit::child<qlmListBox>(screen, "playersList")
            ->setSelectedRow(rowOf(testkit::child<qlmListBox>(screen, "playersList"), QStringLiteral("Reyes")));
        QVERIFY(s.fake.messages.shown.isEmpty());
        QCOMPARE(testkit::child<QLineEdit>(screen, "cityFld")->text(), QString());

        typeInto(testkit::child<QLineEdit>(screen, "cityFld"), QStringLiteral("Columbus"));
        s.fake.messages.answers.enqueue(std::uint8_t(answer));
        testkit::child<qlmListBox>(screen, "playersList")
            ->setSelectedRow(rowOf(testkit::child<qlmListBox>(screen, "playersList"), QStringLiteral("Cole")));
        QCOMPARE(s.fake.messages.texts(), QStringList{"Would you like to save the changes to this member?"});
        QCOMPARE(column(QStringLiteral("City"), al), city);
        QCOMPARE(testkit::child<QLineEdit>(screen, "LNameFld")->text(), QStringLiteral("Cole"));
        QCOMPARE(testkit::child<qlmListBox>(screen, "playersList")->selectedRow(),
                 rowOf(testkit::child<qlmListBox>(screen, "playersList"), QStringLiteral("Cole")));
        QVERIFY(screen->editState().editMode && !screen->editState().editDirty);

        // A change of the player fields counts too, and so does closing.
        s.fake.messages.clear();
        QVERIFY(testkit::choose(testkit::child<QComboBox>(screen, "throwPop"), QStringLiteral("Left")));
        s.fake.messages.answers.enqueue(platform::MsgAction);
        QVERIFY(screen->close());
        QCOMPARE(s.fake.messages.texts(), QStringList{"Would you like to save the changes to this member?"});
        QCOMPARE(gData->scalar(QStringLiteral("SELECT ThrowSide FROM Players WHERE Last = 'Cole'")).toString(),
                 QStringLiteral("Left"));
        QVERIFY(startScrn1::instance() && startScrn1::instance()->isVisible());
    }

    void coachesAndRemoving()
    {
        Session s;
        const QString al = s.player(s.cougars, QStringLiteral("Al"), QStringLiteral("Reyes"));
        auto screen = open();
        QTest::mouseClick(testkit::child<QRadioButton>(screen, "SelectCoach"), Qt::LeftButton);
        QVERIFY(!testkit::child<playerInfoCtr>(screen, "myPlayerCtr")->isVisible());
        QVERIFY(testkit::child<qlmCheckBox>(screen, "asstCheck")->isVisible());
        typeInto(testkit::child<QLineEdit>(screen, "FNameFld"), QStringLiteral("Dee"));
        QTest::mouseClick(testkit::child<QPushButton>(screen, "actionBtn"), Qt::LeftButton);
        QCOMPARE(s.fake.messages.texts(), QStringList{"Please enter a full name for this team member."});
        typeInto(testkit::child<QLineEdit>(screen, "LNameFld"), QStringLiteral("Ewing-O'Hara"));
        QTest::mouseClick(testkit::child<qlmCheckBox>(screen, "asstCheck"), Qt::LeftButton);
        QTest::mouseClick(testkit::child<QPushButton>(screen, "actionBtn"), Qt::LeftButton);
        QCOMPARE(testkit::child<qlmListBox>(screen, "coachesList")->rowCount(), 1);
        QCOMPARE(gData->scalar(QStringLiteral("SELECT Assistant FROM Coaches")).toInt(), 1);
        testkit::child<qlmListBox>(screen, "coachesList")->setSelectedRow(0);
        QVERIFY(testkit::child<qlmCheckBox>(screen, "asstCheck")->value()); // read back as stored

        // Choosing a player brings player mode back.
        testkit::child<qlmListBox>(screen, "playersList")->setSelectedRow(0);
        QVERIFY(testkit::child<QRadioButton>(screen, "SelectPlayer")->isChecked());
        QVERIFY(testkit::child<playerInfoCtr>(screen, "myPlayerCtr")->isVisible());

        // Removing asks first; the player's season rows stay.
        gData->exec(QStringLiteral("INSERT INTO Hitting (playerID, teamID, AB) VALUES (?, ?, 3)"), {al, s.cougars});
        s.fake.messages.clear();
        s.answer({platform::MsgCancel, platform::MsgAction});
        clickHalf(testkit::child<PlusMinusContainer>(screen, "PlusMinusPlayers"), false);
        QCOMPARE(testkit::child<qlmListBox>(screen, "playersList")->rowCount(), 1);
        testkit::child<qlmListBox>(screen, "playersList")->setSelectedRow(0);
        clickHalf(testkit::child<PlusMinusContainer>(screen, "PlusMinusPlayers"), false);
        QCOMPARE(s.fake.messages.texts(), QStringList(2, "Are you sure you wish to remove Al Reyes from this team?"));
        QCOMPARE(s.fake.messages.shown.first().actionCaption, QStringLiteral("Remove"));
        QCOMPARE(testkit::child<qlmListBox>(screen, "playersList")->rowCount(), 0);
        QCOMPARE(s.count(QStringLiteral("SELECT COUNT(*) FROM Players WHERE playerID = ?"), {al}), 0);
        QCOMPARE(s.count(QStringLiteral("SELECT COUNT(*) FROM Hitting")), 1);
        QCOMPARE(testkit::child<QLineEdit>(screen, "FNameFld")->text(), QString());
    }

    // A photo from the file dialog, printed with the player's data.
    void printPlayerWithPhoto()
    {
        Session s;
        s.player(s.cougars, QStringLiteral("Zoë"), QStringLiteral("Ñúñez"));
        auto screen = open();
        QAction *single = testkit::child<QToolButton>(screen, "printBtn")->menu()->actions().at(1);
        single->trigger();
        QCOMPARE(s.fake.messages.texts(), QStringList{"Please select a Player"});
        s.fake.messages.clear();

        testkit::child<qlmListBox>(screen, "playersList")->setSelectedRow(0);
        s.fake.files.answers.enqueue(
            fakes::writePicture(s.home.filePath(QStringLiteral("zoe.png")), {86, 100}, Qt::darkCyan));
        clickHalf(testkit::child<PlusMinusContainer>(screen, "PlusMinusIndivPic"), true);
        QCOMPARE(s.fake.files.calls.first().request.title, QStringLiteral("Select a Picture File to add"));
        QVERIFY(screen->editState().editDirty); // a new photo is a change
        QTest::mouseClick(testkit::child<QPushButton>(screen, "actionBtn"), Qt::LeftButton);
        QVERIFY(gData->scalar(QStringLiteral("SELECT PlayerPic FROM Players")).toByteArray().startsWith("\x89PNG"));

        testkit::child<qlmListBox>(screen, "playersList")->setSelectedRow(0);
        QCOMPARE(testkit::child<PictureCanvas>(screen, "indivPicCnv")->picture().size(), QSize(86, 100));
        s.fake.messages.answers.enqueue(platform::MsgAction);
        single->trigger();
        QCOMPARE(s.fake.messages.texts(), QStringList{"Include the Player's Photo on the printout?"});
        QCOMPARE(s.fake.printing.printed.size(), 1);
        const QString pdf = s.fake.printing.printed.first();
        QVERIFY(fakes::pdfText(pdf).contains(QStringLiteral("Zoë Ñúñez")));
        QCOMPARE(fakes::pdfImageSizes(pdf), QList<QSize>{QSize(86, 100)});

        // The list through the list box.
        screen->menuBar()->item(QStringLiteral("FilePrint"))->trigger();
        QCOMPARE(s.fake.printing.printed.size(), 2);
        QVERIFY(fakes::pdfText(s.fake.printing.printed.last()).contains(QStringLiteral("Players")));
    }

    void openedFromStartScreen()
    {
        Session s;
        screens::registerScreen(ScreenId::personnelScrn, [] { return new personnelScrn; });
        startScrn1 *start = startScrn1::showStartScreen();
        QTest::mouseClick(start->findChild<QPushButton *>(QStringLiteral("ShowPersonnelBtn")), Qt::LeftButton);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCOMPARE(s.app().BUTimer->mode(), myTimerClass::ModeMultiple);
        personnelScrn *screen = nullptr;
        for (QWidget *w : QApplication::topLevelWidgets()) {
            if (auto *p = qobject_cast<personnelScrn *>(w))
                screen = p;
        }
        QVERIFY(screen && screen->isVisible());
        QVERIFY(screen->close());
        QCOMPARE(s.app().BUTimer->mode(), myTimerClass::ModeOff);
        screens::unregisterScreen(ScreenId::personnelScrn);
    }
};

int main(int argc, char *argv[])
{
    TallylineApplication app(argc, argv);
    TestPersonnelScrn test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_personnelScrn.moc"
