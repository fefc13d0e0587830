#include "people/ui/PictureCanvas.h"

#include "app/globals.h"
#include "people/Pictures.h"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QPainter>

PictureCanvas::PictureCanvas(const QImage &standIn, QWidget *parent) : QWidget(parent), m_standIn(standIn)
{
    setAcceptDrops(true);
    setMinimumSize(96, 96);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void PictureCanvas::setPicture(const QImage &picture)
{
    m_picture = picture;
    update();
}

QSize PictureCanvas::sizeHint() const
{
    return {150, 150};
}

void PictureCanvas::paintEvent(QPaintEvent *)
{
    QPainter p(this);
    p.setRenderHint(QPainter::SmoothPixmapTransform);
    p.setPen(QPen(palette().color(QPalette::Mid), 1));
    p.drawRect(rect().adjusted(0, 0, -1, -1));
    const QImage &shown = shownPicture();
    if (shown.isNull())
        return;
    const QRect inner = rect().adjusted(2, 2, -2, -2);
    const QSize scaled = shown.size().scaled(inner.size(), Qt::KeepAspectRatio);
    const QRect target(
        inner.topLeft() + QPoint((inner.width() - scaled.width()) / 2, (inner.height() - scaled.height()) / 2), scaled);
    p.drawImage(target, shown);
}

void PictureCanvas::dragEnterEvent(QDragEnterEvent *event)
{
    if (people::mayCarryPicture(event->mimeData()))
        event->acceptProposedAction();
}

void PictureCanvas::dropEvent(QDropEvent *event)
{
    const QImage dropped = people::pictureFromMime(event->mimeData());
    if (dropped.isNull()) {
        // A file that isn't a picture: refused with the alert sound.
        gBeep();
        return;
    }
    event->acceptProposedAction();
    setPicture(dropped);
    Q_EMIT pictureDropped();
}
