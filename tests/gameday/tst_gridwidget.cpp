// The grid on screen: real clicks on a BBScoringLB open a real battingPOP
// beside the cell, a code picked there paints the cell in its colour, a
// click outside changes nothing, Alt stands for Option, and the keyboard
// does what the mouse does.

#include "GridTestSupport.h"
#include "fakes/TestKit.h"
#include "gameday/ui/BBScoringLB.h"
#include "gameday/ui/PopoverCodeList.h"
#include "gameday/ui/battingPOP.h"

#include <QApplication>
#include <QPushButton>
#include <QSignalSpy>
#include <QTimer>
#include <functional>

using gameday::ScoreGridRenderer;
using namespace gridtest;
using namespace Qt::StringLiterals;

namespace {

// Runs one scripted action on each battingPOP as it opens. A popover that
// opens with no action left is closed and counted, so a test never hangs on
// a window nobody expected.
class PopoverDriver : public QObject
{
public:
    using Action = std::function<void(battingPOP *)>;

    PopoverDriver() { qApp->installEventFilter(this); }
    ~PopoverDriver() override { qApp->removeEventFilter(this); }

    QList<Action> actions;
    int opened = 0;
    int unexpected = 0;
    QPoint lastPos;
    bool lastListsVisible = false;
    int lastHeight = 0;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        auto *pop = qobject_cast<battingPOP *>(watched);
        if (pop && event->type() == QEvent::Show) {
            ++opened;
            lastPos = pop->pos();
            lastListsVisible = testkit::child<PopoverCodeList>(pop, "batActionLB")->isVisibleTo(pop);
            lastHeight = pop->height();
            QPointer<battingPOP> guard(pop);
            Action action = actions.isEmpty() ? Action() : actions.takeFirst();
            QTimer::singleShot(0, this, [this, guard, action] {
                if (!guard)
                    return;
                if (action) {
                    action(guard);
                } else {
                    ++unexpected;
                    guard->close();
                }
            });
        }
        return QObject::eventFilter(watched, event);
    }
};

PopoverDriver::Action pickIn(const QString &list, int row, int col)
{
    return [list, row, col](battingPOP *pop) {
        auto *lb = pop->findChild<PopoverCodeList *>(list);
        QVERIFY(lb && lb->isVisible());
        QTest::mouseClick(lb, Qt::LeftButton, {}, lb->cellRect(row, col).center());
    };
}

PopoverDriver::Action pressButton(int index)
{
    return [index](battingPOP *pop) {
        QTest::mouseClick(testkit::child<QPushButton>(pop, qPrintable(QStringLiteral("actionBtn%1").arg(index))),
                          Qt::LeftButton);
    };
}

QColor paintedColour(BBScoringLB &grid, int row, int col)
{
    const QImage image = grid.grab().toImage();
    const QRect cell = grid.renderer().cellRect(row, col);
    return image.pixelColor(cell.topLeft() + QPoint(3, 3)); // clear of the code's letters
}

QPoint cellCentre(const BBScoringLB &grid, int row, int col)
{
    return grid.renderer().cellRect(row, col).center();
}

} // namespace

class TestGridWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Whatever a function left open, also when it failed half-way, goes
    // before the next one starts.
    void cleanup() { testkit::closeAllWindows(); }

    void pickedCodePaintsTheCell_data()
    {
        QTest::addColumn<QString>("startText");
        QTest::addColumn<QString>("startBkg");
        QTest::addColumn<QString>("list"); // a list's name, or "" for a button
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("col");
        QTest::addColumn<QString>("expText");
        QTest::addColumn<QString>("expBkg");
        QTest::addColumn<QColor>("colour");

        const QColor red = QColor::fromRgb(0xFF5765), green = QColor::fromRgb(0x84FF85);
        const QColor yellow = QColor::fromRgb(0xFFFA9B), grey = QColor::fromRgb(0x727272);
        QTest::newRow("home run") << ""
                                  << ""
                                  << "batActionLB" << 0 << 3 << "HR"
                                  << "G" << green;
        QTest::newRow("single") << ""
                                << ""
                                << "batActionLB" << 0 << 0 << "B1"
                                << "" << QColor(Qt::white);
        QTest::newRow("sacrifice fly, fifth row") << ""
                                                  << ""
                                                  << "batActionLB" << 4 << 0 << "SF"
                                                  << "R" << red;
        QTest::newRow("force out") << "B1"
                                   << ""
                                   << "resultLB" << 0 << 2 << "B1"
                                   << "R" << red;
        QTest::newRow("left on base") << "B2"
                                      << ""
                                      << "resultLB" << 1 << 2 << "B2"
                                      << "Y" << yellow;
        QTest::newRow("disable a run") << "HR"
                                       << "G"
                                       << "" << 0 << 1 << ""
                                       << "X" << grey;
    }
    void pickedCodePaintsTheCell()
    {
        QFETCH(QString, startText);
        QFETCH(QString, startBkg);
        QFETCH(QString, list);
        QFETCH(int, row);
        QFETCH(int, col);
        QFETCH(QString, expText);
        QFETCH(QString, expBkg);
        QFETCH(QColor, colour);

        GridEnv env;
        BBScoringLB grid;
        loadTeam(grid.grid(), 9);
        grid.grid().setCellText(1, 2, startText);
        grid.grid().setCellBkg(1, 2, startBkg);
        grid.show();
        QVERIFY(QTest::qWaitForWindowExposed(&grid));

        PopoverDriver driver;
        driver.actions.append(list.isEmpty() ? pressButton(row * 2 + col) : pickIn(list, row, col));
        QTest::mouseClick(&grid, Qt::LeftButton, {}, cellCentre(grid, 1, 2));

        QCOMPARE(driver.opened, 1);
        QCOMPARE(driver.unexpected, 0);
        // Beside the cell, and with the lists only on a cell with no final background.
        QCOMPARE(driver.lastPos, grid.mapToGlobal(ScoreGridRenderer::popoverOffset(1, 2)));
        QCOMPARE(driver.lastListsVisible, startBkg.isEmpty());
        QCOMPARE(driver.lastHeight == 88, !startBkg.isEmpty());
        QCOMPARE(grid.grid().cellText(1, 2), expText);
        QCOMPARE(grid.grid().cellBkg(1, 2), expBkg);
        QCOMPARE(paintedColour(grid, 1, 2), colour);
        QVERIFY(!grid.findChild<battingPOP *>());
    }

    void clickOutsideChangesNothing()
    {
        GridEnv env;
        BBScoringLB grid;
        loadTeam(grid.grid(), 9);
        grid.grid().setCellText(4, 4, QStringLiteral("B1"));
        grid.show();
        QVERIFY(QTest::qWaitForWindowExposed(&grid));
        const QString before = grid.grid().getMyData() + grid.grid().getMyBkgArray();

        PopoverDriver driver;
        driver.actions.append([&grid](battingPOP *pop) {
            QVERIFY(pop->isVisible());
            // Another cell of the grid, outside the popover, clicked through
            // the window system as a real click is.
            QTest::mouseClick(grid.windowHandle(), Qt::LeftButton, {}, cellCentre(grid, 0, 0));
        });
        QTest::mouseClick(&grid, Qt::LeftButton, {}, cellCentre(grid, 4, 4));
        QCoreApplication::processEvents();

        QCOMPARE(driver.opened, 1); // the closing click did not open another
        QCOMPARE(driver.unexpected, 0);
        QCOMPARE(grid.grid().getMyData() + grid.grid().getMyBkgArray(), before);
        QCOMPARE(paintedColour(grid, 4, 4), QColor(Qt::white));
    }

    void escapeClosesThePopover()
    {
        GridEnv env;
        BBScoringLB grid;
        loadTeam(grid.grid(), 3);
        grid.show();
        QVERIFY(QTest::qWaitForWindowExposed(&grid));
        PopoverDriver driver;
        driver.actions.append([](battingPOP *pop) { QTest::keyClick(pop, Qt::Key_Escape); });
        QTest::mouseClick(&grid, Qt::LeftButton, {}, cellCentre(grid, 0, 0));
        QCOMPARE(driver.opened, 1);
        QCOMPARE(grid.grid().cellText(0, 0), QString());
    }

    void altClickLeavesOnBase()
    {
        GridEnv env;
        BBScoringLB grid;
        loadTeam(grid.grid(), 9);
        fillColumn(grid.grid(), 0, {"HR/G", "B1"});
        grid.show();
        QVERIFY(QTest::qWaitForWindowExposed(&grid));
        PopoverDriver driver;

        QTest::mouseClick(&grid, Qt::LeftButton, Qt::AltModifier, cellCentre(grid, 0, 0));
        QTest::mouseClick(&grid, Qt::LeftButton, Qt::AltModifier, cellCentre(grid, 1, 0));

        QCOMPARE(driver.opened, 0);
        QCOMPARE(paintedColour(grid, 0, 0), QColor::fromRgb(0xFFFA9B));
        QCOMPARE(paintedColour(grid, 1, 0), QColor::fromRgb(0xFFFA9B));
        QCOMPARE(grid.grid().countTotalRuns(), 0);
        QCOMPARE(grid.grid().countTotalLOBs(), 2);
    }

    void keyboardDoesWhatTheMouseDoes()
    {
        GridEnv env;
        BBScoringLB grid;
        loadTeam(grid.grid(), 9);
        grid.grid().setCellText(2, 1, QStringLiteral("GO"));
        grid.grid().setCellBkg(2, 1, QStringLiteral("R"));
        grid.show();
        QVERIFY(QTest::qWaitForWindowExposed(&grid));
        grid.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&grid));
        grid.setFocus();
        QVERIFY(grid.hasFocus());
        QCOMPARE(grid.currentCell(), (gameday::GridCell{0, 0}));

        // Down, Right, Return: the popover opens on (1, 1) with the action
        // list in focus; Down, Right, Return there picks "IBB".
        PopoverDriver driver;
        driver.actions.append([](battingPOP *pop) {
            auto *actions = testkit::child<PopoverCodeList>(pop, "batActionLB");
            QCOMPARE(pop->focusWidget(), static_cast<QWidget *>(actions));
            QTest::keyClick(actions, Qt::Key_Down);
            QTest::keyClick(actions, Qt::Key_Right);
            QTest::keyClick(actions, Qt::Key_Return);
        });
        QTest::keyClick(&grid, Qt::Key_Down);
        QTest::keyClick(&grid, Qt::Key_Right);
        QTest::keyClick(&grid, Qt::Key_Return);
        QCOMPARE(grid.grid().cellText(1, 1), QStringLiteral("IBB"));

        // On an out only the buttons are there; Space on the first clears it.
        driver.actions.append([](battingPOP *pop) {
            auto *clear = testkit::child<QPushButton>(pop, "actionBtn0");
            QCOMPARE(pop->focusWidget(), static_cast<QWidget *>(clear));
            QTest::keyClick(clear, Qt::Key_Space);
        });
        QTest::keyClick(&grid, Qt::Key_Down);
        QTest::keyClick(&grid, Qt::Key_Space);
        QCOMPARE(grid.grid().cellText(2, 1), QString());
        QCOMPARE(grid.grid().cellBkg(2, 1), QString());

        // Alt+Return is the Option-click.
        grid.setCurrentCell(1, 1);
        QTest::keyClick(&grid, Qt::Key_Return, Qt::AltModifier);
        QCOMPARE(grid.grid().cellBkg(1, 1), QStringLiteral("Y"));
        QCOMPARE(driver.opened, 2);
        QCOMPARE(driver.unexpected, 0);
        QVERIFY(!grid.accessibleName().isEmpty());
    }

    void insertedColumnWidensTheGrid()
    {
        GridEnv env;
        BBScoringLB grid;
        loadTeam(grid.grid(), 9);
        fillColumn(grid.grid(), 0, {"FO/R", "B1/G", "B1", "GO/R", "B1", "B1", "BB", "B1"});
        grid.show();
        QVERIFY(QTest::qWaitForWindowExposed(&grid));
        QSignalSpy added(&grid, &BBScoringLB::columnAdded); // the game screen resizes the grid on it
        const int width = grid.width();

        PopoverDriver driver;
        driver.actions = {pickIn(u"batActionLB"_s, 0, 1)};
        QTest::mouseClick(&grid, Qt::LeftButton, {}, cellCentre(grid, 8, 0)); // B2: the order went round
        QCOMPARE(added.count(), 1);
        QCOMPARE(grid.width(), width + gameday::kInsertedColumnWidth); // the grid grows by the new column
        QCOMPARE(grid.grid().heading(1), QStringLiteral("1a"));
    }

    void autoFillMarksAndResult()
    {
        GridEnv env;
        BBScoringLB grid;
        loadTeam(grid.grid(), 9);
        fillColumn(grid.grid(), 0, {"B1/G", "KS/R", "HR/G", "GO/R", "FO/R"});
        grid.show();
        QVERIFY(QTest::qWaitForWindowExposed(&grid));
        PopoverDriver driver;

        grid.grid().setAutoFillMode(true);
        QTest::mouseClick(&grid, Qt::LeftButton, {}, cellCentre(grid, 1, 0));
        // The first mark is outlined in blue while the coach looks for the second.
        const QRect cell = grid.renderer().cellRect(1, 0);
        QCOMPARE(grid.grab().toImage().pixelColor(cell.left() + 2, cell.center().y()), QColor::fromRgb(0x1F5FD0));
        QTest::mouseClick(&grid, Qt::LeftButton, {}, cellCentre(grid, 4, 0));

        QCOMPARE(driver.opened, 0);
        QCOMPARE(grid.grid().autoClickCount(), 2);
        grid.grid().reinitAutoVars();
        QCOMPARE(grid.grab().toImage().pixelColor(cell.left() + 2, cell.center().y()), QColor::fromRgb(0xFF5765));
    }
};

QTEST_MAIN(TestGridWidget)
#include "tst_gridwidget.moc"
