#pragma once

#include <array>
#include <cstdint>
#include <string_view>

class RecordSet;
struct Game;

/// One stored draw as the rules read it. Texts live until the record set's rows change.
struct DrawRow
{
    std::int64_t number = 0;
    /// YYYY-MM-DD.
    std::string_view date;
    std::string_view day;
    /// In slot order; a field without a number is 0.
    std::array<double, 7> balls{};
    /// Empty in the Thunderball game.
    std::string_view machine;
    std::string_view ballSet;
};
