#include "draws/ball_field_rules.h"

#include "draws/game.h"
#include "platform/numbers.h"

namespace {

const BallFieldRule AddingMain{&MainGame, QStringLiteral("Ball values must be between 1 and 49"),
                               QStringLiteral("Ball values must be between 1 and 49"), false};
const BallFieldRule AddingThunderball{&ThunderballGame, QStringLiteral("Main ball values must be between 1 and 34"),
                                      QStringLiteral("Thunderball value must be between 1 and 14"), true};
const BallFieldRule EditingThunderball{&ThunderballGame, QStringLiteral("Balls must be between 1 and 34"),
                                       QStringLiteral("Thunderball must be between 1 and 14"), false, true};
const BallFieldRule EditingThunderballEntry{&ThunderballGame,
                                            QStringLiteral("Main ball values must be between 1 and 34"),
                                            QStringLiteral("Main ball values must be between 1 and 14"), false};

bool IsMain(const Game& game)
{
    return game.drawType == MainGame.drawType;
}

BallColours ColoursOfEmptyField(const BallFieldRule& rule, int slot)
{
    return rule.coloursAreFixed ? ColoursOfBall(*rule.game, slot, 0) : EmptyBallColours;
}

bool IsInRange(const BallFieldRule& rule, int slot, double value)
{
    const int highest = rule.game->Highest(slot);
    return rule.fractionsAtTheEdgesPass ? value > 0 && value < highest + 1 : value >= 1 && value <= highest;
}

} // namespace

const BallFieldRule& AddingRule(const Game& game)
{
    return IsMain(game) ? AddingMain : AddingThunderball;
}

const BallFieldRule& DrawEditingRule(const Game& game)
{
    return IsMain(game) ? AddingMain : EditingThunderball;
}

const BallFieldRule& EntryEditingRule(const Game& game)
{
    return IsMain(game) ? AddingMain : EditingThunderballEntry;
}

BallFieldVerdict CheckBallField(const BallFieldRule& rule, int slot, const QString& text)
{
    if (text.isEmpty())
        return {ColoursOfEmptyField(rule, slot), {}};
    const double value = NumericValue(text);
    if (!IsInRange(rule, slot, value))
        return {ColoursOfEmptyField(rule, slot), rule.game->IsExtra(slot) ? rule.extraMessage : rule.mainMessage};
    return {ColoursOfBall(*rule.game, slot, value), {}};
}
