#include "shell/menu_buttons.h"

#include "look/button.h"
#include "look/shortcut_letters.h"
#include "look/theme.h"

#include <QPainter>

using namespace Qt::StringLiterals;

namespace {

constexpr int TextLeft = 56;
constexpr int LogoTextLeft = 66;

/// The light blue of the product's number and of the marker.
constexpr QRgb Blue = 0xFF7F95EC;

QFont ProductFont()
{
    QFont font = FontFor(TextRole::Heading);
    font.setPointSizeF(font.pointSizeF() * 1.25);
    return font;
}

/// A focus ring that can be seen on the dark column.
void DrawRing(QPainter& painter, const QRectF& rect)
{
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(CurrentTheme().menuText, 2));
    painter.drawRoundedRect(rect.adjusted(1, 1, -1, -1), 8, 8);
}

} // namespace

MenuButton::MenuButton(const QString& caption, const QString& name, Picture shownPicture, QWidget* parent)
    : QAbstractButton(parent), picture(shownPicture)
{
    setObjectName(name);
    setText(caption);
    setFont(FontFor(TextRole::Strong));
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    setAttribute(Qt::WA_Hover);
}

void MenuButton::SetOpen(bool isOpen)
{
    open = isOpen;
    update();
}

QSize MenuButton::sizeHint() const
{
    return {TextLeft + QFontMetrics(font()).horizontalAdvance(text()) + MenuMeasure::ButtonMargin,
            MenuMeasure::RowHeight};
}

void MenuButton::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const Theme& theme = CurrentTheme();
    if (open || underMouse()) {
        QColor fill = theme.openGroup;
        if (!open)
            fill.setAlpha(70);
        painter.setPen(Qt::NoPen);
        painter.setBrush(fill);
        painter.drawRoundedRect(rect(), 8, 8);
    }
    const QColor colour = open ? theme.onOpenGroup : theme.menuText;
    DrawPicture(painter, picture, QRectF(12, height() / 2.0 - 10, 20, 20), colour);
    painter.setPen(colour);
    painter.drawText(rect().adjusted(TextLeft - MenuMeasure::ButtonMargin, 0, 0, 0),
                     Qt::AlignVCenter | Qt::AlignLeft | Qt::TextShowMnemonic, DrawnCaption(*this));
    if (hasFocus())
        DrawRing(painter, rect());
}

LogoButton::LogoButton(QWidget* parent) : QAbstractButton(parent)
{
    setObjectName(u"Logo"_s);
    setAccessibleName(u"Tavenor 3, to the start page"_s);
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
}

QSize LogoButton::sizeHint() const
{
    return {LogoTextLeft + QFontMetrics(ProductFont()).horizontalAdvance(u"Tavenor 3"_s) + MenuMeasure::ButtonMargin,
            62};
}

void LogoButton::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    DrawLogo(painter, QRectF(10, 10, 42, 42));
    QFont font = ProductFont();
    painter.setFont(font);
    painter.setPen(Qt::white);
    painter.drawText(QRect(LogoTextLeft, 0, width(), height()), Qt::AlignVCenter, u"Tavenor"_s);
    const int next = LogoTextLeft + QFontMetrics(font).horizontalAdvance(u"Tavenor "_s);
    font.setWeight(QFont::Normal);
    painter.setFont(font);
    painter.setPen(QColor(Blue));
    painter.drawText(QRect(next, 0, width(), height()), Qt::AlignVCenter, u"3"_s);
    if (hasFocus())
        DrawRing(painter, rect());
}

SuboptionLabel::SuboptionLabel(int number, QWidget* parent) : ClickLabel(QString(), parent)
{
    setObjectName(u"Suboption%1"_s.arg(number));
    QPalette onColumn = palette();
    onColumn.setColor(QPalette::WindowText, CurrentTheme().menuText);
    onColumn.setColor(QPalette::Highlight, CurrentTheme().menuText);
    setPalette(onColumn);
}

void SuboptionLabel::SetMarked(bool marked)
{
    setFont(FontFor(marked ? TextRole::Strong : TextRole::Body));
    QPalette onColumn = palette();
    onColumn.setColor(QPalette::WindowText, marked ? Qt::white : CurrentTheme().menuText);
    setPalette(onColumn);
}

OptionMark::OptionMark(QWidget* parent) : QWidget(parent)
{
    setObjectName(u"Optionmark"_s);
}

void OptionMark::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(Blue));
    constexpr int barHeight = 14;
    painter.drawRoundedRect(QRectF(0, (height() - barHeight) / 2.0, width(), barHeight), 2, 2);
}
