#include "analysis/charts.h"

#include "game/ball_colours.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

BarColour ColourOfBall(const Chart& chart, int ball)
{
    constexpr std::array<BarColour, 5> bands{BarColour::White, BarColour::LightBlue, BarColour::LightRed,
                                             BarColour::LightGreen, BarColour::Yellow};
    if (chart.game->IsMain())
        return bands.at(static_cast<size_t>(BallColourBand(ball)) - 1);
    return chart.ballType == BallType::ExtraBall ? BarColour::LightRed : BarColour::LightBlue;
}

const QStringList DrawnAs{u"as a main ball, "_s, u"as a bonus ball, "_s, u""_s};
const QStringList BallsHave{u"main balls have "_s, u"bonus ball has "_s, u"lottery balls have "_s};
const QStringList SinceDrawnAs{u" as a main ball."_s, u" as a bonus ball."_s, u"."_s};

const Chart Charts[] = {
    {1, &MainGame, ChartSubject::Balls, BallType::AllBalls,
     u"This is a bar chart, showing how many times each lottery ball has been drawn %1in the main lottery draw."_s,
     DrawnAs},
    {2, &MainGame, ChartSubject::Colours, BallType::AllBalls,
     u"This is a bar chart, showing how many times each different colour of lottery ball has been drawn %1in the main "
     "lottery draw."_s,
     DrawnAs},
    {3, &MainGame, ChartSubject::OddAndEven, BallType::AllBalls,
     u"This is a bar chart, showing how many times the %1been either odd, or even, in the main lottery draw."_s,
     BallsHave},
    {4, &MainGame, ChartSubject::DrawsSince, BallType::AllBalls,
     u"This is a bar chart, showing how many draws have taken place since each ball has been drawn%1"_s, SinceDrawnAs},
    {5, &MainGame, ChartSubject::Machines, BallType::AllBalls,
     u"This is a bar chart, showing how many times each lottery machine has been used for the main draw."_s},
    {6, &MainGame, ChartSubject::BallSets, BallType::AllBalls,
     u"This is a bar chart, showing how many times each set of balls has been used for the main draw."_s},
    {21, &ThunderballGame, ChartSubject::Balls, BallType::MainBalls,
     u"This is a bar chart, showing how many times each main lottery ball has been drawn in the thunderball draw."_s},
    {22, &ThunderballGame, ChartSubject::DrawsSince, BallType::MainBalls,
     u"This is a bar chart, showing how many draws have taken place since each ball has been drawn as a main ball in "
     "the thunderball draw."_s},
    {23, &ThunderballGame, ChartSubject::Balls, BallType::ExtraBall,
     u"This is a bar chart, showing how many times each lottery ball has been drawn as the thunderball, in the "
     "thunderball draw."_s},
    {24, &ThunderballGame, ChartSubject::DrawsSince, BallType::ExtraBall,
     u"This is a bar chart, showing how many draws have taken place since each ball has been drawn as a thunderball in "
     "the thunderball draw."_s},
};

} // namespace

QColor FillOf(BarColour colour)
{
    switch (colour) {
    case BarColour::LightBlue:
        return {0x8C, 0xC8, 0xF5};
    case BarColour::LightGreen:
        return {0x8E, 0xDB, 0x9A};
    case BarColour::LightRed:
        return {0xF2, 0x8B, 0x82};
    case BarColour::Yellow:
        return {0xF5, 0xE2, 0x7A};
    case BarColour::White:
        break;
    }
    return Qt::white;
}

QColor OutlineOf(const QColor& fill)
{
    return fill.darker(fill.lightness() > 250 ? 200 : 145);
}

std::vector<ChartBar> Chart::Bars() const
{
    using enum BarColour;
    switch (subject) {
    case ChartSubject::Colours:
        return {{u"1 - 9"_s, White},
                {u"10 - 19"_s, LightBlue},
                {u"20 - 29"_s, LightRed},
                {u"30 - 39"_s, LightGreen},
                {u"40 - 49"_s, Yellow}};
    case ChartSubject::OddAndEven:
        return {{u"Odd"_s, LightBlue}, {u"Even"_s, LightRed}};
    case ChartSubject::Machines:
        return {
            {u"Arthur"_s, White}, {u"Guinevere"_s, LightBlue}, {u"Lancelot"_s, LightRed}, {u"Merlin"_s, LightGreen}};
    case ChartSubject::BallSets:
        return {{u"Set 1"_s, White}, {u"Set 2"_s, LightBlue}, {u"Set 3"_s, LightRed}, {u"Set 4"_s, LightGreen},
                {u"Set 5"_s, White}, {u"Set 6"_s, LightBlue}, {u"Set 7"_s, LightRed}, {u"Set 8"_s, LightGreen}};
    case ChartSubject::Balls:
    case ChartSubject::DrawsSince:
        break;
    }
    std::vector<ChartBar> bars;
    for (int ball = 1; ball <= game->Highest(SlotsOf(*game, ballType).first); ++ball)
        bars.push_back({QString::number(ball), ColourOfBall(*this, ball)});
    return bars;
}

QString Chart::Title() const
{
    return game->name + u" Draw"_s;
}

QString Chart::Description(BallType type) const
{
    return HasBallTypeOption() ? description.arg(phrases[static_cast<int>(type)]) : description;
}

std::span<const Chart> AllCharts()
{
    return Charts;
}

const Chart& FindChart(int number)
{
    return *std::find_if(std::begin(Charts), std::end(Charts),
                         [&](const Chart& chart) { return chart.number == number; });
}
