// The Playing Time screen on the sample season: its team and date filters
// choose the games counted, and it exports and prints as every list does.

#include "ReportsFixture.h"
#include "SampleSeason.h"
#include "app/ui/MainMenuBar.h"
#include "fakes/TestKit.h"
#include "fakes/TestSupport.h"
#include "reports/ui/playingTimeScrn.h"
#include "reports/ui/qlmListBox.h"

#include <QComboBox>
#include <QDateEdit>
#include <QFile>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QStringList column(const qlmListBox *list, int col)
{
    QStringList out;
    for (int r = 0; r < list->rowCount(); ++r)
        out.append(list->cell(r, col));
    return out;
}

QSet<QString> teams(const qlmListBox *list)
{
    const QStringList names = column(list, 1);
    return {names.cbegin(), names.cend()};
}

} // namespace

class TestPlayingTimeScrn : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { testkit::closeAllWindows(); }

    void filtersChooseTheGames()
    {
        ReportsFixture season;
        QCOMPARE(sample::buildSeason(*season.db, *season.prefs).size(), 3);
        auto *screen = new playingTimeScrn;
        QVERIFY(testkit::showActive(screen));
        // The home team over the whole season, from its first game day.
        auto *teamPop = testkit::child<QComboBox>(screen, "teamPop");
        auto *fromFld = testkit::child<QDateEdit>(screen, "fromFld");
        QCOMPARE(teamPop->currentText(), u"Celtics"_s);
        QCOMPARE(fromFld->date(), QDate(2026, 4, 7));
        auto *list = testkit::child<qlmListBox>(screen, "timeBox");
        QCOMPARE(teams(list), QSet<QString>{u"Celtics"_s});
        QCOMPARE(column(list, 2), (QStringList{"3", "3", "3", "3", "3", "3", "3", "3", "2", "1"}));

        fromFld->setDate(QDate(2026, 4, 8));
        QCOMPARE(column(list, 2), (QStringList{"2", "2", "2", "2", "2", "2", "2", "2", "1", "1"}));
        testkit::child<QDateEdit>(screen, "toFld")->setDate(QDate(2026, 4, 13));
        QCOMPARE(column(list, 3).first(), u"6"_s); // one game, fielded six innings

        teamPop->setCurrentIndex(teamPop->findText(u"All Teams"_s));
        QCOMPARE(teams(list), (QSet<QString>{u"Celtics"_s, u"Patriots"_s}));

        const QString path = season.home.filePath(u"playing.txt"_s);
        season.platform.files.answers.enqueue(path);
        screen->menus()->item(u"FileExport"_s)->trigger();
        QFile written(path);
        QVERIFY(written.open(QIODevice::ReadOnly));
        QVERIFY(QString::fromUtf8(written.readAll()).contains(u"Player\tTeam\tG\tField\tP\tC\t1B"_s));
        screen->menus()->item(u"FilePrint"_s)->trigger();
        QCOMPARE(season.platform.printing.printed.size(), 1);
        QVERIFY(fakes::pdfText(season.platform.printing.printed.first()).contains(u"Playing Time, All Teams"_s));
    }
};

QTEST_MAIN(TestPlayingTimeScrn)
#include "tst_playingtimescrn.moc"
