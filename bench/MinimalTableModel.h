#pragma once

// The leanest table model Qt allows: rows of texts and a heading row, shown
// as they are, filled in one step. The benchmarks' baseline for a list.

#include <QAbstractTableModel>
#include <QStringList>

namespace bench {

class MinimalTableModel : public QAbstractTableModel
{
public:
    void setRows(QStringList headings, QList<QStringList> rows)
    {
        beginResetModel();
        m_headings = std::move(headings);
        m_rows = std::move(rows);
        endResetModel();
    }

    int rowCount(const QModelIndex &parent = {}) const override { return parent.isValid() ? 0 : int(m_rows.size()); }
    int columnCount(const QModelIndex &parent = {}) const override
    {
        return parent.isValid() ? 0 : int(m_headings.size());
    }
    QVariant data(const QModelIndex &index, int role) const override
    {
        if (role != Qt::DisplayRole || !index.isValid())
            return {};
        return m_rows.at(index.row()).value(index.column());
    }
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override
    {
        if (role != Qt::DisplayRole || orientation != Qt::Horizontal)
            return {};
        return m_headings.value(section);
    }

private:
    QStringList m_headings;
    QList<QStringList> m_rows;
};

} // namespace bench
