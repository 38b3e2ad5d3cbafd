#include "draws/draw_detail_page.h"

#include "draws/draw_records.h"
#include "draws/draw_view.h"
#include "draws/game.h"
#include "platform/card.h"
#include "platform/guard.h"
#include "shell/open_databases.h"

namespace {

int PageOf(const Game& game)
{
    return game.drawType == MainGame.drawType ? 14 : 15;
}

QString TitleOf(const Game& game)
{
    return game.drawType == MainGame.drawType ? QStringLiteral("Main Lottery Draw")
                                              : QStringLiteral("Thunderball Draw");
}

QString ControlName(const Game& game, const char* name)
{
    return QStringLiteral("F%1%2").arg(PageOf(game)).arg(QLatin1String(name));
}

} // namespace

DrawDetailPage::DrawDetailPage(const Game& drawGame)
    : PageFrame(PageOf(drawGame), TitleOf(drawGame)),
      game(drawGame),
      draw(new DrawView(game,
                        {ControlName(game, "date"), ControlName(game, "number"), ControlName(game, "ball"),
                         ControlName(game, "label"), ControlName(game, "machine"), ControlName(game, "ballset")},
                        {QStringLiteral("Machine used: "), QStringLiteral("Set of balls used: ")})),
      back(AddFooterDefault(QStringLiteral("BACK"), ControlName(game, "back")))
{
    auto* card = new Card;
    card->Content()->addWidget(draw);
    Body()->addWidget(card);
    Body()->addStretch(1);
    SetBackButton(back);
    // F14back_Click, F15back_Click.
    ConnectGuarded(back, &QPushButton::clicked, this, [this] { hide(); });
}

void DrawDetailPage::Open(std::int64_t drawId)
{
    RecordSet& list = DrawListOf(game);
    MoveToDraw(list, drawId, "The draw could not be shown");
    draw->Show(ReadDraw(list, game));
    ShowInFront();
    back->setFocus();
}
