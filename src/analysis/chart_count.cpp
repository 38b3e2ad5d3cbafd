#include "analysis/chart_count.h"

#include "base/numbers.h"
#include "base/texts.h"
#include "game/game.h"
#include "store/draw_tables.h"
#include "store/open_databases.h"

#include <algorithm>
#include <cmath>

namespace {

// The functions that give a bar give its number, or 0 for what has no bar.

int NumberedBar(double value, int bars)
{
    return IsWholeBetween(value, 1, bars) ? static_cast<int>(value) : 0;
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

int MachineBar(const QString& machine)
{
    const auto* found = std::find(MachineNames.begin(), MachineNames.end(), machine);
    return found == MachineNames.end() ? 0 : static_cast<int>(found - MachineNames.begin()) + 1;
}

int BallBar(const Chart& chart, double ball)
{
    if (chart.subject == ChartSubject::Colours)
        return ColourBar(ball);
    if (chart.subject == ChartSubject::OddAndEven)
        return OddOrEvenBar(ball);
    return NumberedBar(ball, chart.bars);
}

// The values stand at their bars' numbers; place 0 takes what has no bar.

std::vector<int> CountDraws(const Chart& chart, SlotRange slots, RecordSet& draws)
{
    std::vector<int> values(static_cast<size_t>(chart.bars) + 1);
    const auto addOne = [&values](int bar) { ++values[static_cast<size_t>(bar)]; };
    for (draws.MoveFirst(); !draws.Eof(); draws.MoveNext()) {
        if (chart.subject == ChartSubject::Machines)
            addOne(MachineBar(FromUtf8(draws.Text(DrawField::Machine))));
        else if (chart.subject == ChartSubject::BallSets)
            addOne(NumberedBar(draws.Number(DrawField::BallSet), chart.bars));
        else
            for (int slot = slots.first; slot < slots.end; ++slot)
                addOne(BallBar(chart, draws.Number(DrawField::FirstBall + slot)));
    }
    return values;
}

std::vector<int> CountDrawsSince(const Chart& chart, SlotRange slots, RecordSet& newestFirst)
{
    newestFirst.MoveFirst();
    // A ball that never came is as old as the history is long.
    std::vector<int> values(static_cast<size_t>(chart.bars) + 1, newestFirst.Count());
    for (int since = 0; !newestFirst.Eof(); newestFirst.MoveNext(), ++since)
        for (int slot = slots.first; slot < slots.end; ++slot) {
            const int bar = NumberedBar(newestFirst.Number(DrawField::FirstBall + slot), chart.bars);
            int& value = values[static_cast<size_t>(bar)];
            value = std::min(value, since);
        }
    return values;
}

} // namespace

std::vector<ChartBar> CountBars(const Chart& chart, BallType type)
{
    const bool isSince = chart.subject == ChartSubject::DrawsSince;
    RecordSet& draws = isSince ? DrawListOf(*chart.game) : DrawsOf(*chart.game);
    const SlotRange slots = SlotsOf(*chart.game, type);
    const std::vector<int> values = isSince ? CountDrawsSince(chart, slots, draws) : CountDraws(chart, slots, draws);
    std::vector<ChartBar> bars;
    if (draws.IsEmpty())
        return bars;
    for (int bar = 1; bar <= chart.bars; ++bar)
        bars.push_back({chart.label(bar), chart.colour(bar), values[static_cast<size_t>(bar)]});
    return bars;
}
