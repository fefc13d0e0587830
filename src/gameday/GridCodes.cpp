#include "gameday/GridCodes.h"

namespace gameday {

QColor backgroundColour(QStringView code)
{
    if (code == kBkgOut)
        return QColor::fromRgb(0xFF5765);
    if (code == kBkgRun)
        return QColor::fromRgb(0x84FF85);
    if (code == kBkgLeft)
        return QColor::fromRgb(0xFFFA9B);
    if (code == kBkgDisabled)
        return QColor::fromRgb(0x727272);
    return QColor(Qt::white);
}

bool isBackgroundCode(QStringView code)
{
    return code.isEmpty() || code == kBkgOut || code == kBkgRun || code == kBkgLeft || code == kBkgDisabled;
}

const QStringList &atBatCodes()
{
    static const QStringList codes = {QStringLiteral("B1"),  QStringLiteral("B2"),  QStringLiteral("B3"),
                                      QStringLiteral("HR"),  QStringLiteral("BB"),  QStringLiteral("IBB"),
                                      QStringLiteral("HBP"), QStringLiteral("SAC"), QStringLiteral("FO"),
                                      QStringLiteral("GO"),  QStringLiteral("KS"),  QStringLiteral("KL"),
                                      QStringLiteral("HDP"), QStringLiteral("ROE"), QStringLiteral("FC"),
                                      QStringLiteral("CI"),  QStringLiteral("SF")};
    return codes;
}

const QStringList &resultCodes()
{
    static const QStringList codes = {QStringLiteral("xCS"),  QStringLiteral("xPOB"), QStringLiteral("xFrcO"),
                                      QStringLiteral("xOUT"), QStringLiteral("xRUN"), QStringLiteral("xLOB")};
    return codes;
}

const QStringList &commandCaptions()
{
    static const QStringList captions = {QStringLiteral("Clear Cell"),   QStringLiteral("Disable Cell"),
                                         QStringLiteral("Clear Column"), QStringLiteral("Disable Column"),
                                         QStringLiteral("Clear Row"),    QStringLiteral("Disable Row")};
    return captions;
}

bool countABs(QStringView code)
{
    return !(code == u"BB" || code == u"IBB" || code == u"SAC" || code == u"SF" || code == u"HBP" || code == u"CI");
}

bool isHitCode(QStringView code)
{
    return code == u"B1" || code == u"B2" || code == u"B3" || code == u"HR";
}

int numericValue(QStringView text)
{
    qsizetype i = 0;
    while (i < text.size() && text.at(i).isSpace())
        ++i;
    bool negative = false;
    if (i < text.size() && (text.at(i) == u'-' || text.at(i) == u'+')) {
        negative = text.at(i) == u'-';
        ++i;
    }
    long long value = 0;
    for (; i < text.size() && text.at(i).isDigit(); ++i) {
        value = value * 10 + text.at(i).digitValue();
        if (value > 1'000'000'000)
            break; // a damaged heading, not a real number: stop before overflowing
    }
    return int(negative ? -value : value);
}

} // namespace gameday
