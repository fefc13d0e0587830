#include "support/ui/qlmLabel.h"

#include "support/ui/SupportPictures.h"

#include <QPainter>

qlmLabel::qlmLabel(const QString &text, QWidget *parent)
    : QLabel(text, parent), m_background(support::supportPicture(QStringLiteral("qlmLabelBkg")))
{
    // Size 18 on the original 72-dpi layout: 18 pixels.
    QFont heading = font();
    heading.setPixelSize(18);
    setFont(heading);
}

void qlmLabel::setMyText(const QString &text)
{
    setText(text);
    update();
}

QSize qlmLabel::sizeHint() const
{
    return {fontMetrics().horizontalAdvance(text()) + 24, 28};
}

QSize qlmLabel::minimumSizeHint() const
{
    return {24, 28};
}

void qlmLabel::paintEvent(QPaintEvent *)
{
    QPainter p(this);
    p.setRenderHint(QPainter::SmoothPixmapTransform);
    p.setRenderHint(QPainter::TextAntialiasing);
    p.drawImage(QRectF(rect()), m_background);
    p.setPen(textColour());
    p.setFont(font());
    const qreal textWidth = fontMetrics().horizontalAdvance(text());
    p.drawText(QPointF((width() - textWidth) / 2.0, height() - 6), text());
}
