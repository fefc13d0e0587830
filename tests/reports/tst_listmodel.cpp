// The list's contents without a widget: sorting, moving rows, the column
// widths text and what a drag carries.

#include "reports/ColumnWidths.h"
#include "reports/ListBoxModel.h"

#include <QMimeData>
#include <QTest>

class TestListModel : public QObject
{
    Q_OBJECT

private:
    static QStringList column(const ListBoxModel &model, int c)
    {
        QStringList out;
        for (int r = 0; r < model.rowCount(); ++r)
            out.append(model.cell(r, c));
        return out;
    }

private Q_SLOTS:
    void sortIsStableAndKeepsTags()
    {
        ListBoxModel model;
        model.addRows({{"Owls", ".500"}, {"Elks", ".750"}, {"Ants", ".500"}, {"Bees", ".500"}}, {"1", "2", "3", "4"});
        model.sort(1, Qt::DescendingOrder);
        // Equal percentages keep the order they had.
        QCOMPARE(column(model, 0), (QStringList{"Elks", "Owls", "Ants", "Bees"}));
        QCOMPARE(model.rowTag(0), QStringLiteral("2"));
        QCOMPARE(model.rowTag(3), QStringLiteral("4"));
        model.sort(-1);
        QCOMPARE(column(model, 0), (QStringList{"Elks", "Owls", "Ants", "Bees"}));
    }

    // The list moves rows only within range; the model refuses the rest itself.
    void moveRowsOutOfRange()
    {
        ListBoxModel model;
        model.addRows({{"a"}, {"b"}, {"c"}});
        QVERIFY(!model.moveListRow(1, 3));
        QVERIFY(!model.moveListRow(-1, 0));
        QVERIFY(model.moveListRow(2, 2));
        QCOMPARE(column(model, 0), (QStringList{"a", "b", "c"}));
    }

    void cellsBeyondARowsTextsAreEmpty()
    {
        ListBoxModel model;
        model.setHeadings({"A", "B", "C"});
        model.addRow({"only"});
        QCOMPARE(model.rowCells(0), (QStringList{"only", "", ""}));
        model.setCell(0, 2, "c");
        QCOMPARE(model.rowCells(0), (QStringList{"only", "", "c"}));
        // A wider row widens the list.
        model.addRow({"1", "2", "3", "4"});
        QCOMPARE(model.columnCount(), 4);
        QCOMPARE(model.headings(), (QStringList{"A", "B", "C", ""}));
    }

    void dragCarriesItsList()
    {
        ListBoxModel model;
        model.addRows({{"a", "1"}, {"b", "2"}});
        model.setRowsMovable(true);
        std::unique_ptr<QMimeData> mime(model.mimeData({model.index(1, 0), model.index(1, 1)}));
        QCOMPARE(model.draggedRow(mime.get()), 1);
        QCOMPARE(mime->text(), QStringLiteral("b\t2"));
        QVERIFY(model.canDropMimeData(mime.get(), Qt::MoveAction, 0, 0, {}));
        QVERIFY(!model.canDropMimeData(mime.get(), Qt::CopyAction, 0, 0, {}));
        QMimeData text;
        text.setText("b\t2");
        QCOMPARE(model.draggedRow(&text), -1);
    }

    void resolveWidths_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("available");
        QTest::addColumn<QList<int>>("widths");
        QTest::newRow("star after fixed and percent") << "100,10%,*" << 500 << QList<int>{100, 50, 350};
        QTest::newRow("too narrow: stars get nothing") << "300,300,*" << 500 << QList<int>{300, 300, 0};
        QTest::newRow("decimals and units") << "12.5,40pt,*" << 100 << QList<int>{13, 40, 47};
        QTest::newRow("extra entries ignored") << "10,20,30,40" << 500 << QList<int>{10, 20, 30};
    }
    void resolveWidths()
    {
        QFETCH(QString, text);
        QFETCH(int, available);
        QFETCH(QList<int>, widths);
        QCOMPARE(ColumnWidths::resolve(text, int(widths.size()), available), widths);
    }
};

QTEST_GUILESS_MAIN(TestListModel)
#include "tst_listmodel.moc"
