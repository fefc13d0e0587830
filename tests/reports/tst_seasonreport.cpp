// Season reports as data: the derived statistics of each report worked out
// by hand (the cases under tests/data/reports), the masks they are shown through, and the filters.

#include "ReportsFixture.h"
#include "fakes/Golden.h"
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

    // The cases of tests/data/reports/<kind>: the report's headers, then
    // each player's season row ("player: First Last Team AB=10 B1=2"); below
    // the line, the shown cells, the headers first.
    void derivedStatistics_data()
    {
        testkit::addGoldenCases({"reports/batting", "reports/fielding", "reports/pitching"});
    }
    void derivedStatistics()
    {
        TL_FETCH_CASE(c);
        const QString folder = c.name.section(u'/', 1, 1);
        const reports::ReportKind kind = folder == u"batting"    ? reports::Batting
                                         : folder == u"fielding" ? reports::Fielding
                                                                 : reports::Pitching;
        ReportsFixture f;
        QHash<QString, qint64> teams;
        for (const QString &player : c.values(QStringLiteral("player"))) {
            const QStringList words = player.split(u' ', Qt::SkipEmptyParts);
            QVERIFY(words.size() >= 3);
            if (!teams.contains(words.at(2)))
                teams.insert(words.at(2), f.addTeam(words.at(2)));
            const qint64 team = teams.value(words.at(2));
            f.addSeasonRow(reports::seasonTable(kind), f.addPlayer(team, words.at(0), words.at(1)), team,
                           figures(words.mid(3).join(u' ')));
        }
        SeasonReport report(kind, c.value(QStringLiteral("headers")).split(u','));
        QVERIFY(report.load(*f.db));
        QStringList shown{report.curHeaders().join(u',')};
        for (const QStringList &row : report.rows({}))
            shown.append(row.join(u','));
        TL_COMPARE_CASE(c, shown.join(u'\n').toUtf8() + '\n');
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
