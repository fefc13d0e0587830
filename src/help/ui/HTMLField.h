#pragma once

#include "help/HtmlText.h"

#include <QTextEdit>

// A read-only text control that shows a help page as plain text: its line
// structure, bullets and picture notes, with the page's styled ranges kept
// for links, anchors and styling (help::HtmlText does the reading). A
// click on a link raises LinkClicked, or scrolls to the anchor a "#" link
// names.
class HTMLField : public QTextEdit
{
    Q_OBJECT

public:
    explicit HTMLField(QWidget *parent = nullptr);

    void Render(const QString &html);
    // Applies the styled ranges to the text shown.
    void DoStyles();
    void ClearAll();

    const help::HtmlText &page() const { return m_page; }
    bool nowRendering() const { return m_rendering; }

Q_SIGNALS:
    void GotTitle(const QString &title);
    void LinkClicked(const QString &target);

private:
    void followLink();

    help::HtmlText m_page;
    bool m_rendering = false;
};
