// The report chooser and the report window driven as a coach would: the
// chosen columns, the filters, the heading sort, print and export.

#include "ReportsFixture.h"
#include "app/ui/MainMenuBar.h"
#include "app/ui/startScrn1.h"
#include "fakes/Golden.h"
#include "fakes/TestKit.h"
#include "fakes/TestSupport.h"
#include "reports/ui/qlmListBox.h"
#include "reports/ui/reportIntroScrn.h"
#include "reports/ui/reportScrn.h"
#include "support/ui/qlmCheckBox.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QHeaderView>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QTest>

namespace {

template<class W>
W *shown()
{
    for (QWidget *w : QApplication::topLevelWidgets()) {
        if (auto *found = qobject_cast<W *>(w); found && found->isVisible())
            return found;
    }
    return nullptr;
}

void closeAll()
{
    for (QWidget *w : QApplication::topLevelWidgets())
        w->deleteLater();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

QStringList checkedRows(const qlmListBox *list)
{
    QStringList out;
    for (int r = 0; r < list->rowCount(); ++r) {
        if (list->cellCheck(r, 0))
            out.append(list->cell(r, 1));
    }
    return out;
}

QStringList column(const qlmListBox *list, int c)
{
    QStringList out;
    for (int r = 0; r < list->rowCount(); ++r)
        out.append(list->cell(r, c));
    return out;
}

// Three batters of the Eagles and one of the Owls.
struct BattingSeason : ReportsFixture
{
    qint64 eagles = addTeam("Eagles", "North", "East");
    qint64 owls = addTeam("Owls", "North", "West");
    BattingSeason()
    {
        addSeasonRow("Hitting", addPlayer(eagles, "Al", "Ames"), eagles,
                     {{"AB", 10}, {"B1", 2}, {"B2", 1}, {"HR", 1}, {"BB", 2}, {"KS", 3}, {"Runs", 2}, {"RBI", 3}});
        addSeasonRow("Hitting", addPlayer(owls, "Bo", "Bell"), owls, {{"AB", 4}, {"B1", 1}, {"KL", 1}});
        addSeasonRow("Hitting", addPlayer(eagles, "Dan", "O'Neil"), eagles, {{"AB", 3}, {"B3", 1}, {"BB", 1}});
    }
};

// The chooser's control `name` of list `which` (0 batting, 1 fielding, 2 pitching).
template<class T>
T *listCtl(const QWidget *intro, const char *name, int which)
{
    return testkit::child<T>(intro, qPrintable(QString::fromLatin1(name) + QString::number(which)));
}

// Opens the batting report with the default columns, through the chooser.
reportScrn *openBattingReport()
{
    auto *intro = new reportIntroScrn;
    intro->show();
    QTest::mouseClick(listCtl<QPushButton>(intro, "viewBtn", 0), Qt::LeftButton);
    return shown<reportScrn>();
}

} // namespace

class TestReportScreens : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { closeAll(); }

    void defaultChecks_data()
    {
        QTest::addColumn<int>("which");
        QTest::addColumn<QStringList>("checked");
        QTest::addColumn<QStringList>("fixed");
        QTest::newRow("batting") << 0 << QStringList{"B1", "B2", "B3", "HR", "BB", "KS", "KL", "Runs", "RBI"}
                                 << QStringList{"AB", "Avg", "OBP", "SP"};
        QTest::newRow("fielding") << 1 << QStringList{"IP", "CH", "PO", "Asst", "FE", "TE"} << QStringList{"FPct"};
        QTest::newRow("pitching") << 2 << QStringList{"Win", "Loss",  "Save", "ND",   "Start",  "ShO", "CG",   "Balls",
                                                      "Ks",  "PitCt", "IP",   "Hits", "ErRuns", "BB",  "Kouts"}
                                  << QStringList{"ERA"};
    }
    // The defaults, "All" and back, a check by keyboard, and the columns a
    // view button hands the report.
    void defaultChecks()
    {
        QFETCH(int, which);
        QFETCH(QStringList, checked);
        QFETCH(QStringList, fixed);
        ReportsFixture f;
        auto *intro = new reportIntroScrn;
        intro->show();
        auto *list = listCtl<qlmListBox>(intro, "statsLB", which);
        QCOMPARE(checkedRows(list), checked);
        for (int r = 0; r < fixed.size(); ++r) {
            QCOMPARE(list->cell(r, 1), fixed.at(r));
            QCOMPARE(list->cell(r, 0), QStringLiteral("\u2714"));
        }

        QTest::mouseClick(listCtl<qlmCheckBox>(intro, "checkAll", which), Qt::LeftButton);
        QCOMPARE(checkedRows(list).size(), list->rowCount());
        QTest::mouseClick(listCtl<qlmCheckBox>(intro, "checkAll", which), Qt::LeftButton);
        QCOMPARE(checkedRows(list), checked);

        // Space flips a chosen row; a fixed row stays in the report.
        const int last = list->rowCount() - 1;
        list->setSelectedRow(last);
        QTest::keyClick(list, Qt::Key_Space);
        QVERIFY(list->cellCheck(last, 0));
        list->setSelectedRow(0);
        QTest::keyClick(list, Qt::Key_Space);
        QVERIFY(!list->cellCheck(0, 0));

        QTest::mouseClick(listCtl<QPushButton>(intro, "viewBtn", which), Qt::LeftButton);
        reportScrn *report = shown<reportScrn>();
        QVERIFY(report);
        QVERIFY(!intro->isVisible());
        QVERIFY(!startScrn1::instance() || !startScrn1::instance()->isVisible());
        QCOMPARE(testkit::child<qlmListBox>(report, "reportBox")->headings(),
                 QStringList({"First Name", "Last Name", "Team"}) + fixed + checked + QStringList{list->cell(last, 1)});
    }

    void battingWithNothingTicked()
    {
        BattingSeason f;
        auto *intro = new reportIntroScrn;
        intro->show();
        auto *batting = listCtl<qlmListBox>(intro, "statsLB", 0);
        for (int r = 0; r < batting->rowCount(); ++r)
            batting->setCellCheck(r, 0, false);
        QTest::mouseClick(listCtl<QPushButton>(intro, "viewBtn", 0), Qt::LeftButton);
        reportScrn *report = shown<reportScrn>();
        QVERIFY(report);
        QCOMPARE(testkit::child<qlmListBox>(report, "reportBox")->headings(),
                 (QStringList{"First Name", "Last Name", "Team", "AB", "Avg", "OBP", "SP"}));
        QCOMPARE(testkit::child<qlmListBox>(report, "reportBox")->rowCells(0),
                 (QStringList{"Al", "Ames", "Eagles", "10", ".400", ".500", ".800"}));
        QCOMPARE(testkit::child<QLabel>(report, "titleLbl")->text(), QStringLiteral("Batting"));
    }

    void exportMatchesGoldenFile()
    {
        BattingSeason f;
        reportScrn *report = openBattingReport();
        QVERIFY(report);
        const QString path = f.home.filePath(QStringLiteral("export.txt"));
        f.platform.files.answers.enqueue(path);
        report->menus()->item(QStringLiteral("FileExport"))->trigger();
        QCOMPARE(f.platform.files.calls.size(), 1);
        QCOMPARE(f.platform.files.calls.first().request.suggestedName, QStringLiteral("Batting Report"));
        QFile written(path);
        QVERIFY(written.open(QIODevice::ReadOnly));
        TL_COMPARE_GOLDEN(QStringLiteral("reports/batting_export.txt"), written.readAll());
    }

    void filtersAndHeadingSort()
    {
        BattingSeason f;
        reportScrn *report = openBattingReport();
        QVERIFY(report);
        qlmListBox *list = testkit::child<qlmListBox>(report, "reportBox");
        QCOMPARE(column(list, 1), (QStringList{"Ames", "Bell", "O'Neil"}));

        // A first click on "Avg" sorts the best first, and that order holds
        // under a filter; the keyboard sorts as the clicks do.
        const int avg = 4;
        QCOMPARE(list->model()->headerData(avg, Qt::Horizontal, Qt::AccessibleDescriptionRole).toString(),
                 QStringLiteral("Batting Average"));
        QCOMPARE(list->model()->headerData(avg, Qt::Horizontal, Qt::ToolTipRole).toString(),
                 QStringLiteral("Batting Average"));
        QTest::mouseClick(list->header()->viewport(), Qt::LeftButton, {},
                          QPoint(list->header()->sectionViewportPosition(avg) + 5, 5));
        QCOMPARE(column(list, avg), (QStringList{".400", ".333", ".250"}));
        testkit::child<QComboBox>(report, "teamFilter")
            ->setCurrentIndex(testkit::child<QComboBox>(report, "teamFilter")->findText("Eagles"));
        QCOMPARE(column(list, 1), (QStringList{"Ames", "O'Neil"}));
        testkit::child<QComboBox>(report, "teamFilter")->setCurrentIndex(0);
        list->setFocus();
        QTest::keyClick(list, Qt::Key_Left, Qt::ControlModifier); // at bats, most first
        QCOMPARE(column(list, 3), (QStringList{"10", "4", "3"}));
        QTest::keyClick(list, Qt::Key_Left, Qt::ControlModifier); // the team, A to Z
        QCOMPARE(column(list, 2), (QStringList{"Eagles", "Eagles", "Owls"}));
        QTest::keyClick(list, Qt::Key_Down, Qt::ControlModifier);
        QCOMPARE(column(list, 2), (QStringList{"Owls", "Eagles", "Eagles"}));
        testkit::child<QComboBox>(report, "teamFilter")
            ->setCurrentIndex(testkit::child<QComboBox>(report, "teamFilter")->findText("Eagles"));

        testkit::child<QComboBox>(report, "DivisionFilter")
            ->setCurrentIndex(testkit::child<QComboBox>(report, "DivisionFilter")->findText("West"));
        QCOMPARE(list->rowCount(), 0);
        testkit::child<QComboBox>(report, "teamFilter")->setCurrentIndex(0);
        QCOMPARE(column(list, 1), (QStringList{"Bell"}));
        testkit::child<QComboBox>(report, "leagueFilter")
            ->setCurrentIndex(testkit::child<QComboBox>(report, "leagueFilter")->findText("North"));
        testkit::child<QComboBox>(report, "DivisionFilter")->setCurrentIndex(0);
        QCOMPARE(list->rowCount(), 3);

        // The order follows its heading into the other set of columns: the
        // modern rates have no "Avg" (OPS stands in its place), but a team.
        QTest::mouseClick(list->header()->viewport(), Qt::LeftButton, {},
                          QPoint(list->header()->sectionViewportPosition(avg) + 5, 5));
        auto *columnSet = testkit::child<QComboBox>(report, "columnSetPop");
        columnSet->setCurrentIndex(1);
        QCOMPARE(list->header()->sortIndicatorSection(), -1);
        QCOMPARE(column(list, 1), (QStringList{"Ames", "Bell", "O'Neil"}));
        list->setFocus();
        QTest::keyClick(list, Qt::Key_Right, Qt::ControlModifier); // the first heading: first names
        QTest::keyClick(list, Qt::Key_Right, Qt::ControlModifier);
        QTest::keyClick(list, Qt::Key_Right, Qt::ControlModifier); // the team, A to Z
        QTest::keyClick(list, Qt::Key_Down, Qt::ControlModifier);
        columnSet->setCurrentIndex(0);
        QCOMPARE(column(list, 2), (QStringList{"Owls", "Eagles", "Eagles"}));
    }

    // Wide print in landscape: the report's lines, or "No Data Available"
    // when the filters leave none.
    void print()
    {
        BattingSeason f;
        reportScrn *report = openBattingReport();
        QVERIFY(report);
        report->menus()->item(QStringLiteral("FilePrint"))->trigger();
        testkit::child<QComboBox>(report, "DivisionFilter")
            ->setCurrentIndex(testkit::child<QComboBox>(report, "DivisionFilter")->findText("West"));
        testkit::child<QComboBox>(report, "teamFilter")
            ->setCurrentIndex(testkit::child<QComboBox>(report, "teamFilter")->findText("Eagles"));
        report->menus()->item(QStringLiteral("FilePrint"))->trigger();
        QCOMPARE(f.platform.printing.printed.size(), 2);
        const QString full = fakes::pdfText(f.platform.printing.printed.at(0));
        QVERIFY(full.contains(QStringLiteral("Batting Report")));
        QVERIFY(full.contains(QStringLiteral("O'Neil")));
        QVERIFY(!full.contains(QStringLiteral("No Data Available")));
        QVERIFY(fakes::pdfText(f.platform.printing.printed.at(1)).contains(QStringLiteral("No Data Available")));
        QVERIFY(!report->menus()->item(QStringLiteral("Help"))->isEnabled());
        QVERIFY(!report->menus()->item(QStringLiteral("Abbrev"))->isEnabled());
    }

    void newReportAndClose()
    {
        ReportsFixture f;
        reportScrn *report = openBattingReport();
        QVERIFY(report);
        QCOMPARE(testkit::child<qlmListBox>(report, "reportBox")->rowCount(), 0);
        QTest::mouseClick(testkit::child<QPushButton>(report, "newRptBtn"), Qt::LeftButton);
        QVERIFY(shown<reportIntroScrn>());
        QVERIFY(!startScrn1::instance() || !startScrn1::instance()->isVisible());

        QTest::mouseClick(listCtl<QPushButton>(shown<reportIntroScrn>(), "viewBtn", 2), Qt::LeftButton);
        report = shown<reportScrn>();
        QCOMPARE(testkit::child<QLabel>(report, "titleLbl")->text(), QStringLiteral("Pitching"));
        QTest::mouseClick(testkit::child<QPushButton>(report, "closeBtn"), Qt::LeftButton);
        QVERIFY(!shown<reportIntroScrn>());
        QVERIFY(startScrn1::instance() && startScrn1::instance()->isVisible());
    }
};

QTEST_MAIN(TestReportScreens)
#include "tst_reportscreens.moc"
