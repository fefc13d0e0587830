// Paints the program's icon and writes it as PNG files, one per size the
// desktop's icon theme looks for, into the folder given on the command line
// (resources/icons). The PNGs are kept in the repository; run this again
// only to change the icon:
//   tl_make_app_icon resources/icons
// Everything is drawn from shapes, with no fonts, so the result doesn't
// depend on the machine that makes it. The picture matches the splash
// screen: a field-green tile, the infield diamond, and a ball in front.

#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>

#include <cstdio>

namespace {

const QColor kFieldLight(0x2F, 0x6E, 0x35);
const QColor kFieldDark(0x1B, 0x45, 0x1E);
const QColor kGrass(0x3E, 0x7D, 0x41);
const QColor kDirt(0xC8, 0xA4, 0x6E);
const QColor kChalk(0xF7, 0xF5, 0xEE);
const QColor kStitch(0xC6, 0x28, 0x28);

// One picture, drawn on a 256-unit square and scaled to `size` pixels.
QImage paintIcon(int size)
{
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    p.scale(size / 256.0, size / 256.0);

    // The tile.
    QLinearGradient field(0, 0, 0, 256);
    field.setColorAt(0, kFieldLight);
    field.setColorAt(1, kFieldDark);
    p.setPen(Qt::NoPen);
    p.setBrush(field);
    p.drawRoundedRect(QRectF(8, 8, 240, 240), 44, 44);

    // The infield: a dirt diamond round a grass square, bases at the corners.
    const QPointF home(112, 214), first(190, 136), second(112, 58), third(34, 136);
    QPainterPath diamond;
    diamond.moveTo(home);
    diamond.lineTo(first);
    diamond.lineTo(second);
    diamond.lineTo(third);
    diamond.closeSubpath();
    p.setBrush(kDirt);
    p.drawPath(diamond);
    const QPointF centre(112, 136);
    QTransform inner;
    inner.translate(centre.x(), centre.y());
    inner.scale(0.62, 0.62);
    inner.translate(-centre.x(), -centre.y());
    p.setBrush(kGrass);
    p.drawPath(inner.map(diamond));
    p.setBrush(kDirt);
    p.drawEllipse(centre, 11, 11);
    p.setBrush(kChalk);
    for (const QPointF &base : {first, second, third})
        p.drawRect(QRectF(base.x() - 9, base.y() - 9, 18, 18));
    QPainterPath plate;
    plate.moveTo(home.x() - 9, home.y() - 12);
    plate.lineTo(home.x() + 9, home.y() - 12);
    plate.lineTo(home.x() + 9, home.y() - 3);
    plate.lineTo(home.x(), home.y() + 6);
    plate.lineTo(home.x() - 9, home.y() - 3);
    plate.closeSubpath();
    p.drawPath(plate);

    // The ball, lower right, with a soft shadow and its two seams.
    const QPointF ball(178, 182);
    const qreal r = 50;
    p.setBrush(QColor(0, 0, 0, 70));
    p.drawEllipse(ball + QPointF(4, 6), r, r);
    QRadialGradient leather(ball - QPointF(r * 0.35, r * 0.35), r * 1.4);
    leather.setColorAt(0, Qt::white);
    leather.setColorAt(1, QColor(0xDD, 0xD8, 0xCC));
    p.setBrush(leather);
    p.setPen(QPen(QColor(0x9A, 0x93, 0x85), 2));
    p.drawEllipse(ball, r, r);

    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(kStitch, 4, Qt::SolidLine, Qt::RoundCap));
    const auto seam = [&](qreal side) {
        // A seam bows in from the ball's edge; short stitches cross it.
        QPainterPath path;
        const QPointF top = ball + QPointF(side * r * 0.52, -r * 0.85);
        const QPointF bottom = ball + QPointF(side * r * 0.52, r * 0.85);
        const QPointF bow = ball + QPointF(side * r * 0.12, 0);
        path.moveTo(top);
        path.quadTo(bow, bottom);
        p.drawPath(path);
        p.setPen(QPen(kStitch, 3, Qt::SolidLine, Qt::RoundCap));
        for (int i = 1; i < 8; ++i) {
            const qreal t = i / 8.0;
            const QPointF at = path.pointAtPercent(t);
            const qreal angle = path.angleAtPercent(t);
            QTransform turn;
            turn.rotate(-angle + 90);
            const QPointF half = turn.map(QPointF(7, 0));
            p.drawLine(at - half, at + half);
        }
        p.setPen(QPen(kStitch, 4, Qt::SolidLine, Qt::RoundCap));
    };
    seam(-1);
    seam(1);
    return image;
}

} // namespace

int main(int argc, char **argv)
{
    QGuiApplication app(argc, argv);
    if (argc != 2) {
        std::fprintf(stderr, "usage: tl_make_app_icon <folder>\n");
        return 2;
    }
    const QDir folder(QString::fromLocal8Bit(argv[1]));
    if (!QDir().mkpath(folder.path())) {
        std::fprintf(stderr, "can't make %s\n", argv[1]);
        return 1;
    }
    for (int size : {48, 64, 128, 256, 512}) {
        const QString path = folder.filePath(QStringLiteral("tallyline-%1.png").arg(size));
        if (!paintIcon(size).save(path, "PNG")) {
            std::fprintf(stderr, "can't write %s\n", qPrintable(path));
            return 1;
        }
    }
    return 0;
}
