// Paints the blank forms of the Forms - Extras screen into PNG files: a
// line-up card, a pitching chart and a scoresheet, on letter paper at 144
// dots per inch, with that resolution stored in the file so that the forms
// screen prints each at its true size. Run by hand when a form changes:
//   tl_make_form_pictures <folder>      (usually resources/tlyn_Extras)
// It needs no display: QT_QPA_PLATFORM=offscreen does.

#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPainterPath>

#include <cstdio>

namespace {

// 144 dots per inch is 5669.3 dots per metre; the file keeps whole dots
// per metre, and 5670 keeps a portrait page at 611.9 points wide, never a
// hair over the 612 that would turn it on its side.
constexpr int kDotsPerMetre = 5670;
constexpr double kScale = 2.0; // dots per point at 144 dpi

const QColor kInk(20, 20, 20);
const QColor kRule(110, 110, 110);
const QColor kShade(232, 236, 242);

class Sheet
{
public:
    // A page of w by h points, painted in points.
    Sheet(double w, double h) : image(int(w * kScale), int(h * kScale), QImage::Format_RGB32)
    {
        image.fill(Qt::white);
        image.setDotsPerMeterX(kDotsPerMetre);
        image.setDotsPerMeterY(kDotsPerMetre);
        p.begin(&image);
        p.setRenderHint(QPainter::Antialiasing);
        p.setRenderHint(QPainter::TextAntialiasing);
        p.scale(kScale, kScale);
    }

    void font(double size, bool bold = false)
    {
        QFont f(QStringLiteral("DejaVu Sans"));
        // The picture's own 144 dpi already turns a point into two dots,
        // and the painter's scale would double that again.
        f.setPointSizeF(size / kScale);
        f.setBold(bold);
        p.setFont(f);
    }
    void text(const QRectF &r, const QString &s, int flags = Qt::AlignCenter, double size = 9, bool bold = false)
    {
        font(size, bold);
        p.setPen(kInk);
        p.drawText(r, flags | Qt::TextSingleLine, s);
    }
    void line(double x1, double y1, double x2, double y2, double width = 0.6, QColor c = kRule)
    {
        p.setPen(QPen(c, width));
        p.drawLine(QPointF(x1, y1), QPointF(x2, y2));
    }
    void box(const QRectF &r, double width = 1.2)
    {
        p.setPen(QPen(kInk, width));
        p.setBrush(Qt::NoBrush);
        p.drawRect(r);
    }
    void shade(const QRectF &r) { p.fillRect(r, kShade); }
    // A caption and a line to write on: "Team ________".
    void field(double x, double y, double w, const QString &caption)
    {
        font(9, true);
        const double cw = p.fontMetrics().horizontalAdvance(caption) + 6;
        text(QRectF(x, y - 14, cw, 14), caption, Qt::AlignLeft | Qt::AlignBottom, 9, true);
        line(x + cw, y, x + w, y, 0.8, kInk);
    }
    // The small base path in a scoring box, for tracing a runner.
    void diamond(const QRectF &cell)
    {
        const double s = std::min(cell.width(), cell.height()) * 0.28;
        const QPointF c = cell.center() + QPointF(0, 2);
        QPainterPath d;
        d.moveTo(c + QPointF(0, s));
        d.lineTo(c + QPointF(s, 0));
        d.lineTo(c + QPointF(0, -s));
        d.lineTo(c + QPointF(-s, 0));
        d.closeSubpath();
        p.setPen(QPen(QColor(170, 170, 170), 0.5));
        p.setBrush(Qt::NoBrush);
        p.drawPath(d);
    }
    bool save(const QString &path)
    {
        p.end();
        return image.save(path, "PNG");
    }

    QImage image;
    QPainter p;
};

void title(Sheet &s, double pageWidth, const QString &name)
{
    s.text(QRectF(36, 30, pageWidth - 72, 26), name, Qt::AlignLeft | Qt::AlignVCenter, 18, true);
    s.text(QRectF(36, 30, pageWidth - 72, 26), QStringLiteral("Tallyline Baseball"), Qt::AlignRight | Qt::AlignVCenter,
           8);
    s.line(36, 58, pageWidth - 36, 58, 1.5, kInk);
}

// Two cards side by side on a portrait page, to cut apart at the dashed
// line: one for the umpire, one for the dugout.
bool lineupCard(const QString &path)
{
    Sheet s(612, 792);
    for (int half = 0; half < 2; ++half) {
        const double x0 = half == 0 ? 28 : 318;
        const double w = 266;
        s.text(QRectF(x0, 30, w, 24), QStringLiteral("LINE-UP CARD"), Qt::AlignCenter, 16, true);
        s.field(x0, 78, w, QStringLiteral("Team"));
        s.field(x0, 102, w * 0.58, QStringLiteral("vs."));
        s.field(x0 + w * 0.62, 102, w * 0.38, QStringLiteral("Date"));
        s.text(QRectF(x0, 108, w, 14), QStringLiteral("Home  \u25a1      Visitor  \u25a1"),
               Qt::AlignLeft | Qt::AlignVCenter, 9);

        // Batting order: each slot has a starter's line and a shaded line
        // beneath it for the substitute.
        const double top = 130, row = 19;
        const double cNo = x0 + 22, cName = x0 + 52, cPos = x0 + w - 34;
        s.shade(QRectF(x0, top, w, row));
        s.text(QRectF(x0, top, 22, row), QStringLiteral("#"), Qt::AlignCenter, 8, true);
        s.text(QRectF(cNo, top, 30, row), QStringLiteral("No."), Qt::AlignCenter, 8, true);
        s.text(QRectF(cName, top, cPos - cName, row), QStringLiteral("Player"), Qt::AlignCenter, 8, true);
        s.text(QRectF(cPos, top, 34, row), QStringLiteral("Pos."), Qt::AlignCenter, 8, true);
        const int slots = 10;
        double y = top + row;
        for (int i = 0; i < slots; ++i) {
            s.text(QRectF(x0, y, 22, row * 2), QString::number(i + 1), Qt::AlignCenter, 12, true);
            s.line(cNo, y + row, x0 + w, y + row, 0.4, QColor(180, 180, 180));
            s.text(QRectF(cName + 2, y + row, 40, row), QStringLiteral("sub"), Qt::AlignLeft | Qt::AlignVCenter, 6);
            y += row * 2;
            s.line(x0, y, x0 + w, y, 0.8, kInk);
        }
        for (double cx : {cNo, cName, cPos})
            s.line(cx, top, cx, y, 0.8, kInk);
        s.box(QRectF(x0, top, w, y - top));

        // The bench, and the pitchers available today.
        y += 16;
        s.text(QRectF(x0, y, w, 14), QStringLiteral("BENCH"), Qt::AlignLeft | Qt::AlignVCenter, 9, true);
        y += 16;
        const double benchTop = y;
        for (int i = 0; i < 6; ++i) {
            y += 18;
            s.line(x0, y, x0 + w, y, 0.6);
        }
        s.line(x0 + w / 2, benchTop, x0 + w / 2, y, 0.6);
        s.box(QRectF(x0, benchTop, w, y - benchTop));
        y += 12;
        s.field(x0, y + 14, w, QStringLiteral("Pitchers"));
        s.field(x0, y + 34, w, QStringLiteral("Coach"));
    }
    // The cut line.
    QPen dash(kRule, 0.8, Qt::DashLine);
    s.p.setPen(dash);
    s.p.drawLine(QPointF(306, 24), QPointF(306, 768));
    s.text(QRectF(280, 760, 52, 12), QStringLiteral("\u2702 cut"), Qt::AlignCenter, 7);
    return s.save(path);
}

// One row per batter faced, a box for every pitch, and the pitcher's line
// at the foot.
bool pitchingChart(const QString &path)
{
    const double W = 612, H = 792;
    Sheet s(W, H);
    title(s, W, QStringLiteral("PITCHING CHART"));
    s.field(36, 84, 250, QStringLiteral("Pitcher"));
    s.field(300, 84, 150, QStringLiteral("Team"));
    s.field(464, 84, 112, QStringLiteral("No."));
    s.field(36, 108, 250, QStringLiteral("Opponent"));
    s.field(300, 108, 150, QStringLiteral("Date"));
    s.field(464, 108, 112, QStringLiteral("Throws  R / L"));
    s.text(QRectF(36, 114, W - 72, 16),
           QStringLiteral("Mark each pitch:  B ball   S called strike   W swinging strike   F foul   X in play"),
           Qt::AlignLeft | Qt::AlignVCenter, 8);

    const double top = 136, row = 18.5;
    const double cInn = 36, cBatter = 60, cPitch = 178, pitchW = 21, pitches = 12;
    const double cResult = cPitch + pitchW * pitches, cCount = cResult + 62, right = W - 36;
    s.shade(QRectF(cInn, top, right - cInn, row));
    s.text(QRectF(cInn, top, cBatter - cInn, row), QStringLiteral("Inn"), Qt::AlignCenter, 8, true);
    s.text(QRectF(cBatter, top, cPitch - cBatter, row), QStringLiteral("Batter"), Qt::AlignCenter, 8, true);
    for (int i = 0; i < pitches; ++i)
        s.text(QRectF(cPitch + i * pitchW, top, pitchW, row), QString::number(i + 1), Qt::AlignCenter, 8, true);
    s.text(QRectF(cResult, top, cCount - cResult, row), QStringLiteral("Result"), Qt::AlignCenter, 8, true);
    s.text(QRectF(cCount, top, right - cCount, row), QStringLiteral("Pitches"), Qt::AlignCenter, 8, true);
    const int rows = 27;
    double y = top + row;
    for (int i = 0; i < rows; ++i) {
        y += row;
        s.line(cInn, y, right, y, i % 3 == 2 ? 0.9 : 0.5, i % 3 == 2 ? kInk : kRule);
    }
    for (int i = 1; i < pitches; ++i)
        s.line(cPitch + i * pitchW, top, cPitch + i * pitchW, y, 0.4);
    for (double cx : {cBatter, cPitch, cResult, cCount})
        s.line(cx, top, cx, y, 0.9, kInk);
    s.line(cInn, top + row, right, top + row, 0.9, kInk);
    s.box(QRectF(cInn, top, right - cInn, y - top));

    // The pitcher's line, as the pitching panel asks for it.
    y += 22;
    s.text(QRectF(36, y - 16, 200, 14), QStringLiteral("PITCHER'S LINE"), Qt::AlignLeft | Qt::AlignVCenter, 9, true);
    const QStringList heads = {QStringLiteral("IP"),    QStringLiteral("BF"),      QStringLiteral("H"),
                               QStringLiteral("R"),     QStringLiteral("ER"),      QStringLiteral("HRA"),
                               QStringLiteral("BB"),    QStringLiteral("IBB"),     QStringLiteral("Ks"),
                               QStringLiteral("HB"),    QStringLiteral("WP"),      QStringLiteral("Blk"),
                               QStringLiteral("Balls"), QStringLiteral("Strikes"), QStringLiteral("Pitches")};
    const double cw = (W - 72) / heads.size();
    s.shade(QRectF(36, y, W - 72, 16));
    for (int i = 0; i < heads.size(); ++i) {
        s.text(QRectF(36 + i * cw, y, cw, 16), heads.at(i), Qt::AlignCenter, 7.5, true);
        if (i > 0)
            s.line(36 + i * cw, y, 36 + i * cw, y + 40, 0.6);
    }
    s.line(36, y + 16, W - 36, y + 16, 0.8, kInk);
    s.box(QRectF(36, y, W - 72, 40));
    y += 58;
    s.text(QRectF(36, y, W - 72, 14),
           QStringLiteral("Decision:   W  \u25a1    L  \u25a1    S  \u25a1    ND  \u25a1          Start  \u25a1    "
                          "Shut Out  \u25a1    Complete Game  \u25a1"),
           Qt::AlignLeft | Qt::AlignVCenter, 9);
    return s.save(path);
}

// The scorebook page for one team: a box for each at bat of each inning,
// the batter's totals at the right, the line score and the pitchers below.
bool scoresheet(const QString &path)
{
    const double W = 792, H = 612;
    Sheet s(W, H);
    title(s, W, QStringLiteral("SCORESHEET"));
    s.field(36, 82, 230, QStringLiteral("Team"));
    s.field(280, 82, 200, QStringLiteral("Opponent"));
    s.field(494, 82, 120, QStringLiteral("Date"));
    s.field(628, 82, 128, QStringLiteral("Field"));

    const double top = 96, head = 16, row = 26;
    const double cNo = 36, cName = 58, cPos = 176, cInn = 200, innings = 10, innW = 39;
    const double cTot = cInn + innings * innW;
    const QStringList totals = {QStringLiteral("AB"), QStringLiteral("R"), QStringLiteral("H"), QStringLiteral("RBI"),
                                QStringLiteral("BB"), QStringLiteral("K"), QStringLiteral("SB")};
    const double totW = (W - 36 - cTot) / totals.size();
    const double right = W - 36;
    s.shade(QRectF(cNo, top, right - cNo, head));
    s.text(QRectF(cNo, top, cName - cNo, head), QStringLiteral("No."), Qt::AlignCenter, 7.5, true);
    s.text(QRectF(cName, top, cPos - cName, head), QStringLiteral("Player"), Qt::AlignCenter, 8, true);
    s.text(QRectF(cPos, top, cInn - cPos, head), QStringLiteral("Pos"), Qt::AlignCenter, 7.5, true);
    for (int i = 0; i < innings; ++i)
        s.text(QRectF(cInn + i * innW, top, innW, head), QString::number(i + 1), Qt::AlignCenter, 8, true);
    for (int i = 0; i < totals.size(); ++i)
        s.text(QRectF(cTot + i * totW, top, totW, head), totals.at(i), Qt::AlignCenter, 7.5, true);

    const int batters = 12;
    double y = top + head;
    for (int r = 0; r < batters; ++r) {
        for (int i = 0; i < innings; ++i)
            s.diamond(QRectF(cInn + i * innW, y, innW, row));
        s.line(cName, y + row / 2, cInn, y + row / 2, 0.3, QColor(190, 190, 190)); // a substitute's line
        y += row;
        s.line(cNo, y, right, y, 0.6);
    }
    const double gridBottom = y;
    // Line score under the at bats.
    const QStringList sums = {QStringLiteral("Runs"), QStringLiteral("Hits"), QStringLiteral("Errors"),
                              QStringLiteral("Left on base")};
    for (const QString &sum : sums) {
        s.shade(QRectF(cNo, y, cInn - cNo, 15));
        s.text(QRectF(cName, y, cInn - cName, 15), sum, Qt::AlignLeft | Qt::AlignVCenter, 8, true);
        y += 15;
        s.line(cNo, y, cTot, y, 0.6);
    }
    for (int i = 1; i <= innings; ++i)
        s.line(cInn + i * innW, top, cInn + i * innW, i == innings ? gridBottom : y, i == innings ? 1.2 : 0.6,
               i == innings ? kInk : kRule);
    for (int i = 1; i < totals.size(); ++i)
        s.line(cTot + i * totW, top, cTot + i * totW, gridBottom, 0.6);
    for (double cx : {cName, cPos, cInn})
        s.line(cx, top, cx, y, 0.9, kInk);
    s.line(cNo, top + head, right, top + head, 0.9, kInk);
    s.box(QRectF(cNo, top, cTot - cNo, y - top));
    s.box(QRectF(cTot, top, right - cTot, gridBottom - top));
    // The final score beside the line score.
    s.text(QRectF(cTot + 8, gridBottom + 4, right - cTot - 8, 14), QStringLiteral("FINAL"),
           Qt::AlignLeft | Qt::AlignVCenter, 9, true);
    s.field(cTot + 8, gridBottom + 36, (right - cTot - 8) / 2 - 4, QStringLiteral("Us"));
    s.field(cTot + 8 + (right - cTot - 8) / 2 + 4, gridBottom + 36, (right - cTot - 8) / 2 - 4, QStringLiteral("Them"));

    // Pitchers.
    y += 10;
    const QStringList ph = {QStringLiteral("Pitcher"), QStringLiteral("IP"),      QStringLiteral("BF"),
                            QStringLiteral("H"),       QStringLiteral("R"),       QStringLiteral("ER"),
                            QStringLiteral("BB"),      QStringLiteral("Ks"),      QStringLiteral("HB"),
                            QStringLiteral("WP"),      QStringLiteral("Pitches"), QStringLiteral("W/L/S")};
    const double nameW = 170, pw = (W - 72 - nameW) / (ph.size() - 1);
    s.shade(QRectF(36, y, W - 72, 15));
    for (int i = 0; i < ph.size(); ++i) {
        const double x = i == 0 ? 36 : 36 + nameW + (i - 1) * pw;
        const double w = i == 0 ? nameW : pw;
        s.text(QRectF(x, y, w, 15), ph.at(i), Qt::AlignCenter, 7.5, true);
        if (i > 0)
            s.line(x, y, x, y + 15 + 3 * 17, 0.6);
    }
    double py = y + 15;
    s.line(36, py, W - 36, py, 0.8, kInk);
    for (int i = 0; i < 3; ++i) {
        py += 17;
        s.line(36, py, W - 36, py, 0.6);
    }
    s.box(QRectF(36, y, W - 72, py - y));
    s.text(QRectF(36, py + 3, W - 72, 12),
           QStringLiteral(
               "Codes: B1 B2 B3 HR  BB IBB HBP  SAC FO GO KS KL HDP  ROE FC CI  \u2014  runner out: CS POB FrO"),
           Qt::AlignLeft | Qt::AlignVCenter, 7);
    return s.save(path);
}

} // namespace

int main(int argc, char *argv[])
{
    QGuiApplication app(argc, argv);
    if (argc < 2) {
        std::fprintf(stderr, "usage: tl_make_form_pictures <folder>\n");
        return 2;
    }
    const QDir dir(QString::fromLocal8Bit(argv[1]));
    if (!dir.exists() && !QDir().mkpath(dir.path()))
        return 1;
    const bool ok = lineupCard(dir.filePath(QStringLiteral("Line-up Card.png"))) &&
                    pitchingChart(dir.filePath(QStringLiteral("Pitching Chart.png"))) &&
                    scoresheet(dir.filePath(QStringLiteral("Scoresheet.png")));
    return ok ? 0 : 1;
}
