#pragma once

#include "analysis/charts.h"

#include <QFont>
#include <QRectF>

/// A text of a chart in the place where it is drawn.
struct ChartText
{
    QString text;
    QFont font;
    QPointF middle;
    /// Whether it is read from the bottom upwards.
    bool turned = false;

    QRectF Place() const;
};

/// Where the parts of a bar chart are drawn: bars over an axis of whole numbers from 0, each with its label below and
/// its exact figure above.
struct ChartLayout
{
    QRectF plot;
    std::vector<QRectF> bars;
    std::vector<ChartText> labels;
    std::vector<ChartText> figures;
    /// From 0 upwards, each with the height of its line.
    std::vector<ChartText> axisNumbers;
    std::vector<qreal> lines;
};

/// Lays out at least one bar in a picture of that size, in pixels.
ChartLayout LayOutChart(const std::vector<ChartBar>& bars, const QSizeF& size);
