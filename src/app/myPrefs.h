#pragma once

#include <QByteArray>
#include <QString>

#include <cstdint>

// The program's settings, kept in the binary file "tLineBB.pref" in the data
// folder <application data>/QLM/TLYN2. Screens read and write the public
// fields directly and set prefsDirty when a change must survive a restart.
//
// File layout: the fields follow each other with no padding, in the order of
// encode(). Every multi-byte number is big-endian. A "Pascal string" is one
// length byte and that many UTF-8 bytes; "counted text" is an IEEE 754 double
// holding a byte count, then that many UTF-8 bytes. Four fields hold their
// text as base64 broken into lines of 76 characters by "\n".
class myPrefs
{
public:
    // Finds or creates the data folder under `appDataRoot` (by default the
    // user's application-data folder, on Linux the XDG data home), then reads
    // the preference file or writes a first-run one. When the folder can't be
    // had, storageFound() is false and nothing is read.
    explicit myPrefs(const QString &appDataRoot = defaultAppDataRoot());

    static QString defaultAppDataRoot();
    // <root>/QLM/TLYN2: the data folder for an application-data root.
    static QString dataFolderFor(const QString &appDataRoot);

    bool checkDataFolders();
    void readPrefs();
    void writePrefs();
    // A choice the coach made (the home team, the season, the backup
    // folder): marked for the write at quit and written now, so a crash
    // doesn't lose it.
    void keepChoice();
    bool isDBCleanDue() const;
    void reinitDBClean();
    QString getUserBUFolder();

    bool storageFound() const { return m_storageFound; }
    QString prefsFilePath() const;

    // The bytes of the preference file for the current fields.
    QByteArray encode() const;
    // Reads fields from `bytes` in file order until the bytes run out or a
    // field is damaged; the fields read so far are kept. True when every
    // field was read whole.
    bool decode(const QByteArray &bytes);

    // Whether a season's name can be part of a file name: not empty, no
    // control character, no path separator, at most kMaxSeasonNameBytes
    // bytes in UTF-8.
    static bool isUsableSeasonName(const QString &season);
    static constexpr int kMaxSeasonNameBytes = 200;

    // The first-run values of every field.
    void initPrefs();

    int prVersNum = 0;
    QString prHomeTeam;
    QString prSeason;
    bool prLogoOnStart = false;
    bool prLogoOnReport = false;
    QString prInnings;
    QString prDataBackupLoc;
    bool prefsDirty = false;
    QString strdDataLoc; // the data folder's absolute path; not stored
    QString prLineUp;
    QString prPositions;
    QString prGameTypes;
    QString prAbbrevPos;
    bool prEmailAuth = false;
    std::uint16_t prEmailPort = 0;
    QString prEmailPW;
    QString prEmailServer;
    QString prEmailUser;
    QString prUDB;
    QString prUDF;
    QString prUDP;
    int prBackupFreq = 0;
    double prLastDBClean = 0; // seconds since 1970-01-01 UTC

    // The longest text a Pascal-string field holds.
    static constexpr int kPascalMax = 255;

private:
    QString m_appDataRoot;
    bool m_storageFound = false;
};

// Seconds since 1970-01-01 UTC of the platform clock: the unit of prLastDBClean.
double secondsNow();
