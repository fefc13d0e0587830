// The pictures the program draws for itself (its icon, the shared controls'
// images, the blank forms) are kept in the repository; each tool that
// paints them is run into a temporary folder here and every picture it
// writes must be the kept one, pixel for pixel. A change to a tool without
// running it again into resources/ fails here.

#include <QDir>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <cstdlib>

namespace {

// Qt's painter may round an edge's shading one way or the other from one
// release to the next; a change of colour or shape moves far more.
constexpr int kTolerance = 4;

// The largest difference of any channel of any pixel.
int largestDifference(const QImage &a, const QImage &b)
{
    const QImage x = a.convertToFormat(QImage::Format_ARGB32);
    const QImage y = b.convertToFormat(QImage::Format_ARGB32);
    int largest = 0;
    for (int row = 0; row < x.height(); ++row) {
        const auto *p = reinterpret_cast<const QRgb *>(x.constScanLine(row));
        const auto *q = reinterpret_cast<const QRgb *>(y.constScanLine(row));
        for (int col = 0; col < x.width(); ++col) {
            largest = std::max({largest, std::abs(qRed(p[col]) - qRed(q[col])),
                                std::abs(qGreen(p[col]) - qGreen(q[col])), std::abs(qBlue(p[col]) - qBlue(q[col])),
                                std::abs(qAlpha(p[col]) - qAlpha(q[col]))});
        }
    }
    return largest;
}

} // namespace

class TestDrawnPictures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void current_data()
    {
        QTest::addColumn<QString>("tool");
        QTest::addColumn<QString>("folder"); // under resources/
        QTest::newRow("app icon") << QStringLiteral(TL_MAKE_APP_ICON) << "icons";
        QTest::newRow("controls") << QStringLiteral(TL_MAKE_SUPPORT_PICTURES) << "images";
        QTest::newRow("blank forms") << QStringLiteral(TL_MAKE_FORM_PICTURES) << "tlyn_Extras";
    }
    void current()
    {
        QFETCH(QString, tool);
        QFETCH(QString, folder);
        QTemporaryDir out;
        QProcess process;
        process.start(tool, {out.path()});
        QVERIFY(process.waitForFinished(60000));
        QVERIFY2(process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0,
                 process.readAllStandardError().constData());
        const QDir kept(qEnvironmentVariable("TL_SOURCE_DIR") + QStringLiteral("/resources/") + folder);
        const QStringList made = QDir(out.path()).entryList({QStringLiteral("*.png")}, QDir::Files);
        QVERIFY(!made.isEmpty());
        for (const QString &name : made) {
            const QImage fresh(QDir(out.path()).filePath(name));
            const QImage stored(kept.filePath(name));
            QVERIFY2(!stored.isNull(), qPrintable(name + QStringLiteral(" is not kept in resources/") + folder));
            QCOMPARE(stored.size(), fresh.size());
            QCOMPARE(stored.dotsPerMeterX(), fresh.dotsPerMeterX());
            const int off = largestDifference(stored, fresh);
            QVERIFY2(off <= kTolerance,
                     qPrintable(name + QStringLiteral(" differs by %1: run the tool into resources/").arg(off) +
                                folder));
        }
    }
};

QTEST_GUILESS_MAIN(TestDrawnPictures)
#include "tst_drawnpictures.moc"
