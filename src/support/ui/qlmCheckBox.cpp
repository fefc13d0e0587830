#include "support/ui/qlmCheckBox.h"

#include "support/ui/SupportPictures.h"

#include <QAccessibleWidget>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFocusRect>

namespace {

// The caption is size 12 on the original 72-dpi layout: 12 pixels.
QFont captionFont(QFont font)
{
    font.setPixelSize(12);
    return font;
}

// What assistive tools see: a check box, or a radio button in a group, with
// its caption, its value, and a toggle action that clicks it.
class AccessibleCheckBox : public QAccessibleWidget
{
public:
    explicit AccessibleCheckBox(qlmCheckBox *box) : QAccessibleWidget(box, QAccessible::CheckBox) {}

    QAccessible::Role role() const override
    {
        return box()->groupTotal() > 0 ? QAccessible::RadioButton : QAccessible::CheckBox;
    }
    QString text(QAccessible::Text t) const override
    {
        if (t == QAccessible::Name && box()->accessibleName().isEmpty())
            return box()->text();
        return QAccessibleWidget::text(t);
    }
    QAccessible::State state() const override
    {
        QAccessible::State s = QAccessibleWidget::state();
        s.checkable = true;
        s.checked = box()->value();
        return s;
    }
    QStringList actionNames() const override { return {toggleAction()}; }
    void doAction(const QString &action) override
    {
        if (action == toggleAction() || action == pressAction())
            box()->click();
    }
    QStringList keyBindingsForAction(const QString &) const override { return {QStringLiteral("Space")}; }

private:
    qlmCheckBox *box() const { return static_cast<qlmCheckBox *>(widget()); }
};

QAccessibleInterface *checkBoxAccessibility(const QString &className, QObject *object)
{
    if (className == u"qlmCheckBox" && object && object->isWidgetType())
        return new AccessibleCheckBox(static_cast<qlmCheckBox *>(object));
    return nullptr;
}

} // namespace

qlmCheckBox::qlmCheckBox(QWidget *parent) : qlmCheckBox(QString(), parent) {}

qlmCheckBox::qlmCheckBox(const QString &text, QWidget *parent)
    : QAbstractButton(parent), m_valuePict(support::supportPicture(QStringLiteral("qlmCheckOn"))),
      m_unselPict(support::supportPicture(QStringLiteral("qlmCheckOff")))
{
    static const bool accessibilityInstalled = [] {
        QAccessible::installFactory(checkBoxAccessibility);
        return true;
    }();
    Q_UNUSED(accessibilityInstalled);
    setCheckable(true);
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    setFont(captionFont(font()));
    setText(text);
    connect(this, &QAbstractButton::clicked, this, &qlmCheckBox::afterClick);
}

void qlmCheckBox::makeGroup(const QList<qlmCheckBox *> &boxes)
{
    for (qlmCheckBox *box : boxes) {
        QList<qlmCheckBox *> others = boxes;
        others.removeAll(box);
        box->setMyGroup(others);
    }
}

void qlmCheckBox::setValue(bool on)
{
    setChecked(on);
    if (on) {
        for (qlmCheckBox *other : myGroup())
            other->setChecked(false);
    }
    update();
}

void qlmCheckBox::setMyText(const QString &caption)
{
    setText(caption);
    updateGeometry();
    update();
}

QList<qlmCheckBox *> qlmCheckBox::myGroup() const
{
    QList<qlmCheckBox *> boxes;
    for (const QPointer<qlmCheckBox> &box : m_group) {
        if (box)
            boxes.append(box.data());
    }
    return boxes;
}

void qlmCheckBox::setMyGroup(const QList<qlmCheckBox *> &others)
{
    m_group.clear();
    for (qlmCheckBox *box : others) {
        if (box && box != this)
            m_group.append(box);
    }
}

void qlmCheckBox::setPictures(const QImage &checked, const QImage &unchecked)
{
    m_valuePict = checked;
    m_unselPict = unchecked;
    update();
}

QSize qlmCheckBox::sizeHint() const
{
    const int h = 20;
    return {h + 6 + fontMetrics().horizontalAdvance(text()) + 4, h};
}

QSize qlmCheckBox::minimumSizeHint() const
{
    return sizeHint();
}

bool qlmCheckBox::takesPress() const
{
    // A group always has one box on: pressing that one does nothing.
    return groupTotal() == 0 || !value();
}

void qlmCheckBox::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && !takesPress()) {
        // Keep the focus moving to the box, as a click on any control does.
        setFocus(Qt::MouseFocusReason);
        event->accept();
        return;
    }
    QAbstractButton::mousePressEvent(event);
}

void qlmCheckBox::keyPressEvent(QKeyEvent *event)
{
    if ((event->key() == Qt::Key_Space || event->key() == Qt::Key_Select) && !takesPress()) {
        event->accept();
        return;
    }
    QAbstractButton::keyPressEvent(event);
}

void qlmCheckBox::nextCheckState()
{
    // Reached by every click: mouse, Space, or click() from code or an
    // assistive tool.
    if (!takesPress()) {
        m_clickTaken = false;
        return;
    }
    m_clickTaken = true;
    const bool now = !value();
    setChecked(now);
    for (qlmCheckBox *other : myGroup()) {
        other->setChecked(!now);
        other->update();
    }
    update();
}

void qlmCheckBox::afterClick()
{
    if (!m_clickTaken)
        return;
    m_clickTaken = false;
    Q_EMIT MouseUp();
}

void qlmCheckBox::paintEvent(QPaintEvent *)
{
    QPainter p(this);
    p.setRenderHint(QPainter::SmoothPixmapTransform);
    p.setRenderHint(QPainter::TextAntialiasing);
    const int h = height();
    if (!isEnabled())
        p.setOpacity(0.45);
    p.drawImage(QRectF(0, 0, h, h), value() ? m_valuePict : m_unselPict);
    p.setPen(Qt::black);
    p.setFont(font());
    p.drawText(QPointF(myTextLeft(), myBaseLine()), text());
    if (hasFocus()) {
        QStyleOptionFocusRect focus;
        focus.initFrom(this);
        const int textWidth = fontMetrics().horizontalAdvance(text());
        focus.rect = QRect(myTextLeft() - 2, 1, textWidth + 4, h - 2);
        if (text().isEmpty())
            focus.rect = QRect(0, 0, h, h);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &p, this);
    }
}

bool qlmCheckBox::hitButton(const QPoint &) const
{
    // A press the box took is a click when it is let go, inside or not.
    return true;
}
