#pragma once

#include "analysis/charts.h"

/// Counts the chart over all draws of its game, looking at the balls of the given type; what is no ball, machine or set
/// of balls of the chart has no bar and is left out. Empty where there are no draws. Throws Failure.
std::vector<ChartBar> CountBars(const Chart& chart, BallType type);
