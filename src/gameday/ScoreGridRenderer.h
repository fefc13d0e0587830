#pragma once

// Geometry and painting of a score grid: a heading row, then one row of
// cells per lineup entry, each cell filled with its background's colour and
// showing its code. Takes any QPainter, so the same drawing serves the
// widget, a picture of the window and a printout.

#include <QFont>
#include <QPoint>
#include <QRect>
#include <QSize>
#include <optional>

class QPainter;

namespace gameday {

class ScoreGrid;

struct GridCell
{
    int row = -1;
    int col = -1;
    friend bool operator==(const GridCell &, const GridCell &) = default;
};

class ScoreGridRenderer
{
public:
    // A row is as tall as a row of the lineup list beside the grid.
    static constexpr int kRowHeight = 16;
    static constexpr int kHeaderHeight = 18;

    explicit ScoreGridRenderer(const ScoreGrid &grid) : m_grid(grid) {}

    QSize size() const;
    // The cell's rectangle; empty for a cell outside the rows and columns.
    QRect cellRect(int row, int col) const;
    // The cell under a point, or nothing on the headings or past the cells.
    std::optional<GridCell> cellAt(QPoint point) const;

    // Where the popover for a cell opens, relative to the grid's top left:
    // beside the cell, 160 across plus 43 a column, 48 down plus 16 a row.
    static QPoint popoverOffset(int row, int col) { return {160 + col * 43, row * kRowHeight + 48}; }

    struct Decorations
    {
        std::optional<GridCell> current;   // the keyboard's cell, outlined
        std::optional<GridCell> markStart; // auto-fill marks
        std::optional<GridCell> markEnd;
    };
    void paint(QPainter &painter, const QFont &font, const Decorations &decorations) const;

private:
    int columnLeft(int col) const;
    const ScoreGrid &m_grid;
};

} // namespace gameday
