#include "support/ui/PlusMinusContainer.h"

#include "support/PlusMinusPainter.h"
#include "support/ui/SupportPictures.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

using support::PlusMinusState;

PlusMinusContainer::PlusMinusContainer(QWidget *parent)
    : QWidget(parent), m_picture(support::supportPicture(QStringLiteral("plusminuspic")))
{
    setFixedSize(PlusMinusState::width, PlusMinusState::height);
    // The keyboard reaches the pair with Tab; a click doesn't take the focus
    // away from the field the user is in.
    setFocusPolicy(Qt::TabFocus);
    setAccessibleName(QStringLiteral("Add or remove"));
    m_letGoTimer.setSingleShot(true);
    connect(&m_letGoTimer, &QTimer::timeout, this, [this] {
        m_state.letGo();
        update();
    });
}

void PlusMinusContainer::setPlusEnabled(bool on)
{
    m_state.setPlusEnabled(on);
    updateFocusPolicy();
    update();
}

void PlusMinusContainer::setMinusEnabled(bool on)
{
    m_state.setMinusEnabled(on);
    updateFocusPolicy();
    update();
}

void PlusMinusContainer::updateFocusPolicy()
{
    // With both halves off there is nothing for the keyboard to reach.
    setFocusPolicy(m_state.plusEnabled || m_state.minusEnabled ? Qt::TabFocus : Qt::NoFocus);
}

void PlusMinusContainer::SetWindowEnabled(bool flag)
{
    m_state.windowEnabled = flag;
    update();
}

void PlusMinusContainer::buttondelay(double seconds)
{
    m_letGoTimer.start(qMax(0, int(seconds * 1000)));
}

void PlusMinusContainer::setHalfNames(const QString &plusName, const QString &minusName)
{
    m_plusName = plusName;
    m_minusName = minusName;
    setAccessibleDescription(QStringLiteral("Plus: %1. Minus: %2.").arg(plusName, minusName));
}

void PlusMinusContainer::raise(PlusMinusState::Half half)
{
    if (half == PlusMinusState::Plus)
        Q_EMIT PlusPressed();
    else if (half == PlusMinusState::Minus)
        Q_EMIT MinusPressed();
}

bool PlusMinusContainer::event(QEvent *event)
{
    // The window passes its activation down to its controls as these two.
    if (event->type() == QEvent::WindowActivate)
        SetWindowEnabled(true);
    else if (event->type() == QEvent::WindowDeactivate)
        SetWindowEnabled(false);
    if (event->type() == QEvent::ToolTip) {
        auto *help = static_cast<QHelpEvent *>(event);
        const QString &name = PlusMinusState::halfAt(help->pos().x()) == PlusMinusState::Plus ? m_plusName
                                                                                            : m_minusName;
        if (name.isEmpty())
            QToolTip::hideText();
        else
            QToolTip::showText(help->globalPos(), name, this);
        return true;
    }
    return QWidget::event(event);
}

void PlusMinusContainer::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    m_state.enabled = isEnabled();
    support::PlusMinusPainter(m_picture).paint(painter, m_state);
}

void PlusMinusContainer::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    // A click on a window in the background brings it forward; the
    // activation may be reported only after the press itself.
    if (!m_state.windowEnabled && isActiveWindow())
        m_state.windowEnabled = true;
    m_state.enabled = isEnabled();
    if (m_state.press(event->position()))
        update();
    event->accept();
}

void PlusMinusContainer::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    const PlusMinusState::Half half = m_state.release(event->position());
    update();
    event->accept();
    raise(half);
}

void PlusMinusContainer::keyPressEvent(QKeyEvent *event)
{
    if (event->key() != Qt::Key_Space || event->modifiers() != Qt::NoModifier) {
        QWidget::keyPressEvent(event);
        return;
    }
    event->accept();
    if (event->isAutoRepeat() || m_letGoTimer.isActive())
        return;
    m_state.enabled = isEnabled();
    const PlusMinusState::Half half = m_state.spacePress();
    if (half == PlusMinusState::None)
        return;
    // Shown pressed before the event runs, which may open a dialog.
    repaint();
    buttondelay(0.125);
    raise(half);
}

void PlusMinusContainer::focusInEvent(QFocusEvent *event)
{
    m_state.focusIn(event->reason() == Qt::BacktabFocusReason);
    update();
    QWidget::focusInEvent(event);
}

void PlusMinusContainer::focusOutEvent(QFocusEvent *event)
{
    m_state.focusOut();
    update();
    QWidget::focusOutEvent(event);
}

bool PlusMinusContainer::focusNextPrevChild(bool next)
{
    if (hasFocus() && m_state.tab(!next)) {
        update();
        return true;
    }
    update();
    return QWidget::focusNextPrevChild(next);
}

void PlusMinusContainer::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::ActivationChange) // the pair as a window of its own
        SetWindowEnabled(isActiveWindow());
    else if (event->type() == QEvent::EnabledChange)
        update();
    QWidget::changeEvent(event);
}
