// Season reports as data: the derived statistics of each report worked out
// by hand, the masks they are shown through, and the filters.

#include "ReportsFixture.h"
#include "reports/NumberMask.h"
#include "reports/ReportHeadings.h"
#include "reports/SeasonReport.h"

#include <QTest>

using reports::SeasonReport;

Q_DECLARE_METATYPE(reports::ReportKind)

class TestSeasonReport : public QObject
{
    Q_OBJECT

private:
    // The figures of "AB=10 B1=2" as a hash.
    static QHash<QString, int> figures(const QString &text)
    {
        QHash<QString, int> out;
        for (const QString &pair : text.split(u' ', Qt::SkipEmptyParts))
            out.insert(pair.section(u'=', 0, 0), pair.section(u'=', 1).toInt());
        return out;
    }

private Q_SLOTS:
    // What the report lines below don't reach: rounding past a whole number,
    // integer parts longer than the mask, and signs.
    void masks_data()
    {
        QTest::addColumn<double>("value");
        QTest::addColumn<QString>("mask");
        QTest::addColumn<QString>("shown");
        QTest::newRow("rounds up to a whole one") << 0.9996 << ".000"
                                                  << "1.000";
        QTest::newRow("more digits than the mask") << 1234.0 << "##0"
                                                   << "1234";
        QTest::newRow("games back behind") << -1.5 << "#0.0"
                                           << "-1.5";
        QTest::newRow("no sign on a rounded zero") << -0.01 << "#0.0"
                                                   << "0.0";
    }
    void masks()
    {
        QFETCH(double, value);
        QFETCH(QString, mask);
        QFETCH(QString, shown);
        QCOMPARE(reports::formatMask(value, mask), shown);
    }

    // One season row through its reporter; the shown cells against figures
    // worked out by hand.
    void derivedStatistics_data()
    {
        QTest::addColumn<reports::ReportKind>("kind");
        QTest::addColumn<QStringList>("headers");
        QTest::addColumn<QString>("stored");
        QTest::addColumn<QStringList>("shown");
        const QStringList batting{"First Name", "Last Name", "AB", "Avg", "OBP", "SP", "BB", "IBB"};
        QTest::newRow("walks only") << reports::Batting << batting << "BB=3"
                                    << QStringList{"Al", "Ames", "Eagles", "0", ".000", "1.000", ".000", "3", "0"};
        QTest::newRow("sacrifices only") << reports::Batting << batting << "SAC=2"
                                         << QStringList{"Al", "Ames", "Eagles", "0", ".000", ".000", ".000", "0", "0"};
        // 4 hits in 10; (4 + 2 BB + 1 HBP) / (10 + 2 + 1 + 1 SAC) = .500;
        // bases 2 + 2 + 4 = 8; the intentional walk counts nowhere.
        QTest::newRow("a season") << reports::Batting << batting << "AB=10 B1=2 B2=1 HR=1 BB=2 IBB=1 HBP=1 SAC=1"
                                  << QStringList{"Al", "Ames", "Eagles", "10", ".400", ".500", ".800", "2", "1"};
        QTest::newRow("interference counts nowhere")
            << reports::Batting << batting << "AB=2 B1=1 CI=1"
            << QStringList{"Al", "Ames", "Eagles", "2", ".500", ".500", ".500", "0", "0"};
        QTest::newRow("all home runs") << reports::Batting << batting << "AB=4 HR=4"
                                       << QStringList{"Al", "Ames", "Eagles", "4", "1.000", "1.000", "4.000", "0", "0"};
        QTest::newRow("thirds round") << reports::Batting << batting << "AB=3 B1=2 B3=1"
                                      << QStringList{"Al", "Ames", "Eagles", "3", "1.000", "1.000", "1.667", "0", "0"};

        const QStringList fielding{"First Name", "Last Name", "FPct", "CH", "PO", "Asst", "FE"};
        QTest::newRow("no chances") << reports::Fielding << fielding << "PO=2"
                                    << QStringList{"Al", "Ames", "Eagles", ".000", "0", "2", "0", "0"};
        // (5 + 3) / 9 typed chances, whatever the errors say.
        QTest::newRow("chances as typed") << reports::Fielding << fielding << "CH=9 PO=5 Asst=3 FE=4"
                                          << QStringList{"Al", "Ames", "Eagles", ".889", "9", "5", "3", "4"};
        QTest::newRow("clean") << reports::Fielding << fielding << "CH=4 PO=4"
                               << QStringList{"Al", "Ames", "Eagles", "1.000", "4", "4", "0", "0"};
        QTest::newRow("a header no dictionary knows adds no cell")
            << reports::Fielding << QStringList{"First Name", "Last Name", "FPct", "Nope", "PO"} << "CH=2 PO=1"
            << QStringList{"Al", "Ames", "Eagles", ".500", "1"};

        const QStringList pitching{"First Name", "Last Name", "ERA", "IP", "ErRuns"};
        QTest::newRow("no innings") << reports::Pitching << pitching << "ErRuns=5"
                                    << QStringList{"Al", "Ames", "Eagles", "0.00", "0.0", "5"};
        QTest::newRow("nine innings") << reports::Pitching << pitching << "IP=90 ErRuns=3"
                                      << QStringList{"Al", "Ames", "Eagles", "3.00", "9.0", "3"};
        // 6 2/3 innings: 9 x 6 / (20/3) = 8.10.
        QTest::newRow("thirds of innings") << reports::Pitching << pitching << "IP=62 ErRuns=6"
                                           << QStringList{"Al", "Ames", "Eagles", "8.10", "6.2", "6"};
        QTest::newRow("one out") << reports::Pitching << pitching << "IP=1 ErRuns=1"
                                 << QStringList{"Al", "Ames", "Eagles", "27.00", "0.1", "1"};
    }
    void derivedStatistics()
    {
        QFETCH(reports::ReportKind, kind);
        QFETCH(QStringList, headers);
        QFETCH(QString, stored);
        ReportsFixture f;
        const qint64 team = f.addTeam("Eagles");
        f.addSeasonRow(reports::seasonTable(kind), f.addPlayer(team, "Al", "Ames"), team, figures(stored));
        SeasonReport report(kind, headers);
        QVERIFY(report.load(*f.db));
        const QList<QStringList> rows = report.rows({});
        QCOMPARE(rows.size(), 1);
        QFETCH(QStringList, shown);
        QCOMPARE(rows.first(), shown);
    }

    // Filters combine by AND. The team is the one of the player's latest
    // game; a player who left the Players table still reports.
    void filters_data()
    {
        QTest::addColumn<QString>("league");
        QTest::addColumn<QString>("division");
        QTest::addColumn<QString>("team");
        QTest::addColumn<QStringList>("lastNames");
        QTest::newRow("all") << ""
                             << ""
                             << "" << QStringList{"Ames", "Bell", "Cole", "Dunn", "Player", "Ford"};
        QTest::newRow("division across leagues") << ""
                                                 << "East"
                                                 << "" << QStringList{"Ames", "Cole", "Player"};
        QTest::newRow("traded player under his new team") << ""
                                                          << ""
                                                          << "Hawks" << QStringList{"Cole"};
        QTest::newRow("no league fails a league filter") << "South"
                                                         << ""
                                                         << "" << QStringList{"Cole"};
    }
    void filters()
    {
        ReportsFixture f;
        const qint64 eagles = f.addTeam("Eagles", "North", "East");
        const qint64 owls = f.addTeam("Owls", "North", "West");
        const qint64 hawks = f.addTeam("Hawks", "South", "East");
        const qint64 loners = f.addTeam("Loners");
        const QString table = QStringLiteral("Hitting");
        f.addSeasonRow(table, f.addPlayer(eagles, "Al", "Ames"), eagles, {});
        f.addSeasonRow(table, f.addPlayer(owls, "Bo", "Bell"), owls, {});
        // Played for the Eagles first; his latest game was for the Hawks.
        f.addSeasonRow(table, f.addPlayer(eagles, "Cy", "Cole"), hawks, {});
        f.addSeasonRow(table, f.addPlayer(loners, "Di", "Dunn"), loners, {});
        f.addSeasonRow(table, 999, eagles, {});
        // A team that was deleted: no league, no division.
        f.addSeasonRow(table, f.addPlayer(loners, "Ed", "Ford"), 4242, {});

        const reports::FilterChoices choices = reports::FilterChoices::read(*f.db);
        QCOMPARE(choices.leagues, (QStringList{"North", "South"}));
        QCOMPARE(choices.divisions, (QStringList{"East", "West"}));

        QFETCH(QString, league);
        QFETCH(QString, division);
        QFETCH(QString, team);
        QFETCH(QStringList, lastNames);
        reports::ReportFilter filter;
        filter.selLeague = league;
        filter.selDivision = division;
        for (const auto &t : choices.teams) {
            if (t.name == team)
                filter.selTeam = t.teamID;
        }
        SeasonReport report(reports::Batting, {"First Name", "Last Name", "AB", "Avg", "OBP", "SP"});
        QVERIFY(report.load(*f.db));
        QStringList shownNames;
        for (const QStringList &row : report.rows(filter))
            shownNames.append(row.at(1));
        QCOMPARE(shownNames, lastNames);
        if (lastNames.contains(QStringLiteral("Player")))
            QVERIFY(
                report.rows(filter).contains(QStringList{"Unknown", "Player", "Eagles", "0", ".000", ".000", ".000"}));
    }

    // Each heading says what it counts, and a first sort puts the best first.
    void headingMeaningsAndFirstOrder_data()
    {
        QTest::addColumn<reports::ReportKind>("kind");
        QTest::addColumn<QString>("heading");
        QTest::addColumn<QString>("meaning");
        QTest::addColumn<bool>("ascending");
        QTest::newRow("strikes thrown") << reports::Pitching << "Ks"
                                        << "Strikes Thrown" << false;
        QTest::newRow("strike outs pitched") << reports::Pitching << "Kouts"
                                             << "Strike Outs" << false;
        QTest::newRow("batter strikes out") << reports::Batting << "KS"
                                            << "Strike Out Swinging" << true;
        QTest::newRow("earned run average") << reports::Pitching << "ERA"
                                            << "Earned Run Average" << true;
        QTest::newRow("batting average") << reports::Batting << "Avg"
                                         << "Batting Average" << false;
        QTest::newRow("errors") << reports::Fielding << "FE"
                                << "Fielding Error" << true;
        QTest::newRow("innings played") << reports::Fielding << "IP"
                                        << "Innings Played" << false;
        QTest::newRow("a name") << reports::Batting << "Last Name"
                                << "Last Name" << true;
        QTest::newRow("a statistic of the coach's") << reports::Batting << "Hustle"
                                                    << "Hustle: a user-defined statistic" << false;
    }
    void headingMeaningsAndFirstOrder()
    {
        QFETCH(reports::ReportKind, kind);
        QFETCH(QString, heading);
        QFETCH(QString, meaning);
        QFETCH(bool, ascending);
        QCOMPARE(reports::headingDescription(kind, heading), meaning);
        QCOMPARE(reports::firstSortOrder(kind, heading) == Qt::AscendingOrder, ascending);
    }

    void widths_data()
    {
        QTest::addColumn<int>("columns");
        QTest::addColumn<int>("listWidth");
        // The team's column comes with every report.
        QTest::newRow("names and one figure") << 3 << 288;
        QTest::newRow("batting defaults") << 15 << 720;
        QTest::newRow("thirty columns stop at 984") << 30 << 984;
    }
    void widths()
    {
        QFETCH(int, columns);
        QFETCH(int, listWidth);
        QStringList headers{"First Name", "Last Name"};
        while (headers.size() < columns)
            headers.append(QStringLiteral("AB"));
        SeasonReport report(reports::Batting, headers);
        QCOMPARE(report.listWidth(), listWidth);
        QCOMPARE(report.curHeaders().mid(0, 3), (QStringList{"First Name", "Last Name", "Team"}));
        QCOMPARE(report.columnWidths(), (QStringList{"84", "84", "84"} + QStringList(columns - 2, "36")).join(u','));
    }
};

QTEST_GUILESS_MAIN(TestSeasonReport)
#include "tst_seasonreport.moc"
