#pragma once

#include "analysis/charts.h"

#include <QColor>

/// The softened colour in which bars of that palette colour are filled.
QColor FillOf(BarColour colour);

/// The line around a bar, dark enough to set a white bar off from the card.
QColor OutlineOf(const QColor& fill);
