#pragma once

#include "analysis/chart_count.h"

#include <QChartView>
#include <QList>

class QBarCategoryAxis;
class QGraphicsLineItem;
class QGraphicsRectItem;
class QGraphicsSimpleTextItem;
class QStackedBarSeries;
class QValueAxis;

/// The part of a text on the chart, held under key 0 of its item's data.
enum class ChartText
{
    Label,
    Figure,
    AxisNumber
};

/// Bars in colours of their own, each with its label below and its exact figure above, over an axis of whole numbers
/// from 0. Its accessible description lists the bars in order, one "label: value" a line.
class BarChart : public QChartView
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
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    void FillSeries();
    void FillTexts();
    void LayOut();
    void PlaceLabels();
    void PlaceFigures();
    void PlaceAxis();
    void TakeColours();
    qreal ColumnWidth() const;
    QPointF TopOf(int bar) const;

    std::vector<ChartBar> bars;
    int highest = 1;
    int axisStep = 1;
    int axisEnd = 1;
    QStackedBarSeries* series;
    QBarCategoryAxis* barAxis;
    QValueAxis* valueAxis;
    QGraphicsLineItem* baseLine;
    QList<QGraphicsLineItem*> gridLines;
    QRectF plot;
    QList<QGraphicsSimpleTextItem*> labels;
    QList<QGraphicsSimpleTextItem*> figures;
    /// Behind the figures, so that no line of the grid passes through them.
    QList<QGraphicsRectItem*> figureGrounds;
    QList<QGraphicsSimpleTextItem*> axisNumbers;
};
