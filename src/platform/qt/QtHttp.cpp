#include "platform/qt/QtHttp.h"

#include <QNetworkReply>
#include <QPointer>
#include <QSaveFile>
#include <QTimer>

#include <memory>

namespace platform::qt {

namespace {

class QtTransfer final : public HttpTransfer
{
public:
    QtTransfer(QNetworkReply *reply, int timeoutMs, std::unique_ptr<QSaveFile> file)
        : m_reply(reply), m_file(std::move(file))
    {
        m_reply->setParent(this);
        if (timeoutMs > 0) {
            // No answer within the limit ends the transfer; data arriving
            // starts the count again.
            m_timer.setSingleShot(true);
            m_timer.setInterval(timeoutMs);
            connect(&m_timer, &QTimer::timeout, this, [this] {
                m_timedOut = true;
                m_reply->abort();
            });
            m_timer.start();
        }
        connect(m_reply, &QNetworkReply::readyRead, this, [this] {
            if (m_timer.isActive())
                m_timer.start();
            const QByteArray chunk = m_reply->readAll();
            if (m_file)
                m_file->write(chunk);
            else
                m_body += chunk;
        });
        connect(m_reply, &QNetworkReply::downloadProgress, this, &HttpTransfer::progress);
        connect(m_reply, &QNetworkReply::finished, this, &QtTransfer::done);
    }

    void failWith(int code)
    {
        m_failed = code;
        m_reply->abort();
    }

    void abort() override
    {
        m_cancelled = true;
        m_reply->abort();
    }

private:
    void done()
    {
        m_timer.stop();
        if (m_file)
            m_file->write(m_reply->readAll());
        else if (m_failed == 0)
            m_body += m_reply->readAll();
        const int status = m_reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
        if (m_failed != 0)
            m_error = m_failed;
        else if (m_reply->error() != QNetworkReply::NoError)
            m_error = status >= 400 ? status : -int(m_reply->error());
        else if (status >= 400)
            m_error = status;
        if (m_file) {
            // Only a whole download becomes the file.
            if (m_error == 0 && !m_cancelled && !m_timedOut) {
                if (!m_file->commit())
                    m_error = -1;
            } else {
                m_file->cancelWriting();
                m_file->commit();
            }
        }
        Q_EMIT finished();
    }

    QNetworkReply *m_reply;
    std::unique_ptr<QSaveFile> m_file;
    QTimer m_timer;
    int m_failed = 0;
};

} // namespace

HttpTransfer *QtHttpService::get(const QUrl &url, int timeoutMs)
{
    QNetworkRequest request(url);
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::NoLessSafeRedirectPolicy);
    return new QtTransfer(m_network.get(request), timeoutMs, nullptr);
}

HttpTransfer *QtHttpService::download(const QUrl &url, const QString &path)
{
    auto file = std::make_unique<QSaveFile>(path);
    const bool writable = file->open(QIODevice::WriteOnly);
    QNetworkRequest request(url);
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::NoLessSafeRedirectPolicy);
    auto *transfer = new QtTransfer(m_network.get(request), 0, writable ? std::move(file) : nullptr);
    // A place that can't be written is reported as the transfer's failure.
    if (!writable)
        transfer->failWith(-1);
    return transfer;
}

} // namespace platform::qt
