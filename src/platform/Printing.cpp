#include "platform/Printing.h"

#include <QPageSize>
#include <QRectF>
#include <QStringList>

namespace platform {

namespace {
// Letter paper with half-inch margins until the user chooses otherwise.
QPageLayout defaultLayout()
{
    return QPageLayout(QPageSize(QPageSize::Letter), QPageLayout::Portrait, QMarginsF(36, 36, 36, 36),
                       QPageLayout::Point);
}
} // namespace

PrinterSetup::PrinterSetup() : m_layout(defaultLayout()) {}

PrinterSetup::PrinterSetup(const QPageLayout &layout) : m_layout(layout)
{
    m_layout.setUnits(QPageLayout::Point);
}

bool PrinterSetup::isLandscape() const
{
    return m_layout.orientation() == QPageLayout::Landscape;
}

void PrinterSetup::setLandscape(bool landscape)
{
    m_layout.setOrientation(landscape ? QPageLayout::Landscape : QPageLayout::Portrait);
}

int PrinterSetup::width() const
{
    return int(m_layout.paintRect(QPageLayout::Point).width());
}

int PrinterSetup::height() const
{
    return int(m_layout.paintRect(QPageLayout::Point).height());
}

int PrinterSetup::pageLeft() const
{
    return -int(m_layout.margins(QPageLayout::Point).left());
}

int PrinterSetup::pageTop() const
{
    return -int(m_layout.margins(QPageLayout::Point).top());
}

int PrinterSetup::pageWidth() const
{
    return int(m_layout.fullRect(QPageLayout::Point).width());
}

int PrinterSetup::pageHeight() const
{
    return int(m_layout.fullRect(QPageLayout::Point).height());
}

QString PrinterSetup::toString() const
{
    const QMarginsF m = m_layout.margins(QPageLayout::Point);
    return QStringLiteral("%1;%2;%3,%4,%5,%6")
        .arg(m_layout.pageSize().key(), isLandscape() ? QStringLiteral("landscape") : QStringLiteral("portrait"))
        .arg(m.left())
        .arg(m.top())
        .arg(m.right())
        .arg(m.bottom());
}

std::optional<PrinterSetup> PrinterSetup::fromString(const QString &text)
{
    const QStringList parts = text.split(u';');
    if (parts.size() != 3)
        return std::nullopt;
    QPageSize size;
    for (int id = 0; id <= QPageSize::LastPageSize; ++id) {
        const QPageSize candidate(static_cast<QPageSize::PageSizeId>(id));
        if (candidate.key() == parts[0]) {
            size = candidate;
            break;
        }
    }
    if (!size.isValid())
        return std::nullopt;
    QPageLayout::Orientation orientation;
    if (parts[1] == u"portrait")
        orientation = QPageLayout::Portrait;
    else if (parts[1] == u"landscape")
        orientation = QPageLayout::Landscape;
    else
        return std::nullopt;
    const QStringList margins = parts[2].split(u',');
    if (margins.size() != 4)
        return std::nullopt;
    qreal m[4];
    for (int i = 0; i < 4; ++i) {
        bool ok = false;
        m[i] = margins[i].toDouble(&ok);
        if (!ok || m[i] < 0)
            return std::nullopt;
    }
    QPageLayout layout(size, orientation, QMarginsF(m[0], m[1], m[2], m[3]), QPageLayout::Point);
    if (!layout.isValid())
        return std::nullopt;
    return PrinterSetup(layout);
}

QFont printFont(QFont font, int points)
{
    font.setPixelSize(points);
    return font;
}

QString pdfFileName(const QString &jobTitle)
{
    QString name = jobTitle;
    for (QChar &c : name) {
        if (c.category() == QChar::Other_Control || QStringLiteral("/\\:*?\"<>|").contains(c))
            c = u'-';
    }
    name = name.trimmed();
    return (name.isEmpty() ? QStringLiteral("Tallyline Baseball") : name) + QStringLiteral(".pdf");
}

} // namespace platform
