#pragma once

#include "game/game.h"

#include <QColor>
#include <QString>
#include <QStringList>

#include <span>
#include <vector>

/// Which balls of a draw are looked at. The values are the places in the list that the player chooses from.
enum class BallType
{
    MainBalls = 0,
    ExtraBall = 1,
    AllBalls = 2
};

/// Some neighbouring slots of a draw: from `first` up to, but not including, `end`.
struct SlotRange
{
    int first;
    int end;
};

inline SlotRange SlotsOf(const Game& game, BallType type)
{
    return {type == BallType::ExtraBall ? game.mainBalls : 0,
            type == BallType::MainBalls ? game.mainBalls : game.BallCount()};
}

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

struct ChartBar
{
    QString label;
    BarColour colour;
    int value = 0;
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

/// One of the ten bar charts.
struct Chart
{
    int number;
    const Game* game;
    ChartSubject subject;
    /// The balls that are counted; where the player can choose, what the list starts with.
    BallType ballType;
    /// With a place for the phrase of the ball type, where there is one.
    QString description;
    /// By ball type; none where the player cannot choose it.
    QStringList phrases = {};

    /// All its bars, with nothing counted yet.
    std::vector<ChartBar> Bars() const;
    QString Title() const;
    bool HasBallTypeOption() const { return !phrases.isEmpty(); }
    QString Description(BallType type) const;
};

/// The charts of both games, in the order of their numbers.
std::span<const Chart> AllCharts();

/// The chart of that number. There must be one.
const Chart& FindChart(int number);

/// Counts the chart over all draws of its game, looking at the balls of the given type; what is no ball, machine or set
/// of balls of the chart has no bar and is left out. Empty where there are no draws. Throws Failure.
std::vector<ChartBar> CountBars(const Chart& chart, BallType type);
