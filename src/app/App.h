#pragma once

#include "app/myDB.h"
#include "app/myPrefs.h"
#include "app/myTimerClass.h"

#include <QImage>
#include <QLockFile>
#include <QObject>

#include <memory>
#include <optional>

// The application object: builds the settings, the open season, the stat
// dictionaries and the backup timer in the start-up order, and owns them
// until exit. Everything here runs without a window, so tests make an App on
// a temporary application-data folder.
class App : public QObject
{
    Q_OBJECT

public:
    explicit App(const QString &appDataRoot = myPrefs::defaultAppDataRoot(), QObject *parent = nullptr);
    ~App() override;

    static App *instance();

    enum class OpenResult {
        Ok,
        NoStorage,      // the data folder can't be found or made: the program stops
        AlreadyRunning, // another copy holds the data folder: the program stops
    };

    // The start-up order: global lists, preferences, season, dictionaries,
    // backup timer, form pictures. Shows its own messages for the two ways
    // it can fail and touches nothing after them.
    OpenResult Event_Open();
    // Writes the preferences when something changed them.
    void Event_Close();
    bool Event_CancelClose() const { return false; }
    QString getLongVers() const;

    const QString curVers;
    myTimerClass *BUTimer = nullptr;

    myPrefs *prefs() const { return m_prefs.get(); }
    myDB *data() const { return m_data.get(); }

    // Replaces the open season with the one of gPrefs->prSeason.
    void reopenSeason();

    // The season popup: the seasons found in the data folder and which of
    // them is current (-1 for none).
    struct SeasonList
    {
        QStringList seasons;
        int current = -1;
    };
    SeasonList seasonList() const;

    // The season file that could not be opened (damaged, read only, ...),
    // or empty text while a season is open.
    QString unopenedSeasonFile() const;

    enum class SeasonChoice { Ignored, Switched, Missing };
    // What choosing `text` in the season popup does: "Select Season" is
    // ignored, an existing file becomes the open season and is kept in the
    // preferences at quit, and a file that has vanished is reported and
    // changes nothing.
    SeasonChoice selectSeason(const QString &text);

    // What the start screen shows for the home team: nothing when no home
    // team is set; an empty label when its row is gone; the logo only when
    // logos on the start screen are on.
    struct HomeTeamDisplay
    {
        QString label;
        std::optional<QImage> logo;
    };
    std::optional<HomeTeamDisplay> homeTeamDisplay() const;

private:
    bool acquireInstanceLock();

    QString m_appDataRoot;
    std::unique_ptr<QLockFile> m_lock;
    std::unique_ptr<myPrefs> m_prefs;
    std::unique_ptr<myDB> m_data;
};
