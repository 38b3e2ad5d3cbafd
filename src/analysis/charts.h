#pragma once

#include "analysis/drawn_balls.h"

#include <QString>

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

/// The colours of the bars, by their places in the standard palette of sixteen.
enum class BarColour
{
    LightBlue = 9,
    LightGreen = 10,
    LightRed = 12,
    Yellow = 14,
    White = 15
};

/// What the bars of a chart count.
enum class ChartSubject
{
    Balls,
    Colours,
    OddAndEven,
    DrawsSince,
    Machines,
    BallSets
};

/// One of the ten bar charts: all that differs between them stands here. Bars are numbered from 1.
struct Chart
{
    int number;
    const Game* game;
    ChartSubject subject;
    int bars;
    /// The balls that are counted; where the player can choose, what the list starts with.
    BallType ballType;
    bool hasBallTypeOption;
    QString (*label)(int bar);
    BarColour (*colour)(int bar);
    /// With a place for the phrase of the ball type, where there is one.
    const char* description;
    std::array<const char*, 3> phrases;

    QString Title() const;
    QString Description(BallType type) const;
    /// The slots that the chart can ever need; none for a chart of machines or ball sets.
    SlotRange SlotsRead() const;
    /// Whether the draws must come newest first; in the table's own order otherwise.
    bool NewestFirst() const { return subject == ChartSubject::DrawsSince; }
};

/// The charts of both games, in the order of their numbers.
std::span<const Chart> AllCharts();

/// The chart of that number. There must be one.
const Chart& FindChart(int number);

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
