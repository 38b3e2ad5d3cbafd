#include "balls/ball_row.h"

#include "base/numbers.h"
#include "controls/label.h"
#include "game/ball_colours.h"
#include "game/game.h"

BallRow::BallRow(const Names& names, const QStringList& captionTexts, QWidget* parent)
    : BallLine(names, captionTexts, parent)
{
    for (int slot = 0; slot < Count(); ++slot)
        balls.push_back(PutLabelOn(Disc(slot), ElementName(names.number, names.indices.at(static_cast<size_t>(slot)))));
}

void BallRow::Show(const Game& game, std::span<const double> numbers)
{
    for (size_t slot = 0; slot < balls.size() && slot < numbers.size(); ++slot) {
        const BallColours colours = ColoursOfBall(game, static_cast<int>(slot), numbers[slot]);
        const QString text = PlainNumber(numbers[slot]);
        balls[slot].Show(text, QColor::fromRgb(colours.ball), QColor::fromRgb(colours.number));
        balls[slot].number->setAccessibleName(game.BallCaption(static_cast<int>(slot)) + u' ' + text);
    }
}

void BallRow::MakeCompact()
{
    for (const LabelledBall& ball : balls)
        ball.disc->MakeCompact();
}
