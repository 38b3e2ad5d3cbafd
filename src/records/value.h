#pragma once

#include "base/numbers.h"

#include <cstdint>
#include <string_view>
#include <variant>

/// What one field holds: nothing, a whole number, a real number, or a text in UTF-8.
using Value = std::variant<std::monostate, std::int64_t, double, std::string_view>;

/// A numeric value in the form in which the files hold it: whole numbers as such, all others as real numbers.
inline Value NumberField(double value)
{
    if (value > -LargestExactWhole && value < LargestExactWhole &&
        value == static_cast<double>(static_cast<std::int64_t>(value)))
        return static_cast<std::int64_t>(value);
    return value;
}

/// A flag in the form in which the files hold it: -1 for true, 0 for false.
inline Value FlagField(bool flag)
{
    return static_cast<std::int64_t>(flag ? -1 : 0);
}
