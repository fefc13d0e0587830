#include "reports/ListBoxPrint.h"

#include "platform/Services.h"
#include "reports/ColumnWidths.h"
#include "reports/ListBoxModel.h"

#include <QFontDatabase>
#include <QLocale>
#include <QPainter>

namespace ListBoxPrint {

namespace {

// The fixed places of a printout, measured from the printable area's top.
constexpr int titleY = 16;
constexpr int dateY = 32;
constexpr int headingY = 64;
constexpr int firstRowY = 80;
constexpr int widePoints = 10;
constexpr int normalPoints = 12;

// Lays out the title block, then the rows with the page-break rule: after each
// row the next row's y is checked against the printable height, and past it
// the list goes on at the top of a new page. A list that fills its last page
// exactly thus ends on a fresh, empty page, as the printout always has.
template<typename CellX>
Layout layoutRows(const platform::PrinterSetup &setup, const ListBoxModel &list, const QString &title,
                  const QString &date, const QStringList &headers, const QString &emptyText, CellX cellX)
{
    Layout layout;
    const int top = setup.top();
    const int left = setup.left();
    layout.items.append({0, left, top + titleY, title, true});
    layout.items.append({0, left, top + dateY, date, true});
    for (int c = 0; c < headers.size(); ++c) {
        const int x = cellX(c);
        if (x < 0)
            break;
        layout.items.append({0, x, top + headingY, headers.at(c), true});
    }

    int page = 0;
    int y = top + firstRowY;
    if (list.rowCount() == 0) {
        layout.items.append({0, left, y, emptyText, false});
        return layout;
    }
    for (int row = 0; row < list.rowCount(); ++row) {
        for (int c = 0; c < headers.size(); ++c) {
            const int x = cellX(c);
            if (x < 0)
                break;
            const QString text = list.cell(row, c);
            if (!text.isEmpty())
                layout.items.append({page, x, y, text, false});
        }
        y += rowPitch;
        if (y > setup.height()) {
            ++page;
            // A baseline at the very top would put the row above the printable
            // area; one pitch down it stands whole on the page.
            y = top + rowPitch;
        }
    }
    layout.pages = page + 1;
    return layout;
}

} // namespace

QFont systemFont(int points)
{
    return platform::printFont(QFontDatabase::systemFont(QFontDatabase::GeneralFont), points);
}

QFont smallSystemFont()
{
    const QFont small = QFontDatabase::systemFont(QFontDatabase::SmallestReadableFont);
    const int points = small.pointSize() > 0 ? small.pointSize() : 9;
    return platform::printFont(small, points);
}

Layout equalColumns(const platform::PrinterSetup &setup, const ListBoxModel &list, const QString &title,
                    const QString &date, const QStringList &headers, bool small)
{
    const int columnWidth = headers.isEmpty() ? setup.width() : setup.width() / int(headers.size());
    const int left = setup.left();
    Layout layout = layoutRows(setup, list, title, date, headers, QStringLiteral("No items in list."),
                               [&](int c) { return left + c * columnWidth; });
    layout.font = small ? smallSystemFont() : systemFont(normalPoints);
    return layout;
}

Layout givenColumns(const platform::PrinterSetup &setup, const ListBoxModel &list, const QString &title,
                    const QString &date, const QStringList &headers, const QStringList &widths)
{
    // Column c starts after the widths of the columns before it; -1 marks a
    // column past the page's width (and so every column after it) or one
    // without a width.
    QList<int> xs;
    int x = setup.left();
    for (int c = 0; c < headers.size(); ++c) {
        if (c >= widths.size() || x > setup.width()) {
            xs.append(-1);
            continue;
        }
        xs.append(x);
        x += int(ColumnWidths::leadingNumber(widths.at(c)));
    }
    Layout layout = layoutRows(setup, list, title, date, headers, QStringLiteral("No Data Available"),
                               [&](int c) { return xs.at(c); });
    layout.font = systemFont(widePoints);
    return layout;
}

bool paint(platform::PrintJob &job, const Layout &layout)
{
    QPainter &painter = job.painter();
    painter.save();
    painter.setFont(layout.font);
    const QColor accent = accentColor();
    int page = 0;
    bool ok = true;
    for (const Item &item : layout.items) {
        while (page < item.page) {
            ok = job.newPage() && ok;
            ++page;
        }
        painter.setPen(item.accent ? accent : QColor(Qt::black));
        painter.drawText(QPointF(item.x, item.y), item.text);
    }
    // Pages the layout ends on with nothing drawn yet (an exact fit) still count.
    while (page < layout.pages - 1) {
        ok = job.newPage() && ok;
        ++page;
    }
    painter.restore();
    return ok;
}

QString todayText()
{
    return QLocale().toString(platform::clock().now().date(), QLocale::ShortFormat);
}

} // namespace ListBoxPrint
