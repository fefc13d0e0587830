// What a coach hands on from the season: the files exported (the cases
// under tests/data/exports), the box score and the calendar read back, and
// the modern rates worked out by hand.

#include "ReportsFixture.h"
#include "SampleSeason.h"
#include "app/ui/MainMenuBar.h"
#include "fakes/Golden.h"
#include "fakes/TestKit.h"
#include "people/ui/personnelScrn.h"
#include "reports/ModernRates.h"
#include "reports/SeasonCsv.h"
#include "reports/ui/qlmListBox.h"
#include "reports/ui/reportIntroScrn.h"
#include "reports/ui/reportScrn.h"

#include "fakes/TestSupport.h"
#include "help/Abbreviations.h"
#include "schedule/CalendarFile.h"
#include "schedule/ScheduleStore.h"
#include "schedule/ui/scheduleScrn.h"
#include "stats/BoxScore.h"
#include "stats/SacrificeFlies.h"
#include "stats/ui/boxScoreScrn.h"
#include "support/CsvText.h"

#include <QAction>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>

namespace {

QByteArray readAll(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// "AB=10 B1=2" as figures in seasonColumns() order.
QList<double> figuresOf(reports::ReportKind kind, const QString &text)
{
    const QStringList &columns = reports::seasonColumns(kind);
    QList<double> out(columns.size(), 0.0);
    for (const QString &pair : text.split(u' ', Qt::SkipEmptyParts))
        out[columns.indexOf(pair.section(u'=', 0, 0))] = pair.section(u'=', 1).toDouble();
    return out;
}

} // namespace

class TestSeasonExport : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Whatever a function left open, also when it failed half-way, goes
    // before the next one starts.
    void cleanup() { testkit::closeAllWindows(); }

    // The cases of tests/data/exports: a sample season of so many games
    // ("games: 3"), then "export:" names what the coach exports (below);
    // under the line, the file written, byte for byte.
    //   season-statistics  the report chooser's File > Export Data
    //   calendar           the schedule's File > Export Calendar...
    //   box-score-text     the first game's box score, Save as Text
    //   box-score-rows     the same, Save Rows for a statistics site
    //   roster             the players' File > Export of a "team:"
    //   report-rows        a batting report's File > Export, its "headers:"
    //                      and "player: First Last Team AB=4 B1=1" rows ("_"
    //                      for a blank in a name)
    // "file:" is the name the coach types, "export" unless it says.
    void exports_data() { testkit::addGoldenCases({"exports"}); }
    void exports()
    {
        TL_FETCH_CASE(c);
        ReportsFixture f;
        const QString games = c.value(QStringLiteral("games"));
        const QList<sample::PlayedGame> played = games.isEmpty() ? QList<sample::PlayedGame>()
                                                                 : sample::buildSeason(*f.db, *f.prefs, games.toInt());
        f.prefs->prSeason = QStringLiteral("2026");
        f.platform.clock.time = QDateTime(QDate(2026, 4, 15), QTime(10, 30), Qt::UTC);
        const qsizetype shownBefore = f.platform.messages.shown.size();
        // The name the coach types; the ending, when he types one, chooses the format.
        const QString typed = c.value(QStringLiteral("file"));
        f.platform.files.answers.enqueue(f.home.filePath(typed.isEmpty() ? QStringLiteral("export") : typed));
        const QString kind = c.value(QStringLiteral("export"));
        std::unique_ptr<QWidget> screen;
        if (kind == u"season-statistics") {
            screen = std::make_unique<reportIntroScrn>();
            static_cast<ScreenBase *>(screen.get())->menus()->item(QStringLiteral("FileExport"))->trigger();
        } else if (kind == u"calendar") {
            screen = std::make_unique<scheduleScrn>();
            static_cast<ScreenBase *>(screen.get())->menus()->item(QStringLiteral("FileExportCalendar"))->trigger();
        } else if (kind.startsWith(u"box-score-")) {
            QVERIFY(!played.isEmpty());
            screen = std::make_unique<boxScoreScrn>(played.first().schedID);
            QTest::mouseClick(testkit::child<QPushButton>(screen.get(), kind.endsWith(u"text") ? "textBtn" : "rowsBtn"),
                              Qt::LeftButton);
        } else if (kind == u"roster") {
            screen = std::make_unique<personnelScrn>();
            QVERIFY(testkit::choose(testkit::child<QComboBox>(screen.get(), "selectTeamPop"),
                                    c.value(QStringLiteral("team"))));
            static_cast<ScreenBase *>(screen.get())->menus()->item(QStringLiteral("FileExport"))->trigger();
        } else if (kind == u"report-rows") {
            QHash<QString, qint64> teams;
            for (const QString &player : c.values(QStringLiteral("player"))) {
                const QStringList words = player.split(u' ', Qt::SkipEmptyParts);
                const qint64 team = teams.contains(words.at(2)) ? teams.value(words.at(2)) : f.addTeam(words.at(2));
                teams.insert(words.at(2), team);
                QHash<QString, int> figures;
                for (const QString &pair : words.mid(3))
                    figures.insert(pair.section(u'=', 0, 0), pair.section(u'=', 1).toInt());
                f.addSeasonRow(QStringLiteral("Hitting"),
                               f.addPlayer(team, words.at(0), QString(words.at(1)).replace(u'_', u' ')), team, figures);
            }
            screen = std::make_unique<reportScrn>(0, c.value(QStringLiteral("headers")).split(u','));
            static_cast<ScreenBase *>(screen.get())->menus()->item(QStringLiteral("FileExport"))->trigger();
        } else {
            QFAIL(qPrintable(QStringLiteral("unknown export ") + kind));
        }
        QVERIFY2(f.platform.messages.shown.size() == shownBefore, qPrintable(f.platform.messages.texts().join(u'\n')));
        // A name typed without its ending gets the file type's.
        const QStringList written =
            QDir(f.home.path()).entryList({typed.isEmpty() ? QStringLiteral("export.*") : typed}, QDir::Files);
        QCOMPARE(written.size(), 1);
        TL_COMPARE_CASE(c, readAll(f.home.filePath(written.first())));
    }

    // Files for spreadsheets end every line in CR LF, with no lone LF.
    void csvLineEnds()
    {
        ReportsFixture f;
        QCOMPARE(sample::buildSeason(*f.db, *f.prefs).size(), 3);
        auto intro = std::make_unique<reportIntroScrn>();
        const QString path = f.home.filePath(QStringLiteral("season"));
        f.platform.files.answers.enqueue(path);
        intro->menus()->item(QStringLiteral("FileExport"))->trigger();
        QCOMPARE(f.platform.files.calls.first().request.suggestedName, QStringLiteral("Season Statistics.csv"));
        const QByteArray written = readAll(path + QStringLiteral(".csv"));
        QVERIFY(written.endsWith("\r\n"));
        QCOMPARE(written.count("\n"), written.count("\r\n"));
    }

    // Each rate worked out by hand. The batter: 4 hits (2 singles, a double,
    // a home run: 8 bases) in 10 at bats, 2 walks and 1 intentional, hit
    // once, 2 sacrifices of which 1 a fly, 3 strikeouts; 16 times up.
    // The pitcher: 6 2/3 innings, 5 hits, 3 walks, 8 strikeouts, 28
    // batters, one hit, 60 strikes in 100 pitches.
    void rates_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<QString>("figures");
        QTest::addColumn<double>("sf");
        QTest::addColumn<QString>("rate");
        QTest::addColumn<double>("expected");
        const QString batter = "AB=10 B1=2 B2=1 HR=1 BB=2 IBB=1 HBP=1 SAC=2 KS=2 KL=1";
        QTest::newRow("OBP2") << 0 << batter << 1.0 << "OBP2" << 8.0 / 15;
        QTest::newRow("OBP2 without flies") << 0 << batter << 0.0 << "OBP2" << 8.0 / 14;
        QTest::newRow("OPS") << 0 << batter << 1.0 << "OPS" << 8.0 / 15 + 0.8;
        QTest::newRow("ISO") << 0 << batter << 1.0 << "ISO" << 0.4;
        QTest::newRow("BABIP") << 0 << batter << 1.0 << "BABIP" << 3.0 / 7;
        QTest::newRow("K%") << 0 << batter << 1.0 << "K%" << 18.75;
        QTest::newRow("BB%") << 0 << batter << 1.0 << "BB%" << 18.75;
        for (const char *rate : {"OBP2", "OPS", "ISO", "BABIP", "K%", "BB%"})
            QTest::addRow("%s, no at bat", rate) << 0 << "" << 0.0 << rate << 0.0;
        const QString pitcher = "IP=62 Hits=5 BB=2 IBB=1 Kouts=8 BF=28 HitB=1 Ks=60 PitCt=100";
        QTest::newRow("WHIP") << 2 << pitcher << 0.0 << "WHIP" << 1.2;
        QTest::newRow("K/9") << 2 << pitcher << 0.0 << "K/9" << 10.8;
        QTest::newRow("BB/9") << 2 << pitcher << 0.0 << "BB/9" << 4.05;
        QTest::newRow("H/9") << 2 << pitcher << 0.0 << "H/9" << 6.75;
        QTest::newRow("K/BB") << 2 << pitcher << 0.0 << "K/BB" << 8.0 / 3;
        QTest::newRow("OAvg") << 2 << pitcher << 0.0 << "OAvg" << 5.0 / 24;
        QTest::newRow("Str%") << 2 << pitcher << 0.0 << "Str%" << 60.0;
        QTest::newRow("P/IP") << 2 << pitcher << 0.0 << "P/IP" << 15.0;
        for (const char *rate : {"WHIP", "K/9", "BB/9", "H/9", "K/BB", "OAvg", "Str%", "P/IP"})
            QTest::addRow("%s, no inning", rate) << 2 << "" << 0.0 << rate << 0.0;
        QTest::newRow("K/BB, no walk") << 2 << "IP=10 Kouts=3" << 0.0 << "K/BB" << 0.0;
        QTest::newRow("FPct2") << 1 << "CH=20 PO=10 Asst=5 FE=1 TE=1" << 0.0 << "FPct2" << 15.0 / 17;
        QTest::newRow("FPct2, no chance") << 1 << "" << 0.0 << "FPct2" << 0.0;
    }
    void rates()
    {
        QFETCH(int, kind);
        QFETCH(QString, figures);
        QFETCH(double, sf);
        QFETCH(QString, rate);
        QFETCH(double, expected);
        const auto k = reports::ReportKind(kind);
        const QList<reports::RateColumn> &columns = reports::moreColumns(k);
        qsizetype at = -1;
        for (qsizetype i = 0; i < columns.size(); ++i) {
            if (columns.at(i).key == rate)
                at = i;
        }
        QVERIFY(at >= 0);
        QVERIFY(qAbs(reports::moreRates(k, figuresOf(k, figures), sf).at(at) - expected) < 1e-9);
        // The abbreviations list gives the same formula.
        const int row = help::findAbbreviation(rate);
        QVERIFY(row >= 0);
        QVERIFY2(help::abbreviationRows().at(row).second.endsWith(u" = " + columns.at(at).formula), qPrintable(rate));
    }

    // The report screen's "More" set: the rates of the same lines, the
    // recorded sacrifice flies in the official on-base figure.
    void moreColumnSet()
    {
        ReportsFixture f;
        const qint64 team = f.addTeam(QStringLiteral("Eagles"));
        const qint64 player = f.addPlayer(team, QStringLiteral("Al"), QStringLiteral("Ames"));
        f.addSeasonRow(QStringLiteral("Hitting"), player, team,
                       {{"AB", 10},
                        {"B1", 2},
                        {"B2", 1},
                        {"HR", 1},
                        {"BB", 2},
                        {"IBB", 1},
                        {"HBP", 1},
                        {"SAC", 2},
                        {"KS", 2},
                        {"KL", 1}});
        stats::addSacrificeFlies(*f.db->tlynData, {{player, 1}});
        auto *report = new reportScrn(0, {"First Name", "Last Name", "AB", "Avg", "OBP", "SP"});
        testkit::child<QComboBox>(report, "columnSetPop")->setCurrentIndex(1);
        QCOMPARE(testkit::child<qlmListBox>(report, "reportBox")->headings(),
                 (QStringList{"First Name", "Last Name", "Team", "OBP2", "OPS", "ISO", "BABIP", "K%", "BB%"}));
        QCOMPARE(testkit::child<qlmListBox>(report, "reportBox")->rowCells(0),
                 (QStringList{"Al", "Ames", "Eagles", ".533", "1.333", ".400", ".429", "18.8", "18.8"}));
        testkit::child<QComboBox>(report, "columnSetPop")->setCurrentIndex(0);
        QCOMPARE(testkit::child<qlmListBox>(report, "reportBox")->headings(),
                 (QStringList{"First Name", "Last Name", "Team", "AB", "Avg", "OBP", "SP"}));
        QCOMPARE(testkit::child<qlmListBox>(report, "reportBox")->rowCells(0),
                 (QStringList{"Al", "Ames", "Eagles", "10", ".400", ".467", ".800"}));
        delete report;
    }

    // The first game of the sample season, recorded: its box score shown,
    // saved as text and PDF and printed, one page a copy.
    void boxScore()
    {
        ReportsFixture f;
        const QList<sample::PlayedGame> played = sample::buildSeason(*f.db, *f.prefs, 1);
        QCOMPARE(played.size(), 1);
        const std::optional<stats::BoxScore> box = stats::BoxScore::read(*f.db, played.first().schedID);
        QVERIFY(box);
        QCOMPARE(box->teams[0].runs, played.first().runsA);
        QCOMPARE(box->teams[1].runs, played.first().runsB);

        const qsizetype shownBefore = f.platform.messages.shown.size();
        auto *screen = new boxScoreScrn(played.first().schedID);
        // The text shown is the text saved (tests/data/exports/box-score-text.case).
        const QString base = f.home.filePath(QStringLiteral("box"));
        f.platform.files.answers.enqueue(base + QStringLiteral("-text"));
        QTest::mouseClick(testkit::child<QPushButton>(screen, "textBtn"), Qt::LeftButton);
        QCOMPARE(QString::fromUtf8(readAll(base + QStringLiteral("-text.txt"))),
                 testkit::child<QPlainTextEdit>(screen, "boxText")->toPlainText());
        f.platform.files.answers.enqueue(base + QStringLiteral(".pdf"));
        QTest::mouseClick(testkit::child<QPushButton>(screen, "pdfBtn"), Qt::LeftButton);
        QCOMPARE(fakes::pdfPageCount(base + QStringLiteral(".pdf")), 1);
        QVERIFY(fakes::pdfText(base + QStringLiteral(".pdf")).contains(QStringLiteral("Kowalski, Noah")));
        f.platform.printing.copies = 2; // each copy on a page of its own
        QTest::mouseClick(testkit::child<QPushButton>(screen, "printBtn"), Qt::LeftButton);
        QCOMPARE(f.platform.printing.printed.size(), 1);
        QCOMPARE(fakes::pdfPageCount(f.platform.printing.printed.first()), 2);
        QVERIFY(fakes::pdfText(f.platform.printing.printed.first()).contains(QStringLiteral("Moreno, Isaac")));
        QCOMPARE(f.platform.messages.shown.size(), shownBefore);
        delete screen;
    }

    // The sample season's schedule from the schedule's File > Export
    // Calendar..., read back through libical; a second export after a
    // change keeps every event's id.
    void calendarFile()
    {
        ReportsFixture f;
        sample::buildSeason(*f.db, *f.prefs, 0);
        f.prefs->prSeason = QStringLiteral("2026");
        f.platform.clock.time = QDateTime(QDate(2026, 4, 15), QTime(10, 30), Qt::UTC);
        const QList<ScheduleEntry> schedule = ScheduleStore(*f.db).list(ScheduleStore::kShowAll);
        auto *screen = new scheduleScrn;
        const QString path = f.home.filePath(QStringLiteral("season"));
        f.platform.files.answers.enqueue(path);
        screen->menus()->item(QStringLiteral("FileExportCalendar"))->trigger();
        const QByteArray written = readAll(path + QStringLiteral(".ics"));

        const QList<schedule::CalendarEvent> events = schedule::readCalendar(written);
        QCOMPARE(events.size(), schedule.size());
        for (qsizetype i = 0; i < events.size(); ++i) {
            const eventClass &e = schedule.at(i).event;
            const schedule::CalendarEvent &read = events.at(i);
            QCOMPARE(read.day, e.mDate);
            QCOMPARE(read.location, e.location);
            const QTime start = schedule::storedTime(e.startTime);
            QCOMPARE(read.allDay, !start.isValid());
            if (start.isValid())
                QCOMPARE(read.start, QDateTime(e.mDate, start));
            const QTime bus = schedule::storedTime(e.busTime);
            QCOMPARE(read.alarm, bus.isValid() ? QDateTime(e.mDate, bus) : QDateTime());
            if (e.isHome == 1)
                QVERIFY2(read.summary.contains(QStringLiteral(" vs ") + e.opponent), qPrintable(read.summary));
            if (e.isHome == 2)
                QVERIFY2(read.summary.contains(QStringLiteral(" at ") + e.opponent), qPrintable(read.summary));
        }

        // The first event moves to another day: same id, new date.
        eventClass moved = schedule.first().event;
        moved.mDate = moved.mDate.addDays(1);
        QVERIFY(ScheduleStore(*f.db).update(schedule.first().eventID, moved));
        f.platform.files.answers.enqueue(path + QStringLiteral("-2.ics"));
        screen->menus()->item(QStringLiteral("FileExportCalendar"))->trigger();
        const QList<schedule::CalendarEvent> again = schedule::readCalendar(readAll(path + QStringLiteral("-2.ics")));
        QCOMPARE(again.size(), events.size());
        for (qsizetype i = 0; i < again.size(); ++i)
            QCOMPARE(again.at(i).uid, events.at(i).uid);
        QCOMPARE(again.first().day, moved.mDate);
        delete screen;
    }

    // Events the sample season doesn't have, written and read back.
    void calendarEvents_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<QString>("start");
        QTest::addColumn<QString>("bus");
        QTest::addColumn<QString>("opponent");
        QTest::addColumn<int>("home");
        QTest::addColumn<QString>("summary");
        QTest::addColumn<QString>("alarm"); // "" none
        QTest::newRow("no start time: the whole day, the bus alarm at its time") << "Practice"
                                                                                 << "---"
                                                                                 << "2:45 PM"
                                                                                 << "" << 0 << "Practice"
                                                                                 << "2026-05-02 14:45";
        QTest::newRow("no opponent") << "Meeting"
                                     << "7:00 PM"
                                     << "---"
                                     << "N/A" << 0 << "Meeting"
                                     << "";
        QTest::newRow("a scrimmage") << "Scrimmage"
                                     << "4:00 PM"
                                     << "3:00 PM"
                                     << "Owls" << 0 << "Scrimmage: Owls"
                                     << "2026-05-02 15:00";
        QTest::newRow("away game") << "Game"
                                   << "11:30 AM"
                                   << "9:15 AM"
                                   << "Owls" << 2 << "Hawks at Owls"
                                   << "2026-05-02 09:15";
    }
    void calendarEvents()
    {
        QFETCH(QString, type);
        QFETCH(QString, start);
        QFETCH(QString, bus);
        QFETCH(QString, opponent);
        QFETCH(int, home);
        QFETCH(QString, summary);
        QFETCH(QString, alarm);
        ScheduleEntry entry;
        entry.eventID = 9;
        entry.event.mDate = QDate(2026, 5, 2);
        entry.event.eventType = type;
        entry.event.startTime = start;
        entry.event.busTime = bus;
        entry.event.opponent = opponent;
        entry.event.isHome = std::uint8_t(home);
        entry.event.location = QStringLiteral("Field 2, North; by the river");
        ScheduleEntry undated = entry;
        undated.event.mDate = QDate();
        const QList<schedule::CalendarEvent> events = schedule::readCalendar(
            schedule::calendarFile({entry, undated}, QStringLiteral("Hawks"), QStringLiteral("2026"), QDateTime()));
        QCOMPARE(events.size(), 1);
        const schedule::CalendarEvent &e = events.first();
        QCOMPARE(e.uid, QStringLiteral("event-9-2026@tallyline"));
        QCOMPARE(e.summary, summary);
        QCOMPARE(e.location, entry.event.location);
        QCOMPARE(e.allDay, start == u"---");
        QCOMPARE(e.alarm.toString(QStringLiteral("yyyy-MM-dd hh:mm")), alarm);
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
        QCOMPARE(support::csv::field(text), field);
        QCOMPARE(support::csv::line({text, QStringLiteral("1")}), field + QStringLiteral(",1\r\n"));
    }
};

QTEST_MAIN(TestSeasonExport)
#include "tst_seasonexport.moc"
