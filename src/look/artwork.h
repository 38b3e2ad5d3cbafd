#pragma once

#include <QIcon>
#include <QImage>
#include <QRectF>

class QColor;
class QPainter;

/// The small pictures of the program, drawn as paths so that they are sharp at every scale.
enum class Picture
{
    AddDraws,
    DrawRecords,
    Users,
    Generator,
    Analysis,
    Exit
};

/// Draws a line picture in the given colour into the square.
void DrawPicture(QPainter& painter, Picture picture, const QRectF& square, const QColor& colour);

/// Draws the product's logo: a lit ball with its letter.
void DrawLogo(QPainter& painter, const QRectF& square);

/// The logo on a transparent ground, a square of the given side in pixels, as an icon.
QImage LogoImage(int side);

/// The sign of a message: an "i" on a ball for information, a cross for a failure.
QIcon InformationIcon();
QIcon CriticalIcon();
