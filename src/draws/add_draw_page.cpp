#include "draws/add_draw_page.h"

#include "controls/card.h"
#include "controls/card_row.h"
#include "controls/guard.h"
#include "controls/message_box.h"
#include "controls/month_calendar.h"
#include "draws/draw_prompt.h"
#include "draws/machine_fields.h"
#include "game/game.h"
#include "look/button.h"
#include "look/theme.h"
#include "store/draw_changes.h"
#include "store/open_databases.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

/// What the page of one game is called and says where it differs from the other's.
struct PageTexts
{
    int page;
    const char* title;
    const char* titleName;
    const char* calendar;
    const char* field;
    const char* disc;
    const char* caption;
    const char* frame;
    const char* gameInQuestion;
    const char* stored;
};

constexpr PageTexts MainTexts{6,         "Main Draw", "Label1",  "F6Cal", "F6MBall1",
                              "F6MBall", "F6Mlabel",  "F6FMain", "main",  "The new main draw data has been stored."};
constexpr PageTexts ThunderballTexts{
    7,         "Thunderball Draw", "Label2",     "F7cal",       "F7TBall1",
    "F7TBall", "F7Tlabel",         "F7FThunder", "thunderball", "The new Thunderball draw data has been stored."};

const PageTexts& TextsOf(const Game& game)
{
    return game.IsMain() ? MainTexts : ThunderballTexts;
}

QString ControlName(const Game& game, const char* name)
{
    return u"F%1%2"_s.arg(TextsOf(game).page).arg(QLatin1String(name));
}

} // namespace

AddDrawPage::AddDrawPage(const Game& drawGame)
    : PageFrame(TextsOf(drawGame).page, QLatin1String(TextsOf(drawGame).title),
                QLatin1String(TextsOf(drawGame).titleName)),
      game(drawGame),
      calendar(new MonthCalendar),
      balls(new BallFields(DrawFieldNames(game, QLatin1String(TextsOf(game).field), QLatin1String(TextsOf(game).disc),
                                          QLatin1String(TextsOf(game).caption)),
                           DrawBallCaptions(game)))
{
    calendar->setObjectName(QLatin1String(TextsOf(game).calendar));
    balls->SetRule(AddingRule(game));
    if (!game.hasMachine)
        balls->Caption(0)->setObjectName(u"F7Tabel"_s);
    BuildCards();
    reset = AddFooterButton(u"Reset"_s, ControlName(game, "Reset"));
    store = AddFooterDefault(u"Store"_s, ControlName(game, "Store"));
    ConnectGuarded(calendar, &MonthCalendar::DateChosen, this, [this] { balls->FocusField(0); });
    ConnectGuarded(balls, &BallFields::Completed, this, [this] {
        (machine != nullptr ? static_cast<QWidget*>(machine) : store)->setFocus(Qt::TabFocusReason);
    });
    ConnectGuarded(reset, &QPushButton::clicked, this, [this] { Prepare(); });
    ConnectGuarded(store, &QPushButton::clicked, this, [this] { Store_Click(); });
}

void AddDrawPage::BuildCards()
{
    auto* dateCard = new Card;
    dateCard->Content()->setContentsMargins(Spacing::Between, Spacing::Between, Spacing::Between, Spacing::Between);
    dateCard->Content()->addWidget(calendar);
    auto* drawCard = new Card;
    drawCard->setObjectName(QLatin1String(TextsOf(game).frame));
    drawCard->Content()->addWidget(balls);
    if (game.hasMachine) {
        machine = MakeEditableList(ControlName(game, "Mmachine"), u"Machine"_s);
        ballSet = MakeEditableList(ControlName(game, "Mballset"), u"Set of Balls"_s);
        drawCard->Content()->addSpacing(Spacing::Between);
        drawCard->Content()->addLayout(MakeMachineForm(machine, ballSet, QLatin1String(TextsOf(game).caption)));
    }
    drawCard->Content()->addStretch(1);
    auto* cards = new CardRow;
    cards->addWidget(dateCard);
    cards->addWidget(drawCard, 1);
    Body()->addLayout(cards);
    MakeForm();
}

void AddDrawPage::Prepare()
{
    if (game.hasMachine) {
        RefillList(machine, MachineNames);
        RefillList(ballSet, BallSetNames);
    }
    show();
    balls->Clear();
    balls->FocusField(0);
}

void AddDrawPage::Store_Click()
{
    if (!IsPossibleDraw(game, balls->TypedDraw())) {
        ShowMessage(u"Error detected in the data that you entered."_s + Crlf +
                    u"Please re-check and press 'Store' again."_s);
        return;
    }
    balls->Sort(game.mainBalls);
    balls->Recolour();
    if (!StoreDraw(ReadControls())) {
        ShowMessage(u"The data has NOT been stored."_s);
        return;
    }
    Prepare();
    ShowMessage(QLatin1String(TextsOf(game).stored));
}

EnteredDraw AddDrawPage::ReadControls() const
{
    EnteredDraw draw;
    draw.date = calendar->selectedDate();
    draw.balls = balls->TypedDraw();
    if (game.hasMachine) {
        draw.machine = machine->currentText();
        draw.ballSet = ballSet->currentText();
    }
    return draw;
}

bool AddDrawPage::StoreDraw(const EnteredDraw& draw)
{
    auto choice = DrawPromptChoice::AddNewDraw;
    if (FindDrawByDate(DrawsOf(game), draw.date)) {
        DrawPrompt frmmsgbox1(QLatin1String(TextsOf(game).gameInQuestion), this);
        frmmsgbox1.exec();
        choice = frmmsgbox1.MsgBoxChoice();
    }
    switch (choice) {
    case DrawPromptChoice::AddNewDraw:
        StoreNewDraw(game, draw);
        return true;
    case DrawPromptChoice::OverwriteExistingDraw:
        OverwriteDrawOfDate(game, draw);
        return true;
    case DrawPromptChoice::Cancel:
    case DrawPromptChoice::None:
        break;
    }
    return false;
}
