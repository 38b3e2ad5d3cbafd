#include "draws/edit_draw_page.h"

#include "balls/ball_fields.h"
#include "balls/ball_names.h"
#include "base/dates.h"
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

#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

/// What the page of one game is called and says where it differs from the other's.
struct PageTexts
{
    int page;
    QString title;
    QString back;
    QString stored;
};

const PageTexts MainTexts{16, u"Edit Main Draw"_s, u"Go Back"_s, u"The edited main draw data has been stored."_s};
const PageTexts ThunderballTexts{17, u"Edit Thunderball Draw"_s, u"Back"_s,
                                 u"The edited thunderball draw data has been stored."_s};
constexpr int AllDrawsPage = 10;

const PageTexts& TextsOf(const Game& game)
{
    return game.IsMain() ? MainTexts : ThunderballTexts;
}

} // namespace

EditDrawPage::EditDrawPage(const Game& drawGame, PageSwitch& pageSwitch)
    : PageFrame(TextsOf(drawGame).page, TextsOf(drawGame).title),
      game(drawGame),
      pages(pageSwitch),
      date(MakeStoredTextLabel(QString(), TextRole::Heading, ControlName(u"date"_s))),
      balls(new BallFields(
          DrawBallNames(game, ControlName(u"number"_s), ControlName(u"ball"_s), ControlName(u"entrylabel"_s)),
          DrawBallCaptions(game))),
      back(AddFooterButton(TextsOf(game).back, ControlName(u"back"_s))),
      reset(AddFooterButton(u"Reset"_s, ControlName(u"reset"_s))),
      save(AddFooterDefault(u"Save Changes"_s, ControlName(u"save"_s)))
{
    balls->SetRule(DrawEditingRule(game));
    balls->SelectTextOnFocus();
    BuildCard();
    SetBackButton(back);
    ConnectGuarded(balls, &BallFields::Completed, this, [this] {
        (machines != nullptr ? static_cast<QWidget*>(machines) : save)->setFocus(Qt::TabFocusReason);
    });
    if (machines != nullptr)
        connect(machines, &MachineFields::Completed, save, [this] { save->setFocus(Qt::TabFocusReason); });
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
        machines =
            new MachineFields(ControlName(u"machine"_s), ControlName(u"ballset"_s), ControlName(u"entrylabel"_s));
        card->Content()->addSpacing(Spacing::Between);
        card->Content()->addWidget(machines);
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
    balls->Show(draw.balls);
    if (machines != nullptr)
        machines->Show(FromUtf8(draw.machine), FromUtf8(draw.ballSet));
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
    ChangeDraw(game, shown, ReadControls());
    ShowMessage(TextsOf(game).stored);
    hide();
    pages.Page(AllDrawsPage)->hide();
    pages.ShowPage(AllDrawsPage);
}

EnteredDraw EditDrawPage::ReadControls() const
{
    EnteredDraw draw;
    draw.balls = balls->TypedDraw();
    if (machines != nullptr)
        machines->Read(draw);
    return draw;
}
