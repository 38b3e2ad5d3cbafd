#pragma once

#include <cstdint>
#include <random>

/// The one generator behind everything that is left to chance. It starts every run from the same seed; the actions that
/// a player expects to differ from run to run reseed it from the time of day.
class RandomSource
{
public:
    static constexpr std::uint64_t FixedSeed = 20060604;

    explicit RandomSource(std::uint64_t seed = FixedSeed) : engine(seed) {}

    void Reseed(std::uint64_t seed) { engine.seed(seed); }
    void ReseedFromTimeOfDay();

    /// A value u, uniform in [0, 1).
    double Next();

    /// A whole number from 1 to m: the integer part of u times m, plus 1. m is at least 1.
    int UpTo(int m) { return static_cast<int>(Next() * m) + 1; }

private:
    std::mt19937_64 engine;
};

/// The process-wide generator.
RandomSource& SharedRandomSource();
