#pragma once

#include "balls/ball_disc.h"
#include "balls/ball_line.h"

#include <span>

/// The balls of a draw or an entry, to be read only: labels on discs.
class BallRow : public BallLine
{
    Q_OBJECT

public:
    /// Without a game the balls are those of an entry.
    explicit BallRow(const Names& names, const Game* drawGame = nullptr);

    /// Shows the numbers, one for each ball in slot order, in the colours of the game.
    void Show(const Game& game, std::span<const double> numbers);

    /// Makes the balls a little smaller, for two draws that stand side by side.
    void MakeCompact();

private:
    QList<LabelledBall> balls;
};
