// The one "mailto:" builder: whatever the names and texts hold, the mail
// program reads back exactly the addresses, subject and body intended.

#include "support/MailtoAddress.h"

#include <QTest>
#include <QUrlQuery>

class TestMailto : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void partsReadBackExactly_data()
    {
        QTest::addColumn<QStringList>("recipients");
        QTest::addColumn<QString>("subject");
        QTest::addColumn<QString>("body");
        QTest::addColumn<QString>("expectedBody"); // line ends as mail carries them

        QTest::newRow("delimiters in the subject")
            << QStringList{QStringLiteral("coach@example.org")} << QStringLiteral("A&B ?#% 100%+ O'Brien's = 1")
            << QString() << QString();
        QTest::newRow("an address with delimiters")
            << QStringList{QStringLiteral("o&brien+nine@example.org"), QStringLiteral("x?y#z%@example.org")}
            << QStringLiteral("s") << QString() << QString();
        QTest::newRow("an empty entry stays")
            << QStringList{QStringLiteral("a@b.org"), QString()} << QStringLiteral("Cougars") << QString() << QString();
        QTest::newRow("body with every line end")
            << QStringList{QStringLiteral("a@b.org")} << QStringLiteral("Practice Plans")
            << QStringLiteral("Practice Date: 4/15/26\nLoc\r\nRow 1\tA&B\rRow 2 #1 50%")
            << QStringLiteral("Practice Date: 4/15/26\r\nLoc\r\nRow 1\tA&B\r\nRow 2 #1 50%");
        QTest::newRow("letters beyond Latin")
            << QStringList{QStringLiteral("łukasz@example.org")} << QStringLiteral("Łódź – 東京 Ωmega")
            << QStringLiteral("Ñandú &body=x") << QStringLiteral("Ñandú &body=x");
    }
    void partsReadBackExactly()
    {
        QFETCH(QStringList, recipients);
        QFETCH(QString, subject);
        QFETCH(QString, body);
        QFETCH(QString, expectedBody);

        const QUrl url = support::mailtoAddress(recipients, subject, body);
        QVERIFY2(url.isValid(), qPrintable(url.errorString()));
        QCOMPARE(url.scheme(), QStringLiteral("mailto"));

        // The addresses: split on the commas of the encoded path, each decoded.
        const QList<QByteArray> encodedTo = url.path(QUrl::FullyEncoded).toUtf8().split(',');
        QStringList to;
        for (const QByteArray &a : encodedTo)
            to.append(QUrl::fromPercentEncoding(a));
        QCOMPARE(to, recipients);

        const QUrlQuery query(url);
        const auto items = query.queryItems(QUrl::FullyDecoded);
        QCOMPARE(items.size(), body.isEmpty() ? 1 : 2);
        QCOMPARE(items.at(0).first, QStringLiteral("subject"));
        QCOMPARE(items.at(0).second, subject);
        if (!body.isEmpty()) {
            QCOMPARE(items.at(1).first, QStringLiteral("body"));
            QCOMPARE(items.at(1).second, expectedBody);
        }
        // What the desktop is handed holds nothing but ASCII.
        const QByteArray handed = url.toEncoded();
        for (const char c : handed)
            QVERIFY2(uchar(c) > 0x20 && uchar(c) < 0x7f, handed.constData());
    }
};

QTEST_GUILESS_MAIN(TestMailto)
#include "tst_mailto.moc"
