#include "analysis/bar_chart.h"

#include "analysis/bar_colours.h"
#include "platform/theme.h"

#include <QAccessibleWidget>
#include <QBarCategoryAxis>
#include <QBarSet>
#include <QChart>
#include <QEvent>
#include <QFontMetricsF>
#include <QGraphicsSimpleTextItem>
#include <QLegend>
#include <QMouseEvent>
#include <QStackedBarSeries>
#include <QToolTip>
#include <QValueAxis>

#include <algorithm>
#include <cmath>

namespace {

constexpr qreal Gap = Spacing::Inside;
constexpr qreal WidestBar = 120;
constexpr qreal BarShare = 0.84;
constexpr int MostSteps = 7;

/// The smallest of 1, 2, 5, 10, 20, 50 and so on that divides the axis into few enough steps.
int StepFor(int highest)
{
    for (int power = 1;; power *= 10)
        for (const int digit : {1, 2, 5})
            if (highest <= MostSteps * std::int64_t{digit} * power)
                return digit * power;
}

QFont Scaled(QFont font, qreal factor)
{
    if (font.pointSizeF() > 0)
        font.setPointSizeF(font.pointSizeF() * factor);
    else
        font.setPixelSize(qMax(1, static_cast<int>(font.pixelSize() * factor)));
    return font;
}

qreal WidestOf(const QList<QGraphicsSimpleTextItem*>& texts, const QFont& font)
{
    const QFontMetricsF metrics(font);
    qreal widest = 0;
    for (const QGraphicsSimpleTextItem* text : texts)
        widest = qMax(widest, metrics.horizontalAdvance(text->text()));
    return widest;
}

/// The pages' own font where the texts have ample room in their columns, that of captions where they have enough, and a
/// smaller one where they have not.
QFont FontThatFits(const QList<QGraphicsSimpleTextItem*>& texts, qreal columnWidth)
{
    const QFont body = FontFor(TextRole::Body);
    if (WidestOf(texts, body) <= columnWidth * 0.75)
        return body;
    const QFont caption = FontFor(TextRole::Caption);
    const qreal widest = WidestOf(texts, caption);
    const qreal room = columnWidth - 2;
    return widest <= room ? caption : Scaled(caption, room / widest * 0.99);
}

/// Digits that are a whole number of pixels wide: turned text is set pixel by pixel, and they would stand unevenly.
QFont EvenlySet(QFont font)
{
    const qreal digit = QFontMetricsF(font).horizontalAdvance(u'0');
    font.setLetterSpacing(QFont::AbsoluteSpacing, std::round(digit) - digit);
    return font;
}

/// Tells a screen reader that this is a chart, where it would see a scrolling area.
QAccessibleInterface* MakeAccessibleChart(const QString& /*className*/, QObject* object)
{
    auto* chart = qobject_cast<BarChart*>(object);
    return chart == nullptr ? nullptr : new QAccessibleWidget(chart, QAccessible::Chart);
}

/// How far below the top of a line of text the middle of its digits lies.
qreal DigitMiddle(const QFont& font)
{
    const QFontMetricsF metrics(font);
    return metrics.ascent() - metrics.capHeight() / 2;
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
        lines.append(bar.label + QStringLiteral(": ") + QString::number(bar.value));
    }
    axisStep = StepFor(highest);
    axisEnd = (highest + axisStep - 1) / axisStep * axisStep;
    setAccessibleDescription(lines.join(u'\n'));
    FillSeries();
    FillTexts();
    TakeColours();
    LayOut();
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
    QToolTip::showText(event->globalPosition().toPoint(),
                       pointed.label + QStringLiteral(": ") + QString::number(pointed.value), viewport());
}

void BarChart::drawForeground(QPainter* painter, const QRectF& rect)
{
    QChartView::drawForeground(painter, rect);
    if (!hasFocus())
        return;
    painter->setBrush(Qt::NoBrush);
    painter->setPen(QPen(CurrentTheme().accent, 2));
    painter->drawRoundedRect(QRectF(viewport()->rect()).adjusted(1, 1, -1, -1), 8, 8);
}
