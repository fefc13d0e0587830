#include "gameday/GameDay.h"

#include "app/globals.h"
#include "app/myDB.h"
#include "app/myPrefs.h"

namespace gameday {

namespace {

const QString kOK = QStringLiteral("OK");

// "1st inning", "2nd inning", ... "11th inning".
QString inningName(int n)
{
    const int tens = n % 100;
    const int ones = n % 10;
    const char *suffix = "th";
    if (tens < 11 || tens > 13)
        suffix = ones == 1 ? "st" : ones == 2 ? "nd" : ones == 3 ? "rd" : "th";
    return QString::number(n) + QString::fromLatin1(suffix) + QStringLiteral(" inning");
}

// A code, result or command as the Edit menu names it.
QString describeChoice(const QString &choice)
{
    static const QHash<QString, QString> names = {
        {QStringLiteral("B1"), QStringLiteral("Single")},
        {QStringLiteral("B2"), QStringLiteral("Double")},
        {QStringLiteral("B3"), QStringLiteral("Triple")},
        {QStringLiteral("HR"), QStringLiteral("Home Run")},
        {QStringLiteral("BB"), QStringLiteral("Ball Four")},
        {QStringLiteral("IBB"), QStringLiteral("Intentional Walk")},
        {QStringLiteral("HBP"), QStringLiteral("Hit by Pitch")},
        {QStringLiteral("SAC"), QStringLiteral("Sacrifice")},
        {QStringLiteral("SF"), QStringLiteral("Sacrifice Fly")},
        {QStringLiteral("FO"), QStringLiteral("Fly Out")},
        {QStringLiteral("GO"), QStringLiteral("Ground Out")},
        {QStringLiteral("KS"), QStringLiteral("Strikeout Swinging")},
        {QStringLiteral("KL"), QStringLiteral("Strikeout Looking")},
        {QStringLiteral("HDP"), QStringLiteral("Double Play")},
        {QStringLiteral("ROE"), QStringLiteral("Reached on Error")},
        {QStringLiteral("FC"), QStringLiteral("Fielder's Choice")},
        {QStringLiteral("CI"), QStringLiteral("Catcher's Interference")},
        {QStringLiteral("xCS"), QStringLiteral("Caught Stealing")},
        {QStringLiteral("xPOB"), QStringLiteral("Picked Off")},
        {QStringLiteral("xFrcO"), QStringLiteral("Force Out")},
        {QStringLiteral("xOUT"), QStringLiteral("Out on the Bases")},
        {QStringLiteral("xRUN"), QStringLiteral("Run Scored")},
        {QStringLiteral("xLOB"), QStringLiteral("Left on Base")},
    };
    return names.value(choice, choice);
}

} // namespace

GameDay::GameDay(myDB &db, ScoreGrid &card, QObject *parent)
    : QObject(parent), m_db(db), m_card(card), m_store(db), m_log(db)
{
    m_defLineup = lineupSlots();
    m_card.setDefInnings(regulationInnings());
    connect(&m_card, &ScoreGrid::columnAdded, this, &GameDay::onColumnAdded);
    connect(&m_card, &ScoreGrid::doCalcs, this, &GameDay::onDoCalcs);
    connect(&m_card, &ScoreGrid::askIsWalkoff, this, &GameDay::onWalkoff);
    // Any change of the card on show outside loading and auto-fill is a
    // change to be written.
    connect(&m_card, &ScoreGrid::changed, this, [this] {
        if (!m_loading && !m_autoFill)
            m_dirty = true;
    });
    connect(&m_card, &ScoreGrid::cellEdited, this, [this](int row, int col) {
        if (!m_autoFill)
            commitClick(cellLabel(row, col));
    });
    connect(&m_card, &ScoreGrid::autoFillDataReturn, this, [this](const AutoFillData &figures) {
        const AutoFillData data = figures; // the grid's own array, cleared below
        switchTeams();
        m_card.reinitAutoVars();
        setAutoFill(false);
        m_coverOpen = true; // the pitching panel is open again
        applyClickLock();
        Q_EMIT autoFillReturned(data);
    });
    connect(&m_card, &ScoreGrid::autoFillFailed, this, &GameDay::cancelAutoFill);
    connect(&m_card, &ScoreGrid::autoMarkTaken, this, &GameDay::instructionChanged);
}

bool GameDay::open(const QString &schedID)
{
    const QString home = gPrefs ? gPrefs->prHomeTeam : QString();
    if (home.isEmpty()) {
        // Without the home team the game would start with an empty bench.
        gShowMsgDlog(QStringLiteral("Please designate a 'Home Team'"),
                     QStringLiteral("Choose it in the Teams screen, then open the game again."), kOK);
        return false;
    }
    const std::optional<GameEvent> event = m_store.event(schedID, home);
    if (!event) {
        gShowMsgDlog(QStringLiteral("There was an error recovering the game data."),
                     QStringLiteral("Please re-edit the event in the Schedule Screen."), kOK);
        return false;
    }
    m_event = *event;
    for (int t = 0; t < 2; ++t)
        m_info[size_t(t)] = m_store.teamInfo(m_event.teamIDs[size_t(t)]);

    m_lock = Lock::None;
    if (std::optional<GameRecord> stored = m_store.load(schedID)) {
        m_rec = *stored;
        m_rec.teamIDs = m_event.teamIDs;
        m_finalizeVisible = !m_rec.recorded;
        if (m_rec.recorded)
            m_lock = Lock::Recorded;
        else if (!readsWhole(m_rec.teams[0]) || !readsWhole(m_rec.teams[1]))
            m_lock = Lock::Damaged;
    } else {
        m_rec = GameRecord{};
        m_rec.schedID = schedID;
        m_rec.teamIDs = m_event.teamIDs;
        loadNewGame();
    }
    m_logged = m_rec;
    m_log.setGame(schedID);
    m_card.initCellBkg(kBkgCols - 1);
    m_cur = 1;
    m_dirty = false;
    displayCurrentTeam(true);
    Q_EMIT undoChanged();
    if (m_lock == Lock::Damaged)
        gShowMsgDlog(QStringLiteral("There is an error in the saved data."),
                     QStringLiteral("The game opens read-only; its stored data is left as it was."), kOK);
    applyClickLock();
    return true;
}

QString GameDay::lockNotice() const
{
    switch (m_lock) {
    case Lock::Recorded:
        return QStringLiteral("This game is recorded: its totals are in the season. It is shown read-only.");
    case Lock::Damaged:
        return QStringLiteral("This game's saved data could not be read whole. It is shown read-only and left "
                              "as it was stored.");
    case Lock::None:
        break;
    }
    return {};
}

void GameDay::setCoverOpen(bool open)
{
    m_coverOpen = open;
    applyClickLock();
}

void GameDay::applyClickLock()
{
    m_card.setClickDisabled(m_coverOpen || isReadOnly());
}

void GameDay::loadNewGame()
{
    for (int t = 0; t < 2; ++t) {
        TeamStrings &s = m_rec.teams[size_t(t)];
        s.headings = newGameHeadings();
        s.bench = writeBench(m_store.benchOf(m_rec.teamIDs[size_t(t)]));
    }
    const QStringList types = gPrefs ? gPrefs->prGameTypes.split(u',') : QStringList();
    m_rec.gameType = chooseGameType(m_info[0], m_info[1], types);
    m_rec.recorded = false;
    m_store.create(m_rec);
}

// --- Showing a team -----------------------------------------------------------------

void GameDay::displayCurrentTeam(bool updateBoard)
{
    m_loading = true;
    const TeamStrings &s = m_rec.teams[size_t(m_cur)];
    m_roster = readBench(s.bench);
    QStringList headings = s.headings.isEmpty() ? QStringList() : s.headings.split(kFieldSep);
    if (headings.size() > kMaxStoredColumns)
        headings.resize(kMaxStoredColumns); // a damaged card, shown as far as a card goes
    for (int c = int(headings.size()); c < kDefaultColumns; ++c)
        headings.append(QString::number(c + 1));
    m_card.setColumnHeadings(headings);
    // Live columns: the scheduled innings and this team's doublings.
    int doubled = 0;
    for (const QString &h : headings)
        doubled += h.endsWith(u'a') ? 1 : 0;
    m_card.setDefInnings(regulationInnings() + doubled);
    fillScoreCard();
    m_batStats = readBatStats(s.batStats);
    m_card.setSelectedRow(-1);
    m_selRow = -1;
    m_loading = false;
    if (updateBoard && m_card.rowCount() > 0) {
        updateRunsHits();
        recalcErrs();
    }
    Q_EMIT teamShown();
    Q_EMIT boardChanged();
}

void GameDay::fillScoreCard()
{
    const TeamStrings &s = m_rec.teams[size_t(m_cur)];
    m_card.deleteAllRows();
    m_lineup = readPlayers(s.players);
    for (int r = 0; r < m_lineup.size(); ++r) {
        m_card.addRow();
        m_card.setInactiveCells(r, false);
        m_card.setRowSlot(r, numericValue(m_lineup.at(r).order));
    }
    if (isRunEntry(s.actions)) {
        // No cell of this team was played: the other team's colours go.
        m_card.initCellBkg(kBkgCols - 1);
        fillRHEData(s.actions);
        return;
    }
    // A card with more lines than lineup rows is refused whole: no colours
    // without their at bats. The game said so once when it opened.
    if (splitLines(s.actions).size() <= m_lineup.size() && m_card.setMyData(s.actions))
        m_card.setMyBkgArray(s.outcomes);
    else
        m_card.initCellBkg(kBkgCols - 1);
}

void GameDay::showTeam(int team)
{
    team &= 1;
    if (team == m_cur)
        return;
    cancelAutoFill();
    if (team == m_cur)
        return;
    saveIfDirty();
    setEnterRHE(false);
    m_cur = team;
    displayCurrentTeam(false);
}

void GameDay::switchTeams()
{
    m_cur = 1 - m_cur;
    displayCurrentTeam(true);
}

QString GameDay::instruction() const
{
    if (m_autoFill)
        return m_card.autoClickCount() == 0
                   ? QStringLiteral("Auto-fill: click the first batter this pitcher faced (Escape cancels).")
                   : QStringLiteral("Auto-fill: click the last batter this pitcher faced (Escape cancels).");
    if (isReadOnly())
        return lockNotice();
    if (m_card.rowCount() == 0)
        return QStringLiteral("Select a player from the roster and click 'Add' to create your lineup.");
    return QStringLiteral("Click the cell beside a player under the correct inning to set that at bat.");
}

bool GameDay::isThereAPitcher() const
{
    for (const LineupLine &l : m_lineup) {
        if (isPitcherPos(l.pos) || l.pos == u"P")
            return true;
    }
    return false;
}

void GameDay::setRecorded()
{
    // From now on the game is the season's: it is shown read-only, as it
    // would be opened again.
    m_rec.recorded = true;
    m_lock = Lock::Recorded;
    m_dirty = false;
    applyClickLock();
    Q_EMIT finalizeVisibleChanged(false);
    Q_EMIT teamShown();
    Q_EMIT undoChanged();
}

void GameDay::setCorrected()
{
    m_rec.recorded = false;
    m_lock = Lock::None;
    m_finalizeVisible = true;
    applyClickLock();
    Q_EMIT finalizeVisibleChanged(true);
    Q_EMIT instructionChanged();
    Q_EMIT teamShown();
    Q_EMIT undoChanged();
}

void GameDay::setGameType(const QString &type)
{
    if (type == m_rec.gameType)
        return;
    m_rec.gameType = type;
    commitClick(QStringLiteral("Game Type ") + type);
}

void GameDay::setFinalizeVisible(bool on)
{
    if (m_finalizeVisible == on)
        return;
    m_finalizeVisible = on;
    Q_EMIT finalizeVisibleChanged(finalizeVisible());
}

// --- Lineup -----------------------------------------------------------------------------

bool GameDay::addPlayerToLineup(int rosterRow)
{
    if (rosterRow < 0 || rosterRow >= m_roster.size())
        return false;
    if (!m_card.isColumnEmpty(0)) {
        gShowMsgDlog(QStringLiteral("Players cannot be added once game data is entered."),
                     QStringLiteral("Use the Replace button to substitute players"), kOK);
        return false;
    }
    const int count = int(m_lineup.size());
    const BenchLine player = m_roster.at(rosterRow);
    const bool canAddPitcher = isPitcherPos(player.pos) && !isThereAPitcher();
    if ((count == m_defLineup && !canAddPitcher) || count >= m_defLineup + 1) {
        gShowMsgDlog(QStringLiteral("You have reached max players as defined in Preferences."),
                     QStringLiteral("To substitute players, use the 'Replace' button."), kOK);
        return false;
    }
    m_lineup.append({QString::number(count + 1), player.pos, player.name, player.playerID});
    m_card.addRow();
    const int rows = m_card.rowCount();
    m_card.setInactiveCells(rows - 1, false);
    m_card.setRowSlot(rows - 1, count + 1);
    m_batStats.append(BatterStat{});
    m_roster.removeAt(rosterRow);
    if (rows > m_defLineup) {
        m_card.setInactiveCells(rows - 1, true); // the pitcher who does not bat
    } else if (rows == m_defLineup && !isThereAPitcher()) {
        gShowMsgDlog(QStringLiteral("Add a non-batting Pitcher to your lineup."),
                     QStringLiteral("You will add pitching stats for that player."), QStringLiteral("Continue"));
    }
    commitClick(QStringLiteral("Add ") + rowName(rows - 1) + QStringLiteral(" to the Lineup"));
    Q_EMIT lineupChanged();
    return true;
}

bool GameDay::removeFromLineup(int row)
{
    if (row < 0 || row >= m_lineup.size())
        return false;
    if (!m_card.isRowEmpty(row)) {
        gShowMsgDlog(QStringLiteral("This player has entered data and cannot be removed."),
                     QStringLiteral("Use the Replace button to substitute a new player"), kOK);
        return false;
    }
    if (!m_card.isColumnEmpty(0)) {
        if (gShowMsgDlog(QStringLiteral("Are you sure you want to return this player to the bench?"),
                         QStringLiteral("Use the Replace button to substitute a new player"),
                         QStringLiteral("Remove")) != 0)
            return false;
    }
    // A player no longer in the season leaves the lineup all the same.
    if (std::optional<BenchLine> p = m_store.player(m_lineup.at(row).playerID))
        m_roster.append(*p);
    const QString order = m_lineup.at(row).order;
    const QString label = QStringLiteral("Remove ") + rowName(row) + QStringLiteral(" from the Lineup");
    m_lineup.removeAt(row);
    m_card.removeRow(row);
    if (row < m_batStats.size())
        m_batStats.removeAt(row);
    closeOrderGap(order);
    commitClick(label);
    Q_EMIT lineupChanged();
    return true;
}

void GameDay::closeOrderGap(const QString &removedOrder)
{
    // A slot another row still holds (a player and his substitute) stays;
    // a slot left empty closes, and the slots below move up one.
    const bool stillHeld = std::any_of(m_lineup.cbegin(), m_lineup.cend(),
                                       [&removedOrder](const LineupLine &l) { return l.order == removedOrder; });
    const int gone = numericValue(removedOrder);
    for (int i = 0; i < m_lineup.size(); ++i) {
        int order = numericValue(m_lineup.at(i).order);
        if (!stillHeld && order > gone) {
            --order;
            m_lineup[i].order = QString::number(order);
        }
        m_card.setRowSlot(i, order);
    }
}

bool GameDay::addReplacementPlayer(int rosterRow, int lineupRow)
{
    if (rosterRow < 0 || rosterRow >= m_roster.size()) {
        gMsgBox(QStringLiteral("Please select a replacement player."));
        return false;
    }
    if (lineupRow < 0 || lineupRow >= m_lineup.size()) {
        gMsgBox(QStringLiteral("Please click on the name of the Player to be replaced."));
        return false;
    }
    if (lineupRow >= kBkgRows - 1) {
        gMsgBox(QStringLiteral("There is a maximum of 25 players in the lineup."));
        gMsgBox(QStringLiteral("The substitution of a player failed."));
        return false;
    }
    const BenchLine player = m_roster.at(rosterRow);
    const QString order = m_lineup.at(lineupRow).order;
    m_lineup.insert(lineupRow + 1, {order, player.pos, QStringLiteral(" ->") + player.name, player.playerID});
    m_card.insertReplacementRow(lineupRow, numericValue(order));
    m_batStats.insert(qMin(lineupRow + 1, int(m_batStats.size())), BatterStat{});
    m_roster.removeAt(rosterRow);
    commitClick(QStringLiteral("Replace ") + rowName(lineupRow) + QStringLiteral(" with ") + rowName(lineupRow + 1));
    Q_EMIT lineupChanged();
    return true;
}

int GameDay::moveLineupRow(int row, int delta)
{
    if (!m_card.isColumnEmpty(0)) {
        gShowMsgDlog(QStringLiteral("Lineup order cannot be changed once game data is entered."),
                     QStringLiteral("To change order, first clear all columns of data."), kOK);
        return row;
    }
    const int to = row + (delta < 0 ? -1 : 1);
    if (row < 0 || row >= m_lineup.size() || to < 0 || to >= m_lineup.size())
        return row;
    LineupLine &a = m_lineup[row];
    LineupLine &b = m_lineup[to];
    std::swap(a.pos, b.pos);
    std::swap(a.name, b.name);
    std::swap(a.playerID, b.playerID);
    commitClick(QStringLiteral("Batting Order, ") + rowName(to));
    Q_EMIT lineupChanged();
    return to;
}

void GameDay::setLineupPosition(int row, const QString &pos)
{
    if (row < 0 || row >= m_lineup.size() || m_lineup.at(row).pos == pos.toUpper())
        return;
    m_lineup[row].pos = pos.toUpper();
    commitClick(QStringLiteral("Position ") + pos.toUpper() + QStringLiteral(", ") + rowName(row));
    Q_EMIT lineupChanged();
}

void GameDay::addBenchPlayers(const QList<BenchLine> &players)
{
    bool added = false;
    for (const BenchLine &p : players) {
        auto here = [&p](const auto &list) {
            return std::any_of(list.begin(), list.end(), [&p](const auto &l) { return l.playerID == p.playerID; });
        };
        if (here(m_roster) || here(m_lineup))
            continue;
        m_roster.append(p);
        added = true;
    }
    if (added) {
        commitClick(QStringLiteral("Add Players to the Bench"));
        Q_EMIT lineupChanged();
    }
}

bool GameDay::removeBenchPlayer(int rosterRow)
{
    if (rosterRow < 0 || rosterRow >= m_roster.size()) {
        gBeep();
        return false;
    }
    if (gShowMsgDlog(QStringLiteral("Are you sure you wish to remove ") + m_roster.at(rosterRow).name +
                         QStringLiteral(" from the list of available players?"),
                     QStringLiteral("This action cannot be undone"), QStringLiteral("Remove")) != 0)
        return false;
    const QString label = QStringLiteral("Remove ") + m_roster.at(rosterRow).name.section(u' ', -1) +
                          QStringLiteral(" from the Bench");
    m_roster.removeAt(rosterRow);
    commitClick(label);
    Q_EMIT lineupChanged();
    return true;
}

QList<BenchLine> GameDay::teamPlayers() const
{
    return m_store.benchOf(teamID(m_cur));
}

void GameDay::setBatterStat(int row, int col, const QString &value)
{
    if (row < 0 || row >= m_batStats.size() || col < 0 || col > 1)
        return;
    QString &cell = col == 0 ? m_batStats[row].rbi : m_batStats[row].sb;
    if (cell == value)
        return;
    cell = value;
    commitClick((col == 0 ? QStringLiteral("RBI, ") : QStringLiteral("SB, ")) + rowName(row));
}

// --- Scoreboard ---------------------------------------------------------------------------

void GameDay::updateRunsHits()
{
    calcRunsByInning();
    m_board.runs[size_t(m_cur)] = QString::number(m_card.countTotalRuns());
    m_board.hits[size_t(m_cur)] = QString::number(m_card.countTotalHits());
    m_board.lob[size_t(m_cur)] = QString::number(m_card.countTotalLOBs());
    markHomeHalf(m_board);
    Q_EMIT boardChanged();
}

void GameDay::markHomeHalf(Scoreboard &board)
{
    // "X": the home team (team B) leads once the visitors' last scheduled
    // inning is played, so its half isn't needed. A tie, or the visitors'
    // inning not yet played ("--"), shows none.
    const int last = regulationInnings() - 1;
    if (last < 0 || last >= 10)
        return;
    const QString &visitors = board.innings[0][size_t(last)];
    QString &home = board.innings[1][size_t(last)];
    bool played = false;
    visitors.trimmed().toInt(&played);
    const bool notNeeded = played && board.runs[1].toInt() > board.runs[0].toInt();
    if (notNeeded && (home.isEmpty() || home == u"--"))
        home = QStringLiteral("X");
    else if (!notNeeded && home == u"X")
        home = QStringLiteral("--");
}

void GameDay::refreshBoard()
{
    if (!m_loading && !isReadOnly())
        saveCurState();
    for (int t = 0; t < 2; ++t) {
        const TeamStrings &s = m_rec.teams[size_t(t)];
        if (isRunEntry(s.actions)) {
            const RunEntry e = readRunEntry(s.actions);
            m_board.innings[size_t(t)] = e.innings;
            m_board.runs[size_t(t)] = QString::number(e.runs());
            m_board.hits[size_t(t)] = e.hits;
            m_board.lob[size_t(t)] = e.lob;
            continue;
        }
        ScoreGrid stored;
        if (t != m_cur && !loadStoredGrid(stored, s))
            continue;
        const ScoreGrid &card = t == m_cur ? m_card : stored;
        const std::array<int, 10> runs = card.countRunsByInning();
        for (size_t i = 0; i < 10; ++i)
            m_board.innings[size_t(t)][i] = runs[i] == -1 ? QStringLiteral("--") : QString::number(runs[i]);
        m_board.runs[size_t(t)] = QString::number(card.countTotalRuns());
        m_board.hits[size_t(t)] = QString::number(card.countTotalHits());
        m_board.lob[size_t(t)] = QString::number(card.countTotalLOBs());
    }
    markHomeHalf(m_board);
    Q_EMIT boardChanged();
}

bool GameDay::loadStoredGrid(ScoreGrid &grid, const TeamStrings &team)
{
    QStringList headings = team.headings.isEmpty() ? QStringList() : team.headings.split(kFieldSep);
    if (headings.size() > kMaxStoredColumns)
        return false;
    for (int c = int(headings.size()); c < kDefaultColumns; ++c)
        headings.append(QString::number(c + 1));
    grid.setColumnHeadings(headings);
    const qsizetype rows = readPlayers(team.players).size();
    if (splitLines(team.actions).size() > rows)
        return false;
    for (qsizetype r = 0; r < rows; ++r)
        grid.addRow();
    grid.setMyData(team.actions);
    grid.setMyBkgArray(team.outcomes);
    return true;
}

void GameDay::calcRunsByInning()
{
    const std::array<int, 10> runs = m_card.countRunsByInning();
    auto &boxes = m_board.innings[size_t(m_cur)];
    for (size_t i = 0; i < 10; ++i)
        boxes[i] = runs[i] == -1 ? QStringLiteral("--") : QString::number(runs[i]);
}

void GameDay::recalcErrs()
{
    const int errs = errorCounter ? errorCounter(m_rec.schedID, teamID(m_cur)) : 0;
    m_board.errs[size_t(m_cur)] = QString::number(errs);
    Q_EMIT boardChanged();
}

bool GameDay::setEnterRHE(bool on)
{
    if (on && !m_card.isColumnEmpty(0)) {
        gShowMsgDlog(QStringLiteral("You cannot directly enter runs if you have entered hitting data."),
                     QStringLiteral("Entered data will determine the runs-per-inning."), kOK);
        on = false;
    } else if (on && !m_lineup.isEmpty()) {
        // The card of a team with a lineup is stored as its cells: typed
        // boxes would not be kept.
        gShowMsgDlog(QStringLiteral("You cannot directly enter runs for a team with a lineup."),
                     QStringLiteral("Enter the at bats, or remove the lineup to type the line score."), kOK);
        on = false;
    } else if (on && isReadOnly()) {
        on = false;
    }
    if (m_enterRHE != on) {
        m_enterRHE = on;
        Q_EMIT enterRHEChanged(on);
    } else if (!on) {
        Q_EMIT enterRHEChanged(false); // a refused "ON" goes back to "OFF"
    }
    return m_enterRHE;
}

void GameDay::setBoardBox(int box, const QString &text)
{
    const size_t t = size_t(m_cur);
    if (box >= 0 && box < 10) {
        m_board.innings[t][size_t(box)] = text;
        int sum = 0;
        for (const QString &b : m_board.innings[t])
            sum += b.trimmed().toInt();
        m_board.runs[t] = QString::number(sum);
    } else if (box == kHitsBox) {
        m_board.hits[t] = text;
    } else if (box == kErrsBox) {
        m_board.errs[t] = text;
    } else if (box == kLobBox) {
        m_board.lob[t] = text;
    } else {
        return;
    }
    markHomeHalf(m_board);
    Q_EMIT boardChanged();
    static const QStringList boxes = {QStringLiteral("Hits"), QStringLiteral("Errors"), QStringLiteral("LOB")};
    commitClick(box < 10 ? QStringLiteral("Line Score, ") + inningName(box + 1)
                         : QStringLiteral("Line Score ") + boxes.at(box - kHitsBox));
}

QString GameDay::getRHEData(int team) const
{
    RunEntry e;
    e.innings = m_board.innings[size_t(team)];
    e.hits = m_board.hits[size_t(team)];
    e.errors = m_board.errs[size_t(team)];
    e.lob = m_board.lob[size_t(team)];
    return writeRunEntry(e);
}

void GameDay::fillRHEData(const QString &actions)
{
    const RunEntry e = readRunEntry(actions);
    const size_t t = size_t(m_cur);
    m_board.innings[t] = e.innings;
    m_board.hits[t] = e.hits;
    m_board.errs[t] = e.errors;
    m_board.lob[t] = e.lob;
    m_board.runs[t] = QString::number(e.runs());
}

// --- Storage -------------------------------------------------------------------------------

void GameDay::saveCurState()
{
    TeamStrings &s = m_rec.teams[size_t(m_cur)];
    s.headings = m_card.getColHeadings();
    s.bench = m_rosterText.of(m_roster, writeBench);
    s.players = m_lineupText.of(m_lineup, writePlayers);
    s.actions = m_card.getMyData();
    s.outcomes = m_card.getMyBkgArray();
    s.batStats = m_batStatsText.of(m_batStats, writeBatStats);
    if (s.actions.isEmpty())
        s.actions = getRHEData(m_cur);
}

GameStore::SaveResult GameDay::saveDataToDB()
{
    const GameStore::SaveResult result = m_store.save(m_rec);
    if (result == GameStore::SaveResult::Missing)
        gShowMsgDlog(QStringLiteral("TallylineBB was unable to find the data for this game."),
                     QStringLiteral("Please reload this game from the Schedule."), kOK);
    return result;
}

bool GameDay::commitClick(const QString &label)
{
    if (m_loading || m_rec.schedID.isEmpty() || isReadOnly())
        return false;
    m_dirty = true;
    saveCurState();
    return writeChange(label.isEmpty() ? QStringLiteral("Change") : label);
}

bool GameDay::writeChange(const QString &label)
{
    // Only the columns that differ from the file go into the entry: a
    // click writes its team's card, a game type its one column.
    const QStringList columns = GameStore::cardColumns();
    const QVariantList before = GameStore::cardValues(m_logged);
    const QVariantList after = GameStore::cardValues(m_rec);
    RowChange row{QStringLiteral("Games"), {QStringLiteral("schedID")}, {m_rec.schedID}, {}, QVariantList{},
                  QVariantList{}};
    for (qsizetype i = 0; i < columns.size(); ++i) {
        if (before.at(i) == after.at(i))
            continue;
        row.columns.append(columns.at(i));
        row.before->append(before.at(i));
        row.after->append(after.at(i));
    }
    if (row.columns.isEmpty()) {
        m_dirty = false;
        return true;
    }
    const ChangeLog::Result result = m_log.add(Change{label, m_cur, {row}});
    if (result == ChangeLog::Result::Missing)
        gShowMsgDlog(QStringLiteral("TallylineBB was unable to find the data for this game."),
                     QStringLiteral("Please reload this game from the Schedule."), kOK);
    m_dirty = result != ChangeLog::Result::Saved;
    if (!m_dirty)
        m_logged = m_rec;
    Q_EMIT undoChanged();
    return !m_dirty;
}

bool GameDay::saveIfDirty()
{
    // Every change was written as it was made; only one whose write
    // failed is tried again. A card opened read-only is never written.
    if (!m_dirty || isReadOnly() || m_rec.schedID.isEmpty())
        return true;
    saveCurState();
    return writeChange(QStringLiteral("Changes"));
}

// --- Undo and redo ---------------------------------------------------------------------------

bool GameDay::canUndo()
{
    return !isReadOnly() && !m_autoFill && m_log.canUndo();
}

bool GameDay::canRedo()
{
    return !isReadOnly() && !m_autoFill && m_log.canRedo();
}

QString GameDay::undoText()
{
    return canUndo() ? QStringLiteral("Undo ") + m_log.undoLabel() : QStringLiteral("Undo");
}

QString GameDay::redoText()
{
    return canRedo() ? QStringLiteral("Redo ") + m_log.redoLabel() : QStringLiteral("Redo");
}

bool GameDay::undo()
{
    return stepLog(true);
}

bool GameDay::redo()
{
    return stepLog(false);
}

void GameDay::logAppended()
{
    m_log.reload();
    Q_EMIT undoChanged();
}

QString GameDay::ordinalInning(int n)
{
    return inningName(n);
}

QString GameDay::panelLabel(const QString &panel, const QString &playerName)
{
    return panel + QStringLiteral(" Stats, ") + playerName.section(u' ', -1);
}

bool GameDay::stepLog(bool back)
{
    if ((back ? !canUndo() : !canRedo()) || !saveIfDirty())
        return false;
    const std::optional<Change> change = back ? m_log.undo() : m_log.redo();
    if (!change) {
        Q_EMIT undoChanged();
        return false;
    }
    // The file holds the truth: the card is read back from it as a reopened
    // game would be.
    if (std::optional<GameRecord> stored = m_store.load(m_rec.schedID)) {
        m_rec.teams = stored->teams;
        m_rec.gameType = stored->gameType;
    }
    m_logged = m_rec;
    m_dirty = false;
    const int team = teamOfChange(*change);
    if (team != -1 && team != m_cur)
        setEnterRHE(false);
    if (team != -1)
        m_cur = team;
    displayCurrentTeam(true);
    refreshBoard();
    Q_EMIT lineupChanged();
    Q_EMIT undoChanged();
    return true;
}

int GameDay::teamOfChange(const Change &change) const
{
    if (change.team == 0 || change.team == 1)
        return change.team;
    // A panel row names its team.
    for (const RowChange &r : change.rows) {
        const qsizetype at = r.columns.indexOf(QStringLiteral("teamID"));
        const std::optional<QVariantList> &values = r.after ? r.after : r.before;
        if (at < 0 || !values)
            continue;
        const QString team = values->value(at).toString();
        for (int t = 0; t < 2; ++t) {
            if (team == teamID(t))
                return t;
        }
    }
    return -1;
}

QString GameDay::rowName(int row) const
{
    return row >= 0 && row < m_lineup.size() ? m_lineup.at(row).name.section(u' ', -1) : QString();
}

QString GameDay::cellLabel(int row, int col) const
{
    const QString choice = m_card.lastChoice();
    const QString inning = inningName(numericValue(m_card.heading(col)));
    const qsizetype command = commandCaptions().indexOf(choice);
    if (command == 2 || command == 3)
        return choice + QStringLiteral(", ") + inning;
    if (command == 4 || command == 5)
        return choice + QStringLiteral(", ") + rowName(row);
    return describeChoice(choice) + QStringLiteral(", ") + rowName(row) + QStringLiteral(", ") + inning;
}

// --- Events of the grid ---------------------------------------------------------------------

void GameDay::onColumnAdded(const QString &headings)
{
    m_rec.teams[size_t(m_cur)].headings = headings;
}

void GameDay::onDoCalcs()
{
    updateRunsHits();
    setFinalizeVisible(true);
}

void GameDay::onWalkoff()
{
    if (m_cur != 1)
        return;
    if (gShowMsgDlog(QStringLiteral("Is this game over?"),
                     QStringLiteral("Click 'Cancel' to continue entering At Bats."), QStringLiteral("Yes")) == 0)
        updateRunsHits();
}

void GameDay::selectRow(int row)
{
    m_selRow = row >= 0 && row < m_lineup.size() ? row : -1;
    Q_EMIT selectionChanged(m_selRow);
}

QString GameDay::selectedPlayerID() const
{
    return m_selRow >= 0 ? m_lineup.at(m_selRow).playerID : QString();
}

QString GameDay::panelRefusal(Panel panel) const
{
    if (isReadOnly())
        return lockNotice();
    if (m_autoFill)
        return QStringLiteral("Finish or cancel the pitching auto-fill first.");
    if (m_selRow < 0)
        return QStringLiteral("Select a player in the lineup.");
    if (panel == Panel::Pitching && !isPitcherPos(m_lineup.at(m_selRow).pos))
        return QStringLiteral("Pitching stats are kept for a pitcher (RHP or LHP).");
    return {};
}

// --- Auto-fill --------------------------------------------------------------------------------

void GameDay::setAutoFill(bool on)
{
    // The one place the auto-fill state changes; the global flag the grid
    // reads follows it.
    m_autoFill = on;
    m_card.setAutoFillMode(on);
    gIsAutoFillMode = on;
    Q_EMIT instructionChanged();
}

void GameDay::startAutoFill()
{
    if (m_autoFill || isReadOnly())
        return;
    saveCurState();
    m_autoFill = true; // the switch below doesn't write
    switchTeams();
    m_card.reinitAutoVars();
    setAutoFill(true);
    m_coverOpen = false;
    applyClickLock();
}

void GameDay::cancelAutoFill()
{
    if (!m_autoFill)
        return;
    m_card.reinitAutoVars();
    setAutoFill(false);
    switchTeams();
    m_coverOpen = true; // the pitching panel is open again
    applyClickLock();
    Q_EMIT autoFillAbandoned();
}

} // namespace gameday
