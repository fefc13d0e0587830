#include "people/TeamBook.h"

#include "app/globals.h"
#include "app/myPrefs.h"
#include "people/PrintLayout.h"
#include "platform/Messages.h"

namespace people {

TeamBook::TeamBook(myDB &db, myPrefs &prefs) : m_store(db), m_prefs(prefs) {}

bool TeamBook::isHome(const QString &teamID) const
{
    return !teamID.isEmpty() && m_prefs.prHomeTeam == teamID;
}

TeamBook::SaveResult TeamBook::save(const TeamRecord &team, bool markHome)
{
    if (team.TeamName.trimmed().isEmpty()) {
        gMsgBox(QStringLiteral("Please fill in the team name field."));
        return {};
    }
    if (team.teamID.isEmpty()) {
        const qint64 id = m_store.add(team);
        if (id < 0)
            return {Saved::Failed, {}};
        const QString newID = QString::number(id);
        if (markHome)
            becomeHome(newID, !m_prefs.prHomeTeam.isEmpty());
        return {Saved::Added, newID};
    }
    if (!m_store.exists(team.teamID)) {
        gMsgBox(QStringLiteral("Unable to update team"));
        return {Saved::Failed, team.teamID};
    }
    if (!m_store.update(team))
        return {Saved::Failed, team.teamID};
    if (markHome && m_prefs.prHomeTeam != team.teamID)
        becomeHome(team.teamID, !m_prefs.prHomeTeam.isEmpty());
    return {Saved::Edited, team.teamID};
}

void TeamBook::becomeHome(const QString &teamID, bool askFirst)
{
    // Only a change of home team is worth a question: with none chosen yet
    // there is no season's data to invalidate.
    if (askFirst) {
        askChgHomeTeam(teamID);
    } else {
        m_prefs.prHomeTeam = teamID;
        m_prefs.keepChoice();
    }
}

bool TeamBook::askChgHomeTeam(const QString &teamID)
{
    const auto answer = gShowMsgDlog(
        QStringLiteral("Make this team the default 'Home Team'?"),
        QStringLiteral("Caution: Changing home teams mid-season can render much of the data invalid."),
        QStringLiteral("Change"));
    if (answer != platform::MsgAction)
        return false;
    m_prefs.prHomeTeam = teamID;
    m_prefs.keepChoice();
    return true;
}

bool TeamBook::askAndDelete(const TeamListRow &row)
{
    const auto answer = gShowMsgDlog(QStringLiteral("Ok to delete ") + row.SchoolName + u' ' + row.TeamName +
                                         QStringLiteral(" from the Teams List?"),
                                     QStringLiteral("The players from this team will also be deleted."),
                                     QStringLiteral("Delete"));
    if (answer != platform::MsgAction)
        return false;
    return deleteTeam(row.teamID);
}

bool TeamBook::deleteTeam(const QString &teamID)
{
    if (!m_store.deleteTeam(teamID))
        return false;
    if (m_prefs.prHomeTeam == teamID) {
        m_prefs.prHomeTeam.clear();
        m_prefs.keepChoice();
    }
    return true;
}

bool TeamBook::mayClose() const
{
    if (m_prefs.prHomeTeam.isEmpty() && m_store.count() > 0) {
        gMsgBox(QStringLiteral("Please designate a 'Home Team'"));
        return false;
    }
    return true;
}

bool TeamBook::hndlPrint(int kind, const QString &selectedID, const QImage &placeholder)
{
    QList<TeamRecord> teams;
    if (kind == 1) {
        if (selectedID.isEmpty()) {
            gMsgBox(QStringLiteral("Please Select a Team."));
            return false;
        }
        if (auto team = m_store.team(selectedID))
            teams.append(*team);
    } else {
        teams = m_store.allTeams();
    }
    const bool withLogo = m_prefs.prLogoOnReport;
    return runPrint(QStringLiteral("Team Data"), [&](platform::PrintJob &job) {
        paintBlocks(job, teamDataBlocks(teams, withLogo, placeholder, job.setup().width()), kTeamBlockStep);
    });
}

QString TeamBook::homeColumnHint()
{
    return QStringLiteral("Please select a team and designate it as the 'Home Team'");
}

} // namespace people
