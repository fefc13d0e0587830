#include "people/ui/MaskedPhoneField.h"

#include "people/PeopleText.h"

MaskedPhoneField::MaskedPhoneField(QWidget *parent) : QLineEdit(parent) {}

QString MaskedPhoneField::typedText() const
{
    return m_masked ? m_typed : text();
}

void MaskedPhoneField::setTypedText(const QString &text)
{
    m_typed = text;
    m_masked = false;
    setText(text);
    if (!hasFocus())
        applyMask();
}

void MaskedPhoneField::applyMask()
{
    m_typed = typedText();
    m_mask = people::phoneMaskFor(m_typed);
    m_masked = true;
    setText(people::formatThroughMask(m_typed, m_mask));
}

void MaskedPhoneField::focusInEvent(QFocusEvent *event)
{
    if (m_masked) {
        m_masked = false;
        setText(m_typed);
    }
    QLineEdit::focusInEvent(event);
}

void MaskedPhoneField::focusOutEvent(QFocusEvent *event)
{
    QLineEdit::focusOutEvent(event);
    applyMask();
}
