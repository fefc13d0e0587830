#pragma once

#include <QDate>
#include <QLocale>
#include <QString>

#include <memory>

class QLockFile;
struct sqlite3;
struct sqlite3_backup;
class myDB;
class myPrefs;

// Backups of the open season: a consistent copy taken with SQLite's backup
// API into "<chosen folder>/TLYN2_backup/<date>/<season file>", never a
// plain copy of a file that may be in the middle of a write. The copy is
// made under a working name, checked with integrity_check, and only then
// renamed over the day's earlier backup.
namespace seasondata {

// The folder name of a date: the short date of `locale` with each "/"
// made "_", and every other character that a file system refuses (\ : * ?
// " < > | and control characters) made "_" too.
QString dateFolderName(const QDate &date, const QLocale &locale = QLocale());

// Copies one SQLite database into a file page by page, so that a window
// can show progress and stay live between steps. Writes made through the
// source connection while the copy runs reach the copy as well.
class BackupJob
{
public:
    // `source` is a live connection ("main" is copied); `targetFile` is
    // replaced only when the copy is complete and sound.
    BackupJob(sqlite3 *source, QString targetFile);
    // The other way: the pages of `backupFile` replace those of the live
    // connection `live`, in one write transaction held from the first step
    // to the last, so the season is all the old one or all the backup.
    // Nothing else may use `live` meanwhile.
    static std::unique_ptr<BackupJob> restoreInto(sqlite3 *live, const QString &backupFile);
    ~BackupJob();
    BackupJob(const BackupJob &) = delete;
    BackupJob &operator=(const BackupJob &) = delete;

    // Opens the working file. False (see errorCode) when it can't, or when
    // another backup into the same file is running (SQLITE_BUSY): one
    // backup at a time per file, in this program or another.
    bool start();
    // Copies up to `pages` pages; true while pages remain. A restore stops
    // a batch early rather than hold the caller's thread past about 20 ms.
    bool step(int pages = 256);
    // 0 to 1.
    double progress() const;
    // After the last step: the copy is closed, synced, opened again by its
    // name, must pass integrity_check and hold as many pages as the source
    // had when the copy ended; only then is it renamed into place. A copy
    // that fails leaves the earlier file of that name as it was. A restore
    // has nothing to check: checkAndPlace deletes the journal it kept.
    bool finish() { return endCopy() && checkAndPlace(); }
    // The two halves of finish(). endCopy lets go of the source connection;
    // checkAndPlace uses only the copy's own, so it may run on another thread.
    bool endCopy();
    bool checkAndPlace();
    // start, every step and finish at once.
    bool runToEnd();

    int errorCode() const { return m_errorCode; }
    QString errorMessage() const { return m_errorMessage; }
    QString targetFile() const { return m_target; }
    QString workFile() const { return m_target + QStringLiteral(".tmp"); }

private:
    bool fail(int code, const QString &message);
    void closeWork();
    bool copyStep(int pages);
    bool restoreStep(int pages);
    // Restoring: the season file is synced every few megabytes.
    int copiedPages() const;
    bool flushDue() const;
    void flushSeasonFile();
    // Restoring: the kept journal renamed, for checkAndPlace to delete.
    void setJournalAside();
    QString asideJournal() const;

    sqlite3 *m_source;
    QString m_target;
    bool m_intoLive = false;   // restoring: m_target is the source file
    sqlite3 *m_dest = nullptr; // the connection this job opened on its file
    sqlite3_backup *m_backup = nullptr;
    std::unique_ptr<QLockFile> m_lock; // held on the working name while it is ours
    int m_sourcePages = 0;             // the source's size when the copy ended
    bool m_done = false;
    int m_syncedPages = 0;       // restoring: pages copied at the last sync of the season file
    bool m_asideJournal = false; // restoring: the journal waits under asideJournal()
    int m_errorCode = 0;
    QString m_errorMessage;
};

// Where a backup of the current season goes, or why it can't go: the
// decisions of the backup dialog before any copying.
struct BackupPlan
{
    enum Kind { Ready, NoSource, Cancelled, NoDestination, Failed };
    Kind kind = Failed;
    QString source; // the season file
    QString target; // the backup file to make
    QString status; // the dialog's two lines for anything but Ready
    QString detail;
};

// Finds the season file of `prefs`, the backup location (asking for one
// when none is set), and makes today's folder.
BackupPlan planBackup(myPrefs &prefs, const QDate &today);

// Compacts the season file on a connection of its own, so that it can run
// away from the window's thread. Returns the SQLite error code (0 when it
// worked).
int compactSeasonFile(const QString &file, QString *message = nullptr);

// Whether `file` is a sound season: it opens, passes integrity_check and
// holds the season's tables.
bool isSoundSeasonFile(const QString &file);

} // namespace seasondata
