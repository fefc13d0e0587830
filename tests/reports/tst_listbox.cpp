// The list box on screen: rows, headings, widths, tags, selection, editing,
// check boxes, the shaded even rows and reordering by drag and by keyboard.

#include "fakes/FakePlatform.h"
#include "reports/ui/qlmListBox.h"

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QHeaderView>
#include <QLineEdit>
#include <QMimeData>
#include <QSignalSpy>
#include <QTest>

// Drag events reach a widget only through a window's drag session, which a
// headless test can't start; the test hands the events over directly.
class DropTarget : public qlmListBox
{
public:
    using qlmListBox::dragMoveEvent;
    using qlmListBox::dropEvent;
};

class TestListBox : public QObject
{
    Q_OBJECT

private:
    // A shown list of the team screen's shape: school, team, home mark.
    static std::unique_ptr<qlmListBox> teamList()
    {
        auto list = std::make_unique<qlmListBox>();
        list->setHeadings({"School", "Team", "H"});
        list->addRow({"Central High", "Eagles", "X"}, "7");
        list->addRow({"O'Brien's Academy", "Owls"}, "12");
        list->addRow({"West", "Wolves", ""}, "3");
        list->addRow({"East", "Elks", ""}, "4");
        list->resize(400, 300);
        list->show();
        list->activateWindow();
        if (!QTest::qWaitForWindowActive(list.get()))
            qWarning("the list window did not become active");
        return list;
    }
    static QPoint cellCenter(qlmListBox &list, int row, int column)
    {
        return list.visualRect(list.model()->index(row, column)).center();
    }

private Q_SLOTS:
    void modelPassesQtsChecks()
    {
        ListBoxModel model;
        QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        model.setHeadings({"A", "B"});
        model.addRow({"1", "2"}, "t1");
        model.addRows({{"3"}, {"4", "5", "6"}}, {"t2"});
        model.insertRow(0, {"0"}, "t0");
        model.setRowsMovable(true);
        QVERIFY(model.moveListRow(0, 3));
        model.sort(0, Qt::DescendingOrder);
        model.removeRows(1, 2);
        model.deleteAllRows();
        QCOMPARE(model.rowCount(), 0);
    }

    void rowsCellsAndTags()
    {
        auto list = teamList();
        QCOMPARE(list->rowCount(), 4);
        QCOMPARE(list->columnCount(), 3);
        QCOMPARE(list->rowCells(1), (QStringList{"O'Brien's Academy", "Owls", ""}));
        QCOMPARE(list->rowTag(1), QStringLiteral("12"));
        list->setCellTag(0, 2, "opp-9");
        QCOMPARE(list->cellTag(0, 2), QStringLiteral("opp-9"));
        list->insertRow(1, {"North", "Nets"}, "20");
        QCOMPARE(list->rowTag(2), QStringLiteral("12"));
        list->removeRow(0);
        QCOMPARE(list->cell(0, 0), QStringLiteral("North"));
        QCOMPARE(list->model()->headerData(1, Qt::Horizontal).toString(), QStringLiteral("Team"));
        list->deleteAllRows();
        QCOMPARE(list->rowCount(), 0);
        QCOMPARE(list->selectedRow(), -1);
    }

    void evenRowsAreShaded()
    {
        auto list = teamList();
        list->setSelectedRow(2);
        const QColor shade(237, 243, 254);
        QCOMPARE(ListBoxModel::evenRowColor(), shade);
        const QImage shot = list->viewport()->grab().toImage();
        // Away from the text, at the right end of each row.
        auto colourAt = [&](int row) {
            const QRect r = list->visualRect(list->model()->index(row, 2));
            return shot.pixelColor(r.right() - 2, r.center().y());
        };
        QCOMPARE(colourAt(0), shade);
        QVERIFY(colourAt(1) != shade);
        // Selected: the highlight wins.
        QVERIFY(colourAt(2) != shade);
        QVERIFY(colourAt(2) != colourAt(1));
        QVERIFY(colourAt(3) != shade);
    }

    void columnWidths_data()
    {
        QTest::addColumn<QString>("widths");
        QTest::addColumn<QList<int>>("expected");
        QTest::newRow("percent") << "25%,50%,25%" << QList<int>{100, 200, 100};
        QTest::newRow("stars share the rest") << "100,*,3*" << QList<int>{100, 75, 225};
        QTest::newRow("none: equal") << "" << QList<int>{133, 133, 134};
    }
    void columnWidths()
    {
        QFETCH(QString, widths);
        QFETCH(QList<int>, expected);
        auto list = teamList();
        // The shares are of the width inside the frame.
        list->resize(list->width() + 400 - list->viewport()->width(), list->height());
        QCOMPARE(list->viewport()->width(), 400);
        list->setColumnWidths(widths);
        QList<int> got;
        for (int c = 0; c < 3; ++c)
            got.append(list->header()->sectionSize(c));
        QCOMPARE(got, expected);
        QCOMPARE(list->columnWidths(), widths);
    }

    void selectionAndClicks()
    {
        auto list = teamList();
        QSignalSpy changed(list.get(), &qlmListBox::rowSelectionChanged);
        QSignalSpy clicked(list.get(), &qlmListBox::cellClicked);
        QSignalSpy doubled(list.get(), &qlmListBox::rowDoubleClicked);
        // A double click is a press, a release and a second press that reads as the double.
        QTest::mousePress(list->viewport(), Qt::LeftButton, {}, cellCenter(*list, 3, 0));
        QTest::mouseRelease(list->viewport(), Qt::LeftButton, {}, cellCenter(*list, 3, 0));
        QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, cellCenter(*list, 3, 0));
        QCOMPARE(doubled.size(), 1);
        QCOMPARE(doubled.first().first().toInt(), 3);
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, cellCenter(*list, 1, 2));
        QCOMPARE(list->selectedRow(), 1);
        QVERIFY(!clicked.isEmpty());
        QCOMPARE(clicked.last(), (QVariantList{1, 2}));
        QVERIFY(changed.size() >= 1);
        // The keyboard moves the selection too.
        list->setFocus();
        QTest::keyClick(list.get(), Qt::Key_Down);
        QCOMPARE(list->selectedRow(), 2);

        list->setMultipleSelection(true);
        list->setRowSelected(0, true);
        QCOMPARE(list->selectedRows(), (QList<int>{0, 2}));
        QVERIFY(list->isRowSelected(0));
        list->setRowSelected(2, false);
        QCOMPARE(list->selectedRows(), (QList<int>{0}));
        list->setSelectedRow(-1);
        QCOMPARE(list->selectedRow(), -1);
    }

    void editableCells()
    {
        auto list = teamList();
        QSignalSpy edited(list.get(), &qlmListBox::cellEdited);
        list->setColumnType(1, qlmListBox::CellType::Editable);
        // Column 0 stays read-only.
        list->editCell(0, 0);
        QVERIFY(!list->isEditingCell());
        list->editCell(0, 1);
        QVERIFY(list->isEditingCell());
        auto *editor = qobject_cast<QLineEdit *>(list->indexWidget(list->currentIndex()));
        QVERIFY(editor);
        editor->selectAll();
        QTest::keyClicks(editor, "hawks");
        QTest::keyClick(editor, Qt::Key_Return);
        QTRY_VERIFY(!list->isEditingCell());
        QCOMPARE(list->cell(0, 1), QStringLiteral("hawks"));
        QCOMPARE(edited.size(), 1);
        QCOMPARE(edited.first(), (QVariantList{0, 1}));
        // Changes by the program are not the user's edits.
        list->setCell(1, 1, "Otters");
        QCOMPARE(edited.size(), 1);
    }

    void cellKeyHandlerSeesKeysFirst()
    {
        auto list = teamList();
        list->setColumnType(1, qlmListBox::CellType::Editable);
        list->setCell(2, 1, "4");
        QList<int> seen;
        list->setCellKeyHandler([&](int row, int column, QKeyEvent *event) {
            seen.append(event->key());
            if (event->text() == u"+") {
                list->setEditorText(QString::number(list->editorText().toInt() + 1));
                return true;
            }
            if (event->key() == Qt::Key_Return) {
                list->editCell(row - 1, 1);
                return true;
            }
            if (event->key() == Qt::Key_Tab) {
                QMetaObject::invokeMethod(
                    list.get(), [&list, row] { list->editCell(row + 1, 1); }, Qt::QueuedConnection);
                return false;
            }
            return column != 1;
        });
        list->editCell(2, 1);
        QWidget *editor = list->indexWidget(list->currentIndex());
        QVERIFY(editor);
        QTest::keyClick(editor, '+');
        QTest::keyClick(editor, '+');
        QCOMPARE(list->editorText(), QStringLiteral("6"));
        QTest::keyClick(editor, Qt::Key_Tab);
        QCOMPARE(seen.last(), int(Qt::Key_Tab));
        QTRY_COMPARE(list->cell(2, 1), QStringLiteral("6"));
        QTRY_VERIFY(list->isEditingCell());
        QCOMPARE(list->currentIndex().row(), 3);
        // Moving on at once from inside the handler keeps the typed text.
        editor = list->indexWidget(list->currentIndex());
        QTest::keyClick(editor, '+');
        QTest::keyClick(editor, Qt::Key_Return);
        QVERIFY(list->isEditingCell());
        QCOMPARE(list->currentIndex().row(), 2);
        QCOMPARE(list->cell(3, 1), QStringLiteral("1"));
        QCOMPARE(list->editorText(), QStringLiteral("6"));
    }

    void checkBoxCells()
    {
        auto list = teamList();
        QSignalSpy edited(list.get(), &qlmListBox::cellEdited);
        list->setColumnType(2, qlmListBox::CellType::CheckBox);
        list->setCellType(3, 2, qlmListBox::CellType::Normal);
        list->setCellCheck(1, 2, true);
        QVERIFY(list->cellCheck(1, 2));
        QCOMPARE(list->model()->index(1, 2).data(Qt::CheckStateRole).toInt(), int(Qt::Checked));
        QVERIFY(!list->model()->index(3, 2).data(Qt::CheckStateRole).isValid());
        // Space on the focused row toggles its check box.
        list->setFocus();
        list->setCurrentIndex(list->model()->index(0, 2));
        QTest::keyClick(list.get(), Qt::Key_Space);
        QVERIFY(list->cellCheck(0, 2));
        QCOMPARE(edited.size(), 1);
        QCOMPARE(edited.first(), (QVariantList{0, 2}));
    }

    void headerSort()
    {
        auto list = teamList();
        list->setCell(0, 2, "10");
        list->setCell(1, 2, "9");
        list->setCell(2, 2, "b");
        list->setCell(3, 2, "A");
        list->setHeaderSortAllowed(true);
        // Allowing it sorts nothing yet.
        QCOMPARE(list->rowTag(0), QStringLiteral("7"));
        QTest::mouseClick(list->header()->viewport(), Qt::LeftButton, {},
                          QPoint(list->header()->sectionViewportPosition(2) + 5, 5));
        QStringList tags;
        for (int r = 0; r < list->rowCount(); ++r)
            tags.append(list->rowTag(r));
        // Numbers by value and before texts; texts without regard to case.
        QCOMPARE(tags, (QStringList{"12", "7", "4", "3"}));
        list->sortByColumnText(0, Qt::DescendingOrder);
        QCOMPARE(list->cell(0, 0), QStringLiteral("West"));
    }

    // Moving rows by keyboard is driven through the schedule and the game
    // day's lineup; a list whose rows can't move only moves its selection.
    void noKeyboardReorderUnlessMovable()
    {
        auto list = teamList();
        QSignalSpy moved(list.get(), &qlmListBox::rowMoved);
        list->setFocus();
        list->setSelectedRow(1);
        QTest::keyClick(list.get(), Qt::Key_Down, Qt::AltModifier);
        QCOMPARE(moved.size(), 0);
        QCOMPARE(list->rowTag(1), QStringLiteral("12"));
    }

    void reorderByDrop_data()
    {
        QTest::addColumn<int>("from");
        QTest::addColumn<int>("dropRow");
        QTest::addColumn<bool>("lowerHalf");
        QTest::addColumn<int>("to");
        QTest::addColumn<QStringList>("tags");
        QTest::newRow("down, onto the upper half") << 0 << 2 << false << 1 << QStringList{"12", "7", "3", "4"};
        QTest::newRow("down, onto the lower half") << 0 << 2 << true << 2 << QStringList{"12", "3", "7", "4"};
        QTest::newRow("up to the top") << 3 << 0 << false << 0 << QStringList{"4", "7", "12", "3"};
        QTest::newRow("below the last row") << 1 << -1 << false << 3 << QStringList{"7", "3", "4", "12"};
    }
    void reorderByDrop()
    {
        QFETCH(int, from);
        QFETCH(int, dropRow);
        QFETCH(bool, lowerHalf);
        QFETCH(int, to);
        QFETCH(QStringList, tags);
        DropTarget list;
        list.setHeadings({"School", "Team", "H"});
        const QStringList start{"7", "12", "3", "4"};
        for (const QString &tag : start)
            list.addRow({"School " + tag, "Team " + tag}, tag);
        list.resize(400, 300);
        list.show();
        QVERIFY(QTest::qWaitForWindowExposed(&list));
        list.setRowsMovable(true);
        list.setSelectedRow(from);
        QSignalSpy moved(&list, &qlmListBox::rowMoved);
        QPoint at;
        if (dropRow < 0) {
            at = QPoint(20, list.visualRect(list.model()->index(list.rowCount() - 1, 0)).bottom() + 30);
        } else {
            const QRect r = list.visualRect(list.model()->index(dropRow, 0));
            at = QPoint(r.center().x(), lowerHalf ? r.bottom() - 2 : r.top() + 2);
        }
        // What a drag of the row carries, as the view's own drag makes it.
        std::unique_ptr<QMimeData> mime(list.model()->mimeData({list.model()->index(from, 0)}));
        // Another list's row is refused on the way in and at the drop.
        ListBoxModel other;
        other.addRows({{"x"}, {"y"}, {"z"}, {"w"}});
        std::unique_ptr<QMimeData> foreign(other.mimeData({other.index(from, 0)}));
        QDragMoveEvent foreignMove(at, Qt::MoveAction, foreign.get(), Qt::LeftButton, {});
        list.dragMoveEvent(&foreignMove);
        QVERIFY(!foreignMove.isAccepted());
        QDropEvent foreignDrop(at, Qt::MoveAction, foreign.get(), Qt::LeftButton, {}, QEvent::Drop);
        list.dropEvent(&foreignDrop);
        QCOMPARE(moved.size(), 0);

        QDragMoveEvent move(at, Qt::MoveAction, mime.get(), Qt::LeftButton, {});
        list.dragMoveEvent(&move);
        QVERIFY(move.isAccepted());
        QDropEvent drop(at, Qt::MoveAction, mime.get(), Qt::LeftButton, {}, QEvent::Drop);
        list.dropEvent(&drop);
        QCOMPARE(moved.size(), 1);
        QCOMPARE(moved.first(), (QVariantList{from, to}));
        QStringList got;
        for (int r = 0; r < list.rowCount(); ++r)
            got.append(list.rowTag(r));
        QCOMPARE(got, tags);
        QCOMPARE(list.selectedRow(), to);
        QCOMPARE(list.cell(to, 0), "School " + start.at(from));
        // Answered as "ignore", so the drag's source removes nothing afterwards.
        QCOMPARE(drop.dropAction(), Qt::IgnoreAction);
    }
};

QTEST_MAIN(TestListBox)
#include "tst_listbox.moc"
