#pragma once

// A season of its own for each test: preferences and a season file in a
// temporary folder, installed as gPrefs and gData for the test's life.

#include "app/globals.h"
#include "app/myDB.h"
#include "app/myPrefs.h"

#include <QTemporaryDir>

#include <memory>

struct PeopleFixture
{
    QTemporaryDir home;
    std::unique_ptr<myPrefs> prefs;
    std::unique_ptr<myDB> db;

    PeopleFixture()
    {
        gCreateGlobalLists();
        prefs = std::make_unique<myPrefs>(home.path());
        db = std::make_unique<myDB>(*prefs);
        gPrefs = prefs.get();
        gData = db.get();
    }
    ~PeopleFixture()
    {
        gPrefs = nullptr;
        gData = nullptr;
    }

    // A team straight into the file, as another screen would have left it.
    QString addTeam(const QString &school, const QString &name)
    {
        return QString::number(db->insert(QStringLiteral("Teams"), {{QStringLiteral("SchoolName"), school},
                                                                    {QStringLiteral("TeamName"), name},
                                                                    {QStringLiteral("Active"), 1}}));
    }
    QString addPlayer(const QString &teamID, const QString &first, const QString &last)
    {
        return QString::number(db->insert(QStringLiteral("Players"), {{QStringLiteral("TeamNum"), teamID.toLongLong()},
                                                                      {QStringLiteral("First"), first},
                                                                      {QStringLiteral("Last"), last}}));
    }
    QString addCoach(const QString &teamID, const QString &first, const QString &last)
    {
        return QString::number(db->insert(QStringLiteral("Coaches"), {{QStringLiteral("TeamNum"), teamID.toLongLong()},
                                                                      {QStringLiteral("First"), first},
                                                                      {QStringLiteral("Last"), last}}));
    }
    int count(const QString &sql, const QVariantList &params = {})
    {
        return db->scalar(sql, params).toInt();
    }
};
