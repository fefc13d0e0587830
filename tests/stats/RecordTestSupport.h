#pragma once

// A season in a temporary folder with two teams, and a short way to store a
// game in it as the game screen and the panels leave one: the `Games` row
// with both cards, and the panel rows of the players.

#include "app/App.h"
#include "app/globals.h"
#include "fakes/FakePlatform.h"
#include "gameday/GridTestSupport.h"
#include "stats/GameStats.h"

#include <SQLiteCpp/Database.h>

#include <QFile>
#include <QTemporaryDir>

#include <memory>

namespace recordtest {

// One team's card: lineup entries as "name/playerID", the grid's rows in
// the cell notation of gridtest::fill, the RBI-and-SB lines, or the
// run-entry string for a team entered by run totals.
struct Card
{
    Card() = default;
    Card(QStringList lineup_, QStringList cells_, QString batterStats_)
        : lineup(std::move(lineup_)), cells(std::move(cells_)), batterStats(std::move(batterStats_))
    {
    }

    QStringList lineup;
    QStringList cells;
    QString batterStats;
    QString runEntry;
};

class Season
{
public:
    Season()
    {
        m_app = std::make_unique<App>(m_home.path());
        if (m_app->Event_Open() != App::OpenResult::Ok)
            qFatal("season did not open");
        homeID = QString::number(
            gData->insert(QStringLiteral("Teams"), {{QStringLiteral("TeamName"), QStringLiteral("O'Brien's Nine")}}));
        bearsID = QString::number(
            gData->insert(QStringLiteral("Teams"), {{QStringLiteral("TeamName"), QStringLiteral("Bears")}}));
    }

    fakes::FakePlatform fake{};
    QString homeID;
    QString bearsID;

    // Stores a game between the home team (batting first) and the Bears;
    // gives its schedule id.
    QString storeGame(const Card &a, const Card &b)
    {
        const qint64 eventID = gData->insert(QStringLiteral("Schedule"),
                                             {{QStringLiteral("Event"), QStringLiteral("Game")},
                                              {QStringLiteral("OppID"), bearsID},
                                              {QStringLiteral("isHome"), 2}});
        const QString schedID = QString::number(eventID);
        Fields row = {{QStringLiteral("schedID"), schedID},
                      {QStringLiteral("Teams"), QString(homeID + u'\t' + bearsID)},
                      {QStringLiteral("gameType"), QStringLiteral("League")},
                      {QStringLiteral("recorded"), 0}};
        row += team(QStringLiteral("TeamA"), a);
        row += team(QStringLiteral("TeamB"), b);
        gData->insert(QStringLiteral("Games"), row);
        return schedID;
    }

    // A panel row as the game screen's panels save it.
    static void panel(stats::Panel kind, const QString &game, const QString &player, const QString &figures)
    {
        stats::GameStatStore(*gData).saveStats(kind, game, player, {}, figures);
    }
    static void pitchPanel(const QString &game, const QString &player, const stats::PitchingLine &line)
    {
        stats::GameStatStore(*gData).savePitching(game, player, {}, line);
    }

    // The non-zero figures of a player's row in a season table, as
    // "AB=3 B1=1 ...", with "team=" and "game=" first; "" without a row.
    static QString seasonRow(const QString &table, const QString &playerID)
    {
        const QList<Record> rows = gData->select(
            QStringLiteral("SELECT * FROM ") + table + QStringLiteral(" WHERE playerID = ?"), {playerID.toLongLong()});
        if (rows.isEmpty())
            return {};
        const Record &r = rows.first();
        QStringList out = {QStringLiteral("team=") + r.text(QStringLiteral("teamID")),
                           QStringLiteral("game=") + r.text(QStringLiteral("gameID"))};
        for (int c = 0; c < r.columns.size(); ++c) {
            const QString name = r.columns.at(c);
            if (name == u"recID" || name == u"playerID" || name == u"teamID" || name == u"gameID")
                continue;
            if (r.values.at(c).toLongLong() != 0)
                out.append(name + u'=' + r.values.at(c).toString());
        }
        return out.join(u' ');
    }

    // "W-L-Tie" of a team, "" without a row.
    static QString record(const QString &teamID)
    {
        const QList<Record> rows = gData->select(
            QStringLiteral("SELECT W, L, Tie FROM GameResultsByTeam WHERE teamID = ?"), {teamID.toLongLong()});
        if (rows.isEmpty())
            return {};
        return rows.first().text(QStringLiteral("W")) + u'-' + rows.first().text(QStringLiteral("L")) + u'-' +
               rows.first().text(QStringLiteral("Tie"));
    }

    static bool isRecorded(const QString &schedID)
    {
        return gData->scalar(QStringLiteral("SELECT recorded FROM Games WHERE schedID = ?"), {schedID}).toInt() == 1;
    }

    static QByteArray fileBytes()
    {
        QFile file(gData->filePath());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

private:
    static Fields team(const QString &side, const Card &card)
    {
        QStringList lines;
        for (int i = 0; i < card.lineup.size(); ++i) {
            const QStringList parts = card.lineup.at(i).split(u'/');
            lines.append(QString::number(i + 1) + QStringLiteral("\tP\t") + parts.at(0) + u'\t' + parts.value(1));
        }
        gameday::ScoreGrid grid;
        gridtest::loadTeam(grid, int(lines.size()));
        gridtest::fill(grid, card.cells);
        return {{side + QStringLiteral("Headings"), grid.getColHeadings()},
                {side + QStringLiteral("Players"), lines.join(u'\r')},
                {side + QStringLiteral("Actions"), card.runEntry.isEmpty() ? grid.getMyData() : card.runEntry},
                {side + QStringLiteral("Outcomes"), grid.getMyBkgArray()},
                {side + QStringLiteral("BatterStats"), card.batterStats}};
    }

    QTemporaryDir m_home;
    std::unique_ptr<App> m_app;
};

// Makes the n-th write of the season tables, the team records or the game
// row fail inside the database. The triggers live in the connection's
// temporary schema, so the season file itself is not changed by them.
inline void failAtWrite(int n)
{
    SQLite::Database &db = *gData->tlynData;
    db.exec("CREATE TEMP TABLE IF NOT EXISTS failPlan (at INTEGER, seen INTEGER)");
    db.exec("DELETE FROM temp.failPlan");
    db.exec("INSERT INTO temp.failPlan VALUES (" + std::to_string(n) + ", 0)");
    for (const char *table : {"Hitting", "Fielding", "Pitching", "GameResultsByTeam", "Games"}) {
        for (const char *op : {"INSERT", "UPDATE"}) {
            const std::string name = std::string("fail_") + op + "_" + table;
            db.exec("DROP TRIGGER IF EXISTS temp." + name);
            db.exec(
                "CREATE TEMP TRIGGER " + name + " BEFORE " + op + " ON main." + table +
                " BEGIN UPDATE failPlan SET seen = seen + 1;"
                " SELECT RAISE(ABORT, 'forced failure') WHERE (SELECT seen FROM failPlan) = (SELECT at FROM failPlan);"
                " END");
        }
    }
}

} // namespace recordtest
