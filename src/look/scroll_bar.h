#pragma once

#include <QStyle>

class QStyleOptionSlider;

/// The place of a part of a scroll bar that has no arrow buttons: the slider runs from end to end.
QRect ScrollBarPart(const QStyleOptionSlider& bar, QStyle::SubControl part);

/// Draws it: a quiet rounded slider without a groove.
void DrawScrollBar(const QStyleOptionSlider& bar, QPainter* painter);
