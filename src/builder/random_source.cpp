#include "builder/random_source.h"

#include <chrono>

void RandomSource::ReseedFromTimeOfDay()
{
    const auto sinceEpoch = std::chrono::system_clock::now().time_since_epoch();
    engine.seed(static_cast<std::uint64_t>(std::chrono::nanoseconds(sinceEpoch).count()));
}

double RandomSource::Next()
{
    // The upper 53 bits fill a double's fraction exactly, so the value never rounds up to 1.
    return static_cast<double>(engine() >> 11) * 0x1.0p-53;
}

RandomSource& SharedRandomSource()
{
    static RandomSource source;
    return source;
}
