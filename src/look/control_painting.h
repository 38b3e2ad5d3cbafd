#pragma once

#include <QStyle>

class QPainter;
class QRect;
class QRectF;
class QPalette;
class QStyleOption;
class QColor;
class QStyleOptionSlider;
class QWidget;

// How the style paints the parts of the controls, from the palette alone.

/// Whether a button is its page's or its dialog's default action.
bool IsAccent(const QStyleOption* option, const QWidget* widget);

void DrawFocusRing(QPainter* painter, const QRect& rect, const QPalette& palette);
void DrawButton(const QStyleOption* option, QPainter* painter, const QWidget* widget);
/// The ground of a text field or a drop-down list.
void DrawFieldPanel(const QStyleOption* option, QPainter* painter);
/// The arrow of a drop-down list.
void DrawArrow(QPainter* painter, const QRectF& rect, const QColor& colour);
/// The box of a check box or the circle of a choice, with its mark.
void DrawIndicator(const QStyleOption* option, QPainter* painter, bool round);
/// The line around a list that is folded out.
void DrawPopupFrame(const QStyleOption* option, QPainter* painter);
void DrawHeaderSection(const QStyleOption* option, QPainter* painter);

/// The name of the property of a text field that has no frame and background of its own, and of a view whose frame is
/// empty but for the ring of the focus.
inline constexpr char BareProperty[] = "bare";

/// The place of a part of a scroll bar that has no arrow buttons: the slider runs from end to end.
QRect ScrollBarPart(const QStyleOptionSlider& bar, QStyle::SubControl part);
/// A quiet rounded slider without a groove.
void DrawScrollBar(const QStyleOptionSlider& bar, QPainter* painter);
