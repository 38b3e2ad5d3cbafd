#pragma once

#include <QColor>
#include <QFont>
#include <QPalette>

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

/// Chooses light or dark by how bright the desktop's own palette is, and puts the theme's colours into it.
void ApplyTheme(QPalette& palette);

/// Which theme to use: the desktop's, or always the same one.
enum class Appearance
{
    FromDesktop,
    Light,
    Dark
};
void SetAppearance(Appearance appearance);

/// The grid of the layout, in logical pixels: inside a control, between controls, between cards, around a page.
namespace Spacing {
inline constexpr int Inside = 6;
inline constexpr int Between = 12;
inline constexpr int Cards = 18;
inline constexpr int Page = 30;
} // namespace Spacing

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
