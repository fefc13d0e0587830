#pragma once

#include <QDialog>

class QLabel;

// A small window shown while a long step runs on the one thread of the
// program ("Please wait...", and a line about the step). It has no logic:
// the caller shows it with showNow() before the step and closes it after.
// While it is shown the pointer is the busy one.
class pleaseWaitScrn : public QDialog
{
    Q_OBJECT

public:
    explicit pleaseWaitScrn(QWidget *parent = nullptr,
                            const QString &detail = QStringLiteral("This will only take a moment."));
    ~pleaseWaitScrn() override;

    // Shows the window and paints it at once, before the caller's long step
    // keeps the event loop busy.
    void showNow();

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    bool m_cursorSet = false;
    QLabel *titleLbl = nullptr;
    QLabel *detailLbl = nullptr;
};
