// The season-care windows driven as the coach drives them: the new-season
// sheet from the start screen, backups by the menu and the timer, a
// restore, the preference screen saved and read back from the file, and the
// user-defined names at the next start.

#include "Screens.h"
#include "SeasonFixture.h"
#include "app/myDictionaries.h"
#include "app/ui/MainMenuBar.h"
#include "app/ui/ScreenDirectory.h"
#include "app/ui/startScrn1.h"
#include "fakes/TestKit.h"
#include "reports/ui/qlmListBox.h"
#include "seasondata/SeasonBackup.h"
#include "seasondata/ui/TransferDataScrn.h"
#include "seasondata/ui/UDVStatsScrn.h"
#include "seasondata/ui/backUpDlog.h"
#include "seasondata/ui/prefScrn.h"
#include "stats/PitchRules.h"
#include "support/ui/PlusMinusContainer.h"
#include "support/ui/qlmCheckBox.h"

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QWidget>

using testkit::choose;
using testkit::clickHalf;

namespace {

// A session with the windows of the program registered and the start screen up.
struct Session : SeasonFixture
{
    QPointer<startScrn1> start;
    Session()
    {
        connectProgram(*app);
        start = startScrn1::showStartScreen();
    }
    ~Session() { closeAll(); }

    static void closeAll()
    {
        for (QWidget *w : QApplication::topLevelWidgets()) {
            if (auto *dialog = qobject_cast<backUpDlog *>(w); dialog && dialog->isWorking())
                QTRY_VERIFY(!dialog->isWorking());
        }
        QApplication::closeAllWindows();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    template<class W>
    static W *window(const QString &name)
    {
        for (QWidget *w : QApplication::topLevelWidgets()) {
            if (w->objectName() == name && w->isVisible())
                return qobject_cast<W *>(w);
        }
        return nullptr;
    }
    QString chosenDrive()
    {
        const QString drive = home.filePath(QStringLiteral("drive"));
        QDir().mkpath(drive + QStringLiteral("/TLYN2_backup"));
        return drive;
    }
    // Leaves free pages in the season, which a compaction takes away.
    void leaveFreePages()
    {
        gData->runInTransaction([] {
            for (int i = 0; i < 100; ++i)
                gData->insert(QStringLiteral("Coaches"), {{QStringLiteral("Last"), QString(1000, u'z')}});
        });
        gData->exec(QStringLiteral("DELETE FROM Coaches"));
    }
    prefScrn *openPrefs()
    {
        QTest::mouseClick(start->findChild<QPushButton *>(QStringLiteral("prefBtn")), Qt::LeftButton);
        auto *screen = window<prefScrn>(QStringLiteral("prefScrn"));
        if (screen)
            testkit::showActive(screen);
        return screen;
    }
};

void typeInCell(qlmListBox *list, const QString &text, Qt::Key then)
{
    list->setEditorText(text);
    QTest::keyClick(QApplication::focusWidget(), then);
}

// A preference as the file gives it back; the lists' two halves joined by "|".
QString field(const myPrefs &p, const QString &name)
{
    const auto flag = [](bool on) { return on ? QStringLiteral("1") : QStringLiteral("0"); };
    if (name == u"prLogoOnStart")
        return flag(p.prLogoOnStart);
    if (name == u"prLogoOnReport")
        return flag(p.prLogoOnReport);
    if (name == u"prInnings")
        return p.prInnings;
    if (name == u"prLineUp")
        return p.prLineUp;
    if (name == u"prHomeTeam")
        return p.prHomeTeam;
    if (name == u"prBackupFreq")
        return QString::number(p.prBackupFreq);
    if (name == u"positions")
        return p.prAbbrevPos + u'|' + p.prPositions;
    if (name == u"prGameTypes")
        return p.prGameTypes;
    if (name == u"prDataBackupLoc")
        return parseGSI(p.prDataBackupLoc);
    if (name == u"user-defined")
        return p.prUDB.section(u'\t', 0, 1) + u'\t' + p.prUDF.section(u'\t', 5, 5);
    return QStringLiteral("no field ") + name;
}

} // namespace

class TestSeasonDataUi : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Whatever a function left open, also when it failed half-way, goes
    // before the next one starts.
    void cleanup() { testkit::closeAllWindows(); }

    void initTestCase()
    {
        screens::registerScreen(ScreenId::TransferDataScrn, [] { return new TransferDataScrn; });
        screens::registerScreen(ScreenId::backUpDlog, [] { return new backUpDlog(backUpDlog::Mode::Backup); });
        screens::registerScreen(ScreenId::restoreDlog, [] { return new backUpDlog(backUpDlog::Mode::Restore); });
        screens::registerScreen(ScreenId::prefScrn, screens::Factory([](const QVariant &fromStart) {
                                    return new prefScrn(!fromStart.isValid() || fromStart.toBool());
                                }));
    }

    void newSeasonSheet()
    {
        Session f;
        const qint64 lions = f.addTeam(QStringLiteral("Lincoln"), QStringLiteral("Lions"));
        f.addTeam(QStringLiteral("Central"), QStringLiteral("Cubs"));
        const qint64 owls = f.addTeam(QStringLiteral("O'Brien's"), QStringLiteral("Owls"));
        gData->insert(QStringLiteral("TeamInventory"), {{QStringLiteral("teamID"), QString::number(lions)}});

        QTest::mouseClick(f.start->findChild<QPushButton *>(QStringLiteral("newSeasonBtn")), Qt::LeftButton);
        QPointer<TransferDataScrn> sheet = f.start->findChild<TransferDataScrn *>();
        QVERIFY(sheet && sheet->isVisible());
        QCOMPARE(sheet->windowModality(), Qt::WindowModal);
        QCOMPARE(testkit::child<qlmListBox>(sheet, "fromLB")->rowCount(), 3);
        QCOMPARE(testkit::child<qlmListBox>(sheet, "fromLB")->cell(2, 0), QStringLiteral("O'Brien's Owls"));

        // The lists slide in and out over a quarter second.
        const int small = sheet->height();
        QTest::mouseClick(testkit::child<QRadioButton>(sheet, "newActionBtn1"), Qt::LeftButton);
        QVERIFY(!testkit::child<QPushButton>(sheet, "createBtn")->isVisible());
        QTRY_COMPARE(sheet->height(), small + TransferDataScrn::kListsHeight);
        QTest::mouseClick(testkit::child<QRadioButton>(sheet, "newActionBtn0"), Qt::LeftButton);
        QTRY_COMPARE(sheet->height(), small);
        QTRY_VERIFY(!testkit::child<QWidget>(sheet, "teamArea")->isVisible());
        // A screen reader's action on the box shows the lists as a click does.
        QAccessibleInterface *box = QAccessible::queryAccessibleInterface(
            testkit::child<QRadioButton>(sheet, "newActionBtn1"));
        QVERIFY(box && box->actionInterface());
        const QStringList actions = box->actionInterface()->actionNames();
        box->actionInterface()->doAction(actions.contains(QAccessibleActionInterface::toggleAction())
                                             ? QAccessibleActionInterface::toggleAction()
                                             : QAccessibleActionInterface::pressAction());
        QVERIFY(testkit::child<QRadioButton>(sheet, "newActionBtn1")->isChecked());
        QTRY_COMPARE(sheet->height(), small + TransferDataScrn::kListsHeight);
        QVERIFY(testkit::child<QWidget>(sheet, "teamArea")->isVisible());

        QTest::mouseClick(testkit::child<QPushButton>(sheet, "TransferBtn"), Qt::LeftButton);
        QCOMPARE(f.fake.messages.texts(), QStringList{QStringLiteral("Please add teams for transferring")});

        QVERIFY(!testkit::child<QPushButton>(sheet, "addBtn")->isEnabled());
        testkit::child<qlmListBox>(sheet, "fromLB")->setSelectedRow(0);
        QVERIFY(testkit::child<QPushButton>(sheet, "addBtn")->isEnabled());
        QTest::mouseClick(testkit::child<QPushButton>(sheet, "addBtn"), Qt::LeftButton);
        QTest::mouseClick(testkit::child<QPushButton>(sheet, "addAllBtn"), Qt::LeftButton);
        QCOMPARE(testkit::child<qlmListBox>(sheet, "fromLB")->rowCount(), 0);
        testkit::child<qlmListBox>(sheet, "toLB")->setSelectedRow(1);
        QTest::mouseClick(testkit::child<QPushButton>(sheet, "removeBtn"), Qt::LeftButton);
        QCOMPARE(testkit::child<qlmListBox>(sheet, "fromLB")->rowCount(), 1);
        QCOMPARE(testkit::child<qlmListBox>(sheet, "fromLB")->cell(0, 0), QStringLiteral("Central Cubs"));
        QCOMPARE(testkit::child<qlmListBox>(sheet, "toLB")->rowTag(1), QString::number(owls));

        testkit::typeInto(testkit::child<QLineEdit>(sheet, "newNameFld"), QStringLiteral("2027"));
        QTest::mouseClick(testkit::child<qlmCheckBox>(sheet, "transInvCheck"), Qt::LeftButton);
        f.fake.messages.clear();
        QTest::mouseClick(testkit::child<QPushButton>(sheet, "TransferBtn"), Qt::LeftButton);
        QCOMPARE(f.fake.messages.texts(), QStringList{QStringLiteral("The transfer was successful")});
        QCOMPARE(f.count(QStringLiteral("Teams")), 2);
        QCOMPARE(f.count(QStringLiteral("TeamInventory")), 1);
        QCOMPARE(testkit::child<QPushButton>(sheet, "TransferBtn")->text(), QStringLiteral("Close"));
        QVERIFY(!testkit::child<QPushButton>(sheet, "addAllBtn")->isEnabled());

        QTest::mouseClick(testkit::child<QPushButton>(sheet, "TransferBtn"), Qt::LeftButton);
        QTRY_VERIFY(!sheet);
        QCOMPARE(testkit::child<QComboBox>(f.start, "SelectSeasonPop")->currentText(), QStringLiteral("2027"));
    }

    void emptySeasonSheet_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("before"); // "" , "exists": the season has a file, "damaged": the open one is
        QTest::addColumn<int>("answer");     // to "exists already", -1 none asked
        QTest::addColumn<QString>("message");
        QTest::addColumn<bool>("made");

        QTest::newRow("a new name") << "Fall Ball"
                                    << "" << -1 << "" << true;
        QTest::newRow("a new name, leaving a damaged season") << "Fall Ball"
                                                              << "damaged" << -1 << "" << true;
        QTest::newRow("an existing season, opened on the coach's word")
            << "Fall Ball"
            << "exists" << int(platform::MsgAction) << "The season Fall Ball exists already." << true;
        QTest::newRow("an existing season, the coach declines")
            << "Fall Ball"
            << "exists" << int(platform::MsgCancel) << "The season Fall Ball exists already." << false;
        QTest::newRow("a name too long to name a file")
            << QString(240, u'x') << "" << -1 << "The season's name is too long to name a file." << false;
    }
    void emptySeasonSheet()
    {
        QFETCH(QString, name);
        QFETCH(QString, before);
        QFETCH(int, answer);
        QFETCH(QString, message);
        QFETCH(bool, made);

        // Only so that the start screen shows whether it would open.
        screens::registerScreen(ScreenId::teamScrn, [] { return new QWidget; });
        Session f;
        f.fake.messages.strict = true;
        const QString first = gPrefs->prSeason;
        if (before == u"exists") {
            myDB other(f.dataFolder(), name);
            other.insert(QStringLiteral("Teams"), {{QStringLiteral("TeamName"), QStringLiteral("Rivals")}});
        }
        if (before == u"damaged") {
            QFile junk(f.seasonFile(QStringLiteral("Broken")));
            QVERIFY(junk.open(QIODevice::WriteOnly));
            junk.write(QByteArray("SQLite format 3") + QByteArray(4096, '\x5a'));
            junk.close();
            f.start->setPopupList();
            testkit::child<QComboBox>(f.start, "SelectSeasonPop")
                ->setCurrentIndex(
                    testkit::child<QComboBox>(f.start, "SelectSeasonPop")->findText(QStringLiteral("Broken")));
            QVERIFY(testkit::child<QLabel>(f.start, "seasonProblemLabel")->isVisibleTo(f.start));
            QVERIFY(!f.start->findChild<QPushButton *>(QStringLiteral("teamScrnBtn"))->isEnabled());
            f.fake.messages.clear();
        }
        const QString previous = gPrefs->prSeason;
        QTest::mouseClick(f.start->findChild<QPushButton *>(QStringLiteral("newSeasonBtn")), Qt::LeftButton);
        QPointer<TransferDataScrn> sheet = f.start->findChild<TransferDataScrn *>();
        QVERIFY(sheet);
        if (before.isEmpty() && made) {
            QTest::mouseClick(testkit::child<QPushButton>(sheet, "createBtn"), Qt::LeftButton);
            QCOMPARE(f.fake.messages.texts(), QStringList{QStringLiteral("Please provide a name for the new season.")});
            QVERIFY(sheet->isVisible());
            f.fake.messages.clear();
        }
        testkit::typeInto(testkit::child<QLineEdit>(sheet, "newNameFld"), name);
        if (answer >= 0)
            f.fake.messages.answers.enqueue(std::uint8_t(answer));
        QTest::mouseClick(testkit::child<QPushButton>(sheet, "createBtn"), Qt::LeftButton);
        QCOMPARE(f.fake.messages.texts(), message.isEmpty() ? QStringList() : QStringList{message});
        if (!made) {
            QVERIFY(sheet->isVisible());
            QCOMPARE(gPrefs->prSeason, previous);
            sheet->close();
            f.restart();
            QCOMPARE(gPrefs->prSeason, first);
            return;
        }
        QTRY_VERIFY(!sheet);
        QCOMPARE(gPrefs->prSeason, name);
        QVERIFY(QFileInfo::exists(f.seasonFile(name)));
        QCOMPARE(testkit::child<QComboBox>(f.start, "SelectSeasonPop")->currentText(), name);
        // The start screen shows the season now open, whatever it showed before.
        QVERIFY(!testkit::child<QLabel>(f.start, "seasonProblemLabel")->isVisibleTo(f.start));
        QVERIFY(f.start->findChild<QPushButton *>(QStringLiteral("teamScrnBtn"))->isEnabled());
        QCOMPARE(f.count(QStringLiteral("Teams")), before == u"exists" ? 1 : 0);
        f.restart();
        QCOMPARE(gPrefs->prSeason, name);
    }

    // The season on show chosen again in the popup is read again: a file
    // mended meanwhile opens, and the screens that write open with it.
    void sameSeasonChosenAgainIsReadAgain()
    {
        screens::registerScreen(ScreenId::teamScrn, [] { return new QWidget; });
        Session f;
        const QString broken = f.seasonFile(QStringLiteral("Broken"));
        QVERIFY(QFile::copy(f.seasonFile(gPrefs->prSeason), broken + QStringLiteral(".good")));
        QFile junk(broken);
        QVERIFY(junk.open(QIODevice::WriteOnly));
        junk.write(QByteArray("SQLite format 3") + QByteArray(4096, '\x5a'));
        junk.close();
        f.start->setPopupList();
        const int row = testkit::child<QComboBox>(f.start, "SelectSeasonPop")->findText(QStringLiteral("Broken"));
        testkit::child<QComboBox>(f.start, "SelectSeasonPop")->setCurrentIndex(row);
        QVERIFY(testkit::child<QLabel>(f.start, "seasonProblemLabel")->isVisibleTo(f.start));
        QVERIFY(QFile::remove(broken));
        QVERIFY(QFile::rename(broken + QStringLiteral(".good"), broken));
        QTest::qWait(1);
        Q_EMIT testkit::child<QComboBox>(f.start, "SelectSeasonPop")->activated(row);
        QVERIFY(!testkit::child<QLabel>(f.start, "seasonProblemLabel")->isVisibleTo(f.start));
        QVERIFY(f.start->findChild<QPushButton *>(QStringLiteral("teamScrnBtn"))->isEnabled());
    }

    void backupDialog_data()
    {
        QTest::addColumn<QString>("location"); // "drive", "removed", "none", "ask"
        QTest::addColumn<int>("daysSinceCompaction");
        QTest::addColumn<QString>("status");
        QTest::addColumn<QString>("detail");
        QTest::addColumn<bool>("copied");
        QTest::addColumn<bool>("compacted");
        QTest::addColumn<bool>("held"); // another program reads the season meanwhile

        QTest::newRow("a backup") << "drive" << 0 << "Backup was successful"
                                  << "" << true << false << false;
        QTest::newRow("compaction not yet due at 14 days") << "drive" << 14 << "Backup was successful"
                                                           << "" << true << false << false;
        QTest::newRow("compaction due after 14 days") << "drive" << 15 << "Backup was successful"
                                                      << "" << true << true << false;
        QTest::newRow("compaction fails: still due")
            << "drive" << 15 << "The backup was made, but the database could not be cleaned up."
            << "It is tried again after the next backup. database is locked" << true << false << true;
        QTest::newRow("backup drive removed") << "removed" << 0 << "Destination not found"
                                              << "Set in the Preferences screen." << false << false << false;
        QTest::newRow("no location, the coach picks one") << "ask" << 0 << "Backup was successful"
                                                          << "" << true << false << false;
        QTest::newRow("no location, the coach cancels") << "none" << 0 << ""
                                                        << "" << false << false << false;
    }

    void backupDialog()
    {
        QFETCH(QString, location);
        QFETCH(int, daysSinceCompaction);
        QFETCH(QString, status);
        QFETCH(QString, detail);
        QFETCH(bool, copied);
        QFETCH(bool, compacted);
        QFETCH(bool, held);

        Session f;
        f.leaveFreePages();
        // A reader in another program: the copy can go on, the compaction can't.
        std::unique_ptr<SQLite::Database> reader;
        std::unique_ptr<SQLite::Statement> reading;
        if (held) {
            reader = std::make_unique<SQLite::Database>(gData->filePath().toStdString(), SQLite::OPEN_READONLY);
            reader->exec("BEGIN");
            reading = std::make_unique<SQLite::Statement>(*reader, "SELECT COUNT(*) FROM Teams");
            QVERIFY(reading->executeStep());
        }
        const QString drive = f.chosenDrive();
        if (location == u"drive")
            gPrefs->prDataBackupLoc = createGSI(drive);
        if (location == u"removed")
            gPrefs->prDataBackupLoc = createGSI(f.home.filePath(QStringLiteral("unplugged")));
        if (location == u"ask")
            f.fake.files.answers.enqueue(drive);
        const double now = double(f.fake.clock.time.toSecsSinceEpoch());
        // "15" stands for one second past the 14 days.
        gPrefs->prLastDBClean = daysSinceCompaction == 15 ? now - 14 * 86400.0 - 1
                                                          : now - daysSinceCompaction * 86400.0;

        const double lastClean = gPrefs->prLastDBClean;
        QAction *item = f.start->menuBar()->item(QStringLiteral("FileBackup"));
        QVERIFY(item->isEnabled());
        item->trigger();
        QPointer<backUpDlog> dialog = Session::window<backUpDlog>(QStringLiteral("backUpDlog"));
        QVERIFY(dialog);
        QCOMPARE(dialog->windowModality(), Qt::ApplicationModal);
        if (location == u"none") {
            QTRY_VERIFY(!dialog);
            QVERIFY(
                !QDir(drive + QStringLiteral("/TLYN2_backup")).exists(seasondata::dateFolderName(QDate(2026, 4, 15))));
            return;
        }
        if (compacted)
            QTRY_COMPARE(testkit::child<QLabel>(dialog, "statusLbl")->text(),
                         QStringLiteral("Cleaning up the database..."));
        QTRY_VERIFY_WITH_TIMEOUT(testkit::child<QPushButton>(dialog, "CloseBtn")->isVisible(), 10000);
        reading.reset();
        reader.reset();
        QCOMPARE(testkit::child<QLabel>(dialog, "statusLbl")->text(), status);
        QCOMPARE(testkit::child<QLabel>(dialog, "detailLbl")->text(), detail);
        QVERIFY(testkit::child<QPushButton>(dialog, "CloseBtn")->isVisible());

        const QString copy = drive + QStringLiteral("/TLYN2_backup/") +
                             seasondata::dateFolderName(f.fake.clock.time.date()) + u'/' +
                             myDB::getCurDBFileName(gPrefs->prSeason);
        QCOMPARE(QFileInfo::exists(copy), copied);
        QCOMPARE(gData->scalar(QStringLiteral("PRAGMA freelist_count")).toInt() == 0, compacted);
        QCOMPARE(gPrefs->prLastDBClean != lastClean, compacted);
        if (compacted)
            QCOMPARE(gPrefs->prLastDBClean, now);
        if (copied)
            QCOMPARE(seasondata::isSoundSeasonFile(copy), true);
    }

    static int backupWindows()
    {
        int n = 0;
        for (QWidget *w : QApplication::topLevelWidgets())
            n += w->objectName() == u"backUpDlog" && w->isVisible();
        return n;
    }

    // The program's own wiring: one window per due tick, and none while
    // one is still up.
    void timerOpensTheBackup()
    {
        Session f;
        gPrefs->prDataBackupLoc = createGSI(f.chosenDrive());
        gPrefs->prBackupFreq = 5;
        for (int minute = 1; minute < 5; ++minute)
            f.app->BUTimer->Event_Action();
        QCOMPARE(backupWindows(), 0);
        f.app->BUTimer->Event_Action();
        QCOMPARE(backupWindows(), 1);
        QPointer<backUpDlog> dialog = Session::window<backUpDlog>(QStringLiteral("backUpDlog"));
        QTRY_COMPARE(testkit::child<QLabel>(dialog, "statusLbl")->text(), QStringLiteral("Backup was successful"));
        for (int minute = 0; minute < 5; ++minute)
            f.app->BUTimer->Event_Action();
        QCOMPARE(backupWindows(), 1);
        QTRY_COMPARE(testkit::child<QLabel>(dialog, "detailLbl")->text(), QStringLiteral("Closing in 5 secs."));
        QTRY_VERIFY_WITH_TIMEOUT(!dialog, 8000);
        const QString copy = f.chosenDrive() + QStringLiteral("/TLYN2_backup/") +
                             seasondata::dateFolderName(f.fake.clock.time.date()) + u'/' +
                             myDB::getCurDBFileName(gPrefs->prSeason);
        QVERIFY(seasondata::isSoundSeasonFile(copy));
    }

    void restoreByMenu_data()
    {
        QTest::addColumn<int>("answer");
        QTest::addColumn<bool>("sound");
        QTest::addColumn<QString>("status");
        QTest::newRow("the coach restores") << int(platform::MsgAction) << true << "The season was restored.";
        QTest::newRow("the coach cancels") << int(platform::MsgCancel) << true << "";
        QTest::newRow("a file that isn't a season")
            << int(platform::MsgAction) << false << "The season could not be restored.";
    }
    void restoreByMenu()
    {
        QFETCH(int, answer);
        QFETCH(bool, sound);
        QFETCH(QString, status);
        Session f;
        f.addTeam(QStringLiteral("Lincoln"), QStringLiteral("Lions"));
        const QString backup = f.home.filePath(QStringLiteral("tlData_old.sqlite"));
        // A backup from before the indexes: a restore adds them back.
        QVERIFY(gData->exec(QStringLiteral("DROP INDEX idx_Games_schedID")));
        seasondata::BackupJob job(gData->tlynData->getHandle(), backup);
        QVERIFY(job.runToEnd());
        if (!sound)
            QFile::resize(backup, 3000);
        const QStringList backedUp = f.dump(*gData, QStringLiteral("Teams"));
        f.addTeam(QStringLiteral("Central"), QStringLiteral("Cubs"));
        const QStringList later = f.dump(*gData, QStringLiteral("Teams"));

        f.fake.files.answers.enqueue(backup);
        f.fake.messages.answers.enqueue(std::uint8_t(answer));
        QAction *item = f.start->menuBar()->item(QStringLiteral("FileRestore"));
        QVERIFY(item->isEnabled());
        item->trigger();
        QTRY_COMPARE(f.fake.messages.shown.size(), 1);
        QVERIFY(f.fake.messages.shown.first().message.startsWith(QStringLiteral("Replace the season ")));
        QPointer<backUpDlog> dialog = Session::window<backUpDlog>(QStringLiteral("restoreDlog"));
        if (status.isEmpty())
            QTRY_VERIFY(!dialog);
        else
            QTRY_COMPARE(testkit::child<QLabel>(dialog, "statusLbl")->text(), status);
        const bool restored = status == u"The season was restored.";
        QCOMPARE(f.dump(*gData, QStringLiteral("Teams")), restored ? backedUp : later);
        QCOMPARE(gData->scalar(QStringLiteral("SELECT COUNT(*) FROM sqlite_master WHERE name = 'idx_Games_schedID'"))
                     .toInt(),
                 restored ? 1 : 0);
        // The season as it stood is kept first, and only when it is replaced.
        const QStringList kept = QDir(f.dataFolder()).entryList({QStringLiteral("*.kept")}, QDir::Files);
        QCOMPARE(kept.size(), restored ? 1 : 0);
        if (restored) {
            SQLite::Database copy(QDir(f.dataFolder()).filePath(kept.first()).toStdString(), SQLite::OPEN_READONLY);
            QCOMPARE(copy.execAndGet("SELECT COUNT(*) FROM Teams").getInt(), int(later.size()));
        }
        // No journal is left beside the season, and it deletes its journals
        // again.
        QCOMPARE(QDir(f.dataFolder()).entryList({QStringLiteral("*-journal*")}, QDir::Files | QDir::Hidden),
                 QStringList{});
        QCOMPARE(gData->scalar(QStringLiteral("PRAGMA journal_mode")).toString(), QStringLiteral("delete"));
        // The restored season is what the program opens next time.
        f.restart();
        QCOMPARE(f.dump(*gData, QStringLiteral("Teams")), restored ? backedUp : later);
    }

    void preferencesSavedAndReadBack_data()
    {
        QTest::addColumn<QString>("stored"); // "field=value" put in the preferences first
        QTest::addColumn<QString>("control");
        QTest::addColumn<QString>("input"); // a row's text; list rows "cell|cell", several by "/"
        QTest::addColumn<QString>("field");
        QTest::addColumn<QString>("expected"); // {a} {p} {g}: the stored lists before; {drive}

        QTest::newRow("LogoOnStartCheck") << ""
                                          << "LogoOnStartCheck"
                                          << "click"
                                          << "prLogoOnStart"
                                          << "0";
        QTest::newRow("LogoOnReportsCheck by Space") << ""
                                                     << "LogoOnReportsCheck"
                                                     << "space"
                                                     << "prLogoOnReport"
                                                     << "0";
        QTest::newRow("InnPerGamePop") << ""
                                       << "InnPerGamePop"
                                       << "7 Innings"
                                       << "prInnings"
                                       << "7 Innings";
        QTest::newRow("maxLineupPop") << ""
                                      << "maxLineupPop"
                                      << "15 Players"
                                      << "prLineUp"
                                      << "15 Players";
        QTest::newRow("homeTeamPop") << ""
                                     << "homeTeamPop"
                                     << "Central Cubs"
                                     << "prHomeTeam"
                                     << "2";
        QTest::newRow("backupPop") << ""
                                   << "backupPop"
                                   << "30 min."
                                   << "prBackupFreq"
                                   << "30";
        QTest::newRow("backupPop, 7 isn't offered") << "prBackupFreq=7"
                                                    << "backupPop"
                                                    << ""
                                                    << "prBackupFreq"
                                                    << "0";
        QTest::newRow("PositionLB, typed commas go") << ""
                                                     << "PositionLB"
                                                     << "D,H2|Designated, Hitter"
                                                     << "positions"
                                                     << "{a},DH2|{p},Designated Hitter";
        QTest::newRow("PositionLB, a row removed") << "prAbbrevPos=C,SS"
                                                   << "PositionLB"
                                                   << "-"
                                                   << "positions"
                                                   << "SS|Shortstop";
        QTest::newRow("PositionLB, lists of different lengths") << "prPositions=Pitcher"
                                                                << "PositionLB"
                                                                << ""
                                                                << "positions"
                                                                << "{a}|Pitcher,,,,,,,,,,,,,,,,";
        QTest::newRow("gameTypeLB, a typed and an empty row") << ""
                                                              << "gameTypeLB"
                                                              << "Scrim,mage/"
                                                              << "prGameTypes"
                                                              << "{g},Scrimmage,";
        QTest::newRow("setBULocBtn") << ""
                                     << "setBULocBtn"
                                     << ""
                                     << "prDataBackupLoc"
                                     << "{drive}";
        QTest::newRow("setUDVBtn") << ""
                                   << "setUDVBtn"
                                   << "\tDiving\tcatches"
                                   << "user-defined"
                                   << "--\tCaught Stealing\tDiving catches";
    }
    void preferencesSavedAndReadBack()
    {
        QFETCH(QString, stored);
        QFETCH(QString, control);
        QFETCH(QString, input);
        QFETCH(QString, field);
        QFETCH(QString, expected);
        Session f;
        f.addTeam(QStringLiteral("Lincoln"), QStringLiteral("Lions"));
        f.addTeam(QStringLiteral("Central"), QStringLiteral("Cubs"));
        if (stored.startsWith(u"prBackupFreq"))
            gPrefs->prBackupFreq = stored.section(u'=', 1).toInt();
        if (stored.startsWith(u"prAbbrevPos")) {
            gPrefs->prAbbrevPos = stored.section(u'=', 1);
            gPrefs->prPositions = QStringLiteral("Catcher,Shortstop");
        }
        if (stored.startsWith(u"prPositions"))
            gPrefs->prPositions = stored.section(u'=', 1);
        const QString drive = f.home.filePath(QStringLiteral("stick"));
        expected.replace(QStringLiteral("{a}"), gPrefs->prAbbrevPos)
            .replace(QStringLiteral("{p}"), gPrefs->prPositions)
            .replace(QStringLiteral("{g}"), gPrefs->prGameTypes)
            .replace(QStringLiteral("{drive}"), drive);
        QPointer<prefScrn> screen = f.openPrefs();
        QVERIFY(screen);
        QTRY_VERIFY(!f.start);

        QWidget *w = screen->findChild<QWidget *>(control);
        if (auto *box = qobject_cast<QComboBox *>(w); box && !input.isEmpty()) {
            QVERIFY(choose(box, input));
        } else if (auto *check = qobject_cast<qlmCheckBox *>(w)) {
            check->setFocus();
            input == u"click" ? QTest::mouseClick(check, Qt::LeftButton) : QTest::keyClick(check, Qt::Key_Space);
        } else if (auto *list = qobject_cast<qlmListBox *>(w); list && !input.isEmpty()) {
            auto *pair = testkit::child<PlusMinusContainer>(screen, list->objectName() == u"PositionLB"
                                                                        ? "PlusMinusPositions"
                                                                        : "plusMinusGames");
            if (input == u"-") {
                list->setSelectedRow(0);
                clickHalf(pair, false);
            }
            for (const QString &row : input == u"-" ? QStringList() : input.split(u'/')) {
                clickHalf(pair, true);
                const QStringList cells = row.split(u'|');
                for (int c = 0; c < cells.size(); ++c)
                    typeInCell(list, cells.at(c), c + 1 < cells.size() ? Qt::Key_Tab : Qt::Key_Return);
            }
        } else if (control == u"setBULocBtn") {
            QDir().mkpath(drive);
            f.fake.files.answers.enqueue(drive);
            QTest::mouseClick(testkit::child<QPushButton>(screen, "setBULocBtn"), Qt::LeftButton);
            QCOMPARE(testkit::child<QLabel>(screen, "backupLocFld")->text(), QDir::toNativeSeparators(drive));
            QVERIFY(QDir(drive).exists(QStringLiteral("TLYN2_backup")));
        } else if (control == u"setUDVBtn") {
            QTest::mouseClick(testkit::child<QPushButton>(screen, "setUDVBtn"), Qt::LeftButton);
            auto *sheet = screen->findChild<UDVStatsScrn *>();
            QVERIFY(sheet && sheet->windowModality() == Qt::WindowModal);
            testkit::child<QLineEdit>(sheet, "batAbbrev0")->setText(input.section(u'\t', 0, 0));
            testkit::child<QLineEdit>(sheet, "fldDesc2")->setText(input.section(u'\t', 1));
            QTest::mouseClick(testkit::child<QPushButton>(sheet, "saveBtn"), Qt::LeftButton);
        }
        if (control == u"InnPerGamePop")
            QCOMPARE(screen->SelectedInnings, 7);
        QTest::mouseClick(testkit::child<QPushButton>(screen, "prefsavebutton"), Qt::LeftButton);
        QTRY_VERIFY(!screen);
        QVERIFY(startScrn1::instance() && startScrn1::instance()->isVisible());

        QCOMPARE(::field(myPrefs(f.dataRoot()), field), expected);
    }

    // Closing the window with edited lists asks first, as every screen
    // with unsaved changes does; lists that disagree are named line by line.
    void listEditsAskBeforeClosing_data()
    {
        QTest::addColumn<int>("answer");
        QTest::addColumn<bool>("saved");
        QTest::addColumn<bool>("closed");
        QTest::newRow("save") << int(platform::MsgAction) << true << true;
        QTest::newRow("don't save") << int(platform::MsgAlternate) << false << true;
        QTest::newRow("cancel") << int(platform::MsgCancel) << false << false;
    }
    void listEditsAskBeforeClosing()
    {
        QFETCH(int, answer);
        QFETCH(bool, saved);
        QFETCH(bool, closed);
        Session f;
        f.fake.messages.strict = true;
        gPrefs->prPositions = QStringLiteral("Right-handed pitcher,Left-handed pitcher");
        const QString types = gPrefs->prGameTypes;
        QPointer<prefScrn> screen = f.openPrefs();
        QCOMPARE(f.fake.messages.texts(),
                 QStringList{QStringLiteral("The positions' abbreviations and names don't match.")});
        QVERIFY(f.fake.messages.shown.first().explanation.startsWith(QStringLiteral(
            "Lines 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17 have an abbreviation but no name.")));
        QCOMPARE(testkit::child<qlmListBox>(screen, "PositionLB")->rowCount(), 17);
        QCOMPARE(testkit::child<qlmListBox>(screen, "PositionLB")->rowCells(2),
                 (QStringList{QStringLiteral("C"), QString()}));
        f.fake.messages.clear();

        testkit::child<qlmListBox>(screen, "gameTypeLB")->setSelectedRow(0);
        clickHalf(testkit::child<PlusMinusContainer>(screen, "plusMinusGames"), false);
        f.fake.messages.answers.enqueue(std::uint8_t(answer));
        screen->close();
        QCOMPARE(f.fake.messages.texts(),
                 QStringList{QStringLiteral("Would you like to save the changes to the preferences?")});
        if (closed)
            QTRY_VERIFY(!screen);
        QVERIFY(!closed || !screen);
        const QString stored = myPrefs(f.dataRoot()).prGameTypes;
        QCOMPARE(stored, saved ? types.section(u',', 1) : types);
        if (screen) {
            f.fake.messages.answers.enqueue(platform::MsgAlternate);
            screen->close();
            QTRY_VERIFY(!screen);
        }
    }

    void returnKey_data()
    {
        QTest::addColumn<bool>("fromStart");
        QTest::addColumn<QString>("focus");   // where Return is pressed
        QTest::addColumn<QString>("innings"); // in the file after the restart
        QTest::newRow("from the start screen") << true << "InnPerGamePop"
                                               << "9 Innings";
        QTest::newRow("over another screen") << false << "InnPerGamePop"
                                             << "9 Innings";
        QTest::newRow("on the Save button") << true << "prefsavebutton"
                                            << "5 Innings";
    }
    void returnKey()
    {
        QFETCH(bool, fromStart);
        QFETCH(QString, focus);
        QFETCH(QString, innings);
        Session f;
        f.addTeam(QStringLiteral("Lincoln"), QStringLiteral("Lions"));
        const QString cubs = QString::number(f.addTeam(QStringLiteral("Central"), QStringLiteral("Cubs")));
        f.start->hide();
        QPointer<prefScrn> screen = qobject_cast<prefScrn *>(screens::create(ScreenId::prefScrn, fromStart));
        testkit::showActive(screen);
        choose(testkit::child<QComboBox>(screen, "InnPerGamePop"), QStringLiteral("5 Innings"));
        choose(testkit::child<QComboBox>(screen, "homeTeamPop"), QStringLiteral("Central Cubs"));
        choose(testkit::child<QComboBox>(screen, "pitchRulesPop"), QStringLiteral("Youth league regular season"));
        QWidget *at = screen->findChild<QWidget *>(focus);
        at->setFocus();
        QTest::keyClick(at, Qt::Key_Return);
        QTRY_VERIFY(!screen);
        QCOMPARE(f.start->isVisible(), fromStart);

        // The home team acted at once and survives the restart; the innings
        // only when saved.
        f.restart();
        QCOMPARE(gPrefs->prHomeTeam, cubs);
        QCOMPARE(gPrefs->prInnings, innings);
        QCOMPARE(stats::pitchrules::chosenFile(gPrefs->strdDataLoc), QStringLiteral("youth-league.json"));
    }

    void userDefinedNamesAtNextStart_data()
    {
        QTest::addColumn<QStringList>("abbrevs"); // the five batting abbreviations typed
        QTest::addColumn<QString>("description"); // typed as every batting description
        QTest::addColumn<QStringList>("keys");    // hitD's user-defined keys at the next start
        QTest::addColumn<QList<int>>("indexes");
        QTest::addColumn<bool>("shortened");

        QTest::newRow("new names") << QStringList{"XBH", "RISP", "HSP", "TOH", "QAB"} << "Counted"
                                   << QStringList{"XBH", "RISP", "HSP", "TOH", "QAB"} << QList<int>{21, 22, 23, 24, 25}
                                   << false;
        QTest::newRow("two empty abbreviations share one key at the later slot")
            << QStringList{"", "RISP", "", "TOH", "QAB"} << "Counted" << QStringList{"--", "RISP", "TOH", "QAB"}
            << QList<int>{23, 22, 24, 25} << false;
        QTest::newRow("descriptions too long for the field")
            << QStringList{"XBH", "RISP", "HSP", "TOH", "QAB"} << QString(80, u'd')
            << QStringList{"XBH", "RISP", "HSP", "TOH", "QAB"} << QList<int>{21, 22, 23, 24, 25} << true;
    }
    void userDefinedNamesAtNextStart()
    {
        QFETCH(QStringList, abbrevs);
        QFETCH(QString, description);
        QFETCH(QStringList, keys);
        QFETCH(QList<int>, indexes);
        QFETCH(bool, shortened);

        Session f;
        QPointer<prefScrn> screen = f.openPrefs();
        QTest::mouseClick(testkit::child<QPushButton>(screen, "setUDVBtn"), Qt::LeftButton);
        QPointer<UDVStatsScrn> sheet = screen->findChild<UDVStatsScrn *>();
        QVERIFY(sheet);
        for (int i = 0; i < 5; ++i) {
            testkit::child<QLineEdit>(sheet, qPrintable(QStringLiteral("batAbbrev%1").arg(i)))->setText(abbrevs.at(i));
            testkit::child<QLineEdit>(sheet, qPrintable(QStringLiteral("batDesc%1").arg(i)))->setText(description);
        }
        QTest::mouseClick(testkit::child<QPushButton>(sheet, "saveBtn"), Qt::LeftButton);
        QTRY_VERIFY(!sheet);
        QCOMPARE(!f.fake.messages.shown.isEmpty(), shortened);
        // The dictionaries change only at the next start.
        QVERIFY(hitD.hasKey(QStringLiteral("CS")));
        screen->close();
        f.restart();

        QVERIFY(gPrefs->prUDB.toUtf8().size() <= myPrefs::kPascalMax);
        QCOMPARE(gPrefs->prUDB.split(u'\t').size(), 10);
        QCOMPARE(hitD.keys().mid(hitD.keys().size() - keys.size()), keys);
        for (int i = 0; i < keys.size(); ++i)
            QCOMPARE(hitD.value(keys.at(i)), indexes.at(i));
        QVERIFY(!hitD.hasKey(QStringLiteral("CS")));
    }

    // Names typed too long are shortened alone, and the message names them;
    // Save pressed again while it is up (a screen reader can) changes nothing.
    void overlongNamesAreCutAlone_data()
    {
        QTest::addColumn<QString>("pressed"); // the Save pressed while the message is up
        QTest::newRow("nothing pressed") << "";
        QTest::newRow("the sheet's Save again") << "saveBtn";
        QTest::newRow("the preference screen's Save") << "prefsavebutton";
    }
    void overlongNamesAreCutAlone()
    {
        QFETCH(QString, pressed);
        Session f;
        f.fake.messages.strict = true;
        const QString stored = QStringLiteral("XBH\tExtra base hits\tRISP\tRunners in scoring position\tHSP\tHard "
                                              "hit balls\tTOH\tTwo-out hits\tQAB\tQuality at bats");
        gPrefs->prUDB = stored;
        QPointer<prefScrn> screen = f.openPrefs();
        QTest::mouseClick(testkit::child<QPushButton>(screen, "setUDVBtn"), Qt::LeftButton);
        QPointer<UDVStatsScrn> sheet = screen->findChild<UDVStatsScrn *>();
        QVERIFY(sheet);
        const QString typed(1000, u'a');
        for (int i = 0; i < 3; ++i)
            testkit::child<QLineEdit>(sheet, qPrintable(QStringLiteral("batAbbrev%1").arg(i)))->setText(typed);
        int pressedOnce = 0;
        if (!pressed.isEmpty()) {
            f.fake.messages.whileShown = [&] {
                auto *button = (pressed == u"saveBtn" ? static_cast<QWidget *>(sheet) : screen.data())
                                   ->findChild<QPushButton *>(pressed);
                QAccessible::queryAccessibleInterface(button)->actionInterface()->doAction(
                    QAccessibleActionInterface::pressAction());
                // What the real message's own event loop would do meanwhile.
                QTest::qWait(300);
                ++pressedOnce;
            };
        }
        QTest::mouseClick(testkit::child<QPushButton>(sheet, "saveBtn"), Qt::LeftButton);
        QTRY_VERIFY(!sheet);
        QCOMPARE(pressedOnce, pressed.isEmpty() ? 0 : 1);
        QCOMPARE(f.fake.messages.texts(), QStringList{QStringLiteral("Some of the names were shortened to fit.")});
        QCOMPARE(f.fake.messages.shown.first().explanation,
                 QStringLiteral("Each list of user-defined names is kept in 255 bytes of the preference file; these "
                                "were cut: Batting stat 1 abbreviation, Batting stat 2 abbreviation, Batting stat 3 "
                                "abbreviation."));
        QVERIFY(gPrefs->prUDB.toUtf8().size() <= myPrefs::kPascalMax);
        const QStringList now = gPrefs->prUDB.split(u'\t');
        const QStringList was = stored.split(u'\t');
        QCOMPARE(now.size(), was.size());
        for (int i = 0; i < now.size(); ++i) {
            if (i < 6 && i % 2 == 0)
                QVERIFY(!now.at(i).isEmpty() && typed.startsWith(now.at(i)));
            else
                QCOMPARE(now.at(i), was.at(i));
        }
        if (screen)
            screen->close();
    }

    void mailDoor_data()
    {
        QTest::addColumn<bool>("registered");
        QTest::newRow("mail settings not built in") << false;
        QTest::newRow("mail settings there") << true;
    }
    void mailDoor()
    {
        QFETCH(bool, registered);
        if (registered) {
            screens::registerScreen(ScreenId::emailInfoScrn, [] {
                auto *mail = new QWidget;
                mail->setObjectName(QStringLiteral("emailInfoScrn"));
                mail->setAttribute(Qt::WA_DeleteOnClose);
                return mail;
            });
        }
        Session f;
        QPointer<prefScrn> screen = f.openPrefs();
        QCOMPARE(testkit::child<QPushButton>(screen, "setEmailBtn")->isEnabled(), registered);
        if (registered) {
            QTest::mouseClick(testkit::child<QPushButton>(screen, "setEmailBtn"), Qt::LeftButton);
            QWidget *mail = Session::window<QWidget>(QStringLiteral("emailInfoScrn"));
            QVERIFY(mail);
            gPrefs->prEmailUser = QStringLiteral("coach@example.org");
            mail->close();
            QTRY_COMPARE(testkit::child<QLabel>(screen, "emailAddrFld")->text(), QStringLiteral("coach@example.org"));
            screens::unregisterScreen(ScreenId::emailInfoScrn);
        }
    }

    // The app's walk (tst_accessibility) meets the backup window while it
    // works; here every control is named and reached by Tab once it is done.
    void finishedBackupHasNamesAndTheKeyboard()
    {
        Session f;
        gPrefs->prDataBackupLoc = createGSI(f.chosenDrive());
        auto *dialog = new backUpDlog;
        dialog->show();
        QTRY_VERIFY(testkit::child<QPushButton>(dialog, "CloseBtn")->isVisible());
        for (QWidget *child : dialog->findChildren<QWidget *>()) {
            if (!child->isVisibleTo(dialog) || child->focusPolicy() == Qt::NoFocus || child->inherits("QLabel"))
                continue;
            QAccessibleInterface *face = QAccessible::queryAccessibleInterface(child);
            QVERIFY2(face && !face->text(QAccessible::Name).isEmpty(), qPrintable(child->objectName()));
            QVERIFY2(child->focusPolicy() & Qt::TabFocus, qPrintable(child->objectName()));
        }
        dialog->close();
    }
};

QTEST_MAIN(TestSeasonDataUi)
#include "tst_seasondataui.moc"
