#pragma once

#include <array>
#include <span>
#include <vector>

class RandomSource;

/// The six numbers of one Main entry, 1 to 49.
using Line = std::array<int, 6>;

inline constexpr int HighestNumber = 49;

/// `count` different numbers, 1 to 49, in the order in which they are drawn: at every step each number that is still
/// free is equally likely. `count` is 0 to 49.
std::vector<int> DrawDifferentNumbers(int count, RandomSource& random);

// The four builders. In every line that they return the numbers are different and ascending.

/// `count` lines by pure chance; two of them may be equal.
std::vector<Line> BuildRandomEntries(int count, RandomSource& random);

/// Lines that all hold the two, three or four key numbers and together every other number at least once. What the last
/// line lacks is filled with numbers of other lines.
std::vector<Line> BuildKeyNumberEntries(std::span<const int> keyNumbers, RandomSource& random);

/// Puts the chosen numbers, ascending and an even count of at least six, into pairs from the middle outwards; every
/// three pairs make a line, so any three of the numbers stand together on one line at least.
std::vector<Line> BuildWheeledPairEntries(std::span<const int> chosenNumbers);

/// Nine lines that hold every number; five numbers, of five different lines, stand twice.
std::vector<Line> BuildFullSelectionEntries(RandomSource& random);
