#include "stats/BoxScore.h"

#include "app/myDB.h"
#include "gameday/GameStore.h"
#include "gameday/ScoreGrid.h"
#include "stats/GameRecorder.h"
#include "stats/dataAggregator.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QPageLayout>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>

#include <algorithm>

namespace stats {

namespace {

// Indices of the game's batting and pitching figures.
enum Hit { AB = 0, B1, B2, B3, HR, BB, IBB, HBP, SAC, FO, GO, KS, KL, Runs = 17, RBI, SB, LOB };
enum Pitch {
    Win = 0,
    Loss,
    Save,
    Strikes = 8,
    PitCt = 9,
    IP = 10,
    BF,
    Hits,
    ErRuns,
    HRA,
    PBB = 17,
    PIBB,
    Kouts = 20,
    Blk,
    WldP,
    HitB
};

qint64 hitsOf(const HitArray &h)
{
    return h[B1] + h[B2] + h[B3] + h[HR];
}

QString inningsText(qint64 code)
{
    return QString::number(code / 10) + u'.' + QString::number(code % 10);
}

QString playerName(myDB &db, const QString &playerID, const QString &fallback)
{
    const QList<Record> rows = db.select(QStringLiteral("SELECT First, Last FROM Players WHERE playerID = ?"),
                                         {playerID});
    if (rows.isEmpty())
        return fallback;
    return rows.first().text(QStringLiteral("Last")) + QStringLiteral(", ") +
           rows.first().text(QStringLiteral("First"));
}

void readTeam(myDB &db, BoxTeam &team, const gameday::TeamStrings &strings, const QString &teamID,
              const QString &schedID, const GamePanels &panels)
{
    team.name = db.scalar(QStringLiteral("SELECT TeamName FROM Teams WHERE teamID = ?"), {teamID}).toString();
    if (gameday::isRunEntry(strings.actions)) {
        team.runEntry = true;
        const gameday::RunEntry entry = gameday::readRunEntry(strings.actions);
        for (int i = 0; i < 10; ++i) {
            const QString box = entry.innings[i].trimmed();
            team.innings[i] = box.isEmpty() ? -1 : gameday::numericValue(box);
        }
        team.runs = entry.runs();
        team.hits = gameday::numericValue(entry.hits);
        team.errors = gameday::numericValue(entry.errors);
        team.lob = gameday::numericValue(entry.lob);
    } else {
        gameday::ScoreGrid grid;
        GameRecorder::loadGrid(grid, strings);
        team.innings = grid.countRunsByInning();
        team.runs = grid.countTotalRuns();
        team.hits = grid.countTotalHits();
        team.lob = grid.countTotalLOBs();
        const TeamAdditions added =
            dataAggregator(teamID, schedID).collect(grid, strings.players, strings.batStats, panels);
        for (const PlayerAdditions &p : added.players) {
            // A player back in the game after a substitute keeps one line.
            auto it = std::find_if(team.batters.begin(), team.batters.end(),
                                   [&](const BoxBatter &b) { return b.playerID == p.playerID; });
            if (it == team.batters.end()) {
                BoxBatter b;
                b.playerID = p.playerID;
                b.name = playerName(db, p.playerID, p.name);
                if (p.fielding)
                    b.errors = (*p.fielding)[4] + (*p.fielding)[5];
                team.batters.append(b);
                it = team.batters.end() - 1;
            }
            for (int i = 0; i < kHittingFigures; ++i)
                it->hitting[i] += p.hitting[i];
            it->sacrificeFlies += p.sacrificeFlies;
            team.errors += p.fielding ? int((*p.fielding)[4] + (*p.fielding)[5]) : 0;
        }
    }
    // The pitchers are the team's pitching panel rows, in the order saved.
    for (const Record &r : db.select(QStringLiteral("SELECT playerID FROM GamesIndivPitching WHERE gameID = ? AND "
                                                    "teamID = ? ORDER BY recID"),
                                     {schedID, teamID})) {
        const QString id = r.text(QStringLiteral("playerID"));
        if (std::any_of(team.pitchers.cbegin(), team.pitchers.cend(),
                        [&](const BoxPitcher &p) { return p.playerID == id; }))
            continue;
        const auto line = panels.pitching.constFind(id);
        if (line == panels.pitching.cend())
            continue;
        const std::optional<PitchArray> figures = dataAggregator::getNewPitchingStats(*line);
        BoxPitcher p;
        p.playerID = id;
        p.name = playerName(db, id, id);
        if (figures)
            p.pitching = *figures;
        team.pitchers.append(p);
    }
}

QString pad(const QString &text, int width)
{
    return text.leftJustified(width, u' ', true);
}

QString num(qint64 value, int width)
{
    return QString::number(value).rightJustified(width);
}

// "2B: Reyes 2, Park." : each batter with a count above zero.
QString noted(const BoxTeam &team, const char *label, int index)
{
    QStringList names;
    for (const BoxBatter &b : team.batters) {
        const qint64 n = index < 0 ? b.errors : b.hitting[index];
        if (n > 0)
            names.append(b.name.section(u',', 0, 0) + (n > 1 ? u' ' + QString::number(n) : QString()));
    }
    if (names.isEmpty())
        return {};
    return QString::fromLatin1(label) + QStringLiteral(": ") + names.join(QStringLiteral(", ")) + u'.';
}

} // namespace

std::optional<BoxScore> BoxScore::read(myDB &db, const QString &schedID)
{
    const std::optional<gameday::GameRecord> game = gameday::GameStore(db).load(schedID);
    if (!game)
        return std::nullopt;
    BoxScore box;
    const QList<Record> event = db.select(QStringLiteral("SELECT SchedDate, Location FROM Schedule WHERE eventID = ?"),
                                          {schedID});
    if (!event.isEmpty()) {
        box.date = event.first().text(QStringLiteral("SchedDate")).left(10);
        box.location = event.first().text(QStringLiteral("Location"));
    }
    const GamePanels panels = GameRecorder(db).loadPanels(schedID);
    for (int t = 0; t < 2; ++t)
        readTeam(db, box.teams[t], game->teams[t], game->teamIDs[t], schedID, panels);
    return box;
}

int BoxScore::inningsShown() const
{
    int last = 0;
    for (const BoxTeam &team : teams) {
        for (int i = 0; i < 10; ++i) {
            if (team.innings[i] >= 0)
                last = std::max(last, i + 1);
        }
    }
    return last;
}

QString BoxScore::text() const
{
    QString out;
    out += teams[0].name + QStringLiteral(" at ") + teams[1].name;
    if (!date.isEmpty())
        out += QStringLiteral(", ") + date;
    if (!location.isEmpty())
        out += QStringLiteral(", ") + location;
    out += u'\n';
    out += u'\n';

    // The line score.
    const int innings = std::max(inningsShown(), 1);
    QString head = pad(QString(), 18);
    for (int i = 0; i < innings; ++i)
        head += (i == 9 ? QStringLiteral("10+") : QString::number(i + 1)).rightJustified(4);
    head += QStringLiteral("     R   H   E");
    out += head + u'\n';
    for (const BoxTeam &team : teams) {
        QString line = pad(team.name, 18);
        for (int i = 0; i < innings; ++i)
            line += (team.innings[i] < 0 ? QStringLiteral("-") : QString::number(team.innings[i])).rightJustified(4);
        line += QStringLiteral(" ") + num(team.runs, 5) + num(team.hits, 4) + num(team.errors, 4);
        out += line + u'\n';
    }

    for (const BoxTeam &team : teams) {
        out += u'\n';
        if (team.runEntry) {
            out += team.name + QStringLiteral(": entered by run totals, no batting lines.\n");
        } else {
            out += pad(team.name, 24) + QStringLiteral("  AB   R   H RBI  BB  SO\n");
            HitArray sum{};
            for (const BoxBatter &b : team.batters) {
                const HitArray &h = b.hitting;
                out += pad(b.name, 24) + num(h[AB], 4) + num(h[Runs], 4) + num(hitsOf(h), 4) + num(h[RBI], 4) +
                       num(h[BB] + h[IBB], 4) + num(h[KS] + h[KL], 4) + u'\n';
                for (int i = 0; i < kHittingFigures; ++i)
                    sum[i] += h[i];
            }
            out += pad(QStringLiteral("Totals"), 24) + num(sum[AB], 4) + num(sum[Runs], 4) + num(hitsOf(sum), 4) +
                   num(sum[RBI], 4) + num(sum[BB] + sum[IBB], 4) + num(sum[KS] + sum[KL], 4) + u'\n';
            for (const QString &note : {noted(team, "2B", B2), noted(team, "3B", B3), noted(team, "HR", HR),
                                        noted(team, "SB", SB), noted(team, "E", -1)}) {
                if (!note.isEmpty())
                    out += note + u'\n';
            }
            out += QStringLiteral("LOB: ") + QString::number(team.lob) + QStringLiteral(".\n");
        }
        if (!team.pitchers.isEmpty()) {
            out += u'\n';
            out += pad(team.name, 24) + QStringLiteral("  IP   H  ER  BB  SO  PC-ST\n");
            for (const BoxPitcher &p : team.pitchers) {
                const PitchArray &f = p.pitching;
                out += pad(p.name, 24) + inningsText(f[IP]).rightJustified(4) + num(f[Hits], 4) + num(f[ErRuns], 4) +
                       num(f[PBB] + f[PIBB], 4) + num(f[Kouts], 4) + QStringLiteral("  ") + QString::number(f[PitCt]) +
                       u'-' + QString::number(f[Strikes]) + u'\n';
            }
        }
    }
    return out;
}

QString BoxScore::pipeRows() const
{
    const auto line = [](const QStringList &fields) -> QString { return fields.join(u'|') + QStringLiteral("\r\n"); };
    // A bar or a line end inside a name would break the row.
    const auto clean = [](QString text) -> QString {
        return text.replace(u'|', u'/').replace(u'\r', u' ').replace(u'\n', u' ');
    };
    QString out = line({"Team", "Player", "playerID", "AB", "R", "H", "2B", "3B", "HR", "RBI", "BB", "IBB", "HBP",
                        "SAC", "SF", "SO", "SB", "LOB", "E"});
    for (const BoxTeam &team : teams) {
        for (const BoxBatter &b : team.batters) {
            const HitArray &h = b.hitting;
            out += line({clean(team.name), clean(b.name), b.playerID, QString::number(h[AB]), QString::number(h[Runs]),
                         QString::number(hitsOf(h)), QString::number(h[B2]), QString::number(h[B3]),
                         QString::number(h[HR]), QString::number(h[RBI]), QString::number(h[BB]),
                         QString::number(h[IBB]), QString::number(h[HBP]), QString::number(h[SAC]),
                         QString::number(b.sacrificeFlies), QString::number(h[KS] + h[KL]), QString::number(h[SB]),
                         QString::number(h[LOB]), QString::number(b.errors)});
        }
    }
    out += line({"Team", "Player", "playerID", "IP", "BF", "H", "ER", "HR", "BB", "IBB", "SO", "HB", "WP", "BK", "PC",
                 "ST", "DEC"});
    for (const BoxTeam &team : teams) {
        for (const BoxPitcher &p : team.pitchers) {
            const PitchArray &f = p.pitching;
            const QString decision = f[Win]    ? QStringLiteral("W")
                                     : f[Loss] ? QStringLiteral("L")
                                     : f[Save] ? QStringLiteral("S")
                                               : QString();
            out += line({clean(team.name), clean(p.name), p.playerID, inningsText(f[IP]), QString::number(f[BF]),
                         QString::number(f[Hits]), QString::number(f[ErRuns]), QString::number(f[HRA]),
                         QString::number(f[PBB]), QString::number(f[PIBB]), QString::number(f[Kouts]),
                         QString::number(f[HitB]), QString::number(f[WldP]), QString::number(f[Blk]),
                         QString::number(f[PitCt]), QString::number(f[Strikes]), decision});
        }
    }
    return out;
}

void paintOnePage(QPainter &painter, const QRectF &area, const QString &text)
{
    const QStringList lines = text.split(u'\n');
    // The painter's unit is the point: the size is set in those units (as a
    // pixel size) and made smaller until the widest line and every line fit.
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    int size = 10;
    for (; size > 4; --size) {
        font.setPixelSize(size);
        const QFontMetricsF metrics(font);
        qreal widest = 0;
        for (const QString &line : lines)
            widest = std::max(widest, metrics.horizontalAdvance(line));
        if (widest <= area.width() && metrics.lineSpacing() * lines.size() <= area.height())
            break;
    }
    font.setPixelSize(size);
    painter.save();
    painter.setFont(font);
    painter.setPen(Qt::black);
    const QFontMetricsF metrics(font);
    qreal y = area.top() + metrics.ascent();
    for (const QString &line : lines) {
        painter.drawText(QPointF(area.left(), y), line);
        y += metrics.lineSpacing();
    }
    painter.restore();
}

bool writeOnePagePdf(const QString &path, const QString &title, const QString &text)
{
    QPdfWriter pdf(path);
    pdf.setTitle(title);
    pdf.setCreator(QStringLiteral("Tallyline Baseball"));
    pdf.setPageLayout(QPageLayout(QPageSize(QPageSize::Letter), QPageLayout::Portrait, QMarginsF(36, 36, 36, 36),
                                  QPageLayout::Point));
    QPainter painter;
    if (!painter.begin(&pdf))
        return false;
    // Painted in points, from the corner of the printable area.
    const qreal scale = pdf.resolution() / 72.0;
    painter.scale(scale, scale);
    const QRectF area(0, 0, 612 - 72, 792 - 72);
    paintOnePage(painter, area, text);
    return painter.end();
}

} // namespace stats
