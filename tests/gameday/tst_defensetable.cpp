// Who played where, inning by inning: the table worked out from a lineup,
// its substitutions on the card and the coach's moves, and the moves kept
// in the season file.

#include "GridTestSupport.h"

#include "app/myDB.h"
#include "gameday/DefenseTable.h"
#include "gameday/GameRecord.h"

#include <QTest>

#include <algorithm>

using namespace gameday;

namespace {

// The table as text, one line per position held in some inning: the
// position, then the player (or "-", or "A/B" for two) inning by inning.
QStringList render(const DefenseTable &table)
{
    QStringList lines;
    for (const QString &pos : table.rows()) {
        QStringList cells{pos};
        bool any = false;
        for (int inning = 1; inning <= table.innings(); ++inning) {
            const QStringList ids = table.playersAt(pos, inning);
            any = any || !ids.isEmpty();
            cells.append(ids.isEmpty() ? QStringLiteral("-") : ids.join(u'/'));
        }
        if (any)
            lines.append(cells.join(u' '));
    }
    return lines;
}

QList<DefenseMove> readMoves(const QStringList &specs)
{
    QList<DefenseMove> moves;
    for (const QString &line : specs) {
        const QStringList f = line.split(u' ');
        moves.append({f.at(0), f.at(1).toInt(), f.value(2)});
    }
    return moves;
}

// A lineup of "pos name" (order = place, name = id) on a card whose first
// columns are finished as each substitution "innings:out>in pos" says.
struct Game
{
    ScoreGrid card;
    QList<LineupLine> lineup;

    Game(const QStringList &players, const QStringList &subs)
    {
        for (int i = 0; i < players.size(); ++i) {
            const QStringList f = players.at(i).split(u' ');
            lineup.append({QString::number(i + 1), f.at(0), f.at(1), f.at(1)});
        }
        gridtest::loadTeam(card, int(lineup.size()));
        for (const QString &sub : subs) {
            const int finished = sub.section(u':', 0, 0).toInt();
            for (int c = 0; c < finished; ++c)
                for (int r = 0; r < 3; ++r)
                    if (card.cellText(r, c).isEmpty()) {
                        card.setCellText(r, c, QStringLiteral("K"));
                        card.setCellBkg(r, c, QStringLiteral("R"));
                    }
            const QString out = sub.section(u':', 1).section(u'>', 0, 0);
            const QStringList in = sub.section(u'>', 1).split(u' ');
            int row = 0;
            while (lineup.at(row).playerID != out)
                ++row;
            card.insertReplacementRow(row, lineup.at(row).order.toInt());
            lineup.insert(row + 1, {lineup.at(row).order, in.at(1), QStringLiteral(" ->") + in.at(0), in.at(0)});
        }
    }
};

const QStringList kNine = {"RHP Al", "C Bo", "B1 Cy", "2B Di", "B3 Ed", "SS Fa", "LF Gu", "CF Hy", "RF Io"};

} // namespace

class TestDefenseTable : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void table_data()
    {
        QTest::addColumn<QStringList>("players");
        QTest::addColumn<QStringList>("subs");
        QTest::addColumn<QStringList>("moves");
        QTest::addColumn<QStringList>("expected");
        const QStringList plain = {"P Al Al Al",  "C Bo Bo Bo",  "1B Cy Cy Cy", "2B Di Di Di", "3B Ed Ed Ed",
                                   "SS Fa Fa Fa", "LF Gu Gu Gu", "CF Hy Hy Hy", "RF Io Io Io"};
        QTest::newRow("lineup as typed: RHP pitches, B1 is first base")
            << kNine << QStringList() << QStringList() << plain;
        QTest::newRow("a pinch hitter is out of the field")
            << (QStringList(kNine) << "PH Ju") << QStringList() << QStringList() << plain;
        QTest::newRow("a substitute takes over at the first open inning")
            << kNine << QStringList{"2:Cy>Ju 1B"} << QStringList()
            << QStringList{"P Al Al Al",  "C Bo Bo Bo",  "1B Cy Cy Ju", "2B Di Di Di", "3B Ed Ed Ed",
                           "SS Fa Fa Fa", "LF Gu Gu Gu", "CF Hy Hy Hy", "RF Io Io Io"};
        QTest::newRow("a substitute's substitute")
            << kNine << QStringList{"1:Gu>Ju LF", "2:Ju>Ka CF"} << QStringList()
            << QStringList{"P Al Al Al",  "C Bo Bo Bo", "1B Cy Cy Cy",    "2B Di Di Di", "3B Ed Ed Ed",
                           "SS Fa Fa Fa", "LF Gu Ju -", "CF Hy Hy Ka/Hy", "RF Io Io Io"};
        QTest::newRow("moves from an inning on, the later one last")
            << kNine << QStringList() << QStringList{"Cy 3 LF", "Gu 3 1B", "Cy 2 SS", "Fa 2 3B", "Ed 2 C"}
            << QStringList{"P Al Al Al", "C Bo Bo/Ed Bo/Ed", "1B Cy - Gu",  "2B Di Di Di", "3B Ed Fa Fa",
                           "SS Fa Cy -", "LF Gu Gu Cy",      "CF Hy Hy Hy", "RF Io Io Io"};
        QTest::newRow("benched for an inning, back after")
            << kNine << QStringList() << QStringList{"Bo 2", "Bo 3 C"}
            << QStringList{"P Al Al Al",  "C Bo - Bo",   "1B Cy Cy Cy", "2B Di Di Di", "3B Ed Ed Ed",
                           "SS Fa Fa Fa", "LF Gu Gu Gu", "CF Hy Hy Hy", "RF Io Io Io"};
        QTest::newRow("OF and DH show when used; a move past a player's spell is void")
            << (QStringList{"P Al", "C Bo", "DH Cy", "LCF Ka"}) << QStringList{"1:Cy>Ju DH"} << QStringList{"Cy 3 C"}
            << QStringList{"P Al Al Al", "C Bo Bo Bo", "OF Ka Ka Ka", "DH Cy Ju Ju"};
    }

    void table()
    {
        QFETCH(QStringList, players);
        QFETCH(QStringList, subs);
        QFETCH(QStringList, moves);
        QFETCH(QStringList, expected);
        gridtest::GridEnv env;
        Game game(players, subs);
        QCOMPARE(render(DefenseTable::build(game.lineup, game.card, readMoves(moves), 3)), expected);
    }

    // A move is kept in the season file; the player it displaces takes the
    // mover's old place, and putting the change's before values back
    // undoes both.
    void movesAreKeptAndTakenBack()
    {
        gridtest::GridEnv env;
        QTemporaryDir dir;
        myDB db(dir.path(), QStringLiteral("2026"));
        DefenseStore store(db);
        Game game(kNine, {});
        const auto table = [&] {
            return DefenseTable::build(game.lineup, game.card, store.moves(QStringLiteral("7"), QStringLiteral("1")),
                                       4);
        };

        DefenseChange first = store.move(QStringLiteral("7"), QStringLiteral("1"), table(), QStringLiteral("Cy"), 3,
                                         QStringLiteral("LF"));
        QCOMPARE(first.rows.size(), 2);
        QCOMPARE(table().positionOf(QStringLiteral("Gu"), 4), QStringLiteral("1B"));
        DefenseChange second = store.move(QStringLiteral("7"), QStringLiteral("1"), table(), QStringLiteral("Cy"), 3,
                                          QStringLiteral("CF"));
        QCOMPARE(render(table()).mid(2, 1), QStringList{"1B Cy Cy Gu Gu"});
        QCOMPARE(render(table()).mid(6), (QStringList{"LF Gu Gu Hy Hy", "CF Hy Hy Cy Cy", "RF Io Io Io Io"}));
        // The same place again changes nothing; another game's moves are apart.
        QVERIFY(
            store.move(QStringLiteral("7"), QStringLiteral("1"), table(), QStringLiteral("Cy"), 4, QStringLiteral("CF"))
                .isEmpty());
        QVERIFY(store.moves(QStringLiteral("8"), QStringLiteral("1")).isEmpty());

        for (DefenseChange *change : {&second, &first}) {
            for (auto &row : change->rows)
                std::swap(row.before, row.after);
            QVERIFY(store.apply(*change));
        }
        QCOMPARE(store.moves(QStringLiteral("7"), QStringLiteral("1")), QList<DefenseMove>());
        QCOMPARE(db.scalar(QStringLiteral("SELECT COUNT(*) FROM DefenseMoves")).toInt(), 0);
    }

    void inningsPlayed_data()
    {
        QTest::addColumn<QString>("actions");
        QTest::addColumn<QString>("innings");
        QTest::newRow("cards: a doubled column is its inning")
            << QStringLiteral("1B\t\tK\r\tBB\t\tK") << QStringLiteral("1 2 3");
        QTest::newRow("run entry: numbered boxes")
            << QStringLiteral("xxx\t1\t0\t--\t2\tX\t\t\t\t\t\t3\t0\t1") << QStringLiteral("1 2 4");
        QTest::newRow("nothing entered") << QString() << QString();
    }
    void inningsPlayed()
    {
        QFETCH(QString, actions);
        QFETCH(QString, innings);
        gridtest::GridEnv env;
        TeamStrings team;
        team.actions = actions;
        team.players = QStringLiteral("1\tC\tBo\t2\r2\tP\tAl\t1");
        if (!isRunEntry(actions))
            team.headings = QStringLiteral("1\t2\t2a\t3\t4");
        QList<int> got = fieldedInnings(team).values();
        std::sort(got.begin(), got.end());
        QStringList text;
        for (int i : got)
            text.append(QString::number(i));
        QCOMPARE(text.join(u' '), innings);
        QCOMPARE(tableInnings(2, team, {}), got.isEmpty() ? 2 : got.last());
    }
};

QTEST_GUILESS_MAIN(TestDefenseTable)
#include "tst_defensetable.moc"
