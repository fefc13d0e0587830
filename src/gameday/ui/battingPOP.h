#pragma once

#include <QWidget>
#include <array>

class QEventLoop;
class QLabel;
class QPushButton;
class PopoverCodeList;

// The small window that opens beside a clicked grid cell and hands back one
// string: an at-bat code, an on-base result ("x" and its text) or the
// caption of one of six commands. A click outside it, or Escape, closes it
// with the empty string. All meaning of the string lies in the grid.
class battingPOP : public QWidget
{
    Q_OBJECT

public:
    explicit battingPOP(QWidget *parent = nullptr);
    ~battingPOP() override;

    // Places the window at (left, top) in screen coordinates (moved back
    // onto the screen where it would stick out), lays it out for `showAll`
    // and runs it modally; returns clickedTxt.
    QString getClickedTxt(int left, int top, bool showAll);

    QString clickedTxt;
    int displayTop = 0;

Q_SIGNALS:
    // Shown and laid out; getClickedTxt is waiting for a choice.
    void opened();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void layOut(bool showAll);
    void choose(const QString &text);

    QLabel *batActionLabel = nullptr;
    PopoverCodeList *batActionLB = nullptr;
    QLabel *resultLabel = nullptr;
    PopoverCodeList *resultLB = nullptr;
    std::array<QPushButton *, 6> actionBtn{};
    QEventLoop *m_loop = nullptr;
};
