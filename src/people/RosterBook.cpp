#include "people/RosterBook.h"

#include "app/globals.h"
#include "people/Pictures.h"
#include "people/PrintLayout.h"
#include "people/TeamStore.h"
#include "platform/Messages.h"

namespace people {

RosterBook::RosterBook(myDB &db) : m_db(db), m_store(db) {}

QList<TeamChoice> RosterBook::teamChoices() const
{
    return TeamStore(m_db).choices();
}

bool RosterBook::hasFullName(const MemberRecord &member)
{
    if (member.First.trimmed().isEmpty() || member.Last.trimmed().isEmpty()) {
        gMsgBox(QStringLiteral("Please enter a full name for this team member."));
        return false;
    }
    return true;
}

qint64 RosterBook::add(const MemberRecord &member)
{
    if (!hasFullName(member))
        return -1;
    return m_store.add(member);
}

bool RosterBook::edit(MemberRecord member, const QString &tradeTo)
{
    if (!hasFullName(member))
        return false;
    if (!tradeTo.isEmpty())
        member.TeamNum = tradeTo;
    if (!m_store.exists(member.kind, member.id)) {
        gMsgBox(QStringLiteral("Unable to update team"));
        return false;
    }
    return m_store.update(member);
}

bool RosterBook::askAndRemove(MemberKind kind, const QString &id, const QString &name)
{
    const auto answer = gShowMsgDlog(QStringLiteral("Are you sure you wish to remove ") + name +
                                         QStringLiteral(" from this team?"),
                                     QStringLiteral("This action cannot be undone"), QStringLiteral("Remove"));
    if (answer != platform::MsgAction)
        return false;
    return m_store.remove(kind, id);
}

bool RosterBook::askSaveDirty(MemberEditState &state, const std::function<void()> &save)
{
    const auto answer = gShowMsgDlog(QStringLiteral("Would you like to save the changes to this member?"),
                                     QStringLiteral("If you do not save, changes will be lost"),
                                     QStringLiteral("Save"));
    state.editDirty = false;
    if (answer != platform::MsgAction)
        return false;
    save();
    return true;
}

bool RosterBook::askInclPhoto()
{
    return gShowMsgDlog(QStringLiteral("Include the Player's Photo on the printout?"),
                        QStringLiteral("If photo is not available, a generic pic will be included "),
                        QStringLiteral("Include"), QStringLiteral("Don't Include")) == platform::MsgAction;
}

bool RosterBook::hndlPrint(int kind, const QString &teamID, const QString &selectedPlayerID)
{
    QList<MemberRecord> players;
    if (kind == 1) {
        if (selectedPlayerID.isEmpty()) {
            gMsgBox(QStringLiteral("Please select a Player"));
            return false;
        }
        if (auto player = m_store.member(MemberKind::Player, selectedPlayerID))
            players.append(*player);
    } else {
        players = m_store.players(teamID);
    }
    // Asked once for the whole printout, before the print dialog.
    const bool withPhoto = askInclPhoto();
    return runPrint(QStringLiteral("Player Data"), [&](platform::PrintJob &job) {
        paintBlocks(job, playerDataBlocks(players, withPhoto, genericPicture(), job.setup().width()), kPlayerBlockStep);
    });
}

} // namespace people
