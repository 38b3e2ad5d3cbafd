#include "draws/game.h"

#include "platform/numbers.h"

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

const Game MainGame{1, QStringLiteral("Main"), QStringLiteral("Bonus"), 6, 49, 49, true, true};
const Game ThunderballGame{2, QStringLiteral("Thunderball"), QStringLiteral("Thunderball"), 5, 34, 14, false, false};

const std::array<QString, 4> MachineNames{QStringLiteral("ARTHUR"), QStringLiteral("GUINEVERE"),
                                          QStringLiteral("LANCELOT"), QStringLiteral("MERLIN")};
const std::array<QString, 8> BallSetNames{QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3"),
                                          QStringLiteral("4"), QStringLiteral("5"), QStringLiteral("6"),
                                          QStringLiteral("7"), QStringLiteral("8")};

QString Game::BallCaption(int slot) const
{
    return IsExtra(slot) ? extraBallName : QStringLiteral("Ball %1").arg(slot + 1);
}

bool IsPossibleDraw(const Game& game, std::span<const double> balls)
{
    if (balls.size() != static_cast<size_t>(game.BallCount()))
        return false;
    if (game.extraFromSameMachine)
        return AreDifferentWholeNumbers(balls, game.highestMain);
    return AreDifferentWholeNumbers(balls.first(balls.size() - 1), game.highestMain) &&
           IsWholeBetween(balls.back(), 1, game.highestExtra);
}

bool IsPossibleEntry(const Game& game, std::span<const double> numbers)
{
    const auto mainBalls = static_cast<size_t>(game.mainBalls);
    if (numbers.size() != 6 || !AreDifferentWholeNumbers(numbers.first(mainBalls), game.highestMain))
        return false;
    return numbers.size() == mainBalls || IsWholeBetween(numbers.back(), 1, game.highestExtra);
}
