#pragma once

// The key rule every number field of the program shares: "+" and "-" step
// the value, digits, Tab and Backspace pass, anything else beeps and is
// dropped. Screens that give Return or Escape a meaning of their own look
// at those keys before asking this rule.

#include <QString>
#include <Qt>

namespace support {

enum class NumberKeyAction {
    Pass,     // the key goes on to the field
    StepUp,   // the field's value plus 1 replaces its text; the key is consumed
    StepDown, // the value minus 1 replaces the text; the key is consumed
    Refuse,   // a beep, and the key is consumed
};

struct NumberKeyOptions
{
    // "-" stops at 0 (counts of hits, runs, innings); off where a number may
    // go below 0, as an inventory quantity may.
    bool floorAtZero = true;
    // "." passes too, for the fields that hold innings as 6.2.
    bool allowPoint = false;
};

// What a number field does with a key press. Keys that type nothing and only
// move the cursor or edit (arrows, Home, End, Delete, Return, Escape) pass,
// as do Ctrl and Meta shortcuts, so copying and undo keep working.
NumberKeyAction numberKeyAction(int key, const QString &text, Qt::KeyboardModifiers modifiers,
                                NumberKeyOptions options = {});

// The integer value of a field's text: the number it begins with, cut to a
// whole number; 0 when it begins with none.
int numberFieldValue(const QString &text);

// The text that replaces the field's after a step of `delta`.
QString steppedNumber(const QString &text, int delta, NumberKeyOptions options = {});

} // namespace support
