#include "analysis/draw_history.h"

#include "draws/draw_tables.h"
#include "shell/open_databases.h"

namespace {

/// So many draws are read before they are counted: few enough to stay in the processor's own memory.
constexpr int DrawsAtOnce = 512;

/// Reads the balls of the current record and of those behind it, until there are enough or the end is reached.
void ReadOn(RecordSet& draws, DrawnBalls& balls, int most)
{
    balls.values.resize(static_cast<size_t>(most) * static_cast<size_t>(balls.slots.Count()));
    auto value = balls.values.begin();
    for (int draw = 0; draw < most && !draws.Eof(); ++draw, draws.MoveNext())
        for (int slot = balls.slots.first; slot < balls.slots.end; ++slot)
            *value++ = draws.Number(DrawField::FirstBall + slot);
    balls.values.erase(value, balls.values.end());
}

} // namespace

DrawnBalls ReadDrawnBalls(RecordSet& draws, SlotRange slots)
{
    DrawnBalls balls{slots, {}};
    draws.MoveFirst();
    ReadOn(draws, balls, draws.Count());
    return balls;
}

ChartCount CountChart(const Chart& chart)
{
    ChartCount count(chart);
    RecordSet& draws = chart.NewestFirst() ? DrawListOf(*chart.game) : DrawsOf(*chart.game);
    draws.MoveFirst();
    if (chart.subject == ChartSubject::Machines || chart.subject == ChartSubject::BallSets) {
        const int field = chart.subject == ChartSubject::Machines ? DrawField::Machine : DrawField::BallSet;
        for (; !draws.Eof(); draws.MoveNext())
            count.AddText(draws.Text(field));
        return count;
    }
    DrawnBalls balls{chart.SlotsRead(), {}};
    while (!draws.Eof()) {
        ReadOn(draws, balls, DrawsAtOnce);
        count.AddDraws(balls);
    }
    return count;
}
