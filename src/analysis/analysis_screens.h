#pragma once

#include <QString>

#include <span>

struct Game;

/// One screen of an analysis menu: what it says of itself, and what it opens.
struct AnalysisScreen
{
    const char* title;
    const char* firstSentence;
    /// Empty where one sentence is enough.
    const char* secondSentence;
    /// The number of the chart, or 0 for the ball data page.
    int chart;

    /// The sentences, each on a line of its own.
    QString Description() const;
};

/// The screens of a game's menu; screen i is element i - 1.
std::span<const AnalysisScreen> ScreensOf(const Game& game);
