// "Record Game Data" on the game screen: an open panel is saved and closed,
// the check window shows the game's checks, and the coach's answer records
// the game from either team's view (the button gives way to the recorded
// label) or leaves everything as it was, as a database failure does.

#include "RecordTestSupport.h"
#include "fakes/TestKit.h"
#include "gameday/GameDayTestSupport.h"
#include "gameday/ui/BBPlayersLB.h"
#include "gameday/ui/gameDayScrn.h"
#include "stats/GameStats.h"
#include "stats/ui/FieldingCtr.h"
#include "stats/ui/finalCheckScrn.h"

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QTimer>

using recordtest::Season;

namespace {

// Adds the lineup by position and plays (row, column, code) on the team on show.
void playTeam(gameday::GameDay &game, const QStringList &positions, const QList<std::tuple<int, int, QString>> &plays)
{
    for (const QString &pos : positions) {
        for (int i = 0; i < game.roster().size(); ++i) {
            if (game.roster().at(i).pos == pos) {
                game.addPlayerToLineup(i);
                break;
            }
        }
    }
    for (const auto &[row, col, code] : plays)
        game.card().applyChoice(row, col, code);
    game.updateRunsHits();
}

// Once the check window shows, reads its marks and answers with a key on
// a button ("recordBtn", "cancelBtn") or Escape.
void answerChecks(const QString &answer, QString &marks)
{
    testkit::whenShown<finalCheckScrn>([answer, &marks](finalCheckScrn *check) {
        for (const char *name : {"checkCnv0", "checkCnv1", "checkCnv2", "checkCnv3", "proofCnv0", "proofCnv1"})
            marks += testkit::child<CheckMark>(check, name)->passed() ? u'1' : u'0';
        if (answer == u"escape")
            return QTest::keyClick(check, Qt::Key_Escape);
        auto *target = check->findChild<QPushButton *>(answer);
        target->setFocus();
        QTest::keyClick(target, Qt::Key_Space);
    });
}

QString seasonDump(const QString &home, const QString &bears, const QString &game)
{
    QStringList out;
    for (const char *id : {"1", "2", "13", "14", "15", "16"})
        out << QStringLiteral("H%1: ").arg(id) + Season::seasonRow("Hitting", id);
    out << "F1: " + Season::seasonRow("Fielding", "1") << "P16: " + Season::seasonRow("Pitching", "16");
    out << "home " + Season::record(home) << "bears " + Season::record(bears);
    out << (Season::isRecorded(game) ? "recorded" : "open");
    return out.join(u'\n')
        .replace("game=" + game, "game=G")
        .replace("team=" + home, "team=H")
        .replace("team=" + bears, "team=B");
}

QString untouchedSeason()
{
    return QStringList{"H1: ", "H2: ", "H13: ", "H14: ", "H15: ", "H16: ", "F1: ", "P16: ", "home ", "bears ", "open"}
        .join(u'\n');
}

} // namespace

class TestRecordScrn : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Whatever a function left open, also when it failed half-way, goes
    // before the next one starts.
    void cleanup() { testkit::closeAllWindows(); }

    void recordFromScreen_data()
    {
        QTest::addColumn<int>("view");
        QTest::addColumn<QString>("answer");
        QTest::addColumn<QString>("season");
        const QString recorded =
            QStringList{"H1: team=H game=G AB=1 B1=1 Runs=1",
                        "H2: team=H game=G AB=1 HR=1 Runs=1 RBI=1",
                        "H13: team=B game=G AB=2 B2=1 HR=1 Runs=1 RBI=1 LOB=1",
                        "H14: team=B game=G AB=1 GO=1 SB=1",
                        "H15: team=B game=G AB=1 KS=1",
                        "H16: team=B game=G AB=1 FO=1",
                        "F1: team=H game=G IP=9",
                        "P16: team=B game=G Loss=1 Start=1 Balls=20 Ks=30 PitCt=50 IP=51 BF=12 Hits=4",
                        "home 1-0-0",
                        "bears 0-1-0",
                        "recorded"}
                .join(u'\n');
        const QString untouched = untouchedSeason();
        QTest::newRow("from the home team's view, panel open") << 0 << "recordBtn" << recorded;
        QTest::newRow("from the Bears' view") << 1 << "recordBtn" << recorded;
        QTest::newRow("cancel") << 1 << "cancelBtn" << untouched;
        QTest::newRow("escape cancels") << 0 << "escape" << untouched;
        QTest::newRow("database failure keeps the button") << 0 << "fail" << untouched;
    }
    void recordFromScreen()
    {
        QFETCH(int, view);
        QFETCH(QString, answer);
        QFETCH(QString, season);
        gamedaytest::Season s;
        const QString home = QString::number(s.homeID);
        const QString bears = QString::number(s.bearsID);
        auto *scr = new gameDayScrn(s.schedID());
        scr->show();
        gameday::GameDay &game = scr->game();

        // The Bears bat last and show first: three outs in the first inning.
        playTeam(game, {"C", "B1", "B2", "B3"},
                 {{0, 0, "HR"}, {1, 0, "GO"}, {2, 0, "KS"}, {3, 0, "FO"}, {0, 1, "B2"}, {0, 1, "xLOB"}});
        game.setBatterStat(0, 0, "1");
        game.setBatterStat(1, 1, "1");
        testkit::child<QRadioButton>(scr, "TeamBtn_0")->click();
        playTeam(game, {"C", "B1"}, {{0, 0, "B1"}, {0, 0, "xRUN"}, {1, 0, "HR"}});
        game.setBatterStat(1, 0, "1");
        stats::GameStatStore(*gData).savePitching(s.schedID(), "16", bears,
                                                  {2, true, false, false, 20, 30, "5.1\t12\t4"});
        // The catcher's fielding panel open with a figure typed; a change of
        // team saves and closes it, else recording does.
        testkit::child<BBPlayersLB>(scr, "Names_PosLB")->setSelectedRow(0);
        testkit::child<QPushButton>(scr, "fldStatsBtn")->click();
        auto *po = testkit::child<QLineEdit>(testkit::child<FieldingCtr>(scr, "myFldCtr"), "dataFld_0");
        po->selectAll();
        QTest::keyClicks(po, "9");
        if (view == 1)
            testkit::child<QRadioButton>(scr, "TeamBtn_1")->click();
        QVERIFY(testkit::child<QPushButton>(scr, "finalizeBtn")->isVisible());
        if (answer == u"fail")
            recordtest::failAtWrite(3);

        QString marks;
        answerChecks(answer == u"fail" ? QStringLiteral("recordBtn") : answer, marks);
        testkit::child<QPushButton>(scr, "finalizeBtn")->setFocus();
        QTest::keyClick(testkit::child<QPushButton>(scr, "finalizeBtn"), Qt::Key_Space);

        // RBI 1 against 2 runs for the home team, whose first inning has no
        // outs; every at bat has its result; both panels saved; both cards
        // prove.
        QCOMPARE(marks, QStringLiteral("001111"));
        QVERIFY(!testkit::child<FieldingCtr>(scr, "myFldCtr")->isVisible());
        QCOMPARE(seasonDump(home, bears, s.schedID()), season);
        const bool done = season.endsWith("recorded");
        QCOMPARE(testkit::child<QPushButton>(scr, "finalizeBtn")->isVisible(), !done);
        QCOMPARE(testkit::child<QLabel>(scr, "dataRecordedLabel")->isVisible(), done);
        QCOMPARE(testkit::child<QComboBox>(scr, "gameTypePop")->isEnabled(), !done); // read-only once recorded
        QCOMPARE(s.fake.messages.texts().contains("The game data has been successfully recorded."), done);
        if (answer == u"fail")
            QVERIFY(s.fake.messages.texts().last().startsWith("Database Error"));

        // A recorded game is corrected from the keyboard: the season is as
        // before and the game opens for changes.
        auto *correct = testkit::child<QPushButton>(scr, "correctGameBtn");
        QCOMPARE(correct->isVisible(), done);
        if (done) {
            QVERIFY(!correct->accessibleName().isEmpty());
            correct->setFocus();
            QTest::keyClick(correct, Qt::Key_Space);
            QCOMPARE(s.fake.messages.texts().last(), QStringLiteral("Correct this recorded game?"));
            QCOMPARE(seasonDump(home, bears, s.schedID()), untouchedSeason());
            QVERIFY(!correct->isVisible());
            QVERIFY(testkit::child<QPushButton>(scr, "finalizeBtn")->isVisible());
            QVERIFY(testkit::child<QComboBox>(scr, "gameTypePop")->isEnabled());
            QVERIFY(!game.isReadOnly());
            testkit::child<BBPlayersLB>(scr, "Names_PosLB")->setSelectedRow(0);
            QVERIFY(testkit::child<QPushButton>(scr, "fldStatsBtn")->isEnabled());
            // Recorded again, the season is as after the first recording.
            QString again;
            answerChecks(QStringLiteral("recordBtn"), again);
            QTest::keyClick(testkit::child<QPushButton>(scr, "finalizeBtn"), Qt::Key_Space);
            QCOMPARE(seasonDump(home, bears, s.schedID()), season);
            QVERIFY(correct->isVisible());
        }
        scr->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    // The score recorded is the cards', worked out anew when the coach
    // records: a walk-off run after "Cancel" to "Is this game over?" left
    // the board behind, and still wins. The check window shows the score.
    void walkOffIsAWin()
    {
        gamedaytest::Season s(1); // the Bears bat first, the home team last
        gPrefs->prInnings = QStringLiteral("1 Innings");
        auto *scr = new gameDayScrn(s.schedID());
        scr->show();
        gameday::GameDay &game = scr->game();
        QTRY_COMPARE(game.curSelTeam(), 0);
        playTeam(game, {"C", "B1", "B2", "B3"}, {{0, 0, "HR"}, {1, 0, "GO"}, {2, 0, "KS"}, {3, 0, "FO"}});
        scr->findChild<QRadioButton *>(QStringLiteral("TeamBtn_1"))->click();
        s.fake.messages.answers.enqueue(platform::MsgCancel);
        s.fake.messages.answers.enqueue(platform::MsgCancel);
        for (const QString pos : {"C", "B1"}) {
            for (int i = 0; i < game.roster().size(); ++i) {
                if (game.roster().at(i).pos == pos) {
                    game.addPlayerToLineup(i);
                    break;
                }
            }
        }
        game.card().applyChoice(0, 0, QStringLiteral("HR"));
        game.card().applyChoice(1, 0, QStringLiteral("HR"));
        QCOMPARE(s.fake.messages.texts().count(QStringLiteral("Is this game over?")), 2);

        QString marks;
        QString score;
        auto *poll = new QTimer;
        poll->setInterval(5);
        QObject::connect(poll, &QTimer::timeout, poll, [poll, &score] {
            for (QWidget *w : QApplication::topLevelWidgets()) {
                auto *check = qobject_cast<finalCheckScrn *>(w);
                if (!check || !check->isVisible())
                    continue;
                score = check->findChild<QLabel *>(QStringLiteral("scoreLabel"))->text();
                poll->stop();
                poll->deleteLater();
            }
        });
        poll->start();
        answerChecks(QStringLiteral("recordBtn"), marks);
        scr->findChild<QPushButton *>(QStringLiteral("finalizeBtn"))->click();
        QCOMPARE(score, QStringLiteral("Bears 1, O'Brien's Nine 2"));
        QCOMPARE(Season::record(QString::number(s.homeID)), QStringLiteral("1-0-0"));
        QCOMPARE(Season::record(QString::number(s.bearsID)), QStringLiteral("0-1-0"));
        QCOMPARE(scr->findChild<QLineEdit *>(QStringLiteral("runsFld_1"))->text(), QStringLiteral("2"));
        scr->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
};

QTEST_MAIN(TestRecordScrn)
#include "tst_recordscrn.moc"
