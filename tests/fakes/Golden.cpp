#include "Golden.h"

#include <QFile>
#include <QList>
#include <QSaveFile>
#include <QTest>

namespace testkit {

QString goldenPath(const QString &name)
{
    return qEnvironmentVariable("TL_TEST_DATA") + u'/' + name;
}

bool compareGolden(const QString &name, const QByteArray &actual, const char *file, int line)
{
    const QString path = goldenPath(name);
    if (qEnvironmentVariable("TL_UPDATE_GOLDEN") == u"1") {
        QSaveFile out(path);
        if (!out.open(QIODevice::WriteOnly) || out.write(actual) != actual.size() || !out.commit()) {
            QTest::qFail(qPrintable(QStringLiteral("could not write the golden file ") + path), file, line);
            return false;
        }
        qWarning("wrote the golden file %s", qPrintable(path));
        return true;
    }
    QFile in(path);
    if (!in.open(QIODevice::ReadOnly)) {
        QTest::qFail(qPrintable(QStringLiteral("no golden file ") + path +
                                QStringLiteral(" (TL_UPDATE_GOLDEN=1 writes it)")),
                     file, line);
        return false;
    }
    const QByteArray expected = in.readAll();
    if (expected == actual)
        return true;
    const QList<QByteArray> want = expected.split('\n');
    const QList<QByteArray> got = actual.split('\n');
    qsizetype at = 0;
    while (at < want.size() && at < got.size() && want.at(at) == got.at(at))
        ++at;
    const QString message = QStringLiteral("%1 differs at line %2\n   expected: %3\n   actual:   %4")
                                .arg(name)
                                .arg(at + 1)
                                .arg(QString::fromUtf8(at < want.size() ? want.at(at) : "(end of file)"),
                                     QString::fromUtf8(at < got.size() ? got.at(at) : "(end of output)"));
    QTest::qFail(qPrintable(message), file, line);
    return false;
}

} // namespace testkit
