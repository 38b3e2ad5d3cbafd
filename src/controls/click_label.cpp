#include "controls/click_label.h"

#include "look/button.h"
#include "look/shortcut_letters.h"
#include "look/theme.h"

#include <QPainter>
#include <QStyleOptionFocusRect>
#include <QtMath>

ClickLabel::ClickLabel(const QString& caption, QWidget* parent) : QAbstractButton(parent)
{
    setText(caption);
    setAccessibleName(caption);
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    setForegroundRole(QPalette::WindowText);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize ClickLabel::sizeHint() const
{
    // Rounded up, or a text that lacks a part of a pixel would end in an ellipsis.
    const int width = qCeil(QFontMetricsF(font()).horizontalAdvance(text()));
    return {width + 2 * Spacing::Inside, fontMetrics().height() + Spacing::Inside};
}

void ClickLabel::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    QFont drawn = font();
    drawn.setUnderline(drawn.underline() || underMouse());
    painter.setFont(drawn);
    painter.setPen(palette().color(foregroundRole()));
    const QRect line = rect().adjusted(Spacing::Inside, 0, -Spacing::Inside, 0);
    painter.drawText(line, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine | Qt::TextShowMnemonic,
                     fontMetrics().elidedText(DrawnCaption(*this), Qt::ElideRight, line.width(), Qt::TextShowMnemonic));
    if (hasFocus()) {
        QStyleOptionFocusRect option;
        option.initFrom(this);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
    }
}
