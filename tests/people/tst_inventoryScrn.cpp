// The inventory screen driven from the keyboard and the menus: items typed
// into the pool, units handed out, the list exported and imported again,
// the lists printed, the backup timer running while the screen is open.

#include "app/App.h"
#include "app/globals.h"
#include "app/myTimerClass.h"
#include "app/ui/MainMenuBar.h"
#include "fakes/FakePlatform.h"
#include "fakes/TestKit.h"
#include "fakes/TestSupport.h"
#include "people/ui/InventoryScrn.h"
#include "reports/ui/qlmListBox.h"
#include "support/ui/PlusMinusContainer.h"

#include <QAction>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTemporaryDir>

#include <array>

using testkit::typeInto;

class TestInventoryScrn : public QObject
{
    Q_OBJECT

    struct Session : testkit::Season
    {
        qint64 cougars = addTeam(QStringLiteral("Nine"), QStringLiteral("O'Brien's"), {}, true);
        qint64 bears = addTeam(QStringLiteral("Bears"), QStringLiteral("East"));
        qint64 ann = addPlayer(cougars, QStringLiteral("Ann"), QStringLiteral("Ames"));
        qint64 bo = addPlayer(cougars, QStringLiteral("Bo"), QStringLiteral("Ames"));
        Session() : testkit::Season(false) {}
    };

    static QStringList rows(const qlmListBox *list)
    {
        QStringList out;
        for (int r = 0; r < list->rowCount(); ++r)
            out.append(list->rowCells(r).join(u'|'));
        return out;
    }

private Q_SLOTS:
    // Whatever a function left open, also when it failed half-way, goes
    // before the next one starts.
    void cleanup() { testkit::closeAllWindows(); }

    // Typing and keys: Enter adds, Tab goes round the three fields, "+"
    // steps the count, a letter in the count beeps; a selected row edits.
    void keyboardEntry()
    {
        Session s;
        auto *screen = new InventoryScrn;
        QVERIFY(testkit::showActive(screen));
        QCOMPARE(App::instance()->BUTimer->mode(), myTimerClass::ModeMultiple);
        QCOMPARE(testkit::child<QComboBox>(screen, "selTeamPop")->currentText(), QStringLiteral("O'Brien's Nine"));
        QCOMPARE(testkit::child<QComboBox>(screen, "selPlayerPop")->itemText(0), QStringLiteral("Select A Player"));
        QVERIFY(!testkit::child<QPushButton>(screen, "addBtn")->isEnabled());

        // Quantity, item, number.
        const std::array<QLineEdit *, 3> inputFld = {testkit::child<QLineEdit>(screen, "inputFld0"),
                                                     testkit::child<QLineEdit>(screen, "inputFld1"),
                                                     testkit::child<QLineEdit>(screen, "inputFld2")};
        typeInto(inputFld[0], QStringLiteral("3x+"));
        QCOMPARE(inputFld[0]->text(), QStringLiteral("4"));
        QCOMPARE(s.fake.beeper.beeps, 1);
        QTest::keyClick(inputFld[0], Qt::Key_Tab);
        QVERIFY(inputFld[1]->hasFocus());
        QTest::keyClicks(inputFld[1], QStringLiteral("Helmet"));
        QTest::keyClick(inputFld[1], Qt::Key_Tab);
        QTest::keyClicks(inputFld[2], QStringLiteral("H-1"));
        QTest::keyClick(inputFld[2], Qt::Key_Tab);
        QVERIFY(inputFld[0]->hasFocus());
        QTest::keyClick(inputFld[0], Qt::Key_Return);
        QCOMPARE(rows(testkit::child<qlmListBox>(screen, "teamInvList")), QStringList{QStringLiteral("4|Helmet|H-1")});
        QVERIFY(inputFld[1]->text().isEmpty());

        // Enter with no count adds one; the plus button adds only with a count.
        typeInto(inputFld[1], QStringLiteral("Glove"));
        QTest::keyClick(inputFld[1], Qt::Key_Return);
        QCOMPARE(rows(testkit::child<qlmListBox>(screen, "teamInvList")).last(), QStringLiteral("1|Glove|"));
        testkit::child<qlmListBox>(screen, "teamInvList")->setSelectedRow(1);
        testkit::clickHalf(testkit::child<PlusMinusContainer>(screen, "TeamInvPlusMinus"), false);
        typeInto(inputFld[1], QStringLiteral("Bat"));
        testkit::clickHalf(testkit::child<PlusMinusContainer>(screen, "TeamInvPlusMinus"), true);
        QCOMPARE(testkit::child<qlmListBox>(screen, "teamInvList")->rowCount(), 1);
        typeInto(inputFld[0], QStringLiteral("0"));
        testkit::clickHalf(testkit::child<PlusMinusContainer>(screen, "TeamInvPlusMinus"), true);
        QCOMPARE(rows(testkit::child<qlmListBox>(screen, "teamInvList")).last(), QStringLiteral("1|Bat|"));

        // A selected row fills the fields; Enter saves it over.
        testkit::child<qlmListBox>(screen, "teamInvList")->setSelectedRow(0);
        QCOMPARE(inputFld[1]->text(), QStringLiteral("Helmet"));
        QTest::keyClick(inputFld[0], Qt::Key_Minus);
        QTest::keyClick(inputFld[0], Qt::Key_Enter);
        QCOMPARE(rows(testkit::child<qlmListBox>(screen, "teamInvList")).first(), QStringLiteral("3|Helmet|H-1"));
        QCOMPARE(testkit::child<qlmListBox>(screen, "teamInvList")->selectedRow(), -1);

        // A unit to Bo and back, then the minus button removes the bats.
        testkit::choose(testkit::child<QComboBox>(screen, "selPlayerPop"), QStringLiteral("Bo Ames"));
        QVERIFY(testkit::child<QPushButton>(screen, "addBtn")->isEnabled());
        testkit::child<qlmListBox>(screen, "teamInvList")->setSelectedRow(0);
        QTest::mouseClick(testkit::child<QPushButton>(screen, "addBtn"), Qt::LeftButton);
        QCOMPARE(rows(testkit::child<qlmListBox>(screen, "IndivList")), QStringList{QStringLiteral("Helmet|H-1")});
        QCOMPARE(rows(testkit::child<qlmListBox>(screen, "teamInvList")).first(), QStringLiteral("2|Helmet|H-1"));
        QVERIFY(!testkit::child<QPushButton>(screen, "RemoveBtn")->isEnabled());
        testkit::child<qlmListBox>(screen, "IndivList")->setSelectedRow(0);
        QTest::mouseClick(testkit::child<QPushButton>(screen, "RemoveBtn"), Qt::LeftButton);
        QVERIFY(rows(testkit::child<qlmListBox>(screen, "IndivList")).isEmpty());
        QCOMPARE(rows(testkit::child<qlmListBox>(screen, "teamInvList")).first(), QStringLiteral("3|Helmet|H-1"));
        testkit::child<qlmListBox>(screen, "teamInvList")->setSelectedRow(1);
        testkit::clickHalf(testkit::child<PlusMinusContainer>(screen, "TeamInvPlusMinus"), false);
        QCOMPARE(rows(testkit::child<qlmListBox>(screen, "teamInvList")), QStringList{QStringLiteral("3|Helmet|H-1")});

        screen->close();
        QCOMPARE(App::instance()->BUTimer->mode(), myTimerClass::ModeOff);
    }

    // The exported list read back gives the same pool again; the title and
    // heading lines of the export are passed over.
    void importAnExportedFile()
    {
        Session s;
        auto *screen = new InventoryScrn;
        QVERIFY(testkit::showActive(screen));
        const QStringList pool{QStringLiteral("12|Baseballs|"), QStringLiteral("1|Catcher's mask|C #2"),
                               QStringLiteral("-1|Rosin & tar|R?%")};
        for (const QString &row : pool) {
            const QStringList f = row.split(u'|');
            QVERIFY(screen->book().enterItem(-1, f[0], f[1], f[2]));
        }
        screen->loadTeamList();
        QCOMPARE(rows(testkit::child<qlmListBox>(screen, "teamInvList")), pool);

        const QString file = s.home.filePath(QStringLiteral("stock.txt"));
        s.fake.files.answers.enqueue(file);
        screen->menus()->item(QStringLiteral("FileExport"))->trigger();
        QVERIFY(QFile::exists(file));

        // Into the other team, through the File menu's import.
        testkit::choose(testkit::child<QComboBox>(screen, "selTeamPop"), QStringLiteral("East Bears"));
        QVERIFY(rows(testkit::child<qlmListBox>(screen, "teamInvList")).isEmpty());
        s.fake.files.answers.enqueue(file);
        auto *import = screen->menus()->findChild<QAction *>(QStringLiteral("FileImport"));
        QVERIFY(import);
        import->trigger();
        QCOMPARE(s.fake.files.calls.last().request.title, QStringLiteral("Select a text file to import"));
        QCOMPARE(rows(testkit::child<qlmListBox>(screen, "teamInvList")), pool);
        QVERIFY(s.fake.messages.shown.isEmpty());

        // A file that isn't text is ignored.
        const QString picture = fakes::writePicture(s.home.filePath(QStringLiteral("p.png")), {4, 4}, Qt::red);
        s.fake.files.answers.enqueue(picture);
        import->trigger();
        QCOMPARE(testkit::child<qlmListBox>(screen, "teamInvList")->rowCount(), 3);
        QVERIFY(s.fake.messages.shown.isEmpty());
    }

    // Both lists print under their owner's name.
    void printing()
    {
        Session s;
        auto *screen = new InventoryScrn;
        QVERIFY(testkit::showActive(screen));
        QVERIFY(screen->book().enterItem(-1, QStringLiteral("2"), QStringLiteral("Glove"), QStringLiteral("G9")));
        screen->loadTeamList();
        testkit::choose(testkit::child<QComboBox>(screen, "selPlayerPop"), QStringLiteral("Ann Ames"));
        testkit::child<qlmListBox>(screen, "teamInvList")->setSelectedRow(0);
        QTest::mouseClick(testkit::child<QPushButton>(screen, "addBtn"), Qt::LeftButton);
        QTest::mouseClick(testkit::child<QPushButton>(screen, "printTeamInvBtn"), Qt::LeftButton);
        QTest::mouseClick(testkit::child<QPushButton>(screen, "printPlayerInvBtn"), Qt::LeftButton);
        QCOMPARE(s.fake.printing.printed.size(), 2);
        const QString team = fakes::pdfText(s.fake.printing.printed.at(0));
        QVERIFY2(team.contains(QStringLiteral("O'Brien's Nine's Inventory")) && team.contains(QStringLiteral("Glove")),
                 qPrintable(team));
        QVERIFY(fakes::pdfText(s.fake.printing.printed.at(1)).contains(QStringLiteral("Ann Ames's Inventory")));
    }
};

QTEST_MAIN(TestInventoryScrn)
#include "tst_inventoryScrn.moc"
