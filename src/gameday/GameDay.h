#pragma once

// One game on the game screen, with no widget in it: both teams' strings,
// the team on show loaded into its scorecard, lineup, bench and batter
// statistics, the lineup rules, the scoreboard and run entry, and the
// write of the team on show after every change the coach makes. The game
// screen shows this state and forwards the coach's clicks; a test plays a
// whole game through it.

#include "gameday/ChangeLog.h"
#include "gameday/GameRecord.h"
#include "gameday/GameStore.h"
#include "gameday/ScoreGrid.h"

#include <QObject>

#include <array>
#include <functional>

class myDB;

namespace gameday {

// The line score above the grid, both teams. Texts as shown: a number,
// "--" for an inning without entries, "X" for a home half not needed.
struct Scoreboard
{
    std::array<std::array<QString, 10>, 2> innings;
    std::array<QString, 2> runs;
    std::array<QString, 2> hits;
    std::array<QString, 2> errs;
    std::array<QString, 2> lob;
};

class GameDay : public QObject
{
    Q_OBJECT

public:
    // `card` is the grid the team on show is loaded into (the game
    // screen's scoreCardLB, or a bare grid in a test).
    GameDay(myDB &db, ScoreGrid &card, QObject *parent = nullptr);

    // Reads the event and the game's row, or makes the row of a new game
    // with both benches and the game type; then shows team B. False, with
    // the message shown, when no home team is chosen or the event can't be
    // found. A recorded game, or one whose strings don't read whole, opens
    // read-only.
    bool open(const QString &schedID);

    // --- Read-only games ------------------------------------------------------

    enum class Lock { None, Recorded, Damaged };
    Lock lock() const { return m_lock; }
    bool isReadOnly() const { return m_lock != Lock::None; }
    // The line the screen shows for a read-only game; empty otherwise.
    QString lockNotice() const;
    // A statistics panel (or the auto-fill window) covers the grid: clicks
    // on it are ignored, as on a read-only game.
    void setCoverOpen(bool open);

    const QString &schedID() const { return m_rec.schedID; }
    const GameEvent &gameEvent() const { return m_event; }
    const TeamInfo &teamInfo(int team) const { return m_info[size_t(team & 1)]; }
    QString teamID(int team) const { return m_rec.teamIDs[size_t(team & 1)]; }
    int curSelTeam() const { return m_cur; }
    int defLineup() const { return m_defLineup; }
    ScoreGrid &card() { return m_card; }
    // The stored strings as of the last save of each team.
    const GameRecord &record() const { return m_rec; }

    // --- The team on show ---------------------------------------------------

    const QList<BenchLine> &roster() const { return m_roster; }
    const QList<LineupLine> &lineup() const { return m_lineup; }
    const QList<BatterStat> &batStats() const { return m_batStats; }
    // The line of instruction under the scoreboard.
    QString instruction() const;
    bool isThereAPitcher() const;
    static bool isPitcherPos(const QString &pos) { return pos == u"RHP" || pos == u"LHP"; }

    bool isRecorded() const { return m_rec.recorded; }
    // "Record Game Data" shows from the first three-out inning of a game
    // not yet recorded, and at once when such a game is opened again.
    bool finalizeVisible() const { return m_finalizeVisible && !m_rec.recorded; }
    // Marks the game recorded (after the season totals were written); it
    // is read-only from then on.
    void setRecorded();
    // The game was taken back out of the season to be corrected: it is
    // open for changes again and "Record Game Data" shows.
    void setCorrected();

    QString gameType() const { return m_rec.gameType; }
    void setGameType(const QString &type);

    // --- The selected lineup row and the statistics panels ----------------------

    enum class Panel { Batting, Fielding, Pitching };
    void selectRow(int row);
    int selectedRow() const { return m_selRow; }
    QString selectedPlayerID() const;
    // Why a panel may not open for the selected row; empty when it may.
    QString panelRefusal(Panel panel) const;

    // --- Lineup --------------------------------------------------------------

    // "Add": the roster row joins the lineup, or a message says why not.
    bool addPlayerToLineup(int rosterRow);
    // "Remove": back to the bench, with its refusal and its question.
    bool removeFromLineup(int lineupRow);
    // "Replace": the roster row takes the lineup row's batting slot.
    bool addReplacementPlayer(int rosterRow, int lineupRow);
    // The order arrows: swaps a row with its neighbour (delta -1 or +1);
    // the row it went to, or `row` when nothing moved.
    int moveLineupRow(int row, int delta);
    // The position typed for this game, upper-cased.
    void setLineupPosition(int row, const QString &pos);
    // Players brought in for this game (not already on the bench or in
    // the lineup) go on the bench.
    void addBenchPlayers(const QList<BenchLine> &players);
    // Asks, then removes a bench row.
    bool removeBenchPlayer(int rosterRow);
    // Every player of the team on show, for the "add players" list.
    QList<BenchLine> teamPlayers() const;

    // --- Batter statistics (RBI, SB) ------------------------------------------

    void setBatterStat(int row, int col, const QString &value);

    // --- Scoreboard and run entry ----------------------------------------------

    const Scoreboard &board() const { return m_board; }
    // Works out both teams' lines anew from their cards (or typed boxes):
    // the board the final check shows and the score that is recorded.
    void refreshBoard();
    // Puts or takes away the "X" of the home half not needed.
    static void markHomeHalf(Scoreboard &board);
    // Loads a stored card into a bare grid; false when it doesn't read whole.
    static bool loadStoredGrid(ScoreGrid &grid, const TeamStrings &team);
    void updateRunsHits();
    void recalcErrs();
    // Errors of a team in this game, from its fielding rows; set by the
    // owner, who links the statistics subsystem.
    std::function<int(const QString &game, const QString &team)> errorCounter;

    bool enterRHE() const { return m_enterRHE; }
    // Turns run entry on or off for the team on show; refused (with the
    // message) while the grid holds at bats. The resulting state.
    bool setEnterRHE(bool on);
    // A box of the team on show typed in run-entry mode: inning 0..9, or
    // kHitsBox, kErrsBox, kLobBox. Runs follow the inning boxes.
    enum { kHitsBox = 10, kErrsBox = 11, kLobBox = 12 };
    void setBoardBox(int box, const QString &text);

    // --- Teams and storage ------------------------------------------------------

    // TeamBtn: the team on show is saved, the other shown.
    void showTeam(int team);
    // Flips the team on show without saving (set-up and auto-fill).
    void switchTeams();

    // Brings the team on show into the stored strings.
    void saveCurState();
    // On a team switch and on closing: writes the team on show when a
    // change of it has not reached the file yet. Nothing else writes.
    bool saveIfDirty();
    GameStore::SaveResult saveDataToDB();
    // The write after each of the coach's changes: what changed of the
    // game's row, with its entry in the change log named `label`, in one
    // transaction. False when it did not reach the file.
    bool commitClick(const QString &label = {});

    // --- Undo and redo -------------------------------------------------------------

    // Whether Edit > Undo / Redo can step, and the menu texts naming the
    // change ("Undo Ball Four, Smith, 3rd inning"). A read-only game, and
    // the auto-fill, offer neither.
    bool canUndo();
    bool canRedo();
    QString undoText();
    QString redoText();
    // Steps back (or forward) over one change of the log: the stored rows
    // get their values of before (after) it, the card that changed comes
    // on show and the board is worked out anew. False when nothing moved.
    bool undo();
    bool redo();
    // A statistics panel wrote its row (with its log entry): Undo may now
    // take that.
    void logAppended();
    // What a change of a panel row is named: "Fielding Stats, Smith".
    static QString panelLabel(const QString &panel, const QString &playerName);
    // "1st inning", "2nd inning", ... as the change names say it.
    static QString ordinalInning(int n);

    // --- Pitching auto-fill --------------------------------------------------------

    // The opposing team's card comes on show, armed for two marks.
    void startAutoFill();
    // Escape, a team switch or closing: the pitcher's team comes back and
    // the pitching panel opens again, with nothing filled.
    void cancelAutoFill();
    bool autoFillRunning() const { return m_autoFill; }

Q_SIGNALS:
    void teamShown();
    void boardChanged();
    void lineupChanged();
    void finalizeVisibleChanged(bool visible);
    void enterRHEChanged(bool on);
    void autoFillReturned(const gameday::AutoFillData &data);
    void autoFillAbandoned();
    void selectionChanged(int row);
    void instructionChanged();
    // What Undo and Redo would do changed.
    void undoChanged();

private:
    void loadNewGame();
    void displayCurrentTeam(bool updateBoard);
    void fillScoreCard();
    void calcRunsByInning();
    void fillRHEData(const QString &actions);
    QString getRHEData(int team) const;
    void setFinalizeVisible(bool on);
    void closeOrderGap(const QString &removedOrder);
    void applyClickLock();
    void setAutoFill(bool on);
    void onColumnAdded(const QString &headings);
    void onDoCalcs();
    void onWalkoff();
    bool writeChange(const QString &label);
    bool stepLog(bool back);
    int teamOfChange(const Change &change) const;
    QString rowName(int row) const;
    QString cellLabel(int row, int col) const;

    myDB &m_db;
    ScoreGrid &m_card;
    GameStore m_store;
    GameRecord m_rec;
    GameRecord m_logged; // the row as the file holds it
    ChangeLog m_log;
    GameEvent m_event;
    std::array<TeamInfo, 2> m_info;
    int m_cur = 1;
    int m_defLineup = 9;
    QList<BenchLine> m_roster;
    QList<LineupLine> m_lineup;
    QList<BatterStat> m_batStats;
    WrittenText<BenchLine> m_rosterText;
    WrittenText<LineupLine> m_lineupText;
    WrittenText<BatterStat> m_batStatsText;
    Scoreboard m_board;
    bool m_enterRHE = false;
    bool m_finalizeVisible = false;
    bool m_autoFill = false;
    bool m_loading = false;
    bool m_dirty = false;
    bool m_coverOpen = false;
    Lock m_lock = Lock::None;
    int m_selRow = -1;
};

} // namespace gameday
