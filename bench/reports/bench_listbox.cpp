// Filling a qlmListBox with 5,000 rows of 30 columns and painting it once,
// beside the leanest fair baseline: the same kind of view (a QTreeView set
// up as a flat list, as the list box is) over a minimal QAbstractTableModel
// holding the same rows, filled in one step. A QTableView over that model
// is printed too.
//
//   bench_listbox                 QBENCHMARK figures for each
//   bench_listbox ratio           both measured in turn in this run, and the ratio
//
// Run on the offscreen platform (QT_QPA_PLATFORM=offscreen) for figures that
// don't depend on a display.

#include "MinimalTableModel.h"
#include "reports/ui/qlmListBox.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QHeaderView>
#include <QTableView>
#include <QTest>
#include <QTreeView>

#include <algorithm>

namespace {

constexpr int rowCount = 5000;
constexpr int columnCount = 30;
const QSize viewSize(1200, 800);

struct Data
{
    QStringList headings;
    QList<QStringList> rows;
    QStringList tags;
};

const Data &data()
{
    static const Data d = [] {
        Data out;
        for (int c = 0; c < columnCount; ++c)
            out.headings.append(c < 2 ? QStringLiteral("Name %1").arg(c) : QStringLiteral("S%1").arg(c));
        out.rows.reserve(rowCount);
        for (int r = 0; r < rowCount; ++r) {
            QStringList cells;
            cells.reserve(columnCount);
            cells.append(QStringLiteral("Player%1").arg(r));
            cells.append(QStringLiteral("Team%1").arg(r % 12));
            for (int c = 2; c < columnCount; ++c)
                cells.append(QString::number((r * 31 + c * 7) % 1000 / 10.0, 'f', 3));
            out.rows.append(cells);
            out.tags.append(QString::number(r + 1));
        }
        return out;
    }();
    return d;
}

// Fills row by row, as the screens do, and paints the whole widget once.
void fillAndPaintListBox()
{
    qlmListBox list;
    list.resize(viewSize);
    list.setHeadings(data().headings);
    list.setColumnWidths(QStringLiteral("84,84") + QStringLiteral(",36").repeated(columnCount - 2));
    for (int r = 0; r < rowCount; ++r)
        list.addRow(data().rows.at(r), data().tags.at(r));
    const QPixmap shot = list.grab();
    Q_ASSERT(!shot.isNull());
}

void fillAndPaintListBoxInOneStep()
{
    qlmListBox list;
    list.resize(viewSize);
    list.setHeadings(data().headings);
    list.setColumnWidths(QStringLiteral("84,84") + QStringLiteral(",36").repeated(columnCount - 2));
    list.addRows(data().rows, data().tags);
    const QPixmap shot = list.grab();
    Q_ASSERT(!shot.isNull());
}

void fillAndPaintTreeView()
{
    bench::MinimalTableModel model;
    QTreeView view;
    view.setRootIsDecorated(false);
    view.setItemsExpandable(false);
    view.setUniformRowHeights(true);
    view.resize(viewSize);
    view.setModel(&model);
    model.setRows(data().headings, data().rows);
    view.header()->resizeSection(0, 84);
    view.header()->resizeSection(1, 84);
    for (int c = 2; c < columnCount; ++c)
        view.header()->resizeSection(c, 36);
    const QPixmap shot = view.grab();
    Q_ASSERT(!shot.isNull());
}

void fillAndPaintTableView()
{
    bench::MinimalTableModel model;
    QTableView view;
    view.resize(viewSize);
    view.setModel(&model);
    model.setRows(data().headings, data().rows);
    view.horizontalHeader()->resizeSection(0, 84);
    view.horizontalHeader()->resizeSection(1, 84);
    for (int c = 2; c < columnCount; ++c)
        view.horizontalHeader()->resizeSection(c, 36);
    const QPixmap shot = view.grab();
    Q_ASSERT(!shot.isNull());
}

template<typename F>
double timeMs(F f)
{
    QElapsedTimer t;
    t.start();
    f();
    return t.nsecsElapsed() / 1e6;
}

double median(QList<double> times)
{
    std::sort(times.begin(), times.end());
    return times.at(times.size() / 2);
}

} // namespace

class BenchListBox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { data(); }

    void listBoxRowByRow()
    {
        QBENCHMARK {
            fillAndPaintListBox();
        }
    }
    void listBoxInOneStep()
    {
        QBENCHMARK {
            fillAndPaintListBoxInOneStep();
        }
    }
    void minimalModelTableView()
    {
        QBENCHMARK {
            fillAndPaintTableView();
        }
    }

    // Both in turn, in this run, so the machine's load weighs on both alike.
    void ratio()
    {
        const int runs = 9;
        // A first pass of each warms caches and the font machinery.
        fillAndPaintListBox();
        fillAndPaintTreeView();
        fillAndPaintTableView();
        // Interleaved, round by round, so the machine's load weighs on all alike.
        QList<double> trees, tables, rowByRows, oneSteps;
        for (int i = 0; i < runs; ++i) {
            trees.append(timeMs(fillAndPaintTreeView));
            tables.append(timeMs(fillAndPaintTableView));
            rowByRows.append(timeMs(fillAndPaintListBox));
            oneSteps.append(timeMs(fillAndPaintListBoxInOneStep));
        }
        const double tree = median(trees), table = median(tables), rowByRow = median(rowByRows),
                     oneStep = median(oneSteps);
        qInfo("QTreeView + minimal table model:  %.1f ms (baseline)", tree);
        qInfo("QTableView + minimal table model: %.1f ms  (%.2fx)", table, table / tree);
        qInfo("qlmListBox, addRow per row:       %.1f ms  (%.2fx)", rowByRow, rowByRow / tree);
        qInfo("qlmListBox, addRows in one step:  %.1f ms  (%.2fx)", oneStep, oneStep / tree);
    }
};

QTEST_MAIN(BenchListBox)
#include "bench_listbox.moc"
