#include "draws/draw_view.h"

#include "balls/ball_row.h"
#include "base/dates.h"
#include "base/texts.h"
#include "controls/label.h"
#include "game/game.h"
#include "look/theme.h"

#include <QVBoxLayout>

using namespace Qt::StringLiterals;

DrawView::DrawView(const Game& drawGame, const Names& names, const QString& machineText, const QString& ballSetText)
    : game(drawGame),
      machinePrefix(machineText),
      ballSetPrefix(ballSetText),
      balls(new BallRow({names.number, names.disc, names.caption}, &drawGame))
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(Spacing::Between);
    if (!names.date.isEmpty())
        layout->addWidget(date = MakeStoredTextLabel(u"Date"_s, TextRole::Heading, names.date), 1);
    layout->addWidget(balls);
    if (!game.hasMachine)
        return;
    machine = MakeStoredTextLabel(machinePrefix.trimmed(), TextRole::Body, names.machine);
    ballSet = MakeStoredTextLabel(ballSetPrefix.trimmed(), TextRole::Body, names.ballSet);
    auto* line = new QHBoxLayout;
    line->setSpacing(Spacing::Between);
    line->addWidget(machine, 1);
    line->addWidget(ballSet, 1);
    layout->addLayout(line);
}

void DrawView::Show(const DrawRow& draw)
{
    if (date != nullptr)
        date->setText(LongStoredDate(draw.date));
    balls->Show(game, draw.balls);
    if (!game.hasMachine)
        return;
    machine->setText(machinePrefix + ShownText(draw.machine));
    ballSet->setText(ballSetPrefix + ShownText(draw.ballSet));
}
