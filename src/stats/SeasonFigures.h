#pragma once

// The figures of a player's season rows in `Hitting`, `Fielding` and
// `Pitching`, in the index order of the stat dictionaries, and the small
// readers that turn a game's stored texts into them.

#include <QString>
#include <QStringView>

#include <array>
#include <optional>

namespace stats {

inline constexpr int kHittingFigures = 26;
inline constexpr int kFieldingFigures = 13;
inline constexpr int kPitchingFigures = 27;

using HitArray = std::array<qint64, kHittingFigures>;
using FldArray = std::array<qint64, kFieldingFigures>;
using PitchArray = std::array<qint64, kPitchingFigures>;

// Indices of the hitting array that a game fills from other places than
// the grid's texts.
inline constexpr int kHitRuns = 17;
inline constexpr int kHitRBI = 18;
inline constexpr int kHitSB = 19;
inline constexpr int kHitLOB = 20;
inline constexpr int kHitFirstUser = 21;
// The innings code in the pitching array.
inline constexpr int kPitchIP = 10;

// Season column names, index by index.
const std::array<const char *, kHittingFigures> &hittingColumns();
const std::array<const char *, kFieldingFigures> &fieldingColumns();
const std::array<const char *, kPitchingFigures> &pitchingColumns();

// A typed figure as a stored count: the whole part of its leading number,
// 0 when it has none ("1.5" gives 1, "3 runs" 3, "" and "--" 0).
qint64 figureCount(QStringView text);

// The innings code of a typed innings text: whole innings times 10 plus the
// first digit after the dot ("6.2" gives 62, "6" gives 60, "" gives 0).
// Thirds are one digit, 0 to 2; a text whose thirds digit is above 2
// ("6.3", "5.5") has no code and gives nothing.
std::optional<int> inningsCodeFromText(QStringView text);

// True when `code` is an innings code with a thirds digit of 0, 1 or 2.
bool isInningsCode(qint64 code);

// The sum of two innings codes, carried in thirds: 41 + 22 gives 70, 42 + 22
// gives 71. A code whose thirds digit is above 2 has no sum: nothing is
// given back, so a bad code can never reach a season total.
std::optional<qint64> getInningsPitchedVal(qint64 a, qint64 b);
// The difference a - b of two innings codes, borrowed in thirds: 61 - 22
// gives 32. Nothing when either is no code or b is the larger.
std::optional<qint64> subtractInningsPitched(qint64 a, qint64 b);

} // namespace stats
