#include "support/PhoneNumber.h"

namespace support::phone {

namespace {

bool isAsciiDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

} // namespace

KeyVerdict keyDown(int key, const QString &text, Qt::KeyboardModifiers modifiers, qsizetype digitsHeld)
{
    if (modifiers & (Qt::ControlModifier | Qt::MetaModifier))
        return KeyVerdict::Pass;
    switch (key) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Backspace:
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
        return KeyVerdict::Pass;
    default:
        break;
    }
    // A key that types nothing (Delete, Home, Escape, a lone Shift) can't
    // put a wrong character in.
    if (text.isEmpty() || !text.at(0).isPrint())
        return KeyVerdict::Pass;
    if (text == u"-" || text == u"(" || text == u")")
        return KeyVerdict::Pass;
    if (text.size() == 1 && isAsciiDigit(text.at(0)))
        return digitsHeld > maxTypedDigits ? KeyVerdict::Refuse : KeyVerdict::PassDigit;
    return KeyVerdict::Refuse;
}

QString gatherDigits(const QString &text)
{
    QString digits;
    digits.reserve(text.size());
    for (QChar c : text) {
        if (isAsciiDigit(c))
            digits.append(c);
    }
    return digits;
}

QString format(const QString &digits)
{
    const qsizetype n = digits.size();
    if (n <= 3)
        return digits;
    if (n <= 7)
        return digits.left(3) + u'-' + digits.mid(3);
    if (n <= 10)
        return u'(' + digits.left(3) + u") " + digits.mid(3, 3) + u'-' + digits.mid(6);
    return digits.left(1) + u" (" + digits.mid(1, 3) + u") " + digits.mid(4, 3) + u'-' + digits.mid(7);
}

qsizetype digitsBefore(const QString &text, qsizetype position)
{
    qsizetype count = 0;
    const qsizetype end = qMin(position, text.size());
    for (qsizetype i = 0; i < end; ++i) {
        if (isAsciiDigit(text.at(i)))
            ++count;
    }
    return count;
}

qsizetype positionAfterDigits(const QString &text, qsizetype count)
{
    if (count <= 0)
        return 0;
    qsizetype seen = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (isAsciiDigit(text.at(i)) && ++seen == count)
            return i + 1;
    }
    return text.size();
}

qsizetype backspaceFrom(const QString &text, qsizetype position)
{
    qsizetype p = qMin(position, text.size());
    while (p > 0 && !isAsciiDigit(text.at(p - 1)))
        --p;
    // With no digit before the separators the key has nothing to take:
    // leave the cursor where it was.
    return p > 0 ? p : position;
}

} // namespace support::phone
