#pragma once

#include <QString>
#include <QStringList>

#include <exception>

// Turns the frames of an error's stack into lines a person can read. A
// frame comes as "name%result%parameters": the dotted routine name (with
// "$" for a routine that extends its first parameter's type, "=" for an
// assigning last parameter, "*" for a parameter array, "#" for an event),
// one result type code or nothing, and the parameter type codes one after
// the other, the receiver first in a method.
namespace StackCleaner {

// The readable lines of `frames`, in order, without the frames that go.
QStringList CleanStack(const QStringList &frames);
// One frame as a line, or an empty string for a frame that goes: the
// program's start-up frames and anything not in the frame form.
QString CleanMangledFunction(const QString &frame);
// The types that `codes` spell, in order: "i8" is "int64", "A2i8" is
// "int64(,)", "&s" is "byref string", "o<Team>" is "Team".
QStringList ParseParams(const QString &codes);

// This program's frames, as the platform gives them (for example
// "tallyline(_ZN10startScrn110openTargetE8ScreenIdb+0x5c) [0x55d3...]"),
// in the frame form above. Frames of other code come back unchanged, and
// so vanish from the cleaned stack.
QString frameFromSymbol(const QString &symbol);
// The current stack in the frame form, innermost first, without this
// function itself.
QStringList currentFrames();

// Notes the stack of `exception` (the thrown object) being thrown; called on
// every throw when the program is linked with the throw trace
// (support/ThrowTrace.cpp).
void recordThrow(const void *exception = nullptr);
// The stack where the last exception on this thread was thrown, in the
// frame form; empty when throws aren't traced.
QStringList framesOfLastThrow();
// The stack where `error` was thrown, in the frame form; empty when that
// isn't known (throws not traced, or the last throw noted was another).
QStringList framesOfThrow(const std::exception_ptr &error);

} // namespace StackCleaner

// The kind of an error, by the name the report gives it, or empty.
QString TypeOfException(const std::exception_ptr &error);
