#pragma once

#include <QString>

#include <span>

struct Game;

/// One screen of an analysis menu: what it says of itself, and what it opens.
struct AnalysisScreen
{
    QString title;
    /// Its sentences, each on a line of its own.
    QString description;
    /// The number of the chart, or 0 for the ball data page.
    int chart;
};

/// The screens of a game's menu; screen i is element i - 1.
std::span<const AnalysisScreen> ScreensOf(const Game& game);
