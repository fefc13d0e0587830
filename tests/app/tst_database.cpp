// The season file (its schema is in tst_fixedtexts): bound values, quiet constraint errors and
// the files it refuses.

#include "app/Schema.h"
#include "app/myDB.h"
#include "fakes/FakePlatform.h"

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>

#include <atomic>
#include <chrono>
#include <thread>

#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <unistd.h>

// Makes a file that can't be opened for writing, even by root: without
// write permission, and immutable where the file system allows it. True
// when the file is read-only now.
bool makeReadOnly(const QString &path)
{
    QFile::setPermissions(path, QFileDevice::ReadOwner);
    if (QFile(path).open(QIODevice::ReadWrite)) {
        const int fd = ::open(QFile::encodeName(path).constData(), O_RDONLY);
        int flags = 0;
        if (fd >= 0 && ::ioctl(fd, FS_IOC_GETFLAGS, &flags) == 0) {
            flags |= FS_IMMUTABLE_FL;
            ::ioctl(fd, FS_IOC_SETFLAGS, &flags);
        }
        if (fd >= 0)
            ::close(fd);
    }
    return !QFile(path).open(QIODevice::ReadWrite);
}

// Lifts the immutable flag again, so the temporary folder can go.
void makeWritable(const QString &path)
{
    const int fd = ::open(QFile::encodeName(path).constData(), O_RDONLY);
    int flags = 0;
    if (fd >= 0 && ::ioctl(fd, FS_IOC_GETFLAGS, &flags) == 0 && (flags & FS_IMMUTABLE_FL)) {
        flags &= ~FS_IMMUTABLE_FL;
        ::ioctl(fd, FS_IOC_SETFLAGS, &flags);
    }
    if (fd >= 0)
        ::close(fd);
}

class TestDatabase : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void quotesAndSemicolonsAreJustText()
    {
        fakes::FakePlatform fake;
        QTemporaryDir dir;
        myDB db(dir.path(), QStringLiteral("2026"));
        const QString name = QStringLiteral("O'Brien's \"Bombers\"; DROP TABLE Teams; --");
        const QString school = QStringLiteral("St. Mary's\tNorth");
        const qint64 id = db.insert(QStringLiteral("Teams"), {{QStringLiteral("TeamName"), name},
                                                              {QStringLiteral("SchoolName"), school},
                                                              {QStringLiteral("Active"), 1}});
        QVERIFY(id > 0);
        QCOMPARE(db.getTeamNameFromID(QString::number(id), false), name);
        QCOMPARE(db.getTeamNameFromID(QString::number(id), true), school + u' ' + name);
        QCOMPARE(db.getAllCurTeams(), QStringList{school + u' ' + name});
        QVERIFY(db.update(QStringLiteral("Teams"), {{QStringLiteral("League"), QStringLiteral("'; --")}},
                          QStringLiteral("teamID"), id));
        QCOMPARE(db.scalar(QStringLiteral("SELECT League FROM Teams WHERE teamID = ?"), {id}).toString(),
                 QStringLiteral("'; --"));
        QVERIFY(fake.messages.shown.isEmpty());
    }

    void unknownTeamGivesEmptyText()
    {
        fakes::FakePlatform fake;
        QTemporaryDir dir;
        myDB db(dir.path(), QStringLiteral("2026"));
        QCOMPARE(db.getTeamNameFromID(QStringLiteral("99"), true), QString());
        QCOMPARE(db.getTeamNameFromID(QStringLiteral("99"), false), QString());
        QCOMPARE(db.getTeamNameFromID(QStringLiteral("x' OR '1'='1"), false), QString());
    }

    void errorCodes_data()
    {
        QTest::addColumn<QString>("sql");
        QTest::addColumn<int>("code");
        QTest::addColumn<bool>("shown");
        QTest::newRow("constraint (19) stays quiet")
            << QStringLiteral("INSERT INTO Teams (teamID, TeamName) VALUES (1, 'again')") << 19 << false;
        QTest::newRow("not null is a constraint too")
            << QStringLiteral("INSERT INTO Hitting (playerID) VALUES (NULL)") << 19 << false;
        QTest::newRow("syntax error is shown") << QStringLiteral("SELEKT 1") << 1 << true;
        QTest::newRow("missing table is shown") << QStringLiteral("DELETE FROM Nowhere") << 1 << true;
    }
    void errorCodes()
    {
        QFETCH(QString, sql);
        QFETCH(int, code);
        QFETCH(bool, shown);
        fakes::FakePlatform fake;
        QTemporaryDir dir;
        myDB db(dir.path(), QStringLiteral("2026"));
        QVERIFY(db.exec(QStringLiteral("INSERT INTO Teams (teamID, TeamName) VALUES (1, 'first')")));
        QVERIFY(!db.exec(sql));
        QCOMPARE(db.lastErrorCode(), code);
        QCOMPARE(fake.messages.shown.size(), shown ? 1 : 0);
        if (shown)
            QVERIFY(fake.messages.shown.first().message.startsWith(QStringLiteral("Database Error: 1\n")));
        QCOMPARE(db.DisplayDatabaseError(), shown);
        QVERIFY(db.exec(QStringLiteral("SELECT 1")));
        QCOMPARE(db.DisplayDatabaseError(), false);
    }

    // One step of five writes, through every path a store uses. A trigger
    // that raises stops it at each statement in turn: the step must leave
    // the file exactly as it was and say so once, whatever the error code.
    void transactionIsAllOrNothing_data()
    {
        QTest::addColumn<QString>("trigger");
        QTest::newRow("nothing fails") << QString();
        QTest::newRow("insert()") << QStringLiteral("BEFORE INSERT ON Teams");
        QTest::newRow("update()") << QStringLiteral("BEFORE UPDATE ON Teams");
        QTest::newRow("exec()") << QStringLiteral("BEFORE INSERT ON Players");
        QTest::newRow("statement on tlynData") << QStringLiteral("BEFORE DELETE ON Schedule");
        QTest::newRow("last write, nested step") << QStringLiteral("BEFORE INSERT ON Drills");
    }
    void transactionIsAllOrNothing()
    {
        QFETCH(QString, trigger);
        fakes::FakePlatform fake;
        QTemporaryDir dir;
        QByteArray before;
        {
            myDB db(dir.path(), QStringLiteral("2026"));
            QVERIFY(db.exec(QStringLiteral("INSERT INTO Schedule (Event, position) VALUES ('Game', 0)")));
        }
        const QString path = QDir(dir.path()).filePath(myDB::getCurDBFileName(QStringLiteral("2026")));
        {
            QFile f(path);
            QVERIFY(f.open(QIODevice::ReadOnly));
            before = f.readAll();
        }
        myDB db(dir.path(), QStringLiteral("2026"));
        if (!trigger.isEmpty())
            QVERIFY(db.exec(QStringLiteral("CREATE TEMP TRIGGER forced ") + trigger +
                            QStringLiteral(" BEGIN SELECT RAISE(ABORT, 'forced'); END")));
        int reached = 0;
        const bool ok = db.runInTransaction([&] {
            const qint64 team = db.insert(QStringLiteral("Teams"),
                                          {{QStringLiteral("TeamName"), QStringLiteral("Hawks")}});
            ++reached;
            db.update(QStringLiteral("Teams"), {{QStringLiteral("League"), QStringLiteral("North")}},
                      QStringLiteral("teamID"), team);
            ++reached;
            db.exec(QStringLiteral("INSERT INTO Players (TeamNum, First) VALUES (?, 'Al')"), {team});
            ++reached;
            SQLite::Statement raw(*db.tlynData, "DELETE FROM Schedule");
            raw.exec();
            ++reached;
            QVERIFY(
                db.runInTransaction([&] { db.exec(QStringLiteral("INSERT INTO Drills (Drill) VALUES ('Bunts')")); }));
            ++reached;
        });
        const QString counts = QStringLiteral(
            "SELECT (SELECT COUNT(*) FROM Teams WHERE League = 'North') || ',' || "
            "(SELECT COUNT(*) FROM Players) || ',' || (SELECT COUNT(*) FROM Schedule) "
            "|| ',' || (SELECT COUNT(*) FROM Drills)");
        if (trigger.isEmpty()) {
            QVERIFY(ok);
            QCOMPARE(reached, 5);
            QVERIFY(fake.messages.shown.isEmpty());
            QCOMPARE(db.scalar(counts).toString(), QStringLiteral("1,1,0,1"));
            return;
        }
        QVERIFY(!ok);
        QCOMPARE(db.scalar(counts).toString(), QStringLiteral("0,0,1,0"));
        QCOMPARE(fake.messages.shown.size(), 1);
        QVERIFY2(fake.messages.shown.first().message.startsWith(QStringLiteral("Database Error: 19\n")),
                 qPrintable(fake.messages.shown.first().message));
        QFile f(path);
        QVERIFY(f.open(QIODevice::ReadOnly));
        QVERIFY(f.readAll() == before);
        // The connection is usable again at once.
        QVERIFY(db.exec(QStringLiteral("DROP TRIGGER temp.forced")));
        QVERIFY(db.runInTransaction([&] { db.exec(QStringLiteral("DELETE FROM Schedule")); }));
        QCOMPARE(db.scalar(QStringLiteral("SELECT COUNT(*) FROM Schedule")).toInt(), 0);
    }

    void refusedSeasonNames_data()
    {
        QTest::addColumn<QString>("season");
        QTest::newRow("slash") << QStringLiteral("2026/Fall");
        QTest::newRow("into a missing folder") << QStringLiteral("x/../../nowhere/y");
    }
    void refusedSeasonNames()
    {
        QFETCH(QString, season);
        fakes::FakePlatform fake;
        QTemporaryDir dir;
        myDB db(dir.path(), season);
        QVERIFY(!db.isConnected());
        QCOMPARE(fake.messages.shown.size(), 1);
        QCOMPARE(fake.messages.shown.first().message,
                 QStringLiteral("Database Error\nThere was an error when creating the database at <") +
                     QDir::toNativeSeparators(QDir(dir.path()).filePath(myDB::getCurDBFileName(season))) + u'>');
        // An unconnected season answers nothing, and a write says it failed.
        QVERIFY(db.select(QStringLiteral("SELECT * FROM Teams")).isEmpty());
        QVERIFY(!db.exec(QStringLiteral("DELETE FROM Teams")));
        QVERIFY(!db.runInTransaction([] {}));
        QCOMPARE(fake.messages.shown.size(), 3);
        QCOMPARE(fake.messages.shown.at(2).message, QStringLiteral("Nothing was saved: no season is open."));
        QCOMPARE(db.getTeamNameFromID(QStringLiteral("1"), true), QString());
    }

    void damagedFileIsNeverWritten()
    {
        fakes::FakePlatform fake;
        QTemporaryDir dir;
        const QString path = QDir(dir.path()).filePath(myDB::getCurDBFileName(QStringLiteral("2025")));
        QByteArray junk("SQLite format 3");
        junk.append(QByteArray(4096, '\x5a'));
        {
            QFile f(path);
            QVERIFY(f.open(QIODevice::WriteOnly));
            f.write(junk);
        }
        myDB db(dir.path(), QStringLiteral("2025"));
        QVERIFY(!db.isConnected());
        QCOMPARE(fake.messages.shown.size(), 1);
        QVERIFY(fake.messages.shown.first().message.contains(QDir::toNativeSeparators(path)));
        QFile f(path);
        QVERIFY(f.open(QIODevice::ReadOnly));
        QCOMPARE(f.readAll(), junk);
    }

    // What an existing season file turns into when it is opened.
    void openingExistingFile_data()
    {
        QTest::addColumn<QString>("state");
        QTest::addColumn<bool>("connected");
        QTest::addColumn<QString>("message");
        QTest::newRow("held by another program for a moment") << QStringLiteral("locked") << true << QString();
        QTest::newRow("0 bytes: a new season") << QStringLiteral("empty") << true << QString();
        QTest::newRow("read only: named now")
            << QStringLiteral("readonly") << false << QStringLiteral("\" can only be read.");
    }
    void openingExistingFile()
    {
        QFETCH(QString, state);
        QFETCH(bool, connected);
        QFETCH(QString, message);
        fakes::FakePlatform fake;
        QTemporaryDir dir;
        const QString path = QDir(dir.path()).filePath(myDB::getCurDBFileName(QStringLiteral("2026")));
        if (state == u"empty") {
            QFile f(path);
            QVERIFY(f.open(QIODevice::WriteOnly));
        } else {
            myDB made(dir.path(), QStringLiteral("2026"));
        }
        std::thread holder;
        std::atomic<bool> held = false;
        if (state == u"locked") {
            holder = std::thread([&] {
                SQLite::Database other(path.toStdString(), SQLite::OPEN_READWRITE);
                other.exec("BEGIN EXCLUSIVE");
                held = true;
                std::this_thread::sleep_for(std::chrono::milliseconds(300));
                other.exec("COMMIT");
            });
            while (!held)
                std::this_thread::yield();
        }
        if (state == u"readonly" && !makeReadOnly(path)) {
            makeWritable(path);
            QSKIP("this file system lets the test's user write to any file");
        }
        const auto cleanUp = qScopeGuard([&] { makeWritable(path); });

        myDB db(dir.path(), QStringLiteral("2026"));
        if (holder.joinable())
            holder.join();
        QCOMPARE(db.isConnected(), connected);
        if (message.isEmpty()) {
            QCOMPARE(fake.messages.texts(), QStringList());
            QCOMPARE(db.scalar(QStringLiteral("SELECT COUNT(*) FROM sqlite_master WHERE type = 'table' AND name <> "
                                              "'sqlite_sequence'"))
                         .toInt(),
                     int(schema::tableNames().size() +
                         std::count_if(schema::addedTableStatements().cbegin(), schema::addedTableStatements().cend(),
                                       [](const QString &st) { return st.startsWith(u"CREATE TABLE"); })));
            QVERIFY(db.exec(QStringLiteral("INSERT INTO Teams (TeamName) VALUES ('Hawks')")));
        } else {
            QCOMPARE(fake.messages.shown.size(), 1);
            QCOMPARE(fake.messages.shown.first().message,
                     QStringLiteral("The season file \"") + QDir::toNativeSeparators(path) + message);
        }
    }

    // A write step asks for the write lock first, so another program's
    // write is waited out (the busy timeout) instead of failing at once.
    void writeStepWaitsForAnotherWriter()
    {
        fakes::FakePlatform fake;
        QTemporaryDir dir;
        myDB db(dir.path(), QStringLiteral("2026"));
        std::atomic<bool> held = false;
        std::thread holder([&, path = db.filePath().toStdString()] {
            SQLite::Database other(path, SQLite::OPEN_READWRITE);
            other.exec("BEGIN IMMEDIATE");
            other.exec("INSERT INTO Teams (TeamName) VALUES ('Hawks')");
            held = true;
            std::this_thread::sleep_for(std::chrono::milliseconds(1500));
            other.exec("COMMIT");
        });
        while (!held)
            std::this_thread::yield();
        const bool ok = db.runInTransaction([&] {
            const int before = db.scalar(QStringLiteral("SELECT COUNT(*) FROM Teams")).toInt();
            db.insert(QStringLiteral("Teams"), {{QStringLiteral("TeamName"), QString::number(before)}});
        });
        holder.join();
        QVERIFY(ok);
        QCOMPARE(fake.messages.texts(), QStringList());
        QCOMPARE(db.scalar(QStringLiteral("SELECT group_concat(TeamName, ',') FROM Teams")).toString(),
                 QStringLiteral("Hawks,1"));
    }

    // Held by another program past the busy timeout: in use, not damaged;
    // the coach can try again.
    void heldPastTheTimeoutIsInUse()
    {
        fakes::FakePlatform fake;
        fake.messages.strict = true;
        QTemporaryDir dir;
        const QString path = QDir(dir.path()).filePath(myDB::getCurDBFileName(QStringLiteral("2026")));
        {
            myDB made(dir.path(), QStringLiteral("2026"));
            made.insert(QStringLiteral("Teams"), {{QStringLiteral("TeamName"), QStringLiteral("Hawks")}});
        }
        std::atomic<bool> held = false;
        std::thread holder([&] {
            SQLite::Database other(path.toStdString(), SQLite::OPEN_READWRITE);
            other.exec("BEGIN EXCLUSIVE");
            held = true;
            std::this_thread::sleep_for(std::chrono::milliseconds(6500));
            other.exec("COMMIT");
        });
        while (!held)
            std::this_thread::yield();
        fake.messages.answers.enqueue(platform::MsgAction);
        myDB db(dir.path(), QStringLiteral("2026"));
        holder.join();
        QCOMPARE(fake.messages.texts(),
                 QStringList{QStringLiteral("The season file \"") + QDir::toNativeSeparators(path) +
                             QStringLiteral("\" is in use by another program.")});
        QCOMPARE(fake.messages.shown.first().actionCaption, QStringLiteral("Try Again"));
        QVERIFY(db.isConnected());
        QCOMPARE(db.scalar(QStringLiteral("SELECT TeamName FROM Teams")).toString(), QStringLiteral("Hawks"));
    }

    // A season written before the indexes existed gets them when it is
    // opened, with every stored value as it was, and the lookups use them.
    void olderSeasonGetsIndexes()
    {
        fakes::FakePlatform fake;
        QTemporaryDir dir;
        const QString path = QDir(dir.path()).filePath(myDB::getCurDBFileName(QStringLiteral("2019")));
        const auto dump = [&] {
            SQLite::Database raw(path.toStdString());
            QStringList rows;
            for (const QString &table : schema::tableNames()) {
                SQLite::Statement all(raw, "SELECT * FROM " + table.toStdString() + " ORDER BY rowid");
                while (all.executeStep()) {
                    QStringList values{table};
                    for (int c = 0; c < all.getColumnCount(); ++c)
                        values << QString::number(all.getColumn(c).getType()) +
                                      QString::fromUtf8(
                                          QByteArray(static_cast<const char *>(all.getColumn(c).getBlob()),
                                                     all.getColumn(c).getBytes()));
                    rows << values.join(u'|');
                }
            }
            return rows;
        };
        {
            SQLite::Database old(path.toStdString(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
            for (const QString &statement : schema::createStatements())
                old.exec(statement.toStdString());
            old.exec("INSERT INTO Games (schedID, TeamAPlayers, recorded) VALUES ('12', '1\tP\tAl', 0), (7, "
                     "'x', 1)");
            old.exec("INSERT INTO GamesIndivPitching (gameID, playerID, stats, totKs) VALUES ('12', 3, '4.2', 6)");
            old.exec("INSERT INTO Hitting (playerID, AB, B1) VALUES (3, 40, 12)");
            old.exec("INSERT INTO Players (TeamNum, Last, PlayerPic) VALUES (1, 'O''Hara', x'00ff10')");
        }
        const QStringList before = dump();
        QCOMPARE(before.size(), 5);

        {
            myDB db(dir.path(), QStringLiteral("2019"));
            QVERIFY(db.isConnected());
            QCOMPARE(db.scalar(QStringLiteral("SELECT COUNT(*) FROM sqlite_master WHERE type = 'index' AND name LIKE "
                                              "'idx_%'"))
                         .toInt(),
                     int(std::count_if(schema::indexStatements().cbegin(), schema::indexStatements().cend(),
                                       [](const QString &st) { return st.startsWith(u"CREATE INDEX"); })));
            // The change log's table is added beside the indexes.
            QCOMPARE(db.scalar(QStringLiteral("SELECT COUNT(*) FROM GameChanges")).toInt(), 0);
            QCOMPARE(
                db.scalar(QStringLiteral("SELECT COUNT(*) FROM sqlite_master WHERE name = 'DefenseMoves'")).toInt(), 1);
            // The values bound as the program binds them: ids of game rows as text.
            const QList<std::pair<QString, QString>> lookups = {
                {QStringLiteral("SELECT * FROM Games WHERE schedID = ?"), QStringLiteral("idx_Games_schedID")},
                {QStringLiteral("SELECT * FROM GamesIndivPitching WHERE gameID = ?"),
                 QStringLiteral("idx_GamesIndivPitching_gameID")},
                {QStringLiteral("SELECT * FROM GamesIndivHitting WHERE playerID = ?"),
                 QStringLiteral("idx_GamesIndivHitting_playerID")},
                {QStringLiteral("SELECT * FROM Hitting WHERE playerID IN (?)"), QStringLiteral("idx_Hitting_playerID")},
            };
            for (const auto &[sql, index] : lookups) {
                const QList<Record> plan = db.select(QStringLiteral("EXPLAIN QUERY PLAN ") + sql,
                                                     {QStringLiteral("12")});
                QVERIFY2(!plan.isEmpty() && plan.first().text(QStringLiteral("detail")).contains(index),
                         qPrintable(sql));
            }
            QCOMPARE(db.select(QStringLiteral("SELECT TeamAPlayers FROM Games WHERE schedID = ?"), {7}).size(), 1);
        }
        myDB again(dir.path(), QStringLiteral("2019")); // opening again changes nothing either
        QVERIFY(again.isConnected());
        QCOMPARE(dump(), before);
    }

    void cleanUpCompacts()
    {
        fakes::FakePlatform fake;
        QTemporaryDir dir;
        myDB db(dir.path(), QStringLiteral("2026"));
        const QByteArray big(200000, 'x');
        for (int i = 0; i < 5; ++i)
            db.insert(QStringLiteral("Teams"),
                      {{QStringLiteral("TeamName"), QString::number(i)}, {QStringLiteral("TeamLogo"), big}});
        db.exec(QStringLiteral("DELETE FROM Teams"));
        const qint64 before = QFileInfo(db.filePath()).size();
        db.cleanUpDB();
        QVERIFY(QFileInfo(db.filePath()).size() < before / 4);
        QVERIFY(fake.messages.shown.isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestDatabase)
#include "tst_database.moc"
