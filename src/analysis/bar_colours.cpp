#include "analysis/bar_colours.h"

QColor FillOf(BarColour colour)
{
    switch (colour) {
    case BarColour::LightBlue:
        return QColor("#8CC8F5");
    case BarColour::LightGreen:
        return QColor("#8EDB9A");
    case BarColour::LightRed:
        return QColor("#F28B82");
    case BarColour::Yellow:
        return QColor("#F5E27A");
    case BarColour::White:
        break;
    }
    return QColor("#FFFFFF");
}

QColor OutlineOf(const QColor& fill)
{
    return fill.darker(fill.lightness() > 250 ? 170 : 145);
}
