#include "Golden.h"

#include <QDir>
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

QString GoldenCase::value(const QString &key) const
{
    for (const auto &[k, v] : commands) {
        if (k == key)
            return v;
    }
    return {};
}

QStringList GoldenCase::values(const QString &key) const
{
    QStringList out;
    for (const auto &[k, v] : commands) {
        if (k == key)
            out.append(v);
    }
    return out;
}

void addGoldenCases(const QStringList &folders)
{
    QTest::addColumn<QString>("name");
    for (const QString &folder : folders) {
        const QStringList cases =
            QDir(goldenPath(folder)).entryList({QStringLiteral("*.case")}, QDir::Files, QDir::Name);
        if (cases.isEmpty())
            qFatal("no cases in %s", qPrintable(goldenPath(folder)));
        for (const QString &c : cases)
            QTest::newRow(qPrintable(folder + u'/' + c.chopped(5))) << folder + u'/' + c;
    }
}

bool readGoldenCase(const QString &name, GoldenCase &out, const char *file, int line)
{
    QFile in(goldenPath(name));
    const QByteArray text = in.open(QIODevice::ReadOnly) ? in.readAll() : QByteArray();
    // Where the "---" line starts.
    qsizetype split = text.startsWith("---\n") ? 0 : text.indexOf("\n---\n");
    if (split > 0)
        ++split;
    if (split < 0) {
        QTest::qFail(qPrintable(goldenPath(name) + QStringLiteral(" has no \"---\" line")), file, line);
        return false;
    }
    out.name = name;
    out.head = text.left(split + 4);
    for (const QByteArray &raw : text.left(split).split('\n')) {
        const QString l = QString::fromUtf8(raw);
        if (l.isEmpty() || l.startsWith(u'#'))
            continue;
        out.commands.append({l.section(u':', 0, 0).trimmed(), l.section(u':', 1).trimmed()});
    }
    return true;
}

} // namespace testkit
