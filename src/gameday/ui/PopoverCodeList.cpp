#include "gameday/ui/PopoverCodeList.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

PopoverCodeList::PopoverCodeList(int rows, int columns, QList<Cell> cells, QWidget *parent)
    : QWidget(parent), m_rows(rows), m_columns(columns), m_cells(std::move(cells))
{
    Q_ASSERT(m_cells.size() == qsizetype(rows) * columns);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    m_current = -1;
    setCurrent(0);
}

QRect PopoverCodeList::cellRect(int row, int col) const
{
    // Cells share the width and height out evenly; the last ones take the
    // remainder so the table fills the widget.
    const int x0 = width() * col / m_columns;
    const int x1 = width() * (col + 1) / m_columns;
    const int y0 = height() * row / m_rows;
    const int y1 = height() * (row + 1) / m_rows;
    return {x0, y0, x1 - x0, y1 - y0};
}

int PopoverCodeList::indexAt(QPoint point) const
{
    if (!rect().contains(point))
        return -1;
    const int col = qMin(point.x() * m_columns / qMax(1, width()), m_columns - 1);
    const int row = qMin(point.y() * m_rows / qMax(1, height()), m_rows - 1);
    return row * m_columns + col;
}

void PopoverCodeList::setCurrent(int index)
{
    // A blank cell filling out the table is never current.
    if (index < 0 || index >= m_cells.size() || index == m_current || m_cells.at(index).value.isEmpty())
        return;
    m_current = index;
    setAccessibleDescription(m_cells.at(index).text + u": " + m_cells.at(index).description);
    update();
}

void PopoverCodeList::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    QFont bold = font();
    bold.setBold(true);
    painter.setFont(bold);
    for (int r = 0; r < m_rows; ++r) {
        for (int c = 0; c < m_columns; ++c) {
            const QRect box = cellRect(r, c);
            const Cell &cell = this->cell(r, c);
            painter.fillRect(box, cell.colour);
            painter.setPen(QColor::fromRgb(0x9A9478));
            painter.drawRect(box.adjusted(0, 0, -1, -1));
            painter.setPen(Qt::black);
            painter.drawText(box, Qt::AlignCenter, cell.text);
        }
    }
    if (hasFocus()) {
        const QRect box = cellRect(m_current / m_columns, m_current % m_columns);
        painter.setPen(QPen(Qt::black, 2));
        painter.drawRect(box.adjusted(2, 2, -2, -2));
    }
}

void PopoverCodeList::mousePressEvent(QMouseEvent *event)
{
    const int index = indexAt(event->position().toPoint());
    if (event->button() != Qt::LeftButton || index < 0 || m_cells.at(index).value.isEmpty())
        return;
    setCurrent(index);
    Q_EMIT picked(m_cells.at(index).value);
}

void PopoverCodeList::mouseMoveEvent(QMouseEvent *event)
{
    const int index = indexAt(event->position().toPoint());
    if (index >= 0)
        setCurrent(index);
}

void PopoverCodeList::keyPressEvent(QKeyEvent *event)
{
    const int row = m_current / m_columns;
    const int col = m_current % m_columns;
    switch (event->key()) {
    case Qt::Key_Left:
        setCurrent(row * m_columns + qMax(0, col - 1));
        return;
    case Qt::Key_Right:
        setCurrent(row * m_columns + qMin(m_columns - 1, col + 1));
        return;
    case Qt::Key_Up:
        setCurrent(qMax(0, row - 1) * m_columns + col);
        return;
    case Qt::Key_Down:
        setCurrent(qMin(m_rows - 1, row + 1) * m_columns + col);
        return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        Q_EMIT picked(m_cells.at(m_current).value);
        return;
    default:
        QWidget::keyPressEvent(event);
    }
}

bool PopoverCodeList::event(QEvent *event)
{
    // Each cell explains its code, such as "KL: strike out looking".
    if (event->type() == QEvent::ToolTip) {
        auto *help = static_cast<QHelpEvent *>(event);
        const int index = indexAt(help->pos());
        if (index >= 0)
            QToolTip::showText(help->globalPos(), m_cells.at(index).description, this);
        else
            QToolTip::hideText();
        return true;
    }
    return QWidget::event(event);
}
