#pragma once

#include <QObject>
#include <QUrl>

namespace platform {

// One HTTP transfer under way. It reports on the event loop and never
// blocks: `progress` as bytes arrive, `finished` once, whether the transfer
// succeeded, failed, timed out or was cancelled.
class HttpTransfer : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    // Stops the transfer; `finished` follows with `cancelled()` true. A
    // download then leaves no file behind.
    virtual void abort() = 0;

    // After `finished`: 0 on success, else the HTTP status or a negative
    // network error code to show the coach.
    int errorCode() const { return m_error; }
    bool timedOut() const { return m_timedOut; }
    bool cancelled() const { return m_cancelled; }
    // The body of a GET; empty for a download.
    const QByteArray &body() const { return m_body; }

Q_SIGNALS:
    void progress(qint64 received, qint64 total);
    void finished();

protected:
    int m_error = 0;
    bool m_timedOut = false;
    bool m_cancelled = false;
    QByteArray m_body;
};

class HttpService
{
public:
    virtual ~HttpService() = default;
    // Fetches `url`; gives up after `timeoutMs` without an answer. The
    // transfer belongs to the caller (delete it after `finished`).
    virtual HttpTransfer *get(const QUrl &url, int timeoutMs) = 0;
    // Fetches `url` into `path`: the file appears, complete, only when the
    // transfer succeeded.
    virtual HttpTransfer *download(const QUrl &url, const QString &path) = 0;
};

} // namespace platform
