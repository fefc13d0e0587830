#pragma once

#include <QImage>
#include <QTimer>
#include <QWidget>

// The opening picture. It closes after three seconds, on a click (when the
// mouse button is released) or on a key, and shows the start screen as it
// closes.
class splashScrn : public QWidget
{
    Q_OBJECT

public:
    explicit splashScrn(QWidget *parent = nullptr);

    QTimer closeTimer;

protected:
    void paintEvent(QPaintEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    QImage m_picture;
    bool m_startShown = false;
};
