#include "support/ui/SupportPictures.h"

#include <QHash>

namespace support {

QImage supportPicture(const QString &name)
{
    // Decoded once: every check box and button of every screen shares them.
    static QHash<QString, QImage> cache;
    auto it = cache.constFind(name);
    if (it != cache.constEnd())
        return *it;
    QImage image(QStringLiteral(":/support/") + name + QStringLiteral(".png"));
    if (name == u"plusminuspic")
        image.setDevicePixelRatio(2);
    cache.insert(name, image);
    return image;
}

} // namespace support
