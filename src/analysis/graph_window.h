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

    /// Sets the window up for the chart of that number and computes it. Without any draws a message says so, and the
    /// window must not be shown. Throws Failure.
    void PrepareChart(int chartNumber);

    /// The chart aborted flag: whether the last preparation found no draws.
    bool ChartAborted() const { return aborted; }

private:
    void BuildLayout();
    void ComputeChart();
    void balltype_Click(int index);

    const Chart* chart = nullptr;
    BallType ballType = BallType::AllBalls;
    bool aborted = false;
    QLabel* title;
    QLabel* description;
    QLabel* typelabel;
    QComboBox* balltype;
    BarChart* graph;
    Button* back;
};
