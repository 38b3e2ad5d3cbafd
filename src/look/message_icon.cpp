#include "look/message_icon.h"

#include <QPainter>
#include <QPixmap>

namespace {

/// A sign in white strokes on a ball, laid out on a grid of 20 by 20 and large enough for every scale.
QIcon SignIcon(const QColor& ball, std::initializer_list<QLineF> strokes)
{
    constexpr int side = 128;
    QPixmap picture(side, side);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(side / 20.0, side / 20.0);
    painter.setPen(Qt::NoPen);
    painter.setBrush(ball);
    painter.drawEllipse(QRectF(1, 1, 18, 18));
    painter.setPen(QPen(Qt::white, 2.2, Qt::SolidLine, Qt::RoundCap));
    for (const QLineF& stroke : strokes)
        painter.drawLine(stroke);
    return picture;
}

} // namespace

QIcon InformationIcon()
{
    return SignIcon("#4A63C8", {{10, 5.8, 10, 5.81}, {10, 9.6, 10, 14.4}});
}

QIcon CriticalIcon()
{
    return SignIcon("#C0303B", {{6.8, 6.8, 13.2, 13.2}, {13.2, 6.8, 6.8, 13.2}});
}
