#pragma once

#include "analysis/charts.h"
#include "controls/small_window.h"

class BarChart;
class Button;
class QComboBox;
class QLabel;

/// The chart window, frmgraph: one bar chart over all draws of a game.
class GraphWindow : public SmallWindow
{
    Q_OBJECT

public:
    explicit GraphWindow(QWidget* parent);

    /// Sets the window up for the chart of that number and computes it. False where there are no draws: a message has
    /// said so, and the window must not be shown. Throws Failure.
    bool PrepareChart(int chartNumber);

private:
    void BuildLayout();
    /// False, after a message, where there are no draws.
    bool ComputeChart();
    void balltype_Click(int index);

    const Chart* chart = nullptr;
    BallType ballType = BallType::AllBalls;
    QLabel* title;
    QLabel* description;
    QLabel* typelabel;
    QComboBox* balltype;
    BarChart* graph;
    Button* back;
};
