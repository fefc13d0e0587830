#pragma once

#include "people/TeamStore.h"

class myDB;
class myPrefs;

namespace people {

// The rules of the team screen, without its widgets: saving a team with
// the home-team rules and their questions, deleting with its question, and
// whether the screen may close. Messages go through the message service.
class TeamBook
{
public:
    TeamBook(myDB &db, myPrefs &prefs);

    TeamStore &store() { return m_store; }
    const TeamStore &store() const { return m_store; }

    bool isHome(const QString &teamID) const;

    enum class Saved { Refused, Failed, Added, Edited };
    struct SaveResult
    {
        Saved result = Saved::Refused;
        QString teamID; // the saved team's id
    };
    // Adds `team` when it has no id, else writes it over its row. A team
    // needs a name. With `markHome`, the team becomes the home team: the
    // first one at once, a different one only when the coach confirms.
    SaveResult save(const TeamRecord &team, bool markHome);

    // Asks whether `teamID` should replace the home team; true when it did.
    bool askChgHomeTeam(const QString &teamID);

    // Asks, then deletes the team and its players; deleting the home team
    // leaves no home team. True when the team is gone.
    bool askAndDelete(const TeamListRow &row);
    bool deleteTeam(const QString &teamID);

    // A season with teams needs a home team before the screen closes; says
    // so and gives false when it hasn't one.
    bool mayClose() const;

    // Prints the selected team's data (kind 1) or every team's (kind 2),
    // with the logos when the preferences ask for them on reports. Kind 1
    // with no team selected says so. `placeholder` stands in for a missing
    // logo.
    bool hndlPrint(int kind, const QString &selectedID, const QImage &placeholder);

    // Shown on a click in the home-team column of the list.
    static QString homeColumnHint();

private:
    void becomeHome(const QString &teamID, bool askFirst);

    TeamStore m_store;
    myPrefs &m_prefs;
};

} // namespace people
