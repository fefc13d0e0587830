#include "gameday/ui/GameDayAccessible.h"

#include "gameday/ui/BBScoringLB.h"
#include "gameday/ui/battingPOP.h"

#include <QAccessibleWidget>
#include <QHash>
#include <QPointer>

namespace gameday::accessible {

namespace {

// One cell of the grid: named "Row 3, inning 2: 1B"; pressing it clicks it.
class GridCellInterface : public QAccessibleInterface, public QAccessibleActionInterface
{
public:
    GridCellInterface(BBScoringLB *grid, int row, int col) : m_grid(grid), m_row(row), m_col(col) {}

    bool isValid() const override
    {
        return m_grid && m_row < m_grid->grid().rowCount() && m_col < m_grid->grid().columnCount();
    }
    QObject *object() const override { return nullptr; }
    QWindow *window() const override { return m_grid ? m_grid->window()->windowHandle() : nullptr; }
    QAccessibleInterface *parent() const override { return QAccessible::queryAccessibleInterface(m_grid); }
    QAccessibleInterface *child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface *) const override { return -1; }
    QAccessibleInterface *childAt(int, int) const override { return nullptr; }
    QAccessible::Role role() const override { return QAccessible::Cell; }

    QString text(QAccessible::Text t) const override
    {
        if (!isValid() || (t != QAccessible::Name && t != QAccessible::Value))
            return {};
        const QString code = m_grid->grid().cellText(m_row, m_col);
        if (t == QAccessible::Value)
            return code;
        return QObject::tr("Row %1, inning %2: %3")
            .arg(m_row + 1)
            .arg(m_grid->grid().heading(m_col), code.isEmpty() ? QObject::tr("empty") : code);
    }
    void setText(QAccessible::Text, const QString &) override {}

    QRect rect() const override
    {
        if (!isValid())
            return {};
        const QRect local = m_grid->renderer().cellRect(m_row, m_col);
        return QRect(m_grid->mapToGlobal(local.topLeft()), local.size());
    }

    QAccessible::State state() const override
    {
        QAccessible::State s;
        s.focusable = true;
        s.selectable = true;
        const auto current = m_grid ? m_grid->currentCell() : std::nullopt;
        s.focused = current && current->row == m_row && current->col == m_col && m_grid->hasFocus();
        s.selected = current && current->row == m_row && current->col == m_col;
        return s;
    }

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface *>(this) : nullptr;
    }
    QStringList actionNames() const override { return {pressAction(), setFocusAction()}; }
    void doAction(const QString &name) override
    {
        if (!isValid())
            return;
        m_grid->setCurrentCell(m_row, m_col);
        if (name == pressAction())
            m_grid->grid().cellClicked(m_row, m_col, false);
        else
            m_grid->setFocus(Qt::OtherFocusReason);
    }
    QStringList keyBindingsForAction(const QString &) const override { return {}; }

private:
    QPointer<BBScoringLB> m_grid;
    int m_row;
    int m_col;
};

// The grid: a table of its cells, row by row.
class GridInterface : public QAccessibleWidget
{
public:
    explicit GridInterface(BBScoringLB *grid) : QAccessibleWidget(grid, QAccessible::Table) {}
    ~GridInterface() override
    {
        for (QAccessible::Id id : std::as_const(m_cells))
            QAccessible::deleteAccessibleInterface(id);
    }

    int childCount() const override { return columns() * grid()->grid().rowCount(); }
    QAccessibleInterface *child(int index) const override
    {
        if (index < 0 || index >= childCount())
            return nullptr;
        const int row = index / columns(), col = index % columns();
        const quint64 key = (quint64(row) << 32) | quint64(col);
        if (const auto found = m_cells.constFind(key); found != m_cells.cend())
            return QAccessible::accessibleInterface(*found);
        auto *cell = new GridCellInterface(grid(), row, col);
        m_cells.insert(key, QAccessible::registerAccessibleInterface(cell));
        return cell;
    }
    int indexOfChild(const QAccessibleInterface *child) const override
    {
        for (int i = 0; i < childCount(); ++i) {
            if (this->child(i) == child)
                return i;
        }
        return -1;
    }
    QAccessibleInterface *focusChild() const override
    {
        const auto current = grid()->currentCell();
        return current ? child(current->row * columns() + current->col) : nullptr;
    }

private:
    BBScoringLB *grid() const { return static_cast<BBScoringLB *>(widget()); }
    int columns() const { return grid()->grid().columnCount(); }

    mutable QHash<quint64, QAccessible::Id> m_cells;
};

QAccessibleInterface *factory(const QString &className, QObject *object)
{
    if (className == QLatin1String("BBScoringLB"))
        return new GridInterface(static_cast<BBScoringLB *>(object));
    // The popover is a window of its own, read as a dialog.
    if (className == QLatin1String("battingPOP"))
        return new QAccessibleWidget(static_cast<QWidget *>(object), QAccessible::Dialog);
    return nullptr;
}

} // namespace

void install()
{
    static const bool installed = [] {
        QAccessible::installFactory(factory);
        return true;
    }();
    Q_UNUSED(installed);
}

void cellFocused(BBScoringLB *grid, int row, int col)
{
    if (!QAccessible::isActive() || !grid->hasFocus())
        return;
    QAccessibleEvent event(grid, QAccessible::Focus);
    event.setChild(row * grid->grid().columnCount() + col);
    QAccessible::updateAccessibility(&event);
}

void popoverShown(QWidget *popover, bool shown)
{
    QAccessibleEvent event(popover, shown ? QAccessible::DialogStart : QAccessible::DialogEnd);
    QAccessible::updateAccessibility(&event);
}

} // namespace gameday::accessible
