#pragma once

#include "analysis/charts.h"

#include <QString>

#include <optional>

/// What the ball data pages say of one ball as a main ball, or as the extra ball.
struct BallSentences
{
    /// On the last draw that had the ball.
    QString lastDrawn;
    /// On how many draws had it; empty for a ball never drawn.
    QString count;
};

/// Goes through the list of the game's draws, newest first. Throws Failure.
BallSentences DescribeBall(const Game& game, BallType role, int ball);

/// The ball of the game that a typed text asks for, by the whole part of its numeric value; none for any other text.
std::optional<int> TypedBall(const Game& game, const QString& text);
