// The standings window: percentage, games back, order and the league and
// division views worked out by hand (the cases under tests/data/standings), and the coach's own entries with
// their keys, the home team's refusal and saving.

#include "ReportsFixture.h"
#include "app/ui/MainMenuBar.h"
#include "fakes/Golden.h"
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

QStringList shownRows(const QWidget *screen)
{
    return shownRows(testkit::child<qlmListBox>(screen, "myLB"));
}

QPoint cellCenter(qlmListBox *list, int row, int column)
{
    return list->visualRect(list->model()->index(row, column)).center();
}

// The standings open and active, with the list and the edit button at hand.
struct Opened
{
    std::unique_ptr<standingsScrn> screen;
    qlmListBox *list = nullptr;
    QPushButton *editWLBtn = nullptr;
};

Opened openStandings()
{
    Opened opened{std::make_unique<standingsScrn>()};
    opened.screen->show();
    opened.screen->activateWindow();
    if (!QTest::qWaitForWindowActive(opened.screen.get()))
        return {};
    opened.list = testkit::child<qlmListBox>(opened.screen.get(), "myLB");
    opened.editWLBtn = testkit::child<QPushButton>(opened.screen.get(), "editWLBtn");
    return opened;
}

} // namespace

class TestStandingsScrn : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Whatever a function left open, also when it failed half-way, goes
    // before the next one starts.
    void cleanup() { testkit::closeAllWindows(); }

    // The cases of tests/data/standings: the teams ("team: Name,League,
    // Division,W-L-T", the record left out for a team with none) and the
    // home team; below the line, the warning when shown, then every view
    // the popup offers with its rows.
    void views_data() { testkit::addGoldenCases({"standings"}); }
    void views()
    {
        TL_FETCH_CASE(c);
        ReportsFixture f;
        for (const QString &team : c.values(QStringLiteral("team"))) {
            const QStringList parts = team.split(u',');
            QCOMPARE(parts.size(), 4);
            const qint64 id = f.addTeam(parts.at(0), parts.at(1), parts.at(2));
            const QStringList record = parts.at(3).split(u'-');
            if (record.size() == 3)
                f.addRecord(id, record.at(0).toInt(), record.at(1).toInt(), record.at(2).toInt());
            if (parts.at(0) == c.value(QStringLiteral("home")))
                f.prefs->prHomeTeam = QString::number(id);
        }
        auto screen = openStandings().screen;
        QVERIFY(screen);
        auto *views = testkit::child<QComboBox>(screen.get(), "standSelPop");
        auto *warning = testkit::child<QLabel>(screen.get(), "noGamesWarning");
        QStringList shown;
        if (warning->isVisible())
            shown.append(QStringLiteral("warning: ") + warning->text());
        for (int i = 0; i < views->count(); ++i) {
            views->setCurrentIndex(i);
            shown.append(u'[' + views->currentText() + u']');
            shown.append(shownRows(screen.get()));
        }
        TL_COMPARE_CASE(c, shown.join(u'\n').toUtf8() + '\n');
    }

    void unreadableSeasonShowsErrorRow()
    {
        ReportsFixture f;
        f.addTeam("Hawks");
        QVERIFY(f.db->exec(QStringLiteral("DROP TABLE GameResultsByTeam")));
        auto screen = openStandings().screen;
        QVERIFY(screen);
        QCOMPARE(shownRows(screen.get()), QStringList{"There was an error"});
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
        auto [screen, list, editWLBtn] = openStandings();
        QVERIFY(screen);
        QCOMPARE(shownRows(list), (QStringList{"Hawks 3 1 0 .750 0.0", "Owls .000 1.0", "Elks .000 1.0"}));

        // Without the edit button down a click selects nothing and edits nothing.
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, cellCenter(list, 1, 1));
        QCOMPARE(list->selectedRow(), -1);
        QVERIFY(!list->isEditingCell());

        QTest::mouseClick(editWLBtn, Qt::LeftButton);
        QVERIFY(editWLBtn->isChecked());
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
        QTest::mouseClick(editWLBtn, Qt::LeftButton);
        QVERIFY(!editWLBtn->isChecked());
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
        auto [screen, list, editWLBtn] = openStandings();
        QVERIFY(screen);
        QTest::mouseClick(editWLBtn, Qt::LeftButton);
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, cellCenter(list, 1, 1));
        QVERIFY(list->isEditingCell());
        QTest::keyClicks(QApplication::focusWidget(), "6");
        testkit::child<QComboBox>(screen.get(), "standSelPop")
            ->setCurrentIndex(testkit::child<QComboBox>(screen.get(), "standSelPop")->findText("North League"));
        QCOMPARE(shownRows(list), (QStringList{"Owls 6 0 0 1.000 0.0", "Hawks 0 0 0 .000 3.0"}));
        QTest::mouseClick(editWLBtn, Qt::LeftButton);
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
        auto [screen, list, editWLBtn] = openStandings();
        QVERIFY(screen);
        QTest::mouseClick(editWLBtn, Qt::LeftButton);
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
