#pragma once

#include <array>
#include <cstdint>

/// The seven days of the week, indexed 0 to 6 = Monday to Sunday.
using DaySet = std::array<bool, 7>;

/// One stored entry as the rules read it.
struct EntryRow
{
    std::int64_t number = 0;
    std::int64_t userId = 0;
    /// 1 for the Main game, 2 for the Thunderball game.
    int drawType = 0;
    std::array<double, 6> numbers{};
    DaySet days{};
};
