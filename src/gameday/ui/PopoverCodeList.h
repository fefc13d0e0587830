#pragma once

#include <QColor>
#include <QList>
#include <QWidget>

// A small painted table of codes for battingPOP: each cell has its own
// colour, shows a code and stands for a value. A click on a cell, or Return,
// Enter or Space on the current cell (moved by the arrow keys), raises
// picked() with the cell's value.
class PopoverCodeList : public QWidget
{
    Q_OBJECT

public:
    struct Cell
    {
        QString text;
        QString value;
        QString description;
        QColor colour;
    };

    PopoverCodeList(int rows, int columns, QList<Cell> cells, QWidget *parent = nullptr);

    int rows() const { return m_rows; }
    int columns() const { return m_columns; }
    const Cell &cell(int row, int col) const { return m_cells.at(row * m_columns + col); }
    // The cell's rectangle in the widget's coordinates.
    QRect cellRect(int row, int col) const;
    int currentIndex() const { return m_current; }

Q_SIGNALS:
    void picked(const QString &value);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    bool event(QEvent *event) override;

private:
    int indexAt(QPoint point) const;
    void setCurrent(int index);

    int m_rows;
    int m_columns;
    QList<Cell> m_cells;
    int m_current = 0;
};
