#include "app/ui/splashScrn.h"

#include "app/ui/startScrn1.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QPainter>
#include <QScreen>

splashScrn::splashScrn(QWidget *parent)
    : QWidget(parent, Qt::SplashScreen | Qt::FramelessWindowHint), m_picture(QStringLiteral(":/app/splash.png"))
{
    setObjectName(QStringLiteral("splashScrn"));
    setAccessibleName(QStringLiteral("Tallyline Baseball"));
    setAttribute(Qt::WA_DeleteOnClose);
    setFocusPolicy(Qt::StrongFocus);
    resize(600, 400);
    if (QScreen *screen = QGuiApplication::primaryScreen())
        move(screen->availableGeometry().center() - rect().center());

    closeTimer.setObjectName(QStringLiteral("closeTimer"));
    closeTimer.setSingleShot(true);
    closeTimer.setInterval(3000);
    connect(&closeTimer, &QTimer::timeout, this, &QWidget::close);
    closeTimer.start();
}

void splashScrn::paintEvent(QPaintEvent *)
{
    QPainter p(this);
    p.setRenderHint(QPainter::SmoothPixmapTransform);
    p.drawImage(rect(), m_picture);
}

void splashScrn::mouseReleaseEvent(QMouseEvent *)
{
    close();
}

void splashScrn::keyPressEvent(QKeyEvent *)
{
    close();
}

void splashScrn::closeEvent(QCloseEvent *event)
{
    closeTimer.stop();
    // The start screen shows before the splash goes, so the program always
    // has a window.
    if (!m_startShown) {
        m_startShown = true;
        startScrn1::showStartScreen();
    }
    event->accept();
}
