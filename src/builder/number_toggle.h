#pragma once

#include "game/ball_colours.h"

#include <QCheckBox>

/// One of the numbers in the number-picking window: a lit ball with a tick mark when it is chosen, and a flat, pale
/// disc when it is not. The arrow keys go on to its neighbours in the grid in which it stands.
class NumberToggle : public QCheckBox
{
    Q_OBJECT

public:
    explicit NumberToggle(int number);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    bool hitButton(const QPoint& point) const override { return rect().contains(point); }
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void TakeColours(bool ticked);
    void PaintTick(QPainter& painter, const QRectF& ball) const;

    BallColours colours;
};
