#include "seasondata/ui/backUpDlog.h"

#include "app/App.h"
#include "app/globals.h"
#include "app/myDB.h"
#include "app/myPrefs.h"
#include "app/myTimerClass.h"
#include "app/ui/Form.h"
#include "app/ui/ScreenDirectory.h"
#include "app/ui/startScrn1.h"
#include "platform/Services.h"
#include "seasondata/SeasonBackup.h"

#include <SQLiteCpp/Database.h>

#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QThread>
#include <QVBoxLayout>

using seasondata::BackupJob;
using seasondata::BackupPlan;

backUpDlog::backUpDlog(Mode mode, QWidget *parent) : QDialog(parent), m_mode(mode)
{
    setObjectName(mode == Mode::Backup ? QStringLiteral("backUpDlog") : QStringLiteral("restoreDlog"));
    setWindowTitle(mode == Mode::Backup ? QStringLiteral("Backup") : QStringLiteral("Restore"));
    setAttribute(Qt::WA_DeleteOnClose);
    // Nothing may write to the season while it is copied or compacted.
    setWindowModality(Qt::ApplicationModal);

    auto *layout = new QVBoxLayout(this);
    statusLbl = form::valueLabel(this, QStringLiteral("statusLbl"), QStringLiteral("What the backup is doing"));
    QFont bold = statusLbl->font();
    bold.setBold(true);
    statusLbl->setFont(bold);
    detailLbl = form::valueLabel(this, QStringLiteral("detailLbl"), QStringLiteral("More about it"));
    detailLbl->setWordWrap(true);
    progressBar = form::named(new QProgressBar(this), QStringLiteral("progressBar"), QStringLiteral("Progress"));
    progressBar->setRange(0, 100);
    progressBar->hide();
    CloseBtn = form::button(this, QStringLiteral("CloseBtn"), QStringLiteral("Close"));
    CloseBtn->setVisible(false);
    CloseBtn->setDefault(true);
    connect(CloseBtn, &QPushButton::clicked, this, &QDialog::close);

    layout->addWidget(statusLbl);
    layout->addWidget(detailLbl);
    layout->addWidget(progressBar);
    auto *buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(CloseBtn);
    layout->addLayout(buttons);
    setMinimumWidth(380);

    closeTimer.setInterval(1000);
    connect(&closeTimer, &QTimer::timeout, this, &backUpDlog::closeTimer_Action);
    cleanUpTimer.setInterval(3000);
    cleanUpTimer.setSingleShot(true);
    connect(&cleanUpTimer, &QTimer::timeout, this, &backUpDlog::cleanUpTimer_Action);
    m_stepTimer.setInterval(0);
    connect(&m_stepTimer, &QTimer::timeout, this, &backUpDlog::copyStep);
}

backUpDlog::~backUpDlog()
{
    // The window refuses to close while the compaction runs; this is for the
    // program quitting underneath it.
    for (QThread *thread : {m_checking, m_compaction}) {
        if (thread) {
            thread->wait();
            delete thread;
        }
    }
}

void backUpDlog::connectTimer(myTimerClass *timer)
{
    QObject::connect(timer, &myTimerClass::backupDue, timer, [] {
        // A backup or restore still on show is this tick's backup: a second
        // window would copy the same season into the same file.
        for (QWidget *w : QApplication::topLevelWidgets()) {
            if (qobject_cast<backUpDlog *>(w) && w->isVisible())
                return;
        }
        if (QWidget *dialog = screens::create(ScreenId::backUpDlog))
            dialog->show();
    });
}

void backUpDlog::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    if (m_started)
        return;
    m_started = true;
    // After the window has painted, so the coach sees what is happening.
    QTimer::singleShot(0, this, [this] { m_mode == Mode::Backup ? doBackUp() : doRestore(); });
}

void backUpDlog::closeEvent(QCloseEvent *event)
{
    if (m_working) {
        event->ignore();
        return;
    }
    QDialog::closeEvent(event);
}

void backUpDlog::reject()
{
    if (!m_working)
        QDialog::reject();
}

void backUpDlog::setLines(const QString &status, const QString &detail)
{
    statusLbl->setText(status);
    detailLbl->setText(detail);
}

void backUpDlog::finishWith(const QString &status, const QString &detail, bool countDown)
{
    m_working = false;
    progressBar->hide();
    setLines(status, detail);
    CloseBtn->setVisible(true);
    CloseBtn->setFocus();
    if (countDown)
        closeTimer.start();
}

void backUpDlog::doBackUp()
{
    if (!gPrefs || !gData) {
        finishWith(QStringLiteral("Could not find the original data file."), {}, false);
        return;
    }
    const BackupPlan plan = seasondata::planBackup(*gPrefs, platform::clock().now().date());
    if (plan.kind == BackupPlan::Cancelled) {
        close();
        return;
    }
    if (plan.kind != BackupPlan::Ready || !gData->tlynData) {
        finishWith(plan.kind == BackupPlan::Ready ? QStringLiteral("Could not find the original data file.")
                                                  : plan.status,
                   plan.detail, false);
        return;
    }
    setLines(QStringLiteral("Backing up ") + gPrefs->prSeason + QStringLiteral("..."),
             QDir::toNativeSeparators(plan.target));
    startCopy(std::make_unique<BackupJob>(gData->tlynData->getHandle(), plan.target), [this] { backupCopied(); });
}

void backUpDlog::startCopy(std::unique_ptr<BackupJob> job, std::function<void()> then)
{
    m_job = std::move(job);
    m_afterCopy = std::move(then);
    if (!m_job->start()) {
        const auto after = m_afterCopy; // it may start the next copy
        after();
        return;
    }
    m_working = true;
    progressBar->setRange(0, 100);
    progressBar->setValue(0);
    progressBar->show();
    m_stepTimer.start();
}

void backUpDlog::copyStep()
{
    // A batch of pages per turn of the event loop: the window repaints and
    // the progress moves between batches.
    if (m_job->step(256)) {
        progressBar->setValue(int(m_job->progress() * 100));
        return;
    }
    m_stepTimer.stop();
    progressBar->setValue(100);
    if (m_job->errorCode() != 0 || !m_job->endCopy()) {
        const auto after = m_afterCopy; // it may start the next copy
        after();
        return;
    }
    // The check reads the whole copy: on a thread of its own, since only
    // the copy's own connection is used from here on.
    onThread([job = m_job.get()] { job->checkAndPlace(); }, m_afterCopy);
}

void backUpDlog::onThread(std::function<void()> work, std::function<void()> then)
{
    m_working = true;
    m_checking = QThread::create(std::move(work));
    connect(m_checking, &QThread::finished, this, [this, then = std::move(then)] {
        m_checking->deleteLater();
        m_checking = nullptr;
        then();
    });
    m_checking->start();
}

void backUpDlog::backupCopied()
{
    const int code = m_job->errorCode();
    m_job.reset();
    if (code != 0) {
        finishWith(QStringLiteral("An error occurred: ") + QString::number(code),
                   QStringLiteral("You can backup manually"), false);
        return;
    }
    if (!gPrefs->isDBCleanDue()) {
        finishWith(QStringLiteral("Backup was successful"), {}, true);
        return;
    }
    m_working = true;
    progressBar->setRange(0, 0); // busy: compaction can't tell how far it is
    setLines(QStringLiteral("Cleaning up the database..."), QStringLiteral("One Moment..."));
    cleanUpTimer.start();
    m_compacting = true;
    const QString file = gData->filePath();
    m_compactionCode = 0;
    m_compactionMessage.clear();
    m_compaction = QThread::create(
        [this, file] { m_compactionCode = seasondata::compactSeasonFile(file, &m_compactionMessage); });
    connect(m_compaction, &QThread::finished, this, &backUpDlog::compactionEnded);
    m_compaction->start();
}

void backUpDlog::compactionEnded()
{
    m_compacting = false;
    m_compaction->deleteLater();
    m_compaction = nullptr;
    // A compaction that failed stays due: it is tried after the next backup.
    if (m_compactionCode == 0)
        gPrefs->reinitDBClean();
    if (!cleanUpTimer.isActive())
        cleanUpTimer_Action();
}

void backUpDlog::cleanUpTimer_Action()
{
    // Three seconds at least on "Cleaning up", and never before it ended.
    if (m_compacting)
        return;
    progressBar->setRange(0, 100);
    if (m_compactionCode != 0) {
        finishWith(QStringLiteral("The backup was made, but the database could not be cleaned up."),
                   QStringLiteral("It is tried again after the next backup. ") + m_compactionMessage, false);
        return;
    }
    finishWith(QStringLiteral("Backup was successful"), {}, true);
}

void backUpDlog::closeTimer_Action()
{
    --closeCt;
    detailLbl->setText(QStringLiteral("Closing in ") + QString::number(closeCt) + QStringLiteral(" secs."));
    if (closeCt <= 0) {
        closeTimer.stop();
        close();
    }
}

void backUpDlog::doRestore()
{
    if (!gPrefs || !gData || !gData->tlynData) {
        finishWith(QStringLiteral("Could not find the original data file."), {}, false);
        return;
    }
    platform::FileRequest request;
    request.title = QStringLiteral("Restore Season Data");
    request.prompt = QStringLiteral("Choose the backup to put in place of the current season");
    request.actionCaption = QStringLiteral("Restore");
    const QString root = parseGSI(gPrefs->prDataBackupLoc);
    if (!root.isEmpty())
        request.initialDir = QDir(root).filePath(QStringLiteral("TLYN2_backup"));
    request.nameFilters = {QStringLiteral("Season files (*.sqlite)")};
    const QString chosen = platform::files().openFile(request);
    if (chosen.isEmpty()) {
        close();
        return;
    }
    const QString seasonFile = myDB::getCurDBFileName(gPrefs->prSeason);
    const QString keepName = seasonFile + u'.' +
                             platform::clock().now().toString(QStringLiteral("yyyy-MM-dd_hh-mm-ss")) +
                             QStringLiteral(".kept");
    const QString keep = QDir(gPrefs->strdDataLoc).filePath(keepName);
    if (gShowMsgDlog(QStringLiteral("Replace the season ") + gPrefs->prSeason + QStringLiteral(" with the backup \"") +
                         QDir::toNativeSeparators(chosen) + QStringLiteral("\"?"),
                     QStringLiteral("The season as it is now is kept in the data folder as \"") + keepName +
                         QStringLiteral("\"."),
                     QStringLiteral("Restore")) != platform::MsgAction) {
        close();
        return;
    }
    // First the backup is read through; then the season as it stands is
    // kept; only then do the backup's pages replace it.
    setLines(QStringLiteral("Checking the backup..."), QDir::toNativeSeparators(chosen));
    progressBar->setRange(0, 0);
    progressBar->show();
    auto sound = std::make_shared<bool>(false);
    onThread([chosen, sound] { *sound = seasondata::isSoundSeasonFile(chosen); },
             [this, chosen, keep, sound] {
                 if (!*sound) {
                     finishWith(QStringLiteral("The season could not be restored."),
                                QStringLiteral("The chosen file isn't a sound season backup."), false);
                     return;
                 }
                 setLines(QStringLiteral("Keeping the season as it is now..."), QDir::toNativeSeparators(keep));
                 startCopy(std::make_unique<BackupJob>(gData->tlynData->getHandle(), keep), [this, chosen] {
                     if (m_job->errorCode() != 0) {
                         finishWith(QStringLiteral("The season could not be restored."), m_job->errorMessage(), false);
                         return;
                     }
                     setLines(QStringLiteral("Restoring the season..."), QDir::toNativeSeparators(chosen));
                     startCopy(BackupJob::restoreInto(gData->tlynData->getHandle(), chosen), [this] {
                         if (m_job->errorCode() != 0) {
                             finishWith(QStringLiteral("The season could not be restored."), m_job->errorMessage(),
                                        false);
                             return;
                         }
                         if (startScrn1 *start = startScrn1::instance())
                             start->setLogo_Name();
                         finishWith(QStringLiteral("The season was restored."), {}, true);
                     });
                 });
             });
}
