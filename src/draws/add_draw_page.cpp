#include "draws/add_draw_page.h"

#include "balls/ball_fields.h"
#include "controls/card.h"
#include "controls/guard.h"
#include "controls/message_box.h"
#include "controls/month_calendar.h"
#include "draws/draw_fields.h"
#include "draws/draw_prompt.h"
#include "game/game.h"
#include "look/button.h"
#include "look/theme.h"
#include "store/draw_changes.h"
#include "store/open_databases.h"

#include <QHBoxLayout>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

DrawFields* MakeFields(const Game& game)
{
    const QString prefix = game.IsMain() ? u"F6M"_s : u"F7T"_s;
    auto* fields = new DrawFields(
        game, AddingRule(game),
        {{prefix + u"Ball1"_s, prefix + u"Ball"_s, prefix + u"label"_s}, prefix + u"machine"_s, prefix + u"ballset"_s});
    if (!game.IsMain())
        fields->Balls()->Caption(0)->setObjectName(u"F7Tabel"_s);
    return fields;
}

} // namespace

AddDrawPage::AddDrawPage(const Game& drawGame)
    : PageFrame(drawGame.IsMain() ? 6 : 7, drawGame.name + u" Draw"_s, drawGame.IsMain() ? u"Label1"_s : u"Label2"_s),
      game(drawGame),
      calendar(new MonthCalendar),
      fields(MakeFields(game))
{
    BuildCards();
    reset = AddFooterButton(u"Reset"_s, ControlName(u"Reset"_s));
    store = AddFooterDefault(u"Store"_s, ControlName(u"Store"_s));
    ConnectGuarded(calendar, &MonthCalendar::DateChosen, this, [this] { fields->Balls()->FocusField(0); });
    ConnectGuarded(fields, &DrawFields::Completed, this, [this] { store->setFocus(Qt::TabFocusReason); });
    ConnectGuarded(reset, &QPushButton::clicked, this, [this] { Prepare(); });
    ConnectGuarded(store, &QPushButton::clicked, this, [this] { Store_Click(); });
}

void AddDrawPage::BuildCards()
{
    calendar->setObjectName(game.IsMain() ? u"F6Cal"_s : u"F7cal"_s);
    auto* dateCard = new Card;
    dateCard->Content()->setContentsMargins(Spacing::Between, Spacing::Between, Spacing::Between, Spacing::Between);
    dateCard->Content()->addWidget(calendar);
    auto* drawCard = new Card;
    drawCard->setObjectName(game.IsMain() ? u"F6FMain"_s : u"F7FThunder"_s);
    drawCard->Content()->addWidget(fields);
    drawCard->Content()->addStretch(1);
    auto* cards = new CardRow;
    cards->addWidget(dateCard, 3);
    cards->addWidget(drawCard, 7);
    Body()->addLayout(cards);
    MakeForm();
}

void AddDrawPage::Prepare()
{
    show();
    fields->Clear();
    fields->Balls()->FocusField(0);
}

void AddDrawPage::Store_Click()
{
    if (!IsPossibleDraw(game, fields->Read().balls)) {
        ShowMessage(u"Error detected in the data that you entered."_s + Crlf +
                    u"Please re-check and press 'Store' again."_s);
        return;
    }
    fields->Sort();
    EnteredDraw draw = fields->Read();
    draw.date = calendar->selectedDate();
    if (!StoreDraw(draw)) {
        ShowMessage(u"The data has NOT been stored."_s);
        return;
    }
    Prepare();
    ShowMessage(game.IsMain() ? u"The new main draw data has been stored."_s
                              : u"The new Thunderball draw data has been stored."_s);
}

bool AddDrawPage::StoreDraw(const EnteredDraw& draw)
{
    auto choice = DrawPromptChoice::AddNewDraw;
    if (FindDrawByDate(DrawsOf(game), draw.date)) {
        DrawPrompt frmmsgbox1(game.InSentence(), this);
        frmmsgbox1.exec();
        choice = frmmsgbox1.MsgBoxChoice();
    }
    if (choice == DrawPromptChoice::AddNewDraw)
        StoreNewDraw(game, draw);
    else if (choice == DrawPromptChoice::OverwriteExistingDraw)
        OverwriteDrawOfDate(game, draw);
    else
        return false;
    return true;
}
