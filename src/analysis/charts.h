#pragma once

#include "analysis/drawn_balls.h"

#include <QString>

#include <array>
#include <span>

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
