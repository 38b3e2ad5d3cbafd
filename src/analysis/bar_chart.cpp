#include "analysis/bar_chart.h"

#include "analysis/chart_layout.h"
#include "look/theme.h"

#include <QAccessibleWidget>
#include <QApplication>
#include <QClipboard>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionFocusRect>
#include <QToolTip>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

QAccessibleInterface* MakeAccessibleChart(const QString& /*className*/, QObject* object)
{
    auto* chart = qobject_cast<BarChart*>(object);
    return chart == nullptr ? nullptr : new QAccessibleWidget(chart, QAccessible::Chart);
}

void DrawText(QPainter& painter, const ChartText& text)
{
    painter.save();
    painter.translate(text.middle);
    painter.rotate(text.turned ? -90 : 0);
    painter.setFont(text.font);
    painter.drawText(QRectF(-1000, -1000, 2000, 2000), Qt::AlignCenter, text.text);
    painter.restore();
}

} // namespace

BarChart::BarChart(QWidget* parent) : QWidget(parent)
{
    QAccessible::installFactory(MakeAccessibleChart);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
}

void BarChart::ShowBars(std::vector<ChartBar> shownBars)
{
    bars = std::move(shownBars);
    setAccessibleDescription(Lines(u": "_s).join(u'\n'));
    update();
}

QStringList BarChart::Lines(const QString& between) const
{
    QStringList lines;
    for (const ChartBar& bar : bars)
        lines.append(bar.label + between + QString::number(bar.value));
    return lines;
}

void BarChart::Copy() const
{
    QImage picture(size() * devicePixelRatio(), QImage::Format_RGB32);
    picture.setDevicePixelRatio(devicePixelRatio());
    picture.fill(CurrentTheme().card);
    QPainter painter(&picture);
    Paint(painter);
    auto* copied = new QMimeData;
    copied->setText(Lines(u"\t"_s).join(u'\n') + u'\n');
    copied->setImageData(picture);
    QApplication::clipboard()->setMimeData(copied);
}

QSize BarChart::minimumSizeHint() const
{
    const QFontMetrics metrics(FontFor(TextRole::Caption));
    return {metrics.averageCharWidth() * 100, metrics.height() * 16};
}

void BarChart::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    Paint(painter);
    if (hasFocus()) {
        QStyleOptionFocusRect option;
        option.initFrom(this);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
    }
}

void BarChart::Paint(QPainter& painter) const
{
    if (bars.empty())
        return;
    const Theme& theme = CurrentTheme();
    const ChartLayout layout = LayOutChart(bars, size());
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(theme.cardLine);
    for (const qreal line : layout.lines)
        painter.drawLine(QPointF(layout.plot.left(), line), QPointF(layout.plot.right(), line));
    // No line passes through a figure.
    for (const ChartText& figure : layout.figures)
        painter.fillRect(figure.Place().adjusted(-2, 0, 2, 0), theme.card);
    for (size_t bar = 0; bar < bars.size(); ++bar) {
        const QColor fill = FillOf(bars[bar].colour);
        painter.setPen(OutlineOf(fill));
        painter.setBrush(fill);
        if (bars[bar].value > 0)
            painter.drawRect(layout.bars[bar]);
    }
    painter.setPen(theme.text);
    for (const ChartText& label : layout.labels)
        DrawText(painter, label);
    painter.setPen(theme.secondaryText);
    painter.drawLine(QPointF(layout.plot.left(), layout.lines.front()),
                     QPointF(layout.plot.right(), layout.lines.front()));
    for (const auto* texts : {&layout.figures, &layout.axisNumbers})
        for (const ChartText& text : *texts)
            DrawText(painter, text);
}

void BarChart::mouseMoveEvent(QMouseEvent* event)
{
    if (bars.empty())
        return;
    const QRectF plot = LayOutChart(bars, size()).plot;
    const auto bar = std::floor((event->position().x() - plot.left()) / plot.width() * static_cast<qreal>(bars.size()));
    if (plot.contains(event->position()) && bar < static_cast<qreal>(bars.size()))
        QToolTip::showText(event->globalPosition().toPoint(), Lines(u": "_s)[static_cast<qsizetype>(bar)], this);
    else
        QToolTip::hideText();
}
