#include "balls/ball_row.h"

#include "base/numbers.h"
#include "controls/label.h"
#include "game/ball_colours.h"
#include "game/game.h"

BallRow::BallRow(const Names& names, const Game* drawGame) : BallLine(names, drawGame)
{
    for (int slot = 0; slot < Count(); ++slot)
        balls.append(PutLabelOn(Disc(slot), ElementName(names.number, ElementOf(slot, drawGame))));
}

void BallRow::Show(const Game& game, std::span<const double> numbers)
{
    for (int slot = 0; slot < Count(); ++slot) {
        const double number = numbers[static_cast<size_t>(slot)];
        balls[slot].Show(PlainNumber(number), ColoursOfBall(game, slot, number));
        balls[slot].number->setAccessibleName(game.BallCaption(slot) + u' ' + PlainNumber(number));
    }
}

void BallRow::MakeCompact()
{
    for (const LabelledBall& ball : balls)
        ball.disc->MakeCompact();
}
