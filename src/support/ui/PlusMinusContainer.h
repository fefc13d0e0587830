#pragma once

#include "support/PlusMinusState.h"

#include <QImage>
#include <QTimer>
#include <QWidget>

// A pair of small buttons, plus on the left and minus on the right, 45 by 22
// pixels, painted from the picture "plusminuspic". Each half is enabled by
// itself. A half raises its event when the mouse is let go over the half it
// was pressed on; let go anywhere else, nothing happens.
//
// From the keyboard, Tab reaches the pair on its first enabled half, a
// second Tab moves to the other half, and Space presses the half that has
// the focus. The pair shows disabled while its window is in the background.
//
// Assistive tools see the pair as a group of two buttons named by
// setHalfNames ("Add team", "Delete team"), each pressable by its action.
class PlusMinusContainer : public QWidget
{
    Q_OBJECT

public:
    explicit PlusMinusContainer(QWidget *parent = nullptr);
    // A pair whose halves are named `plusName` and `minusName`.
    PlusMinusContainer(const QString &plusName, const QString &minusName, QWidget *parent);

    bool plusEnabled() const { return m_state.plusEnabled; }
    bool minusEnabled() const { return m_state.minusEnabled; }
    void setPlusEnabled(bool on);
    void setMinusEnabled(bool on);

    // 0 none, 1 plus, 2 minus.
    int focusedbutton() const { return m_state.focusedbutton; }
    bool pushPlus() const { return m_state.pushPlus; }
    bool pushMinus() const { return m_state.pushMinus; }
    bool windowEnabled() const { return m_state.windowEnabled; }

    // Shown as disabled (and deaf to the mouse) while `flag` is false. The
    // pair follows its window's activation by itself.
    void SetWindowEnabled(bool flag);

    // Keeps a half shown pressed for `seconds` after Space, then lets go.
    // The wait runs on the event loop: the program doesn't stop for it.
    void buttondelay(double seconds);

    // What each half does, for its tool tip and for assistive tools:
    // setHalfNames("New team", "Delete team").
    void setHalfNames(const QString &plusName, const QString &minusName);
    QString halfName(support::PlusMinusState::Half half) const;

    // Presses a half as an assistive tool does: raises its event when the
    // half and the pair are enabled.
    void pressHalf(support::PlusMinusState::Half half);
    bool halfTakesInput(support::PlusMinusState::Half half) const;

    QSize sizeHint() const override { return {support::PlusMinusState::width, support::PlusMinusState::height}; }

Q_SIGNALS:
    void PlusPressed();
    void MinusPressed();

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    bool focusNextPrevChild(bool next) override;
    void changeEvent(QEvent *event) override;

private:
    void raise(support::PlusMinusState::Half half);
    void updateFocusPolicy();

    support::PlusMinusState m_state;
    QImage m_picture;
    QTimer m_letGoTimer;
    QString m_plusName;
    QString m_minusName;
};
