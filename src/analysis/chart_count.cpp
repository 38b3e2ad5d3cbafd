#include "analysis/charts.h"

#include "base/numbers.h"
#include "base/texts.h"
#include "store/draw_tables.h"
#include "store/open_databases.h"

#include <algorithm>
#include <cmath>

namespace {

/// The bar for a value that counts bars from 1; null where it has none.
ChartBar* NumberedBar(std::vector<ChartBar>& bars, double value)
{
    const bool hasBar = IsWholeBetween(value, 1, static_cast<int>(bars.size()));
    return hasBar ? &bars[static_cast<size_t>(value) - 1] : nullptr;
}

int ColourBar(double ball)
{
    int bar = 1;
    for (const double firstOfNext : {10.0, 20.0, 30.0, 40.0})
        bar += ball >= firstOfNext ? 1 : 0;
    return bar;
}

double BarOfBall(ChartSubject subject, double ball)
{
    if (subject == ChartSubject::Colours)
        return ColourBar(ball);
    if (subject == ChartSubject::OddAndEven)
        return ball / 2 == std::trunc(ball / 2) ? 2 : 1;
    return ball;
}

/// What is no machine is given a number that no bar has.
double BarOfMachine(const QString& machine)
{
    const auto place = std::find(MachineNames.begin(), MachineNames.end(), machine) - MachineNames.begin();
    return static_cast<double>(place) + 1;
}

void CountDraws(ChartSubject subject, SlotRange slots, RecordSet& draws, std::vector<ChartBar>& bars)
{
    const auto addOne = [&bars](double number) {
        if (ChartBar* bar = NumberedBar(bars, number))
            ++bar->value;
    };
    for (draws.MoveFirst(); !draws.Eof(); draws.MoveNext()) {
        if (subject == ChartSubject::Machines)
            addOne(BarOfMachine(FromUtf8(draws.Text(DrawField::Machine))));
        else if (subject == ChartSubject::BallSets)
            addOne(draws.Number(DrawField::BallSet));
        else
            for (int slot = slots.first; slot < slots.end; ++slot)
                addOne(BarOfBall(subject, draws.Number(DrawField::FirstBall + slot)));
    }
}

void CountDrawsSince(SlotRange slots, RecordSet& newestFirst, std::vector<ChartBar>& bars)
{
    newestFirst.MoveFirst();
    // A ball that never came is as old as the history is long.
    for (ChartBar& bar : bars)
        bar.value = newestFirst.Count();
    for (int since = 0; !newestFirst.Eof(); newestFirst.MoveNext(), ++since)
        for (int slot = slots.first; slot < slots.end; ++slot)
            if (ChartBar* bar = NumberedBar(bars, newestFirst.Number(DrawField::FirstBall + slot)))
                bar->value = std::min(bar->value, since);
}

} // namespace

std::vector<ChartBar> CountBars(const Chart& chart, BallType type)
{
    const bool isSince = chart.subject == ChartSubject::DrawsSince;
    RecordSet& draws = isSince ? DrawListOf(*chart.game) : DrawsOf(*chart.game);
    const SlotRange slots = SlotsOf(*chart.game, type);
    std::vector<ChartBar> bars = chart.Bars();
    if (isSince)
        CountDrawsSince(slots, draws, bars);
    else
        CountDraws(chart.subject, slots, draws, bars);
    return draws.IsEmpty() ? std::vector<ChartBar>() : bars;
}
