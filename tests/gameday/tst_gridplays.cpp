// Games played click by click through the grid: each case under
// tests/data/gridplays says what the coach does, in order, and below its
// line the board that results.
//
//   rows: 4                 a team of four lineup rows
//   slots: yes              each row holds its own lineup slot (1, 2, ...)
//   play: 1 3:B1 0:BB>xRUN  in column 1: row 3 gets B1; row 0 BB, then xRUN
//   replace: 1 2            a replacement row under row 1 from column 2 on
//   clear-column: 9         "Clear Column" from the popover of column 9
//   auto-fill: 1,1 2,1      auto-fill mode, a click on (column,row) and on another
//
// The board: the headings and each row's cells up to the column after the
// last with text ("text/bkg", "." for an empty cell without background), then the
// columns added, the walk-off questions, the columns with three outs, the
// auto-filled figures and the messages shown.
//
// Below the cases, an at bat of a finished inning changed afterwards.

#include "GridTestSupport.h"
#include "fakes/Golden.h"

#include <QSignalSpy>

using gameday::ScoreGrid;
using namespace gridtest;

namespace {

QString cellText(const ScoreGrid &grid, int row, int col)
{
    const QString text = grid.cellText(row, col);
    const QString bkg = grid.cellBkg(row, col);
    if (text.isEmpty() && bkg.isEmpty())
        return QStringLiteral(".");
    return bkg.isEmpty() ? text : text + u'/' + bkg;
}

QStringList board(const ScoreGrid &grid)
{
    // One column past the last with text: where the next inning opens.
    int last = 0;
    for (int r = 0; r < grid.rowCount(); ++r) {
        for (int c = 0; c < grid.columnCount(); ++c) {
            if (!grid.cellText(r, c).isEmpty())
                last = qMin(qMax(last, c + 1), grid.columnCount() - 1);
        }
    }
    QStringList headings, threeOuts;
    for (int c = 0; c <= last; ++c) {
        headings.append(grid.heading(c));
        if (grid.check4ThreeOuts(c))
            threeOuts.append(grid.heading(c));
    }
    QStringList out{QStringLiteral("headings: ") + headings.join(u' ')};
    for (int r = 0; r < grid.rowCount(); ++r) {
        QStringList cells;
        for (int c = 0; c <= last; ++c)
            cells.append(cellText(grid, r, c));
        out.append(QString::number(r) + QStringLiteral(": ") + cells.join(u' '));
    }
    out.append(QStringLiteral("three outs: ") + threeOuts.join(u' '));
    return out;
}

// Plays one column: each entry is "row:code" or "row:code>result".
void play(ScoreGrid &grid, ScriptedPopover &popover, int col, const QStringList &plays)
{
    for (const QString &p : plays) {
        for (const QString &code : p.section(u':', 1).split(u'>')) {
            popover.script({code});
            grid.cellClicked(p.section(u':', 0, 0).toInt(), col, false);
        }
    }
}

QPoint columnRow(const QString &text)
{
    return {text.section(u',', 0, 0).toInt(), text.section(u',', 1).toInt()};
}

} // namespace

class TestGridPlays : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void plays_data() { testkit::addGoldenCases({"gridplays"}); }
    void plays()
    {
        TL_FETCH_CASE(c);
        GridEnv env;
        ScoreGrid grid;
        loadTeam(grid, c.value(QStringLiteral("rows")).toInt());
        ScriptedPopover popover;
        popover.install(grid);
        QSignalSpy added(&grid, &ScoreGrid::columnAdded);
        QSignalSpy walkoff(&grid, &ScoreGrid::askIsWalkoff);
        QStringList autoFill;
        for (const auto &[command, value] : c.commands) {
            const QStringList words = value.split(u' ', Qt::SkipEmptyParts);
            if (command == u"slots") {
                for (int r = 0; r < grid.rowCount(); ++r)
                    grid.setRowSlot(r, r + 1);
            } else if (command == u"play") {
                const int col = words.value(0).toInt();
                play(grid, popover, col, words.mid(1));
            } else if (command == u"replace") {
                grid.insertReplacementRow(words.value(0).toInt(), words.value(1).toInt());
            } else if (command == u"clear-column") {
                popover.script({QStringLiteral("Clear Column")});
                grid.cellClicked(0, value.toInt(), false);
            } else if (command == u"auto-fill") {
                QSignalSpy done(&grid, &ScoreGrid::autoFillDataReturn);
                grid.setAutoFillMode(true);
                for (const QString &at : words)
                    grid.cellClicked(columnRow(at).y(), columnRow(at).x(), false);
                grid.setAutoFillMode(false);
                QCOMPARE(done.count(), 1);
                for (int v : grid.autoFillFigures())
                    autoFill.append(QString::number(v));
            } else if (command != u"rows") {
                QFAIL(qPrintable(QStringLiteral("unknown command ") + command));
            }
        }
        QStringList shown = board(grid);
        shown.append(QStringLiteral("columns added: %1").arg(added.count()));
        shown.append(QStringLiteral("walk-off questions: %1").arg(walkoff.count()));
        if (!autoFill.isEmpty())
            shown.append(QStringLiteral("auto-fill: ") + autoFill.join(u','));
        for (const QString &message : env.fake.messages.texts())
            shown.append(QStringLiteral("message: ") + message);
        TL_COMPARE_CASE(c, shown.join(u'\n').toUtf8() + '\n');
    }

    // Four batters; the first inning is finished (plain, or doubled into
    // "1a") and the second begun, then an at bat of the first is changed.
    // A change that would make a fourth out is refused naming the at bat
    // that would be it, in batting order, and leaves the card as it was;
    // any other change is made and the inning's runs are worked out again.
    void editAnEarlierAtBat_data()
    {
        QTest::addColumn<bool>("doubled");
        QTest::addColumn<QPoint>("cell"); // (col, row)
        QTest::addColumn<QString>("code");
        QTest::addColumn<QString>("refusal");    // empty when the change is made
        QTest::addColumn<bool>("threeOuts");     // the first inning's, afterwards
        QTest::addColumn<QString>("secondHead"); // column 1's heading, afterwards
        const QString fourthIn1a =
            "The at bat in row 3, inning 1a would be the fourth out. Clear an out of that inning first.";
        QTest::newRow("an out for another out") << false << QPoint(0, 0) << "KL"
                                                << "" << true << "2";
        QTest::newRow("a hit made an out")
            << false << QPoint(0, 1) << "GO"
            << "The at bat in row 4, inning 1 would be the fourth out. Clear an out of that inning first." << true
            << "2";
        // Two outs when the order comes round: the inning doubles, and the
        // second inning's at bat moves along, as if scored that way.
        QTest::newRow("an out made a hit reopens the inning") << false << QPoint(0, 2) << "B2"
                                                              << "" << false << "1a";
        QTest::newRow("a fourth out in the doubled column")
            << true << QPoint(0, 1) << "FO" << fourthIn1a << true << "1a";
        QTest::newRow("a result that is an out") << true << QPoint(0, 0) << "xCS" << fourthIn1a << true << "1a";
    }
    void editAnEarlierAtBat()
    {
        QFETCH(bool, doubled);
        QFETCH(QPoint, cell);
        QFETCH(QString, code);
        QFETCH(QString, refusal);
        QFETCH(bool, threeOuts);
        QFETCH(QString, secondHead);

        GridEnv env;
        ScoreGrid grid;
        loadTeam(grid, 4);
        ScriptedPopover popover;
        popover.install(grid);
        if (doubled) {
            play(grid, popover, 0, {"0:B1>xRUN", "1:BB", "2:HR", "3:GO"});
            play(grid, popover, 1, {"0:B1", "1:KS", "2:FO"});
        } else {
            play(grid, popover, 0, {"0:GO", "1:B1", "2:FO", "3:KS"});
        }
        const int next = doubled ? 2 : 1;
        play(grid, popover, next, {"3:B1"});
        QVERIFY(grid.check4ThreeOuts(0));
        const QString data = grid.getMyData();
        const QString outcomes = grid.getMyBkgArray();

        QSignalSpy edited(&grid, &ScoreGrid::cellEdited);
        QSignalSpy calcs(&grid, &ScoreGrid::doCalcs);
        popover.script({code});
        grid.cellClicked(cell.y(), cell.x(), false);
        QCOMPARE(grid.check4ThreeOuts(0), threeOuts);
        QCOMPARE(grid.heading(1), secondHead);
        if (refusal.isEmpty()) {
            QVERIFY(env.fake.messages.shown.isEmpty());
            QCOMPARE(edited.count(), 1);
            QCOMPARE(calcs.count(), 1); // the board follows the change
            QCOMPARE(grid.lastChoice(), code);
        } else {
            QCOMPARE(env.fake.messages.texts(),
                     QStringList{QStringLiteral("That would make a fourth out in inning 1.")});
            QCOMPARE(env.fake.messages.shown.first().explanation, refusal);
            QCOMPARE(edited.count(), 0);
            QCOMPARE(grid.getMyData(), data);
            QCOMPARE(grid.getMyBkgArray(), outcomes);
        }
    }
};

QTEST_GUILESS_MAIN(TestGridPlays)
#include "tst_gridplays.moc"
