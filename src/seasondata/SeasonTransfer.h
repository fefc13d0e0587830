#pragma once

#include <QList>
#include <QString>
#include <QStringList>

class myDB;

// Making a new season: an empty one, or one that starts with chosen teams
// of the current season, their players and coaches and, on request, the
// team inventory. Statistics, games and schedules never carry over.
//
// The season made becomes the current one (the preferences remember it) and
// App's open season is replaced. Messages go through the message service.
namespace seasondata {

// A team of the current season as the lists show it.
struct TeamRow
{
    QString id;   // teamID as decimal text
    QString text; // SchoolName + " " + TeamName
};

// Every team of `db`, in the order the database gives.
QList<TeamRow> seasonTeams(myDB &db);

class SeasonTransfer
{
public:
    // Makes season `name` the current one, creating its file when it has
    // none (a name already in use opens that season). False, with a
    // message, when the name is empty or can't name a file.
    static bool createNewDB(const QString &name);

    // Builds season `name` holding the teams `teamIDs` of the current season
    // with their players and coaches (and every TeamInventory row when
    // `withInventory`), keeping every id, and makes it current. It happens
    // whole or not at all: on any failure no new season file is left and
    // the current season stays. Shows its messages and returns whether the
    // transfer was made.
    static bool doTransfer(const QString &name, const QStringList &teamIDs, bool withInventory);

    // The file a season under construction is built in; renamed into place
    // once it is complete.
    static QString partFileName(const QString &seasonFile);
};

} // namespace seasondata
