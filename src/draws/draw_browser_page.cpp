#include "draws/draw_browser_page.h"

#include "balls/ball_row.h"
#include "controls/card.h"
#include "controls/guard.h"
#include "controls/keeping_room.h"
#include "controls/label.h"
#include "controls/month_calendar.h"
#include "draws/draw_view.h"
#include "game/game.h"
#include "look/button.h"
#include "look/theme.h"
#include "store/draw_records.h"
#include "store/open_databases.h"

#include <QHBoxLayout>

using namespace Qt::StringLiterals;

namespace {

QString ControlName(const Game& game, const QString& name)
{
    return (game.IsMain() ? u"F9M"_s : u"F9T"_s) + name;
}

} // namespace

BrowserSection::BrowserSection(const Game& drawGame)
    : game(drawGame),
      list(DrawListOf(game)),
      draw(new DrawView(game,
                        {QString(), ControlName(game, u"ballnum"_s), ControlName(game, u"ball"_s),
                         ControlName(game, u"label"_s), ControlName(game, u"machine"_s),
                         ControlName(game, u"setofballs"_s)},
                        u"Machine:  "_s, u"Set of balls:  "_s)),
      noDraw(MakeLabel(u"There was no %1 draw on this date."_s.arg(game.InSentence()), TextRole::Body,
                       ControlName(game, u"nodraw"_s))),
      back(KeepingRoom(new Button(u"<"_s, ControlName(game, u"back"_s)))),
      forward(KeepingRoom(new Button(u">"_s, ControlName(game, u"forward"_s))))
{
    draw->setObjectName(ControlName(game, u"frame"_s));
    noDraw->setForegroundRole(QPalette::PlaceholderText);
    // The heading has room around it for the arrows beside it.
    Content()->setContentsMargins(Spacing::Cards, Spacing::Between, Spacing::Cards, Spacing::Cards);
    AddHeading();
    Content()->addWidget(draw);
    Content()->addWidget(noDraw);
    Content()->addStretch(1);
    // F9Mback_Click, F9Tback_Click.
    ConnectGuarded(back, &QPushButton::clicked, this, [this] { Step(1, back, forward); });
    // F9Mforward_Click, F9Tforward_Click.
    ConnectGuarded(forward, &QPushButton::clicked, this, [this] { Step(-1, forward, back); });
}

void BrowserSection::AddHeading()
{
    const QString which = u"%1 %2 draw of this date"_s;
    back->setAccessibleName(which.arg(u"Previous"_s, game.InSentence()));
    forward->setAccessibleName(which.arg(u"Next"_s, game.InSentence()));
    auto* heading = new QHBoxLayout;
    heading->addWidget(MakeLabel(game.name + u" Draw"_s, TextRole::Heading, ControlName(game, u"labelmain"_s)), 1);
    for (Button* arrow : {back, forward}) {
        arrow->setMaximumHeight(arrow->fontMetrics().height() + Spacing::Between);
        heading->addWidget(arrow);
    }
    Content()->addLayout(heading);
}

void BrowserSection::Find(QDate date)
{
    shownDate = date;
    const bool found = FindLastDrawOfDate(list, date);
    bool another = false;
    if (found) {
        list.MovePrevious();
        another = IsOnDate(list, date);
        list.MoveNext();
        ShowDraw();
    }
    back->hide();
    forward->setVisible(another);
    noDraw->setVisible(!found);
    draw->setVisible(found);
}

void BrowserSection::Step(int direction, Button* arrow, Button* opposite)
{
    list.Move(2 * direction);
    const bool isLast = !IsOnDate(list, shownDate);
    list.Move(-direction);
    opposite->show();
    // An arrow that vanishes hands the focus to the other, so that the keys stay in this section.
    if (isLast && arrow->hasFocus())
        opposite->setFocus();
    arrow->setVisible(!isLast);
    ShowDraw();
}

void BrowserSection::ShowDraw()
{
    draw->Show(ReadDraw(list, game));
}

DrawBrowserPage::DrawBrowserPage()
    : PageFrame(9, u"View Any Single Draw"_s),
      F9Cal(new MonthCalendar),
      mainSection(new BrowserSection(MainGame)),
      thunderballSection(new BrowserSection(ThunderballGame))
{
    F9Cal->setObjectName(u"F9Cal"_s);
    auto* dateCard = new Card;
    dateCard->Content()->setContentsMargins(Spacing::Between, Spacing::Between, Spacing::Between, Spacing::Between);
    dateCard->Content()->addWidget(F9Cal);
    auto* draws = new QVBoxLayout;
    draws->setSpacing(Spacing::Cards);
    draws->addWidget(mainSection);
    draws->addWidget(thunderballSection);
    draws->addStretch(1);
    auto* columns = new CardRow;
    columns->addWidget(dateCard, 3, Qt::AlignTop);
    columns->addLayout(draws, 7);
    Body()->addLayout(columns);
    MakeForm();
    ConnectGuarded(F9Cal, &MonthCalendar::DateChosen, this, [this](QDate date) { FindDrawsOfDate(date); });
    // The arrow keys go through the dates; what is shown goes with them.
    ConnectGuarded(F9Cal, &MonthCalendar::selectionChanged, this, [this] { FindDrawsOfDate(F9Cal->selectedDate()); });
}

void DrawBrowserPage::Prepare()
{
    F9Cal->setSelectedDate(QDate::currentDate());
    F9Cal->showSelectedDate();
    FindDrawsOfDate(QDate::currentDate());
    show();
}

void DrawBrowserPage::FindDrawsOfDate(QDate date)
{
    mainSection->Find(date);
    thunderballSection->Find(date);
}
