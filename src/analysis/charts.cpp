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

const std::array<QString, 3> DrawnAs{u"as a main ball, "_s, u"as a bonus ball, "_s, u""_s};
const std::array<QString, 3> BallsHave{u"main balls have "_s, u"bonus ball has "_s, u"lottery balls have "_s};
const std::array<QString, 3> SinceDrawnAs{u" as a main ball."_s, u" as a bonus ball."_s, u"."_s};

const Chart Charts[] = {
    {1, &MainGame, ChartSubject::Balls, 49, BallType::AllBalls, true, NumberLabel, ColourOfBall,
     u"This is a bar chart, showing how many times each lottery ball has been drawn %1in the main lottery draw."_s,
     DrawnAs},
    {2, &MainGame, ChartSubject::Colours, 5, BallType::AllBalls, true, BandLabel, ColourOfBand,
     u"This is a bar chart, showing how many times each different colour of lottery ball has been drawn %1in the main "
     "lottery draw."_s,
     DrawnAs},
    {3, &MainGame, ChartSubject::OddAndEven, 2, BallType::AllBalls, true, OddOrEvenLabel, ColourOfOddOrEven,
     u"This is a bar chart, showing how many times the %1been either odd, or even, in the main lottery draw."_s,
     BallsHave},
    {4, &MainGame, ChartSubject::DrawsSince, 49, BallType::AllBalls, true, NumberLabel, ColourOfBall,
     u"This is a bar chart, showing how many draws have taken place since each ball has been drawn%1"_s, SinceDrawnAs},
    {5, &MainGame, ChartSubject::Machines, 4, BallType::AllBalls, false, MachineLabel, ColourInTurn,
     u"This is a bar chart, showing how many times each lottery machine has been used for the main draw."_s},
    {6, &MainGame, ChartSubject::BallSets, 8, BallType::AllBalls, false, BallSetLabel, ColourInTurn,
     u"This is a bar chart, showing how many times each set of balls has been used for the main draw."_s},
    {21, &ThunderballGame, ChartSubject::Balls, 34, BallType::MainBalls, false, NumberLabel, AllBlue,
     u"This is a bar chart, showing how many times each main lottery ball has been drawn in the thunderball draw."_s},
    {22, &ThunderballGame, ChartSubject::DrawsSince, 34, BallType::MainBalls, false, NumberLabel, AllBlue,
     u"This is a bar chart, showing how many draws have taken place since each ball has been drawn as a main ball in "
     "the thunderball draw."_s},
    {23, &ThunderballGame, ChartSubject::Balls, 14, BallType::ExtraBall, false, NumberLabel, AllRed,
     u"This is a bar chart, showing how many times each lottery ball has been drawn as the thunderball, in the "
     "thunderball draw."_s},
    {24, &ThunderballGame, ChartSubject::DrawsSince, 14, BallType::ExtraBall, false, NumberLabel, AllRed,
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

QString Chart::Title() const
{
    return game->name + u" Draw"_s;
}

QString Chart::Description(BallType type) const
{
    return hasBallTypeOption ? description.arg(phrases.at(static_cast<size_t>(type))) : description;
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
