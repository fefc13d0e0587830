#include "support/ui/iPhoneField.h"

#include "app/globals.h"
#include "support/PhoneNumber.h"

#include <QKeyEvent>

using namespace support;

iPhoneField::iPhoneField(QWidget *parent) : QLineEdit(parent)
{
    // The digits follow the text at all times, so that the limit on typed
    // digits holds even when keys come faster than they are let go.
    connect(this, &QLineEdit::textChanged, this, [this](const QString &text) { m_digits = phone::gatherDigits(text); });
    connect(this, &QLineEdit::textEdited, this, [this] {
        Q_EMIT makeDirty();
        // A paste from the context menu or a drop comes with no key to let
        // go: format it now. Keyboard edits wait for the key's release.
        if (!m_inKeyPress) {
            gatherDigits();
            HandleFormat();
        }
    });
}

QSize iPhoneField::sizeHint() const
{
    QSize size = QLineEdit::sizeHint();
    const int wanted = fontMetrics().horizontalAdvance(QStringLiteral("1 (000) 000-00000")) + 16;
    size.setWidth(qMax(size.width(), wanted));
    return size;
}

void iPhoneField::gatherDigits()
{
    m_digits = phone::gatherDigits(text());
}

void iPhoneField::HandleFormat()
{
    const QString formatted = phone::format(m_digits);
    if (formatted == text())
        return;
    const qsizetype digitsBeforeCursor = phone::digitsBefore(text(), cursorPosition());
    setText(formatted);
    setCursorPosition(int(phone::positionAfterDigits(formatted, digitsBeforeCursor)));
}

void iPhoneField::keyPressEvent(QKeyEvent *event)
{
    const phone::KeyVerdict verdict = phone::keyDown(event->key(), event->text(), event->modifiers(), m_digits.size());
    if (verdict == phone::KeyVerdict::Refuse) {
        gBeep();
        event->accept();
        return;
    }
    if (event->key() == Qt::Key_Backspace && !hasSelectedText() && event->modifiers() == Qt::NoModifier)
        setCursorPosition(int(phone::backspaceFrom(text(), cursorPosition())));
    m_inKeyPress = true;
    QLineEdit::keyPressEvent(event);
    m_inKeyPress = false;
}

void iPhoneField::keyReleaseEvent(QKeyEvent *event)
{
    QLineEdit::keyReleaseEvent(event);
    gatherDigits();
    HandleFormat();
}

void iPhoneField::focusOutEvent(QFocusEvent *event)
{
    // A key let go after the focus moved on is seen by the next control.
    QLineEdit::focusOutEvent(event);
    gatherDigits();
    HandleFormat();
}
