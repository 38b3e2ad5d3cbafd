#include "look/control_painting.h"

#include "look/button.h"
#include "look/theme.h"

#include <QPainter>
#include <QStyleOption>
#include <QVariant>
#include <QWidget>

#include <algorithm>

namespace {

constexpr qreal Corner = 8;
constexpr int ShortestSlider = 30;
constexpr qreal SliderWidth = 6;

/// An outline that stands out from card and page at three to one, for controls that have nothing but their outline.
QColor OutlineColour(const QPalette& palette)
{
    return Mixed(palette.color(QPalette::Active, QPalette::AlternateBase),
                 palette.color(QPalette::Active, QPalette::PlaceholderText), 0.75);
}

void FillRounded(QPainter* painter, const QRectF& rect, qreal radius, const QColor& fill, const QColor& line,
                 qreal width = 1)
{
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(line.isValid() ? QPen(line, width) : QPen(Qt::NoPen));
    painter->setBrush(fill.isValid() ? QBrush(fill) : QBrush(Qt::NoBrush));
    const qreal inset = width / 2;
    painter->drawRoundedRect(rect.adjusted(inset, inset, -inset, -inset), radius, radius);
    painter->restore();
}

} // namespace

bool IsAccent(const QStyleOption* option, const QWidget* widget)
{
    const QVariant told = widget != nullptr ? widget->property(AccentProperty) : QVariant();
    if (told.isValid())
        return told.toBool();
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
    return button != nullptr && (button->features & QStyleOptionButton::DefaultButton) != 0;
}

void DrawFocusRing(QPainter* painter, const QRect& rect, const QPalette& palette)
{
    FillRounded(painter, rect, Corner, QColor(), palette.color(QPalette::Highlight), 2);
}

void DrawButton(const QStyleOption* option, QPainter* painter, const QWidget* widget)
{
    const QPalette& palette = option->palette;
    const bool enabled = option->state & QStyle::State_Enabled;
    const bool accent = IsAccent(option, widget) && enabled;
    QColor fill = palette.color(accent ? QPalette::Highlight : QPalette::Button);
    const QColor toward = palette.color(QPalette::WindowText);
    if (option->state & (QStyle::State_Sunken | QStyle::State_On))
        fill = Mixed(fill, toward, 0.16);
    else if (enabled && option->state & QStyle::State_MouseOver)
        fill = Mixed(fill, toward, 0.07);
    const bool focus = option->state & QStyle::State_HasFocus;
    // Beside its own colour the ring of the accent button is seen by the gap between them.
    const int gap = focus && accent ? 4 : 0;
    FillRounded(painter, option->rect.adjusted(gap, gap, -gap, -gap), Corner - gap / 2.0, fill,
                accent ? fill : OutlineColour(palette));
    if (focus)
        DrawFocusRing(painter, option->rect, palette);
}

void DrawFieldPanel(const QStyleOption* option, QPainter* painter)
{
    const bool focus = option->state & QStyle::State_HasFocus;
    const bool readOnly = option->state & QStyle::State_ReadOnly;
    const QPalette& palette = option->palette;
    const QColor quiet = Mixed(palette.color(QPalette::AlternateBase), palette.color(QPalette::Mid), 0.4);
    FillRounded(painter, option->rect, Corner, readOnly ? quiet : palette.color(QPalette::Base),
                focus ? palette.color(QPalette::Highlight) : OutlineColour(palette), focus ? 2 : 1);
}

void DrawArrow(QPainter* painter, const QRectF& rect, const QColor& colour)
{
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(colour, 1.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const QPointF middle = rect.center();
    painter->drawPolyline(QPolygonF({middle + QPointF(-4, -2), middle + QPointF(0, 2), middle + QPointF(4, -2)}));
    painter->restore();
}

void DrawIndicator(const QStyleOption* option, QPainter* painter, bool round)
{
    const QPalette& palette = option->palette;
    const bool on = option->state & QStyle::State_On;
    const QRectF rect = QRectF(option->rect).adjusted(1, 1, -1, -1);
    const QColor mark = palette.color(QPalette::HighlightedText);
    FillRounded(painter, rect, round ? rect.width() / 2 : 4, palette.color(on ? QPalette::Highlight : QPalette::Base),
                on ? palette.color(QPalette::Highlight) : OutlineColour(palette), 1.5);
    if (!on)
        return;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    if (round) {
        painter->setPen(Qt::NoPen);
        painter->setBrush(mark);
        painter->drawEllipse(rect.center(), rect.width() / 5, rect.width() / 5);
    } else {
        painter->setPen(QPen(mark, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        const QPointF middle = rect.center();
        painter->drawPolyline(QPolygonF({middle + QPointF(-4, 0), middle + QPointF(-1, 3), middle + QPointF(4, -3.5)}));
    }
    painter->restore();
}

void DrawPopupFrame(const QStyleOption* option, QPainter* painter)
{
    FillRounded(painter, option->rect, 0, QColor(), OutlineColour(option->palette));
}

void DrawHeaderSection(const QStyleOption* option, QPainter* painter)
{
    painter->fillRect(option->rect, option->palette.color(QPalette::AlternateBase));
    painter->setPen(option->palette.color(QPalette::Mid));
    painter->drawLine(option->rect.bottomLeft(), option->rect.bottomRight());
}

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
