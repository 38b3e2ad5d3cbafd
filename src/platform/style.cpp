#include "platform/style.h"

#include "platform/scroll_bar.h"
#include "platform/theme.h"

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QPainter>
#include <QPainterPath>
#include <QPushButton>
#include <QStyleOption>

namespace {

// More than fits a list's line; shaping a text of megabytes takes seconds.
constexpr qsizetype MostDrawnCharacters = 1000;

constexpr qreal Corner = 8;
constexpr int ControlHeight = 36;
constexpr int ListLineHeight = 28;
constexpr int IndicatorSize = 18;
constexpr int ArrowWidth = 28;

QColor Mixed(const QColor& first, const QColor& second, qreal share)
{
    return QColor::fromRgbF(static_cast<float>(first.redF() + (second.redF() - first.redF()) * share),
                            static_cast<float>(first.greenF() + (second.greenF() - first.greenF()) * share),
                            static_cast<float>(first.blueF() + (second.blueF() - first.blueF()) * share));
}

/// An outline that stands out from card and page at three to one, for controls that have nothing but their outline.
QColor OutlineColour(const QPalette& palette)
{
    return Mixed(palette.color(QPalette::Active, QPalette::AlternateBase),
                 palette.color(QPalette::Active, QPalette::PlaceholderText), 0.75);
}

bool IsAccent(const QStyleOption* option, const QWidget* widget)
{
    if (widget != nullptr && widget->property(AccentProperty).toBool())
        return true;
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
    return button != nullptr && (button->features & QStyleOptionButton::DefaultButton) != 0;
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
    FillRounded(painter, option->rect, Corner, fill, accent ? fill : OutlineColour(palette));
}

void DrawFieldPanel(const QStyleOption* option, QPainter* painter)
{
    const bool focus = option->state & QStyle::State_HasFocus;
    const bool readOnly = option->state & QStyle::State_ReadOnly;
    const QPalette& palette = option->palette;
    FillRounded(painter, option->rect, Corner, palette.color(readOnly ? QPalette::Window : QPalette::Base),
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

void DrawHeaderSection(const QStyleOption* option, QPainter* painter)
{
    painter->fillRect(option->rect, option->palette.color(QPalette::AlternateBase));
    painter->setPen(option->palette.color(QPalette::Mid));
    painter->drawLine(option->rect.bottomLeft(), option->rect.bottomRight());
}

} // namespace

Style::Style() : QProxyStyle(QStringLiteral("fusion")) {}

void Style::polish(QPalette& palette)
{
    ApplyTheme(palette);
}

void Style::polish(QWidget* widget)
{
    QProxyStyle::polish(widget);
    if (qobject_cast<QAbstractButton*>(widget) != nullptr || qobject_cast<QComboBox*>(widget) != nullptr)
        widget->setAttribute(Qt::WA_Hover);
}

void Style::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                          const QWidget* widget) const
{
    switch (element) {
    case PE_PanelButtonCommand:
        DrawButton(option, painter, widget);
        return;
    case PE_FrameFocusRect:
        if (qobject_cast<const QAbstractItemView*>(widget) == nullptr)
            DrawFocusRing(painter, option->rect, option->palette);
        return;
    case PE_PanelLineEdit: {
        const bool bare =
            widget != nullptr && (widget->property(BareProperty).toBool() ||
                                  qobject_cast<const QComboBox*>(widget->parentWidget()) != nullptr ||
                                  qobject_cast<const QAbstractSpinBox*>(widget->parentWidget()) != nullptr);
        if (!bare)
            DrawFieldPanel(option, painter);
        return;
    }
    case PE_IndicatorCheckBox:
        DrawIndicator(option, painter, false);
        return;
    case PE_IndicatorRadioButton:
        DrawIndicator(option, painter, true);
        return;
    default:
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}

void Style::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                        const QWidget* widget) const
{
    if (element == CE_PushButtonLabel && IsAccent(option, widget) && (option->state & State_Enabled)) {
        if (const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option)) {
            QStyleOptionButton accented = *button;
            accented.palette.setColor(QPalette::ButtonText, option->palette.color(QPalette::HighlightedText));
            QProxyStyle::drawControl(element, &accented, painter, widget);
            return;
        }
    }
    if (element == CE_HeaderSection || element == CE_HeaderEmptyArea) {
        DrawHeaderSection(option, painter);
        return;
    }
    if (element == CE_HeaderLabel) {
        if (const auto* header = qstyleoption_cast<const QStyleOptionHeader*>(option)) {
            QStyleOptionHeaderV2 quiet;
            quiet.QStyleOptionHeader::operator=(*header);
            quiet.palette.setColor(QPalette::ButtonText, option->palette.color(QPalette::PlaceholderText));
            QProxyStyle::drawControl(element, &quiet, painter, widget);
            return;
        }
    }
    if (const auto* list = qstyleoption_cast<const QStyleOptionComboBox*>(option);
        list != nullptr && element == CE_ComboBoxLabel && list->currentText.size() > MostDrawnCharacters) {
        QStyleOptionComboBox beginning(*list);
        beginning.currentText.truncate(MostDrawnCharacters);
        QProxyStyle::drawControl(element, &beginning, painter, widget);
        return;
    }
    QProxyStyle::drawControl(element, option, painter, widget);
}

void Style::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                               const QWidget* widget) const
{
    if (control == CC_ScrollBar) {
        if (const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option))
            DrawScrollBar(*bar, painter);
        return;
    }
    if (control == CC_ToolButton) {
        if (const auto* button = qstyleoption_cast<const QStyleOptionToolButton*>(option)) {
            // The months behind a calendar's heading are found without an arrow across its text.
            QStyleOptionToolButton plain = *button;
            plain.features &= ~QStyleOptionToolButton::HasMenu;
            QProxyStyle::drawComplexControl(control, &plain, painter, widget);
            return;
        }
    }
    if (control != CC_ComboBox) {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
        return;
    }
    DrawFieldPanel(option, painter);
    DrawArrow(painter, proxy()->subControlRect(CC_ComboBox, option, SC_ComboBoxArrow, widget),
              option->palette.color(QPalette::PlaceholderText));
}

QRect Style::subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl subControl,
                            const QWidget* widget) const
{
    if (control == CC_ComboBox && subControl == SC_ComboBoxArrow)
        return visualRect(
            option->direction, option->rect,
            QRect(option->rect.right() - ArrowWidth + 1, option->rect.top(), ArrowWidth, option->rect.height()));
    if (control == CC_ComboBox && subControl == SC_ComboBoxEditField)
        return visualRect(option->direction, option->rect,
                          option->rect.adjusted(Spacing::Between - 2, 2, -ArrowWidth, -2));
    if (control == CC_ScrollBar)
        if (const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option))
            return ScrollBarPart(*bar, subControl);
    return QProxyStyle::subControlRect(control, option, subControl, widget);
}

QRect Style::subElementRect(SubElement element, const QStyleOption* option, const QWidget* widget) const
{
    if (element == SE_CheckBoxFocusRect || element == SE_RadioButtonFocusRect)
        return option->rect;
    return QProxyStyle::subElementRect(element, option, widget);
}

int Style::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const
{
    switch (metric) {
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
        return IndicatorSize;
    case PM_CheckBoxLabelSpacing:
    case PM_RadioButtonLabelSpacing:
        return Spacing::Inside + 2;
    case PM_ButtonShiftHorizontal:
    case PM_ButtonShiftVertical:
        return 0;
    case PM_DefaultFrameWidth:
        // A drop-down list and a text area have one fine line; the fields' own panel brings its own room.
        return qobject_cast<const QLineEdit*>(widget) != nullptr ? Spacing::Inside : 1;
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

QSize Style::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                              const QWidget* widget) const
{
    QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
    switch (type) {
    case CT_PushButton:
        return {size.width() + 2 * Spacing::Between, qMax(size.height(), ControlHeight + 2)};
    case CT_LineEdit:
        if (widget != nullptr && widget->property(BareProperty).toBool())
            return size;
        return {size.width(), qMax(size.height(), ControlHeight)};
    case CT_ComboBox:
        return {size.width() + Spacing::Between, qMax(size.height(), ControlHeight)};
    case CT_ItemViewItem:
        return {size.width(), qMax(size.height(), ListLineHeight)};
    case CT_SpinBox:
        return {size.width() + Spacing::Between, qMax(size.height(), ControlHeight)};
    default:
        return size;
    }
}

int Style::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget, QStyleHintReturn* data) const
{
    switch (hint) {
    case SH_ComboBox_Popup:
    case SH_EtchDisabledText:
    case SH_DitherDisabledText:
        return 0;
    default:
        return QProxyStyle::styleHint(hint, option, widget, data);
    }
}
