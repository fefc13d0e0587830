#include "Screens.h"

#include "app/ui/ScreenDirectory.h"
#include "people/ui/personnelScrn.h"
#include "people/ui/teamScrn.h"
#include "schedule/ui/scheduleScrn.h"

void registerScreens()
{
    screens::registerScreen(ScreenId::teamScrn, [] { return new teamScrn; });
    screens::registerScreen(ScreenId::personnelScrn, [] { return new personnelScrn; });
    screens::registerScreen(ScreenId::scheduleScrn, [] { return new scheduleScrn; });
}
