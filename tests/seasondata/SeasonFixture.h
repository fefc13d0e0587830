#pragma once

// A program session on a temporary data folder: the fakes installed, App
// opened (gPrefs and gData set), and helpers that put rows straight in.

#include "app/App.h"
#include "app/globals.h"
#include "app/myDB.h"
#include "app/myPrefs.h"
#include "fakes/FakePlatform.h"

#include <QDir>
#include <QTemporaryDir>

#include <memory>

struct SeasonFixture
{
    QTemporaryDir home;
    fakes::FakePlatform fake;
    std::unique_ptr<App> app;

    SeasonFixture() { start(); }

    QString dataRoot() const { return home.filePath(QStringLiteral("data")); }
    QString dataFolder() const { return gPrefs->strdDataLoc; }
    QString seasonFile(const QString &season) const
    {
        return QDir(dataFolder()).filePath(myDB::getCurDBFileName(season));
    }

    // Starts the program (again), as at a new launch on the same folder.
    void start()
    {
        app.reset();
        app = std::make_unique<App>(dataRoot());
        app->Event_Open();
    }
    // Quits as the program does: the preferences are written when dirty.
    void restart()
    {
        app->Event_Close();
        start();
    }

    qint64 addTeam(const QString &school, const QString &name)
    {
        return gData->insert(QStringLiteral("Teams"), {{QStringLiteral("SchoolName"), school},
                                                       {QStringLiteral("TeamName"), name},
                                                       {QStringLiteral("Active"), 1}});
    }
    qint64 addMember(const QString &table, qint64 team, const QString &last)
    {
        return gData->insert(table, {{QStringLiteral("TeamNum"), team}, {QStringLiteral("Last"), last}});
    }
    int count(const QString &table) { return gData->scalar(QStringLiteral("SELECT COUNT(*) FROM ") + table).toInt(); }
    // Every row of a table as text, in key order: what a copy must give back.
    QStringList dump(myDB &db, const QString &table)
    {
        QStringList rows;
        for (const Record &r : db.select(QStringLiteral("SELECT * FROM ") + table + QStringLiteral(" ORDER BY 1"))) {
            QStringList cells;
            for (const QVariant &v : r.values)
                cells.append(v.isValid() ? v.toString() : QStringLiteral("<null>"));
            rows.append(cells.join(u'|'));
        }
        return rows;
    }
};
