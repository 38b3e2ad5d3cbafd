#include "controls/card.h"

#include "look/theme.h"

#include <QPainter>

Card::Card(QWidget* parent) : QFrame(parent), content(new QVBoxLayout(this))
{
    content->setContentsMargins(Spacing::Cards, Spacing::Cards, Spacing::Cards, Spacing::Cards);
    content->setSpacing(Spacing::Between);
}

void Card::paintEvent(QPaintEvent* /*event*/)
{
    constexpr qreal corner = 12;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(palette().color(QPalette::Mid), 1));
    painter.setBrush(palette().color(QPalette::AlternateBase));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), corner, corner);
}
