#include "gameday/ScoreGridRenderer.h"

#include "gameday/ScoreGrid.h"

#include <QPainter>

namespace gameday {

namespace {

const QColor kHeaderColour = QColor::fromRgb(0xE4E4E4);
const QColor kLineColour = QColor::fromRgb(0xB8B8B8);
const QColor kMarkColour = QColor::fromRgb(0x1F5FD0);

} // namespace

int ScoreGridRenderer::columnLeft(int col) const
{
    int x = 0;
    for (int c = 0; c < col; ++c)
        x += m_grid.columnWidth(c);
    return x;
}

QSize ScoreGridRenderer::size() const
{
    return {columnLeft(m_grid.columnCount()) + 1, kHeaderHeight + m_grid.rowCount() * kRowHeight + 1};
}

QRect ScoreGridRenderer::cellRect(int row, int col) const
{
    if (row < 0 || row >= m_grid.rowCount() || col < 0 || col >= m_grid.columnCount())
        return {};
    return {columnLeft(col), kHeaderHeight + row * kRowHeight, m_grid.columnWidth(col), kRowHeight};
}

std::optional<GridCell> ScoreGridRenderer::cellAt(QPoint point) const
{
    if (point.x() < 0 || point.y() < kHeaderHeight)
        return std::nullopt;
    const int row = (point.y() - kHeaderHeight) / kRowHeight;
    if (row >= m_grid.rowCount())
        return std::nullopt;
    int x = 0;
    for (int c = 0; c < m_grid.columnCount(); ++c) {
        x += m_grid.columnWidth(c);
        if (point.x() < x)
            return GridCell{row, c};
    }
    return std::nullopt;
}

void ScoreGridRenderer::paint(QPainter &painter, const QFont &font, const Decorations &decorations) const
{
    painter.save();
    painter.setFont(font);
    const int width = columnLeft(m_grid.columnCount());

    // Headings.
    painter.fillRect(QRect(0, 0, width, kHeaderHeight), kHeaderColour);
    for (int c = 0; c < m_grid.columnCount(); ++c) {
        const QRect r(columnLeft(c), 0, m_grid.columnWidth(c), kHeaderHeight);
        painter.setPen(Qt::black);
        painter.drawText(r, Qt::AlignCenter, m_grid.heading(c));
        painter.setPen(kLineColour);
        painter.drawLine(r.topRight(), r.bottomRight());
    }

    // Cells: the background's colour, the code in black on light colours
    // and white on the dark grey of a disabled cell.
    for (int row = 0; row < m_grid.rowCount(); ++row) {
        for (int c = 0; c < m_grid.columnCount(); ++c) {
            const QRect r = cellRect(row, c);
            const QString code = m_grid.cellBkg(row, c);
            painter.fillRect(r, backgroundColour(code));
            const QString text = m_grid.cellText(row, c);
            if (!text.isEmpty()) {
                painter.setPen(code == kBkgDisabled ? Qt::white : Qt::black);
                painter.drawText(r, Qt::AlignCenter, text);
            }
        }
    }

    // Grid lines.
    painter.setPen(kLineColour);
    const int bottom = kHeaderHeight + m_grid.rowCount() * kRowHeight;
    for (int row = 0; row <= m_grid.rowCount(); ++row)
        painter.drawLine(0, kHeaderHeight + row * kRowHeight, width, kHeaderHeight + row * kRowHeight);
    for (int c = 0; c <= m_grid.columnCount(); ++c)
        painter.drawLine(columnLeft(c), kHeaderHeight, columnLeft(c), bottom);

    // The keyboard's cell gets a dotted outline, the auto-fill marks a solid
    // blue frame drawn over it, three pixels thick, so a mark stays visible
    // on any background.
    auto cellOf = [&](const std::optional<GridCell> &cell) { return cell ? cellRect(cell->row, cell->col) : QRect(); };
    if (const QRect r = cellOf(decorations.current); !r.isEmpty()) {
        painter.setPen(QPen(Qt::black, 1, Qt::DotLine));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(r.adjusted(1, 1, -2, -2));
    }
    for (const auto &mark : {decorations.markStart, decorations.markEnd}) {
        const QRect r = cellOf(mark).adjusted(1, 1, 0, 0);
        if (r.isEmpty())
            continue;
        constexpr int t = 3;
        painter.fillRect(QRect(r.left(), r.top(), r.width(), t), kMarkColour);
        painter.fillRect(QRect(r.left(), r.bottom() - t + 1, r.width(), t), kMarkColour);
        painter.fillRect(QRect(r.left(), r.top(), t, r.height()), kMarkColour);
        painter.fillRect(QRect(r.right() - t + 1, r.top(), t, r.height()), kMarkColour);
    }
    painter.restore();
}

} // namespace gameday
