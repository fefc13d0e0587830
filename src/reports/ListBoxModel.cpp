#include "reports/ListBoxModel.h"

#include <QCoreApplication>
#include <QMimeData>

#include <algorithm>

namespace {

// A cell's text as a number, when the whole text is one ("12", "-3", ".500").
bool readNumber(const QString &text, double &value)
{
    bool ok = false;
    value = text.trimmed().toDouble(&ok);
    return ok;
}

const QString rowsMimeType = QStringLiteral("application/x-tallyline-list-row");

// Names this list in this process, so a drop can tell its own rows.
QByteArray ownerId(const ListBoxModel *model)
{
    return QByteArray::number(QCoreApplication::applicationPid()) + ':' +
           QByteArray::number(reinterpret_cast<quintptr>(model), 16);
}

// Numbers before texts; numbers by value; texts without regard to case.
int compareCells(const QString &a, const QString &b)
{
    double x = 0, y = 0;
    const bool aNumber = readNumber(a, x);
    const bool bNumber = readNumber(b, y);
    if (aNumber && bNumber)
        return x < y ? -1 : (x > y ? 1 : 0);
    if (aNumber != bNumber)
        return aNumber ? -1 : 1;
    return a.compare(b, Qt::CaseInsensitive);
}

} // namespace

ListBoxModel::ListBoxModel(QObject *parent) : QAbstractTableModel(parent) {}

void ListBoxModel::ensureColumns(int count)
{
    if (count > m_columns)
        setColumnCount(count);
}

void ListBoxModel::setColumnCount(int count)
{
    count = std::max(0, count);
    if (count == m_columns)
        return;
    if (count > m_columns) {
        beginInsertColumns({}, m_columns, count - 1);
        m_columns = count;
        endInsertColumns();
    } else {
        beginRemoveColumns({}, count, m_columns - 1);
        m_columns = count;
        endRemoveColumns();
    }
}

void ListBoxModel::setHeadings(const QStringList &headings)
{
    ensureColumns(int(headings.size()));
    m_headings = headings;
    if (m_columns > 0)
        Q_EMIT headerDataChanged(Qt::Horizontal, 0, m_columns - 1);
}

QStringList ListBoxModel::headings() const
{
    QStringList out;
    out.reserve(m_columns);
    for (int c = 0; c < m_columns; ++c)
        out.append(heading(c));
    return out;
}

QString ListBoxModel::heading(int column) const
{
    return m_headings.value(column);
}

void ListBoxModel::setHeading(int column, const QString &text)
{
    if (column < 0)
        return;
    ensureColumns(column + 1);
    while (m_headings.size() <= column)
        m_headings.append(QString());
    m_headings[column] = text;
    Q_EMIT headerDataChanged(Qt::Horizontal, column, column);
}

void ListBoxModel::setHeadingDescription(int column, const QString &text)
{
    m_headingDescriptions.insert(column, text);
    if (column >= 0 && column < m_columns)
        Q_EMIT headerDataChanged(Qt::Horizontal, column, column);
}

void ListBoxModel::setFirstSortOrder(int column, Qt::SortOrder order)
{
    m_firstOrders.insert(column, order);
}

void ListBoxModel::setColumnWidths(const QString &widths)
{
    if (widths == m_columnWidths)
        return;
    m_columnWidths = widths;
    // The view re-reads the widths when the header's layout changes.
    if (m_columns > 0)
        Q_EMIT headerDataChanged(Qt::Horizontal, 0, m_columns - 1);
}

ListBoxModel::CellType ListBoxModel::columnType(int column) const
{
    return m_columnTypes.value(column, CellType::Normal);
}

void ListBoxModel::setColumnType(int column, CellType type)
{
    if (column < 0)
        return;
    ensureColumns(column + 1);
    if (type == CellType::Default || type == CellType::Normal)
        m_columnTypes.remove(column);
    else
        m_columnTypes.insert(column, type);
    if (!m_rows.isEmpty())
        Q_EMIT dataChanged(index(0, column), index(int(m_rows.size()) - 1, column));
}

Qt::Alignment ListBoxModel::columnAlignment(int column) const
{
    return m_alignments.value(column, Qt::AlignLeft | Qt::AlignVCenter);
}

void ListBoxModel::setColumnAlignment(int column, Qt::Alignment alignment)
{
    if (column < 0)
        return;
    ensureColumns(column + 1);
    if (!(alignment & Qt::AlignVertical_Mask))
        alignment |= Qt::AlignVCenter;
    m_alignments.insert(column, alignment);
    if (!m_rows.isEmpty())
        Q_EMIT dataChanged(index(0, column), index(int(m_rows.size()) - 1, column), {Qt::TextAlignmentRole});
}

int ListBoxModel::addRow(const QStringList &cells, const QString &tag)
{
    const int row = int(m_rows.size());
    insertRow(row, cells, tag);
    return row;
}

void ListBoxModel::addRows(const QList<QStringList> &rows, const QStringList &tags)
{
    if (rows.isEmpty())
        return;
    int widest = 0;
    for (const QStringList &cells : rows)
        widest = std::max(widest, int(cells.size()));
    ensureColumns(widest);
    const int first = int(m_rows.size());
    beginInsertRows({}, first, first + int(rows.size()) - 1);
    m_rows.reserve(first + rows.size());
    for (qsizetype i = 0; i < rows.size(); ++i)
        m_rows.append(Row{rows.at(i), tags.value(i), {}});
    endInsertRows();
}

void ListBoxModel::insertRow(int row, const QStringList &cells, const QString &tag)
{
    row = std::clamp(row, 0, int(m_rows.size()));
    ensureColumns(int(cells.size()));
    beginInsertRows({}, row, row);
    m_rows.insert(row, Row{cells, tag, {}});
    endInsertRows();
}

void ListBoxModel::deleteAllRows()
{
    if (m_rows.isEmpty())
        return;
    beginResetModel();
    m_rows.clear();
    endResetModel();
}

bool ListBoxModel::moveListRow(int from, int to)
{
    const int n = int(m_rows.size());
    if (from < 0 || from >= n || to < 0 || to >= n)
        return false;
    if (from == to)
        return true;
    // moveRows wants the row to insert before, counted before the move.
    return moveRows({}, from, 1, {}, to > from ? to + 1 : to);
}

bool ListBoxModel::validCell(int row, int column) const
{
    return row >= 0 && row < m_rows.size() && column >= 0 && column < m_columns;
}

QString ListBoxModel::cell(int row, int column) const
{
    if (row < 0 || row >= m_rows.size())
        return {};
    return m_rows.at(row).cells.value(column);
}

void ListBoxModel::setCell(int row, int column, const QString &text)
{
    if (row < 0 || row >= m_rows.size() || column < 0)
        return;
    ensureColumns(column + 1);
    QStringList &cells = m_rows[row].cells;
    while (cells.size() <= column)
        cells.append(QString());
    if (cells.at(column) == text)
        return;
    cells[column] = text;
    const QModelIndex at = index(row, column);
    Q_EMIT dataChanged(at, at, {Qt::DisplayRole, Qt::EditRole});
}

QStringList ListBoxModel::rowCells(int row) const
{
    QStringList out;
    if (row < 0 || row >= m_rows.size())
        return out;
    const QStringList &cells = m_rows.at(row).cells;
    out.reserve(m_columns);
    for (int c = 0; c < m_columns; ++c)
        out.append(cells.value(c));
    return out;
}

QString ListBoxModel::rowTag(int row) const
{
    return row >= 0 && row < m_rows.size() ? m_rows.at(row).tag : QString();
}

void ListBoxModel::setRowTag(int row, const QString &tag)
{
    if (row >= 0 && row < m_rows.size())
        m_rows[row].tag = tag;
}

QString ListBoxModel::cellTag(int row, int column) const
{
    if (row < 0 || row >= m_rows.size())
        return {};
    return m_rows.at(row).extras.value(column).tag;
}

void ListBoxModel::setCellTag(int row, int column, const QString &tag)
{
    if (validCell(row, column))
        m_rows[row].extras[column].tag = tag;
}

bool ListBoxModel::cellCheck(int row, int column) const
{
    if (row < 0 || row >= m_rows.size())
        return false;
    return m_rows.at(row).extras.value(column).checked;
}

void ListBoxModel::setCellCheck(int row, int column, bool checked)
{
    if (!validCell(row, column))
        return;
    m_rows[row].extras[column].checked = checked;
    const QModelIndex at = index(row, column);
    Q_EMIT dataChanged(at, at, {Qt::CheckStateRole});
}

ListBoxModel::CellType ListBoxModel::cellType(int row, int column) const
{
    if (row >= 0 && row < m_rows.size()) {
        const auto &extras = m_rows.at(row).extras;
        const auto found = extras.constFind(column);
        if (found != extras.constEnd() && found->type != CellType::Default)
            return found->type;
    }
    return columnType(column);
}

void ListBoxModel::setCellType(int row, int column, CellType type)
{
    if (!validCell(row, column))
        return;
    m_rows[row].extras[column].type = type;
    const QModelIndex at = index(row, column);
    Q_EMIT dataChanged(at, at);
}

void ListBoxModel::setRowsMovable(bool movable)
{
    m_rowsMovable = movable;
}

int ListBoxModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

int ListBoxModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_columns;
}

QVariant ListBoxModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= m_rows.size() || index.column() >= m_columns)
        return {};
    const int row = index.row();
    const int column = index.column();
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
    case Qt::ToolTipRole:
        if (role == Qt::ToolTipRole && cell(row, column).isEmpty())
            return {};
        return m_rows.at(row).cells.value(column);
    case Qt::CheckStateRole:
        if (cellType(row, column) != CellType::CheckBox)
            return {};
        return cellCheck(row, column) ? Qt::Checked : Qt::Unchecked;
    case Qt::BackgroundRole:
        // The view paints the selection over this, so only unselected rows show it.
        if (row % 2 == 0)
            return evenRowColor();
        return {};
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(columnAlignment(column));
    case Qt::AccessibleTextRole:
        // A screen reader says "blank" for an empty cell rather than nothing.
        if (const QString text = cell(row, column); !text.isEmpty())
            return text;
        return QStringLiteral("blank");
    default:
        return {};
    }
}

bool ListBoxModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (!index.isValid() || !validCell(index.row(), index.column()))
        return false;
    const int row = index.row();
    const int column = index.column();
    const CellType type = cellType(row, column);
    if (role == Qt::CheckStateRole && type == CellType::CheckBox) {
        const bool checked = value.toInt() == Qt::Checked;
        if (checked != cellCheck(row, column)) {
            setCellCheck(row, column, checked);
            Q_EMIT cellEdited(row, column);
        }
        return true;
    }
    if (role == Qt::EditRole && type == CellType::Editable) {
        const QString text = value.toString();
        if (text != cell(row, column)) {
            setCell(row, column, text);
            Q_EMIT cellEdited(row, column);
        }
        return true;
    }
    return false;
}

QVariant ListBoxModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Horizontal && section >= 0 && section < m_columns) {
        if (role == Qt::DisplayRole)
            return heading(section);
        // An untitled column (a check box column) still has a name to say.
        if (role == Qt::AccessibleTextRole)
            return heading(section).isEmpty() ? QStringLiteral("Column %1").arg(section + 1) : heading(section);
        if (role == Qt::TextAlignmentRole)
            return QVariant::fromValue(columnAlignment(section));
        if ((role == Qt::ToolTipRole || role == Qt::AccessibleDescriptionRole) &&
            m_headingDescriptions.contains(section))
            return m_headingDescriptions.value(section);
        if (role == Qt::InitialSortOrderRole)
            return int(firstSortOrder(section));
    }
    return QAbstractTableModel::headerData(section, orientation, role);
}

Qt::ItemFlags ListBoxModel::flags(const QModelIndex &index) const
{
    if (!index.isValid())
        return m_rowsMovable ? Qt::ItemIsDropEnabled : Qt::NoItemFlags;
    Qt::ItemFlags f = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
    switch (cellType(index.row(), index.column())) {
    case CellType::Editable:
        f |= Qt::ItemIsEditable;
        break;
    case CellType::CheckBox:
        f |= Qt::ItemIsUserCheckable;
        break;
    default:
        break;
    }
    if (m_rowsMovable)
        f |= Qt::ItemIsDragEnabled;
    return f;
}

bool ListBoxModel::removeRows(int row, int count, const QModelIndex &parent)
{
    if (parent.isValid() || row < 0 || count <= 0 || row + count > m_rows.size())
        return false;
    beginRemoveRows({}, row, row + count - 1);
    m_rows.remove(row, count);
    endRemoveRows();
    return true;
}

bool ListBoxModel::moveRows(const QModelIndex &sourceParent, int sourceRow, int count,
                            const QModelIndex &destinationParent, int destinationChild)
{
    const int n = int(m_rows.size());
    if (sourceParent.isValid() || destinationParent.isValid() || count <= 0 || sourceRow < 0 || sourceRow + count > n ||
        destinationChild < 0 || destinationChild > n)
        return false;
    // Moving a block inside itself or to where it already is changes nothing.
    if (destinationChild >= sourceRow && destinationChild <= sourceRow + count)
        return false;
    if (!beginMoveRows({}, sourceRow, sourceRow + count - 1, {}, destinationChild))
        return false;
    QList<Row> block = m_rows.mid(sourceRow, count);
    m_rows.remove(sourceRow, count);
    const int insertAt = destinationChild > sourceRow ? destinationChild - count : destinationChild;
    for (int i = 0; i < count; ++i)
        m_rows.insert(insertAt + i, std::move(block[i]));
    endMoveRows();
    return true;
}

void ListBoxModel::sort(int column, Qt::SortOrder order)
{
    if (column < 0 || column >= m_columns || m_rows.size() < 2)
        return;
    Q_EMIT layoutAboutToBeChanged({}, QAbstractItemModel::VerticalSortHint);
    const QModelIndexList before = persistentIndexList();

    QList<int> order_(m_rows.size());
    for (int i = 0; i < order_.size(); ++i)
        order_[i] = i;
    std::stable_sort(order_.begin(), order_.end(), [&](int a, int b) {
        const int c = compareCells(cell(a, column), cell(b, column));
        return order == Qt::AscendingOrder ? c < 0 : c > 0;
    });
    QList<Row> sorted;
    sorted.reserve(m_rows.size());
    QList<int> newRowOf(m_rows.size());
    for (int i = 0; i < order_.size(); ++i) {
        sorted.append(std::move(m_rows[order_[i]]));
        newRowOf[order_[i]] = i;
    }
    m_rows = std::move(sorted);

    QModelIndexList after;
    after.reserve(before.size());
    for (const QModelIndex &old : before)
        after.append(index(newRowOf.at(old.row()), old.column()));
    changePersistentIndexList(before, after);
    Q_EMIT layoutChanged({}, QAbstractItemModel::VerticalSortHint);
}

Qt::DropActions ListBoxModel::supportedDropActions() const
{
    return m_rowsMovable ? Qt::MoveAction : Qt::IgnoreAction;
}

QStringList ListBoxModel::mimeTypes() const
{
    return {rowsMimeType};
}

QMimeData *ListBoxModel::mimeData(const QModelIndexList &indexes) const
{
    int row = -1;
    for (const QModelIndex &index : indexes) {
        if (index.isValid() && (row < 0 || index.row() < row))
            row = index.row();
    }
    if (row < 0)
        return nullptr;
    auto *mime = new QMimeData;
    mime->setData(rowsMimeType, ownerId(this) + ':' + QByteArray::number(row));
    // Dropped anywhere else, the row reads as its tab-separated cells.
    mime->setText(rowCells(row).join(u'\t'));
    return mime;
}

int ListBoxModel::draggedRow(const QMimeData *mime) const
{
    if (!mime || !mime->hasFormat(rowsMimeType))
        return -1;
    const QByteArray data = mime->data(rowsMimeType);
    const QByteArray owner = ownerId(this) + ':';
    if (!data.startsWith(owner))
        return -1;
    bool ok = false;
    const int row = data.mid(owner.size()).toInt(&ok);
    return ok && row >= 0 && row < m_rows.size() ? row : -1;
}

bool ListBoxModel::canDropMimeData(const QMimeData *data, Qt::DropAction action, int, int, const QModelIndex &) const
{
    return m_rowsMovable && action == Qt::MoveAction && draggedRow(data) >= 0;
}
