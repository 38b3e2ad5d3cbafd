#include "look/scroll_bar.h"

#include <QPainter>
#include <QStyleOption>

#include <algorithm>

namespace {

constexpr int ShortestSlider = 30;
constexpr qreal SliderWidth = 6;

} // namespace

QRect ScrollBarPart(const QStyleOptionSlider& bar, QStyle::SubControl part)
{
    const bool horizontal = bar.orientation == Qt::Horizontal;
    const int length = horizontal ? bar.rect.width() : bar.rect.height();
    const qint64 range = qint64{bar.maximum} - bar.minimum;
    const auto share = static_cast<int>(qint64{length} * bar.pageStep / std::max<qint64>(range + bar.pageStep, 1));
    const int slider = range > 0 ? std::min(std::max(share, ShortestSlider), length) : length;
    const int start =
        QStyle::sliderPositionFromValue(bar.minimum, bar.maximum, bar.sliderPosition, length - slider, bar.upsideDown);
    int from = 0;
    int to = length;
    switch (part) {
    case QStyle::SC_ScrollBarGroove:
        break;
    case QStyle::SC_ScrollBarSlider:
        from = start;
        to = start + slider;
        break;
    case QStyle::SC_ScrollBarSubPage:
        to = start;
        break;
    case QStyle::SC_ScrollBarAddPage:
        from = start + slider;
        break;
    default:
        return {};
    }
    const QRect place =
        horizontal ? QRect(from, 0, to - from, bar.rect.height()) : QRect(0, from, bar.rect.width(), to - from);
    return QStyle::visualRect(bar.direction, bar.rect, place.translated(bar.rect.topLeft()));
}

void DrawScrollBar(const QStyleOptionSlider& bar, QPainter* painter)
{
    if (bar.minimum == bar.maximum)
        return;
    QRectF slider = ScrollBarPart(bar, QStyle::SC_ScrollBarSlider);
    const qreal spare = (bar.orientation == Qt::Horizontal ? slider.height() : slider.width()) - SliderWidth;
    slider.adjust(spare / 2, spare / 2, -spare / 2, -spare / 2);
    QColor colour = bar.palette.color(QPalette::PlaceholderText);
    const bool held = bar.state & QStyle::State_Sunken;
    const bool hovered = bar.state & QStyle::State_MouseOver;
    colour.setAlphaF(held ? 0.9F : hovered ? 0.75F : 0.55F);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(colour);
    painter->drawRoundedRect(slider, SliderWidth / 2, SliderWidth / 2);
    painter->restore();
}
