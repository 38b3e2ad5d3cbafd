#include "draws/draw_detail_page.h"

#include "controls/card.h"
#include "controls/guard.h"
#include "draws/draw_view.h"
#include "game/game.h"
#include "look/button.h"
#include "store/draw_records.h"
#include "store/open_databases.h"

#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

int PageOf(const Game& game)
{
    return game.IsMain() ? 14 : 15;
}

QString TitleOf(const Game& game)
{
    return game.IsMain() ? u"Main Lottery Draw"_s : u"Thunderball Draw"_s;
}

} // namespace

DrawDetailPage::DrawDetailPage(const Game& drawGame)
    : PageFrame(PageOf(drawGame), TitleOf(drawGame)),
      game(drawGame),
      draw(new DrawView(game,
                        {ControlName(u"date"_s), ControlName(u"number"_s), ControlName(u"ball"_s),
                         ControlName(u"label"_s), ControlName(u"machine"_s), ControlName(u"ballset"_s)},
                        {u"Machine used: "_s, u"Set of balls used: "_s})),
      back(AddFooterButton(u"BACK"_s, ControlName(u"back"_s)))
{
    auto* card = new Card;
    card->Content()->addWidget(draw);
    Body()->addWidget(card);
    MakeForm();
    SetBackButton(back);
    // F14back_Click, F15back_Click.
    ConnectGuarded(back, &QPushButton::clicked, this, [this] { hide(); });
}

void DrawDetailPage::Prepare()
{
    draw->Show(ReadDraw(DrawListOf(game), game));
    ShowInFront();
}
