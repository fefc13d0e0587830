#include "app/Schema.h"

namespace schema {

namespace {

QString key(const char *name)
{
    return QString::fromLatin1(name) + QStringLiteral(" INTEGER PRIMARY KEY AUTOINCREMENT NOT NULL UNIQUE");
}

// "name type" for each listed column, with the given declared type.
QStringList typed(const char *type, std::initializer_list<const char *> names)
{
    QStringList out;
    for (const char *n : names)
        out.append(QString::fromLatin1(n) + u' ' + QString::fromLatin1(type));
    return out;
}

// Counters that are never NULL and start at zero.
QStringList counters(const char *type, std::initializer_list<const char *> names)
{
    QStringList out;
    for (const char *n : names)
        out.append(QString::fromLatin1(n) + u' ' + QString::fromLatin1(type) + QStringLiteral(" NOT NULL DEFAULT 0"));
    return out;
}

QString table(const char *name, const QStringList &columns)
{
    return QStringLiteral("CREATE TABLE ") + QString::fromLatin1(name) + QStringLiteral(" (") +
           columns.join(QStringLiteral(", ")) + u')';
}

QStringList build()
{
    QStringList s;
    s << table("Coaches", QStringList{key("coachID")} + typed("Integer", {"TeamNum"}) +
                              typed("VarChar", {"First", "Last", "Address", "Address1", "City", "State", "Zip",
                                                "PhoneNumber", "CellPhone", "Email"}) +
                              typed("Integer", {"Assistant", "Active"}) + typed("Blob", {"CoachPic"}));
    s << table("Teams",
               QStringList{key("teamID")} +
                   typed("VarChar", {"TeamName", "SchoolName", "League", "Division", "SchoolAddress", "SchoolAddress1",
                                     "SchoolCity", "SchoolZip", "SchoolState", "Phone", "HomeField"}) +
                   typed("Integer", {"Active"}) + typed("Blob", {"TeamLogo"}));
    s << table("Players", QStringList{key("playerID")} + typed("Integer", {"TeamNum"}) +
                              typed("VarChar", {"First", "Last", "Address", "Address1", "City", "State", "Zip",
                                                "PhoneNumber", "CellPhone", "Email"}) +
                              typed("Integer", {"Active"}) +
                              typed("VarChar", {"UniNum", "Pos1", "Pos2", "Pos3", "HitSide", "ThrowSide", "DOB",
                                                "StudentID", "Guardian", "GuardianPhone", "EmergContact", "EmergPhone",
                                                "Doctor", "DoctorPhone", "MedInfo", "PlayerNotes"}) +
                              typed("Blob", {"PlayerPic"}));
    s << table("Schedule", QStringList{key("eventID")} + typed("Date", {"SchedDate"}) +
                               typed("VarChar", {"BusTime", "StartTime", "Event", "Opponent", "OppID", "Location"}) +
                               typed("Integer", {"isHome", "position"}));
    s << table("Drills",
               QStringList{key("planID")} + typed("Varchar", {"scheduleID", "drill", "start", "pEnd", "coach"}));
    s << table("Games", QStringList{key("gameID")} +
                            typed("Varchar", {"schedID", "Teams", "HomeTeam", "TeamAHeadings", "TeamABench",
                                              "TeamAPlayers", "TeamAActions", "TeamAOutcomes", "TeamBHeadings",
                                              "TeamBBench", "TeamBPlayers", "TeamBActions", "TeamBOutcomes"}) +
                            typed("VarChar", {"TeamABatterStats", "TeamBBatterStats", "gameType"}) +
                            typed("Integer", {"recorded"}));
    s << table("GamesIndivHitting",
               QStringList{key("recID")} + typed("Varchar", {"gameID", "playerID", "teamID", "stats"}));
    s << table("GamesIndivFielding", QStringList{key("recID")} + typed("Varchar", {"gameID", "playerID"}) +
                                         typed("VarChar", {"teamID"}) + typed("Varchar", {"stats"}));
    s << table("GamesIndivPitching",
               QStringList{key("recID")} + typed("Varchar", {"gameID", "playerID"}) + typed("VarChar", {"teamID"}) +
                   counters("INTEGER", {"gameResult", "start", "shutout", "compGame", "totBalls", "totKs"}) +
                   typed("Varchar", {"stats"}));
    s << table("GameResultsByTeam",
               QStringList{key("recID")} + typed("Integer", {"teamID"}) + counters("Integer", {"W", "L", "Tie"}));
    s << table("Hitting", QStringList{key("recID")} +
                              counters("Integer", {"playerID", "teamID", "gameID", "AB",   "B1",   "B2",  "B3", "HR",
                                                   "BB",       "IBB",    "HBP",    "SAC",  "FO",   "GO",  "KS", "KL",
                                                   "HDP",      "ROE",    "FC",     "CI",   "Runs", "RBI", "SB", "LOB",
                                                   "UDB1",     "UDB2",   "UDB3",   "UDB4", "UDB5"}));
    s << table("Fielding", QStringList{key("recID")} +
                               counters("Integer", {"playerID", "teamID", "gameID", "IP", "CH", "PO", "Asst", "FE",
                                                    "TE", "DPL", "PB", "SBA", "CS", "UDF1", "UDF2", "UDF3"}));
    s << table("Pitching",
               QStringList{key("recID")} +
                   counters("Integer", {"playerID", "teamID", "gameID", "Win",  "Loss",  "Save", "ND",   "Start",
                                        "ShO",      "CG",     "Balls",  "Ks",   "PitCt", "IP",   "BF",   "Hits",
                                        "ErRuns",   "HRA",    "GrO",    "FlO",  "BB",    "IBB",  "PckO", "Kouts",
                                        "Blk",      "WldP",   "HitB",   "UDP1", "UDP2",  "UDP3"}));
    s << table("TeamInventory", QStringList{key("serial")} + typed("Varchar", {"teamID"}) +
                                    counters("INTEGER", {"quantity"}) + typed("Varchar", {"item", "ItemID"}));
    s << table("PlayerInventory", QStringList{key("serial")} + counters("INTEGER", {"ctrlNum"}) +
                                      typed("Varchar", {"PlayerID", "Item", "ItemID"}));
    return s;
}

QString index(const char *table, const char *column)
{
    return QStringLiteral("CREATE INDEX IF NOT EXISTS idx_") + QString::fromLatin1(table) + u'_' +
           QString::fromLatin1(column) + QStringLiteral(" ON ") + QString::fromLatin1(table) + u'(' +
           QString::fromLatin1(column) + u')';
}

} // namespace

const QStringList &addedTableStatements()
{
    // The game screen's change log: one row per change, undo and redo.
    static const QStringList statements = {
        QStringLiteral("CREATE TABLE IF NOT EXISTS GameChanges (") + key("changeID") +
            QStringLiteral(", gameID VarChar NOT NULL, kind Integer NOT NULL DEFAULT 0, target Integer NOT NULL "
                           "DEFAULT 0, undoTop Integer NOT NULL DEFAULT 0, redoTop Integer NOT NULL DEFAULT 0, team "
                           "Integer NOT NULL DEFAULT -1, label VarChar, changes VarChar)"),
        index("GameChanges", "gameID"),
        // The coach's defensive moves: who went to which position from an inning on.
        QStringLiteral("CREATE TABLE IF NOT EXISTS DefenseMoves (moveID INTEGER PRIMARY KEY AUTOINCREMENT NOT NULL "
                       "UNIQUE, schedID Varchar, teamID Varchar, playerID Varchar, inning Integer, pos Varchar)"),
    };
    return statements;
}

const QStringList &indexStatements()
{
    // A game's row by its event (every click's save), the game's panel rows
    // by game (recording, the panels) and by player, a player's season rows
    // by player (recording), and the rows kept per team.
    static const QStringList indexes = {
        index("Games", "schedID"),
        index("GamesIndivHitting", "gameID"),
        index("GamesIndivHitting", "playerID"),
        index("GamesIndivFielding", "gameID"),
        index("GamesIndivFielding", "playerID"),
        index("GamesIndivPitching", "gameID"),
        index("GamesIndivPitching", "playerID"),
        index("Hitting", "playerID"),
        index("Fielding", "playerID"),
        index("Pitching", "playerID"),
        index("GameResultsByTeam", "teamID"),
        index("Players", "TeamNum"),
        index("Coaches", "TeamNum"),
        index("Drills", "scheduleID"),
    };
    // The tables come first: an older file gets them with their indexes.
    static const QStringList statements = addedTableStatements() + indexes;
    return statements;
}

const QStringList &createStatements()
{
    static const QStringList statements = build();
    return statements;
}

const QStringList &tableNames()
{
    static const QStringList names = {
        QStringLiteral("Coaches"),
        QStringLiteral("Teams"),
        QStringLiteral("Players"),
        QStringLiteral("Schedule"),
        QStringLiteral("Drills"),
        QStringLiteral("Games"),
        QStringLiteral("GamesIndivHitting"),
        QStringLiteral("GamesIndivFielding"),
        QStringLiteral("GamesIndivPitching"),
        QStringLiteral("GameResultsByTeam"),
        QStringLiteral("Hitting"),
        QStringLiteral("Fielding"),
        QStringLiteral("Pitching"),
        QStringLiteral("TeamInventory"),
        QStringLiteral("PlayerInventory"),
    };
    return names;
}

} // namespace schema
