#include "gameday/DefenseBook.h"

#include "gameday/GameDay.h"
#include "gameday/GridCodes.h"
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
    const DefenseTable current = table();
    // "Smith to LF from the 4th inning": what Edit > Undo names.
    const DefenseTable::Player *player = current.player(playerID);
    const QString label = (player ? player->name.section(u' ', -1) : playerID) + QStringLiteral(" to ") +
                          (pos.isEmpty() ? QStringLiteral("the bench") : pos) + QStringLiteral(" from the ") +
                          GameDay::ordinalInning(inning);
    DefenseChange change = m_store.move(m_game.schedID(), teamID(), current, playerID, inning, pos,
                                        {label, m_game.curSelTeam()});
    if (!change.isEmpty()) {
        m_game.logAppended();
        if (changed)
            changed(change);
    }
    return change;
}

QString DefenseBook::minimumPlayLine(const MinimumPlay &minimum) const
{
    if (!minimum.isSet())
        return {};
    // The card on show as it stands, the other as last saved.
    const ScoreGrid &card = m_game.card();
    int now = lastInningPlayed(m_game.record().teams[size_t(1 - m_game.curSelTeam())]);
    for (int c = 0; c < card.columnCount(); ++c)
        for (int r = 0; r < card.rowCount(); ++r)
            if (!card.cellText(r, c).isEmpty())
                now = qMax(now, numericValue(card.heading(c)));
    if (now < regulationInnings() - 1)
        return {};
    const DefenseTable defense = table();
    const QSet<int> counted = fieldedSoFar();

    QStringList below;
    QSet<QString> seen;
    const auto check = [&](const QString &id, const QString &name, int atBats) {
        const int innings = defense.fieldInnings(id, counted);
        if (innings < minimum.innings || atBats < minimum.atBats)
            below.append(name + QStringLiteral(" (") + QString::number(innings) + QStringLiteral(" inn, ") +
                         QString::number(atBats) + QStringLiteral(" AB)"));
    };
    const QList<LineupLine> &lineup = m_game.lineup();
    for (int r = 0; r < lineup.size(); ++r) {
        const QString &id = lineup.at(r).playerID;
        if (seen.contains(id))
            continue;
        seen.insert(id);
        int atBats = 0;
        for (int i = r; i < lineup.size(); ++i)
            if (lineup.at(i).playerID == id)
                for (int c = 0; c < card.columnCount(); ++c)
                    atBats += card.cellText(i, c).isEmpty() ? 0 : 1;
        check(id, defense.player(id) ? defense.player(id)->name : lineup.at(r).name, atBats);
    }
    for (const BenchLine &b : m_game.roster())
        if (!seen.contains(b.playerID))
            check(b.playerID, b.name, 0);
    if (below.isEmpty())
        return {};
    return QStringLiteral("Minimum play not met yet: ") + below.join(QStringLiteral(", "));
}

} // namespace gameday
