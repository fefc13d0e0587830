// A roster from a spreadsheet and back, through the personnel screen's File
// menu: the column-matching step before anything is written, a damaged
// file named by its line, no second copy of a player already on the team.

#include "app/globals.h"
#include "app/myDB.h"
#include "app/ui/MainMenuBar.h"
#include "fakes/TestKit.h"
#include "people/RosterCsv.h"
#include "people/ui/personnelScrn.h"
#include "people/ui/rosterImportDlog.h"
#include "reports/ui/qlmListBox.h"
#include "support/CsvText.h"

#include <QAction>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QTest>

namespace {

QString writeFile(const QString &folder, const QByteArray &text)
{
    const QString path = folder + QStringLiteral("/roster.csv");
    QFile file(path);
    file.open(QIODevice::WriteOnly);
    file.write(text);
    return path;
}

} // namespace

class TestRosterCsv : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Whatever a function left open, also when it failed half-way, goes
    // before the next one starts.
    void cleanup() { testkit::closeAllWindows(); }

    void importWithMatchingStep()
    {
        testkit::Season s;
        const qint64 hawks = s.addTeam(QStringLiteral("Hawks"), {}, {}, true);
        const qint64 lee = s.addPlayer(hawks, QStringLiteral("Ann"), QStringLiteral("Lee"));
        gData->exec(QStringLiteral("UPDATE Players SET UniNum = '7' WHERE playerID = ?"), {lee});
        const QString path = writeFile(s.folder(), "Last Name,First Name,#,Position,E-mail,Shoe size\r\n"
                                                   "Lee,Ann,7,P,ann@example.org,8\r\n"
                                                   "\"O'Neil, Jr.\",Bo,12,C,,9\r\n"
                                                   "Diaz,Cal,3,SS,\"cal@example.org\",7\r\n"
                                                   "Diaz,Cal,3,SS,again,7\r\n");
        auto *screen = new personnelScrn;
        screen->show();
        s.fake.files.answers.enqueue(path);
        bool checked = false;
        testkit::whenShown<rosterImportDlog>([&](rosterImportDlog *dialog) {
            const auto pop = [dialog](const char *column) {
                return dialog->findChild<QComboBox *>(QStringLiteral("mapPop_") + QLatin1String(column))->currentText();
            };
            QCOMPARE(pop("Last"), QStringLiteral("Last Name"));
            QCOMPARE(pop("First"), QStringLiteral("First Name"));
            QCOMPARE(pop("UniNum"), QStringLiteral("#"));
            QCOMPARE(pop("Pos1"), QStringLiteral("Position"));
            QCOMPARE(pop("Email"), QStringLiteral("E-mail"));
            QCOMPARE(pop("City"), QStringLiteral("(none)"));
            QCOMPARE(testkit::child<qlmListBox>(dialog, "previewList")->headings(),
                     (QStringList{"Number", "First Name", "Last Name", "Position", "E-mail"}));
            QCOMPARE(testkit::child<qlmListBox>(dialog, "previewList")->rowCells(1),
                     (QStringList{"12", "Bo", "O'Neil, Jr.", "C", ""}));
            QCOMPARE(testkit::child<QLabel>(dialog, "countLbl")->text(), QStringLiteral("4 players in the file"));
            // Nothing is written while the coach looks.
            QCOMPARE(s.count(QStringLiteral("SELECT COUNT(*) FROM Players")), 1);
            // The coach matches the shoe sizes to the notes.
            QComboBox *notes = dialog->findChild<QComboBox *>(QStringLiteral("mapPop_PlayerNotes"));
            notes->setCurrentIndex(notes->findText(QStringLiteral("Shoe size")));
            QCOMPARE(testkit::child<qlmListBox>(dialog, "previewList")->headings().last(), QStringLiteral("Notes"));
            checked = true;
            QTest::mouseClick(testkit::child<QPushButton>(dialog, "importBtn"), Qt::LeftButton);
        });
        screen->menus()->item(QStringLiteral("FileImportRoster"))->trigger();
        QVERIFY(checked);
        QCOMPARE(s.fake.messages.texts().last(), QStringLiteral("2 players were added."));
        QCOMPARE(s.fake.messages.shown.last().explanation,
                 QStringLiteral("Already on the team, so left out: 7 Ann Lee, 3 Cal Diaz."));
        QCOMPARE(s.count(QStringLiteral("SELECT COUNT(*) FROM Players WHERE TeamNum = ?"), {hawks}), 3);
        QCOMPARE(gData->scalar(QStringLiteral("SELECT PlayerNotes || '/' || Email FROM Players WHERE Last = 'Diaz'"))
                     .toString(),
                 QStringLiteral("7/cal@example.org"));
        QCOMPARE(testkit::child<qlmListBox>(screen, "playersList")->rowCount(), 3);

        // Exported and read back: every field but the picture.
        s.fake.files.answers.enqueue(s.folder() + QStringLiteral("/out"));
        screen->menus()->item(QStringLiteral("FileExport"))->trigger();
        QFile out(s.folder() + QStringLiteral("/out.csv"));
        QVERIFY(out.open(QIODevice::ReadOnly));
        const support::csv::Table table = support::csv::parse(out.readAll());
        QCOMPARE(table.badLine, 0);
        QCOMPARE(table.rows.size(), 4);
        QCOMPARE(table.rows.first().size(), people::rosterFields().size());
        QVERIFY(table.rows.contains(QStringList{
            "12", "Bo", "O'Neil, Jr.", "C", "", "", "", "", "", "", "", "", "", "", "", "", "", "", "", "", "", "", "",
            "",   "",   "9",           "1"}));
        delete screen;
    }

    void damagedFile_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("problem");
        QTest::newRow("quote never closed") << QByteArray("First,Last\r\nAnn,Lee\r\n\"Bo,Diaz\r\nCal,Ray\r\n")
                                            << "Line 3 is damaged: a quote is never closed.";
        QTest::newRow("a field too many") << QByteArray("First,Last\nAnn,Lee\nBo,Diaz,12\n")
                                          << "Line 3 is damaged: it has 3 fields where the first line has 2.";
        QTest::newRow("quote inside a field")
            << QByteArray("First,Last\nAn\"n,Lee\n") << "Line 2 is damaged: a quote stands inside a field.";
        QTest::newRow("not UTF-8") << QByteArray("First,Last\nAnn,Lee\nJos\xe9,Pe\xf1\x61\n")
                                   << "Line 3 is damaged: it isn't UTF-8 text.";
        QTest::newRow("line of a quoted line end counted")
            << QByteArray("First,Last,Notes\nAnn,Lee,\"two\nlines\"\nBo\n")
            << "Line 4 is damaged: it has 1 fields "
               "where the first line has 3.";
    }
    void damagedFile()
    {
        QFETCH(QByteArray, text);
        QFETCH(QString, problem);
        testkit::Season s;
        s.addTeam(QStringLiteral("Hawks"), {}, {}, true);
        const QString path = writeFile(s.folder(), text);
        auto *screen = new personnelScrn;
        screen->show();
        s.fake.files.answers.enqueue(path);
        screen->menus()->item(QStringLiteral("FileImportRoster"))->trigger();
        QCOMPARE(s.fake.messages.texts().last(), QStringLiteral("The file \"") + QDir::toNativeSeparators(path) +
                                                     QStringLiteral("\" can't be imported."));
        QCOMPARE(s.fake.messages.shown.last().explanation, problem + QStringLiteral(" Nothing was added to the team."));
        QCOMPARE(s.count(QStringLiteral("SELECT COUNT(*) FROM Players")), 0);
        delete screen;
    }
};

QTEST_MAIN(TestRosterCsv)
#include "tst_rostercsv.moc"
