#include "draws/edit_draw_page.h"

#include "base/dates.h"
#include "base/numbers.h"
#include "base/texts.h"
#include "controls/card.h"
#include "controls/guard.h"
#include "controls/label.h"
#include "controls/message_box.h"
#include "controls/page_switch.h"
#include "draws/machine_fields.h"
#include "game/game.h"
#include "look/button.h"
#include "look/theme.h"
#include "store/draw_changes.h"
#include "store/open_databases.h"

#include <QGridLayout>

using namespace Qt::StringLiterals;

namespace {

/// What the page of one game is called and says where it differs from the other's.
struct PageTexts
{
    int page;
    const char* title;
    const char* back;
    const char* stored;
};

constexpr PageTexts MainTexts{16, "Edit Main Draw", "Go Back", "The edited main draw data has been stored."};
constexpr PageTexts ThunderballTexts{17, "Edit Thunderball Draw", "Back",
                                     "The edited thunderball draw data has been stored."};
constexpr int AllDrawsPage = 10;

const PageTexts& TextsOf(const Game& game)
{
    return game.IsMain() ? MainTexts : ThunderballTexts;
}

QString ControlName(const Game& game, const char* name)
{
    return u"F%1%2"_s.arg(TextsOf(game).page).arg(QLatin1String(name));
}

} // namespace

EditDrawPage::EditDrawPage(const Game& drawGame, PageSwitch& pageSwitch)
    : PageFrame(TextsOf(drawGame).page, QLatin1String(TextsOf(drawGame).title)),
      game(drawGame),
      pages(pageSwitch),
      date(MakeStoredTextLabel(QString(), TextRole::Heading, ControlName(game, "date"))),
      balls(new BallFields(
          DrawFieldNames(game, ControlName(game, "number"), ControlName(game, "ball"), ControlName(game, "entrylabel")),
          DrawBallCaptions(game))),
      back(AddFooterButton(QLatin1String(TextsOf(game).back), ControlName(game, "back"))),
      reset(AddFooterButton(u"Reset"_s, ControlName(game, "reset"))),
      save(AddFooterDefault(u"Save Changes"_s, ControlName(game, "save")))
{
    balls->SetRule(DrawEditingRule(game));
    balls->SelectTextOnFocus();
    BuildCard();
    SetBackButton(back);
    ConnectGuarded(balls, &BallFields::Completed, this, [this] {
        (machine != nullptr ? static_cast<QWidget*>(machine) : save)->setFocus(Qt::TabFocusReason);
    });
    ConnectGuarded(save, &QPushButton::clicked, this, [this] { Save_Click(); });
    ConnectGuarded(back, &QPushButton::clicked, this, [this] { Back_Click(); });
    ConnectGuarded(reset, &QPushButton::clicked, this, [this] { Reset_Click(); });
}

void EditDrawPage::BuildCard()
{
    auto* card = new Card;
    card->Content()->addWidget(date);
    card->Content()->addWidget(balls);
    if (game.hasMachine) {
        machine = MakeEditableList(ControlName(game, "machine"), u"Machine"_s);
        ballSet = MakeEditableList(ControlName(game, "ballset"), u"Set of Balls"_s);
        card->Content()->addSpacing(Spacing::Between);
        card->Content()->addLayout(MakeMachineForm(machine, ballSet, ControlName(game, "entrylabel")));
    }
    Body()->addWidget(card);
    MakeForm();
}

void EditDrawPage::Prepare()
{
    const RecordSet& list = DrawListOf(game);
    shown = list.Mark();
    const DrawRow draw = ReadDraw(list, game);
    date->setText(LongStoredDate(draw.date));
    for (int slot = 0; slot < game.BallCount(); ++slot)
        balls->SetText(slot, PlainNumber(draw.balls.at(static_cast<size_t>(slot))));
    balls->Recolour();
    if (game.hasMachine) {
        RefillList(machine, MachineNames);
        RefillList(ballSet, BallSetNames);
        machine->setEditText(FromUtf8(draw.machine));
        ballSet->setEditText(FromUtf8(draw.ballSet));
    }
    ShowInFront();
    balls->FocusField(0);
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
    if (!IsPossibleDraw(game, balls->TypedDraw())) {
        ShowMessage(u"Error detected in the data that you entered."_s + Crlf +
                    u"Please re-check and press 'Save Changes' again."_s);
        return;
    }
    if (!AskYesNo(u"Are you sure you want to replace the old data with this new data?"_s)) {
        ShowMessage(u"New data has NOT been stored"_s);
        return;
    }
    balls->Sort(game.mainBalls);
    balls->Recolour();
    ChangeDraw(game, shown, ReadControls());
    ShowMessage(QLatin1String(TextsOf(game).stored));
    hide();
    pages.Page(AllDrawsPage)->hide();
    pages.ShowPage(AllDrawsPage);
}

EnteredDraw EditDrawPage::ReadControls() const
{
    EnteredDraw draw;
    draw.balls = balls->TypedDraw();
    if (game.hasMachine) {
        draw.machine = machine->currentText();
        draw.ballSet = ballSet->currentText();
    }
    return draw;
}
