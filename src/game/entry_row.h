#pragma once

#include <array>
#include <cstdint>

inline constexpr int DaysOfWeek = 7;

/// The days on which an entry is played, indexed 0 to 6 = Monday to Sunday.
using DaySet = std::array<bool, DaysOfWeek>;

/// How many numbers an entry of either game has.
inline constexpr int EntryBalls = 6;

/// Six main balls, or five main balls and a thunderball; where there is none, 0.
using EntryNumbers = std::array<double, EntryBalls>;

/// One stored entry as the rules read it.
struct EntryRow
{
    std::int64_t number = 0;
    std::int64_t userId = 0;
    /// 1 for the Main game, 2 for the Thunderball game.
    int drawType = 0;
    EntryNumbers numbers{};
    DaySet days{};
};
