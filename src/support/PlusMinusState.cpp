#include "support/PlusMinusState.h"

namespace support {

bool PlusMinusState::halfEnabled(int half) const
{
    return (half == Plus && plusEnabled) || (half == Minus && minusEnabled);
}

PlusMinusState::Half PlusMinusState::halfAt(qreal x)
{
    return x < width / 2.0 ? Plus : Minus;
}

bool PlusMinusState::press(QPointF pos)
{
    if (!takesInput())
        return false;
    const Half half = halfAt(pos.x());
    if (!halfEnabled(half))
        return false;
    pushPlus = half == Plus;
    pushMinus = half == Minus;
    return true;
}

PlusMinusState::Half PlusMinusState::release(QPointF pos)
{
    Half raised = None;
    const bool insideHeight = pos.y() >= 0 && pos.y() <= height;
    const bool inPlus = pos.x() >= 0 && pos.x() < width / 2.0;
    const bool inMinus = pos.x() >= width / 2.0 && pos.x() <= width;
    if (insideHeight && inPlus && pushPlus)
        raised = Plus;
    else if (insideHeight && inMinus && pushMinus)
        raised = Minus;
    letGo();
    return raised;
}

bool PlusMinusState::tab(bool backwards)
{
    if (!backwards && focusedbutton == Plus && minusEnabled) {
        focusedbutton = Minus;
        return true;
    }
    if (backwards && focusedbutton == Minus && plusEnabled) {
        focusedbutton = Plus;
        return true;
    }
    focusedbutton = None;
    return false;
}

void PlusMinusState::focusIn(bool backwards)
{
    if (backwards)
        focusedbutton = minusEnabled ? Minus : plusEnabled ? Plus : None;
    else
        focusedbutton = plusEnabled ? Plus : minusEnabled ? Minus : None;
}

PlusMinusState::Half PlusMinusState::spacePress()
{
    if (!takesInput() || !halfEnabled(focusedbutton))
        return None;
    pushPlus = focusedbutton == Plus;
    pushMinus = focusedbutton == Minus;
    return Half(focusedbutton);
}

void PlusMinusState::letGo()
{
    pushPlus = false;
    pushMinus = false;
}

void PlusMinusState::setPlusEnabled(bool on)
{
    plusEnabled = on;
    if (!on)
        pushPlus = false;
    keepFocusOnEnabledHalf();
}

void PlusMinusState::setMinusEnabled(bool on)
{
    minusEnabled = on;
    if (!on)
        pushMinus = false;
    keepFocusOnEnabledHalf();
}

void PlusMinusState::keepFocusOnEnabledHalf()
{
    if (focusedbutton != None && !halfEnabled(focusedbutton))
        focusedbutton = plusEnabled ? Plus : minusEnabled ? Minus : None;
}

} // namespace support
