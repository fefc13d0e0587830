#pragma once

// A season for game-day tests: the home team "O'Brien's Nine" (league
// North, division A) and the opponent "Bears" (North, B), twelve players
// each, and one game on the schedule.

#include "app/App.h"
#include "app/globals.h"
#include "app/myDB.h"
#include "app/myPrefs.h"
#include "fakes/FakePlatform.h"

#include <QTemporaryDir>
#include <QTest>

#include <memory>

namespace gamedaytest {

// Positions of the twelve players of each team, in the order they are made.
inline const QStringList &positions()
{
    static const QStringList p = {"C", "B1", "B2", "B3", "SS", "LF", "CF", "RF", "DH", "RHP", "LHP", "P"};
    return p;
}

class Season
{
public:
    explicit Season(int isHome = 2)
    {
        m_app = std::make_unique<App>(m_home.path());
        if (m_app->Event_Open() != App::OpenResult::Ok)
            qFatal("season did not open");
        homeID = addTeam(QStringLiteral("O'Brien's Nine"), QStringLiteral("A"), QStringLiteral("Ann"));
        bearsID = addTeam(QStringLiteral("Bears"), QStringLiteral("B"), QStringLiteral("Bo"));
        gPrefs->prHomeTeam = QString::number(homeID);
        eventID = gData->insert(QStringLiteral("Schedule"),
                                {{QStringLiteral("SchedDate"), QStringLiteral("2026-04-15")},
                                 {QStringLiteral("Event"), QStringLiteral("Game")},
                                 {QStringLiteral("Opponent"), QStringLiteral("Bears")},
                                 {QStringLiteral("OppID"), QString::number(bearsID)},
                                 {QStringLiteral("Location"), QStringLiteral("O'Malley's Field")},
                                 {QStringLiteral("isHome"), isHome}});
    }

    qint64 addTeam(const QString &name, const QString &division, const QString &first)
    {
        const qint64 id = gData->insert(QStringLiteral("Teams"), {{QStringLiteral("TeamName"), name},
                                                                  {QStringLiteral("League"), QStringLiteral("North")},
                                                                  {QStringLiteral("Division"), division}});
        for (int i = 0; i < positions().size(); ++i)
            gData->insert(QStringLiteral("Players"),
                          {{QStringLiteral("TeamNum"), QVariant(id)},
                           {QStringLiteral("UniNum"), QString::number(i + 1)},
                           {QStringLiteral("First"), QString(first + QString::number(i + 1))},
                           {QStringLiteral("Last"), QString::fromLatin1(i == 0 ? "O'Neil" : "Smith")},
                           {QStringLiteral("Pos1"), positions().at(i)}});
        return id;
    }

    fakes::FakePlatform fake{};
    qint64 homeID = -1;
    qint64 bearsID = -1;
    qint64 eventID = -1;
    QString schedID() const { return QString::number(eventID); }

private:
    QTemporaryDir m_home;
    std::unique_ptr<App> m_app;
};

} // namespace gamedaytest
