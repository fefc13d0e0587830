#pragma once

#include <QDialog>

class QLabel;
class QPlainTextEdit;

// The About box: a picture, the version, the credits. A click anywhere in it
// closes it when the mouse button is released; Escape and Return close it too.
class AboutScrn : public QDialog
{
    Q_OBJECT

public:
    explicit AboutScrn(QWidget *parent = nullptr);

    // "Version 2.2.0: Build 2"
    static QString versionText();

protected:
    void mouseReleaseEvent(QMouseEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QLabel *versLabel = nullptr;
    QPlainTextEdit *creditsTxt = nullptr;
    QLabel *picture = nullptr;
};
