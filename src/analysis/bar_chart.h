#pragma once

#include "analysis/charts.h"

#include <QWidget>

/// A bar chart. Its accessible description lists the bars in order, one "label: value" a line.
class BarChart : public QWidget
{
    Q_OBJECT

public:
    explicit BarChart(QWidget* parent = nullptr);

    void ShowBars(std::vector<ChartBar> shownBars);

    /// Puts the chart on the clipboard: its picture, and as text a line for each bar, label and figure with a tab
    /// between them.
    void Copy() const;

    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    void Paint(QPainter& painter) const;
    /// A line for each bar, with what stands between its label and its figure.
    QStringList Lines(const QString& between) const;

    std::vector<ChartBar> bars;
};
