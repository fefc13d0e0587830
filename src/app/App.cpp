#include "app/App.h"

#include "app/AppInfo.h"
#include "app/FileTypes.h"
#include "app/globals.h"
#include "app/myDictionaries.h"

#include <QDir>
#include <QFileInfo>

namespace {
App *g_app = nullptr;
const QString kSelectSeason = QStringLiteral("Select Season");
} // namespace

App::App(const QString &appDataRoot, QObject *parent)
    : QObject(parent), curVers(appinfo::curVers), m_appDataRoot(appDataRoot)
{
    g_app = this;
}

App::~App()
{
    if (gData == m_data.get())
        gData = nullptr;
    if (gPrefs == m_prefs.get())
        gPrefs = nullptr;
    if (g_app == this)
        g_app = nullptr;
}

App *App::instance()
{
    return g_app;
}

QString App::getLongVers() const
{
    return appinfo::getLongVers();
}

bool App::acquireInstanceLock()
{
    const QString folder = myPrefs::dataFolderFor(m_appDataRoot);
    if (!QDir().mkpath(folder))
        return true; // no folder: the preferences report it in their own words
    m_lock = std::make_unique<QLockFile>(QDir(folder).filePath(QStringLiteral(".tallyline.lock")));
    // A lock is only ever stale when its process is gone (QLockFile checks
    // that by itself); a long session must never lose its lock to age.
    m_lock->setStaleLockTime(0);
    return m_lock->tryLock(200);
}

App::OpenResult App::Event_Open()
{
    gCreateGlobalLists();

    if (!acquireInstanceLock()) {
        // Only a lock that another copy holds means that one is running.
        if (m_lock->error() == QLockFile::LockFailedError) {
            gMsgBox(QStringLiteral("Tallyline Baseball is already running. Switch to the open window to go on."));
        } else {
            gMsgBox(QStringLiteral("Tallyline Baseball can't write in its data folder \"") +
                    QDir::toNativeSeparators(myPrefs::dataFolderFor(m_appDataRoot)) +
                    QStringLiteral("\" (is it on a read-only disk?), so it can't start."));
        }
        return OpenResult::AlreadyRunning;
    }

    m_prefs = std::make_unique<myPrefs>(m_appDataRoot);
    if (!m_prefs->storageFound()) {
        gMsgBox(
            QStringLiteral("Could not find/create the standard storage location. Please contact Quillmere Software."));
        return OpenResult::NoStorage;
    }
    gPrefs = m_prefs.get();

    reopenSeason();

    myDictionaries::initHitting();
    myDictionaries::initFielding();
    myDictionaries::initPitching();

    BUTimer = new myTimerClass(this);
    BUTimer->setMode(myTimerClass::ModeOff);
    BUTimer->setPeriod(60000);
    BUTimer->mCount = 0;

    loadFormPics();
    return OpenResult::Ok;
}

void App::Event_Close()
{
    if (m_prefs && m_prefs->prefsDirty)
        m_prefs->writePrefs();
}

void App::reopenSeason()
{
    // The old connection closes before the new one opens.
    gData = nullptr;
    m_data.reset();
    m_data = std::make_unique<myDB>(*m_prefs);
    gData = m_data.get();
}

App::SeasonList App::seasonList() const
{
    SeasonList list;
    if (!m_prefs || m_prefs->strdDataLoc.isEmpty() || !QFileInfo(m_prefs->strdDataLoc).isDir())
        return list;
    const QDir folder(m_prefs->strdDataLoc);
    const QFileInfoList entries = folder.entryInfoList(QDir::Files, QDir::Name);
    for (const QFileInfo &entry : entries) {
        if (!FileTypes::isSeasonFile(entry.fileName()))
            continue;
        QString name = entry.fileName();
        if (name.startsWith(QStringLiteral("tlData_")))
            name.remove(0, 7);
        if (name.endsWith(QStringLiteral(".sqlite")))
            name.chop(7);
        if (name == m_prefs->prSeason)
            list.current = int(list.seasons.size());
        list.seasons.append(name);
    }
    return list;
}

QString App::unopenedSeasonFile() const
{
    if (!m_data || m_data->isConnected())
        return {};
    return m_data->filePath();
}

App::SeasonChoice App::selectSeason(const QString &text)
{
    if (text == kSelectSeason || !m_prefs)
        return SeasonChoice::Ignored;
    const QString file = QDir(m_prefs->strdDataLoc).filePath(myDB::getCurDBFileName(text));
    if (!QFileInfo::exists(file)) {
        gShowMsgDlog(QStringLiteral("Data for season ") + text + QStringLiteral(" is no longer available"),
                     QStringLiteral("Please re-select the previous season"), QStringLiteral("OK"));
        return SeasonChoice::Missing;
    }
    // The coach's choice is the season of the next start too.
    m_prefs->prSeason = text;
    m_prefs->keepChoice();
    reopenSeason();
    return SeasonChoice::Switched;
}

std::optional<App::HomeTeamDisplay> App::homeTeamDisplay() const
{
    if (!m_prefs || m_prefs->prHomeTeam.isEmpty() || !m_data)
        return std::nullopt;
    HomeTeamDisplay display;
    const QList<Record> rows = m_data->select(
        QStringLiteral("SELECT TeamName, SchoolName, TeamLogo FROM Teams WHERE teamID = ?"), {m_prefs->prHomeTeam});
    if (rows.isEmpty())
        return display;
    const Record &team = rows.first();
    if (m_prefs->prLogoOnStart)
        display.logo = QImage::fromData(team.blob(QStringLiteral("TeamLogo")));
    display.label = team.text(QStringLiteral("SchoolName")) + u' ' + team.text(QStringLiteral("TeamName"));
    return display;
}
