#include "schedule/ui/monthlyEventsLayer.h"

#include "schedule/EventDates.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

monthlyEventsLayer::monthlyEventsLayer(QWidget *parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("monthlyEventsLayer"));
    setAccessibleName(tr("Month calendar"));
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    connect(&m_calendar, &MonthCalendar::changed, this, [this] {
        describe();
        update();
    });
    resize(sizeHint());
    m_calendar.setSize(size());
    describe();
}

void monthlyEventsLayer::describe()
{
    // What a screen reader says of the canvas: the month, the selected day
    // and the selected event.
    QString text = m_calendar.title() + QStringLiteral(", ") + EventDates::longDate(m_calendar.dateSelected());
    if (m_calendar.selectedEvent() >= 0)
        text += QStringLiteral(", ") + m_calendar.eventData().at(m_calendar.selectedEvent()).subject;
    setAccessibleDescription(text);
}

void monthlyEventsLayer::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);
    m_calendar.paint(painter, font());
    if (hasFocus()) {
        // The keyboard's day gets a dotted frame.
        const QRectF cell = m_calendar.cellRect(m_calendar.indexOf(m_calendar.dateSelected()));
        painter.setPen(QPen(Qt::black, 1, Qt::DotLine));
        painter.drawRect(cell.adjusted(2, 2, -2, -2));
    }
}

void monthlyEventsLayer::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    m_calendar.setSize(size());
}

void monthlyEventsLayer::mousePressEvent(QMouseEvent *event)
{
    m_calendar.press(event->position(), event->button() == Qt::RightButton, false);
    event->accept();
}

void monthlyEventsLayer::mouseDoubleClickEvent(QMouseEvent *event)
{
    // The second press of a double click, within the desktop's double-click
    // time and distance.
    m_calendar.press(event->position(), event->button() == Qt::RightButton, true);
    event->accept();
}

void monthlyEventsLayer::mouseReleaseEvent(QMouseEvent *event)
{
    m_calendar.release();
    event->accept();
}

void monthlyEventsLayer::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Left:
        m_calendar.moveDate(-1);
        return;
    case Qt::Key_Right:
        m_calendar.moveDate(1);
        return;
    case Qt::Key_Up:
        m_calendar.moveDate(-7);
        return;
    case Qt::Key_Down:
        m_calendar.moveDate(7);
        return;
    case Qt::Key_PageUp:
    case Qt::Key_PageDown: {
        const QDate month = m_calendar.dateSelected().addMonths(event->key() == Qt::Key_PageUp ? -1 : 1);
        m_calendar.ShowMonth(month.year(), month.month());
        return;
    }
    case Qt::Key_Space:
        m_calendar.selectNextEventOfDay();
        return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        m_calendar.returnKey();
        // The window hears the key too.
        event->ignore();
        return;
    default:
        QWidget::keyPressEvent(event);
    }
}
