// The change log as any kind of change uses it, through its one call: rows
// updated, made and removed go back and forth with undo and redo, a change
// whose row is missing writes nothing, and the stacks read after a restart
// (a new log over the same file, naming the menu from the last entry, then
// walking every entry) are the ones of the sitting that made them.

#include "GameDayTestSupport.h"
#include "gameday/ChangeLog.h"

using namespace gameday;

namespace {

QString hittingRow(const QString &game)
{
    const QList<Record> rows = gData->select(
        QStringLiteral("SELECT teamID, stats FROM GamesIndivHitting WHERE gameID = ?"), {game});
    return rows.isEmpty() ? QStringLiteral("none") : rows.first().text("teamID") + u'/' + rows.first().text("stats");
}

RowChange hitting(const QString &game, std::optional<QVariantList> before, std::optional<QVariantList> after)
{
    return {"GamesIndivHitting", {"gameID", "playerID"}, {game, "7"}, {"teamID", "stats"}, before, after};
}

QString stacks(ChangeLog &log)
{
    return log.undoLabel() + u'|' + log.redoLabel();
}

} // namespace

class TestChangeLog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rowsGoBackAndForth_data()
    {
        QTest::addColumn<QString>("start"); // the row before the change, or "none"
        QTest::addColumn<bool>("rowAfter");
        QTest::newRow("a row updated") << "4/1\t0" << true;
        QTest::newRow("a row made") << "none" << true;
        QTest::newRow("a row removed") << "4/1\t0" << false;
    }
    void rowsGoBackAndForth()
    {
        QFETCH(QString, start);
        QFETCH(bool, rowAfter);
        gamedaytest::Season season;
        const QString game = season.schedID();
        std::optional<QVariantList> before;
        if (start != u"none") {
            before = QVariantList{"4", "1\t0"};
            gData->insert("GamesIndivHitting",
                          {{"gameID", game}, {"playerID", "7"}, {"teamID", "4"}, {"stats", "1\t0"}});
        }
        const std::optional<QVariantList> after = rowAfter ? std::optional(QVariantList{"4", "2\t1"}) : std::nullopt;
        QCOMPARE(ChangeLog::readRow(*gData, "GamesIndivHitting", {"gameID", "playerID"}, {game, "7"},
                                    {"teamID", "stats"}),
                 before);
        QCOMPARE(ChangeLog::record(*gData, game, {"Batting Stats, Smith", -1, {hitting(game, before, after)}}),
                 ChangeLog::Result::Saved);
        const QString end = rowAfter ? QStringLiteral("4/2\t1") : QStringLiteral("none");
        QCOMPARE(hittingRow(game), end);

        ChangeLog log(*gData);
        log.setGame(game);
        QCOMPARE(stacks(log), QStringLiteral("Batting Stats, Smith|"));
        QCOMPARE(log.undo()->label, QStringLiteral("Batting Stats, Smith"));
        QCOMPARE(hittingRow(game), start);
        QCOMPARE(stacks(log), QStringLiteral("|Batting Stats, Smith"));
        QVERIFY(log.redo());
        QCOMPARE(hittingRow(game), end);
        QVERIFY(!log.redo());
    }

    // Two rows in one change, the second gone: the first isn't written
    // either, and nothing is logged.
    void missingRowWritesNothing()
    {
        gamedaytest::Season season;
        const QString game = season.schedID();
        gData->insert("GamesIndivHitting", {{"gameID", game}, {"playerID", "7"}, {"teamID", "4"}, {"stats", "1"}});
        RowChange gone = hitting(game, QVariantList{"4", "1"}, QVariantList{"4", "5"});
        gone.key = {game, "99"};
        const Change change{"Two rows", -1, {hitting(game, QVariantList{"4", "1"}, QVariantList{"4", "2"}), gone}};
        QCOMPARE(ChangeLog::record(*gData, game, change), ChangeLog::Result::Missing);
        QCOMPARE(hittingRow(game), QStringLiteral("4/1"));
        QCOMPARE(gData->scalar("SELECT COUNT(*) FROM GameChanges").toInt(), 0);
    }

    // A script of changes (c), undos (u) and redos (r); after each step the
    // labels Undo and Redo would take, in the sitting and read afresh.
    void stacksAfterARestart_data()
    {
        QTest::addColumn<QString>("script");
        QTest::addColumn<QStringList>("expected");
        QTest::newRow("undo all, redo one")
            << "c c c u u u r" << QStringList{"1|", "2|", "3|", "2|3", "1|2", "|1", "1|2"};
        QTest::newRow("a change drops the redos") << "c c u c u r" << QStringList{"1|", "2|", "1|2", "3|", "1|3", "3|"};
        QTest::newRow("redo after undo after redo")
            << "c c u u r r u" << QStringList{"1|", "2|", "1|2", "|1", "1|2", "2|", "1|2"};
    }
    void stacksAfterARestart()
    {
        QFETCH(QString, script);
        QFETCH(QStringList, expected);
        gamedaytest::Season season;
        const QString game = season.schedID();
        ChangeLog log(*gData);
        log.setGame(game);
        int made = 0;
        const QStringList steps = script.split(u' ');
        for (qsizetype i = 0; i < steps.size(); ++i) {
            if (steps.at(i) == u"c") {
                const QString label = QString::number(++made);
                const RowChange row{"Games", {"schedID"}, {game}, {"gameType"}, QVariantList{""}, QVariantList{label}};
                gData->exec("INSERT INTO Games (schedID, gameType) SELECT ?, '' WHERE NOT EXISTS (SELECT 1 FROM Games "
                            "WHERE schedID = ?)",
                            {game, game});
                QCOMPARE(log.add({label, 0, {row}}), ChangeLog::Result::Saved);
            } else {
                QVERIFY(steps.at(i) == u"u" ? log.undo() : log.redo());
            }
            QCOMPARE(stacks(log), expected.at(i));
            ChangeLog reopened(*gData); // menu texts from the last entry
            reopened.setGame(game);
            QCOMPARE(stacks(reopened), expected.at(i));
            ChangeLog walked(*gData); // every entry walked, as before a step
            walked.setGame(game);
            if (walked.canUndo()) {
                const QString top = walked.undoLabel();
                QCOMPARE(walked.undo()->label, top);
                QVERIFY(walked.redo());
            }
            QCOMPARE(stacks(walked), expected.at(i));
            log.reload();
        }
    }
};

QTEST_MAIN(TestChangeLog)
#include "tst_changelog.moc"
