// The plus-and-minus pair apart from its widget: which half a press and a
// release at each pixel raise, and what the painter takes from each strip of
// the picture. Focus, Tab and Space are tested through the widget
// (tst_buttonsAndWindows).

#include "support/HelpRequests.h"
#include "support/PlusMinusPainter.h"
#include "support/PlusMinusState.h"

#include <QImage>
#include <QPainter>
#include <QSignalSpy>
#include <QTest>

using support::PlusMinusPainter;
using support::PlusMinusState;
using Half = support::PlusMinusState::Half;

Q_DECLARE_METATYPE(support::PlusMinusState::Half)

namespace {

const QColor kNormal(Qt::red);
const QColor kDown(Qt::green);
const QColor kDisabled(Qt::blue);

// A picture of three solid strips, at the given density.
QImage stripPicture(int ratio)
{
    QImage picture(45 * ratio, 66 * ratio, QImage::Format_ARGB32);
    QPainter p(&picture);
    p.fillRect(0, 0, 45 * ratio, 22 * ratio, kNormal);
    p.fillRect(0, 22 * ratio, 45 * ratio, 22 * ratio, kDown);
    p.fillRect(0, 44 * ratio, 45 * ratio, 22 * ratio, kDisabled);
    p.end();
    picture.setDevicePixelRatio(ratio);
    return picture;
}

QImage painted(const PlusMinusState &state, int ratio = 1)
{
    QImage canvas(45, 22, QImage::Format_ARGB32);
    canvas.fill(Qt::black);
    QPainter p(&canvas);
    PlusMinusPainter(stripPicture(ratio)).paint(p, state);
    return canvas;
}

} // namespace

class TestPlusMinusRules : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pressAndRelease_data()
    {
        QTest::addColumn<QPointF>("press");
        QTest::addColumn<QPointF>("release");
        QTest::addColumn<bool>("plusEnabled");
        QTest::addColumn<Half>("raised");
        QTest::newRow("last pixel of plus") << QPointF(22, 3) << QPointF(22.4, 3) << true << PlusMinusState::Plus;
        QTest::newRow("middle is minus") << QPointF(22.5, 3) << QPointF(23, 3) << true << PlusMinusState::Minus;
        QTest::newRow("let go over the other half")
            << QPointF(5, 10) << QPointF(30, 10) << true << PlusMinusState::None;
        QTest::newRow("let go below") << QPointF(5, 10) << QPointF(5, 23) << true << PlusMinusState::None;
        QTest::newRow("let go above") << QPointF(40, 10) << QPointF(40, -1) << true << PlusMinusState::None;
        QTest::newRow("let go right of it") << QPointF(40, 10) << QPointF(46, 10) << true << PlusMinusState::None;
        QTest::newRow("let go left of it") << QPointF(2, 10) << QPointF(-1, 10) << true << PlusMinusState::None;
        QTest::newRow("minus with plus disabled")
            << QPointF(40, 10) << QPointF(40, 10) << false << PlusMinusState::Minus;
    }
    void pressAndRelease()
    {
        QFETCH(QPointF, press);
        QFETCH(QPointF, release);
        QFETCH(bool, plusEnabled);
        QFETCH(Half, raised);
        PlusMinusState state;
        state.setPlusEnabled(plusEnabled);
        const bool taken = state.press(press);
        const bool onPlus = press.x() < 22.5;
        QCOMPARE(taken, onPlus ? plusEnabled : true);
        QCOMPARE(state.pushPlus, taken && onPlus);
        QCOMPARE(state.pushMinus, taken && !onPlus);
        QCOMPARE(state.release(release), raised);
        // Whatever happened, both halves show released.
        QVERIFY(!state.pushPlus && !state.pushMinus);
    }

    void painting_data()
    {
        QTest::addColumn<int>("ratio");
        QTest::newRow("picture at 1x") << 1;
        QTest::newRow("picture at 2x") << 2;
    }
    void painting()
    {
        QFETCH(int, ratio);
        PlusMinusState state;
        QImage image = painted(state, ratio);
        QCOMPARE(image.pixelColor(5, 5), kNormal);
        QCOMPARE(image.pixelColor(40, 20), kNormal);

        state.pushPlus = true;
        image = painted(state, ratio);
        QCOMPARE(image.pixelColor(0, 0), kDown);
        QCOMPARE(image.pixelColor(21, 21), kDown);
        // The seam belongs to neither half; minus starts one pixel past it.
        QCOMPARE(image.pixelColor(22, 10), kNormal);
        QCOMPARE(image.pixelColor(23, 10), kNormal);

        state.pushPlus = false;
        state.pushMinus = true;
        state.minusEnabled = false;
        image = painted(state, ratio);
        QCOMPARE(image.pixelColor(10, 10), kNormal);
        QCOMPARE(image.pixelColor(22, 10), kNormal);
        QCOMPARE(image.pixelColor(23, 10), kDisabled); // the disabled strip over the pressed one
        QCOMPARE(image.pixelColor(44, 21), kDisabled);

        PlusMinusState background;
        background.windowEnabled = false;
        background.focusedbutton = PlusMinusState::None;
        image = painted(background, ratio);
        QCOMPARE(image.pixelColor(5, 5), kDisabled);
        QCOMPARE(image.pixelColor(22, 5), kDisabled);
        QCOMPARE(image.pixelColor(40, 5), kDisabled);
    }

    void focusOutline()
    {
        PlusMinusState state;
        state.focusedbutton = PlusMinusState::Minus;
        const QImage image = painted(state);
        QCOMPARE(image.pixelColor(23, 10), PlusMinusPainter::focusOuter());
        QCOMPARE(image.pixelColor(24, 10), PlusMinusPainter::focusInner());
        QCOMPARE(image.pixelColor(44, 10), PlusMinusPainter::focusOuter());
        QCOMPARE(image.pixelColor(30, 0), PlusMinusPainter::focusOuter());
        QCOMPARE(image.pixelColor(30, 1), PlusMinusPainter::focusInner());
        QCOMPARE(image.pixelColor(30, 10), kNormal);
        QCOMPARE(image.pixelColor(0, 10), kNormal); // plus has no outline
    }

    void helpRequestsKnowWhetherAnyoneListens()
    {
        auto &requests = support::HelpRequests::instance();
        QVERIFY(!requests.isAnswered());
        QSignalSpy changes(&requests, &support::HelpRequests::answeredChanged);
        {
            QSignalSpy asked(&requests, &support::HelpRequests::requested);
            QVERIFY(requests.isAnswered());
            requests.ask(13);
            QCOMPARE(asked.count(), 1);
            QCOMPARE(asked.at(0).at(0).toInt(), 13);
        }
        QVERIFY(!requests.isAnswered());
        QTRY_COMPARE(changes.count(), 2);
        QCOMPARE(changes.at(0).at(0).toBool(), true);
        QCOMPARE(changes.at(1).at(0).toBool(), false);
    }
};

QTEST_GUILESS_MAIN(TestPlusMinusRules)
#include "tst_plusMinusRules.moc"
