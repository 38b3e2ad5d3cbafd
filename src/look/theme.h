#pragma once

#include <QColor>
#include <QFont>
#include <QPalette>

class QWidget;

/// The colours that every page is painted in.
struct Theme
{
    bool dark;
    QColor page;
    QColor card;
    QColor cardLine;
    QColor field;
    QColor text;
    QColor secondaryText;
    QColor accent;
    QColor onAccent;
    QColor menu;
    QColor menuText;
    QColor openGroup;
    QColor onOpenGroup;
};

/// The theme that goes with the palette in use.
const Theme& CurrentTheme();

/// Chooses light or dark by how bright the desktop's own palette is and by what it says beside it, and puts the theme's
/// colours into it.
void ApplyTheme(QPalette& palette);

/// The colour that lies between two colours, at a share from 0 (the first) to 1 (the second).
QColor Mixed(const QColor& first, const QColor& second, qreal share);

/// Takes what the desktop says beside its palette, which may be light because it says nothing.
void SetDesktopPrefersDark(bool prefersDark);

/// The grid of the layout, in logical pixels: inside a control, between controls, between cards, around a page.
namespace Spacing {
inline constexpr int Inside = 6;
inline constexpr int Between = 12;
inline constexpr int Cards = 18;
inline constexpr int Page = 30;
} // namespace Spacing

/// Whether the window of a widget is so wide that what can grow, such as balls and figures, is a step larger.
bool IsInLargeWindow(const QWidget& widget);

/// The desktop's font in the sizes and weights that the pages use.
enum class TextRole
{
    Caption,
    Body,
    Strong,
    Heading,
    Title,
    Product
};
QFont FontFor(TextRole role);
