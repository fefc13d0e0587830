#pragma once

// The state of the plus-and-minus button pair and its rules for presses,
// releases, Tab and Space, apart from the widget that paints it. Positions
// are in the control's pixels; the pair is 45 by 22.

#include <QPointF>

namespace support {

class PlusMinusState
{
public:
    enum Half { None = 0, Plus = 1, Minus = 2 };

    static constexpr int width = 45;
    static constexpr int height = 22;

    int focusedbutton = None; // the half the keyboard is on
    bool plusEnabled = true;  // each half can be turned off by itself
    bool minusEnabled = true;
    bool pushPlus = false; // the half being pressed
    bool pushMinus = false;
    bool windowEnabled = true; // false while the window is in the background
    bool enabled = true;       // the control as a whole

    // Presses are taken only while both the control and its window are.
    bool takesInput() const { return enabled && windowEnabled; }
    bool halfEnabled(int half) const;
    // The half under x: plus left of the middle, minus from it on.
    static Half halfAt(qreal x);

    // A mouse press at `pos`. Pressing an enabled half shows it pressed;
    // returns true when the look changed.
    bool press(QPointF pos);
    // The mouse let go at `pos`: the half to raise, or None when the release
    // is outside the control, in the other half, or follows no press. Both
    // halves show released afterwards.
    Half release(QPointF pos);

    // Tab (or Shift+Tab when `backwards`) with the focus in the pair: true
    // when the key only moves between the halves, false when it should take
    // the focus on to the next control (the pair then has none).
    bool tab(bool backwards);
    // The pair got the focus: onto the first enabled half, or the last when
    // it came backwards.
    void focusIn(bool backwards = false);
    void focusOut() { focusedbutton = None; }

    // Space on the focused half: shows it pressed and returns it, for the
    // caller to raise its event and let go after a moment; None when no
    // enabled half has the focus.
    Half spacePress();
    // Shows both halves released.
    void letGo();

    // Turning a half off moves the keyboard off it.
    void setPlusEnabled(bool on);
    void setMinusEnabled(bool on);

private:
    void keepFocusOnEnabledHalf();
};

} // namespace support
