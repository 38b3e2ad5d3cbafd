#pragma once

#include <array>
#include <string_view>

/// The most balls that a draw of either game has.
inline constexpr int MostBalls = 7;

/// The balls of a draw in slot order; where there is none, 0.
using DrawBalls = std::array<double, MostBalls>;

/// One stored draw as the rules read it. Texts live until the record set's rows change.
struct DrawRow
{
    /// YYYY-MM-DD.
    std::string_view date;
    std::string_view day;
    DrawBalls balls{};
    /// Empty in the Thunderball game.
    std::string_view machine;
    std::string_view ballSet;
};
