#include "draws/edit_draw_page.h"

#include "balls/ball_edit.h"
#include "balls/ball_fields.h"
#include "base/dates.h"
#include "controls/card.h"
#include "controls/guard.h"
#include "controls/label.h"
#include "controls/message_box.h"
#include "controls/page_switch.h"
#include "draws/draw_fields.h"
#include "game/game.h"
#include "look/button.h"
#include "store/draw_changes.h"
#include "store/open_databases.h"

using namespace Qt::StringLiterals;

EditDrawPage::EditDrawPage(const Game& drawGame, PageSwitch& pageSwitch)
    : PageFrame(drawGame.IsMain() ? 16 : 17, u"Edit %1 Draw"_s.arg(drawGame.name)),
      game(drawGame),
      pages(pageSwitch),
      date(MakeStoredTextLabel(QString(), TextRole::Heading, ControlName(u"date"_s))),
      fields(new DrawFields(game, DrawEditingRule(game),
                            {{ControlName(u"number"_s), ControlName(u"ball"_s), ControlName(u"entrylabel"_s)},
                             ControlName(u"machine"_s),
                             ControlName(u"ballset"_s)})),
      back(AddFooterButton(game.IsMain() ? u"Go Back"_s : u"Back"_s, ControlName(u"back"_s))),
      reset(AddFooterButton(u"Reset"_s, ControlName(u"reset"_s))),
      save(AddFooterDefault(u"Save Changes"_s, ControlName(u"save"_s)))
{
    for (int slot = 0; slot < game.BallCount(); ++slot)
        fields->Balls()->Field(slot)->SelectTextOnFocus();
    auto* card = new Card;
    card->Content()->addWidget(date);
    card->Content()->addWidget(fields);
    Body()->addWidget(card);
    MakeForm();
    SetBackButton(back);
    ConnectGuarded(fields, &DrawFields::Completed, this, [this] { save->setFocus(Qt::TabFocusReason); });
    ConnectGuarded(save, &QPushButton::clicked, this, [this] { Save_Click(); });
    ConnectGuarded(back, &QPushButton::clicked, this, [this] { Back_Click(); });
    ConnectGuarded(reset, &QPushButton::clicked, this, [this] { Reset_Click(); });
}

void EditDrawPage::Prepare()
{
    const RecordSet& list = DrawListOf(game);
    shown = list.Mark();
    const DrawRow draw = ReadDraw(list, game);
    date->setText(LongStoredDate(draw.date));
    fields->Show(draw);
    ShowInFront();
    fields->Balls()->FocusField(0);
}

void EditDrawPage::Reset_Click()
{
    MoveToDraw(DrawListOf(game), shown, "The draw could not be shown");
    Prepare();
}

void EditDrawPage::Back_Click()
{
    if (AskYesNo(u"All changes will be lost, are you sure you want to continue?"_s))
        hide();
}

void EditDrawPage::Save_Click()
{
    constexpr int allDraws = 10;
    if (!IsPossibleDraw(game, fields->Read().balls)) {
        ShowMessage(u"Error detected in the data that you entered."_s + Crlf +
                    u"Please re-check and press 'Save Changes' again."_s);
        return;
    }
    if (!AskYesNo(u"Are you sure you want to replace the old data with this new data?"_s)) {
        ShowMessage(u"New data has NOT been stored"_s);
        return;
    }
    fields->Sort();
    ChangeDraw(game, shown, fields->Read());
    ShowMessage(u"The edited %1 draw data has been stored."_s.arg(game.InSentence()));
    hide();
    pages.Page(allDraws)->hide();
    pages.ShowPage(allDraws);
}
