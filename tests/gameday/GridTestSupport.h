#pragma once

// Shared set-up for the grid tests: recording fakes, preferences in a
// temporary folder, and a short way to write a grid's cells.

#include "app/globals.h"
#include "app/myDictionaries.h"
#include "app/myPrefs.h"
#include "fakes/FakePlatform.h"
#include "gameday/ScoreGrid.h"

#include <QQueue>
#include <QStringList>
#include <QTemporaryDir>
#include <QTest>
#include <memory>

namespace gridtest {

// Fakes installed, gPrefs pointing at preferences in a temporary folder,
// hitD built from them; everything put back on destruction.
class GridEnv
{
public:
    explicit GridEnv(const QString &innings = QStringLiteral("9 Innings"),
                     const QString &lineup = QStringLiteral("9 Players"))
    {
        prefs = std::make_unique<myPrefs>(dir.path());
        prefs->prInnings = innings;
        prefs->prLineUp = lineup;
        gPrefs = prefs.get();
        gIsAutoFillMode = false;
        hitD = myDictionaries::buildHitting(prefs->prUDB);
    }
    ~GridEnv()
    {
        gPrefs = nullptr;
        gIsAutoFillMode = false;
    }
    GridEnv(const GridEnv &) = delete;
    GridEnv &operator=(const GridEnv &) = delete;

    fakes::FakePlatform fake;
    QTemporaryDir dir;
    std::unique_ptr<myPrefs> prefs;
};

// Loads a team the way the game screen does: `rows` lineup rows, each with
// its extra-inning columns disabled.
inline void loadTeam(gameday::ScoreGrid &grid, int rows)
{
    grid.deleteAllRows();
    grid.initCellBkg(grid.columnCount() - 1);
    for (int r = 0; r < rows; ++r) {
        grid.addRow();
        grid.setInactiveCells(r, false);
    }
}

// Writes cells from column `firstCol` on. Each string is one row, its
// cells separated by blanks; a cell is "text/bkg", "text", "/bkg" or "."
// for blank (keeping the background the row already has).
inline void fill(gameday::ScoreGrid &grid, const QStringList &rows, int firstCol = 0)
{
    for (int r = 0; r < rows.size(); ++r) {
        const QStringList cells = rows.at(r).split(u' ', Qt::SkipEmptyParts);
        for (int i = 0; i < cells.size(); ++i) {
            if (cells.at(i) == u".")
                continue;
            const QStringList parts = cells.at(i).split(u'/');
            grid.setCellText(r, firstCol + i, parts.at(0));
            if (parts.size() > 1)
                grid.setCellBkg(r, firstCol + i, parts.at(1));
        }
    }
}

// One column, top to bottom, in the same cell notation.
inline void fillColumn(gameday::ScoreGrid &grid, int col, const QStringList &cells)
{
    for (int r = 0; r < cells.size(); ++r) {
        if (cells.at(r) == u".")
            continue;
        const QStringList parts = cells.at(r).split(u'/');
        grid.setCellText(r, col, parts.at(0));
        if (parts.size() > 1)
            grid.setCellBkg(r, col, parts.at(1));
    }
}

// A column's backgrounds, top to bottom, "-" for none: "R-GX".
inline QString bkgColumn(const gameday::ScoreGrid &grid, int col)
{
    QString out;
    for (int r = 0; r < grid.rowCount(); ++r) {
        const QString b = grid.cellBkg(r, col);
        out += b.isEmpty() ? QStringLiteral("-") : b;
    }
    return out;
}

// A row's backgrounds over the first `cols` columns, "-" for none.
inline QString bkgRow(const gameday::ScoreGrid &grid, int row, int cols)
{
    QString out;
    for (int c = 0; c < cols; ++c) {
        const QString b = grid.cellBkg(row, c);
        out += b.isEmpty() ? QStringLiteral("-") : b;
    }
    return out;
}

// Answers the popover from a queue and records what it was asked.
struct ScriptedPopover
{
    QQueue<QString> answers;
    QList<bool> showAll; // one entry per opening

    void script(std::initializer_list<QString> choices)
    {
        answers.clear();
        for (const QString &c : choices)
            answers.enqueue(c);
    }

    void install(gameday::ScoreGrid &grid)
    {
        grid.setPopoverRequest([this](int, int, bool all) {
            showAll.append(all);
            return answers.isEmpty() ? QString() : answers.dequeue();
        });
    }
};

} // namespace gridtest
