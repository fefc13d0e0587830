#pragma once

#include <QColor>
#include <QDate>
#include <QFont>
#include <QObject>
#include <QRectF>
#include <QSizeF>
#include <QString>
#include <array>
#include <optional>

class QPainter;

// A month on a canvas: a title band with the month's name and the day
// names, and a grid of six weeks of seven days, Sunday first. It keeps which
// month is on show and which date the user has on hand, turns a press into a
// date, and paints itself on any QPainter, so the screen and the printout
// draw alike. It knows nothing of windows or of the database.
//
// Geometry follows the size given by setSize(): the header band is 55 high,
// a cell is (width - 1) / 7 wide and a whole number of pixels high.
class MonthCalendar : public QObject
{
    Q_OBJECT

public:
    static constexpr int kCells = 42;
    static constexpr int numberOfCol = 7;
    static constexpr int numberOfRow = 6;
    static constexpr double heightOfHeader = 55;

    // One day of the grid. Cell 0 is the top left, cells run row by row.
    struct Cell
    {
        QDate date;
        int column = 0; // 1 (Sunday) to 7 (Saturday)
        int row = 0;    // 1 to 6
        bool thisMonth = false;
        bool weekend = false;
    };

    // Shows the month of today (from the platform clock).
    explicit MonthCalendar(QObject *parent = nullptr);

    static int daysInMonth(int month, int year);

    int MonthToShow() const { return m_month; }
    int YearToShow() const { return m_year; }
    // The date the user has on hand; the title shows its month.
    QDate dateSelected() const { return m_dateSelected; }
    // The date that carries the selection wash, YYYY-MM-DD; blank until
    // ShowDate has shown one.
    QString userSelectedDate() const { return m_userSelectedDate; }
    int unitX() const { return m_unitX; }
    int unitY() const { return m_unitY; }
    // The first and last day of the month on show (not of the grid).
    QDate showingStartDate() const { return m_showingStart; }
    QDate showingEndDate() const { return m_showingEnd; }
    const std::array<Cell, kCells> &cells() const { return m_cells; }

    // Makes that month the one on show; the selected date keeps its day,
    // brought down to the month's last day. A year or month of 0 changes
    // nothing.
    void ShowMonth(int year, int month);
    // Moves the selection to a date, turning the month if need be. An
    // invalid date only repaints.
    void ShowDate(const QDate &date);

    void setSize(const QSizeF &size);
    QSizeF size() const { return m_size; }
    double UnitH() const;
    double UnitV() const;
    double heightOfCalendar() const { return numberOfRow * UnitV() + 1; }
    QRectF cellRect(int index) const;
    // The cell under a point, or nothing on the header band and outside the
    // six weeks (a press on the last pixel column or below the last row).
    std::optional<int> cellAt(const QPointF &point) const;
    int indexOf(const QDate &date) const;

    // "April 2026", in the user's language.
    QString title() const;

    // A press: a press on a day selects it (turning the month for a grey day
    // of the month before or after) and raises dateClicked. Gives the cell
    // that was pressed.
    std::optional<int> pressDate(const QPointF &point);

    // Paints the title band and the grid. `font` gives the family; the
    // sizes are the calendar's own, in painter units.
    virtual void paint(QPainter &painter, const QFont &font) const;

    static const QColor colorHeadingLines;
    static const QColor ColorLine;
    static const QColor ColorTextDayName;
    static const QColor ColorTextOtherMonth;
    static const QColor ColorTextThisMonth;
    static const QColor ColorTextToday;
    static const QColor ColorWeekday;
    static const QColor colorWeekend;
    static const QColor colorToday;

Q_SIGNALS:
    void dateClicked(const QDate &date);
    // What the calendar shows has changed; a view repaints.
    void changed();

protected:
    static QDate today();
    void refresh() { Q_EMIT changed(); }

private:
    void fillCells();
    void paintHeader(QPainter &painter, const QFont &font) const;
    void paintGrid(QPainter &painter, const QFont &font) const;

    int m_year = 0;
    int m_month = 0;
    QDate m_dateSelected;
    QString m_userSelectedDate;
    int m_unitX = 0;
    int m_unitY = 0;
    QDate m_showingStart;
    QDate m_showingEnd;
    std::array<Cell, kCells> m_cells{};
    QSizeF m_size{1, 1};
};
