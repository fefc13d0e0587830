#include "reports/ui/qlmListBox.h"

#include "app/globals.h"
#include "platform/Services.h"
#include "reports/ColumnWidths.h"
#include "reports/ListBoxPrint.h"
#include "reports/ListBoxText.h"

#include <QDropEvent>
#include <QFileInfo>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QSaveFile>

#include <algorithm>
#include <cstdlib>

qlmListBox *qlmListBox::make(QWidget *parent, const QString &objectName, const QString &accessibleName,
                             const QStringList &headings, const QString &columnWidths)
{
    auto *list = new qlmListBox(parent);
    list->setObjectName(objectName);
    list->setAccessibleName(accessibleName);
    list->setHeadings(headings);
    list->setColumnWidths(columnWidths);
    return list;
}

qlmListBox::qlmListBox(QWidget *parent) : QTreeView(parent), m_model(new ListBoxModel(this))
{
    setModel(m_model);
    // A flat list: no tree decoration, and every row is one line high, which
    // lets the view lay out thousands of rows without measuring each.
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::SelectedClicked |
                    QAbstractItemView::EditKeyPressed);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    header()->setStretchLastSection(false);
    header()->setSectionsMovable(false);
    // Narrow columns such as a one-letter mark keep the width they are given.
    header()->setMinimumSectionSize(0);
    header()->setSortIndicatorShown(false);

    connect(m_model, &ListBoxModel::cellEdited, this, &qlmListBox::cellEdited);
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this, &qlmListBox::rowSelectionChanged);
    connect(this, &QAbstractItemView::clicked, this,
            [this](const QModelIndex &index) { Q_EMIT cellClicked(index.row(), index.column()); });
    connect(this, &QAbstractItemView::doubleClicked, this,
            [this](const QModelIndex &index) { Q_EMIT rowDoubleClicked(index.row()); });
    // New columns and a new widths text both change how the width is shared out.
    connect(m_model, &QAbstractItemModel::columnsInserted, this, &qlmListBox::applyColumnWidths);
    connect(m_model, &QAbstractItemModel::columnsRemoved, this, &qlmListBox::applyColumnWidths);
    connect(m_model, &QAbstractItemModel::headerDataChanged, this, &qlmListBox::applyColumnWidths);
}

// Columns ---------------------------------------------------------------------

void qlmListBox::setColumnWidths(const QString &widths)
{
    m_model->setColumnWidths(widths);
    applyColumnWidths();
}

void qlmListBox::applyColumnWidths()
{
    const int columns = m_model->columnCount();
    if (columns == 0)
        return;
    const QList<int> widths = ColumnWidths::resolve(m_model->columnWidths(), columns, viewport()->width());
    for (int c = 0; c < columns; ++c) {
        if (header()->sectionSize(c) != widths.at(c))
            header()->resizeSection(c, widths.at(c));
    }
}

void qlmListBox::resizeEvent(QResizeEvent *event)
{
    QTreeView::resizeEvent(event);
    applyColumnWidths();
}

void qlmListBox::setHeaderSortAllowed(bool allowed)
{
    // No column is sorted until a heading is clicked, so allowing it keeps
    // the order the screen filled the list in.
    header()->setSortIndicator(-1, Qt::AscendingOrder);
    header()->setSortIndicatorShown(allowed);
    setSortingEnabled(allowed);
}

// Selection -------------------------------------------------------------------

void qlmListBox::setMultipleSelection(bool multiple)
{
    setSelectionMode(multiple ? QAbstractItemView::ExtendedSelection : QAbstractItemView::SingleSelection);
}

QList<int> qlmListBox::selectedRows() const
{
    QList<int> rows;
    const QModelIndexList indexes = selectionModel()->selectedRows();
    rows.reserve(indexes.size());
    for (const QModelIndex &index : indexes)
        rows.append(index.row());
    std::sort(rows.begin(), rows.end());
    return rows;
}

int qlmListBox::selectedRow() const
{
    const QList<int> rows = selectedRows();
    return rows.isEmpty() ? -1 : rows.first();
}

void qlmListBox::setSelectedRow(int row)
{
    if (row < 0 || row >= rowCount()) {
        clearSelection();
        return;
    }
    const QModelIndex index = m_model->index(row, 0);
    selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    scrollTo(index);
}

bool qlmListBox::isRowSelected(int row) const
{
    return row >= 0 && row < rowCount() && selectionModel()->isRowSelected(row, {});
}

void qlmListBox::setRowSelected(int row, bool selected)
{
    if (row < 0 || row >= rowCount())
        return;
    if (selected && selectionMode() == QAbstractItemView::SingleSelection) {
        setSelectedRow(row);
        return;
    }
    const QItemSelection rowRange(m_model->index(row, 0), m_model->index(row, std::max(0, columnCount() - 1)));
    selectionModel()->select(rowRange, selected ? QItemSelectionModel::Select : QItemSelectionModel::Deselect);
}

// Editing ---------------------------------------------------------------------

void qlmListBox::editCell(int row, int column)
{
    const QModelIndex index = m_model->index(row, column);
    if (!index.isValid() || !(m_model->flags(index) & Qt::ItemIsEditable))
        return;
    // Moving on from a cell being edited (a key handler's Return, say) keeps
    // what was typed there.
    if (QWidget *open = m_editing.isValid() ? indexWidget(m_editing) : nullptr) {
        commitData(open);
        closeEditor(open, QAbstractItemDelegate::NoHint);
    }
    setCurrentIndex(index);
    QAbstractItemView::edit(index);
}

bool qlmListBox::edit(const QModelIndex &index, EditTrigger trigger, QEvent *event)
{
    if (!QTreeView::edit(index, trigger, event))
        return false;
    if (QWidget *editor = indexWidget(index)) {
        // Installed after the delegate's own filter, so this one runs first
        // and a screen's key handler sees Tab and Return before the delegate.
        editor->installEventFilter(this);
        m_editing = index;
    }
    return true;
}

void qlmListBox::closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint)
{
    m_editing = QModelIndex();
    QTreeView::closeEditor(editor, hint);
}

bool qlmListBox::isEditingCell() const
{
    return m_editing.isValid() && indexWidget(m_editing) != nullptr;
}

QString qlmListBox::editorText() const
{
    if (auto *line = qobject_cast<QLineEdit *>(m_editing.isValid() ? indexWidget(m_editing) : nullptr))
        return line->text();
    return {};
}

void qlmListBox::setEditorText(const QString &text)
{
    if (auto *line = qobject_cast<QLineEdit *>(m_editing.isValid() ? indexWidget(m_editing) : nullptr))
        line->setText(text);
}

bool qlmListBox::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress && m_cellKeyHandler && m_editing.isValid() &&
        watched == indexWidget(m_editing)) {
        const QModelIndex at = m_editing;
        if (m_cellKeyHandler(at.row(), at.column(), static_cast<QKeyEvent *>(event)))
            return true;
    }
    return QTreeView::eventFilter(watched, event);
}

// Order -----------------------------------------------------------------------

void qlmListBox::setRowsMovable(bool movable)
{
    m_model->setRowsMovable(movable);
    setDragEnabled(movable);
    setAcceptDrops(movable);
    viewport()->setAcceptDrops(movable);
    setDropIndicatorShown(movable);
    setDragDropOverwriteMode(false);
    // Not InternalMove: that mode hands the move to the model as an insert
    // and a removal. The list takes only its own rows (see dropEvent) and
    // moves them in one step.
    setDragDropMode(movable ? QAbstractItemView::DragDrop : QAbstractItemView::NoDragDrop);
    setDefaultDropAction(Qt::MoveAction);
}

bool qlmListBox::moveRowByUser(int from, int to)
{
    if (from == to || !m_model->moveListRow(from, to))
        return false;
    setSelectedRow(to);
    Q_EMIT rowMoved(from, to);
    return true;
}

void qlmListBox::keyPressEvent(QKeyEvent *event)
{
    // Ctrl or Alt with an arrow moves the selected row: the drag's keyboard way.
    const Qt::KeyboardModifiers mods = event->modifiers() & ~Qt::KeypadModifier;
    if (rowsMovable() && (mods == Qt::ControlModifier || mods == Qt::AltModifier) &&
        (event->key() == Qt::Key_Up || event->key() == Qt::Key_Down)) {
        const int from = selectedRow();
        if (from >= 0) {
            const int to = event->key() == Qt::Key_Up ? from - 1 : from + 1;
            if (to >= 0 && to < rowCount())
                moveRowByUser(from, to);
        }
        event->accept();
        return;
    }
    // With sorting by heading allowed, Ctrl+Left and Ctrl+Right sort by the
    // previous or next heading as a first click on it does; Ctrl+Up and
    // Ctrl+Down then sort that heading up or down.
    if (isSortingEnabled() && !rowsMovable() && mods == Qt::ControlModifier && columnCount() > 0) {
        const int current = header()->sortIndicatorSection();
        const int key = event->key();
        if (key == Qt::Key_Left || key == Qt::Key_Right) {
            int column = current < 0 || current >= columnCount() ? (key == Qt::Key_Right ? 0 : columnCount() - 1)
                         : key == Qt::Key_Right                  ? (current + 1) % columnCount()
                                                                 : (current + columnCount() - 1) % columnCount();
            header()->setSortIndicator(column, m_model->firstSortOrder(column));
            event->accept();
            return;
        }
        if ((key == Qt::Key_Up || key == Qt::Key_Down) && current >= 0) {
            header()->setSortIndicator(current, key == Qt::Key_Up ? Qt::AscendingOrder : Qt::DescendingOrder);
            event->accept();
            return;
        }
    }
    QTreeView::keyPressEvent(event);
}

int qlmListBox::dropRow(const QPoint &position) const
{
    const QModelIndex index = indexAt(position);
    if (!index.isValid())
        return rowCount();
    const QRect rect = visualRect(index);
    return position.y() < rect.center().y() ? index.row() : index.row() + 1;
}

void qlmListBox::dragEnterEvent(QDragEnterEvent *event)
{
    // Rows are only reordered within the list; nothing is taken from elsewhere.
    if (!rowsMovable() || m_model->draggedRow(event->mimeData()) < 0) {
        event->ignore();
        return;
    }
    QTreeView::dragEnterEvent(event);
}

void qlmListBox::dragMoveEvent(QDragMoveEvent *event)
{
    if (!rowsMovable() || m_model->draggedRow(event->mimeData()) < 0) {
        event->ignore();
        return;
    }
    QTreeView::dragMoveEvent(event);
}

void qlmListBox::dropEvent(QDropEvent *event)
{
    const int from = rowsMovable() ? m_model->draggedRow(event->mimeData()) : -1;
    if (from < 0) {
        event->ignore();
        return;
    }
    const int before = dropRow(event->position().toPoint());
    moveRowByUser(from, before > from ? before - 1 : before);
    // The row is already in its new place: answering "ignore" keeps the
    // drag's source from removing the rows it thinks were moved away.
    event->setDropAction(Qt::IgnoreAction);
    event->accept();
    stopAutoScroll();
    setState(QAbstractItemView::NoState);
    viewport()->update();
}

// Printing and export ---------------------------------------------------------

void qlmListBox::printAllCopies(const platform::PrinterSetup &setup, const QString &title,
                                const std::function<bool(platform::PrintJob &)> &printCopy)
{
    const std::optional<bool> ok = platform::printCopies(setup, title, printCopy);
    if (ok && !*ok)
        gMsgBox(QStringLiteral("The printer reported an error; the list may not have printed completely."));
}

void qlmListBox::printMe(const QString &title, bool small)
{
    std::optional<platform::PrinterSetup> setup;
    gGetPrinterSetup(setup, false);
    if (!setup)
        return;
    const QStringList headers = headings();
    printAllCopies(*setup, title,
                   [&](platform::PrintJob &job) { return printOneCopy(job, job.setup(), title, headers, small); });
}

bool qlmListBox::printOneCopy(platform::PrintJob &job, const platform::PrinterSetup &setup, const QString &title,
                              const QStringList &headers, bool small) const
{
    return ListBoxPrint::paint(job, ListBoxPrint::equalColumns(setup, *m_model, title, ListBoxPrint::todayText(),
                                                               headers, small));
}

bool qlmListBox::widePrintOneCopy(platform::PrintJob &job, const platform::PrinterSetup &setup, const QString &title,
                                  const QStringList &headers, const QStringList &widths) const
{
    return ListBoxPrint::paint(job, ListBoxPrint::givenColumns(setup, *m_model, title, ListBoxPrint::todayText(),
                                                               headers, widths));
}

std::optional<platform::PrinterSetup> qlmListBox::getPSetup()
{
    // The remembered page set-up (or the default paper), turned to landscape
    // for the wide list: the print dialog that follows is the only one.
    platform::PrinterSetup setup =
        platform::PrinterSetup::fromString(gPrinterSettings).value_or(platform::PrinterSetup());
    setup.setLandscape(true);
    return setup;
}

void qlmListBox::widePrintMe(const QString &title, const QStringList &widths)
{
    std::optional<platform::PrinterSetup> setup = getPSetup();
    if (!setup)
        return;
    QStringList columnWidths = widths;
    if (columnWidths.isEmpty()) {
        // The list's own widths; shares ("27%", "*") are worked out on the page's width.
        for (int w : ColumnWidths::resolve(m_model->columnWidths(), columnCount(), setup->width()))
            columnWidths.append(QString::number(w));
    }
    if (setup->width() < ColumnWidths::total(columnWidths)) {
        QString message = QStringLiteral("The output is too wide to fit on one page. "
                                         "Try limiting the number of columns to be printed.");
        if (std::abs(setup->pageLeft()) > 36)
            message += QStringLiteral(" You can also reduce the size of the margins.");
        switch (gShowMsgDlog(message, QStringLiteral("If you continue, the rightmost columns will be cut off."),
                             QStringLiteral("Print"), QStringLiteral("Reset Margins"))) {
        case platform::MsgAction:
            break;
        case platform::MsgAlternate:
            gGetPrinterSetup(setup, true);
            if (!setup)
                return;
            setup->setLandscape(true);
            break;
        default:
            return;
        }
    }
    const QStringList headers = headings();
    printAllCopies(*setup, title, [&](platform::PrintJob &job) {
        return widePrintOneCopy(job, job.setup(), title, headers, columnWidths);
    });
}

void qlmListBox::exportMe(const QString &title)
{
    platform::FileRequest request;
    request.title = QStringLiteral("Export A List");
    request.prompt = QStringLiteral("Choose a location for the exported list.");
    request.suggestedName = title;
    request.nameFilters = {QStringLiteral("Text files (*.txt)"), QStringLiteral("CSV files (*.csv)")};
    request.initialDir = ListBoxText::exportFolder();
    const QString path = ListBoxText::exportFilePath(platform::files().saveFile(request));
    if (path.isEmpty())
        return;
    // Written to a temporary file and renamed over the target when complete,
    // so an existing file is never left half written. A ".csv" name gets the
    // heading and rows as CSV, whose line ends are CR LF everywhere.
    if (QFileInfo(path).suffix().compare(QStringLiteral("csv"), Qt::CaseInsensitive) == 0) {
        QSaveFile csvFile(path);
        if (csvFile.open(QIODevice::WriteOnly)) {
            csvFile.write(ListBoxText::exportCsv(*m_model));
            csvFile.commit();
        }
        return;
    }
    // Text mode gives the platform's line ends.
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Text))
        return;
    file.write(ListBoxText::exportText(*m_model, title).toUtf8());
    file.commit();
}

QString qlmListBox::myDataAsString(const QString &prefix, int skipColumn, bool withTags) const
{
    return ListBoxText::dataAsString(*m_model, prefix, skipColumn, withTags);
}

QString qlmListBox::getMySelections() const
{
    return ListBoxText::selectionsText(*m_model, selectedRows());
}
