#include "help/HtmlText.h"

#include "app/globals.h"

#include <QHash>
#include <QRegularExpression>

namespace help {

namespace {

constexpr Qt::CaseSensitivity kAnyCase = Qt::CaseInsensitive;
const QChar kCR(13);
// Written-out angle brackets wait as these two while tags are taken out.
const QChar kLess(0);
const QChar kGreater(1);

QString range(qsizetype start, qsizetype end)
{
    return QString::number(start) + u'\t' + QString::number(end);
}

QString range(qsizetype start, qsizetype end, const QString &value)
{
    return range(start, end) + u'\t' + value;
}

// The tag's words: split on blanks, as the tag was written.
QStringList words(const QString &tagText)
{
    static const QRegularExpression blanks(QStringLiteral("\\s+"));
    return tagText.split(blanks, Qt::SkipEmptyParts);
}

} // namespace

QString HtmlText::GetTitle(const QString &html)
{
    const qsizetype open = html.indexOf(u"<title>", 0, kAnyCase);
    if (open < 0)
        return {};
    const qsizetype from = open + 7;
    const qsizetype close = html.indexOf(u"</title>", from, kAnyCase);
    return close < 0 ? html.mid(from) : html.mid(from, close - from);
}

QString HtmlText::ReplaceEntities(QString text)
{
    // Case matters here: &Agrave; and &agrave; are two letters.
    static const QList<std::pair<QString, QString>> table = [] {
        QList<std::pair<QString, QString>> t = {
            {u"&copy;"_qs, u"\u00A9"_qs},  {u"&reg;"_qs, u"\u00AE"_qs},   {u"&cent;"_qs, u"\u00A2"_qs},
            {u"&yen;"_qs, u"\u00A5"_qs},   {u"&pound;"_qs, u"\u00A3"_qs}, {u"&euro;"_qs, u"\u20AC"_qs},
            {u"&trade;"_qs, u"\u2122"_qs}, {u"&quot;"_qs, u"\""_qs},      {u"&amp;"_qs, u"&"_qs},
            {u"&deg;"_qs, u"\u00B0"_qs},   {u"&nbsp;"_qs, u"\u00A0"_qs},
        };
        // Accented letters by name: capital first, then small.
        const struct
        {
            const char *base;
            const char *marks;
            char16_t capitals[6];
        } letters[] = {
            {"A", "grave acute circ tilde uml ring", {0xC0, 0xC1, 0xC2, 0xC3, 0xC4, 0xC5}},
            {"C", "cedil", {0xC7}},
            {"E", "grave acute circ uml", {0xC8, 0xC9, 0xCA, 0xCB}},
            {"I", "grave acute circ uml", {0xCC, 0xCD, 0xCE, 0xCF}},
            {"N", "tilde", {0xD1}},
            {"O", "grave acute circ tilde uml", {0xD2, 0xD3, 0xD4, 0xD5, 0xD6}},
            {"U", "grave acute circ uml", {0xD9, 0xDA, 0xDB, 0xDC}},
        };
        for (const auto &l : letters) {
            const QStringList marks = QString::fromLatin1(l.marks).split(u' ');
            for (bool small : {false, true}) {
                for (int i = 0; i < marks.size(); ++i) {
                    const QString base = small ? QString::fromLatin1(l.base).toLower() : QString::fromLatin1(l.base);
                    // In Latin-1 every small letter stands 0x20 above its capital.
                    const QChar letter(char16_t(l.capitals[i] + (small ? 0x20 : 0)));
                    t.append({u'&' + base + marks.at(i) + u';', QString(letter)});
                }
            }
        }
        t.append({u"&Yuml;"_qs, u"\u0178"_qs});
        t.append({u"&yuml;"_qs, u"\u00FF"_qs});
        t.append({u"&szlig;"_qs, u"\u00DF"_qs});
        return t;
    }();
    for (const auto &[entity, letter] : table)
        text.replace(entity, letter, Qt::CaseSensitive);
    return text;
}

QString HtmlText::StripHTML(QString text)
{
    for (qsizetype p = text.indexOf(u'<'); p >= 0; p = text.indexOf(u'<', p)) {
        const qsizetype q = text.indexOf(u'>', p);
        // A "<" that is never closed takes the rest with it.
        text.remove(p, q < 0 ? text.size() - p : q - p + 1);
    }
    return text;
}

QString HtmlText::RemoveExcessSpace(QString text)
{
    while (text.contains(u"  "))
        text.replace(u"  "_qs, u" "_qs);
    return text;
}

QColor HtmlText::ColorFromHex(const QString &text)
{
    const QString digits = text.mid(1);
    auto part = [&](int i) { return digits.mid(i * 2, 2).toInt(nullptr, 16); };
    return QColor(part(0), part(1), part(2));
}

QString HtmlText::HexFromColor(const QColor &colour)
{
    return QStringLiteral("#%1%2%3")
        .arg(colour.red(), 2, 16, QChar(u'0'))
        .arg(colour.green(), 2, 16, QChar(u'0'))
        .arg(colour.blue(), 2, 16, QChar(u'0'))
        .toUpper();
}

int HtmlText::GetSizeFromParam(const QString &text, int controlSize)
{
    if (text.startsWith(u'-'))
        return controlSize - text.mid(1).toInt();
    if (text.startsWith(u'+'))
        return controlSize + text.mid(1).toInt();
    return text.toInt();
}

void HtmlText::ClearAll()
{
    text.clear();
    for (QStringList *list : {&bolds, &italics, &headers, &fonts, &colors, &sizes, &links, &anchors})
        list->clear();
}

void HtmlText::Render(const QString &html)
{
    QString s = html;
    // The line structure, by plain replacement.
    s.remove(kCR);
    s.replace(u"<br>"_qs, QString(kCR), kAnyCase);
    s.replace(u"<p"_qs, kCR + u"<p"_qs, kAnyCase);
    s.replace(u"</p"_qs, kCR + u"</p"_qs, kAnyCase);
    for (const char *tag : {"<ul>", "</ul>", "</lh>", "<dl>", "</dt>", "</dd>"})
        s.replace(QString::fromLatin1(tag), QString(kCR), kAnyCase);
    for (int n = 1; n <= 3; ++n) {
        const QString open = QStringLiteral("<h") + QString::number(n);
        const QString close = QStringLiteral("</h") + QString::number(n);
        s.replace(open, kCR + open, kAnyCase);
        s.replace(close, kCR + close, kAnyCase);
    }
    s = RemoveExcessSpace(s);
    // After the blanks were reduced, so that the bullet keeps its indent.
    s.replace(u"<li>"_qs, kCR + u"   \u2022 "_qs, kAnyCase);
    s = ReplaceEntities(s);

    title = GetTitle(s);
    const qsizetype open = s.indexOf(u"<title>", 0, kAnyCase);
    const qsizetype close = open < 0 ? -1 : s.indexOf(u"</title>", open, kAnyCase);
    if (open >= 0)
        s = s.left(open) + (close < 0 ? QString() : s.mid(close + 8));

    s.replace(u"&lt;"_qs, QString(kLess), kAnyCase);
    s.replace(u"&gt;"_qs, QString(kGreater), kAnyCase);

    ClearAll();
    bodyMet = false;
    linkColor = QColor(0, 0, 255);
    background = Qt::white;
    textColor = Qt::black;
    tagLoop(s);

    s.replace(kLess, u'<');
    s.replace(kGreater, u'>');
    text = LTrim(s, QStringLiteral("\n"));
}

void HtmlText::tagLoop(QString &s)
{
    for (qsizetype p = s.indexOf(u'<'); p >= 0; p = s.indexOf(u'<')) {
        const qsizetype q = s.indexOf(u'>', p);
        const qsizetype tagEnd = q < 0 ? s.size() : q + 1;
        const QString tagText = s.mid(p + 1, tagEnd - p - 2 + (q < 0 ? 1 : 0));
        s.remove(p, tagEnd - p);

        const QStringList parts = words(tagText);
        const QString name = parts.isEmpty() ? QString() : parts.first().toLower();
        QHash<QString, QString> attributes;
        for (qsizetype i = 1; i < parts.size(); ++i) {
            const qsizetype eq = parts.at(i).indexOf(u'=');
            const QString key = (eq < 0 ? parts.at(i) : parts.at(i).left(eq)).toLower();
            QString value = eq < 0 ? QString() : parts.at(i).mid(eq + 1);
            value.remove(u'"');
            attributes.insert(key, value);
        }

        if (name == u"img" || name == u"image") {
            const QString alt = attributes.value(QStringLiteral("alt"));
            QString note = alt.isEmpty() ? u"[IMAGE]"_qs : u"[IMAGE: "_qs + alt + u']';
            // Brackets in the alt text are text, not the start of a tag
            // that would move every later offset.
            note.replace(u'<', kLess);
            note.replace(u'>', kGreater);
            s.insert(p, note);
            if (attributes.contains(QStringLiteral("src")))
                links.append(range(p, p + note.size(), attributes.value(QStringLiteral("src"))));
            continue;
        }
        // A stray closing tag just goes.
        if (name.isEmpty() || name.startsWith(u'/'))
            continue;
        // An element with no closing tag has no effect.
        const qsizetype c = s.indexOf(u"</" + name, p, kAnyCase);
        if (c < 0)
            continue;

        const QString inner = s.mid(p, c - p);
        const qsizetype c2 = p + StripHTML(inner).size();
        const qsizetype closeEnd = s.indexOf(u'>', c);
        const QString after = closeEnd < 0 ? QString() : s.mid(closeEnd + 1);
        const QString start = QString::number(p);

        if (name == u"body") {
            bodyMet = true;
            linkColor = attributes.contains(u"link"_qs) ? ColorFromHex(attributes.value(u"link"_qs))
                                                        : QColor(0, 0, 255);
            background = attributes.contains(u"bgcolor"_qs) ? ColorFromHex(attributes.value(u"bgcolor"_qs))
                                                            : QColor(Qt::white);
            textColor = attributes.contains(u"text"_qs) ? ColorFromHex(attributes.value(u"text"_qs))
                                                        : QColor(Qt::black);
        } else if (name == u"b") {
            bolds.append(range(p, c2));
        } else if (name == u"i") {
            italics.append(range(p, c2));
        } else if (name == u"small") {
            sizes.append(range(p, c2, u"10"_qs));
        } else if (name == u"h1" || name == u"h2" || name == u"h3") {
            headers.append(range(p, c2, name.mid(1)));
        } else if (name == u"font") {
            if (attributes.contains(u"face"_qs))
                fonts.append(range(p, c2, attributes.value(u"face"_qs)));
            if (attributes.contains(u"size"_qs))
                sizes.append(range(p, c2, QString::number(GetSizeFromParam(attributes.value(u"size"_qs)))));
            if (attributes.contains(u"color"_qs))
                colors.append(range(p, c2, attributes.value(u"color"_qs)));
        } else if (name == u"a") {
            if (attributes.contains(u"href"_qs))
                links.append(range(p, c2, attributes.value(u"href"_qs)));
            if (attributes.contains(u"name"_qs))
                anchors.append(start + u'\t' + attributes.value(u"name"_qs));
        }
        // The inner text goes back with its tags, for the passes to come;
        // only the closing tag has gone.
        s = s.left(p) + inner + after;
    }
}

std::optional<QString> HtmlText::linkAt(int position) const
{
    for (const QString &entry : links) {
        const QStringList f = entry.split(u'\t');
        if (f.size() >= 3 && f.at(0).toInt() <= position && position <= f.at(1).toInt())
            return f.mid(2).join(u'\t');
    }
    return std::nullopt;
}

std::optional<int> HtmlText::anchorPosition(const QString &target) const
{
    const QString name = target.startsWith(u'#') ? target.mid(1) : target;
    for (const QString &entry : anchors) {
        const qsizetype tab = entry.indexOf(u'\t');
        if (tab > 0 && entry.mid(tab + 1) == name)
            return entry.left(tab).toInt();
    }
    return std::nullopt;
}

} // namespace help
