#include "look/logo_picture.h"

#include "look/artwork.h"

#include <QPainter>

LogoPicture::LogoPicture(int side, QWidget* parent) : QWidget(parent)
{
    setFixedSize(side, side);
}

void LogoPicture::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    DrawLogo(painter, QRectF(rect()).adjusted(1, 1, -1, -1));
}
