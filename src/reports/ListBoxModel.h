#pragma once

#include <QAbstractTableModel>
#include <QColor>
#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

// The contents of a list box: headings, rows of cell texts, a tag per row
// and per cell, check boxes, which cells the user may edit, and the column
// widths text. It is an ordinary table model, so any item view can show it,
// and everything the list prints or exports is read from here without a
// widget.
class ListBoxModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    // How a column's cells behave. A cell can override its column's type,
    // for instance a plain label row in a column of check boxes.
    enum class CellType { Default, Normal, Editable, CheckBox };
    Q_ENUM(CellType)

    // The colour of unselected even rows (row 0, 2, ...).
    static QColor evenRowColor() { return QColor(237, 243, 254); }

    explicit ListBoxModel(QObject *parent = nullptr);

    // Columns. Setting headings widens the list to at least their number.
    void setColumnCount(int count);
    void setHeadings(const QStringList &headings);
    QStringList headings() const; // one per column, empty where none was set
    QString heading(int column) const;
    void setHeading(int column, const QString &text);
    // A heading's tooltip and accessible description.
    void setHeadingDescription(int column, const QString &text);
    // The order a first click on the heading sorts in (ascending unless set).
    void setFirstSortOrder(int column, Qt::SortOrder order);
    Qt::SortOrder firstSortOrder(int column) const { return m_firstOrders.value(column, Qt::AscendingOrder); }
    // The widths as text, "w1,w2,...": points, "n%" of the list's width, or
    // "*" (also "2*") for a share of what is left. Only kept here; the view
    // and the wide printout interpret it.
    QString columnWidths() const { return m_columnWidths; }
    void setColumnWidths(const QString &widths);
    CellType columnType(int column) const;
    void setColumnType(int column, CellType type);
    Qt::Alignment columnAlignment(int column) const;
    void setColumnAlignment(int column, Qt::Alignment alignment);

    // Rows. Missing cells read as empty text; extra cells are kept but not shown.
    int addRow(const QStringList &cells, const QString &tag = {});
    // Adds many rows in one step, tags parallel to rows (may be shorter).
    void addRows(const QList<QStringList> &rows, const QStringList &tags = {});
    using QAbstractTableModel::insertRow;
    void insertRow(int row, const QStringList &cells, const QString &tag = {});
    void deleteAllRows();
    // Moves one row so that it ends up at index `to`; false for a bad index.
    bool moveListRow(int from, int to);

    QString cell(int row, int column) const;
    void setCell(int row, int column, const QString &text);
    QStringList rowCells(int row) const; // exactly columnCount() texts
    QString rowTag(int row) const;
    void setRowTag(int row, const QString &tag);
    QString cellTag(int row, int column) const;
    void setCellTag(int row, int column, const QString &tag);
    bool cellCheck(int row, int column) const;
    void setCellCheck(int row, int column, bool checked);
    CellType cellType(int row, int column) const; // never Default: the column's type applies
    void setCellType(int row, int column, CellType type);
    // Rows may be dragged to a new place (the view reads this).
    bool rowsMovable() const { return m_rowsMovable; }
    void setRowsMovable(bool movable);

    // QAbstractItemModel
    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    bool removeRows(int row, int count, const QModelIndex &parent = {}) override;
    bool moveRows(const QModelIndex &sourceParent, int sourceRow, int count, const QModelIndex &destinationParent,
                  int destinationChild) override;
    // Stable; numbers compare as numbers when both cells read as one,
    // anything else as text without regard to case. Column -1 leaves the order.
    void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;
    Qt::DropActions supportedDropActions() const override;
    // A drag carries the dragged row and which list it left, so a list only
    // takes back its own rows.
    QStringList mimeTypes() const override;
    QMimeData *mimeData(const QModelIndexList &indexes) const override;
    bool canDropMimeData(const QMimeData *data, Qt::DropAction action, int row, int column,
                         const QModelIndex &parent) const override;
    // The row a drag from this very list carries; -1 for anything else.
    int draggedRow(const QMimeData *mime) const;

Q_SIGNALS:
    // The user changed a cell's text or check box through a view (not the
    // program through setCell / setCellCheck).
    void cellEdited(int row, int column);

private:
    struct CellExtra
    {
        QString tag;
        bool checked = false;
        CellType type = CellType::Default;
    };
    struct Row
    {
        QStringList cells;
        QString tag;
        QHash<int, CellExtra> extras; // only for cells that have a tag, a check or a type
    };

    bool validCell(int row, int column) const;
    void ensureColumns(int count);

    QList<Row> m_rows;
    int m_columns = 0;
    QStringList m_headings;
    QString m_columnWidths;
    QHash<int, CellType> m_columnTypes;
    QHash<int, Qt::Alignment> m_alignments;
    QHash<int, QString> m_headingDescriptions;
    QHash<int, Qt::SortOrder> m_firstOrders;
    bool m_rowsMovable = false;
};
