#include "analysis/charts.h"

#include "draws/ball_colours.h"
#include "draws/game.h"
#include "platform/numbers.h"

#include <algorithm>
#include <cmath>
#include <string>

namespace {

constexpr std::array<BarColour, 5> BandColours{BarColour::White, BarColour::LightBlue, BarColour::LightRed,
                                               BarColour::LightGreen, BarColour::Yellow};

QString NumberLabel(int bar)
{
    return QString::number(bar);
}

QString BandLabel(int bar)
{
    return QStringLiteral("%1 - %2").arg(bar == 1 ? 1 : 10 * (bar - 1)).arg(10 * bar - 1);
}

QString OddOrEvenLabel(int bar)
{
    return bar == 1 ? QStringLiteral("Odd") : QStringLiteral("Even");
}

QString MachineLabel(int bar)
{
    const QString& name = MachineNames.at(static_cast<size_t>(bar) - 1);
    return name.left(1) + name.mid(1).toLower();
}

QString BallSetLabel(int bar)
{
    return QStringLiteral("Set %1").arg(bar);
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

/// The values of the bars while they are counted.
class Tally
{
public:
    Tally(int bars, int start) : values(static_cast<size_t>(bars), start) {}

    /// The bar that a value numbers, or nullptr where there is none.
    int* BarOf(double value)
    {
        if (!IsWholeBetween(value, 1, static_cast<int>(values.size())))
            return nullptr;
        return &values[static_cast<size_t>(value) - 1];
    }
    void AddTo(double value)
    {
        if (int* bar = BarOf(value))
            ++*bar;
    }
    std::vector<int> Take() { return std::move(values); }

private:
    std::vector<int> values;
};

template <typename Action>
void ForEachBall(const DrawnBalls& balls, SlotRange counted, Action action)
{
    const int draws = balls.Draws();
    for (int draw = 0; draw < draws; ++draw)
        for (int slot = counted.first; slot < counted.end; ++slot)
            action(draw, balls.At(draw, slot));
}

int ColourBar(double ball)
{
    int bar = 1;
    for (const double firstOfNext : {10.0, 20.0, 30.0, 40.0})
        bar += ball >= firstOfNext ? 1 : 0;
    return bar;
}

int OddOrEvenBar(double ball)
{
    return ball / 2 == std::trunc(ball / 2) ? 2 : 1;
}

std::vector<int> CountDrawsSince(int bars, const DrawnBalls& balls, SlotRange counted)
{
    // A ball that never came is as old as the history is long; so is, until it comes, every other.
    const int draws = balls.Draws();
    Tally tally(bars, draws);
    ForEachBall(balls, counted, [&](int draw, double ball) {
        if (int* bar = tally.BarOf(ball); bar != nullptr && *bar == draws)
            *bar = draw;
    });
    return tally.Take();
}

std::vector<int> CountMachines(int bars, std::span<const std::string_view> machines)
{
    std::vector<std::string> names;
    for (const QString& name : MachineNames)
        names.push_back(name.toStdString());
    std::vector<int> values(static_cast<size_t>(bars), 0);
    for (const std::string_view machine : machines) {
        const auto found = std::find(names.begin(), names.end(), machine);
        if (found != names.end())
            ++values[static_cast<size_t>(found - names.begin())];
    }
    return values;
}

std::vector<int> CountValues(const Chart& chart, const ChartRows& rows, BallType type)
{
    const SlotRange counted = SlotsOf(*chart.game, type);
    Tally tally(chart.bars, 0);
    switch (chart.subject) {
    case ChartSubject::Balls:
        ForEachBall(rows.balls, counted, [&](int /*draw*/, double ball) { tally.AddTo(ball); });
        break;
    case ChartSubject::Colours:
        ForEachBall(rows.balls, counted, [&](int /*draw*/, double ball) { tally.AddTo(ColourBar(ball)); });
        break;
    case ChartSubject::OddAndEven:
        ForEachBall(rows.balls, counted, [&](int /*draw*/, double ball) { tally.AddTo(OddOrEvenBar(ball)); });
        break;
    case ChartSubject::DrawsSince:
        return CountDrawsSince(chart.bars, rows.balls, counted);
    case ChartSubject::Machines:
        return CountMachines(chart.bars, rows.texts);
    case ChartSubject::BallSets:
        for (const std::string_view ballSet : rows.texts)
            tally.AddTo(NumericValue(ballSet));
        break;
    }
    return tally.Take();
}

} // namespace

QString Chart::Title() const
{
    return game->name + QStringLiteral(" Draw");
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

std::vector<ChartBar> CountBars(const Chart& chart, const ChartRows& rows, BallType type)
{
    const std::vector<int> values = CountValues(chart, rows, type);
    std::vector<ChartBar> bars;
    for (int bar = 1; bar <= chart.bars; ++bar)
        bars.push_back({chart.label(bar), chart.colour(bar), values[static_cast<size_t>(bar) - 1]});
    return bars;
}
