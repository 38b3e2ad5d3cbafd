#include "draws/draw_view.h"

#include "draws/ball_row.h"
#include "draws/draw_controls.h"
#include "draws/game.h"
#include "platform/dates.h"
#include "platform/page_frame.h"
#include "platform/texts.h"

#include <QVBoxLayout>

namespace {

/// A stored text may be of any length: the label breaks it and never widens its page.
QLabel* AddTextLabel(QBoxLayout* layout, const QString& text, TextRole role, const QString& name)
{
    QLabel* label = MakeLabel(text, role, name);
    label->setWordWrap(true);
    label->setMinimumWidth(1);
    layout->addWidget(label, 1);
    return label;
}

} // namespace

DrawView::DrawView(const Game& drawGame, const Names& names, const Prefixes& textPrefixes, QWidget* parent)
    : QWidget(parent),
      game(drawGame),
      prefixes(textPrefixes),
      balls(new BallRow(DrawFieldNames(game, names.number, names.disc, names.caption), DrawBallCaptions(game)))
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(Spacing::Between);
    if (!names.date.isEmpty())
        date = AddTextLabel(layout, QStringLiteral("Date"), TextRole::Heading, names.date);
    layout->addWidget(balls);
    if (!game.hasMachine)
        return;
    auto* line = new QHBoxLayout;
    line->setSpacing(Spacing::Between);
    layout->addLayout(line);
    machine = AddTextLabel(line, prefixes.machine.trimmed(), TextRole::Body, names.machine);
    ballSet = AddTextLabel(line, prefixes.ballSet.trimmed(), TextRole::Body, names.ballSet);
}

void DrawView::Show(const DrawRow& draw)
{
    if (date != nullptr)
        date->setText(LongStoredDate(draw.date));
    balls->Show(game, draw.balls);
    if (machine == nullptr)
        return;
    machine->setText(prefixes.machine + FromUtf8(draw.machine));
    ballSet->setText(prefixes.ballSet + FromUtf8(draw.ballSet));
}
