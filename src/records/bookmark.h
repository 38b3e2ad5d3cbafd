#pragma once

#include <cstdint>

/// Names one stored row, also where a file of unknown origin holds its number twice or not at all. It names no other
/// row after another copy of the program has deleted it.
struct Bookmark
{
    /// The engine's own number of the row, which it may give again, and the number that the row was given.
    std::int64_t rowId = 0;
    double number = 0;

    bool operator==(const Bookmark&) const = default;
};
