#include "stats/PitchRules.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>

namespace stats {

int AgeGroup::restDays(int pitches) const
{
    if (pitches <= 0 || rest.isEmpty())
        return 0;
    for (const RestBand &band : rest) {
        if (band.upTo == 0 || pitches <= band.upTo)
            return band.days;
    }
    return rest.last().days;
}

int AgeGroup::bandStart(int pitches) const
{
    int start = 1;
    for (const RestBand &band : rest) {
        if (band.upTo == 0 || pitches <= band.upTo)
            return start;
        start = band.upTo + 1;
    }
    return start;
}

QString PitchCost::text() const
{
    const QString head = QString::number(pitch) + QStringLiteral(": ");
    if (overDailyMax)
        return head + (mayFinishBatter ? QStringLiteral("over the daily maximum, he may finish the batter")
                                       : QStringLiteral("over the daily maximum"));
    if (atDailyMax)
        return head + QStringLiteral("daily maximum reached") +
               (mayFinishBatter ? QStringLiteral(", he may finish the batter") : QString());
    if (restDays == 0)
        return head + QStringLiteral("no rest needed");
    return head + QString::number(restDays) +
           (restDays == 1 ? QStringLiteral(" day's rest") : QStringLiteral(" days' rest"));
}

int PitchRuleSet::ageOn(const QDate &birth, const QDate &gameDate) const
{
    if (!birth.isValid() || !gameDate.isValid())
        return -1;
    QDate on = gameDate;
    if (cutoffMonth > 0) {
        on = QDate(gameDate.year(), cutoffMonth, cutoffDay);
        if (!on.isValid()) // 29 February in a common year
            on = QDate(gameDate.year(), cutoffMonth, 28);
    }
    int age = on.year() - birth.year();
    if (on.month() < birth.month() || (on.month() == birth.month() && on.day() < birth.day()))
        --age;
    return age;
}

const AgeGroup &PitchRuleSet::group(int age) const
{
    if (age < 0 || age <= groups.first().maxAge)
        return groups.first();
    for (const AgeGroup &g : groups) {
        if (age <= g.maxAge)
            return g;
    }
    return groups.last();
}

PitchCost PitchRuleSet::cost(int age, int pitch) const
{
    const AgeGroup &g = group(age);
    PitchCost c;
    c.pitch = pitch;
    c.restDays = g.restDays(pitch);
    c.newRestBand = pitch > 1 && g.bandStart(pitch) == pitch && c.restDays > g.restDays(pitch - 1);
    c.atDailyMax = pitch == g.dailyMax;
    c.overDailyMax = pitch > g.dailyMax;
    c.mayFinishBatter = mayFinishBatter && pitch >= g.dailyMax;
    return c;
}

namespace {

// Finds where a key stands in the file, for the refusal's line number: the
// `occurrence`-th time the quoted key appears (counted from 0).
int lineOfKey(const QByteArray &text, const QString &key, int occurrence)
{
    const QByteArray quoted = '"' + key.toUtf8() + '"';
    qsizetype at = -1;
    for (int i = 0; i <= occurrence; ++i) {
        at = text.indexOf(quoted, at + 1);
        if (at < 0)
            return 1;
    }
    return int(text.left(at).count('\n')) + 1;
}

struct Refusal
{
    QString message;
    QString key;
    int occurrence = 0;
};

const QStringList kRootKeys = {QStringLiteral("name"),
                               QStringLiteral("ageOn"),
                               QStringLiteral("mayFinishBatter"),
                               QStringLiteral("noThreeConsecutiveDays"),
                               QStringLiteral("noCatchingFromPitches"),
                               QStringLiteral("noPitchingFromCaughtInnings"),
                               QStringLiteral("ageGroups")};
const QStringList kGroupKeys = {QStringLiteral("ages"), QStringLiteral("dailyMax"), QStringLiteral("rest")};
const QStringList kBandKeys = {QStringLiteral("upTo"), QStringLiteral("days")};

bool isCount(const QJsonValue &v)
{
    return v.isDouble() && v.toDouble() >= 0 && v.toDouble() == double(v.toInt());
}

void unknownKeys(const QJsonObject &o, const QStringList &known)
{
    for (auto it = o.begin(); it != o.end(); ++it) {
        if (!known.contains(it.key()))
            throw Refusal{QStringLiteral("\"%1\" is not a rule this program knows").arg(it.key()), it.key(), 0};
    }
}

bool flag(const QJsonObject &o, const QString &key)
{
    const QJsonValue v = o.value(key);
    if (v.isUndefined())
        return false;
    if (!v.isBool())
        throw Refusal{QStringLiteral("\"%1\" must be true or false").arg(key), key, 0};
    return v.toBool();
}

int count(const QJsonObject &o, const QString &key, int occurrence, bool required)
{
    const QJsonValue v = o.value(key);
    if (v.isUndefined() && !required)
        return 0;
    if (!isCount(v))
        throw Refusal{QStringLiteral("\"%1\" must be a whole number of 0 or more").arg(key), key, occurrence};
    return v.toInt();
}

PitchRuleSet readSet(const QJsonObject &root)
{
    unknownKeys(root, kRootKeys);
    PitchRuleSet set;
    set.name = root.value(QStringLiteral("name")).toString().trimmed();
    if (set.name.isEmpty())
        throw Refusal{QStringLiteral("the set needs a \"name\""), QStringLiteral("name"), 0};
    const QString ageOn = root.value(QStringLiteral("ageOn")).toString();
    if (ageOn != u"game date") {
        const QDate cutoff = QDate::fromString(QStringLiteral("2000-") + ageOn, QStringLiteral("yyyy-MM-dd"));
        if (!cutoff.isValid())
            throw Refusal{QStringLiteral("\"ageOn\" must be \"game date\" or a month and day as \"04-30\""),
                          QStringLiteral("ageOn"), 0};
        set.cutoffMonth = cutoff.month();
        set.cutoffDay = cutoff.day();
    }
    set.mayFinishBatter = flag(root, QStringLiteral("mayFinishBatter"));
    set.noThreeConsecutiveDays = flag(root, QStringLiteral("noThreeConsecutiveDays"));
    set.noCatchingFromPitches = count(root, QStringLiteral("noCatchingFromPitches"), 0, false);
    set.noPitchingFromCaughtInnings = count(root, QStringLiteral("noPitchingFromCaughtInnings"), 0, false);

    const QJsonArray groups = root.value(QStringLiteral("ageGroups")).toArray();
    if (groups.isEmpty())
        throw Refusal{QStringLiteral("the set needs at least one age group"), QStringLiteral("ageGroups"), 0};
    int bandsBefore = 0; // "upTo" keys of the groups before
    int daysBefore = 0;  // "days" keys of the groups before
    for (int i = 0; i < groups.size(); ++i) {
        const QJsonObject g = groups.at(i).toObject();
        unknownKeys(g, kGroupKeys);
        AgeGroup group;
        const QJsonArray ages = g.value(QStringLiteral("ages")).toArray();
        if (ages.size() != 2 || !isCount(ages.at(0)) || !isCount(ages.at(1)) || ages.at(0).toInt() > ages.at(1).toInt())
            throw Refusal{QStringLiteral("\"ages\" must be the youngest and the oldest age, as [13, 14]"),
                          QStringLiteral("ages"), i};
        group.minAge = ages.at(0).toInt();
        group.maxAge = ages.at(1).toInt();
        if (!set.groups.isEmpty() && group.minAge <= set.groups.last().maxAge)
            throw Refusal{QStringLiteral("the age groups must follow each other from the youngest, without overlap"),
                          QStringLiteral("ages"), i};
        group.dailyMax = count(g, QStringLiteral("dailyMax"), i, true);
        if (group.dailyMax == 0)
            throw Refusal{QStringLiteral("\"dailyMax\" must be 1 or more"), QStringLiteral("dailyMax"), i};
        const QJsonArray rest = g.value(QStringLiteral("rest")).toArray();
        if (rest.isEmpty())
            throw Refusal{QStringLiteral("each age group needs its \"rest\" bands"), QStringLiteral("rest"), i};
        for (int j = 0; j < rest.size(); ++j) {
            const QJsonObject b = rest.at(j).toObject();
            unknownKeys(b, kBandKeys);
            const bool last = j == rest.size() - 1;
            RestBand band;
            band.days = count(b, QStringLiteral("days"), daysBefore + j, true);
            if (last && b.contains(QStringLiteral("upTo")))
                throw Refusal{QStringLiteral("the last rest band has no \"upTo\": it takes every count above"),
                              QStringLiteral("upTo"), bandsBefore + j};
            if (!last) {
                band.upTo = count(b, QStringLiteral("upTo"), bandsBefore + j, true);
                const int previous = group.rest.isEmpty() ? 0 : group.rest.last().upTo;
                if (band.upTo <= previous)
                    throw Refusal{QStringLiteral("each \"upTo\" must be above the one before"), QStringLiteral("upTo"),
                                  bandsBefore + j};
            }
            if (!group.rest.isEmpty() && band.days < group.rest.last().days)
                throw Refusal{QStringLiteral("more pitches can't owe fewer \"days\""), QStringLiteral("days"),
                              daysBefore + j};
            group.rest.append(band);
        }
        bandsBefore += int(rest.size()) - 1; // "upTo" appears in all but the last band
        daysBefore += int(rest.size());
        set.groups.append(group);
    }
    return set;
}

} // namespace

namespace pitchrules {

PitchRulesRead parse(const QByteArray &json)
{
    PitchRulesRead read;
    QJsonParseError parseError;
    const QJsonDocument doc = QJsonDocument::fromJson(json, &parseError);
    if (parseError.error != QJsonParseError::NoError) {
        read.error = parseError.errorString();
        read.line = int(json.left(parseError.offset).count('\n')) + 1;
        return read;
    }
    if (!doc.isObject()) {
        read.error = QStringLiteral("the file must hold one { } object");
        read.line = 1;
        return read;
    }
    try {
        read.set = readSet(doc.object());
    } catch (const Refusal &refusal) {
        read.error = refusal.message;
        read.line = lineOfKey(json, refusal.key, refusal.occurrence);
    }
    return read;
}

QStringList shippedFiles()
{
    return {QStringLiteral("national-youth.json"), QStringLiteral("youth-league.json"),
            QStringLiteral("high-school.json")};
}

QByteArray shippedText(const QString &fileName)
{
    QFile file(QStringLiteral(":/pitchrules/") + fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

const PitchRuleSet &builtIn()
{
    static const PitchRuleSet set = parse(shippedText(shippedFiles().first())).set;
    return set;
}

QDate birthDate(const QString &dob)
{
    const QStringList parts = dob.trimmed().split(u'/');
    if (parts.size() != 3 || parts[2].trimmed().size() != 4)
        return {};
    return QDate(parts[2].trimmed().toInt(), parts[0].trimmed().toInt(), parts[1].trimmed().toInt());
}

namespace {
const QString kChoiceFile = QStringLiteral("Home Team Set.txt");
}

QString folder(const QString &dataFolder)
{
    return QDir(dataFolder).filePath(QStringLiteral("Pitch Rules"));
}

void copyShipped(const QString &dataFolder)
{
    const QDir dir(folder(dataFolder));
    if (!dir.exists() && !QDir().mkpath(dir.path()))
        return;
    for (const QString &name : shippedFiles()) {
        if (QFile::exists(dir.filePath(name)))
            continue;
        QSaveFile out(dir.filePath(name));
        if (out.open(QIODevice::WriteOnly)) {
            out.write(shippedText(name));
            out.commit();
        }
    }
}

QString chosenFile(const QString &dataFolder)
{
    QFile file(QDir(folder(dataFolder)).filePath(kChoiceFile));
    if (file.open(QIODevice::ReadOnly)) {
        const QString name = QString::fromUtf8(file.readAll()).trimmed();
        // Only a file name inside the folder is taken.
        if (!name.isEmpty() && !name.contains(u'/') && !name.contains(u'\\'))
            return name;
    }
    return shippedFiles().first();
}

bool setChosenFile(const QString &dataFolder, const QString &fileName)
{
    if (!QDir().mkpath(folder(dataFolder)))
        return false;
    QSaveFile out(QDir(folder(dataFolder)).filePath(kChoiceFile));
    if (!out.open(QIODevice::WriteOnly))
        return false;
    out.write(fileName.toUtf8() + '\n');
    return out.commit();
}

QList<std::pair<QString, QString>> available(const QString &dataFolder)
{
    QList<std::pair<QString, QString>> sets;
    const QDir dir(folder(dataFolder));
    for (const QString &name : dir.entryList({QStringLiteral("*.json")}, QDir::Files, QDir::Name)) {
        QFile file(dir.filePath(name));
        const PitchRulesRead read = parse(file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray());
        sets.append({name, read.ok() ? read.set.name : name});
    }
    return sets;
}

PitchRuleSet load(const QString &dataFolder, QString *refused)
{
    const QString name = chosenFile(dataFolder);
    QFile file(QDir(folder(dataFolder)).filePath(name));
    QByteArray text;
    if (file.open(QIODevice::ReadOnly))
        text = file.readAll();
    else if (shippedFiles().contains(name))
        text = shippedText(name); // not copied yet
    const PitchRulesRead read = parse(text);
    if (read.ok())
        return read.set;
    if (refused)
        *refused = QStringLiteral("%1, line %2: %3").arg(name).arg(read.line).arg(read.error);
    return builtIn();
}

} // namespace pitchrules
} // namespace stats
