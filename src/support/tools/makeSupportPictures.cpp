// Paints the pictures of the shared controls and writes them as PNG files
// into the folder given on the command line (resources/images). The PNGs are
// kept in the repository; run this again only to change their look:
//   tl_make_support_pictures resources/images
// Everything is drawn from shapes, with no fonts, so the result doesn't
// depend on the fonts of the machine that makes it.

#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>

#include <cstdio>

namespace {

const QColor kFieldGreen(0x2E, 0x6B, 0x33);
const QColor kDarkGreen(0x1B, 0x45, 0x1E);
const QColor kChalk(0xF4, 0xF1, 0xE8);

QImage blank(int w, int h)
{
    QImage image(w, h, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

// The drawn check box: a rounded white box; the checked one carries a green
// tick. 64 pixels square, scaled to the control's height when drawn.
QImage checkBox(bool checked)
{
    QImage image = blank(64, 64);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    const QRectF box(5, 5, 54, 54);
    QLinearGradient fill(box.topLeft(), box.bottomLeft());
    fill.setColorAt(0, QColor(0xFF, 0xFF, 0xFF));
    fill.setColorAt(1, QColor(0xE4, 0xE9, 0xE2));
    p.setPen(QPen(QColor(0x5E, 0x73, 0x60), 4));
    p.setBrush(fill);
    p.drawRoundedRect(box, 10, 10);
    if (checked) {
        QPainterPath tick;
        tick.moveTo(16, 33);
        tick.lineTo(28, 45);
        tick.lineTo(49, 18);
        p.setPen(QPen(kFieldGreen, 9, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        p.setBrush(Qt::NoBrush);
        p.drawPath(tick);
    }
    return image;
}

// The heading label's background, stretched over the control: a dark green
// band, lighter at the top, with a thin chalk line along the bottom.
QImage labelBackground()
{
    QImage image = blank(480, 48);
    QPainter p(&image);
    QLinearGradient band(0, 0, 0, 48);
    band.setColorAt(0, kFieldGreen.lighter(120));
    band.setColorAt(0.5, kFieldGreen);
    band.setColorAt(1, kDarkGreen);
    p.fillRect(image.rect(), band);
    p.fillRect(QRect(0, 44, 480, 2), QColor(0xC8, 0xA5, 0x6E));
    return image;
}

// The help button: a green disc with a chalk "i", inside a margin so that
// the button can be drawn pushed 2 pixels down and right without losing its
// edge.
QImage infoButton()
{
    QImage image = blank(64, 64);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    QRadialGradient disc(QPointF(26, 22), 34);
    disc.setColorAt(0, kFieldGreen.lighter(140));
    disc.setColorAt(1, kDarkGreen);
    p.setPen(QPen(kChalk, 3));
    p.setBrush(disc);
    p.drawEllipse(QRectF(4, 4, 54, 54));
    p.setPen(Qt::NoPen);
    p.setBrush(kChalk);
    p.drawEllipse(QRectF(27, 14, 8, 8));
    p.drawRoundedRect(QRectF(27, 26, 8, 22), 3, 3);
    p.drawRoundedRect(QRectF(23, 26, 10, 4), 1.5, 1.5);
    p.drawRoundedRect(QRectF(23, 45, 16, 4), 1.5, 1.5);
    return image;
}

// One 45 by 22 strip of the plus-and-minus pair, drawn at `scale` times its
// size: two halves with a one-pixel seam at x = 22.
void plusMinusStrip(QPainter &p, qreal top, const QColor &upper, const QColor &lower, const QColor &glyph)
{
    const QRectF strip(0.5, top + 0.5, 44, 21);
    QLinearGradient fill(strip.topLeft(), strip.bottomLeft());
    fill.setColorAt(0, upper);
    fill.setColorAt(1, lower);
    p.setPen(QPen(QColor(0x7C, 0x86, 0x7D), 1));
    p.setBrush(fill);
    p.drawRoundedRect(strip, 4, 4);
    p.setPen(QPen(QColor(0x7C, 0x86, 0x7D), 1));
    p.drawLine(QPointF(22.5, top + 1), QPointF(22.5, top + 21));
    p.setPen(Qt::NoPen);
    p.setBrush(glyph);
    // plus, centred in the left half (0 to 22)
    p.drawRect(QRectF(6, top + 10, 10, 2));
    p.drawRect(QRectF(10, top + 6, 2, 10));
    // minus, centred in the right half (23 to 45)
    p.drawRect(QRectF(29, top + 10, 10, 2));
}

QImage plusMinusPicture(int scale)
{
    QImage image = blank(45 * scale, 66 * scale);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    p.scale(scale, scale);
    plusMinusStrip(p, 0, QColor(0xFF, 0xFF, 0xFF), QColor(0xDD, 0xE3, 0xDC), QColor(0x23, 0x33, 0x25));
    plusMinusStrip(p, 22, QColor(0xA9, 0xB6, 0xAA), QColor(0xC9, 0xD3, 0xC9), QColor(0x0E, 0x1A, 0x10));
    plusMinusStrip(p, 44, QColor(0xF3, 0xF3, 0xF1), QColor(0xE8, 0xE8, 0xE6), QColor(0xBE, 0xC2, 0xBE));
    return image;
}

bool save(const QImage &image, const QDir &dir, const char *name)
{
    const QString path = dir.filePath(QString::fromLatin1(name));
    if (!image.save(path, "PNG")) {
        std::fprintf(stderr, "could not write %s\n", qPrintable(path));
        return false;
    }
    std::printf("%s %dx%d\n", qPrintable(path), image.width(), image.height());
    return true;
}

} // namespace

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    if (argc != 2) {
        std::fprintf(stderr, "usage: %s <images folder>\n", argv[0]);
        return 2;
    }
    const QDir dir(QString::fromLocal8Bit(argv[1]));
    bool ok = save(checkBox(true), dir, "qlmCheckOn.png");
    ok = save(checkBox(false), dir, "qlmCheckOff.png") && ok;
    ok = save(labelBackground(), dir, "qlmLabelBkg.png") && ok;
    ok = save(infoButton(), dir, "InfoBtn.png") && ok;
    // Drawn at twice its size so that it stays sharp on high-density
    // screens; the control reads it at a device pixel ratio of 2.
    ok = save(plusMinusPicture(2), dir, "plusminuspic.png") && ok;
    return ok ? 0 : 1;
}
