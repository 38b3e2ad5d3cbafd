#include "balls/ball_disc.h"

#include "game/ball_colours.h"
#include "look/theme.h"

#include <QEvent>
#include <QLabel>
#include <QPainter>
#include <QRadialGradient>

namespace {

constexpr qreal ShadowRoom = 3;
constexpr qreal RingRoom = 3;

} // namespace

void PaintBall(QPainter& painter, const QRectF& ball, const QColor& colour)
{
    painter.setPen(Qt::NoPen);
    for (int step = 3; step >= 1; --step) {
        painter.setBrush(QColor(0, 0, 0, 14));
        painter.drawEllipse(ball.translated(0, ShadowRoom - 1).adjusted(-step + 1, -step + 1, step - 1, step - 1));
    }

    // The digits stand in the middle, so the middle keeps the ball's own colour and only the rim is shaded.
    QRadialGradient light(ball.center(), ball.width() / 2 * 1.15,
                          ball.topLeft() + QPointF(ball.width() * 0.33, ball.height() * 0.28));
    light.setColorAt(0, colour.lightness() > 200 ? QColor(Qt::white) : Mixed(colour, Qt::white, 0.4));
    light.setColorAt(0.33, colour);
    light.setColorAt(1, colour.darker(116));
    painter.setBrush(light);
    // A dark ball on a dark card is told from it by a light rim.
    const bool sinks = CurrentTheme().dark && colour.lightness() < 100;
    painter.setPen(QPen(sinks ? QColor(255, 255, 255, 90) : QColor(0, 0, 0, CurrentTheme().dark ? 150 : 120), 1));
    painter.drawEllipse(ball);
}

BallDisc::BallDisc(const QString& name, QWidget* parent) : QWidget(parent)
{
    setObjectName(name);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void BallDisc::Carry(QWidget* number)
{
    carried = number;
    carried->installEventFilter(this);
    PlaceNumber();
}

void BallDisc::SetColour(const QColor& colour)
{
    QPalette changed = palette();
    changed.setColor(QPalette::Window, colour);
    setPalette(changed);
}

void BallDisc::MakeCompact()
{
    compact = true;
    updateGeometry();
}

QSize BallDisc::sizeHint() const
{
    const int side = qMax(54, qRound(QFontMetricsF(FontFor(TextRole::Heading)).height() * 2.1));
    return QSize(side, side) * ((compact ? 5.0 / 6 : 1) * (IsInLargeWindow(*this) ? 4.0 / 3 : 1));
}

QRectF BallDisc::BallRect() const
{
    const qreal room = ShadowRoom + RingRoom;
    const qreal side = qMin(width(), height()) - 2 * room + ShadowRoom;
    return {(width() - side) / 2, RingRoom, side, side};
}

void BallDisc::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF ball = BallRect();
    PaintBall(painter, ball, palette().color(QPalette::Window));
    if (carried != nullptr && carried->hasFocus()) {
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(palette().color(QPalette::Highlight), 2.5));
        painter.drawEllipse(ball.adjusted(-1.75, -1.75, 1.75, 1.75));
    }
}

void BallDisc::resizeEvent(QResizeEvent* /*event*/)
{
    PlaceNumber();
}

void BallDisc::mousePressEvent(QMouseEvent* /*event*/)
{
    if (carried != nullptr && carried->focusPolicy() != Qt::NoFocus)
        carried->setFocus(Qt::MouseFocusReason);
}

void BallDisc::showEvent(QShowEvent* /*event*/)
{
    window()->installEventFilter(this);
    updateGeometry();
}

bool BallDisc::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == window() && event->type() == QEvent::Resize)
        updateGeometry();
    if (watched == carried && (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut))
        update();
    return QWidget::eventFilter(watched, event);
}

void BallDisc::PlaceNumber()
{
    if (carried == nullptr)
        return;
    const QRectF ball = BallRect();
    if (qobject_cast<QLabel*>(carried) != nullptr) {
        carried->setGeometry(ball.toRect());
        return;
    }
    const qreal side = ball.width() * 0.74;
    const int height = qMin(qRound(ball.height()), carried->sizeHint().height());
    carried->setGeometry(qRound(ball.center().x() - side / 2), qRound(ball.center().y() - height / 2.0), qRound(side),
                         height);
}

void LabelledBall::Show(const QString& text, const BallColours& colours) const
{
    disc->SetColour(QColor::fromRgb(colours.ball));
    QPalette palette = number->palette();
    palette.setColor(QPalette::WindowText, QColor::fromRgb(colours.number));
    number->setPalette(palette);
    number->setText(text);
}

LabelledBall PutLabelOn(BallDisc* disc, const QString& numberName)
{
    auto* number = new QLabel(disc);
    number->setObjectName(numberName);
    number->setTextFormat(Qt::PlainText);
    number->setAlignment(Qt::AlignCenter);
    number->setFont(FontFor(TextRole::Heading));
    disc->Carry(number);
    return {disc, number};
}
