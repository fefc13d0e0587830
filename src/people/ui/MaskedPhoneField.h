#pragma once

#include <QLineEdit>

// The team's phone number. It keeps the text as typed and, when the focus
// leaves it, shows that text through a mask chosen by its length
// ("555-1234", "(614) 555-1234"); while it has the focus the typed text is
// back for editing. typedText() is what is stored.
class MaskedPhoneField : public QLineEdit
{
    Q_OBJECT

public:
    explicit MaskedPhoneField(QWidget *parent = nullptr);

    QString typedText() const;
    // Shows a stored number through its mask.
    void setTypedText(const QString &text);
    // The mask in use, in the "#" and backslash form; empty for none.
    QString mask() const { return m_mask; }

protected:
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    void applyMask();

    QString m_typed;
    QString m_mask;
    bool m_masked = false;
};
