#include "gameday/GameDay.h"

#include "app/globals.h"
#include "app/myDB.h"
#include "app/myPrefs.h"

namespace gameday {

namespace {

const QString kOK = QStringLiteral("OK");

} // namespace

GameDay::GameDay(myDB &db, ScoreGrid &card, QObject *parent) : QObject(parent), m_db(db), m_card(card), m_store(db)
{
    m_defLineup = lineupSlots();
    m_card.setDefInnings(regulationInnings());
    connect(&m_card, &ScoreGrid::columnAdded, this, &GameDay::onColumnAdded);
    connect(&m_card, &ScoreGrid::doCalcs, this, &GameDay::onDoCalcs);
    connect(&m_card, &ScoreGrid::askIsWalkoff, this, &GameDay::onWalkoff);
    connect(&m_card, &ScoreGrid::cellEdited, this, [this] {
        if (!m_autoFill)
            commitClick();
    });
    connect(&m_card, &ScoreGrid::autoFillDataReturn, this, [this](const AutoFillData &figures) {
        const AutoFillData data = figures; // the grid's own array, cleared below
        switchTeams();
        m_autoFill = false;
        m_card.reinitAutoVars();
        m_card.setClickDisabled(true); // the pitching panel is open again
        Q_EMIT autoFillReturned(data);
    });
    connect(&m_card, &ScoreGrid::autoFillFailed, this, [this] {
        m_card.reinitAutoVars();
        m_autoFill = false;
        switchTeams();
        m_card.setClickDisabled(true);
        Q_EMIT autoFillAbandoned();
    });
}

bool GameDay::open(const QString &schedID)
{
    const QString home = gPrefs ? gPrefs->prHomeTeam : QString();
    const std::optional<GameEvent> event = m_store.event(schedID, home);
    if (!event) {
        gShowMsgDlog(QStringLiteral("There was an error recovering the game data."),
                     QStringLiteral("Please re-edit the event in the Schedule Screen."), kOK);
        return false;
    }
    m_event = *event;
    for (int t = 0; t < 2; ++t)
        m_info[size_t(t)] = m_store.teamInfo(m_event.teamIDs[size_t(t)]);

    if (std::optional<GameRecord> stored = m_store.load(schedID)) {
        m_rec = *stored;
        m_rec.teamIDs = m_event.teamIDs;
        m_finalizeVisible = !m_rec.recorded;
    } else {
        m_rec = GameRecord{};
        m_rec.schedID = schedID;
        m_rec.teamIDs = m_event.teamIDs;
        loadNewGame();
    }
    m_card.initCellBkg(int(m_rec.teams[0].headings.split(kFieldSep).size()) - 1);
    m_cur = 1;
    displayCurrentTeam(true);
    return true;
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
        fillRHEData(s.actions);
        return;
    }
    // A card with more lines than lineup rows is refused whole: no colours
    // without their at bats.
    m_card.setMyData(s.actions);
    if (splitLines(s.actions).size() <= m_lineup.size())
        m_card.setMyBkgArray(s.outcomes);
}

void GameDay::showTeam(int team)
{
    team &= 1;
    if (team == m_cur)
        return;
    saveCurState();
    saveDataToDB();
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
    m_rec.recorded = true;
    Q_EMIT finalizeVisibleChanged(false);
}

void GameDay::setGameType(const QString &type)
{
    if (type == m_rec.gameType)
        return;
    m_rec.gameType = type;
    commitClick();
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
    commitClick();
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
    m_lineup.removeAt(row);
    m_card.removeRow(row);
    if (row < m_batStats.size())
        m_batStats.removeAt(row);
    redoOrderNos();
    commitClick();
    Q_EMIT lineupChanged();
    return true;
}

void GameDay::redoOrderNos()
{
    for (int i = 0; i < m_lineup.size(); ++i) {
        m_lineup[i].order = QString::number(i + 1);
        m_card.setRowSlot(i, i + 1);
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
    commitClick();
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
    commitClick();
    Q_EMIT lineupChanged();
    return to;
}

void GameDay::setLineupPosition(int row, const QString &pos)
{
    if (row < 0 || row >= m_lineup.size() || m_lineup.at(row).pos == pos.toUpper())
        return;
    m_lineup[row].pos = pos.toUpper();
    commitClick();
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
        commitClick();
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
    m_roster.removeAt(rosterRow);
    commitClick();
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
    commitClick();
}

// --- Scoreboard ---------------------------------------------------------------------------

void GameDay::updateRunsHits()
{
    calcRunsByInning();
    m_board.runs[size_t(m_cur)] = QString::number(m_card.countTotalRuns());
    m_board.hits[size_t(m_cur)] = QString::number(m_card.countTotalHits());
    m_board.lob[size_t(m_cur)] = QString::number(m_card.countTotalLOBs());
    // The home half not needed: decided on the runs as they stand now.
    const int last = regulationInnings() - 1;
    if (last >= 0 && last < 10) {
        auto &a = m_board.innings[0];
        auto &b = m_board.innings[1];
        if (!a[size_t(last)].isEmpty() && (b[size_t(last)].isEmpty() || b[size_t(last)] == u"--") &&
            m_board.runs[1].toInt() > m_board.runs[0].toInt())
            b[size_t(last)] = QStringLiteral("X");
    }
    Q_EMIT boardChanged();
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
    Q_EMIT boardChanged();
    commitClick();
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
    s.bench = writeBench(m_roster);
    s.players = writePlayers(m_lineup);
    s.actions = m_card.getMyData();
    s.outcomes = m_card.getMyBkgArray();
    s.batStats = writeBatStats(m_batStats);
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

bool GameDay::commitClick()
{
    if (m_loading || m_rec.schedID.isEmpty())
        return false;
    saveCurState();
    const GameStore::SaveResult result = m_store.saveTeam(m_rec, m_cur);
    if (result == GameStore::SaveResult::Missing)
        gShowMsgDlog(QStringLiteral("TallylineBB was unable to find the data for this game."),
                     QStringLiteral("Please reload this game from the Schedule."), kOK);
    return result == GameStore::SaveResult::Saved;
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

// --- Auto-fill --------------------------------------------------------------------------------

void GameDay::startAutoFill()
{
    saveCurState();
    m_autoFill = true;
    switchTeams();
    gIsAutoFillMode = true;
    m_card.reinitAutoVars();
    gIsAutoFillMode = true;
    m_card.setClickDisabled(false);
}

} // namespace gameday
