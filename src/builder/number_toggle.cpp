#include "builder/number_toggle.h"

#include "balls/ball_disc.h"
#include "controls/label.h"
#include "game/game.h"
#include "look/theme.h"

#include <QGridLayout>
#include <QHash>
#include <QKeyEvent>
#include <QPainter>

using namespace Qt::StringLiterals;

NumberToggle::NumberToggle(int number) : QCheckBox(QString::number(number)), colours(ColoursOfBall(MainGame, 0, number))
{
    setObjectName(ElementName(u"n"_s, number));
    setAccessibleName(u"Number %1"_s.arg(number));
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    connect(this, &QCheckBox::toggled, this, &NumberToggle::TakeColours);
}

QSize NumberToggle::sizeHint() const
{
    const int side = qMax(50, qRound(QFontMetricsF(FontFor(TextRole::Heading)).height() * 2.2));
    return {side, side};
}

void NumberToggle::TakeColours(bool ticked)
{
    QPalette changed;
    if (ticked) {
        changed.setColor(QPalette::Window, QColor::fromRgb(colours.ball));
        changed.setColor(QPalette::WindowText, QColor::fromRgb(colours.number));
    }
    setPalette(changed);
}

void NumberToggle::paintEvent(QPaintEvent* /*event*/)
{
    constexpr qreal shadowRoom = 5.5;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF ball = QRectF(rect()).adjusted(shadowRoom, shadowRoom, -shadowRoom, -shadowRoom);
    if (isChecked()) {
        PaintBall(painter, ball, palette().color(QPalette::Window));
    } else {
        painter.setPen(palette().color(QPalette::PlaceholderText));
        painter.setBrush(Mixed(palette().color(QPalette::AlternateBase), QColor::fromRgb(colours.ball), 0.3));
        painter.drawEllipse(ball);
    }
    painter.setFont(FontFor(isChecked() ? TextRole::Heading : TextRole::Body));
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(ball, Qt::AlignCenter, text());
    if (isChecked())
        PaintTick(painter, ball);
    if (hasFocus()) {
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(palette().color(QPalette::Highlight), 2.5));
        painter.drawEllipse(ball.adjusted(-2.5, -2.5, 2.5, 2.5));
    }
}

void NumberToggle::PaintTick(QPainter& painter, const QRectF& ball) const
{
    const qreal radius = ball.width() * 0.19;
    const QPointF middle = ball.bottomRight() - QPointF(radius, radius) * 0.95;
    const QColor mark = palette().color(QPalette::HighlightedText);
    painter.setPen(QPen(mark, 1.2));
    painter.setBrush(palette().color(QPalette::Highlight));
    painter.drawEllipse(middle, radius, radius);
    painter.setPen(QPen(mark, radius / 4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(QPolygonF({middle + QPointF(-0.5, 0) * radius, middle + QPointF(-0.1, 0.4) * radius,
                                    middle + QPointF(0.5, -0.4) * radius}));
}

void NumberToggle::keyPressEvent(QKeyEvent* event)
{
    // Columns and rows to go.
    static const QHash<int, QPoint> steps{
        {Qt::Key_Left, {-1, 0}}, {Qt::Key_Right, {1, 0}}, {Qt::Key_Up, {0, -1}}, {Qt::Key_Down, {0, 1}}};
    if (!steps.contains(event->key())) {
        QCheckBox::keyPressEvent(event);
        return;
    }
    const auto* grid = qobject_cast<QGridLayout*>(parentWidget()->layout());
    int row = 0;
    int column = 0;
    int span = 0;
    grid->getItemPosition(grid->indexOf(this), &row, &column, &span, &span);
    const QPoint step = steps[event->key()];
    if (const QLayoutItem* next = grid->itemAtPosition(row + step.y(), column + step.x()))
        next->widget()->setFocus(Qt::OtherFocusReason);
}
