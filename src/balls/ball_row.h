#pragma once

#include "balls/ball_disc.h"
#include "balls/ball_line.h"

#include <span>

struct Game;

/// The balls of a draw or an entry, to be read only: labels on discs.
class BallRow : public BallLine
{
    Q_OBJECT

public:
    BallRow(const Names& names, const QStringList& captionTexts, QWidget* parent = nullptr);

    /// Shows the numbers, in slot order, in the colours of the game.
    void Show(const Game& game, std::span<const double> numbers);

    /// Makes the balls a little smaller, for two draws that stand side by side.
    void MakeCompact();

private:
    std::vector<LabelledBall> balls;
};
