#pragma once

#include "game/entry_row.h"

#include <array>

/// What the entry generator remembers for the whole run of the program, over the visits to its page: the page shares it
/// with the number-picking window and the draw-day window.
struct BuilderState
{
    /// Slots 1 to 49: the numbers chosen last, ascending, then 0. Slot 0 is not used.
    std::array<int, 50> ChosenNumbers{};
    /// How many numbers the number-picking window asks for.
    int NumbersRequired = 0;
    /// Whether that window was left by its Store.
    bool NumbersChosen = false;
    /// The days on which built entries are played, as last stored by the draw-day window.
    DaySet BuilderDays{};
};
