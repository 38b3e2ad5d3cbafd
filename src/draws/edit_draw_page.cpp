#include "draws/edit_draw_page.h"

#include "draws/draw_controls.h"
#include "draws/draw_records.h"
#include "draws/game.h"
#include "platform/card.h"
#include "platform/dates.h"
#include "platform/guard.h"
#include "platform/message_box.h"
#include "platform/numbers.h"
#include "platform/texts.h"
#include "shell/open_databases.h"
#include "shell/page_switch.h"

#include <QGridLayout>

#include <algorithm>

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
    return game.drawType == MainGame.drawType ? MainTexts : ThunderballTexts;
}

QString ControlName(const Game& game, const char* name)
{
    return QStringLiteral("F%1%2").arg(TextsOf(game).page).arg(QLatin1String(name));
}

} // namespace

EditDrawPage::EditDrawPage(const Game& drawGame, PageSwitch& pageSwitch)
    : PageFrame(TextsOf(drawGame).page, QLatin1String(TextsOf(drawGame).title)),
      game(drawGame),
      pages(pageSwitch),
      date(MakeLabel(QString(), TextRole::Heading, ControlName(game, "date"))),
      balls(new BallFields(
          DrawFieldNames(game, ControlName(game, "number"), ControlName(game, "ball"), ControlName(game, "entrylabel")),
          DrawBallCaptions(game))),
      back(AddFooterButton(QLatin1String(TextsOf(game).back), ControlName(game, "back"))),
      reset(AddFooterButton(QStringLiteral("Reset"), ControlName(game, "reset"))),
      save(AddFooterDefault(QStringLiteral("Save Changes"), ControlName(game, "save")))
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
    // F16reset_Click, F17reset_Click.
    ConnectGuarded(reset, &QPushButton::clicked, this, [this] { Open(drawId); });
}

void EditDrawPage::BuildCard()
{
    auto* card = new Card;
    card->Content()->addWidget(date);
    card->Content()->addWidget(balls);
    if (game.hasMachine) {
        machine = MakeEditableList(ControlName(game, "machine"), QStringLiteral("Machine"));
        ballSet = MakeEditableList(ControlName(game, "ballset"), QStringLiteral("Set of Balls"));
        card->Content()->addSpacing(Spacing::Between);
        card->Content()->addLayout(MakeMachineForm(machine, ballSet, ControlName(game, "entrylabel")));
    }
    Body()->addWidget(card);
    Body()->addStretch(1);
}

void EditDrawPage::Open(std::int64_t number)
{
    drawId = number;
    RecordSet& list = DrawListOf(game);
    MoveToDraw(list, drawId, "The draw could not be shown");
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

void EditDrawPage::Back_Click()
{
    if (AskYesNo(QStringLiteral("All changes will be lost, are you sure you want to continue?")))
        hide();
}

void EditDrawPage::Save_Click()
{
    if (!IsPossibleDraw(game, balls->Numbers())) {
        ShowMessage(QStringLiteral("Error detected in the data that you entered.") + Crlf +
                    QStringLiteral("Please re-check and press 'Save Changes' again."));
        return;
    }
    if (!AskYesNo(QStringLiteral("Are you sure you want to replace the old data with this new data?"))) {
        ShowMessage(QStringLiteral("New data has NOT been stored"));
        return;
    }
    balls->Sort(game.mainBalls);
    balls->Recolour();
    StoreChanges();
    DrawListOf(game).Requery();
    ShowMessage(QLatin1String(TextsOf(game).stored));
    hide();
    pages.Page(AllDrawsPage)->hide();
    pages.ShowPage(AllDrawsPage);
}

EnteredDraw EditDrawPage::ReadControls() const
{
    EnteredDraw draw;
    const std::vector<double> numbers = balls->Numbers();
    std::copy(numbers.begin(), numbers.end(), draw.balls.begin());
    if (game.hasMachine) {
        draw.machine = machine->currentText();
        draw.ballSet = ballSet->currentText();
    }
    return draw;
}

void EditDrawPage::StoreChanges()
{
    RecordSet& table = DrawsOf(game);
    const std::string doing = "The draw could not be changed";
    Transaction transaction(DrawDb, doing);
    MoveToDraw(table, drawId, doing);
    OverwriteDraw(table, game, ReadControls());
    transaction.Commit();
}
