#pragma once

#include <QString>
#include <QWidget>

#include <functional>

// Where the start screen finds the windows it opens. Each subsystem's
// window is registered by name ("teamScrn", "scheduleScrn", ...) by the
// program's entry point, so the start screen needn't link every subsystem
// and the subsystems can come back to the start screen without a loop in
// the libraries. A button or menu item whose window isn't registered is
// disabled.
namespace screens {

using Factory = std::function<QWidget *()>;

void registerScreen(const QString &name, Factory factory);
void unregisterScreen(const QString &name);
bool has(const QString &name);
// A new window of that name, or nullptr when none is registered. The caller
// shows it; windows delete themselves on close.
QWidget *create(const QString &name);

} // namespace screens
