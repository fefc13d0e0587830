#include "cli/SeasonAccess.h"

#include "app/FileTypes.h"
#include "app/globals.h"
#include "app/myDictionaries.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace cli {

SeasonAccess::SeasonAccess(const QCommandLineParser &parser, QTextStream &err) : m_err(err)
{
    m_folder = parser.isSet(QStringLiteral("data-dir")) ? parser.value(QStringLiteral("data-dir"))
                                                        : myPrefs::dataFolderFor(myPrefs::defaultAppDataRoot());
    m_folder = QDir(m_folder).absolutePath();

    // An empty root: the object neither looks for nor writes any folder; the
    // fields come from the file alone, or keep their first-run values.
    m_prefs = std::make_unique<myPrefs>(QString());
    m_prefs->initPrefs();
    QFile file(QDir(m_folder).filePath(QStringLiteral("tLineBB.pref")));
    if (file.open(QIODevice::ReadOnly))
        m_prefs->decode(file.readAll());
    m_prefs->strdDataLoc = m_folder;
    m_prefs->prefsDirty = false;

    if (parser.isSet(QStringLiteral("season")))
        m_season = parser.value(QStringLiteral("season"));
    else if (!m_prefs->prSeason.isEmpty())
        m_season = m_prefs->prSeason;
    else if (const QStringList all = seasons(); all.size() == 1)
        m_season = all.first();
    m_prefs->prSeason = m_season;

    gCreateGlobalLists();
    gPrefs = m_prefs.get();
    myDictionaries::initHitting();
    myDictionaries::initFielding();
    myDictionaries::initPitching();
}

SeasonAccess::~SeasonAccess()
{
    if (gData == m_db.get())
        gData = nullptr;
    if (gPrefs == m_prefs.get())
        gPrefs = nullptr;
}

QString SeasonAccess::seasonFile(const QString &folder, const QString &season)
{
    return QDir(folder).filePath(myDB::getCurDBFileName(season));
}

QStringList SeasonAccess::seasons() const
{
    QStringList names;
    const QFileInfoList entries = QDir(m_folder).entryInfoList(QDir::Files, QDir::Name);
    for (const QFileInfo &entry : entries) {
        QString name = entry.fileName();
        if (!FileTypes::isSeasonFile(name) || !name.startsWith(QStringLiteral("tlData_")))
            continue;
        name.remove(0, 7);
        name.chop(name.size() - name.lastIndexOf(u'.'));
        names.append(name);
    }
    return names;
}

myDB *SeasonAccess::open(bool checked)
{
    if (m_db)
        return m_db.get();
    if (!QFileInfo(m_folder).isDir()) {
        m_err << "No data folder at " << QDir::toNativeSeparators(m_folder) << Qt::endl;
        return nullptr;
    }
    if (m_season.isEmpty()) {
        m_err << "Choose a season with --season NAME (tallyline-cli seasons lists them)." << Qt::endl;
        return nullptr;
    }
    if (!myPrefs::isUsableSeasonName(m_season) || !QFileInfo::exists(seasonFile(m_folder, m_season))) {
        m_err << "There is no season \"" << m_season << "\" in " << QDir::toNativeSeparators(m_folder) << Qt::endl;
        return nullptr;
    }
    m_db = std::make_unique<myDB>(m_folder, m_season, checked);
    if (!m_db->isConnected()) {
        m_db.reset();
        return nullptr; // the season's own message has gone to standard error
    }
    gData = m_db.get();
    return m_db.get();
}

bool SeasonAccess::lockForWriting()
{
    m_lock = std::make_unique<QLockFile>(QDir(m_folder).filePath(QStringLiteral(".tallyline.lock")));
    m_lock->setStaleLockTime(0);
    if (m_lock->tryLock(200))
        return true;
    if (m_lock->error() == QLockFile::LockFailedError)
        m_err << "Tallyline Baseball has the data folder " << QDir::toNativeSeparators(m_folder)
              << " open; quit it first, then try again." << Qt::endl;
    else
        m_err << "Can't write in the data folder " << QDir::toNativeSeparators(m_folder) << Qt::endl;
    m_lock.reset();
    return false;
}

} // namespace cli
