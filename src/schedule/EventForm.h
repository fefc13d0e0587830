#pragma once

#include "schedule/eventClass.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <array>
#include <optional>

// One entry of the editor's opponent popup: a team's name and its teamID
// ("-1" for "N/A"), and its school to tell two teams of one name apart.
struct OpponentEntry
{
    QString name;
    QString tag;
    QString school;
    bool operator==(const OpponentEntry &) const = default;
};

// The event editor without its window: the fields as the coach left them,
// the rules each field follows, and the checks that turn them into an
// eventClass. newEventScrn copies its controls in and out of this object.
class EventForm
{
public:
    static const QStringList &eventTypes(); // "Practice", "Scrimmage", "Game", "Meeting", "Other"
    static QStringList hours();             // "1" to "12"
    static QStringList minutes();           // "00" to "55" in steps of 5
    static QStringList meridiems();         // "AM", "PM"
    static const QString kNoOpponent;       // "N/A"
    static const QString kNoTime;           // "---"

    QString dateText; // eventDateFld: a long date, or whatever an old row held
    QDate mDate;      // the date picked with the calendar; invalid until then
    QString busHour, busMinute, busAMPM;
    QString gameHour, gameMinute, gameAMPM;
    QString eventType;
    QList<OpponentEntry> opponents;
    int opponentIndex = -1; // the selected opponent, -1 for none
    QString opponentText;   // the popup's text
    QString location;
    Qt::CheckState homeState = Qt::PartiallyChecked;

    // Validates the fields and fills `result`, in the order the coach is
    // told about problems: the date, the opponent of a game, home or away.
    // A refusal is shown and gives false; `result` is then unchanged.
    bool setEventProperties(eventClass &result);

    // Fills the fields from a stored event for editing. The date goes to
    // dateText only (the row's own text when it isn't a date), so that an
    // event saved unchanged reads its date back from the field.
    void loadEvent(const eventClass &event, const QString &storedDate);
    // Selects the opponent named `name`, or the last entry ("N/A") when no
    // entry has that name.
    void setOppoBox(const QString &name);
    // Selects the opponent whose team id is `oppID`; a row without a known
    // id is looked up by name as above.
    void selectOpponent(const QString &oppID, const QString &name);
    // What the popup shows for entry `index`: the name, and the school after
    // it when another team has the same name.
    QString opponentLabel(int index) const;
    // The popup's entries for these teams, "N/A" last.
    static QList<OpponentEntry> opponentEntries(const QList<OpponentEntry> &teams);

    // Keys of the hour and minute boxes: true when `key` must be swallowed
    // (with a beep); Backspace (8), Tab (9) and digits pass.
    static bool allowNumsOnly(QChar key);
    // The first letter of each word in capitals; the rest stays as typed, so
    // a field name picked from the list ("UCLA Field") never changes.
    static QString titleCase(const QString &text);
    // Leaving the event type: title case, and a known type typed in other
    // capitals ("GAME") takes its own spelling.
    static QString normalEventType(const QString &text);
    static QString normalMeridiem(const QString &text) { return text.trimmed().toUpper(); }
    // "Home Game" is only a question for games.
    static bool homeCheckEnabled(const QString &eventType) { return eventType == u"Game"; }
    // A location equal to the home team's field makes it a home game, any
    // other an away game. No home field (no home team) clears the box too.
    static Qt::CheckState homeStateForLocation(const QString &location, const std::optional<QString> &homeField);

    // "7:05 PM"; "---" without an hour. An hour without minutes gets ":00".
    static QString formatTime(const QString &hour, const QString &minute, const QString &meridiem);
    // Splits a stored time for the three boxes; "---" and empty text leave
    // them empty so that the event keeps no time.
    static std::optional<std::array<QString, 3>> splitTime(const QString &stored);
};
