#pragma once

// The schedule's window tests: a season with the home team "O'Brien's Nine"
// (field "O'Malley's Field") and the opponent "Bears" (field "Riverside").

#include "app/globals.h"
#include "fakes/TestKit.h"
#include "schedule/eventClass.h"

#include <QPushButton>

namespace scheduletest {

struct Season : testkit::Season
{
    qint64 homeID = addTeam(QStringLiteral("O'Brien's Nine"), {}, QStringLiteral("O'Malley's Field"), true);
    qint64 bearsID = addTeam(QStringLiteral("Bears"), {}, QStringLiteral("Riverside"));
};

using testkit::whenShown;

// An event leaving the bus at 3:30 PM, starting at 4:30 PM at Riverside.
inline eventClass makeEvent(const QString &type, const QDate &date, const QString &opponent = {}, qint64 oppID = -1,
                            std::uint8_t home = 0)
{
    eventClass e;
    e.mDate = date;
    e.busTime = QStringLiteral("3:30 PM");
    e.startTime = QStringLiteral("4:30 PM");
    e.eventType = type;
    e.opponent = opponent;
    e.oppID = QString::number(oppID);
    e.location = QStringLiteral("Riverside");
    e.isHome = home;
    return e;
}

// The date picker's day button of `slot` (0 .. 36, Sunday first).
inline QPushButton *daySlot(const QWidget *picker, int slot)
{
    return testkit::child<QPushButton>(picker, QByteArray("BevelButton1_" + QByteArray::number(slot)).constData());
}

} // namespace scheduletest
