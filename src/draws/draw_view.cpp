#include "draws/draw_view.h"

#include "balls/ball_names.h"
#include "balls/ball_row.h"
#include "base/dates.h"
#include "base/texts.h"
#include "controls/label.h"
#include "game/game.h"
#include "look/theme.h"

#include <QVBoxLayout>

using namespace Qt::StringLiterals;

DrawView::DrawView(const Game& drawGame, const Names& names, const Prefixes& textPrefixes, QWidget* parent)
    : QWidget(parent),
      game(drawGame),
      prefixes(textPrefixes),
      balls(new BallRow(DrawBallNames(game, names.number, names.disc, names.caption), DrawBallCaptions(game)))
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(Spacing::Between);
    if (!names.date.isEmpty())
        layout->addWidget(date = MakeStoredTextLabel(u"Date"_s, TextRole::Heading, names.date), 1);
    layout->addWidget(balls);
    if (!game.hasMachine)
        return;
    auto* line = new QHBoxLayout;
    line->setSpacing(Spacing::Between);
    layout->addLayout(line);
    machine = MakeStoredTextLabel(prefixes.machine.trimmed(), TextRole::Body, names.machine);
    ballSet = MakeStoredTextLabel(prefixes.ballSet.trimmed(), TextRole::Body, names.ballSet);
    line->addWidget(machine, 1);
    line->addWidget(ballSet, 1);
}

void DrawView::Show(const DrawRow& draw)
{
    if (date != nullptr)
        date->setText(LongStoredDate(draw.date));
    balls->Show(game, draw.balls);
    if (machine == nullptr)
        return;
    machine->setText(prefixes.machine + ShownText(draw.machine));
    ballSet->setText(prefixes.ballSet + ShownText(draw.ballSet));
}
