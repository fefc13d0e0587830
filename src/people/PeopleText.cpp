#include "people/PeopleText.h"

#include <QStringList>

namespace people {

QString cleanName(const QString &text)
{
    QString out = text;
    for (QChar &c : out) {
        if (c == u'\t' || c == u'\r' || c == u'\n')
            c = u' ';
    }
    return out;
}

QString phoneMaskFor(const QString &text)
{
    if (text.size() > 9)
        return QStringLiteral("\\(###) ###\\-####");
    if (text.size() > 6)
        return QStringLiteral("###\\-####");
    return {};
}

QString formatThroughMask(const QString &text, const QString &mask)
{
    if (mask.isEmpty())
        return text;
    QString digits;
    for (const QChar c : text) {
        if (c.isDigit() && c.unicode() < 128)
            digits.append(c);
    }
    const qsizetype wanted = mask.count(u'#');
    if (digits.size() != wanted)
        return text;
    QString out;
    qsizetype next = 0;
    for (qsizetype i = 0; i < mask.size(); ++i) {
        const QChar m = mask.at(i);
        if (m == u'\\' && i + 1 < mask.size())
            out.append(mask.at(++i));
        else if (m == u'#')
            out.append(digits.at(next++));
        else
            out.append(m);
    }
    return out;
}

QString dobText(const QString &maskedText)
{
    for (const QChar c : maskedText) {
        if (c.isDigit())
            return maskedText;
    }
    return {};
}

QString ageLabel(const QString &dob, const QDate &today)
{
    if (dob.trimmed().isEmpty())
        return {};
    const QString unknown = QStringLiteral("??");
    const QStringList parts = dob.split(u'/');
    if (parts.size() != 3 || !today.isValid())
        return unknown;
    bool okMonth = false, okDay = false, okYear = false;
    const int birthMonth = parts[0].trimmed().toInt(&okMonth);
    const int birthDay = parts[1].trimmed().toInt(&okDay);
    QString yearText = parts[2].trimmed();
    if (yearText.size() > 2)
        yearText = yearText.right(2);
    const int birthYear = yearText.toInt(&okYear);
    if (!okMonth || !okDay || !okYear || yearText.isEmpty())
        return unknown;

    const int currentYear = today.year() % 100;
    int age = birthYear > currentYear ? currentYear + (100 - birthYear) : currentYear - birthYear;
    if (birthMonth > today.month() || (birthMonth == today.month() && birthDay > today.day()))
        --age;
    return QStringLiteral("Age: ") + QString::number(age);
}

} // namespace people
