#pragma once

#include "analysis/ball_type.h"

#include <QString>

#include <optional>

class RecordSet;
struct Game;

/// A role in which a ball can be drawn, and how sentences name it: "a main ball", "the bonus ball", "the thunderball".
struct BallRole
{
    SlotRange slots;
    QString name;
};
BallRole MainBallRole(const Game& game);
BallRole ExtraBallRole(const Game& game);

/// How often a ball was drawn in a role, and when last.
struct BallAppearances
{
    /// The number of draws that had the ball.
    int count = 0;
    /// The number of draws after the last one that had it; 0 is the latest draw. What follows is of that draw, and all
    /// three are empty for a ball never drawn.
    int drawsAgo = 0;
    QString day;
    QString date;
};

/// Goes through the list of a game's draws, newest first. Throws Failure.
BallAppearances FindBall(RecordSet& list, const BallRole& role, int ball);

/// The ball of the game that a typed text asks for, by the whole part of its numeric value; none for any other text.
std::optional<int> TypedBall(const Game& game, const QString& text);

/// A ball number as the pages show it, always in two digits.
QString TwoDigits(int ball);

/// The sentence on the last draw that had the ball.
QString LastDrawnSentence(const BallRole& role, const BallAppearances& found);

/// The sentence on how often the ball was drawn; empty for a ball never drawn.
QString CountSentence(const BallRole& role, const BallAppearances& found);
