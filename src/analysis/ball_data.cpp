#include "analysis/ball_data.h"

#include "draws/game.h"
#include "platform/dates.h"
#include "platform/numbers.h"

#include <cmath>

BallRole MainBallRole(const Game& game)
{
    return {SlotsOf(game, BallType::MainBalls), QStringLiteral("a main ball")};
}

BallRole ExtraBallRole(const Game& game)
{
    return {SlotsOf(game, BallType::ExtraBall),
            game.drawType == MainGame.drawType ? QStringLiteral("the bonus ball") : QStringLiteral("the thunderball")};
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
    return QStringLiteral("%1").arg(ball, 2, 10, QChar(u'0'));
}

QString LastDrawnSentence(const BallRole& role, std::optional<int> drawsAgo, const QString& day, QDate date)
{
    if (!drawsAgo)
        return QStringLiteral("This ball has never been drawn as %1.").arg(role.name);
    return QStringLiteral("This ball was last drawn as ") + role.name + SpacedNumber(*drawsAgo) +
           QStringLiteral(" draws ago, on ") + day + u' ' + DateInWords(date) + u'.';
}

QString CountSentence(const BallRole& role, int count)
{
    if (count == 0)
        return {};
    return QStringLiteral("This ball has been drawn") + SpacedNumber(count) + QStringLiteral(" times as ") + role.name +
           u'.';
}
