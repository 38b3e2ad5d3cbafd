#include "analysis/charts.h"

#include "game/ball_colours.h"
#include "game/game.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr std::array<BarColour, 5> BandColours{BarColour::White, BarColour::LightBlue, BarColour::LightRed,
                                               BarColour::LightGreen, BarColour::Yellow};

QString NumberLabel(int bar)
{
    return QString::number(bar);
}

QString BandLabel(int bar)
{
    return u"%1 - %2"_s.arg(bar == 1 ? 1 : 10 * (bar - 1)).arg(10 * bar - 1);
}

QString OddOrEvenLabel(int bar)
{
    return bar == 1 ? u"Odd"_s : u"Even"_s;
}

QString MachineLabel(int bar)
{
    const QString& name = MachineNames.at(static_cast<size_t>(bar) - 1);
    return name.left(1) + name.mid(1).toLower();
}

QString BallSetLabel(int bar)
{
    return u"Set %1"_s.arg(bar);
}

BarColour ColourOfBand(int bar)
{
    return BandColours.at(static_cast<size_t>(bar) - 1);
}

BarColour ColourOfBall(int bar)
{
    return ColourOfBand(BallColourBand(bar));
}

BarColour ColourOfOddOrEven(int bar)
{
    return bar == 1 ? BarColour::LightBlue : BarColour::LightRed;
}

/// The first four colours in turn.
BarColour ColourInTurn(int bar)
{
    return ColourOfBand((bar - 1) % 4 + 1);
}

BarColour AllBlue(int /*bar*/)
{
    return BarColour::LightBlue;
}

BarColour AllRed(int /*bar*/)
{
    return BarColour::LightRed;
}

constexpr std::array<const char*, 3> DrawnAs{"as a main ball, ", "as a bonus ball, ", ""};
constexpr std::array<const char*, 3> BallsHave{"main balls have ", "bonus ball has ", "lottery balls have "};
constexpr std::array<const char*, 3> SinceDrawnAs{" as a main ball.", " as a bonus ball.", "."};
constexpr std::array<const char*, 3> NoPhrases{"", "", ""};

constexpr Chart Charts[] = {
    {1, &MainGame, ChartSubject::Balls, 49, BallType::AllBalls, true, NumberLabel, ColourOfBall,
     "This is a bar chart, showing how many times each lottery ball has been drawn %1in the main lottery draw.",
     DrawnAs},
    {2, &MainGame, ChartSubject::Colours, 5, BallType::AllBalls, true, BandLabel, ColourOfBand,
     "This is a bar chart, showing how many times each different colour of lottery ball has been drawn %1in the main "
     "lottery draw.",
     DrawnAs},
    {3, &MainGame, ChartSubject::OddAndEven, 2, BallType::AllBalls, true, OddOrEvenLabel, ColourOfOddOrEven,
     "This is a bar chart, showing how many times the %1been either odd, or even, in the main lottery draw.",
     BallsHave},
    {4, &MainGame, ChartSubject::DrawsSince, 49, BallType::AllBalls, true, NumberLabel, ColourOfBall,
     "This is a bar chart, showing how many draws have taken place since each ball has been drawn%1", SinceDrawnAs},
    {5, &MainGame, ChartSubject::Machines, 4, BallType::AllBalls, false, MachineLabel, ColourInTurn,
     "This is a bar chart, showing how many times each lottery machine has been used for the main draw.", NoPhrases},
    {6, &MainGame, ChartSubject::BallSets, 8, BallType::AllBalls, false, BallSetLabel, ColourInTurn,
     "This is a bar chart, showing how many times each set of balls has been used for the main draw.", NoPhrases},
    {21, &ThunderballGame, ChartSubject::Balls, 34, BallType::MainBalls, false, NumberLabel, AllBlue,
     "This is a bar chart, showing how many times each main lottery ball has been drawn in the thunderball draw.",
     NoPhrases},
    {22, &ThunderballGame, ChartSubject::DrawsSince, 34, BallType::MainBalls, false, NumberLabel, AllBlue,
     "This is a bar chart, showing how many draws have taken place since each ball has been drawn as a main ball in "
     "the thunderball draw.",
     NoPhrases},
    {23, &ThunderballGame, ChartSubject::Balls, 14, BallType::ExtraBall, false, NumberLabel, AllRed,
     "This is a bar chart, showing how many times each lottery ball has been drawn as the thunderball, in the "
     "thunderball draw.",
     NoPhrases},
    {24, &ThunderballGame, ChartSubject::DrawsSince, 14, BallType::ExtraBall, false, NumberLabel, AllRed,
     "This is a bar chart, showing how many draws have taken place since each ball has been drawn as a thunderball in "
     "the thunderball draw.",
     NoPhrases},
};

} // namespace

QString Chart::Title() const
{
    return game->name + u" Draw"_s;
}

QString Chart::Description(BallType type) const
{
    const QString text = QLatin1String(description);
    return hasBallTypeOption ? text.arg(QLatin1String(phrases.at(static_cast<size_t>(type)))) : text;
}

SlotRange Chart::SlotsRead() const
{
    if (subject == ChartSubject::Machines || subject == ChartSubject::BallSets)
        return {};
    return SlotsOf(*game, ballType);
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
