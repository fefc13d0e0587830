#include "support/HelpRequests.h"

#include <QMetaMethod>

namespace support {

HelpRequests &HelpRequests::instance()
{
    static HelpRequests requests;
    return requests;
}

bool HelpRequests::isAnswered() const
{
    return isSignalConnected(QMetaMethod::fromSignal(&HelpRequests::requested));
}

void HelpRequests::ask(int topic)
{
    Q_EMIT requested(topic);
}

void HelpRequests::connectNotify(const QMetaMethod &signal)
{
    if (signal == QMetaMethod::fromSignal(&HelpRequests::requested))
        Q_EMIT answeredChanged(isAnswered());
}

void HelpRequests::disconnectNotify(const QMetaMethod &signal)
{
    // Also reached with an invalid method when everything is disconnected.
    // The connection is still counted while this runs, so the news goes out
    // from the event loop, once it is really gone.
    if (!signal.isValid() || signal == QMetaMethod::fromSignal(&HelpRequests::requested)) {
        QMetaObject::invokeMethod(
            this, [this] { Q_EMIT answeredChanged(isAnswered()); }, Qt::QueuedConnection);
    }
}

} // namespace support
