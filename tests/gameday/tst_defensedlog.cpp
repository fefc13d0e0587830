// Playing time as a coach keeps it: a game scored on the game screen, a
// player moved twice in the defense window (by mouse, then by keyboard),
// the fielding innings filled from the table, the game recorded, and his
// innings at each position read back from the season and the report.

#include "SampleSeason.h"
#include "app/ui/MainMenuBar.h"
#include "fakes/TestKit.h"
#include "gameday/MinimumPlay.h"
#include "gameday/ui/defenseDlog.h"
#include "gameday/ui/gameDayScrn.h"
#include "reports/ReportsFixture.h"
#include "reports/ui/playingTimeScrn.h"
#include "reports/ui/qlmListBox.h"
#include "seasondata/ui/prefScrn.h"
#include "stats/ui/finalCheckScrn.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>

using namespace Qt::StringLiterals;

namespace {

// The lineup by position, then three strikeouts in each listed column.
void playTeam(gameday::GameDay &game, const QStringList &positions, const QList<int> &innings)
{
    for (const QString &pos : positions)
        for (int i = 0; i < game.roster().size(); ++i)
            if (game.roster().at(i).pos == pos) {
                game.addPlayerToLineup(i);
                break;
            }
    for (int col : innings)
        for (int row = 0; row < 3; ++row)
            game.card().applyChoice(row, col, u"KS"_s);
    game.updateRunsHits();
}

void recordFromScreen(gameDayScrn *screen)
{
    testkit::whenShown<finalCheckScrn>([](finalCheckScrn *check) {
        auto *record = check->findChild<QPushButton *>(u"recordBtn"_s);
        record->setFocus();
        QTest::keyClick(record, Qt::Key_Space);
    });
    auto *finalize = testkit::child<QPushButton>(screen, "finalizeBtn");
    finalize->setFocus();
    QTest::keyClick(finalize, Qt::Key_Space);
}

QTreeWidgetItem *rowOf(const QTreeWidget *table, const QString &pos)
{
    for (int r = 0; r < table->topLevelItemCount(); ++r)
        if (table->topLevelItem(r)->text(0) == pos)
            return table->topLevelItem(r);
    return nullptr;
}

QStringList rowTexts(const QTreeWidget *table, const QString &pos, int innings)
{
    QStringList out;
    for (int c = 1; c <= innings; ++c)
        out.append(rowOf(table, pos)->text(c));
    return out;
}

} // namespace

class TestDefenseDlog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { testkit::closeAllWindows(); }

    void movedTwiceThenRecorded()
    {
        ReportsFixture f;
        QVERIFY(sample::buildSeason(*f.db, *f.prefs, 0).isEmpty());
        const QString game =
            f.db->scalar(u"SELECT eventID FROM Schedule WHERE Event = 'Game' ORDER BY SchedDate"_s).toString();

        // At home against the Wildcats, who bat first: three innings each
        // way, three strikeouts a side (the Celtics bat only once so far).
        auto *screen = new gameDayScrn(game);
        screen->show();
        playTeam(screen->game(), {"SS", "CF", "C", "B3", "B1", "LF", "RF", "B2", "RHP"}, {0});
        testkit::child<QRadioButton>(screen, "TeamBtn_0")->click();
        playTeam(screen->game(), {"C", "B1", "B2"}, {0, 1, 2});
        testkit::child<QRadioButton>(screen, "TeamBtn_1")->click();

        testkit::child<QPushButton>(screen, "defenseBtn")->click();
        auto *dlg = screen->findChild<defenseDlog *>();
        QVERIFY(dlg && dlg->isVisible());
        auto *table = testkit::child<QTreeWidget>(dlg, "defenseTable");
        auto *posPop = testkit::child<QComboBox>(dlg, "posPop");
        auto *inningFld = testkit::child<QSpinBox>(dlg, "inningFld");
        auto *playerPop = testkit::child<QComboBox>(dlg, "playerPop");
        auto *moveBtn = testkit::child<QPushButton>(dlg, "moveBtn");
        QCOMPARE(table->columnCount(), 8); // the positions, then seven innings
        QCOMPARE(rowTexts(table, u"2B"_s, 3), QStringList(3, u"G. D'Amico"_s));

        // By mouse: left field in the 2nd, D'Amico there from then on.
        const QRect cell = table->visualRect(table->indexFromItem(rowOf(table, u"LF"_s), 2));
        QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, cell.center());
        QCOMPARE(posPop->currentText(), u"LF"_s);
        QCOMPARE(inningFld->value(), 2);
        QCOMPARE(playerPop->currentText(), u"Lucas Brennan"_s);
        playerPop->setCurrentIndex(playerPop->findText(u"Gabriel D'Amico"_s));
        QTest::mouseClick(moveBtn, Qt::LeftButton);

        // By keyboard: down to center field, right to the 3rd, and Move.
        table->setFocus();
        QTest::keyClick(table, Qt::Key_Down);
        QTest::keyClick(table, Qt::Key_Right);
        QCOMPARE(posPop->currentText(), u"CF"_s);
        QCOMPARE(inningFld->value(), 3);
        playerPop->setCurrentIndex(playerPop->findText(u"Gabriel D'Amico"_s));
        moveBtn->setFocus();
        QTest::keyClick(moveBtn, Qt::Key_Space);

        QCOMPARE(rowTexts(table, u"2B"_s, 4), (QStringList{"G. D'Amico", "L. Brennan", "L. Brennan", "L. Brennan"}));
        QCOMPARE(rowTexts(table, u"LF"_s, 4),
                 (QStringList{"L. Brennan", "G. D'Amico", "L. O'Sullivan", "L. O'Sullivan"}));
        QCOMPARE(rowTexts(table, u"CF"_s, 4),
                 (QStringList{"L. O'Sullivan", "L. O'Sullivan", "G. D'Amico", "G. D'Amico"}));

        // A move is a change of the game's log like any other.
        QAction *undo = screen->menus()->item(u"EditUndo"_s);
        QCOMPARE(undo->text(), u"&Undo D'Amico to CF from the 3rd inning"_s);
        undo->trigger();
        QCOMPARE(rowTexts(table, u"CF"_s, 4), QStringList(4, u"L. O'Sullivan"_s));
        screen->menus()->item(u"EditRedo"_s)->trigger();
        QCOMPARE(rowTexts(table, u"CF"_s, 4),
                 (QStringList{"L. O'Sullivan", "L. O'Sullivan", "G. D'Amico", "G. D'Amico"}));

        // The fielding innings of the three played, on the coach's word.
        f.platform.messages.answers.enqueue(platform::MsgAction);
        testkit::child<QPushButton>(dlg, "fillIPBtn")->click();
        QCOMPARE(f.platform.messages.texts().last(),
                 u"Fill the fielding innings of every player of Celtics from the defense table?"_s);
        QCOMPARE(undo->text(), u"&Undo Fill Fielding Innings"_s); // the whole team in one change
        recordFromScreen(screen);
        QCOMPARE(f.db->scalar(u"SELECT recorded FROM Games WHERE schedID = ?"_s, {game}).toInt(), 1);
        const QString damico = f.db->scalar(u"SELECT playerID FROM Players WHERE Last = 'D''Amico'"_s).toString();
        QCOMPARE(f.db->scalar(u"SELECT IP FROM Fielding WHERE playerID = ?"_s, {damico}).toInt(), 3);
        QCOMPARE(f.db->scalar(u"SELECT SUM(IP) FROM Fielding WHERE teamID = (SELECT TeamNum FROM Players "
                              u"WHERE playerID = ?)"_s,
                              {damico})
                     .toInt(),
                 27);

        // Read back as the report shows him: one inning at each place.
        auto report = std::make_unique<playingTimeScrn>();
        auto *list = testkit::child<qlmListBox>(report, "timeBox");
        QStringList row;
        for (int r = 0; r < list->rowCount(); ++r)
            if (list->cell(r, 0) == u"Gabriel D'Amico")
                row = list->rowCells(r);
        QCOMPARE(row, (QStringList{"Gabriel D'Amico", "Celtics", "1", "3", "0", "0", "0", "1", "0", "0", "1", "1", "0",
                                   "0", "0", "0", "0"}));
    }

    // From the next-to-last inning on, the game screen names the players of
    // the team on show below the minimum, its bench included.
    void minimumPlayLine_data()
    {
        QTest::addColumn<int>("innings");
        QTest::addColumn<int>("atBats");
        QTest::addColumn<int>("played");          // innings the Wildcats batted
        QTest::addColumn<QStringList>("benched"); // "name inning": out of the field from then
        QTest::addColumn<QString>("line");
        const QString schafer = u"Owen Schäfer (0 inn, 0 AB)"_s;
        QTest::newRow("no minimum") << 0 << 0 << 6 << QStringList() << QString();
        QTest::newRow("before the next-to-last inning") << 1 << 0 << 5 << QStringList() << QString();
        QTest::newRow("the bench player") << 1 << 0 << 6 << QStringList() << u"Minimum play not met yet: "_s + schafer;
        QTest::newRow("at bats: those who haven't batted")
            << 0 << 1 << 6 << QStringList()
            << u"Minimum play not met yet: Jackson Reyes (6 inn, 0 AB), Caleb Washington (6 inn, 0 AB), Lucas "
               u"Brennan (6 inn, 0 AB), Elijah Park (6 inn, 0 AB), Gabriel D'Amico (6 inn, 0 AB), Noah Kowalski (6 "
               u"inn, 0 AB), "_s +
                   schafer;
        QTest::newRow("benched after three innings")
            << 4 << 0 << 6 << QStringList{u"Gabriel D'Amico 4"_s}
            << u"Minimum play not met yet: Gabriel D'Amico (3 inn, 0 AB), "_s + schafer;
    }
    void minimumPlayLine()
    {
        QFETCH(int, innings);
        QFETCH(int, atBats);
        QFETCH(int, played);
        QFETCH(QStringList, benched);
        QFETCH(QString, line);
        ReportsFixture f;
        QVERIFY(sample::buildSeason(*f.db, *f.prefs, 0).isEmpty());
        QVERIFY((gameday::MinimumPlay{innings, atBats}.save(f.prefs->strdDataLoc)));
        const QString game =
            f.db->scalar(u"SELECT eventID FROM Schedule WHERE Event = 'Game' ORDER BY SchedDate"_s).toString();
        auto *screen = new gameDayScrn(game);
        screen->show();
        playTeam(screen->game(), {"SS", "CF", "C", "B3", "B1", "LF", "RF", "B2", "RHP"}, {0});
        testkit::child<QRadioButton>(screen, "TeamBtn_0")->click();
        QList<int> columns;
        for (int c = 0; c < played; ++c)
            columns.append(c);
        playTeam(screen->game(), {"C", "B1", "B2"}, columns);
        testkit::child<QRadioButton>(screen, "TeamBtn_1")->click();
        defenseDlog *dlg = screen->openDefense();
        for (const QString &out : benched) {
            auto *playerPop = testkit::child<QComboBox>(dlg, "playerPop");
            auto *posPop = testkit::child<QComboBox>(dlg, "posPop");
            playerPop->setCurrentIndex(playerPop->findText(out.section(u' ', 0, -2)));
            posPop->setCurrentIndex(posPop->findText(u"Bench"_s));
            testkit::child<QSpinBox>(dlg, "inningFld")->setValue(out.section(u' ', -1).toInt());
            testkit::child<QPushButton>(dlg, "moveBtn")->click();
        }
        auto *shown = testkit::child<QLabel>(screen, "minPlayFld");
        QCOMPARE(shown->text(), line);
        QCOMPARE(shown->isVisible(), !line.isEmpty());
    }

    // The setting is made on the preferences screen and kept for the next time.
    void minimumPlayIsAPreference()
    {
        ReportsFixture f;
        auto *prefs = new prefScrn;
        prefs->show();
        auto *innings = testkit::child<QSpinBox>(prefs, "minInningsFld");
        QCOMPARE(innings->text(), u"None"_s);
        innings->setValue(4);
        testkit::child<QSpinBox>(prefs, "minAtBatsFld")->setValue(2);
        testkit::child<QPushButton>(prefs, "prefsavebutton")->click();
        QCOMPARE(gameday::MinimumPlay::load(f.prefs->strdDataLoc), (gameday::MinimumPlay{4, 2}));
    }
};

QTEST_MAIN(TestDefenseDlog)
#include "tst_defensedlog.moc"
