#pragma once

#include <QDialog>
#include <QTimer>

#include <functional>
#include <memory>

class QLabel;
class QProgressBar;
class QPushButton;
class QThread;
class myTimerClass;

namespace seasondata {
class BackupJob;
}

// Backs up the open season as soon as it opens and tells how it went on
// two lines, then closes itself after a count-down. When compaction is due
// it follows a successful backup. Opened in restore mode it asks for a
// backup and puts it in place of the current season instead.
//
// The copy runs a batch of pages at a time; its check and the compaction
// run on threads of their own, so the window keeps painting and shows progress; the dialog
// is modal meanwhile so that nothing else writes to the season.
class backUpDlog : public QDialog
{
    Q_OBJECT

public:
    enum class Mode { Backup, Restore };

    explicit backUpDlog(Mode mode = Mode::Backup, QWidget *parent = nullptr);
    ~backUpDlog() override;

    // Shows a backup dialog whenever the timer finds one due.
    static void connectTimer(myTimerClass *timer);

    void doBackUp();
    void doRestore();
    bool isWorking() const { return m_working; }

    QTimer closeTimer;
    QTimer cleanUpTimer;
    int closeCt = 6;

protected:
    void showEvent(QShowEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void reject() override;

private:
    // Runs `job` a batch of pages per turn of the event loop, its check on a
    // thread, then `then` (the job's error code tells how it went).
    void startCopy(std::unique_ptr<seasondata::BackupJob> job, std::function<void()> then);
    void copyStep();
    void onThread(std::function<void()> work, std::function<void()> then);
    void backupCopied();
    void compactionEnded();
    void cleanUpTimer_Action();
    void closeTimer_Action();
    void setLines(const QString &status, const QString &detail);
    void finishWith(const QString &status, const QString &detail, bool countDown);

    Mode m_mode;
    bool m_started = false;
    bool m_working = false;
    bool m_compacting = false;
    std::unique_ptr<seasondata::BackupJob> m_job;
    QThread *m_checking = nullptr;
    QThread *m_compaction = nullptr;
    int m_compactionCode = 0; // written by the compaction's thread, read after it ended
    QString m_compactionMessage;
    QTimer m_stepTimer;
    std::function<void()> m_afterCopy;
    QLabel *statusLbl = nullptr;
    QLabel *detailLbl = nullptr;
    QProgressBar *progressBar = nullptr;
    QPushButton *CloseBtn = nullptr;
};
