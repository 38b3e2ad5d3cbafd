#include "game/game.h"

#include "base/numbers.h"

#include <span>

using namespace Qt::StringLiterals;

namespace {

bool AreDifferentWholeNumbers(std::span<const double> balls, int highest)
{
    for (size_t i = 0; i < balls.size(); ++i) {
        if (!IsWholeBetween(balls[i], 1, highest))
            return false;
        for (size_t j = 0; j < i; ++j)
            if (balls[i] == balls[j])
                return false;
    }
    return true;
}

} // namespace

const Game MainGame{1, u"Main"_s, u"Bonus"_s, 6, 49, 49, true, true};
const Game ThunderballGame{2, u"Thunderball"_s, u"Thunderball"_s, 5, 34, 14, false, false};

const std::array<QString, 4> MachineNames{u"ARTHUR"_s, u"GUINEVERE"_s, u"LANCELOT"_s, u"MERLIN"_s};
const std::array<QString, 8> BallSetNames{u"1"_s, u"2"_s, u"3"_s, u"4"_s, u"5"_s, u"6"_s, u"7"_s, u"8"_s};

const Game& GameOfDrawType(int drawType)
{
    return drawType == MainGame.drawType ? MainGame : ThunderballGame;
}

QString Game::BallCaption(int slot) const
{
    return IsExtra(slot) ? extraBallName : u"Ball %1"_s.arg(slot + 1);
}

bool IsPossibleDraw(const Game& game, const DrawBalls& balls)
{
    const auto mainBalls = static_cast<size_t>(game.mainBalls);
    const size_t different = game.extraFromSameMachine ? mainBalls + 1 : mainBalls;
    return AreDifferentWholeNumbers(std::span(balls).first(different), game.highestMain) &&
           IsWholeBetween(balls.at(mainBalls), 1, game.highestExtra);
}

bool IsPossibleEntry(const Game& game, const EntryNumbers& numbers)
{
    return AreDifferentWholeNumbers(std::span(numbers).first(static_cast<size_t>(game.mainBalls)), game.highestMain) &&
           (game.IsMain() || IsWholeBetween(numbers.back(), 1, game.highestExtra));
}
