#pragma once

#include "analysis/chart_count.h"

class RecordSet;

/// Walks the record set from its first record to its end and takes the balls of the given slots. Throws Failure.
DrawnBalls ReadDrawnBalls(RecordSet& draws, SlotRange slots);

/// Counts the chart in one walk over its source: the game's draws in their own order, or newest first. Throws Failure.
ChartCount CountChart(const Chart& chart);
