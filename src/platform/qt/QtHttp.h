#pragma once

#include "platform/Http.h"

#include <QNetworkAccessManager>

namespace platform::qt {

// HTTP through QNetworkAccessManager, on the event loop.
class QtHttpService final : public HttpService
{
public:
    HttpTransfer *get(const QUrl &url, int timeoutMs) override;
    HttpTransfer *download(const QUrl &url, const QString &path) override;

private:
    QNetworkAccessManager m_network;
};

} // namespace platform::qt
