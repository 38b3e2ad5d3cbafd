#include "game/ball_field_rules.h"

#include "base/numbers.h"
#include "game/game.h"

using namespace Qt::StringLiterals;

namespace {

const QString MainRange = u"Ball values must be between 1 and 49"_s;
const QString ThunderballMainRange = u"Main ball values must be between 1 and 34"_s;

const BallFieldRule MainDraw{&MainGame, MainRange, MainRange, Fractions::Inside, Greying::BeforeMessage};
const BallFieldRule NewThunderballDraw{&ThunderballGame, ThunderballMainRange,
                                       u"Thunderball value must be between 1 and 14"_s, Fractions::InsideAndAtTheEdges,
                                       Greying::AfterMessage};
const BallFieldRule StoredThunderballDraw{&ThunderballGame, u"Balls must be between 1 and 34"_s,
                                          u"Thunderball must be between 1 and 14"_s, Fractions::Inside, Greying::Never};
const BallFieldRule StoredMainEntry{&MainGame, MainRange, MainRange, Fractions::None, Greying::AfterMessage};
const BallFieldRule StoredThunderballEntry{&ThunderballGame, ThunderballMainRange,
                                           u"Main ball values must be between 1 and 14"_s, Fractions::None,
                                           Greying::AfterMessage};

bool IsInRange(const BallFieldRule& rule, int slot, double value)
{
    const int highest = rule.game->Highest(slot);
    switch (rule.fractions) {
    case Fractions::Inside:
        return value >= 1 && value <= highest;
    case Fractions::InsideAndAtTheEdges:
        return value > 0 && value < highest + 1;
    case Fractions::None:
        break;
    }
    return IsWholeBetween(value, 1, highest);
}

} // namespace

const BallFieldRule& AddingRule(const Game& game)
{
    return game.IsMain() ? MainDraw : NewThunderballDraw;
}

const BallFieldRule& DrawEditingRule(const Game& game)
{
    return game.IsMain() ? MainDraw : StoredThunderballDraw;
}

const BallFieldRule& EntryEditingRule(const Game& game)
{
    return game.IsMain() ? StoredMainEntry : StoredThunderballEntry;
}

BallFieldVerdict CheckBallField(const BallFieldRule& rule, int slot, const QString& text)
{
    const BallColours empty = rule.greying == Greying::Never ? ColoursOfBall(*rule.game, slot, 0) : EmptyBallColours;
    if (text.isEmpty())
        return {empty, {}};
    const double value = NumericValue(text);
    if (!IsInRange(rule, slot, value))
        return {empty, rule.game->IsExtra(slot) ? rule.extraMessage : rule.mainMessage};
    return {ColoursOfBall(*rule.game, slot, value), {}};
}
