#pragma once

#include <QObject>
#include <QPointer>
#include <QTimer>

#include "platform/Http.h"

// Asks the maker's web site for the newest version and downloads it when
// the coach wants it. Nothing here blocks: the check and the download run
// on the event loop, and a check that gets no answer within `timeoutMs`
// ends as if the page were blank.
class cAutoUpdate : public QObject
{
    Q_OBJECT

public:
    explicit cAutoUpdate(QObject *parent = nullptr);
    ~cAutoUpdate() override;

    QString UpdateVersion;
    QString UpdateURL;
    QString UpdateName;
    QString UpdateDescription;
    QString SaveItem;
    QString AppVersion;

    // Where the version document is; set when the program is built.
    QString documentUrl;
    int timeoutMs = 10000;

    // Fetches the version document; `updateAvailable` or `isUpToDate`
    // follows.
    void CheckVersion();
    bool checking() const { return m_check != nullptr; }
    // Downloads UpdateURL into `file`; progress, then complete or failed.
    void Update(const QString &file);
    // Stops a download; the file is not written.
    void cancel();

    static QString upToDateMessage();
    // The version document's address this program was built with; empty
    // when it was built without one.
    static QString builtInDocumentUrl();

Q_SIGNALS:
    void updateAvailable(const QString &version, const QString &url, const QString &name, const QString &description);
    void isUpToDate(const QString &message);
    void downloadProgress(qint64 received, qint64 total);
    void downloadFailed(int code);
    void downloadComplete();

private:
    void checked(const QString &page);

    QPointer<platform::HttpTransfer> m_check;
    QPointer<platform::HttpTransfer> m_download;
    QTimer m_limit;
};
