#include "support/ui/NumberKeyFilter.h"

#include "app/globals.h"

#include <QKeyEvent>
#include <QLineEdit>

namespace support {

NumberKeyFilter *NumberKeyFilter::install(QLineEdit *field, NumberKeyOptions options)
{
    auto *filter = new NumberKeyFilter(field, options);
    field->installEventFilter(filter);
    return filter;
}

NumberKeyFilter::NumberKeyFilter(QLineEdit *field, NumberKeyOptions options) : QObject(field), m_options(options) {}

bool NumberKeyFilter::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return false;
    auto *field = qobject_cast<QLineEdit *>(watched);
    if (!field)
        return false;
    const auto *key = static_cast<QKeyEvent *>(event);
    const NumberKeyAction action = numberKeyAction(key->key(), key->text(), key->modifiers(), m_options);
    if (action == NumberKeyAction::Pass)
        return false;
    if (action == NumberKeyAction::Refuse) {
        gBeep();
        return true;
    }
    field->setText(steppedNumber(field->text(), action == NumberKeyAction::StepUp ? 1 : -1, m_options));
    Q_EMIT stepped(field);
    return true;
}

} // namespace support
