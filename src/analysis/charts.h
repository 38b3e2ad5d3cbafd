#pragma once

#include "analysis/ball_type.h"

#include <QColor>
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

/// The softened colour in which bars of that palette colour are filled.
QColor FillOf(BarColour colour);

/// The line around a bar, dark enough to set a white bar off from the card.
QColor OutlineOf(const QColor& fill);

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
    QString description;
    std::array<QString, 3> phrases = {};

    QString Title() const;
    QString Description(BallType type) const;
};

/// The charts of both games, in the order of their numbers.
std::span<const Chart> AllCharts();

/// The chart of that number. There must be one.
const Chart& FindChart(int number);
