// Every window the program can open, walked as a screen reader walks it:
// each control the keyboard reaches has a role and a name, and the parts
// drawn inside one control (the halves of a plus/minus pair, the entries of
// a Print button's menu) are there too and can be pressed.
//
// A screen registered in the screen directory joins by itself; a window
// that is not a screen joins with one row in windows_data().

#include "Screens.h"
#include "app/globals.h"
#include "app/myDB.h"
#include "app/myPrefs.h"

#include "app/ui/AboutScrn.h"
#include "app/ui/ScreenDirectory.h"
#include "app/ui/splashScrn.h"
#include "app/ui/startScrn1.h"
#include "fakes/TestKit.h"
#include "gameday/ui/AddPlayersToGameScrn.h"
#include "gameday/ui/BBScoringLB.h"
#include "gameday/ui/battingPOP.h"
#include "gameday/ui/defenseDlog.h"
#include "gameday/ui/gameDayScrn.h"
#include "people/ui/emailRecipientsDlog.h"
#include "people/ui/teamScrn.h"
#include "schedule/ui/Calendar.h"
#include "schedule/ui/newEventScrn.h"
#include "seasondata/ui/TransferDataScrn.h"
#include "seasondata/ui/UDVStatsScrn.h"
#include "stats/ui/AutoFillPitchScrn.h"
#include "stats/ui/finalCheckScrn.h"
#include "support/ui/PlusMinusContainer.h"
#include "support/ui/expReporterScrn.h"
#include "support/ui/getInfoScrn_small.h"
#include "support/ui/pleaseWaitScrn.h"
#include "support/ui/updateDlog.h"
#include <QDir>

#include <QAccessible>
#include <QLabel>
#include <QMenu>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>
#include <QWidget>

using namespace Qt::StringLiterals;

using Opener = std::function<QWidget *()>;
Q_DECLARE_METATYPE(Opener)

class TestAccessibility : public QObject
{
    Q_OBJECT

    // What is wrong with one control's interface and its drawn parts.
    static void check(QAccessibleInterface *a, const QString &path, QStringList &faults)
    {
        if (!a) {
            faults << path + QStringLiteral(" (no interface)");
            return;
        }
        if (a->role() == QAccessible::NoRole)
            faults << path + QStringLiteral(" (no role)");
        if (a->text(QAccessible::Name).trimmed().isEmpty())
            faults << path + QStringLiteral(" (no name)");
        for (int i = 0; i < a->childCount(); ++i) {
            QAccessibleInterface *part = a->child(i);
            // Child widgets are walked by themselves.
            if (part && !qobject_cast<QWidget *>(part->object()))
                check(part, path + u'/' + QString::number(i), faults);
        }
    }

    // Two rows under innings 1 and 2, a single in the first row's second.
    static void fillGrid(gameday::ScoreGrid &grid)
    {
        grid.setColumnHeadings({u"1"_s, u"2"_s});
        grid.initCellBkg(grid.columnCount() - 1);
        grid.addRow();
        grid.addRow();
        grid.setCellText(0, 1, u"1B"_s);
    }

    static QAccessibleInterface *childNamed(QAccessibleInterface *a, const QString &name)
    {
        for (int i = 0; a && i < a->childCount(); ++i) {
            if (a->child(i)->text(QAccessible::Name) == name)
                return a->child(i);
        }
        return nullptr;
    }

private Q_SLOTS:
    // Whatever a function left open, also when it failed half-way, goes
    // before the next one starts.
    void cleanup() { testkit::closeAllWindows(); }

    void initTestCase() { registerScreens(); }

    void windows_data()
    {
        QTest::addColumn<Opener>("open");
        for (int i = 0; !screenName(ScreenId(i)).isEmpty(); ++i) {
            const auto id = ScreenId(i);
            if (!screens::has(id))
                continue;
            // The restore window is the backup window asking for a file
            // first; walking the backup covers its controls.
            if (id == ScreenId::restoreDlog)
                continue;
            if (id == ScreenId::backUpDlog) {
                // A backup needs a place to go, or the window closes at once.
                QTest::newRow(qPrintable(screenName(id))) << Opener([id] {
                    const QString place = gPrefs->strdDataLoc + u"/backups"_s;
                    QDir().mkpath(place + u"/TLYN2_backup"_s);
                    gPrefs->prDataBackupLoc = createGSI(place);
                    return screens::create(id);
                });
                continue;
            }
            if (id == ScreenId::gameDayScrn || id == ScreenId::practicePlanScrn) {
                // These open on an event of the schedule.
                QTest::newRow(qPrintable(screenName(id))) << Opener([id] {
                    const bool game = id == ScreenId::gameDayScrn;
                    const qint64 hawks = gData->insert(u"Teams"_s, {{u"TeamName"_s, u"Hawks"_s}});
                    const qint64 event = gData->insert(u"Schedule"_s, {{u"SchedDate"_s, u"2026-04-15"_s},
                                                                       {u"Event"_s, game ? u"Game"_s : u"Practice"_s},
                                                                       {u"Opponent"_s, u"Hawks"_s},
                                                                       {u"OppID"_s, QString::number(hawks)},
                                                                       {u"isHome"_s, game ? 1 : 0}});
                    return screens::create(id, QString::number(event));
                });
                continue;
            }
            QTest::newRow(qPrintable(screenName(id))) << Opener([id] { return screens::create(id); });
        }
        // Left out of the directory by a build that has no version document.
        if (!screens::has(ScreenId::updateDlog))
            QTest::newRow("updateDlog") << Opener([] { return new updateDlog; });
        QTest::newRow("startScrn1") << Opener([] { return startScrn1::showStartScreen(); });
        QTest::newRow("splashScrn") << Opener([] { return new splashScrn; });
        QTest::newRow("AboutScrn") << Opener([] { return new AboutScrn; });
        QTest::newRow("newEventScrn") << Opener([] { return new newEventScrn; });
        QTest::newRow("Calendar") << Opener([] { return new Calendar; });
        QTest::newRow("getInfoScrn_small") << Opener([] { return new getInfoScrn_small(nullptr, "Team &Name:"); });
        QTest::newRow("pleaseWaitScrn") << Opener([] { return new pleaseWaitScrn; });
        QTest::newRow("battingPOP") << Opener([] { return new battingPOP; });
        // The grid's cells are walked as its drawn parts.
        QTest::newRow("BBScoringLB") << Opener([] {
            auto *grid = new BBScoringLB;
            fillGrid(grid->grid());
            return grid;
        });
        // The defense window of a game, over its game screen.
        QTest::newRow("defenseDlog") << Opener([] {
            const qint64 hawks = gData->insert(u"Teams"_s, {{u"TeamName"_s, u"Hawks"_s}});
            const qint64 event = gData->insert(u"Schedule"_s, {{u"SchedDate"_s, u"2026-04-15"_s},
                                                               {u"Event"_s, u"Game"_s},
                                                               {u"OppID"_s, QString::number(hawks)},
                                                               {u"isHome"_s, 1}});
            auto *game = static_cast<gameDayScrn *>(screens::create(ScreenId::gameDayScrn, QString::number(event)));
            game->game().addPlayerToLineup(0);
            return game->openDefense();
        });
        QTest::newRow("emailRecipientsDlog") << Opener([] { return new emailRecipientsDlog; });
        QTest::newRow("UDVStatsScrn") << Opener([] { return new UDVStatsScrn; });
        QTest::newRow("finalCheckScrn") << Opener([] { return new finalCheckScrn; });
        QTest::newRow("AutoFillPitchScrn") << Opener([] { return new AutoFillPitchScrn; });
        QTest::newRow("AddPlayersToGameScrn") << Opener([] { return new AddPlayersToGameScrn({}); });
        QTest::newRow("expReporterScrn") << Opener([] { return new expReporterScrn(u"Error: \nSub Team.save()"_s); });
        QTest::newRow("wAutoUpdate") << Opener([] { return new wAutoUpdate; });
        QTest::newRow("TransferDataScrn, lists out") << Opener([] {
            auto *sheet = new TransferDataScrn;
            testkit::child<QWidget>(sheet, "teamArea")->show();
            return sheet;
        });
    }

    void windows()
    {
        QFETCH(Opener, open);
        testkit::Season season;
        season.addTeam(QStringLiteral("Bears"), QStringLiteral("Riverside High"), {}, true);
        QPointer<QWidget> window = open();
        QVERIFY(window);
        window->show();
        QVERIFY(QTest::qWaitForWindowExposed(window));

        QStringList faults;
        QList<QWidget *> controls = window->findChildren<QWidget *>();
        controls.prepend(window);
        int reached = 0;
        for (QWidget *w : controls) {
            // Controls on a tab not shown count; controls hidden on purpose
            // (the empty days of a calendar page) don't.
            if (w->window() != window || w->isHidden())
                continue;
            // A control that takes the focus takes it from the keyboard too.
            // (Of a group of radio buttons Tab reaches the checked one and the
            // arrow keys the others, so Qt takes Tab from the unchecked ones.)
            if (w->focusPolicy() != Qt::NoFocus && !(w->focusPolicy() & Qt::TabFocus) && !w->inherits("QLabel") &&
                !w->inherits("QRadioButton") && !w->inherits("QMenuBar") &&
                !w->parentWidget()->inherits("QAbstractScrollArea"))
                faults << w->objectName() + QStringLiteral(" (not by keyboard)");
            if (!(w->focusPolicy() & Qt::TabFocus))
                continue;
            ++reached;
            check(QAccessible::queryAccessibleInterface(w), w->objectName() + u':' + w->metaObject()->className(),
                  faults);
        }
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join(QStringLiteral(", "))));
        QVERIFY(reached > 0 || window->focusPolicy() == Qt::NoFocus);
        // Gone before the season closes, with whatever work it had under way.
        delete window;
    }

    // The drawn parts act as their controls do.
    void halvesAndMenuEntriesArePressable()
    {
        testkit::Season season;
        auto *screen = new teamScrn;
        QVERIFY(testkit::showActive(screen));

        QSignalSpy plus(testkit::child<PlusMinusContainer>(screen, "teamListPlusMInus"),
                        &PlusMinusContainer::PlusPressed);
        QSignalSpy minus(testkit::child<PlusMinusContainer>(screen, "teamListPlusMInus"),
                         &PlusMinusContainer::MinusPressed);
        QAccessibleInterface *pair = QAccessible::queryAccessibleInterface(
            testkit::child<PlusMinusContainer>(screen, "teamListPlusMInus"));
        QAccessibleInterface *add = childNamed(pair, QStringLiteral("Add team"));
        QAccessibleInterface *remove = childNamed(pair, QStringLiteral("Delete team"));
        QVERIFY(add && remove);
        QCOMPARE(add->role(), QAccessible::Button);
        add->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QCOMPARE(plus.count(), 1);
        testkit::child<PlusMinusContainer>(screen, "teamListPlusMInus")->setMinusEnabled(false);
        QVERIFY(remove->state().disabled);
        remove->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QCOMPARE(minus.count(), 0);

        QSignalSpy chosen(testkit::child<QToolButton>(screen, "printBtn")->menu(), &QMenu::triggered);
        QAccessibleInterface *menu =
            QAccessible::queryAccessibleInterface(testkit::child<QToolButton>(screen, "printBtn"))->child(0);
        QAccessibleInterface *entry = childNamed(menu, QStringLiteral("Team List"));
        QVERIFY(entry);
        entry->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QCOMPARE(chosen.count(), 1);
        QCOMPARE(chosen.at(0).at(0).value<QAction *>()->text(), QStringLiteral("Team List"));
        QCOMPARE(season.fake.printing.printed.size(), 1);
    }

    // The grid is a table of named cells; the popover is a dialog window
    // that says when it opens and closes.
    void gridCellsAndPopover()
    {
        testkit::Season season;
        BBScoringLB grid;
        fillGrid(grid.grid());
        QVERIFY(testkit::showActive(&grid));
        QAccessibleInterface *table = QAccessible::queryAccessibleInterface(&grid);
        QCOMPARE(table->role(), QAccessible::Table);
        QCOMPARE(table->childCount(), 4);
        QCOMPARE(table->child(1)->role(), QAccessible::Cell);
        QCOMPARE(table->child(1)->text(QAccessible::Name), u"Row 1, inning 2: 1B"_s);
        QCOMPARE(table->child(2)->text(QAccessible::Name), u"Row 2, inning 1: empty"_s);
        QCOMPARE(table->indexOfChild(table->child(3)), 3);
        QVERIFY(table->child(3)->rect().isValid());
        grid.setCurrentCell(1, 1);
        QCOMPARE(table->focusChild(), table->child(3));

        battingPOP popover(&grid);
        QAccessibleInterface *dialog = QAccessible::queryAccessibleInterface(&popover);
        QCOMPARE(dialog->role(), QAccessible::Dialog);
        // While open it is one of the application's windows.
        int place = -2;
        connect(&popover, &battingPOP::opened, &popover, [&] {
            place = QAccessible::queryAccessibleInterface(qApp)->indexOfChild(dialog);
            popover.close();
        });
        popover.getClickedTxt(0, 0, true);
        QVERIFY(place >= 0);
    }

    // A label that shows a value is read by the value.
    void valueLabelsReadTheirValue()
    {
        testkit::Season season;
        season.addTeam(QStringLiteral("Bears"), QStringLiteral("Riverside High"), {}, true);
        startScrn1 *start = startScrn1::showStartScreen();
        QVERIFY(QTest::qWaitForWindowExposed(start));
        QAccessibleInterface *name = QAccessible::queryAccessibleInterface(
            testkit::child<QLabel>(start, "teamNameLabel"));
        QVERIFY(name->text(QAccessible::Name).contains(QStringLiteral("Bears")));
    }
};

QTEST_MAIN(TestAccessibility)
#include "tst_accessibility.moc"
