#pragma once

#include "analysis/charts.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

struct ChartBar
{
    QString label;
    BarColour colour;
    int value;
};

/// Counts a chart while the draws go by. Main balls and the extra ball are counted apart, so that every ball type can
/// be asked for afterwards. What is no ball, machine or set of balls of the chart has no bar and is left out.
class ChartCount
{
public:
    explicit ChartCount(const Chart& countedChart);

    /// The next draws: the balls that `SlotsRead` names, draw after draw.
    void AddDraws(const DrawnBalls& balls);
    /// The next draw's machine or set of balls.
    void AddText(std::string_view text);

    bool IsEmpty() const { return draws == 0; }
    std::vector<ChartBar> Bars(BallType type) const;

private:
    /// The values of the bars by their numbers; place 0 takes what has no bar.
    using Tally = std::vector<int>;

    Tally& TallyOf(int slot);
    template <typename BarOf>
    void CountDraws(const DrawnBalls& balls, BarOf barOf);
    void CountDrawsSince(const DrawnBalls& balls);
    int Value(int bar, BallType type) const;
    int MachineBar(std::string_view machine) const;

    const Chart* chart;
    int draws = 0;
    Tally mainBalls;
    Tally extraBall;
    /// How many bars of "draws since" are still to be found.
    int missing = 0;
    std::array<std::string, 5> machines;
    std::array<std::uint8_t, 256> machineByLetter{};
};
