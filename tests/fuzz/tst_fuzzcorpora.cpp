// Replays every fuzz corpus input through its target as an ordinary test.

#include "fuzz/FuzzTargets.h"

#include <QDir>
#include <QtTest>

class tst_FuzzCorpora : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void replay_data()
    {
        QTest::addColumn<QString>("target");
        QTest::addColumn<QString>("path");
        const QDir root(QStringLiteral(TL_FUZZ_CORPUS));
        for (const QString &target : root.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
            const QDir corpus(root.filePath(target));
            for (const QString &file : corpus.entryList(QDir::Files))
                QTest::newRow(qPrintable(target + u'/' + file)) << target << corpus.filePath(file);
        }
    }

    void replay()
    {
        QFETCH(QString, target);
        QFETCH(QString, path);
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray input = file.readAll();
        const auto *data = reinterpret_cast<const uint8_t *>(input.constData());
        if (target == u"htmltext")
            fuzz::htmlText(data, size_t(input.size()));
        else if (target == u"stackframe")
            fuzz::stackFrame(data, size_t(input.size()));
        else if (target == u"versiondoc")
            fuzz::versionDocument(data, size_t(input.size()));
        else if (target == u"prefs")
            fuzz::prefsFile(data, size_t(input.size()));
        else
            QFAIL("a corpus without a target");
    }
};

QTEST_GUILESS_MAIN(tst_FuzzCorpora)
#include "tst_fuzzcorpora.moc"
