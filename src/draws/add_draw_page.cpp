#include "draws/add_draw_page.h"

#include "balls/ball_fields.h"
#include "balls/ball_names.h"
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
    QString title;
    QString titleName;
    QString calendar;
    QString field;
    QString disc;
    QString caption;
    QString firstCaption;
    QString frame;
    QString gameInQuestion;
    QString stored;
};

const PageTexts MainTexts{6,
                          u"Main Draw"_s,
                          u"Label1"_s,
                          u"F6Cal"_s,
                          u"F6MBall1"_s,
                          u"F6MBall"_s,
                          u"F6Mlabel"_s,
                          u"F6Mlabel_0"_s,
                          u"F6FMain"_s,
                          u"main"_s,
                          u"The new main draw data has been stored."_s};
const PageTexts ThunderballTexts{7,
                                 u"Thunderball Draw"_s,
                                 u"Label2"_s,
                                 u"F7cal"_s,
                                 u"F7TBall1"_s,
                                 u"F7TBall"_s,
                                 u"F7Tlabel"_s,
                                 u"F7Tabel"_s,
                                 u"F7FThunder"_s,
                                 u"thunderball"_s,
                                 u"The new Thunderball draw data has been stored."_s};

const PageTexts& TextsOf(const Game& game)
{
    return game.IsMain() ? MainTexts : ThunderballTexts;
}

} // namespace

AddDrawPage::AddDrawPage(const Game& drawGame)
    : PageFrame(TextsOf(drawGame).page, TextsOf(drawGame).title, TextsOf(drawGame).titleName),
      game(drawGame),
      calendar(new MonthCalendar),
      balls(new BallFields(DrawBallNames(game, TextsOf(game).field, TextsOf(game).disc, TextsOf(game).caption),
                           DrawBallCaptions(game)))
{
    calendar->setObjectName(TextsOf(game).calendar);
    balls->SetRule(AddingRule(game));
    balls->Caption(0)->setObjectName(TextsOf(game).firstCaption);
    BuildCards();
    reset = AddFooterButton(u"Reset"_s, ControlName(u"Reset"_s));
    store = AddFooterDefault(u"Store"_s, ControlName(u"Store"_s));
    ConnectGuarded(calendar, &MonthCalendar::DateChosen, this, [this] { balls->FocusField(0); });
    ConnectGuarded(balls, &BallFields::Completed, this, [this] {
        (machines != nullptr ? static_cast<QWidget*>(machines) : store)->setFocus(Qt::TabFocusReason);
    });
    if (machines != nullptr)
        connect(machines, &MachineFields::Completed, store, [this] { store->setFocus(Qt::TabFocusReason); });
    ConnectGuarded(reset, &QPushButton::clicked, this, [this] { Prepare(); });
    ConnectGuarded(store, &QPushButton::clicked, this, [this] { Store_Click(); });
}

void AddDrawPage::BuildCards()
{
    auto* dateCard = new Card;
    dateCard->Content()->setContentsMargins(Spacing::Between, Spacing::Between, Spacing::Between, Spacing::Between);
    dateCard->Content()->addWidget(calendar);
    auto* drawCard = new Card;
    drawCard->setObjectName(TextsOf(game).frame);
    drawCard->Content()->addWidget(balls);
    if (game.hasMachine) {
        machines = new MachineFields(ControlName(u"Mmachine"_s), ControlName(u"Mballset"_s), TextsOf(game).caption);
        drawCard->Content()->addSpacing(Spacing::Between);
        drawCard->Content()->addWidget(machines);
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
    if (machines != nullptr)
        machines->Show({}, {});
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
    if (!StoreDraw(ReadControls())) {
        ShowMessage(u"The data has NOT been stored."_s);
        return;
    }
    Prepare();
    ShowMessage(TextsOf(game).stored);
}

EnteredDraw AddDrawPage::ReadControls() const
{
    EnteredDraw draw;
    draw.date = calendar->selectedDate();
    draw.balls = balls->TypedDraw();
    if (machines != nullptr)
        machines->Read(draw);
    return draw;
}

bool AddDrawPage::StoreDraw(const EnteredDraw& draw)
{
    auto choice = DrawPromptChoice::AddNewDraw;
    if (FindDrawByDate(DrawsOf(game), draw.date)) {
        DrawPrompt frmmsgbox1(TextsOf(game).gameInQuestion, this);
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
