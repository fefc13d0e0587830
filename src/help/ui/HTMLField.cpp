#include "help/ui/HTMLField.h"

#include <QAbstractTextDocumentLayout>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextCursor>

HTMLField::HTMLField(QWidget *parent) : QTextEdit(parent)
{
    setReadOnly(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    connect(this, &QTextEdit::cursorPositionChanged, this, &HTMLField::followLink);
}

void HTMLField::ClearAll()
{
    m_page.ClearAll();
    clear();
}

void HTMLField::Render(const QString &html)
{
    m_rendering = true;
    const bool wasVisible = isVisible();
    setVisible(false);
    m_page.Render(html);
    Q_EMIT GotTitle(m_page.title);
    // The page's line ends are carriage returns; each is one character, so
    // the ranges' offsets hold in the control.
    QString shown = m_page.text;
    shown.replace(QChar(13), QChar(10));
    QFont f = font();
    f.setPointSize(help::HtmlText::kBaseSize);
    setFont(f);
    setPlainText(shown);
    QPalette colours = palette();
    colours.setColor(QPalette::Base, m_page.background);
    colours.setColor(QPalette::Text, m_page.textColor);
    setPalette(colours);
    verticalScrollBar()->setValue(0);
    QTextCursor start(document());
    setTextCursor(start);
    setVisible(wasVisible);
    m_rendering = false;
}

void HTMLField::DoStyles()
{
    auto apply = [this](const QStringList &list, const auto &style) {
        for (const QString &entry : list) {
            const QStringList f = entry.split(u'\t');
            if (f.size() < 2)
                continue;
            // A page whose tags overlap oddly can name a range past the end.
            const int last = document()->characterCount() - 1;
            QTextCursor c(document());
            c.setPosition(std::clamp(f.at(0).toInt(), 0, last));
            c.setPosition(std::clamp(f.at(1).toInt(), 0, last), QTextCursor::KeepAnchor);
            QTextCharFormat format;
            style(format, f.mid(2));
            c.mergeCharFormat(format);
        }
    };
    apply(m_page.bolds, [](QTextCharFormat &f, const QStringList &) { f.setFontWeight(QFont::Bold); });
    apply(m_page.italics, [](QTextCharFormat &f, const QStringList &) { f.setFontItalic(true); });
    apply(m_page.headers, [](QTextCharFormat &f, const QStringList &v) {
        f.setFontWeight(QFont::Bold);
        const int level = v.value(0).toInt();
        f.setFontPointSize(level == 1 ? 24 : level == 2 ? 18 : 16);
    });
    apply(m_page.fonts, [](QTextCharFormat &f, const QStringList &v) { f.setFontFamilies({v.value(0)}); });
    apply(m_page.sizes, [](QTextCharFormat &f, const QStringList &v) { f.setFontPointSize(v.value(0).toInt()); });
    apply(m_page.colors,
          [](QTextCharFormat &f, const QStringList &v) { f.setForeground(help::HtmlText::ColorFromHex(v.value(0))); });
    const QColor linkColour = m_page.linkColor;
    apply(m_page.links, [linkColour](QTextCharFormat &f, const QStringList &) {
        f.setForeground(linkColour);
        f.setFontUnderline(true);
    });
}

void HTMLField::followLink()
{
    if (m_rendering)
        return;
    const auto target = m_page.linkAt(textCursor().selectionStart());
    if (!target)
        return;
    if (!target->startsWith(u'#')) {
        Q_EMIT LinkClicked(*target);
        return;
    }
    if (const auto position = m_page.anchorPosition(*target)) {
        QTextCursor c(document());
        c.setPosition(std::min(*position, document()->characterCount() - 1));
        verticalScrollBar()->setValue(int(document()->documentLayout()->blockBoundingRect(c.block()).top()));
    }
}
