#include "gameday/ui/BBScoringLB.h"

#include "gameday/ui/GameDayAccessible.h"
#include "gameday/ui/battingPOP.h"

#include <QKeyEvent>
#include <QLayout>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>

using gameday::GridCell;
using gameday::ScoreGrid;

BBScoringLB::BBScoringLB(QWidget *parent) : QWidget(parent)
{
    // Before anything asks for the interface, which is then kept.
    gameday::accessible::install();
    setObjectName(QStringLiteral("BBScoringLB"));
    setAccessibleName(tr("Scorecard"));
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);

    m_grid.setPopoverRequest([this](int row, int col, bool showAll) { return askPopover(row, col, showAll); });
    connect(&m_grid, &ScoreGrid::columnAdded, this, &BBScoringLB::columnAdded);
    connect(&m_grid, &ScoreGrid::doCalcs, this, &BBScoringLB::doCalcs);
    connect(&m_grid, &ScoreGrid::askIsWalkoff, this, &BBScoringLB::askIsWalkoff);
    connect(&m_grid, &ScoreGrid::autoFillDataReturn, this, &BBScoringLB::autoFillDataReturn);
    connect(&m_grid, &ScoreGrid::autoFillFailed, this, &BBScoringLB::autoFillFailed);
    connect(&m_grid, &ScoreGrid::changed, this, &BBScoringLB::gridChanged);
    connect(&m_grid, &ScoreGrid::autoMarkTaken, this, [this](int row, int col) {
        if (m_grid.autoClickCount() <= 1) {
            m_markStart = GridCell{row, col};
            m_markEnd.reset();
        } else {
            m_markEnd = GridCell{row, col};
        }
        update();
    });
    resize(sizeHint());
}

QSize BBScoringLB::sizeHint() const
{
    return m_renderer.size();
}

void BBScoringLB::setCurrentCell(int row, int col)
{
    if (m_grid.rowCount() == 0 || m_grid.columnCount() == 0) {
        m_current.reset();
    } else {
        m_current = GridCell{qBound(0, row, m_grid.rowCount() - 1), qBound(0, col, m_grid.columnCount() - 1)};
    }
    announceCurrent();
    update();
}

void BBScoringLB::announceCurrent()
{
    if (!m_current) {
        setAccessibleDescription(QString());
        return;
    }
    gameday::accessible::cellFocused(this, m_current->row, m_current->col);
    const QString text = m_grid.cellText(m_current->row, m_current->col);
    setAccessibleDescription(tr("Row %1, inning %2: %3")
                                 .arg(m_current->row + 1)
                                 .arg(m_grid.heading(m_current->col), text.isEmpty() ? tr("empty") : text));
}

void BBScoringLB::gridChanged()
{
    // Marks live only while auto-fill counts clicks.
    if (m_grid.autoClickCount() == 0) {
        m_markStart.reset();
        m_markEnd.reset();
    }
    if (m_current)
        setCurrentCell(m_current->row, m_current->col);
    updateGeometry();
    // Alone or in a window without a layout, the grid grows with its columns.
    if (!parentWidget() || !parentWidget()->layout())
        resize(sizeHint());
    update();
}

QString BBScoringLB::askPopover(int row, int col, bool showAll)
{
    const QPoint anchor = mapToGlobal(gameday::ScoreGridRenderer::popoverOffset(row, col));
    battingPOP popover(this);
    return popover.getClickedTxt(anchor.x(), anchor.y(), showAll);
}

void BBScoringLB::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Base));
    gameday::ScoreGridRenderer::Decorations decorations;
    if (hasFocus())
        decorations.current = m_current;
    decorations.markStart = m_markStart;
    decorations.markEnd = m_markEnd;
    m_renderer.paint(painter, font(), decorations);
}

void BBScoringLB::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton) {
        QWidget::mousePressEvent(event);
        return;
    }
    const auto cell = m_renderer.cellAt(event->position().toPoint());
    if (!cell)
        return;
    setCurrentCell(cell->row, cell->col);
    m_grid.cellClicked(cell->row, cell->col, event->modifiers().testFlag(Qt::AltModifier));
}

void BBScoringLB::keyPressEvent(QKeyEvent *event)
{
    if (m_grid.rowCount() == 0 || m_grid.columnCount() == 0) {
        QWidget::keyPressEvent(event);
        return;
    }
    const GridCell at = m_current.value_or(GridCell{0, 0});
    switch (event->key()) {
    case Qt::Key_Left:
        setCurrentCell(at.row, m_current ? at.col - 1 : 0);
        return;
    case Qt::Key_Right:
        setCurrentCell(at.row, m_current ? at.col + 1 : 0);
        return;
    case Qt::Key_Up:
        setCurrentCell(m_current ? at.row - 1 : 0, at.col);
        return;
    case Qt::Key_Down:
        setCurrentCell(m_current ? at.row + 1 : 0, at.col);
        return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        if (!m_current)
            setCurrentCell(0, 0);
        m_grid.cellClicked(m_current->row, m_current->col, event->modifiers().testFlag(Qt::AltModifier));
        return;
    default:
        QWidget::keyPressEvent(event);
    }
}

void BBScoringLB::focusInEvent(QFocusEvent *event)
{
    if (!m_current && m_grid.rowCount() > 0)
        setCurrentCell(0, 0);
    QWidget::focusInEvent(event);
    update();
}

void BBScoringLB::focusOutEvent(QFocusEvent *event)
{
    QWidget::focusOutEvent(event);
    update();
}
