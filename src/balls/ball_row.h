#pragma once

#include "balls/ball_disc.h"
#include "balls/ball_fields.h"

#include <QLabel>

#include <span>

struct Game;

/// The balls of a draw or an entry, to be read only: labels on discs, with captions under them.
class BallRow : public QWidget
{
    Q_OBJECT

public:
    /// `names` are those of the labels, discs and captions; without a name for the captions there are none.
    BallRow(const BallFields::Names& names, const QStringList& captions, QWidget* parent = nullptr);

    /// Shows the numbers, in slot order, in the colours of the game.
    void Show(const Game& game, std::span<const double> numbers);

    /// Makes the balls a little smaller, for two draws that stand side by side.
    void MakeCompact();
    QLabel* Caption(int slot) const { return captionLabels.at(static_cast<size_t>(slot)); }
    /// The divider before the last ball, where the extra ball stands apart.
    void SetLastApart(bool apart) { gap->setVisible(apart); }

private:
    std::vector<LabelledBall> balls;
    std::vector<QLabel*> captionLabels;
    QWidget* gap = nullptr;
};
