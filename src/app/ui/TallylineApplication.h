#pragma once

#include <QApplication>

// The QApplication of the program. An exception that escapes an event
// handler is caught here, shown to the coach, and the program goes on.
class TallylineApplication : public QApplication
{
    Q_OBJECT

public:
    TallylineApplication(int &argc, char **argv);
    bool notify(QObject *receiver, QEvent *event) override;

    // Shows an error that no code handled.
    static void reportUnhandled(const QString &what);
};
