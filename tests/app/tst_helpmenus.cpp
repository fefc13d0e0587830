// Every screen's Help menu opens the help on that screen's own page.
// A screen added to the directory must have a row here, or the test says so.

#include "Screens.h"
#include "app/myDB.h"
#include "app/ui/MainMenuBar.h"
#include "app/ui/ScreenBase.h"
#include "app/ui/ScreenDirectory.h"
#include "fakes/TestKit.h"
#include "reports/ui/reportScrn.h"

#include <QAction>
#include <QMap>
#include <QPointer>
#include <QTest>

using namespace Qt::StringLiterals;

class TestHelpMenus : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Whatever a function left open, also when it failed half-way, goes
    // before the next one starts.
    void cleanup() { testkit::closeAllWindows(); }

    void initTestCase()
    {
        registerScreens();
        // The help window records the topic it was opened on.
        screens::registerScreen(ScreenId::helpScrn2, [this](const QVariant &argument) {
            m_opened = argument;
            return new QWidget;
        });
    }

    void helpMenuOpensTheScreensPage_data()
    {
        // The topic each screen's Help opens; -1 for a window without a Help menu.
        const QMap<QString, int> topics{
            {u"teamScrn"_s, 2},
            {u"personnelScrn"_s, 3},
            {u"scheduleScrn"_s, 6},
            {u"gameDayScrn"_s, 7},
            {u"practicePlanScrn"_s, 8},
            {u"InventoryScrn"_s, 10},
            {u"eventsCalendarScrn"_s, 6},
            {u"contactInfoScrn"_s, 4},
            {u"emailInfoScrn"_s, -1},
            {u"reportIntroScrn"_s, 9},
            {u"reportScrn"_s, 9},
            {u"standingsScrn"_s, 5},
            {u"formsScrn"_s, 11},
            {u"prefScrn"_s, 13},
            {u"TransferDataScrn"_s, -1},
            {u"backUpDlog"_s, -1},
            {u"restoreDlog"_s, -1},
            {u"updateDlog"_s, -1},
            {u"helpScrn2"_s, -1},
            {u"HelpAbbrevScrn"_s, -1},
            {u"startScrn1"_s, -1},
            {u"boxScoreScrn"_s, 9},
            {u"pitcherAvailabilityScrn"_s, 17},
            {u"playingTimeScrn"_s, 9},
        };
        QTest::addColumn<int>("id");
        QTest::addColumn<int>("topic");
        for (int i = 0; !screenName(ScreenId(i)).isEmpty(); ++i) {
            const QString name = screenName(ScreenId(i));
            QVERIFY2(topics.contains(name), qPrintable(name + u" has no row"_s));
            // The report is opened by the report chooser, not the directory.
            const bool opens = screens::has(ScreenId(i)) || ScreenId(i) == ScreenId::reportScrn;
            if (opens && topics.value(name) >= 0)
                QTest::newRow(qPrintable(name)) << i << topics.value(name);
        }
    }
    void helpMenuOpensTheScreensPage()
    {
        QFETCH(int, id);
        QFETCH(int, topic);
        testkit::Season season;
        season.addTeam(u"Bears"_s, {}, {}, true);
        m_opened = u"not opened"_s;
        QVariant argument;
        if (ScreenId(id) == ScreenId::gameDayScrn || ScreenId(id) == ScreenId::practicePlanScrn) {
            const bool game = ScreenId(id) == ScreenId::gameDayScrn;
            const qint64 hawks = gData->insert(u"Teams"_s, {{u"TeamName"_s, u"Hawks"_s}});
            argument = QString::number(gData->insert(u"Schedule"_s, {{u"SchedDate"_s, u"2026-04-15"_s},
                                                                     {u"Event"_s, game ? u"Game"_s : u"Practice"_s},
                                                                     {u"Opponent"_s, u"Hawks"_s},
                                                                     {u"OppID"_s, QString::number(hawks)},
                                                                     {u"isHome"_s, game ? 1 : 0}}));
        }
        QPointer<QWidget> window = ScreenId(id) == ScreenId::reportScrn ? new reportScrn(0, {u"Name"_s, u"AB"_s})
                                                                        : screens::create(ScreenId(id), argument);
        auto *screen = qobject_cast<ScreenBase *>(window.data());
        QVERIFY(screen);
        QAction *help = screen->menus()->item(u"Help"_s);
        QVERIFY(help && help->isEnabled());
        help->trigger();
        QCOMPARE(m_opened, QVariant(topic));
        delete window;
    }

private:
    QVariant m_opened;
};

QTEST_MAIN(TestHelpMenus)
#include "tst_helpmenus.moc"
