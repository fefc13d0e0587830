#include "cli/OutputFile.h"

#include <QDir>
#include <QSaveFile>

namespace cli {

bool writeOutput(const QString &path, const QByteArray &bytes, QTextStream &out, QTextStream &err)
{
    if (path.isEmpty() || path == QLatin1String("-")) {
        out.flush();
        out.device() ? void(out.device()->write(bytes)) : void(out << QString::fromUtf8(bytes));
        return true;
    }
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit())
        return true;
    err << "The file \"" << QDir::toNativeSeparators(path) << "\" couldn't be written: " << file.errorString()
        << Qt::endl;
    return false;
}

} // namespace cli
