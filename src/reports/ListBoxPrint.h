#pragma once

#include "platform/Printing.h"

#include <QColor>
#include <QFont>
#include <QList>
#include <QString>
#include <QStringList>

class ListBoxModel;

// The two printed layouts of a list, worked out in printer points and then
// painted on a print job. Positions are text baselines: a text placed at y
// sits on y, as the layouts' measures (title at top + 16, rows 16 apart) were
// drawn up.
namespace ListBoxPrint {

// The accent colour of title, date and headings.
inline QColor accentColor()
{
    return QColor(65, 117, 189);
}
constexpr int rowPitch = 16;

// The printout's fonts. "System" is the desktop's general UI font and
// "SmallSystem" its smallest readable UI font (QFontDatabase::GeneralFont and
// SmallestReadableFont); both are sized for a painter that measures in points.
QFont systemFont(int points);
QFont smallSystemFont();

struct Item
{
    int page = 0; // 0-based
    int x = 0;
    int y = 0;
    QString text;
    bool accent = false; // title, date or heading; rows are black
};

struct Layout
{
    QList<Item> items;
    int pages = 1;
    QFont font;
};

// printOneCopy's layout: `headers` columns of width / count points each.
Layout equalColumns(const platform::PrinterSetup &setup, const ListBoxModel &list, const QString &title,
                    const QString &date, const QStringList &headers, bool small);
// widePrintOneCopy's layout: columns at the running sum of `widths`, cut
// off at the setup's width. A column with no entry in `widths` isn't printed.
Layout givenColumns(const platform::PrinterSetup &setup, const ListBoxModel &list, const QString &title,
                    const QString &date, const QStringList &headers, const QStringList &widths);

// Draws a layout from the job's current page on, starting a new page at
// each page break. False when the device refused a new page.
bool paint(platform::PrintJob &job, const Layout &layout);

// Today's date in the short form of the user's locale, from the platform clock.
QString todayText();

} // namespace ListBoxPrint
