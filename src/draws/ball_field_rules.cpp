#include "draws/ball_field_rules.h"

#include "draws/game.h"
#include "platform/numbers.h"

namespace {

const BallFieldRule AddingMain{&MainGame, QStringLiteral("Ball values must be between 1 and 49"),
                               QStringLiteral("Ball values must be between 1 and 49"), false};
const BallFieldRule AddingThunderball{&ThunderballGame, QStringLiteral("Main ball values must be between 1 and 34"),
                                      QStringLiteral("Thunderball value must be between 1 and 14"), true};

bool IsInRange(const BallFieldRule& rule, int slot, double value)
{
    const int highest = rule.game->Highest(slot);
    return rule.fractionsAtTheEdgesPass ? value > 0 && value < highest + 1 : value >= 1 && value <= highest;
}

} // namespace

const BallFieldRule& AddingRule(const Game& game)
{
    return game.drawType == MainGame.drawType ? AddingMain : AddingThunderball;
}

BallFieldVerdict CheckBallField(const BallFieldRule& rule, int slot, const QString& text)
{
    if (text.isEmpty())
        return {EmptyBallColours, {}};
    const double value = NumericValue(text);
    if (!IsInRange(rule, slot, value))
        return {EmptyBallColours, rule.game->IsExtra(slot) ? rule.extraMessage : rule.mainMessage};
    return {ColoursOfBall(*rule.game, slot, value), {}};
}
