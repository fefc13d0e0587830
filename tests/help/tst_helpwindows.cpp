// The help window on the program's own pages, the forms screen's printing,
// and the abbreviations window's search, driven offscreen with the fakes.

#include "app/App.h"
#include "app/globals.h"
#include "app/ui/MainMenuBar.h"
#include "app/ui/ScreenDirectory.h"
#include "app/ui/TallylineApplication.h"
#include "app/ui/startScrn1.h"
#include "fakes/FakePlatform.h"
#include "fakes/TestKit.h"
#include "fakes/TestSupport.h"
#include "help/Abbreviations.h"
#include "help/HelpTopics.h"
#include "help/ui/HelpAbbrevScrn.h"
#include "help/ui/formsScrn.h"
#include "help/ui/helpScrn2.h"
#include "reports/ui/qlmListBox.h"

#include <QAction>
#include <QDir>
#include <QImageReader>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMainWindow>
#include <QPointer>
#include <QPushButton>
#include <QRegularExpression>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <QTextBrowser>
#include <QtTest>

#include <QWidget>
#include <algorithm>

namespace {

struct Session
{
    QTemporaryDir home;
    fakes::FakePlatform fake{home.path()};
    App app{home.filePath(QStringLiteral("data"))};
    Session()
    {
        app.Event_Open();
        // Each test sets the forms it needs.
        gFormFiles.clear();
        gFormNames.clear();
    }
    ~Session()
    {
        gFormFiles.clear();
        gFormNames.clear();
    }
};

QString readPage(const QString &fileName)
{
    QFile file(QDir(help::getHelpFolder()).filePath(fileName));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

// Every value of `attribute` in the page's tags, as written.
QStringList attributeValues(const QString &html, const QString &attribute)
{
    QStringList values;
    const QRegularExpression re(QStringLiteral("<[^>]*\\b%1\\s*=\\s*\"?([^\"\\s>]+)").arg(attribute),
                                QRegularExpression::CaseInsensitiveOption);
    for (auto it = re.globalMatch(html); it.hasNext();)
        values.append(it.next().captured(1));
    return values;
}

// The page size of a PDF's first page, in points.
QSizeF pdfPageSize(const QString &path)
{
    QProcess info;
    info.start(QStringLiteral("pdfinfo"), {path});
    info.waitForFinished(30000);
    const auto m = QRegularExpression(QStringLiteral(R"(Page size:\s+([\d.]+) x ([\d.]+) pts)"))
                       .match(QString::fromUtf8(info.readAllStandardOutput()));
    return m.hasMatch() ? QSizeF(m.captured(1).toDouble(), m.captured(2).toDouble()) : QSizeF();
}

// A blank picture of w by h dots at `dotsPerMetre`.
QImage picture(int w, int h, int dotsPerMetre)
{
    QImage image(w, h, QImage::Format_RGB32);
    image.fill(Qt::white);
    image.setDotsPerMeterX(dotsPerMetre);
    image.setDotsPerMeterY(dotsPerMetre);
    return image;
}

} // namespace

class tst_HelpWindows : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Whatever a function left open, also when it failed half-way, goes
    // before the next one starts.
    void cleanup() { testkit::closeAllWindows(); }

    void everyPageOpensWhole_data()
    {
        QTest::addColumn<int>("topic");
        for (int i = 0; i < help::topicArray().size(); ++i) {
            if (!help::isHeading(i))
                QTest::newRow(qPrintable(help::getTopic(i))) << i;
        }
    }
    // Each page of the index opens under its own title, and every link and
    // picture in it names a file (and an anchor) that is there.
    void everyPageOpensWhole()
    {
        QFETCH(int, topic);
        Session s;
        helpScrn2 window(topic);
        const QString fileName = help::getTopic(topic);
        QCOMPARE(testkit::child<QLabel>(&window, "noticeFld")->text(), QString());
        QCOMPARE(window.curDocName, fileName);
        QCOMPARE(testkit::child<QTextBrowser>(&window, "myHTML")->documentTitle(), help::indexRowText(topic).trimmed());
        QCOMPARE(s.fake.beeper.beeps, 0);

        const QString html = readPage(fileName);
        // The viewer and the printer read a page's bytes each their own way;
        // plain ASCII, with entities for the rest, reads the same in both.
        QVERIFY(std::all_of(html.cbegin(), html.cend(), [](QChar c) { return c.unicode() < 128; }));
        const QDir folder(help::getHelpFolder());
        for (const QString &href : attributeValues(html, QStringLiteral("href"))) {
            const QString target = href.section(u'#', 0, 0).isEmpty() ? fileName : href.section(u'#', 0, 0);
            QVERIFY2(folder.exists(target), qPrintable(href));
            const QString anchor = href.section(u'#', 1);
            if (!anchor.isEmpty())
                QVERIFY2(attributeValues(readPage(target), QStringLiteral("name")).contains(anchor), qPrintable(href));
        }
        for (const QString &src : attributeValues(html, QStringLiteral("src"))) {
            QImageReader reader(folder.filePath(src));
            QVERIFY2(reader.canRead(), qPrintable(src));
            QVERIFY2(reader.size().width() <= 720, qPrintable(src)); // small enough to sit in the page
        }
    }

    // Nothing lies in the help folder that the index can't reach.
    void everyPageIsInTheIndex()
    {
        Session s;
        const QStringList pages = QDir(help::getHelpFolder()).entryList({QStringLiteral("*.html")}, QDir::Files);
        QVERIFY(!pages.isEmpty());
        for (const QString &page : pages) {
            bool listed = false;
            for (int i = 0; i < help::topicArray().size(); ++i)
                listed = listed || help::getTopic(i) == page;
            QVERIFY2(listed, qPrintable(page));
        }
    }

    void indexRows_data()
    {
        QTest::addColumn<int>("topic");
        QTest::addColumn<int>("clickedRow"); // -1: none
        QTest::addColumn<bool>("indexShown");
        QTest::addColumn<QString>("page");
        QTest::newRow("opened from the start screen's menu") << 0 << -1 << true << QString();
        QTest::newRow("opened for a topic") << 1 << -1 << false << "A_01.html";
        QTest::newRow("a heading keeps the page") << 1 << 12 << true << "A_01.html";
        QTest::newRow("a page's row opens it") << 1 << 13 << true << "B_01.html";
    }
    void indexRows()
    {
        QFETCH(int, topic);
        QFETCH(int, clickedRow);
        QFETCH(bool, indexShown);
        QFETCH(QString, page);
        Session s;
        helpScrn2 window(topic);
        window.show();
        if (clickedRow >= 0) {
            QTest::mouseClick(testkit::child<QPushButton>(&window, "hideBtn"), Qt::LeftButton); // bring the index back
            const QListWidget *list = testkit::child<QListWidget>(&window, "indexLB");
            QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                              list->visualItemRect(list->item(clickedRow)).center());
        }
        QCOMPARE(testkit::child<indexCtnr>(&window, "myIndexCtnr")->isVisible(), indexShown);
        QCOMPARE(testkit::child<QPushButton>(&window, "hideBtn")->text(),
                 indexShown ? QStringLiteral("Hide Index") : QStringLiteral("Show Index"));
        QCOMPARE(window.curDocName, page);
        QCOMPARE(testkit::child<QTextBrowser>(&window, "myHTML")->source().isEmpty(), page.isEmpty());
    }

    void printing_data()
    {
        QTest::addColumn<int>("topic");
        QTest::addColumn<QString>("link"); // followed before printing, "" for none
        QTest::addColumn<QStringList>("messages");
        QTest::addColumn<QString>("printedText");
        QTest::newRow("no page on show") << 0 << QString()
                                         << QStringList{"An error was encountered while printing the file"}
                                         << QString();
        // The page goes to the printer as plain text.
        QTest::newRow("a page") << 6 << QString() << QStringList{} << "The list";
        QTest::newRow("after a link to a place in the page") << 7 << "#codes" << QStringList{} << "On Base Result";
        QTest::newRow("after a link to a place in another page")
            << 11 << "A_07.html#outs" << QStringList{} << "On Base Result";
    }
    void printing()
    {
        QFETCH(int, topic);
        QFETCH(QString, link);
        QFETCH(QStringList, messages);
        QFETCH(QString, printedText);
        Session s;
        helpScrn2 window(topic);
        if (!link.isEmpty()) // as the page follows a click on the link
            testkit::child<QTextBrowser>(&window, "myHTML")
                ->setSource(testkit::child<QTextBrowser>(&window, "myHTML")->source().resolved(QUrl(link)));
        window.menus()->item(QStringLiteral("FilePrint"))->trigger();
        QCOMPARE(s.fake.messages.texts(), messages);
        if (!messages.isEmpty())
            QCOMPARE(s.fake.messages.shown.first().explanation, QStringLiteral("The 'Help' file could not be opened."));
        QCOMPARE(s.fake.printing.printed.size(), printedText.isEmpty() ? 0 : 1);
        if (!printedText.isEmpty())
            QVERIFY(fakes::pdfText(s.fake.printing.printed.first()).contains(printedText));
    }

    void formsPrint_data()
    {
        QTest::addColumn<QImage>("form");
        QTest::addColumn<int>("copies");
        QTest::addColumn<QSize>("shown");
        QTest::addColumn<QSizeF>("page");
        // 10,000 dots a metre is 254 an inch: 2,794 dots are 792 points,
        // 2,159 are exactly 612.
        QTest::newRow("wider than a page turns it")
            << picture(2794, 2159, 10000) << 1 << QSize(634, 490) << QSizeF(792, 612);
        QTest::newRow("exactly a page's width stands")
            << picture(2159, 2794, 10000) << 1 << QSize(490, 634) << QSizeF(612, 792);
        QTest::newRow("three copies, three pages")
            << picture(600, 800, 2835) << 3 << QSize(480, 640) << QSizeF(612, 792);
        // The project's own forms, as the program finds them.
        const QDir extras(QDir(gResourceFolder()).filePath(QStringLiteral("tlyn_Extras")));
        QTest::newRow("the line-up card stands")
            << QImage(extras.filePath(QStringLiteral("Line-up Card.png"))) << 1 << QSize() << QSizeF(612, 792);
        QTest::newRow("the scoresheet lies")
            << QImage(extras.filePath(QStringLiteral("Scoresheet.png"))) << 1 << QSize() << QSizeF(792, 612);
    }
    void formsPrint()
    {
        QFETCH(QImage, form);
        QFETCH(int, copies);
        QFETCH(QSize, shown);
        QFETCH(QSizeF, page);
        Session s;
        QVERIFY(!form.isNull());
        gFormFiles = {s.home.filePath(QStringLiteral("Form.png"))};
        gFormNames = {QStringLiteral("Form.png")};
        QVERIFY(form.save(gFormFiles.first()));
        s.fake.printing.copies = copies;
        formsScrn screen;
        QCOMPARE(testkit::child<qlmListBox>(&screen, "formsList")->cell(0, 0), QStringLiteral("Form.png"));
        if (shown.isValid())
            QCOMPARE(testkit::child<QWidget>(&screen, "displayCnv")->size(), shown);
        QTest::mouseClick(testkit::child<QPushButton>(&screen, "printBtn"), Qt::LeftButton);
        QCOMPARE(s.fake.printing.printed.size(), 1);
        const QString pdf = s.fake.printing.printed.first();
        QCOMPARE(fakes::pdfPageCount(pdf), copies);
        const QSizeF size = pdfPageSize(pdf);
        QVERIFY2(qAbs(size.width() - page.width()) < 1 && qAbs(size.height() - page.height()) < 1,
                 qPrintable(QStringLiteral("%1 x %2").arg(size.width()).arg(size.height())));
    }

    // The forms are listed at open and each picture is read when shown.
    void formsFoundAtOpen()
    {
        Session s;
        loadFormPics();
        formsScrn screen;
        QCOMPARE(testkit::child<qlmListBox>(&screen, "formsList")->rowCount(), 3);
        QCOMPARE(testkit::child<qlmListBox>(&screen, "formsList")->cell(0, 0), QStringLiteral("Line-up Card.png"));
        for (int row = 0; row < 3; ++row)
            QVERIFY(!screen.picture(row).isNull());
        QVERIFY(testkit::child<QPushButton>(&screen, "printBtn")->isEnabled());
    }

    void formsWithoutFolder()
    {
        Session s;
        formsScrn screen;
        QCOMPARE(testkit::child<qlmListBox>(&screen, "formsList")->rowCount(), 1);
        QCOMPARE(testkit::child<qlmListBox>(&screen, "formsList")->cell(0, 0),
                 QStringLiteral("tlynForms folder not available"));
        QVERIFY(!testkit::child<QPushButton>(&screen, "printBtn")->isEnabled());
        screen.menus()->item(QStringLiteral("FilePrint"))->trigger(); // the menu entry stays on: nothing prints
        QCOMPARE(s.fake.printing.printDialogs, 0);
    }

    // From any screen's menu, the abbreviations window opened again comes
    // forward over the screen it was asked from.
    void abbreviationsComeForward_data()
    {
        QTest::addColumn<bool>("fromStart");
        QTest::newRow("the start screen's menu") << true;
        QTest::newRow("another screen's menu") << false;
    }
    void abbreviationsComeForward()
    {
        QFETCH(bool, fromStart);
        Session s;
        screens::registerScreen(ScreenId::HelpAbbrevScrn, [] { return HelpAbbrevScrn::instance(); });
        const auto unregister = qScopeGuard([] { screens::unregisterScreen(ScreenId::HelpAbbrevScrn); });
        QPointer<QMainWindow> screen = fromStart ? static_cast<QMainWindow *>(startScrn1::showStartScreen())
                                                 : static_cast<QMainWindow *>(new formsScrn);
        screen->show();
        auto *menus = qobject_cast<MainMenuBar *>(screen->menuBar());
        QVERIFY(menus);
        QPointer<HelpAbbrevScrn> window = HelpAbbrevScrn::instance();
        for (int time = 0; time < 2; ++time) {
            screen->activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(screen));
            menus->item(QStringLiteral("Abbrev"))->trigger();
            QTRY_COMPARE(QApplication::activeWindow(), static_cast<QWidget *>(window.data()));
        }
        delete window;
        screen->close();
        delete screen;
    }

    // The search runs when typing pauses, not at each key.
    void abbreviationSearchWaitsForThePause()
    {
        Session s;
        HelpAbbrevScrn *window = HelpAbbrevScrn::instance();
        window->show();
        testkit::child<qlmListBox>(window, "termsLB")->setSelectedRow(0);
        QTest::keyClicks(testkit::child<QLineEdit>(window, "searchFld"), QStringLiteral("ip"));
        QCOMPARE(testkit::child<QLineEdit>(window, "searchFld")->text(), QStringLiteral("ip"));
        QCOMPARE(testkit::child<qlmListBox>(window, "termsLB")->selectedRow(), 0);
        QTRY_COMPARE_WITH_TIMEOUT(testkit::child<QLineEdit>(window, "searchFld")->text(), QString(), 3000);
        QCOMPARE(testkit::child<qlmListBox>(window, "termsLB")
                     ->cell(testkit::child<qlmListBox>(window, "termsLB")->selectedRow(), 0),
                 QStringLiteral("IP"));
        delete window;
    }
};

int main(int argc, char *argv[])
{
    TallylineApplication app(argc, argv);
    tst_HelpWindows test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_helpwindows.moc"
