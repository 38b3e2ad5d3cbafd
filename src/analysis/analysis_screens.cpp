#include "analysis/analysis_screens.h"

#include "game/game.h"

using namespace Qt::StringLiterals;

namespace {

constexpr char CountOption[] =
    "You have the option to count main balls only, bonus balls only or both main AND bonus balls.";

constexpr AnalysisScreen MainScreens[] = {
    {"Ball Frequency", "This shows you how many times each lottery ball has been drawn from the main lottery draw.",
     CountOption, 1},
    {"Colour Frequency",
     "This shows you how many times each lottery ball colour (and it's associated number range) has been drawn from "
     "the main lottery draw.",
     CountOption, 2},
    {"Odd/Even Numbers",
     "This shows you how many times each drawn lottery ball from the main lottery draw has been either an odd or even "
     "number.",
     CountOption, 3},
    {"How Long Since ?",
     "This shows you how many draws have taken place since each lottery ball was last drawn in the main lottery draw.",
     "You have the option to stop the count at the first main ball, bonus ball or either found.", 4},
    {"Lottery Machine", "This shows you how many times each lottery machine has been used for the main lottery draw.",
     "", 5},
    {"Ball Sets", "This shows you how many times each set of balls has been used for the main lottery draw.", "", 6},
    {"Individual Ball Data",
     "After entering any ball number, you will be shown how often that ball has appeared and when it appeared, as a "
     "main ball or bonus ball.",
     "", 0},
};

constexpr AnalysisScreen ThunderballScreens[] = {
    {"Main Ball Frequency",
     "This shows you how many times each lottery ball has been drawn as a main ball in the thunderball lottery draw.",
     "", 21},
    {"How Long Since ?",
     "This shows you how many draws have taken place since each lottery ball was last drawn as a main ball in the "
     "thunderball lottery draw.",
     "", 22},
    {"Thunderball Frequency",
     "This shows you how many times each lottery ball has been drawn as the thunderball in the thunderball lottery "
     "draw.",
     "", 23},
    {"How Long Since ?",
     "This shows you how many draws have taken place since each lottery ball was last drawn as the thunderball in the "
     "thunderball lottery draw.",
     "", 24},
    {"Individual Ball Data",
     "After entering any ball number, you will be shown how often that ball has appeared and when it appeared, as a "
     "main ball or thunderball.",
     "", 0},
};

} // namespace

QString AnalysisScreen::Description() const
{
    const QString text = QLatin1String(firstSentence);
    return *secondSentence == '\0' ? text : text + u"\r\n"_s + QLatin1String(secondSentence);
}

std::span<const AnalysisScreen> ScreensOf(const Game& game)
{
    if (game.drawType == MainGame.drawType)
        return MainScreens;
    return ThunderballScreens;
}
