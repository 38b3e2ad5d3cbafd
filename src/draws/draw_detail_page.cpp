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

DrawDetailPage::DrawDetailPage(const Game& drawGame)
    : PageFrame(drawGame.IsMain() ? 14 : 15, drawGame.IsMain() ? u"Main Lottery Draw"_s : u"Thunderball Draw"_s),
      game(drawGame),
      draw(new DrawView(game,
                        {ControlName(u"date"_s), ControlName(u"number"_s), ControlName(u"ball"_s),
                         ControlName(u"label"_s), ControlName(u"machine"_s), ControlName(u"ballset"_s)},
                        u"Machine used: "_s, u"Set of balls used: "_s))
{
    auto* card = new Card;
    card->Content()->addWidget(draw);
    Body()->addWidget(card);
    MakeForm();
    Button* backButton = AddFooterButton(u"BACK"_s, ControlName(u"back"_s));
    SetBackButton(backButton);
    // F14back_Click, F15back_Click.
    ConnectGuarded(backButton, &QPushButton::clicked, this, [this] { hide(); });
}

void DrawDetailPage::Prepare()
{
    draw->Show(ReadDraw(DrawListOf(game), game));
    ShowInFront();
}
