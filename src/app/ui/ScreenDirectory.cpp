#include "app/ui/ScreenDirectory.h"

#include <QHash>

namespace screens {

namespace {
QHash<QString, Factory> &directory()
{
    static QHash<QString, Factory> factories;
    return factories;
}
} // namespace

void registerScreen(const QString &name, Factory factory)
{
    directory().insert(name, std::move(factory));
}

void unregisterScreen(const QString &name)
{
    directory().remove(name);
}

bool has(const QString &name)
{
    return directory().contains(name);
}

QWidget *create(const QString &name)
{
    const auto it = directory().constFind(name);
    if (it == directory().constEnd())
        return nullptr;
    QWidget *w = (*it)();
    if (w)
        w->setAttribute(Qt::WA_DeleteOnClose);
    return w;
}

} // namespace screens
