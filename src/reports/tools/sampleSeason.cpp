// Makes the sample season: teams with crests, players with portraits, a
// schedule and three games scored and recorded, so that the reports and the
// standings have something to show at once.
//   tl_sample_season [data root]
// Without a data root the season goes where the program keeps its own
// (~/.local/share/QLM/TLYN2, season of the current year); a season that
// already has teams is left alone. The program then opens on it.

#include "SampleSeason.h"

#include "app/App.h"
#include "app/globals.h"
#include "app/myPrefs.h"
#include "platform/qt/QtServices.h"

#include <QGuiApplication>

#include <cstdio>

namespace {

// Messages of the program's own code go to the terminal; the questions are
// answered with their first button, as nobody sits at a dialog here.
class ConsoleMessages final : public platform::MessageService
{
public:
    std::uint8_t showMsgDlog(const QString &message, const QString &explanation, const QString &,
                             const QString &) override
    {
        std::fprintf(stderr, "%s %s\n", qUtf8Printable(message), qUtf8Printable(explanation));
        return platform::MsgAction;
    }
    void msgBox(const QString &text) override { std::fprintf(stderr, "%s\n", qUtf8Printable(text)); }
    void notice(const QString &message, const QString &explanation) override
    {
        std::fprintf(stderr, "%s %s\n", qUtf8Printable(message), qUtf8Printable(explanation));
    }
};

} // namespace

int main(int argc, char *argv[])
{
    // Crests and portraits are drawn into pictures: no window, no display needed.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    const QStringList args = QCoreApplication::arguments();
    platform::qt::QtServices desktop;
    ConsoleMessages messages;
    platform::Services services = desktop.services();
    services.messages = &messages;
    platform::ScopedServices installed(services);

    App app(args.size() > 1 ? args.at(1) : myPrefs::defaultAppDataRoot());
    if (app.Event_Open() != App::OpenResult::Ok)
        return 1;
    const QList<sample::PlayedGame> games = sample::buildSeason(*gData, *gPrefs);
    if (games.isEmpty()) {
        std::fprintf(stderr, "The season %s already has teams; nothing was added.\n", qUtf8Printable(gPrefs->prSeason));
        return 1;
    }
    for (const sample::PlayedGame &g : games)
        std::printf("%s %d, %s %d\n", qUtf8Printable(g.teamA), g.runsA, qUtf8Printable(g.teamB), g.runsB);
    std::printf("Season %s is ready in %s\n", qUtf8Printable(gPrefs->prSeason), qUtf8Printable(gPrefs->strdDataLoc));
    app.Event_Close();
    return 0;
}
