// How long the program takes to start, and how much memory it takes, against
// the leanest fair baseline: a bare Qt window showing the same controls as
// the start screen (its buttons, labels, season popup and menus, listed from
// the program's own window). Both are started as processes of their own,
// interleaved round by round, on a season of 3,000 players; the time from
// starting the process to its window being shown and painted, the peak
// resident memory of each, their medians and the ratios are printed.
//
//   bench_start                    the comparison
//   bench_start program <folder>   the program's start, as main.cpp runs it
//   bench_start bare <list>        the bare window
//
// Run on the offscreen platform (QT_QPA_PLATFORM=offscreen). The executable
// lies beside the program's resource folder, so the program finds its help
// and forms as it does when installed.

#include "Screens.h"
#include "app/App.h"
#include "app/globals.h"
#include "app/myDB.h"
#include "app/ui/TallylineApplication.h"
#include "app/ui/splashScrn.h"
#include "app/ui/startScrn1.h"
#include "fakes/FakePlatform.h"
#include "people/MailSettings.h"
#include "platform/qt/QtServices.h"
#include "seasondata/ui/backUpDlog.h"
#include "support/ui/expReporterScrn.h"

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>
#include <SQLiteCpp/Transaction.h>

#include <QApplication>
#include <QComboBox>
#include <QElapsedTimer>
#include <QFile>
#include <QGridLayout>
#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTextStream>

#include <algorithm>
#include <cstdio>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>

extern char **environ;

namespace {

constexpr int kPlayers = 3000;
constexpr int kRounds = 15;

// Waits until `window` is on screen and painted, then leaves.
int showAndLeave(QWidget *window)
{
    if (!QTest::qWaitForWindowExposed(window))
        return 2;
    QCoreApplication::processEvents();
    return 0;
}

// One line per control of the window: "button", "label" or "combo" and its
// text (a popup's items joined by tabs), "menu" and "action" for the menus.
QStringList controlsOf(QMainWindow *window)
{
    QStringList lines;
    for (QPushButton *b : window->findChildren<QPushButton *>())
        lines << QStringLiteral("button\t") + b->text();
    for (QLabel *l : window->findChildren<QLabel *>())
        lines << QStringLiteral("label\t") + l->text();
    for (QComboBox *c : window->findChildren<QComboBox *>()) {
        QStringList items;
        for (int i = 0; i < c->count(); ++i)
            items << c->itemText(i);
        lines << QStringLiteral("combo\t") + items.join(u'\t');
    }
    for (QAction *menu : window->menuBar()->actions()) {
        lines << QStringLiteral("menu\t") + menu->text();
        if (menu->menu()) {
            for (QAction *item : menu->menu()->actions())
                lines << QStringLiteral("action\t") + item->text();
        }
    }
    return lines;
}

// The program's start as main.cpp runs it; the coach's click on the splash
// brings the start screen at once. With a list file, the start screen's
// controls are written there.
int runProgram(int argc, char *argv[], const QString &root, const QString &listFile)
{
    TallylineApplication application(argc, argv);
    platform::qt::QtServices desktop;
    platform::ScopedServices installed(desktop.services());
    registerScreens();
    TallylineApplication::setUnhandledHandler(&expReporterScrn::showFor);
    App app(root);
    if (app.Event_Open() != App::OpenResult::Ok)
        return 1;
    backUpDlog::connectTimer(app.BUTimer);
    people::MailSettings::moveOldPassword(*app.prefs());
    auto *splash = new splashScrn;
    splash->show();
    splash->close();
    startScrn1 *start = startScrn1::instance();
    const int result = showAndLeave(start);
    if (!listFile.isEmpty()) {
        QFile out(listFile);
        if (!out.open(QIODevice::WriteOnly))
            return 3;
        out.write(controlsOf(start).join(u'\n').toUtf8());
    }
    return result;
}

int runBare(int argc, char *argv[], const QString &listFile)
{
    QApplication application(argc, argv);
    QFile in(listFile);
    if (!in.open(QIODevice::ReadOnly))
        return 3;
    QMainWindow window;
    auto *central = new QWidget(&window);
    auto *grid = new QGridLayout(central);
    QMenu *menu = nullptr;
    int n = 0;
    for (const QString &line : QString::fromUtf8(in.readAll()).split(u'\n')) {
        const QString kind = line.section(u'\t', 0, 0);
        const QString text = line.section(u'\t', 1);
        QWidget *control = nullptr;
        if (kind == u"button") {
            control = new QPushButton(text, central);
        } else if (kind == u"label") {
            control = new QLabel(text, central);
        } else if (kind == u"combo") {
            auto *combo = new QComboBox(central);
            combo->addItems(text.split(u'\t'));
            control = combo;
        } else if (kind == u"menu") {
            menu = window.menuBar()->addMenu(text);
        } else if (kind == u"action" && menu) {
            menu->addAction(text);
        }
        if (control) {
            grid->addWidget(control, n / 2, n % 2);
            ++n;
        }
    }
    window.setCentralWidget(central);
    window.show();
    return showAndLeave(&window);
}

struct Run
{
    double ms = 0;
    double peakMiB = 0;
    int status = -1;
};

Run spawnSelf(const char *self, const QList<QByteArray> &args)
{
    std::vector<char *> argv{const_cast<char *>(self)};
    for (const QByteArray &a : args)
        argv.push_back(const_cast<char *>(a.constData()));
    argv.push_back(nullptr);
    Run run;
    QElapsedTimer timer;
    timer.start();
    pid_t pid = 0;
    if (posix_spawn(&pid, self, nullptr, nullptr, argv.data(), environ) != 0)
        return run;
    int status = 0;
    rusage usage{};
    wait4(pid, &status, 0, &usage);
    run.ms = timer.nsecsElapsed() / 1e6;
    run.peakMiB = usage.ru_maxrss / 1024.0; // kilobytes on Linux
    run.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    return run;
}

double median(QList<double> v)
{
    std::sort(v.begin(), v.end());
    return v.at(v.size() / 2);
}

// A season of 3,000 players in 120 teams, made through the program's own
// start so that its settings point at it.
bool makeSeason(int argc, char *argv[], const QString &root)
{
    QApplication application(argc, argv);
    fakes::FakePlatform fake;
    App app(root);
    if (app.Event_Open() != App::OpenResult::Ok || !gData->isConnected())
        return false;
    SQLite::Database &db = *gData->tlynData;
    SQLite::Transaction t(db);
    SQLite::Statement team(db, "INSERT INTO Teams (teamID, TeamName, League, Division) VALUES (?, ?, 'North', 'A')");
    SQLite::Statement player(db, "INSERT INTO Players (TeamNum, First, Last, UniNum, Pos1) VALUES (?, ?, ?, ?, 'SS')");
    for (int p = 0; p < kPlayers; ++p) {
        const int teamID = p / 25 + 1;
        if (p % 25 == 0) {
            team.reset();
            team.bind(1, teamID);
            team.bind(2, "Team " + std::to_string(teamID));
            team.exec();
        }
        player.reset();
        player.bind(1, teamID);
        player.bind(2, "First" + std::to_string(p));
        player.bind(3, "Last" + std::to_string(p));
        player.bind(4, std::to_string(p % 99));
        player.exec();
    }
    t.commit();
    gPrefs->prHomeTeam = QStringLiteral("1");
    gPrefs->prefsDirty = true;
    app.Event_Close();
    return true;
}

} // namespace

int main(int argc, char *argv[])
{
    if (argc >= 3 && qstrcmp(argv[1], "program") == 0)
        return runProgram(argc, argv, QString::fromLocal8Bit(argv[2]),
                          argc >= 4 ? QString::fromLocal8Bit(argv[3]) : QString());
    if (argc >= 3 && qstrcmp(argv[1], "bare") == 0)
        return runBare(argc, argv, QString::fromLocal8Bit(argv[2]));

    QTemporaryDir home;
    const QString root = home.filePath(QStringLiteral("data"));
    const QString list = home.filePath(QStringLiteral("controls.txt"));
    if (!makeSeason(argc, argv, root)) {
        std::fprintf(stderr, "could not make the season\n");
        return 1;
    }
    const QByteArray rootArg = root.toLocal8Bit(), listArg = list.toLocal8Bit();
    // The first start lists the start screen's controls for the bare window
    // and warms the disk cache for both.
    if (spawnSelf(argv[0], {"program", rootArg, listArg}).status != 0 ||
        spawnSelf(argv[0], {"bare", listArg}).status != 0) {
        std::fprintf(stderr, "a start failed\n");
        return 1;
    }
    QList<double> programMs, bareMs, programMiB, bareMiB;
    for (int round = 0; round < kRounds; ++round) {
        const Run p = spawnSelf(argv[0], {"program", rootArg});
        const Run b = spawnSelf(argv[0], {"bare", listArg});
        if (p.status != 0 || b.status != 0) {
            std::fprintf(stderr, "a start failed (%d, %d)\n", p.status, b.status);
            return 1;
        }
        programMs << p.ms;
        bareMs << b.ms;
        programMiB << p.peakMiB;
        bareMiB << b.peakMiB;
    }
    const double pm = median(programMs), bm = median(bareMs), pr = median(programMiB), br = median(bareMiB);
    std::printf("start, %d-player season, median of %d interleaved starts each\n", kPlayers, kRounds);
    std::printf("  bare window, same controls: %6.1f ms, peak %6.1f MiB\n", bm, br);
    std::printf("  the program:                %6.1f ms, peak %6.1f MiB\n", pm, pr);
    std::printf("  ratio: time %.2fx (goal 2x), peak memory %.2fx (goal 1.5x)\n", pm / bm, pr / br);
    return 0;
}
