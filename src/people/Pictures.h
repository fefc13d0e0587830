#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>

class QMimeData;

// Logos and photos: kept in the season file as PNG and read from any
// picture file the coach picks or drops.
namespace people {

// The longest side a chosen picture keeps; a larger one is scaled down.
inline constexpr int kMaxPictureSide = 1024;

// The bytes to store for a picture; empty for a null picture. A picture
// read with fromBlob and not changed since gives back the bytes it was read
// from, so saving a row with an unchanged photo decodes and encodes nothing.
// Any other picture is encoded as PNG.
QByteArray toPng(const QImage &picture);
// A stored picture; null for an empty or unreadable blob.
QImage fromBlob(const QByteArray &blob);
// A picture as the coach chose it, scaled down to kMaxPictureSide on its
// long side when larger.
QImage fitForStorage(const QImage &picture);
// A file opened as a picture, whatever its name says, scaled down as
// fitForStorage does; null when it isn't one.
QImage readPictureFile(const QString &path);
// The picture carried by a drop: an image itself, or the first local file
// that opens as a picture, scaled down as fitForStorage does. Null when the
// drop holds neither.
QImage pictureFromMime(const QMimeData *mime);
// True when a drop could carry a picture (used to accept the drag).
bool mayCarryPicture(const QMimeData *mime);

// Asks the coach for a picture file and opens it. Null when the dialog is
// cancelled, or when the file isn't a picture (the coach is told so).
QImage askForPictureFile();

// The generic picture of a player or coach without a photo.
QImage genericPicture();

} // namespace people
