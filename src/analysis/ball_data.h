#pragma once

#include "analysis/drawn_balls.h"

#include <QDate>
#include <QString>

#include <optional>

struct Game;

/// A role in which a ball can be drawn, and how sentences name it: "a main ball", "the bonus ball", "the thunderball".
struct BallRole
{
    SlotRange slots;
    QString name;
};
BallRole MainBallRole(const Game& game);
BallRole ExtraBallRole(const Game& game);

/// How a ball fared in the given slots over draws that come newest first.
struct BallAppearances
{
    /// The number of draws after the last one that had the ball; 0 is the latest draw. None for a ball never drawn.
    std::optional<int> drawsAgo;
    /// The number of draws that had the ball.
    int count = 0;
};
BallAppearances FindBall(const DrawnBalls& balls, SlotRange slots, int ball);

/// The ball of the game that a typed text asks for, by the whole part of its numeric value; none for any other text.
std::optional<int> TypedBall(const Game& game, const QString& text);

/// A ball number as the pages show it, always in two digits.
QString TwoDigits(int ball);

/// The sentence on the last draw that had the ball; day and date are that draw's, and are not looked at without one.
QString LastDrawnSentence(const BallRole& role, std::optional<int> drawsAgo, const QString& day, QDate date);

/// The sentence on how often the ball was drawn; empty for a ball never drawn.
QString CountSentence(const BallRole& role, int count);
