#include "analysis/screen_button.h"

#include "analysis/analysis_screens.h"
#include "analysis/charts.h"
#include "balls/ball_disc.h"
#include "game/ball_colours.h"
#include "look/theme.h"

#include <QFocusEvent>
#include <QPainter>
#include <QtMath>

#include <array>

namespace {

constexpr qreal Corner = 8;

// Heights of the example bars, in hundredths. Those of "how long since" are many low ones and a few high ones.
constexpr std::array<int, 17> CountHeights{71, 76, 68, 83, 64, 79, 88, 73, 95, 67, 81, 59, 86, 75, 92, 70, 78};
constexpr std::array<int, 17> SinceHeights{22, 6, 47, 14, 31, 3, 68, 11, 19, 39, 8, 95, 26, 5, 54, 16, 12};

} // namespace

ScreenButton::ScreenButton(const Game& drawGame, const AnalysisScreen& shownScreen, const QString& name)
    : game(drawGame), screen(shownScreen)
{
    setObjectName(name);
    setText(screen.title);
    setAccessibleName(text());
    setAccessibleDescription(screen.description);
    setCursor(Qt::PointingHandCursor);
    setMouseTracking(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setMinimumSize(120, 86);
}

void ScreenButton::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const int line = hasFocus() ? 2 : 1;
    const QRectF card = QRectF(rect()).adjusted(line / 2.0, line / 2.0, -line / 2.0, -line / 2.0);
    painter.setPen(QPen(hasFocus() ? CurrentTheme().accent : CurrentTheme().cardLine, line));
    painter.setBrush(CurrentTheme().card);
    painter.drawRoundedRect(card, Corner, Corner);
    // On the same pixels with and without the focus.
    constexpr int inset = Spacing::Between + 1;
    const QRectF picture(rect().adjusted(inset, inset, -inset, -inset));
    if (screen.chart == 0)
        DrawBallData(painter, picture);
    else
        DrawChart(painter, picture);
}

void ScreenButton::DrawChart(QPainter& painter, const QRectF& picture) const
{
    const Chart& chart = FindChart(screen.chart);
    painter.setPen(QPen(CurrentTheme().cardLine, 1));
    for (int line = 0; line <= 3; ++line) {
        const qreal y = qFloor(picture.top() + picture.height() * line / 4) + 0.5;
        painter.drawLine(QPointF(picture.left(), y), QPointF(picture.right(), y));
    }
    const std::vector<ChartBar> bars = chart.Bars();
    const auto& heights = chart.subject == ChartSubject::DrawsSince ? SinceHeights : CountHeights;
    const qreal column = picture.width() / static_cast<qreal>(bars.size());
    const qreal width = qMin(column * 0.8, picture.width() / 5);
    for (size_t bar = 0; bar < bars.size(); ++bar) {
        const QColor fill = FillOf(bars[bar].colour);
        const qreal height = picture.height() * heights.at(bar % heights.size()) / 100;
        const qreal middle = picture.left() + column * (static_cast<qreal>(bar) + 0.5);
        painter.setPen(QPen(OutlineOf(fill), qMin(1.0, column / 6)));
        painter.setBrush(fill);
        painter.drawRect(QRectF(middle - width / 2, picture.bottom() - height, width, height));
    }
    painter.setPen(QPen(CurrentTheme().secondaryText, 1));
    painter.drawLine(picture.bottomLeft() + QPointF(0, 0.5), picture.bottomRight() + QPointF(0, 0.5));
}

void ScreenButton::DrawBallData(QPainter& painter, const QRectF& picture) const
{
    constexpr int exampleBall = 12;
    const BallColours colours = ColoursOfBall(game, 0, exampleBall);
    const qreal side = picture.height() * 0.5;
    const QRectF disc(picture.center().x() - side / 2, picture.top(), side, side);
    PaintBall(painter, disc, QColor(colours.ball));
    QFont digits = FontFor(TextRole::Strong);
    digits.setPixelSize(qRound(side * 0.45));
    painter.setFont(digits);
    painter.setPen(QColor(colours.number));
    painter.drawText(disc, Qt::AlignCenter, QString::number(exampleBall));
    painter.setPen(QPen(CurrentTheme().secondaryText, 2, Qt::SolidLine, Qt::RoundCap));
    qreal y = picture.top() + picture.height() * 0.66;
    for (const qreal length : {0.86, 0.6, 0.74}) {
        const qreal left = picture.left() + picture.width() * 0.07;
        painter.drawLine(QPointF(left, y), QPointF(left + picture.width() * length, y));
        y += picture.height() * 0.15;
    }
}

void ScreenButton::mouseMoveEvent(QMouseEvent* event)
{
    QAbstractButton::mouseMoveEvent(event);
    Q_EMIT PointedAt();
}

void ScreenButton::focusInEvent(QFocusEvent* event)
{
    QAbstractButton::focusInEvent(event);
    if (event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason)
        Q_EMIT PointedAt();
}
