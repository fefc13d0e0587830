#include "gameday/DefenseBook.h"

#include "gameday/GameDay.h"
#include "gameday/ScoreGrid.h"

namespace gameday {

QString DefenseBook::teamID() const
{
    return m_game.teamID(m_game.curSelTeam());
}

DefenseTable DefenseBook::table() const
{
    const GameRecord &rec = m_game.record();
    const int innings = tableInnings(regulationInnings(), rec.teams[0], rec.teams[1]);
    return DefenseTable::build(m_game.lineup(), m_game.card(), m_store.moves(m_game.schedID(), teamID()), innings);
}

QSet<int> DefenseBook::fieldedSoFar() const
{
    return fieldedInnings(m_game.record().teams[size_t(1 - m_game.curSelTeam())]);
}

QString DefenseBook::refusal() const
{
    if (m_game.isReadOnly())
        return QStringLiteral("This game can't be changed.");
    if (m_game.lineup().isEmpty())
        return QStringLiteral("Build the lineup first.");
    return {};
}

DefenseChange DefenseBook::move(const QString &playerID, int inning, const QString &pos)
{
    if (!refusal().isEmpty())
        return {};
    DefenseChange change = m_store.move(m_game.schedID(), teamID(), table(), playerID, inning, pos);
    if (!change.isEmpty() && changed)
        changed(change);
    return change;
}

} // namespace gameday
