#include "app/globals.h"

#include "platform/Services.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QFontMetricsF>
#include <QImageReader>
#include <QRegularExpression>

myPrefs *gPrefs = nullptr;
myDB *gData = nullptr;

QStringList gStateList;
QStringList gCountryList;
QString gActivities;
std::array<QString, 10> gDrills;
QStringList gFormNames;
QStringList gFormFiles;
QString gPrinterSettings;
bool gIsAutoFillMode = false;
const QColor TLThemeColorLight = QColor::fromRgb(0xCDE3C5);

void gCreateGlobalLists()
{
    gStateList = QStringLiteral("AL,AK,AZ,AR,CA,CO,CT,DE,FL,GA,HI,ID,IL,IN,IA,KS,KY,LA,ME,MD,MA,MI,MN,MS,MO,MT,"
                                "NE,NV,NH,NJ,NM,NY,NC,ND,OH,OK,OR,PA,RI,SC,SD,TN,TX,UT,VT,VA,WA,WV,WI,WY")
                     .split(u',');
    gCountryList = QStringLiteral(
                       "United States,Afghanistan,Albania,Argentina,Australia,Austria,Belgium,Bolivia,Brazil,"
                       "Bulgaria,Canada,Chile,China,Colombia,Denmark,Ecuador,Egypt,Finland,France,Germany,Greece,"
                       "Hungary,Iceland,India,Indonesia,Iran,Iraq,Ireland,Israel,Italy,Japan,Kenya,Lebanon,Libya,"
                       "Malaysia,Mexico,Netherlands,New Zealand,Nicaragua,Nigeria,Norway,Pakistan,Panama,Paraguay,"
                       "Peru,Philippines,Poland,Portugal,Romania,Russia,Saudi Arabia,Singapore,Spain,Sweden,"
                       "Switzerland,Turkey,Uganda,United Kingdom,Uruguay,Venezuela")
                       .split(u',');
    gActivities = QStringLiteral(
        "WARM UP;FIELDING;THROWING;HITTING;GAME SITUATIONS;PITCHING;BASERUNNING;CATCHERS;BUNTING;COACHING");
    gDrills = {
        QStringLiteral(
            "Arm Stretch;Leg Stretch;Laps;Base Laps;Sprints;Exercise;Running Drill;Run and Steal;Relay Races"),
        QStringLiteral("Fly Balls;Ground Balls;Fungo;Run Down;Communication;Long Toss;Short Toss;Infield Drill;"
                       "Outfield Drill;Charging Drill;High Rise;Short Hop;Throw and Run;Fielding Bunts;Fence Drill;"
                       "Field Jurisdiction"),
        QStringLiteral("5-Star Throwing;8-Ball Drill;Relay Race;One-Knee Throwing;Machine Gun;Tag and Throw;Wall Drill;"
                       "Hit and Cover;Hop-Step-Throw"),
        QStringLiteral("Tee Hits;Soft Toss;Hard Throw;Cage;Bat Speed;Hitting Motion;Bunting Technique;Reaction Drill;"
                       "Blocking"),
        QStringLiteral("Backing Up;Cut Off;Double Cut;Bunt Defense;Run Downs"),
        QStringLiteral("Balance;Arm Care;Stretch;Windup;Pick Off;Warm Up Pitches;Cool Down Pitches;Fastballs;"
                       "Curveballs;Sliders;Change Ups;Signs;Charting;Pitch Sequence;Balance Point Drill;Snap Wrist;"
                       "No Rush;Goalpost Drill"),
        QStringLiteral("Sliding;Leading;Stealing;Base Coaches;Base Running Signs;Situational;Tagging Up;Run Downs"),
        QStringLiteral("Stance;Catching Signs;Stealing;Pop Ups;Bunts;Blocking;Blockouts;Situational"),
        QStringLiteral("Grip;Stance;Locations;Dragging"),
        QStringLiteral("Game Signs;Base Coaches;Strategy"),
    };
}

QString createGSI(const QString &folder)
{
    return QFileInfo(folder).absoluteFilePath();
}

QString parseGSI(const QString &text)
{
    if (text.isEmpty())
        return {};
    return QDir::cleanPath(text);
}

std::uint8_t gShowMsgDlog(const QString &message, const QString &explanation, const QString &actionCaption,
                          const QString &altCaption)
{
    return platform::messages().showMsgDlog(message, explanation, actionCaption, altCaption);
}

void gMsgBox(const QString &text)
{
    platform::messages().msgBox(text);
}

void gNotice(const QString &message, const QString &explanation)
{
    platform::messages().notice(message, explanation);
}

void gBeep()
{
    platform::beeper().beep();
}

void gGetPrinterSetup(std::optional<platform::PrinterSetup> &setup, bool forceDialog)
{
    if (!gPrinterSettings.isEmpty() && !forceDialog) {
        if (auto remembered = platform::PrinterSetup::fromString(gPrinterSettings)) {
            setup = remembered;
            return;
        }
    }
    const platform::PrinterSetup start = setup.value_or(
        platform::PrinterSetup::fromString(gPrinterSettings).value_or(platform::PrinterSetup()));
    setup = platform::printing().pageSetupDialog(start);
    if (setup)
        gPrinterSettings = setup->toString();
}

QList<int> gCreateVertPrinterPts(const platform::PrinterSetup &setup, int step)
{
    QList<int> points;
    int position = 0;
    do {
        points.append(position);
        position += step;
    } while (step > 0 && position + step <= setup.height());
    return points;
}

bool gIsEmailValid(const QString &text)
{
    static const QRegularExpression re(
        QStringLiteral(R"(^\w+((-\w+)|(\.\w+))*\@[A-Za-z0-9]+((\.|-)[A-Za-z0-9]+)*\.[A-Za-z0-9]+$)"));
    if (!re.isValid())
        return false;
    return re.match(text).hasMatch();
}

QString TruncateStr(const QFontMetricsF &metrics, const QString &text, qreal maxWidth)
{
    if (metrics.horizontalAdvance(text) <= maxWidth)
        return text;
    const QString ellipsis = QStringLiteral("...");
    qsizetype low = 1;
    qsizetype high = text.size();
    while (high - low >= 1) {
        const qsizetype mid = (low + high) / 2;
        if (metrics.horizontalAdvance(text.left(mid) + ellipsis) <= maxWidth)
            low = mid + 1;
        else
            high = mid;
    }
    return text.left(low - 1) + ellipsis;
}

std::array<QString, 3> gParseTimeStr(const QString &text)
{
    QString t = text;
    if (t.isEmpty() || t == u"---")
        t = QStringLiteral("0:00 PM");
    const qsizetype colon = t.indexOf(u':');
    const QString hour = colon < 0 ? t : t.left(colon);
    const QString rest = colon < 0 ? QString() : t.mid(colon + 1);
    return {hour, rest.left(2), rest.right(2)};
}

bool gIsEnterKey(const QString &key)
{
    return key == QString(QChar(13)) || key == QString(QChar(3));
}

QString LTrim(const QString &text, const QString &set)
{
    qsizetype start = 0;
    while (start < text.size() && set.contains(text.at(start), Qt::CaseInsensitive))
        ++start;
    return text.mid(start);
}

QString RTrim(const QString &text, const QString &set)
{
    qsizetype end = text.size();
    while (end > 0 && set.contains(text.at(end - 1), Qt::CaseInsensitive))
        --end;
    return text.left(end);
}

int limitValueRange(int value, int minimum, int maximum)
{
    if (value < minimum)
        return minimum;
    if (value > maximum)
        return maximum;
    return value;
}

QString gResourceFolder()
{
    const QDir exeDir(QCoreApplication::applicationDirPath());
    const QString beside = QDir::cleanPath(exeDir.filePath(QStringLiteral("../Resources")));
    if (QFileInfo(beside).isDir())
        return beside;
    // An installed program keeps its resources in share/tallyline.
    const QString shared = QDir::cleanPath(exeDir.filePath(QStringLiteral("../share/tallyline")));
    if (QFileInfo(shared).isDir())
        return shared;
    return {};
}

void loadFormPics()
{
    gFormNames.clear();
    gFormFiles.clear();
    const QString resources = gResourceFolder();
    if (resources.isEmpty())
        return;
    const QDir extras(QDir(resources).filePath(QStringLiteral("tlyn_Extras")));
    if (!extras.exists())
        return;
    const QFileInfoList entries = extras.entryInfoList(QDir::Files, QDir::Name);
    for (const QFileInfo &entry : entries) {
        // Three full pages decoded are some 20 MB and most of a start's
        // time, for a window few sessions open: a file counts as a form when
        // its header names a picture format.
        QImageReader reader(entry.absoluteFilePath());
        if (!reader.canRead())
            continue;
        gFormFiles.append(entry.absoluteFilePath());
        gFormNames.append(entry.fileName());
    }
}
