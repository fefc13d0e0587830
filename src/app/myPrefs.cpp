#include "app/myPrefs.h"

#include "app/AppInfo.h"
#include "app/globals.h"
#include "platform/Services.h"

#include <QDataStream>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStandardPaths>

#include <cmath>

namespace {

const QString kPrefsFileName = QStringLiteral("tLineBB.pref");
constexpr double kDBCleanInterval = 1209600; // 14 days in seconds

QString tabbed(std::initializer_list<const char *> pieces)
{
    QStringList out;
    for (const char *p : pieces)
        out.append(QString::fromLatin1(p));
    return out.join(u'\t');
}

// Base64 broken into lines of 76 characters.
QByteArray toWrappedBase64(const QByteArray &raw)
{
    const QByteArray flat = raw.toBase64();
    QByteArray out;
    for (qsizetype i = 0; i < flat.size(); i += 76) {
        if (i > 0)
            out.append('\n');
        out.append(flat.mid(i, 76));
    }
    return out;
}

// The longest prefix of `utf8` that is at most `limit` bytes and doesn't end
// inside a character.
QByteArray cutUtf8(const QByteArray &utf8, qsizetype limit)
{
    if (utf8.size() <= limit)
        return utf8;
    qsizetype n = limit;
    // Step back over continuation bytes (10xxxxxx) to a character's start.
    while (n > 0 && (static_cast<unsigned char>(utf8[n]) & 0xC0) == 0x80)
        --n;
    return utf8.left(n);
}

// A Pascal string can't hold more than 255 bytes; longer text is cut at the
// last whole character that fits, so the length byte always tells the truth.
QByteArray pascalBytes(const QString &text)
{
    return cutUtf8(text.toUtf8(), myPrefs::kPascalMax);
}

// The same for a field kept as base64: the longest start of the text whose
// encoded form fits in 255 bytes.
QByteArray pascalBase64Bytes(const QString &text)
{
    QByteArray raw = text.toUtf8();
    QByteArray encoded = toWrappedBase64(raw);
    while (encoded.size() > myPrefs::kPascalMax) {
        raw = cutUtf8(raw, raw.size() - 1);
        encoded = toWrappedBase64(raw);
    }
    return encoded;
}

void writePascal(QDataStream &out, const QByteArray &bytes)
{
    out << static_cast<quint8>(bytes.size());
    out.writeRawData(bytes.constData(), int(bytes.size()));
}

void writeCounted(QDataStream &out, const QByteArray &bytes)
{
    out << static_cast<double>(bytes.size());
    out.writeRawData(bytes.constData(), int(bytes.size()));
}

// Reads the fields one by one; every read reports whether the field came whole.
class FieldReader
{
public:
    explicit FieldReader(const QByteArray &bytes) : m_in(bytes)
    {
        m_in.setByteOrder(QDataStream::BigEndian);
        m_in.setFloatingPointPrecision(QDataStream::DoublePrecision);
    }

    template<typename T>
    bool number(T &value)
    {
        T v{};
        m_in >> v;
        if (m_in.status() != QDataStream::Ok)
            return false;
        value = v;
        return true;
    }

    bool flag(bool &value)
    {
        quint8 b = 0;
        if (!number(b))
            return false;
        value = b != 0;
        return true;
    }

    bool raw(qsizetype size, QByteArray &bytes)
    {
        QByteArray buf(size, Qt::Uninitialized);
        if (size > 0 && m_in.readRawData(buf.data(), int(size)) != size)
            return false;
        bytes = buf;
        return true;
    }

    bool pascal(QByteArray &bytes)
    {
        quint8 len = 0;
        return number(len) && raw(len, bytes);
    }

    bool counted(QByteArray &bytes)
    {
        double count = 0;
        if (!number(count))
            return false;
        const qint64 left = m_in.device()->bytesAvailable();
        if (!std::isfinite(count) || count < 0 || count != std::floor(count) || count > double(left))
            return false;
        return raw(qsizetype(count), bytes);
    }

private:
    QDataStream m_in;
};

} // namespace

double secondsNow()
{
    return double(platform::clock().now().toSecsSinceEpoch());
}

myPrefs::myPrefs(const QString &appDataRoot) : m_appDataRoot(appDataRoot)
{
    m_storageFound = checkDataFolders();
    if (m_storageFound)
        readPrefs();
}

QString myPrefs::defaultAppDataRoot()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
}

QString myPrefs::dataFolderFor(const QString &appDataRoot)
{
    return QDir(appDataRoot).filePath(QStringLiteral("QLM/TLYN2"));
}

bool myPrefs::checkDataFolders()
{
    if (m_appDataRoot.isEmpty())
        return false;
    QDir root(m_appDataRoot);
    // The application-data folder itself may be missing on a fresh account
    // (no program has written to ~/.local/share yet); make it as any desktop
    // program would.
    if (!root.exists() && !QDir().mkpath(root.absolutePath()))
        return false;
    if (!root.exists(QStringLiteral("QLM")) && !root.mkdir(QStringLiteral("QLM")))
        return false;
    QDir qlm(root.filePath(QStringLiteral("QLM")));
    if (!qlm.exists(QStringLiteral("TLYN2")) && !qlm.mkdir(QStringLiteral("TLYN2")))
        return false;
    const QFileInfo data(qlm.filePath(QStringLiteral("TLYN2")));
    if (!data.isDir())
        return false;
    strdDataLoc = data.absoluteFilePath();
    return true;
}

QString myPrefs::prefsFilePath() const
{
    return QDir(strdDataLoc).filePath(kPrefsFileName);
}

void myPrefs::initPrefs()
{
    prVersNum = appinfo::versionNumber(appinfo::curVers);
    prHomeTeam.clear();
    prSeason = QString::number(platform::clock().now().date().year());
    prLogoOnStart = true;
    prLogoOnReport = true;
    prInnings = QStringLiteral("9 Innings");
    prDataBackupLoc.clear();
    prefsDirty = false;
    prLineUp = QStringLiteral("9 Players");
    prPositions = QStringLiteral(
        "RH Pitcher,LH Pitcher,Catcher,First Base,Second Base,Third Base,Shortstop,Outfield,Left Field,"
        "Center Field,Right Field,Designated Hitter,Short Field,Left-Center Field,Right-Center Field,"
        "Pitch Hitter,Pitch Runner");
    prGameTypes = QStringLiteral("Division,Non-Div/League,Non-Div/Non-Lg,PreSeason,Sectional,Regional,State Tournament,"
                                 "Weather/Rain Out,Forfeit");
    prAbbrevPos = QStringLiteral("RHP,LHP,C,B1,B2,B3,SS,OF,LF,CF,RF,DH,SF,LCF,RCF,PH,PR");
    prEmailAuth = false;
    prEmailPort = 25;
    prEmailPW.clear();
    prEmailServer.clear();
    prEmailUser.clear();
    prUDB = tabbed({"CS", "Caught Stealing", "RSP", "Up with Runner in Scoring Position", "HSP",
                    "Hit w/Runner in Sc. Pos.", "TOH", "Two Out Hit", "???", "Undefined"});
    prUDF = tabbed({"CGL", "Catches Going Left", "CGR", "Catches Going Right", "???", "Undefined"});
    prUDP = tabbed({"CWO", "Cool Weather Outings", "DAp", "Daytime Appearances", "NAp", "Nighttime Appearances"});
    prBackupFreq = 0;
    prLastDBClean = secondsNow();
}

QByteArray myPrefs::encode() const
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out.setByteOrder(QDataStream::BigEndian);
    out.setFloatingPointPrecision(QDataStream::DoublePrecision);

    out << static_cast<qint32>(appinfo::versionNumber(appinfo::curVers));
    writePascal(out, pascalBytes(prHomeTeam));
    writePascal(out, pascalBytes(prSeason));
    out << static_cast<quint8>(prLogoOnStart) << static_cast<quint8>(prLogoOnReport);
    writePascal(out, pascalBytes(prInnings));
    writePascal(out, pascalBytes(prLineUp));
    writeCounted(out, toWrappedBase64(prDataBackupLoc.toUtf8()));
    writeCounted(out, prAbbrevPos.toUtf8());
    writeCounted(out, prPositions.toUtf8());
    writeCounted(out, prGameTypes.toUtf8());
    writePascal(out, pascalBase64Bytes(prEmailServer));
    writePascal(out, pascalBase64Bytes(prEmailUser));
    writePascal(out, pascalBase64Bytes(prEmailPW));
    out << static_cast<quint16>(prEmailPort);
    out << static_cast<quint8>(prEmailAuth);
    writePascal(out, pascalBytes(prUDB));
    writePascal(out, pascalBytes(prUDF));
    writePascal(out, pascalBytes(prUDP));
    out << static_cast<quint8>(prBackupFreq & 0xFF);
    out << prLastDBClean;
    return bytes;
}

bool myPrefs::decode(const QByteArray &bytes)
{
    FieldReader in(bytes);
    QByteArray b;
    const auto text = [&](QString &field) {
        field = QString::fromUtf8(b);
        return true;
    };
    const auto base64 = [&](QString &field) {
        field = QString::fromUtf8(QByteArray::fromBase64(b));
        return true;
    };
    qint32 version = 0; // read and dropped: every version has this one layout
    quint8 freq = 0;
    return in.number(version) && in.pascal(b) && text(prHomeTeam) && in.pascal(b) && text(prSeason) &&
           in.flag(prLogoOnStart) && in.flag(prLogoOnReport) && in.pascal(b) && text(prInnings) && in.pascal(b) &&
           text(prLineUp) && in.counted(b) && base64(prDataBackupLoc) && in.counted(b) && text(prAbbrevPos) &&
           in.counted(b) && text(prPositions) && in.counted(b) && text(prGameTypes) && in.pascal(b) &&
           base64(prEmailServer) && in.pascal(b) && base64(prEmailUser) && in.pascal(b) && base64(prEmailPW) &&
           in.number(prEmailPort) && in.flag(prEmailAuth) && in.pascal(b) && text(prUDB) && in.pascal(b) &&
           text(prUDF) && in.pascal(b) && text(prUDP) && in.number(freq) && ((prBackupFreq = freq), true) &&
           in.number(prLastDBClean);
}

void myPrefs::readPrefs()
{
    QFile file(prefsFilePath());
    if (!file.exists()) {
        initPrefs();
        writePrefs();
        return;
    }
    bool whole = false;
    if (file.open(QIODevice::ReadOnly)) {
        // A damaged file keeps what could be read; the fields behind the
        // damage keep their first-run values so the program still has a
        // season, innings and line-up to work with.
        const QByteArray bytes = file.readAll();
        initPrefs();
        whole = decode(bytes);
    }
    // When the file can't be opened nothing is read and the fields stay
    // empty, zero and false. Either way the season must name a file: the
    // connection would otherwise open another file than the one checked.
    if (!isUsableSeasonName(prSeason)) {
        prSeason = QString::number(platform::clock().now().date().year());
        prefsDirty = true;
        whole = false;
    }
    if (!whole)
        platform::messages().msgBox(QStringLiteral("There was a file error reading the Prefs File"));
}

bool myPrefs::isUsableSeasonName(const QString &season)
{
    // The season's file name, with the longest name made beside it (a kept
    // copy's date and time), must stay inside the 255 bytes a file system
    // allows for one name.
    if (season.isEmpty() || season.toUtf8().size() > kMaxSeasonNameBytes)
        return false;
    for (const QChar c : season) {
        if (c.category() == QChar::Other_Control || c == u'/' || c == u'\\')
            return false;
    }
    return true;
}

void myPrefs::writePrefs()
{
    // Written through a temporary file and renamed over the old one, so a
    // crash mid-write leaves the previous preferences whole.
    QSaveFile file(prefsFilePath());
    if (!file.open(QIODevice::WriteOnly)) {
        platform::messages().msgBox(QStringLiteral("Error in attempting to write the preferences file"));
        return;
    }
    const QByteArray bytes = encode();
    if (file.write(bytes) != bytes.size() || !file.commit())
        platform::messages().msgBox(QStringLiteral("There was a file error while writing the Prefs File."));
}

void myPrefs::keepChoice()
{
    prefsDirty = true;
    writePrefs();
}

bool myPrefs::isDBCleanDue() const
{
    return secondsNow() > prLastDBClean + kDBCleanInterval;
}

void myPrefs::reinitDBClean()
{
    prLastDBClean = secondsNow();
}

QString myPrefs::getUserBUFolder()
{
    platform::FileRequest request;
    request.actionCaption = QStringLiteral("Select");
    request.title = QStringLiteral("TLYN2 Backup Location");
    request.prompt = QStringLiteral("Select a folder for the Tallyline BB backup data files");
    request.initialDir = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    const QString chosen = platform::files().selectFolder(request);
    if (chosen.isEmpty())
        return {};
    prDataBackupLoc = createGSI(chosen);
    keepChoice();
    QDir folder(chosen);
    if (!folder.exists(QStringLiteral("TLYN2_backup")))
        folder.mkdir(QStringLiteral("TLYN2_backup"));
    return prDataBackupLoc;
}
