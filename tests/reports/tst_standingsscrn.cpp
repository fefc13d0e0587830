// The standings window: percentage, games back and order worked out by
// hand, the league and division views, and the coach's own entries with
// their keys, the home team's refusal and saving.

#include "ReportsFixture.h"
#include "app/ui/MainMenuBar.h"
#include "fakes/TestKit.h"
#include "reports/ui/qlmListBox.h"
#include "reports/ui/standingsScrn.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

namespace {

// Each row's cells joined by single blanks; empty cells leave no trace.
QStringList shownRows(const qlmListBox *list)
{
    QStringList out;
    for (int r = 0; r < list->rowCount(); ++r)
        out.append(list->rowCells(r).join(u' ').simplified());
    return out;
}

QStringList storedRecords()
{
    QStringList out;
    for (const Record &r : gData->select(QStringLiteral("SELECT t.TeamName, g.W, g.L, g.Tie FROM GameResultsByTeam g "
                                                        "JOIN Teams t ON t.teamID = g.teamID ORDER BY t.TeamName")))
        out.append(r.values.at(0).toString() + u' ' + r.values.at(1).toString() + u'-' + r.values.at(2).toString() +
                   u'-' + r.values.at(3).toString());
    return out;
}

QPoint cellCenter(qlmListBox *list, int row, int column)
{
    return list->visualRect(list->model()->index(row, column)).center();
}

std::unique_ptr<standingsScrn> openStandings()
{
    auto screen = std::make_unique<standingsScrn>();
    screen->show();
    screen->activateWindow();
    if (!QTest::qWaitForWindowActive(screen.get()))
        return nullptr;
    return screen;
}

} // namespace

class TestStandingsScrn : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Whatever a function left open, also when it failed half-way, goes
    // before the next one starts.
    void cleanup() { testkit::closeAllWindows(); }

    void percentageAndGamesBack_data()
    {
        QTest::addColumn<QStringList>("records"); // "Team W L T", or "Team" with none
        QTest::addColumn<QStringList>("shown");   // Team W L Tie Pct GB, in list order
        QTest::newRow("a tie is half a win") << QStringList{"Ants 2 1 1"} << QStringList{"Ants 2 1 1 .625 0.0"};
        QTest::newRow("leader 10-2, other 8-4")
            << QStringList{"Ants 8 4 0", "Bees 10 2 0"} << QStringList{"Bees 10 2 0 .833 0.0", "Ants 8 4 0 .667 2.0"};
        QTest::newRow("a tie is no loss in games back")
            << QStringList{"Ants 5 1 0", "Bees 6 0 2"} << QStringList{"Bees 6 0 2 .875 0.0", "Ants 5 1 0 .833 1.5"};
        // 0-0-0 shows .000 and sorts with the teams that have no record.
        QTest::newRow("no games played") << QStringList{"Ants 0 0 0", "Bees", "Cats 1 1 0"}
                                         << QStringList{"Cats 1 1 0 .500 0.0", "Ants 0 0 0 .000 0.0", "Bees .000 0.0"};
    }
    void percentageAndGamesBack()
    {
        QFETCH(QStringList, records);
        QFETCH(QStringList, shown);
        ReportsFixture f;
        for (const QString &record : records) {
            const QStringList parts = record.split(u' ');
            const qint64 team = f.addTeam(parts.at(0));
            if (parts.size() == 4)
                f.addRecord(team, parts.at(1).toInt(), parts.at(2).toInt(), parts.at(3).toInt());
        }
        auto screen = openStandings();
        QVERIFY(screen);
        QCOMPARE(shownRows(screen->myLB), shown);
        QVERIFY(!screen->noGamesWarning->isVisible());
    }

    void noRecordsAndViews()
    {
        ReportsFixture f;
        const qint64 home = f.addTeam("Hawks", "North", "East");
        f.addTeam("Owls", "North", "West");
        f.addTeam("Elks", "South", "East");
        f.addTeam("Ants", "North", "East");
        f.prefs->prHomeTeam = QString::number(home);
        auto screen = openStandings();
        QVERIFY(screen);
        QVERIFY(screen->noGamesWarning->isVisible());
        QCOMPARE(shownRows(screen->myLB),
                 (QStringList{"Hawks .000 0.0", "Owls .000 0.0", "Elks .000 0.0", "Ants .000 0.0"}));
        QCOMPARE(screen->standSelPop->count(), 3);
        screen->standSelPop->setCurrentIndex(screen->standSelPop->findText("North League"));
        QCOMPARE(screen->myLB->rowCount(), 3);
        // The Elks share the division's name in another league.
        screen->standSelPop->setCurrentIndex(screen->standSelPop->findText("East Division"));
        QCOMPARE(shownRows(screen->myLB), (QStringList{"Hawks .000 0.0", "Ants .000 0.0"}));
    }

    // A home team with a division and no league: the entry says what it shows.
    void divisionWithoutLeague()
    {
        ReportsFixture f;
        const qint64 home = f.addTeam("Hawks", "", "East");
        f.addTeam("Owls", "", "West");
        f.addTeam("Elks", "South", "East");
        f.prefs->prHomeTeam = QString::number(home);
        auto screen = openStandings();
        QVERIFY(screen);
        QCOMPARE(screen->standSelPop->count(), 2);
        screen->standSelPop->setCurrentIndex(1);
        QCOMPARE(screen->standSelPop->currentText(), QStringLiteral("East Division"));
        QCOMPARE(shownRows(screen->myLB), (QStringList{"Hawks .000 0.0"}));
    }

    void unreadableSeasonShowsErrorRow()
    {
        ReportsFixture f;
        f.addTeam("Hawks");
        QVERIFY(f.db->exec(QStringLiteral("DROP TABLE GameResultsByTeam")));
        auto screen = openStandings();
        QVERIFY(screen);
        QCOMPARE(shownRows(screen->myLB), QStringList{"There was an error"});
    }

    // The coach types the other teams' records: clicks, keys, the home
    // team's refusal, and the save when the button comes up.
    void editRecords()
    {
        ReportsFixture f;
        const qint64 home = f.addTeam("Hawks");
        f.addTeam("Owls");
        f.addTeam("Elks");
        f.addRecord(home, 3, 1, 0);
        f.prefs->prHomeTeam = QString::number(home);
        auto screen = openStandings();
        QVERIFY(screen);
        qlmListBox *list = screen->myLB;
        QCOMPARE(shownRows(list), (QStringList{"Hawks 3 1 0 .750 0.0", "Owls .000 1.0", "Elks .000 1.0"}));

        // Without the edit button down a click selects nothing and edits nothing.
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, cellCenter(list, 1, 1));
        QCOMPARE(list->selectedRow(), -1);
        QVERIFY(!list->isEditingCell());

        QTest::mouseClick(screen->editWLBtn, Qt::LeftButton);
        QVERIFY(screen->allowEdits);
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, cellCenter(list, 0, 2));
        QCOMPARE(f.platform.messages.texts(), QStringList{"You cannot enter a record for the home team."});
        QVERIFY(!list->isEditingCell());

        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, cellCenter(list, 1, 1));
        QVERIFY(list->isEditingCell());
        QWidget *editor = QApplication::focusWidget();
        QTest::keyClicks(editor, "4");
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Plus);
        QCOMPARE(list->editorText(), QStringLiteral("5"));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab); // to L
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Minus);
        QCOMPARE(list->editorText(), QStringLiteral("0"));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Plus);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Plus);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_X);
        QCOMPARE(f.platform.beeper.beeps, 1);
        QCOMPARE(list->editorText(), QStringLiteral("2"));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab); // to Tie
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab); // wraps to W
        QCOMPARE(list->currentIndex().column(), 1);
        QCOMPARE(list->currentIndex().row(), 1);
        // Return goes to the next team; from the last, it stays there.
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QCOMPARE(list->currentIndex().row(), 2);
        QTest::keyClicks(QApplication::focusWidget(), "7");
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QCOMPARE(list->currentIndex().row(), 2);
        QCOMPARE(list->cell(2, 1), QStringLiteral("7"));

        // Order and percentages are redone when the button comes up.
        QTest::mouseClick(screen->editWLBtn, Qt::LeftButton);
        QVERIFY(!screen->allowEdits);
        QCOMPARE(storedRecords(), (QStringList{"Elks 7-0-0", "Hawks 3-1-0", "Owls 5-2-0"}));
        QCOMPARE(shownRows(list), (QStringList{"Elks 7 0 0 1.000 0.0", "Hawks 3 1 0 .750 2.5", "Owls 5 2 0 .714 2.0"}));
    }

    // A record being typed when the view changes is kept, shown in the
    // new view and saved.
    void typedRecordSurvivesViewChange()
    {
        ReportsFixture f;
        const qint64 home = f.addTeam("Hawks", "North", "East");
        f.addTeam("Owls", "North", "East");
        f.prefs->prHomeTeam = QString::number(home);
        auto screen = openStandings();
        QVERIFY(screen);
        qlmListBox *list = screen->myLB;
        QTest::mouseClick(screen->editWLBtn, Qt::LeftButton);
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, cellCenter(list, 1, 1));
        QVERIFY(list->isEditingCell());
        QTest::keyClicks(QApplication::focusWidget(), "6");
        screen->standSelPop->setCurrentIndex(screen->standSelPop->findText("North League"));
        QCOMPARE(shownRows(list), (QStringList{"Owls 6 0 0 1.000 0.0", "Hawks 0 0 0 .000 3.0"}));
        QTest::mouseClick(screen->editWLBtn, Qt::LeftButton);
        QCOMPARE(storedRecords(), (QStringList{"Hawks 0-0-0", "Owls 6-0-0"}));
    }

    // Return on a row that is followed by the home team skips it.
    void returnSkipsHomeTeam()
    {
        ReportsFixture f;
        const qint64 owls = f.addTeam("Owls");
        const qint64 home = f.addTeam("Hawks");
        const qint64 elks = f.addTeam("Elks");
        f.addRecord(owls, 3, 0, 0);
        f.addRecord(home, 2, 0, 0);
        f.addRecord(elks, 1, 0, 0);
        f.prefs->prHomeTeam = QString::number(home);
        auto screen = openStandings();
        QVERIFY(screen);
        qlmListBox *list = screen->myLB;
        QTest::mouseClick(screen->editWLBtn, Qt::LeftButton);
        list->setFocus();
        list->setSelectedRow(0);
        QTest::keyClick(list, Qt::Key_Return); // opens Owls' W
        QVERIFY(list->isEditingCell());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Plus);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QCOMPARE(list->currentIndex().row(), 2);
        // Closing saves what was typed.
        QVERIFY(screen->close());
        screen.release();
        QCOMPARE(storedRecords(), (QStringList{"Elks 1-0-0", "Hawks 2-0-0", "Owls 4-0-0"}));
    }
};

QTEST_MAIN(TestStandingsScrn)
#include "tst_standingsscrn.moc"
