#pragma once

#include <QLineEdit>

// A text field for a phone number. It takes digits and the separators from
// the keyboard, at most one digit past ten; when a key is let go it gathers
// every digit of its text into `sFieldValue` and shows them formatted:
// "555", "555-1234", "(614) 555-1234", "1 (614) 555-1234". Text pasted with
// the menu or dropped in is treated the same way, so letters never stay.
//
// The field's text (as formatted) is what a screen stores; setText() from
// code shows a stored number as it is.
class iPhoneField : public QLineEdit
{
    Q_OBJECT

public:
    explicit iPhoneField(QWidget *parent = nullptr);

    // The digits of the number, nothing else.
    QString sFieldValue() const { return m_digits; }

    // Shows `sFieldValue` in the format for its number of digits, keeping
    // the cursor behind the same digit.
    void HandleFormat();

    QSize sizeHint() const override;

Q_SIGNALS:
    // The user changed the number: a digit typed, a digit removed, a paste.
    // Not raised for setText() from code.
    void makeDirty();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    void gatherDigits();

    QString m_digits;
    bool m_inKeyPress = false;
};
