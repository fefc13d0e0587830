// Starting the program: the files a first start leaves, the start screen,
// the season popup, the About box, the single-instance lock and the
// message dialog.

#include "app/App.h"
#include "app/globals.h"
#include "app/myDictionaries.h"
#include "app/myPrefs.h"
#include "app/ui/AboutScrn.h"
#include "app/ui/MainMenuBar.h"
#include "app/ui/ScreenBase.h"
#include "app/ui/ScreenDirectory.h"
#include "app/ui/TallylineApplication.h"
#include "app/ui/splashScrn.h"
#include "app/ui/startScrn1.h"
#include "fakes/FakePlatform.h"
#include "fakes/TestKit.h"
#include "platform/qt/QtServices.h"
#include "support/StackCleaner.h"

#include <QAction>
#include <QApplication>
#include <QBuffer>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <stdexcept>
#include <thread>
#include <vector>

#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <unistd.h>

// Throws from its first custom event, as a faulty handler would.
class Thrower : public QObject
{
public:
    int events = 0;
    bool event(QEvent *e) override
    {
        if (e->type() != QEvent::User)
            return QObject::event(e);
        if (++events == 1)
            throw std::runtime_error("the scorer dropped the pencil");
        return true;
    }
};

// Throws from inside the C++ library (vector::at) in its custom event.
class LibraryThrower : public QObject
{
public:
    __attribute__((noinline)) bool event(QEvent *e) override
    {
        if (e->type() != QEvent::User)
            return QObject::event(e);
        static volatile int sink = 0;
        sink = std::vector<int>(2).at(std::size_t(e->type()));
        (void)sink;
        return true;
    }
};

// Asks `question` at the moment the watched window closes.
class CloseWatch : public QObject
{
public:
    CloseWatch(QWidget *window, std::function<bool()> question) : m_question(std::move(question))
    {
        window->installEventFilter(this);
    }
    bool closed = false;
    bool answer = false;
    bool eventFilter(QObject *, QEvent *e) override
    {
        if (e->type() == QEvent::Close && !closed)
            closed = true, answer = m_question();
        return false;
    }

private:
    std::function<bool()> m_question;
};

class TestStartup : public QObject
{
    Q_OBJECT

private:
    static QByteArray readFile(const QString &path)
    {
        QFile f(path);
        return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
    }
    static QStringList popupItems(QComboBox *box)
    {
        QStringList items;
        for (int i = 0; i < box->count(); ++i)
            items.append(box->itemText(i));
        return items;
    }

private Q_SLOTS:
    void cleanup() { testkit::closeAllWindows(); }

    void firstStartAndSecondStart()
    {
        fakes::FakePlatform fake;
        QTemporaryDir home;
        const QString root = home.filePath(QStringLiteral("share"));
        const QString data = myPrefs::dataFolderFor(root);
        QByteArray prefsBytes;
        {
            App app(root);
            QCOMPARE(app.Event_Open(), App::OpenResult::Ok);
            QCOMPARE(gPrefs, app.prefs());
            QCOMPARE(gData, app.data());
            QVERIFY(gData->isConnected());
            QCOMPARE(QDir(data).entryList(QDir::Files | QDir::NoDotAndDotDot, QDir::Name),
                     (QStringList{"tLineBB.pref", "tlData_2026.sqlite"}));
            QCOMPARE(hitD.value(QStringLiteral("RSP")), 22);
            QCOMPARE(app.BUTimer->mode(), myTimerClass::ModeOff);
            QCOMPARE(app.BUTimer->period(), 60000);
            prefsBytes = readFile(QDir(data).filePath(QStringLiteral("tLineBB.pref")));
            app.Event_Close();
        }
        QVERIFY(gPrefs == nullptr && gData == nullptr);
        fake.clock.time = fake.clock.time.addDays(400); // a later year must not change the season
        App again(root);
        QCOMPARE(again.Event_Open(), App::OpenResult::Ok);
        QCOMPARE(gPrefs->prSeason, QStringLiteral("2026"));
        again.Event_Close();
        QCOMPARE(readFile(QDir(data).filePath(QStringLiteral("tLineBB.pref"))), prefsBytes);
        QVERIFY(fake.messages.shown.isEmpty());
    }

    void secondCopyTouchesNothing()
    {
        fakes::FakePlatform fake;
        QTemporaryDir home;
        App first(home.path());
        QCOMPARE(first.Event_Open(), App::OpenResult::Ok);
        gPrefs->prInnings = QStringLiteral("7 Innings");
        gPrefs->prefsDirty = true;
        const QByteArray before = readFile(gPrefs->prefsFilePath());
        myPrefs *firstPrefs = gPrefs;
        {
            App second(home.path());
            QCOMPARE(second.Event_Open(), App::OpenResult::AlreadyRunning);
            QCOMPARE(fake.messages.shown.size(), 1);
            QVERIFY(fake.messages.shown.first().message.contains(QStringLiteral("already running")));
            second.Event_Close();
        }
        QCOMPARE(readFile(firstPrefs->prefsFilePath()), before);
    }

    void startScreenShowsHomeTeam()
    {
        testkit::Season s;
        QImage logo(40, 20, QImage::Format_RGB32);
        logo.fill(Qt::red);
        QByteArray png;
        {
            QBuffer buffer(&png);
            buffer.open(QIODevice::WriteOnly);
            logo.save(&buffer, "PNG");
        }
        const qint64 id = gData->insert(QStringLiteral("Teams"),
                                        {{QStringLiteral("TeamName"), QStringLiteral("Cardinals")},
                                         {QStringLiteral("SchoolName"), QStringLiteral("St. Anne's")},
                                         {QStringLiteral("TeamLogo"), png}});
        gPrefs->prHomeTeam = QString::number(id);

        startScrn1 *start = startScrn1::showStartScreen();
        QVERIFY(QTest::qWaitForWindowExposed(start));
        QCOMPARE(testkit::child<QLabel>(start, "teamNameLabel")->text(), QStringLiteral("St. Anne's Cardinals"));
        QCOMPARE(start->curLogo.size(), QSize(40, 20));
        QCOMPARE(popupItems(testkit::child<QComboBox>(start, "SelectSeasonPop")),
                 (QStringList{"Select Season", "2026"}));
        QCOMPARE(testkit::child<QComboBox>(start, "SelectSeasonPop")->currentIndex(), 1);

        // Screens that aren't part of the program are disabled; About works.
        for (const char *name : {"teamScrnBtn", "ShowSchedules", "inventoryBtn", "prefBtn", "newSeasonBtn"})
            QVERIFY(!start->findChild<QPushButton *>(QString::fromLatin1(name))->isEnabled());
        QVERIFY(!start->menuBar()->item(QStringLiteral("FilePrint"))->isEnabled());
        QVERIFY(start->menuBar()->item(QStringLiteral("HelpAbout"))->isEnabled());
        QVERIFY(!start->menuBar()->item(QStringLiteral("FileBackup"))->isEnabled());
        // A build that knows no update address leaves the check out.
        QVERIFY(!start->menuBar()->item(QStringLiteral("HelpUpdateCheck"))->isVisible());

        // A home team that is gone leaves the label empty.
        gData->exec(QStringLiteral("DELETE FROM Teams"));
        start->setLogo_Name();
        QCOMPARE(testkit::child<QLabel>(start, "teamNameLabel")->text(), QString());
    }

    // An empty season says where to begin, with the team screen's button
    // focused; once there are teams the line goes.
    void firstStepOnAnEmptySeason()
    {
        testkit::Season s;
        screens::registerScreen(ScreenId::teamScrn, [] { return new QWidget; });
        startScrn1 *start = startScrn1::showStartScreen();
        QVERIFY(testkit::showActive(start));
        QVERIFY(testkit::child<QLabel>(start, "firstStepLabel")->isVisible());
        QCOMPARE(testkit::child<QLabel>(start, "firstStepLabel")->text(),
                 QStringLiteral("Start with your teams: enter them under \"Create/Edit Team Data\"."));
        QCOMPARE(QApplication::focusWidget(), start->findChild<QPushButton *>(QStringLiteral("teamScrnBtn")));
        s.addTeam(QStringLiteral("Cardinals"));
        start->hide();
        start->show();
        QVERIFY(!testkit::child<QLabel>(start, "firstStepLabel")->isVisible());
        screens::unregisterScreen(ScreenId::teamScrn);
    }

    void registeredScreenOpensAndStartComesBack()
    {
        testkit::Season s;
        QPointer<QWidget> opened;
        screens::registerScreen(ScreenId::teamScrn, [&opened] {
            auto *w = new ScreenBase(ScreenId::teamScrn, QStringLiteral("Teams"), {.backupTimer = true});
            opened = w;
            return w;
        });
        startScrn1 *start = startScrn1::showStartScreen();
        auto *button = start->findChild<QPushButton *>(QStringLiteral("teamScrnBtn"));
        QVERIFY(button->isEnabled());
        // The program quits when its last window closes: the target shows first.
        CloseWatch watch(start, [&opened] { return opened && opened->isVisible(); });
        QTest::mouseClick(button, Qt::LeftButton);
        QVERIFY(watch.closed && watch.answer);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(opened && opened->isVisible());
        QVERIFY(startScrn1::instance() == nullptr); // closed after the target showed
        QCOMPARE(s.app().BUTimer->mode(), myTimerClass::ModeMultiple);

        s.app().BUTimer->mCount = 3;
        start = startScrn1::showStartScreen();
        QCOMPARE(s.app().BUTimer->mode(), myTimerClass::ModeOff);
        QCOMPARE(s.app().BUTimer->mCount, 3); // minutes add up across visits
        screens::unregisterScreen(ScreenId::teamScrn);
    }

    void seasonPopup()
    {
        testkit::Season s;
        const QString folder = gPrefs->strdDataLoc;
        {
            myDB other(folder, QStringLiteral("2025 Fall"));
        }
        QFile::copy(QDir(folder).filePath(QStringLiteral("tlData_2026.sqlite")),
                    QDir(folder).filePath(QStringLiteral("notes.txt")));

        startScrn1 *start = startScrn1::showStartScreen();
        QCOMPARE(popupItems(testkit::child<QComboBox>(start, "SelectSeasonPop")),
                 (QStringList{"Select Season", "2025 Fall", "2026"}));

        // Choosing a season switches the open file and is kept for the next start.
        testkit::child<QComboBox>(start, "SelectSeasonPop")->setCurrentIndex(1);
        QCOMPARE(gPrefs->prSeason, QStringLiteral("2025 Fall"));
        QVERIFY(gData->filePath().endsWith(QStringLiteral("tlData_2025 Fall.sqlite")));

        // "Select Season" does nothing.
        myDB *current = gData;
        testkit::child<QComboBox>(start, "SelectSeasonPop")->setCurrentIndex(0);
        QCOMPARE(gData, current);
        QCOMPARE(gPrefs->prSeason, QStringLiteral("2025 Fall"));

        // A file deleted behind the program's back: the message, and no change.
        QVERIFY(QFile::remove(QDir(folder).filePath(QStringLiteral("tlData_2026.sqlite"))));
        testkit::child<QComboBox>(start, "SelectSeasonPop")->setCurrentIndex(2);
        QCOMPARE(s.fake.messages.shown.size(), 1);
        QCOMPARE(s.fake.messages.shown[0].message, QStringLiteral("Data for season 2026 is no longer available"));
        QCOMPARE(s.fake.messages.shown[0].explanation, QStringLiteral("Please re-select the previous season"));
        QCOMPARE(s.fake.messages.shown[0].actionCaption, QStringLiteral("OK"));
        QCOMPARE(gPrefs->prSeason, QStringLiteral("2025 Fall"));
        QCOMPARE(gData, current);

        s.app().Event_Close();
        QCOMPARE(myPrefs(s.folder()).prSeason, QStringLiteral("2025 Fall"));
    }

    // A season that can't be opened: the start screen names it, the screens
    // that write can't be reached, and choosing a good season brings them back.
    void unopenedSeasonIsNeverTypedInto()
    {
        fakes::FakePlatform fake;
        QTemporaryDir home;
        const QString folder = myPrefs::dataFolderFor(home.path());
        QVERIFY(QDir().mkpath(folder));
        {
            myDB good(folder, QStringLiteral("2025"));
        }
        const QString damaged = QDir(folder).filePath(myDB::getCurDBFileName(QStringLiteral("2026")));
        {
            QFile f(damaged);
            QVERIFY(f.open(QIODevice::WriteOnly));
            f.write(QByteArray("SQLite format 3") + QByteArray(4096, 'z'));
        }
        for (ScreenId id : {ScreenId::teamScrn, ScreenId::reportIntroScrn})
            screens::registerScreen(id, [id] { return new ScreenBase(id, QStringLiteral("Screen"), {}); });
        App app(home.path());
        QCOMPARE(app.Event_Open(), App::OpenResult::Ok);
        QCOMPARE(fake.messages.shown.size(), 1);

        startScrn1 *start = startScrn1::showStartScreen();
        auto *teams = start->findChild<QPushButton *>(QStringLiteral("teamScrnBtn"));
        auto *reports = start->findChild<QPushButton *>(QStringLiteral("reportBtn"));
        QVERIFY(!teams->isEnabled());
        QVERIFY(reports->isEnabled());
        QVERIFY(testkit::child<QLabel>(start, "seasonProblemLabel")->isVisibleTo(start));
        QCOMPARE(testkit::child<QLabel>(start, "seasonProblemLabel")->text(),
                 QStringLiteral("The season file \"") + QDir::toNativeSeparators(damaged) +
                     QStringLiteral("\" could not be opened. Choose another season above."));

        testkit::child<QComboBox>(start, "SelectSeasonPop")
            ->setCurrentIndex(testkit::child<QComboBox>(start, "SelectSeasonPop")->findText(QStringLiteral("2025")));
        QVERIFY(gData->isConnected());
        QVERIFY(teams->isEnabled());
        QVERIFY(!testkit::child<QLabel>(start, "seasonProblemLabel")->isVisibleTo(start));
        for (ScreenId id : {ScreenId::teamScrn, ScreenId::reportIntroScrn})
            screens::unregisterScreen(id);
    }

    void emptyDataFolderOffersOnlySelectSeason()
    {
        testkit::Season s;
        QVERIFY(QFile::remove(gData->filePath()));
        startScrn1 *start = startScrn1::showStartScreen();
        QCOMPARE(popupItems(testkit::child<QComboBox>(start, "SelectSeasonPop")), QStringList{"Select Season"});
        QCOMPARE(testkit::child<QComboBox>(start, "SelectSeasonPop")->currentIndex(), 0);
    }

    // The splash closes on a click (let go, not pressed) or by itself after
    // three seconds, and the start screen shows.
    void splashCloses_data()
    {
        QTest::addColumn<bool>("click");
        QTest::newRow("click") << true;
        QTest::newRow("timer") << false;
    }
    void splashCloses()
    {
        QFETCH(bool, click);
        testkit::Season s;
        QPointer<splashScrn> splash = new splashScrn;
        QCOMPARE(splash->closeTimer.interval(), 3000);
        if (!click)
            splash->closeTimer.setInterval(10);
        splash->show();
        QVERIFY(QTest::qWaitForWindowExposed(splash));
        QVERIFY(splash->closeTimer.isActive());
        if (click) {
            QTest::mousePress(splash, Qt::LeftButton);
            QVERIFY(splash->isVisible());
            QTest::mouseRelease(splash, Qt::LeftButton);
        }
        QTRY_VERIFY(!splash);
        QVERIFY(startScrn1::instance() && startScrn1::instance()->isVisible());
    }

    void aboutBox()
    {
        testkit::Season s;
        startScrn1 *start = startScrn1::showStartScreen();
        start->menuBar()->item(QStringLiteral("HelpAbout"))->trigger();
        auto *about = start->findChild<AboutScrn *>();
        QVERIFY(about && about->isVisible());
        // The version as the build's project declares it.
        const QString version = QStringLiteral(TL_PROJECT_VERSION);
        QCOMPARE(testkit::child<QLabel>(about, "versLabel")->text(),
                 QStringLiteral("Version ") + version + QStringLiteral(": Build ") + version.section(u'.', 0, 0));
        QCOMPARE(s.app().getLongVers(), QStringLiteral("Tallyline Baseball v.") + version);
        QPointer<AboutScrn> guard = about;
        QTest::mouseClick(testkit::child<QPlainTextEdit>(about, "creditsTxt")->viewport(), Qt::LeftButton);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!guard);
    }

    void dirtyPreferencesAreWrittenAtQuit()
    {
        testkit::Season s;
        gPrefs->prInnings = QStringLiteral("7 Innings");
        s.app().Event_Close();
        QCOMPARE(myPrefs(s.folder()).prInnings, QStringLiteral("9 Innings")); // not dirty: not written
        gPrefs->prefsDirty = true;
        s.app().Event_Close();
        QCOMPARE(myPrefs(s.folder()).prInnings, QStringLiteral("7 Innings"));
    }

    // An exception that escapes an event handler is shown and the program goes on.
    void exceptionInAnEventHandler()
    {
        fakes::FakePlatform fake;
        QVERIFY(qobject_cast<TallylineApplication *>(QCoreApplication::instance()));
        Thrower thrower;
        QEvent poke(QEvent::User);
        QCoreApplication::sendEvent(&thrower, &poke);
        QCOMPARE(fake.messages.shown.size(), 1);
        QCOMPARE(fake.messages.shown[0].message, QStringLiteral("An unexpected error occurred."));
        QVERIFY(fake.messages.shown[0].explanation.contains(QStringLiteral("the scorer dropped the pencil")));
        QCoreApplication::sendEvent(&thrower, &poke);
        QCOMPARE(thrower.events, 2);
        QCOMPARE(fake.messages.shown.size(), 1);
    }

    // The report names the handler a library error came from, without the
    // event loop's own frames and never the place of an earlier error.
    void libraryErrorInAHandlerIsPlaced()
    {
        fakes::FakePlatform fake;
        QStringList lines;
        TallylineApplication::setUnhandledHandler([&lines](const std::exception_ptr &error) {
            lines = StackCleaner::CleanStack(StackCleaner::framesOfThrow(error));
        });
        const auto reset = qScopeGuard([] { TallylineApplication::setUnhandledHandler(nullptr); });
        Thrower earlier;
        QEvent poke(QEvent::User);
        QCoreApplication::sendEvent(&earlier, &poke);
        LibraryThrower thrower;
        QCoreApplication::sendEvent(&thrower, &poke);
        QVERIFY2(lines.filter(QStringLiteral("LibraryThrower.event")).size() == 1, qPrintable(lines.join(u'\n')));
        QVERIFY2(lines.filter(QStringLiteral(" Thrower.event")).isEmpty(), qPrintable(lines.join(u'\n')));
        QVERIFY2(lines.filter(QStringLiteral("notify")).filter(QStringLiteral("Tallyline")).isEmpty(),
                 qPrintable(lines.join(u'\n')));
        // An error thrown on another thread has no place known here.
        std::exception_ptr elsewhere;
        std::thread([&elsewhere] {
            try {
                throw std::out_of_range("elsewhere");
            } catch (...) {
                elsewhere = std::current_exception();
            }
        }).join();
        QCOMPARE(StackCleaner::framesOfThrow(elsewhere), QStringList());
    }

    // A data folder where no lock can be made is named as such: no other
    // copy of the program is running.
    void readOnlyDataFolderIsNotAnotherCopy()
    {
        fakes::FakePlatform fake;
        QTemporaryDir home;
        const QString folder = myPrefs::dataFolderFor(home.path());
        QVERIFY(QDir().mkpath(folder));
        const int fd = ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY);
        int flags = 0;
        const bool immutable = fd >= 0 && ::ioctl(fd, FS_IOC_GETFLAGS, &flags) == 0 &&
                               ::ioctl(fd, FS_IOC_SETFLAGS, &(flags |= FS_IMMUTABLE_FL)) == 0;
        const auto undo = qScopeGuard([&] {
            if (immutable) {
                flags &= ~FS_IMMUTABLE_FL;
                ::ioctl(fd, FS_IOC_SETFLAGS, &flags);
            }
            if (fd >= 0)
                ::close(fd);
        });
        if (!immutable)
            QSKIP("this file system can't make a folder read-only for the test's user");
        App app(home.path());
        QCOMPARE(app.Event_Open(), App::OpenResult::AlreadyRunning);
        QCOMPARE(fake.messages.texts(),
                 QStringList{QStringLiteral("Tallyline Baseball can't write in its data folder \"") +
                             QDir::toNativeSeparators(folder) +
                             QStringLiteral("\" (is it on a read-only disk?), so it can't start.")});
    }

    // The real dialog: Escape answers "cancel" (1), the buttons answer 0 and 2.
    void realMessageDialog_data()
    {
        QTest::addColumn<QString>("press");
        QTest::addColumn<int>("result");
        QTest::newRow("escape") << QStringLiteral("escape") << 1;
        QTest::newRow("action") << QStringLiteral("Save") << 0;
        QTest::newRow("alternate") << QStringLiteral("Discard") << 2;
    }
    void realMessageDialog()
    {
        QFETCH(QString, press);
        QFETCH(int, result);
        platform::qt::QtMessageService real;
        QStringList captions;
        QTimer::singleShot(0, [&] {
            auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            QVERIFY(box);
            for (QAbstractButton *b : box->buttons())
                captions.append(b->text());
            if (press == u"escape") {
                QTest::keyClick(box, Qt::Key_Escape);
                return;
            }
            for (QAbstractButton *b : box->buttons()) {
                if (b->text() == press)
                    b->click();
            }
        });
        QCOMPARE(int(real.showMsgDlog(QStringLiteral("Save changes?"), QStringLiteral("They will be lost."),
                                      QStringLiteral("Save"), QStringLiteral("Discard"))),
                 result);
        QCOMPARE(captions.size(), 3);
        QVERIFY(captions.contains(QStringLiteral("Save")) && captions.contains(QStringLiteral("Discard")));
    }
};

int main(int argc, char *argv[])
{
    TallylineApplication app(argc, argv);
    TestStartup test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_startup.moc"
