#include "builder/number_board.h"

#include "balls/ball_disc.h"
#include "controls/label.h"
#include "game/ball_colours.h"
#include "game/game.h"
#include "look/theme.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QKeyEvent>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace {

constexpr int Side = 7;
constexpr qreal ShadowRoom = 5;

/// A number that is a lit ball with a tick mark when it is chosen and a flat, pale disc when it is not.
class NumberToggle : public QCheckBox
{
public:
    explicit NumberToggle(int number) : QCheckBox(QString::number(number)), colours(ColoursOfBall(MainGame, 0, number))
    {
        setObjectName(ElementName(u"n"_s, number));
        setAccessibleName(u"Number %1"_s.arg(number));
        setFocusPolicy(Qt::ClickFocus);
        setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
        connect(this, &QCheckBox::toggled, this, &NumberToggle::TakeColours);
    }

    QSize sizeHint() const override
    {
        const int side = qMax(50, qRound(QFontMetricsF(FontFor(TextRole::Heading)).height() * 2.2));
        return {side, side};
    }
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    bool hitButton(const QPoint& point) const override { return rect().contains(point); }

    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const QRectF ball =
            QRectF(rect()).adjusted(ShadowRoom + 0.5, ShadowRoom + 0.5, -ShadowRoom - 0.5, -ShadowRoom - 0.5);
        if (isChecked()) {
            PaintBall(painter, ball, palette().color(QPalette::Window));
        } else {
            painter.setPen(QPen(palette().color(QPalette::PlaceholderText), 1));
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

private:
    void TakeColours(bool ticked)
    {
        QPalette changed;
        if (ticked) {
            changed.setColor(QPalette::Window, QColor::fromRgb(colours.ball));
            changed.setColor(QPalette::WindowText, QColor::fromRgb(colours.number));
        }
        setPalette(changed);
    }

    void PaintTick(QPainter& painter, const QRectF& ball) const
    {
        const qreal radius = ball.width() * 0.19;
        const QPointF middle = ball.bottomRight() - QPointF(radius, radius) * 0.95;
        painter.setPen(QPen(palette().color(QPalette::HighlightedText), 1.2));
        painter.setBrush(palette().color(QPalette::Highlight));
        painter.drawEllipse(middle, radius, radius);
        painter.setPen(
            QPen(palette().color(QPalette::HighlightedText), radius / 4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.drawPolyline(QPolygonF({middle + QPointF(-0.5, 0) * radius, middle + QPointF(-0.1, 0.4) * radius,
                                        middle + QPointF(0.5, -0.4) * radius}));
    }

    BallColours colours;
};

} // namespace

NumberBoard::NumberBoard(QWidget* parent) : QWidget(parent)
{
    auto* grid = new QGridLayout(this);
    setAccessibleName(u"Numbers 1 to 49"_s);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(Spacing::Inside / 2);
    for (int number = 1; number <= HighestNumber; ++number) {
        auto* toggle = new NumberToggle(number);
        toggles.at(static_cast<size_t>(number) - 1) = toggle;
        grid->addWidget(toggle, (number - 1) / Side, (number - 1) % Side);
        toggle->installEventFilter(this);
        connect(toggle, &QCheckBox::toggled, this, &NumberBoard::Changed);
    }
    MakeTabStop(1);
}

std::vector<int> NumberBoard::TickedNumbers() const
{
    std::vector<int> numbers;
    for (int number = 1; number <= HighestNumber; ++number)
        if (Toggle(number)->isChecked())
            numbers.push_back(number);
    return numbers;
}

void NumberBoard::Tick(int number)
{
    Toggle(number)->setChecked(true);
}

void NumberBoard::SetAll(bool ticked)
{
    for (QCheckBox* toggle : toggles)
        toggle->setChecked(ticked);
}

bool NumberBoard::eventFilter(QObject* watched, QEvent* event)
{
    const auto* toggle = qobject_cast<QCheckBox*>(watched);
    if (toggle == nullptr)
        return false;
    if (event->type() == QEvent::FocusIn)
        MakeTabStop(toggle->text().toInt());
    return event->type() == QEvent::KeyPress && MoveFrom(toggle->text().toInt(), static_cast<QKeyEvent*>(event)->key());
}

bool NumberBoard::MoveFrom(int number, int key)
{
    const int row = (number - 1) / Side;
    const int column = (number - 1) % Side;
    int target = number;
    switch (key) {
    case Qt::Key_Left:
        target = column > 0 ? number - 1 : number;
        break;
    case Qt::Key_Right:
        target = column + 1 < Side ? number + 1 : number;
        break;
    case Qt::Key_Up:
        target = row > 0 ? number - Side : number;
        break;
    case Qt::Key_Down:
        target = row + 1 < Side ? number + Side : number;
        break;
    case Qt::Key_Home:
        target = 1;
        break;
    case Qt::Key_End:
        target = HighestNumber;
        break;
    default:
        return false;
    }
    Toggle(target)->setFocus(Qt::OtherFocusReason);
    return true;
}

void NumberBoard::MakeTabStop(int number)
{
    // The board is one stop on the way of the Tab key: the number that had the focus last.
    for (QCheckBox* toggle : toggles)
        toggle->setFocusPolicy(toggle == Toggle(number) ? Qt::StrongFocus : Qt::ClickFocus);
    setFocusProxy(Toggle(number));
}
