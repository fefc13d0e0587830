#include "fakes/TestSupport.h"

#include <QImage>
#include <QProcess>
#include <QRegularExpression>

namespace fakes {

namespace {
QByteArray run(const QString &program, const QStringList &args)
{
    QProcess p;
    p.start(program, args);
    p.waitForFinished(30000);
    return p.readAllStandardOutput();
}
} // namespace

QList<PdfWord> pdfWords(const QString &pdfPath)
{
    const QString html = QString::fromUtf8(
        run(QStringLiteral("pdftotext"), {QStringLiteral("-bbox"), pdfPath, QStringLiteral("-")}));
    QList<PdfWord> words;
    static const QRegularExpression pageRe(QStringLiteral("<page "));
    static const QRegularExpression wordRe(
        QStringLiteral(R"re(<word xMin="([\d.]+)" yMin="([\d.]+)" xMax="([\d.]+)" yMax="([\d.]+)">(.*?)</word>)re"));
    int page = 0;
    for (const QString &line : html.split(u'\n')) {
        if (line.contains(pageRe))
            ++page;
        const auto m = wordRe.match(line);
        if (!m.hasMatch())
            continue;
        PdfWord w;
        w.page = page;
        w.xMin = m.captured(1).toDouble();
        w.yMin = m.captured(2).toDouble();
        w.xMax = m.captured(3).toDouble();
        w.yMax = m.captured(4).toDouble();
        w.text = m.captured(5)
                     .replace(QStringLiteral("&lt;"), QStringLiteral("<"))
                     .replace(QStringLiteral("&gt;"), QStringLiteral(">"))
                     .replace(QStringLiteral("&quot;"), QStringLiteral("\""))
                     .replace(QStringLiteral("&apos;"), QStringLiteral("'"))
                     .replace(QStringLiteral("&amp;"), QStringLiteral("&"));
        words.append(w);
    }
    return words;
}

QString pdfText(const QString &pdfPath)
{
    return QString::fromUtf8(
        run(QStringLiteral("pdftotext"), {QStringLiteral("-layout"), pdfPath, QStringLiteral("-")}));
}

int pdfPageCount(const QString &pdfPath)
{
    const QString info = QString::fromUtf8(run(QStringLiteral("pdfinfo"), {pdfPath}));
    static const QRegularExpression re(QStringLiteral(R"re(Pages:\s+(\d+))re"));
    const auto m = re.match(info);
    return m.hasMatch() ? m.captured(1).toInt() : 0;
}

QList<QSize> pdfImageSizes(const QString &pdfPath)
{
    QList<QSize> sizes;
    static const QRegularExpression row(QStringLiteral(R"(^\s*\d+\s+\d+\s+(\w+)\s+(\d+)\s+(\d+))"));
    for (const QString &line :
         QString::fromUtf8(run(QStringLiteral("pdfimages"), {QStringLiteral("-list"), pdfPath})).split(u'\n')) {
        const auto m = row.match(line);
        if (m.hasMatch() && m.captured(1) == u"image")
            sizes.append(QSize(m.captured(2).toInt(), m.captured(3).toInt()));
    }
    return sizes;
}

QString writePicture(const QString &path, QSize size, QColor colour)
{
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(colour);
    picture.save(path, path.endsWith(QStringLiteral(".jpg")) ? "JPEG" : "PNG");
    return path;
}

} // namespace fakes
