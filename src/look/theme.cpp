#include "look/theme.h"

#include <QApplication>
#include <QWidget>

#include <array>

namespace {

const Theme LightTheme{false,     "#F5F6FA", "#FFFFFF", "#E2E6EF", "#FFFFFF", "#1A2233", "#5A6478",
                       "#4A63C8", "#FFFFFF", "#16203A", "#C9D3EA", "#566FD5", "#FFFFFF"};
const Theme DarkTheme{true,      "#12161F", "#1B2130", "#2C3548", "#12161F", "#E9EDF6", "#9AA5BC",
                      "#7F95EC", "#0C111C", "#0C111C", "#C9D3EA", "#566FD5", "#FFFFFF"};

const Theme* themeInUse = &LightTheme;
bool desktopPrefersDark = false;

} // namespace

const Theme& CurrentTheme()
{
    return *themeInUse;
}

void ApplyTheme(QPalette& palette)
{
    const bool dark = desktopPrefersDark ||
                      palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
    const Theme& theme = dark ? DarkTheme : LightTheme;
    themeInUse = &theme;

    palette =
        QPalette(theme.text, theme.card, theme.card.lighter(dark ? 130 : 100), theme.cardLine.darker(dark ? 60 : 120),
                 theme.cardLine, theme.text, theme.text, theme.field, theme.page);
    palette.setColor(QPalette::AlternateBase, theme.card);
    palette.setColor(QPalette::Highlight, theme.accent);
    palette.setColor(QPalette::HighlightedText, theme.onAccent);
    palette.setColor(QPalette::PlaceholderText, theme.secondaryText);
    palette.setColor(QPalette::ToolTipBase, theme.card);
    palette.setColor(QPalette::ToolTipText, theme.text);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, theme.secondaryText);
}

QColor Mixed(const QColor& first, const QColor& second, qreal share)
{
    return QColor::fromRgbF(static_cast<float>(first.redF() + (second.redF() - first.redF()) * share),
                            static_cast<float>(first.greenF() + (second.greenF() - first.greenF()) * share),
                            static_cast<float>(first.blueF() + (second.blueF() - first.blueF()) * share));
}

void SetDesktopPrefersDark(bool prefersDark)
{
    if (prefersDark == desktopPrefersDark)
        return;
    desktopPrefersDark = prefersDark;
    // Has the style put the theme's colours into the desktop's palette anew.
    if (qApp != nullptr)
        QApplication::setPalette(QPalette());
}

bool IsInLargeWindow(const QWidget& widget)
{
    constexpr int largeWidth = 1600;
    return widget.window()->width() >= largeWidth;
}

QFont FontFor(TextRole role)
{
    struct Form
    {
        double pixels;
        QFont::Weight weight;
    };
    // In the order of the roles; a weight of its own is one that is not normal.
    constexpr std::array<Form, 6> forms{{{12, QFont::Normal},
                                         {14, QFont::Normal},
                                         {14, QFont::DemiBold},
                                         {16, QFont::DemiBold},
                                         {24, QFont::DemiBold},
                                         {44, QFont::Bold}}};
    const Form& form = forms.at(static_cast<size_t>(role));
    const double scale = form.pixels / forms[static_cast<size_t>(TextRole::Body)].pixels;
    QFont font = QApplication::font();
    if (form.weight != QFont::Normal)
        font.setWeight(form.weight);
    if (font.pointSizeF() > 0)
        font.setPointSizeF(font.pointSizeF() * scale);
    else
        font.setPixelSize(qRound(font.pixelSize() * scale));
    return font;
}
