#include "analysis/bar_chart.h"

#include "analysis/chart_texts.h"
#include "look/theme.h"

#include <QAccessibleWidget>
#include <QApplication>
#include <QBarCategoryAxis>
#include <QBarSet>
#include <QChart>
#include <QClipboard>
#include <QEvent>
#include <QFontMetricsF>
#include <QGraphicsSimpleTextItem>
#include <QLegend>
#include <QMimeData>
#include <QMouseEvent>
#include <QStackedBarSeries>
#include <QToolTip>
#include <QValueAxis>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr qreal Gap = Spacing::Inside;
constexpr qreal WidestBar = 120;
constexpr qreal BarShare = 0.84;

/// Tells a screen reader that this is a chart and nothing else, where it would see a scrolling area with a part inside.
class AccessibleChart : public QAccessibleWidget
{
public:
    explicit AccessibleChart(BarChart* chart) : QAccessibleWidget(chart, QAccessible::Chart) {}

    int childCount() const override { return 0; }
};

QAccessibleInterface* MakeAccessibleChart(const QString& /*className*/, QObject* object)
{
    auto* chart = qobject_cast<BarChart*>(object);
    return chart == nullptr ? nullptr : new AccessibleChart(chart);
}

} // namespace

BarChart::BarChart(QWidget* parent)
    : QChartView(parent),
      series(new QStackedBarSeries),
      barAxis(new QBarCategoryAxis),
      valueAxis(new QValueAxis),
      baseLine(scene()->addLine({}))
{
    QAccessible::installFactory(MakeAccessibleChart);
    setRenderHint(QPainter::Antialiasing);
    setBackgroundBrush(Qt::NoBrush);
    viewport()->setAutoFillBackground(false);
    viewport()->setMouseTracking(true);
    chart()->setBackgroundVisible(false);
    chart()->legend()->hide();
    chart()->addSeries(series);
    chart()->addAxis(barAxis, Qt::AlignBottom);
    chart()->addAxis(valueAxis, Qt::AlignLeft);
    series->attachAxis(barAxis);
    series->attachAxis(valueAxis);
    // The axes cut long rows of labels short and lose lines at their ends, so that all but the bars is placed here.
    barAxis->setVisible(false);
    valueAxis->setVisible(false);
    baseLine->setZValue(chart()->zValue() + 1);
}

void BarChart::ShowBars(std::vector<ChartBar> shownBars)
{
    bars = std::move(shownBars);
    highest = 1;
    QStringList lines;
    for (const ChartBar& bar : bars) {
        highest = qMax(highest, bar.value);
        lines.append(bar.label + u": "_s + QString::number(bar.value));
    }
    axisStep = StepFor(highest);
    axisEnd = (highest + axisStep - 1) / axisStep * axisStep;
    setAccessibleDescription(lines.join(u'\n'));
    FillSeries();
    FillTexts();
    TakeColours();
    LayOut();
}

void BarChart::Copy() const
{
    QString lines;
    for (const ChartBar& bar : bars)
        lines += bar.label + u'\t' + QString::number(bar.value) + u'\n';
    QImage picture(viewport()->size() * devicePixelRatio(), QImage::Format_RGB32);
    picture.setDevicePixelRatio(devicePixelRatio());
    picture.fill(CurrentTheme().card);
    viewport()->render(&picture, {}, {}, DrawChildren);
    auto* copied = new QMimeData;
    copied->setText(lines);
    copied->setImageData(picture);
    QApplication::clipboard()->setMimeData(copied);
}

void BarChart::FillSeries()
{
    series->clear();
    barAxis->clear();
    for (const BarColour colour :
         {BarColour::White, BarColour::LightBlue, BarColour::LightRed, BarColour::LightGreen, BarColour::Yellow}) {
        auto* set = new QBarSet(QString::number(static_cast<int>(colour)));
        for (const ChartBar& bar : bars)
            set->append(bar.colour == colour ? bar.value : 0);
        set->setColor(FillOf(colour));
        set->setPen(QPen(OutlineOf(FillOf(colour)), 1));
        series->append(set);
    }
    for (const ChartBar& bar : bars)
        barAxis->append(bar.label);
}

void BarChart::FillTexts()
{
    for (QList<QGraphicsSimpleTextItem*>* texts : {&labels, &figures, &axisNumbers}) {
        qDeleteAll(*texts);
        texts->clear();
    }
    const auto add = [this](QList<QGraphicsSimpleTextItem*>& texts, ChartText part, const QString& text) {
        QGraphicsSimpleTextItem* item = scene()->addSimpleText(text);
        item->setData(0, static_cast<int>(part));
        item->setZValue(chart()->zValue() + 1);
        texts.append(item);
    };
    for (const ChartBar& bar : bars) {
        add(labels, ChartText::Label, bar.label);
        add(figures, ChartText::Figure, QString::number(bar.value));
    }
    qDeleteAll(figureGrounds);
    figureGrounds.clear();
    for (int bar = 0; bar < figures.size(); ++bar) {
        figureGrounds.append(scene()->addRect({}, Qt::NoPen));
        figureGrounds.back()->setZValue(chart()->zValue() - 1);
    }
    qDeleteAll(gridLines);
    gridLines.clear();
    for (int value = 0; value <= axisEnd; value += axisStep) {
        gridLines.append(scene()->addLine({}));
        gridLines.back()->setZValue(chart()->zValue() - 2);
        add(axisNumbers, ChartText::AxisNumber, QString::number(value));
    }
}

void BarChart::LayOut()
{
    if (bars.empty())
        return;
    const QFont caption = FontFor(TextRole::Caption);
    const qreal line = QFontMetricsF(FontFor(TextRole::Body)).height();
    plot = QRectF(viewport()->rect());
    plot.adjust(WidestOf(axisNumbers, caption) + 3 * Gap, Gap, -2 * Gap, -line - 2 * Gap);
    // The figure over a bar that reaches the end of the axis stands above the plot.
    const qreal figure = qMax(line, WidestOf(figures, caption)) + Gap;
    const qreal spare = (plot.height() - figure) * (axisEnd - highest) / axisEnd;
    plot.setTop(plot.top() + qMax(line / 2, figure - spare));
    // The outline of a bar that reaches the end of the axis needs room as well.
    constexpr qreal outline = 1;
    chart()->setPlotArea(plot.adjusted(0, -outline, 0, 0));
    valueAxis->setRange(0, axisEnd * (plot.height() + outline) / plot.height());
    baseLine->setLine(QLineF(plot.bottomLeft(), plot.bottomRight()));
    series->setBarWidth(qMin(BarShare, WidestBar / ColumnWidth()));
    PlaceLabels();
    PlaceFigures();
    PlaceAxis();
}

void BarChart::PlaceLabels()
{
    const QFont font = FontThatFits(labels, ColumnWidth());
    for (int bar = 0; bar < labels.size(); ++bar) {
        labels[bar]->setFont(font);
        labels[bar]->setPos(TopOf(bar).x() - labels[bar]->boundingRect().width() / 2, plot.bottom() + Gap / 2);
    }
}

void BarChart::PlaceFigures()
{
    const QFont caption = FontFor(TextRole::Caption);
    const bool turned = WidestOf(figures, caption) > ColumnWidth() - 2;
    const qreal line = QFontMetricsF(caption).height();
    const QFont font = turned ? EvenlySet(Scaled(caption, qMin(1.0, ColumnWidth() / line * 0.99)))
                              : FontThatFits(figures, ColumnWidth());
    const QFontMetricsF metrics(font);
    for (int bar = 0; bar < figures.size(); ++bar) {
        QGraphicsSimpleTextItem* figure = figures[bar];
        const QPointF top = TopOf(bar);
        figure->setFont(font);
        figure->setRotation(turned ? -90 : 0);
        if (turned)
            figure->setPos(top.x() - DigitMiddle(font), top.y() - Gap / 2);
        else
            figure->setPos(top.x() - figure->boundingRect().width() / 2,
                           top.y() - figure->boundingRect().height() - Gap / 3);
        const QRectF digits(0, metrics.ascent() - metrics.capHeight(), figure->boundingRect().width(),
                            metrics.capHeight());
        figureGrounds[bar]->setRect(figure->mapRectToScene(digits).adjusted(-2, -2, 2, 2));
    }
}

void BarChart::PlaceAxis()
{
    const QFont font = FontFor(TextRole::Caption);
    for (int step = 0; step < axisNumbers.size(); ++step) {
        const qreal y = plot.bottom() - plot.height() * step * axisStep / axisEnd;
        gridLines[step]->setLine(QLineF(plot.left(), y, plot.right(), y));
        axisNumbers[step]->setFont(font);
        axisNumbers[step]->setPos(plot.left() - Gap - axisNumbers[step]->boundingRect().width(), y - DigitMiddle(font));
    }
}

qreal BarChart::ColumnWidth() const
{
    return plot.width() / static_cast<qreal>(bars.size());
}

QPointF BarChart::TopOf(int bar) const
{
    return {plot.left() + ColumnWidth() * (bar + 0.5),
            plot.bottom() - plot.height() * bars[static_cast<size_t>(bar)].value / axisEnd};
}

void BarChart::TakeColours()
{
    const Theme& theme = CurrentTheme();
    for (QGraphicsSimpleTextItem* label : labels)
        label->setBrush(theme.text);
    for (const QList<QGraphicsSimpleTextItem*>& texts : {figures, axisNumbers})
        for (QGraphicsSimpleTextItem* text : texts)
            text->setBrush(theme.secondaryText);
    for (QGraphicsLineItem* line : gridLines)
        line->setPen(QPen(theme.cardLine, 1));
    for (QGraphicsRectItem* ground : figureGrounds)
        ground->setBrush(theme.card);
    baseLine->setPen(QPen(theme.secondaryText, 1));
}

QSize BarChart::minimumSizeHint() const
{
    const QFontMetrics metrics(FontFor(TextRole::Caption));
    return {metrics.averageCharWidth() * 100, metrics.height() * 16};
}

void BarChart::resizeEvent(QResizeEvent* event)
{
    QChartView::resizeEvent(event);
    LayOut();
}

void BarChart::changeEvent(QEvent* event)
{
    QChartView::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange) {
        TakeColours();
        LayOut();
    }
}

void BarChart::mouseMoveEvent(QMouseEvent* event)
{
    QChartView::mouseMoveEvent(event);
    const auto bar = std::floor((event->position().x() - plot.left()) / ColumnWidth());
    if (bars.empty() || !plot.contains(event->position()) || bar >= static_cast<qreal>(bars.size())) {
        QToolTip::hideText();
        return;
    }
    const ChartBar& pointed = bars[static_cast<size_t>(bar)];
    QToolTip::showText(event->globalPosition().toPoint(), pointed.label + u": "_s + QString::number(pointed.value),
                       viewport());
}
