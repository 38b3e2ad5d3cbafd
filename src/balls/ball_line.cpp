#include "balls/ball_line.h"

#include "balls/ball_disc.h"
#include "controls/label.h"
#include "game/game.h"
#include "look/theme.h"

#include <QHBoxLayout>
#include <QPainter>

namespace {

/// The line that sets the extra ball apart, with its room.
class BallDivider : public QWidget
{
public:
    explicit BallDivider(QWidget* parent) : QWidget(parent) { setFixedWidth(Spacing::Between + 1); }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter(this).fillRect(QRect(width() / 2, 0, 1, height()), palette().color(QPalette::Mid));
    }
};

} // namespace

BallLine::BallLine(const Names& names, const Game* drawGame) : divider(new BallDivider(this))
{
    const Game& game = drawGame != nullptr ? *drawGame : MainGame;
    const int count = drawGame != nullptr ? game.BallCount() : EntryBalls;
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    // The balls bring room for their shadows and their rings.
    row->setSpacing(0);
    for (int slot = 0; slot < count; ++slot) {
        discs.append(new BallDisc(ElementName(names.disc, ElementOf(slot, drawGame)), this));
        captions.append(MakeLabel(game.BallCaption(slot), TextRole::Caption, {}, this));
        QLabel* caption = captions.last();
        caption->setHidden(names.caption.isEmpty());
        if (!names.caption.isEmpty())
            caption->setObjectName(ElementName(names.caption, drawGame != nullptr ? slot : slot + 1));
        caption->setAlignment(Qt::AlignCenter);
        // With a large font the captions are wider than the balls, and must not run together.
        caption->setContentsMargins(Spacing::Inside / 2, 0, Spacing::Inside / 2, 0);
        if (slot + 1 == count)
            row->addWidget(divider);
        auto* column = new QVBoxLayout;
        column->setSpacing(Spacing::Inside);
        column->addWidget(discs.last(), 0, Qt::AlignHCenter | Qt::AlignTop);
        column->addWidget(caption, 0, Qt::AlignHCenter);
        row->addLayout(column);
    }
    row->addStretch(1);
}

int BallLine::ElementOf(int slot, const Game* drawGame)
{
    return drawGame != nullptr && drawGame->IsExtra(slot) ? 0 : slot + 1;
}
