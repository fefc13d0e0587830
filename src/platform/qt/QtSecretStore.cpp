#include "platform/qt/QtSecretStore.h"

#include <QEventLoop>
#include <QTimer>
#include <qt6keychain/keychain.h>

namespace platform::qt {

namespace {

const QString kService = QStringLiteral("Tallyline Baseball");
constexpr int kWaitMs = 8000;

// Starts the job and waits for it; false when it didn't finish in time.
bool runJob(QKeychain::Job &job)
{
    job.setAutoDelete(false);
    job.setInsecureFallback(false);
    QEventLoop loop;
    bool finished = false;
    QObject::connect(&job, &QKeychain::Job::finished, &loop, [&] {
        finished = true;
        loop.quit();
    });
    QTimer::singleShot(kWaitMs, &loop, &QEventLoop::quit);
    job.start();
    if (!finished)
        loop.exec(QEventLoop::ExcludeUserInputEvents);
    return finished;
}

// A finished job goes now; one still running deletes itself when it ends.
void dispose(QKeychain::Job *job, bool finished)
{
    if (finished)
        job->deleteLater();
    else
        job->setAutoDelete(true);
}

} // namespace

SecretStore::ReadResult QtSecretStore::readSecret(const QString &key)
{
    auto *job = new QKeychain::ReadPasswordJob(kService);
    job->setKey(key);
    ReadResult result;
    const bool finished = runJob(*job);
    if (finished) {
        if (job->error() == QKeychain::NoError)
            result = {Status::Found, job->textData()};
        else if (job->error() == QKeychain::EntryNotFound)
            result = {Status::Missing, {}};
    }
    dispose(job, finished);
    return result;
}

bool QtSecretStore::writeSecret(const QString &key, const QString &secret)
{
    auto *job = new QKeychain::WritePasswordJob(kService);
    job->setKey(key);
    job->setTextData(secret);
    const bool finished = runJob(*job);
    const bool stored = finished && job->error() == QKeychain::NoError;
    dispose(job, finished);
    return stored;
}

bool QtSecretStore::deleteSecret(const QString &key)
{
    auto *job = new QKeychain::DeletePasswordJob(kService);
    job->setKey(key);
    const bool finished = runJob(*job);
    const bool answered = finished && (job->error() == QKeychain::NoError || job->error() == QKeychain::EntryNotFound);
    dispose(job, finished);
    return answered;
}

} // namespace platform::qt
