#pragma once

// The schedule's window tests: a season with the home team "O'Brien's Nine"
// (field "O'Malley's Field") and the opponent "Bears" (field "Riverside").

#include "app/globals.h"
#include "fakes/TestKit.h"

namespace scheduletest {

struct Season : testkit::Season
{
    qint64 homeID = addTeam(QStringLiteral("O'Brien's Nine"), {}, QStringLiteral("O'Malley's Field"), true);
    qint64 bearsID = addTeam(QStringLiteral("Bears"), {}, QStringLiteral("Riverside"));
};

using testkit::whenShown;

} // namespace scheduletest
