// The team screen driven as the coach drives it, offscreen, with every
// dialog answered by the fakes.

#include "app/App.h"
#include "app/FileTypes.h"
#include "app/globals.h"
#include "app/ui/MainMenuBar.h"
#include "app/ui/ScreenDirectory.h"
#include "app/ui/TallylineApplication.h"
#include "app/ui/startScrn1.h"
#include "fakes/FakePlatform.h"
#include "fakes/TestKit.h"
#include "fakes/TestSupport.h"
#include "people/ui/MaskedPhoneField.h"
#include "people/ui/PictureCanvas.h"
#include "people/ui/teamScrn.h"
#include "reports/ui/qlmListBox.h"
#include "support/ui/qlmCheckBox.h"

#include "support/ui/PlusMinusContainer.h"
#include <QAction>
#include <QBuffer>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QPointer>
#include <QPushButton>
#include <QTemporaryDir>
#include <QToolButton>
#include <QUrl>

using testkit::clickHalf;
using testkit::typeInto;

class TestTeamScrn : public QObject
{
    Q_OBJECT

    using Session = testkit::Season;

    static QPointer<teamScrn> open()
    {
        QPointer<teamScrn> screen = new teamScrn;
        testkit::showActive(screen);
        return screen;
    }

    // Types a new team and clicks the action button.
    static void addTeam(teamScrn *s, const QString &school, const QString &team, bool home)
    {
        clickHalf(testkit::child<PlusMinusContainer>(s, "teamListPlusMInus"), true);
        typeInto(testkit::child<QLineEdit>(s, "teamFld"), team);
        typeInto(testkit::child<QLineEdit>(s, "schoolFld"), school);
        if (home)
            QTest::mouseClick(testkit::child<qlmCheckBox>(s, "homeTeamBox"), Qt::LeftButton);
        QCOMPARE(testkit::child<QPushButton>(s, "actionBtn")->text(), QStringLiteral("Add Team"));
        QTest::mouseClick(testkit::child<QPushButton>(s, "actionBtn"), Qt::LeftButton);
    }

    static int rowOf(qlmListBox *list, const QString &team)
    {
        for (int r = 0; r < list->rowCount(); ++r) {
            if (list->cell(r, 1) == team)
                return r;
        }
        return -1;
    }

private Q_SLOTS:
    // Whatever a function left open, also when it failed half-way, goes
    // before the next one starts.
    void cleanup() { testkit::closeAllWindows(); }

    // The first home team needs no question; a second one asks, and only
    // "Change" moves the mark.
    void homeTeams_data()
    {
        QTest::addColumn<int>("answer");
        QTest::addColumn<bool>("moved");
        QTest::newRow("Change") << 0 << true;
        QTest::newRow("Cancel") << 1 << false;
    }
    void homeTeams()
    {
        QFETCH(int, answer);
        QFETCH(bool, moved);
        Session s;
        auto screen = open();
        addTeam(screen, QStringLiteral("O'Brien's \"Prep\""), QStringLiteral("Señores; Rojos"), true);
        QVERIFY(s.fake.messages.shown.isEmpty());
        QCOMPARE(testkit::child<qlmListBox>(screen, "teamList")->rowCount(), 1);
        const QString first = testkit::child<qlmListBox>(screen, "teamList")->rowTag(0);
        QCOMPARE(gPrefs->prHomeTeam, first);
        QCOMPARE(testkit::child<qlmListBox>(screen, "teamList")->rowCells(0),
                 (QStringList{"O'Brien's \"Prep\"", "Señores; Rojos", "X"}));
        QCOMPARE(testkit::child<QPushButton>(screen, "actionBtn")->text(),
                 QStringLiteral("Add Team")); // the form is empty again

        s.fake.messages.answers.enqueue(std::uint8_t(answer));
        addTeam(screen, QStringLiteral("West"), QStringLiteral("Wolves"), true);
        QCOMPARE(s.fake.messages.texts(), QStringList{"Make this team the default 'Home Team'?"});
        const int westRow = rowOf(testkit::child<qlmListBox>(screen, "teamList"), QStringLiteral("Wolves"));
        const QString second = testkit::child<qlmListBox>(screen, "teamList")->rowTag(westRow);
        QCOMPARE(gPrefs->prHomeTeam, moved ? second : first);
        // On disk at once: a crash now keeps the choice.
        QFile file(gPrefs->prefsFilePath());
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), gPrefs->encode());
        QCOMPARE(testkit::child<qlmListBox>(screen, "teamList")->cell(westRow, 2),
                 moved ? QStringLiteral("X") : QString());
        QCOMPARE(testkit::child<qlmListBox>(screen, "teamList")
                     ->cell(rowOf(testkit::child<qlmListBox>(screen, "teamList"), QStringLiteral("Señores; Rojos")), 2),
                 moved ? QString() : QStringLiteral("X"));

        // Shown back as typed.
        testkit::child<qlmListBox>(screen, "teamList")
            ->setSelectedRow(rowOf(testkit::child<qlmListBox>(screen, "teamList"), QStringLiteral("Señores; Rojos")));
        QCOMPARE(testkit::child<QLineEdit>(screen, "teamFld")->text(), QStringLiteral("Señores; Rojos"));
        QCOMPARE(testkit::child<QLineEdit>(screen, "schoolFld")->text(), QStringLiteral("O'Brien's \"Prep\""));
        QCOMPARE(testkit::child<qlmCheckBox>(screen, "homeTeamBox")->value(), !moved);
        QCOMPARE(testkit::child<QPushButton>(screen, "actionBtn")->text(), QStringLiteral("Edit Team"));
        QCOMPARE(testkit::child<QLabel>(screen, "teamIDFld")->text(), first);
    }

    // With teams but no home team the screen stays open; once one is
    // chosen it closes, and the start screen shows that team.
    void closingNeedsHomeTeam()
    {
        Session s;
        screens::registerScreen(ScreenId::teamScrn, [] { return new teamScrn; });
        startScrn1 *start = startScrn1::showStartScreen();
        QTest::mouseClick(start->findChild<QPushButton *>(QStringLiteral("teamScrnBtn")), Qt::LeftButton);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QPointer<teamScrn> screen;
        for (QWidget *w : QApplication::topLevelWidgets()) {
            if (auto *t = qobject_cast<teamScrn *>(w))
                screen = t;
        }
        QVERIFY(screen && screen->isVisible());
        QCOMPARE(s.app().BUTimer->mode(), myTimerClass::ModeMultiple);
        testkit::showActive(screen);

        addTeam(screen, QStringLiteral("O'Brien's"), QStringLiteral("Cougars"), false);
        QTest::mouseClick(testkit::child<QPushButton>(screen, "cancelBtn"), Qt::LeftButton);
        QCOMPARE(s.fake.messages.texts(), QStringList{"Please designate a 'Home Team'"});
        QVERIFY(screen && screen->isVisible());

        // A click on the home column only explains how to mark one.
        s.fake.messages.clear();
        const QRect cell = testkit::child<qlmListBox>(screen, "teamList")
                               ->visualRect(testkit::child<qlmListBox>(screen, "teamList")->listModel().index(0, 2));
        QTest::mouseClick(testkit::child<qlmListBox>(screen, "teamList")->viewport(), Qt::LeftButton, {},
                          cell.center());
        QCOMPARE(s.fake.messages.texts(), QStringList{"Please select a team and designate it as the 'Home Team'"});
        QCOMPARE(testkit::child<QPushButton>(screen, "actionBtn")->text(),
                 QStringLiteral("Edit Team")); // and it selected the row

        // Marked by editing: no home team yet, so no question.
        s.fake.messages.clear();
        QTest::mouseClick(testkit::child<qlmCheckBox>(screen, "homeTeamBox"), Qt::LeftButton);
        QTest::mouseClick(testkit::child<QPushButton>(screen, "actionBtn"), Qt::LeftButton);
        QVERIFY(s.fake.messages.shown.isEmpty());
        QVERIFY(!gPrefs->prHomeTeam.isEmpty());
        QVERIFY(screen->close());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!screen);
        start = startScrn1::instance();
        QVERIFY(start && start->isVisible());
        QCOMPARE(testkit::child<QLabel>(start, "teamNameLabel")->text(), QStringLiteral("O'Brien's Cougars"));
        QCOMPARE(s.app().BUTimer->mode(), myTimerClass::ModeOff);
        screens::unregisterScreen(ScreenId::teamScrn);
    }

    void emptyListCloses()
    {
        Session s;
        auto screen = open();
        QVERIFY(screen->close());
        QVERIFY(s.fake.messages.shown.isEmpty());
    }

    void deleteTeamWithItsPlayers()
    {
        Session s;
        const qint64 cougars = s.addTeam(QStringLiteral("Cougars"), QStringLiteral("Central"), {}, true);
        const qint64 wolves = s.addTeam(QStringLiteral("Wolves"), QStringLiteral("West"));
        s.addPlayer(cougars, QStringLiteral("A"), QStringLiteral("Reyes"));
        s.addPlayer(cougars, QStringLiteral("A"), QStringLiteral("Cole"));
        s.addPlayer(wolves, QStringLiteral("C"), QStringLiteral("Diaz"));
        s.addCoach(cougars, QStringLiteral("D"), QStringLiteral("Ewing"));
        auto screen = open();
        QCOMPARE(testkit::child<qlmListBox>(screen, "teamList")->rowCount(), 2);
        testkit::child<qlmListBox>(screen, "teamList")
            ->setSelectedRow(rowOf(testkit::child<qlmListBox>(screen, "teamList"), QStringLiteral("Cougars")));

        s.answer({platform::MsgCancel, platform::MsgAction});
        clickHalf(testkit::child<PlusMinusContainer>(screen, "teamListPlusMInus"), false);
        QCOMPARE(testkit::child<qlmListBox>(screen, "teamList")->rowCount(), 2);

        testkit::child<qlmListBox>(screen, "teamList")
            ->setSelectedRow(rowOf(testkit::child<qlmListBox>(screen, "teamList"), QStringLiteral("Cougars")));
        clickHalf(testkit::child<PlusMinusContainer>(screen, "teamListPlusMInus"), false);
        QCOMPARE(s.fake.messages.texts().last(), QStringLiteral("Ok to delete Central Cougars from the Teams List?"));
        QCOMPARE(testkit::child<qlmListBox>(screen, "teamList")->rowCount(), 1);
        QCOMPARE(testkit::child<qlmListBox>(screen, "teamList")->cell(0, 1), QStringLiteral("Wolves"));
        // Its players go with it; other teams' players and the coaches stay.
        QCOMPARE(s.count(QStringLiteral("SELECT COUNT(*) FROM Players WHERE TeamNum = ?"), {cougars}), 0);
        QCOMPARE(s.count(QStringLiteral("SELECT COUNT(*) FROM Players WHERE TeamNum = ?"), {wolves}), 1);
        QCOMPARE(s.count(QStringLiteral("SELECT COUNT(*) FROM Coaches")), 1);
        QVERIFY(gPrefs->prHomeTeam.isEmpty());
        QVERIFY(gPrefs->prefsDirty);
        QCOMPARE(testkit::child<QLineEdit>(screen, "teamFld")->text(), QString());
        QVERIFY(!screen->close()); // Wolves remain, and none is the home team
    }

    // The phone keeps what was typed and shows it through its mask.
    void phoneMask_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("shown");
        QTest::newRow("seven") << "5551234"
                               << "555-1234";
        QTest::newRow("ten") << "6145551234"
                             << "(614) 555-1234";
        QTest::newRow("six") << "555123"
                             << "555123";
    }
    void phoneMask()
    {
        QFETCH(QString, typed);
        QFETCH(QString, shown);
        Session s;
        auto screen = open();
        typeInto(testkit::child<QLineEdit>(screen, "teamFld"), QStringLiteral("Cougars"));
        typeInto(testkit::child<MaskedPhoneField>(screen, "phoneFld"), typed);
        QCOMPARE(testkit::child<MaskedPhoneField>(screen, "phoneFld")->text(), typed); // as typed while being edited
        testkit::child<QComboBox>(screen, "homeFldFld")->setFocus(Qt::TabFocusReason);
        QCOMPARE(testkit::child<MaskedPhoneField>(screen, "phoneFld")->text(), shown);
        testkit::child<MaskedPhoneField>(screen, "phoneFld")->setFocus(Qt::TabFocusReason);
        QCOMPARE(testkit::child<MaskedPhoneField>(screen, "phoneFld")->text(), typed); // back for editing
        testkit::child<QComboBox>(screen, "homeFldFld")->setFocus(Qt::TabFocusReason);
        QTest::mouseClick(testkit::child<QPushButton>(screen, "actionBtn"), Qt::LeftButton);
        QCOMPARE(gData->scalar(QStringLiteral("SELECT Phone FROM Teams")).toString(), typed);
        testkit::child<qlmListBox>(screen, "teamList")->setSelectedRow(0);
        QCOMPARE(testkit::child<MaskedPhoneField>(screen, "phoneFld")->text(), shown);
    }

    // Logos come from the file dialog or a drop and are kept as PNG; the
    // printout carries them when the preferences ask for logos on reports.
    void logoAndPrint()
    {
        Session s;
        gPrefs->prLogoOnReport = true;
        auto screen = open();
        typeInto(testkit::child<QLineEdit>(screen, "teamFld"), QStringLiteral("Cougars"));
        typeInto(testkit::child<QLineEdit>(screen, "schoolFld"), QStringLiteral("O'Brien's"));
        testkit::choose(testkit::child<QComboBox>(screen, "StatePop"), QStringLiteral("OH"));
        typeInto(testkit::child<QLineEdit>(screen, "cityFld"), QStringLiteral("Dublin"));
        const QString jpeg = fakes::writePicture(s.home.filePath(QStringLiteral("crest.jpg")), {64, 48}, Qt::red);
        s.fake.files.answers.enqueue(jpeg);
        clickHalf(testkit::child<PlusMinusContainer>(screen, "PlusMinusTeamLogo"), true);
        QCOMPARE(s.fake.files.calls.size(), 1);
        QCOMPARE(s.fake.files.calls[0].request.title, QStringLiteral("Select a Picture File to add"));
        QCOMPARE(s.fake.files.calls[0].request.nameFilters, QStringList{FileTypes::AllPicts().nameFilter()});
        QCOMPARE(testkit::child<PictureCanvas>(screen, "LogoCvn")->picture().size(), QSize(64, 48));

        // Removing shows the placeholder; a dropped file of another name brings one back.
        clickHalf(testkit::child<PlusMinusContainer>(screen, "PlusMinusTeamLogo"), false);
        QVERIFY(testkit::child<PictureCanvas>(screen, "LogoCvn")->picture().isNull());
        QVERIFY(!testkit::child<PictureCanvas>(screen, "LogoCvn")->shownPicture().isNull());
        fakes::writePicture(s.home.filePath(QStringLiteral("crest.dat")), {30, 40}, Qt::blue);
        QMimeData mime;
        mime.setUrls({QUrl::fromLocalFile(s.home.filePath(QStringLiteral("crest.dat")))});
        // The drag enters first: the application hands a drop only to the
        // widget the drag is over.
        QDragEnterEvent enter(QPoint(10, 10), Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(testkit::child<PictureCanvas>(screen, "LogoCvn"), &enter);
        QVERIFY(enter.isAccepted());
        QDropEvent drop(QPointF(10, 10), Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(testkit::child<PictureCanvas>(screen, "LogoCvn"), &drop);
        QCOMPARE(testkit::child<PictureCanvas>(screen, "LogoCvn")->picture().size(), QSize(30, 40));

        QTest::mouseClick(testkit::child<QPushButton>(screen, "actionBtn"), Qt::LeftButton);
        const QByteArray stored = gData->scalar(QStringLiteral("SELECT TeamLogo FROM Teams")).toByteArray();
        QVERIFY(stored.startsWith("\x89PNG"));
        QCOMPARE(QImage::fromData(stored).size(), QSize(30, 40));

        // The selected team's data needs a selection.
        QAction *selectedData = testkit::child<QToolButton>(screen, "printBtn")->menu()->actions().at(1);
        selectedData->trigger();
        QCOMPARE(s.fake.messages.texts(), QStringList{"Please Select a Team."});
        testkit::child<qlmListBox>(screen, "teamList")->setSelectedRow(0);
        selectedData->trigger();
        QCOMPARE(s.fake.printing.printed.size(), 1);
        const QString pdf = s.fake.printing.printed.first();
        const QString text = fakes::pdfText(pdf);
        QVERIFY(text.contains(QStringLiteral("O'Brien's Cougars")));
        QVERIFY(text.contains(QStringLiteral("Dublin, OH")));
        QCOMPARE(fakes::pdfImageSizes(pdf), QList<QSize>{QSize(30, 40)});

        // The list prints through the list box, from the menu bar too.
        QCOMPARE(screen->menuBar()->item(QStringLiteral("FilePrint"))->text(), QStringLiteral("Print Team List"));
        screen->menuBar()->item(QStringLiteral("FilePrint"))->trigger();
        QCOMPARE(s.fake.printing.printed.size(), 2);
        QVERIFY(fakes::pdfText(s.fake.printing.printed.last()).contains(QStringLiteral("All Teams")));
        // Help and abbreviations aren't part of the program yet.
        QVERIFY(!screen->menuBar()->item(QStringLiteral("Help"))->isEnabled());
        QVERIFY(!screen->menuBar()->item(QStringLiteral("Abbrev"))->isEnabled());
        QVERIFY(screen->menuBar()->item(QStringLiteral("FilePrinterSetup"))->isEnabled());
    }

    // A chosen picture larger than 1,024 pixels on its long side is scaled
    // down to 1,024; a smaller one stays as it is.
    void chosenLogoSize_data()
    {
        QTest::addColumn<QSize>("chosen");
        QTest::addColumn<QSize>("kept");
        QTest::newRow("wide phone photo") << QSize(3000, 1500) << QSize(1024, 512);
        QTest::newRow("tall") << QSize(600, 2400) << QSize(256, 1024);
        QTest::newRow("exactly 1024") << QSize(1024, 700) << QSize(1024, 700);
        QTest::newRow("small") << QSize(64, 48) << QSize(64, 48);
    }
    void chosenLogoSize()
    {
        QFETCH(QSize, chosen);
        QFETCH(QSize, kept);
        Session s;
        auto screen = open();
        s.fake.files.answers.enqueue(
            fakes::writePicture(s.home.filePath(QStringLiteral("crest.jpg")), chosen, Qt::red));
        clickHalf(testkit::child<PlusMinusContainer>(screen, "PlusMinusTeamLogo"), true);
        QCOMPARE(testkit::child<PictureCanvas>(screen, "LogoCvn")->picture().size(), kept);
    }

    // Saving a team whose logo didn't change writes the stored bytes back
    // as they are, whatever format they hold: nothing is decoded and encoded.
    void unchangedLogoKeepsItsBytes()
    {
        Session s;
        QByteArray jpeg;
        {
            QImage crest(40, 30, QImage::Format_RGB32);
            crest.fill(Qt::darkGreen);
            QBuffer buffer(&jpeg);
            buffer.open(QIODevice::WriteOnly);
            crest.save(&buffer, "JPEG", 75);
        }
        gData->insert(QStringLiteral("Teams"),
                      {{QStringLiteral("TeamName"), QStringLiteral("Cougars")}, {QStringLiteral("TeamLogo"), jpeg}});
        auto screen = open();
        testkit::child<qlmListBox>(screen, "teamList")->setSelectedRow(0);
        QCOMPARE(testkit::child<PictureCanvas>(screen, "LogoCvn")->picture().size(), QSize(40, 30));
        typeInto(testkit::child<QLineEdit>(screen, "cityFld"), QStringLiteral("Dublin"));
        QTest::mouseClick(testkit::child<QPushButton>(screen, "actionBtn"), Qt::LeftButton);
        QCOMPARE(gData->scalar(QStringLiteral("SELECT SchoolCity FROM Teams")).toString(), QStringLiteral("Dublin"));
        QVERIFY(gData->scalar(QStringLiteral("SELECT TeamLogo FROM Teams")).toByteArray() == jpeg);
    }

    // A new value of a combo box is offered once it is saved.
    void combosOfferSavedValues()
    {
        Session s;
        gData->insert(QStringLiteral("Teams"), {{QStringLiteral("TeamName"), QStringLiteral("Wolves")},
                                                {QStringLiteral("League"), QStringLiteral("Metro")}});
        auto screen = open();
        QCOMPARE(testkit::child<QComboBox>(screen, "LeagueFld")->count(), 1);
        typeInto(testkit::child<QLineEdit>(screen, "teamFld"), QStringLiteral("Cougars"));
        typeInto(testkit::child<QComboBox>(screen, "LeagueFld")->lineEdit(), QStringLiteral("Tri-County, North"));
        QTest::mouseClick(testkit::child<QPushButton>(screen, "actionBtn"), Qt::LeftButton);
        QCOMPARE(testkit::child<QComboBox>(screen, "LeagueFld")->count(), 2);
        QCOMPARE(testkit::child<QComboBox>(screen, "LeagueFld")->itemText(1), QStringLiteral("Tri-County, North"));
        QCOMPARE(testkit::child<QComboBox>(screen, "LeagueFld")->currentText(), QString());
    }

    void nameIsRequired()
    {
        Session s;
        auto screen = open();
        typeInto(testkit::child<QLineEdit>(screen, "schoolFld"), QStringLiteral("Central"));
        typeInto(testkit::child<QLineEdit>(screen, "teamFld"), QStringLiteral("  ")); // blanks are no name
        QTest::mouseClick(testkit::child<QPushButton>(screen, "actionBtn"), Qt::LeftButton);
        QCOMPARE(s.fake.messages.texts(), QStringList{"Please fill in the team name field."});
        QCOMPARE(testkit::child<qlmListBox>(screen, "teamList")->rowCount(), 0);
        QCOMPARE(testkit::child<QLineEdit>(screen, "schoolFld")->text(),
                 QStringLiteral("Central")); // nothing typed is lost
    }
};

int main(int argc, char *argv[])
{
    TallylineApplication app(argc, argv);
    TestTeamScrn test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_teamScrn.moc"
