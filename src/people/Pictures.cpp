#include "people/Pictures.h"

#include "app/FileTypes.h"
#include "app/globals.h"
#include "platform/Services.h"

#include <QBuffer>
#include <QImageReader>
#include <QMimeData>
#include <QStandardPaths>
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
