#include "support/cAutoUpdate.h"

#include "platform/Services.h"
#include "support/UpdateCheck.h"

#ifndef TALLYLINE_UPDATE_URL
#define TALLYLINE_UPDATE_URL ""
#endif

cAutoUpdate::cAutoUpdate(QObject *parent) : QObject(parent), documentUrl(QStringLiteral(TALLYLINE_UPDATE_URL))
{
    m_limit.setSingleShot(true);
    connect(&m_limit, &QTimer::timeout, this, [this] {
        // No answer in time reads as a blank page.
        if (m_check) {
            m_check->disconnect(this);
            m_check->abort();
            m_check->deleteLater();
            m_check = nullptr;
        }
        checked(QString());
    });
}

cAutoUpdate::~cAutoUpdate()
{
    cancel();
    if (m_check) {
        m_check->disconnect(this);
        m_check->abort();
        delete m_check;
    }
}

QString cAutoUpdate::builtInDocumentUrl()
{
    return QStringLiteral(TALLYLINE_UPDATE_URL);
}

QString cAutoUpdate::upToDateMessage()
{
    return QStringLiteral("Your Copy Of Tallyline Baseball Is Up To Date!");
}

void cAutoUpdate::CheckVersion()
{
    if (m_check)
        return;
    platform::HttpTransfer *transfer = platform::http().get(QUrl(documentUrl), timeoutMs);
    m_check = transfer;
    m_limit.start(timeoutMs);
    connect(transfer, &platform::HttpTransfer::finished, this, [this, transfer] {
        m_limit.stop();
        const QString page = transfer->errorCode() == 0 ? QString::fromUtf8(transfer->body()) : QString();
        transfer->deleteLater();
        m_check = nullptr;
        checked(page);
    });
}

void cAutoUpdate::checked(const QString &page)
{
    UpdateVersion = UpdateCheck::ParseKey(QStringLiteral("version"), page);
    if (UpdateCheck::isOffered(AppVersion, UpdateVersion)) {
        UpdateURL = UpdateCheck::ParseKey(QStringLiteral("url"), page);
        UpdateName = UpdateCheck::ParseKey(QStringLiteral("name"), page);
        UpdateDescription = UpdateCheck::ParseKey(QStringLiteral("description"), page);
        Q_EMIT updateAvailable(UpdateVersion, UpdateURL, UpdateName, UpdateDescription);
        return;
    }
    Q_EMIT isUpToDate(upToDateMessage());
}

void cAutoUpdate::Update(const QString &file)
{
    SaveItem = file;
    platform::HttpTransfer *transfer = platform::http().download(QUrl(UpdateURL), file);
    m_download = transfer;
    connect(transfer, &platform::HttpTransfer::progress, this, &cAutoUpdate::downloadProgress);
    connect(transfer, &platform::HttpTransfer::finished, this, [this, transfer] {
        transfer->deleteLater();
        m_download = nullptr;
        if (transfer->cancelled())
            return;
        if (transfer->errorCode() != 0)
            Q_EMIT downloadFailed(transfer->errorCode());
        else
            Q_EMIT downloadComplete();
    });
}

void cAutoUpdate::cancel()
{
    if (m_download)
        m_download->abort();
}
