#include "people/Pictures.h"

#include <QBuffer>
#include <QImageReader>
#include <QMimeData>
#include <QUrl>

namespace people {

QByteArray toPng(const QImage &picture)
{
    QByteArray bytes;
    if (picture.isNull())
        return bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    picture.save(&buffer, "PNG");
    return bytes;
}

QImage fromBlob(const QByteArray &blob)
{
    if (blob.isEmpty())
        return {};
    return QImage::fromData(blob);
}

QImage readPictureFile(const QString &path)
{
    QImageReader reader(path);
    // The file's content decides, not its extension: a dropped file of any
    // type is tried as a picture.
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    return reader.read();
}

QImage pictureFromMime(const QMimeData *mime)
{
    if (!mime)
        return {};
    if (mime->hasImage()) {
        const QImage image = qvariant_cast<QImage>(mime->imageData());
        if (!image.isNull())
            return image;
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

} // namespace people
