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
    void sort_data()
    {
        QTest::addColumn<QStringList>("cells");
        QTest::addColumn<Qt::SortOrder>("order");
        QTest::addColumn<QStringList>("sorted");
        QTest::newRow("numbers by value") << QStringList{"10", "9", "-1", "100"} << Qt::AscendingOrder
                                          << QStringList{"-1", "9", "10", "100"};
        QTest::newRow("percentages as shown") << QStringList{".500", "1.000", ".333", ".000"} << Qt::DescendingOrder
                                              << QStringList{"1.000", ".500", ".333", ".000"};
        QTest::newRow("text ignores case, numbers first") << QStringList{"b", "A", "3", "a2"} << Qt::AscendingOrder
                                                          << QStringList{"3", "A", "a2", "b"};
    }
    void sort()
    {
        QFETCH(QStringList, cells);
        QFETCH(Qt::SortOrder, order);
        QFETCH(QStringList, sorted);
        ListBoxModel model;
        for (const QString &c : cells)
            model.addRow({c});
        model.sort(0, order);
        QCOMPARE(column(model, 0), sorted);
    }

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

    void moveRows_data()
    {
        QTest::addColumn<int>("from");
        QTest::addColumn<int>("to");
        QTest::addColumn<QString>("order");
        QTest::newRow("down") << 0 << 2 << "bcad";
        QTest::newRow("up") << 3 << 1 << "adbc";
        QTest::newRow("to the end") << 1 << 3 << "acdb";
        QTest::newRow("in place") << 2 << 2 << "abcd";
        QTest::newRow("out of range") << 1 << 4 << "abcd";
    }
    void moveRows()
    {
        QFETCH(int, from);
        QFETCH(int, to);
        QFETCH(QString, order);
        ListBoxModel model;
        model.addRows({{"a"}, {"b"}, {"c"}, {"d"}}, {"ta", "tb", "tc", "td"});
        model.setCellTag(from < 4 ? from : 0, 0, "cell");
        model.moveListRow(from, to);
        QCOMPARE(column(model, 0).join(QString()), order);
        for (int r = 0; r < 4; ++r)
            QCOMPARE(model.rowTag(r), "t" + model.cell(r, 0)); // tags travel with their rows
        if (to >= 0 && to < 4 && from < 4)
            QCOMPARE(model.cellTag(to, 0), QStringLiteral("cell"));
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
        ListBoxModel model, other;
        model.addRows({{"a", "1"}, {"b", "2"}});
        other.addRows({{"a", "1"}, {"b", "2"}});
        model.setRowsMovable(true);
        std::unique_ptr<QMimeData> mime(model.mimeData({model.index(1, 0), model.index(1, 1)}));
        QCOMPARE(model.draggedRow(mime.get()), 1);
        QCOMPARE(other.draggedRow(mime.get()), -1);
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
        QTest::newRow("percent of the width") << "27%,73%" << 500 << QList<int>{135, 365};
        QTest::newRow("star after fixed and percent") << "100,10%,*" << 500 << QList<int>{100, 50, 350};
        QTest::newRow("weighted stars") << "*,2*,*" << 400 << QList<int>{100, 200, 100};
        QTest::newRow("too narrow: stars get nothing") << "300,300,*" << 500 << QList<int>{300, 300, 0};
        QTest::newRow("extra entries ignored") << "10,20,30,40" << 500 << QList<int>{10, 20, 30};
    }
    void resolveWidths()
    {
        QFETCH(QString, text);
        QFETCH(int, available);
        QFETCH(QList<int>, widths);
        QCOMPARE(ColumnWidths::resolve(text, int(widths.size()), available), widths);
    }

    void leadingNumbers_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("value");
        QTest::newRow("plain") << "95" << 95.0;
        QTest::newRow("percent") << "27%" << 27.0;
        QTest::newRow("decimal and blanks") << " 12.5 " << 12.5;
        QTest::newRow("star") << "*" << 0.0;
        QTest::newRow("empty") << "" << 0.0;
        QTest::newRow("text after") << "40pt" << 40.0;
    }
    void leadingNumbers()
    {
        QFETCH(QString, text);
        QFETCH(double, value);
        QCOMPARE(ColumnWidths::leadingNumber(text), value);
    }
};

QTEST_GUILESS_MAIN(TestListModel)
#include "tst_listmodel.moc"
