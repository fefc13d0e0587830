#include "gameday/ui/PopoverWindow.h"

#include <QApplication>
#include <QEvent>
#include <QWidget>
#include <QWindow>

PopoverWindow::PopoverWindow(QWidget *popover) : QObject(popover), m_popover(popover)
{
    popover->setWindowFlags(Qt::Tool | Qt::FramelessWindowHint);
    popover->installEventFilter(this);
}

bool PopoverWindow::belongsToPopover(QObject *object) const
{
    if (auto *window = qobject_cast<QWindow *>(object))
        return window == m_popover->windowHandle();
    if (auto *widget = qobject_cast<QWidget *>(object))
        return widget->window() == m_popover;
    return false;
}

bool PopoverWindow::eventFilter(QObject *watched, QEvent *event)
{
    if (!m_popover)
        return false;
    if (watched == m_popover) {
        // The application's events are watched only while the popover shows.
        if (event->type() == QEvent::Show)
            qApp->installEventFilter(this);
        else if (event->type() == QEvent::Hide)
            qApp->removeEventFilter(this);
        return false;
    }
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::NonClientAreaMouseButtonPress:
        if (!belongsToPopover(watched)) {
            m_popover->close();
            return true;
        }
        break;
    case QEvent::ApplicationDeactivate:
        m_popover->close();
        break;
    default:
        break;
    }
    return false;
}
