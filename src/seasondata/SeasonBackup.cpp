#include "seasondata/SeasonBackup.h"

#include "app/Schema.h"
#include "app/globals.h"
#include "app/myDB.h"
#include "app/myPrefs.h"

#include <SQLiteCpp/Database.h>

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>

#include <sqlite3.h>

#include <algorithm>
#include <filesystem>

#ifdef Q_OS_WIN
#include <io.h>
#else
#include <unistd.h>
#endif

namespace seasondata {

namespace {

const QString kBackupFolder = QStringLiteral("TLYN2_backup");

QString integrityOf(sqlite3 *db)
{
    sqlite3_stmt *stmt = nullptr;
    QString result;
    if (sqlite3_prepare_v2(db, "PRAGMA integrity_check", -1, &stmt, nullptr) == SQLITE_OK &&
        sqlite3_step(stmt) == SQLITE_ROW)
        result = QString::fromUtf8(reinterpret_cast<const char *>(sqlite3_column_text(stmt, 0)));
    sqlite3_finalize(stmt);
    return result;
}

int pageCountOf(sqlite3 *db)
{
    sqlite3_stmt *stmt = nullptr;
    int pages = -1;
    if (sqlite3_prepare_v2(db, "PRAGMA page_count", -1, &stmt, nullptr) == SQLITE_OK &&
        sqlite3_step(stmt) == SQLITE_ROW)
        pages = sqlite3_column_int(stmt, 0);
    sqlite3_finalize(stmt);
    return pages;
}

// Waits until the file's bytes are on the disk.
bool syncToDisk(const QString &file)
{
    QFile f(file);
    if (!f.open(QIODevice::ReadWrite))
        return false;
#ifdef Q_OS_WIN
    return _commit(f.handle()) == 0;
#else
    return ::fsync(f.handle()) == 0;
#endif
}

} // namespace

QString dateFolderName(const QDate &date, const QLocale &locale)
{
    QString name = locale.toString(date, QLocale::ShortFormat);
    for (QChar &c : name) {
        if (c == u'/' || c == u'\\' || c == u':' || c == u'*' || c == u'?' || c == u'"' || c == u'<' || c == u'>' ||
            c == u'|' || c.category() == QChar::Other_Control)
            c = u'_';
    }
    // Windows drops trailing dots and blanks from a name; a date that ends
    // in one would name a different folder there.
    while (name.endsWith(u'.') || name.endsWith(u' '))
        name.chop(1);
    return name.isEmpty() ? date.toString(Qt::ISODate) : name;
}

BackupJob::BackupJob(sqlite3 *source, QString targetFile) : m_source(source), m_target(std::move(targetFile)) {}

std::unique_ptr<BackupJob> BackupJob::restoreInto(sqlite3 *live, const QString &backupFile)
{
    auto job = std::make_unique<BackupJob>(live, backupFile);
    job->m_intoLive = true;
    return job;
}

BackupJob::~BackupJob()
{
    closeWork();
    if (!m_done && !m_intoLive && m_lock)
        QFile::remove(workFile());
    if (m_asideJournal)
        QFile::remove(asideJournal()); // checkAndPlace never ran
}

void BackupJob::closeWork()
{
    if (m_backup) {
        sqlite3_backup_finish(m_backup);
        m_backup = nullptr;
    }
    if (m_dest) {
        sqlite3_close_v2(m_dest);
        m_dest = nullptr;
    }
}

bool BackupJob::fail(int code, const QString &message)
{
    m_errorCode = code ? code : SQLITE_ERROR;
    m_errorMessage = message;
    closeWork();
    if (m_intoLive)
        setJournalAside();
    // Only the job holding the working name may take its file away.
    if (!m_intoLive && m_lock) {
        QFile::remove(workFile());
        m_lock.reset();
    }
    return false;
}

bool BackupJob::start()
{
    if (!m_source)
        return fail(SQLITE_MISUSE, QStringLiteral("The season isn't open."));
    if (m_intoLive) {
        const QByteArray path = m_target.toUtf8();
        int rc = sqlite3_open_v2(path.constData(), &m_dest, SQLITE_OPEN_READONLY, nullptr);
        if (rc != SQLITE_OK)
            return fail(rc, QString::fromUtf8(sqlite3_errmsg(m_dest)));
        // The restore's journal holds the whole season as it was; deleting a
        // file that size at the commit would hold the window for a long
        // moment. Kept instead (its header zeroed by the commit), it is put
        // aside after the commit and deleted off the window's thread.
        sqlite3_exec(m_source, "PRAGMA journal_mode=PERSIST", nullptr, nullptr, nullptr);
        m_backup = sqlite3_backup_init(m_source, "main", m_dest, "main");
        if (!m_backup)
            return fail(sqlite3_errcode(m_source), QString::fromUtf8(sqlite3_errmsg(m_source)));
        return true;
    }
    // Two backups into one file would copy into the same working file and
    // rename whatever stands there over the day's copy: the second is
    // refused. A lock left by a program that died is taken over.
    auto lock = std::make_unique<QLockFile>(workFile() + QStringLiteral(".lock"));
    lock->setStaleLockTime(0);
    if (!lock->tryLock())
        return fail(SQLITE_BUSY, QStringLiteral("Another backup of this season is being made."));
    m_lock = std::move(lock);
    QFile::remove(workFile());
    const QByteArray path = workFile().toUtf8();
    int rc = sqlite3_open_v2(path.constData(), &m_dest, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr);
    if (rc != SQLITE_OK)
        return fail(rc, QString::fromUtf8(sqlite3_errmsg(m_dest)));
    // The working file is thrown away on any failure, so it needs no journal,
    // and it is synced once, whole, off the window's thread (checkAndPlace)
    // rather than by the last copy step.
    sqlite3_exec(m_dest, "PRAGMA journal_mode=OFF; PRAGMA synchronous=OFF", nullptr, nullptr, nullptr);
    m_backup = sqlite3_backup_init(m_dest, "main", m_source, "main");
    if (!m_backup)
        return fail(sqlite3_errcode(m_dest), QString::fromUtf8(sqlite3_errmsg(m_dest)));
    return true;
}

bool BackupJob::step(int pages)
{
    if (!m_backup)
        return false;
    if (m_intoLive)
        return restoreStep(pages);
    return copyStep(pages);
}

bool BackupJob::restoreStep(int pages)
{
    // A step that syncs the season file does nothing else: on a busy disk a
    // sync may take tens of milliseconds, and pages copied before or after
    // it would add to the time the window waits.
    if (flushDue()) {
        flushSeasonFile();
        return true;
    }
    // Pages written into the live season may make SQLite sync its journal
    // when its cache spills, so a batch that takes a moment on a copy can
    // hold the window much longer here: the batch goes in small slices and
    // stops early once it has taken its share of the window's time, or
    // once the season file is due a sync.
    constexpr int kSlice = 16;
    constexpr qint64 kBudgetNs = 20'000'000;
    QElapsedTimer spent;
    spent.start();
    bool more = true;
    for (int done = 0; more && done < pages && spent.nsecsElapsed() < kBudgetNs && !flushDue(); done += kSlice)
        more = copyStep(std::min(kSlice, pages - done));
    return more;
}

int BackupJob::copiedPages() const
{
    return m_backup ? sqlite3_backup_pagecount(m_backup) - sqlite3_backup_remaining(m_backup) : 0;
}

bool BackupJob::flushDue() const
{
    // The commit at the end syncs the season file, and with it every page
    // the system still holds unwritten: for a big season that one sync
    // would hold the window for a long moment. Synced every megabyte
    // instead, the pages reach the disk along the way and the commit's
    // sync has little left to do.
    constexpr int kPagesBetweenSyncs = 256;
    return copiedPages() - m_syncedPages >= kPagesBetweenSyncs;
}

void BackupJob::flushSeasonFile()
{
    m_syncedPages = copiedPages();
    sqlite3_file *file = nullptr;
    if (sqlite3_file_control(m_source, "main", SQLITE_FCNTL_FILE_POINTER, &file) == SQLITE_OK && file && file->pMethods)
        file->pMethods->xSync(file, SQLITE_SYNC_NORMAL);
}

bool BackupJob::copyStep(int pages)
{
    const int rc = sqlite3_backup_step(m_backup, pages);
    if (rc == SQLITE_OK || rc == SQLITE_BUSY || rc == SQLITE_LOCKED)
        return true; // more to copy, or try again on the next step
    if (rc == SQLITE_DONE) {
        m_sourcePages = sqlite3_backup_pagecount(m_backup);
        return false;
    }
    fail(rc, QString::fromUtf8(sqlite3_errstr(rc)));
    return false;
}

double BackupJob::progress() const
{
    if (!m_backup)
        return m_done ? 1.0 : 0.0;
    const int total = sqlite3_backup_pagecount(m_backup);
    if (total <= 0)
        return 0.0;
    return double(total - sqlite3_backup_remaining(m_backup)) / total;
}

bool BackupJob::endCopy()
{
    if (!m_backup)
        return false;
    const int rc = sqlite3_backup_finish(m_backup);
    m_backup = nullptr;
    if (rc != SQLITE_OK)
        return fail(rc, QString::fromUtf8(sqlite3_errmsg(m_intoLive ? m_source : m_dest)));
    if (m_intoLive) {
        closeWork();
        setJournalAside();
        m_done = true;
        // A backup made before the lookups had their indexes gets them, as
        // the season would when opened; they change no stored value.
        for (const QString &statement : schema::indexStatements())
            sqlite3_exec(m_source, statement.toUtf8().constData(), nullptr, nullptr, nullptr);
    }
    return true;
}

void BackupJob::setJournalAside()
{
    // Once the transaction has ended the kept journal is no hot journal, so
    // it may be renamed; the season goes back to deleting its journals,
    // which finds none left to delete.
    if (!m_source)
        return;
    const QString journal = QString::fromUtf8(sqlite3_db_filename(m_source, "main")) + QStringLiteral("-journal");
    if (QFile::exists(journal)) {
        QFile::remove(asideJournal());
        m_asideJournal = QFile::rename(journal, asideJournal());
    }
    sqlite3_exec(m_source, "PRAGMA journal_mode=DELETE", nullptr, nullptr, nullptr);
}

QString BackupJob::asideJournal() const
{
    return QString::fromUtf8(sqlite3_db_filename(m_source, "main")) + QStringLiteral("-journal.restored");
}

bool BackupJob::checkAndPlace()
{
    if (m_intoLive) {
        if (m_asideJournal)
            QFile::remove(asideJournal());
        m_asideJournal = false;
        return m_done;
    }
    if (!m_dest || m_backup)
        return false;
    sqlite3_close_v2(m_dest);
    m_dest = nullptr;
    if (!syncToDisk(workFile()))
        return fail(SQLITE_IOERR, QStringLiteral("The copy couldn't be written to the disk."));
    // What is judged is the file as it now stands on the disk, opened anew
    // by its name, not the connection that wrote it.
    {
        const QByteArray path = workFile().toUtf8();
        sqlite3 *check = nullptr;
        int rc = sqlite3_open_v2(path.constData(), &check, SQLITE_OPEN_READONLY, nullptr);
        QString verdict = rc == SQLITE_OK ? integrityOf(check) : QString::fromUtf8(sqlite3_errmsg(check));
        const int pages = rc == SQLITE_OK ? pageCountOf(check) : -1;
        sqlite3_close_v2(check);
        if (rc == SQLITE_OK && verdict == u"ok" && (pages != m_sourcePages || pages <= 0)) {
            rc = SQLITE_CORRUPT;
            verdict =
                QStringLiteral("The copy holds %1 pages where the season holds %2.").arg(pages).arg(m_sourcePages);
        }
        if (rc != SQLITE_OK || verdict != u"ok")
            return fail(rc == SQLITE_OK ? SQLITE_CORRUPT : rc, verdict);
    }
    // Replaces the day's earlier copy in one step; until here it stands.
    std::error_code error;
    std::filesystem::rename(std::filesystem::path(workFile().toStdU16String()),
                            std::filesystem::path(m_target.toStdU16String()), error);
    if (error)
        return fail(SQLITE_CANTOPEN, QString::fromStdString(error.message()));
    m_done = true;
    m_lock.reset();
    return true;
}

bool BackupJob::runToEnd()
{
    if (!start())
        return false;
    while (step()) {}
    return m_errorCode == 0 && finish();
}

BackupPlan planBackup(myPrefs &prefs, const QDate &today)
{
    BackupPlan plan;
    plan.source = QDir(prefs.strdDataLoc).filePath(myDB::getCurDBFileName(prefs.prSeason));
    if (!QFileInfo::exists(plan.source)) {
        plan.kind = BackupPlan::NoSource;
        plan.status = QStringLiteral("Could not find the original data file.");
        return plan;
    }
    QString location = prefs.prDataBackupLoc;
    if (location.isEmpty())
        location = prefs.getUserBUFolder();
    if (location.isEmpty()) {
        plan.kind = BackupPlan::Cancelled;
        return plan;
    }
    const QString root = parseGSI(location);
    const QDir backups(QDir(root).filePath(kBackupFolder));
    if (root.isEmpty() || !backups.exists()) {
        plan.kind = BackupPlan::NoDestination;
        plan.status = QStringLiteral("Destination not found");
        plan.detail = QStringLiteral("Set in the Preferences screen.");
        return plan;
    }
    const QString dateName = dateFolderName(today);
    if (!backups.exists(dateName) && !backups.mkdir(dateName)) {
        plan.kind = BackupPlan::Failed;
        plan.status = QStringLiteral("An unknown error occurred.");
        return plan;
    }
    plan.target = QDir(backups.filePath(dateName)).filePath(QFileInfo(plan.source).fileName());
    plan.kind = BackupPlan::Ready;
    return plan;
}

int compactSeasonFile(const QString &file, QString *message)
{
    try {
        SQLite::Database db(file.toStdString(), SQLite::OPEN_READWRITE);
        db.setBusyTimeout(5000);
        db.exec("VACUUM");
        return 0;
    } catch (const SQLite::Exception &e) {
        if (message)
            *message = QString::fromUtf8(e.what());
        return e.getErrorCode() ? e.getErrorCode() : SQLITE_ERROR;
    }
}

bool isSoundSeasonFile(const QString &file)
{
    if (!QFileInfo(file).isFile())
        return false;
    try {
        SQLite::Database db(file.toStdString(), SQLite::OPEN_READONLY);
        if (integrityOf(db.getHandle()) != u"ok")
            return false;
        for (const QString &table : schema::tableNames()) {
            if (!db.tableExists(table.toStdString()))
                return false;
        }
        return true;
    } catch (const SQLite::Exception &) {
        return false;
    }
}

} // namespace seasondata
