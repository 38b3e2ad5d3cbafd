#pragma once

#include "game/game.h"

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
    int first;
    int end;
};

inline SlotRange SlotsOf(const Game& game, BallType type)
{
    return {type == BallType::ExtraBall ? game.mainBalls : 0,
            type == BallType::MainBalls ? game.mainBalls : game.BallCount()};
}
