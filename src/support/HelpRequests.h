#pragma once

#include <QObject>

namespace support {

// Where the help buttons of every screen ask for help at a topic. The help
// window listens here once for the whole program; while nothing listens the
// buttons show disabled, and a request made anyway is simply not answered.
class HelpRequests : public QObject
{
    Q_OBJECT

public:
    static HelpRequests &instance();

    // True while something listens to `requested`.
    bool isAnswered() const;
    // Asks for the help topic `topic` (the help window's numbering).
    void ask(int topic);

Q_SIGNALS:
    void requested(int topic);
    // Something began or stopped listening to `requested`.
    void answeredChanged(bool answered);

protected:
    void connectNotify(const QMetaMethod &signal) override;
    void disconnectNotify(const QMetaMethod &signal) override;

private:
    HelpRequests() = default;
};

} // namespace support
