#pragma once

#include "platform/Printing.h"
#include "reports/ListBoxModel.h"

#include <QStringList>
#include <QTreeView>

#include <functional>
#include <optional>

class QKeyEvent;

// The list box of nearly every screen: rows of text cells under headings,
// a tag per row (ids travel there as decimal text) and per cell, check-box
// and editable cells, rows that may be dragged into a new order, and unselected
// even rows shaded. It prints itself in two layouts, exports itself to a text
// file, and hands its rows or its selection on as text.
//
// A view over a ListBoxModel, so thousands of rows fill and paint quickly;
// everything it prints or exports is read from the model.
class qlmListBox : public QTreeView
{
    Q_OBJECT

public:
    using CellType = ListBoxModel::CellType;

    explicit qlmListBox(QWidget *parent = nullptr);
    // A list named for assistive tools, with its headings and column widths.
    static qlmListBox *make(QWidget *parent, const QString &objectName, const QString &accessibleName,
                            const QStringList &headings, const QString &columnWidths);

    ListBoxModel &listModel() { return *m_model; }
    const ListBoxModel &listModel() const { return *m_model; }

    // Columns ---------------------------------------------------------------
    int columnCount() const { return m_model->columnCount(); }
    void setColumnCount(int count) { m_model->setColumnCount(count); }
    void setHeadings(const QStringList &headings) { m_model->setHeadings(headings); }
    QStringList headings() const { return m_model->headings(); }
    QString heading(int column) const { return m_model->heading(column); }
    void setHeading(int column, const QString &text) { m_model->setHeading(column, text); }
    void setHeadingsVisible(bool visible) { setHeaderHidden(!visible); }
    // "w1,w2,...": points, "n%" of the list's width, "*" for a share of the rest.
    QString columnWidths() const { return m_model->columnWidths(); }
    void setColumnWidths(const QString &widths);
    CellType columnType(int column) const { return m_model->columnType(column); }
    void setColumnType(int column, CellType type) { m_model->setColumnType(column, type); }
    void setColumnAlignment(int column, Qt::Alignment alignment) { m_model->setColumnAlignment(column, alignment); }
    // Clicking a heading sorts by that column (off unless a screen allows it).
    void setHeaderSortAllowed(bool allowed);

    // Rows ------------------------------------------------------------------
    int rowCount() const { return m_model->rowCount(); }
    int addRow(const QStringList &cells, const QString &tag = {}) { return m_model->addRow(cells, tag); }
    void addRows(const QList<QStringList> &rows, const QStringList &tags = {}) { m_model->addRows(rows, tags); }
    void insertRow(int row, const QStringList &cells, const QString &tag = {}) { m_model->insertRow(row, cells, tag); }
    void removeRow(int row) { m_model->removeRows(row, 1); }
    void deleteAllRows() { m_model->deleteAllRows(); }
    QString cell(int row, int column) const { return m_model->cell(row, column); }
    void setCell(int row, int column, const QString &text) { m_model->setCell(row, column, text); }
    QStringList rowCells(int row) const { return m_model->rowCells(row); }
    QString rowTag(int row) const { return m_model->rowTag(row); }
    void setRowTag(int row, const QString &tag) { m_model->setRowTag(row, tag); }
    QString cellTag(int row, int column) const { return m_model->cellTag(row, column); }
    void setCellTag(int row, int column, const QString &tag) { m_model->setCellTag(row, column, tag); }
    bool cellCheck(int row, int column) const { return m_model->cellCheck(row, column); }
    void setCellCheck(int row, int column, bool checked) { m_model->setCellCheck(row, column, checked); }
    void setCellType(int row, int column, CellType type) { m_model->setCellType(row, column, type); }
    void sortByColumnText(int column, Qt::SortOrder order) { m_model->sort(column, order); }

    // Selection -------------------------------------------------------------
    // Single selection unless a screen asks for several rows.
    void setMultipleSelection(bool multiple);
    int selectedRow() const;         // the first selected row, -1 for none
    void setSelectedRow(int row);    // -1 clears the selection
    QList<int> selectedRows() const; // in list order
    bool isRowSelected(int row) const;
    void setRowSelected(int row, bool selected);

    // Editing ---------------------------------------------------------------
    // Opens the editor on a cell of an editable column (or cell).
    void editCell(int row, int column);
    bool isEditingCell() const;
    // While a cell is edited, the editor's text.
    QString editorText() const;
    void setEditorText(const QString &text);
    // Sees each key typed into a cell editor first; returning true consumes it.
    using CellKeyHandler = std::function<bool(int row, int column, QKeyEvent *event)>;
    void setCellKeyHandler(CellKeyHandler handler) { m_cellKeyHandler = std::move(handler); }

    // Order -----------------------------------------------------------------
    // Lets the user drag rows into a new order (and move the selected row with
    // Alt+Up / Alt+Down); each move signals rowMoved.
    void setRowsMovable(bool movable);
    bool rowsMovable() const { return m_model->rowsMovable(); }

    // Printing and export ---------------------------------------------------
    // Prints every column with equal widths, in "SmallSystem" when `small`.
    virtual void printMe(const QString &title, bool small);
    // Writes title, headings and rows to a tab-separated text file the user names.
    virtual void exportMe(const QString &title);
    virtual QString myDataAsString(const QString &prefix, int skipColumn, bool withTags) const;
    // Prints in landscape with the given column widths (the list's own when empty).
    virtual void widePrintMe(const QString &title, const QStringList &widths = {});
    virtual QString getMySelections() const;

    // One copy of each printout on an open job, from its current page on.
    bool printOneCopy(platform::PrintJob &job, const platform::PrinterSetup &setup, const QString &title,
                      const QStringList &headers, bool small) const;
    bool widePrintOneCopy(platform::PrintJob &job, const platform::PrinterSetup &setup, const QString &title,
                          const QStringList &headers, const QStringList &widths) const;
    // Asks for a page set-up and turns it to landscape (saying so); none on cancel.
    std::optional<platform::PrinterSetup> getPSetup();

Q_SIGNALS:
    // The selection changed (by the user or the program).
    void rowSelectionChanged();
    void cellClicked(int row, int column);
    void rowDoubleClicked(int row);
    // The user changed a cell's text or check box.
    void cellEdited(int row, int column);
    // The user moved a row from index `from`; it now stands at index `to`.
    void rowMoved(int from, int to);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    bool edit(const QModelIndex &index, EditTrigger trigger, QEvent *event) override;
    void closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint) override;

private:
    void applyColumnWidths();
    bool moveRowByUser(int from, int to);
    int dropRow(const QPoint &position) const;
    void printAllCopies(const platform::PrinterSetup &setup, const QString &title,
                        const std::function<bool(platform::PrintJob &)> &printCopy);

    ListBoxModel *m_model;
    CellKeyHandler m_cellKeyHandler;
    QModelIndex m_editing;
};
