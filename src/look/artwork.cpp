#include "look/artwork.h"

#include "look/theme.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>
#include <QRadialGradient>

namespace {

// The pictures are laid out on a grid of 20 by 20.
constexpr qreal Grid = 20;

void DrawLines(QPainter& painter, std::initializer_list<QLineF> lines)
{
    for (const QLineF& line : lines)
        painter.drawLine(line);
}

void DrawOnGrid(QPainter& painter, Picture picture)
{
    switch (picture) {
    case Picture::AddDraws:
        DrawLines(painter, {{10, 3, 10, 17}, {3, 10, 17, 10}});
        break;
    case Picture::DrawRecords:
        DrawLines(painter, {{3, 5, 17, 5}, {3, 10, 17, 10}, {3, 15, 12, 15}});
        break;
    case Picture::Users: {
        painter.drawEllipse(QPointF(10, 6.5), 3.5, 3.5);
        QPainterPath shoulders(QPointF(4, 17));
        shoulders.cubicTo(4, 10.5, 16, 10.5, 16, 17);
        painter.drawPath(shoulders);
        break;
    }
    case Picture::Generator:
        DrawLines(painter,
                  {{2, 6, 12, 6}, {9, 3, 12, 6}, {9, 9, 12, 6}, {8, 14, 18, 14}, {8, 14, 11, 11}, {8, 14, 11, 17}});
        painter.drawEllipse(QPointF(16, 6), 1.8, 1.8);
        painter.drawEllipse(QPointF(4, 14), 1.8, 1.8);
        break;
    case Picture::Analysis:
        DrawLines(painter, {{4, 10, 4, 17}, {8, 3, 8, 17}, {12, 7, 12, 17}, {16, 12, 16, 17}});
        break;
    case Picture::Exit:
        painter.drawPolyline(QPolygonF({{11, 6}, {11, 3}, {4, 3}, {4, 17}, {11, 17}, {11, 14}}));
        DrawLines(painter, {{8, 10, 17, 10}, {14, 7, 17, 10}, {14, 13, 17, 10}});
        break;
    }
}

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

void DrawPicture(QPainter& painter, Picture picture, const QRectF& square, const QColor& colour)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(square.topLeft());
    painter.scale(square.width() / Grid, square.height() / Grid);
    painter.setPen(QPen(colour, 1.7, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    DrawOnGrid(painter, picture);
    painter.restore();
}

void DrawLogo(QPainter& painter, const QRectF& square)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    QRadialGradient light(square.center(), square.width() * 0.55,
                          square.topLeft() + QPointF(square.width() * 0.32, square.height() * 0.28));
    light.setColorAt(0, QColor("#9DB0F7"));
    light.setColorAt(0.7, QColor("#5B74D7"));
    light.setColorAt(1, QColor("#4A63C8"));
    painter.setPen(Qt::NoPen);
    painter.setBrush(light);
    painter.drawEllipse(square);
    const qreal unit = square.width() / 100;
    painter.setBrush(Qt::white);
    // One shape: where two lie over each other, their soft edges would show.
    QPainterPath letter;
    letter.setFillRule(Qt::WindingFill);
    letter.addRect(QRectF(square.left() + 24 * unit, square.top() + 33 * unit, 52 * unit, 12 * unit));
    letter.addRect(QRectF(square.left() + 43 * unit, square.top() + 33 * unit, 14 * unit, 47 * unit));
    painter.drawPath(letter.simplified());
    painter.restore();
}

QImage LogoImage(int side)
{
    constexpr qreal margin = 2.0 / 104;
    QImage image(side, side, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    const qreal free = margin * side;
    DrawLogo(painter, QRectF(image.rect()).adjusted(free, free, -free, -free));
    return image;
}

QIcon InformationIcon()
{
    return SignIcon(CurrentTheme().openGroup, {{10, 5.8, 10, 5.81}, {10, 9.6, 10, 14.4}});
}

QIcon CriticalIcon()
{
    return SignIcon("#C0303B", {{6.8, 6.8, 13.2, 13.2}, {13.2, 6.8, 6.8, 13.2}});
}
