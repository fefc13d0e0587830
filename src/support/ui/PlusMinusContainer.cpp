#include "support/ui/PlusMinusContainer.h"

#include "support/PlusMinusPainter.h"
#include "support/ui/SupportPictures.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QToolTip>

using support::PlusMinusState;

namespace {

// One half of the pair as assistive tools see it: a button of its own.
class HalfAccessible : public QAccessibleInterface, public QAccessibleActionInterface
{
public:
    HalfAccessible(PlusMinusContainer *pair, PlusMinusState::Half half) : m_pair(pair), m_half(half) {}

    bool isValid() const override { return m_pair; }
    QObject *object() const override { return nullptr; }
    QWindow *window() const override { return m_pair ? m_pair->window()->windowHandle() : nullptr; }
    QAccessibleInterface *parent() const override { return QAccessible::queryAccessibleInterface(m_pair); }
    QAccessibleInterface *child(int) const override { return nullptr; }
    QAccessibleInterface *childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface *) const override { return -1; }
    QString text(QAccessible::Text t) const override
    {
        return m_pair && t == QAccessible::Name ? m_pair->halfName(m_half) : QString();
    }
    void setText(QAccessible::Text, const QString &) override {}
    QRect rect() const override
    {
        if (!m_pair)
            return {};
        const int middle = PlusMinusState::width / 2;
        const QRect local = m_half == PlusMinusState::Plus
                                ? QRect(0, 0, middle, PlusMinusState::height)
                                : QRect(middle, 0, PlusMinusState::width - middle, PlusMinusState::height);
        return local.translated(m_pair->mapToGlobal(QPoint(0, 0)));
    }
    QAccessible::Role role() const override { return QAccessible::Button; }
    QAccessible::State state() const override
    {
        QAccessible::State s;
        s.disabled = !m_pair || !m_pair->halfTakesInput(m_half);
        s.focusable = !s.disabled;
        s.focused = m_pair && m_pair->hasFocus() && m_pair->focusedbutton() == m_half;
        return s;
    }
    void *interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface *>(this) : nullptr;
    }
    QStringList actionNames() const override { return {pressAction()}; }
    void doAction(const QString &action) override
    {
        if (m_pair && action == pressAction())
            m_pair->pressHalf(m_half);
    }
    QStringList keyBindingsForAction(const QString &) const override { return {}; }

private:
    QPointer<PlusMinusContainer> m_pair;
    PlusMinusState::Half m_half;
};

// The pair: a group holding its two halves.
class PairAccessible : public QAccessibleWidget
{
public:
    explicit PairAccessible(PlusMinusContainer *pair) : QAccessibleWidget(pair, QAccessible::Grouping)
    {
        for (int i = 0; i < 2; ++i)
            m_halves[i] = QAccessible::registerAccessibleInterface(
                new HalfAccessible(pair, i == 0 ? PlusMinusState::Plus : PlusMinusState::Minus));
    }
    ~PairAccessible() override
    {
        for (QAccessible::Id id : m_halves)
            QAccessible::deleteAccessibleInterface(id);
    }
    int childCount() const override { return 2; }
    QAccessibleInterface *child(int index) const override
    {
        return index == 0 || index == 1 ? QAccessible::accessibleInterface(m_halves[index]) : nullptr;
    }
    int indexOfChild(const QAccessibleInterface *child) const override
    {
        for (int i = 0; i < 2; ++i) {
            if (QAccessible::accessibleInterface(m_halves[i]) == child)
                return i;
        }
        return -1;
    }
    QAccessibleInterface *childAt(int x, int y) const override
    {
        for (int i = 0; i < 2; ++i) {
            QAccessibleInterface *half = child(i);
            if (half->rect().contains(x, y))
                return half;
        }
        return nullptr;
    }

private:
    QAccessible::Id m_halves[2] = {};
};

QAccessibleInterface *pairAccessible(const QString &, QObject *object)
{
    if (auto *pair = qobject_cast<PlusMinusContainer *>(object))
        return new PairAccessible(pair);
    return nullptr;
}

} // namespace

PlusMinusContainer::PlusMinusContainer(const QString &plusName, const QString &minusName, QWidget *parent)
    : PlusMinusContainer(parent)
{
    setHalfNames(plusName, minusName);
}

PlusMinusContainer::PlusMinusContainer(QWidget *parent)
    : QWidget(parent), m_picture(support::supportPicture(QStringLiteral("plusminuspic")))
{
    static const bool accessible = (QAccessible::installFactory(pairAccessible), true);
    Q_UNUSED(accessible);
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

QString PlusMinusContainer::halfName(PlusMinusState::Half half) const
{
    return half == PlusMinusState::Plus ? m_plusName : half == PlusMinusState::Minus ? m_minusName : QString();
}

bool PlusMinusContainer::halfTakesInput(PlusMinusState::Half half) const
{
    return isEnabled() && m_state.halfEnabled(half);
}

void PlusMinusContainer::pressHalf(PlusMinusState::Half half)
{
    if (halfTakesInput(half))
        raise(half);
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
