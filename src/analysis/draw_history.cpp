#include "analysis/draw_history.h"

#include "draws/draw_tables.h"
#include "shell/open_databases.h"

DrawnBalls ReadDrawnBalls(RecordSet& draws, SlotRange slots)
{
    DrawnBalls balls{slots, {}};
    draws.MoveFirst();
    balls.values.reserve(static_cast<size_t>(draws.Count()) * static_cast<size_t>(slots.Count()));
    for (; !draws.Eof(); draws.MoveNext())
        for (int slot = slots.first; slot < slots.end; ++slot)
            balls.values.push_back(draws.Number(DrawField::FirstBall + slot));
    return balls;
}

ChartRows ReadChartRows(const Chart& chart)
{
    RecordSet& draws = chart.NewestFirst() ? DrawListOf(*chart.game) : DrawsOf(*chart.game);
    if (const SlotRange slots = chart.SlotsRead(); slots.Count() > 0)
        return {ReadDrawnBalls(draws, slots), {}};
    const int field = chart.subject == ChartSubject::Machines ? DrawField::Machine : DrawField::BallSet;
    ChartRows rows;
    draws.MoveFirst();
    rows.texts.reserve(static_cast<size_t>(draws.Count()));
    for (; !draws.Eof(); draws.MoveNext())
        rows.texts.push_back(draws.Text(field));
    return rows;
}
