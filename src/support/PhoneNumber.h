#pragma once

// The rules of the phone-number field, apart from any widget: which keys it
// takes, how the digits are gathered from whatever the field holds, and how
// they are shown.

#include <QString>
#include <Qt>

namespace support::phone {

// The most digits the field takes from the keyboard: a digit typed while
// the field already holds more than this many is refused. Pasted text isn't
// cut short.
inline constexpr qsizetype maxTypedDigits = 10;

enum class KeyVerdict {
    Pass,      // the key goes on to the field (editing and moving keys, "-", "(", ")")
    PassDigit, // a digit the field takes; the number changes
    Refuse,    // consumed: nothing reaches the field
};

// What the field does with a key press. `key` and `text` are as a key event
// gives them; `digitsHeld` is how many digits the field holds before the key.
// Keys that put no character in (arrows, Return, Backspace, Delete, Tab,
// Escape) pass, and so do shortcuts with Ctrl or Meta, so that paste, copy
// and undo keep working; of the printable keys only the digits and "-",
// "(" and ")" pass.
KeyVerdict keyDown(int key, const QString &text, Qt::KeyboardModifiers modifiers, qsizetype digitsHeld);

// Every ASCII digit of `text`, in order, and nothing else.
QString gatherDigits(const QString &text);

// The field's text for a number of n digits:
//   0 to 3    555
//   4 to 7    555-1234
//   8 to 10   (614) 555-1234
//   11 up     1 (614) 555-1234
QString format(const QString &digits);

// How many digits stand before `position` in `text`.
qsizetype digitsBefore(const QString &text, qsizetype position);
// The position just past the `count`th digit of `text` (0 for none), so the
// cursor keeps its place among the digits when the text is formatted anew.
qsizetype positionAfterDigits(const QString &text, qsizetype count);

// Where Backspace should act from, for the cursor at `position`: a Backspace
// right behind a separator ("-", " ", "(", ")") skips back over it and takes
// the digit before, since the separator alone would only come back when the
// number is formatted again.
qsizetype backspaceFrom(const QString &text, qsizetype position);

} // namespace support::phone
