#include "utilities/link_label.h"

#include "look/theme.h"

#include <QEvent>
#include <QPainter>
#include <QStyleOptionFocusRect>
#include <QTextLayout>

namespace {

// More than fits a page; measuring a text of megabytes would take seconds.
constexpr int MostShownCharacters = 2000;
constexpr int NarrowestWidth = 120;

/// The beginning of the text on one line, without characters that would steer the drawing.
QString Shown(const QString& text)
{
    QString shown = text.left(MostShownCharacters);
    for (QChar& character : shown)
        if (character.category() == QChar::Other_Control || character.category() == QChar::Other_Format)
            character = u' ';
    if (text.size() > MostShownCharacters)
        shown += QChar(u'\x2026');
    return shown;
}

QColor LinkColour(const Theme& theme)
{
    return theme.dark ? QColor(0x8A, 0xB4, 0xF8) : QColor(0x00, 0x00, 0xFF);
}

QColor PlainColour(const Theme& theme)
{
    return theme.dark ? theme.text : QColor(Qt::black);
}

} // namespace

LinkLabel::LinkLabel(const QString& name, TextRole textRole, int mostLines)
    : ClickLabel(QString()), role(textRole), lines(mostLines)
{
    setObjectName(name);
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Minimum);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    TakeColour();
}

void LinkLabel::ShowText(const QString& text, Look textLook, const QString& caption)
{
    look = textLook;
    setText(text);
    // An ampersand in an address is not the mark of a shortcut key.
    setShortcut({});
    shown = Shown(text);
    setAccessibleName(caption + u' ' + shown);
    QFont styled = FontFor(role);
    styled.setUnderline(IsLink());
    setFont(styled);
    setFocusPolicy(IsLink() ? Qt::StrongFocus : Qt::NoFocus);
    if (IsLink())
        setCursor(Qt::PointingHandCursor);
    else
        unsetCursor();
    TakeColour();
    updateGeometry();
}

QSize LinkLabel::sizeHint() const
{
    const QFontMetrics metrics(font());
    return {metrics.horizontalAdvance(shown) + 2 * Inset(), metrics.lineSpacing() + Spacing::Inside};
}

QSize LinkLabel::minimumSizeHint() const
{
    return {NarrowestWidth, sizeHint().height()};
}

int LinkLabel::heightForWidth(int width) const
{
    return static_cast<int>(qMax(qsizetype(1), Lines(width).size())) * fontMetrics().lineSpacing() + Spacing::Inside;
}

QStringList LinkLabel::Lines(int width) const
{
    const int room = width - 2 * Inset();
    QStringList broken;
    QTextLayout layout(shown, font());
    layout.beginLayout();
    while (broken.size() < lines) {
        QTextLine line = layout.createLine();
        if (!line.isValid())
            break;
        line.setLineWidth(room);
        broken.append(broken.size() == lines - 1
                          ? fontMetrics().elidedText(shown.mid(line.textStart()), Qt::ElideRight, room)
                          : shown.mid(line.textStart(), line.textLength()));
    }
    layout.endLayout();
    return broken;
}

void LinkLabel::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setFont(font());
    painter.setPen(palette().color(QPalette::WindowText));
    int baseline = Spacing::Inside / 2 + fontMetrics().ascent();
    for (const QString& line : Lines(width())) {
        painter.drawText(Inset(), baseline, line);
        baseline += fontMetrics().lineSpacing();
    }
    if (hasFocus()) {
        QStyleOptionFocusRect option;
        option.initFrom(this);
        option.rect.setWidth(qMin(width(), sizeHint().width()));
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
    }
}

int LinkLabel::Inset() const
{
    return role == TextRole::Heading ? 0 : Spacing::Inside;
}

bool LinkLabel::hitButton(const QPoint& place) const
{
    return IsLink() && place.x() <= sizeHint().width() && rect().contains(place);
}

void LinkLabel::changeEvent(QEvent* event)
{
    ClickLabel::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::StyleChange)
        TakeColour();
}

void LinkLabel::TakeColour()
{
    const Theme& theme = CurrentTheme();
    const QColor colour = IsLink() ? LinkColour(theme) : PlainColour(theme);
    if (palette().color(QPalette::WindowText) == colour)
        return;
    QPalette coloured;
    coloured.setColor(QPalette::WindowText, colour);
    setPalette(coloured);
}
