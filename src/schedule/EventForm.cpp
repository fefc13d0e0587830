#include "schedule/EventForm.h"

#include "app/globals.h"
#include "schedule/EventDates.h"

#include <array>

const QString EventForm::kNoOpponent = QStringLiteral("N/A");
const QString EventForm::kNoTime = QStringLiteral("---");

const QStringList &EventForm::eventTypes()
{
    static const QStringList types = {QStringLiteral("Practice"), QStringLiteral("Scrimmage"), QStringLiteral("Game"),
                                      QStringLiteral("Meeting"), QStringLiteral("Other")};
    return types;
}

QStringList EventForm::hours()
{
    QStringList list;
    for (int h = 1; h <= 12; ++h)
        list.append(QString::number(h));
    return list;
}

QStringList EventForm::minutes()
{
    QStringList list;
    for (int m = 0; m < 60; m += 5)
        list.append(QStringLiteral("%1").arg(m, 2, 10, QLatin1Char('0')));
    return list;
}

QStringList EventForm::meridiems()
{
    return {QStringLiteral("AM"), QStringLiteral("PM")};
}

bool EventForm::setEventProperties(eventClass &result)
{
    eventType = normalEventType(eventType);
    location = titleCase(location);
    busAMPM = normalMeridiem(busAMPM);
    gameAMPM = normalMeridiem(gameAMPM);

    if (dateText.trimmed().isEmpty()) {
        gShowMsgDlog(QStringLiteral("Please set a date for this event"),
                     QStringLiteral("Click the small calendar icon."), QStringLiteral("OK"));
        return false;
    }
    if (!mDate.isValid()) {
        // An event opened for editing and left as it was: its date is the
        // one the field shows.
        const QDate shown = EventDates::readShown(dateText);
        if (!shown.isValid()) {
            gMsgBox(QStringLiteral("Please reselect the date"));
            return false;
        }
        mDate = shown;
    }

    eventClass event;
    event.mDate = mDate;
    event.eventType = eventType;
    event.opponent = opponentText;
    if (!event.opponent.isEmpty() && opponentIndex < 0) {
        for (int i = 0; i < opponents.size(); ++i) {
            if (opponents.at(i).name == event.opponent) {
                opponentIndex = i;
                break;
            }
        }
    }
    event.oppID = opponentIndex >= 0 && opponentIndex < opponents.size() ? opponents.at(opponentIndex).tag
                                                                         : QStringLiteral("-1");
    event.location = location;

    if (event.eventType == u"Game" && event.opponent.isEmpty()) {
        gMsgBox(QStringLiteral("Please select an opponent for this game."));
        return false;
    }

    event.busTime = formatTime(busHour, busMinute, busAMPM);
    event.startTime = formatTime(gameHour, gameMinute, gameAMPM);

    if (event.eventType != u"Game") {
        event.isHome = 0;
    } else if (homeState == Qt::PartiallyChecked) {
        gMsgBox(QStringLiteral("Please indicate a Home or Away game by clicking the Check Box"));
        return false;
    } else {
        event.isHome = homeState == Qt::Checked ? 1 : 2;
    }
    result = event;
    return true;
}

void EventForm::loadEvent(const eventClass &event, const QString &storedDate)
{
    mDate = QDate();
    dateText = event.mDate.isValid() ? EventDates::longDate(event.mDate) : storedDate;
    const auto bus = splitTime(event.busTime);
    busHour = bus ? (*bus)[0] : QString();
    busMinute = bus ? (*bus)[1] : QString();
    busAMPM = bus ? (*bus)[2] : QString();
    const auto start = splitTime(event.startTime);
    gameHour = start ? (*start)[0] : QString();
    gameMinute = start ? (*start)[1] : QString();
    gameAMPM = start ? (*start)[2] : QString();
    eventType = event.eventType;
    location = event.location;
    selectOpponent(event.oppID, event.opponent);
    switch (event.isHome) {
    case 1:
        homeState = Qt::Checked;
        break;
    case 2:
        homeState = Qt::Unchecked;
        break;
    default:
        homeState = Qt::PartiallyChecked;
        break;
    }
}

void EventForm::setOppoBox(const QString &name)
{
    opponentIndex = int(opponents.size()) - 1;
    for (int i = 0; i < opponents.size(); ++i) {
        if (opponents.at(i).name == name) {
            opponentIndex = i;
            break;
        }
    }
    opponentText = opponentIndex >= 0 ? opponents.at(opponentIndex).name : QString();
}

void EventForm::selectOpponent(const QString &oppID, const QString &name)
{
    for (int i = 0; i < opponents.size(); ++i) {
        if (!oppID.isEmpty() && opponents.at(i).tag == oppID) {
            opponentIndex = i;
            opponentText = opponents.at(i).name;
            return;
        }
    }
    setOppoBox(name);
}

QString EventForm::opponentLabel(int index) const
{
    const OpponentEntry &entry = opponents.at(index);
    for (int i = 0; i < opponents.size(); ++i) {
        if (i != index && opponents.at(i).name == entry.name) {
            const QString school = entry.school.trimmed();
            return entry.name + QStringLiteral(" (") +
                   (school.isEmpty() ? QStringLiteral("team ") + entry.tag : school) + u')';
        }
    }
    return entry.name;
}

QList<OpponentEntry> EventForm::opponentEntries(const QList<OpponentEntry> &teams)
{
    QList<OpponentEntry> entries = teams;
    entries.append({kNoOpponent, QStringLiteral("-1"), {}});
    return entries;
}

bool EventForm::allowNumsOnly(QChar key)
{
    if (key == QChar(8) || key == QChar(9) || (key >= u'0' && key <= u'9'))
        return false;
    gBeep();
    return true;
}

QString EventForm::titleCase(const QString &text)
{
    QString out = text.trimmed();
    bool wordStart = true;
    for (QChar &c : out) {
        if (c.isSpace()) {
            wordStart = true;
        } else {
            if (wordStart)
                c = c.toUpper();
            wordStart = false;
        }
    }
    return out;
}

QString EventForm::normalEventType(const QString &text)
{
    const QString titled = titleCase(text);
    for (const QString &type : eventTypes()) {
        if (titled.compare(type, Qt::CaseInsensitive) == 0)
            return type;
    }
    return titled;
}

Qt::CheckState EventForm::homeStateForLocation(const QString &location, const std::optional<QString> &homeField)
{
    if (homeField && !location.isEmpty() && *homeField == location)
        return Qt::Checked;
    return Qt::Unchecked;
}

QString EventForm::formatTime(const QString &hour, const QString &minute, const QString &meridiem)
{
    const QString h = hour.trimmed();
    if (h.isEmpty())
        return kNoTime;
    // The boxes take digits only, but not every number is a time: hours are
    // kept to 1..12 and minutes to two digits below 60.
    const int hourValue = limitValueRange(h.toInt(), 1, 12);
    const QString m = minute.trimmed();
    const int minuteValue = m.isEmpty() ? 0 : limitValueRange(m.toInt(), 0, 59);
    QString half = normalMeridiem(meridiem);
    if (half != u"AM" && half != u"PM")
        half = half.startsWith(u'A') ? QStringLiteral("AM") : QStringLiteral("PM");
    return QString::number(hourValue) + u':' + QStringLiteral("%1").arg(minuteValue, 2, 10, QLatin1Char('0')) + u' ' +
           half;
}

std::optional<std::array<QString, 3>> EventForm::splitTime(const QString &stored)
{
    const QString t = stored.trimmed();
    if (t.isEmpty() || t == kNoTime)
        return std::nullopt;
    return gParseTimeStr(t);
}
