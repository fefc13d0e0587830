#pragma once

// A season of its own for each test, with the statistic dictionaries built
// from its default preferences, and helpers that put teams, players, season
// rows and team records straight into the file, as recording games would.

#include "app/globals.h"
#include "app/myDB.h"
#include "app/myDictionaries.h"
#include "app/myPrefs.h"
#include "fakes/FakePlatform.h"

#include <QHash>
#include <QTemporaryDir>

#include <memory>

struct ReportsFixture
{
    fakes::FakePlatform platform;
    QTemporaryDir home;
    std::unique_ptr<myPrefs> prefs;
    std::unique_ptr<myDB> db;

    ReportsFixture()
    {
        gCreateGlobalLists();
        prefs = std::make_unique<myPrefs>(home.path());
        db = std::make_unique<myDB>(*prefs);
        gPrefs = prefs.get();
        gData = db.get();
        myDictionaries::initHitting();
        myDictionaries::initFielding();
        myDictionaries::initPitching();
    }
    ~ReportsFixture()
    {
        gPrefs = nullptr;
        gData = nullptr;
    }

    qint64 addTeam(const QString &name, const QString &league = {}, const QString &division = {})
    {
        return db->insert(QStringLiteral("Teams"), {{QStringLiteral("TeamName"), name},
                                                    {QStringLiteral("League"), league},
                                                    {QStringLiteral("Division"), division},
                                                    {QStringLiteral("Active"), 1}});
    }
    qint64 addPlayer(qint64 teamID, const QString &first, const QString &last)
    {
        return db->insert(QStringLiteral("Players"), {{QStringLiteral("TeamNum"), teamID},
                                                      {QStringLiteral("First"), first},
                                                      {QStringLiteral("Last"), last}});
    }
    // A season row of "Hitting", "Fielding" or "Pitching" with the given figures.
    void addSeasonRow(const QString &table, qint64 playerID, qint64 teamID, const QHash<QString, int> &figures)
    {
        Fields fields{{QStringLiteral("playerID"), playerID},
                      {QStringLiteral("teamID"), teamID},
                      {QStringLiteral("gameID"), 1}};
        for (auto it = figures.cbegin(); it != figures.cend(); ++it)
            fields.append({it.key(), it.value()});
        db->insert(table, fields);
    }
    void addRecord(qint64 teamID, int w, int l, int tie)
    {
        db->insert(QStringLiteral("GameResultsByTeam"), {{QStringLiteral("teamID"), teamID},
                                                         {QStringLiteral("W"), w},
                                                         {QStringLiteral("L"), l},
                                                         {QStringLiteral("Tie"), tie}});
    }
};
