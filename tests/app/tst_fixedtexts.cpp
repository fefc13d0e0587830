// What a new season and a first start write, to the character: the
// fifteen tables, the first-run preference lists, the fixed lists the
// screens offer and the statistic dictionaries built from them. The
// expected texts are written out here, so one changed letter in the code
// fails a row.

#include "app/globals.h"
#include "app/myDB.h"
#include "app/myDictionaries.h"
#include "app/myPrefs.h"
#include "fakes/FakePlatform.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

class TestFixedTexts : public QObject
{
    Q_OBJECT

    static QString keysAndValues(const StatDictionary &d)
    {
        QStringList out;
        for (const QString &k : d.keys())
            out << k + u'=' + QString::number(d.value(k));
        return out.join(u' ');
    }

private Q_SLOTS:
    void initTestCase() { gCreateGlobalLists(); }

    void schema_data()
    {
        QTest::addColumn<QString>("create");
        QTest::newRow("Coaches") << QString(
            "CREATE TABLE Coaches (coachID INTEGER PRIMARY KEY AUTOINCREMENT NOT NULL UNIQUE, "
            "TeamNum Integer, First VarChar, Last VarChar, Address VarChar, Address1 VarChar, "
            "City VarChar, State VarChar, Zip VarChar, PhoneNumber VarChar, CellPhone VarChar, "
            "Email VarChar, Assistant Integer, Active Integer, CoachPic Blob)");
        QTest::newRow("Teams") << QString(
            "CREATE TABLE Teams (teamID INTEGER PRIMARY KEY AUTOINCREMENT NOT NULL UNIQUE, "
            "TeamName VarChar, SchoolName VarChar, League VarChar, Division VarChar, "
            "SchoolAddress VarChar, SchoolAddress1 VarChar, SchoolCity VarChar, SchoolZip VarChar, "
            "SchoolState VarChar, Phone VarChar, HomeField VarChar, Active Integer, TeamLogo Blob)");
        QTest::newRow("Players") << QString(
            "CREATE TABLE Players (playerID INTEGER PRIMARY KEY AUTOINCREMENT NOT NULL UNIQUE, "
            "TeamNum Integer, First VarChar, Last VarChar, Address VarChar, Address1 VarChar, "
            "City VarChar, State VarChar, Zip VarChar, PhoneNumber VarChar, CellPhone VarChar, "
            "Email VarChar, Active Integer, UniNum VarChar, Pos1 VarChar, Pos2 VarChar, Pos3 VarChar, "
            "HitSide VarChar, ThrowSide VarChar, DOB VarChar, StudentID VarChar, Guardian VarChar, "
            "GuardianPhone VarChar, EmergContact VarChar, EmergPhone VarChar, Doctor VarChar, "
            "DoctorPhone VarChar, MedInfo VarChar, PlayerNotes VarChar, PlayerPic Blob)");
        QTest::newRow("Schedule") << QString(
            "CREATE TABLE Schedule (eventID INTEGER PRIMARY KEY AUTOINCREMENT NOT NULL UNIQUE, "
            "SchedDate Date, BusTime VarChar, StartTime VarChar, Event VarChar, Opponent VarChar, "
            "OppID VarChar, Location VarChar, isHome Integer, position Integer)");
        QTest::newRow("Drills") << QString(
            "CREATE TABLE Drills (planID INTEGER PRIMARY KEY AUTOINCREMENT NOT NULL UNIQUE, "
            "scheduleID Varchar, drill Varchar, start Varchar, pEnd Varchar, coach Varchar)");
        QTest::newRow("Games") << QString(
            "CREATE TABLE Games (gameID INTEGER PRIMARY KEY AUTOINCREMENT NOT NULL UNIQUE, "
            "schedID Varchar, Teams Varchar, HomeTeam Varchar, TeamAHeadings Varchar, TeamABench Varchar, "
            "TeamAPlayers Varchar, TeamAActions Varchar, TeamAOutcomes Varchar, TeamBHeadings Varchar, "
            "TeamBBench Varchar, TeamBPlayers Varchar, TeamBActions Varchar, TeamBOutcomes Varchar, "
            "TeamABatterStats VarChar, TeamBBatterStats VarChar, gameType VarChar, recorded Integer)");
        QTest::newRow("GamesIndivHitting")
            << QString("CREATE TABLE GamesIndivHitting (recID INTEGER PRIMARY KEY AUTOINCREMENT NOT NULL UNIQUE, "
                       "gameID Varchar, playerID Varchar, teamID Varchar, stats Varchar)");
        QTest::newRow("GamesIndivFielding")
            << QString("CREATE TABLE GamesIndivFielding (recID INTEGER PRIMARY KEY AUTOINCREMENT NOT NULL UNIQUE, "
                       "gameID Varchar, playerID Varchar, teamID VarChar, stats Varchar)");
        QTest::newRow("GamesIndivPitching")
            << QString("CREATE TABLE GamesIndivPitching (recID INTEGER PRIMARY KEY AUTOINCREMENT NOT NULL UNIQUE, "
                       "gameID Varchar, playerID Varchar, teamID VarChar, gameResult INTEGER NOT NULL DEFAULT 0, "
                       "start INTEGER NOT NULL DEFAULT 0, shutout INTEGER NOT NULL DEFAULT 0, "
                       "compGame INTEGER NOT NULL DEFAULT 0, totBalls INTEGER NOT NULL DEFAULT 0, "
                       "totKs INTEGER NOT NULL DEFAULT 0, stats Varchar)");
        QTest::newRow("GameResultsByTeam")
            << QString("CREATE TABLE GameResultsByTeam (recID INTEGER PRIMARY KEY AUTOINCREMENT NOT NULL UNIQUE, "
                       "teamID Integer, W Integer NOT NULL DEFAULT 0, L Integer NOT NULL DEFAULT 0, "
                       "Tie Integer NOT NULL DEFAULT 0)");
        QTest::newRow("Hitting") << QString(
            "CREATE TABLE Hitting (recID INTEGER PRIMARY KEY AUTOINCREMENT NOT NULL UNIQUE, "
            "playerID Integer NOT NULL DEFAULT 0, teamID Integer NOT NULL DEFAULT 0, "
            "gameID Integer NOT NULL DEFAULT 0, AB Integer NOT NULL DEFAULT 0, "
            "B1 Integer NOT NULL DEFAULT 0, B2 Integer NOT NULL DEFAULT 0, B3 Integer NOT NULL DEFAULT 0, "
            "HR Integer NOT NULL DEFAULT 0, BB Integer NOT NULL DEFAULT 0, IBB Integer NOT NULL DEFAULT 0, "
            "HBP Integer NOT NULL DEFAULT 0, SAC Integer NOT NULL DEFAULT 0, "
            "FO Integer NOT NULL DEFAULT 0, GO Integer NOT NULL DEFAULT 0, KS Integer NOT NULL DEFAULT 0, "
            "KL Integer NOT NULL DEFAULT 0, HDP Integer NOT NULL DEFAULT 0, "
            "ROE Integer NOT NULL DEFAULT 0, FC Integer NOT NULL DEFAULT 0, CI Integer NOT NULL DEFAULT 0, "
            "Runs Integer NOT NULL DEFAULT 0, RBI Integer NOT NULL DEFAULT 0, "
            "SB Integer NOT NULL DEFAULT 0, LOB Integer NOT NULL DEFAULT 0, "
            "UDB1 Integer NOT NULL DEFAULT 0, UDB2 Integer NOT NULL DEFAULT 0, "
            "UDB3 Integer NOT NULL DEFAULT 0, UDB4 Integer NOT NULL DEFAULT 0, "
            "UDB5 Integer NOT NULL DEFAULT 0)");
        QTest::newRow("Fielding") << QString(
            "CREATE TABLE Fielding (recID INTEGER PRIMARY KEY AUTOINCREMENT NOT NULL UNIQUE, "
            "playerID Integer NOT NULL DEFAULT 0, teamID Integer NOT NULL DEFAULT 0, "
            "gameID Integer NOT NULL DEFAULT 0, IP Integer NOT NULL DEFAULT 0, "
            "CH Integer NOT NULL DEFAULT 0, PO Integer NOT NULL DEFAULT 0, "
            "Asst Integer NOT NULL DEFAULT 0, FE Integer NOT NULL DEFAULT 0, "
            "TE Integer NOT NULL DEFAULT 0, DPL Integer NOT NULL DEFAULT 0, PB Integer NOT NULL DEFAULT 0, "
            "SBA Integer NOT NULL DEFAULT 0, CS Integer NOT NULL DEFAULT 0, "
            "UDF1 Integer NOT NULL DEFAULT 0, UDF2 Integer NOT NULL DEFAULT 0, "
            "UDF3 Integer NOT NULL DEFAULT 0)");
        QTest::newRow("Pitching") << QString(
            "CREATE TABLE Pitching (recID INTEGER PRIMARY KEY AUTOINCREMENT NOT NULL UNIQUE, "
            "playerID Integer NOT NULL DEFAULT 0, teamID Integer NOT NULL DEFAULT 0, "
            "gameID Integer NOT NULL DEFAULT 0, Win Integer NOT NULL DEFAULT 0, "
            "Loss Integer NOT NULL DEFAULT 0, Save Integer NOT NULL DEFAULT 0, "
            "ND Integer NOT NULL DEFAULT 0, Start Integer NOT NULL DEFAULT 0, "
            "ShO Integer NOT NULL DEFAULT 0, CG Integer NOT NULL DEFAULT 0, "
            "Balls Integer NOT NULL DEFAULT 0, Ks Integer NOT NULL DEFAULT 0, "
            "PitCt Integer NOT NULL DEFAULT 0, IP Integer NOT NULL DEFAULT 0, "
            "BF Integer NOT NULL DEFAULT 0, Hits Integer NOT NULL DEFAULT 0, "
            "ErRuns Integer NOT NULL DEFAULT 0, HRA Integer NOT NULL DEFAULT 0, "
            "GrO Integer NOT NULL DEFAULT 0, FlO Integer NOT NULL DEFAULT 0, "
            "BB Integer NOT NULL DEFAULT 0, IBB Integer NOT NULL DEFAULT 0, "
            "PckO Integer NOT NULL DEFAULT 0, Kouts Integer NOT NULL DEFAULT 0, "
            "Blk Integer NOT NULL DEFAULT 0, WldP Integer NOT NULL DEFAULT 0, "
            "HitB Integer NOT NULL DEFAULT 0, UDP1 Integer NOT NULL DEFAULT 0, "
            "UDP2 Integer NOT NULL DEFAULT 0, UDP3 Integer NOT NULL DEFAULT 0)");
        QTest::newRow("TeamInventory") << QString(
            "CREATE TABLE TeamInventory (serial INTEGER PRIMARY KEY AUTOINCREMENT NOT NULL UNIQUE, "
            "teamID Varchar, quantity INTEGER NOT NULL DEFAULT 0, item Varchar, ItemID Varchar)");
        QTest::newRow("PlayerInventory") << QString(
            "CREATE TABLE PlayerInventory (serial INTEGER PRIMARY KEY AUTOINCREMENT NOT NULL UNIQUE, "
            "ctrlNum INTEGER NOT NULL DEFAULT 0, PlayerID Varchar, Item Varchar, ItemID Varchar)");
        QTest::newRow("DefenseMoves") << QString(
            "CREATE TABLE DefenseMoves (moveID INTEGER PRIMARY KEY AUTOINCREMENT NOT NULL UNIQUE, schedID Varchar, "
            "teamID Varchar, playerID Varchar, inning Integer, pos Varchar)");
    }
    void schema()
    {
        QFETCH(QString, create);
        fakes::FakePlatform fake;
        QTemporaryDir dir;
        myDB db(dir.path(), QStringLiteral("2026"));
        QCOMPARE(db.filePath(), QDir(dir.path()).filePath(QStringLiteral("tlData_2026.sqlite")));
        const QString table = QString::fromLatin1(QTest::currentDataTag());
        QCOMPARE(db.scalar(QStringLiteral("SELECT sql FROM sqlite_master WHERE type = 'table' AND name = ?"), {table})
                     .toString(),
                 create);
        // The fifteen, beside the game's change log added since.
        QCOMPARE(db.scalar(QStringLiteral("SELECT COUNT(*) FROM sqlite_master WHERE type = 'table' AND name NOT IN "
                                          "('sqlite_sequence', 'GameChanges')"))
                     .toInt(),
                 16);
        QCOMPARE(db.scalar(QStringLiteral("SELECT COUNT(*) FROM ") + table).toInt(), 0);
        QVERIFY(fake.messages.shown.isEmpty());
    }

    // Written at a first start and read back from the file.
    void firstRun_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("prPositions") << QString(
            "RH Pitcher,LH Pitcher,Catcher,First Base,Second Base,Third Base,Shortstop,"
            "Outfield,Left Field,Center Field,Right Field,Designated Hitter,Short Field,"
            "Left-Center Field,Right-Center Field,Pitch Hitter,Pitch Runner");
        QTest::newRow("prAbbrevPos") << QString("RHP,LHP,C,B1,B2,B3,SS,OF,LF,CF,RF,DH,SF,LCF,RCF,PH,PR");
        QTest::newRow("prGameTypes") << QString("Division,Non-Div/League,Non-Div/Non-Lg,PreSeason,Sectional,Regional,"
                                                "State Tournament,Weather/Rain Out,Forfeit");
        QTest::newRow("prUDB") << QString("CS|Caught Stealing|RSP|Up with Runner in Scoring Position|HSP|"
                                          "Hit w/Runner in Sc. Pos.|TOH|Two Out Hit|?\?\?|Undefined");
        QTest::newRow("prUDF") << QString("CGL|Catches Going Left|CGR|Catches Going Right|?\?\?|Undefined");
        QTest::newRow("prUDP") << QString("CWO|Cool Weather Outings|DAp|Daytime Appearances|NAp|Nighttime Appearances");
        QTest::newRow("prInnings") << QString("9 Innings");
        QTest::newRow("prLineUp") << QString("9 Players");
    }
    void firstRun()
    {
        QFETCH(QString, text);
        fakes::FakePlatform fake;
        QTemporaryDir root;
        {
            myPrefs first(root.path());
        }
        const myPrefs prefs(root.path());
        const QHash<QString, QString> fields = {{"prPositions", prefs.prPositions},
                                                {"prAbbrevPos", prefs.prAbbrevPos},
                                                {"prGameTypes", prefs.prGameTypes},
                                                {"prUDB", prefs.prUDB},
                                                {"prUDF", prefs.prUDF},
                                                {"prUDP", prefs.prUDP},
                                                {"prInnings", prefs.prInnings},
                                                {"prLineUp", prefs.prLineUp}};
        QCOMPARE(QString(fields.value(QString::fromLatin1(QTest::currentDataTag()))).replace(u'\t', u'|'), text);
    }

    void lists_data()
    {
        QTest::addColumn<QString>("got");
        QTest::addColumn<QString>("text");
        QTest::newRow("states") << gStateList.join(u',')
                                << QString(
                                       "AL,AK,AZ,AR,CA,CO,CT,DE,FL,GA,HI,ID,IL,IN,IA,KS,KY,LA,ME,MD,MA,MI,MN,MS,MO,MT,"
                                       "NE,NV,NH,NJ,NM,NY,NC,ND,OH,OK,OR,PA,RI,SC,SD,TN,TX,UT,VT,VA,WA,WV,WI,WY");
        QTest::newRow("countries")
            << gCountryList.join(u',')
            << QString(
                   "United States,Afghanistan,Albania,Argentina,Australia,Austria,Belgium,Bolivia,Brazil,Bulgaria,"
                   "Canada,Chile,China,Colombia,Denmark,Ecuador,Egypt,Finland,France,Germany,Greece,Hungary,Iceland,"
                   "India,Indonesia,Iran,Iraq,Ireland,Israel,Italy,Japan,Kenya,Lebanon,Libya,Malaysia,Mexico,"
                   "Netherlands,New Zealand,Nicaragua,Nigeria,Norway,Pakistan,Panama,Paraguay,Peru,Philippines,Poland,"
                   "Portugal,Romania,Russia,Saudi Arabia,Singapore,Spain,Sweden,Switzerland,Turkey,Uganda,"
                   "United Kingdom,Uruguay,Venezuela");
        QTest::newRow("activities")
            << gActivities
            << QString(
                   "WARM UP;FIELDING;THROWING;HITTING;GAME SITUATIONS;PITCHING;BASERUNNING;CATCHERS;BUNTING;COACHING");
        const char *drills[10] = {
            "Arm Stretch;Leg Stretch;Laps;Base Laps;Sprints;Exercise;Running Drill;Run and Steal;Relay Races",
            "Fly Balls;Ground Balls;Fungo;Run Down;Communication;Long Toss;Short Toss;Infield Drill;Outfield Drill;"
            "Charging Drill;High Rise;Short Hop;Throw and Run;Fielding Bunts;Fence Drill;Field Jurisdiction",
            "5-Star Throwing;8-Ball Drill;Relay Race;One-Knee Throwing;Machine Gun;Tag and Throw;Wall Drill;"
            "Hit and Cover;Hop-Step-Throw",
            "Tee Hits;Soft Toss;Hard Throw;Cage;Bat Speed;Hitting Motion;Bunting Technique;Reaction Drill;Blocking",
            "Backing Up;Cut Off;Double Cut;Bunt Defense;Run Downs",
            "Balance;Arm Care;Stretch;Windup;Pick Off;Warm Up Pitches;Cool Down Pitches;Fastballs;Curveballs;"
            "Sliders;Change Ups;Signs;Charting;Pitch Sequence;Balance Point Drill;Snap Wrist;No Rush;Goalpost Drill",
            "Sliding;Leading;Stealing;Base Coaches;Base Running Signs;Situational;Tagging Up;Run Downs",
            "Stance;Catching Signs;Stealing;Pop Ups;Bunts;Blocking;Blockouts;Situational",
            "Grip;Stance;Locations;Dragging",
            "Game Signs;Base Coaches;Strategy",
        };
        for (int i = 0; i < 10; ++i)
            QTest::addRow("drills %d", i) << gDrills[i] << QString::fromLatin1(drills[i]);

        // The dictionaries as a first start builds them: key=index, in order.
        QTest::newRow("hitting")
            << keysAndValues(myDictionaries::buildHitting(
                   "CS\tCaught Stealing\tRSP\tUp with Runner in Scoring Position\tHSP\tHit w/Runner in Sc. Pos.\t"
                   "TOH\tTwo Out Hit\t?\?\?\tUndefined"))
            << QString(
                   "AB=0 Avg=26 OBP=27 SP=28 B1=1 B2=2 B3=3 HR=4 BB=5 IBB=6 HBP=7 SAC=8 FO=9 GO=10 KS=11 KL=12 HDP=13 "
                   "ROE=14 FC=15 CI=16 Runs=17 RBI=18 SB=19 LOB=20 CS=21 RSP=22 HSP=23 TOH=24 ?\?\?=25");
        QTest::newRow("fielding")
            << keysAndValues(
                   myDictionaries::buildFielding("CGL\tCatches Going Left\tCGR\tCatches Going Right\t?\?\?\tUndefined"))
            << QString("FPct=13 IP=0 CH=1 PO=2 Asst=3 FE=4 TE=5 DPL=6 PB=7 SBA=8 CS=9 CGL=10 CGR=11 ?\?\?=12");
        QTest::newRow("pitching")
            << keysAndValues(myDictionaries::buildPitching(
                   "CWO\tCool Weather Outings\tDAp\tDaytime Appearances\tNAp\tNighttime Appearances"))
            << QString(
                   "ERA=27 Win=0 Loss=1 Save=2 ND=3 Start=4 ShO=5 CG=6 Balls=7 Ks=8 PitCt=9 IP=10 BF=11 Hits=12 "
                   "ErRuns=13 HRA=14 GrO=15 FlO=16 BB=17 IBB=18 PckO=19 Kouts=20 Blk=21 WldP=22 HitB=23 CWO=24 DAp=25 "
                   "NAp=26");
    }
    void lists()
    {
        QFETCH(QString, got);
        QFETCH(QString, text);
        QCOMPARE(got, text);
    }
};

QTEST_GUILESS_MAIN(TestFixedTexts)
#include "tst_fixedtexts.moc"
