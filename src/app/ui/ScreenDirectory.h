#pragma once

#include "app/ui/ScreenId.h"

#include <QVariant>
#include <QWidget>

#include <functional>

// Where a window finds the windows it opens. Each subsystem's window is
// registered under its ScreenId by the program's entry point, so the start
// screen needn't link every subsystem and the subsystems can come back to
// the start screen without a loop in the libraries. A button or menu item
// whose window isn't registered is disabled.
namespace screens {

// Makes the window; `argument` is what the opener passes (an event id, a
// help topic), or an invalid QVariant.
using Factory = std::function<QWidget *(const QVariant &argument)>;

void registerScreen(ScreenId id, const Factory &factory);
// For windows that take no argument.
void registerScreen(ScreenId id, std::function<QWidget *()> factory);
void unregisterScreen(ScreenId id);
bool has(ScreenId id);
// A new window of that id, or nullptr when none is registered. The caller
// shows it; windows delete themselves on close.
QWidget *create(ScreenId id, const QVariant &argument = {});

// The start screen, which a closing screen comes back to: set by the start
// screen itself, so that the screens it opens needn't know it.
void setHome(std::function<void()> show);
// Shows the start screen, when there is one.
void goHome();

} // namespace screens
