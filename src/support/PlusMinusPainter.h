#pragma once

#include "support/PlusMinusState.h"

#include <QImage>
#include <QRectF>

class QPainter;

namespace support {

// Paints the plus-and-minus pair from its picture: three 45 by 22 strips,
// normal at y = 0, pressed at 22 and disabled at 44 (in the picture's
// device-independent pixels, whatever its device pixel ratio).
class PlusMinusPainter
{
public:
    explicit PlusMinusPainter(QImage picture) : m_picture(std::move(picture)) {}

    // The halves: plus from 0 to 22, minus from one pixel past the middle.
    static QRectF plusHalf() { return {0, 0, 22, PlusMinusState::height}; }
    static QRectF minusHalf() { return {23, 0, 22, PlusMinusState::height}; }

    // The focus outline's colours, outer then inner.
    static QColor focusOuter() { return QColor(171, 184, 198); }
    static QColor focusInner() { return QColor(147, 186, 220); }

    void paint(QPainter &painter, const PlusMinusState &state) const;

private:
    enum Strip { Normal = 0, Down = 1, Disabled = 2 };
    void drawPart(QPainter &painter, Strip strip, const QRectF &part) const;

    QImage m_picture;
};

} // namespace support
