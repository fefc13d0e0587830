#pragma once

#include "people/MemberRecord.h"
#include "people/TeamRecord.h"

#include <QImage>
#include <QList>
#include <QPointF>
#include <QSizeF>
#include <QString>

#include <functional>

namespace platform {
class PrintJob;
}

// The team and player data printouts, laid out as data first (blocks of
// text and pictures at offsets from the block's top) and then painted on a
// print job, so the layout can be checked without a printer.
namespace people {

struct PrintItem
{
    QPointF at;         // from the left of the printable area and the block's top, in points
    QString text;       // drawn with its top at `at`, cut with "..." to `maxWidth`
    qreal maxWidth = 0; // 0: no limit
    QImage picture;     // or a picture, fitted into `pictureSize` keeping its proportions
    QSizeF pictureSize;
};
using PrintBlock = QList<PrintItem>;

// The distance between the tops of two blocks on a page.
inline constexpr int kTeamBlockStep = 216;
inline constexpr int kPlayerBlockStep = 270;

// One block per team: name, league, division, address, phone and home
// field down the left, and the logo at half the page's width when
// `withLogo` (a team without one gets `placeholder`).
QList<PrintBlock> teamDataBlocks(const QList<TeamRecord> &teams, bool withLogo, const QImage &placeholder,
                                 int pageWidth);

// One block per player: name and address down the left, the photo (or
// `generic` when there is none) at half the page's width when `withPhoto`,
// the playing data in three columns and the guardian, emergency contact
// and doctor with their phones.
QList<PrintBlock> playerDataBlocks(const QList<MemberRecord> &players, bool withPhoto, const QImage &generic,
                                   int pageWidth);

// Paints the blocks on `job`, their tops at the positions of
// gCreateVertPrinterPts(setup, step); a new page starts when a page's
// positions are used up.
void paintBlocks(platform::PrintJob &job, const QList<PrintBlock> &blocks, int step);

// The page set-up (the remembered one, or the set-up dialog), then the print
// dialog, then `drawCopy` once per copy the device doesn't make itself, each
// copy on new pages. False when the coach cancelled or the device failed
// (which is reported).
bool runPrint(const QString &jobTitle, const std::function<void(platform::PrintJob &)> &drawCopy);

} // namespace people
