#include "analysis/analysis_screens.h"

#include "game/game.h"

using namespace Qt::StringLiterals;

namespace {

const QString CountOption =
    u"\r\nYou have the option to count main balls only, bonus balls only or both main AND bonus balls."_s;

const AnalysisScreen MainScreens[] = {
    {u"Ball Frequency"_s,
     u"This shows you how many times each lottery ball has been drawn from the main lottery draw."_s + CountOption, 1},
    {u"Colour Frequency"_s,
     u"This shows you how many times each lottery ball colour (and it's associated number range) has been drawn from "
     "the main lottery draw."_s +
         CountOption,
     2},
    {u"Odd/Even Numbers"_s,
     u"This shows you how many times each drawn lottery ball from the main lottery draw has been either an odd or even "
     "number."_s +
         CountOption,
     3},
    {u"How Long Since ?"_s,
     u"This shows you how many draws have taken place since each lottery ball was last drawn in the main lottery draw."_s +
         u"\r\nYou have the option to stop the count at the first main ball, bonus ball or either found."_s,
     4},
    {u"Lottery Machine"_s,
     u"This shows you how many times each lottery machine has been used for the main lottery draw."_s, 5},
    {u"Ball Sets"_s, u"This shows you how many times each set of balls has been used for the main lottery draw."_s, 6},
    {u"Individual Ball Data"_s,
     u"After entering any ball number, you will be shown how often that ball has appeared and when it appeared, as a "
     "main ball or bonus ball."_s,
     0},
};

const AnalysisScreen ThunderballScreens[] = {
    {u"Main Ball Frequency"_s,
     u"This shows you how many times each lottery ball has been drawn as a main ball in the thunderball lottery draw."_s,
     21},
    {u"How Long Since ?"_s,
     u"This shows you how many draws have taken place since each lottery ball was last drawn as a main ball in the "
     "thunderball lottery draw."_s,
     22},
    {u"Thunderball Frequency"_s,
     u"This shows you how many times each lottery ball has been drawn as the thunderball in the thunderball lottery "
     "draw."_s,
     23},
    {u"How Long Since ?"_s,
     u"This shows you how many draws have taken place since each lottery ball was last drawn as the thunderball in the "
     "thunderball lottery draw."_s,
     24},
    {u"Individual Ball Data"_s,
     u"After entering any ball number, you will be shown how often that ball has appeared and when it appeared, as a "
     "main ball or thunderball."_s,
     0},
};

} // namespace

std::span<const AnalysisScreen> ScreensOf(const Game& game)
{
    if (game.IsMain())
        return MainScreens;
    return ThunderballScreens;
}
