#include "draws/draw_view.h"

#include "balls/ball_row.h"
#include "base/dates.h"
#include "base/texts.h"
#include "controls/label.h"
#include "controls/page_frame.h"
#include "draws/machine_fields.h"
#include "game/game.h"
#include "look/theme.h"

#include <QVBoxLayout>

using namespace Qt::StringLiterals;

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
        date = AddTextLabel(layout, u"Date"_s, TextRole::Heading, names.date);
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
