// The preference file: its byte layout, round trips, damaged files and the
// first-run values.

#include "app/globals.h"
#include "app/myPrefs.h"
#include "fakes/FakePlatform.h"

#include <QDataStream>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

class TestPrefs : public QObject
{
    Q_OBJECT

private:
    static QByteArray readFile(const QString &path)
    {
        QFile f(path);
        return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
    }
    static void writeFile(const QString &path, const QByteArray &bytes)
    {
        QFile f(path);
        QVERIFY(f.open(QIODevice::WriteOnly | QIODevice::Truncate));
        f.write(bytes);
    }

private Q_SLOTS:
    void firstRunCreatesFoldersAndDefaults()
    {
        fakes::FakePlatform fake;
        QTemporaryDir root;
        myPrefs prefs(root.path() + QStringLiteral("/share"));
        QVERIFY(prefs.storageFound());
        QCOMPARE(prefs.strdDataLoc, QDir(root.path()).filePath(QStringLiteral("share/QLM/TLYN2")));
        QCOMPARE(prefs.prVersNum, 220);
        QVERIFY(prefs.prLogoOnStart && prefs.prLogoOnReport);
        QCOMPARE(prefs.prEmailPort, quint16(25));
        QCOMPARE(prefs.prLastDBClean, double(fake.clock.time.toSecsSinceEpoch()));
        QVERIFY(!prefs.prefsDirty);
        QVERIFY(fake.messages.shown.isEmpty());
    }

    void byteLayout()
    {
        fakes::FakePlatform fake;
        QTemporaryDir root;
        myPrefs prefs(root.path());
        prefs.prHomeTeam.clear();
        prefs.prSeason = QStringLiteral("Spring");
        prefs.prLogoOnStart = true;
        prefs.prLogoOnReport = false;
        prefs.prInnings = QStringLiteral("7 Innings");
        prefs.prLineUp = QStringLiteral("10 Players");
        prefs.prDataBackupLoc = QStringLiteral("/b");
        prefs.prAbbrevPos = QStringLiteral("P,C");
        prefs.prPositions = QStringLiteral("Pitcher,Catcher");
        prefs.prGameTypes = QStringLiteral("League");
        prefs.prEmailServer = QStringLiteral("m");
        prefs.prEmailUser.clear();
        prefs.prEmailPW = QStringLiteral("pw");
        prefs.prEmailPort = 587;
        prefs.prEmailAuth = true;
        prefs.prUDB = QStringLiteral("a");
        prefs.prUDF = QStringLiteral("b");
        prefs.prUDP.clear();
        prefs.prBackupFreq = 300; // only the low byte fits: 44
        prefs.prLastDBClean = 1.5;
        prefs.writePrefs();

        QByteArray expected;
        QDataStream out(&expected, QIODevice::WriteOnly);
        out.setByteOrder(QDataStream::BigEndian);
        out.setFloatingPointPrecision(QDataStream::DoublePrecision);
        const auto raw = [&](const QByteArray &b) { out.writeRawData(b.constData(), int(b.size())); };
        out << qint32(220);
        raw(QByteArray("\x00", 1));
        raw("\x06Spring");
        out << quint8(1) << quint8(0);
        raw("\x09"
            "7 Innings");
        raw("\x0a"
            "10 Players");
        out << double(4);
        raw("L2I="); // base64 of "/b"
        out << double(3);
        raw("P,C");
        out << double(15);
        raw("Pitcher,Catcher");
        out << double(6);
        raw("League");
        raw("\x04"
            "bQ==");
        raw(QByteArray("\x00", 1));
        raw("\x04"
            "cHc=");
        out << quint16(587) << quint8(1);
        raw("\x01"
            "a");
        raw("\x01"
            "b");
        raw(QByteArray("\x00", 1));
        out << quint8(44) << double(1.5);

        QCOMPARE(readFile(prefs.prefsFilePath()), expected);
    }

    void roundTrip()
    {
        fakes::FakePlatform fake;
        QTemporaryDir root;
        myPrefs prefs(root.path());
        prefs.prHomeTeam = QStringLiteral("12");
        prefs.prSeason = QStringLiteral("O'Brien's \"Fall\" 2026; é");
        prefs.prDataBackupLoc = QStringLiteral("/media/coach/USB stick/") + QString(200, u'x');
        prefs.prGameTypes = QString(600, u'g');
        prefs.prEmailServer = QStringLiteral("smtp.example.org");
        prefs.prEmailUser = QStringLiteral("coach");
        prefs.prEmailPW = QStringLiteral("s3cr3t!");
        prefs.prBackupFreq = 15;
        prefs.prLastDBClean = 1234567890.0;
        prefs.writePrefs();

        myPrefs again(root.path());
        QCOMPARE(again.prHomeTeam, prefs.prHomeTeam);
        QCOMPARE(again.prSeason, prefs.prSeason);
        QCOMPARE(again.prDataBackupLoc, prefs.prDataBackupLoc);
        QCOMPARE(again.prGameTypes, prefs.prGameTypes);
        QCOMPARE(again.prEmailServer, prefs.prEmailServer);
        QCOMPARE(again.prEmailUser, prefs.prEmailUser);
        QCOMPARE(again.prEmailPW, prefs.prEmailPW);
        QCOMPARE(again.prUDB, prefs.prUDB);
        QCOMPARE(again.prBackupFreq, 15);
        QCOMPARE(again.prLastDBClean, 1234567890.0);
        QCOMPARE(again.encode(), prefs.encode());
        QVERIFY(fake.messages.shown.isEmpty());
    }

    // A Pascal-string field never claims more bytes than it has: long text
    // is cut at the last whole character that fits.
    void pascalStringLimit_data()
    {
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("stored");
        QTest::newRow("exactly 255") << QString(255, u'a') << QString(255, u'a');
        QTest::newRow("256 ascii") << QString(256, u'a') << QString(255, u'a');
        // 127 two-byte characters are 254 bytes; the 128th would make 256.
        QTest::newRow("two-byte characters") << QString(200, QChar(0xE9)) << QString(127, QChar(0xE9));
        QTest::newRow("emoji at the edge") << (QString(253, u'a') + QStringLiteral("\U0001F600")) << QString(253, u'a');
    }
    void pascalStringLimit()
    {
        QFETCH(QString, value);
        QFETCH(QString, stored);
        fakes::FakePlatform fake;
        QTemporaryDir root;
        myPrefs prefs(root.path());
        prefs.prUDB = value;
        prefs.prEmailPW = value;
        prefs.writePrefs();
        myPrefs again(root.path());
        QCOMPARE(again.prUDB, stored);
        // The password is kept as base64: its encoded form must fit, so less of it survives.
        QVERIFY(value.startsWith(again.prEmailPW));
        QVERIFY(again.prEmailPW.toUtf8().toBase64().size() <= 255);
        QVERIFY(fake.messages.shown.isEmpty());
    }

    // Every possible truncation of a valid file reads without a crash, keeps
    // what could be read and reports the damage.
    void everyTruncation()
    {
        fakes::FakePlatform fake;
        QTemporaryDir root;
        myPrefs prefs(root.path());
        prefs.prHomeTeam = QStringLiteral("7");
        prefs.prSeason = QStringLiteral("Legion 2026");
        prefs.prEmailServer = QStringLiteral("mail.example.org");
        prefs.writePrefs();
        const QByteArray whole = readFile(prefs.prefsFilePath());
        QVERIFY(whole.size() > 100);

        for (qsizetype cut = 0; cut < whole.size(); ++cut) {
            writeFile(prefs.prefsFilePath(), whole.left(cut));
            fake.messages.clear();
            myPrefs damaged(root.path());
            QVERIFY2(fake.messages.texts() ==
                         QStringList{QStringLiteral("There was a file error reading the Prefs File")},
                     qPrintable(QStringLiteral("cut at %1").arg(cut)));
            // Field 2 (home team) is whole from byte 6 on, field 3 from byte 18.
            if (cut >= 6)
                QCOMPARE(damaged.prHomeTeam, QStringLiteral("7"));
            if (cut >= 18)
                QCOMPARE(damaged.prSeason, QStringLiteral("Legion 2026"));
            else
                QCOMPARE(damaged.prSeason, QStringLiteral("2026")); // first-run value behind the damage
            QVERIFY(!damaged.prInnings.isEmpty());
        }
    }

    // A damaged file can hold a season that can't name a file; the current
    // year's season takes its place, and the coach hears the file was bad.
    void seasonThatCannotNameAFile_data()
    {
        QTest::addColumn<QString>("season");
        QTest::addColumn<bool>("replaced");
        QTest::newRow("nothing") << QString() << true;
        QTest::newRow("NUL") << QStringLiteral("20\u000026") << true;
        QTest::newRow("tab") << QStringLiteral("2026\tFall") << true;
        QTest::newRow("line end") << QStringLiteral("2026\n") << true;
        QTest::newRow("slash") << QStringLiteral("2026/Fall") << true;
        QTest::newRow("backslash") << QStringLiteral("..\\2026") << true;
        QTest::newRow("too long for a file's name") << QString(101, QChar(0xE9)) << true;
        QTest::newRow("the longest that names a file") << QString(100, QChar(0xE9)) << false;
        QTest::newRow("blanks, quotes and accents stay") << QStringLiteral("Fall '26 Légion") << false;
    }
    void seasonThatCannotNameAFile()
    {
        QFETCH(QString, season);
        QFETCH(bool, replaced);
        fakes::FakePlatform fake;
        QTemporaryDir root;
        {
            myPrefs prefs(root.path());
            prefs.prSeason = season;
            prefs.prHomeTeam = QStringLiteral("3");
            prefs.writePrefs();
        }
        myPrefs again(root.path());
        QCOMPARE(again.prSeason, replaced ? QStringLiteral("2026") : season);
        QCOMPARE(again.prHomeTeam, QStringLiteral("3"));
        QCOMPARE(again.prefsDirty, replaced);
        QCOMPARE(fake.messages.texts(),
                 replaced ? QStringList{QStringLiteral("There was a file error reading the Prefs File")}
                          : QStringList());
    }

    void damagedCountIsRefused()
    {
        fakes::FakePlatform fake;
        QTemporaryDir root;
        myPrefs prefs(root.path());
        QByteArray bytes = prefs.encode();
        // Field 8's count starts after version(4) + "" (1) + "2026" (5) + 2 flags
        // + "9 Innings" (10) + "9 Players" (10) = byte 32: claim a huge length.
        QDataStream patch(&bytes, QIODevice::ReadWrite);
        patch.setByteOrder(QDataStream::BigEndian);
        patch.device()->seek(32);
        patch << double(1e12);
        writeFile(prefs.prefsFilePath(), bytes);
        myPrefs again(root.path());
        QCOMPARE(fake.messages.texts(), QStringList{QStringLiteral("There was a file error reading the Prefs File")});
        QCOMPARE(again.prLineUp, QStringLiteral("9 Players"));
        QCOMPARE(again.prAbbrevPos, prefs.prAbbrevPos); // first-run value
    }

    void dbCleanDue_data()
    {
        QTest::addColumn<qint64>("age");
        QTest::addColumn<bool>("due");
        QTest::newRow("exactly 14 days") << qint64(1209600) << false;
        QTest::newRow("14 days and a second") << qint64(1209601) << true;
    }
    void dbCleanDue()
    {
        QFETCH(qint64, age);
        QFETCH(bool, due);
        fakes::FakePlatform fake;
        QTemporaryDir root;
        myPrefs prefs(root.path());
        prefs.reinitDBClean();
        QVERIFY(!prefs.prefsDirty);
        fake.clock.time = fake.clock.time.addSecs(age);
        QCOMPARE(prefs.isDBCleanDue(), due);
    }

    void backupFolderChoice()
    {
        fakes::FakePlatform fake;
        QTemporaryDir root;
        QTemporaryDir stick;
        myPrefs prefs(root.path());

        QCOMPARE(prefs.getUserBUFolder(), QString()); // cancelled
        QVERIFY(!prefs.prefsDirty);
        QCOMPARE(fake.files.calls.size(), 1);
        QCOMPARE(fake.files.calls[0].request.title, QStringLiteral("TLYN2 Backup Location"));
        QCOMPARE(fake.files.calls[0].request.actionCaption, QStringLiteral("Select"));

        fake.files.answers.enqueue(stick.path());
        const QString gsi = prefs.getUserBUFolder();
        QCOMPARE(parseGSI(gsi), QDir(stick.path()).absolutePath());
        QCOMPARE(prefs.prDataBackupLoc, gsi);
        QVERIFY(prefs.prefsDirty);
        QVERIFY(QDir(stick.path()).exists(QStringLiteral("TLYN2_backup")));
    }

    void unwritableDataFolderIsReported()
    {
        fakes::FakePlatform fake;
        QTemporaryDir root;
        // A file where the data folder's parent should be: nothing can be made.
        writeFile(QDir(root.path()).filePath(QStringLiteral("QLM")), "not a folder");
        myPrefs prefs(root.path());
        QVERIFY(!prefs.storageFound());
    }
};

QTEST_GUILESS_MAIN(TestPrefs)
#include "tst_prefs.moc"
