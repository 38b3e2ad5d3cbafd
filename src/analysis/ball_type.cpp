#include "analysis/ball_type.h"

#include "game/game.h"

SlotRange SlotsOf(const Game& game, BallType type)
{
    return {type == BallType::ExtraBall ? game.mainBalls : 0,
            type == BallType::MainBalls ? game.mainBalls : game.BallCount()};
}
