#pragma once

#include "support/NumberKeyRule.h"

#include <QObject>

class QLineEdit;

namespace support {

// Puts the number fields' key rule on a line edit (a field, or the editor of
// a list cell): "+" and "-" step its value, digits, Tab and Backspace pass,
// anything else beeps and is dropped.
//
//   support::NumberKeyFilter::install(runsFld);
//   auto *f = support::NumberKeyFilter::install(qtyFld, {.floorAtZero = false});
class NumberKeyFilter : public QObject
{
    Q_OBJECT

public:
    // The filter belongs to the field and goes with it.
    static NumberKeyFilter *install(QLineEdit *field, NumberKeyOptions options = {});

    NumberKeyOptions options() const { return m_options; }

Q_SIGNALS:
    // "+" or "-" replaced the field's text.
    void stepped(QLineEdit *field);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    NumberKeyFilter(QLineEdit *field, NumberKeyOptions options);

    NumberKeyOptions m_options;
};

} // namespace support
