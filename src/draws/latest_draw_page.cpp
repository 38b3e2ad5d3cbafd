#include "draws/latest_draw_page.h"

#include "balls/ball_row.h"
#include "controls/card.h"
#include "controls/card_row.h"
#include "controls/keeping_room.h"
#include "controls/label.h"
#include "draws/draw_view.h"
#include "game/game.h"
#include "look/theme.h"
#include "store/draw_records.h"
#include "store/open_databases.h"

#include <QGridLayout>
#include <QHBoxLayout>

using namespace Qt::StringLiterals;

namespace {

/// What differs between the two sections.
struct SectionTexts
{
    int index;
    QString title;
    QString box;
    QString blank;
    QString noDrawsName;
    QString noDraws;
    DrawView::Names names;
};

const SectionTexts MainTexts{0,
                             u"Main Draw"_s,
                             u"F8Mbox"_s,
                             u"blankshapem"_s,
                             u"Label4"_s,
                             u"There are no main draws stored."_s,
                             {u"F8Mdate"_s, u"F8Mnumber"_s, u"F8Mball"_s, {}, u"F8Mmachine"_s, u"F8Mballset"_s}};
const SectionTexts ThunderballTexts{1,
                                    u"Thunderball Draw"_s,
                                    u"F8Tbox"_s,
                                    u"blankshapet"_s,
                                    u"Label5"_s,
                                    u"There are no thunderball draws stored."_s,
                                    {u"F8Tdate"_s, u"F8Tnumber"_s, u"F8Tball"_s, {}, {}, {}}};

const SectionTexts& TextsOf(const Game& game)
{
    return game.IsMain() ? MainTexts : ThunderballTexts;
}

} // namespace

LatestDrawPage::LatestDrawPage()
    : PageFrame(8, u"Latest Draw"_s, u"labeltitle"_s),
      mainSection(MakeSection(MainGame)),
      thunderballSection(MakeSection(ThunderballGame))
{
    auto* sections = new CardRow;
    sections->addWidget(mainSection.card, MainGame.BallCount());
    sections->addWidget(thunderballSection.card, ThunderballGame.BallCount());
    Body()->addLayout(sections);
    MakeForm();
}

LatestDrawPage::Section LatestDrawPage::MakeSection(const Game& game)
{
    const SectionTexts& texts = TextsOf(game);
    Section section{};
    section.card = new Card(this);
    section.card->setObjectName(texts.box);
    section.card->Content()->addWidget(
        MakeLabel(texts.title, TextRole::Caption, ElementName(u"F8label"_s, texts.index)));
    section.draw = new DrawView(game, texts.names, {u"Machine: "_s, u"Set of balls: "_s}, section.card);
    section.draw->Balls()->MakeCompact();
    KeepingRoom(section.draw);

    section.blank = new QFrame(section.card);
    section.blank->setObjectName(texts.blank);
    section.blank->setBackgroundRole(QPalette::AlternateBase);
    section.blank->setAutoFillBackground(true);
    section.noDraws = MakeLabel(texts.noDraws, TextRole::Body, texts.noDrawsName, section.card);
    section.noDraws->setAlignment(Qt::AlignCenter);
    section.noDraws->setWordWrap(true);

    auto* layers = new QGridLayout;
    layers->addWidget(section.draw, 0, 0, Qt::AlignTop);
    layers->addWidget(section.blank, 0, 0);
    layers->addWidget(section.noDraws, 0, 0);
    section.card->Content()->addLayout(layers, 1);
    return section;
}

void LatestDrawPage::Prepare()
{
    Fill(mainSection, MainGame);
    Fill(thunderballSection, ThunderballGame);
    show();
}

void LatestDrawPage::Fill(const Section& section, const Game& game)
{
    RecordSet& list = DrawListOf(game);
    list.MoveFirst();
    const bool empty = list.IsEmpty();
    if (!empty)
        section.draw->Show(ReadDraw(list, game));
    section.draw->setVisible(!empty);
    section.blank->setVisible(empty);
    section.blank->raise();
    section.noDraws->setVisible(empty);
    section.noDraws->raise();
}
