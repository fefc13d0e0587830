// "Record Game Data" on the game screen: an open panel is saved and closed,
// the check window shows the game's checks, and the coach's answer records
// the game (the button gives way to the recorded label) or leaves it as it
// was.

#include "RecordTestSupport.h"
#include "gameday/GameDayTestSupport.h"
#include "gameday/ui/BBPlayersLB.h"
#include "gameday/ui/gameDayScrn.h"
#include "stats/ui/FieldingCtr.h"
#include "stats/ui/finalCheckScrn.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>

namespace {

void addByPos(gameday::GameDay &game, const QStringList &positions)
{
    for (const QString &pos : positions) {
        for (int i = 0; i < game.roster().size(); ++i) {
            if (game.roster().at(i).pos == pos) {
                game.addPlayerToLineup(i);
                break;
            }
        }
    }
}

// Once the check window shows, reads its marks into `marks` and presses
// `button` ("recordBtn" or "cancelBtn") from the keyboard.
void answerChecks(const QString &button, QString &marks)
{
    auto *poll = new QTimer;
    poll->setInterval(5);
    QObject::connect(poll, &QTimer::timeout, poll, [poll, button, &marks] {
        for (QWidget *w : QApplication::topLevelWidgets()) {
            auto *check = qobject_cast<finalCheckScrn *>(w);
            if (!check || !check->isVisible())
                continue;
            poll->stop();
            poll->deleteLater();
            for (const CheckMark *mark : check->checkCnv)
                marks += mark->passed() ? u'1' : u'0';
            auto *target = check->findChild<QPushButton *>(button);
            target->setFocus();
            QTest::keyClick(target, Qt::Key_Space);
            return;
        }
    });
    poll->start();
}

} // namespace

class TestRecordScrn : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void recordFromScreen_data()
    {
        QTest::addColumn<QString>("button");
        QTest::addColumn<bool>("recorded");
        QTest::newRow("record") << "recordBtn" << true;
        QTest::newRow("cancel") << "cancelBtn" << false;
    }
    void recordFromScreen()
    {
        QFETCH(QString, button);
        QFETCH(bool, recorded);
        gamedaytest::Season season;
        auto *scr = new gameDayScrn(season.schedID());
        scr->show();
        gameday::GameDay &game = scr->game();
        // The Bears show first: three outs and a home run in the first.
        addByPos(game, {"C", "B1", "B2", "B3"});
        for (const auto &[row, code] : std::initializer_list<std::pair<int, QString>>{{0, "HR"}, {1, "GO"}, {2, "KS"}, {3, "FO"}})
            game.card().applyChoice(row, 0, code);
        game.showTeam(0);
        addByPos(game, {"C"});
        game.card().applyChoice(0, 0, "B1");
        game.card().applyChoice(0, 0, "xRUN");
        game.updateRunsHits();
        QVERIFY(scr->finalizeBtn->isVisible());

        // The catcher's fielding panel is open with a figure typed.
        scr->Names_PosLB->setSelectedRow(0);
        scr->fldStatsBtn->click();
        QVERIFY(scr->myFldCtr->isVisible());
        scr->myFldCtr->dataFld(0)->selectAll();
        QTest::keyClicks(scr->myFldCtr->dataFld(0), "9");

        QString marks;
        answerChecks(button, marks);
        scr->finalizeBtn->setFocus();
        QTest::keyClick(scr->finalizeBtn, Qt::Key_Space);

        // RBI 0 against 1 run; the home first inning has no outs; every at
        // bat has its result; a fielding row and no pitching row.
        QCOMPARE(marks, QStringLiteral("0010"));
        QVERIFY(!scr->myFldCtr->isVisible());
        QCOMPARE(stats::GameStatStore(*gData).stats(stats::Panel::Fielding, season.schedID(), "1").value_or("").section(u'\t', 0, 0),
                 QStringLiteral("9"));
        QCOMPARE(scr->finalizeBtn->isVisible(), !recorded);
        QCOMPARE(scr->dataRecordedLabel->isVisible(), recorded);
        QCOMPARE(recordtest::Season::isRecorded(season.schedID()), recorded);
        const QString home = QString::number(season.homeID);
        const QString game1 = season.schedID();
        QCOMPARE(recordtest::Season::seasonRow("Hitting", "1"),
                 recorded ? "team=" + home + " game=" + game1 + " AB=1 B1=1 Runs=1" : QString());
        QCOMPARE(recordtest::Season::seasonRow("Fielding", "1"), recorded ? "team=" + home + " game=" + game1 + " IP=9" : QString());
        QCOMPARE(season.fake.messages.texts().contains("The game data has been successfully recorded."), recorded);
        scr->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
};

QTEST_MAIN(TestRecordScrn)
#include "tst_recordscrn.moc"
