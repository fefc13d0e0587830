#pragma once

// The rules of the at-bat grid, with no widget in them: what each cell
// holds, what a click does to it, how outs, runs and hits are counted, the
// stored text forms of a team's grid and the pitching auto-fill walk.
// BBScoringLB paints one of these and forwards the mouse to it.

#include "gameday/GridCodes.h"

#include <QHash>
#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>
#include <array>
#include <functional>
#include <optional>
#include <utility>

namespace gameday {

// Eight figures counted for a pitcher by the auto-fill walk: outs, batters
// faced, hits, home runs, walks, intentional walks, strikeouts, hit batters.
using AutoFillData = std::array<int, 8>;

class ScoreGrid : public QObject
{
    Q_OBJECT

public:
    // Asks the coach for a code for the cell at (row, col). `showAll` is
    // true when the cell has no final background, so the lists are offered
    // and not only the six commands. The empty string means no choice.
    using PopoverRequest = std::function<QString(int row, int col, bool showAll)>;

    explicit ScoreGrid(QObject *parent = nullptr);

    // --- Rows, columns and cells -------------------------------------------

    int rowCount() const { return int(m_texts.size()); }
    int columnCount() const { return int(m_headings.size()); }

    // Empties the grid of rows; the backgrounds stay until initCellBkg or
    // setMyBkgArray, as a team is always loaded with one of them.
    void deleteAllRows();
    // Adds an empty row at the end; its backgrounds are left as they are.
    void addRow();
    // Removes a lineup row and closes the gap in the backgrounds.
    void removeRow(int row);
    // The batting slot (order number) of a row; 0 when not known. Rows
    // that share a slot are a player and those who replaced him.
    void setRowSlot(int row, int orderNum);
    int rowSlot(int row) const;
    // Whether the next row took over this row's slot.
    bool isReplacedRow(int row) const;

    // Sets the column count, keeping the texts of the columns that remain.
    // New columns are headed by their number ("21").
    void setColumnCount(int count);
    // Sets the headings and with them the column count.
    void setColumnHeadings(const QStringList &headings);
    const QStringList &columnHeadings() const { return m_headings; }
    QString heading(int col) const;
    int columnWidth(int col) const;

    QString cellText(int row, int col) const;
    void setCellText(int row, int col, const QString &text);
    // Background code of a cell; "" outside the array.
    QString cellBkg(int row, int col) const;
    // Sets a background code; ignored outside the array or for an unknown code.
    void setCellBkg(int row, int col, const QString &code);

    // --- Properties of the design -----------------------------------------

    void initDict();
    // Row on which a replacement is being inserted or removed; -1 when none.
    void setSelectedRow(int row) { m_selRow = row; }
    int getSelRow() const { return m_selRow; }
    // Number of live columns; columns from here to 19 start disabled.
    void setDefInnings(int n);
    int defInnings() const { return m_defInnings; }
    // When set every click is ignored (a statistics panel covers the grid,
    // or the game is read-only).
    void setClickDisabled(bool disabled) { m_disableCellClick = disabled; }
    bool clickDisabled() const { return m_disableCellClick; }
    // Pitching auto-fill: while on, clicks are the two marks. The game
    // screen's controller turns it on and off (and mirrors it in
    // gIsAutoFillMode); reinitAutoVars clears the marks, not the mode.
    void setAutoFillMode(bool on) { m_autoFillMode = on; }
    bool autoFillMode() const { return m_autoFillMode; }
    int autoClickCount() const { return m_autoClickCt; }
    // The two marks as (row, column).
    std::pair<int, int> autoStart() const { return {m_autoRowStart, m_autoColStart}; }
    std::pair<int, int> autoEnd() const { return {m_autoRowEnd, m_autoColEnd}; }
    // Sets both marks without clicks (a benchmark walks a given span).
    void setAutoSpan(int rowStart, int colStart, int rowEnd, int colEnd);
    const AutoFillData &autoFillFigures() const { return m_autoFillData; }

    // --- Clicks -------------------------------------------------------------

    // The object that shows the popover; the widget installs one, tests
    // install a script.
    void setPopoverRequest(PopoverRequest request) { m_popover = std::move(request); }
    // A click on the cell at (row, col); `optionDown` is the state of the
    // Option (Alt) key. Clicks outside the cells are ignored.
    void cellClicked(int row, int col, bool optionDown);
    // What a code, result or command returned by the popover does to the
    // cell at (row, col), with the events it raises. An out that would be
    // the inning's fourth is refused, naming the cell, and nothing changes:
    // false then.
    bool applyChoice(int row, int col, const QString &choice);
    // The code, result or command of the coach's last click ("xLOB" for
    // an Option-click): what the change is named by.
    const QString &lastChoice() const { return m_lastChoice; }
    // The cell (row, col) that would be the fourth out of the inning of
    // `col` if (row, col) became an out, in batting order; empty when there
    // would be three or fewer.
    std::optional<std::pair<int, int>> fourthOutIf(int row, int col) const;

    // --- Disabling and enabling ---------------------------------------------

    void setInactiveCells(int row, bool allCols);
    void disableSpecificCells(int row, int firstCol, int lastCol);
    // Clears every background to "". The array always keeps kBkgCols
    // columns, whatever `colUbound` says, so a doubling has room to write.
    void initCellBkg(int colUbound);
    void enableWholeCol(int col);
    void disableWholeCol(int col);
    void enableWholeRow(int row);
    void disableWholeRow(int row);

    // --- Columns and replacement rows ---------------------------------------

    // Doubles the inning of `col`; returns the headings joined by tabs.
    QString insertColumn(int col, int width);
    // Whether insertColumn(col) has room; see there for the bound.
    bool canInsertColumn(int col) const;
    void insertReplacementRow(int row, int orderNum);
    void moveDownOutcomes();
    void moveUpOutcomes(int row);

    // --- Tests over the cells -----------------------------------------------

    bool check4ThreeOuts(int col) const;
    bool isColumnFull(int col) const;
    bool isColumnEmpty(int col) const;
    bool isRowEmpty(int row) const;
    bool isColAlreadyDoubled(int col) const { return findExtInningCol(col) != -1; }
    int findExtInningCol(int col) const;
    bool check4IncompleteCells() const;

    // --- Counting -----------------------------------------------------------

    int countTotalRuns() const;
    int countTotalHits() const;
    int countTotalLOBs() const;
    // Runs per inning 1 to 10; index 9 collects every inning from the
    // tenth on. -1 marks an inning with no at bats.
    std::array<int, 10> countRunsByInning() const;
    // The row's plate appearances laid out as the hitting dictionary hitD.
    std::array<int, 21> getHittingStats(int row) const;
    static bool countABs(const QString &code) { return gameday::countABs(code); }

    // --- Stored text forms --------------------------------------------------

    QString getMyData() const;
    // False, with the message shown and the grid as it was, when the texts
    // have more lines than the grid has rows.
    bool setMyData(const QString &data);
    QString getMyBkgArray() const;
    void setMyBkgArray(const QString &data);
    QString getColHeadings() const { return m_headings.join(u'\t'); }

    // --- Pitching auto-fill -------------------------------------------------

    void reinitAutoVars();
    void af_calcPitchingData();
    int af_findFirstColRowEnd(int col, int startRow) const;
    int af_findLastColRowStart(int col) const;

Q_SIGNALS:
    // All column headings joined by tabs, after a column was inserted.
    void columnAdded(const QString &headings);
    // A result left the inning of `col` at three outs.
    void doCalcs(int col);
    // A cell turned green at or after the last regulation inning.
    void askIsWalkoff();
    void autoFillDataReturn(const gameday::AutoFillData &data);
    void autoFillFailed();
    // An auto-fill mark was taken on (row, col); the widget shows it.
    void autoMarkTaken(int row, int col);
    // Texts, backgrounds or the shape of the grid changed.
    void changed();
    // A click of the coach changed the cell at (row, col): sent once the
    // click's work, events included, is done.
    void cellEdited(int row, int col);

private:
    bool inRows(int row) const { return row >= 0 && row < rowCount(); }
    bool inColumns(int col) const { return col >= 0 && col < columnCount(); }
    static bool inBkg(int row, int col) { return row >= 0 && row < kBkgRows && col >= 0 && col < kBkgCols; }
    // Rows of the lineup that have backgrounds.
    int bkgRowsInUse() const { return qMin(rowCount(), kBkgRows); }
    bool isOpenCell(int row, int col) const; // empty text, not disabled
    void blankBkgRow(int row);
    void renumberFrom(int col);
    // The rightmost column, if it is an unused extra inning a doubling may
    // give up; -1 when there is none.
    int spareTrailingColumn(int doubledCol) const;
    void removeColumn(int col);
    void visitForAutoFill(int row, int col);
    void applyCode(int row, int col, const QString &choice);
    int nextRow(int row) const { return row + 1 >= rowCount() ? 0 : row + 1; }
    // The row where the order starts in `col`: where the column before stopped.
    int orderStart(int col) const;
    // The first column of the row's closing run of disabled cells.
    int closedFrom(int row) const;

    // Code to background code, as a click applies it. Filled by initDict.
    QHash<QString, QString> m_actionDict;
    int m_selRow = -1;
    int m_defInnings = 9;
    bool m_autoFillMode = false;
    int m_autoClickCt = 0;
    int m_autoRowStart = 0;
    int m_autoColStart = 0;
    int m_autoRowEnd = 0;
    int m_autoColEnd = 0;
    AutoFillData m_autoFillData{};
    bool m_disableCellClick = false;
    QStringList m_headings;
    QList<int> m_widths;
    QList<QStringList> m_texts; // one list per lineup row, one text per column
    QList<int> m_slots;         // batting slot per lineup row, 0 when not known
    std::array<std::array<QString, kBkgCols>, kBkgRows> xCellBkg;
    PopoverRequest m_popover;
    QString m_lastChoice;

    // The stored forms are gathered after every click, which changes a cell
    // or two. Each row's line is kept with the row it was made from (sharing
    // its data, so any write to the row parts them) and made again only for
    // a row that changed.
    mutable QList<QStringList> m_textsSeen;
    mutable QStringList m_textLines;
    mutable QString m_textsJoined;
    mutable std::array<std::array<QString, kStoredBkgCols>, kBkgRows> m_bkgSeen;
    mutable std::array<QString, kBkgRows> m_bkgLines;
    mutable QString m_bkgJoined;
};

// Innings per game and batting slots from the preferences, with the
// first-run values when no preferences are loaded.
int regulationInnings();
int lineupSlots();

} // namespace gameday
