// The statistic dictionaries: fixed keys, user-defined names and fallbacks.

#include "app/myDictionaries.h"

#include <QTest>

class TestDictionaries : public QObject
{
    Q_OBJECT

private:
    static QString pairs(const QStringList &abbrevs)
    {
        QStringList out;
        for (const QString &a : abbrevs)
            out << a << QStringLiteral("Description of ") + a;
        return out.join(u'\t');
    }

private Q_SLOTS:
    void replacementRules_data()
    {
        QTest::addColumn<QString>("udb");
        QTest::addColumn<QStringList>("lastKeys");
        QTest::addColumn<QList<int>>("lastValues");
        QTest::addColumn<int>("abValue");
        // Two unused slots: one "???" key, holding the later slot.
        QTest::newRow("repeated abbreviation")
            << pairs({"CS", "???", "HSP", "TOH", "???"}) << QStringList{"CS", "???", "HSP", "TOH"}
            << QList<int>{21, 25, 23, 24} << 0;
        // A user name equal to a fixed key takes over the fixed key's value.
        QTest::newRow("same as a fixed key")
            << pairs({"AB", "RSP", "HSP", "TOH", "X"}) << QStringList{"LOB", "RSP", "HSP", "TOH", "X"}
            << QList<int>{20, 22, 23, 24, 25} << 21;
        // Nine pieces in place of ten: the column names stand in, all five.
        QTest::newRow("damaged list") << pairs({"CS", "RSP", "HSP", "TOH", "X"}).section(u'\t', 0, 8)
                                      << QStringList{"UDB1", "UDB2", "UDB3", "UDB4", "UDB5"}
                                      << QList<int>{21, 22, 23, 24, 25} << 0;
        QTest::newRow("eleven pieces") << pairs({"CS", "RSP", "HSP", "TOH", "X", "Y"}).section(u'\t', 0, 10)
                                       << QStringList{"UDB1", "UDB2", "UDB3", "UDB4", "UDB5"}
                                       << QList<int>{21, 22, 23, 24, 25} << 0;
        QTest::newRow("empty") << QString() << QStringList{"UDB1", "UDB2", "UDB3", "UDB4", "UDB5"}
                               << QList<int>{21, 22, 23, 24, 25} << 0;
    }
    void replacementRules()
    {
        QFETCH(QString, udb);
        QFETCH(QStringList, lastKeys);
        QFETCH(QList<int>, lastValues);
        QFETCH(int, abValue);
        const StatDictionary h = myDictionaries::buildHitting(udb);
        QCOMPARE(h.keys().mid(h.keys().size() - lastKeys.size()), lastKeys);
        for (int i = 0; i < lastKeys.size(); ++i)
            QCOMPARE(h.value(lastKeys[i]), lastValues[i]);
        QCOMPARE(h.value(QStringLiteral("AB")), abValue);
        QCOMPARE(h.keys().first(), QStringLiteral("AB")); // a replaced key keeps its place
    }

    void caseMatters()
    {
        const StatDictionary h = myDictionaries::buildHitting(pairs({"ab", "b", "c", "d", "e"}));
        QCOMPARE(h.value(QStringLiteral("AB")), 0);
        QCOMPARE(h.value(QStringLiteral("ab")), 21);
        QVERIFY(!h.hasKey(QStringLiteral("Ab")));
    }
};

QTEST_GUILESS_MAIN(TestDictionaries)
#include "tst_dictionaries.moc"
