#pragma once

#include <qrgb.h>

struct Game;

/// The colours of a ball: the disc with the field or label on it, and the number written there.
struct BallColours
{
    QRgb ball;
    QRgb number;

    bool operator==(const BallColours&) const = default;
};

/// An empty or refused field: dark grey with white digits.
extern const BallColours EmptyBallColours;

/// The band, 1 to 5, of a ball of the Main game by its tens: 1 for numbers up to 9, 5 for those above 39.
int BallColourBand(double value);

/// The colours of a ball of the game in the given slot: by its band in the Main game, where a stored value above all
/// bands is dark grey; navy, and red for the thunderball, in the other.
BallColours ColoursOfBall(const Game& game, int slot, double value);
