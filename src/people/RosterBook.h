#pragma once

#include "people/MemberStore.h"
#include "people/TeamRecord.h"

#include <functional>

class myDB;

namespace people {

// Whether the member on the personnel screen has unsaved changes.
//  - editMode: a member is loaded, so the action button edits it;
//  - editDirty: the loaded member was changed since it was loaded;
//  - disableChg: the screen is filling its own controls, so their change
//    signals are neither edits nor list selections.
struct MemberEditState
{
    bool editMode = false;
    bool editDirty = false;
    bool disableChg = false;

    // A key press, a photo change or a change in the player fields. Typing
    // while no member is loaded marks nothing.
    void setDirty()
    {
        if (!disableChg && editMode && !editDirty)
            editDirty = true;
    }
    bool needsSaveQuestion() const { return editMode && editDirty; }
    void loaded()
    {
        editMode = true;
        editDirty = false;
    }
    void cleared()
    {
        editMode = false;
        editDirty = false;
    }
};

// The rules of the personnel screen without its widgets: adding, editing
// and trading a member, removing one with its question, the save question
// for a changed member and the photo question of the printouts.
class RosterBook
{
public:
    explicit RosterBook(myDB &db);

    MemberStore &store() { return m_store; }
    QList<TeamChoice> teamChoices() const;

    // A member needs a first and a last name; says so and gives false.
    static bool hasFullName(const MemberRecord &member);

    // The new member's id, or -1 (name missing or write failed).
    qint64 add(const MemberRecord &member);
    // Writes the member over its row. A `tradeTo` team other than empty
    // moves the member to that team: that is how a player or coach is
    // traded. False (with a message) when the row can't be updated.
    bool edit(MemberRecord member, const QString &tradeTo = {});

    // Asks, then removes the member. A removed player's game and season
    // rows stay in the file.
    bool askAndRemove(MemberKind kind, const QString &id, const QString &name);

    // Asks whether to save the changed member; `save` runs on "Save".
    // Either way the member counts as clean afterwards. True when saved.
    static bool askSaveDirty(MemberEditState &state, const std::function<void()> &save);

    // Whether the printout carries the player's photo.
    static bool askInclPhoto();

    // Prints the selected player's data (kind 1) or that of every player
    // of `teamID` (kind 2), asking first whether to include the photos.
    // Kind 1 with no player selected says so.
    bool hndlPrint(int kind, const QString &teamID, const QString &selectedPlayerID);

private:
    myDB &m_db;
    MemberStore m_store;
};

} // namespace people
