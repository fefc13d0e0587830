#pragma once

#include <QColor>
#include <QString>
#include <QStringList>

#include <optional>

namespace help {

// A help page turned into plain text and lists of styled ranges. Only a
// small set of tags is understood, and it is read by plain text search and
// replacement, one tag at a time from the left, so that every range keeps
// its final offset: tags before a position are always gone by the time a
// range starting there is recorded.
//
// Every list entry is tab-separated text: "start\tend[\tvalue]" with
// 0-based character offsets into `text`, end exclusive; anchors are
// "position\tname".
class HtmlText
{
public:
    static constexpr int kBaseSize = 12;

    // Replaces everything by the text of `html`.
    void Render(const QString &html);
    // Empties the text and every list.
    void ClearAll();

    QString text;
    QString title;
    QStringList bolds, italics, headers, fonts, colors, sizes, links, anchors;
    QColor linkColor = QColor(0, 0, 255);
    QColor background = Qt::white;
    QColor textColor = Qt::black;
    bool bodyMet = false;

    // The target of the first link whose range holds `position` (both ends
    // included), as the control follows a click.
    std::optional<QString> linkAt(int position) const;
    // Where the anchor of that name ("#name" or "name") stands, if any.
    std::optional<int> anchorPosition(const QString &target) const;

    static QString GetTitle(const QString &html);
    static QString ReplaceEntities(QString text);
    static QString StripHTML(QString text);
    static QString RemoveExcessSpace(QString text);
    static QColor ColorFromHex(const QString &text);
    static QString HexFromColor(const QColor &colour);
    static int GetSizeFromParam(const QString &text, int controlSize = kBaseSize);

private:
    void tagLoop(QString &s);
};

} // namespace help
