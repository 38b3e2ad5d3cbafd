#include "game/ball_colours.h"

#include "game/game.h"

#include <array>

namespace {

constexpr QRgb Black = 0xFF000000;
constexpr QRgb White = 0xFFFFFFFF;
constexpr std::array<QRgb, 5> BandColours{0xFFFFFFFF, 0xFF80FFFF, 0xFFFF8080, 0xFF80FF80, 0xFFFFFF80};

} // namespace

const BallColours EmptyBallColours{0xFF404040, White};

int BallColourBand(double value)
{
    int band = 1;
    for (const double lastOfBand : {9.0, 19.0, 29.0, 39.0})
        band += value > lastOfBand ? 1 : 0;
    return band;
}

BallColours ColoursOfBall(const Game& game, int slot, double value)
{
    if (game.IsMain()) {
        if (value >= game.highestMain + 1)
            return EmptyBallColours;
        return {BandColours.at(static_cast<size_t>(BallColourBand(value)) - 1), Black};
    }
    return game.IsExtra(slot) ? BallColours{0xFFFF0000, Black} : BallColours{0xFF000080, White};
}
