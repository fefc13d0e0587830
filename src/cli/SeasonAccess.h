#pragma once

#include "app/myDB.h"
#include "app/myPrefs.h"

#include <QCommandLineParser>
#include <QLockFile>
#include <QString>
#include <QStringList>
#include <QTextStream>

#include <memory>

namespace cli {

// The data folder and season a command works on. The preference file is
// read when it is there, never written; the season file is opened only
// when it exists, so a misspelt season never makes an empty one.
class SeasonAccess
{
public:
    // Reads --data-dir and --season. Complaints go to `err`.
    SeasonAccess(const QCommandLineParser &parser, QTextStream &err);
    ~SeasonAccess();

    const QString &folder() const { return m_folder; }
    const QString &season() const { return m_season; }
    myPrefs &prefs() { return *m_prefs; }

    // The season names of the folder's season files, in name order.
    QStringList seasons() const;
    static QString seasonFile(const QString &folder, const QString &season);

    // Opens the season; null (and a line on `err`) when there is none to open.
    // `checked` false, for a report that only reads, leaves out the check of
    // every page at open (see myDB).
    myDB *open(bool checked = true);

    // For a command that writes: takes the data folder's lock as the program
    // does. False, with the reason on `err`, while the program holds it.
    bool lockForWriting();

private:
    QTextStream &m_err;
    QString m_folder;
    QString m_season;
    std::unique_ptr<myPrefs> m_prefs;
    std::unique_ptr<myDB> m_db;
    std::unique_ptr<QLockFile> m_lock;
};

} // namespace cli
