#include "stats/BoxProof.h"

#include "gameday/GameRecord.h"
#include "gameday/GridCodes.h"
#include "gameday/ScoreGrid.h"
#include "stats/GameRecorder.h"

#include <QMap>

namespace stats {

namespace {

// The side of the equation each at-bat code counts on.
void countPlate(BoxProof &proof, const QString &code)
{
    if (code == u"BB" || code == u"IBB")
        ++proof.walks;
    else if (code == u"HBP")
        ++proof.hitByPitch;
    else if (code == u"SAC" || code == u"SF")
        ++proof.sacrifices;
    else if (code == u"CI")
        ++proof.catchersInterference;
    else
        ++proof.atBats;
}

} // namespace

QString BoxProof::text(const QString &team) const
{
    if (!hasCard)
        return team + QStringLiteral(": entered by run totals, no card to prove");
    QString line = team + QStringLiteral(": %1 AB + %2 BB + %3 HBP + %4 SAC + %5 CI = %6; %7 R + %8 LOB + %9 PO = %10")
                              .arg(atBats)
                              .arg(walks)
                              .arg(hitByPitch)
                              .arg(sacrifices)
                              .arg(catchersInterference)
                              .arg(plateAppearances())
                              .arg(runs)
                              .arg(leftOnBase)
                              .arg(putouts)
                              .arg(accountedFor());
    if (!unbalancedInnings.isEmpty())
        line += (unbalancedInnings.size() == 1 ? QStringLiteral(". Does not balance in inning ")
                                               : QStringLiteral(". Does not balance in innings ")) +
                unbalancedInnings.join(QStringLiteral(", "));
    return line;
}

BoxProof proveBoxScore(const gameday::ScoreGrid &card)
{
    BoxProof proof;
    // Each inning's columns (a doubled inning has two) are summed together:
    // a batter's plate appearance and his fate stand in the same cell.
    QMap<int, int> difference;
    QList<int> order;
    const int columns = qMin(card.columnCount(), gameday::kBkgCols);
    const int rows = qMin(card.rowCount(), gameday::kBkgRows);
    for (int c = 0; c < columns; ++c) {
        const int inning = gameday::numericValue(card.heading(c));
        for (int r = 0; r < rows; ++r) {
            const QString code = card.cellText(r, c);
            const QString fate = card.cellBkg(r, c);
            int balance = 0;
            if (gameday::atBatCodes().contains(code)) {
                countPlate(proof, code);
                ++balance;
            }
            if (fate == gameday::kBkgRun)
                ++proof.runs, --balance;
            else if (fate == gameday::kBkgLeft)
                ++proof.leftOnBase, --balance;
            else if (fate == gameday::kBkgOut)
                ++proof.putouts, --balance;
            if (balance == 0)
                continue;
            if (!order.contains(inning))
                order.append(inning);
            difference[inning] += balance;
        }
    }
    for (const int inning : order) {
        if (difference.value(inning) != 0)
            proof.unbalancedInnings.append(QString::number(inning));
    }
    return proof;
}

std::array<BoxProof, 2> proveBoxScores(const gameday::GameRecord &game)
{
    std::array<BoxProof, 2> proofs;
    for (int t = 0; t < 2; ++t) {
        if (gameday::isRunEntry(game.teams[t].actions)) {
            proofs[t].hasCard = false;
            continue;
        }
        gameday::ScoreGrid card;
        GameRecorder::loadGrid(card, game.teams[t]);
        proofs[t] = proveBoxScore(card);
    }
    return proofs;
}

} // namespace stats
