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
    const char* title;
    const char* box;
    const char* blank;
    const char* noDrawsName;
    const char* noDraws;
    DrawView::Names names;
};

const SectionTexts& TextsOf(const Game& game)
{
    static const SectionTexts mainTexts{
        0,
        "Main Draw",
        "F8Mbox",
        "blankshapem",
        "Label4",
        "There are no main draws stored.",
        {u"F8Mdate"_s, u"F8Mnumber"_s, u"F8Mball"_s, QString(), u"F8Mmachine"_s, u"F8Mballset"_s}};
    static const SectionTexts thunderballTexts{1,
                                               "Thunderball Draw",
                                               "F8Tbox",
                                               "blankshapet",
                                               "Label5",
                                               "There are no thunderball draws stored.",
                                               {u"F8Tdate"_s, u"F8Tnumber"_s, u"F8Tball"_s, {}, {}, {}}};
    return game.IsMain() ? mainTexts : thunderballTexts;
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
    section.card->setObjectName(QLatin1String(texts.box));
    section.card->Content()->addWidget(
        MakeLabel(QLatin1String(texts.title), TextRole::Caption, ElementName(u"F8label"_s, texts.index)));
    section.draw = new DrawView(game, texts.names, {u"Machine: "_s, u"Set of balls: "_s}, section.card);
    section.draw->Balls()->MakeCompact();
    KeepingRoom(section.draw);

    section.blank = new QFrame(section.card);
    section.blank->setObjectName(QLatin1String(texts.blank));
    section.blank->setBackgroundRole(QPalette::AlternateBase);
    section.blank->setAutoFillBackground(true);
    section.noDraws =
        MakeLabel(QLatin1String(texts.noDraws), TextRole::Body, QLatin1String(texts.noDrawsName), section.card);
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
