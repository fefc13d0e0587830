#include "gameday/ScoreGrid.h"
#include "gameday/GameRecord.h"

#include "app/globals.h"
#include "app/myDictionaries.h"
#include "app/myPrefs.h"

namespace gameday {

namespace {

const QString kCR = QStringLiteral("\r");
const QString kTab = QStringLiteral("\t");

QString bkg(QStringView code)
{
    return code.toString();
}

// Width of a column by its heading: a doubled inning's second column ("5a")
// is the narrow one insertColumn makes.
int widthForHeading(const QString &heading)
{
    return !heading.isEmpty() && heading.back().isLetter() ? kInsertedColumnWidth : kColumnWidth;
}

} // namespace

int regulationInnings()
{
    const int n = gPrefs ? numericValue(gPrefs->prInnings) : 0;
    return n > 0 ? n : 9;
}

int lineupSlots()
{
    const int n = gPrefs ? numericValue(gPrefs->prLineUp) : 0;
    return n > 0 ? n : 9;
}

ScoreGrid::ScoreGrid(QObject *parent) : QObject(parent)
{
    initDict();
    setColumnCount(kDefaultColumns);
    m_defInnings = regulationInnings();
}

void ScoreGrid::initDict()
{
    m_actionDict.clear();
    const QString none = bkg(kBkgNone);
    const QString out = bkg(kBkgOut);
    for (const char *code : {"B1", "B2", "B3", "BB", "IBB", "HBP", "ROE", "FC", "CI"})
        m_actionDict.insert(QString::fromLatin1(code), none);
    for (const char *code : {"SAC", "SF", "FO", "GO", "KS", "KL", "HDP", "xCS", "xPOB", "xFrcO", "xOUT"})
        m_actionDict.insert(QString::fromLatin1(code), out);
    m_actionDict.insert(QStringLiteral("HR"), bkg(kBkgRun));
    m_actionDict.insert(QStringLiteral("xRUN"), bkg(kBkgRun));
    m_actionDict.insert(QStringLiteral("xLOB"), bkg(kBkgLeft));
}

void ScoreGrid::setDefInnings(int n)
{
    m_defInnings = qMax(0, n);
}

// --- Rows, columns and cells --------------------------------------------------

void ScoreGrid::deleteAllRows()
{
    m_texts.clear();
    m_slots.clear();
    m_selRow = -1;
    Q_EMIT changed();
}

void ScoreGrid::addRow()
{
    QStringList row;
    row.resize(columnCount());
    m_texts.append(row);
    m_slots.append(0);
    Q_EMIT changed();
}

void ScoreGrid::removeRow(int row)
{
    if (!inRows(row))
        return;
    m_texts.removeAt(row);
    m_slots.removeAt(row);
    moveUpOutcomes(row);
    Q_EMIT changed();
}

void ScoreGrid::setColumnCount(int count)
{
    count = qMax(0, count);
    const int old = columnCount();
    m_headings.resize(count);
    m_widths.resize(count);
    for (int c = old; c < count; ++c) {
        m_headings[c] = QString::number(c + 1);
        m_widths[c] = kColumnWidth;
    }
    for (QStringList &texts : m_texts)
        texts.resize(count);
    Q_EMIT changed();
}

void ScoreGrid::setColumnHeadings(const QStringList &headings)
{
    setColumnCount(int(headings.size()));
    m_headings = headings;
    for (int c = 0; c < columnCount(); ++c)
        m_widths[c] = widthForHeading(m_headings.at(c));
    Q_EMIT changed();
}

QString ScoreGrid::heading(int col) const
{
    return inColumns(col) ? m_headings.at(col) : QString();
}

int ScoreGrid::columnWidth(int col) const
{
    return inColumns(col) ? m_widths.at(col) : 0;
}

QString ScoreGrid::cellText(int row, int col) const
{
    return inRows(row) && inColumns(col) ? m_texts.at(row).at(col) : QString();
}

void ScoreGrid::setCellText(int row, int col, const QString &text)
{
    if (inRows(row) && inColumns(col))
        m_texts[row][col] = text;
}

QString ScoreGrid::cellBkg(int row, int col) const
{
    return inBkg(row, col) ? xCellBkg[row][col] : QString();
}

void ScoreGrid::setCellBkg(int row, int col, const QString &code)
{
    if (inBkg(row, col) && isBackgroundCode(code))
        xCellBkg[row][col] = code;
}

bool ScoreGrid::isOpenCell(int row, int col) const
{
    return cellText(row, col).isEmpty() && cellBkg(row, col) != kBkgDisabled;
}

void ScoreGrid::blankBkgRow(int row)
{
    if (row >= 0 && row < kBkgRows)
        xCellBkg[row].fill(QString());
}

// --- Clicks -------------------------------------------------------------------

void ScoreGrid::cellClicked(int row, int col, bool optionDown)
{
    if (m_disableCellClick || !inRows(row) || !inColumns(col))
        return;

    if (m_autoFillMode) {
        ++m_autoClickCt;
        if (m_autoClickCt == 1) {
            m_autoRowStart = row;
            m_autoColStart = col;
            Q_EMIT autoMarkTaken(row, col);
        } else if (m_autoClickCt == 2) {
            m_autoRowEnd = row;
            m_autoColEnd = col;
            Q_EMIT autoMarkTaken(row, col);
            af_calcPitchingData();
        } else {
            gBeep();
        }
        return;
    }

    // A filled cell can always be opened, so an at bat of a finished
    // inning can still be corrected.
    if (cellText(row, col).isEmpty() && check4ThreeOuts(col)) {
        gShowMsgDlog(QStringLiteral("There are already three outs in that inning."),
                     QStringLiteral("Clear at least 1 of the outs before adding an AB"), QStringLiteral("OK"));
        return;
    }

    m_selRow = -1;

    // Option-click: the one-click "left on base", whatever the cell showed.
    if (!cellText(row, col).isEmpty() && optionDown) {
        m_lastChoice = QStringLiteral("xLOB");
        setCellBkg(row, col, bkg(kBkgLeft));
        Q_EMIT changed();
        Q_EMIT cellEdited(row, col);
        return;
    }

    if (!m_popover)
        return;
    const QString choice = m_popover(row, col, cellBkg(row, col).isEmpty());
    if (!choice.isEmpty() && applyChoice(row, col, choice))
        Q_EMIT cellEdited(row, col);
}

bool ScoreGrid::applyChoice(int row, int col, const QString &choice)
{
    // The popover ran an event loop: make sure the cell is still there.
    if (!inRows(row) || !inColumns(col))
        return false;
    m_lastChoice = choice;

    // An at bat of a finished inning may be changed, but not into a fourth
    // out: the coach is told which at bat that would be.
    if (m_actionDict.value(choice) == kBkgOut) {
        if (const auto fourth = fourthOutIf(row, col)) {
            gShowMsgDlog(QStringLiteral("That would make a fourth out in inning %1.").arg(numericValue(heading(col))),
                         QStringLiteral("The at bat in row %1, inning %2 would be the fourth out. Clear an out of "
                                        "that inning first.")
                             .arg(fourth->first + 1)
                             .arg(heading(fourth->second)),
                         QStringLiteral("OK"));
            return false;
        }
    }
    // An inning that had its three outs works its runs out again whatever
    // the change, so an edit of an earlier inning reaches the board.
    const bool wasClosed = check4ThreeOuts(col);

    const QStringList &commands = commandCaptions();
    switch (commands.indexOf(choice)) {
    case 0: // Clear Cell
        setCellText(row, col, {});
        setCellBkg(row, col, bkg(kBkgNone));
        Q_EMIT changed();
        break;
    case 1: // Disable Cell
        setCellText(row, col, {});
        setCellBkg(row, col, bkg(kBkgDisabled));
        Q_EMIT changed();
        break;
    case 2:
        enableWholeCol(col);
        break;
    case 3:
        disableWholeCol(col);
        break;
    case 4:
        enableWholeRow(row);
        break;
    case 5:
        disableWholeRow(row);
        break;
    default:
        applyCode(row, col, choice);
        return true;
    }
    if (wasClosed)
        Q_EMIT doCalcs(col);
    return true;
}

void ScoreGrid::applyCode(int row, int col, const QString &choice)
{
    const bool wasClosed = check4ThreeOuts(col);
    bool walkoff = false;
    if (m_actionDict.contains(choice)) {
        setCellBkg(row, col, m_actionDict.value(choice));
        // Asked by inning, not by column: doubled innings before it don't
        // bring the question forward.
        walkoff = numericValue(heading(col)) >= regulationInnings() && cellBkg(row, col) == kBkgRun;
    }
    // Results ("x...") colour the cell and leave the batter's code alone.
    if (!choice.startsWith(u'x'))
        setCellText(row, col, choice);
    Q_EMIT changed();

    // The question is asked once the cell holds its code, so that a
    // scoreboard refreshed on the answer counts the hit of a home run.
    if (walkoff)
        Q_EMIT askIsWalkoff();

    if (isColumnFull(col) && !check4ThreeOuts(col) && !isColAlreadyDoubled(col)) {
        // The order went round within the inning: give it a second column.
        if (canInsertColumn(col)) {
            Q_EMIT columnAdded(insertColumn(col, kInsertedColumnWidth));
        } else {
            // Every one of the 23 columns holds data: the coach is told why
            // no column appears and can go on clearing or correcting cells.
            gShowMsgDlog(QStringLiteral("There is no room on the scorecard for another column."),
                         QStringLiteral("A game can use at most 23 columns, and the last one holds data."),
                         QStringLiteral("OK"));
        }
    }
    // A change in a finished inning works the board out again, also when
    // it reopens the inning (and the order now goes round into a second
    // column).
    if (check4ThreeOuts(col) || wasClosed)
        Q_EMIT doCalcs(col);
}

std::optional<std::pair<int, int>> ScoreGrid::fourthOutIf(int row, int col) const
{
    if (!inColumns(col) || cellBkg(row, col) == kBkgOut)
        return std::nullopt;
    // The inning's columns in order, each read from where its order started.
    const int partner = findExtInningCol(col);
    QList<int> columns{col};
    if (partner != -1)
        columns.insert(partner < col ? 0 : 1, partner);
    const int rows = bkgRowsInUse();
    int outs = 0;
    for (const int c : columns) {
        const int start = orderStart(c);
        for (int i = 0; i < rows; ++i) {
            const int r = (start + i) % rows;
            if ((r == row && c == col) || cellBkg(r, c) == kBkgOut) {
                if (++outs == 4)
                    return std::pair{r, c};
            }
        }
    }
    return std::nullopt;
}

// --- Disabling and enabling -----------------------------------------------------

void ScoreGrid::setInactiveCells(int row, bool allCols)
{
    // Through column 19 whatever the column count: the extra-inning columns
    // of a new game.
    for (int c = allCols ? 0 : m_defInnings; c < kStoredBkgCols; ++c)
        setCellBkg(row, c, bkg(kBkgDisabled));
    Q_EMIT changed();
}

void ScoreGrid::disableSpecificCells(int row, int firstCol, int lastCol)
{
    for (int c = qMax(0, firstCol); c <= qMin(lastCol, kBkgCols - 1); ++c)
        setCellBkg(row, c, bkg(kBkgDisabled));
    Q_EMIT changed();
}

void ScoreGrid::initCellBkg(int colUbound)
{
    Q_UNUSED(colUbound)
    for (auto &row : xCellBkg)
        row.fill(QString());
    Q_EMIT changed();
}

void ScoreGrid::setRowSlot(int row, int orderNum)
{
    if (inRows(row))
        m_slots[row] = orderNum;
}

int ScoreGrid::rowSlot(int row) const
{
    return inRows(row) ? m_slots.at(row) : 0;
}

bool ScoreGrid::isReplacedRow(int row) const
{
    const int slot = rowSlot(row);
    return slot > 0 && rowSlot(row + 1) == slot;
}

int ScoreGrid::closedFrom(int row) const
{
    // The start of the row's closing run of disabled cells.
    int c = qMin(columnCount(), kBkgCols);
    while (c > 0 && cellBkg(row, c - 1) == kBkgDisabled)
        --c;
    return c;
}

void ScoreGrid::enableWholeCol(int col)
{
    for (int r = 0; r < bkgRowsInUse(); ++r) {
        // A replaced player bats no more: his closed cells from the
        // substitution on stay closed, so the order still wraps.
        if (cellBkg(r, col) == kBkgDisabled && !(isReplacedRow(r) && col >= closedFrom(r)))
            setCellBkg(r, col, bkg(kBkgNone));
    }
    Q_EMIT changed();
}

void ScoreGrid::disableWholeCol(int col)
{
    if (!inColumns(col))
        return;
    if (!isColumnEmpty(col)) {
        const auto answer = gShowMsgDlog(
            QStringLiteral("Are you sure you want to clear the data in column %1?").arg(col + 1),
            QStringLiteral("Click 'Cancel' to leave the data"), QStringLiteral("Clear"));
        if (answer != 0)
            return;
    }
    for (int r = 0; r < rowCount(); ++r) {
        setCellText(r, col, {});
        setCellBkg(r, col, bkg(kBkgDisabled));
    }
    Q_EMIT changed();
}

void ScoreGrid::enableWholeRow(int row)
{
    for (int c = 0; c < qMin(m_defInnings, columnCount()); ++c) {
        setCellText(row, c, {});
        setCellBkg(row, c, bkg(kBkgNone));
    }
    Q_EMIT changed();
}

void ScoreGrid::disableWholeRow(int row)
{
    for (int c = 0; c < columnCount(); ++c) {
        setCellText(row, c, {});
        setCellBkg(row, c, bkg(kBkgDisabled));
    }
    Q_EMIT changed();
}

// --- Columns and replacement rows -----------------------------------------------

// The bound on doublings. The background array has 23 columns, so a game
// that starts with 20 can double three innings before it is full. For a
// fourth, the rightmost column gives way when it is an extra inning that
// nobody has batted in (no text, no out, run or left-on-base): it was never
// going to be played, and its heading is renumbered away. Only when that
// column holds data is there no room; the doubling is then refused and the
// coach is told so (see applyChoice). Nothing ever writes past column 22.
bool ScoreGrid::canInsertColumn(int col) const
{
    if (!inColumns(col))
        return false;
    return columnCount() < kBkgCols || spareTrailingColumn(col) != -1;
}

int ScoreGrid::spareTrailingColumn(int doubledCol) const
{
    const int last = columnCount() - 1;
    if (last <= doubledCol || last < m_defInnings)
        return -1;
    for (int r = 0; r < rowCount(); ++r) {
        const QString b = cellBkg(r, last);
        if (!cellText(r, last).isEmpty() || !(b == kBkgNone || b == kBkgDisabled))
            return -1;
    }
    return last;
}

void ScoreGrid::removeColumn(int col)
{
    if (!inColumns(col))
        return;
    for (QStringList &texts : m_texts)
        texts.removeAt(col);
    if (col < kBkgCols) {
        for (auto &row : xCellBkg) {
            for (int c = col; c < kBkgCols - 1; ++c)
                row[c] = row[c + 1];
            row[kBkgCols - 1].clear();
        }
    }
    m_headings.removeAt(col);
    m_widths.removeAt(col);
}

void ScoreGrid::renumberFrom(int col)
{
    // Columns behind a doubled inning count on from its number.
    const int n = numericValue(heading(col));
    for (int c = col + 2; c < columnCount(); ++c)
        m_headings[c] = QString::number(n + (c - col - 1));
}

QString ScoreGrid::insertColumn(int col, int width)
{
    if (!canInsertColumn(col))
        return getColHeadings();
    if (columnCount() >= kBkgCols)
        removeColumn(spareTrailingColumn(col));

    const int n = numericValue(heading(col));
    m_headings.insert(col + 1, QString::number(n) + u'a');
    m_widths.insert(col + 1, width);
    renumberFrom(col);

    // Headings from a damaged record can make more columns than the array
    // has; the backgrounds then move only as far as the array reaches.
    const int last = qMin(columnCount() - 1, kBkgCols - 1);
    for (int r = 0; r < rowCount(); ++r) {
        m_texts[r].insert(col + 1, QString());
        if (r >= kBkgRows)
            continue;
        auto &b = xCellBkg[r];
        for (int c = last; c >= col + 2; --c)
            b[c] = b[c - 1];
        if (col + 1 < kBkgCols)
            b[col + 1] = cellBkg(r, col) == kBkgDisabled ? bkg(kBkgDisabled) : QString();
    }
    ++m_defInnings;
    Q_EMIT changed();
    return getColHeadings();
}

void ScoreGrid::insertReplacementRow(int row, int orderNum)
{
    if (!inRows(row))
        return;
    m_selRow = row;
    QStringList blank;
    blank.resize(columnCount());
    m_texts.insert(m_selRow + 1, blank);
    m_slots[m_selRow] = orderNum;
    m_slots.insert(m_selRow + 1, orderNum);
    moveDownOutcomes();

    int firstOpen = 0;
    while (firstOpen < columnCount() && check4ThreeOuts(firstOpen))
        ++firstOpen;
    // The substitute can't have batted in a finished inning, and the
    // player he replaces bats no more.
    disableSpecificCells(m_selRow + 1, 0, firstOpen - 1);
    setInactiveCells(m_selRow + 1, false);
    disableSpecificCells(m_selRow, firstOpen, columnCount() - 1);
    if (orderNum > lineupSlots())
        setInactiveCells(m_selRow + 1, true); // a non-batting entry
    Q_EMIT changed();
}

void ScoreGrid::moveDownOutcomes()
{
    const int first = m_selRow + 1;
    if (first < 0 || first >= kBkgRows)
        return;
    for (int r = kBkgRows - 1; r >= first + 1; --r)
        xCellBkg[r] = xCellBkg[r - 1];
    blankBkgRow(first);
    Q_EMIT changed();
}

void ScoreGrid::moveUpOutcomes(int row)
{
    m_selRow = row;
    if (row < 0 || row >= kBkgRows)
        return;
    for (int r = row; r < kBkgRows - 1; ++r)
        xCellBkg[r] = xCellBkg[r + 1];
    blankBkgRow(kBkgRows - 1);
    blankBkgRow(rowCount());
    Q_EMIT changed();
}

// --- Tests over the cells -------------------------------------------------------

bool ScoreGrid::check4ThreeOuts(int col) const
{
    auto outsIn = [this](int c) {
        int outs = 0;
        for (int r = 0; r < bkgRowsInUse(); ++r)
            outs += cellBkg(r, c) == kBkgOut ? 1 : 0;
        return outs;
    };
    if (!inColumns(col))
        return false;
    int outs = outsIn(col);
    const int partner = findExtInningCol(col);
    if (partner != -1)
        outs += outsIn(partner);
    // Exactly three: a fourth red cell is a mistake the coach must see.
    return outs == 3;
}

int ScoreGrid::findExtInningCol(int col) const
{
    if (!inColumns(col))
        return -1;
    const int n = numericValue(heading(col));
    if (col + 1 < columnCount() && numericValue(heading(col + 1)) == n)
        return col + 1;
    if (col > 0 && numericValue(heading(col - 1)) == n)
        return col - 1;
    return -1;
}

bool ScoreGrid::isColumnFull(int col) const
{
    for (int r = 0; r < rowCount(); ++r) {
        if (isOpenCell(r, col))
            return false;
    }
    return true;
}

bool ScoreGrid::isColumnEmpty(int col) const
{
    if (!inColumns(col))
        return true;
    for (int r = 0; r < rowCount(); ++r) {
        if (!cellText(r, col).isEmpty() && cellBkg(r, col) != kBkgDisabled)
            return false;
    }
    return true;
}

bool ScoreGrid::isRowEmpty(int row) const
{
    if (!inRows(row))
        return true;
    for (const QString &text : m_texts.at(row)) {
        if (!text.isEmpty())
            return false;
    }
    return true;
}

bool ScoreGrid::check4IncompleteCells() const
{
    for (int r = 0; r < rowCount(); ++r) {
        for (int c = 0; c < columnCount(); ++c) {
            if (!cellText(r, c).isEmpty() && cellBkg(r, c).isEmpty())
                return true;
        }
    }
    return false;
}

// --- Counting -------------------------------------------------------------------

int ScoreGrid::countTotalRuns() const
{
    int runs = 0;
    for (int r = 0; r < bkgRowsInUse(); ++r) {
        for (int c = 0; c < qMin(columnCount(), kBkgCols); ++c)
            runs += cellBkg(r, c) == kBkgRun ? 1 : 0;
    }
    return runs;
}

int ScoreGrid::countTotalHits() const
{
    int hits = 0;
    for (const QStringList &texts : m_texts) {
        for (const QString &text : texts)
            hits += isHitCode(text) ? 1 : 0;
    }
    return hits;
}

int ScoreGrid::countTotalLOBs() const
{
    int left = 0;
    for (int r = 0; r < bkgRowsInUse(); ++r) {
        for (int c = 0; c < qMin(columnCount(), kBkgCols); ++c)
            left += cellBkg(r, c) == kBkgLeft ? 1 : 0;
    }
    return left;
}

std::array<int, 10> ScoreGrid::countRunsByInning() const
{
    // An inning is "no data" (-1) only when none of its columns holds an at
    // bat: a doubled inning whose second column is still empty, or a tenth
    // inning followed by unplayed ones, keeps the runs it has.
    std::array<int, 10> runs{};
    std::array<bool, 10> played{};
    for (int c = 0; c < qMin(columnCount(), kStoredBkgCols); ++c) {
        const int slot = qMin(numericValue(heading(c)) - 1, 9);
        if (slot < 0)
            continue; // a damaged heading belongs to no inning
        if (isColumnEmpty(c))
            continue;
        played[slot] = true;
        for (int r = 0; r < bkgRowsInUse(); ++r)
            runs[slot] += cellBkg(r, c) == kBkgRun ? 1 : 0;
    }
    for (int i = 0; i < 10; ++i) {
        if (!played[i])
            runs[i] = -1;
    }
    return runs;
}

std::array<int, 21> ScoreGrid::getHittingStats(int row) const
{
    std::array<int, 21> stats{};
    if (!inRows(row))
        return stats;
    for (const QString &text : m_texts.at(row)) {
        if (text.isEmpty())
            continue;
        if (countABs(text))
            ++stats[0];
        // A user-defined abbreviation may take over a code's key with an
        // index past this array; such a key counts nowhere here.
        // A sacrifice fly is a sacrifice: it adds to SAC (and is counted
        // apart as well, by the recorder).
        const int index = hitD.value(text == u"SF" ? QStringLiteral("SAC") : text, -1);
        if (index >= 0 && index < int(stats.size()))
            ++stats[index];
    }
    return stats;
}

// --- Stored text forms ------------------------------------------------------------

QString ScoreGrid::getMyData() const
{
    const qsizetype rows = m_texts.size();
    bool same = m_textsSeen.size() == rows && !m_textsJoined.isNull();
    m_textsSeen.resize(rows);
    m_textLines.resize(rows);
    for (qsizetype r = 0; r < rows; ++r) {
        if (m_texts.at(r).isSharedWith(m_textsSeen.at(r)))
            continue;
        m_textsSeen[r] = m_texts.at(r);
        m_textLines[r] = m_texts.at(r).join(kTab);
        same = false;
    }
    if (!same)
        m_textsJoined = m_textLines.join(kCR);
    return m_textsJoined;
}

bool ScoreGrid::setMyData(const QString &data)
{
    const QStringList lines = splitLines(data);
    if (lines.size() > rowCount()) {
        gShowMsgDlog(QStringLiteral("There is an error in the saved data."),
                     QStringLiteral("Please re-create the game data."), QStringLiteral("OK"));
        return false;
    }
    for (QStringList &texts : m_texts)
        texts.fill(QString());
    for (int r = 0; r < lines.size(); ++r) {
        // Short lines leave the rest of the row empty; fields past the
        // last column have no cell to go to.
        const QStringList fields = lines.at(r).split(kTab);
        for (int c = 0; c < qMin(int(fields.size()), columnCount()); ++c)
            m_texts[r][c] = fields.at(c);
    }
    Q_EMIT changed();
    return true;
}

QString ScoreGrid::getMyBkgArray() const
{
    bool same = !m_bkgJoined.isNull();
    for (int r = 0; r < kBkgRows; ++r) {
        const auto &now = xCellBkg[r];
        auto &seen = m_bkgSeen[r];
        bool rowSame = !m_bkgLines[r].isNull();
        for (int c = 0; c < kStoredBkgCols && rowSame; ++c)
            rowSame = now[c].constData() == seen[c].constData() && now[c].size() == seen[c].size();
        if (rowSame)
            continue;
        same = false;
        QString &line = m_bkgLines[r];
        line.clear();
        line.reserve(2 * kStoredBkgCols);
        for (int c = 0; c < kStoredBkgCols; ++c) {
            seen[c] = now[c];
            line += now[c];
            line += u'\t';
        }
    }
    if (same)
        return m_bkgJoined;
    // One allocation, one character per code.
    m_bkgJoined.clear();
    m_bkgJoined.reserve(kBkgRows * (2 * kStoredBkgCols + 1));
    for (int r = 0; r < kBkgRows; ++r) {
        if (r > 0)
            m_bkgJoined += u'\r';
        m_bkgJoined += m_bkgLines[r];
    }
    return m_bkgJoined;
}

// Columns 20 to 22 exist only after doublings, and the stored form has no
// place for them (the trailing tab of a line reads as an empty 21st field,
// not a value). They are rebuilt from the texts, which are loaded first:
// a cell with no text there is an extra inning nobody batted in and comes
// back disabled, like the columns it was shifted from; a cell with a code
// comes back white, so the at bat shows as awaiting its result and the
// final check points the coach at it. An unknown background letter reads
// as no result.
void ScoreGrid::setMyBkgArray(const QString &data)
{
    for (auto &row : xCellBkg)
        row.fill(QString());
    const QStringList lines = splitLines(data);
    for (int r = 0; r < qMin(int(lines.size()), kBkgRows); ++r) {
        const QStringList fields = lines.at(r).split(kTab);
        for (int c = 0; c < qMin(int(fields.size()), kStoredBkgCols); ++c) {
            if (isBackgroundCode(fields.at(c)))
                xCellBkg[r][c] = fields.at(c);
        }
    }
    for (int r = 0; r < kBkgRows; ++r) {
        for (int c = kStoredBkgCols; c < kBkgCols; ++c)
            xCellBkg[r][c] = cellText(r, c).isEmpty() ? bkg(kBkgDisabled) : QString();
    }
    Q_EMIT changed();
}

// --- Pitching auto-fill -------------------------------------------------------------

void ScoreGrid::setAutoSpan(int rowStart, int colStart, int rowEnd, int colEnd)
{
    m_autoRowStart = rowStart;
    m_autoColStart = colStart;
    m_autoRowEnd = rowEnd;
    m_autoColEnd = colEnd;
}

void ScoreGrid::reinitAutoVars()
{
    m_autoClickCt = 0;
    m_autoFillData.fill(0);
    Q_EMIT changed();
}

void ScoreGrid::visitForAutoFill(int row, int col)
{
    const QString text = cellText(row, col);
    if (cellBkg(row, col) == kBkgOut)
        ++m_autoFillData[0];
    if (!text.isEmpty())
        ++m_autoFillData[1];
    if (isHitCode(text))
        ++m_autoFillData[2];
    if (text == u"HR")
        ++m_autoFillData[3];
    if (text == u"BB")
        ++m_autoFillData[4];
    if (text == u"IBB")
        ++m_autoFillData[5];
    if (text == u"KS" || text == u"KL")
        ++m_autoFillData[6];
    if (text == u"HBP")
        ++m_autoFillData[7];
}

void ScoreGrid::af_calcPitchingData()
{
    m_autoFillData.fill(0);
    auto fail = [this] {
        gShowMsgDlog(QStringLiteral("An error occurred while retrieving the pitcher's data"),
                     QStringLiteral("Please fill in the data manually."), QStringLiteral("OK"));
        Q_EMIT autoFillFailed();
    };
    if (!inRows(m_autoRowStart) || !inRows(m_autoRowEnd) || !inColumns(m_autoColStart) || !inColumns(m_autoColEnd)) {
        fail();
        return;
    }
    // Marks given last at bat first: the coach means the same span, so the
    // earlier column is taken as the start.
    if (m_autoColEnd < m_autoColStart) {
        std::swap(m_autoColStart, m_autoColEnd);
        std::swap(m_autoRowStart, m_autoRowEnd);
    }

    // Each column's plate appearances run once round the order, from the
    // row where the column before stopped (a doubled inning's "a" column
    // goes on from there too). The walk covers exactly the appearances
    // between the two marks.
    int row = 0;
    int end = 0;
    for (int col = m_autoColStart; col <= m_autoColEnd; ++col) {
        const int rotation = orderStart(col);
        if (col == m_autoColStart) {
            row = m_autoRowStart;
            if (m_autoColStart == m_autoColEnd) {
                end = nextRow(m_autoRowEnd);
            } else {
                end = af_findFirstColRowEnd(col, row);
                if (end == row && !isOpenCell(row, col)) // no open row: the column went round
                    end = rotation;
            }
        } else {
            row = rotation;
            end = col == m_autoColEnd ? nextRow(m_autoRowEnd) : rotation;
        }
        // The batting order runs on from inning to inning, hence the wrap
        // to row 0.
        do {
            visitForAutoFill(row, col);
            row = nextRow(row);
        } while (row != end);
    }
    Q_EMIT autoFillDataReturn(m_autoFillData);
}

int ScoreGrid::orderStart(int col) const
{
    int start = 0;
    for (int c = 0; c < col && c < columnCount(); ++c)
        start = af_findFirstColRowEnd(c, start);
    return start;
}

int ScoreGrid::af_findFirstColRowEnd(int col, int startRow) const
{
    if (!inRows(startRow))
        return startRow;
    int r = startRow;
    do {
        if (isOpenCell(r, col))
            return r;
        r = nextRow(r);
    } while (r != startRow);
    return startRow;
}

int ScoreGrid::af_findLastColRowStart(int col) const
{
    // After a gap, the first row that is not one: where the order started
    // in this inning.
    bool seenGap = false;
    for (int r = 0; r < rowCount(); ++r) {
        if (isOpenCell(r, col))
            seenGap = true;
        else if (seenGap)
            return r;
    }
    if (col == 0)
        return 0;
    // Otherwise where the inning before stopped.
    for (int r = 0; r < rowCount(); ++r) {
        if (isOpenCell(r, col - 1))
            return r;
    }
    return -1;
}

} // namespace gameday
