#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <vector>

struct Game;

/// Which balls of a draw are looked at. The values are the places in the list that the player chooses from.
enum class BallType
{
    MainBalls = 0,
    ExtraBall = 1,
    AllBalls = 2
};

/// Some neighbouring slots of a draw: from `first` up to, but not including, `end`.
struct SlotRange
{
    int first = 0;
    int end = 0;

    int Count() const { return end - first; }
};

SlotRange SlotsOf(const Game& game, BallType type);

/// The highest ball of both games.
inline constexpr int HighestBall = 49;

/// The balls of many draws in the order of their rows, one draw behind the other; only the given slots are held.
struct DrawnBalls
{
    SlotRange slots;
    /// Each ball's number, 1 to 49, or 0 for what is no ball.
    std::vector<std::uint16_t> numbers;
    /// What stands in the places of the zeros; only a foreign file can hold such draws.
    std::map<std::size_t, double> others;

    int Draws() const { return slots.Count() == 0 ? 0 : static_cast<int>(numbers.size()) / slots.Count(); }
    /// The number of the ball of a draw, counted from 0, in a slot that is held.
    int NumberAt(int draw, int slot) const
    {
        return numbers[static_cast<std::size_t>(draw) * static_cast<std::size_t>(slots.Count()) +
                       static_cast<std::size_t>(slot - slots.first)];
    }
};
