#include "app/myDB.h"

#include "app/Schema.h"
#include "app/myPrefs.h"
#include "platform/Messages.h"
#include "platform/Services.h"

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>
#include <SQLiteCpp/Transaction.h>

#include <QDir>
#include <QFileInfo>

#include <sqlite3.h>

namespace {

constexpr int kBusyTimeoutMs = 5000;

std::string utf8(const QString &text)
{
    return text.toStdString();
}

QVariant columnValue(const SQLite::Column &column)
{
    switch (column.getType()) {
    case SQLITE_INTEGER:
        return QVariant::fromValue<qint64>(column.getInt64());
    case SQLITE_FLOAT:
        return column.getDouble();
    case SQLITE_TEXT:
        return QString::fromUtf8(column.getText(), column.getBytes());
    case SQLITE_BLOB:
        return QByteArray(static_cast<const char *>(column.getBlob()), column.getBytes());
    default:
        return {};
    }
}

} // namespace

QVariant Record::value(const QString &column) const
{
    const qsizetype i = columns.indexOf(column);
    return i < 0 ? QVariant() : values.at(i);
}

myDB::myDB(const myPrefs &prefs) : myDB(prefs.strdDataLoc, prefs.prSeason) {}

myDB::myDB(const QString &dataFolder, const QString &season, bool checked) : m_checked(checked)
{
    try {
        check4Database(dataFolder, season);
    } catch (const std::exception &) {
        closeConnection();
        platform::messages().msgBox(QStringLiteral("There was an error connecting to the Database."));
    }
}

myDB::~myDB() = default;

QString myDB::getCurDBFileName(const QString &season)
{
    return QStringLiteral("tlData_") + season + QStringLiteral(".sqlite");
}

void myDB::check4Database(const QString &dataFolder, const QString &season)
{
    const QString file = QDir(dataFolder).filePath(getCurDBFileName(season));
    m_filePath = file;
    if (QFileInfo::exists(file))
        connectToDB(file);
    else
        createDBFile(file);
}

void myDB::configureConnection()
{
    tlynData->exec("PRAGMA journal_mode=DELETE");
    tlynData->exec("PRAGMA synchronous=FULL");
}

void myDB::notOpened(const QString &message, const QString &explanation)
{
    // A season that can't be written is never typed into: the program goes
    // on without a connection, the start screen names the file, and every
    // write says that nothing was saved.
    closeConnection();
    platform::messages().showMsgDlog(message, explanation, QStringLiteral("OK"), {});
}

bool myDB::verifyIntegrity()
{
    for (;;) {
        std::string result;
        int code = 0;
        try {
            SQLite::Statement check(*tlynData, "PRAGMA quick_check");
            if (check.executeStep())
                result = check.getColumn(0).getString();
        } catch (const SQLite::Exception &e) {
            result = e.what();
            code = e.getErrorCode() & 0xff;
        }
        if (result == "ok")
            return true;
        // Held by another program past the busy timeout: the file may well be
        // sound, and restoring a backup over it would lose good data.
        if (code == SQLITE_BUSY || code == SQLITE_LOCKED) {
            if (platform::messages().showMsgDlog(
                    QStringLiteral("The season file \"") + QDir::toNativeSeparators(m_filePath) +
                        QStringLiteral("\" is in use by another program."),
                    QStringLiteral("Nothing was changed in it. Close the other program, or wait until it "
                                   "has finished, and try again."),
                    QStringLiteral("Try Again"), {}) == platform::MsgAction)
                continue;
            closeConnection();
            return false;
        }
        notOpened(QStringLiteral("The season file \"") + QDir::toNativeSeparators(m_filePath) +
                      QStringLiteral("\" is damaged and can't be opened."),
                  QStringLiteral(
                      "Nothing was changed in it. Restore it from a backup copy, or choose another season."));
        return false;
    }
}

bool myDB::connectToDB(const QString &file)
{
    try {
        closeConnection();
        tlynData = std::make_unique<SQLite::Database>(utf8(file), SQLite::OPEN_READWRITE);
    } catch (const SQLite::Exception &e) {
        closeConnection();
        rememberError(e.getErrorCode(), QString::fromUtf8(e.what()));
        DisplayDatabaseError();
        return false;
    }
    // Set before the first read: a file that another program (a sync tool,
    // a backup) holds for a moment is waited for, not taken for damaged.
    tlynData->setBusyTimeout(kBusyTimeoutMs);
    if (m_checked && !verifyIntegrity())
        return false;
    // SQLite falls back to reading only when the file can't be opened for
    // writing; the coach hears it now, not at the first save.
    if (sqlite3_db_readonly(tlynData->getHandle(), "main") == 1) {
        notOpened(QStringLiteral("The season file \"") + QDir::toNativeSeparators(file) +
                      QStringLiteral("\" can only be read."),
                  QStringLiteral("Nothing could be saved in it. Make the file writable, or choose another season."));
        return false;
    }
    configureConnection();
    // An empty file (0 bytes, as a sync tool or an interrupted copy can
    // leave) is a new season: it gets its tables.
    if (tlynData->execAndGet("SELECT COUNT(*) FROM sqlite_master").getInt() == 0)
        return createSchema(file);
    addIndexes();
    return true;
}

void myDB::addIndexes()
{
    // A season made before the indexes and the added tables existed gets
    // them now. They only
    // speed up lookups, so a file that can't take them (a full disk) is
    // still opened and works as before.
    try {
        SQLite::Transaction transaction(*tlynData);
        for (const QString &statement : schema::indexStatements())
            tlynData->exec(utf8(statement));
        transaction.commit();
    } catch (const SQLite::Exception &) {
    }
}

bool myDB::createSchema(const QString &file)
{
    try {
        SQLite::Transaction transaction(*tlynData, SQLite::TransactionBehavior::IMMEDIATE);
        for (const QString &statement : schema::createStatements() + schema::indexStatements())
            tlynData->exec(utf8(statement));
        transaction.commit();
    } catch (const SQLite::Exception &) {
        closeConnection();
        creationFailed(file);
        return false;
    }
    return true;
}

bool myDB::createDBFile(const QString &file)
{
    try {
        closeConnection();
        tlynData = std::make_unique<SQLite::Database>(utf8(file), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
        tlynData->setBusyTimeout(kBusyTimeoutMs);
        configureConnection();
    } catch (const SQLite::Exception &) {
        closeConnection();
        QFile::remove(file);
        creationFailed(file);
        return false;
    }
    if (createSchema(file))
        return true;
    QFile::remove(file);
    return false;
}

void myDB::creationFailed(const QString &file)
{
    platform::messages().msgBox(QStringLiteral("Database Error\nThere was an error when creating the database at <") +
                                QDir::toNativeSeparators(file) + u'>');
}

void myDB::rememberError(int code, const QString &message)
{
    m_lastErrorCode = code;
    m_lastErrorMessage = message;
}

void myDB::clearError()
{
    rememberError(0, {});
}

bool myDB::DisplayDatabaseError()
{
    // Constraint violations (19) are expected by the screens that rely on
    // them, and 0 is no error: both stay quiet.
    if (m_lastErrorCode == 0 || m_lastErrorCode == SQLITE_CONSTRAINT)
        return false;
    platform::messages().msgBox(QStringLiteral("Database Error: ") + QString::number(m_lastErrorCode) + u'\n' +
                                m_lastErrorMessage);
    return true;
}

void myDB::bindAll(SQLite::Statement &statement, const QVariantList &params)
{
    for (int i = 0; i < params.size(); ++i) {
        const QVariant &v = params.at(i);
        const int index = i + 1;
        if (!v.isValid()) {
            statement.bind(index);
            continue;
        }
        switch (v.typeId()) {
        case QMetaType::Bool:
        case QMetaType::Int:
        case QMetaType::UInt:
        case QMetaType::LongLong:
        case QMetaType::ULongLong:
        case QMetaType::Short:
        case QMetaType::UShort:
        case QMetaType::Long:
            statement.bind(index, static_cast<int64_t>(v.toLongLong()));
            break;
        case QMetaType::Double:
        case QMetaType::Float:
            statement.bind(index, v.toDouble());
            break;
        case QMetaType::QByteArray: {
            const QByteArray bytes = v.toByteArray();
            statement.bind(index, bytes.constData(), int(bytes.size()));
            break;
        }
        default:
            statement.bind(index, utf8(v.toString()));
            break;
        }
    }
}

void myDB::fail(const SQLite::Exception &e)
{
    ++m_failures;
    rememberError(e.getErrorCode(), QString::fromUtf8(e.what()));
    if (m_transactionDepth > 0)
        throw;
    DisplayDatabaseError();
}

bool myDB::refuseWriteWithoutSeason()
{
    rememberError(SQLITE_CANTOPEN, QStringLiteral("No season is open."));
    platform::messages().showMsgDlog(QStringLiteral("Nothing was saved: no season is open."),
                                     QStringLiteral("The season file \"") + QDir::toNativeSeparators(m_filePath) +
                                         QStringLiteral("\" could not be opened. Choose a season on the start screen."),
                                     QStringLiteral("OK"), {});
    return false;
}

bool myDB::exec(const QString &sql, const QVariantList &params)
{
    if (!tlynData)
        return refuseWriteWithoutSeason();
    try {
        SQLite::Statement statement(*tlynData, utf8(sql));
        bindAll(statement, params);
        while (statement.executeStep()) {}
        clearError();
        return true;
    } catch (const SQLite::Exception &e) {
        fail(e);
        return false;
    }
}

void myDB::closeConnection()
{
    // A statement still prepared keeps the connection from closing.
    m_prepared.clear();
    tlynData.reset();
}

SQLite::Statement &myDB::prepared(const std::string &sql)
{
    if (!tlynData)
        throw SQLite::Exception("No season is open.", SQLITE_MISUSE);
    std::unique_ptr<SQLite::Statement> &statement = m_prepared[sql];
    if (!statement) {
        statement = std::make_unique<SQLite::Statement>(*tlynData, sql);
    } else {
        // An error of the last run was reported then.
        statement->tryReset();
        statement->clearBindings();
    }
    return *statement;
}

QList<Record> myDB::select(const QString &sql, const QVariantList &params)
{
    QList<Record> rows;
    if (!tlynData)
        return rows;
    try {
        SQLite::Statement statement(*tlynData, utf8(sql));
        bindAll(statement, params);
        QStringList columns;
        for (int c = 0; c < statement.getColumnCount(); ++c)
            columns.append(QString::fromUtf8(statement.getColumnName(c)));
        while (statement.executeStep()) {
            Record row;
            row.columns = columns;
            row.values.reserve(columns.size());
            for (int c = 0; c < columns.size(); ++c)
                row.values.append(columnValue(statement.getColumn(c)));
            rows.append(std::move(row));
        }
        clearError();
    } catch (const SQLite::Exception &e) {
        rows.clear();
        fail(e);
    }
    return rows;
}

QVariant myDB::scalar(const QString &sql, const QVariantList &params)
{
    const QList<Record> rows = select(sql, params);
    if (rows.isEmpty() || rows.first().values.isEmpty())
        return {};
    return rows.first().values.first();
}

qint64 myDB::insert(const QString &table, const Fields &fields)
{
    QStringList names;
    QStringList marks;
    QVariantList values;
    for (const Field &f : fields) {
        names.append(f.first);
        marks.append(QStringLiteral("?"));
        values.append(f.second);
    }
    const QString sql = QStringLiteral("INSERT INTO ") + table + QStringLiteral(" (") + names.join(u',') +
                        QStringLiteral(") VALUES (") + marks.join(u',') + u')';
    if (!exec(sql, values))
        return -1;
    return lastRowId();
}

bool myDB::update(const QString &table, const Fields &fields, const QString &keyColumn, const QVariant &key)
{
    QStringList sets;
    QVariantList values;
    for (const Field &f : fields) {
        sets.append(f.first + QStringLiteral(" = ?"));
        values.append(f.second);
    }
    values.append(key);
    return exec(QStringLiteral("UPDATE ") + table + QStringLiteral(" SET ") + sets.join(QStringLiteral(", ")) +
                    QStringLiteral(" WHERE ") + keyColumn + QStringLiteral(" = ?"),
                values);
}

bool myDB::runInTransaction(const std::function<void()> &body)
{
    if (!tlynData)
        return refuseWriteWithoutSeason();
    if (m_transactionDepth > 0) {
        // Part of a larger step: its failure is the outer step's failure.
        body();
        return true;
    }
    struct Depth
    {
        int &depth;
        explicit Depth(int &d) : depth(d) { ++depth; }
        ~Depth() { --depth; }
    };
    try {
        // IMMEDIATE: the write lock is asked for first, so the busy timeout
        // waits out another program's write; a deferred step that read
        // first would fail at once on its first write.
        SQLite::Transaction transaction(*tlynData, SQLite::TransactionBehavior::IMMEDIATE);
        {
            Depth inside(m_transactionDepth);
            body();
        }
        transaction.commit();
        clearError();
        return true;
    } catch (const SQLite::Exception &e) {
        // The transaction's destructor has rolled the step back. The error
        // is shown even for a constraint: the coach's step did not happen.
        rememberError(e.getErrorCode(), QString::fromUtf8(e.what()));
        platform::messages().msgBox(QStringLiteral("Database Error: ") + QString::number(m_lastErrorCode) + u'\n' +
                                    m_lastErrorMessage);
        return false;
    }
}

qint64 myDB::lastRowId() const
{
    return tlynData ? tlynData->getLastInsertRowid() : -1;
}

QString myDB::getTeamNameFromID(const QString &id, bool full)
{
    const QList<Record> rows = select(QStringLiteral("SELECT TeamName, SchoolName FROM Teams WHERE teamID = ?"), {id});
    if (rows.isEmpty())
        return {};
    const Record &r = rows.first();
    if (full)
        return r.text(QStringLiteral("SchoolName")) + u' ' + r.text(QStringLiteral("TeamName"));
    return r.text(QStringLiteral("TeamName"));
}

QStringList myDB::getAllCurTeams()
{
    QStringList teams;
    for (const Record &r : select(QStringLiteral("SELECT TeamName, SchoolName FROM Teams")))
        teams.append(r.text(QStringLiteral("SchoolName")) + u' ' + r.text(QStringLiteral("TeamName")));
    return teams;
}

void myDB::cleanUpDB()
{
    if (!tlynData)
        return;
    // No transaction is left open between writes here, so there is nothing
    // to end before compacting; VACUUM can't run inside one.
    if (tlynData->getHandle() && !sqlite3_get_autocommit(tlynData->getHandle())) {
        try {
            tlynData->exec("END TRANSACTION");
        } catch (const SQLite::Exception &) {
        }
    }
    exec(QStringLiteral("VACUUM"));
}
