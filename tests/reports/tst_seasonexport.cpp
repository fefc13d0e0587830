// What a coach hands on from the season: the statistics as a CSV file, a
// report's rows as CSV, and the modern rates worked out by hand.

#include "ReportsFixture.h"
#include "SampleSeason.h"
#include "app/ui/MainMenuBar.h"
#include "reports/ModernRates.h"
#include "reports/SeasonCsv.h"
#include "reports/ui/qlmListBox.h"
#include "reports/ui/reportIntroScrn.h"
#include "reports/ui/reportScrn.h"

#include <QAction>
#include <QFile>
#include <QTest>

namespace {

QByteArray readAll(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray golden(const QString &name)
{
    return readAll(qEnvironmentVariable("TL_TEST_DATA") + QStringLiteral("/reports/") + name);
}

} // namespace

class TestSeasonExport : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // The sample season's three games, exported from the report chooser's
    // File > Export Data.
    void seasonCsvMatchesGoldenFile()
    {
        ReportsFixture f;
        QCOMPARE(sample::buildSeason(*f.db, *f.prefs).size(), 3);
        const qsizetype shownBefore = f.platform.messages.shown.size();
        auto *intro = new reportIntroScrn;
        const QString path = f.home.filePath(QStringLiteral("season"));
        f.platform.files.answers.enqueue(path);
        intro->menus()->item(QStringLiteral("FileExport"))->trigger();
        QCOMPARE(f.platform.files.calls.first().request.suggestedName, QStringLiteral("Season Statistics.csv"));
        const QByteArray written = readAll(path + QStringLiteral(".csv"));
        QCOMPARE(written, golden(QStringLiteral("season.csv")));
        // Every line ends in CR LF, and there is no lone LF.
        QVERIFY(written.endsWith("\r\n"));
        QCOMPARE(written.count("\n"), written.count("\r\n"));
        QCOMPARE(f.platform.messages.shown.size(), shownBefore);
        delete intro;
    }

    void csvField_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("field");
        QTest::newRow("plain") << "Hawks"
                               << "Hawks";
        QTest::newRow("empty") << ""
                               << "";
        QTest::newRow("comma") << "Smith, Jr."
                               << "\"Smith, Jr.\"";
        QTest::newRow("quote") << "The \"Rocket\""
                               << "\"The \"\"Rocket\"\"\"";
        QTest::newRow("line end") << "a\nb"
                                  << "\"a\nb\"";
        QTest::newRow("carriage return") << "a\rb"
                                         << "\"a\rb\"";
        QTest::newRow("outer blank") << " 7"
                                     << "\" 7\"";
        QTest::newRow("letters") << "Jos\u00e9 Pe\u00f1a"
                                 << "Jos\u00e9 Pe\u00f1a";
    }
    void csvField()
    {
        QFETCH(QString, text);
        QFETCH(QString, field);
        QCOMPARE(reports::csv::field(text), field);
        QCOMPARE(reports::csv::line({text, QStringLiteral("1")}), field + QStringLiteral(",1\r\n"));
    }

    // A report's own rows, exported under a ".csv" name.
    void reportRowsAsCsv()
    {
        ReportsFixture f;
        const qint64 team = f.addTeam(QStringLiteral("Eagles"));
        const qint64 player = f.addPlayer(team, QStringLiteral("Al"), QStringLiteral("Ames, Jr."));
        f.addSeasonRow(QStringLiteral("Hitting"), player, team, {{"AB", 4}, {"B1", 1}, {"BB", 1}});
        auto *report = new reportScrn(0, {"First Name", "Last Name", "AB", "Avg", "OBP", "SP", "BB"});
        const QString path = f.home.filePath(QStringLiteral("batting.csv"));
        f.platform.files.answers.enqueue(path);
        report->menus()->item(QStringLiteral("FileExport"))->trigger();
        QCOMPARE(readAll(path), QByteArray("First Name,Last Name,AB,Avg,OBP,SP,BB\r\n"
                                           "Al,\"Ames, Jr.\",4,.250,.400,.250,1\r\n"));
        delete report;
    }
};

QTEST_MAIN(TestSeasonExport)
#include "tst_seasonexport.moc"
