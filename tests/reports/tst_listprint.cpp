// The list printed to PDF through the fake printer and read back by position,
// the wide print's questions, and the export file byte for byte.

#include "app/globals.h"
#include "fakes/FakePlatform.h"
#include "fakes/TestKit.h"
#include "fakes/TestSupport.h"
#include "reports/ui/qlmListBox.h"

#include <QFile>
#include <QLocale>
#include <QPageSize>
#include <QProcess>
#include <QRegularExpression>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <QTest>

using platform::PrinterSetup;

namespace {

// Letter paper with even margins; landscape gives a printable area of
// 792 - 2m by 612 - 2m points.
PrinterSetup letter(bool landscape, qreal margin = 36)
{
    return PrinterSetup(QPageLayout(QPageSize(QPageSize::Letter),
                                    landscape ? QPageLayout::Landscape : QPageLayout::Portrait,
                                    QMarginsF(margin, margin, margin, margin), QPageLayout::Point));
}

QList<fakes::PdfWord> wordsOn(const QList<fakes::PdfWord> &words, int page)
{
    QList<fakes::PdfWord> out;
    for (const auto &w : words)
        if (w.page == page)
            out.append(w);
    return out;
}

const fakes::PdfWord *find(const QList<fakes::PdfWord> &words, const QString &text, int page = 1)
{
    for (const auto &w : words)
        if (w.page == page && w.text == text)
            return &w;
    return nullptr;
}

// The page size pdfinfo reports, "792 x 612".
QString pageSize(const QString &pdf)
{
    QProcess p;
    p.start(QStringLiteral("pdfinfo"), {pdf});
    p.waitForFinished(30000);
    static const QRegularExpression re(QStringLiteral(R"(Page size:\s+([\d.]+) x ([\d.]+))"));
    const auto m = re.match(QString::fromUtf8(p.readAllStandardOutput()));
    return m.hasMatch() ? m.captured(1) + " x " + m.captured(2) : QString();
}

QByteArray readAll(const QString &path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

// Rows "r<row>c<col>" under headings "H0".."Hn".
void fill(qlmListBox &list, int rows, int columns)
{
    QStringList headings;
    for (int c = 0; c < columns; ++c)
        headings.append("H" + QString::number(c));
    list.setHeadings(headings);
    for (int r = 0; r < rows; ++r) {
        QStringList cells;
        for (int c = 0; c < columns; ++c)
            cells.append(QStringLiteral("r%1c%2").arg(r).arg(c));
        list.addRow(cells, QString::number(100 + r));
    }
}

} // namespace

class TestListPrint : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;

private Q_SLOTS:
    // Whatever a function left open, also when it failed half-way, goes
    // before the next one starts.
    void cleanup() { testkit::closeAllWindows(); }

    void init() { gPrinterSettings.clear(); }

    void equalColumnsAndRowPitch()
    {
        fakes::FakePlatform fake(m_dir.path());
        fake.printing.setupAnswers.enqueue(letter(true)); // 720 points wide
        qlmListBox list;
        list.setHeadings({"Name", "Pos", "Notes"});
        // Contents of very different lengths: the columns stay 240 apart.
        list.addRow({"Al", "C", "Catches everything thrown his way"});
        list.addRow({"Bartholomew-Smythe", "LF", "x"});
        list.addRow({"Cy", "", "y"});
        list.printMe("Roster", false);

        QCOMPARE(fake.printing.printed.size(), 1);
        QCOMPARE(fake.printing.setupDialogs, 1);
        QVERIFY(!gPrinterSettings.isEmpty()); // remembered for the next print
        const auto words = fakes::pdfWords(fake.printing.printed.first());
        const qreal left = 36, top = 36;
        for (const QString &first : {QStringLiteral("Name"), QStringLiteral("Al"), QStringLiteral("Bartholomew-Smythe"),
                                     QStringLiteral("Cy"), QStringLiteral("Roster")}) {
            QVERIFY2(find(words, first), qPrintable(first));
            QCOMPARE(qRound(find(words, first)->xMin), qRound(left));
        }
        QCOMPARE(qRound(find(words, "Pos")->xMin), qRound(left + 240));
        QCOMPARE(qRound(find(words, "LF")->xMin), qRound(left + 240));
        QCOMPARE(qRound(find(words, "Notes")->xMin), qRound(left + 480));
        QCOMPARE(qRound(find(words, "Catches")->xMin), qRound(left + 480));
        QCOMPARE(qRound(find(words, "y")->xMin), qRound(left + 480));

        // Title, date and headings 16 apart then 32; rows 16 apart from 16 below the headings.
        const QString date = QLocale().toString(QDate(2026, 4, 15), QLocale::ShortFormat);
        const auto *title = find(words, "Roster");
        const auto *dateWord = find(words, date.split(u' ').first());
        QVERIFY(dateWord);
        const qreal titleBottom = title->yMax;
        QCOMPARE(qRound(dateWord->yMax - titleBottom), 16);
        QCOMPARE(qRound(find(words, "Name")->yMax - titleBottom), 48);
        QCOMPARE(qRound(find(words, "Al")->yMax - titleBottom), 64);
        QCOMPARE(qRound(find(words, "Bartholomew-Smythe")->yMax - titleBottom), 80);
        QCOMPARE(qRound(find(words, "Cy")->yMax - titleBottom), 96);
        // The title's baseline is 16 below the printable area's top.
        QVERIFY(title->yMax > top + 16 && title->yMax < top + 16 + 5);
    }

    void pageBreaks_data()
    {
        QTest::addColumn<int>("rows");
        QTest::addColumn<int>("pages");
        QTest::addColumn<int>("onFirstPage");
        // 540 points high: rows at 80, 96, ... 528 fit, 29 of them.
        QTest::newRow("one row short") << 28 << 1 << 28;
        QTest::newRow("exactly a page: the list goes on to a fresh page") << 29 << 2 << 29;
        QTest::newRow("three pages") << 29 + 33 + 5 << 3 << 29;
    }
    void pageBreaks()
    {
        QFETCH(int, rows);
        QFETCH(int, pages);
        QFETCH(int, onFirstPage);
        fakes::FakePlatform fake(m_dir.path());
        fake.printing.setupAnswers.enqueue(letter(true));
        qlmListBox list;
        fill(list, rows, 2);
        list.printMe("Pages", true);
        const QString pdf = fake.printing.printed.value(0);
        QCOMPARE(fakes::pdfPageCount(pdf), pages);
        const auto words = fakes::pdfWords(pdf);
        int first = 0;
        for (const auto &w : wordsOn(words, 1))
            first += w.text.endsWith("c0") ? 1 : 0;
        QCOMPARE(first, onFirstPage);
        QVERIFY(find(words, QStringLiteral("r%1c0").arg(onFirstPage - 1), 1));
        if (rows > onFirstPage) {
            // Page 2 starts with the next row, whole, at the top, one pitch
            // below the edge and without headings; 33 rows fill it.
            const auto *next = find(words, QStringLiteral("r%1c0").arg(onFirstPage), 2);
            QVERIFY(next);
            QVERIFY(next->yMin >= 36 && next->yMax <= 36 + 16 + 5);
            QVERIFY(!find(words, "H0", 2));
            const auto *after = find(words, QStringLiteral("r%1c0").arg(onFirstPage + 1), 2);
            if (after)
                QCOMPARE(qRound(after->yMin - next->yMin), 16);
            int second = 0;
            for (const auto &w : wordsOn(words, 2))
                second += w.text.endsWith("c0") ? 1 : 0;
            QCOMPARE(second, std::min(33, rows - onFirstPage));
        }
    }

    void copiesAndCancel()
    {
        fakes::FakePlatform fake(m_dir.path());
        gPrinterSettings = letter(true).toString(); // set up before: no dialog
        qlmListBox list;
        fill(list, 3, 3);
        fake.printing.copies = 2;
        list.printMe("Twice", false);
        QCOMPARE(fake.printing.setupDialogs, 0);
        QCOMPARE(fakes::pdfPageCount(fake.printing.printed.value(0)), 2);
        QCOMPARE(fakes::pdfText(fake.printing.printed.value(0)).count("r2c2"), 2);

        fake.printing.cancelPrint = true;
        list.printMe("Never", false);
        QCOMPARE(fake.printing.printed.size(), 1);
        fake.printing.cancelPrint = false;
        gPrinterSettings.clear();
        fake.printing.setupAnswers.enqueue(std::nullopt);
        list.printMe("Never", false);
        fake.printing.cancelPrint = true;
        list.widePrintMe("Never");
        QCOMPARE(fake.printing.printed.size(), 1);
        QCOMPARE(fake.messages.shown.size(), 0); // a cancel says nothing
    }

    void emptyLists_data()
    {
        QTest::addColumn<bool>("wide");
        QTest::addColumn<QString>("text");
        QTest::newRow("print") << false << "No items in list.";
        QTest::newRow("wide print") << true << "No Data Available";
    }
    void emptyLists()
    {
        QFETCH(bool, wide);
        QFETCH(QString, text);
        fakes::FakePlatform fake(m_dir.path());
        fake.printing.setupAnswers.enqueue(letter(true));
        qlmListBox list;
        list.setHeadings({"Item", "ID"});
        if (wide)
            list.widePrintMe("Empty", {"100", "100"});
        else
            list.printMe("Empty", false);
        const QString pdf = fake.printing.printed.value(0);
        QCOMPARE(fakes::pdfPageCount(pdf), 1);
        const auto words = fakes::pdfWords(pdf);
        const auto *first = find(words, text.split(u' ').first());
        QVERIFY(first);
        QCOMPARE(qRound(first->xMin), 36);
        QCOMPARE(qRound(first->yMax - find(words, "Item")->yMax), 16);
        QVERIFY(fakes::pdfText(pdf).contains(text));
    }

    void widePrintCutsOffAndWarns_data()
    {
        QTest::addColumn<qreal>("margin");
        QTest::addColumn<QList<int>>("answers");
        QTest::addColumn<int>("printed");
        QTest::addColumn<QString>("message");
        QTest::addColumn<int>("setupDialogs");
        const QString base = "The output is too wide to fit on one page. "
                             "Try limiting the number of columns to be printed.";
        const QString margins = base + " You can also reduce the size of the margins.";
        QTest::newRow("print anyway") << qreal(36) << QList<int>{0} << 1 << base << 0;
        QTest::newRow("wide margins add a hint") << qreal(54) << QList<int>{0} << 1 << margins << 0;
        QTest::newRow("cancel") << qreal(36) << QList<int>{1} << 0 << base << 0;
        QTest::newRow("reset margins asks for the set-up") << qreal(36) << QList<int>{2} << 1 << base << 1;
    }
    void widePrintCutsOffAndWarns()
    {
        QFETCH(qreal, margin);
        QFETCH(QList<int>, answers);
        QFETCH(int, printed);
        QFETCH(QString, message);
        QFETCH(int, setupDialogs);
        fakes::FakePlatform fake(m_dir.path());
        // The page set-up the coach chose before.
        const QString remembered = gPrinterSettings;
        gPrinterSettings = letter(true, margin).toString();
        const auto restore = qScopeGuard([&] { gPrinterSettings = remembered; });
        fake.printing.setupAnswers.enqueue(letter(true, margin));
        for (int a : answers)
            fake.messages.answers.enqueue(std::uint8_t(a));
        qlmListBox list;
        fill(list, 2, 4);
        // 300 + 300 + 300 + 300: the fourth column starts at 900, past the page.
        list.widePrintMe("Wide", {"300", "300", "300", "300"});
        QCOMPARE(fake.messages.shown.size(), 1);
        const fakes::ShownMessage shown = fake.messages.shown.first();
        QCOMPARE(shown.message, message);
        QCOMPARE(shown.explanation, QStringLiteral("If you continue, the rightmost columns will be cut off."));
        QCOMPARE(shown.actionCaption, QStringLiteral("Print"));
        QCOMPARE(shown.altCaption, QStringLiteral("Reset Margins"));
        QCOMPARE(fake.printing.setupDialogs, setupDialogs);
        QCOMPARE(fake.printing.printed.size(), printed);
        if (printed) {
            const auto words = fakes::pdfWords(fake.printing.printed.first());
            QCOMPARE(qRound(find(words, "H2")->xMin), qRound(margin + 600));
            QVERIFY(find(words, "r1c2"));
            QVERIFY(!find(words, "H3"));
            QVERIFY(!find(words, "r1c3"));
        }
    }

    void widePrintTotalEqualToWidthFits()
    {
        fakes::FakePlatform fake(m_dir.path());
        fake.printing.setupAnswers.enqueue(letter(true));
        qlmListBox list;
        fill(list, 1, 3);
        list.widePrintMe("Exact", {"240", "240", "240"});
        QCOMPARE(fake.messages.shown.size(), 0);
        QCOMPARE(fake.printing.printed.size(), 1);
    }

    // One dialog: the print dialog, the remembered paper already turned to
    // landscape, and nothing said about it.
    void widePrintTurnsToLandscape()
    {
        fakes::FakePlatform fake(m_dir.path());
        const QString remembered = gPrinterSettings;
        gPrinterSettings = letter(false).toString();
        qlmListBox list;
        fill(list, 2, 3);
        // The list's own widths: 200 points and two shares of the rest.
        list.setColumnWidths("200,*,*");
        list.widePrintMe("Turned");
        gPrinterSettings = remembered;
        QVERIFY(fake.messages.shown.isEmpty());
        QCOMPARE(fake.printing.setupDialogs, 0);
        QCOMPARE(fake.printing.printDialogs, 1);
        const QString pdf = fake.printing.printed.value(0);
        QCOMPARE(pageSize(pdf), QStringLiteral("792 x 612"));
        const auto words = fakes::pdfWords(pdf);
        QCOMPARE(qRound(find(words, "H1")->xMin), 36 + 200);
        QCOMPARE(qRound(find(words, "H2")->xMin), 36 + 200 + 260);
        QCOMPARE(platform::pdfFileName(QStringLiteral("Current Standings - North/South: \"A\"")),
                 QStringLiteral("Current Standings - North-South- -A-.pdf"));
    }

    void exportFile_data()
    {
        QTest::addColumn<QStringList>("headings");
        QTest::addColumn<QList<QStringList>>("rows");
        QTest::addColumn<QByteArray>("expected");
        QTest::newRow("empty trailing cells are cut, inner ones kept")
            << QStringList{"Qty", "Item", "ID"} << QList<QStringList>{{"1", "", ""}, {"", "Cones", ""}, {"", "", ""}}
            << QByteArray("Inventory\nQty\tItem\tID\n1\n\tCones\n\n");
        QTest::newRow("tabs in a cell pass through unquoted")
            << QStringList{"A", "B", ""} << QList<QStringList>{{"x\ty", "z\t", ""}}
            << QByteArray("Inventory\nA\tB\nx\ty\tz\n");
        QTest::newRow("non-ASCII text in UTF-8")
            << QStringList{"Jugador", "Posición"} << QList<QStringList>{{"José Núñez", "Lanzador – 投手"}}
            << QByteArray("Inventory\nJugador\tPosici\xc3\xb3n\nJos\xc3\xa9 N\xc3\xba\xc3\xb1"
                          "ez\tLanzador "
                          "\xe2\x80\x93 \xe6\x8a\x95\xe6\x89\x8b\n");
    }
    void exportFile()
    {
        QFETCH(QStringList, headings);
        QFETCH(QList<QStringList>, rows);
        QFETCH(QByteArray, expected);
        fakes::FakePlatform fake;
        const QString path = m_dir.filePath(
            QStringLiteral("export-%1.txt").arg(QTest::currentDataTag()).replace(' ', '_'));
        fake.files.answers.enqueue(path);
        qlmListBox list;
        list.setHeadings(headings);
        for (const QStringList &cells : rows)
            list.addRow(cells);
        list.exportMe("Inventory");
        QCOMPARE(readAll(path), expected);
        QCOMPARE(fake.files.calls.size(), 1);
        const platform::FileRequest request = fake.files.calls.first().request;
        QCOMPARE(fake.files.calls.first().kind, QStringLiteral("save"));
        QCOMPARE(request.title, QStringLiteral("Export A List"));
        QCOMPARE(request.prompt, QStringLiteral("Choose a location for the exported list."));
        QCOMPARE(request.suggestedName, QStringLiteral("Inventory"));
    }

    // The dialog starts in the documents folder (home without one), and a
    // name typed without an extension gets ".txt".
    void exportNameAndFolder_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("written");
        QTest::addColumn<bool>("documents");
        QTest::newRow("no extension") << "roster"
                                      << "roster.txt" << true;
        QTest::newRow(".txt kept") << "roster.txt"
                                   << "roster.txt" << false;
        QTest::newRow("another extension kept") << "roster.tsv"
                                                << "roster.tsv" << true;
        QTest::newRow("dot in a folder only") << "my.lists/roster"
                                              << "my.lists/roster.txt" << false;
    }
    void exportNameAndFolder()
    {
        QFETCH(QString, typed);
        QFETCH(QString, written);
        QFETCH(bool, documents);
        fakes::FakePlatform fake;
        QDir home = QDir::home();
        QDir(home.filePath("Documents")).removeRecursively();
        if (documents)
            QVERIFY(home.mkpath("Documents"));
        QVERIFY(QDir(m_dir.path()).mkpath("my.lists"));
        fake.files.answers.enqueue(m_dir.filePath(typed));
        qlmListBox list;
        fill(list, 1, 1);
        list.exportMe("Roster");
        QVERIFY(QFile::exists(m_dir.filePath(written)));
        QCOMPARE(fake.files.calls.first().request.initialDir,
                 documents ? home.filePath("Documents") : QDir::homePath());
        QDir(home.filePath("Documents")).removeRecursively();
    }

    void exportCancelledOrUnwritable()
    {
        fakes::FakePlatform fake;
        qlmListBox list;
        fill(list, 2, 2);
        list.exportMe("Nothing"); // no answer queued: the dialog is cancelled
        QCOMPARE(fake.files.calls.size(), 1);
        // A folder that doesn't exist: nothing is written and nothing is said.
        const QString path = m_dir.filePath("missing/sub/list.txt");
        fake.files.answers.enqueue(path);
        list.exportMe("Nowhere");
        QVERIFY(!QFile::exists(path));
        QCOMPARE(fake.messages.shown.size(), 0);
        // An existing file is replaced whole.
        const QString existing = m_dir.filePath("existing.txt");
        {
            QFile f(existing);
            QVERIFY(f.open(QIODevice::WriteOnly));
            f.write(QByteArray(5000, 'x'));
        }
        fake.files.answers.enqueue(existing);
        list.exportMe("Replaced");
        QCOMPARE(readAll(existing), QByteArray("Replaced\nH0\tH1\nr0c0\tr0c1\nr1c0\tr1c1\n"));
    }

    void dataAndSelectionsAsText()
    {
        qlmListBox list;
        list.setHeadings({"Drill", "Start", "End", "Coach"});
        list.addRow({"Laps", "3:00", "3:15", "Ann"}, "41");
        list.addRow({"Bunting", "3:15", "", ""}, "42");
        list.addRow({"Signs", "3:30", "3:45", "Bo"}, "43");
        QCOMPARE(list.myDataAsString("Plan\r", -1, false),
                 QStringLiteral("Plan\rLaps\t3:00\t3:15\tAnn\rBunting\t3:15\t\t\rSigns\t3:30\t3:45\tBo"));
        // A skipped column leaves its separator; tags follow a tab.
        QCOMPARE(list.myDataAsString("", 1, true),
                 QStringLiteral("Laps\t\t3:15\tAnn\t41\rBunting\t\t\t\t42\rSigns\t\t3:45\tBo\t43"));
        QCOMPARE(list.myDataAsString("", 3, false),
                 QStringLiteral("Laps\t3:00\t3:15\t\rBunting\t3:15\t\t\rSigns\t3:30\t3:45\t"));
        qlmListBox empty;
        empty.setHeadings({"A"});
        QCOMPARE(empty.myDataAsString("P", -1, true), QStringLiteral("P"));

        QCOMPARE(list.getMySelections(), QString());
        list.setMultipleSelection(true);
        list.setRowSelected(2, true);
        list.setRowSelected(0, true);
        QCOMPARE(list.getMySelections(), QStringLiteral("3:00\t3:15\tAnn\t41\r3:30\t3:45\tBo\t43\r"));
    }
};

QTEST_MAIN(TestListPrint)
#include "tst_listprint.moc"
