#include "schedule/MonthEventsCalendar.h"

#include "app/globals.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <numeric>

const QColor MonthEventsCalendar::kSelectedColor = QColor(200, 0, 0);
const QColor MonthEventsCalendar::kStripColor = QColor(124, 144, 210);

namespace {

// The selection wash: a faint grey over the selected day, under its events.
const QColor kWashColor = QColor(200, 200, 200, 90);

QDateTime startOfDay(const QDate &date)
{
    return QDateTime(date, QTime(0, 0));
}

} // namespace

MonthEventsCalendar::MonthEventsCalendar(QObject *parent) : MonthCalendar(parent) {}

QString MonthEventsCalendar::addEvent(const mcEventDataClass &event, const QString &gUID, bool refresh)
{
    mcEventDataClass copy = event;
    copy.gUID = gUID.isEmpty() ? QString::number(event.EventID) : gUID;
    m_events.append(copy);
    if (refresh)
        this->refresh();
    return copy.gUID;
}

int MonthEventsCalendar::indexOfKey(const QString &gUID) const
{
    for (int i = 0; i < m_events.size(); ++i) {
        if (m_events.at(i).gUID == gUID)
            return i;
    }
    return -1;
}

void MonthEventsCalendar::EditEvent(const mcEventDataClass &event, const QString &gUID, bool refresh)
{
    const int i = indexOfKey(gUID);
    if (i < 0)
        return;
    m_events[i] = event;
    // An event handed in without a key keeps the one it was stored under.
    if (event.gUID.isEmpty())
        m_events[i].gUID = gUID;
    if (refresh)
        this->refresh();
}

void MonthEventsCalendar::deleteEvent(const QString &gUID, bool refresh)
{
    const int i = indexOfKey(gUID);
    if (i < 0)
        return;
    m_events.removeAt(i);
    m_selectedEvent = -1;
    if (refresh)
        this->refresh();
}

void MonthEventsCalendar::selectEvent(const QString &gUID)
{
    if (const int i = indexOfKey(gUID); i >= 0)
        m_selectedEvent = i;
    refresh();
}

void MonthEventsCalendar::deselectEvents()
{
    m_selectedEvent = -1;
    refresh();
}

void MonthEventsCalendar::clearEvents()
{
    m_events.clear();
    m_selectedEvent = -1;
    refresh();
}

bool MonthEventsCalendar::isWithin(const QDateTime &start, const QDateTime &end, const QDateTime &date)
{
    if (!date.isValid())
        return false;
    // The ends count whatever their time of day.
    if (date.date() == start.date() || date.date() == end.date())
        return true;
    return start.isValid() && end.isValid() && date >= start && date <= end;
}

MonthEventsCalendar::Layout MonthEventsCalendar::layout() const
{
    Layout out;
    std::array<int, kCells> items{};
    const double unitH = UnitH();
    const double unitV = UnitV();
    const QSizeF bar = barSize();
    const QDateTime monthStart = startOfDay(showingStartDate());
    const QDateTime monthEnd = startOfDay(showingEndDate());

    // A day's bars run by start time, whatever order the events came in.
    QList<int> byStart(m_events.size());
    std::iota(byStart.begin(), byStart.end(), 0);
    std::stable_sort(byStart.begin(), byStart.end(),
                     [this](int a, int b) { return m_events.at(a).startDate < m_events.at(b).startDate; });
    for (int e : byStart) {
        const mcEventDataClass &event = m_events.at(e);
        // Only events that start or end in the month on show are painted,
        // also in the grey days of the grid.
        if (!isWithin(monthStart, monthEnd, event.startDate) && !isWithin(monthStart, monthEnd, event.endDate))
            continue;
        for (int j = 0; j < kCells; ++j) {
            const Cell &cell = cells()[std::size_t(j)];
            if (!isWithin(event.startDate, event.endDate, startOfDay(cell.date)))
                continue;
            const double cellLeft = (cell.column - 1) * unitH;
            const double cellTop = (cell.row - 1) * unitV + heightOfHeader;
            const double y = cellTop + 15 + items[std::size_t(j)] * kBarStep;
            const double limit = cellTop + unitV - 23;
            mcDisplayDataClass record;
            record.eventDate = cell.date.toString(Qt::ISODate);
            record.eventDateID = j;
            ++items[std::size_t(j)];
            if (y > limit) {
                // The foot of the cell: one strip counts every event that
                // didn't fit.
                ++out.overflowed[std::size_t(j)];
                record.x1 = cellLeft;
                record.x2 = cellLeft + unitH;
                record.y1 = cellTop + unitV - kStripHeight;
                record.y2 = record.y1 + kStripHeight;
                record.width = unitH;
                record.height = kStripHeight;
                record.eventID = -1;
                record.moreBox = true;
                out.records.append(record);
                continue;
            }
            record.x1 = cellLeft + 3;
            record.x2 = record.x1 + bar.width();
            record.y1 = y;
            record.y2 = y + bar.height();
            record.width = bar.width();
            record.height = bar.height();
            record.eventID = e;
            record.gUID = event.gUID;
            out.records.append(record);
            if (cell.date == event.endDate.date())
                break;
        }
    }
    return out;
}

QList<mcDisplayDataClass> MonthEventsCalendar::displayData() const
{
    return layout().records;
}

int MonthEventsCalendar::overflowed(int cell) const
{
    if (cell < 0 || cell >= kCells)
        return 0;
    return layout().overflowed[std::size_t(cell)];
}

void MonthEventsCalendar::press(const QPointF &point, bool contextual, bool doubleClick)
{
    // A press answers for what was on the screen when it fell, before a
    // press on a grey day turns the month.
    const QList<mcDisplayDataClass> shown = displayData();
    if (!pressDate(point))
        return;
    m_isDoubleClick = doubleClick;
    m_moreSelected = false;

    bool hit = false;
    for (const mcDisplayDataClass &record : shown) {
        if (!record.contains(point.x(), point.y()))
            continue;
        if (!record.moreBox) {
            hit = true;
            m_selectedEvent = int(record.eventID);
            const mcEventDataClass event = m_events.at(m_selectedEvent);
            if (!doubleClick) {
                if (contextual)
                    Q_EMIT rightClickOnEvent(event);
                else
                    Q_EMIT eventClicked(event);
            }
            refresh();
            break;
        }
        // A strip holds one record for each event it stands for, all with
        // the same box: the press is told once.
        if (m_moreSelected)
            continue;
        hit = true;
        m_moreSelected = true;
        m_selectedEvent = -1;
        const QDate date = QDate::fromString(record.eventDate, Qt::ISODate);
        if (!doubleClick) {
            if (contextual)
                Q_EMIT rightClickOnMore(dateSelected());
            else
                Q_EMIT moreClicked(date);
        } else {
            Q_EMIT moreDoubleClicked(date);
        }
        refresh();
    }
    if (hit)
        return;
    if (contextual)
        Q_EMIT rightClickOnDate(dateSelected());
    m_selectedEvent = -1;
    refresh();
    Q_EMIT noEventSelected();
}

void MonthEventsCalendar::release()
{
    if (!m_isDoubleClick)
        return;
    m_isDoubleClick = false;
    if (m_selectedEvent > -1)
        Q_EMIT eventDoubleClicked(m_events.at(m_selectedEvent));
    else if (!m_moreSelected)
        Q_EMIT doubleClickedOnDate(dateSelected());
}

void MonthEventsCalendar::returnKey()
{
    if (dateSelected().isValid() && m_selectedEvent == -1)
        Q_EMIT returnKeyOnDate(dateSelected());
    else if (m_selectedEvent > -1)
        Q_EMIT returnKeyOnEvent(m_events.at(m_selectedEvent));
}

void MonthEventsCalendar::moveDate(int days)
{
    const QDate date = dateSelected().addDays(days);
    ShowDate(date);
    Q_EMIT dateClicked(dateSelected());
    m_selectedEvent = -1;
    m_moreSelected = false;
    refresh();
    Q_EMIT noEventSelected();
}

void MonthEventsCalendar::selectNextEventOfDay()
{
    const QString day = dateSelected().toString(Qt::ISODate);
    QList<int> events;
    for (const mcDisplayDataClass &record : displayData()) {
        if (!record.moreBox && record.eventDate == day)
            events.append(int(record.eventID));
    }
    if (events.isEmpty())
        return;
    const int at = events.indexOf(m_selectedEvent);
    m_selectedEvent = events.at((at + 1) % events.size());
    m_moreSelected = false;
    Q_EMIT eventClicked(m_events.at(m_selectedEvent));
    refresh();
}

void MonthEventsCalendar::paint(QPainter &painter, const QFont &font) const
{
    MonthCalendar::paint(painter, font);
    painter.save();

    const QDate washed = QDate::fromString(userSelectedDate(), Qt::ISODate);
    if (washed.isValid() && washed.month() == showingStartDate().month() &&
        washed.year() == showingStartDate().year()) {
        const double x = unitX() * UnitH() - UnitH();
        const double y = unitY() * UnitV() - (UnitV() - heightOfHeader);
        painter.fillRect(QRectF(x + 1, y + 1, UnitH() - 1, UnitV() - 1), kWashColor);
    }

    const Layout shown = layout();
    QFont stripFont = font;
    stripFont.setPixelSize(10);
    for (const mcDisplayDataClass &record : shown.records) {
        if (!record.moreBox) {
            paintBar(painter, font, record);
            continue;
        }
        // Inside the cell's frame, so the grid lines stay whole.
        painter.fillRect(QRectF(record.x1 + 1, record.y1, record.width - 1, record.height), kStripColor);
        painter.setFont(stripFont);
        painter.setPen(Qt::white);
        painter.drawText(QPointF(record.x1 + 5, record.y1 + 9),
                         QStringLiteral("More (%1)...").arg(shown.overflowed[std::size_t(record.eventDateID)]));
    }
    painter.restore();
}

void MonthEventsCalendar::paintBar(QPainter &painter, const QFont &font, const mcDisplayDataClass &record) const
{
    const mcEventDataClass &event = m_events.at(int(record.eventID));
    const bool selected = record.eventID == m_selectedEvent;
    const QRectF box(record.x1, record.y1, record.width, record.height);
    painter.save();
    painter.setClipRect(box);
    QColor text = event.eventColor;
    if (selected) {
        painter.fillRect(box, kSelectedColor);
        text = Qt::white;
    }
    if (event.allDay) {
        painter.setRenderHint(QPainter::Antialiasing, true);
        painter.setPen(Qt::NoPen);
        painter.setBrush(selected ? kSelectedColor : event.eventColor);
        painter.drawRoundedRect(box, 6, 6);
        text = Qt::white;
    }
    QFont barFont = font;
    barFont.setPixelSize(11);
    const QFontMetricsF metrics(barFont);
    const QString bullet = QStringLiteral("• ");
    // Cut to the bar, so a long subject ends in "..." rather than at the edge.
    const QString subject = TruncateStr(metrics, event.subject, record.width - metrics.horizontalAdvance(bullet));
    painter.setFont(barFont);
    painter.setPen(text);
    painter.drawText(QPointF(record.x1, record.y1 + 10), bullet + subject);
    painter.restore();
}
