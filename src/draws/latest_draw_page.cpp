#include "draws/latest_draw_page.h"

#include "balls/ball_row.h"
#include "controls/card.h"
#include "controls/keeping_room.h"
#include "controls/label.h"
#include "draws/draw_view.h"
#include "game/game.h"
#include "look/theme.h"
#include "store/draw_records.h"
#include "store/open_databases.h"

#include <QGridLayout>

using namespace Qt::StringLiterals;

LatestDrawPage::LatestDrawPage()
    : PageFrame(8, u"Latest Draw"_s, u"labeltitle"_s), sections{MakeSection(MainGame), MakeSection(ThunderballGame)}
{
    auto* cards = new CardRow;
    for (const Section& section : sections)
        cards->addWidget(section.card, section.game->BallCount());
    Body()->addLayout(cards);
    MakeForm();
}

LatestDrawPage::Section LatestDrawPage::MakeSection(const Game& game)
{
    const QString prefix = game.IsMain() ? u"F8M"_s : u"F8T"_s;
    auto* draw = KeepingRoom(new DrawView(game,
                                          {prefix + u"date"_s,
                                           prefix + u"number"_s,
                                           prefix + u"ball"_s,
                                           {},
                                           prefix + u"machine"_s,
                                           prefix + u"ballset"_s},
                                          u"Machine: "_s, u"Set of balls: "_s));
    draw->Balls()->MakeCompact();

    auto* blank = new QFrame;
    blank->setObjectName(game.IsMain() ? u"blankshapem"_s : u"blankshapet"_s);
    blank->setBackgroundRole(QPalette::AlternateBase);
    blank->setAutoFillBackground(true);
    QLabel* noDraws = MakeLabel(u"There are no %1 draws stored."_s.arg(game.InSentence()), TextRole::Body,
                                game.IsMain() ? u"Label4"_s : u"Label5"_s);
    noDraws->setAlignment(Qt::AlignCenter);
    noDraws->setWordWrap(true);
    (new QVBoxLayout(blank))->addWidget(noDraws);

    auto* layers = new QGridLayout;
    layers->addWidget(draw, 0, 0, Qt::AlignTop);
    layers->addWidget(blank, 0, 0);
    auto* card = new Card;
    card->setObjectName(prefix + u"box"_s);
    card->Content()->addWidget(
        MakeLabel(game.name + u" Draw"_s, TextRole::Caption, ElementName(u"F8label"_s, game.IsMain() ? 0 : 1)));
    card->Content()->addLayout(layers, 1);
    return {&game, card, draw, blank};
}

void LatestDrawPage::Prepare()
{
    for (const Section& section : sections) {
        RecordSet& list = DrawListOf(*section.game);
        list.MoveFirst();
        const bool empty = list.IsEmpty();
        if (!empty)
            section.draw->Show(ReadDraw(list, *section.game));
        section.draw->setVisible(!empty);
        section.blank->setVisible(empty);
    }
    show();
}
