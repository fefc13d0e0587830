// The inventory's rules on a season of its own: units handed out and taken
// back, pool rows made and removed, and imports of damaged files.

#include "fakes/TestKit.h"
#include "people/InventoryBook.h"

#include <QTest>

using people::InventoryBook;

class TestInventoryBook : public QObject
{
    Q_OBJECT

    struct Season : testkit::Season
    {
        InventoryBook book{*gData};
        QString team = QString::number(addTeam(QStringLiteral("Cougars"), QStringLiteral("Central")));
        QString ann = QString::number(addPlayer(team.toLongLong(), QStringLiteral("Ann"), QStringLiteral("Ames")));
        QString bo = QString::number(addPlayer(team.toLongLong(), QStringLiteral("Bo"), QStringLiteral("Bell")));
        Season() : testkit::Season(false) { book.selectTeam(team); }

        // The pool as "quantity item ID" texts.
        QStringList pool() const
        {
            QStringList out;
            for (const people::PoolItem &p : book.pool())
                out.append(QString::number(p.quantity) + u' ' + p.item + u' ' + p.ItemID);
            return out;
        }
        int heldBy(const QString &player)
        {
            return count(QStringLiteral("SELECT COUNT(*) FROM PlayerInventory WHERE PlayerID = ?"), {player});
        }
    };

private Q_SLOTS:
    // The last unit takes its pool row along; coming back it makes a new
    // row of 1. A unit of a row that is still there adds to it.
    void assignAndReturnToTheLastUnit()
    {
        Season s;
        QVERIFY(s.book.enterItem(-1, QStringLiteral("2"), QStringLiteral("Helmet"), QStringLiteral("H-7")));
        QVERIFY(s.book.enterItem(-1, QStringLiteral("0"), QStringLiteral("Bat"), QString()));
        QCOMPARE(s.pool(), (QStringList{QStringLiteral("2 Helmet H-7"), QStringLiteral("1 Bat ")}));
        const qint64 helmets = s.book.pool().at(0).serial;

        s.book.selectPlayer(s.ann);
        QVERIFY(s.book.assign(0));
        QCOMPARE(s.pool().first(), QStringLiteral("1 Helmet H-7"));
        QVERIFY(s.book.assign(0));
        QCOMPARE(s.pool(), QStringList{QStringLiteral("1 Bat ")});
        QCOMPARE(s.book.held().size(), 2);
        QCOMPARE(s.book.held().at(1).ctrlNum, helmets);

        QVERIFY(s.book.giveBack(0));
        QCOMPARE(s.pool(), (QStringList{QStringLiteral("1 Bat "), QStringLiteral("1 Helmet H-7")}));
        QVERIFY(s.book.pool().at(1).serial != helmets);
        QCOMPARE(s.heldBy(s.ann), 1);

        // A unit whose pool row is still there adds to it.
        s.book.selectPlayer(s.bo);
        QVERIFY(s.book.assign(0)); // the only bat
        QVERIFY(s.book.enterItem(-1, QStringLiteral("3"), QStringLiteral("Ball"), QString()));
        QVERIFY(s.book.assign(1));
        QCOMPARE(s.pool().last(), QStringLiteral("2 Ball "));
        QVERIFY(s.book.giveBack(1));
        QCOMPARE(s.pool().last(), QStringLiteral("3 Ball "));
        QVERIFY(s.fake.messages.shown.isEmpty());
    }

    // The minus button removes a pool row; units held from it stay held and
    // come back as a new row.
    void returnAfterThePoolRowWasDeleted()
    {
        Season s;
        QVERIFY(s.book.enterItem(-1, QStringLiteral("4"), QStringLiteral("Glove"), QStringLiteral("G")));
        s.book.selectPlayer(s.ann);
        QVERIFY(s.book.assign(0));
        QVERIFY(s.book.deleteTeamItem(0));
        QVERIFY(s.pool().isEmpty());
        QCOMPARE(s.heldBy(s.ann), 1);
        QVERIFY(s.book.giveBack(0));
        QCOMPARE(s.pool(), QStringList{QStringLiteral("1 Glove G")});
        QCOMPARE(s.heldBy(s.ann), 0);
    }

    // Two players hold units of one pool row, Ann two of them: taking back
    // or dropping one of Ann's units leaves her other one and Bo's.
    void twoPlayersHoldUnitsOfOneRow_data()
    {
        QTest::addColumn<bool>("drop");
        QTest::newRow("return") << false;
        QTest::newRow("drop") << true;
    }
    void twoPlayersHoldUnitsOfOneRow()
    {
        QFETCH(bool, drop);
        Season s;
        QVERIFY(s.book.enterItem(-1, QStringLiteral("5"), QStringLiteral("Jersey"), QString()));
        s.book.selectPlayer(s.ann);
        QVERIFY(s.book.assign(0));
        QVERIFY(s.book.assign(0));
        s.book.selectPlayer(s.bo);
        QVERIFY(s.book.assign(0));
        QCOMPARE(s.pool(), QStringList{QStringLiteral("2 Jersey ")});

        s.book.selectPlayer(s.ann);
        QVERIFY(drop ? s.book.drop(0) : s.book.giveBack(0));
        QCOMPARE(s.heldBy(s.ann), 1);
        QCOMPARE(s.heldBy(s.bo), 1);
        QCOMPARE(s.pool(), QStringList{drop ? QStringLiteral("2 Jersey ") : QStringLiteral("3 Jersey ")});
        if (drop)
            QCOMPARE(s.fake.messages.texts(),
                     QStringList{QStringLiteral("Delete this item without adding it back to the team inventory?")});
    }

    // Refusals say why and change nothing.
    void refusals()
    {
        Season s;
        QVERIFY(s.book.enterItem(-1, QStringLiteral("1"), QStringLiteral("Cap"), QString()));
        QVERIFY(s.book.enterItem(0, QStringLiteral("0"), QStringLiteral("Cap"), QString())); // an edit keeps 0
        s.book.selectPlayer(s.ann);
        QVERIFY(!s.book.assign(-1));
        QVERIFY(!s.book.assign(0));
        QVERIFY(!s.book.enterItem(-1, QString(), QString(), QString())); // nothing typed, nothing added
        s.fake.messages.defaultAnswer = platform::MsgCancel;
        QVERIFY(s.book.assign(0) == false);
        QCOMPARE(s.fake.messages.texts(), (QStringList{QStringLiteral("Please select an item from the inventory."),
                                                       QStringLiteral("It appears there are no Cap to assign."),
                                                       QStringLiteral("It appears there are no Cap to assign.")}));
        QCOMPARE(s.pool(), QStringList{QStringLiteral("0 Cap ")});
        QCOMPARE(s.heldBy(s.ann), 0);
    }

    // Hand-edited and damaged files: whole lines are taken or skipped, and
    // the coach hears which were skipped.
    void importDamagedFiles_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QStringList>("pool");
        QTest::addColumn<QString>("explanation"); // of the skipped-lines message; empty for none

        QTest::newRow("good lines, CR LF") << QByteArray("12\tBaseballs\t\r\n0\tBat\tB-1\r\n-2\tRosin bag\r\n")
                                           << QStringList{QStringLiteral("12 Baseballs "), QStringLiteral("1 Bat B-1"),
                                                          QStringLiteral("-2 Rosin bag ")}
                                           << QString();
        QTest::newRow("a quantity alone, blank lines and a byte-order mark")
            << QByteArray("\xEF\xBB\xBF\n7\n\n   \n3\tÉquipe ñ\r")
            << QStringList{QStringLiteral("7  "), QStringLiteral("3 Équipe ñ ")} << QString();
        QTest::newRow("no tabs and five fields")
            << QByteArray("12 Baseballs\n2\tBat\tB\n1\ta\tb\tc\td\n") << QStringList{QStringLiteral("2 Bat B")}
            << QStringLiteral("Lines 1 and 3 did not hold");
        QTest::newRow("not a quantity") << QByteArray("two\tBats\n2.5\tCones\n99999999999\tBalls\n4\tCones\n")
                                        << QStringList{QStringLiteral("4 Cones ")}
                                        << QStringLiteral("Lines 1, 2 and 3 did not hold");
        QTest::newRow("a line of 100,000 characters")
            << (QByteArray("1\t") + QByteArray(100000, 'x') + "\n5\tBases\n") << QStringList{QStringLiteral("5 Bases ")}
            << QStringLiteral("Line 1 did not hold");
        QTest::newRow("binary junk") << QByteArray("3\tHel\x00met\n\x89PNG\r\n\x1a\n2\t\xff\xfe\n6\tCaps\n", 30)
                                     << QStringList{QStringLiteral("6 Caps ")}
                                     << QStringLiteral("Lines 1, 2, 3 and 4 did not hold");
        QTest::newRow("all skipped") << QByteArray("Helmets\n") << QStringList{}
                                     << QStringLiteral("Line 1 did not hold");
    }
    void importDamagedFiles()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QStringList, pool);
        QFETCH(QString, explanation);
        Season s;
        const InventoryBook::ImportResult result = s.book.importInvItems(bytes);
        QVERIFY(result.read);
        QCOMPARE(s.pool(), pool);
        QCOMPARE(s.count(QStringLiteral("SELECT COUNT(*) FROM TeamInventory")), pool.size());
        if (explanation.isEmpty()) {
            QVERIFY(s.fake.messages.shown.isEmpty());
        } else {
            QCOMPARE(s.fake.messages.texts(), QStringList{QStringLiteral("Some lines were not imported.")});
            QVERIFY2(s.fake.messages.shown.first().explanation.startsWith(explanation),
                     qPrintable(s.fake.messages.shown.first().explanation));
        }
    }

    void importNothing()
    {
        Season s;
        QVERIFY(!s.book.importInvItems("\n\r\n  \n").read);
        QCOMPARE(s.fake.messages.texts(),
                 QStringList{QStringLiteral("Either there was an error or the list is empty.")});
    }
};

QTEST_MAIN(TestInventoryBook)
#include "tst_inventorybook.moc"
