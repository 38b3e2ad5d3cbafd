#include "game/ball_field_rules.h"

#include "base/numbers.h"
#include "game/game.h"

using namespace Qt::StringLiterals;

namespace {

const BallFieldRule AddingMain{&MainGame, u"Ball values must be between 1 and 49"_s,
                               u"Ball values must be between 1 and 49"_s, false};
const BallFieldRule AddingThunderball{&ThunderballGame, u"Main ball values must be between 1 and 34"_s,
                                      u"Thunderball value must be between 1 and 14"_s, true};
const BallFieldRule EditingThunderball{&ThunderballGame, u"Balls must be between 1 and 34"_s,
                                       u"Thunderball must be between 1 and 14"_s, false, true};
const BallFieldRule EditingThunderballEntry{&ThunderballGame, u"Main ball values must be between 1 and 34"_s,
                                            u"Main ball values must be between 1 and 14"_s, false};

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
    return game.IsMain() ? AddingMain : AddingThunderball;
}

const BallFieldRule& DrawEditingRule(const Game& game)
{
    return game.IsMain() ? AddingMain : EditingThunderball;
}

const BallFieldRule& EntryEditingRule(const Game& game)
{
    return game.IsMain() ? AddingMain : EditingThunderballEntry;
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
