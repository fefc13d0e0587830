#pragma once

#include <QApplication>

#include <exception>
#include <functional>

// The QApplication of the program. An exception that escapes an event
// handler is caught here, shown to the coach, and the program goes on.
class TallylineApplication : public QApplication
{
    Q_OBJECT

public:
    TallylineApplication(int &argc, char **argv);
    bool notify(QObject *receiver, QEvent *event) override;

    // Shows an error that no code handled: through the handler the program
    // installs (the error report window), else as a plain message.
    static void reportUnhandled(const std::exception_ptr &error, const QString &what);

    using UnhandledHandler = std::function<void(const std::exception_ptr &error)>;
    static void setUnhandledHandler(UnhandledHandler handler);
};
