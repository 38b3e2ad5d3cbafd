#include "analysis/chart_count.h"

#include "base/numbers.h"
#include "game/game.h"

#include <algorithm>
#include <limits>

namespace {

constexpr int NotYet = std::numeric_limits<int>::max();

/// A bar numbered by a value; 0 for a value that numbers none.
int NumberedBar(double value, int bars)
{
    if (!(value >= 1 && value <= bars))
        return 0;
    const int whole = static_cast<int>(value);
    return whole == value ? whole : 0;
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
    // Numbers too large for the conversion are whole and even anyhow.
    constexpr double largest = 9007199254740992.0;
    const double half = ball / 2;
    const bool isWhole = !(half > -largest && half < largest) || half == static_cast<double>(static_cast<qint64>(half));
    return isWhole ? 2 : 1;
}

int BallSetBar(std::string_view ballSet, int bars)
{
    // Nearly every set is one digit, and reading any number takes as long as the walk itself.
    if (ballSet.size() == 1)
        return NumberedBar(ballSet.front() - '0', bars);
    return NumberedBar(NumericValue(ballSet), bars);
}

} // namespace

ChartCount::ChartCount(const Chart& countedChart)
    : chart(&countedChart), mainBalls(static_cast<size_t>(chart->bars) + 1), extraBall(mainBalls)
{
    if (chart->subject == ChartSubject::DrawsSince) {
        const SlotRange slots = chart->SlotsRead();
        for (int slot : {slots.first, slots.end - 1})
            std::fill(TallyOf(slot).begin() + 1, TallyOf(slot).end(), NotYet);
        for (const Tally* tally : {&mainBalls, &extraBall})
            missing += static_cast<int>(std::count(tally->begin(), tally->end(), NotYet));
    }
    // No two machines begin with the same letter, so that one comparison a draw tells them apart.
    for (size_t bar = 1; bar < machines.size(); ++bar) {
        machines.at(bar) = MachineNames.at(bar - 1).toStdString();
        machineByLetter.at(static_cast<unsigned char>(machines.at(bar).front())) = static_cast<std::uint8_t>(bar);
    }
}

ChartCount::Tally& ChartCount::TallyOf(int slot)
{
    return chart->game->IsExtra(slot) ? extraBall : mainBalls;
}

template <typename BarOf>
void ChartCount::CountDraws(const DrawnBalls& balls, BarOf barOf)
{
    // Balls are first counted by their numbers, which is the quickest; only what is no ball goes to its bar at once.
    const auto distance = static_cast<size_t>(balls.slots.Count());
    for (int slot = balls.slots.first; slot < balls.slots.end; ++slot) {
        std::array<int, HighestBall + 1> drawn{};
        for (auto place = static_cast<size_t>(slot - balls.slots.first); place < balls.numbers.size();
             place += distance)
            ++drawn[balls.numbers[place]];
        Tally& tally = TallyOf(slot);
        for (int number = 1; number <= HighestBall; ++number)
            tally[static_cast<size_t>(barOf(number))] += drawn[static_cast<size_t>(number)];
    }
    for (const auto& [place, value] : balls.others)
        ++TallyOf(balls.slots.first + static_cast<int>(place % distance))[static_cast<size_t>(barOf(value))];
}

void ChartCount::CountDrawsSince(const DrawnBalls& balls)
{
    const int newDraws = balls.Draws();
    for (int draw = 0; draw < newDraws && missing > 0; ++draw) {
        for (int slot = balls.slots.first; slot < balls.slots.end; ++slot) {
            const int number = balls.NumberAt(draw, slot);
            int& since = TallyOf(slot)[static_cast<size_t>(number <= chart->bars ? number : 0)];
            if (since != NotYet)
                continue;
            since = draws + draw;
            --missing;
        }
    }
}

void ChartCount::AddDraws(const DrawnBalls& balls)
{
    if (chart->subject == ChartSubject::Colours)
        CountDraws(balls, ColourBar);
    else if (chart->subject == ChartSubject::OddAndEven)
        CountDraws(balls, OddOrEvenBar);
    else if (chart->subject == ChartSubject::DrawsSince)
        CountDrawsSince(balls);
    else
        CountDraws(balls, [bars = chart->bars](double ball) { return NumberedBar(ball, bars); });
    draws += balls.Draws();
}

void ChartCount::AddText(std::string_view text)
{
    const int bar = chart->subject == ChartSubject::Machines ? MachineBar(text) : BallSetBar(text, chart->bars);
    ++mainBalls[static_cast<size_t>(bar)];
    ++draws;
}

int ChartCount::MachineBar(std::string_view machine) const
{
    const size_t bar = machine.empty() ? 0 : machineByLetter[static_cast<unsigned char>(machine.front())];
    return bar != 0 && machines[bar] == machine ? static_cast<int>(bar) : 0;
}

int ChartCount::Value(int bar, BallType type) const
{
    const int main = mainBalls[static_cast<size_t>(bar)];
    const int extra = extraBall[static_cast<size_t>(bar)];
    if (chart->subject != ChartSubject::DrawsSince)
        return (type == BallType::ExtraBall ? 0 : main) + (type == BallType::MainBalls ? 0 : extra);
    // A ball that never came is as old as the history is long.
    return std::min({draws, type == BallType::ExtraBall ? NotYet : main, type == BallType::MainBalls ? NotYet : extra});
}

std::vector<ChartBar> ChartCount::Bars(BallType type) const
{
    std::vector<ChartBar> bars;
    bars.reserve(static_cast<size_t>(chart->bars));
    for (int bar = 1; bar <= chart->bars; ++bar)
        bars.push_back({chart->label(bar), chart->colour(bar), Value(bar, type)});
    return bars;
}
