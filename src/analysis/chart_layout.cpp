#include "analysis/chart_layout.h"

#include "look/theme.h"

#include <QFontMetricsF>

#include <cmath>
#include <cstdint>

namespace {

constexpr qreal Gap = Spacing::Inside;
constexpr qreal WidestBar = 120;
constexpr qreal BarShare = 0.84;

/// The smallest of 1, 2, 5, 10, 20, 50 and so on that divides the axis into few enough steps.
int StepFor(int highest)
{
    constexpr int mostSteps = 7;
    for (int power = 1;; power *= 10)
        for (const int digit : {1, 2, 5})
            if (highest <= mostSteps * std::int64_t{digit} * power)
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

qreal WidestOf(const QStringList& texts, const QFont& font)
{
    const QFontMetricsF metrics(font);
    qreal widest = 0;
    for (const QString& text : texts)
        widest = qMax(widest, metrics.horizontalAdvance(text));
    return widest;
}

/// The pages' own font where the texts have ample room in their columns, that of captions where they have enough, and a
/// smaller one where they have not.
QFont FontThatFits(const QStringList& texts, qreal columnWidth)
{
    const QFont body = FontFor(TextRole::Body);
    if (WidestOf(texts, body) <= columnWidth * 0.75)
        return body;
    const QFont caption = FontFor(TextRole::Caption);
    const qreal widest = WidestOf(texts, caption);
    const qreal room = columnWidth - Gap / 2;
    return widest <= room ? caption : Scaled(caption, room / widest * 0.99);
}

/// For figures that stand upright in their columns. Digits are a whole number of pixels wide there: turned text is set
/// pixel by pixel, and they would stand unevenly.
QFont TurnedFont(qreal columnWidth)
{
    const QFont caption = FontFor(TextRole::Caption);
    QFont font = Scaled(caption, qMin(1.0, columnWidth / QFontMetricsF(caption).height() * 0.99));
    const qreal digit = QFontMetricsF(font).horizontalAdvance(u'0');
    font.setLetterSpacing(QFont::AbsoluteSpacing, std::round(digit) - digit);
    return font;
}

/// Where a line is drawn sharply.
qreal MiddleOfPixel(qreal place)
{
    return std::floor(place) + 0.5;
}

/// The room that axis, labels and figures leave for the bars of an axis that ends at `axisEnd`.
QRectF PlotOf(const QSizeF& size, int highest, int axisEnd)
{
    const QFontMetricsF caption(FontFor(TextRole::Caption));
    const qreal line = QFontMetricsF(FontFor(TextRole::Body)).height();
    QRectF plot(QPointF(), size);
    plot.adjust(caption.horizontalAdvance(QString::number(axisEnd)) + 3 * Gap, Gap, -2 * Gap, -line - 2 * Gap);
    // The figure over a bar that reaches the end of the axis stands above the plot.
    const qreal figure = qMax(line, caption.horizontalAdvance(QString::number(highest))) + Gap;
    const qreal spare = (plot.height() - figure) * (axisEnd - highest) / axisEnd;
    plot.setTop(plot.top() + qMax(line / 2, figure - spare));
    return plot;
}

} // namespace

QRectF ChartText::Place() const
{
    const QFontMetricsF metrics(font);
    const QSizeF size(metrics.horizontalAdvance(text), metrics.height());
    QRectF place(QPointF(), turned ? size.transposed() : size);
    place.moveCenter(middle);
    return place;
}

ChartLayout LayOutChart(const std::vector<ChartBar>& bars, const QSizeF& size)
{
    int highest = 1;
    QStringList labels;
    QStringList figures;
    for (const ChartBar& bar : bars) {
        highest = qMax(highest, bar.value);
        labels.append(bar.label);
        figures.append(QString::number(bar.value));
    }
    const int step = StepFor(highest);
    const int axisEnd = (highest + step - 1) / step * step;
    ChartLayout layout;
    layout.plot = PlotOf(size, highest, axisEnd);
    const QRectF& plot = layout.plot;
    const qreal column = plot.width() / static_cast<qreal>(bars.size());
    const QFont caption = FontFor(TextRole::Caption);
    const QFont labelFont = FontThatFits(labels, column);
    const bool turned = WidestOf(figures, caption) > column - Gap;
    const QFont figureFont = turned ? TurnedFont(column) : FontThatFits(figures, column);
    const qreal width = std::round(qMin(BarShare * column, WidestBar));
    for (int bar = 0; bar < labels.size(); ++bar) {
        const qreal middle = plot.left() + column * (bar + 0.5);
        const qreal height = std::round(plot.height() * bars[static_cast<size_t>(bar)].value / axisEnd);
        layout.bars.emplace_back(MiddleOfPixel(middle - width / 2), MiddleOfPixel(plot.bottom()) - height, width,
                                 height);
        ChartText label{labels[bar], labelFont, {middle, 0}};
        label.middle.setY(plot.bottom() + (Gap + label.Place().height()) / 2);
        layout.labels.push_back(label);
        ChartText figure{figures[bar], figureFont, {middle, 0}, turned};
        figure.middle.setY(plot.bottom() - height - (Gap + figure.Place().height()) / 2);
        layout.figures.push_back(figure);
    }
    for (int value = 0; value <= axisEnd; value += step) {
        layout.lines.push_back(MiddleOfPixel(plot.bottom() - plot.height() * value / axisEnd));
        ChartText number{QString::number(value), caption, {0, layout.lines.back()}};
        number.middle.setX(plot.left() - Gap - number.Place().width() / 2);
        layout.axisNumbers.push_back(number);
    }
    return layout;
}
