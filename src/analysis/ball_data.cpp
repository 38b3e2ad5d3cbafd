#include "analysis/ball_data.h"

#include "base/dates.h"
#include "base/numbers.h"
#include "game/game.h"

#include <cmath>

using namespace Qt::StringLiterals;

BallRole MainBallRole(const Game& game)
{
    return {SlotsOf(game, BallType::MainBalls), u"a main ball"_s};
}

BallRole ExtraBallRole(const Game& game)
{
    return {SlotsOf(game, BallType::ExtraBall),
            game.drawType == MainGame.drawType ? u"the bonus ball"_s : u"the thunderball"_s};
}

BallAppearances FindBall(const DrawnBalls& balls, SlotRange slots, int ball)
{
    BallAppearances found;
    const int draws = balls.Draws();
    for (int draw = 0; draw < draws; ++draw) {
        for (int slot = slots.first; slot < slots.end; ++slot) {
            if (balls.NumberAt(draw, slot) != ball)
                continue;
            if (!found.drawsAgo)
                found.drawsAgo = draw;
            ++found.count;
            break;
        }
    }
    return found;
}

std::optional<int> TypedBall(const Game& game, const QString& text)
{
    const double number = std::trunc(NumericValue(text));
    if (!IsWholeBetween(number, 1, game.highestMain))
        return std::nullopt;
    return static_cast<int>(number);
}

QString TwoDigits(int ball)
{
    return u"%1"_s.arg(ball, 2, 10, QChar(u'0'));
}

QString LastDrawnSentence(const BallRole& role, std::optional<int> drawsAgo, const QString& day, QDate date)
{
    if (!drawsAgo)
        return u"This ball has never been drawn as %1."_s.arg(role.name);
    return u"This ball was last drawn as "_s + role.name + SpacedNumber(*drawsAgo) + u" draws ago, on "_s + day + u' ' +
           DateInWords(date) + u'.';
}

QString CountSentence(const BallRole& role, int count)
{
    if (count == 0)
        return {};
    return u"This ball has been drawn"_s + SpacedNumber(count) + u" times as "_s + role.name + u'.';
}
