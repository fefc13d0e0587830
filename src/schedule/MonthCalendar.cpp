#include "schedule/MonthCalendar.h"

#include "app/globals.h"
#include "platform/Services.h"

#include <QFontMetricsF>
#include <QLocale>
#include <QPainter>
#include <algorithm>
#include <cmath>

const QColor MonthCalendar::colorHeadingLines = QColor(197, 197, 197);
const QColor MonthCalendar::ColorLine = QColor(197, 197, 197);
const QColor MonthCalendar::ColorTextDayName = QColor(0, 0, 0);
const QColor MonthCalendar::ColorTextOtherMonth = QColor(198, 198, 198);
const QColor MonthCalendar::ColorTextThisMonth = QColor(64, 64, 64);
const QColor MonthCalendar::ColorTextToday = QColor(64, 64, 64);
const QColor MonthCalendar::ColorWeekday = QColor(255, 255, 255);
const QColor MonthCalendar::colorWeekend = QColor(255, 255, 255);
const QColor MonthCalendar::colorToday = QColor(237, 243, 250);

namespace {

QFont sized(QFont font, int pixels, bool bold = false)
{
    font.setPixelSize(pixels);
    font.setBold(bold);
    return font;
}

// Column 1 is Sunday; Qt numbers Monday 1 to Sunday 7.
int qtDayOfColumn(int column)
{
    return column == 1 ? 7 : column - 1;
}

} // namespace

MonthCalendar::MonthCalendar(QObject *parent) : QObject(parent)
{
    const QDate now = today();
    m_dateSelected = now;
    ShowMonth(now.year(), now.month());
}

QDate MonthCalendar::today()
{
    return platform::clock().now().date();
}

int MonthCalendar::daysInMonth(int month, int year)
{
    switch (month) {
    case 1:
    case 3:
    case 5:
    case 7:
    case 8:
    case 10:
    case 12:
        return 31;
    case 4:
    case 6:
    case 9:
    case 11:
        return 30;
    case 2:
        return (year % 4 == 0 && (year % 400 == 0 || year % 100 != 0)) ? 29 : 28;
    default:
        return 0;
    }
}

void MonthCalendar::ShowMonth(int year, int month)
{
    if (year == 0 || month == 0 || daysInMonth(month, year) == 0)
        return;
    m_year = year;
    m_month = month;
    const int day = m_dateSelected.isValid() ? m_dateSelected.day() : today().day();
    m_dateSelected = QDate(year, month, std::min(day, daysInMonth(month, year)));
    fillCells();
    if (indexOf(m_dateSelected) >= 0) {
        m_showingStart = QDate(year, month, 1);
        m_showingEnd = QDate(year, month, daysInMonth(month, year));
    }
    refresh();
}

void MonthCalendar::fillCells()
{
    // The grid starts on the Sunday before the 1st; a month that starts on
    // a Sunday shows the whole week before it, so the first row always
    // holds a day of the month before.
    const QDate first(m_year, m_month, 1);
    const int weekday = first.dayOfWeek() % 7 + 1; // 1 Sunday ... 7 Saturday
    QDate date = first.addDays(weekday == 1 ? -7 : -(weekday - 1));
    for (int i = 0; i < kCells; ++i) {
        Cell &cell = m_cells[std::size_t(i)];
        cell.date = date;
        cell.row = i / numberOfCol + 1;
        cell.column = i % numberOfCol + 1;
        cell.thisMonth = date.month() == m_month && date.year() == m_year;
        cell.weekend = cell.column == 1 || cell.column == 7;
        date = date.addDays(1);
    }
}

int MonthCalendar::indexOf(const QDate &date) const
{
    for (int i = 0; i < kCells; ++i) {
        if (m_cells[std::size_t(i)].date == date)
            return i;
    }
    return -1;
}

void MonthCalendar::ShowDate(const QDate &date)
{
    if (!date.isValid()) {
        ShowMonth(m_year, m_month);
        return;
    }
    if (date.month() != m_month || date.year() != m_year)
        ShowMonth(date.year(), date.month());
    const int i = indexOf(date);
    if (i < 0)
        return;
    const Cell &cell = m_cells[std::size_t(i)];
    m_unitX = cell.column;
    m_unitY = cell.row;
    m_dateSelected = date;
    m_userSelectedDate = date.toString(Qt::ISODate);
    refresh();
}

void MonthCalendar::setSize(const QSizeF &size)
{
    if (size == m_size)
        return;
    m_size = size;
    refresh();
}

double MonthCalendar::UnitH() const
{
    return std::max(0.0, (m_size.width() - 1) / numberOfCol);
}

double MonthCalendar::UnitV() const
{
    return std::max(0.0, std::floor((m_size.height() - heightOfHeader - 1) / numberOfRow));
}

QRectF MonthCalendar::cellRect(int index) const
{
    if (index < 0 || index >= kCells)
        return {};
    const Cell &cell = m_cells[std::size_t(index)];
    return {(cell.column - 1) * UnitH(), heightOfHeader + (cell.row - 1) * UnitV(), UnitH(), UnitV()};
}

std::optional<int> MonthCalendar::cellAt(const QPointF &point) const
{
    if (point.y() <= heightOfHeader || point.x() < 0 || UnitH() <= 0 || UnitV() <= 0)
        return std::nullopt;
    const int column = int(std::floor(point.x() / UnitH())) + 1;
    const int row = int(std::floor((point.y() - heightOfHeader) / UnitV())) + 1;
    // Past the seventh column the index would wrap into the next week, and
    // below the sixth row it would pass the last cell: such a press is off
    // the grid.
    if (column > numberOfCol || row > numberOfRow)
        return std::nullopt;
    return (row - 1) * numberOfCol + column - 1;
}

QString MonthCalendar::title() const
{
    const QLocale locale;
    return locale.standaloneMonthName(m_dateSelected.month(), QLocale::LongFormat) + u' ' +
           QString::number(m_dateSelected.year());
}

std::optional<int> MonthCalendar::pressDate(const QPointF &point)
{
    const std::optional<int> index = cellAt(point);
    if (!index)
        return std::nullopt;
    const QDate date = m_cells[std::size_t(*index)].date;
    if (!date.isValid())
        return std::nullopt;
    ShowDate(date);
    Q_EMIT dateClicked(m_dateSelected);
    return index;
}

void MonthCalendar::paint(QPainter &painter, const QFont &font) const
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    paintGrid(painter, font);
    paintHeader(painter, font);
    painter.restore();
}

void MonthCalendar::paintHeader(QPainter &painter, const QFont &font) const
{
    const double width = m_size.width();
    painter.fillRect(QRectF(0, 0, width, heightOfHeader + 1), TLThemeColorLight);
    painter.setPen(QPen(ColorLine, 0));
    painter.drawRect(QRectF(0, 0, width - 1, heightOfHeader));

    const QFont titleFont = sized(font, 14, true);
    painter.setFont(titleFont);
    painter.setPen(Qt::black);
    const QString text = title();
    painter.drawText(QPointF(width / 2 - QFontMetricsF(titleFont).horizontalAdvance(text) / 2, 20), text);

    // One test for the whole row: if any full name is too wide for its
    // column, all seven are abbreviated.
    const QFont dayFont = sized(font, 12);
    const QFontMetricsF metrics(dayFont);
    const QLocale locale;
    bool abbreviate = false;
    for (int column = 1; column <= numberOfCol; ++column) {
        if (metrics.horizontalAdvance(locale.standaloneDayName(qtDayOfColumn(column), QLocale::LongFormat)) >= UnitH())
            abbreviate = true;
    }
    painter.setFont(dayFont);
    painter.setPen(ColorTextDayName);
    for (int column = 1; column <= numberOfCol; ++column) {
        const QString name = locale.standaloneDayName(qtDayOfColumn(column),
                                                      abbreviate ? QLocale::ShortFormat : QLocale::LongFormat);
        const double x = UnitH() * (column - 1) + UnitH() / 2 - metrics.horizontalAdvance(name) / 2;
        painter.drawText(QPointF(x, heightOfHeader - 2 * metrics.height() / 3 + 4), name);
    }
    painter.setPen(QPen(ColorLine, 0));
    painter.drawLine(QPointF(0, heightOfHeader), QPointF(width, heightOfHeader));
}

void MonthCalendar::paintGrid(QPainter &painter, const QFont &font) const
{
    const double unitH = UnitH();
    const double unitV = UnitV();
    const double top = heightOfHeader;
    painter.fillRect(QRectF(0, top, numberOfCol * unitH, numberOfRow * unitV), ColorWeekday);
    painter.fillRect(QRectF(0, top, unitH, numberOfRow * unitV), colorWeekend);
    painter.fillRect(QRectF(6 * unitH, top, unitH, numberOfRow * unitV), colorWeekend);

    const QFont dayFont = sized(font, 12);
    const QFontMetricsF metrics(dayFont);
    painter.setFont(dayFont);
    const QDate now = today();
    for (int i = 0; i < kCells; ++i) {
        const Cell &cell = m_cells[std::size_t(i)];
        const double left = (cell.column - 1) * unitH;
        const double cellTop = top + (cell.row - 1) * unitV;
        QColor text = cell.thisMonth ? ColorTextThisMonth : ColorTextOtherMonth;
        if (cell.date == now) {
            painter.fillRect(QRectF(left + 1, cellTop + 1, unitH - 1, unitV - 1), colorToday);
            text = ColorTextToday;
        }
        const QString number = QString::number(cell.date.day());
        painter.setPen(text);
        painter.drawText(QPointF(left + unitH - (metrics.horizontalAdvance(number) + 3),
                                 cellTop + 2 * metrics.height() / 3 + 3),
                         number);
    }

    painter.setPen(QPen(ColorLine, 0));
    const double right = numberOfCol * unitH;
    const double bottom = top + numberOfRow * unitV;
    for (int row = 0; row <= numberOfRow; ++row)
        painter.drawLine(QPointF(0, top + row * unitV), QPointF(right, top + row * unitV));
    for (int column = 0; column <= numberOfCol; ++column)
        painter.drawLine(QPointF(column * unitH, top), QPointF(column * unitH, bottom));
}
