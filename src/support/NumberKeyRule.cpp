#include "support/NumberKeyRule.h"

#include <QRegularExpression>

#include <cmath>
#include <limits>

namespace support {

NumberKeyAction numberKeyAction(int key, const QString &text, Qt::KeyboardModifiers modifiers, NumberKeyOptions options)
{
    if (modifiers & (Qt::ControlModifier | Qt::MetaModifier))
        return NumberKeyAction::Pass;
    if (text == u"+")
        return NumberKeyAction::StepUp;
    if (text == u"-")
        return NumberKeyAction::StepDown;
    if (key == Qt::Key_Tab || key == Qt::Key_Backtab || key == Qt::Key_Backspace)
        return NumberKeyAction::Pass;
    if (text.isEmpty() || !text.at(0).isPrint())
        return NumberKeyAction::Pass;
    if (text.size() == 1) {
        const QChar c = text.at(0);
        if (c >= u'0' && c <= u'9')
            return NumberKeyAction::Pass;
        if (c == u'.' && options.allowPoint)
            return NumberKeyAction::Pass;
    }
    return NumberKeyAction::Refuse;
}

int numberFieldValue(const QString &text)
{
    static const QRegularExpression leadingNumber(QStringLiteral("^\\s*([-+]?(?:\\d+(?:\\.\\d*)?|\\.\\d+))"));
    const QRegularExpressionMatch m = leadingNumber.match(text);
    if (!m.hasMatch())
        return 0;
    const double value = std::trunc(m.captured(1).toDouble());
    if (value >= std::numeric_limits<int>::max())
        return std::numeric_limits<int>::max();
    if (value <= std::numeric_limits<int>::min())
        return std::numeric_limits<int>::min();
    return static_cast<int>(value);
}

QString steppedNumber(const QString &text, int delta, NumberKeyOptions options)
{
    const qint64 value = qint64(numberFieldValue(text)) + delta;
    qint64 result = qBound(qint64(std::numeric_limits<int>::min()), value, qint64(std::numeric_limits<int>::max()));
    if (options.floorAtZero && result < 0)
        result = 0;
    return QString::number(result);
}

} // namespace support
