// The game screen as a coach uses it: opened from the schedule, both
// lineups built, three innings scored for both teams from the keyboard
// (a doubled inning, a substitution, the walk-off question), RBI and SB
// typed with their keys, each statistics panel saved, pitching auto-fill,
// teams switched, and the game closed and opened again. The stored strings
// are compared with a golden file.

#include "GameDayTestSupport.h"
#include "app/ui/MainMenuBar.h"
#include "app/ui/ScreenDirectory.h"
#include "fakes/Golden.h"
#include "fakes/TestKit.h"
#include "fakes/TestSupport.h"
#include "gameday/ui/AddPlayersToGameScrn.h"
#include "gameday/ui/BBPlayersLB.h"
#include "gameday/ui/BBScoringLB.h"
#include "gameday/ui/gameDayScrn.h"
#include "reports/ui/qlmListBox.h"
#include "schedule/EventDates.h"
#include "schedule/ui/scheduleScrn.h"
#include "stats/ui/AutoFillPitchScrn.h"
#include "stats/ui/FieldingCtr.h"
#include "stats/ui/battingCtr.h"
#include "stats/ui/pitchingCtr.h"
#include "support/ui/PlusMinusContainer.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QQueue>
#include <QRadioButton>
#include <QTimer>

using namespace gameday;

namespace {

template<class T>
T *shown()
{
    for (QWidget *w : QApplication::topLevelWidgets()) {
        if (auto *t = qobject_cast<T *>(w); t && t->isVisible())
            return t;
    }
    return nullptr;
}

// Works a modal window of type T once it shows.
template<class T>
void whenShown(std::function<void(T *)> work)
{
    auto *poll = new QTimer;
    poll->setInterval(5);
    QObject::connect(poll, &QTimer::timeout, poll, [poll, work] {
        if (auto *w = shown<T>()) {
            poll->deleteLater();
            poll->stop();
            work(w);
        }
    });
    poll->start();
}

void continueAutoFill()
{
    whenShown<AutoFillPitchScrn>(
        [](AutoFillPitchScrn *w) { w->findChild<QPushButton *>(QStringLiteral("ContBtn"))->click(); });
}

// A statistics panel's number field `i` (the pitching panel names its own).
QLineEdit *statFld(StatPanel *panel, int i)
{
    const QString name = qobject_cast<pitchingCtr *>(panel) ? QStringLiteral("PStatFld_%1")
                                                            : QStringLiteral("dataFld_%1");
    return testkit::child<QLineEdit>(panel, qPrintable(name.arg(i)));
}

int rowOfPos(qlmListBox *list, const QString &pos)
{
    for (int r = 0; r < list->rowCount(); ++r) {
        if (list->cell(r, 2) == pos)
            return r;
    }
    return -1;
}

QString storedStrings(const QString &schedID)
{
    const GameRecord g = GameStore(*gData).load(schedID).value();
    QStringList out{QStringLiteral("gameType=") + g.gameType,
                    QStringLiteral("recorded=") + QString::number(g.recorded)};
    const QStringList names = {"Headings", "Bench", "Players", "Actions", "Outcomes", "BatterStats"};
    for (int t = 0; t < 2; ++t) {
        const TeamStrings &s = g.teams[size_t(t)];
        const QStringList values = {s.headings, s.bench, s.players, s.actions, s.outcomes, s.batStats};
        for (int i = 0; i < 6; ++i) {
            QString v = values.at(i);
            out.append(QStringLiteral("Team%1%2=").arg(t == 0 ? "A" : "B", names.at(i)) +
                       v.replace(u'\t', QStringLiteral("\\t")).replace(u'\r', QStringLiteral("\\r")));
        }
    }
    return out.join(u'\n') + u'\n';
}

// The game's row and its panel rows: everything the game screen changes.
QString gameState(const QString &schedID)
{
    QString out = storedStrings(schedID);
    for (const char *table : {"GamesIndivHitting", "GamesIndivFielding", "GamesIndivPitching"}) {
        for (const Record &r : gData->select(QStringLiteral("SELECT * FROM ") + QString::fromLatin1(table) +
                                                 QStringLiteral(" WHERE gameID = ? ORDER BY playerID"),
                                             {schedID})) {
            QStringList values{QString::fromLatin1(table)};
            for (qsizetype c = 0; c < r.columns.size(); ++c) {
                if (r.columns.at(c) != u"recID") // a row made again gets a new one
                    values.append(r.values.at(c).toString());
            }
            out += values.join(u'|') + u'\n';
        }
    }
    return out;
}

} // namespace

class TestGameDayScrn : public QObject
{
    Q_OBJECT

    gameDayScrn *m_scr = nullptr;
    QQueue<QString> m_codes;
    QStringList m_boardA;
    QStringList m_boardB;

    // Keyboard: the arrow keys' target cell, then Return; the popover's
    // answer comes from the script.
    void atBat(int row, int col, const QString &codes)
    {
        for (const QString &code : codes.split(u'>', Qt::SkipEmptyParts)) {
            m_codes.enqueue(code);
            ctl<BBScoringLB>("scoreCardLB")->setCurrentCell(row, col);
            QTest::keyClick(ctl<BBScoringLB>("scoreCardLB"), Qt::Key_Return);
        }
    }
    void inning(int col, const QStringList &plays)
    {
        for (const QString &p : plays)
            atBat(p.section(u':', 0, 0).toInt(), col, p.section(u':', 1));
    }
    void addByPos(const QStringList &positions)
    {
        for (const QString &pos : positions) {
            ctl<qlmListBox>("rosterList")->setSelectedRow(rowOfPos(ctl<qlmListBox>("rosterList"), pos));
            ctl<QPushButton>("addBtn")->setFocus();
            QTest::keyClick(ctl<QPushButton>("addBtn"), Qt::Key_Space);
        }
    }
    // The cell editor open in the RBI and SB list.
    QWidget *statEditor() const
    {
        return ctl<qlmListBox>("batterStatLB")->indexWidget(ctl<qlmListBox>("batterStatLB")->currentIndex());
    }
    template<class T>
    T *ctl(const char *name) const
    {
        T *found = m_scr->findChild<T *>(QString::fromLatin1(name));
        if (!found)
            qFatal("no control %s", name);
        return found;
    }
    QStringList board(int team) const
    {
        QStringList out;
        const QString side = team == 0 ? QStringLiteral("A") : QStringLiteral("B");
        for (int i = 0; i < 10; ++i)
            out.append(m_scr->findChild<QLineEdit *>(QStringLiteral("team%1Innings_%2").arg(side).arg(i))->text());
        for (const char *box : {"runsFld_%1", "hitsFld_%1", "errsFld_%1", "LOBFld_%1"})
            out << m_scr->findChild<QLineEdit *>(QString::fromLatin1(box).arg(team))->text();
        return out;
    }
    void openFromSchedule(gamedaytest::Season &season)
    {
        auto *schedule = new scheduleScrn;
        schedule->show();
        auto *list = schedule->findChild<qlmListBox *>(QStringLiteral("ScheduleListbox"));
        list->setSelectedRow(0);
        auto *enter = schedule->findChild<QPushButton *>(QStringLiteral("enterDataBtn"));
        QVERIFY(enter->isEnabled());
        enter->click();
        m_scr = shown<gameDayScrn>();
        QVERIFY(m_scr);
        QCOMPARE(m_scr->game().schedID(), season.schedID());
        ctl<BBScoringLB>("scoreCardLB")->grid().setPopoverRequest([this](int, int, bool) {
            return m_codes.isEmpty() ? QString() : m_codes.dequeue();
        });
        if (m_onOpen)
            m_onOpen();
        QTRY_COMPARE(m_scr->game().curSelTeam(), 0); // the switch timer brings team A on show
        schedule->close();
    }
    std::function<void()> m_onOpen; // run as the game screen opens, before anything is done

    // Scores the game of the golden file through the window, as a coach
    // would, and leaves it open with team B on show.
    void playGoldenGame(gamedaytest::Season &season)
    {
        auto &msgs = season.fake.messages;
        openFromSchedule(season);
        QCOMPARE(ctl<QLabel>("InstrFld")->text(),
                 QStringLiteral("Select a player from the roster and click 'Add' to create your lineup."));
        QVERIFY(!ctl<QPushButton>("finalizeBtn")->isVisible());

        // Team A (the home team): nine batters, a tenth who only pitches, a refused eleventh.
        const QStringList nine = {"C", "B1", "B2", "B3", "SS", "LF", "CF", "RF", "DH"};
        addByPos(nine + QStringList{"RHP", "LHP"});
        QCOMPARE(ctl<BBPlayersLB>("Names_PosLB")->rowCount(), 10);
        QCOMPARE(msgs.texts(), (QStringList{"Add a non-batting Pitcher to your lineup.",
                                            "You have reached max players as defined in Preferences."}));
        // From the keyboard: Alt+Down moves the catcher to second, F2 types his position.
        ctl<BBPlayersLB>("Names_PosLB")->setSelectedRow(0);
        QTest::keyClick(ctl<BBPlayersLB>("Names_PosLB"), Qt::Key_Down, Qt::AltModifier);
        QCOMPARE(ctl<BBPlayersLB>("Names_PosLB")->rowCells(1), (QStringList{"2", "C", "Ann1 O'Neil"}));
        QTest::keyClick(ctl<BBPlayersLB>("Names_PosLB"), Qt::Key_F2);
        QWidget *posEditor =
            ctl<BBPlayersLB>("Names_PosLB")->indexWidget(ctl<BBPlayersLB>("Names_PosLB")->currentIndex());
        QVERIFY(posEditor);
        QTest::keyClicks(posEditor, QStringLiteral("dh"));
        QTest::keyClick(posEditor, Qt::Key_Return);
        QTRY_COMPARE(readPlayers(GameStore(*gData).load(season.schedID())->teams[0].players).at(1).pos,
                     QStringLiteral("DH"));
        QTest::keyClick(ctl<BBPlayersLB>("Names_PosLB"), Qt::Key_Up, Qt::AltModifier);
        QCOMPARE(ctl<BBPlayersLB>("Names_PosLB")->cell(0, 2), QStringLiteral("Ann1 O'Neil"));
        // Team B: four batters and their pitcher.
        ctl<QRadioButton>("TeamBtn_1")->click();
        QCOMPARE(m_scr->game().curSelTeam(), 1);
        addByPos({"C", "B1", "B2", "RHP"});
        // A player taken off the bench comes back through the list of the team's players.
        ctl<qlmListBox>("rosterList")->setSelectedRow(rowOfPos(ctl<qlmListBox>("rosterList"), "P"));
        Q_EMIT ctl<PlusMinusContainer>("PlusMinusPlayers")->MinusPressed();
        QCOMPARE(msgs.texts().last(),
                 QStringLiteral("Are you sure you wish to remove Bo12 Smith from the list of available players?"));
        QCOMPARE(ctl<qlmListBox>("rosterList")->rowCount(), 7);
        whenShown<AddPlayersToGameScrn>([](AddPlayersToGameScrn *w) {
            auto *players = testkit::child<qlmListBox>(w, "PlayerList");
            for (int r = 0; r < players->rowCount(); ++r)
                players->setCellCheck(r, 0, true);
            w->findChild<QPushButton *>(QStringLiteral("doneBtn"))->click();
        });
        Q_EMIT ctl<PlusMinusContainer>("PlusMinusPlayers")->PlusPressed();
        QCOMPARE(ctl<qlmListBox>("rosterList")->rowCount(), 8); // only the one on neither list
        QCOMPARE(ctl<qlmListBox>("rosterList")->cell(7, 1), QStringLiteral("Bo12 Smith"));

        // Team B bats in the second half, but its card is on show: the
        // first inning doubles (four batters, two outs when the order comes round).
        inning(0, {"0:B1>xRUN", "1:BB>xOUT", "2:HR", "3:GO"});
        QCOMPARE(ctl<BBScoringLB>("scoreCardLB")->grid().heading(1), QStringLiteral("1a"));
        inning(1, {"0:KS"});
        inning(2, {"1:B2>xLOB", "2:KL", "3:GO", "0:FO"});
        QVERIFY(ctl<QPushButton>("finalizeBtn")->isVisible());
        QVERIFY(ctl<QPushButton>("finalizeBtn")->isEnabled());

        // Team A: three innings with a substitution after the first.
        ctl<QRadioButton>("TeamBtn_0")->click();
        inning(0, {"0:B1>xLOB", "1:GO", "2:KS", "3:FO"});
        ctl<qlmListBox>("rosterList")->setSelectedRow(rowOfPos(ctl<qlmListBox>("rosterList"), "P"));
        ctl<BBPlayersLB>("Names_PosLB")->setSelectedRow(1);
        ctl<QPushButton>("replaceBtn")->click();
        QCOMPARE(ctl<BBPlayersLB>("Names_PosLB")->cell(2, 2), QStringLiteral(" ->Ann12 Smith"));
        QCOMPARE(ctl<BBPlayersLB>("Names_PosLB")->cell(2, 0), QStringLiteral("2"));
        inning(1, {"5:HR", "6:GO", "7:KL", "8:FO"});
        inning(2, {"9:B3>xRUN", "0:BB>xLOB", "2:GO", "3:KS", "4:GO"});
        QCOMPARE(board(0).mid(0, 4), (QStringList{"0", "1", "1", "--"}));

        // RBI and SB from the keyboard: "+" steps, Return goes down, Tab across.
        ctl<qlmListBox>("batterStatLB")->editCell(4, 0);
        QTest::keyClick(statEditor(), Qt::Key_Plus);
        QTest::keyClick(statEditor(), Qt::Key_Return);
        QTest::keyClick(statEditor(), Qt::Key_Tab);
        QTest::keyClick(statEditor(), Qt::Key_Plus);
        QTest::keyClick(statEditor(), Qt::Key_Plus);
        QTest::keyClick(statEditor(), Qt::Key_Minus);
        QTest::keyClick(statEditor(), Qt::Key_Return);
        QCOMPARE(readBatStats(GameStore(*gData).load(season.schedID())->teams[0].batStats).at(4),
                 (BatterStat{"1", "0"}));
        QCOMPARE(readBatStats(GameStore(*gData).load(season.schedID())->teams[0].batStats).at(5),
                 (BatterStat{"0", "1"}));

        // The panels: batting and fielding for the home run hitter, pitching for the pitcher.
        ctl<BBPlayersLB>("Names_PosLB")->setSelectedRow(4);
        ctl<QPushButton>("UDBatStatsBtn")->click();
        QVERIFY(ctl<battingCtr>("myBatCtr")->isVisible());
        QTest::keyClick(statFld(ctl<battingCtr>("myBatCtr"), 1), Qt::Key_Plus);
        QTest::keyClick(statFld(ctl<battingCtr>("myBatCtr"), 1), Qt::Key_Escape);
        QVERIFY(!ctl<battingCtr>("myBatCtr")->isVisible());
        QVERIFY(!ctl<QPushButton>("UDBatStatsBtn")->isChecked());
        ctl<QPushButton>("fldStatsBtn")->click();
        m_scr->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_scr));
        statFld(ctl<FieldingCtr>("myFldCtr"), 5)->setFocus();
        statFld(ctl<FieldingCtr>("myFldCtr"), 5)->setText(QString());
        QTest::keyClicks(statFld(ctl<FieldingCtr>("myFldCtr"), 5), QStringLiteral("2x"));
        QCOMPARE(season.fake.beeper.beeps, 1);
        statFld(ctl<FieldingCtr>("myFldCtr"), 6)->setFocus();
        QCOMPARE(ctl<QLineEdit>("errsFld_0")->text(), QStringLiteral("2")); // at once, the panel still open
        ctl<QPushButton>("fldStatsBtn")->click();

        ctl<BBPlayersLB>("Names_PosLB")->setSelectedRow(10);
        QVERIFY(ctl<QPushButton>("pitchStatsBtn")->isEnabled());
        ctl<QPushButton>("pitchStatsBtn")->click();
        QVERIFY(ctl<BBScoringLB>("scoreCardLB")->grid().clickDisabled());
        QLineEdit *ip = statFld(ctl<pitchingCtr>("myPitchCtr"), 0);
        ip->setText(QString());
        QTest::keyClicks(ip, QStringLiteral("6.3"));
        QTest::keyClick(ip, Qt::Key_Escape);
        QVERIFY(ctl<pitchingCtr>("myPitchCtr")->isVisible()); // a bad innings text keeps the panel open
        QCOMPARE(msgs.texts().last(), QStringLiteral("Incorrect 'IP' entry."));

        // Auto-fill over team B's card: from the first batter of "1" to
        // the last of "2" (the doubled inning in between).
        continueAutoFill();
        ctl<QPushButton>("autoFillBtn")->click();
        QCOMPARE(m_scr->game().curSelTeam(), 1);
        QVERIFY(!ctl<pitchingCtr>("myPitchCtr")->isVisible());
        for (const QPoint mark : {QPoint(0, 0), QPoint(2, 0)}) { // (col, row)
            ctl<BBScoringLB>("scoreCardLB")->setCurrentCell(mark.y(), mark.x());
            QTest::keyClick(ctl<BBScoringLB>("scoreCardLB"), Qt::Key_Return);
        }
        QCOMPARE(m_scr->game().curSelTeam(), 0);
        QVERIFY(ctl<pitchingCtr>("myPitchCtr")->isVisible());
        QCOMPARE(ip->text(), QStringLiteral("2.0")); // six outs
        QCOMPARE(statFld(ctl<pitchingCtr>("myPitchCtr"), 1)->text(), QStringLiteral("9"));
        QCOMPARE(statFld(ctl<pitchingCtr>("myPitchCtr"), 2)->text(), QStringLiteral("3"));
        ctl<QRadioButton>("gameBtn_0")->click();
        QTest::keyClick(ip, Qt::Key_Escape);
        QVERIFY(!ctl<pitchingCtr>("myPitchCtr")->isVisible());

        // Team B's last at bats: a run in the last inning asks whether the game is over.
        ctl<QRadioButton>("TeamBtn_1")->click();
        msgs.answers.enqueue(platform::MsgAction);
        inning(3, {"1:HR"});
        QCOMPARE(msgs.texts().last(), QStringLiteral("Is this game over?"));
        m_boardA = board(0);
        m_boardB = board(1);
        QCOMPARE(m_boardB.mid(0, 4), (QStringList{"2", "0", "1", "--"}));
        QCOMPARE(m_boardB.at(10), QStringLiteral("3"));
        ctl<QRadioButton>("TeamBtn_0")->click();
        ctl<QRadioButton>("TeamBtn_1")->click();
        QCOMPARE(board(1), m_boardB);
    }

private Q_SLOTS:
    // Whatever a function left open, also when it failed half-way, goes
    // before the next one starts.
    void cleanup()
    {
        testkit::closeAllWindows();
        m_scr = nullptr;
    }

    void initTestCase()
    {
        qRegisterMetaType<AutoFillData>();
        screens::registerScreen(ScreenId::gameDayScrn,
                                [](const QVariant &id) { return gameDayScrn::openFor(id.toString()); });
    }

    void playAGame()
    {
        gamedaytest::Season season;
        gPrefs->prInnings = QStringLiteral("3 Innings");
        playGoldenGame(season);
        const QStringList boardA = m_boardA;
        const QStringList boardB = m_boardB;

        const QString data = ctl<BBScoringLB>("scoreCardLB")->grid().getMyData();
        QVERIFY(m_scr->close());
        m_scr = nullptr;

        const QString stored = storedStrings(season.schedID());
        TL_COMPARE_GOLDEN(QStringLiteral("gameday-played.txt"), stored);

        // Open it again: every string, cell and box as it was.
        openFromSchedule(season);
        QCOMPARE(board(0), boardA);
        if (qEnvironmentVariableIsSet("TL_SCREENSHOT"))
            m_scr->grab().save(qEnvironmentVariable("TL_SCREENSHOT"));
        m_scr->menus()->item(QStringLiteral("FilePrint"))->trigger();
        QCOMPARE(season.fake.printing.printed.size(), 1);
        const QString printed = fakes::pdfText(season.fake.printing.printed.first());
        QVERIFY(printed.startsWith(QStringLiteral("O'Brien's")));
        QVERIFY(printed.contains(QStringLiteral("Printed: ") + EventDates::shortDate(QDate(2026, 4, 15))));
        ctl<QRadioButton>("TeamBtn_1")->click();
        QCOMPARE(board(1), boardB);
        QCOMPARE(ctl<BBScoringLB>("scoreCardLB")->grid().getMyData(), data);
        QVERIFY(ctl<QPushButton>("finalizeBtn")->isVisible());
        QCOMPARE(storedStrings(season.schedID()), stored);
        m_scr->close();
    }

    // The golden game is scored while every state the file passes through
    // is kept; then Edit > Undo takes it back change by change to the
    // empty card, and Redo brings it forward again, each step giving the
    // very state it gave when scored (the team that changed on show). The
    // window is closed and the game opened again between steps where a row
    // says so: the log carries the stacks across.
    void undoAndRedoTheWholeGame_data()
    {
        QTest::addColumn<QList<int>>("reopenAfter"); // undo steps, then redo steps, after which it reopens
        QTest::newRow("in one sitting") << QList<int>{};
        QTest::newRow("reopened while undoing and while redoing") << QList<int>{5, 30, 60};
    }
    void undoAndRedoTheWholeGame()
    {
        QFETCH(QList<int>, reopenAfter);
        gamedaytest::Season season;
        gPrefs->prInnings = QStringLiteral("3 Innings");
        QStringList states;
        QList<int> teams;
        bool scoring = true;
        const auto keep = [&] {
            const QString state = gameState(season.schedID());
            if (scoring && (states.isEmpty() || states.last() != state)) {
                states.append(state);
                teams.append(m_scr->game().curSelTeam());
            }
        };
        m_onOpen = [&] {
            keep(); // the empty card
            connect(&m_scr->game(), &GameDay::undoChanged, m_scr, keep);
        };
        playGoldenGame(season);
        m_onOpen = {};
        scoring = false;
        const int changes = int(states.size()) - 1;
        QCOMPARE(gData->scalar("SELECT COUNT(*) FROM GameChanges WHERE gameID = ?", {season.schedID()}).toInt(),
                 changes);
        QAction *undo = m_scr->menus()->item(QStringLiteral("EditUndo"));
        QAction *redo = m_scr->menus()->item(QStringLiteral("EditRedo"));
        QCOMPARE(undo->text(), QStringLiteral("&Undo Home Run, Smith, 3rd inning"));
        QVERIFY(!redo->isEnabled());

        int steps = 0;
        auto step = [&](bool back, int to) {
            (back ? undo : redo)->trigger();
            QCOMPARE(gameState(season.schedID()), states.at(to));
            QCOMPARE(m_scr->game().curSelTeam(), teams.at(back ? to + 1 : to));
            if (reopenAfter.contains(++steps)) {
                QVERIFY(m_scr->close());
                openFromSchedule(season);
                undo = m_scr->menus()->item(QStringLiteral("EditUndo"));
                redo = m_scr->menus()->item(QStringLiteral("EditRedo"));
                QCOMPARE(gameState(season.schedID()), states.at(to));
            }
        };
        for (int i = changes - 1; i >= 0; --i) {
            step(true, i);
            if (QTest::currentTestFailed())
                return;
        }
        QVERIFY(!undo->isEnabled());
        QCOMPARE(undo->text(), QStringLiteral("&Undo"));
        QCOMPARE(ctl<BBPlayersLB>("Names_PosLB")->rowCount(), 0);
        for (int i = 1; i <= changes; ++i) {
            step(false, i);
            if (QTest::currentTestFailed())
                return;
        }
        QVERIFY(!redo->isEnabled());
    }

    // The Edit menu names the change it would take back or make again, and
    // its keys work from the grid; a recorded game offers neither.
    void editMenuNamesTheChange()
    {
        gamedaytest::Season season;
        openFromSchedule(season);
        ctl<QRadioButton>("TeamBtn_1")->click();
        addByPos({"C", "B1", "B2", "RHP"});
        QAction *undo = m_scr->menus()->item(QStringLiteral("EditUndo"));
        QAction *redo = m_scr->menus()->item(QStringLiteral("EditRedo"));
        QCOMPARE(undo->shortcut(), QKeySequence(QStringLiteral("Ctrl+Z")));
        QCOMPARE(redo->shortcut(), QKeySequence(QStringLiteral("Ctrl+Shift+Z")));
        QCOMPARE(undo->text(), QStringLiteral("&Undo Add Smith to the Lineup"));
        atBat(1, 0, QStringLiteral("BB"));
        QCOMPARE(undo->text(), QStringLiteral("&Undo Ball Four, Smith, 1st inning"));
        QCOMPARE(redo->text(), QStringLiteral("&Redo"));
        QVERIFY(!redo->isEnabled());

        // From team A's card, the key takes team B's walk back and shows team B.
        ctl<QRadioButton>("TeamBtn_0")->click();
        m_scr->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_scr));
        auto *grid = ctl<BBScoringLB>("scoreCardLB");
        grid->setFocus();
        QTest::keyClick(grid, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(m_scr->game().curSelTeam(), 1);
        QCOMPARE(grid->grid().cellText(1, 0), QString());
        QCOMPARE(redo->text(), QStringLiteral("&Redo Ball Four, Smith, 1st inning"));
        QTest::keyClick(grid, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(grid->grid().cellText(1, 0), QStringLiteral("BB"));
        QCOMPARE(readPlayers(GameStore(*gData).load(season.schedID())->teams[1].players).size(), 4);

        m_scr->game().setRecorded();
        QVERIFY(!undo->isEnabled());
        QVERIFY(!redo->isEnabled());
    }

    // The bottom line when a game is opened again: the button for a game
    // not recorded (a new game shows neither, see playAGame), the label
    // once recorded.
    void recordedState_data()
    {
        QTest::addColumn<bool>("inningOver");
        QTest::addColumn<bool>("recorded");
        QTest::addColumn<bool>("button");
        QTest::addColumn<bool>("label");
        QTest::newRow("no at bat yet") << false << false << true << false;
        QTest::newRow("recorded") << true << true << false << true;
    }
    void recordedState()
    {
        QFETCH(bool, inningOver);
        QFETCH(bool, recorded);
        QFETCH(bool, button);
        QFETCH(bool, label);
        gamedaytest::Season season;
        openFromSchedule(season);
        if (inningOver) {
            addByPos({"C", "B1", "B2"});
            inning(0, {"0:GO", "1:FO", "2:KS"});
        }
        QVERIFY(m_scr->close());
        if (recorded) // as recording marks it
            gData->exec(QStringLiteral("UPDATE Games SET recorded = 1 WHERE schedID = ?"), {season.schedID()});
        openFromSchedule(season);
        QCOMPARE(ctl<QPushButton>("finalizeBtn")->isVisible(), button);
        QCOMPARE(ctl<QLabel>("dataRecordedLabel")->isVisible(), label);
        // A recorded game is shown read-only, and says so.
        QCOMPARE(ctl<QLabel>("InstrFld")->text().startsWith(QStringLiteral("This game is recorded")), recorded);
        QCOMPARE(m_scr->findChild<QPushButton *>(QStringLiteral("removeBtn"))->isEnabled(), false);
        QCOMPARE(m_scr->findChild<QComboBox *>(QStringLiteral("gameTypePop"))->isEnabled(), !recorded);
        if (recorded) {
            ctl<BBPlayersLB>("Names_PosLB")->setSelectedRow(0);
            QVERIFY(!m_scr->findChild<QPushButton *>(QStringLiteral("UDBatStatsBtn"))->isEnabled());
            m_codes.enqueue(QStringLiteral("HR"));
            ctl<BBScoringLB>("scoreCardLB")->setCurrentCell(0, 1);
            QTest::keyClick(ctl<BBScoringLB>("scoreCardLB"), Qt::Key_Return);
            QCOMPARE(ctl<BBScoringLB>("scoreCardLB")->grid().cellText(0, 1), QString());
        }
        QCOMPARE(GameStore(*gData).load(season.schedID())->recorded, recorded);
        m_scr->close();
    }

    // "Enter Game Data" on a game already open brings that window forward:
    // two windows would each write their own copy of the card.
    void oneWindowPerGame()
    {
        gamedaytest::Season season;
        openFromSchedule(season);
        gameDayScrn *first = m_scr;
        auto *schedule = new scheduleScrn;
        schedule->show();
        schedule->findChild<qlmListBox *>(QStringLiteral("ScheduleListbox"))->setSelectedRow(0);
        schedule->findChild<QPushButton *>(QStringLiteral("enterDataBtn"))->click();
        int windows = 0;
        for (QWidget *w : QApplication::topLevelWidgets())
            windows += qobject_cast<gameDayScrn *>(w) && w->isVisible() ? 1 : 0;
        QCOMPARE(windows, 1);
        QCOMPARE(shown<gameDayScrn>(), first);
        // The team buttons name their teams.
        auto *teamA = ctl<QRadioButton>("TeamBtn_0");
        QCOMPARE(teamA->text(), QStringLiteral("O'Brien's Nine"));
        QVERIFY(teamA->accessibleName().contains(QStringLiteral("O'Brien's Nine")));
        QVERIFY(ctl<QRadioButton>("TeamBtn_1")->accessibleName().contains(QStringLiteral("Bears")));
        QCOMPARE(ctl<QLineEdit>("runsFld_1")->accessibleName(), QStringLiteral("Bears runs"));
        schedule->close();
        m_scr->close();
    }

    // The panels' buttons follow the lineup row shown selected, across a
    // change of team too.
    void panelButtonsFollowTheSelection()
    {
        gamedaytest::Season season;
        openFromSchedule(season);
        addByPos({"C", "RHP"});
        auto *lineup = ctl<BBPlayersLB>("Names_PosLB");
        auto *fielding = ctl<QPushButton>("fldStatsBtn");
        auto *pitching = ctl<QPushButton>("pitchStatsBtn");
        lineup->setSelectedRow(1);
        QVERIFY(fielding->isEnabled() && pitching->isEnabled());
        lineup->setSelectedRow(0);
        QVERIFY(fielding->isEnabled() && !pitching->isEnabled());
        QVERIFY(!pitching->toolTip().isEmpty()); // says why not
        for (const int team : {1, 0}) {
            ctl<QRadioButton>(team == 1 ? "TeamBtn_1" : "TeamBtn_0")->click();
            QCOMPARE(fielding->isEnabled(), lineup->selectedRow() >= 0);
        }
        lineup->setSelectedRow(1);
        QVERIFY(pitching->isEnabled());
        m_scr->close();
    }

    // RBI and SB: one click opens a cell, and a digit typed on the current
    // cell goes into it.
    void batterStatsOneClick()
    {
        gamedaytest::Season season;
        openFromSchedule(season);
        addByPos({"C", "B1"});
        auto *stats = ctl<qlmListBox>("batterStatLB");
        const QRect cell = stats->visualRect(stats->model()->index(1, 0));
        QTest::mouseClick(stats->viewport(), Qt::LeftButton, {}, cell.center());
        QVERIFY(stats->isEditingCell());
        QTest::keyClick(statEditor(), Qt::Key_Escape);
        QVERIFY(!stats->isEditingCell());
        QTest::keyClick(stats, Qt::Key_3);
        QVERIFY(stats->isEditingCell());
        QTest::keyClick(statEditor(), Qt::Key_Return);
        QCOMPARE(readBatStats(GameStore(*gData).load(season.schedID())->teams[0].batStats).at(1).rbi,
                 QStringLiteral("3"));
        m_scr->close();
    }

    // Auto-fill says what to click, and Escape or a change of team leaves
    // it: the pitcher's team and his panel come back, nothing filled.
    void autoFillWayOut_data()
    {
        QTest::addColumn<QString>("leave");
        QTest::newRow("Escape") << "escape";
        QTest::newRow("a team button") << "team";
    }
    void autoFillWayOut()
    {
        QFETCH(QString, leave);
        gamedaytest::Season season;
        openFromSchedule(season);
        addByPos({"RHP"});
        ctl<BBPlayersLB>("Names_PosLB")->setSelectedRow(0);
        ctl<QPushButton>("pitchStatsBtn")->click();
        continueAutoFill();
        ctl<QPushButton>("autoFillBtn")->click();
        QCOMPARE(m_scr->game().curSelTeam(), 1);
        auto *instruction = ctl<QLabel>("InstrFld");
        QVERIFY(instruction->text().contains(QStringLiteral("first batter")));
        if (leave == u"escape")
            QTest::keyClick(ctl<BBScoringLB>("scoreCardLB"), Qt::Key_Escape);
        else
            ctl<QRadioButton>("TeamBtn_0")->click();
        QCOMPARE(m_scr->game().curSelTeam(), 0);
        QVERIFY(!m_scr->game().autoFillRunning());
        QVERIFY(!gIsAutoFillMode);
        QVERIFY(!instruction->text().contains(QStringLiteral("Auto-fill")));
        QCOMPARE(ctl<pitchingCtr>("myPitchCtr")->isVisible(), leave == u"escape");
        m_scr->close();
    }

    // A panel writes its row only when something was changed in it, as
    // each field is left (and each button clicked), before it closes.
    void panelsWriteWhatWasTyped_data()
    {
        QTest::addColumn<QString>("panel");
        QTest::addColumn<QString>("typed"); // keys into field 1 (\b Backspace); "Win" clicks the radio button
        QTest::addColumn<QString>("stored");
        QTest::newRow("batting, nothing typed") << "UDBatStatsBtn"
                                                << ""
                                                << "";
        QTest::newRow("batting, an emptied field") << "UDBatStatsBtn"
                                                   << "\b++-"
                                                   << "0\t1\t0\t0\t0";
        QTest::newRow("fielding, digits") << "fldStatsBtn"
                                          << "12"
                                          << "0\t012\t0\t0\t0\t0\t0\t0\t0\t0\t0\t0\t0";
        QTest::newRow("pitching, only the decision") << "pitchStatsBtn"
                                                     << "Win" << QString("0\t").repeated(16) + "0";
    }
    void panelsWriteWhatWasTyped()
    {
        QFETCH(QString, panel);
        QFETCH(QString, typed);
        QFETCH(QString, stored);
        gamedaytest::Season season;
        openFromSchedule(season);
        addByPos({"RHP"});
        ctl<BBPlayersLB>("Names_PosLB")->setSelectedRow(0);
        m_scr->findChild<QPushButton *>(panel)->click();
        StatPanel *open = panel == u"UDBatStatsBtn" ? static_cast<StatPanel *>(ctl<battingCtr>("myBatCtr"))
                          : panel == u"fldStatsBtn" ? static_cast<StatPanel *>(ctl<FieldingCtr>("myFldCtr"))
                                                    : static_cast<StatPanel *>(ctl<pitchingCtr>("myPitchCtr"));
        QVERIFY(open->isVisible());
        m_scr->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_scr));
        statFld(open, 1)->setFocus();
        if (typed == u"Win") {
            ctl<QRadioButton>("gameBtn_0")->click();
        } else {
            for (const QChar c : typed) {
                if (c == u'\b')
                    QTest::keyClick(statFld(open, 1), Qt::Key_Backspace);
                else
                    QTest::keyClick(statFld(open, 1), c.toLatin1());
            }
        }
        statFld(open, 0)->setFocus();
        const stats::Panel kind = panel == u"UDBatStatsBtn" ? stats::Panel::Batting
                                  : panel == u"fldStatsBtn" ? stats::Panel::Fielding
                                                            : stats::Panel::Pitching;
        const QString player = m_scr->game().lineup().at(0).playerID;
        auto storedRow = [&] {
            return stats::GameStatStore(*gData).stats(kind, season.schedID(), player).value_or(QString());
        };
        QCOMPARE(storedRow(), stored); // the panel still open
        QTest::keyClick(statFld(open, 0), Qt::Key_Escape);
        QVERIFY(!open->isVisible());
        QCOMPARE(storedRow(), stored);
        if (kind == stats::Panel::Pitching)
            QCOMPARE(stats::GameStatStore(*gData).pitching(season.schedID(), player)->gameResult, 1);
        m_scr->close();
    }

    // The pitch counter from the keyboard with the grid focused, and by
    // click; the pitching panel over the grid holds it and shows its count.
    // The pitcher threw 70 the day before: putting him in and starting his
    // auto-fill each warn.
    void pitchCounter()
    {
        gamedaytest::Season season;
        auto warnings = [&season] {
            return std::count_if(season.fake.messages.shown.begin(), season.fake.messages.shown.end(),
                                 [](const fakes::ShownMessage &m) {
                                     return m.explanation == u"Threw 70 on Tuesday: may not pitch until Sunday.";
                                 });
        };
        openFromSchedule(season);
        const QString yesterday = QString::number(
            gData->insert(QStringLiteral("Schedule"), {{QStringLiteral("SchedDate"), QStringLiteral("2026-04-14")},
                                                       {QStringLiteral("Event"), QStringLiteral("Game")},
                                                       {QStringLiteral("isHome"), 2}}));
        const QString ann10 =
            gData->scalar(QStringLiteral("SELECT playerID FROM Players WHERE First = 'Ann10'")).toString();
        stats::PitchingLine threw;
        threw.totBalls = 30;
        threw.totKs = 40;
        QVERIFY(stats::GameStatStore(*gData).savePitching(yesterday, ann10, QString::number(season.homeID), threw));

        auto *ball = ctl<QPushButton>("ballBtn");
        QVERIFY(!ball->isEnabled());
        QCOMPARE(ctl<QLabel>("pitcherFld")->text(), QStringLiteral("No pitcher in the lineup"));
        addByPos({"C", "RHP"});
        QVERIFY(ball->isEnabled());
        QCOMPARE(ctl<QLabel>("pitcherFld")->text(), QStringLiteral("Pitching: Ann10 Smith"));
        QCOMPARE(warnings(), 1);

        m_scr->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_scr));
        auto *grid = ctl<BBScoringLB>("scoreCardLB");
        grid->setFocus();
        grid->setCurrentCell(0, 0);
        m_codes.clear();
        m_codes.enqueue(QStringLiteral("1B")); // would be taken if the grid saw the keys
        QTest::keyClick(grid, Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
        QTest::keyClick(grid, Qt::Key_F, Qt::ControlModifier | Qt::ShiftModifier);
        QTest::keyClick(grid, Qt::Key_B, Qt::ControlModifier | Qt::ShiftModifier);
        ball->click();
        QCOMPARE(m_codes.size(), 1);
        QCOMPARE(ctl<QLabel>("pitchCountFld")->text(), QStringLiteral("4 pitches, 2 strikes"));
        QCOMPARE(ctl<QLabel>("pitchNoticeFld")->text(), QStringLiteral("4: no rest needed"));
        const QString pitcher = m_scr->game().lineup().at(1).playerID;
        const auto row = stats::GameStatStore(*gData).pitching(season.schedID(), pitcher);
        QCOMPARE(row->totBalls, 2);
        QCOMPARE(row->totKs, 2);
        // Each pitch is a change of the game's log: Undo takes the last back.
        QAction *undo = m_scr->menus()->item(QStringLiteral("EditUndo"));
        QCOMPARE(undo->text(), QStringLiteral("&Undo Ball, Smith"));
        undo->trigger();
        QCOMPARE(ctl<QLabel>("pitchCountFld")->text(), QStringLiteral("3 pitches, 2 strikes"));
        QCOMPARE(stats::GameStatStore(*gData).pitching(season.schedID(), pitcher)->totBalls, 1);
        m_scr->menus()->item(QStringLiteral("EditRedo"))->trigger();
        QCOMPARE(ctl<QLabel>("pitchCountFld")->text(), QStringLiteral("4 pitches, 2 strikes"));

        ctl<BBPlayersLB>("Names_PosLB")->setSelectedRow(1);
        ctl<QPushButton>("pitchStatsBtn")->click();
        auto *panel = ctl<pitchingCtr>("myPitchCtr");
        QVERIFY(!ball->isEnabled());
        QCOMPARE(ctl<QLineEdit>("pitchCtFld_0")->text(), QStringLiteral("2"));
        QCOMPARE(ctl<QLineEdit>("pitchCtFld_1")->text(), QStringLiteral("2"));
        QTest::keyClick(statFld(panel, 0), Qt::Key_Escape);
        QVERIFY(ball->isEnabled());
        m_codes.clear();

        ctl<QPushButton>("pitchStatsBtn")->click();
        continueAutoFill();
        ctl<QPushButton>("autoFillBtn")->click();
        QVERIFY(m_scr->game().autoFillRunning());
        QCOMPARE(warnings(), 2);
        QVERIFY(!ball->isEnabled());
        QTest::keyClick(grid, Qt::Key_Escape);
        m_scr->close();
    }
};

QTEST_MAIN(TestGameDayScrn)
#include "tst_gamedayscrn.moc"
