#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <utility>

namespace SQLite {
class Database;
class Exception;
class Statement;
} // namespace SQLite

class myPrefs;

// One named value of a row to insert or update, column name first.
using Field = std::pair<QString, QVariant>;
using Fields = QList<Field>;

// A row read back: the column names in select order and their values.
// Integers come back as qint64, text as QString, blobs as QByteArray and
// NULL as an invalid QVariant.
class Record
{
public:
    QStringList columns;
    QVariantList values;

    QVariant value(const QString &column) const;
    QString text(const QString &column) const { return value(column).toString(); }
    qint64 integer(const QString &column) const { return value(column).toLongLong(); }
    QByteArray blob(const QString &column) const { return value(column).toByteArray(); }
};

// The open season: one SQLite file "tlData_<season>.sqlite" in the data
// folder. Every statement binds its values as parameters; SQL text is only
// ever joined from the program's own table and column names.
//
// The connection runs in rollback-journal (DELETE) mode with full sync, so a
// season stays a single file a coach can copy, and every write is on disk
// when the call returns. A step of several writes goes through
// runInTransaction so it happens whole or not at all.
//
// Outside a transaction, errors are reported where they happen through
// DisplayDatabaseError, which keeps constraint violations (code 19) quiet as
// screens expect. Inside runInTransaction a failing exec, select, insert or
// update throws instead, so the step stops at the first failure; the
// transaction rolls it back whole and shows the error once.
class myDB
{
public:
    // Opens (or creates, with the complete schema) the season of
    // prefs.prSeason in prefs.strdDataLoc.
    explicit myDB(const myPrefs &prefs);
    // `checked` false leaves out the check of every page at open (PRAGMA
    // quick_check), for a command that only reads: a damaged page then fails
    // the read that meets it, and failures() says so.
    myDB(const QString &dataFolder, const QString &season, bool checked = true);
    ~myDB();
    myDB(const myDB &) = delete;
    myDB &operator=(const myDB &) = delete;

    static QString getCurDBFileName(const QString &season);

    // The connection; null when the season couldn't be opened, in which
    // case every query returns nothing and every write fails quietly.
    std::unique_ptr<SQLite::Database> tlynData;
    bool isConnected() const { return tlynData != nullptr; }
    QString filePath() const { return m_filePath; }

    bool DisplayDatabaseError();
    int lastErrorCode() const { return m_lastErrorCode; }
    // The statements that failed since the season was opened.
    int failures() const { return m_failures; }
    QString lastErrorMessage() const { return m_lastErrorMessage; }

    QString getTeamNameFromID(const QString &id, bool full);
    QStringList getAllCurTeams();
    void cleanUpDB();

    // Runs one statement with bound values. On failure the error is kept,
    // shown through DisplayDatabaseError, and false comes back (inside
    // runInTransaction the failure throws SQLite::Exception instead).
    // Without a connection every write says so and fails.
    bool exec(const QString &sql, const QVariantList &params = {});
    // All rows of a query; empty on failure (the error is shown).
    QList<Record> select(const QString &sql, const QVariantList &params = {});
    // The first column of the first row, or an invalid QVariant.
    QVariant scalar(const QString &sql, const QVariantList &params = {});
    // INSERT INTO table (columns) VALUES (?, ...): the new row's id, or -1.
    qint64 insert(const QString &table, const Fields &fields);
    // UPDATE table SET columns WHERE keyColumn = key.
    bool update(const QString &table, const Fields &fields, const QString &keyColumn, const QVariant &key);
    // Runs `body` inside one transaction. A database error anywhere in it
    // (through this object or a statement on tlynData) rolls the whole step
    // back, is shown once, whatever its code, and gives false. Any other
    // exception rolls back too and goes on to the caller. A call inside a
    // running step joins it.
    bool runInTransaction(const std::function<void()> &body);
    bool inTransaction() const { return m_transactionDepth > 0; }

    qint64 lastRowId() const;

    // Binds `params` (by position) to a prepared statement.
    static void bindAll(SQLite::Statement &statement, const QVariantList &params);

    // A statement of the program's own SQL run often (recording a game),
    // prepared once for this connection and kept until it closes: it comes
    // back reset, its bindings cleared. The caller steps it to the end or
    // resets it, so it holds no read lock between calls. Throws
    // SQLite::Exception, also without a connection.
    SQLite::Statement &prepared(const std::string &sql);

private:
    void check4Database(const QString &dataFolder, const QString &season);
    bool connectToDB(const QString &file);
    bool createDBFile(const QString &file);
    bool createSchema(const QString &file);
    void addIndexes();
    static void creationFailed(const QString &file);
    void notOpened(const QString &message, const QString &explanation);
    void configureConnection();
    void closeConnection();
    bool verifyIntegrity();
    void rememberError(int code, const QString &message);
    void clearError();
    // A statement failed: inside a step the exception goes on (the step
    // rolls back), outside it is shown here.
    void fail(const SQLite::Exception &e);
    bool refuseWriteWithoutSeason();

    QString m_filePath;
    int m_lastErrorCode = 0;
    QString m_lastErrorMessage;
    int m_transactionDepth = 0;
    bool m_checked = true;
    int m_failures = 0;
    // Declared after the connection, so they are finalized before it closes.
    std::map<std::string, std::unique_ptr<SQLite::Statement>> m_prepared;
};
