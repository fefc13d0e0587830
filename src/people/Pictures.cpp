#include "people/Pictures.h"

#include "app/FileTypes.h"
#include "app/globals.h"
#include "platform/Services.h"

#include <QBuffer>
#include <QCache>
#include <QImageReader>
#include <QMimeData>
#include <QStandardPaths>
#include <QUrl>

#include <climits>

namespace people {

namespace {

// The bytes each picture read from the season was decoded from, by the
// picture's cache key: QImage keeps that key while the picture is only
// copied, and changes it when a pixel changes. Bounded by size, so a long
// session with many photos keeps only the recent ones.
QCache<qint64, QByteArray> &storedBytes()
{
    static QCache<qint64, QByteArray> cache(64 * 1024 * 1024);
    return cache;
}

} // namespace

QByteArray toPng(const QImage &picture)
{
    QByteArray bytes;
    if (picture.isNull())
        return bytes;
    if (const QByteArray *stored = storedBytes().object(picture.cacheKey()))
        return *stored;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    picture.save(&buffer, "PNG");
    return bytes;
}

QImage fromBlob(const QByteArray &blob)
{
    if (blob.isEmpty())
        return {};
    const QImage picture = QImage::fromData(blob);
    if (!picture.isNull())
        storedBytes().insert(picture.cacheKey(), new QByteArray(blob), int(qMin<qsizetype>(blob.size(), INT_MAX)));
    return picture;
}

QImage fitForStorage(const QImage &picture)
{
    if (picture.width() <= kMaxPictureSide && picture.height() <= kMaxPictureSide)
        return picture;
    return picture.scaled(kMaxPictureSide, kMaxPictureSide, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

QImage readPictureFile(const QString &path)
{
    QImageReader reader(path);
    // The file's content decides, not its extension: a dropped file of any
    // type is tried as a picture.
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    // A phone photo is decoded straight to the stored size where the format
    // allows it, which is much faster than decoding it whole.
    const QSize size = reader.size();
    if (size.width() > kMaxPictureSide || size.height() > kMaxPictureSide)
        reader.setScaledSize(size.scaled(kMaxPictureSide, kMaxPictureSide, Qt::KeepAspectRatio));
    return fitForStorage(reader.read());
}

QImage pictureFromMime(const QMimeData *mime)
{
    if (!mime)
        return {};
    if (mime->hasImage()) {
        const QImage image = qvariant_cast<QImage>(mime->imageData());
        if (!image.isNull())
            return fitForStorage(image);
    }
    if (mime->hasUrls()) {
        for (const QUrl &url : mime->urls()) {
            if (!url.isLocalFile())
                continue;
            const QImage image = readPictureFile(url.toLocalFile());
            if (!image.isNull())
                return image;
        }
    }
    return {};
}

bool mayCarryPicture(const QMimeData *mime)
{
    if (!mime)
        return false;
    if (mime->hasImage())
        return true;
    if (mime->hasUrls()) {
        for (const QUrl &url : mime->urls()) {
            if (url.isLocalFile())
                return true;
        }
    }
    return false;
}

QImage genericPicture()
{
    static const QImage picture(QStringLiteral(":/people/generic_person.png"));
    return picture;
}

QImage askForPictureFile()
{
    platform::FileRequest request;
    request.title = QStringLiteral("Select a Picture File to add");
    request.initialDir = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
    request.nameFilters = {FileTypes::AllPicts().nameFilter()};
    const QString path = platform::files().openFile(request);
    if (path.isEmpty())
        return {};
    const QImage picture = readPictureFile(path);
    if (picture.isNull())
        gMsgBox(QStringLiteral("That file could not be opened as a picture."));
    return picture;
}

} // namespace people
