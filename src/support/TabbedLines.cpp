#include "support/TabbedLines.h"

#include <QStringDecoder>

namespace support {

namespace {

bool isBlank(const QString &line)
{
    for (const QChar c : line) {
        if (!c.isSpace())
            return false;
    }
    return true;
}

// Control characters (tab aside), the replacement character of a bad UTF-8
// sequence and lone surrogates mark a line that isn't text.
bool holdsJunk(const QString &line)
{
    for (qsizetype i = 0; i < line.size(); ++i) {
        const char16_t c = line.at(i).unicode();
        if (c == u'\t')
            continue;
        if (c < 0x20 || c == 0x7f || (c >= 0x80 && c < 0xa0) || c == 0xfffd || c == 0xfeff)
            return true;
        if (QChar::isHighSurrogate(c)) {
            if (i + 1 >= line.size() || !line.at(i + 1).isLowSurrogate())
                return true;
            ++i;
        } else if (QChar::isLowSurrogate(c)) {
            return true;
        }
    }
    return false;
}

QString chopTrailingTabs(QString line)
{
    while (line.endsWith(u'\t'))
        line.chop(1);
    return line;
}

} // namespace

TabbedLines TabbedLines::parse(const QByteArray &bytes, int maxFields)
{
    TabbedLines out;
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString text = decoder.decode(bytes.startsWith("\xEF\xBB\xBF") ? bytes.mid(3) : bytes);

    int number = 0;
    qsizetype start = 0;
    while (start <= text.size()) {
        qsizetype end = start;
        while (end < text.size() && text.at(end) != u'\r' && text.at(end) != u'\n')
            ++end;
        const QString line = text.mid(start, end - start);
        ++number;
        // The end of the text after a last line end is no line of its own.
        if (end == text.size() && line.isEmpty())
            break;
        if (end < text.size() && text.at(end) == u'\r' && end + 1 < text.size() && text.at(end + 1) == u'\n')
            ++end;
        start = end + 1;

        if (isBlank(line)) {
            ++out.blank;
            continue;
        }
        const QStringList fields = chopTrailingTabs(line).split(u'\t');
        bool refused = holdsJunk(line) || fields.size() > maxFields;
        for (const QString &f : fields)
            refused = refused || f.size() > kMaxField;
        if (refused)
            out.skipped.append(number);
        else
            out.lines.append({number, fields});
    }
    return out;
}

QString lineNumberList(const QList<int> &numbers, int shown)
{
    QStringList parts;
    for (int i = 0; i < numbers.size() && i < shown; ++i)
        parts.append(QString::number(numbers.at(i)));
    if (numbers.size() > shown)
        return parts.join(QStringLiteral(", ")) + QStringLiteral(" and ") + QString::number(numbers.size() - shown) +
               QStringLiteral(" more");
    if (parts.size() <= 1)
        return parts.join(QString());
    const QString last = parts.takeLast();
    return parts.join(QStringLiteral(", ")) + QStringLiteral(" and ") + last;
}

} // namespace support
