#include "balls/ball_row.h"

#include "base/numbers.h"
#include "controls/label.h"
#include "game/ball_colours.h"
#include "game/game.h"
#include "look/theme.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

BallRow::BallRow(const BallFields::Names& names, const QStringList& captions, QWidget* parent) : QWidget(parent)
{
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    // The balls bring room for their shadows and their rings.
    row->setSpacing(0);
    for (int slot = 0; slot < captions.size(); ++slot) {
        const int index = names.indices.at(static_cast<size_t>(slot));
        balls.push_back(MakeLabelledBall(ElementName(names.disc, index), ElementName(names.field, index), this));
        if (slot + 1 == captions.size()) {
            gap = new BallDivider(this);
            row->addWidget(gap);
        }
        auto* column = new QVBoxLayout;
        column->setSpacing(Spacing::Inside);
        column->addWidget(balls.back().disc, 0, Qt::AlignHCenter | Qt::AlignTop);
        if (!names.caption.isEmpty()) {
            captionLabels.push_back(
                MakeLabel(captions[slot], TextRole::Caption, ElementName(names.caption, slot), this));
            // With a large font the captions are wider than the balls, and must not run together.
            captionLabels.back()->setContentsMargins(Spacing::Inside / 2, 0, Spacing::Inside / 2, 0);
            column->addWidget(captionLabels.back(), 0, Qt::AlignHCenter);
        }
        row->addLayout(column);
    }
    row->addStretch(1);
}

void BallRow::Show(const Game& game, std::span<const double> numbers)
{
    for (size_t slot = 0; slot < balls.size() && slot < numbers.size(); ++slot) {
        const BallColours colours = ColoursOfBall(game, static_cast<int>(slot), numbers[slot]);
        const QString text = PlainNumber(numbers[slot]);
        balls[slot].Show(text, QColor::fromRgb(colours.ball), QColor::fromRgb(colours.number));
        balls[slot].number->setAccessibleName(game.BallCaption(static_cast<int>(slot)) + u' ' + text);
    }
}

void BallRow::MakeCompact()
{
    for (const LabelledBall& ball : balls)
        ball.disc->MakeCompact();
}
