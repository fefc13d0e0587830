#include "app/ui/ScreenDirectory.h"

#include <QHash>

QString screenName(ScreenId id)
{
    switch (id) {
    case ScreenId::teamScrn:
        return QStringLiteral("teamScrn");
    case ScreenId::personnelScrn:
        return QStringLiteral("personnelScrn");
    case ScreenId::scheduleScrn:
        return QStringLiteral("scheduleScrn");
    case ScreenId::gameDayScrn:
        return QStringLiteral("gameDayScrn");
    case ScreenId::practicePlanScrn:
        return QStringLiteral("practicePlanScrn");
    case ScreenId::InventoryScrn:
        return QStringLiteral("InventoryScrn");
    case ScreenId::eventsCalendarScrn:
        return QStringLiteral("eventsCalendarScrn");
    case ScreenId::contactInfoScrn:
        return QStringLiteral("contactInfoScrn");
    case ScreenId::emailInfoScrn:
        return QStringLiteral("emailInfoScrn");
    case ScreenId::reportIntroScrn:
        return QStringLiteral("reportIntroScrn");
    case ScreenId::reportScrn:
        return QStringLiteral("reportScrn");
    case ScreenId::standingsScrn:
        return QStringLiteral("standingsScrn");
    case ScreenId::pitcherAvailabilityScrn:
        return QStringLiteral("pitcherAvailabilityScrn");
    case ScreenId::playingTimeScrn:
        return QStringLiteral("playingTimeScrn");
    case ScreenId::formsScrn:
        return QStringLiteral("formsScrn");
    case ScreenId::prefScrn:
        return QStringLiteral("prefScrn");
    case ScreenId::TransferDataScrn:
        return QStringLiteral("TransferDataScrn");
    case ScreenId::backUpDlog:
        return QStringLiteral("backUpDlog");
    case ScreenId::restoreDlog:
        return QStringLiteral("restoreDlog");
    case ScreenId::updateDlog:
        return QStringLiteral("updateDlog");
    case ScreenId::helpScrn2:
        return QStringLiteral("helpScrn2");
    case ScreenId::HelpAbbrevScrn:
        return QStringLiteral("HelpAbbrevScrn");
    case ScreenId::startScrn1:
        return QStringLiteral("startScrn1");
    case ScreenId::boxScoreScrn:
        return QStringLiteral("boxScoreScrn");
    }
    return {};
}

namespace screens {

namespace {
QHash<ScreenId, Factory> &directory()
{
    static QHash<ScreenId, Factory> factories;
    return factories;
}
} // namespace

void registerScreen(ScreenId id, const Factory &factory)
{
    directory().insert(id, factory);
}

void registerScreen(ScreenId id, std::function<QWidget *()> factory)
{
    registerScreen(id, Factory([make = std::move(factory)](const QVariant &) { return make(); }));
}

void unregisterScreen(ScreenId id)
{
    directory().remove(id);
}

bool has(ScreenId id)
{
    return directory().contains(id);
}

std::function<void()> &home()
{
    static std::function<void()> show;
    return show;
}

void setHome(std::function<void()> show)
{
    home() = std::move(show);
}

void goHome()
{
    if (home())
        home()();
}

QWidget *create(ScreenId id, const QVariant &argument)
{
    const auto it = directory().constFind(id);
    if (it == directory().constEnd())
        return nullptr;
    QWidget *w = (*it)(argument);
    if (w)
        w->setAttribute(Qt::WA_DeleteOnClose);
    return w;
}

} // namespace screens
