// Takes the pictures of the help pages from the program's own windows, on
// a sample season, and writes them as PNG files no wider than 700 dots.
//   tl_people_demo <data root>                               the sample teams and people (once)
//   tl_make_help_pictures <data root> <help folder> [<docs folder>]
// The help folder is usually resources/tlyn_Help; with a docs folder the
// help window is written there too, at full size. The help window shows
// the pages the build copied, so run it again after a build when pictures
// were new. Needs no display: QT_QPA_PLATFORM=offscreen does.

#include "DemoTool.h"
#include "SampleSeason.h"
#include "app/App.h"
#include "app/globals.h"
#include "app/ui/ScreenDirectory.h"
#include "app/ui/startScrn1.h"
#include "gameday/ScoreGrid.h"
#include "gameday/ui/BBScoringLB.h"
#include "gameday/ui/battingPOP.h"
#include "help/ui/HelpAbbrevScrn.h"
#include "help/ui/formsScrn.h"
#include "help/ui/helpScrn2.h"
#include "people/ui/personnelScrn.h"
#include "people/ui/teamScrn.h"
#include "reports/ui/qlmListBox.h"
#include "schedule/ScheduleStore.h"
#include "schedule/ui/newEventScrn.h"
#include "schedule/ui/scheduleScrn.h"
#include "support/HelpRequests.h"

#include <QDir>
#include <QEventLoop>
#include <QListWidget>
#include <QPainter>
#include <QTimer>

#include <cstdio>

namespace {

constexpr int kMaxWidth = 700;

void settle(int ms = 250)
{
    QEventLoop loop;
    QTimer::singleShot(ms, &loop, &QEventLoop::quit);
    loop.exec();
}

QImage shrunk(const QImage &image)
{
    return image.width() > kMaxWidth ? image.scaledToWidth(kMaxWidth, Qt::SmoothTransformation) : image;
}

bool save(const QImage &image, const QString &path)
{
    const bool ok = shrunk(image).save(path, "PNG");
    std::printf("%s %s\n", ok ? "wrote" : "FAILED", qPrintable(path));
    return ok;
}

// Shows the window, lets it lay out and paint, and takes its picture. The
// window is then dropped without the questions of a real close.
QImage take(QWidget *window)
{
    window->show();
    settle();
    const QImage image = window->grab().toImage();
    delete window;
    return image;
}

// The grid of a game a few innings in, and the at-bat window that a click
// on a cell opens.
void scorecard(const QString &folder)
{
    auto *grid = new BBScoringLB;
    gameday::ScoreGrid &g = grid->grid();
    g.deleteAllRows();
    g.initCellBkg(g.columnCount() - 1);
    for (int r = 0; r < 9; ++r) {
        g.addRow();
        g.setInactiveCells(r, false);
    }
    const QStringList cells[] = {
        {"B1/G", "KS/R", "HR/G", "GO/R", "FO/R"},
        {"IBB/Y", "GO/R", ".", ".", ".", "BB/G", "HBP/R", "KL/R", "B2/G"},
        {".", ".", "B3/Y", "KS/R", "FO/R", "B1", "ROE"},
    };
    for (int col = 0; col < 3; ++col) {
        for (int r = 0; r < cells[col].size(); ++r) {
            const QStringList parts = cells[col].at(r).split(u'/');
            if (parts.at(0) == u".")
                continue;
            g.setCellText(r, col, parts.at(0));
            if (parts.size() > 1)
                g.setCellBkg(r, col, parts.at(1));
        }
    }
    grid->resize(qMin(grid->sizeHint().width(), 640), grid->sizeHint().height());
    grid->show();
    settle();
    save(grid->grab().toImage(), QDir(folder).filePath(QStringLiteral("scorecard.png")));

    battingPOP pop;
    QObject::connect(&pop, &battingPOP::opened, &pop, [&pop, folder] {
        QTimer::singleShot(250, &pop, [&pop, folder] {
            save(pop.grab().toImage(), QDir(folder).filePath(QStringLiteral("popover.png")));
            pop.close();
        });
    });
    pop.getClickedTxt(100, 100, true);
    delete grid;
}

// The windows the program itself registers, so that the buttons that open
// them stand enabled in the pictures as they do in the program.
void registerScreens()
{
    screens::registerScreen(ScreenId::teamScrn, [] { return new teamScrn; });
    screens::registerScreen(ScreenId::personnelScrn, [] { return new personnelScrn; });
    screens::registerScreen(ScreenId::scheduleScrn, [] { return new scheduleScrn; });
    screens::registerScreen(ScreenId::helpScrn2, [](const QVariant &topic) { return new helpScrn2(topic.toInt()); });
    screens::registerScreen(ScreenId::HelpAbbrevScrn, [] { return HelpAbbrevScrn::instance(); });
    screens::registerScreen(ScreenId::formsScrn, [] { return new formsScrn; });
    QObject::connect(&support::HelpRequests::instance(), &support::HelpRequests::requested, [](int) {});
}

} // namespace

int main(int argc, char *argv[])
{
    DemoTool tool(argc, argv, 2, "tl_make_help_pictures <data root> <help folder> [<docs folder>]");
    if (tool.failure())
        return tool.failure();
    const QStringList &args = tool.args();
    if (gPrefs->prHomeTeam.isEmpty()) {
        std::fprintf(stderr, "no home team: seed the season with tl_people_demo first\n");
        return 1;
    }
    sample::seedSchedule();
    registerScreens();
    const QDir out(args.at(2));

    save(take(new startScrn1), out.filePath(QStringLiteral("start-screen.png")));
    {
        auto *screen = new teamScrn;
        screen->findChild<qlmListBox *>(QStringLiteral("teamList"))->setSelectedRow(0);
        save(take(screen), out.filePath(QStringLiteral("team-screen.png")));
    }
    {
        auto *screen = new personnelScrn;
        screen->findChild<qlmListBox *>(QStringLiteral("playersList"))->setSelectedRow(1);
        save(take(screen), out.filePath(QStringLiteral("personnel.png")));
    }
    {
        auto *screen = new scheduleScrn;
        screen->findChild<qlmListBox *>(QStringLiteral("ScheduleListbox"))->setSelectedRow(2);
        save(take(screen), out.filePath(QStringLiteral("schedule.png")));
    }
    {
        auto *editor = new newEventScrn;
        const QList<ScheduleEntry> events = ScheduleStore(*gData).list(ScheduleStore::kShowAll);
        if (events.size() > 2)
            editor->loadEvent(events.at(2).eventID);
        save(take(editor), out.filePath(QStringLiteral("event-editor.png")));
    }
    scorecard(out.path());
    {
        auto *screen = new formsScrn;
        screen->resize(820, 560);
        save(take(screen), out.filePath(QStringLiteral("forms.png")));
    }
    {
        HelpAbbrevScrn *window = HelpAbbrevScrn::instance();
        window->findChild<qlmListBox *>(QStringLiteral("termsLB"))->setSelectedRow(4);
        window->resize(360, 460);
        save(take(window), out.filePath(QStringLiteral("abbreviations.png")));
    }
    {
        auto *window = new helpScrn2(0);
        window->findChild<QListWidget *>(QStringLiteral("indexLB"))->setCurrentRow(7);
        window->resize(900, 640);
        window->show();
        settle(500);
        const QImage shot = window->grab().toImage();
        delete window;
        save(shot, out.filePath(QStringLiteral("help-window.png")));
        if (args.size() > 3)
            shot.save(QDir(args.at(3)).filePath(QStringLiteral("help-window.png")), "PNG");
    }
    tool.season().Event_Close();
    return 0;
}
