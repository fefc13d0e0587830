#include "support/PlusMinusPainter.h"

#include <QPainter>

namespace support {

void PlusMinusPainter::drawPart(QPainter &painter, Strip strip, const QRectF &part) const
{
    // The picture may be kept at a higher density: its strips are measured
    // in device-independent pixels and read in the picture's own.
    const qreal ratio = m_picture.devicePixelRatio();
    const QRectF source(part.x() * ratio, (part.y() + strip * PlusMinusState::height) * ratio, part.width() * ratio,
                        part.height() * ratio);
    painter.drawImage(part, m_picture, source);
}

void PlusMinusPainter::paint(QPainter &painter, const PlusMinusState &state) const
{
    painter.save();
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const QRectF whole(0, 0, PlusMinusState::width, PlusMinusState::height);
    if (state.windowEnabled && state.enabled) {
        drawPart(painter, Normal, whole);
        if (state.pushPlus)
            drawPart(painter, Down, plusHalf());
        if (state.pushMinus)
            drawPart(painter, Down, minusHalf());
        if (!state.plusEnabled)
            drawPart(painter, Disabled, plusHalf());
        if (!state.minusEnabled)
            drawPart(painter, Disabled, minusHalf());
    } else {
        drawPart(painter, Disabled, whole);
    }
    if (state.focusedbutton != PlusMinusState::None) {
        const QRectF half = state.focusedbutton == PlusMinusState::Plus ? plusHalf() : minusHalf();
        // Two one-pixel rings, drawn on pixel centres so they stay crisp.
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(focusOuter(), 1));
        painter.drawRect(half.adjusted(0.5, 0.5, -0.5, -0.5));
        painter.setPen(QPen(focusInner(), 1));
        painter.drawRect(half.adjusted(1.5, 1.5, -1.5, -1.5));
    }
    painter.restore();
}

} // namespace support
