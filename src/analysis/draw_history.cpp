#include "analysis/draw_history.h"

#include "store/draw_tables.h"
#include "store/open_databases.h"

namespace {

/// So many draws are read before they are counted: few enough to stay in the processor's own memory.
constexpr int DrawsAtOnce = 2048;

/// The number of a ball whose field does not hold it as a whole number; 0 for what is no ball.
std::uint16_t OtherBall(double ball)
{
    for (std::uint16_t number = 1; number <= HighestBall; ++number)
        if (ball == number)
            return number;
    return 0;
}

/// Reads the balls of the current record and of those behind it, until there are enough or the end is reached.
void ReadOn(RecordSet& draws, DrawnBalls& balls, int most)
{
    balls.others.clear();
    balls.numbers.resize(static_cast<size_t>(most) * static_cast<size_t>(balls.slots.Count()));
    auto number = balls.numbers.begin();
    for (int draw = 0; draw < most && !draws.Eof(); ++draw, draws.MoveNext()) {
        for (int slot = balls.slots.first; slot < balls.slots.end; ++slot, ++number) {
            std::int64_t whole = 0;
            if (draws.WholeNumber(DrawField::FirstBall + slot, whole) && whole >= 1 && whole <= HighestBall) {
                *number = static_cast<std::uint16_t>(whole);
                continue;
            }
            const double ball = draws.Number(DrawField::FirstBall + slot);
            *number = OtherBall(ball);
            if (*number == 0)
                balls.others[static_cast<size_t>(number - balls.numbers.begin())] = ball;
        }
    }
    balls.numbers.erase(number, balls.numbers.end());
}

} // namespace

DrawnBalls ReadDrawnBalls(RecordSet& draws, SlotRange slots)
{
    DrawnBalls balls{slots, {}, {}};
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
    DrawnBalls balls{chart.SlotsRead(), {}, {}};
    while (!draws.Eof()) {
        ReadOn(draws, balls, DrawsAtOnce);
        count.AddDraws(balls);
    }
    return count;
}
