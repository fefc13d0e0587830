// The shared lists and small routines every screen leans on.

#include "app/FileTypes.h"
#include "app/LocaleInfo.h"
#include "app/globals.h"

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QTest>

class TestGlobals : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { gCreateGlobalLists(); }

    void parseTime_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("parts");
        QTest::newRow("afternoon") << QStringLiteral("4:30 PM") << QStringList{"4", "30", "PM"};
        QTest::newRow("two-digit hour") << QStringLiteral("11:05 AM") << QStringList{"11", "05", "AM"};
        QTest::newRow("no time") << QStringLiteral("---") << QStringList{"0", "00", "PM"};
        QTest::newRow("empty") << QString() << QStringList{"0", "00", "PM"};
        QTest::newRow("no colon") << QStringLiteral("noon") << QStringList{"noon", "", ""};
    }
    void parseTime()
    {
        QFETCH(QString, text);
        QFETCH(QStringList, parts);
        const auto got = gParseTimeStr(text);
        QCOMPARE((QStringList{got[0], got[1], got[2]}), parts);
    }

    void email_data()
    {
        QTest::addColumn<QString>("address");
        QTest::addColumn<bool>("valid");
        QTest::newRow("plain") << QStringLiteral("coach@example.org") << true;
        QTest::newRow("dotted and dashed") << QStringLiteral("j.smith-jr@mail.my-school.k12.us") << true;
        QTest::newRow("empty") << QString() << false;
        QTest::newRow("no at") << QStringLiteral("coach.example.org") << false;
        QTest::newRow("no top level") << QStringLiteral("coach@example") << false;
        QTest::newRow("two dots") << QStringLiteral("a..b@example.org") << false;
        QTest::newRow("plus sign") << QStringLiteral("a+b@example.org") << false;
        QTest::newRow("trailing blank") << QStringLiteral("coach@example.org ") << false;
    }
    void email()
    {
        QFETCH(QString, address);
        QFETCH(bool, valid);
        QCOMPARE(gIsEmailValid(address), valid);
    }

    void trims_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("set");
        QTest::addColumn<QString>("left");
        QTest::addColumn<QString>("right");
        QTest::newRow("blanks") << QStringLiteral("  x y  ") << QStringLiteral(" ") << QStringLiteral("x y  ")
                                << QStringLiteral("  x y");
        QTest::newRow("set, not prefix") << QStringLiteral("abcabxa") << QStringLiteral("ab") << QStringLiteral("cabxa")
                                         << QStringLiteral("abcabx");
        QTest::newRow("case-insensitive")
            << QStringLiteral("AaXa") << QStringLiteral("a") << QStringLiteral("Xa") << QStringLiteral("AaX");
        QTest::newRow("all in set") << QStringLiteral("\t\t") << QStringLiteral("\t") << QString() << QString();
        QTest::newRow("word set strips beyond word")
            << QStringLiteral("stats") << QStringLiteral("st") << QStringLiteral("ats") << QStringLiteral("sta");
    }
    void trims()
    {
        QFETCH(QString, text);
        QFETCH(QString, set);
        QFETCH(QString, left);
        QFETCH(QString, right);
        QCOMPARE(LTrim(text, set), left);
        QCOMPARE(RTrim(text, set), right);
    }

    void small()
    {
        QCOMPARE(limitValueRange(5, 1, 3), 3);
        QCOMPARE(limitValueRange(0, 1, 3), 1);
        QCOMPARE(limitValueRange(2, 1, 3), 2);
        QVERIFY(gIsEnterKey(QString(QChar(13))));
        QVERIFY(gIsEnterKey(QString(QChar(3))));
        QVERIFY(!gIsEnterKey(QStringLiteral("\n")));
        QCOMPARE(parseGSI(QString()), QString());
        QCOMPARE(parseGSI(createGSI(QStringLiteral("/tmp/../tmp/x"))), QStringLiteral("/tmp/x"));
    }

    void truncate()
    {
        QFont font(QStringLiteral("DejaVu Sans"), 12);
        const QFontMetricsF fm(font);
        const QString text = QStringLiteral("Jefferson Township Bombers");
        const qreal full = fm.horizontalAdvance(text);
        QCOMPARE(TruncateStr(fm, text, full), text);
        QCOMPARE(TruncateStr(fm, text, 1), QStringLiteral("..."));
        const QString cut = TruncateStr(fm, text, full / 2);
        QVERIFY(cut.endsWith(QStringLiteral("...")));
        QVERIFY(fm.horizontalAdvance(cut) <= full / 2);
        // One more character would no longer fit.
        const QString kept = cut.chopped(3);
        QVERIFY(text.startsWith(kept));
        QVERIFY(fm.horizontalAdvance(text.left(kept.size() + 1) + QStringLiteral("...")) > full / 2);
    }

    void verticalPoints()
    {
        platform::PrinterSetup setup; // Letter with half-inch margins: 720 points high
        QCOMPARE(setup.height(), 720);
        QCOMPARE(gCreateVertPrinterPts(setup, 216), (QList<int>{0, 216, 432}));
        QCOMPARE(gCreateVertPrinterPts(setup, 240), (QList<int>{0, 240, 480}));
        QCOMPARE(gCreateVertPrinterPts(setup, 721), QList<int>{0});
    }

    void printerSetupText_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("valid");
        QTest::newRow("letter landscape") << QStringLiteral("Letter;landscape;18,18,18,18") << true;
        QTest::newRow("a4 portrait") << QStringLiteral("A4;portrait;36,36,36,72") << true;
        QTest::newRow("unknown paper") << QStringLiteral("Napkin;portrait;1,1,1,1") << false;
        QTest::newRow("negative margin") << QStringLiteral("Letter;portrait;-1,1,1,1") << false;
        QTest::newRow("garbage") << QStringLiteral("x") << false;
    }
    void printerSetupText()
    {
        QFETCH(QString, text);
        QFETCH(bool, valid);
        const auto setup = platform::PrinterSetup::fromString(text);
        QCOMPARE(bool(setup), valid);
        if (setup)
            QCOMPARE(setup->toString(), text);
    }

    void fileTypes_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<bool>("season");
        QTest::addColumn<bool>("picture");
        QTest::newRow("season") << QStringLiteral("tlData_2026.sqlite") << true << false;
        QTest::newRow("season, capitals") << QStringLiteral("TLDATA_X.SQLITE") << true << false;
        QTest::newRow("backup journal") << QStringLiteral("tlData_2026.sqlite-journal") << false << false;
        QTest::newRow("logo") << QStringLiteral("Hawks Logo.JPEG") << false << true;
        QTest::newRow("tiff") << QStringLiteral("team.tif") << false << true;
        QTest::newRow("plan") << QStringLiteral("Monday.pplan") << false << false;
    }
    void fileTypes()
    {
        QFETCH(QString, file);
        QFETCH(bool, season);
        QFETCH(bool, picture);
        QCOMPARE(FileTypes::isSeasonFile(file), season);
        QCOMPARE(FileTypes::AllPicts().matches(file), picture);
        QCOMPARE(FileTypes::PlanFile().matches(file), file.endsWith(QStringLiteral(".pplan")));
        QVERIFY(FileTypes::pPng.nameFilter() == QStringLiteral("png (*.png)"));
        QVERIFY(FileTypes::pAllPicts.nameFilter().startsWith(QStringLiteral("all_picts (*.gif *.jfif *.jpe *.jpeg")));
    }

    void localeNames()
    {
        QCOMPARE(LocaleInfo::MonthName(1), QStringLiteral("January"));
        QCOMPARE(LocaleInfo::MonthNameAbbrev(5), QStringLiteral("May"));
        QCOMPARE(LocaleInfo::MonthNameAbbrev(9), QStringLiteral("Sep"));
        QCOMPARE(LocaleInfo::DayName(7), QStringLiteral("Saturday"));
        QCOMPARE(LocaleInfo::DayNameAbbrev(4), QStringLiteral("Wed"));
        QCOMPARE(LocaleInfo::MonthName(13), QString());
        QCOMPARE(LocaleInfo::DayName(0), QString());
    }
};

QTEST_MAIN(TestGlobals)
#include "tst_globals.moc"
